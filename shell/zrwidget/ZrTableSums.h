#pragma once

#include "ZrRunningTotal.h"
#include "zrutils/ZrRecordTypes.h"
#include "zrwidget_global.h"

#include <QtCore/QHash>

/// Running totals of the shown rows' columns.
///
/// Shape:  off until start(). A reader compares once with the host's sum of all rows; from then on each cell
/// that
///         comes, goes or changes is counted in. When a column gains or loses a kind of number, the next read
///         compares again.
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
    void cellEnters(int column, const ItemRoleMap &cell) { count(column, cell, 1); }
    void cellLeaves(int column, const ItemRoleMap &cell) { count(column, cell, -1); }

    /// True when a comparison is due before totals() may be used.
    bool isCheckDue() const { return m_checkDue; }
    /// Compares with the host's sum of the same rows.
    void check(const RecordData &hostSums, const QList<int> &leftOut);
    bool agrees() const { return m_active && m_agrees && !m_checkDue; }
    /// A column's total, invalid when it holds no number.
    QVariant total(int column) const;
    /// Columns whose total may have changed since the last call.
    QList<int> takeChangedColumns();

private:
    struct Column
    {
        ZrRunningTotal numbers;
        int truthValues = 0; // cells that hold a bool
        int trueValues = 0;  // of them, true
        bool isChanged = false;
    };
    void count(int column, const ItemRoleMap &cell, int step);
    QVariant total(const Column &column) const;
    bool agreesWith(const RecordData &hostSums, const QList<int> &leftOut) const;

    bool m_active = false;
    bool m_agrees = false;
    bool m_checkDue = true;
    bool m_countsTruth = false; // the host adds a bool as 0 or 1
    QHash<int, Column> m_columns;
    QList<int> m_changed;
};
