#include "ZrPluginNumbers.h"

ZrPluginNumbers &ZrPluginNumbers::instance()
{
    static ZrPluginNumbers *const numbers = new ZrPluginNumbers; // never destroyed, as its callers
    return *numbers;
}

int ZrPluginNumbers::next(const QString &pluginId)
{
    return m_next[pluginId]++;
}

void ZrPluginNumbers::reset()
{
    m_next.clear();
}
