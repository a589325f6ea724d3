#include "ZrTableUpdates.h"

#include "ZrRecordFetch.h"
#include "ZrRoleKeys.h"
#include "ZrTableModel_p.h"
#include "ZrTableRows.h"
#include "ZrTableSignalScope.h"

#include <QtCore/QDebug>

#include <algorithm>

ZrTableUpdates::ZrTableUpdates(ZrTableModelPrivate &fields)
    : m_fields(fields)
{
}

ZrTableUpdates::Change ZrTableUpdates::merge(const RecordData &record)
{
    Change change;
    ZrTableRows &rows = m_fields.rows();
    if (!rows.hasKeys())
        return change;
    change.key = m_fields.makeKey(record);
    const int row = m_fields.keyToRow.row(change.key);
    if (row < 0 || row >= m_fields.modelData.size())
        return change;
    const bool isCounted = rows.countsFollow() && rows.isShown(row, change.key);
    if (!rows.countsFollow())
        rows.forgetCounts();
    RecordData &stored = m_fields.modelData[row];
    mergeCells(stored, record, isCounted, change.columns);
    if (change.columns.isEmpty())
        return change;
    change.row = row;
    const auto isKey = [this](int column) { return m_fields.keyColumns.contains(column); };
    if (std::any_of(change.columns.cbegin(), change.columns.cend(), isKey) &&
        m_fields.makeKey(stored) != change.key)
        rows.keyChanged(row, change.key);
    rows.learnTypes(record);
    if (m_fields.filterable) {
        const ZrTableDisplayList &display = m_fields.displayKeyList;
        change.position = display.isOrdered() ? display.positionOf(row) : display.indexOf(change.key);
        change.isMatch = rows.wouldShow(stored, change.key);
    }
    return change;
}

void ZrTableUpdates::mergeCells(RecordData &stored, const RecordData &record, bool isCounted,
                                ZrChangedColumns &changed)
{
    ZrTableSums *sums = isCounted && m_fields.sums.isActive() ? &m_fields.sums : nullptr;
    // Few updates touch the row state, and its cell is the one that nothing else here has to fetch.
    if (!isCounted || !record.contains(ZrRowStateColumn)) {
        ZrTableMerge::merge(stored, record, sums, changed);
        return;
    }
    const bool wasChecked = ZrTableCheckCounter::isChecked(stored);
    ZrTableMerge::merge(stored, record, sums, changed);
    m_fields.checkCounter.changed(wasChecked, ZrTableCheckCounter::isChecked(stored));
}

void ZrTableUpdates::update(const RecordData &record)
{
    const Change change = merge(record);
    if (change.row < 0)
        return;
    if (m_fields.filterable)
        tellFiltered(change, record);
    else
        tellCells(change.row, change.columns, record);
}

void ZrTableUpdates::tellCells(int row, const ZrChangedColumns &columns, const RecordData &record)
{
    for (const int column : columns)
        m_fields.emitCellChanged(row, column);
    if (m_fields.checkBoxShown && record.contains(ZrRowStateColumn))
        m_fields.updateHeadCheckState();
}

void ZrTableUpdates::tellFiltered(const Change &change, const RecordData &record)
{
    const bool wasShown = change.position >= 0;
    if (wasShown && change.isMatch) {
        tellCells(change.position, change.columns, record);
        return;
    }
    if (!wasShown && !change.isMatch)
        return;
    const ZrTableSignalScope scope(m_fields, false);
    if (wasShown) {
        m_fields.beginRemove(change.position, change.position);
        leave(change);
        m_fields.endRemove();
    } else {
        const int position = positionForKey(change.row);
        m_fields.beginInsert(position, position);
        enter(change);
        m_fields.endInsert();
    }
    if (m_fields.checkBoxShown)
        m_fields.updateHeadCheckState();
}

void ZrTableUpdates::leave(const Change &change)
{
    ZrTableDisplayList &display = m_fields.displayKeyList;
    if (display.isOrdered()) {
        m_fields.rows().countOut(m_fields.modelData.at(change.row));
        display.setShown(change.row, false);
    } else {
        display.removeAt(change.position);
    }
}

