#include "ZrPluginCatalogue.h"

#include "ZrPluginManifest.h"
#include "ZrPluginMarks.h"
#include "ZrPluginSwitches.h"

#include "zrcore/ZrCorePlugin.h"
#include "zrcore/ZrPluginLoader.h"

#include <QtCore/QDir>
#include <QtCore/QElapsedTimer>
#include <QtCore/QFileInfo>
#include <QtCore/QHash>
#include <QtCore/QLibrary>
#include <QtCore/QScopeGuard>

namespace {
constexpr int maxFiles = 20000;
constexpr qint64 nsPerUs = 1000;
} // namespace

class ZrPluginCatalogue::Private
{
public:
    void readFolder(const QString &folder);
    void judge(ZrPluginEntry *entry);
    bool load(ZrPluginEntry *entry);
    ZrPluginEntry *usable(const QString &pluginId);

    Register registerMaker;
    ZrPluginManifest manifest;
    ZrPluginSwitches switches;
    // Shared with the makers, which may outlive the catalogue.
    std::shared_ptr<ZrPluginMarks> marks = std::make_shared<ZrPluginMarks>(QString());
    QVector<ZrPluginEntry> entries;
    QHash<QString, QString> fileOfId; // bare file names
    QStringList endedLastStart;
};

ZrPluginCatalogue::ZrPluginCatalogue(Register registerMaker)
    : d(new Private)
{
    d->registerMaker = std::move(registerMaker);
}

ZrPluginCatalogue::~ZrPluginCatalogue() = default;

QString ZrPluginCatalogue::scan(const Options &options)
{
    d->entries.clear();
    d->fileOfId.clear();
    d->manifest = ZrPluginManifest();
    d->marks = std::make_shared<ZrPluginMarks>(options.stateFolder);
    d->switches.open(options.stateFolder);
    d->endedLastStart = options.takeMarks ? d->marks->takeLeft() : QStringList();
    for (const QString &id : qAsConst(d->endedLastStart))
        d->switches.set(id, ZrPluginReason::EndedLastStart);
    if (!options.manifest.isEmpty()) {
        const QString wrong = d->manifest.read(options.manifest);
        if (!wrong.isEmpty())
            return wrong;
    }
    if (!options.folder.isEmpty() && !QFileInfo(options.folder).isDir())
        return QStringLiteral("there is no plugin folder %1.").arg(options.folder);
    if (!options.folder.isEmpty())
        d->readFolder(options.folder);
    return QString();
}

void ZrPluginCatalogue::Private::readFolder(const QString &folder)
{
    const QFileInfoList files = QDir(folder).entryInfoList(QDir::Files, QDir::Name);
    for (const QFileInfo &file : files) {
        if (!QLibrary::isLibrary(file.fileName()) || entries.size() >= maxFiles)
            continue;
        QElapsedTimer taken;
        taken.start();
        ZrPluginEntry entry;
        entry.file = ZrPluginFile::read(file.absoluteFilePath());
        judge(&entry);
        entry.readUs = taken.nsecsElapsed() / nsPerUs;
        entries.append(entry);
    }
}

void ZrPluginCatalogue::Private::judge(ZrPluginEntry *entry)
{
    ZrPluginFile &file = entry->file;
    const QString name = QFileInfo(file.path).fileName();
    const bool isRight = file.reason == ZrPluginReason::None || file.reason == ZrPluginReason::Unsealed;
    if (isRight && manifest.isOn()) {
        // A seal says that the bytes are whole, the manifest whose they are: the seal alone is not enough
        // then.
        const bool isAllowed = manifest.allows(name, file.sha256);
        file.reason = isAllowed ? ZrPluginReason::None : ZrPluginReason::NotInManifest;
        file.detail.clear();
    }
    if (file.reason == ZrPluginReason::None && fileOfId.contains(file.id)) {
        file.reason = ZrPluginReason::DoubleId;
        file.detail = fileOfId.value(file.id);
    }
    entry->state = file.reason == ZrPluginReason::None ? ZrPluginEntry::Found : ZrPluginEntry::Refused;
    if (entry->state == ZrPluginEntry::Refused)
        return;
    fileOfId.insert(file.id, name);
    file.reason = switches.reason(file.id);
    if (file.reason != ZrPluginReason::None)
        entry->state = ZrPluginEntry::SwitchedOff;
}

