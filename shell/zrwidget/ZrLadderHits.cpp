#include "ZrLadderHits.h"

ZrLadderHits::ZrLadderHits(const ZrLadderState &state)
    : m_state(state)
{
}

bool ZrLadderHits::isSelectedAboveBand() const
{
    return m_state.isSelecting() && m_state.currentIndex < m_state.book.count();
}

QRectF ZrLadderHits::row(int row, Width width) const
{
    QRectF rect = m_state.geometry.row(row);
    if (m_state.isSelecting() && row == m_state.currentIndex)
        rect.setHeight(rect.height() + m_state.extraHeightPx());
    else if (m_state.isSelecting() && row > m_state.currentIndex)
        rect.moveTop(rect.top() + m_state.extraHeightPx());
    if (width == TwoColumns)
        rect.setWidth(2 * m_state.geometry.columnWidthPx());
    return rect;
}

QRectF ZrLadderHits::hoveredBand() const
{
    QRectF rect = clickedBand();
    if (isSelectedAboveBand() || !m_state.isSelecting())
        rect.setWidth(2 * m_state.geometry.columnWidthPx());
    return rect;
}

QRectF ZrLadderHits::clickedBand() const
{
    QRectF rect = m_state.geometry.band();
    if (isSelectedAboveBand())
        rect.setHeight(rect.height() + m_state.extraHeightPx());
    return rect;
}

int ZrLadderHits::rowAt(const QPointF &point, Width width) const
{
    for (int i = 0; i < m_state.geometry.rows(); ++i) {
        if (row(i, width).contains(point))
            return i;
    }
    return ZrLadderState::NoRow;
}

bool ZrLadderHits::isInFirstColumn(const QRectF &hit, const QPointF &point) const
{
    return QRectF(hit.topLeft(), QSizeF(m_state.geometry.columnWidthPx(), hit.height())).contains(point);
}
