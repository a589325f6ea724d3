#pragma once

#include <QtCore/QPointer>
#include <QtCore/QVariantMap>
#include <QtWidgets/QFrame>

class QHBoxLayout;
class QLabel;
class QToolButton;
class ZrAccountBox;
class ZrPluginBaseWidget;

/// The title above a plugin, as the plugin's properties want it.
///
/// Shape:     icon, title, the plugin's own widgets of the left side, room, those of the right side (its
///            linkage among them), account box, then the buttons copy, setting, refresh, dock and close.
/// Units:     logical px.
/// Ownership: normal QWidget parent rules. Borrows the plugin. The plugin's own widgets are our children
///            while they stand here; giveBack() and removeCustomWidget() make them the plugin's again.
/// Threads:   GUI thread only.
/// Errors:    a title is shown as plain text, an icon outside of the skin's folder not at all.
class ZrPluginTitleBar : public QFrame
{
    Q_OBJECT
public:
    explicit ZrPluginTitleBar(ZrPluginBaseWidget *plugin, QWidget *parent = nullptr);

    /// Shows the property of that name anew; all of them for an empty one.
    void showProperty(const QString &name);
    void addCustomWidget(QWidget *widget, bool right);
    void removeCustomWidget(QWidget *widget);
    void showAccount(const QVariantMap &account);
    /// Lights the title of the plugin that the user works in.
    void showSelected(bool selected);
    /// Makes the plugin's own widgets its children again, hidden, before one of both goes.
    void giveBack();

    /// The title as it stands in the property, bounded in length.
    QString title() const { return m_title; }

signals:
    void signalCopy();
    void signalSetting();
    void signalRefresh();
    void signalDock();
    void signalClose();
    void signalAccountChosen(const QVariantMap &account);

protected:
    void resizeEvent(QResizeEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    using Signal = void (ZrPluginTitleBar::*)();

    void createParts();
    QToolButton *addButton(const char *name, const QString &text, Signal signal);
    bool isOn(const QString &property, bool whenUnset) const;
    void showTitle();
    void showIcon();
    void showAccountBox();
    void elideTitle();

    QPointer<ZrPluginBaseWidget> m_plugin; // not owned
    QString m_title;
    QLabel *m_icon = nullptr;
    QLabel *m_text = nullptr;
    QHBoxLayout *m_left = nullptr;
    QHBoxLayout *m_right = nullptr;
    ZrAccountBox *m_account = nullptr; // null until the plugin first wants one
    QList<QPointer<QWidget>> m_customWidgets;
};
