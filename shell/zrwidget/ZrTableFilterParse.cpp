#include "ZrTableFilterParse.h"

#include "ZrDateRanges.h"
#include "ZrDistinctCells.h"
#include "ZrNumberRanges.h"
#include "ZrRangeChoice.h"
#include "ZrRoleKeys.h"

namespace {
constexpr int RangeCount = 6;
constexpr qint64 SecondsPerDay = 86400;
constexpr qint64 SecondsPerHour = 3600;
constexpr int DaysPerMonth = 30; // only to choose how many months a range spans

QString textOf(const ItemRoleMap &cell)
{
    for (const QString &role : {ITEM_CUSTOMROLE, ITEM_DISPLAYROLE, ITEM_USERROLE}) {
        const QString text = cell.value(role).toString();
        if (!text.isEmpty())
            return text;
    }
    return QString();
}

// The usual cell, a text shown and perhaps a raw value, is its own choice; nothing is copied then.
bool isChoice(const ItemRoleMap &cell)
{
    const auto shown = cell.constBegin();
    if (cell.isEmpty() || cell.size() > 2 || shown.key() != ITEM_DISPLAYROLE ||
        shown->userType() != QMetaType::QString ||
        static_cast<const QString *>(shown->constData())->isEmpty())
        return false;
    return cell.size() == 1 || std::next(shown).key() == ITEM_USERROLE;
}

QVariant valueOfType(const ItemRoleMap &cell, int valueType)
{
    for (const QString &role : {ITEM_USERROLE, ITEM_CUSTOMROLE, ITEM_DISPLAYROLE}) {
        const QVariant value = cell.value(role);
        if (int(value.type()) == valueType)
            return value;
    }
    return QVariant();
}

QDateTime momentOf(const QVariant &value)
{
    switch (int(value.type())) {
    case QVariant::DateTime:
        return value.toDateTime();
    case QVariant::Date:
        return QDateTime(value.toDate(), QTime(0, 0));
    case QVariant::Time:
        return QDateTime(QDate(2020, 1, 1), value.toTime()); // any fixed day
    }
    return QDateTime();
}

QString formatOf(int valueType)
{
    switch (valueType) {
    case QVariant::DateTime:
        return QStringLiteral("yyyy-MM-dd hh:mm");
    case QVariant::Date:
        return QStringLiteral("yyyy-MM-dd");
    }
    return QStringLiteral("hh:mm");
}
} // namespace

ZrTableFilterParse::ZrTableFilterParse() = default;

QList<ItemRoleMap> ZrTableFilterParse::getFilterRecordList(int valueType, const QList<ItemRoleMap> &cells)
{
    QList<ItemRoleMap> choices;
    switch (valueType) {
    case QVariant::Int:
    case QVariant::UInt:
    case QVariant::LongLong:
    case QVariant::ULongLong:
        return ZrNumberRanges::ofIntegers(cells);
    case QVariant::Double:
        return ZrNumberRanges::ofDoubles(cells);
    case QVariant::String:
        return distinctTexts(cells);
    case QVariant::Date:
    case QVariant::Time:
    case QVariant::DateTime:
        getDateFilterRecord(valueType, cells, choices);
        break;
    }
    return choices;
}

QList<ItemRoleMap> ZrTableFilterParse::distinctTexts(const QList<ItemRoleMap> &cells)
{
    ZrDistinctCells distinct;
    distinct.reserve(cells.size());
    for (const ItemRoleMap &cell : cells) {
        if (isChoice(cell)) {
            distinct.add(cell);
            continue;
        }
        ItemRoleMap choice;
        choice.insert(ITEM_DISPLAYROLE, textOf(cell));
        const auto raw = cell.constFind(ITEM_USERROLE);
        if (raw != cell.constEnd())
            choice.insert(ITEM_USERROLE, raw.value());
        distinct.add(choice);
    }
    return distinct.cells();
}

void ZrTableFilterParse::getDateFilterRecord(int valueType, const QList<ItemRoleMap> &cells,
                                             QList<ItemRoleMap> &out)
{
    // Without a valid date the span stays negative and the splitters run on it: callers pass dates.
    QDateTime min = QDateTime::currentDateTime().addYears(100);
    QDateTime max(QDate(1970, 1, 1), QTime(0, 0));
    getMaxAndMinDate(valueType, cells, min, max);
    const bool isWithinDay = min.secsTo(max) < SecondsPerDay;
    if (valueType == QVariant::Time || (valueType == QVariant::DateTime && isWithinDay))
        splitByClock(min, max, valueType, out);
    else
        splitByCalendar(min, max, valueType, out);
}

void ZrTableFilterParse::splitByCalendar(QDateTime &min, QDateTime &max, int valueType,
                                         QList<ItemRoleMap> &out)
{
    const qint64 days = min.daysTo(max);
    min.setTime(QTime(0, 0));
    max.setTime(QTime(23, 59));
    if (days < 50)
        accordingDaySplitDate(min, max, days, RangeCount, valueType, out);
    else if (days < 90)
        according10DaySplitDate(min, max, days, RangeCount, valueType, out);
    else if (days < 150)
        according15DaySplitDate(min, max, days, RangeCount, valueType, out);
    else if (days < 1825)
        accordingMonthSplitDate(min, max, days, RangeCount, valueType, out);
    else
        accordingYearSplitDate(min, max, days, RangeCount, valueType, out);
}

