#include "zrutils/ZrStrategyParameter.h"

#include "zrdefine/Constants.h"
#include "zrutils/ZrStrategyRules.h"

#include <QtCore/QJsonArray>
#include <QtCore/QMap>

#include <algorithm>

namespace {
constexpr int mostRows = 10000; // as many as a form shows
constexpr int widestPx = 16777215;
constexpr int longestText = 32767;
constexpr int mostDecimals = 12;
constexpr int mostOptions = 1000;
constexpr int mostCases = 64;

QString key(const char *name)
{
    return QLatin1String(name);
}
} // namespace

const QString ZrStrategyParameter::securityLink = QStringLiteral("SecurityLink");

ZrStrategyParameter::ZrStrategyParameter(const QJsonValue &object, const QString &where, Place place)
    : m_fields(object, where)
    , m_place(place)
{
}

QVariantMap ZrStrategyParameter::read(int row)
{
    readNames();
    if (!m_fields.failed()) {
        readPlace(row);
        readRules();
        readBounds();
        readChoices();
        readDependency();
        readInitial();
        m_fields.finish();
    }
    return m_record;
}

void ZrStrategyParameter::readNames()
{
    const QString id = m_fields.neededText(key("id"));
    const QString name = m_fields.has(key("name")) ? m_fields.text(key("name")) : id;
    m_editor = m_fields.word(key("editor"), ZrStrategyRules::editors(), QString());
    m_type = m_fields.word(key("type"), ZrStrategyRules::types(), ZrStrategyRules::usualType(m_editor));
    if (!ZrStrategyRules::suits(m_editor, m_type))
        m_fields.complain(key("type"), QStringLiteral("this editor does not edit such values"));
    m_record = {{Constants::STRATEGYPARAM_PARAMID, id},
                {Constants::STRATEGYPARAM_PARAMNAME, name},
                {Constants::STRATEGYPARAM_PARAMDESC, m_fields.text(key("description"))},
                {Constants::STRATEGYPARAM_WIDGETTYPE, m_editor},
                {Constants::STRATEGYPARAM_VALUETYPE, m_type}};
}

void ZrStrategyParameter::readPlace(int row)
{
    if (m_place == InTable) {
        m_record.insert(Constants::STRATEGYPARAM_KEY, m_fields.flag(key("key"), false));
        if (m_fields.flag(key("addsRow"), false))
            m_record.insert(Constants::STRATEGYPARAM_EXTRAACTION, QStringLiteral("addrow"));
        return;
    }
    m_record.insert(Constants::STRATEGYPARAM_ROW, m_fields.whole(key("row"), row, 1, mostRows));
    const QList<QPair<QString, QString>> widths = {
        {key("nameWidth"), Constants::STRATEGYPARAM_NAMEWIDTH},
        {key("editorWidth"), Constants::STRATEGYPARAM_WIDGETWIDTH}};
    for (const auto &width : widths) {
        if (m_fields.has(width.first))
            m_record.insert(width.second, m_fields.whole(width.first, 0, 0, widestPx));
    }
}

void ZrStrategyParameter::readRules()
{
    // A text, as the sheet reads it.
    const bool isRequired = m_fields.flag(key("required"), false);
    m_record.insert(Constants::STRATEGYPARAM_CANBEEMPTY,
                    isRequired ? QStringLiteral("0") : QStringLiteral("1"));
    m_record.insert(Constants::STRATEGYPARAM_EDITABLEAFTERRUNNING,
                    m_fields.flag(key("editableWhileRunning"), false));
    if (m_editor != Constants::WIDGETTYPE_LINEEDIT)
        return;
    if (m_fields.has(key("maxLength")))
        m_record.insert(Constants::STRATEGYPARAM_VALUELENGTH,
                        m_fields.whole(key("maxLength"), 0, 1, longestText));
    if (m_type == Constants::VALUETYPE_DOUBLE && m_fields.has(key("precision")))
        m_record.insert(Constants::STRATEGYPARAM_PRECISION,
                        m_fields.whole(key("precision"), 0, 0, mostDecimals));
    if (m_fields.has(key("pattern")))
        m_record.insert(Constants::STRATEGYPARAM_REGEXPVALIDATOR, readPattern(&m_fields));
}

