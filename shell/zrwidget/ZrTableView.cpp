#include "ZrTableView.h"

#include "FreezeTableView.h"
#include "zrcore/ZrCore.h"
#include "zrdefine/Constants.h"
#include "ZrGroupedHeadHeight.h"
#include "ZrHeaderView.h"
#include "ZrItemModelDeletage.h"
#include "ZrModelIndex.h"
#include "ZrTableColumns.h"
#include "ZrTableModel_p.h"
#include "ZrTableSummary.h"
#include "ZrTableView_p.h"

#include <QtCore/QDebug>

ZrTableView::ZrTableView(QWidget *parent)
    : ZrViewBase(parent)
    , d(new ZrTableViewPrivate(this))
{
    // So that a filter state and a sort can travel in queued signals.
    qRegisterMetaType<ViewFilterList>("QMap<int, QList<QList<QVariantMap>>>");
    qRegisterMetaType<Qt::SortOrder>("Qt::SortOrder");
    d->createParts(parent);
    ZrCore::instance()->addStyle2View(this,
                                      Constants::SKIN_SYSTEM + QStringLiteral("zrwidget/zrtableview.css"));
    d->table->installEventFilter(this);
}

ZrTableView::~ZrTableView()
{
    qDebug() << "ZrTableView::~ZrTableView" << objectName();
    emit d->signalRemovePluginView(this);
    delete d;
}

ZrTableViewPrivate *ZrTableView::getPrivate() const
{
    return d;
}

void ZrTableView::UnregisterPlugin()
{
    if (d->plugin)
        d->plugin->unregisterTable(this);
}

void ZrTableView::loadSkin(const QVariant &css)
{
    if (d->groupedHead)
        d->groupedHeight->release();
    if (css.isValid())
        setStyleSheet(css.toString());
    if (d->groupedHead)
        d->groupedHeight->takeAgain();
}

bool ZrTableView::eventFilter(QObject *watched, QEvent *event)
{
    Q_UNUSED(watched)
    Q_UNUSED(event)
    return false; // for subclasses, which override it
}

void ZrTableView::resizeEvent(QResizeEvent *event)
{
    qDebug() << "ZrTableView::resizeEvent" << d->table->size() << d->table->viewport()->size();
    if (d->summaryTable)
        qDebug() << "ZrTableView::resizeEvent" << d->summaryTable->size();
    ZrViewBase::resizeEvent(event);
}

void ZrTableView::columnShown(int viewColumn, bool shown)
{
    Q_UNUSED(viewColumn)
    Q_UNUSED(shown)
}

void ZrTableView::setHeadList(HeadList &list)
{
    d->columns->setHeadList(&list);
}

void ZrTableView::setPluginViewColumnVisiableProperity(const QList<int> &hiddenColumns)
{
    d->columns->setHidden(hiddenColumns);
}

QList<int> ZrTableView::getHeadLogicIndexList()
{
    return d->columns->logicalOrder();
}

void ZrTableView::setPluginViewHeadLogicIndexProperity(const QList<int> &order)
{
    d->columns->setOrderProperty(order);
}

HeadList ZrTableView::getHeadList()
{
    return d->headList;
}

HeadList ZrTableView::getVisibleHeadData()
{
    return d->columns->visibleHeads();
}

RecordDataList ZrTableView::getViewCurrentDisplayData()
{
    return d->model->getViewCurrentDisplayData();
}

void ZrTableView::setTableViewCaption(const QString &caption)
{
    d->setCaption(caption);
}

QString ZrTableView::getTableViewCaption() const
{
    return GetViewCaption();
}

// --- Records: each change makes the summary stale ---

void ZrTableView::addRecordData(const RecordData &record)
{
    d->model->addRecordData(record);
    d->updateSummary();
}

void ZrTableView::addRecordDataList(const RecordDataList &records)
{
    d->model->addRecordDataList(records);
    d->updateSummary();
}

int ZrTableView::insertRecordData(int row, const RecordData &record)
{
    const int count = d->model->insertRecordData(row, record);
    d->updateSummary();
    return count;
}

int ZrTableView::insertRecordDataList(int row, const RecordDataList &records)
{
    const int count = d->model->insertRecordDataList(row, records);
    d->updateSummary();
    return count;
}

void ZrTableView::updataRecordData(const RecordData &record)
{
    d->model->updataRecordData(record);
    d->updateSummary();
}

