#pragma once

#include <QtCore/QList>
#include <QtCore/QObject>
#include <QtCore/QVariantMap>

#include <functional>

class QMainWindow;
class ZrPluginBaseWidget;
class ZrPluginDock;

/// The plugins of one menu, each in its dock in the workstation's window.
///
/// Shape:     open() has a plugin made, puts it into a dock below those that are there, and initialises it.
///            The first dock of a plugin is called by the plugin's ID, the next ones by that with "-2", "-3"
///            behind it. Plugins of the menu that are in one linkage group follow each other.
/// Ownership: docks are children of the window, which it borrows and lives shorter than.
/// Threads:   GUI thread only.
/// Errors:    null and one sentence.
class ZrPluginDesk : public QObject
{
    Q_OBJECT
public:
    /// Runs its argument, which makes, initialises and first paints a plugin of that ID, guarded against a
    /// crash.
    using Guard = std::function<void(const QString &pluginId, const std::function<void()> &work)>;

    ZrPluginDesk(QMainWindow *window, const QString &menuId);

    void setGuard(const Guard &guard) { m_guard = guard; }
    /// `properties` are the plugin's own; it gets them before it is initialised.
    ZrPluginDock *open(const QString &pluginId, const QVariantMap &properties, QString *error);
    /// In the order in which they were opened; those that are gone left out.
    QList<ZrPluginDock *> docks() const;
    /// What the plugin says of itself; empty for one that is no map.
    static QVariantMap dataOf(const ZrPluginDock *dock);

    /// To be called with each object that the host makes for a plugin: the dock has to stand before the
    /// plugin is initialised, or it would miss what the plugin then puts into its title.
    void prepare(const QString &pluginId, QObject *object);

signals:
    void signalOpened(ZrPluginDock *dock);
    void signalData(ZrPluginDock *dock, const QVariant &data);
    /// The user wants another plugin of that ID.
    void signalCopyWanted(const QString &pluginId);

private:
    ZrPluginDock *dockOf(ZrPluginBaseWidget *plugin) const;
    QString freeName(const QString &pluginId) const;
    ZrPluginDock *show(const QString &pluginId, ZrPluginBaseWidget *plugin);
    void place(ZrPluginDock *dock);

    QMainWindow *const m_window; // not owned
    const QString m_menuId;
    Guard m_guard;
};
