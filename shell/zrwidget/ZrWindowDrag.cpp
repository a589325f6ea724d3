#include "ZrWindowDrag.h"

#include <QtGui/QMouseEvent>
#include <QtWidgets/QWidget>

ZrWindowDrag::ZrWindowDrag(QWidget *window)
    : m_window(window)
{
}

QRect ZrWindowDrag::topStrip(const QWidget &window, int heightPx)
{
    return QRect(window.frameGeometry().topLeft(), QSize(window.width(), heightPx));
}

bool ZrWindowDrag::press(QMouseEvent *event, const QRect &grip)
{
    m_dragging = event->button() == Qt::LeftButton && grip.contains(event->globalPos());
    if (!m_dragging)
        return false;
    m_offset = event->globalPos() - m_window->frameGeometry().topLeft();
    event->accept();
    return true;
}

bool ZrWindowDrag::move(QMouseEvent *event)
{
    if (!(event->buttons() & Qt::LeftButton))
        m_dragging = false;
    if (!m_dragging)
        return false;
    m_window->move(event->globalPos() - m_offset);
    event->accept();
    return true;
}

void ZrWindowDrag::release()
{
    m_dragging = false;
}
