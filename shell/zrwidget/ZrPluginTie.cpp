#include "ZrPluginTie.h"

#include "ZrFamilyInterface.h"

ZrPluginTie::~ZrPluginTie() = default;

ZrPluginTie *ZrPluginTie::of(QObject *plugin)
{
    return zrFamilyInterface<ZrPluginTie>(plugin);
}