void ZrStrategyParameter::readBounds()
{
    if (!ZrStrategyRules::isNumber(m_type))
        return;
    const QMap<QString, QString> bounds = {{key("min"), Constants::STRATEGYPARAM_MINVALUE},
                                           {key("max"), Constants::STRATEGYPARAM_MAXVALUE},
                                           {key("exclusiveMin"), Constants::STRATEGYPARAM_EXCLUSIVEMINVALUE},
                                           {key("exclusiveMax"), Constants::STRATEGYPARAM_EXCLUSIVEMAXVALUE}};
    const bool isSpin = m_editor == Constants::WIDGETTYPE_SPINBOX;
    // A spin box of whole numbers holds an int, whatever its type.
    const QString type = isSpin && m_type == Constants::VALUETYPE_INT64 ? Constants::VALUETYPE_INT : m_type;
    for (auto bound = bounds.cbegin(); bound != bounds.cend(); ++bound) {
        if (m_fields.has(bound.key()))
            m_record.insert(bound.value(), m_fields.typed(bound.key(), type));
    }
    if (ZrStrategyRules::isEmptyRange(m_record))
        m_fields.complain(key("max"), QStringLiteral("no value is within the bounds"));
    if (!isSpin)
        return;
    if (m_fields.has(key("step"))) {
        m_record.insert(Constants::STRATEGYPARAM_STEP, m_fields.typed(key("step"), type));
        if (m_record.value(Constants::STRATEGYPARAM_STEP).toDouble() <= 0)
            m_fields.complain(key("step"), QStringLiteral("a number above 0 is wanted"));
    }
    if (m_type == Constants::VALUETYPE_INT64 && !m_record.contains(Constants::STRATEGYPARAM_MAXVALUE))
        m_fields.complain(key("max"), QStringLiteral("a spin box of this type needs a greatest value"));
}

void ZrStrategyParameter::readChoices()
{
    if (ZrStrategyRules::offersChoices(m_editor))
        m_record.insert(Constants::STRATEGYPARAM_OPTIONS, readOptions(&m_fields));
    else if (m_editor == Constants::WIDGETTYPE_ZRSEARCHBOX)
        m_record.insert(Constants::STRATEGYPARAM_OPTIONS, readSecurities());
}

QVariantList ZrStrategyParameter::readOptions(ZrStrategyFields *fields)
{
    QVariantList options;
    const QJsonArray list = fields->list(key("options"), mostOptions);
    for (int i = 0; i < list.size() && !fields->failed(); ++i) {
        ZrStrategyFields option(list.at(i), fields->where(QStringLiteral("options[%1]").arg(i)));
        const QString text = option.text(key("text"));
        if (!option.has(key("value")))
            option.complain(key("value"), QStringLiteral("a value is wanted"));
        const QVariant value = option.typed(key("value"), m_type);
        option.finish();
        fields->adopt(option);
        options.append(QVariantMap{{Constants::STRATEGYPARAM_DISPLAYROLE, text},
                                   {Constants::STRATEGYPARAM_USERROLE, value}});
    }
    return options;
}

// One text of entries; an entry is a type of securities, or type and subtype.
QString ZrStrategyParameter::readSecurities()
{
    QStringList entries;
    const QJsonArray list = m_fields.list(key("securities"), mostOptions);
    for (int i = 0; i < list.size(); ++i) {
        const QString entry = list.at(i).toString();
        if (entry.isEmpty() || entry.contains(QLatin1Char('/')) || entry.count(QLatin1Char('|')) > 1)
            m_fields.complain(QStringLiteral("securities[%1]").arg(i),
                              QStringLiteral("a type such as \"Stock\" or \"Stock|Main\" is wanted"));
        entries.append(entry);
    }
    return entries.join(QLatin1Char('/'));
}

