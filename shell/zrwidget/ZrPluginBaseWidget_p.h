#pragma once

#include "ZrPluginTie.h"
#include "ZrViewRegistry.h"
#include "zrwidget_global.h"

#include <QtCore/QList>
#include <QtCore/QMap>
#include <QtCore/QObject>
#include <QtCore/QPointer>
#include <QtCore/QString>
#include <QtCore/QVariant>
#include <QtCore/QVariantMap>

class ZrHideStyles;
class ZrLinkageCombox;
class ZrLoadingFrame;
class ZrPluginBaseWidget;
class ZrPluginLinkage;
class ZrPluginPresenter;
class ZrPluginTitleWidgets;
class ZrPluginViews;
class ZrToastDialog;
class ZrViewBase;

/// What a plugin widget holds, and where host and grids meet it: the host connects to the signals, grids
/// register as views.
///
/// Shape:     views are told apart by caption; those without one share the empty caption.
/// Units:     columns are logical numbers.
/// Ownership: child of its plugin. Views, the other plugin and the presenter are borrowed and may die first.
/// Threads:   GUI thread only; the presenter may go on any thread.
/// Errors:    a null view is ignored; what a saved text says beyond its bounds is left out with one log line.
class ZRWIDGET_EXPORT ZrPluginBaseWidgetPrivate : public QObject, public ZrViewRegistry, public ZrPluginTie
{
    Q_OBJECT
    Q_INTERFACES(ZrViewRegistry ZrPluginTie)
public:
    /// Bits of eventNotifyFlags. Those of size and place stand in the other order than their events.
    enum NotifyFlag {
        NotifyInitialized = 1, // 65555
        NotifyClosed = 2,      // 65556
        NotifySelected = 4,    // 65557
        NotifyMoved = 8,       // 65559
        NotifyResized = 16     // 65558
    };

    explicit ZrPluginBaseWidgetPrivate(ZrPluginBaseWidget *facade);
    ~ZrPluginBaseWidgetPrivate() override;

    // Shared: the family may read, only this pair writes.
    ZrPluginBaseWidget *const plugin;                // the facade, our parent
    QString skinDir;                                 // below the skin's folder, from addSkinFile
    QPointer<ZrLoadingFrame> loadingFrame;           // covers the plugin
    QMap<QString, QVariant> customProperties;        // the plugin's own, kept by its layout
    QMap<QString, bool> systemButtonVisible;         // buttons beyond the five that have a property
    bool initialized = false;                        // initPlugin has run
    QPointer<ZrPluginBaseWidgetPrivate> otherPlugin; // holds our views as well
    bool selected = false;                           // by setPluginWidgetSelected
    int eventNotifyFlags = 0;                        // NotifyFlag bits
    QPointer<ZrToastDialog> toastDialog;             // made on first use

    // Concerns, owned.
    ZrPluginPresenter *const presenter;       // the way to the bus
    ZrPluginViews *const views;               // registered views and what the user chose about them
    ZrHideStyles *const hideStyles;           // named styles of hidden columns, and those in force
    ZrPluginLinkage *const linkage;           // types, group and its combo box
    ZrPluginTitleWidgets *const titleWidgets; // added to the title by the plugin

    /// Registers a view that is new, and gives it the columns that the user has hidden.
    void addPluginView(ZrViewBase *view) override;
    void setPluginViewColumnVisiableProperity(const QMap<QString, QList<int>> &hiddenColumns);
    QMap<QString, QList<int>> getPluginViewColumnVisiableProperity() const;
    void setPluginViewHeadIndexOrderPropertity(const QMap<QString, QList<int>> &orders);
    /// With `current`, the views say themselves how their columns stand now.
    QMap<QString, QList<int>> getPluginViewHeadIndexOrderPropertity(bool current) const;
    /// Adds the styles that were saved under PLUGIN_VIEWCUSTOMHIDESTYLE, and reads which are in force.
    void setPluginViewCustomHideStyleListString(const QString &json);
    void resetPluginViewCurrentHideStyle(ZrViewBase *view) override;
    void saveCurrentCustomViewHideStyleName();
    /// Saves the styles too.
    QString transeUserCustomViewHIdeColumnListToJsonString();
    void setPluginCustomProperity(const QMap<QString, QVariant> &properties);
    QMap<QString, QVariant> getPluginCustomProperity() const;
    QVariant getPluginWidgetPropety(const QString &name) const;
    QString pluginInstanceID() const;
    /// Shows or hides a button that has no property.
    void setPluginSystemButtonVisiable(QString button, bool visible);
    void addSkinFile(const QString &dir, const QString &cssFile, const QString &iconFile);
    /// Nothing is attached yet that could export: warns and does nothing.
    void exportViewData(ZrViewBase *view);

    // --- ZrViewRegistry: what grids ask ---
    QString pluginInstanceId() const override;
    void unregisterTable(ZrViewBase *view) override;
    std::optional<QList<int>> columnVisibleProperty(const QString &caption) const override;
    std::optional<QList<int>> columnOrderProperty(const QString &caption) const override;
    void orderChanged() override;
    // --- ZrPluginTie ---
    void tiePresenter(ZrPresenterClass *made) override;

public slots:
    void removePluginView(ZrViewBase *view) override;
    /// The host's account box shows another account.
    void slotPluginCurrentAccountChanged(QVariantMap account);
    /// Nothing is attached yet that could be set: warns and does nothing.
    void slotPluginSettingBtnClicked();
    /// Nothing is attached yet that exports: warns and does nothing.
    void slotExportFileFinished(bool result, QString fileName, QString info);
    void unregisterAllTableFromPlugin();
    void registerAllTableToPlugin(ZrPluginBaseWidget *other);

signals:
    /// An empty name means any of them.
    void signalPluginPropetyChanged(QString propName);
    void signalAddPluginCustomWidget(QString pluginInstanceID, QWidget *widget, bool bRight);
    void signalDeletePluginCustomWidget(QString pluginInstanceID, QWidget *widget);
    void signalSetCurrentAccount(QString pluginInstanceID, QVariantMap account);
    void signalPressCustomConfigration();
    void signalPluginViewColumnVisiableProperityChanged();
    void signalPluginViewHeadIndexOrderProperityChanged();

private slots:
    void slotSkinChanged(QString skinId);
    void slotLinkConmboxCurrentChanged(int index);

private:
    Q_DISABLE_COPY(ZrPluginBaseWidgetPrivate)
    void readFile2GetWidgetSizeCfg(const QString &dir);
    void takeLinkageCombo(ZrLinkageCombox *combo);
};
