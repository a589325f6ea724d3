#include "ZrTableRows.h"

#include "ZrRecordFetch.h"
#include "ZrRoleKeys.h"
#include "ZrTableFilter.h"
#include "ZrTableModel_p.h"

ZrTableRows::ZrTableRows(ZrTableModelPrivate &fields)
    : m_fields(fields)
{
}

bool ZrTableRows::hasKeys() const
{
    return !m_fields.keyColumns.isEmpty();
}

bool ZrTableRows::canFollow() const
{
    if (!m_fields.keyToRow.isExact())
        return false;
    return !m_fields.filterable || (m_fields.displayKeyList.isOrdered() && !m_marksStale);
}

bool ZrTableRows::countsFollow() const
{
    return !m_fields.filterable || m_fields.displayKeyList.isOrdered();
}

void ZrTableRows::countIn(const RecordData &record)
{
    m_fields.checkCounter.enters(record);
    m_fields.sums.enters(record);
}

void ZrTableRows::countOut(const RecordData &record)
{
    m_fields.checkCounter.leaves(record);
    m_fields.sums.leaves(record);
}

void ZrTableRows::forgetCounts()
{
    m_fields.checkCounter.invalidate();
    m_fields.sums.stop();
}

namespace {

// Columns mostly follow one another without a gap: then their ends tell that all of a record's are known, and
// the cells between need not be fetched.
bool areColumnsKnown(const RecordData &record, const QMap<int, int> &known)
{
    if (record.isEmpty() || known.isEmpty())
        return record.isEmpty();
    const bool isWithoutGap = qint64(known.lastKey()) - known.firstKey() + 1 == known.size();
    return isWithoutGap && record.firstKey() >= known.firstKey() && record.lastKey() <= known.lastKey();
}

} // namespace

void ZrTableRows::learnTypes(const RecordData &record)
{
    QMap<int, int> &types = m_fields.columnTypes;
    if (areColumnsKnown(record, types))
        return;
    for (auto it = record.constBegin(); it != record.constEnd(); ++it) {
        if (types.contains(it.key()))
            continue;
        const ItemRoleMap &cell = it.value();
        const QVariant spare = cell.value(ITEM_CUSTOMROLE, cell.value(ITEM_DISPLAYROLE));
        const QVariant value = cell.value(ITEM_USERROLE, spare);
        if (!value.isValid())
            continue;
        types.insert(it.key(), int(value.type()));
        if (m_fields.viewFilterList.contains(it.key()))
            m_marksStale = true;
    }
}

bool ZrTableRows::isShown(int row, const QString &key) const
{
    if (!m_fields.filterable)
        return true;
    const ZrTableDisplayList &display = m_fields.displayKeyList;
    return display.isOrdered() ? display.isShown(row) : display.indexOf(key) >= 0;
}

bool ZrTableRows::wouldShow(const RecordData &record, const QString &key) const
{
    return !m_fields.filterable || (!key.isEmpty() && ZrTableFilter(m_fields).matches(record));
}

bool ZrTableRows::append(const RecordData &record, const QString &key)
{
    m_fields.modelData.append(record);
    const int row = m_fields.modelData.size() - 1;
    m_fields.checkCounter.rowInserted(row, row + 1);
    if (hasKeys())
        m_fields.keyToRow.enter(key, row);
    const bool isShown = wouldShow(record, key);
    if (m_fields.filterable) {
        ZrTableDisplayList &display = m_fields.displayKeyList;
        if (display.isOrdered())
            display.appendRow(isShown);
        else if (isShown)
            display.appendKey(key);
    }
    if (!countsFollow())
        forgetCounts();
    else if (isShown)
        countIn(record);
    return isShown;
}

bool ZrTableRows::insert(int row, const RecordData &record, const QString &key)
{
    learnTypes(record);
    const bool isShown = wouldShow(record, key);
    if (!hasKeys() || !canFollow()) {
        insertForRebuild(row, record, key);
        rebuild();
        return isShown;
    }
    m_fields.modelData.insert(row, record);
    m_fields.checkCounter.rowInserted(row, m_fields.modelData.size());
    m_fields.keyToRow.rowInserted(m_fields.modelData, m_fields.keyColumns, row, key);
    if (m_fields.filterable)
        m_fields.displayKeyList.insertRow(row, isShown);
    if (isShown)
        countIn(record);
    return isShown;
}

void ZrTableRows::insertForRebuild(int row, const RecordData &record, const QString &key)
{
    loseStep();
    m_fields.modelData.insert(row, record);
    m_fields.checkCounter.rowInserted(row, m_fields.modelData.size());
    if (hasKeys())
        m_fields.keyToRow.enter(key, row);
    if (m_fields.filterable)
        forgetCounts();
    else
        countIn(record);
}

void ZrTableRows::dropFront(int count)
{
    const int dropped = qMin(count, m_fields.modelData.size());
    const bool follows = hasKeys() && canFollow();
    for (int i = 0; i < dropped; ++i) {
        if (m_readAhead-- <= 0) {
            ZrRecordFetch::front(m_fields.modelData, m_fields.keyToRow, m_fields.keyColumns);
            m_readAhead = ZrRecordFetch::BlockSize - 1;
        }
        const RecordData record = m_fields.modelData.takeFirst();
        m_fields.checkCounter.rowRemoved(0, m_fields.modelData.size());
        if (follows)
            m_fields.keyToRow.remove(m_fields.makeKey(record));
        if (!m_fields.filterable || (follows && m_fields.displayKeyList.isShown(i)))
            countOut(record);
    }
    if (follows) {
        m_fields.keyToRow.frontDropped(dropped);
        if (m_fields.filterable)
            m_fields.displayKeyList.dropFront(dropped);
    } else if (hasKeys()) {
        rebuild();
    }
}

