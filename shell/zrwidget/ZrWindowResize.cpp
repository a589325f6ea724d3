#include "ZrWindowResize.h"

#include "ZrWindowEdges.h"

#include <QtGui/QMouseEvent>
#include <QtWidgets/QWidget>

namespace {
// One for all windows, not one for each: there is one pointer, and a press pulls the edges that it was seen
// at last, even if they were another window's.
int edgesSeen = 0;
} // namespace

ZrWindowResize::ZrWindowResize(QWidget *window)
    : m_window(window)
{
}

int ZrWindowResize::edges()
{
    return edgesSeen;
}

void ZrWindowResize::press(const QMouseEvent &event)
{
    m_resizing = true;
    m_lastMousePos = event.globalPos();
}

void ZrWindowResize::move(const QMouseEvent &event)
{
    if (!(event.buttons() & Qt::LeftButton))
        m_resizing = false;
    if (m_resizing)
        pull(event.globalPos());
    else
        hover(event.globalPos());
}

void ZrWindowResize::release()
{
    m_resizing = false;
}

void ZrWindowResize::restoreCursor()
{
    if (!m_resizing && m_window->cursor().shape() != Qt::ArrowCursor)
        m_window->setCursor(Qt::ArrowCursor);
}

void ZrWindowResize::hover(const QPoint &pos)
{
    edgesSeen = ZrWindowEdges::at(m_window->frameGeometry(), pos);
    const Qt::CursorShape shape = ZrWindowEdges::cursor(edgesSeen);
    if (m_window->cursor().shape() != shape)
        m_window->setCursor(shape);
}

void ZrWindowResize::pull(const QPoint &pos)
{
    const QRect wanted = ZrWindowEdges::pulled(m_window->geometry(), edgesSeen, pos - m_lastMousePos);
    if (wanted.width() < m_window->minimumWidth() || wanted.height() < m_window->minimumHeight())
        return;
    const QRect rect = ZrWindowEdges::bounded(wanted, edgesSeen, m_window->maximumSize());
    m_window->setGeometry(rect);
    // What the edges didn't follow counts again on the way back, so that they meet the pointer where it left
    // them.
    m_lastMousePos = pos -
                     (edgesSeen & ZrWindowEdges::Left ? QPoint(wanted.left() - rect.left(), 0)
                                                      : QPoint(wanted.right() - rect.right(), 0)) -
                     (edgesSeen & ZrWindowEdges::Top ? QPoint(0, wanted.top() - rect.top())
                                                     : QPoint(0, wanted.bottom() - rect.bottom()));
}
