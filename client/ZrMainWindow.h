#pragma once

#include "zrskin/IZrSkin.h"

#include <QtWidgets/QMainWindow>

class ZrBlotterPanel;
class ZrBlotterToolBar;
class ZrPluginCatalogue;
class ZrPluginsDock;
class ZrShowcaseDocks;
class ZrStatusLine;

/// The workstation's window: docks, tool bar, status bar; behind the blotter a dock for each showcase page.
///
/// Ownership: normal QWidget parent rules.
/// Threads:   GUI thread only.
class ZrMainWindow : public QMainWindow, public IZrSkin
{
    Q_OBJECT
    Q_INTERFACES(IZrSkin)
public:
    ZrMainWindow(const QStringList &skins, const QString &skin, int maxRows);

    void loadSkin(const QVariant &css) override;
    ZrBlotterPanel *blotter() const { return m_blotter; }
    ZrBlotterToolBar *toolBar() const { return m_toolBar; }
    ZrStatusLine *statusLine() const { return m_status; }
    ZrShowcaseDocks *showcase() const { return m_showcase; }
    ZrPluginsDock *plugins() const { return m_plugins; }

    /// Adds the dock of the plugin files with its button. It comes to the front when a plugin ended the last
    /// start and stays closed otherwise. The catalogue is borrowed.
    void addPlugins(ZrPluginCatalogue *catalogue);

signals:
    void signalSkinChosen(const QString &skin);
    void signalClosed();

protected:
    void closeEvent(QCloseEvent *event) override;

private:
    void addDocks();
    void addShowcaseButton();

    ZrBlotterPanel *m_blotter;
    ZrBlotterToolBar *m_toolBar;
    ZrStatusLine *m_status;
    ZrShowcaseDocks *m_showcase = nullptr;
    ZrPluginsDock *m_plugins = nullptr;
};
