#include "ZrLadderPainter.h"

#include "ZrBalanceColor.h"
#include "ZrLadderTexts.h"
#include "ZrPlainText.h"

#include <QtGui/QFontMetrics>
#include <QtGui/QPainter>
#include <QtWidgets/QApplication>

namespace {
constexpr double badgeRadiusPx = 2.0;
constexpr double rowRadiusPx = 6.0;
constexpr int badgeRoomPx = 4;
constexpr int lineHeightPx = 2;
constexpr int farAwayPx = 1 << 24; // no widget is as large
constexpr int mostFontPx = 1000;

const Qt::Alignment atLeft = Qt::AlignLeft | Qt::AlignVCenter;
const Qt::Alignment atRight = Qt::AlignRight | Qt::AlignVCenter;

QString widestLevel()
{
    return QStringLiteral("10");
}

Qt::Alignment priceAlignment(const QString &price)
{
    return price == ZrLadderTexts::noPrice() ? Qt::Alignment(Qt::AlignCenter) : atRight;
}
} // namespace

ZrLadderPainter::ZrLadderPainter(QPainter *painter, const ZrLadderState &state, const QSize &size)
    : m_painter(painter)
    , m_state(state)
    , m_size(size)
    , m_rowHeight(state.geometry.rowHeightPx())
    , m_column(state.geometry.columnWidthPx())
    , m_quantityWidth(3 * state.geometry.columnWidthPx() / 2)
    , m_margin(state.look.marginPx)
{
}

void ZrLadderPainter::paint(bool withCurrentRow)
{
    m_painter->save();
    drawGround();
    m_painter->translate(0, m_margin);
    if (withCurrentRow && m_state.currentRect.isValid())
        drawCurrentRow();
    beginRows();
    for (int row = 0; row < m_state.book.rows(); ++row) {
        if (row == m_state.book.count())
            drawBand();
        if (withCurrentRow && row == m_state.currentIndex) {
            m_painter->translate(0, m_state.currentRect.height());
            continue;
        }
        drawItem(m_state.book.shown(row), row == m_state.hoverIndex);
        m_painter->translate(0, m_rowHeight);
    }
    m_painter->restore();
}

void ZrLadderPainter::drawGround()
{
    m_painter->setPen(Qt::NoPen);
    m_painter->setBrush(m_state.look.ground);
    m_painter->drawRect(QRect(QPoint(), m_size));
}

void ZrLadderPainter::drawCurrentRow()
{
    m_painter->save();
    if (m_state.currentIndex >= m_state.book.count())
        m_painter->translate(0, m_rowHeight); // past the band
    drawCurrentItem(m_state.book.shown(m_state.currentIndex));
    m_painter->restore();
}

void ZrLadderPainter::beginRows()
{
    const int sizePx = m_state.look.fontPx;
    m_rowFont = fontOf(QStringLiteral("微软雅黑"), sizePx);
    m_levelFont = fontOf(QStringLiteral("微软雅黑"), sizePx - 1);
    m_painter->setPen(ZrBalanceColor::current());
    m_painter->setFont(m_rowFont);
    const QFontMetrics metrics = m_painter->fontMetrics();
    m_sideWidth[0] = metrics.horizontalAdvance(ZrLadderTexts::side(0));
    m_sideWidth[1] = metrics.horizontalAdvance(ZrLadderTexts::side(1));
    m_levelWidth = metrics.horizontalAdvance(widestLevel());
}

void ZrLadderPainter::drawItem(const ZrSecurityAskBidData &level, bool hovered)
{
    const bool isSeller = level.side != 0;
    const int sideWidth = m_sideWidth[isSeller ? 1 : 0];
    if (hovered)
        drawHover(0);
    const QRectF badge(sideWidth + m_margin, isSeller ? 2 : 1, m_levelWidth + badgeRoomPx, m_rowHeight - 1);
    setBadgeBrush(level.side);
    m_painter->setPen(Qt::NoPen);
    m_painter->drawRoundedRect(badge, badgeRadiusPx, badgeRadiusPx);
    const QColor balance = ZrBalanceColor::current();
    m_painter->setPen(balance);
    drawText(QRectF(m_margin, 0, sideWidth, m_rowHeight), atLeft, ZrLadderTexts::side(level.side));
    m_painter->setFont(m_levelFont);
    drawText(badge, Qt::AlignCenter, ZrLadderTexts::level(level.level, m_state.look.numerals));
    m_painter->setFont(m_rowFont);
    m_painter->setPen(m_state.priceColor(level.price.toDouble()));
    drawText(QRectF(m_column + m_margin, 0, m_column, m_rowHeight), priceAlignment(level.price), level.price);
    m_painter->setPen(balance);
    // Without the margin that the price has: quantities of many digits need the room.
    drawText(QRectF(2 * m_column, 0, m_quantityWidth, m_rowHeight), atRight, QString::number(level.volume));
}

