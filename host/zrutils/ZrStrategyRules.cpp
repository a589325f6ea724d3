#include "zrutils/ZrStrategyRules.h"

#include "zrdefine/Constants.h"

#include <QtCore/QDateTime>
#include <QtCore/QRegExp>
#include <QtCore/QRegularExpression>

namespace {
constexpr int longestPattern = 500;
constexpr double mostWork = 10000; // parts of a compiled pattern, at the worst

/// Parts that are counted are compiled as often as counted, and counts within counts multiply.
double repeatsOf(const QString &pattern)
{
    static const QRegularExpression count(QStringLiteral("\\{\\s*(\\d*)\\s*(?:,\\s*(\\d*)\\s*)?\\}"));
    double repeats = 1;
    for (auto match = count.globalMatch(pattern); match.hasNext();) {
        const QRegularExpressionMatch found = match.next();
        repeats *= qMax(1.0, qMax(found.captured(1).toDouble(), found.captured(2).toDouble()));
    }
    return repeats;
}

bool isOutside(const QVariantMap &record, double value)
{
    const auto has = [&record](const QString &key) { return record.contains(key); };
    const auto bound = [&record](const QString &key) { return record.value(key).toDouble(); };
    return (has(Constants::STRATEGYPARAM_MINVALUE) && value < bound(Constants::STRATEGYPARAM_MINVALUE)) ||
           (has(Constants::STRATEGYPARAM_MAXVALUE) && value > bound(Constants::STRATEGYPARAM_MAXVALUE)) ||
           (has(Constants::STRATEGYPARAM_EXCLUSIVEMINVALUE) &&
            value <= bound(Constants::STRATEGYPARAM_EXCLUSIVEMINVALUE)) ||
           (has(Constants::STRATEGYPARAM_EXCLUSIVEMAXVALUE) &&
            value >= bound(Constants::STRATEGYPARAM_EXCLUSIVEMAXVALUE));
}
} // namespace

const QMap<QString, QString> &ZrStrategyRules::editors()
{
    static const QMap<QString, QString> words = {
        {QStringLiteral("label"), Constants::WIDGETTYPE_LABEL},
        {QStringLiteral("line"), Constants::WIDGETTYPE_LINEEDIT},
        {QStringLiteral("radio"), Constants::WIDGETTYPE_RADIOBUTTON},
        {QStringLiteral("check"), Constants::WIDGETTYPE_CHECKBOX},
        {QStringLiteral("combo"), Constants::WIDGETTYPE_COMBOBOX},
        {QStringLiteral("multiCombo"), Constants::WIDGETTYPE_MULTICOMBOBOX},
        {QStringLiteral("spin"), Constants::WIDGETTYPE_SPINBOX},
        {QStringLiteral("time"), Constants::WIDGETTYPE_TIMEEDIT},
        {QStringLiteral("dateTime"), Constants::WIDGETTYPE_DATETIME},
        {QStringLiteral("security"), Constants::WIDGETTYPE_ZRSEARCHBOX},
        {QStringLiteral("account"), Constants::WIDGETTYPE_ACCOUNTCOMBOBOX}};
    return words;
}

const QMap<QString, QString> &ZrStrategyRules::types()
{
    static const QMap<QString, QString> words = {{QStringLiteral("bool"), Constants::VALUETYPE_BOOL},
                                                 {QStringLiteral("date"), Constants::VALUETYPE_DATE},
                                                 {QStringLiteral("double"), Constants::VALUETYPE_DOUBLE},
                                                 {QStringLiteral("int"), Constants::VALUETYPE_INT},
                                                 {QStringLiteral("int64"), Constants::VALUETYPE_INT64},
                                                 {QStringLiteral("string"), Constants::VALUETYPE_STRING},
                                                 {QStringLiteral("time"), Constants::VALUETYPE_TIME}};
    return words;
}

