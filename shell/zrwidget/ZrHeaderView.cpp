#include "ZrHeaderView.h"

#include "ZrHeaderColumns.h"
#include "ZrHeaderDropRule.h"
#include "ZrHeaderHits.h"
#include "ZrHeaderHost.h"
#include "ZrHeaderSectionOption.h"
#include "ZrHeaderSectionPainter.h"
#include "ZrHeaderView_p.h"
#include "ZrHeadFocusLine.h"
#include "ZrPlainText.h"

#include <QtGui/QHoverEvent>
#include <QtGui/QPainter>
#include <QtGui/QTextDocument>
#include <QtWidgets/QToolTip>

ZrHeaderView::ZrHeaderView(Qt::Orientation orientation, QWidget *parent)
    : QHeaderView(orientation, parent)
    , d(std::make_shared<ZrHeaderViewPrivate>())
    , m_drag(*this)
{
    setUp();
}

ZrHeaderView::ZrHeaderView(const ZrHeaderView *other)
    : QHeaderView(other ? other->orientation() : Qt::Horizontal)
    , d(other ? other->d : std::make_shared<ZrHeaderViewPrivate>())
    , m_drag(*this)
{
    setUp();
}

ZrHeaderView::~ZrHeaderView() = default;

void ZrHeaderView::setUp()
{
    setStretchLastSection(true);
    setAttribute(Qt::WA_MouseTracking);
    setSectionsClickable(true);
    m_focusLine = new ZrHeadFocusLine(this);
    installEventFilter(this);
    setAttribute(Qt::WA_Hover);
    setTextElideMode(Qt::ElideRight);
    connect(d.get(), &ZrHeaderViewPrivate::repaintRequested, viewport(), QOverload<>::of(&QWidget::update));
    // The base tells a press on a section from one on an edge between two by this signal alone.
    connect(this, &QHeaderView::sectionPressed, this, [this](int section) { m_pressed = section; });
}

ZrHeaderViewPrivate *ZrHeaderView::getPrivate() const
{
    return d.get();
}

void ZrHeaderView::setCheckBoxShow(bool show)
{
    d->checkBoxShown = show;
}

void ZrHeaderView::setViewFilterable(bool filterable)
{
    d->viewFilterable = filterable;
}

void ZrHeaderView::setViewFilterable(int logicalColumn, bool filterable)
{
    d->perColumnFilterable.insert(logicalColumn, filterable);
    // Not to be hit again before it is painted again.
    d->filterButtonRects.remove(logicalColumn);
}

void ZrHeaderView::setViewFilterbuttonAlwayVisiable(bool visible)
{
    d->filterButtonAlwaysVisible = visible;
}

void ZrHeaderView::setHeadDefaultXMargin(int marginPx)
{
    d->headXMargin = marginPx;
}

void ZrHeaderView::setGridColor(const QColor &color)
{
    d->gridColor = color;
    d->gridColorSet = true;
    d->requestRepaint();
}

void ZrHeaderView::setSortbale(bool sortable)
{
    d->sortable = sortable;
    if (!sortable && isSortIndicatorShown())
        setSortIndicatorShown(false);
}

bool ZrHeaderView::isSortbale() const
{
    return d->sortable;
}

void ZrHeaderView::setColumnSortable(int logicalColumn, bool sortable)
{
    d->perColumnSortable.insert(logicalColumn, sortable);
}

void ZrHeaderView::setHeadTip(int logicalColumn, const QString &tip)
{
    d->headTips.insert(logicalColumn, tip);
}

void ZrHeaderView::setChecked(bool checked)
{
    d->checked = checked;
    d->partial = false;
    d->requestRepaint();
    emit stateChanged(checked ? Qt::Checked : Qt::Unchecked);
}

void ZrHeaderView::onStateChanged(int state)
{
    d->partialPending = state == Qt::PartiallyChecked;
    if (d->partialPending)
        d->partial = true;
    d->checked = state != Qt::Unchecked;
    d->requestRepaint();
}

void ZrHeaderView::slotFilterStatusChanged()
{
    // A tree's rows can't be filtered. Nothing may follow the call: who is told of the choice may end us.
    ZrHeaderHost *const host = ZrHeaderHost::of(this);
    if (host && isTableHead())
        host->filterChoiceChanged(this);
}

bool ZrHeaderView::isTableHead() const
{
    const ZrHeaderHost *const host = ZrHeaderHost::of(this);
    return host && host->headKind() == ZrHeaderHost::Kind::Table;
}

