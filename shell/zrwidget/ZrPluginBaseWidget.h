#pragma once

#include "zrskin/IZrSkin.h"
#include "zrwidget_global.h"

#include <QtCore/QMap>
#include <QtCore/QString>
#include <QtCore/QVariant>
#include <QtWidgets/QWidget>

class ZrPluginBaseWidgetPrivate;
class ZrPresenterClass;
class ZrTableView;
class ZrViewBase;

/// Base of every plugin that has a window. A plugin derives from it, implements initPlugin, and of the other
/// virtual operations those that it needs.
///
/// Shape:     what the host builds around a plugin (title, buttons, account box) it reads from the widget's
///            dynamic properties, whose names are in PluginPropety; signalPluginPropetyChanged of the private
///            object tells of changes. What happens to the widget goes to the bus as plugin events, each only
///            when its bit is set in the notify flags.
///            A plugin instance ID is "<menu ID>#<plugin ID>#_<index>".
/// Units:     durations in ms, sizes in logical px.
/// Ownership: normal QWidget parent rules. The presenter isn't owned: who made it ends it, and the plugin
///            forgets it as it goes. Views are borrowed.
/// Threads:   GUI thread only; the presenter may go on any thread.
/// Errors:    what asks for the bus without a presenter does nothing.
class ZRWIDGET_EXPORT ZrPluginBaseWidget : public QWidget, public IZrSkin
{
    Q_OBJECT
    Q_INTERFACES(IZrSkin)
public:
    enum CustomWidgetOper : int { RemoveCustomWidget = 0, AddCustomWidget = 1 };     // all but 1 removes
    enum CustomWidgetPosition : int { CustomWidgetLeft = 1, CustomWidgetRight = 2 }; // all but 2 is left
    /// Index of a group's colour.
    enum LinkageGroupID : int {
        LinkageGroupNone = -1,
        LinkageGroupOrange = 0,
        LinkageGroupYellow = 1,
        LinkageGroupBlue = 2,
        LinkageGroupIndigo = 3,
        LinkageGroupPurple = 4
    };
    Q_ENUM(CustomWidgetOper)
    Q_ENUM(CustomWidgetPosition)
    Q_ENUM(LinkageGroupID)

    /// Colours that a plugin may give its title.
    struct ZRWIDGET_EXPORT TitleColorFlag
    {
        static const QString Green;
        static const QString Red;
        static const QString Yellow;
    };

    explicit ZrPluginBaseWidget(QWidget *parent = nullptr);
    ~ZrPluginBaseWidget() override;

    // The order of the virtual operations is part of the binary interface.
    /// The plugin's own initialisation; called once, by createPluginWidgetByPluginID.
    virtual void initPlugin() = 0;
    /// The refresh button was pressed.
    virtual void refresh();
    /// A dynamic property has changed, whoever set it, or the account: then `name` is
    /// Constants::USER_ACCOUNT.
    virtual void setBaseData(const QString &name, const QVariant &value);
    /// 0 when the plugin may be closed; otherwise `reason` tells the user why not.
    virtual int isCloseable(QString &reason);
    virtual void doBeforeClose();
    virtual void pluginSelectStateChanged(bool selected);
    virtual void pressConfigurationButton();
    /// What a layout keeps of the plugin and gives back by setPluginData.
    virtual QVariant getPluginData();
    virtual void setPluginData(QVariant &data);
    /// Pages of the layout configuration by name. The widgets stay the plugin's.
    virtual QMap<QString, QWidget *> getPluginLayoutPropertiesSetWidgets();
    virtual QVariant getPluginLayoutPropertiesByWidgetName(QString name);
    virtual void setPluginLayoutPropertiesByWidgetName(QString name, const QVariant &value);
    /// To be called by the host after it has moved the plugin.
    virtual void pluginGeometryMoved();
    virtual void pluginResized();
    /// To be called by the host before it closes the plugin for the user.
    virtual void closeByUser();

    void loadSkin(const QVariant &css) override;

    /// Makes a plugin, gives it an instance ID of the parent's menu, and initialises it. `properties` may
    /// hold a map of the plugin's own under PLUGIN_CUSTOMPROP. Null for an ID that names no plugin widget.
    /// The caller owns the widget.
    static ZrPluginBaseWidget *createPluginWidgetByPluginID(const QString &pluginID,
                                                            const QString &parentInstanceID,
                                                            const QMap<QString, QVariant> &properties);