void ZrTableView::updataRecordDatas(const RecordDataList &records)
{
    d->model->updataRecordDatas(records);
    d->updateSummary();
}

void ZrTableView::updateRecordDataList(const RecordDataList &records)
{
    d->model->updateRecordDataList(records);
    d->updateSummary();
}

int ZrTableView::deleteRecordData(const RecordData &record)
{
    const int count = d->model->deleteRecordData(record);
    d->updateSummary();
    return count;
}

int ZrTableView::deleteRecordDataList(const RecordDataList &records)
{
    const int count = d->model->deleteRecordDataList(records);
    d->updateSummary();
    return count;
}

void ZrTableView::deleteRow(int row)
{
    if (row < 0)
        return;
    d->model->deleteRow(row);
    d->updateSummary();
}

void ZrTableView::clear()
{
    updateRecordDataList(RecordDataList());
}

// --- Reading ---

RecordData ZrTableView::getRowData(int row) const
{
    return row < 0 ? RecordData() : d->model->getRowData(row);
}

RecordData ZrTableView::getRowDataByKey(const QString &key) const
{
    return d->model->getRowDataByKey(key);
}

RecordData ZrTableView::getRowDataByKeyCols(const RecordData &keyCells) const
{
    return d->model->getRowDataByKeyCols(keyCells);
}

RecordData ZrTableView::getRowDataByKeyCols(const QMap<int, QString> &keyTexts) const
{
    return d->model->getRowDataByKeyCols(keyTexts);
}

int ZrTableView::getRowByKey(const QString &key) const
{
    return d->model->getRowByKey(key);
}

QString ZrTableView::getKeyStringByRow(int row) const
{
    const RecordData record = getRowData(row);
    return record.isEmpty() ? QString() : d->model->makeRecordKey(record);
}

int ZrTableView::getRowCount() const
{
    return d->model->rowCount();
}

RecordDataList ZrTableView::getViewData() const
{
    return d->model->getModelData();
}

ViewFilterList ZrTableView::getViewCurrentFilterList() const
{
    return d->model->getViewCurrentFilterList();
}

QModelIndex ZrTableView::index(int row, int column) const
{
    return d->model->getIndex(row, column);
}

QModelIndex ZrTableView::currentIndex() const
{
    return d->table->currentIndex();
}

void ZrTableView::setCurrentIndex(const QModelIndex &index, bool scroll)
{
    d->table->setCurrentIndex(index);
    if (!scroll)
        return;
    d->table->scrollTo(index);
    emit currentIndexChanged(index);
}

// --- Key, size, check boxes ---

void ZrTableView::setKeyColumn(const QList<int> &columns)
{
    d->model->setKeyColumn(columns);
}

QList<int> ZrTableView::getKeyColumn() const
{
    return d->model->getKeyColumn();
}

void ZrTableView::setMaxRowCount(int count)
{
    d->model->setMaxRowCount(count);
}

void ZrTableView::setViewDelayDisplayTime(ushort ms)
{
    d->model->setViewDelayDisplayTime(ms);
}

void ZrTableView::setItemSelectable(bool selectable)
{
    d->model->setItemSelectable(selectable);
}

void ZrTableView::setAlwaysDisplayLatest(bool latest)
{
    d->setAlwaysDisplayLatest(latest);
}

void ZrTableView::setCheckBoxShow(bool shown)
{
    d->setCheckBoxShow(shown);
}

bool ZrTableView::setCheckBoxEnabledByKey(const QString &key, bool enabled)
{
    return d->model->setCheckBoxEnabledByKey(key, enabled);
}

bool ZrTableView::setCheckBoxEnabledByRow(int row, bool enabled)
{
    return d->model->setCheckBoxEnabledByRow(row, enabled);
}

bool ZrTableView::setCheckStatusByKey(const QString &key, bool checked)
{
    return d->model->setCheckStatusByKey(key, checked);
}

bool ZrTableView::setCheckStatusByRow(int row, bool checked)
{
    return d->model->setCheckStatusByRow(row, checked);
}

QList<int> ZrTableView::getRowsByCheckStatus(bool checked) const
{
    return d->model->getRowsByCheckStatus(checked);
}

void ZrTableView::setAllCheckBoxChecked(bool checked)
{
    d->header->setChecked(checked);
}

