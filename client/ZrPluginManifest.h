#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QHash>
#include <QtCore/QString>

/// The plugin files that a desk has approved, each with its SHA-256.
///
/// Shape:   lines as sha256sum writes them: 64 hexadecimal digits, two blanks (or a blank and a star), a bare
/// file
///          name. Empty lines and lines that begin with "#" are comments.
/// Threads: reentrant.
/// Errors:  one line that can't be understood makes the whole manifest unusable: read() gives one sentence
/// with
///          its number. A desk that switched the manifest on must not run on half of it.
class ZrPluginManifest
{
public:
    static constexpr int maxBytes = 1024 * 1024;

    /// Empty, or one sentence.
    QString read(const QString &path);
    bool isOn() const { return m_isOn; }
    int count() const { return m_hashes.size(); }
    /// Whether the file of that bare name may hold bytes of that hash (lower case).
    bool allows(const QString &fileName, const QByteArray &sha256) const;

private:
    bool readLine(const QByteArray &line);

    bool m_isOn = false;
    QHash<QString, QByteArray> m_hashes; // by file name
};
