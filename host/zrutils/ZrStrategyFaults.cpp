#include "zrutils/ZrStrategyFaults.h"

#include <QtCore/QDebug>

namespace {
constexpr int longestQuote = 60;
constexpr int longestPath = 500;
const char *const Caller = "ZrCommonUtils::praseAlgoParamJsonFile";
} // namespace

ZrStrategyFaults::ZrStrategyFaults(const QString &path)
    : m_path(path.simplified().right(longestPath))
{
}

ZrStrategyFaults::~ZrStrategyFaults()
{
    if (m_lines > mostLines)
        qWarning().noquote() << Caller << m_path + QStringLiteral(":") << m_lines - mostLines
                             << "more faults";
}

void ZrStrategyFaults::refuse(const QString &what)
{
    m_isRefused = true;
    tell(QStringLiteral("refused: ") + what);
}

void ZrStrategyFaults::refuse(const QString &key, const QString &what)
{
    m_isRefused = true;
    tell(QStringLiteral("refused: key %1: %2").arg(quoted(key), what));
}

void ZrStrategyFaults::skip(const QString &key, const QString &what)
{
    tell(QStringLiteral("left out: key %1: %2").arg(quoted(key), what));
}

// Both ends of a long text: the last part of a key's place says most.
QString ZrStrategyFaults::quoted(const QString &text)
{
    QString line = text.simplified();
    if (line.size() > longestQuote)
        line = line.left(longestQuote / 2) + QStringLiteral("...") + line.right(longestQuote / 2);
    return QLatin1Char('"') + line + QLatin1Char('"');
}

void ZrStrategyFaults::tell(const QString &line)
{
    if (++m_lines <= mostLines)
        qWarning().noquote() << Caller << m_path + QStringLiteral(":") << line;
}
