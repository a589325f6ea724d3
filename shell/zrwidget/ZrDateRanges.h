#pragma once

#include "zrwidget_global.h"

#include <QtCore/QDateTime>
#include <QtCore/QPair>
#include <QtCore/QVector>

/// Cuts a span of time into a few ranges for the filter of a date or time column.
///
/// Shape:   ranges in order, each beginning where the one before it ends.
/// Threads: any; no state.
/// Errors:  a span without a whole unit has no ranges. Every cut moves on, so that dates at the end of the
///          calendar end the list too.
class ZRWIDGET_PRIVATE_EXPORT ZrDateRanges
{
public:
    enum class Unit { Minute, Hour, Day, Month, Year };
    using Range = QPair<QDateTime, QDateTime>;
    using RangeList = QVector<Range>;

    /// `count` ranges of about `span` / `count` units, the longer ones first; single units when there are
    /// fewer than `count`. The last range is stretched to `end`. A negative span runs backwards.
    static RangeList evenly(const QDateTime &begin, const QDateTime &end, qint64 span, int count, Unit unit);
    /// Cut at fixed days of each month: `cutDays` in ascending order, the first one being 1. The first range
    /// begins at the cut at or before `begin`; the last one isn't clipped at `end`.
    static RangeList atDaysOfMonth(const QDateTime &begin, const QDateTime &end, const QVector<int> &cutDays);

private:
    static QDateTime advanced(const QDateTime &from, qint64 units, Unit unit);
    static QDate cutAfter(const QDate &date, const QVector<int> &cutDays);
};
