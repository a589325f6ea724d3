#pragma once

#include "zrcore/zrcore_global.h"
#include "ZrPluginFile.h"

class ZrCorePlugin;

/// Loads a plugin file whose content somebody has vouched for.
///
/// Shape:     all symbols are resolved at once, so that one that is missing shows here and not in the middle
/// of a
///            trading day. The file is read again just before: other bytes than at the look before are
///            Damaged.
/// Ownership: what is loaded stays until the process ends, since objects of its code may live; the plugin
///            object is its own.
/// Threads:   GUI thread only.
/// Errors:    null; the reason and detail of `file` tell why. Whether the file was read as right is not asked
///            here: its reason is overwritten.
class ZRCORE_EXPORT ZrPluginLoader
{
public:
    static ZrCorePlugin *load(ZrPluginFile *file);
};
