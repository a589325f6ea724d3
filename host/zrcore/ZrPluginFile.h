#pragma once

#include "zrcore/zrcore_global.h"
#include "ZrPluginReason.h"

#include <QtCore/QByteArray>
#include <QtCore/QString>

/// What a plugin file says about itself, read without running any of its code.
///
/// Shape:   a value; read() gives one for any path. Beside "pluginId" the meta data may hold "title" and
///          "version".
/// Threads: any.
/// Errors:  `reason` is the first thing that is wrong, `detail` says more in English. Whatever the bytes are,
///          reading them is bounded. A file that is right in all but its seal has everything filled in and
///          the reason Unsealed, so that a manifest may vouch for it.
struct ZRCORE_EXPORT ZrPluginFile
{
    static constexpr qint64 maxBytes = 256 * 1024 * 1024;
    static constexpr int maxIdLength = 100;
    static constexpr int maxTextLength = 200;

    QString path; // absolute
    QString id;   // non-empty once the reason is None or Unsealed
    QString title;
    QString version;
    QString iid;       // of the interface that it offers
    QByteArray sha256; // of all its bytes; hexadecimal, lower case; empty if it can't be read
    ZrPluginReason reason = ZrPluginReason::None;
    QString detail;

    static ZrPluginFile read(const QString &path);
};
