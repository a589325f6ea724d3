#include "ZrFrozenSide.h"

#include "ZrHeaderView.h"

#include <QtWidgets/QScrollBar>

ZrFrozenSide::ZrFrozenSide(ZrHeaderHost::Side side, QAbstractItemView *mainView, const ZrFrozenGrid *grid,
                           QObject *panes)
    : QObject(panes)
    , m_side(side)
    , m_main(mainView)
    , m_grid(grid)
{
}

ZrFrozenSide::~ZrFrozenSide() = default;

void ZrFrozenSide::create(ZrFrozenHost *host)
{
    m_view = m_grid->createSide(m_main->parentWidget());
    m_view->setObjectName(m_side == ZrHeaderHost::Side::Left ? QStringLiteral("TableLeftFrozenView")
                                                             : QStringLiteral("TableRightFrozenView"));
    m_view->setAlternatingRowColors(m_main->alternatingRowColors());
    m_view->setFrameShape(QFrame::NoFrame);
    m_view->setModel(m_main->model());
    copyHead(host);
    m_view->setItemDelegate(m_main->itemDelegate());
    hideColumns(host);
    copyWidths();
    copyBehaviour();
    m_grid->copyRowLook(m_main, m_view);
}

void ZrFrozenSide::remove()
{
    if (!m_view)
        return;
    // Dead to the main view from now on, although it lives until its own signal has returned.
    m_view->disconnect();
    head()->disconnect();
    m_view->verticalScrollBar()->disconnect(m_main->verticalScrollBar());
    m_main->verticalScrollBar()->disconnect(m_view->verticalScrollBar());
    m_view->hide();
    m_view->deleteLater();
    m_view = nullptr;
}

QHeaderView *ZrFrozenSide::head() const
{
    return m_view ? m_grid->head(m_view) : nullptr;
}

void ZrFrozenSide::copyHead(ZrFrozenHost *host)
{
    QHeaderView *const mainHead = m_grid->head(m_main);
    if (const ZrHeaderView *const zrHead = qobject_cast<const ZrHeaderView *>(mainHead)) {
        m_grid->setHead(m_view, new ZrHeaderView(zrHead));
        if (host)
            host->orderHead(head());
    }
    QHeaderView *const own = head();
    own->setStretchLastSection(false); // the frozen columns have the widths of the main head, no more
    own->setDefaultSectionSize(mainHead->defaultSectionSize());
    own->setMinimumSectionSize(mainHead->minimumSectionSize());
    own->setMinimumHeight(mainHead->minimumHeight());
    own->setVisible(!mainHead->isHidden());
    if (m_side == ZrHeaderHost::Side::Right)
        own->setSectionResizeMode(QHeaderView::Fixed);
}

void ZrFrozenSide::copyBehaviour()
{
    m_view->setSelectionMode(m_main->selectionMode());
    m_view->setSelectionBehavior(m_main->selectionBehavior());
    m_view->setVerticalScrollMode(m_main->verticalScrollMode());
    m_view->setHorizontalScrollMode(m_main->horizontalScrollMode());
    m_view->setIconSize(m_main->iconSize());
    // As in the main view: a grid under a live stream does not jump to its current row.
    m_view->setAutoScroll(m_main->hasAutoScroll());
    m_view->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    if (m_side == ZrHeaderHost::Side::Left)
        m_view->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_view->setAccessibleName(m_main->accessibleName());
}

bool ZrFrozenSide::isFrozenPosition(int visual, int frozenCount) const
{
    if (m_side == ZrHeaderHost::Side::Left)
        return visual < frozenCount;
    return visual >= head()->count() - frozenCount;
}

bool ZrFrozenSide::holdsSection(int section, int frozenCount) const
{
    const int visual = head() ? head()->visualIndex(section) : -1;
    return visual >= 0 && isFrozenPosition(visual, frozenCount);
}

void ZrFrozenSide::hideColumns(const ZrFrozenHost *host)
{
    if (!m_view)
        return;
    const QHeaderView *const own = head();
    const int frozenCount = host ? host->frozenColumnCount(m_side) : 0;
    for (int visual = 0; visual < own->count(); ++visual) {
        const int column = own->logicalIndex(visual);
        const bool isHidden =
            !isFrozenPosition(visual, frozenCount) || (host && host->isColumnHiddenByHead(column));
        if (own->isSectionHidden(column) != isHidden)
            m_grid->setColumnHidden(m_view, column, isHidden);
    }
}

void ZrFrozenSide::copyWidths()
{
    if (!m_view)
        return;
    const QHeaderView *const mainHead = m_grid->head(m_main);
    QHeaderView *const own = head();
    const int count = qMin(own->count(), mainHead->count());
    for (int section = 0; section < count; ++section) {
        // A hidden section has no size to copy; its own one comes back when it is shown.
        if (!mainHead->isSectionHidden(section) &&
            own->sectionSize(section) != mainHead->sectionSize(section))
            own->resizeSection(section, mainHead->sectionSize(section));
    }
}

int ZrFrozenSide::columnsWidthPx(int frozenCount) const
{
    const QHeaderView *const own = head();
    if (!own)
        return 0;
    int widthPx = 0;
    for (int visual = 0; visual < own->count(); ++visual) {
        if (isFrozenPosition(visual, frozenCount))
            widthPx += own->sectionSize(own->logicalIndex(visual));
    }
    return widthPx;
}

QRect ZrFrozenSide::geometryPx(int frozenCount) const
{
    const QHeaderView *const mainHead = m_grid->head(m_main);
    const int headPx = mainHead->isHidden() ? 0 : mainHead->height();
    const int heightPx = m_main->viewport()->height() + headPx;
    const int columnsPx = columnsWidthPx(frozenCount);
    const int framePx = m_main->frameWidth();
    if (m_side == ZrHeaderHost::Side::Left)
        return {m_main->x() + framePx + m_grid->leftInsetPx(m_main), m_main->y() + framePx, columnsPx,
                heightPx};
    // The right pane lies over the main view's own vertical bar and so brings one itself.
    const QScrollBar *const bar = m_view->verticalScrollBar();
    const int widthPx = columnsPx + (bar->isVisible() ? bar->width() : 0);
    return {m_main->x() + m_main->width() - widthPx - framePx, m_main->y() + framePx, widthPx, heightPx};
}

void ZrFrozenSide::place(int frozenCount)
{
    if (!m_view)
        return;
    const QRect panePx = geometryPx(frozenCount);
    // As wide as the whole pane; on the right it goes on under the pane's bar, which stays on top.
    head()->setFixedWidth(panePx.width());
    m_view->setGeometry(panePx);
}
