#pragma once

#include "zrplugin/zrplugin_global.h"

#include <QtCore/QString>

/// Numbers the instances of plugins.
///
/// Threads: GUI thread only.
class ZRPLUGIN_EXPORT PluginManager
{
public:
    static PluginManager *instance();

    /// The number of the next instance of that plugin, the last element of its instance ID. Each
    /// call gives a new one; an unknown ID counts like any other.
    int getCurrentInstanceIDIndexByPluginID(const QString &pluginID);

private:
    PluginManager();
    ~PluginManager();
    Q_DISABLE_COPY(PluginManager)
    class Private;
    Private *d;
};
