#include "ZrTableView_p.h"

#include "FreezeTableView.h"
#include "ZrGroupedHeadHeight.h"
#include "ZrHeaderView.h"
#include "ZrItemModelDeletage.h"
#include "ZrRoleKeys.h"
#include "ZrRowHeights.h"
#include "ZrTableColumns.h"
#include "ZrTableModel_p.h"
#include "ZrTableSummary.h"

#include <QtCore/QDebug>
#include <QtCore/QPointer>
#include <QtWidgets/QVBoxLayout>

ZrTableViewPrivate::ZrTableViewPrivate(ZrTableView *facade)
    : QObject(facade)
    , view(facade)
    , columns(new ZrTableColumns(this))
    , summary(new ZrTableSummary(this))
    , filterOpener(ZrFilterOpener::make(this))
{
}

ZrTableViewPrivate::~ZrTableViewPrivate()
{
    // While our fields live: it reads them as it goes.
    delete summary;
    summary = nullptr;
    // The table outlives us by a moment and must not ask any more.
    if (table)
        table->setTablePrivate(nullptr);
}

// --- Building and replacing the parts ---

void ZrTableViewPrivate::createParts(QWidget *parentArgument)
{
    QVBoxLayout *const layout = new QVBoxLayout(view);
    layout->setSpacing(0);
    layout->setContentsMargins(0, 0, 0, 0);
    table = new FreezeTableView(parentArgument);
    table->verticalHeader()->hide();
    connectTable();
    layout->addWidget(table);
    bottomLayout = new QHBoxLayout;
    bottomLayout->setSpacing(0);
    bottomLayout->setContentsMargins(0, 0, 0, 0);
    layout->addLayout(bottomLayout);
    findPlugin(parentArgument);
    header = new ZrHeaderView(Qt::Horizontal, table);
    header->setSortbale(true);
    model = new ZrTableModel(table);
    delegate = new ZrItemModelDeletage(table);
    createGrid();
    connectModelAndHeader();
}

void ZrTableViewPrivate::connectTable()
{
    connect(table, &QAbstractItemView::pressed, view, &ZrTableView::pressed);
    connect(table, &QAbstractItemView::clicked, view, &ZrTableView::clicked);
    connect(table, &QAbstractItemView::doubleClicked, view, &ZrTableView::doubleClicked);
    connect(table, &FreezeTableView::currentIndexChanged, view, &ZrTableView::currentIndexChanged);
    connect(table, &QAbstractItemView::activated, view, &ZrTableView::activated);
    connect(table, &QAbstractItemView::entered, view, &ZrTableView::entered);
    connect(table, &QAbstractItemView::viewportEntered, view, &ZrTableView::viewportEntered);
    connect(table, &QAbstractItemView::iconSizeChanged, view, &ZrTableView::iconSizeChanged);
    connect(table, &QAbstractItemView::clicked, this, &ZrTableViewPrivate::slotClickedIndexModel);
}

void ZrTableViewPrivate::findPlugin(QWidget *parentArgument)
{
    ZrViewRegistry *const registry = ZrViewRegistry::of(parentArgument);
    if (!registry) {
        qDebug() << "ZrTableView::ZrTableView"
                 << "no plugin found" << view->objectName();
        return;
    }
    plugin = ZrViewRegistryPointer(registry);
    registry->addPluginView(view);
    connect(this, &ZrTableViewPrivate::signalRemovePluginView, this, [this](ZrViewBase *leaving) {
        if (plugin)
            plugin->removePluginView(leaving);
    });
}

void ZrTableViewPrivate::createGrid()
{
    groupedHeight = new ZrGroupedHeadHeight(table, &headHeightTimer, &headHeightDoubled, this);
    table->setTablePrivate(this);
    table->setShowGrid(false);
    table->setFrameShape(QFrame::NoFrame);
    table->setModel(model);
    table->setHorizontalHeader(header);
    table->setItemDelegate(delegate);
    table->setSelectionMode(QAbstractItemView::SingleSelection);
    table->setVerticalScrollMode(QAbstractItemView::ScrollPerItem);
    table->setHorizontalScrollMode(QAbstractItemView::ScrollPerPixel);
    table->setAutoScroll(false);
    // The style's own minimum, made for texts in a vertical head, would win over a low item height.
    table->verticalHeader()->setMinimumSectionSize(1);
    table->setDefaultRowHeight(itemHeight);
    view->setFocusProxy(table);
}

