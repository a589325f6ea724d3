#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QRandomGenerator>
#include <QtCore/QString>

/// Plugin files for tests: real ones, and what can become of them.
namespace PluginScene {
/// The bytes of a test plugin such as "sound", with its seal.
QByteArray file(const QString &name);
/// Without the seal.
QByteArray content(const QByteArray &file);
/// The seal as the build appends it, made here anew.
QByteArray sealed(const QByteArray &content);
/// The first place of `from` replaced by `to`; both of one length. Fails the test by an empty result.
QByteArray patched(const QByteArray &content, const QByteArray &from, const QByteArray &to);
/// The content with other meta data: signature and toolkit as they were, then `map`.
QByteArray withMeta(const QByteArray &content, const QByteArray &map);
/// Cut, turned, overwritten, shifted: always another file than before.
QByteArray damaged(const QByteArray &file, QRandomGenerator *random);
QByteArray sha256(const QByteArray &bytes);
bool write(const QString &path, const QByteArray &bytes);
} // namespace PluginScene