QString ZrStrategyParameter::readPattern(ZrStrategyFields *fields)
{
    const QString pattern = fields->text(key("pattern"));
    const QString fault = ZrStrategyRules::faultOfPattern(pattern);
    if (!fault.isEmpty())
        fields->complain(key("pattern"), fault);
    return pattern;
}

void ZrStrategyParameter::readDependency()
{
    if (!ZrStrategyRules::canDepend(m_editor) || !m_fields.has(key("dependsOn")))
        return;
    ZrStrategyFields link(m_fields.value(key("dependsOn")), m_fields.where(key("dependsOn")));
    const bool isOfSecurity = link.has(key("securityField"));
    const QString other = link.neededText(isOfSecurity ? key("securityField") : key("parameter"));
    const QJsonArray list = link.list(key("cases"), mostCases);
    QVariantList cases;
    for (int i = 0; i < list.size() && !link.failed(); ++i) {
        const QString where = link.where(QStringLiteral("cases[%1]").arg(i));
        cases.append(readCase(list.at(i), where));
    }
    link.finish();
    m_fields.adopt(link);
    m_record.insert(Constants::STRATEGYPARAM_LINKPARAMID, other);
    m_record.insert(Constants::STRATEGYPARAM_LINKTYPE, cases);
    m_record.insert(securityLink, isOfSecurity);
}

QVariantMap ZrStrategyParameter::readCase(const QJsonValue &object, const QString &where)
{
    ZrStrategyFields fields(object, where);
    const QJsonValue value = fields.value(key("value"));
    // The other parameter's value is compared as a text.
    if (!value.isString() && !value.isDouble() && !value.isBool())
        fields.complain(key("value"), QStringLiteral("a text, a number, true or false is wanted"));
    QVariantMap result{{Constants::STRATEGYPARAM_PARAMVALUE, value.toVariant().toString()}};
    if (ZrStrategyRules::offersChoices(m_editor)) {
        result.insert(Constants::STRATEGYPARAM_OPTIONS, readOptions(&fields));
    } else {
        if (fields.has(key("pattern")))
            result.insert(Constants::STRATEGYPARAM_REGEXPVALIDATOR, readPattern(&fields));
        if (m_type == Constants::VALUETYPE_DOUBLE && fields.has(key("precision")))
            result.insert(Constants::STRATEGYPARAM_PRECISION,
                          fields.whole(key("precision"), 0, 0, mostDecimals));
    }
    fields.finish();
    m_fields.adopt(fields);
    return result;
}

void ZrStrategyParameter::readInitial()
{
    if (!ZrStrategyRules::hasInitial(m_editor) || !m_fields.has(key("initial")))
        return;
    const QVariant value = m_fields.typed(key("initial"), m_type);
    const QString fault = ZrStrategyRules::faultOfInitial(m_record, value);
    if (!fault.isEmpty())
        m_fields.complain(key("initial"), fault);
    else if (ZrStrategyRules::offersChoices(m_editor) && !isOffered(value))
        m_fields.complain(key("initial"), QStringLiteral("it is none of the options"));
    m_record.insert(Constants::STRATEGYPARAM_INIT, value);
}

// Among the options or those of any case: which case holds is known only when the sheet is in use.
bool ZrStrategyParameter::isOffered(const QVariant &value) const
{
    QVariantList options = m_record.value(Constants::STRATEGYPARAM_OPTIONS).toList();
    const QVariantList cases = m_record.value(Constants::STRATEGYPARAM_LINKTYPE).toList();
    for (const QVariant &one : cases)
        options += one.toMap().value(Constants::STRATEGYPARAM_OPTIONS).toList();
    return std::any_of(options.cbegin(), options.cend(), [&value](const QVariant &option) {
        return option.toMap().value(Constants::STRATEGYPARAM_USERROLE) == value;
    });
}
