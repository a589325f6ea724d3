#include "zrplugin/PluginManager.h"

#include <QtCore/QHash>

class PluginManager::Private
{
public:
    QHash<QString, int> made;
};

PluginManager::PluginManager()
    : d(new Private)
{
}

PluginManager::~PluginManager()
{
    delete d;
}

PluginManager *PluginManager::instance()
{
    static PluginManager manager;
    return &manager;
}

int PluginManager::getCurrentInstanceIDIndexByPluginID(const QString &pluginID)
{
    return d->made[pluginID]++;
}
