#include "ZrParamValue.h"

#include "zrdefine/Constants.h"

bool ZrParamValue::isEmpty(const QVariant &value)
{
    return value.toString().isEmpty();
}

QVariant ZrParamValue::converted(const QVariantMap &record, const QVariant &value)
{
    const QString type = record.value(Constants::STRATEGYPARAM_VALUETYPE).toString();
    if (type == Constants::VALUETYPE_BOOL)
        return value.toBool();
    if (type == Constants::VALUETYPE_DATE || type == Constants::VALUETYPE_TIME ||
        type == Constants::VALUETYPE_STRING)
        return value.toString();
    if (type == Constants::VALUETYPE_DOUBLE)
        return value.toDouble();
    if (type == Constants::VALUETYPE_INT)
        return value.toInt();
    if (type == Constants::VALUETYPE_INT64)
        return value.toLongLong();
    return value;
}

QVariant ZrParamValue::convertedUnlessEmpty(const QVariantMap &record, const QVariant &value)
{
    return isEmpty(value) ? value : converted(record, value);
}
