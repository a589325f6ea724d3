#include "ZrPluginDesk.h"

#include "ZrPluginDock.h"

#include "zrdefine/PluginPropety.h"

#include <QtWidgets/QMainWindow>

#include <algorithm>

namespace {
constexpr int MostDocks = 50; // a plugin that keeps asking for another one ends here

QString noSuchPlugin(const QString &pluginId)
{
    return QStringLiteral("there is no plugin \"%1\".").arg(pluginId.left(100));
}
} // namespace

ZrPluginDesk::ZrPluginDesk(QMainWindow *window, const QString &menuId)
    : QObject(window)
    , m_window(window)
    , m_menuId(menuId)
{
}

QList<ZrPluginDock *> ZrPluginDesk::docks() const
{
    QList<ZrPluginDock *> result =
        m_window->findChildren<ZrPluginDock *>(QString(), Qt::FindDirectChildrenOnly);
    result.erase(std::remove_if(result.begin(), result.end(),
                                [](const ZrPluginDock *dock) {
                                    return !dock->plugin() || !dock->plugin()->IsInitialized();
                                }),
                 result.end());
    return result;
}

QVariantMap ZrPluginDesk::dataOf(const ZrPluginDock *dock)
{
    return dock->plugin() ? dock->plugin()->getPluginData().toMap() : QVariantMap();
}

void ZrPluginDesk::prepare(const QString &pluginId, QObject *object)
{
    auto *const plugin = qobject_cast<ZrPluginBaseWidget *>(object);
    if (!plugin)
        return;
    auto *const dock = new ZrPluginDock(plugin, m_window);
    dock->setObjectName(freeName(pluginId));
    dock->setPluginId(pluginId);
    connect(dock, &ZrPluginDock::signalData, this,
            [this, dock](const QVariant &data) { emit signalData(dock, data); });
    connect(dock, &ZrPluginDock::signalCopyWanted, this, &ZrPluginDesk::signalCopyWanted);
}

ZrPluginDock *ZrPluginDesk::dockOf(ZrPluginBaseWidget *plugin) const
{
    const QList<ZrPluginDock *> all =
        m_window->findChildren<ZrPluginDock *>(QString(), Qt::FindDirectChildrenOnly);
    for (ZrPluginDock *const dock : all) {
        if (dock->plugin() == plugin)
            return dock;
    }
    return nullptr;
}

QString ZrPluginDesk::freeName(const QString &pluginId) const
{
    QString name = pluginId;
    for (int number = 2; m_window->findChild<QWidget *>(name, Qt::FindDirectChildrenOnly); ++number)
        name = QStringLiteral("%1-%2").arg(pluginId).arg(number);
    return name;
}

void ZrPluginDesk::place(ZrPluginDock *dock)
{
    dock->showAll();
    m_window->addDockWidget(Qt::TopDockWidgetArea, dock, Qt::Vertical);
    dock->show();
}

ZrPluginDock *ZrPluginDesk::open(const QString &pluginId, const QVariantMap &properties, QString *error)
{
    if (docks().size() >= MostDocks) {
        *error = QStringLiteral("there is no room for more than %1 plugins.").arg(MostDocks);
        return nullptr;
    }
    ZrPluginDock *dock = nullptr;
    const auto make = [&] {
        ZrPluginBaseWidget *const plugin = ZrPluginBaseWidget::createPluginWidgetByPluginID(
            pluginId, m_menuId + QLatin1Char('#'), {{PluginPropety::PLUGIN_CUSTOMPROP, properties}});
        if (plugin)
            dock = show(pluginId, plugin);
    };
    if (m_guard)
        m_guard(pluginId, make);
    else
        make();
    if (!dock) {
        *error = noSuchPlugin(pluginId);
        return nullptr;
    }
    emit signalOpened(dock);
    return dock;
}

ZrPluginDock *ZrPluginDesk::show(const QString &pluginId, ZrPluginBaseWidget *plugin)
{
    ZrPluginDock *dock = dockOf(plugin);
    if (!dock) {
        // Made by a maker that doesn't call prepare().
        prepare(pluginId, plugin);
        dock = dockOf(plugin);
    }
    place(dock);
    // Painted here and not only when the window is: a plugin that doesn't outlive its first paint would end
    // every start, and with all plugins in sight nobody could tell which of them it was.
    dock->grab();
    return dock;
}
