#include "zrcore/ZrCore.h"

#include "ZrCoreHost_p.h"

#include "zrcm/Id.h"
#include "zrskin/IZrSkin.h"

namespace {
constexpr int maxPluginsCreated = 10000;
}

class ZrCore::Private
{
public:
    ZrCoreHost::Private &host = *ZrCoreHost::instance().d;
};

ZrCore::ZrCore()
    : d(new Private)
{
}

ZrCore::~ZrCore()
{
    delete d;
}

ZrCore *ZrCore::instance()
{
    static ZrCore *const core = new ZrCore; // never destroyed, as ZrCoreHost
    return core;
}

void ZrCore::addStyle2View(IZrSkin *view, const QString &cssPath)
{
    if (view)
        d->host.views.add(view, cssPath);
}

QString ZrCore::getCurrentSkinId() const
{
    return d->host.skins.current();
}

QWidget *ZrCore::mainWindow() const
{
    return d->host.mainWindow;
}

void ZrCore::raiseWindow(QWidget *window)
{
    if (!window)
        return;
    QWidget *const top = window->window();
    top->setWindowState(top->windowState() & ~Qt::WindowMinimized);
    top->show();
    top->raise();
    top->activateWindow();
}

QVariant ZrCore::settings(const QString &key, const QString &group, const QString &file,
                          QSettings::Scope scope) const
{
    return d->host.settings.value(key, group, file, scope);
}

void ZrCore::saveSetting(const QString &key, const QVariant &value, const QString &group, const QString &file,
                         QSettings::Scope scope)
{
    d->host.settings.setValue(key, value, group, file, scope);
}

QVariant ZrCore::getCommonInfo(QString key) const
{
    return d->host.commonInfo.value(key);
}

void ZrCore::setCommonInfo(QString key, QVariant value)
{
    d->host.commonInfo.insert(key, value);
}

void ZrCore::newPluginCreated(const QString &pluginInstanceID, int elapsedMs)
{
    if (d->host.pluginsCreated.size() >= maxPluginsCreated)
        d->host.pluginsCreated.removeFirst();
    d->host.pluginsCreated.append({pluginInstanceID, elapsedMs});
}

QObject *ZrCore::createCustomObject(const Id &id)
{
    return id.isNull() ? nullptr : d->host.objects.make(id.toString());
}
