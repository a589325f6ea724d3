#include "ZrDateRanges.h"

#include <QtCore/QTime>

namespace {
constexpr qint64 SecondsPerMinute = 60;
constexpr qint64 SecondsPerHour = 3600;
} // namespace

QDateTime ZrDateRanges::advanced(const QDateTime &from, qint64 units, Unit unit)
{
    switch (unit) {
    case Unit::Minute:
        return from.addSecs(units * SecondsPerMinute);
    case Unit::Hour:
        return from.addSecs(units * SecondsPerHour);
    case Unit::Day:
        return from.addDays(units);
    case Unit::Month:
        return from.addMonths(int(units));
    case Unit::Year:
        return from.addYears(int(units));
    }
    return from;
}

ZrDateRanges::RangeList ZrDateRanges::evenly(const QDateTime &begin, const QDateTime &end, qint64 span,
                                             int count, Unit unit)
{
    RangeList ranges;
    if (count <= 0)
        return ranges;
    const qint64 quotient = span / count;
    const qint64 remainder = span % count;
    const qint64 pieces = quotient == 0 ? remainder : count;
    QDateTime from = begin;
    for (qint64 i = 0; i < pieces; ++i) {
        const bool isLonger = quotient == 0 || i < remainder;
        QDateTime next = advanced(from, quotient + (isLonger ? 1 : 0), unit);
        if (i == pieces - 1 && next < end)
            next = end;
        ranges.append(qMakePair(from, next));
        from = next;
    }
    return ranges;
}

ZrDateRanges::RangeList ZrDateRanges::atDaysOfMonth(const QDateTime &begin, const QDateTime &end,
                                                    const QVector<int> &cutDays)
{
    RangeList ranges;
    const QDate date = begin.date();
    int firstDay = 1;
    for (const int day : cutDays) {
        if (day <= date.day())
            firstDay = day;
    }
    QDateTime from = begin;
    from.setDate(QDate(date.year(), date.month(), firstDay));
    from.setTime(QTime(0, 0));
    while (from < end) {
        QDateTime next = from;
        next.setDate(cutAfter(from.date(), cutDays));
        if (!next.isValid() || next <= from)
            break; // the end of the calendar
        ranges.append(qMakePair(from, next));
        from = next;
    }
    return ranges;
}

QDate ZrDateRanges::cutAfter(const QDate &date, const QVector<int> &cutDays)
{
    for (const int day : cutDays) {
        if (day > date.day())
            return QDate(date.year(), date.month(), day);
    }
    const bool isDecember = date.month() == 12;
    return isDecember ? QDate(date.year() + 1, 1, 1) : QDate(date.year(), date.month() + 1, 1);
}
