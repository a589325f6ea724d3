#pragma once

#include <QtCore/QHash>
#include <QtCore/QSettings>

#include <memory>

/// The client's settings: INI files in one folder.
///
/// Shape:     group and key are any text; both are encoded, so that neither is ever a path of nested
///            groups or of files. An empty file name is "client.ini"; another one names an INI file in
///            the same folder. System scope has files of its own beside them.
/// Threads:   GUI thread only.
/// Errors:    a file name that isn't a bare name is refused with a warning: reads give an invalid
///            variant, writes do nothing.
class ZrSettingsStore
{
public:
    ZrSettingsStore();
    ~ZrSettingsStore();

    /// Where the files lie; empty for the user's configuration folder.
    void setFolder(const QString &folder);
    QString folder() const;

    QVariant value(const QString &key, const QString &group, const QString &file,
                   QSettings::Scope scope) const;
    void setValue(const QString &key, const QVariant &value, const QString &group, const QString &file,
                  QSettings::Scope scope);
    /// Writes what is still in memory.
    void sync();

private:
    Q_DISABLE_COPY(ZrSettingsStore)
    QSettings *open(const QString &file, QSettings::Scope scope) const;

    QString m_folder;
    mutable QHash<QString, std::shared_ptr<QSettings>> m_open; // path to its file
};
