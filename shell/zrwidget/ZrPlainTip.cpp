#include "ZrPlainTip.h"

#include "ZrPlainText.h"

#include <QtGui/QHelpEvent>
#include <QtWidgets/QToolTip>
#include <QtWidgets/QWidget>

ZrPlainTip::ZrPlainTip(QWidget *widget)
    : QObject(widget)
    , m_widget(widget)
{
    m_widget->installEventFilter(this);
}

bool ZrPlainTip::show(QWidget *widget, QEvent *event)
{
    if (event->type() != QEvent::ToolTip)
        return false;
    const QString text = widget->toolTip();
    if (text.isEmpty())
        event->ignore(); // so that a widget around this one may show its own
    else
        QToolTip::showText(static_cast<QHelpEvent *>(event)->globalPos(), ZrPlainText::toolTip(text), widget);
    return true;
}

bool ZrPlainTip::eventFilter(QObject *watched, QEvent *event)
{
    return (watched == m_widget && show(m_widget, event)) || QObject::eventFilter(watched, event);
}