ZrPluginEntry *ZrPluginCatalogue::Private::usable(const QString &pluginId)
{
    for (ZrPluginEntry &entry : entries) {
        if (entry.file.id == pluginId && !pluginId.isEmpty() && entry.state != ZrPluginEntry::Refused)
            return &entry;
    }
    return nullptr;
}

bool ZrPluginCatalogue::Private::load(ZrPluginEntry *entry)
{
    const QString id = entry->file.id;
    marks->begin(id);
    QElapsedTimer taken;
    taken.start();
    ZrCorePlugin *const plugin = ZrPluginLoader::load(&entry->file);
    entry->loadUs = taken.nsecsElapsed() / nsPerUs;
    marks->end();
    entry->state = plugin ? ZrPluginEntry::Loaded : ZrPluginEntry::Refused;
    if (!plugin)
        return false;
    const std::shared_ptr<ZrPluginMarks> ownMarks = marks;
    registerMaker(id, [plugin, ownMarks, id]() -> QObject * {
        ownMarks->begin(id);
        QObject *const object = plugin->createObject();
        ownMarks->end();
        return object;
    });
    return true;
}

int ZrPluginCatalogue::loadAll()
{
    int loaded = 0;
    for (ZrPluginEntry &entry : d->entries) {
        if (entry.state == ZrPluginEntry::Found)
            d->load(&entry);
        if (entry.state == ZrPluginEntry::Loaded)
            ++loaded;
    }
    return loaded;
}

bool ZrPluginCatalogue::load(const QString &pluginId)
{
    ZrPluginEntry *const entry = d->usable(pluginId);
    return entry && (entry->state == ZrPluginEntry::Loaded || d->load(entry));
}

const QVector<ZrPluginEntry> &ZrPluginCatalogue::entries() const
{
    return d->entries;
}

QStringList ZrPluginCatalogue::loadedIds() const
{
    QStringList ids;
    for (const ZrPluginEntry &entry : qAsConst(d->entries)) {
        if (entry.state == ZrPluginEntry::Loaded)
            ids.append(entry.file.id);
    }
    return ids;
}

bool ZrPluginCatalogue::isLoaded(const QString &pluginId) const
{
    const ZrPluginEntry *const entry = d->usable(pluginId);
    return entry && entry->state == ZrPluginEntry::Loaded;
}

QStringList ZrPluginCatalogue::endedLastStart() const
{
    return d->endedLastStart;
}

bool ZrPluginCatalogue::setSwitchedOff(const QString &pluginId, bool off)
{
    const ZrPluginReason reason = off ? ZrPluginReason::SwitchedOff : ZrPluginReason::None;
    if (isSwitchedOff(pluginId) == off)
        return true;
    const bool isKept = d->switches.set(pluginId, reason);
    ZrPluginEntry *const entry = d->usable(pluginId);
    if (isKept && entry && entry->state != ZrPluginEntry::Loaded) {
        entry->state = off ? ZrPluginEntry::SwitchedOff : ZrPluginEntry::Found;
        entry->file.reason = reason;
    }
    return isKept;
}

bool ZrPluginCatalogue::isSwitchedOff(const QString &pluginId) const
{
    return d->switches.reason(pluginId) != ZrPluginReason::None;
}

void ZrPluginCatalogue::guarded(const QString &pluginId, const std::function<void()> &work)
{
    const std::shared_ptr<ZrPluginMarks> marks = d->marks; // the work may scan again
    marks->begin(pluginId);
    const auto done = qScopeGuard([&marks] { marks->end(); });
    work();
}
