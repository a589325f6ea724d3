#include "ZrTableCheckCounter.h"

#include "ZrRoleKeys.h"

bool ZrTableCheckCounter::isChecked(const RecordData &record)
{
    const auto cell = record.constFind(ZrRowStateColumn);
    if (cell == record.constEnd())
        return false;
    const auto state = cell->constFind(ITEM_USERROLE);
    return state != cell->constEnd() && state->toBool();
}

bool ZrTableCheckCounter::isEnabled(const RecordData &record)
{
    const auto cell = record.constFind(ZrRowStateColumn);
    if (cell == record.constEnd())
        return true;
    const auto enabled = cell->constFind(ITEM_CHECKENABLEDROLE);
    return enabled == cell->constEnd() || !enabled->isValid() || enabled->toBool();
}

void ZrTableCheckCounter::restart()
{
    m_current = true;
    m_checked = 0;
}

void ZrTableCheckCounter::enters(const RecordData &record)
{
    if (m_current && isChecked(record))
        ++m_checked;
}

void ZrTableCheckCounter::leaves(const RecordData &record)
{
    if (m_current && isChecked(record))
        --m_checked;
}

void ZrTableCheckCounter::changed(bool was, bool is)
{
    if (m_current)
        m_checked += int(is) - int(was);
}

// New rows mostly come at one end, so two numbers tell them; a row in the middle takes the nearer end with
// it.
void ZrTableCheckCounter::rowInserted(int row, int rowCount)
{
    if (row <= m_newAtFront)
        ++m_newAtFront;
    else if (row >= rowCount - 1 - m_newAtBack)
        ++m_newAtBack;
    else if (row < rowCount / 2)
        m_newAtFront = row + 1;
    else
        m_newAtBack = rowCount - row;
}

void ZrTableCheckCounter::rowRemoved(int row, int rowCount)
{
    if (row < m_newAtFront)
        --m_newAtFront;
    else if (row > rowCount - m_newAtBack)
        --m_newAtBack;
    m_newAtBack = qMin(m_newAtBack, rowCount);
}

void ZrTableCheckCounter::allRowsNew(int rowCount)
{
    m_newAtFront = 0;
    m_newAtBack = rowCount;
}

void ZrTableCheckCounter::rowsMoved(int rowCount)
{
    if (m_newAtFront > 0 || m_newAtBack > 0)
        allRowsNew(rowCount);
}

namespace {
// A row that has its cell isn't touched: whoever shares it would lose that, at the price of a copy.
void stampRow(RecordDataList &rows, int row)
{
    if (!rows.at(row).contains(ZrRowStateColumn))
        rows[row][ZrRowStateColumn];
}
} // namespace

void ZrTableCheckCounter::stamp(RecordDataList &rows)
{
    const int front = qMin(m_newAtFront, rows.size());
    const int back = qMax(front, rows.size() - m_newAtBack);
    for (int row = 0; row < front; ++row)
        stampRow(rows, row);
    for (int row = back; row < rows.size(); ++row)
        stampRow(rows, row);
    m_newAtFront = 0;
    m_newAtBack = 0;
}
