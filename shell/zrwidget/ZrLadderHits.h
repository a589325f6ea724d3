#pragma once

#include "ZrLadderState.h"
#include "zrwidget_global.h"

/// What a point of a ladder meets: a row or the band, and which column of it.
///
/// Shape:   made for one event. While a row is selected it is taller by two margins, and the rows below it
///          stand so much lower; the band grows by as much at its lower end instead of moving, which lets it
///          lie over the end of the row above it: the band is asked first.
/// Units:   logical px of the widget. Edges belong to the rectangles; what two rows share is the upper one's.
/// Threads: GUI thread only.
/// Errors:  before the widget has a size nothing is hit.
class ZRWIDGET_PRIVATE_EXPORT ZrLadderHits
{
public:
    enum Width {
        TwoColumns, // without the quantity
        WholeWidth
    };

    /// Borrows the state.
    explicit ZrLadderHits(const ZrLadderState &state);

    QRectF row(int row, Width width) const;
    /// For the hover: two columns wide, but as wide as the widget below a selected row.
    QRectF hoveredBand() const;
    /// For a click while a row is selected: as wide as the widget.
    QRectF clickedBand() const;
    /// ZrLadderState::NoRow when none is met.
    int rowAt(const QPointF &point, Width width) const;
    bool isInFirstColumn(const QRectF &hit, const QPointF &point) const;

private:
    bool isSelectedAboveBand() const;

    const ZrLadderState &m_state;
};
