#include "ZrObjectShelf.h"

#include "ZrCorePlugin.h"

#include <QtCore/QDebug>
#include <QtCore/QDir>
#include <QtCore/QJsonObject>
#include <QtCore/QLibrary>
#include <QtCore/QPluginLoader>

void ZrObjectShelf::setMaker(const QString &id, Maker maker)
{
    if (maker && !id.isEmpty())
        m_makers.insert(id, std::move(maker));
    else
        m_makers.remove(id);
}

void ZrObjectShelf::setFolder(const QString &folder)
{
    m_files.clear();
    if (folder.isEmpty())
        return;
    const QFileInfoList files = QDir(folder).entryInfoList(QDir::Files, QDir::Name);
    for (const QFileInfo &file : files) {
        if (!QLibrary::isLibrary(file.fileName()))
            continue;
        const QJsonObject meta = QPluginLoader(file.absoluteFilePath()).metaData();
        if (meta.value(QLatin1String("IID")).toString() != QLatin1String(ZrCorePlugin_iid))
            continue;
        const QJsonObject own = meta.value(QLatin1String("MetaData")).toObject();
        const QString id = own.value(QLatin1String("pluginId")).toString();
        if (!id.isEmpty() && !m_files.contains(id))
            m_files.insert(id, file.absoluteFilePath());
    }
}

void ZrObjectShelf::clear()
{
    m_makers.clear();
    m_files.clear();
}

bool ZrObjectShelf::knows(const QString &id) const
{
    return m_makers.contains(id) || m_files.contains(id);
}

QStringList ZrObjectShelf::ids() const
{
    QStringList all = m_makers.keys() + m_files.keys();
    all.removeDuplicates();
    all.sort();
    return all;
}

QObject *ZrObjectShelf::make(const QString &id) const
{
    const Maker maker = m_makers.value(id);
    if (maker)
        return maker();
    const QString path = m_files.value(id);
    if (path.isEmpty())
        return nullptr;
    QPluginLoader loader(path);
    ZrCorePlugin *const plugin = qobject_cast<ZrCorePlugin *>(loader.instance());
    if (!plugin) {
        qWarning() << "ZrCore::createCustomObject" << id << loader.errorString();
        return nullptr;
    }
    return plugin->createObject();
}