void ZrTableViewPrivate::connectModelAndHeader()
{
    connect(header, &QHeaderView::sortIndicatorChanged, model, &ZrTableModel::slotSortIndicatorChanged);
    connect(header, &QHeaderView::sortIndicatorChanged, view, &ZrTableView::signalSortIndicatorChanged);
    connect(model, &ZrTableModel::stateChanged, header, &ZrHeaderView::onStateChanged);
    connect(header, &ZrHeaderView::stateChanged, model, &ZrTableModel::onStateChanged);
    connect(header, &QHeaderView::sectionResized, this, &ZrTableViewPrivate::slotOnTableHeadSectionResized);
    connect(model, &ZrTableModel::signalRowCheckStateChanged, view, &ZrTableView::signalRowCheckStateChanged);
    connect(header, &ZrHeaderView::stateChanged, view, &ZrTableView::signalHeadCheckStateChanged);
    connect(header, &ZrHeaderView::signalFilterListChanged, view, &ZrTableView::signalFilterListChanged);
}

void ZrTableViewPrivate::setAlwaysDisplayLatest(bool latest)
{
    alwaysDisplayLatest = latest;
    disconnect(model, &QAbstractItemModel::rowsInserted, table, &QAbstractItemView::scrollToBottom);
    if (latest)
        connect(model, &QAbstractItemModel::rowsInserted, table, &QAbstractItemView::scrollToBottom);
}

void ZrTableViewPrivate::installModel(ZrTableModel *newModel)
{
    if (!newModel || newModel == model)
        return;
    ZrTableModel *const old = model;
    old->disconnect(header);
    old->disconnect(view);
    header->disconnect(old);
    header->disconnect(view);
    // That one alone: the head also tells us of moved columns, whatever the model.
    disconnect(header, &QHeaderView::sectionResized, this, nullptr);
    newModel->setParent(table);
    newModel->setCheckBoxShow(checkBoxShown);
    serialOrder = newModel->serialNumberColumnPropety();
    model = newModel;
    table->setModel(newModel);
    connectModelAndHeader();
    disconnect(old, &QAbstractItemModel::rowsInserted, table, &QAbstractItemView::scrollToBottom);
    setAlwaysDisplayLatest(alwaysDisplayLatest); // the caller asked the view, not the model
    old->deleteLater();
    updateSummary();
}

void ZrTableViewPrivate::installHeader(ZrHeaderView *newHeader)
{
    if (!newHeader || newHeader == header)
        return;
    const bool wasMovable = header->sectionsMovable();
    const QList<int> order = columns->shownOrder();
    ZrHeaderView *const old = header;
    old->disconnect(this);
    old->disconnect(view);
    old->disconnect(model);
    model->disconnect(old);
    model->disconnect(view);
    // The call may come from the old head's own signal: it leaves the table, or the table would delete it
    // now.
    old->hide();
    old->setParent(view);
    old->deleteLater();
    newHeader->setParent(table);
    newHeader->setCheckBoxShow(checkBoxShown);
    header = newHeader;
    table->setHorizontalHeader(newHeader);
    connectModelAndHeader();
    const bool isMovable = wasMovable || newHeader->sectionsMovable();
    newHeader->setSectionsMovable(false);
    columns->setMovable(isMovable);
    if (headLineColor.isValid())
        newHeader->setGridColor(headLineColor);
    columns->dressHeader(order);
}

void ZrTableViewPrivate::installDelegate(ZrItemModelDeletage *newDelegate)
{
    if (!newDelegate || newDelegate == delegate)
        return;
    ZrItemModelDeletage *const old = delegate;
    newDelegate->setParent(table);
    newDelegate->setCheckBoxShow(checkBoxShown);
    delegate = newDelegate;
    if (gridLineColor.isValid())
        newDelegate->setItemGridColor(gridLineColor);
    newDelegate->SetCheckedRowHighlight(checkedRowHighlight, checkedColor);
    refreshPictures();
    table->setItemDelegate(newDelegate);
    old->deleteLater();
}

// --- Verbs for the family ---

int ZrTableViewPrivate::columnOffset() const
{
    return (checkBoxShown ? 1 : 0) + (serialOrder >= ZrViewModel::SerialNumAscending ? 1 : 0);
}

bool ZrTableViewPrivate::isHeadColumn(int logicalColumn) const
{
    for (const QMap<QString, QVariant> &head : headList) {
        if (head.value(HEAD_COLUMNINDEX).toInt() == logicalColumn)
            return true;
    }
    qDebug() << "columnFieldIndex is no valid";
    return false;
}

void ZrTableViewPrivate::updateSummary()
{
    summary->markStale();
}

void ZrTableViewPrivate::updateModels()
{
    model->update();
    if (summaryModel)
        summaryModel->update();
}

void ZrTableViewPrivate::tellColumnShown(int viewColumn, bool shown)
{
    view->columnShown(viewColumn, shown);
}