void ZrTableUpdates::enter(const Change &change)
{
    ZrTableDisplayList &display = m_fields.displayKeyList;
    if (display.isOrdered()) {
        m_fields.rows().countIn(m_fields.modelData.at(change.row));
        display.setShown(change.row, true);
    } else {
        display.insertKey(positionForKey(change.row), change.key);
    }
}

// In front of the next shown row in model order, so that the display list keeps that order.
int ZrTableUpdates::positionForKey(int row) const
{
    const ZrTableDisplayList &display = m_fields.displayKeyList;
    if (display.isOrdered())
        return display.positionAt(row);
    QHash<QString, int> positions;
    for (int i = display.size() - 1; i >= 0; --i)
        positions.insert(display.keyAt(i), i);
    for (int next = row + 1; next < m_fields.modelData.size(); ++next) {
        const auto found = positions.constFind(m_fields.makeKey(m_fields.modelData.at(next)));
        if (found != positions.constEnd())
            return *found;
    }
    return display.size();
}

bool ZrTableUpdates::enterOrLeave(const Change &change)
{
    if (change.position >= 0 && !change.isMatch)
        leave(change);
    else if (change.position < 0 && change.isMatch)
        enter(change);
    else
        return false;
    return true;
}

void ZrTableUpdates::updateMany(const RecordDataList &records)
{
    QVector<int> touched; // view rows, while the rows shown stay the same
    bool isChanged = false;
    bool isMoved = false;
    const QString current = m_fields.currentRowKey();
    for (int i = 0; i < records.size(); ++i) {
        if (i % ZrRecordFetch::BlockSize == 0)
            ZrRecordFetch::block(records, i, m_fields.modelData, m_fields.keyToRow, m_fields.keyColumns);
        const Change change = merge(records.at(i));
        if (change.row < 0)
            continue;
        isChanged = true;
        if (!m_fields.filterable)
            touched.append(change.row);
        else if (change.position >= 0 && change.isMatch)
            touched.append(change.position);
        else
            isMoved = enterOrLeave(change) || isMoved;
    }
    if (!isChanged)
        return;
    // A row whose key changed may be shown elsewhere or twice.
    const bool isSame = !isMoved && m_fields.rows().canFollow();
    m_fields.resetViewsKeeping(current, isSame ? &touched : nullptr);
    if (m_fields.checkBoxShown)
        m_fields.updateHeadCheckState();
}

void ZrTableUpdates::replaceAll(const RecordDataList &records)
{
    const QList<int> keyColumns = m_fields.keyColumns;
    RecordDataList kept;
    ZrTableKeyIndex index; // of the rows kept
    kept.reserve(records.size());
    if (!keyColumns.isEmpty())
        index.reserve(records.size());
    for (int i = 0; i < records.size(); ++i) {
        const RecordData &record = records.at(i);
        if (i % ZrRecordFetch::BlockSize == 0)
            ZrRecordFetch::keys(records, i, keyColumns);
        if (!keyColumns.isEmpty()) {
            const QString key = m_fields.makeKey(record);
            if (key.isEmpty() || index.contains(key))
                continue;
            index.enter(key, kept.size());
        }
        m_fields.rows().learnTypes(record);
        kept.append(record);
    }
    m_fields.rows().replaceAll(kept);
    m_fields.indexWidgets.clear();
    // The reset stands before the rebuild: required. In filter mode the views so first meet the old display
    // list.
    m_fields.resetViews();
    m_fields.updateHeadCheckState();
    if (m_fields.keyColumns == keyColumns) // a slot of the reset may have set others
        m_fields.rows().rebuildFrom(index, kept);
    else
        m_fields.rows().rebuild();
    if (m_fields.filterable) {
        m_fields.correctHeadCheckState();
        m_fields.settleViews();
    }
    const QObject *parent = m_fields.model->QObject::parent();
    const QString grid = parent && parent->parent() ? parent->parent()->objectName() : QString();
    qDebug() << "ZrTableModel::updateRecordDataList" << grid << " input record length " << records.size()
             << " real record length " << kept.size();
}
