#include "ZrPluginInstanceId.h"

QString ZrPluginInstanceId::compose(const QString &menuId, const QString &pluginId, int index)
{
    // Put together, not filled in: an ID may hold a "%1" of its own.
    return menuId + QLatin1Char('#') + pluginId + QLatin1String("#_") + QString::number(index);
}

QString ZrPluginInstanceId::menuId(const QString &instanceId)
{
    return instanceId.left(instanceId.indexOf(QLatin1Char('#'))); // a left() of -1 is the whole text
}
