#include "ZrTableModel.h"

#include "ZrTableArrange.h"
#include "ZrTableCellReader.h"
#include "ZrTableChecks.h"
#include "ZrTableIntake.h"
#include "ZrTableModel_p.h"
#include "ZrTableRemovals.h"
#include "ZrTableRows.h"
#include "ZrTableSections.h"
#include "ZrTableUpdates.h"

#include "ZrRoleKeys.h"

#include <QtCore/QTimerEvent>

ZrTableModel::ZrTableModel(QObject *parent)
    : QAbstractTableModel(parent)
    , d(new ZrTableModelPrivate(this))
{
}

ZrTableModel::~ZrTableModel() = default;

ZrTableModelPrivate *ZrTableModel::getModelPrivate() const
{
    return d;
}

// --- Keys and bounds ---

void ZrTableModel::setKeyColumn(const QList<int> &columns)
{
    if (columns == d->keyColumns)
        return;
    // Mostly set on a new table: nothing is out of step there, or a stream of single records would be
    // searched and renumbered row by row until something else rebuilds.
    const bool isFresh = d->modelData.isEmpty() && d->keyToRow.size() == 0;
    if (!isFresh)
        d->rows().loseStep(); // the keys in use stay those of the old columns until the next rebuild
    d->keyColumns = columns;
    if (isFresh)
        d->rows().renumber();
}

QList<int> ZrTableModel::getKeyColumn() const
{
    return d->keyColumns;
}

void ZrTableModel::setMaxRowCount(int count)
{
    d->maximumRowCount = count;
}

void ZrTableModel::setViewDelayDisplayTime(ushort ms)
{
    d->delayedDisplay = true;
    d->delayInMs = ms;
}

QString ZrTableModel::makeRecordKey(const RecordData &record) const
{
    return d->makeKey(record);
}

// --- Records in ---

void ZrTableModel::addRecordData(const RecordData &record)
{
    ZrTableIntake(*d).add(record);
}

void ZrTableModel::addRecordDataList(const RecordDataList &records)
{
    ZrTableIntake(*d).addList(records);
}

int ZrTableModel::insertRecordData(int row, const RecordData &record)
{
    return ZrTableIntake(*d).insert(row, record);
}

int ZrTableModel::insertRecordDataList(int row, const RecordDataList &records)
{
    return ZrTableIntake(*d).insertList(row, records);
}

void ZrTableModel::updataRecordData(const RecordData &record)
{
    ZrTableUpdates(*d).update(record);
}

void ZrTableModel::updataRecordDatas(const RecordDataList &records)
{
    ZrTableUpdates(*d).updateMany(records);
}

void ZrTableModel::updateRecordDataList(const RecordDataList &records)
{
    ZrTableUpdates(*d).replaceAll(records);
}

int ZrTableModel::deleteRecordData(const RecordData &record)
{
    return ZrTableRemovals(*d).remove(record);
}

int ZrTableModel::deleteRecordDataList(const RecordDataList &records)
{
    return ZrTableRemovals(*d).removeList(records);
}

void ZrTableModel::deleteRow(int row)
{
    ZrTableRemovals(*d).removeRow(row);
}

// --- Records out ---

const RecordDataList &ZrTableModel::getModelData() const
{
    d->prepareRead();
    return d->modelData;
}

RecordDataList ZrTableModel::getViewCurrentDisplayData() const
{
    d->prepareRead();
    return d->shownRecords();
}

RecordData ZrTableModel::getRowData(const int &row) const
{
    d->prepareRead();
    const int modelRow = d->modelRowAt(row);
    return modelRow < 0 ? RecordData() : d->modelData.at(modelRow);
}

RecordData ZrTableModel::getRowDataByKey(const QString &key) const
{
    const int row = d->rows().hasKeys() ? d->keyToRow.row(key) : -1;
    return row < 0 ? RecordData() : d->modelData.value(row);
}

RecordData ZrTableModel::getRowDataByKeyCols(const RecordData &keyCells) const
{
    return getRowDataByKey(d->makeKey(keyCells));
}

