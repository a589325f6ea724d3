#pragma once

#include <QtWidgets/QToolBar>

class QComboBox;
class QMenu;
class QToolButton;

/// The workstation's tool bar: skin, plugins to open, showcase.
///
/// Ownership: normal QWidget parent rules.
/// Threads:   GUI thread only.
class ZrDeskToolBar : public QToolBar
{
    Q_OBJECT
public:
    ZrDeskToolBar(const QStringList &skins, const QString &skin, QWidget *parent = nullptr);

    /// The plugins that can be opened, by ID and title.
    void setPlugins(const QList<QPair<QString, QString>> &plugins);
    /// A button with a menu; the menu becomes the bar's.
    QToolButton *addMenu(const QString &name, const QString &text, const QString &tip, QMenu *menu);

signals:
    void signalSkinChosen(const QString &skin);
    void signalPluginChosen(const QString &pluginId);

private:
    void addSkins(const QStringList &skins, const QString &skin);

    QMenu *m_plugins;
};
