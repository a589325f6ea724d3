#pragma once

#include "zrcore/ZrPluginReason.h"

#include <QtCore/QHash>
#include <QtCore/QString>

/// Which plugins a start leaves out, and whether the user wanted that or a start that ended.
///
/// Shape:   kept in "plugins.json" of the folder, read again before each write, since another workstation may
///          share it. Without a folder they live in memory.
/// Threads: GUI thread only.
/// Errors:  a file that can't be read as such switches nothing off, with one warning; set() gives false when
/// the
///          file can't be written.
class ZrPluginSwitches
{
public:
    static constexpr int maxBytes = 1024 * 1024;
    static constexpr int maxIds = 1000;

    void open(const QString &folder);
    /// EndedLastStart, SwitchedOff, or None for a plugin that is wanted.
    ZrPluginReason reason(const QString &pluginId) const;
    bool set(const QString &pluginId, ZrPluginReason reason);

private:
    void read();
    bool write() const;

    QString m_path;                       // empty: in memory
    QHash<QString, ZrPluginReason> m_off; // by plugin ID
};
