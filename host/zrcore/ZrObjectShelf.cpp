#include "ZrObjectShelf.h"

#include "zrcm/ZrKnownIds.h"
#include "ZrCorePlugin.h"
#include "ZrPluginLoader.h"

#include <QtCore/QDebug>
#include <QtCore/QDir>
#include <QtCore/QLibrary>

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
    const ZrPluginFile file = ZrPluginFile::read(path);
    if (file.reason != ZrPluginReason::None || m_files.contains(file.id))
        return;
    m_files.insert(file.id, file);
    ZrKnownIds::insert(file.id);
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
    const auto known = m_files.constFind(id);
    if (known == m_files.cend())
        return nullptr;
    ZrPluginFile file = *known;
    ZrCorePlugin *const plugin = ZrPluginLoader::load(&file);
    if (!plugin) {
        qWarning() << "ZrCore::createCustomObject" << id << file.detail;
        return nullptr;
    }
    return plugin->createObject();
}