bool ZrTableViewPrivate::wouldCutGroup(int side, int count) const
{
    const int boundary = side == int(Side::Left) ? count : model->columnCount() - count;
    const auto groupAt = [this](int visual) {
        return model->headerData(header->logicalIndex(visual), Qt::Horizontal, ZrGroupIdRole).toString();
    };
    const QString group = groupAt(boundary);
    return !group.isEmpty() && group == groupAt(boundary - 1);
}

void ZrTableViewPrivate::setFrozenColumns(int side, bool enable, int count)
{
    const bool isSide = side == int(Side::Left) || side == int(Side::Right);
    if (!isSide || count > model->columnCount())
        return;
    if (enable && (count < 1 || wouldCutGroup(side, count)))
        return;
    if (enable)
        frozenColumns.insert(side, count);
    else
        frozenColumns.remove(side);
    table->setFrozenSide(side, enable);
    // A new side table has one band only until it is told.
    if (header->height() > 0)
        table->setMinimumHeadHeight(header->height());
}

void ZrTableViewPrivate::refreshPictures()
{
    for (ZrItemModelDeletage *const painter : {delegate, summaryDelegate}) {
        if (!painter)
            continue;
        painter->setcheckPath(checkPath);
        painter->setUncheckPath(uncheckPath);
        painter->setTristatePath(tristatePath);
    }
    table->updateParts();
}

void ZrTableViewPrivate::setHeadLineColor(const QColor &color)
{
    headLineColor = color;
    header->setGridColor(color);
}

void ZrTableViewPrivate::setGridLineColor(const QColor &color)
{
    gridLineColor = color;
    delegate->setItemGridColor(color);
    if (summaryDelegate)
        summaryDelegate->setItemGridColor(color);
    table->updateParts();
}

void ZrTableViewPrivate::setItemHeight(int heightPx)
{
    const ZrRowHeights ownHeights(table->verticalHeader(), itemHeight);
    itemHeight = heightPx;
    if (rowDefaultHeight == 0) {
        table->setDefaultRowHeight(heightPx);
        ownHeights.restore(table->verticalHeader());
    }
    summary->setLineHeight();
}

void ZrTableViewPrivate::setCheckBoxShow(bool shown)
{
    columns->changePseudoColumns([this, shown] {
        checkBoxShown = shown;
        model->setCheckBoxShow(shown);
        header->setCheckBoxShow(shown);
        delegate->setCheckBoxShow(shown);
        if (!summaryModel)
            return;
        summaryModel->setCheckBoxShow(shown);
        summaryHeader->setCheckBoxShow(shown);
        summaryDelegate->setCheckBoxShow(shown);
    });
    updateSummary();
}

void ZrTableViewPrivate::setSerialOrder(ZrViewModel::SerialNumColumnOrder order)
{
    columns->changePseudoColumns([this, order] {
        model->setSerialNumberColumnPropety(order);
        serialOrder = order;
        if (summaryModel && order > ZrViewModel::SerialNumNone)
            summaryModel->setSerialNumberColumnPropety(order);
    });
}

void ZrTableViewPrivate::setViewFilterable(bool filterable)
{
    if (model->getKeyColumn().isEmpty()) {
        qDebug() << "KeyColum is null, can not filter";
        return;
    }
    model->getModelPrivate()->setFilterable(filterable);
    header->setViewFilterable(filterable);
    table->updateHeads();
    updateSummary();
}

void ZrTableViewPrivate::setColumnFilterable(int column, bool filterable)
{
    if (!isHeadColumn(column))
        return;
    if (model->getKeyColumn().isEmpty()) {
        qDebug() << "KeyColum is null, can not filter";
        return;
    }
    header->setViewFilterable(column, filterable);
    if (filterable) {
        model->getModelPrivate()->setFilterable(true);
        updateSummary();
    } else {
        // Filter mode stays: another column may still be filtered.
        model->getModelPrivate()->removeColumnFilterData(column);
    }
    table->updateHeads();
}

void ZrTableViewPrivate::setColumnFilterDataList(int column, const QList<QVariantMap> &candidates)
{
    if (!isHeadColumn(column))
        return;
    if (model->getKeyColumn().isEmpty()) {
        qDebug() << "KeyColum is null, can not filter";
        return;
    }
    RecordDataList records;
    for (const QVariantMap &candidate : candidates)
        records.append(RecordData{{0, candidate}});
    model->getModelPrivate()->setColumnFilterData(column, records);
}

