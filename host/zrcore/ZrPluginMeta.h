#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QJsonObject>
#include <QtCore/QString>

/// The meta data that the toolkit's compiler puts into a plugin, read from their section's bytes.
///
/// Shape:   a signature, four bytes that tell the toolkit, then a binary map.
/// Threads: reentrant.
/// Errors:  read() gives false when the bytes are no such data, hold more than maxBytes, or claim more than
/// they
///          hold.
struct ZrPluginMeta
{
    static constexpr int maxBytes = 256 * 1024;

    int toolkitMajor = 0;
    int toolkitMinor = 0;
    QString iid;
    QString className;
    QJsonObject own; // what the plugin's author wrote

    static bool read(const QByteArray &section, ZrPluginMeta *meta);
    /// Whether this process's toolkit can run a plugin made with that one.
    bool fitsToolkit() const;
};
