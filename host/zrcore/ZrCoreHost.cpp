#include "ZrCoreHost_p.h"

#include "zrcore/ZrCore.h"

#include <QtCore/QDebug>
#include <QtCore/QDir>

ZrCoreHost &ZrCoreHost::instance()
{
    // Never destroyed: a view may outlive the process's statics.
    static ZrCoreHost *const host = new ZrCoreHost;
    return *host;
}

ZrCoreHost::ZrCoreHost()
    : d(new Private)
{
}

ZrCoreHost::~ZrCoreHost() = default;

void ZrCoreHost::setConfigFolder(const QString &folder)
{
    d->settings.setFolder(folder);
}

QString ZrCoreHost::configFolder() const
{
    return d->settings.folder();
}

void ZrCoreHost::setDataFolder(const QString &folder)
{
    QDir::setSearchPaths(QStringLiteral("ZRData"), folder.isEmpty() ? QStringList() : QStringList{folder});
}

void ZrCoreHost::setSkinRoot(const QString &root)
{
    d->skins.setRoot(root);
}

QStringList ZrCoreHost::skinIds() const
{
    return d->skins.skinIds();
}

bool ZrCoreHost::setSkin(const QString &skinId)
{
    if (skinId == d->skins.current())
        return true;
    if (!d->skins.choose(skinId)) {
        qWarning() << "ZrCoreHost::setSkin"
                   << "no such skin" << skinId;
        return false;
    }
    d->views.reload();
    emit ZrCore::instance()->signalSkinChanged(skinId);
    return true;
}

int ZrCoreHost::skinnedViewCount() const
{
    return d->views.count();
}

void ZrCoreHost::setMainWindow(QWidget *window)
{
    d->mainWindow = window;
}

void ZrCoreHost::setObjectMaker(const QString &pluginId, std::function<QObject *()> maker)
{
    d->objects.setMaker(pluginId, std::move(maker));
}

void ZrCoreHost::setPluginFolder(const QString &folder)
{
    d->objects.setFolder(folder);
}

QStringList ZrCoreHost::pluginIds() const
{
    return d->objects.ids();
}

QList<QPair<QString, int>> ZrCoreHost::pluginsCreated() const
{
    return d->pluginsCreated;
}

void ZrCoreHost::syncSettings()
{
    d->settings.sync();
}

void ZrCoreHost::reset()
{
    d->settings.setFolder(QString());
    setDataFolder(QString());
    d->skins = ZrSkinShelf();
    d->skins.setRoot(QString());
    d->objects.clear();
    d->mainWindow.clear();
    d->commonInfo.clear();
    d->pluginsCreated.clear();
}
