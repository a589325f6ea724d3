#include "ZrFaultSpec.h"

#include <QtCore/QStringList>

namespace {
constexpr int maxDelayMs = 3600 * 1000;
constexpr int maxBurst = 1000 * 1000;

bool parseShare(const QString &text, double *share)
{
    bool isNumber = false;
    *share = text.toDouble(&isNumber);
    return isNumber && *share >= 0 && *share <= 1;
}

bool parseBounded(const QString &text, int max, int *number)
{
    bool isNumber = false;
    *number = text.toInt(&isNumber);
    return isNumber && *number >= 0 && *number <= max;
}

bool parseRange(const QString &text, ZrFaultSpec *spec)
{
    const QStringList ends = text.split(QLatin1String(".."));
    return ends.size() <= 2 && parseBounded(ends.first(), maxDelayMs, &spec->delayMinMs) &&
           parseBounded(ends.last(), maxDelayMs, &spec->delayMaxMs) && spec->delayMinMs <= spec->delayMaxMs;
}

double *shareNamed(const QString &name, ZrFaultSpec *spec)
{
    if (name == QLatin1String("drop"))
        return &spec->drop;
    if (name == QLatin1String("duplicate"))
        return &spec->duplicate;
    if (name == QLatin1String("reorder"))
        return &spec->reorder;
    if (name == QLatin1String("reject"))
        return &spec->reject;
    return name == QLatin1String("delayed") ? &spec->delayed : nullptr;
}

/// One sentence about what is wrong with a part, or an empty text.
QString parsePart(const QString &name, const QString &value, ZrFaultSpec *spec)
{
    if (double *const share = shareNamed(name, spec)) {
        return parseShare(value, share)
                   ? QString()
                   : QStringLiteral("the fault \"%1\" needs a number from 0 to 1").arg(name);
    }
    if (name == QLatin1String("delay"))
        return parseRange(value, spec) ? QString()
                                       : QStringLiteral("the fault \"delay\" needs MIN..MAX in ms");
    if (name == QLatin1String("burst")) {
        return parseBounded(value, maxBurst, &spec->burst)
                   ? QString()
                   : QStringLiteral("the fault \"burst\" needs a count up to %1").arg(maxBurst);
    }
    if (name == QLatin1String("seed")) {
        bool isNumber = false;
        spec->seed = value.toUInt(&isNumber);
        return isNumber ? QString() : QStringLiteral("the fault \"seed\" needs a whole number from 0");
    }
    return QStringLiteral("there is no fault \"%1\"").arg(name.left(40));
}
} // namespace

bool ZrFaultSpec::isHarmless() const
{
    return drop <= 0 && duplicate <= 0 && reorder <= 0 && reject <= 0 && burst <= 1 &&
           (delayMaxMs <= 0 || delayed <= 0);
}

bool ZrFaultSpec::parse(const QString &text, ZrFaultSpec *spec, QString *errorText)
{
    ZrFaultSpec parsed;
    const QStringList parts = text.split(QLatin1Char(','), Qt::SkipEmptyParts);
    for (const QString &part : parts) {
        const int sign = part.indexOf(QLatin1Char('='));
        const QString name = part.left(sign).trimmed();
        const QString wrong = sign < 0
                                  ? QStringLiteral("\"%1\" is not of the form name=value").arg(part.left(40))
                                  : parsePart(name, part.mid(sign + 1).trimmed(), &parsed);
        if (wrong.isEmpty())
            continue;
        *errorText = QStringLiteral("Bad faults: %1.").arg(wrong);
        return false;
    }
    *spec = parsed;
    return true;
}