// The base measures a text to its end, however long; no head is as wide as that.
QSize ZrHeaderView::sectionSizeFromContents(int section) const
{
    const QString text =
        model() ? model()->headerData(section, orientation(), Qt::DisplayRole).toString() : QString();
    if (text.size() <= ZrPlainText::captionBound.characters)
        return QHeaderView::sectionSizeFromContents(section);
    QStyleOptionHeader option;
    initStyleOption(&option);
    option.section = section;
    option.text = ZrPlainText::beginning(text, ZrPlainText::captionBound);
    return style()->sizeFromContents(QStyle::CT_HeaderSection, &option, QSize(), this);
}

void ZrHeaderView::paintEvent(QPaintEvent *event)
{
    QHeaderView::paintEvent(event);
    QPainter painter(viewport());
    m_focusLine->paint(&painter);
}

void ZrHeaderView::paintSection(QPainter *painter, const QRect &rect, int section) const
{
    // The base asks for the picture of a dragged section in the same way as for the section itself. It does
    // so while it handles the press, on a pixmap. That is also the one sign that it has begun a move.
    const bool isCopy = m_inBasePress && painter->device() != viewport();
    if (isCopy) {
        m_copiedSection = section;
        paintDrageSection(painter, rect, section);
        return;
    }
    paintHeaderSection(painter, rect, section, false);
}

void ZrHeaderView::paintDrageSection(QPainter *painter, const QRect &rect, int section) const
{
    paintHeaderSection(painter, rect, section, true);
}

void ZrHeaderView::paintHeaderSection(QPainter *painter, const QRect &rect, int section, bool dragging) const
{
    if (!rect.isValid())
        return;
    QStyleOptionHeader option;
    initStyleOption(&option);
    option.rect = rect;
    option.section = section;
    ZrHeaderSectionOption::prepare(&option, *this, {m_hovered, m_pressed});
    ZrHeaderSectionPainter(painter, *this, *d, option, dragging).paint();
}

void ZrHeaderView::setModel(QAbstractItemModel *newModel)
{
    QHeaderView::setModel(newModel);
    if (!newModel || orientation() != Qt::Horizontal)
        return;
    // What a view does for its editors and its current cell, of which a head has none: each row that comes or
    // goes would pay for it.
    disconnect(newModel, &QAbstractItemModel::rowsAboutToBeRemoved, this, nullptr);
    disconnect(newModel, &QAbstractItemModel::rowsRemoved, this, nullptr);
    disconnect(newModel, &QAbstractItemModel::rowsInserted, this, nullptr);
}

bool ZrHeaderView::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == this)
        followPointer(*event);
    return QHeaderView::eventFilter(watched, event);
}

// The head itself is told of hovering, its viewport isn't. This comes before the base's own look at the
// event, which then asks for the repaints of the sections that are entered and left.
void ZrHeaderView::followPointer(const QEvent &event)
{
    const QEvent::Type type = event.type();
    if (type == QEvent::HoverLeave || type == QEvent::Leave) {
        m_hovered = -1;
        hoverTo(-1);
    }
    if (type != QEvent::HoverEnter && type != QEvent::HoverMove)
        return;
    const ZrHeaderHits hits(*this, *d, static_cast<const QHoverEvent &>(event).pos());
    m_hovered = hits.section();
    if (type == QEvent::HoverMove && hits.column() >= 0)
        hoverTo(hits.isFilterButton() ? hits.section() : -1);
}

void ZrHeaderView::hoverTo(int section)
{
    if (d->hoverSection == section)
        return;
    const int left = d->hoverSection;
    d->hoverSection = section;
    if (left >= 0)
        updateSection(left);
    if (section >= 0)
        updateSection(section);
}

void ZrHeaderView::mousePressEvent(QMouseEvent *event)
{
    const ZrHeaderHits hits(*this, *d, event->pos());
    m_pressed = -1;
    d->checkPressed = false; // of a press whose release went elsewhere
    ZrHeaderHost *const host = ZrHeaderHost::of(this);
    if (host && isTableHead() && hits.isFilterButton()) {
        host->openFilter(this, hits.column(), hits.filterButton());
        return;
    }
    if (hits.isTip())
        return;
    // A press on the edge of the check column counts too, although it begins a resize: required.
    if (d->checkBoxShown && (event->buttons() & Qt::LeftButton) && hits.section() == 0)
        d->checkPressed = true;
    pressBase(event);
}

void ZrHeaderView::pressBase(QMouseEvent *event)
{
    m_copiedSection = -1;
    m_inBasePress = true;
    QHeaderView::mousePressEvent(event);
    m_inBasePress = false;
    if (m_copiedSection >= 0)
        m_drag.begin(m_copiedSection, event->pos().x());
}

void ZrHeaderView::mouseMoveEvent(QMouseEvent *event)
{
    QHeaderView::mouseMoveEvent(event);
    // Without a button the base has forgotten the press: its release went elsewhere.
    if (event->buttons() == Qt::NoButton)
        m_drag.end();
    else
        m_drag.moveTo(event->pos().x());
}

