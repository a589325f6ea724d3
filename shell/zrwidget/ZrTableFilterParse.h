#pragma once

#include "zrwidget_global.h"

#include <QtCore/QDateTime>
#include <QtCore/QPair>
#include <QtCore/QVector>
#include <zrutils/ZrRecordTypes.h>

/// Works out the choices that a column filter offers from the values the column holds.
///
/// Shape:   one cell of the column per entry in; one choice per entry out. A text column gets its distinct
///          values, a number or date column a handful of ranges ("low — high").
/// Threads: any; no state.
/// Errors:  a value that can't be used is left out; an unknown value type has no choices.
class ZRWIDGET_EXPORT ZrTableFilterParse
{
public:
    ZrTableFilterParse();

    /// `valueType` is the QVariant::Type of the column's raw values.
    static QList<ItemRoleMap> getFilterRecordList(int valueType, const QList<ItemRoleMap> &cells);

    /// Whether a cell of a text column is its own choice, as the usual one is: a text shown, and perhaps a
    /// raw value.
    static bool isTextChoice(const ItemRoleMap &cell);
    /// The choice that one cell of a text column stands for.
    static ItemRoleMap textChoice(const ItemRoleMap &cell);

private:
    static QList<ItemRoleMap> distinctTexts(const QList<ItemRoleMap> &cells);
    static void getDateFilterRecord(int valueType, const QList<ItemRoleMap> &cells, QList<ItemRoleMap> &out);
    static void splitByCalendar(QDateTime &min, QDateTime &max, int valueType, QList<ItemRoleMap> &out);
    static void splitByClock(QDateTime &min, QDateTime &max, int valueType, QList<ItemRoleMap> &out);
    static void getMaxAndMinDate(int valueType, const QList<ItemRoleMap> &cells, QDateTime &min,
                                 QDateTime &max);
    static void appendDateRecord(QDateTime begin, QDateTime end, int valueType, QList<ItemRoleMap> &out);
    static void appendRanges(const QVector<QPair<QDateTime, QDateTime>> &ranges, int valueType,
                             QList<ItemRoleMap> &out);
    static void accordingMinuteSplitDate(QDateTime &begin, QDateTime &end, long long span, int count,
                                         int valueType, QList<ItemRoleMap> &out);
    static void accordingHourSplitDate(QDateTime &begin, QDateTime &end, long long span, int count,
                                       int valueType, QList<ItemRoleMap> &out);
    static void accordingDaySplitDate(QDateTime &begin, QDateTime &end, long long span, int count,
                                      int valueType, QList<ItemRoleMap> &out);
    static void according10DaySplitDate(QDateTime &begin, QDateTime &end, long long span, int count,
                                        int valueType, QList<ItemRoleMap> &out);
    static void according15DaySplitDate(QDateTime &begin, QDateTime &end, long long span, int count,
                                        int valueType, QList<ItemRoleMap> &out);
    static void accordingMonthSplitDate(QDateTime &begin, QDateTime &end, long long span, int count,
                                        int valueType, QList<ItemRoleMap> &out);
    static void accordingYearSplitDate(QDateTime &begin, QDateTime &end, long long span, int count,
                                       int valueType, QList<ItemRoleMap> &out);
};