void ZrTableRows::dropBack(int count)
{
    const int dropped = qMin(count, m_fields.modelData.size());
    const bool follows = hasKeys() && canFollow();
    if (!follows)
        loseStep();
    for (int i = 0; i < dropped; ++i) {
        const int row = m_fields.modelData.size() - 1;
        const RecordData record = m_fields.modelData.takeLast();
        m_fields.checkCounter.rowRemoved(row, row);
        if (follows)
            m_fields.keyToRow.remove(m_fields.makeKey(record));
        if (!m_fields.filterable || (follows && m_fields.displayKeyList.isShown(row)))
            countOut(record);
        if (follows && m_fields.filterable)
            m_fields.displayKeyList.removeRow(row);
    }
}

int ZrTableRows::removeKeyed(int row, const QString &key)
{
    ZrTableDisplayList &display = m_fields.displayKeyList;
    int position = row;
    if (m_fields.filterable)
        position = display.isOrdered() ? display.positionOf(row) : display.indexOf(key);
    if (!countsFollow())
        forgetCounts();
    else if (position >= 0)
        countOut(m_fields.modelData.at(row));
    m_fields.modelData.removeAt(row);
    m_fields.checkCounter.rowRemoved(row, m_fields.modelData.size());
    m_fields.keyToRow.remove(key);
    if (m_fields.keyToRow.isExact())
        m_fields.keyToRow.rowRemoved(m_fields.modelData, m_fields.keyColumns, row);
    else
        m_fields.keyToRow.rebuild(m_fields.modelData, m_fields.keyColumns);
    if (m_fields.filterable && display.isOrdered())
        display.removeRow(row);
    else if (m_fields.filterable)
        display.removeAt(position);
    return position;
}

void ZrTableRows::removeUnnumbered(int row)
{
    loseStep();
    if (!m_fields.filterable)
        countOut(m_fields.modelData.at(row));
    m_fields.modelData.removeAt(row);
    m_fields.checkCounter.rowRemoved(row, m_fields.modelData.size());
}

void ZrTableRows::removeInStep(int row)
{
    if (row < 0 || row >= m_fields.modelData.size())
        return;
    countOut(m_fields.modelData.at(row));
    m_fields.modelData.removeAt(row);
    m_fields.checkCounter.rowRemoved(row, m_fields.modelData.size());
    if (m_fields.filterable)
        m_fields.displayKeyList.removeRow(row);
}

void ZrTableRows::replaceAll(const RecordDataList &records)
{
    loseStep();
    m_fields.modelData = records;
    m_fields.checkCounter.allRowsNew(records.size());
    forgetCounts();
}

void ZrTableRows::rebuild()
{
    m_fields.keyToRow.markStale();
    refilter();
}

void ZrTableRows::rebuildFrom(const ZrTableKeyIndex &index, const RecordDataList &rows)
{
    if (!hasKeys() || !m_fields.modelData.isSharedWith(rows)) {
        rebuild();
        return;
    }
    m_fields.keyToRow = index;
    refilter();
}

void ZrTableRows::refilter()
{
    if (!m_fields.keyToRow.isExact())
        m_fields.keyToRow.rebuild(m_fields.modelData, m_fields.keyColumns);
    if (hasKeys() && m_fields.filterable)
        refreshDisplay();
}

void ZrTableRows::renumber()
{
    m_fields.keyToRow.rebuild(m_fields.modelData, m_fields.keyColumns);
}

void ZrTableRows::refreshDisplay()
{
    forgetCounts();
    m_marksStale = false;
    const QVector<bool> marks = ZrTableFilter(m_fields).marks();
    if (m_fields.keyToRow.isExact()) {
        m_fields.displayKeyList.assign(marks);
        return;
    }
    QList<QString> keys;
    for (int row = 0; row < marks.size(); ++row) {
        const QString key = marks.at(row) ? m_fields.makeKey(m_fields.modelData.at(row)) : QString();
        if (!key.isEmpty())
            keys.append(key);
    }
    m_fields.displayKeyList.assignKeys(keys);
}

void ZrTableRows::loseStep()
{
    toLiteral(-1, QString());
    m_fields.keyToRow.markStale();
}

void ZrTableRows::keyChanged(int row, const QString &oldKey)
{
    toLiteral(row, oldKey);
    m_fields.keyToRow.markStale();
}

void ZrTableRows::cellsWritten(bool stateOnly)
{
    if (!stateOnly)
        forgetCounts();
    // A filter on the row state is possible for a caller who restores a filter list of its own.
    if (!stateOnly || m_fields.viewFilterList.contains(ZrRowStateColumn))
        m_marksStale = true;
}

void ZrTableRows::toLiteral(int row, const QString &key)
{
    ZrTableDisplayList &display = m_fields.displayKeyList;
    if (!m_fields.filterable || !display.isOrdered())
        return;
    QList<QString> keys;
    keys.reserve(display.size());
    for (int i = 0; i < display.rowCount(); ++i) {
        if (display.isShown(i))
            keys.append(i == row ? key : m_fields.makeKey(m_fields.modelData.at(i)));
    }
    display.assignKeys(keys);
    forgetCounts();
}