void ZrLadderPainter::drawCurrentItem(const ZrSecurityAskBidData &level)
{
    const qint64 top = qint64(m_state.currentIndex) * m_rowHeight;
    if (qAbs(top) > farAwayPx)
        return;
    const QRectF row(QRect(0, int(top), m_size.width(), int(m_state.currentRect.height())));
    m_painter->setFont(fontOf(QApplication::font().family(), m_state.look.fontPx));
    m_painter->setBrush(m_state.look.mark);
    m_painter->setPen(Qt::NoPen);
    m_painter->drawRoundedRect(row, rowRadiusPx, rowRadiusPx);
    const QFontMetrics metrics = m_painter->fontMetrics();
    const QString side = ZrLadderTexts::side(level.side);
    const int sideWidth = metrics.horizontalAdvance(side);
    const QRectF badge(sideWidth + m_margin, row.y(), metrics.horizontalAdvance(widestLevel()) + badgeRoomPx,
                       row.height());
    setBadgeBrush(level.side);
    m_painter->drawRoundedRect(badge, badgeRadiusPx, badgeRadiusPx);
    m_painter->setPen(ZrBalanceColor::current());
    drawText(QRectF(m_margin, row.y(), sideWidth, row.height()), atLeft, side);
    drawText(badge, atLeft, ZrLadderTexts::level(level.level, m_state.look.numerals));
    m_painter->setPen(m_state.priceColor(level.price.toDouble()));
    drawText(QRectF(m_column + row.x() + m_margin, row.y(), m_column, row.height()),
             priceAlignment(level.price), level.price);
    m_painter->setPen(ZrBalanceColor::current());
    drawText(QRectF(2 * m_column + row.x(), row.y(), m_quantityWidth, row.height()), atRight,
             QString::number(level.volume));
}

void ZrLadderPainter::drawBand()
{
    if (m_state.bandShown)
        drawBandTexts();
    else
        drawLine();
    m_painter->translate(0, m_state.geometry.band().height());
}

void ZrLadderPainter::drawLine()
{
    const double bandHeight = m_state.geometry.band().height();
    m_painter->setPen(Qt::NoPen);
    m_painter->setBrush(m_state.look.band);
    m_painter->drawRect(QRect(0, int(bandHeight * 0.5 - 1.0), m_size.width(), lineHeightPx));
}

void ZrLadderPainter::drawBandTexts()
{
    const double height = m_state.geometry.band().height();
    m_painter->setPen(Qt::NoPen);
    m_painter->setBrush(m_state.look.band);
    m_painter->drawRect(QRect(0, 0, m_size.width(), int(height)));
    if (m_state.hoverIndex == ZrLadderState::BandRow)
        drawHover(m_margin);
    const QColor balance = ZrBalanceColor::current();
    m_painter->setPen(balance);
    drawText(QRectF(m_margin, 0, m_column, height), atLeft, ZrLadderTexts::latest());
    m_painter->setPen(m_state.priceColor(m_state.last.price.toDouble()));
    drawText(QRectF(m_column + m_margin, 0, m_column, height), atRight, m_state.last.price);
    drawText(QRectF(2 * m_column + m_margin, 0, m_quantityWidth, height), atRight, m_state.last.volumeText);
    m_painter->setPen(balance);
}

// The cell under the pointer; `firstLeft` is where the first column begins.
void ZrLadderPainter::drawHover(double firstLeft)
{
    QRectF cell;
    if (m_state.hoverPart == ZrLadderState::FirstColumn)
        cell = QRectF(firstLeft, 0, m_column, m_rowHeight);
    else if (m_state.hoverPart == ZrLadderState::SecondColumn)
        cell = QRectF(m_column + firstLeft, 0, m_column, m_rowHeight);
    m_painter->setBrush(m_state.look.mark);
    m_painter->setPen(Qt::NoPen);
    if (!cell.isNull())
        m_painter->drawRoundedRect(cell, badgeRadiusPx, badgeRadiusPx);
}

// A side that is neither keeps the brush that painted last.
void ZrLadderPainter::setBadgeBrush(int side)
{
    if (side == 1)
        m_painter->setBrush(m_state.look.sellBadge);
    else if (side == 0)
        m_painter->setBrush(m_state.look.buyBadge);
}

void ZrLadderPainter::drawText(const QRectF &rect, Qt::Alignment alignment, const QString &text)
{
    m_painter->drawText(rect, int(alignment), ZrPlainText::visiblePart(text, rect.size().toSize()));
}

QFont ZrLadderPainter::fontOf(const QString &family, int sizePx) const
{
    QFont font = m_painter->font();
    font.setPixelSize(qBound(1, sizePx, mostFontPx));
    font.setFamily(family);
    // A sheet further up may have named families of its own, which would come first.
    font.setFamilies({family});
    return font;
}
