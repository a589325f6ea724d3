#include "ZrPluginTitleWidgets.h"

#include <QtCore/QPointer>
#include <QtWidgets/QWidget>

ZrPluginTitleWidgets::ZrPluginTitleWidgets(QObject *parent)
    : QObject(parent)
{
}

void ZrPluginTitleWidgets::add(QWidget *widget, bool right)
{
    if (!widget || m_widgets.contains(widget))
        return;
    m_widgets.append(widget);
    connect(widget, &QObject::destroyed, this, [this, widget] { m_widgets.removeAll(widget); });
    emit added(widget, right);
}

void ZrPluginTitleWidgets::remove(QWidget *widget)
{
    const QPointer<ZrPluginTitleWidgets> self(this); // a listener may end the plugin
    const QList<QWidget *> leaving = widget ? QList<QWidget *>{widget} : m_widgets;
    for (QWidget *const next : leaving) {
        if (!self)
            return;
        if (m_widgets.contains(next)) // or a listener has ended it
            take(next);
    }
}

void ZrPluginTitleWidgets::take(QWidget *widget)
{
    const QPointer<ZrPluginTitleWidgets> self(this);
    const QPointer<QWidget> alive(widget);
    widget->hide();
    emit removed(widget);
    if (!self)
        return;
    m_widgets.removeAll(widget);
    if (alive)
        disconnect(widget, &QObject::destroyed, this, nullptr);
}
