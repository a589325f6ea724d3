#pragma once

#include "zrskin/IZrSkin.h"

#include <QtWidgets/QMainWindow>

class ZrDeskToolBar;
class ZrPluginCatalogue;
class ZrPluginDesk;
class ZrPluginsDock;
class ZrShowcaseDocks;
class ZrStatusLine;

/// The workstation's window: tool bar, plugins in their docks, status bar; behind the first plugin a dock for
/// each showcase page.
///
/// Ownership: normal QWidget parent rules.
/// Threads:   GUI thread only.
class ZrMainWindow : public QMainWindow, public IZrSkin
{
    Q_OBJECT
    Q_INTERFACES(IZrSkin)
public:
    ZrMainWindow(const QStringList &skins, const QString &skin);

    void loadSkin(const QVariant &css) override;
    ZrPluginDesk *desk() const { return m_desk; }
    ZrDeskToolBar *toolBar() const { return m_toolBar; }
    ZrStatusLine *statusLine() const { return m_status; }
    ZrShowcaseDocks *showcase() const { return m_showcase; }
    ZrPluginsDock *plugins() const { return m_plugins; }

    /// Adds the dock of the plugin files with its button, behind the first plugin. It comes to the front when
    /// a plugin ended the last start and stays closed otherwise. The catalogue is borrowed.
    void addPlugins(ZrPluginCatalogue *catalogue);

signals:
    void signalSkinChosen(const QString &skin);
    void signalClosed();

protected:
    void closeEvent(QCloseEvent *event) override;

private:
    void connectParts();

    ZrDeskToolBar *m_toolBar;
    ZrPluginDesk *m_desk;
    ZrStatusLine *m_status;
    ZrShowcaseDocks *m_showcase;
    ZrPluginsDock *m_plugins = nullptr;
};
