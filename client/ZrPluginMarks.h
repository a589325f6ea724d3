#pragma once

#include <QtCore/QString>
#include <QtCore/QStringList>

/// Names on disk the plugin whose code is being tried right now, so that the next start knows it should the
/// process end there.
///
/// Shape:   one file for each process, written beside its place and renamed, gone when nothing is tried. It
/// tells
///          process, machine and plugins, the innermost last. Marks of living processes and of other
///          machines, which may share the folder, are not touched.
/// Threads: GUI thread only.
/// Errors:  a mark that can't be written gives one warning, and the plugin is tried without it.
class ZrPluginMarks
{
public:
    static constexpr int maxBytes = 16 * 1024;
    static constexpr int maxFiles = 100;

    /// The folder is made when the first mark is written; empty writes none.
    explicit ZrPluginMarks(const QString &folder);
    /// Takes away what this process marked.
    ~ZrPluginMarks();

    void begin(const QString &pluginId);
    void end();

    /// The plugins that processes which are gone left marked. Their marks are taken away.
    QStringList takeLeft() const;

private:
    Q_DISABLE_COPY(ZrPluginMarks)
    void write();

    const QString m_folder;
    QStringList m_tried; // the innermost last
    bool m_warned = false;
};
