#include "ZrTrackedWidgets.h"

void ZrTrackedWidgets::track(QWidget *widget)
{
    if (!widget || widget->hasMouseTracking())
        return;
    widget->setMouseTracking(true);
    m_widgets.emplace_back(widget);
}

void ZrTrackedWidgets::trackTree(QWidget *widget)
{
    if (!widget)
        return;
    track(widget);
    const auto below = widget->findChildren<QWidget *>();
    for (QWidget *const each : below)
        track(each);
}

void ZrTrackedWidgets::giveBack()
{
    for (const QPointer<QWidget> &widget : m_widgets) {
        if (widget)
            widget->setMouseTracking(false);
    }
    m_widgets.clear();
}
