#include "ZrSettingsStore.h"

#include <QtCore/QDebug>
#include <QtCore/QDir>
#include <QtCore/QStandardPaths>
#include <QtCore/QUrl>

namespace {
const QLatin1String defaultFile("client.ini");
const QLatin1String suffix(".ini");

/// A text as one element of a settings path: nothing in it separates groups or files. The prefix keeps an
/// empty text apart from none, and from the names that the format itself uses.
QString encoded(const QString &text)
{
    return QLatin1Char('_') + QString::fromLatin1(QUrl::toPercentEncoding(text));
}

/// The file's own name, or an empty text when it's no bare name.
QString bareFileName(const QString &file)
{
    if (file.isEmpty())
        return defaultFile;
    const bool isPath = file.contains(QLatin1Char('/')) || file.contains(QLatin1Char('\\')) ||
                        file.contains(QLatin1Char(':')) || file.contains(QLatin1String("..")) ||
                        file.contains(QChar::Null) || file.startsWith(QLatin1Char('.'));
    if (isPath || file.size() > 100)
        return QString();
    return file.endsWith(suffix, Qt::CaseInsensitive) ? file : file + suffix;
}
} // namespace

ZrSettingsStore::ZrSettingsStore() = default;

ZrSettingsStore::~ZrSettingsStore() = default;

void ZrSettingsStore::setFolder(const QString &folder)
{
    m_open.clear();
    m_folder = folder;
}

QString ZrSettingsStore::folder() const
{
    return m_folder.isEmpty() ? QStandardPaths::writableLocation(QStandardPaths::AppConfigLocation)
                              : m_folder;
}

QVariant ZrSettingsStore::value(const QString &key, const QString &group, const QString &file,
                                QSettings::Scope scope) const
{
    const QSettings *store = open(file, scope);
    return store ? store->value(encoded(group) + QLatin1Char('/') + encoded(key)) : QVariant();
}

void ZrSettingsStore::setValue(const QString &key, const QVariant &value, const QString &group,
                               const QString &file, QSettings::Scope scope)
{
    if (QSettings *store = open(file, scope))
        store->setValue(encoded(group) + QLatin1Char('/') + encoded(key), value);
}

void ZrSettingsStore::sync()
{
    for (const std::shared_ptr<QSettings> &store : qAsConst(m_open))
        store->sync();
}

QSettings *ZrSettingsStore::open(const QString &file, QSettings::Scope scope) const
{
    const QString name = bareFileName(file);
    if (name.isEmpty()) {
        qWarning() << "ZrCore::settings"
                   << "not a bare file name" << file;
        return nullptr;
    }
    const QString below = scope == QSettings::SystemScope ? QStringLiteral("system_") + name : name;
    const QString path = QDir(folder()).filePath(below);
    std::shared_ptr<QSettings> &store = m_open[path];
    if (!store) {
        store = std::make_shared<QSettings>(path, QSettings::IniFormat);
        store->setIniCodec("UTF-8");
    }
    return store.get();
}
