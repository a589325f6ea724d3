#include "ZrPluginEvents.h"

#include "ZrPluginBaseWidget_p.h"

#include "zrdefine/PluginPropety.h"

#include <QtWidgets/QWidget>

bool ZrPluginEvents::isEvent(int type)
{
    return type >= Initialized && type <= Moved;
}

int ZrPluginEvents::flagOf(int type)
{
    switch (type) {
    case Initialized:
        return ZrPluginBaseWidgetPrivate::NotifyInitialized;
    case ClosedByUser:
        return ZrPluginBaseWidgetPrivate::NotifyClosed;
    case Selected:
        return ZrPluginBaseWidgetPrivate::NotifySelected;
    case Resized:
        return ZrPluginBaseWidgetPrivate::NotifyResized;
    case Moved:
        return ZrPluginBaseWidgetPrivate::NotifyMoved;
    }
    return 0;
}

QVariantMap ZrPluginEvents::record(int type, const QString &instanceId, const QWidget &widget, bool selected)
{
    QVariantMap fields{{PluginPropety::PLUGININSTANCE_ID, instanceId}};
    if (type == Selected) {
        fields.insert(PluginPropety::PluginSelectState, selected);
    } else if (type == Resized) {
        fields.insert(PluginPropety::PLUGINWIDGET_NORMALWIDTH, widget.width());
        fields.insert(PluginPropety::PLUGINWIDGET_NORMALHEIGHT, widget.height());
    } else if (type == Moved) {
        const QPoint origin = widget.mapToGlobal(QPoint());
        fields.insert(PluginPropety::PluginPosLeft, origin.x());
        fields.insert(PluginPropety::PluginPosTop, origin.y());
    }
    return fields;
}
