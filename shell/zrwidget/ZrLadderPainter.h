#pragma once

#include "ZrLadderState.h"
#include "zrwidget_global.h"

#include <QtCore/QSize>
#include <QtGui/QFont>

class QPainter;

/// Paints a ladder: ground, rows, the band between its halves, the selected row.
///
///     | 卖 [2]   |   12.35  |      1200 |   a row: side, level in its badge, price, quantity
///     | 最新     |   12.34  |       300 |   the band
///
/// Shape:     made for one paint. Rows are painted one below the other, each at the painter's origin. The
///            selected row is painted first and for itself: it has a ground of its own and another font, and
///            its level stands at the left of the badge instead of in the middle, so that it catches the eye.
/// Units:     logical px.
/// Ownership: borrows painter and state.
/// Threads:   GUI thread only.
/// Errors:    a font size below 1 px counts as 1; texts end where no more of them can be seen.
class ZRWIDGET_PRIVATE_EXPORT ZrLadderPainter
{
public:
    ZrLadderPainter(QPainter *painter, const ZrLadderState &state, const QSize &size);

    void paint(bool withCurrentRow);

private:
    void drawGround();
    void drawCurrentRow();
    void drawCurrentItem(const ZrSecurityAskBidData &level);
    void beginRows();
    void drawItem(const ZrSecurityAskBidData &level, bool hovered);
    void drawBand();
    void drawBandTexts();
    void drawLine();
    void drawHover(double firstLeft);
    void setBadgeBrush(int side);
    void drawText(const QRectF &rect, Qt::Alignment alignment, const QString &text);
    QFont fontOf(const QString &family, int sizePx) const;

    QPainter *const m_painter;
    const ZrLadderState &m_state;
    const QSize m_size;
    const int m_rowHeight;
    const int m_column; // width
    const int m_quantityWidth;
    const double m_margin;
    QFont m_rowFont;
    QFont m_levelFont;
    int m_sideWidth[2] = {0, 0}; // of the buyers' and of the sellers' word in the font of the rows
    int m_levelWidth = 0;        // of two digits
};