    bool IsInitialized() const;
    /// Tells the bus, for either value.
    void SetInitialized(bool initialized);
    /// Which events are sent; see ZrPluginBaseWidgetPrivate::eventNotifyFlags. The low eight bits count.
    void SetEventNotifyFlag(int flags);
    /// Sets a dynamic property and tells the host.
    void setPluginWidgetPropety(const QString &name, const QVariant &value);
    QVariant getPluginWidgetPropety(const QString &name) const;
    QString pluginInstanceID() const;
    /// The part of an instance ID that names the menu: all before the first "#".
    static QString getMenuIDByPluginInstanceID(const QString &instanceID);
    void setPluginWidgetTitle(const QString &title);
    void setPluginRefreshable(bool refreshable);
    void setPluginTitleAccountShowType(int type);
    /// Shows or hides a title button of Constants::PLUGIN_SYSTEMBUTTON_*. Copy, setting and close can't be
    /// hidden from a system administrator.
    void setPluginSystemButtonVisiable(QString button, bool visible);
    /// Adds a widget to the title, or removes it; removing null removes all. The host takes the widget.
    void addPluginCustomWidget(QWidget *widget, CustomWidgetOper oper, CustomWidgetPosition position);
    /// The dialog that hosts the plugin takes the widget into its title.
    void addPluginDialogTitleWidget(QWidget *widget);
    ZrPresenterClass *getPluginPresenter() const;
    /// `presenter` must be alive; null is ignored. A presenter made for this plugin has done it already.
    void setPluginPresenter(ZrPresenterClass *presenter);

    /// Joins the linkage of a type in a group; plugins of one menu, group and type share linkage data.
    /// Without `enable` the group's combo box is hidden.
    void subPluginLinkage(int linkageType, bool enable, LinkageGroupID group);
    /// Leaves the linkage of a type; 0 means all.
    void unSubPluginLinkage(int linkageType);
    /// Shows or hides the combo box, and changes the group. Group -1 only looks unlinked: the bus goes on
    /// relaying, which is required.
    void setPluginLinkageState(bool visible, int group);
    /// -1 means unlinked.
    int getPluginLinkageGroup() const;
    bool isPluginLinkageVisiable() const;

    /// Shows an account in the host's account box.
    void setCurrentAccount(const QMap<QString, QVariant> &account);
    /// The plugin's window was selected by the user, or another one.
    void setPluginWidgetSelected(bool selected);
    /// Sends a plugin event, 65555 to 65559, whatever the notify flags; another type is ignored. `extra` wins
    /// over the event's own fields.
    void sendPluginInstanceEvent(int type, const QMap<QString, QVariant> &extra);
    /// A duration below 1 counts as 3000.
    void ShowToastError(const QString &text, int durationMs);
    /// As ZrLoadingFrame::setLoadingState: 1 covers the plugin.
    void setLoadingState(int state);
    void exportViewData(ZrTableView *view);
    void RegisterTable2Plugin(ZrViewBase *view);
    void UnregisterTableFromPlugin(ZrViewBase *view);
    /// Lets another plugin's settings reach the views of this one, instead of the plugin named before. Null
    /// ends it.
    void RegisterAllTableToPlugin(ZrPluginBaseWidget *other);

    ZrPluginBaseWidgetPrivate *getPrivate() const { return d; }

public slots:
    void slotPluginDataLoadFinished();
    void slotDataLoading();
    void slotDataLoadTimeout();

signals:
    void signalClosePluginWidget();
    void signalPluginWidgetSizeChanged();
    void signalPluginDialogExecReturn(int iCode);
    void signalAddPluginDialogTitleWidget(QWidget *widget);
    void signalPluginWidgetMinimumSizeChanged();
    void signalSendDataToMainFrame(QVariant data);

protected:
    /// The style sheet `cssFile` and the icon below the skin's folder `dir`, and the properties in the
    /// folder's "basesetting.ini".
    void addSkinFile(const QString &dir, const QString &cssFile, const QString &iconFile);

    bool event(QEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void closeEvent(QCloseEvent *event) override;

private:
    Q_DISABLE_COPY(ZrPluginBaseWidget)
    void sendIfWanted(int type);

    ZrPluginBaseWidgetPrivate *d; // owned: our QObject child
};
