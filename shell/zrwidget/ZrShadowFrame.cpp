#include "ZrShadowFrame.h"

#include <QtCore/QEvent>
#include <QtGui/QPainter>
#include <QtGui/QPainterPath>

#include <cmath>

namespace {

constexpr int innermostAlpha = 150;
constexpr int fade = 50;    // per square root of the distance, in px
constexpr int maxRings = 9; // the next one would have an alpha of 0

/// The frame's radius is the roundness of QPainterPath::addRoundRect, which the skins' values are chosen for
/// and which the toolkit is giving up: a percentage of half the shorter side, on the longer side cut down to
/// a whole percentage for about the same arc. On a very long frame that's 0, and the corners are square.
void addRound(QPainterPath *path, const QRectF &rect, int roundness)
{
    const qreal shorter = qMin(rect.width(), rect.height());
    const int alongLonger = int(roundness * shorter / qMax(rect.width(), rect.height()));
    const bool isWide = rect.width() > rect.height();
    path->addRoundedRect(rect, isWide ? alongLonger : roundness, isWide ? roundness : alongLonger,
                         Qt::RelativeSize);
}

} // namespace

ZrShadowFrame::ZrShadowFrame(QWidget *parent)
    : QFrame(parent)
{
    setWindowFlags(Qt::FramelessWindowHint);
    setAttribute(Qt::WA_TranslucentBackground);
    installEventFilter(this);
}

void ZrShadowFrame::setMargin(int marginPx)
{
    m_margin = marginPx;
    update();
}

void ZrShadowFrame::setRadius(int radius)
{
    m_radius = radius;
    update();
}

void ZrShadowFrame::setBgColor(QColor color)
{
    m_bgColor = color;
    update();
}

void ZrShadowFrame::setBorderColor(QColor color)
{
    m_borderColor = color;
    update();
}

void ZrShadowFrame::setShadowColor(QColor color)
{
    m_shadowColor = color;
    update();
}

void ZrShadowFrame::setSelected(bool selected)
{
    m_selected = selected;
    update();
}

bool ZrShadowFrame::eventFilter(QObject *watched, QEvent *event)
{
    const bool isFocusEvent = event->type() == QEvent::FocusIn || event->type() == QEvent::FocusOut;
    const auto *const widget = isFocusEvent ? qobject_cast<QWidget *>(watched) : nullptr;
    if (widget && (widget == this || isAncestorOf(widget)))
        setFocusShown(event->type() == QEvent::FocusIn);
    return QFrame::eventFilter(watched, event);
}

void ZrShadowFrame::setFocusShown(bool shown)
{
    // Black again afterwards, whatever the skin had set: the windows in use expect the plain shadow of a
    // frame that the user has left.
    m_shadowColor = shown ? m_borderColor : QColor(0, 0, 0, 50);
    m_focused = shown;
    update();
}

void ZrShadowFrame::paintEvent(QPaintEvent *event)
{
    {
        // Ended before the base begins its own painter on this widget.
        QPainter painter(this);
        paintBasis(painter);
    }
    QFrame::paintEvent(event);
}

void ZrShadowFrame::paintBasis(QPainter &painter)
{
    painter.setRenderHint(QPainter::Antialiasing, true);
    painter.fillPath(outline(m_margin), m_bgColor);
    QColor ring = m_selected || m_focused ? m_borderColor : m_shadowColor;
    painter.setBrush(Qt::NoBrush);
    // From a margin of 10 on, the rings outside of the ninth are invisible.
    for (int i = 0; i < qMin(m_margin, maxRings); ++i) {
        ring.setAlpha(int(innermostAlpha - fade * std::sqrt(double(i))));
        painter.setPen(ring);
        painter.drawPath(outline(m_margin - i));
    }
}

QPainterPath ZrShadowFrame::outline(int insetPx) const
{
    QPainterPath path;
    path.setFillRule(Qt::WindingFill);
    const qreal inset = insetPx;
    const QRectF rect(inset, inset, width() - 2 * inset, height() - 2 * inset);
    // A frame smaller than its margins: the toolkit would turn the rectangle inside out.
    if (rect.isEmpty())
        return path;
    if (m_radius > 0)
        addRound(&path, rect, m_radius);
    else
        path.addRect(rect);
    return path;
}
