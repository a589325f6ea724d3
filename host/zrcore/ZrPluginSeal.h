#pragma once

#include <QtCore/QByteArray>

/// The line behind a plugin file's last byte that holds a hash of all before it.
///
/// Shape:   the build writes it (cmake/ZrSealFile.cmake). It tells damage, not intent: who can change a file
/// can
///          seal it again. For that there is the manifest.
/// Threads: reentrant.
struct ZrPluginSeal
{
    enum State {
        Missing,
        Broken, // there is one, of other bytes
        Whole
    };

    State state = Missing;
    QByteArray content; // the file without its seal; all of it when the seal is missing

    static ZrPluginSeal read(const QByteArray &file);
    /// The seal of a content, as the build would write it.
    static QByteArray lineFor(const QByteArray &content);
    /// SHA-256, hexadecimal, lower case.
    static QByteArray hashOf(const QByteArray &bytes);
};
