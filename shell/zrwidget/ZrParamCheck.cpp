#include "ZrParamCheck.h"

#include "ZrParamValue.h"

#include "zrdefine/Constants.h"

#include <QtCore/QCoreApplication>

namespace {
/// Translations stand with the sheet that shows them.
QString translated(const char *text)
{
    return QCoreApplication::translate("ZrAlgoParamSettingWidget", text);
}

struct Bound
{
    const QString &key;
    bool (*isBroken)(double value, double limit);
    const char *words;
};
} // namespace

QString ZrParamCheck::emptyFault(const QString &name)
{
    return name + translated(QT_TRANSLATE_NOOP("ZrAlgoParamSettingWidget", "不可为空！ "));
}

QString ZrParamCheck::fault(const QVariantMap &record, const QVariant &value)
{
    static const Bound bounds[] = {
        {Constants::STRATEGYPARAM_MAXVALUE, [](double value, double limit) { return value > limit; },
         QT_TRANSLATE_NOOP("ZrAlgoParamSettingWidget", "不可大于")},
        {Constants::STRATEGYPARAM_EXCLUSIVEMAXVALUE,
         [](double value, double limit) { return value >= limit; },
         QT_TRANSLATE_NOOP("ZrAlgoParamSettingWidget", "不可大于等于")},
        {Constants::STRATEGYPARAM_MINVALUE, [](double value, double limit) { return value < limit; },
         QT_TRANSLATE_NOOP("ZrAlgoParamSettingWidget", "不可小于")},
        {Constants::STRATEGYPARAM_EXCLUSIVEMINVALUE,
         [](double value, double limit) { return value <= limit; },
         QT_TRANSLATE_NOOP("ZrAlgoParamSettingWidget", "不可小于等于")}};
    const QString name = record.value(Constants::STRATEGYPARAM_PARAMNAME).toString();
    if (record.value(Constants::STRATEGYPARAM_CANBEEMPTY).toString() == QLatin1String("0") &&
        ZrParamValue::isEmpty(value))
        return emptyFault(name);
    // An empty value that may be empty still meets the bounds, as 0: required. Descriptions count on it, with
    // a least value above 0 for what must be given.
    for (const Bound &bound : bounds) {
        const QVariant limit = record.value(bound.key);
        if (record.contains(bound.key) && bound.isBroken(value.toDouble(), limit.toDouble()))
            return name + translated(bound.words) + limit.toString();
    }
    return QString();
}
