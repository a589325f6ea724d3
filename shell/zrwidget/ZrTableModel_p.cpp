#include "ZrTableModel_p.h"

#include "ZrDistinctCells.h"
#include "ZrRoleKeys.h"
#include "ZrTableChecks.h"
#include "ZrTableRows.h"
#include "ZrTableSumText.h"
#include "zrutils/ZrCommonUtils.h"

#include <QtCore/QScopedValueRollback>
#include <QtWidgets/QTableView>

ZrTableModelPrivate::ZrTableModelPrivate(ZrTableModel *facade)
    : QObject(facade)
    , model(facade)
    , m_rows(new ZrTableRows(*this))
{
}

ZrTableModelPrivate::~ZrTableModelPrivate() = default;

QString ZrTableModelPrivate::modelTr(const char *text) const
{
    return ZrTableModel::tr(text);
}

QTableView *ZrTableModelPrivate::parentView() const
{
    return qobject_cast<QTableView *>(model->QObject::parent());
}

// The copy of the heads shares their data until somebody writes to them.
int ZrTableModelPrivate::logicalColumnAt(int section) const
{
    if (!m_readHeads.isSharedWith(headList)) {
        m_readHeads = headList;
        m_readColumns.clear();
        for (const auto &head : headList)
            m_readColumns.append(head.value(HEAD_COLUMNINDEX).toInt());
    }
    return m_readColumns.at(section);
}

int ZrTableModelPrivate::modelRowAt(int viewRow) const
{
    int row = viewRow;
    if (filterable && displayKeyList.isOrdered()) {
        row = displayKeyList.rowAt(viewRow);
    } else if (filterable) {
        if (viewRow < 0 || viewRow >= displayKeyList.size())
            return -1;
        row = qMax(0, keyToRow.row(displayKeyList.keyAt(viewRow))); // a key without a row reads the first
    }
    return row >= 0 && row < modelData.size() ? row : -1;
}

// --- Filter ---

void ZrTableModelPrivate::setFilterable(bool on)
{
    if (filterable == on)
        return;
    const QString current = currentRowKey();
    filterable = on;
    rows().forgetCounts();
    displayKeyList.clear();
    if (on)
        rows().refreshDisplay();
    if (shownRowCount() != m_toldRows && delayTimerId == 0)
        resetViewsKeeping(current);
}

void ZrTableModelPrivate::applyFilter()
{
    const QString current = currentRowKey(); // of the old list: the number of the row says nothing afterwards
    if (filterable)
        rows().refreshDisplay();
    resetViewsKeeping(current);
}

void ZrTableModelPrivate::setColumnFilter(int column, const QList<QList<QVariantMap>> &groups)
{
    if (groups.isEmpty())
        viewFilterList.remove(column);
    else
        viewFilterList.insert(column, groups);
    applyFilter();
}

void ZrTableModelPrivate::setColumnCustomFilter(int column, const QList<QVariantMap> &group)
{
    setColumnFilter(column, group.isEmpty() ? QList<QList<QVariantMap>>() : QList<QList<QVariantMap>>{group});
}

void ZrTableModelPrivate::setColumnFilterData(int column, const RecordDataList &candidates)
{
    columnFilterData.insert(column, candidates);
}

void ZrTableModelPrivate::removeColumnFilterData(int column)
{
    columnFilterData.remove(column);
}

QList<ItemRoleMap> ZrTableModelPrivate::columnCandidates(int column) const
{
    return ZrDistinctCells::ofColumn(modelData, column);
}

// --- Checks and sums ---

void ZrTableModelPrivate::updateHeadCheckState()
{
    if (!checkBoxShown)
        return;
    headCheckState = ZrTableChecks(*this).countedState();
    emit model->stateChanged(headCheckState);
}

void ZrTableModelPrivate::correctHeadCheckState()
{
    if (checkBoxShown && ZrTableChecks(*this).countedState() != headCheckState)
        updateHeadCheckState();
}

RecordDataList ZrTableModelPrivate::shownRecords() const
{
    if (!filterable)
        return modelData;
    RecordDataList records;
    const int shown = displayKeyList.size();
    records.reserve(shown);
    for (int row = 0; row < shown; ++row) {
        const int modelRow =
            displayKeyList.isOrdered() ? displayKeyList.rowAt(row) : keyToRow.row(displayKeyList.keyAt(row));
        if (modelRow >= 0 && modelRow < modelData.size())
            records.append(modelData.at(modelRow));
    }
    return records;
}

RecordData ZrTableModelPrivate::hostSums() const
{
    return ZrCommonUtils::getTableViewSumRecord(shownRecords(), noSumColumns);
}

RecordData ZrTableModelPrivate::sumRecordNow() const
{
    if (!rows().countsFollow())
        return model->getSumRecord();
    if (!sums.isActive())
        sums.start(shownRecords());
    if (sums.isCheckDue()) {
        const RecordData host = hostSums();
        sums.check(host, noSumColumns);
        sums.takeChangedColumns();
        m_sumRecord = sumTexts(host);
        return m_sumRecord;
    }
    if (!sums.agrees())
        return model->getSumRecord();
    const QList<int> changed = sums.takeChangedColumns();
    for (const int column : changed) {
        const auto cell = m_sumRecord.find(column);
        if (cell != m_sumRecord.end())
            cell->insert(ITEM_DISPLAYROLE, ZrTableSumText::of(sums.total(column)));
    }
    return m_sumRecord;
}

