#include "ZrObjectShelf.h"

#include "zrcm/ZrKnownIds.h"
#include "ZrCorePlugin.h"

#include <QtCore/QDebug>
#include <QtCore/QDir>
#include <QtCore/QJsonObject>
#include <QtCore/QLibrary>
#include <QtCore/QPluginLoader>

ZrObjectShelf::ZrObjectShelf() = default;

ZrObjectShelf::~ZrObjectShelf()
{
    clear();
}

void ZrObjectShelf::setMaker(const QString &id, Maker maker)
{
    if (m_makers.remove(id) > 0)
        ZrKnownIds::remove(id);
    if (!maker || id.isEmpty())
        return;
    m_makers.insert(id, maker);
    ZrKnownIds::insert(id);
}

void ZrObjectShelf::setFolder(const QString &folder)
{
    for (auto it = m_files.cbegin(); it != m_files.cend(); ++it)
        ZrKnownIds::remove(it.key());
    m_files.clear();
    if (folder.isEmpty())
        return;
    const QFileInfoList files = QDir(folder).entryInfoList(QDir::Files, QDir::Name);
    for (const QFileInfo &file : files) {
        if (QLibrary::isLibrary(file.fileName()))
            addFile(file.absoluteFilePath());
    }
}

void ZrObjectShelf::clear()
{
    const QStringList madeHere = m_makers.keys();
    for (const QString &id : madeHere)
        setMaker(id, Maker());
    setFolder(QString());
}

void ZrObjectShelf::addFile(const QString &path)
{
    const QJsonObject meta = QPluginLoader(path).metaData();
    if (meta.value(QLatin1String("IID")).toString() != QLatin1String(ZrCorePlugin_iid))
        return;
    const QJsonObject own = meta.value(QLatin1String("MetaData")).toObject();
    const QString id = own.value(QLatin1String("pluginId")).toString();
    if (id.isEmpty() || m_files.contains(id))
        return;
    m_files.insert(id, path);
    ZrKnownIds::insert(id);
}

QStringList ZrObjectShelf::ids() const
{
    QStringList all;
    for (auto maker = m_makers.cbegin(); maker != m_makers.cend(); ++maker)
        all.append(maker.key());
    for (auto file = m_files.cbegin(); file != m_files.cend(); ++file)
        all.append(file.key());
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