RecordData ZrTableModel::getRowDataByKeyCols(const QMap<int, QString> &keyTexts) const
{
    RecordData keyCells;
    for (auto it = keyTexts.constBegin(); it != keyTexts.constEnd(); ++it)
        keyCells[it.key()].insert(ITEM_USERROLE, it.value());
    return getRowDataByKeyCols(keyCells);
}

int ZrTableModel::getRowByKey(const QString &key) const
{
    if (!d->rows().hasKeys())
        return -1;
    if (!d->filterable)
        return d->keyToRow.row(key);
    return d->displayKeyList.isOrdered() ? d->displayKeyList.positionOf(d->keyToRow.row(key))
                                         : d->displayKeyList.indexOf(key);
}

QModelIndex ZrTableModel::getIndex(int row, int logicalColumn, const QModelIndex &parent) const
{
    return index(row, logicalColumn + d->columnOffset(), parent);
}

QVariant ZrTableModel::getData(int row, int viewColumn, int role) const
{
    return getIndexData(row, viewColumn - d->columnOffset(), role);
}

QVariant ZrTableModel::getIndexData(int row, int logicalColumn, int role) const
{
    d->prepareRead();
    return ZrTableCellReader::read(*d, row, logicalColumn, role);
}

// --- Refresh ---

void ZrTableModel::update()
{
    d->resetViewsKeeping(d->currentRowKey());
}

void ZrTableModel::updateData(int row, QList<int> &columns)
{
    if (row < 0)
        return;
    for (const int column : qAsConst(columns))
        d->emitCellChanged(row, column);
}

void ZrTableModel::timerEvent(QTimerEvent *event)
{
    if (d->endDelay(event->timerId()))
        update();
    else
        QAbstractTableModel::timerEvent(event);
}

// --- Model interface ---

QModelIndex ZrTableModel::index(int row, int column, const QModelIndex &parent) const
{
    if (d->isParkedRow(row))
        return createIndex(row, column);
    return QAbstractTableModel::index(row, column, parent);
}

int ZrTableModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : d->shownRowCount();
}

int ZrTableModel::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : d->headList.size();
}

QVariant ZrTableModel::data(const QModelIndex &index, int role) const
{
    if (!index.isValid() || index.column() >= d->headList.size())
        return QVariant();
    return getIndexData(index.row(), d->logicalColumnAt(index.column()), role);
}

QVariant ZrTableModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    return orientation == Qt::Horizontal ? ZrTableCellReader::head(*d, section, role) : QVariant();
}

Qt::ItemFlags ZrTableModel::flags(const QModelIndex &index) const
{
    if (!index.isValid())
        return QAbstractTableModel::flags(index);
    return d->itemSelectable ? Qt::ItemIsEnabled | Qt::ItemIsSelectable : Qt::ItemFlags(Qt::ItemIsEnabled);
}

bool ZrTableModel::setData(const QModelIndex &index, const QVariant &value, int role)
{
    return ZrTableArrange(*d).setCell(index, value, role);
}

// --- Heads and columns ---

void ZrTableModel::setHeaderData(const HeadList &heads)
{
    ZrTableSections(*d).setHeads(heads);
}

void ZrTableModel::setColumnDefaultTextAlignment(int alignment)
{
    d->defaultColumnAlignment = alignment;
}

void ZrTableModel::setColumnTextAlignment(int logicalColumn, int alignment)
{
    d->columnAlignment.insert(logicalColumn, alignment);
}

void ZrTableModel::setHeadDefaultTextAlignment(int alignment)
{
    d->defaultHeadAlignment = alignment;
}

void ZrTableModel::setHeadTextAlignment(int logicalColumn, int alignment)
{
    d->headAlignment.insert(logicalColumn, alignment);
}

void ZrTableModel::setColumnSections(int logicalColumn, int widthPx)
{
    ZrTableSections(*d).setWidth(logicalColumn, widthPx);
}

void ZrTableModel::resetColumnSections()
{
    ZrTableSections(*d).applyWidths();
}

