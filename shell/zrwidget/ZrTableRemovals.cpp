#include "ZrTableRemovals.h"

#include "ZrTableModel_p.h"
#include "ZrTableRows.h"
#include "ZrTableSignalScope.h"

ZrTableRemovals::ZrTableRemovals(ZrTableModelPrivate &fields)
    : m_fields(fields)
{
}

// The rows are gone already: required order. A row that wasn't shown is told with the position -1 as it
// stands.
void ZrTableRemovals::tellRemoved(int row)
{
    m_fields.beginRemove(row, row);
    m_fields.endRemove();
}

int ZrTableRemovals::remove(const RecordData &record)
{
    const QString key = m_fields.makeKey(record);
    const int row = key.isEmpty() ? -1 : m_fields.keyToRow.row(key);
    if (row < 0 || row >= m_fields.modelData.size())
        return 0;
    const bool isPlain = m_fields.rows().canFollow() && m_fields.rows().isShown(row, key);
    const ZrTableSignalScope scope(m_fields, !isPlain);
    m_fields.indexWidgets.remove(key);
    const bool wasChecked = ZrTableCheckCounter::isChecked(m_fields.modelData.at(row));
    const int position = m_fields.rows().removeKeyed(row, key);
    if (m_fields.delayedDisplay) {
        m_fields.startDelayTimer();
        return 1;
    }
    tellRemoved(position);
    if (m_fields.checkBoxShown && wasChecked)
        m_fields.updateHeadCheckState();
    return 1;
}

// By shown position. All records that are filtered out share the position -1, so only the last of them stays
// noted and only that one is deleted later, although each is counted: required.
int ZrTableRemovals::notePositions(const RecordDataList &records, QMap<int, QString> &noted) const
{
    const ZrTableDisplayList &display = m_fields.displayKeyList;
    int count = 0;
    for (const RecordData &record : records) {
        const QString key = m_fields.makeKey(record);
        const int row = key.isEmpty() ? -1 : m_fields.keyToRow.row(key);
        if (row < 0)
            continue;
        int position = row;
        if (m_fields.filterable)
            position = display.isOrdered() ? display.positionOf(row) : display.indexOf(key);
        noted.insert(position, key);
        ++count;
    }
    return count;
}

// From the highest position down, so that the key map's numbers still hold for the rows above. They don't for
// the filtered-out one, which comes last: the row that its old number leads to goes. Required; it stays
// within bounds. Without such a one the display list needn't become a plain list of keys, in which every
// later update would scan for its row.
void ZrTableRemovals::takeOut(const QMap<int, QString> &noted)
{
    ZrTableRows &rows = m_fields.rows();
    const bool keepsStep = rows.canFollow() && noted.firstKey() >= 0;
    if (!keepsStep)
        rows.loseStep();
    for (auto it = noted.constEnd(); it != noted.constBegin();) {
        --it;
        m_fields.indexWidgets.remove(it.value());
        const int row = m_fields.keyToRow.row(it.value());
        if (keepsStep) {
            rows.removeInStep(row);
            continue;
        }
        if (row >= 0 && row < m_fields.modelData.size())
            rows.removeUnnumbered(row);
        if (m_fields.filterable)
            m_fields.displayKeyList.removeAt(m_fields.displayKeyList.indexOf(it.value()));
    }
    rows.renumber();
}

int ZrTableRemovals::removeList(const RecordDataList &records)
{
    QMap<int, QString> noted;
    const int count = notePositions(records, noted);
    if (noted.isEmpty())
        return 0;
    const ZrTableSignalScope scope(m_fields, true);
    takeOut(noted);
    if (m_fields.delayedDisplay) {
        m_fields.startDelayTimer();
        return count;
    }
    // One signal for each, in ascending order and with the positions from before: required.
    for (auto it = noted.constBegin(); it != noted.constEnd(); ++it)
        tellRemoved(it.key());
    m_fields.updateHeadCheckState();
    return count;
}

void ZrTableRemovals::removeRow(int row)
{
    ZrTableRows &rows = m_fields.rows();
    if (row < 0)
        return;
    if (rows.hasKeys() && m_fields.filterable) {
        removeShownRow(row);
        return;
    }
    if (row >= m_fields.modelData.size())
        return;
    const ZrTableSignalScope scope(m_fields, false);
    if (rows.hasKeys()) {
        const QString key = m_fields.makeKey(m_fields.modelData.at(row));
        m_fields.keyToRow.remove(key);
    }
    // The numbers of later keys stay as they are until the next rebuild: required.
    rows.removeUnnumbered(row);
    if (!rows.hasKeys() && m_fields.delayedDisplay)
        m_fields.startDelayTimer();
    else
        tellRemoved(row);
}

// The row that leaves the model is that of the next shown record, not the shown one's own: required. Callers
// who delete in filter mode use deleteRecordData().
void ZrTableRemovals::removeShownRow(int row)
{
    ZrTableDisplayList &display = m_fields.displayKeyList;
    if (row >= display.size())
        return;
    const ZrTableSignalScope scope(m_fields, true);
    m_fields.rows().loseStep();
    const QString key = display.keyAt(row);
    m_fields.keyToRow.remove(key);
    display.removeAt(row);
    const int next = m_fields.keyToRow.row(display.keyAt(row));
    const int modelRow = qMax(next, 0);
    if (modelRow < m_fields.modelData.size())
        m_fields.rows().removeUnnumbered(modelRow);
    m_fields.rows().forgetCounts();
    tellRemoved(row);
}
