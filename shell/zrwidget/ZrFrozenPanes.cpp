#include "ZrFrozenPanes.h"

#include "ZrFrozenSide.h"
#include "ZrHeaderView.h"
#include "ZrScrollCoupling.h"

#include <QtCore/QScopedValueRollback>
#include <QtGui/QKeyEvent>
#include <QtWidgets/QAbstractItemView>
#include <QtWidgets/QScrollBar>

namespace {

void makeCurrent(QAbstractItemView *part, const QModelIndex &index)
{
    // A part that is there already keeps a selection of several rows that the user has made in it.
    if (part->currentIndex() != index)
        part->setCurrentIndex(index);
}

} // namespace

ZrFrozenPanes::ZrFrozenPanes(QAbstractItemView *mainView, const ZrFrozenGrid *grid)
    : QObject(mainView)
    , m_main(mainView)
    , m_grid(grid)
    , m_left(new ZrFrozenSide(ZrHeaderHost::Side::Left, mainView, grid, this))
    , m_right(new ZrFrozenSide(ZrHeaderHost::Side::Right, mainView, grid, this))
{
}

ZrFrozenPanes::~ZrFrozenPanes() = default;

void ZrFrozenPanes::setHost(ZrFrozenHost *host)
{
    m_host = host;
}

ZrFrozenSide *ZrFrozenPanes::side(ZrHeaderHost::Side side) const
{
    return side == ZrHeaderHost::Side::Left ? m_left : m_right;
}

QList<QAbstractItemView *> ZrFrozenPanes::paneViews() const
{
    QList<QAbstractItemView *> views;
    for (const ZrFrozenSide *const pane : {m_left, m_right}) {
        if (pane->view())
            views.append(pane->view());
    }
    return views;
}

int ZrFrozenPanes::countOf(const ZrFrozenSide *pane) const
{
    return m_host ? m_host->frozenColumnCount(pane->side()) : 0;
}

void ZrFrozenPanes::setSideEnabled(ZrHeaderHost::Side side, bool enable)
{
    ZrFrozenSide *const pane = this->side(side);
    pane->remove();
    if (enable && m_main->model() && m_host)
        createPane(pane);
}

void ZrFrozenPanes::createPane(ZrFrozenSide *pane)
{
    pane->create(m_host);
    connectPane(pane);
    connectPaneHead(pane);
    followSelection(pane);
    QAbstractItemView *const view = pane->view();
    // The main view and its panes are siblings: on top means after it in their parent.
    view->raise();
    view->show();
    pane->place(countOf(pane));
    view->installEventFilter(m_main);
    view->verticalScrollBar()->installEventFilter(this);
    view->verticalScrollBar()->setValue(m_main->verticalScrollBar()->value());
    if (m_main->currentIndex().isValid())
        makeCurrentInPanes(m_main->currentIndex());
}

void ZrFrozenPanes::connectPane(ZrFrozenSide *pane)
{
    QAbstractItemView *const view = pane->view();
    ZrScrollCoupling::coupleValues(m_main->verticalScrollBar(), view->verticalScrollBar());
    connect(view, &QAbstractItemView::pressed, this,
            [this, view](const QModelIndex &index) { rowPressed(index, view); });
    connect(view, &QAbstractItemView::pressed, m_main, &QAbstractItemView::pressed);
    connect(view, &QAbstractItemView::clicked, m_main, &QAbstractItemView::clicked);
    connect(view, &QAbstractItemView::doubleClicked, m_main, &QAbstractItemView::doubleClicked);
    connect(view, &QAbstractItemView::activated, m_main, &QAbstractItemView::activated);
    connect(view, &QAbstractItemView::entered, m_main, &QAbstractItemView::entered);
    connect(view, &QAbstractItemView::viewportEntered, m_main, &QAbstractItemView::viewportEntered);
    connect(view, &QAbstractItemView::iconSizeChanged, m_main, &QAbstractItemView::iconSizeChanged);
}

void ZrFrozenPanes::connectPaneHead(ZrFrozenSide *pane)
{
    QHeaderView *const head = pane->head();
    QHeaderView *const mainHead = m_grid->head(m_main);
    connect(head, &QHeaderView::sectionResized, this,
            [this, head](int section, int, int newSizePx) { sectionResized(head, section, newSizePx); });
    connect(head, &QHeaderView::sortIndicatorChanged, this,
            [this, head, mainHead](int section, Qt::SortOrder order) {
                sortIndicatorChanged(head);
                // The main head tells everybody, itself included: without the note the pane's own indicator
                // would be switched off as another head's.
                const QScopedValueRollback<const QHeaderView *> source(m_sortSource, head);
                emit mainHead->sortIndicatorChanged(section, order);
            });
    const ZrHeaderView *const zrHead = qobject_cast<ZrHeaderView *>(head);
    const ZrHeaderView *const zrMainHead = qobject_cast<ZrHeaderView *>(mainHead);
    if (zrHead && zrMainHead)
        connect(zrHead, &ZrHeaderView::stateChanged, zrMainHead, &ZrHeaderView::stateChanged);
}

// A pane's own keys (page up, end ...) and drags move its current cell without a press.
void ZrFrozenPanes::followSelection(const ZrFrozenSide *pane)
{
    QAbstractItemView *const view = pane->view();
    if (!view || !view->selectionModel())
        return;
    connect(view->selectionModel(), &QItemSelectionModel::currentChanged, this,
            [this, view](const QModelIndex &current) {
                if (!m_isMatchingCurrent && current.isValid())
                    makeCurrentElsewhere(current, view);
            });
}

