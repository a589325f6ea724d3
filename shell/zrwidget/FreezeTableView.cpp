#include "FreezeTableView.h"

#include "ZrFrozenPanes.h"
#include "ZrFrozenSide.h"
#include "ZrScrollCoupling.h"
#include "ZrTableView_p.h"

#include <QtGui/QKeyEvent>
#include <QtWidgets/QHeaderView>
#include <QtWidgets/QScrollBar>

namespace {

ZrHeaderHost::Side sideOf(int side)
{
    return side == int(ZrHeaderHost::Side::Left) ? ZrHeaderHost::Side::Left : ZrHeaderHost::Side::Right;
}

} // namespace

FreezeTableView::FreezeTableView(QWidget *parent)
    : ZrLiveTable(parent)
    , m_panes(new ZrFrozenPanes(this, &m_grid))
{
    ZrLiveTable::setAlternatingRowColors(true);
    m_panes->attachMainHead();
    connect(verticalHeader(), &QHeaderView::sectionResized, this, &FreezeTableView::updateSectionHeight);
    connect(this, &QAbstractItemView::pressed, this, &FreezeTableView::slotClicked);
    // On ourselves too: Up and Down mean the same in all parts.
    installEventFilter(this);
}

// The panes' grid dies before the QObject children do.
FreezeTableView::~FreezeTableView()
{
    delete m_panes;
}

void FreezeTableView::setTablePrivate(ZrTableViewPrivate *tablePrivate)
{
    m_panes->setHost(tablePrivate);
}

void FreezeTableView::setFrozenSide(int side, bool enable)
{
    m_panes->setSideEnabled(sideOf(side), enable);
}

QTableView *FreezeTableView::frozenTable(int side) const
{
    return qobject_cast<QTableView *>(m_panes->side(sideOf(side))->view());
}

void FreezeTableView::relayFrozenTables()
{
    m_panes->relay();
}

void FreezeTableView::setModel(QAbstractItemModel *model)
{
    ZrLiveTable::setModel(model);
    m_panes->attachModel();
}

void FreezeTableView::setHorizontalHeader(QHeaderView *header)
{
    if (!header || header == horizontalHeader())
        return;
    ZrLiveTable::setHorizontalHeader(header);
    m_panes->attachMainHead();
    m_panes->relay();
}

void FreezeTableView::setColumnHidden(int column, bool hide)
{
    ZrLiveTable::setColumnHidden(column, hide);
    m_panes->relay();
}

void FreezeTableView::setCurrentIndex(const QModelIndex &index)
{
    ZrLiveTable::setCurrentIndex(index);
    m_panes->makeCurrentInPanes(index);
}

void FreezeTableView::setSelectionMode(QAbstractItemView::SelectionMode mode)
{
    ZrLiveTable::setSelectionMode(mode);
    m_panes->forEachPane([mode](QAbstractItemView *pane) { pane->setSelectionMode(mode); });
}

void FreezeTableView::setSelectionBehavior(QAbstractItemView::SelectionBehavior behavior)
{
    ZrLiveTable::setSelectionBehavior(behavior);
    m_panes->forEachPane([behavior](QAbstractItemView *pane) { pane->setSelectionBehavior(behavior); });
}

void FreezeTableView::setVerticalScrollMode(QAbstractItemView::ScrollMode mode)
{
    ZrLiveTable::setVerticalScrollMode(mode);
    m_panes->forEachPane([mode](QAbstractItemView *pane) { pane->setVerticalScrollMode(mode); });
}

void FreezeTableView::setHorizontalScrollMode(QAbstractItemView::ScrollMode mode)
{
    ZrLiveTable::setHorizontalScrollMode(mode);
    m_panes->forEachPane([mode](QAbstractItemView *pane) { pane->setHorizontalScrollMode(mode); });
}

void FreezeTableView::setItemDelegate(QAbstractItemDelegate *delegate)
{
    ZrLiveTable::setItemDelegate(delegate);
    m_panes->forEachPane([delegate](QAbstractItemView *pane) { pane->setItemDelegate(delegate); });
}

void FreezeTableView::setAlternatingRowColors(bool enable)
{
    ZrLiveTable::setAlternatingRowColors(enable);
    m_panes->forEachPane([enable](QAbstractItemView *pane) { pane->setAlternatingRowColors(enable); });
}

void FreezeTableView::setDefaultSectionSize(int widthPx)
{
    horizontalHeader()->setDefaultSectionSize(widthPx);
    m_panes->forEachPane(
        [this, widthPx](QAbstractItemView *pane) { m_grid.head(pane)->setDefaultSectionSize(widthPx); });
    m_panes->relay();
}

void FreezeTableView::setMinimumSectionSize(int widthPx)
{
    horizontalHeader()->setMinimumSectionSize(widthPx);
    m_panes->forEachPane(
        [this, widthPx](QAbstractItemView *pane) { m_grid.head(pane)->setMinimumSectionSize(widthPx); });
    m_panes->relay();
}

