#pragma once

#include "ZrPluginBaseWidget.h"

#include <QtCore/QPointer>
#include <QtCore/QVariant>
#include <QtWidgets/QDockWidget>

class ZrPluginTitleBar;

/// The frame that the workstation puts around a plugin: a dock under the plugin's own title.
///
/// Shape:     made before the plugin is initialised, so that it hears all that the plugin says about its
///            title; attach() then names the dock.
/// Units:     logical px.
/// Ownership: normal QWidget parent rules; owns the plugin. Goes by deleteLater() once closed, also when the
///            plugin goes first.
/// Threads:   GUI thread only.
/// Errors:    a plugin that refuses to be closed stays, and its reason is shown.
class ZrPluginDock : public QDockWidget
{
    Q_OBJECT
public:
    explicit ZrPluginDock(ZrPluginBaseWidget *plugin, QWidget *parent = nullptr);
    ~ZrPluginDock() override;

    /// Null once the plugin is gone.
    ZrPluginBaseWidget *plugin() const { return m_plugin; }
    ZrPluginTitleBar *title() const { return m_title; }
    QString pluginId() const { return m_pluginId; }
    void setPluginId(const QString &pluginId) { m_pluginId = pluginId; }
    /// Shows all properties anew: a plugin may have set some without a word while it was initialised, its
    /// icon among them.
    void showAll() { showProperty(QString()); }

signals:
    /// The user wants a second one beside this.
    void signalCopyWanted(const QString &pluginId);
    /// What the plugin tells the window.
    void signalData(const QVariant &data);

protected:
    void closeEvent(QCloseEvent *event) override;
    void moveEvent(QMoveEvent *event) override;

private:
    void connectTitle();
    void connectPlugin();
    void connectRegistry();
    void showProperty(const QString &name);
    void takeNormalSize(bool floating);
    void followFocus(QWidget *now);
    void tellRefusal(const QString &reason);
    void closeForPlugin();

    QPointer<ZrPluginBaseWidget> m_plugin; // our child
    ZrPluginTitleBar *m_title;             // our child
    QString m_pluginId;
    bool m_selected = false;
};
