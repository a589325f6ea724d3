#include "ZrTableChecks.h"

#include "ZrRoleKeys.h"
#include "ZrTableModel_p.h"
#include "ZrTableRows.h"

#include <QtCore/QDebug>

ZrTableChecks::ZrTableChecks(ZrTableModelPrivate &fields)
    : m_fields(fields)
{
}

void ZrTableChecks::recount()
{
    ZrTableCheckCounter &counter = m_fields.checkCounter;
    counter.restart();
    const int shown = m_fields.shownRowCount();
    for (int row = 0; row < shown; ++row) {
        const int modelRow = m_fields.modelRowAt(row);
        if (modelRow >= 0)
            counter.enters(m_fields.modelData.at(modelRow));
    }
}

int ZrTableChecks::countedState()
{
    ZrTableCheckCounter &counter = m_fields.checkCounter;
    counter.stamp(m_fields.modelData);
    if (!counter.isCurrent())
        recount();
    const int checked = counter.checked();
    if (!m_fields.rows().countsFollow())
        counter.invalidate();
    if (checked == 0)
        return Qt::Unchecked;
    return checked == m_fields.shownRowCount() ? Qt::Checked : Qt::PartiallyChecked;
}

void ZrTableChecks::writeState(int modelRow, const QVariant &state)
{
    RecordData &record = m_fields.modelData[modelRow];
    const QString key = m_fields.filterable ? m_fields.makeKey(record) : QString();
    const bool isCounted = m_fields.rows().countsFollow() && m_fields.rows().isShown(modelRow, key);
    const bool was = ZrTableCheckCounter::isChecked(record);
    ItemRoleMap &cell = record[ZrRowStateColumn];
    if (isCounted)
        m_fields.sums.cellLeaves(ZrRowStateColumn, cell);
    cell.insert(ITEM_USERROLE, state);
    if (isCounted) {
        m_fields.sums.cellEnters(ZrRowStateColumn, cell);
        m_fields.checkCounter.changed(was, state.toBool());
    } else if (!m_fields.rows().countsFollow()) {
        m_fields.rows().forgetCounts();
    }
    m_fields.rows().cellsWritten(true);
}

bool ZrTableChecks::areAllEnabled(bool checked) const
{
    for (const RecordData &record : qAsConst(m_fields.modelData)) {
        if (ZrTableCheckCounter::isEnabled(record) && ZrTableCheckCounter::isChecked(record) != checked)
            return false;
    }
    return true;
}

void ZrTableChecks::setAllEnabled(int state)
{
    for (int row = 0; row < m_fields.modelData.size(); ++row) {
        const RecordData &record = m_fields.modelData.at(row);
        if (ZrTableCheckCounter::isEnabled(record) && ZrTableCheckCounter::isChecked(record) != (state != 0))
            writeState(row, state);
    }
}

void ZrTableChecks::invertAllEnabled()
{
    for (int row = 0; row < m_fields.modelData.size(); ++row) {
        const RecordData &record = m_fields.modelData.at(row);
        if (ZrTableCheckCounter::isEnabled(record))
            writeState(row, !ZrTableCheckCounter::isChecked(record));
    }
}

// All rows, filtered out or not. A head that is partial only because of disabled rows acts as a toggle on the
// enabled ones.
void ZrTableChecks::headClicked(int state)
{
    if (!m_fields.checkBoxShown)
        return;
    const int oldState = m_fields.headCheckState;
    m_fields.headCheckState = state;
    if (oldState == Qt::PartiallyChecked && areAllEnabled(state != 0))
        invertAllEnabled();
    else
        setAllEnabled(state);
    const int shown = m_fields.shownRowCount();
    if (shown > 0)
        m_fields.emitCellChanged(m_fields.model->index(0, 0), m_fields.model->index(shown - 1, 0));
    m_fields.updateHeadCheckState();
}

void ZrTableChecks::rowClicked(const QModelIndex &index, bool checked)
{
    const int modelRow = m_fields.modelRowAt(index.row());
    if (modelRow < 0)
        return;
    writeState(modelRow, checked);
    m_fields.emitCellChanged(index, index);
    emit m_fields.model->signalRowCheckStateChanged(index.row(), checked ? 1 : 0);
    m_fields.updateHeadCheckState();
}

void ZrTableChecks::tellState(int row)
{
    QList<int> columns{ZrRowStateColumn};
    m_fields.model->updateData(row, columns);
}

void ZrTableChecks::writeEnabled(int modelRow, bool enabled)
{
    ItemRoleMap &cell = m_fields.modelData[modelRow][ZrRowStateColumn];
    if (enabled)
        cell.remove(ITEM_CHECKENABLEDROLE);
    else
        cell.insert(ITEM_CHECKENABLEDROLE, false);
    m_fields.rows().cellsWritten(true);
}

bool ZrTableChecks::setEnabledByRow(int row, bool enabled)
{
    const int modelRow = m_fields.modelRowAt(row);
    if (!m_fields.checkBoxShown || modelRow < 0)
        return false;
    writeEnabled(modelRow, enabled);
    tellState(modelRow); // the model row, also in filter mode: required
    return true;
}

bool ZrTableChecks::setEnabledByKey(const QString &key, bool enabled)
{
    if (!m_fields.checkBoxShown || key.isEmpty())
        return false;
    if (!m_fields.rows().hasKeys()) {
        qInfo() << "ZrTableModel::setCheckBoxEnabledByKey";
        return false;
    }
    const int modelRow = m_fields.keyToRow.row(key);
    if (modelRow < 0 || modelRow >= m_fields.modelData.size())
        return false;
    writeEnabled(modelRow, enabled);
    const int row = m_fields.model->getRowByKey(key);
    if (row < 0)
        return false;
    tellState(row);
    return true;
}

bool ZrTableChecks::setStatusByRow(int row, bool checked)
{
    const int modelRow = m_fields.modelRowAt(row);
    if (modelRow < 0)
        return false;
    writeState(modelRow, checked);
    tellState(row);
    m_fields.updateHeadCheckState();
    return true;
}

bool ZrTableChecks::setStatusByKey(const QString &key, bool checked)
{
    const int modelRow = m_fields.keyToRow.row(key);
    if (modelRow < 0 || modelRow >= m_fields.modelData.size())
        return false;
    writeState(modelRow, checked);
    const int row = m_fields.model->getRowByKey(key);
    if (row < 0) // filtered out: only the value is stored
        return false;
    tellState(row);
    m_fields.updateHeadCheckState();
    return true;
}

QList<int> ZrTableChecks::rowsByStatus(bool checked)
{
    m_fields.checkCounter.stamp(m_fields.modelData);
    QList<int> rows;
    const int shown = m_fields.shownRowCount();
    for (int row = 0; row < shown; ++row) {
        const int modelRow = m_fields.modelRowAt(row);
        if (modelRow >= 0 && ZrTableCheckCounter::isChecked(m_fields.modelData.at(modelRow)) == checked)
            rows.append(row);
    }
    return rows;
}
