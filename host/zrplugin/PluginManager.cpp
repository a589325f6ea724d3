#include "zrplugin/PluginManager.h"

#include "ZrPluginNumbers.h"

class PluginManager::Private
{
public:
    ZrPluginNumbers &numbers = ZrPluginNumbers::instance();
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
    static PluginManager *const manager = new PluginManager; // never destroyed: callers don't test it
    return manager;
}

int PluginManager::getCurrentInstanceIDIndexByPluginID(const QString &pluginID)
{
    return d->numbers.next(pluginID);
}
