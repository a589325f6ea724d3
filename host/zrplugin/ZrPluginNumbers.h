#pragma once

#include "zrplugin/zrplugin_global.h"

#include <QtCore/QHash>
#include <QtCore/QString>

/// How many instances of each plugin were numbered.
///
/// Threads: GUI thread only.
class ZRPLUGIN_EXPORT ZrPluginNumbers
{
public:
    static ZrPluginNumbers &instance();

    /// The first number of a plugin is 0.
    int next(const QString &pluginId);
    /// Begins anew: instance IDs, and the settings kept under them, come back in the order of the last start.
    void reset();

private:
    QHash<QString, int> m_next;
};
