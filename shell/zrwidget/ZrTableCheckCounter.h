#pragma once

#include "zrutils/ZrRecordTypes.h"
#include "zrwidget_global.h"

/// Counts the checked ones among the shown rows, so that the head's state costs nothing to read.
///
/// Shape: off until restart(); then each row that comes, goes or changes is told. invalidate() switches it
/// off.
///        It also remembers which rows at both ends have not had their row-state cell made yet.
class ZRWIDGET_PRIVATE_EXPORT ZrTableCheckCounter
{
public:
    static bool isChecked(const RecordData &record);
    /// Only a valid false under role 262 disables a row's box.
    static bool isEnabled(const RecordData &record);

    bool isCurrent() const { return m_current; }
    void invalidate() { m_current = false; }
    void restart();
    int checked() const { return m_checked; }

    void enters(const RecordData &record);
    void leaves(const RecordData &record);
    void changed(bool was, bool is);

    // Rows without a row-state cell.
    void rowInserted(int row, int rowCount);
    void rowRemoved(int row, int rowCount);
    void allRowsNew(int rowCount);
    /// Rows changed places: new ones may be anywhere.
    void rowsMoved(int rowCount);
    /// Makes the missing cells: reading a row's check state makes its cell.
    void stamp(RecordDataList &rows);

private:
    bool m_current = false;
    int m_checked = 0;
    int m_newAtFront = 0;
    int m_newAtBack = 0;
};
