#pragma once

#include <QtWidgets/QDockWidget>

class QMainWindow;
class QToolButton;
class ZrPluginCatalogue;
class ZrPluginsPanel;

/// The dock of the plugin files: closed as a rule, in front when a plugin ended the last start.
///
/// Ownership: normal QWidget parent rules; the catalogue is borrowed and lives longer.
/// Threads:   GUI thread only.
class ZrPluginsDock : public QDockWidget
{
    Q_OBJECT
public:
    explicit ZrPluginsDock(ZrPluginCatalogue *catalogue, QWidget *parent = nullptr);

    ZrPluginsPanel *panel() const { return m_panel; }
    /// Puts it into the window, behind the dock `front` when there is one.
    void placeIn(QMainWindow *window, QDockWidget *front);
    /// A button that opens and closes it. The parent's.
    QToolButton *makeButton(QWidget *parent) const;

private:
    ZrPluginsPanel *const m_panel;
    const bool m_isUrgent;
};