void ZrTableView::SetCheckedRowHighlight(bool highlight)
{
    d->checkedRowHighlight = highlight;
    d->delegate->SetCheckedRowHighlight(highlight, d->checkedColor);
    d->table->updateParts();
}

bool ZrTableView::GetCheckedRowHighlight() const
{
    return d->checkedRowHighlight;
}

void ZrTableView::setSerialNumberColumnPropety(ZrViewModel::SerialNumColumnOrder order)
{
    d->setSerialOrder(order);
}

void ZrTableView::setBeginSerialNumber(int number)
{
    d->model->setBeginSerialNumber(number);
}

// --- Columns and rows ---

void ZrTableView::setColumnShow(int logicalColumn, bool show)
{
    d->columns->setColumnShow(logicalColumn, show);
}

void ZrTableView::setColumnDefaultTextAlignment(int alignment)
{
    d->model->setColumnDefaultTextAlignment(alignment);
    if (d->summaryModel)
        d->summaryModel->setColumnDefaultTextAlignment(alignment);
    d->updateModels();
}

void ZrTableView::setColumnTextAlignment(int column, int alignment)
{
    d->model->setColumnTextAlignment(column, alignment);
    if (d->summaryModel)
        d->summaryModel->setColumnTextAlignment(column, alignment);
    d->updateModels();
}

void ZrTableView::setHeadDefaultTextAlignment(int alignment)
{
    d->model->setHeadDefaultTextAlignment(alignment);
    d->table->updateHeads();
}

void ZrTableView::setHeadTextAlignment(int column, int alignment)
{
    d->model->setHeadTextAlignment(column, alignment);
    d->table->updateHeads();
}

void ZrTableView::setColumnWidth(int column, int widthPx)
{
    d->model->setColumnSections(column, widthPx);
    if (d->summaryModel)
        d->summaryModel->setColumnSections(column, widthPx);
}

void ZrTableView::setColumnDefaultWidth(int widthPx)
{
    d->columns->setDefaultWidth(widthPx);
}

void ZrTableView::setColumnMinimumWidth(int widthPx)
{
    d->columns->setMinimumWidth(widthPx);
}

void ZrTableView::setStretchLastSection(bool stretch)
{
    d->header->setStretchLastSection(stretch);
    if (d->summaryHeader)
        d->summaryHeader->setStretchLastSection(stretch);
}

void ZrTableView::setHeadSectionMovable(bool movable)
{
    d->columns->setMovable(movable);
}

bool ZrTableView::headSectionMovable() const
{
    return d->header->sectionsMovable();
}

void ZrTableView::setFrozenColumns(int side, bool enable, int count)
{
    d->setFrozenColumns(side, enable, count);
}

int ZrTableView::getFrozenColumns(int side) const
{
    return d->frozenColumns.value(side);
}

void ZrTableView::setRowHeight(int row, int heightPx)
{
    d->table->setRowHeight(row, heightPx);
}

void ZrTableView::setRowDefaultHeight(int heightPx)
{
    d->rowDefaultHeight = heightPx;
    if (heightPx > 0)
        d->table->setDefaultRowHeight(heightPx);
}

int ZrTableView::itemHeight() const
{
    return d->itemHeight;
}

void ZrTableView::setItemHeight(const int &heightPx)
{
    d->setItemHeight(heightPx);
}

void ZrTableView::setItemWidget(int row, int column, QWidget *widget, bool adjustRowHeight)
{
    const QModelIndex index = column < 0 ? QModelIndex() : d->model->getIndex(row, column);
    if (!index.isValid())
        return;
    const int heightPx = widget ? widget->height() : 0; // before the cell gives it its own
    d->table->setIndexWidget(index, widget);
    d->model->setIndexWidget(row, column, widget);
    if (adjustRowHeight && widget)
        d->table->setRowHeight(index.row(), heightPx);
}

QWidget *ZrTableView::indexWidget(int row, int column) const
{
    const QModelIndex index = column < 0 ? QModelIndex() : d->model->getIndex(row, column);
    return index.isValid() ? d->table->indexWidget(index) : nullptr;
}

// --- Sorting, filtering, summary ---

void ZrTableView::setViewSortable(bool sortable)
{
    d->header->setSortbale(sortable);
    d->model->getModelPrivate()->viewSortable = sortable;
}

void ZrTableView::setColumnSortable(int column, bool sortable)
{
    d->setColumnSortable(column, sortable);
}

