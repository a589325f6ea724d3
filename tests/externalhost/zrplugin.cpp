#include "zrplugin/PluginManager.h"

class PluginManager::Private
{
public:
    int made = 0;
};

PluginManager::PluginManager()
    : d(new Private)
{
}
PluginManager::~PluginManager()
{
    delete d;
}
int PluginManager::getCurrentInstanceIDIndexByPluginID(const QString &)
{
    return d->made++;
}

PluginManager *PluginManager::instance()
{
    static PluginManager manager;
    return &manager;
}
