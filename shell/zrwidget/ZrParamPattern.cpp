#include "ZrParamPattern.h"

#include "ZrParamLink.h"

#include "zrdefine/Constants.h"

namespace {
// A new editor takes 19 digits before the full stop, one whose other parameter has changed 13: required. What
// stands in an editor is left alone, what is typed from then on is held to an amount's digits.
constexpr int digitsOfNew = 19;
constexpr int digitsOfChanged = 13;

QString decimal(int digits, int precision)
{
    return QStringLiteral("10000000000000|([0-9]{1,%1}[.]{0,1}[0-9]{0,%2})").arg(digits).arg(precision);
}

QString ofDouble(const QVariantMap &record, const ZrParamLink &link)
{
    if (link.isLinked())
        return decimal(digitsOfNew, link.currentCase().value(Constants::STRATEGYPARAM_PRECISION).toInt());
    if (record.contains(Constants::STRATEGYPARAM_PRECISION))
        return decimal(digitsOfNew, record.value(Constants::STRATEGYPARAM_PRECISION).toInt());
    return QStringLiteral("-?[0-9]+.[0-9]+");
}

QString ofType(const QVariantMap &record, const ZrParamLink &link)
{
    const QString type = record.value(Constants::STRATEGYPARAM_VALUETYPE).toString();
    if (type == Constants::VALUETYPE_INT)
        return QStringLiteral("[0-9]{1,10}");
    if (type == Constants::VALUETYPE_INT64)
        return QStringLiteral("[0-9]{1,19}");
    if (type == Constants::VALUETYPE_DOUBLE)
        return ofDouble(record, link);
    return QString();
}
} // namespace

QString ZrParamPattern::ofNew(const QVariantMap &record, const ZrParamLink &link)
{
    const QString &key = Constants::STRATEGYPARAM_REGEXPVALIDATOR;
    // An empty pattern of the record's own switches the rule of the type off.
    if (record.contains(key))
        return link.currentCase().value(key, record.value(key)).toString();
    return ofType(record, link);
}

QString ZrParamPattern::ofChanged(const ZrParamLink &link)
{
    const QVariantMap &current = link.currentCase();
    if (current.contains(Constants::STRATEGYPARAM_PRECISION))
        return decimal(digitsOfChanged, current.value(Constants::STRATEGYPARAM_PRECISION).toInt());
    return current.value(Constants::STRATEGYPARAM_REGEXPVALIDATOR).toString();
}
