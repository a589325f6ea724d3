#pragma once

#include "zrwidget_global.h"

#include <QtCore/QString>

/// The ID of a plugin instance: "<menu ID>#<plugin ID>#_<index>". It is the plugin's name on the bus and the
/// key of its settings.
///
/// Threads: any.
/// Errors:  a text without "#" is a menu ID.
class ZRWIDGET_PRIVATE_EXPORT ZrPluginInstanceId
{
public:
    static QString compose(const QString &menuId, const QString &pluginId, int index);
    /// All before the first "#".
    static QString menuId(const QString &instanceId);

private:
    ZrPluginInstanceId() = delete;
};