RecordData ZrTableModelPrivate::sumTexts(RecordData totals)
{
    for (auto cell = totals.begin(); cell != totals.end(); ++cell) {
        const auto total = cell->find(ITEM_DISPLAYROLE);
        if (total != cell->end())
            *total = ZrTableSumText::of(*total);
    }
    return totals;
}

// --- Telling the views ---

QString ZrTableModelPrivate::currentRowKey() const
{
    const QTableView *view = parentView();
    const QModelIndex current = view ? view->currentIndex() : QModelIndex();
    const int row = current.isValid() ? modelRowAt(current.row()) : -1;
    return row < 0 ? QString() : makeKey(modelData.at(row));
}

void ZrTableModelPrivate::resetViews()
{
    model->beginResetModel();
    m_toldRows = shownRowCount();
    m_toldColumns = headList.size();
    model->endResetModel();
}

void ZrTableModelPrivate::resetViewsKeeping(const QString &key, const QVector<int> *touchedRows)
{
    {
        // Rows that a view hasn't been told of yet are new to it.
        const bool isKnown = m_toldRows == shownRowCount() && m_toldColumns == headList.size();
        const QScopedValueRollback<const QVector<int> *> told(m_touchedRows, isKnown ? touchedRows : nullptr);
        resetViews();
    }
    QTableView *view = parentView();
    if (!view || key.isEmpty())
        return;
    const QModelIndex index = model->index(model->getRowByKey(key), 0);
    if (index.isValid())
        view->setCurrentIndex(index);
}

void ZrTableModelPrivate::beginInsert(int first, int last)
{
    m_toldRows += last - first + 1;
    if (first < shownRowCount()) // otherwise the toolkit moves no index
        m_parkedShift += last - first + 1;
    model->beginInsertRows(QModelIndex(), first, last);
}

void ZrTableModelPrivate::endInsert()
{
    model->endInsertRows();
}

void ZrTableModelPrivate::beginRemove(int first, int last)
{
    if (first >= 0 && last < m_toldRows)
        m_toldRows -= last - first + 1;
    m_parkedShift -= last - first + 1;
    model->beginRemoveRows(QModelIndex(), first, last);
}

void ZrTableModelPrivate::endRemove()
{
    model->endRemoveRows();
}

void ZrTableModelPrivate::emitCellChanged(int viewRow, int logicalColumn)
{
    const QModelIndex cell = model->getIndex(viewRow, logicalColumn);
    if (cell.isValid()) // a column without a head has no cell to repaint
        emit model->dataChanged(cell, cell);
}

void ZrTableModelPrivate::emitCellChanged(const QModelIndex &from, const QModelIndex &to,
                                          const QVector<int> &roles)
{
    emit model->dataChanged(from, to, roles);
}

// Not while a delayed refresh is due, which resets the views anyway.
void ZrTableModelPrivate::settleViews()
{
    if (isParking() || delayTimerId != 0)
        return;
    if (m_toldRows == shownRowCount() && m_toldColumns == headList.size())
        return;
    emit model->layoutAboutToBeChanged();
    m_toldRows = shownRowCount();
    m_toldColumns = headList.size();
    dropLostIndexes();
    emit model->layoutChanged();
}

void ZrTableModelPrivate::dropLostIndexes()
{
    const QModelIndexList indexes = model->persistentIndexList();
    for (const QModelIndex &index : indexes) {
        if (index.row() >= m_toldRows || index.column() >= m_toldColumns)
            model->changePersistentIndex(index, QModelIndex());
    }
}

void ZrTableModelPrivate::startDelayTimer()
{
    if (delayTimerId == 0)
        delayTimerId = model->startTimer(delayInMs, Qt::CoarseTimer);
}

bool ZrTableModelPrivate::endDelay(int timerId)
{
    if (delayTimerId == 0 || timerId != delayTimerId)
        return false;
    model->killTimer(delayTimerId);
    delayTimerId = 0;
    return true;
}

// --- Persistent indexes ---

QModelIndexList ZrTableModelPrivate::persistentIndexes() const
{
    return model->persistentIndexList();
}

void ZrTableModelPrivate::parkIndexes(const QModelIndexList &indexes)
{
    m_isParking = true;
    m_parkedShift = 0;
    model->changePersistentIndexList(indexes, parkedPlaces(indexes));
}

// Side by side as they stood, so that a selected range stays a range.
QModelIndexList ZrTableModelPrivate::parkedPlaces(const QModelIndexList &indexes) const
{
    QModelIndexList places;
    for (const QModelIndex &index : indexes)
        places.append(model->createIndex(parkingFloor * 2 + m_parkedShift + index.row(), index.column()));
    return places;
}

void ZrTableModelPrivate::unparkIndexes(const QModelIndexList &before, const QModelIndexList &now)
{
    m_isParking = false;
    const QModelIndexList places = parkedPlaces(before);
    model->changePersistentIndexList(places, now);
    dropLostIndexes();
}

QString ZrTableModelPrivate::invariantError() const
{
    const QString keys = keyToRow.invariantError(modelData, keyColumns);
    if (!keys.isEmpty())
        return keys;
    if (!filterable)
        return QString();
    if (displayKeyList.isOrdered() && displayKeyList.rowCount() != modelData.size())
        return QStringLiteral("marks for %1 rows of %2").arg(displayKeyList.rowCount()).arg(modelData.size());
    return displayKeyList.invariantError();
}