void ZrTableFilterParse::splitByClock(QDateTime &min, QDateTime &max, int valueType, QList<ItemRoleMap> &out)
{
    const qint64 seconds = min.secsTo(max);
    // Exactly one hour still goes by minutes.
    if (seconds > SecondsPerHour) {
        accordingHourSplitDate(min, max, seconds, RangeCount, valueType, out);
        return;
    }
    const qint64 minutes = seconds / 60;
    if (minutes == 0)
        appendDateRecord(min, min, valueType, out);
    else
        accordingMinuteSplitDate(min, max, minutes, RangeCount, valueType, out);
}

void ZrTableFilterParse::getMaxAndMinDate(int valueType, const QList<ItemRoleMap> &cells, QDateTime &min,
                                          QDateTime &max)
{
    for (const ItemRoleMap &cell : cells) {
        const QDateTime moment = momentOf(valueOfType(cell, valueType));
        if (!moment.isValid())
            continue;
        if (!(moment < max))
            max = moment;
        if (moment < min)
            min = moment;
    }
}

void ZrTableFilterParse::appendDateRecord(QDateTime begin, QDateTime end, int valueType,
                                          QList<ItemRoleMap> &out)
{
    const QString format = formatOf(valueType);
    out.append(ZrRangeChoice::make(begin.toString(format), end.toString(format)));
}

void ZrTableFilterParse::appendRanges(const QVector<QPair<QDateTime, QDateTime>> &ranges, int valueType,
                                      QList<ItemRoleMap> &out)
{
    for (const ZrDateRanges::Range &range : ranges)
        appendDateRecord(range.first, range.second, valueType, out);
}

void ZrTableFilterParse::accordingMinuteSplitDate(QDateTime &begin, QDateTime &end, long long span, int count,
                                                  int valueType, QList<ItemRoleMap> &out)
{
    appendRanges(ZrDateRanges::evenly(begin, end, span, count, ZrDateRanges::Unit::Minute), valueType, out);
}

void ZrTableFilterParse::accordingHourSplitDate(QDateTime &begin, QDateTime &end, long long span, int count,
                                                int valueType, QList<ItemRoleMap> &out)
{
    Q_UNUSED(span) // the rounding below changes it
    begin.setTime(QTime(begin.time().hour(), 0));
    end.setTime(QTime(end.time().hour(), 59));
    const qint64 hours = begin.secsTo(end) / SecondsPerHour;
    appendRanges(ZrDateRanges::evenly(begin, end, hours, count, ZrDateRanges::Unit::Hour), valueType, out);
}

void ZrTableFilterParse::accordingDaySplitDate(QDateTime &begin, QDateTime &end, long long span, int count,
                                               int valueType, QList<ItemRoleMap> &out)
{
    // Alone among the splitters this one answers a span of nothing: all dates lie on one day.
    if (span == 0)
        appendDateRecord(begin, begin, valueType, out);
    else
        appendRanges(ZrDateRanges::evenly(begin, end, span, count, ZrDateRanges::Unit::Day), valueType, out);
}

void ZrTableFilterParse::according10DaySplitDate(QDateTime &begin, QDateTime &end, long long span, int count,
                                                 int valueType, QList<ItemRoleMap> &out)
{
    Q_UNUSED(span)
    Q_UNUSED(count) // the days of the month decide
    appendRanges(ZrDateRanges::atDaysOfMonth(begin, end, {1, 10, 20}), valueType, out);
}

void ZrTableFilterParse::according15DaySplitDate(QDateTime &begin, QDateTime &end, long long span, int count,
                                                 int valueType, QList<ItemRoleMap> &out)
{
    Q_UNUSED(span)
    Q_UNUSED(count) // as above
    appendRanges(ZrDateRanges::atDaysOfMonth(begin, end, {1, 15}), valueType, out);
}

void ZrTableFilterParse::accordingMonthSplitDate(QDateTime &begin, QDateTime &end, long long span, int count,
                                                 int valueType, QList<ItemRoleMap> &out)
{
    Q_UNUSED(span) // counted anew from the first of the month
    begin.setDate(QDate(begin.date().year(), begin.date().month(), 1));
    begin.setTime(QTime(0, 0));
    const qint64 months = begin.daysTo(end) / DaysPerMonth;
    appendRanges(ZrDateRanges::evenly(begin, end, months, count, ZrDateRanges::Unit::Month), valueType, out);
}

void ZrTableFilterParse::accordingYearSplitDate(QDateTime &begin, QDateTime &end, long long span, int count,
                                                int valueType, QList<ItemRoleMap> &out)
{
    Q_UNUSED(span) // counted in years
    begin = QDateTime(QDate(begin.date().year(), 1, 1), QTime(0, 0));
    end = QDateTime(QDate(end.date().year() + 1, 1, 1), QTime(0, 0));
    const qint64 years = qint64(end.date().year()) - begin.date().year();
    appendRanges(ZrDateRanges::evenly(begin, end, years, count, ZrDateRanges::Unit::Year), valueType, out);
}
