#pragma once

#include "zrwidget_global.h"

#include <QtCore/QRectF>
#include <QtCore/QSize>

/// Where the rows of a ladder and the band between its halves stand, while no row is selected.
///
///     row 0       |  column  |  column  |   the rest   |
///     ...
///     row n - 1
///     band
///     row n
///     ...
///     row 2n - 1
///
/// Shape:   the rectangles begin at the widget's top edge. The painting starts a margin below; what the
///          pointer meets does not, and both halves of the client rely on rows being hit there.
/// Units:   logical px; a row's height is a whole number, so that rows meet without a gap.
/// Threads: one at a time.
/// Errors:  a widget too small for its rows gives rows of height 0 or less, which nothing can hit.
class ZRWIDGET_PRIVATE_EXPORT ZrLadderGeometry
{
public:
    /// Before the first reset() there are no rectangles; heights and widths are those of the whole widget.
    void begin(const QSize &size);
    void reset(const QSize &size, int count, double marginPx);

    int rowHeightPx() const { return m_rowHeight; }
    int columnWidthPx() const { return m_columnWidth; }
    /// How many rows have a rectangle.
    int rows() const { return m_count > 0 ? 2 * m_count : 0; }
    /// Levels a side.
    int count() const { return m_count; }
    /// The whole width of the widget. The row must be one of rows().
    QRectF row(int row) const;
    QRectF band() const { return m_band; }

private:
    int m_count = 0;
    int m_width = 0;
    int m_rowHeight = 0;
    int m_columnWidth = 0;
    QRectF m_band; // null before the first reset()
};