void ZrTableView::setSortIndicator(int column, Qt::SortOrder order)
{
    if (!d->header->isSortIndicatorShown())
        d->header->setSortIndicatorShown(true);
    d->header->setSortIndicator(ZrModelIndex::getLogicColumn(column, this), order);
}

int ZrTableView::sortIndicatorSection() const
{
    return d->header->sortIndicatorSection() - d->columnOffset();
}

Qt::SortOrder ZrTableView::sortIndicatorOrder() const
{
    return d->header->sortIndicatorOrder();
}

void ZrTableView::setViewFilterable(bool filterable)
{
    d->setViewFilterable(filterable);
}

void ZrTableView::setViewFilterbuttonAlwayVisiable(bool visible)
{
    if (!d->model->getModelPrivate()->filterable) {
        qDebug() << "you must set View Filterable ";
        return;
    }
    d->header->setViewFilterbuttonAlwayVisiable(visible);
    d->table->updateHeads();
}

void ZrTableView::setColumnFilterable(const int &column, bool filterable)
{
    d->setColumnFilterable(column, filterable);
}

void ZrTableView::setColumnFilterDataList(const int &column, const QList<QVariantMap> &candidates)
{
    d->setColumnFilterDataList(column, candidates);
}

void ZrTableView::setColumnMatchFilterFunction(const int &column, ZrColumnMatchFunction function)
{
    if (!d->isHeadColumn(column))
        return;
    d->model->setColumnMatchFilterFunction(column, function);
    d->updateSummary();
}

void ZrTableView::removeColumnMatchFilterFunction(const int &column)
{
    d->model->removeColumnMatchFilterFunction(column);
    d->updateSummary();
}

void ZrTableView::resetViewCurrentFilterList(const ViewFilterList &filters)
{
    d->model->resetViewCurrentFilterList(filters);
    d->table->updateHeads();
    d->updateSummary();
}

void ZrTableView::setSummaryLineEnable(bool enable, const QList<int> &noSumColumns)
{
    d->summary->setEnabled(enable, noSumColumns);
}

void ZrTableView::setSumGenerateFunction(const int &column, ZrSumGenerateFunction function)
{
    d->summary->setGenerator(column, function);
}

void ZrTableView::removeSumGenerateFunction(const int &column)
{
    d->summary->removeGenerator(column);
}

void ZrTableView::updateSumRecordData(const RecordData &record)
{
    d->summary->setOverride(record);
}

ZrHeaderView *ZrTableView::getSummaryHeadView() const
{
    return d->summaryHeader;
}

// --- Parts and plain members of the table ---

FreezeTableView *ZrTableView::getTableView() const
{
    return d->table;
}

ZrTableModel *ZrTableView::getZrTableModel() const
{
    return d->model;
}

ZrHeaderView *ZrTableView::getZrTableHorizontalHeader() const
{
    return d->header;
}

ZrItemModelDeletage *ZrTableView::getZrTableItemDelegate() const
{
    return d->delegate;
}

void ZrTableView::setZrTableModel(ZrTableModel *model)
{
    d->installModel(model);
}

void ZrTableView::setZrTableHorizontalHeader(ZrHeaderView *header)
{
    d->installHeader(header);
}

void ZrTableView::setZrTableItemDelegate(ZrItemModelDeletage *delegate)
{
    d->installDelegate(delegate);
}

void ZrTableView::setSelectionBehavior(QAbstractItemView::SelectionBehavior behavior)
{
    d->table->setSelectionBehavior(behavior);
}

void ZrTableView::setSelectionMode(QAbstractItemView::SelectionMode mode)
{
    d->table->setSelectionMode(mode);
}

void ZrTableView::openPersistentEditor(const QModelIndex &index)
{
    d->table->openPersistentEditor(index);
}

void ZrTableView::closePersistentEditor(const QModelIndex &index)
{
    d->table->closePersistentEditor(index);
}

void ZrTableView::setSpan(int row, int column, int rowSpan, int columnSpan)
{
    d->table->setSpan(row, column, rowSpan, columnSpan);
}

void ZrTableView::clearSpans()
{
    d->table->clearSpans();
}

int ZrTableView::rowSpan(int row, int column) const
{
    return d->table->rowSpan(row, column);
}

int ZrTableView::columnSpan(int row, int column) const
{
    return d->table->columnSpan(row, column);
}