void ZrFrozenPanes::attachMainHead()
{
    QHeaderView *const head = m_grid->head(m_main);
    connect(head, &QHeaderView::sectionResized, this,
            [this, head](int section, int, int newSizePx) { sectionResized(head, section, newSizePx); });
    connect(head, &QHeaderView::sortIndicatorChanged, this, [this, head] { sortIndicatorChanged(head); });
    connect(head, &QHeaderView::sectionMoved, this,
            [this](int section, int, int newVisual) { mirrorSectionMove(section, newVisual); });
    // A check box or serial column that comes or goes moves the edge of the frozen columns.
    connect(head, &QHeaderView::sectionCountChanged, this, &ZrFrozenPanes::relay, Qt::QueuedConnection);
    head->installEventFilter(this);
    for (ZrFrozenSide *const pane : {m_left, m_right}) {
        if (pane->view())
            setSideEnabled(pane->side(), true); // a pane's head shares the data of the main head
    }
}

void ZrFrozenPanes::attachModel()
{
    for (const ZrFrozenSide *const pane : {m_left, m_right}) {
        if (!pane->view())
            continue;
        pane->view()->setModel(m_main->model());
        followSelection(pane);
    }
    relay();
}

void ZrFrozenPanes::relay()
{
    for (ZrFrozenSide *const pane : {m_left, m_right}) {
        if (!pane->view())
            continue;
        const QScopedValueRollback<bool> matching(m_isMatchingWidths, true);
        pane->hideColumns(m_host);
        pane->copyWidths();
    }
    place();
}

void ZrFrozenPanes::place()
{
    const QScopedValueRollback<bool> matching(m_isMatchingWidths, true);
    m_left->place(countOf(m_left));
    m_right->place(countOf(m_right));
}

void ZrFrozenPanes::mirrorSectionMove(int section, int newVisual)
{
    for (const ZrFrozenSide *const pane : {m_left, m_right}) {
        QHeaderView *const head = pane->head();
        const int from = head ? head->visualIndex(section) : -1;
        if (from >= 0 && newVisual < head->count())
            head->moveSection(from, newVisual);
    }
    relay();
}

void ZrFrozenPanes::sectionResized(QHeaderView *head, int section, int newSizePx)
{
    // Each resize below echoes as the other head's own report.
    if (m_isMatchingWidths)
        return;
    const QScopedValueRollback<bool> matching(m_isMatchingWidths, true);
    QHeaderView *const mainHead = m_grid->head(m_main);
    if (head == mainHead) {
        for (ZrFrozenSide *const pane : {m_left, m_right}) {
            if (pane->head() && section < pane->head()->count())
                pane->head()->resizeSection(section, newSizePx);
            pane->place(countOf(pane));
        }
        return;
    }
    for (ZrFrozenSide *const pane : {m_left, m_right}) {
        if (pane->head() != head || !pane->holdsSection(section, countOf(pane)))
            continue;
        mainHead->resizeSection(section, newSizePx);
        pane->place(countOf(pane));
    }
}

void ZrFrozenPanes::sortIndicatorChanged(const QHeaderView *head)
{
    const QHeaderView *const clicked = m_sortSource ? m_sortSource : head;
    for (QHeaderView *const other : {m_grid->head(m_main), m_left->head(), m_right->head()}) {
        if (other && other != clicked)
            other->setSortIndicatorShown(false);
    }
}

void ZrFrozenPanes::rowPressed(const QModelIndex &index, const QAbstractItemView *part)
{
    makeCurrentElsewhere(index, part);
}

void ZrFrozenPanes::makeCurrentInPanes(const QModelIndex &index)
{
    if (m_isMatchingCurrent)
        return;
    const QScopedValueRollback<bool> matching(m_isMatchingCurrent, true);
    forEachPane([&index](QAbstractItemView *pane) { makeCurrent(pane, index); });
}

void ZrFrozenPanes::makeCurrentElsewhere(const QModelIndex &index, const QAbstractItemView *origin)
{
    if (m_isMatchingCurrent || index.model() != m_main->model())
        return;
    const QScopedValueRollback<bool> matching(m_isMatchingCurrent, true);
    if (origin != m_main)
        makeCurrent(m_main, index);
    forEachPane([&index, origin](QAbstractItemView *pane) {
        if (pane != origin)
            makeCurrent(pane, index);
    });
}

bool ZrFrozenPanes::handleKey(QKeyEvent *event, QAbstractItemView *part)
{
    const bool isUp = event->key() == Qt::Key_Up;
    if ((!isUp && event->key() != Qt::Key_Down) || !m_main->model())
        return false;
    const QModelIndex current = part->currentIndex();
    const QModelIndex next = m_main->model()->index(current.row() + (isUp ? -1 : 1), 0, current.parent());
    // Swallowed at either end: the base would leave the row by its own idea of the next cell.
    if (!next.isValid())
        return true;
    {
        const QScopedValueRollback<bool> matching(m_isMatchingCurrent, true);
        part->setCurrentIndex(next);
    }
    part->scrollTo(next);
    makeCurrentElsewhere(next, part);
    if (part != m_main)
        m_main->scrollTo(next);
    return true;
}

bool ZrFrozenPanes::eventFilter(QObject *watched, QEvent *event)
{
    const QEvent::Type type = event->type();
    // The right pane is as much wider as its bar, which comes and goes with the rows; a head that grows
    // for its second band makes the panes taller.
    if (type == QEvent::Show || type == QEvent::Hide ||
        (type == QEvent::Resize && watched == m_grid->head(m_main)))
        place();
    return QObject::eventFilter(watched, event);
}
