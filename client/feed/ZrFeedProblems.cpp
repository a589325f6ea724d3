#include "ZrFeedProblems.h"

#include <QtCore/QFileInfo>

void ZrFeedProblems::add(const QString &file, qint64 line, const QString &what)
{
    if (m_count++ < MaxKept)
        m_first.append(QStringLiteral("%1, line %2: %3").arg(QFileInfo(file).fileName()).arg(line).arg(what));
}

void ZrFeedProblems::addFile(const QString &file, const QString &what)
{
    if (m_files.size() < MaxKept)
        m_files.append(QFileInfo(file).fileName() + QStringLiteral(": ") + what);
}

QString ZrFeedProblems::text() const
{
    QStringList lines = m_files + m_first;
    if (m_count > m_first.size())
        lines.append(QStringLiteral("and %1 more lines").arg(m_count - m_first.size()));
    return lines.join(QLatin1Char('\n'));
}
