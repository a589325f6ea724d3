#include "ZrSecurityAskBidPanel_p.h"

#include "ZrLadderHits.h"
#include "ZrSecurityAskBidPanel.h"

#include <QtCore/QDebug>
#include <QtGui/QHoverEvent>

namespace {
constexpr int doubleClickCommand = 10001;
}

ZrSecurityAskBidPanelPrivate::ZrSecurityAskBidPanelPrivate(ZrSecurityAskBidPanel *facade)
    : clicks(facade)
    , q(facade)
{
}

void ZrSecurityAskBidPanelPrivate::begin()
{
    state.last.side = -1;
    state.geometry.begin(q->size());
    state.book.fillPlaceholders();
    refresh();
}

void ZrSecurityAskBidPanelPrivate::reset()
{
    state.geometry.reset(q->size(), state.book.count(), state.look.marginPx);
    refresh();
}

void ZrSecurityAskBidPanelPrivate::refresh()
{
    state.placeCurrent();
    if (!state.book.levels().isEmpty())
        q->update();
}

void ZrSecurityAskBidPanelPrivate::hover(QEvent *event)
{
    if (event->type() == QEvent::HoverLeave) {
        state.hoverIndex = ZrLadderState::NoRow;
        state.hoverPart = ZrLadderState::LeftPart;
        return; // the base repaints
    }
    if (event->type() != QEvent::HoverMove)
        return;
    const auto *const move = dynamic_cast<const QHoverEvent *>(event);
    if (move) {
        // Platforms without a pointer send a move to the corner when a window opens.
        if (move->pos().isNull())
            return;
        hoverAt(move->pos());
    }
    q->update();
}

// Over the room between and below the rows the last cell stays marked: it doesn't flicker on the way across.
void ZrSecurityAskBidPanelPrivate::hoverAt(const QPointF &point)
{
    const ZrLadderHits hits(state);
    QRectF hit = hits.hoveredBand();
    int row = ZrLadderState::BandRow;
    if (!hit.contains(point)) {
        row = hits.rowAt(point, ZrLadderHits::TwoColumns);
        if (row == ZrLadderState::NoRow)
            return;
        hit = hits.row(row, ZrLadderHits::TwoColumns);
    }
    state.hoverIndex = row;
    state.hoverPart =
        hits.isInFirstColumn(hit, point) ? ZrLadderState::FirstColumn : ZrLadderState::SecondColumn;
}

// By any button, and without a repaint: the release brings it.
void ZrSecurityAskBidPanelPrivate::press(const QPointF &point)
{
    if (state.currentIndex == ZrLadderState::NoRow)
        return;
    const int row = ZrLadderHits(state).rowAt(point, ZrLadderHits::WholeWidth);
    if (row != ZrLadderState::NoRow)
        state.currentIndex = row;
}

void ZrSecurityAskBidPanelPrivate::release(const QPointF &point)
{
    const ZrLadderHits hits(state);
    const bool isSelecting = state.isSelecting();
    const QRectF band = hits.clickedBand();
    if (band.contains(point)) {
        if (isSelecting)
            expect(band, point, state.last);
        else
            releaseOnPlainBand(point);
        return;
    }
    const ZrLadderHits::Width width = isSelecting ? ZrLadderHits::WholeWidth : ZrLadderHits::TwoColumns;
    const int row = hits.rowAt(point, width);
    if (row != ZrLadderState::NoRow)
        releaseOnRow(row, hits.row(row, width), point);
}

void ZrSecurityAskBidPanelPrivate::releaseOnPlainBand(const QPointF &point)
{
    const QRectF band = ZrLadderHits(state).clickedBand();
    const ZrSecurityAskBidData last = state.last;
    if (!ZrLadderHits(state).isInFirstColumn(band, point))
        emit q->signalCurrentPriceInfo(last); // and once more after the wait
    expect(band, point, last);
}

void ZrSecurityAskBidPanelPrivate::releaseOnRow(int row, const QRectF &hit, const QPointF &point)
{
    if (state.isSelecting()) {
        // The press has selected it already, unless the pointer was dragged here.
        if (row == state.currentIndex)
            refresh();
        state.currentIndex = row;
    }
    // Where rows can't be selected this is the row that the press met, or that nothing is selected.
    expect(hit, point, q->getCurrentPriceInfo());
}

void ZrSecurityAskBidPanelPrivate::expect(const QRectF &hit, const QPointF &point,
                                          const ZrSecurityAskBidData &level)
{
    const bool isFirst = ZrLadderHits(state).isInFirstColumn(hit, point);
    clicks.expect(isFirst ? ZrLadderClick::Level : ZrLadderClick::Price, level);
}

void ZrSecurityAskBidPanelPrivate::doubleClick(const QPointF &point)
{
    const int row = ZrLadderHits(state).rowAt(point, ZrLadderHits::WholeWidth);
    if (row != ZrLadderState::NoRow && row == state.currentIndex)
        clicks.expect(ZrLadderClick::Double, q->getCurrentPriceInfo());
}

void ZrSecurityAskBidPanelPrivate::ring(int timerId)
{
    const ZrLadderClick click = clicks.take(timerId);
    switch (click.kind) {
    case ZrLadderClick::None:
        break;
    case ZrLadderClick::Price:
        emit q->signalCurrentPriceInfo(click.level);
        qDebug() << "000000000000000000000000  signalCurrentPriceInfo" << click.level.price;
        break;
    case ZrLadderClick::Level:
        emit q->signalCurrentClicked(click.level);
        qDebug() << "000000000000000000000000  signalCurrentClicked" << click.level.price;
        break;
    case ZrLadderClick::Double:
        emit q->signalPanelBarClicked(doubleClickCommand, click.level);
        qDebug() << "000000000000000000000000   signalPanelBarClicked" << click.level.price;
        break;
    }
}
