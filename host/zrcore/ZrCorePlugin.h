#pragma once

#include <QtCore/QtPlugin>

class QObject;

/// What a plugin file of the client offers: its root object makes the plugin object.
///
/// The root object names Q_PLUGIN_METADATA(IID ZrCorePlugin_iid FILE "x.json") with a "pluginId" in
/// the file, and Q_INTERFACES(ZrCorePlugin). Its target is sealed by zr_seal_plugin() of the CMake package.
/// Ownership: what createObject makes is the caller's.
/// Threads:   GUI thread only.
class ZrCorePlugin
{
public:
    virtual ~ZrCorePlugin() = default;
    virtual QObject *createObject() = 0;
};

#define ZrCorePlugin_iid "zrwidget.host.CorePlugin/1"
Q_DECLARE_INTERFACE(ZrCorePlugin, ZrCorePlugin_iid)