void ZrHeaderView::mouseReleaseEvent(QMouseEvent *event)
{
    if (sectionsMovable() && m_drag.isMoving()) {
        drop(event);
        return;
    }
    m_drag.end();
    const ZrHeaderHits hits(*this, *d, event->pos());
    const bool isClick = hits.section() >= 0 && hits.section() == m_pressed;
    m_pressed = -1;
    if (hits.isFilterButton()) {
        releaseWithoutClick(event);
        return;
    }
    if (hits.isTip() && isTableHead()) {
        releaseWithoutClick(event);
        showTip(event->globalPos(), hits.column());
        return;
    }
    if (d->checkBoxShown && d->checkPressed)
        clickCheckBox();
    // Before the base, whose click turns the indicator. The end of a resize is no click and leaves it alone.
    if (isClick)
        updateSortIndicator(hits.column());
    QHeaderView::mouseReleaseEvent(event);
}

void ZrHeaderView::drop(QMouseEvent *event)
{
    const int section = m_drag.section();
    const bool allowed = mayDrop(event->pos());
    m_drag.end();
    m_pressed = -1;
    d->checkPressed = false;
    if (allowed)
        QHeaderView::mouseReleaseEvent(event);
    else
        cancelMove(section, event);
}

bool ZrHeaderView::mayDrop(const QPoint &point) const
{
    const int section = logicalIndexAt(point);
    const int column = ZrHeaderColumns::logicalColumn(*this, section);
    const bool isPseudo = column < 0 && column != ZrHeaderColumns::none;
    if (section < 0 || isPseudo)
        return false;
    const ZrHeaderHost *const host = ZrHeaderHost::of(this);
    const int left = host ? host->frozenCount(ZrHeaderHost::Side::Left) : 0;
    const int right = host ? host->frozenCount(ZrHeaderHost::Side::Right) : 0;
    return ZrHeaderDropRule(*this, left, right)
        .allows(visualIndex(m_drag.section()), visualIndex(m_drag.target()));
}

// The base has no way to give up a move: its release moves the section to the last target. So the pointer is
// led back first: over the section itself the base takes the section as its own target, and the release then
// ends the drag with a move from a place to the same place, which is none. Positions left of the head are
// ignored by the base; a section that was scrolled out there is brought in for the time of the one event.
void ZrHeaderView::cancelMove(int section, QMouseEvent *event)
{
    const int oldOffset = offset();
    const bool scrolls = hasAutoScroll();
    setAutoScroll(false);
    int place = sectionViewportPosition(section);
    if (place + sectionSize(section) <= 0) {
        setOffset(isRightToLeft() ? oldOffset - place : oldOffset + place);
        place = 0;
    }
    QMouseEvent home(QEvent::MouseMove, QPoint(qMax(0, place), event->pos().y()), Qt::NoButton,
                     Qt::LeftButton, Qt::NoModifier);
    QHeaderView::mouseMoveEvent(&home);
    setOffset(oldOffset);
    setAutoScroll(scrolls);
    QHeaderView::mouseReleaseEvent(event);
}

// A release above the head: the base ends what the press began, a resize for one, and sees no click in it.
void ZrHeaderView::releaseWithoutClick(QMouseEvent *event)
{
    QMouseEvent above(QEvent::MouseButtonRelease, QPoint(event->pos().x(), -1), event->button(),
                      event->buttons(), event->modifiers());
    QHeaderView::mouseReleaseEvent(&above);
}

void ZrHeaderView::showTip(const QPoint &globalPoint, int logicalColumn)
{
    const QString tip = d->headTips.value(logicalColumn);
    if (tip.isEmpty())
        return;
    // A tool tip reads text that looks like markup as markup. Tips may come from configuration, so such a
    // text is escaped; all others are shown as they are.
    const bool looksRich = Qt::mightBeRichText(tip);
    QToolTip::showText(globalPoint,
                       looksRich ? QStringLiteral("<span>%1</span>").arg(tip.toHtmlEscaped()) : tip, this);
}

void ZrHeaderView::clickCheckBox()
{
    if (d->showsPartial()) {
        d->checked = true;
        d->partialPending = false;
    } else {
        d->checked = !d->checked;
    }
    d->checkPressed = false;
    d->requestRepaint();
    const bool checked = d->checked;
    emit stateChanged(checked ? Qt::Checked : Qt::Unchecked);
    emit signalHeadCheckClicked(checked);
}

void ZrHeaderView::updateSortIndicator(int logicalColumn)
{
    const bool sortable = d->isSortable(logicalColumn);
    if (sortable != isSortIndicatorShown())
        setSortIndicatorShown(sortable);
}
