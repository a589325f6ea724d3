#include "zrutils/ZrFilterCondition.h"

#include "zrdefine/VexlorFields.h"
#include "zrdefine/VexlorValues.h"
#include "zrutils/ZrCellValue.h"

namespace CompareOperator = Vexlor_Values::CompareOperator;

namespace {
constexpr qint64 secondMs = 1000;
constexpr qint64 minuteMs = 60 * secondMs;
constexpr qint64 dayMs = 24 * 60 * minuteMs;
constexpr qint64 farthestDay = Q_INT64_C(100000000000);

int placeOf(ZrValueKind kind)
{
    return static_cast<int>(kind) - static_cast<int>(ZrValueKind::Date);
}

qint64 startOf(const QDate &date)
{
    // An invalid date, and one beyond all calendars, lies outside of what 64 bits count in ms.
    return qBound(-farthestDay, date.toJulianDay(), farthestDay) * dayMs;
}

/// "hh:mm", then optionally ":ss", then ".zzz" or ":zzz".
ZrClockTime timeOfDay(const QString &text)
{
    static const struct
    {
        int size;
        const char *format;
        qint64 width;
    } forms[] = {
        {5, "hh:mm", minuteMs}, {8, "hh:mm:ss", secondMs}, {12, "hh:mm:ss.zzz", 1}, {12, "hh:mm:ss:zzz", 1}};
    for (const auto &form : forms) {
        const QTime time =
            text.size() == form.size ? QTime::fromString(text, QLatin1String(form.format)) : QTime();
        if (time.isValid())
            return {time.msecsSinceStartOfDay(), form.width, true};
    }
    return ZrClockTime();
}
} // namespace

ZrClockTime ZrClockTime::fromVariant(const QVariant &value, ZrValueKind kind)
{
    const int type = value.userType();
    if (type != QMetaType::QDate && type != QMetaType::QTime && type != QMetaType::QDateTime)
        return fromText(value.toString(), kind);
    // The clock that the value itself is told by, since that is the one its text was made with.
    const auto *moment =
        type == QMetaType::QDateTime ? static_cast<const QDateTime *>(value.constData()) : nullptr;
    const QDate date = moment ? moment->date() : value.toDate();
    const QTime time = moment ? moment->time() : value.toTime();
    const qint64 ofDay = time.isValid() ? time.msecsSinceStartOfDay() : 0;
    if (kind == ZrValueKind::Time)
        return {ofDay, 1, time.isValid()};
    if (kind == ZrValueKind::Date)
        return {startOf(date), dayMs, date.isValid()};
    return {startOf(date) + ofDay, type == QMetaType::QDate ? dayMs : 1, date.isValid()};
}

ZrClockTime ZrClockTime::fromText(const QString &text, ZrValueKind kind)
{
    constexpr int dateSize = 10;
    if (kind == ZrValueKind::Time)
        return timeOfDay(text.size() > dateSize + 1 && text.at(4) == QLatin1Char('-') ? text.mid(dateSize + 1)
                                                                                      : text);
    const QDate date = QDate::fromString(text.left(dateSize), Qt::ISODate);
    if (kind == ZrValueKind::Date || text.size() <= dateSize)
        return {startOf(date), dayMs, date.isValid()};
    const ZrClockTime time = timeOfDay(text.mid(dateSize + 1));
    return {startOf(date) + time.at, time.width, date.isValid() && time.isValid};
}

ZrValueKind ZrFilterCondition::kindOfType(int type)
{
    switch (type) {
    case QMetaType::QString:
        return ZrValueKind::Text;
    case QMetaType::QDate:
        return ZrValueKind::Date;
    case QMetaType::QTime:
        return ZrValueKind::Time;
    case QMetaType::QDateTime:
        return ZrValueKind::DateTime;
    case QMetaType::UnknownType:
        return ZrValueKind::Own;
    default:
        return ZrNumber::isType(type) ? ZrValueKind::Number : ZrValueKind::Text;
    }
}

ZrFilterCondition::ZrFilterCondition(const QVariantMap &condition, ZrValueKind kind)
    : m_operator(operatorOf(condition.value(Vexlor_Fields::Infomation::compareOperator).toString()))
    , m_joinsByOr(condition.value(Vexlor_Fields::Infomation::logicOperator).toString() ==
                  Vexlor_Values::LogicOperator::orOperator)
    , m_kind(kind)
{
    const QVariant value = condition.value(Vexlor_Fields::System::filterValue);
    if (!value.isValid())
        m_operator = Unknown;
    m_text = value.toString();
    // A filter of texts may have a hundred thousand conditions, and reading a date takes longer than all
    // else.
    if (kind == ZrValueKind::Text)
        return;
    m_number = ZrNumber::fromVariant(value);
    if (m_number.kind() == ZrNumber::None)
        m_number = ZrNumber::fromText(m_text.trimmed());
    if (kind == ZrValueKind::Number)
        return;
    for (const ZrValueKind each : {ZrValueKind::Date, ZrValueKind::Time, ZrValueKind::DateTime})
        m_times[placeOf(each)] = ZrClockTime::fromVariant(value, each);
}

ZrFilterCondition::Operator ZrFilterCondition::operatorOf(const QString &word)
{
    if (word == CompareOperator::equal)
        return Equal;
    if (word == CompareOperator::greaterOrEqual)
        return GreaterOrEqual;
    return word == CompareOperator::lessOrEqual ? LessOrEqual : Unknown;
}

bool ZrFilterCondition::holds(const QVariant &value) const
{
    if (m_operator == Unknown || !value.isValid())
        return false;
    const ZrValueKind kind = m_kind == ZrValueKind::Own ? kindOfType(value.userType()) : m_kind;
    switch (kind) {
    case ZrValueKind::Number:
        return holdsNumber(value);
    case ZrValueKind::Date:
    case ZrValueKind::Time:
    case ZrValueKind::DateTime:
        return holdsTime(value, kind);
    case ZrValueKind::Text:
    case ZrValueKind::Own:
        break;
    }
    if (value.userType() == QMetaType::QString)
        return holdsOrder(ZrTextOrder::compare(*static_cast<const QString *>(value.constData()), m_text));
    return holdsOrder(ZrTextOrder::compare(value.toString(), m_text));
}

bool ZrFilterCondition::holdsOrder(int order) const
{
    switch (m_operator) {
    case Equal:
        return order == 0;
    case GreaterOrEqual:
        return order >= 0;
    case LessOrEqual:
        return order <= 0;
    case Unknown:
        break;
    }
    return false;
}

bool ZrFilterCondition::holdsNumber(const QVariant &value) const
{
    ZrNumber number = ZrNumber::fromVariant(value);
    if (number.kind() == ZrNumber::None)
        number = ZrNumber::fromText(value.toString().trimmed());
    return number.kind() != ZrNumber::None && m_number.kind() != ZrNumber::None &&
           holdsOrder(ZrNumber::compare(number, m_number));
}

bool ZrFilterCondition::holdsTime(const QVariant &value, ZrValueKind kind) const
{
    const ZrClockTime &bound = m_times[placeOf(kind)];
    const ZrClockTime time = ZrClockTime::fromVariant(value, kind);
    if (!bound.isValid || !time.isValid)
        return false;
    if (time.at < bound.at)
        return holdsOrder(-1);
    return holdsOrder(time.at < bound.at + bound.width ? 0 : 1);
}
