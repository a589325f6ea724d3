#pragma once

#include "zrutils/ZrRecordTypes.h"
#include "zrwidget_global.h"

/// Running totals of the shown rows' columns.
///
/// Shape:  off until the first read. A read compares once with the host's sum of all rows and remembers how
/// the
///         host types each column; then each cell that comes, goes or changes is counted in exactly. When a
///         column gains or loses a kind of number, the next read compares again.
/// Units:  whole numbers in 128 bits; doubles in 128 bits with 64 behind the point, so that nothing drifts.
/// Errors: while the host sums by another rule, or a number doesn't fit, agrees() is false and the host's own
/// sum
///         is to be used.
class ZRWIDGET_PRIVATE_EXPORT ZrTableSums
{
public:
    bool isActive() const { return m_active; }
    void stop();
    void start(const RecordDataList &rows);

    void enters(const RecordData &record);
    void leaves(const RecordData &record);
    void cellEnters(int column, const ItemRoleMap &cell);
    void cellLeaves(int column, const ItemRoleMap &cell);

    /// True when a comparison is due before totals() may be used.
    bool isCheckDue() const { return m_checkDue; }
    /// Compares with the host's sum of the same rows.
    void check(const RecordData &hostSums, const QList<int> &leftOut);
    bool agrees() const { return m_active && m_agrees && !m_checkDue; }
    /// The host's sum record, from the running totals; only while agrees().
    RecordData totals() const;

private:
    __extension__ typedef __int128 Wide;
    struct Column
    {
        Wide whole = 0;
        Wide real = 0;      // 64 bits behind the point
        int wholeCount = 0; // cells that hold a whole number
        int realCount = 0;  // cells that hold a double
        int oddCount = 0;   // doubles that don't fit
        int hostType = 0;   // QMetaType of the host's total, 0: left out
    };
    void count(int column, const ItemRoleMap &cell, int step);
    void countReal(Column &sum, double value, int step);
    bool agreesOn(Column &sum, const RecordData &hostSums, int column) const;
    static QVariant total(const Column &sum);

    bool m_active = false;
    bool m_agrees = false;
    bool m_checkDue = true;
    QMap<int, Column> m_columns;
};
