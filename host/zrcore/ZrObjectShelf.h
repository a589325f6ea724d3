#pragma once

#include "ZrPluginFile.h"

#include <QtCore/QHash>
#include <QtCore/QString>
#include <QtCore/QStringList>

#include <functional>

class QObject;

/// The objects that the client can make by ID: registered in code, or plugins found in a folder.
///
/// Shape:     a plugin file's meta data holds "pluginId"; only that is read until the object is asked
///            for. What is registered in code goes before a file of the same ID. Of two files with one ID the
///            first by name counts.
/// Ownership: makers are kept; what they make is the caller's.
/// Threads:   GUI thread only.
/// Errors:    a file that is no plugin, is damaged or unsealed, or names no ID is skipped.
class ZrObjectShelf
{
public:
    using Maker = std::function<QObject *()>;

    ZrObjectShelf();
    ~ZrObjectShelf();

    /// An empty maker takes the ID away.
    void setMaker(const QString &id, Maker maker);
    /// Reads which plugins lie in the folder; empty for none.
    void setFolder(const QString &folder);
    void clear();
    QStringList ids() const;
    QObject *make(const QString &id) const;

private:
    Q_DISABLE_COPY(ZrObjectShelf)
    void addFile(const QString &path);

    QHash<QString, Maker> m_makers;
    QHash<QString, ZrPluginFile> m_files; // by ID
};