QString ZrStrategyRules::usualType(const QString &editor)
{
    if (editor == Constants::WIDGETTYPE_CHECKBOX)
        return QStringLiteral("bool");
    if (editor == Constants::WIDGETTYPE_SPINBOX)
        return QString();
    if (editor == Constants::WIDGETTYPE_TIMEEDIT)
        return QStringLiteral("time");
    return QStringLiteral("string");
}

bool ZrStrategyRules::suits(const QString &editor, const QString &type)
{
    if (editor == Constants::WIDGETTYPE_CHECKBOX)
        return type == Constants::VALUETYPE_BOOL;
    if (editor == Constants::WIDGETTYPE_SPINBOX)
        return isNumber(type);
    if (editor == Constants::WIDGETTYPE_TIMEEDIT || editor == Constants::WIDGETTYPE_DATETIME ||
        editor == Constants::WIDGETTYPE_ZRSEARCHBOX || editor == Constants::WIDGETTYPE_ACCOUNTCOMBOBOX)
        return !isNumber(type) && type != Constants::VALUETYPE_BOOL;
    return true;
}

bool ZrStrategyRules::isNumber(const QString &type)
{
    return type == Constants::VALUETYPE_DOUBLE || type == Constants::VALUETYPE_INT ||
           type == Constants::VALUETYPE_INT64;
}

bool ZrStrategyRules::offersChoices(const QString &editor)
{
    return editor == Constants::WIDGETTYPE_RADIOBUTTON || editor == Constants::WIDGETTYPE_COMBOBOX ||
           editor == Constants::WIDGETTYPE_MULTICOMBOBOX;
}

bool ZrStrategyRules::canDepend(const QString &editor)
{
    return offersChoices(editor) || editor == Constants::WIDGETTYPE_LINEEDIT;
}

bool ZrStrategyRules::hasInitial(const QString &editor)
{
    return editor != Constants::WIDGETTYPE_ZRSEARCHBOX && editor != Constants::WIDGETTYPE_ACCOUNTCOMBOBOX;
}

bool ZrStrategyRules::isEmptyRange(const QVariantMap &record)
{
    const auto bound = [&record](const QString &key, double otherwise) {
        return record.value(key, otherwise).toDouble();
    };
    const double most = bound(Constants::STRATEGYPARAM_MAXVALUE, qInf());
    const double below = bound(Constants::STRATEGYPARAM_EXCLUSIVEMAXVALUE, qInf());
    const double least = bound(Constants::STRATEGYPARAM_MINVALUE, -qInf());
    const double above = bound(Constants::STRATEGYPARAM_EXCLUSIVEMINVALUE, -qInf());
    return least > most || above >= below || least >= below || above >= most;
}

QString ZrStrategyRules::faultOfPattern(const QString &pattern)
{
    if (pattern.size() > longestPattern || repeatsOf(pattern) * pattern.size() > mostWork)
        return QStringLiteral("it is too long or repeats too much");
    const QRegExp expression(pattern);
    return expression.isValid() ? QString() : QStringLiteral("it is no pattern");
}

QString ZrStrategyRules::faultOfInitial(const QVariantMap &record, const QVariant &value)
{
    const QString editor = record.value(Constants::STRATEGYPARAM_WIDGETTYPE).toString();
    const QString text = value.toString();
    if (isNumber(record.value(Constants::STRATEGYPARAM_VALUETYPE).toString()) &&
        isOutside(record, value.toDouble()))
        return QStringLiteral("it is not within the bounds");
    if (editor == Constants::WIDGETTYPE_TIMEEDIT &&
        !QTime::fromString(text, QStringLiteral("hh:mm:ss")).isValid())
        return QStringLiteral("a time such as \"09:30:00\" is wanted");
    if (editor == Constants::WIDGETTYPE_DATETIME &&
        !QDateTime::fromString(text, QStringLiteral("yyyy-MM-dd hh:mm:ss")).isValid())
        return QStringLiteral("a time such as \"2024-01-31 09:30:00\" is wanted");
    return QString();
}
