#include "ZrLadderGeometry.h"

namespace {
constexpr int columnShare = 7; // two columns of two shares each; the quantity has the rest
}

void ZrLadderGeometry::begin(const QSize &size)
{
    *this = ZrLadderGeometry();
    m_rowHeight = size.height();
    m_columnWidth = size.width();
}

void ZrLadderGeometry::reset(const QSize &size, int count, double marginPx)
{
    m_count = count;
    m_width = size.width();
    m_rowHeight = int((size.height() - 2 * marginPx) / (2 * count + 1));
    m_columnWidth = size.width() / columnShare * 2;
    m_band = QRectF(0, m_rowHeight * count, m_width, m_rowHeight);
}

QRectF ZrLadderGeometry::row(int row) const
{
    const int bandsAbove = row >= m_count ? 1 : 0;
    return QRectF(0, (row + bandsAbove) * m_rowHeight, m_width, m_rowHeight);
}