void ZrTableModel::setItemSelectable(bool selectable)
{
    d->itemSelectable = selectable;
}

bool ZrTableModel::isItemSelectable() const
{
    return d->itemSelectable;
}

void ZrTableModel::setSerialNumberColumnPropety(ZrViewModel::SerialNumColumnOrder order)
{
    if (order != d->serialOrder)
        ZrTableSections(*d).setSerialOrder(order);
}

ZrViewModel::SerialNumColumnOrder ZrTableModel::serialNumberColumnPropety() const
{
    return d->serialOrder;
}

void ZrTableModel::setBeginSerialNumber(int number)
{
    d->beginSerialNumber = number;
}

void ZrTableModel::setIndexWidget(int row, int logicalColumn, QWidget *widget)
{
    const int modelRow = d->modelRowAt(row);
    if (modelRow >= 0 && d->rows().hasKeys())
        d->indexWidgets[d->makeKey(d->modelData.at(modelRow))].insert(logicalColumn, widget);
}

// --- Check boxes ---

void ZrTableModel::setCheckBoxShow(bool shown)
{
    if (shown != d->checkBoxShown)
        ZrTableSections(*d).showCheckColumn(shown);
}

bool ZrTableModel::isCheckBoxShow() const
{
    return d->checkBoxShown;
}

void ZrTableModel::updateCheckBoxData(const QModelIndex &index, bool checked)
{
    ZrTableChecks(*d).rowClicked(index, checked);
}

bool ZrTableModel::setCheckBoxEnabledByKey(const QString &key, bool enabled)
{
    return ZrTableChecks(*d).setEnabledByKey(key, enabled);
}

bool ZrTableModel::setCheckBoxEnabledByRow(int row, bool enabled)
{
    return ZrTableChecks(*d).setEnabledByRow(row, enabled);
}

bool ZrTableModel::setCheckStatusByKey(const QString &key, bool checked)
{
    return ZrTableChecks(*d).setStatusByKey(key, checked);
}

bool ZrTableModel::setCheckStatusByRow(int row, bool checked)
{
    return ZrTableChecks(*d).setStatusByRow(row, checked);
}

QList<int> ZrTableModel::getRowsByCheckStatus(bool checked)
{
    return ZrTableChecks(*d).rowsByStatus(checked);
}

void ZrTableModel::onStateChanged(int state)
{
    ZrTableChecks(*d).headClicked(state);
}

// --- Sum of the shown rows ---

void ZrTableModel::setSumFlag(bool isSummary)
{
    if (isSummary == d->sumFlag)
        return;
    d->sumFlag = isSummary;
    update();
}

void ZrTableModel::setNoSumCols(const QList<int> &columns)
{
    if (columns == d->noSumColumns)
        return;
    d->noSumColumns = columns;
    d->sums.stop();
    update();
}

RecordData ZrTableModel::getSumRecord() const
{
    return ZrTableModelPrivate::sumTexts(d->hostSums());
}

// --- Sort and filter ---

void ZrTableModel::slotSortIndicatorChanged(int section, Qt::SortOrder order)
{
    ZrTableArrange(*d).sort(section, order);
}

void ZrTableModel::SortIndicatorChanged(int section, Qt::SortOrder order)
{
    Q_UNUSED(section)
    Q_UNUSED(order)
}

void ZrTableModel::setColumnMatchFilterFunction(const int &column, ZrColumnMatchFunction function)
{
    d->matchFunctions.insert(column, function);
    d->applyFilter();
}

void ZrTableModel::removeColumnMatchFilterFunction(const int &column)
{
    if (d->matchFunctions.remove(column) == 0)
        return;
    d->viewFilterList.remove(column);
    d->applyFilter();
}

void ZrTableModel::resetViewCurrentFilterList(const ViewFilterList &filters)
{
    d->viewFilterList = filters;
    d->rows().refilter();
}

ViewFilterList ZrTableModel::getViewCurrentFilterList() const
{
    return d->viewFilterList;
}