void ZrTableViewPrivate::setColumnSortable(int column, bool sortable)
{
    const int position = ZrTableColumns::positionOf(column, headList);
    qDebug() << "ZrTableView::setColumnSortable" << position << sortable;
    if (position < 0)
        return;
    // Both by the position in the head list. Head and model look them up by other numbers, so that with
    // pseudo-columns or other "Head_ColumnIndex" numbers another column answers; plugins count on that.
    header->setColumnSortable(position, sortable);
    model->getModelPrivate()->perColumnSortable.insert(position, sortable);
}

void ZrTableViewPrivate::setCaption(const QString &caption)
{
    view->SetViewCaption(caption);
    table->setAccessibleName(caption);
    header->setAccessibleName(caption);
    if (summaryTable)
        summaryTable->setAccessibleName(ZrTableView::tr("Summary of %1").arg(caption));
    if (!plugin)
        return;
    if (const auto hidden = plugin->columnVisibleProperty(caption))
        columns->setHidden(*hidden);
    if (const auto order = plugin->columnOrderProperty(caption))
        columns->setOrderProperty(*order);
}

// --- ZrHeaderHost ---

ZrHeaderHost::Kind ZrTableViewPrivate::headKind() const
{
    return Kind::Table;
}

QUrl ZrTableViewPrivate::headPicture(Picture picture) const
{
    switch (picture) {
    case Picture::Check:
        return checkPath;
    case Picture::Uncheck:
        return uncheckPath;
    case Picture::Tristate:
        return tristatePath;
    case Picture::Filter:
        return filterPath;
    case Picture::Filtered:
        return filteredPath;
    case Picture::FilterHover:
        return filterHoverPath;
    }
    return {};
}

int ZrTableViewPrivate::frozenCount(Side side) const
{
    return frozenColumns.value(int(side));
}

int ZrTableViewPrivate::pseudoColumnCount() const
{
    return columnOffset();
}

bool ZrTableViewPrivate::isColumnFiltered(int logicalColumn) const
{
    return !model->getModelPrivate()->viewFilterList.value(logicalColumn).isEmpty();
}

void ZrTableViewPrivate::openFilter(ZrHeaderView *head, int logicalColumn, const QRect &buttonRect)
{
    // A column that has seen no data has no type to compare by.
    if (model->getModelPrivate()->columnTypes.contains(logicalColumn))
        filterOpener->open(head, logicalColumn, buttonRect);
}

void ZrTableViewPrivate::filterChoiceChanged(ZrHeaderView *head)
{
    // Whoever is told of the filter may end the grid.
    const QPointer<ZrTableView> self(view);
    const QPointer<ZrHeaderView> asked(head);
    filterOpener->takeChoice(head);
    if (!self)
        return;
    updateSummary();
    table->updateHeads();
    const ViewFilterList filters = model->getViewCurrentFilterList();
    const QPointer<ZrHeaderView> main(header);
    if (asked)
        emit asked->signalFilterListChanged(filters);
    // Callers hear of filters from the main head only; a side head speaks through it.
    if (main && main != asked)
        emit main->signalFilterListChanged(filters);
}

// --- ZrFrozenHost ---

int ZrTableViewPrivate::frozenColumnCount(ZrHeaderHost::Side side) const
{
    return frozenCount(side);
}

bool ZrTableViewPrivate::isColumnHiddenByHead(int viewColumn) const
{
    const int position = viewColumn - columnOffset();
    if (position < 0 || position >= headList.size())
        return false;
    return !headList.at(position).value(HEAD_SHOWROLE, true).toBool();
}

void ZrTableViewPrivate::orderHead(QHeaderView *head)
{
    columns->applyShownOrder(head);
}

// --- Slots ---

void ZrTableViewPrivate::slotClickedIndexModel(QModelIndex index)
{
    if (!checkBoxShown || !index.isValid() || (index.column() != 0 && !view->GetRowCheckOnClickEnable()))
        return;
    const QModelIndex first = index.sibling(index.row(), 0);
    const QVariant isEnabled = first.data(ZrCheckEnabledRole);
    if (isEnabled.isValid() && !isEnabled.toBool())
        return;
    model->updateCheckBoxData(first, !first.data(ZrRawRole).toBool());
    if (checkedRowHighlight)
        emit model->dataChanged(first, first.sibling(first.row(), model->columnCount() - 1));
}

void ZrTableViewPrivate::slotHeadSectionMoved(int logicalIndex, int oldVisualIndex, int newVisualIndex)
{
    columns->headSectionMoved(logicalIndex, oldVisualIndex, newVisualIndex);
}

void ZrTableViewPrivate::slotOnTableHeadSectionResized(int logicalIndex, int oldSize, int newSize)
{
    Q_UNUSED(oldSize)
    if (summaryHeader && logicalIndex < summaryHeader->count())
        summaryHeader->resizeSection(logicalIndex, newSize);
}