void FreezeTableView::setMinimumHeadHeight(int heightPx)
{
    horizontalHeader()->setMinimumHeight(heightPx);
    m_panes->forEachPane([this, heightPx](QAbstractItemView *pane) {
        m_grid.head(pane)->setMinimumHeight(heightPx);
        pane->doItemsLayout();
    });
    // The room above the rows is taken at a layout only.
    doItemsLayout();
    m_panes->place();
}

void FreezeTableView::setHeadHidden(bool hide)
{
    horizontalHeader()->setHidden(hide);
    m_panes->forEachPane([this, hide](QAbstractItemView *pane) { m_grid.head(pane)->setHidden(hide); });
    m_panes->place();
}

void FreezeTableView::setDefaultRowHeight(int heightPx)
{
    verticalHeader()->setDefaultSectionSize(heightPx);
    for (const int side : {1, 2}) {
        if (QTableView *const table = frozenTable(side))
            table->verticalHeader()->setDefaultSectionSize(heightPx);
    }
}

void FreezeTableView::updateHeads()
{
    horizontalHeader()->viewport()->update();
    m_panes->forEachPane([this](QAbstractItemView *pane) { m_grid.head(pane)->viewport()->update(); });
}

void FreezeTableView::updateParts()
{
    viewport()->update();
    m_panes->forEachPane([](QAbstractItemView *pane) { pane->viewport()->update(); });
    updateHeads();
}

void FreezeTableView::scrollTo(const QModelIndex &index, ScrollHint hint)
{
    if (index.column() >= 0)
        ZrLiveTable::scrollTo(index, hint);
}

bool FreezeTableView::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::KeyPress) {
        QAbstractItemView *const part = qobject_cast<QAbstractItemView *>(watched);
        // A list or table that a caller put into a cell is no part of ours.
        const bool isPart = part && (part == this || m_panes->paneViews().contains(part));
        if (isPart && m_panes->handleKey(static_cast<QKeyEvent *>(event), part))
            return true;
    }
    return ZrLiveTable::eventFilter(watched, event);
}

void FreezeTableView::currentChanged(const QModelIndex &current, const QModelIndex &previous)
{
    ZrLiveTable::currentChanged(current, previous);
    // Also when nobody clicked: after a reset the model makes the row current in this table alone.
    if (current.isValid())
        m_panes->makeCurrentInPanes(current);
    emit currentIndexChanged(current);
}

void FreezeTableView::updateSectionWidth(int logicalIndex, int oldSize, int newSize)
{
    Q_UNUSED(oldSize)
    QHeaderView *const head = qobject_cast<QHeaderView *>(sender());
    m_panes->sectionResized(head ? head : horizontalHeader(), logicalIndex, newSize);
}

void FreezeTableView::updateSectionHeight(int logicalIndex, int oldSize, int newSize)
{
    Q_UNUSED(oldSize)
    for (const int side : {1, 2}) {
        if (QTableView *const table = frozenTable(side))
            table->verticalHeader()->resizeSection(logicalIndex, newSize);
    }
}

void FreezeTableView::slotClicked(QModelIndex index)
{
    const QAbstractItemView *const part = qobject_cast<QAbstractItemView *>(sender());
    m_panes->rowPressed(index, part ? part : this);
}

void FreezeTableView::slotSortIndicatorChanged(int logicalIndex, Qt::SortOrder order)
{
    Q_UNUSED(logicalIndex)
    Q_UNUSED(order)
    const QHeaderView *const head = qobject_cast<QHeaderView *>(sender());
    m_panes->sortIndicatorChanged(head ? head : horizontalHeader());
}

void FreezeTableView::setValue(int value)
{
    ZrScrollCoupling::apply(value, qobject_cast<QScrollBar *>(sender()), horizontalScrollBar());
}

QModelIndex FreezeTableView::moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers)
{
    const QModelIndex target = ZrLiveTable::moveCursor(action, modifiers);
    const QTableView *const left = frozenTable(int(ZrHeaderHost::Side::Left));
    if (action != MoveLeft || !left || target.column() <= 0)
        return target;
    const int leftEdgePx = visualRect(target).left();
    // Under the left table the cell could not be seen; the base takes it for visible.
    if (leftEdgePx < left->width()) {
        QScrollBar *const bar = horizontalScrollBar();
        bar->setValue(bar->value() + leftEdgePx - left->columnWidth(0));
    }
    return target;
}

void FreezeTableView::keyPressEvent(QKeyEvent *event)
{
    const QPersistentModelIndex before = currentIndex();
    ZrLiveTable::keyPressEvent(event);
    // Auto scroll is off, because a live grid must not jump; a key of the user may move it.
    if (currentIndex().isValid() && before != currentIndex())
        scrollTo(currentIndex());
}

void FreezeTableView::resizeEvent(QResizeEvent *event)
{
    ZrLiveTable::resizeEvent(event);
    m_panes->place();
}
