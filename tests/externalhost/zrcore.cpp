#include "zrcore/ZrCore.h"
#include "zrcm/Id.h"
#include "zrskin/IZrSkin.h"

class ZrCore::Private
{
public:
    QMap<QString, QVariant> settings, info;
};

ZrCore::ZrCore()
    : d(new Private)
{
}
ZrCore::~ZrCore()
{
    delete d;
}
QString ZrCore::getCurrentSkinId() const
{
    return QStringLiteral("external");
}
QWidget *ZrCore::mainWindow() const
{
    return nullptr;
}
void ZrCore::raiseWindow(QWidget *) {}
QVariant ZrCore::getCommonInfo(QString key) const
{
    return d->info.value(key);
}
void ZrCore::setCommonInfo(QString key, QVariant value)
{
    d->info.insert(key, value);
}
void ZrCore::newPluginCreated(const QString &, int) {}
QObject *ZrCore::createCustomObject(const Id &)
{
    return nullptr;
}

ZrCore *ZrCore::instance()
{
    static ZrCore core;
    return &core;
}

void ZrCore::addStyle2View(IZrSkin *view, const QString &)
{
    if (view)
        view->loadSkin(QVariant());
}

QVariant ZrCore::settings(const QString &key, const QString &group, const QString &, QSettings::Scope) const
{
    return d->settings.value(group + QLatin1Char('/') + key);
}

void ZrCore::saveSetting(const QString &key, const QVariant &value, const QString &group, const QString &,
                         QSettings::Scope)
{
    d->settings.insert(group + QLatin1Char('/') + key, value);
}
