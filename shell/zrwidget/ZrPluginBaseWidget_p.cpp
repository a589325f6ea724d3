#include "ZrPluginBaseWidget_p.h"

#include "ZrHideStyles.h"
#include "ZrLinkageCombox.h"
#include "ZrLoadingFrame.h"
#include "ZrPluginBaseWidget.h"
#include "ZrPluginLinkage.h"
#include "ZrPluginPresenter.h"
#include "ZrPluginTitleWidgets.h"
#include "ZrPluginViews.h"
#include "ZrPresenterClass.h"
#include "ZrSkinProperties.h"
#include "ZrToastDialog.h"
#include "ZrViewBase.h"

#include "zrcore/ZrCore.h"
#include "zrdefine/Constants.h"
#include "zrdefine/PluginPropety.h"

#include <QtCore/QDebug>

namespace {
QString setting(const QString &instanceId, const QString &group)
{
    return ZrCore::instance()->settings(instanceId, group, QString(), QSettings::UserScope).toString();
}

void save(const QString &instanceId, const QString &group, const QString &text)
{
    ZrCore::instance()->saveSetting(instanceId, text, group, QString(), QSettings::UserScope);
}

std::optional<QList<int>> entry(const QMap<QString, QList<int>> &columns, const QString &caption)
{
    const auto found = columns.constFind(caption);
    return found == columns.cend() ? std::nullopt : std::make_optional(*found);
}
} // namespace

ZrPluginBaseWidgetPrivate::ZrPluginBaseWidgetPrivate(ZrPluginBaseWidget *facade)
    : QObject(facade)
    , plugin(facade)
    , presenter(new ZrPluginPresenter)
    , views(new ZrPluginViews(this))
    , hideStyles(new ZrHideStyles)
    , linkage(new ZrPluginLinkage(facade, presenter, this))
    , titleWidgets(new ZrPluginTitleWidgets(this))
{
    connect(titleWidgets, &ZrPluginTitleWidgets::added, this, [this](QWidget *widget, bool right) {
        emit signalAddPluginCustomWidget(pluginInstanceID(), widget, right);
    });
    connect(titleWidgets, &ZrPluginTitleWidgets::removed, this,
            [this](QWidget *widget) { emit signalDeletePluginCustomWidget(pluginInstanceID(), widget); });
    connect(linkage, &ZrPluginLinkage::comboMade, this, &ZrPluginBaseWidgetPrivate::takeLinkageCombo);
}

ZrPluginBaseWidgetPrivate::~ZrPluginBaseWidgetPrivate()
{
    delete linkage; // before the way to the bus that it uses
    delete hideStyles;
    delete presenter;
}

// --- views and their columns -----------------------------------------------------------------------------

void ZrPluginBaseWidgetPrivate::addPluginView(ZrViewBase *view)
{
    qDebug() << "ZrPluginBaseWidgetPrivate::addPluginView"
             << "new table detected in plugin: " << view;
    views->add(view);
}

void ZrPluginBaseWidgetPrivate::removePluginView(ZrViewBase *view)
{
    qDebug() << "ZrPluginBaseWidgetPrivate::removePluginView"
             << "table removed in plugin: " << view;
    views->remove(view);
}

void ZrPluginBaseWidgetPrivate::unregisterTable(ZrViewBase *view)
{
    plugin->UnregisterTableFromPlugin(view);
}

void ZrPluginBaseWidgetPrivate::registerAllTableToPlugin(ZrPluginBaseWidget *other)
{
    if (!other)
        return;
    otherPlugin = other->getPrivate();
    views->forEach([this](ZrViewBase *view) {
        if (otherPlugin)
            otherPlugin->plugin->RegisterTable2Plugin(view);
    });
}

void ZrPluginBaseWidgetPrivate::unregisterAllTableFromPlugin()
{
    views->forEach([this](ZrViewBase *view) {
        if (otherPlugin)
            otherPlugin->plugin->UnregisterTableFromPlugin(view);
    });
    otherPlugin = nullptr;
}

void ZrPluginBaseWidgetPrivate::setPluginViewColumnVisiableProperity(
    const QMap<QString, QList<int>> &hiddenColumns)
{
    const QMap<QString, QList<int>> given = hiddenColumns;
    views->setHiddenColumns(given);
    qDebug() << "setPluginViewColumnVisiableProperity" << given;
}

QMap<QString, QList<int>> ZrPluginBaseWidgetPrivate::getPluginViewColumnVisiableProperity() const
{
    return views->hiddenColumns();
}

void ZrPluginBaseWidgetPrivate::setPluginViewHeadIndexOrderPropertity(const QMap<QString, QList<int>> &orders)
{
    const QMap<QString, QList<int>> given = orders;
    views->setOrders(given);
    qDebug() << "setPluginViewHeadIndexOrderPropertity" << given;
}

QMap<QString, QList<int>> ZrPluginBaseWidgetPrivate::getPluginViewHeadIndexOrderPropertity(bool current) const
{
    return current ? views->shownOrders() : views->orders();
}

std::optional<QList<int>> ZrPluginBaseWidgetPrivate::columnVisibleProperty(const QString &caption) const
{
    return entry(views->hiddenColumns(), caption);
}

std::optional<QList<int>> ZrPluginBaseWidgetPrivate::columnOrderProperty(const QString &caption) const
{
    return entry(views->orders(), caption);
}

void ZrPluginBaseWidgetPrivate::orderChanged()
{
    emit signalPluginViewHeadIndexOrderProperityChanged();
}

// --- styles of hidden columns ----------------------------------------------------------------------------

void ZrPluginBaseWidgetPrivate::setPluginViewCustomHideStyleListString(const QString &json)
{
    hideStyles->addCustom(json);
    hideStyles->readCurrent(setting(pluginInstanceID(), Constants::PLUGIN_VIEWCURRENTCUSTOMHIDESTYLE));
}

void ZrPluginBaseWidgetPrivate::resetPluginViewCurrentHideStyle(ZrViewBase *view)
{
    if (!view || !views->contains(view))
        return;
    if (const auto hidden = hideStyles->currentColumns(view->GetViewCaption()))
        view->setPluginViewColumnVisiableProperity(*hidden);
}

void ZrPluginBaseWidgetPrivate::saveCurrentCustomViewHideStyleName()
{
    save(pluginInstanceID(), Constants::PLUGIN_VIEWCURRENTCUSTOMHIDESTYLE, hideStyles->currentText());
}

QString ZrPluginBaseWidgetPrivate::transeUserCustomViewHIdeColumnListToJsonString()
{
    const QString text = hideStyles->customText();
    save(pluginInstanceID(), Constants::PLUGIN_VIEWCUSTOMHIDESTYLE, text);
    return text;
}

// --- properties ------------------------------------------------------------------------------------------

void ZrPluginBaseWidgetPrivate::setPluginCustomProperity(const QMap<QString, QVariant> &properties)
{
    const QPointer<ZrPluginBaseWidgetPrivate> self(this); // the plugin's own code comes in between
    const QMap<QString, QVariant> given = properties;
    customProperties = given;
    for (auto property = given.cbegin(); self && property != given.cend(); ++property)
        plugin->setPluginLayoutPropertiesByWidgetName(property.key(), property.value());
    const auto flags = given.constFind(PluginPropety::PluginEventNotifyType);
    if (self && flags != given.cend())
        plugin->SetEventNotifyFlag(flags->toInt());
}

QMap<QString, QVariant> ZrPluginBaseWidgetPrivate::getPluginCustomProperity() const
{
    return customProperties;
}

QVariant ZrPluginBaseWidgetPrivate::getPluginWidgetPropety(const QString &name) const
{
    return plugin->getPluginWidgetPropety(name);
}

QString ZrPluginBaseWidgetPrivate::pluginInstanceID() const
{
    return plugin->pluginInstanceID();
}

QString ZrPluginBaseWidgetPrivate::pluginInstanceId() const
{
    return pluginInstanceID();
}

void ZrPluginBaseWidgetPrivate::setPluginSystemButtonVisiable(QString button, bool visible)
{
    systemButtonVisible.insert(button, visible);
}

void ZrPluginBaseWidgetPrivate::slotPluginCurrentAccountChanged(QVariantMap account)
{
    plugin->setBaseData(Constants::USER_ACCOUNT, QVariant(account));
}

// --- skin ------------------------------------------------------------------------------------------------

void ZrPluginBaseWidgetPrivate::addSkinFile(const QString &dir, const QString &cssFile,
                                            const QString &iconFile)
{
    Q_UNUSED(iconFile) // a property of the plugin, which sets it itself
    const QPointer<ZrPluginBaseWidgetPrivate> self(this);
    ZrCore *const core = ZrCore::instance();
    core->addStyle2View(plugin, dir + QLatin1Char('/') + cssFile);
    readFile2GetWidgetSizeCfg(dir);
    if (!self)
        return;
    skinDir = dir;
    // Each call connects once more. Plugins that add several sheets count on it: with a change of skin their
    // properties are set, and told, as often as at the start.
    connect(core, &ZrCore::signalSkinChanged, this, &ZrPluginBaseWidgetPrivate::slotSkinChanged);
}

void ZrPluginBaseWidgetPrivate::slotSkinChanged(QString skinId)
{
    Q_UNUSED(skinId)
    readFile2GetWidgetSizeCfg(skinDir);
}

void ZrPluginBaseWidgetPrivate::readFile2GetWidgetSizeCfg(const QString &dir)
{
    const QPointer<ZrPluginBaseWidgetPrivate> self(this); // a property may call the plugin's own code
    const QString fileName = ZrSkinProperties::fileName(ZrCore::instance()->getCurrentSkinId(), dir);
    const ZrSkinProperties::List properties = ZrSkinProperties::read(fileName);
    for (const auto &property : properties) {
        plugin->setProperty(property.first.constData(), property.second);
        if (!self)
            return;
    }
    emit signalPluginPropetyChanged(QString());
}

// --- presenter, title and settings -----------------------------------------------------------------------

void ZrPluginBaseWidgetPrivate::tiePresenter(ZrPresenterClass *made)
{
    // Queued: presenters tell of their loading on a thread of their own.
    connect(made, &ZrPresenterClass::signalDataLoadFinished, plugin,
            &ZrPluginBaseWidget::slotPluginDataLoadFinished, Qt::QueuedConnection);
    connect(made, &ZrPresenterClass::signalDataLoading, plugin, &ZrPluginBaseWidget::slotDataLoading,
            Qt::QueuedConnection);
    connect(made, &ZrPresenterClass::signalDataLoadTimeout, plugin, &ZrPluginBaseWidget::slotDataLoadTimeout,
            Qt::QueuedConnection);
    plugin->setPluginPresenter(made);
}

void ZrPluginBaseWidgetPrivate::takeLinkageCombo(ZrLinkageCombox *combo)
{
    const QPointer<ZrLinkageCombox> alive(combo);
    const QPointer<ZrPluginBaseWidgetPrivate> self(this);
    titleWidgets->add(combo, true);
    if (self && alive)
        connect(combo, QOverload<int>::of(&QComboBox::currentIndexChanged), this,
                &ZrPluginBaseWidgetPrivate::slotLinkConmboxCurrentChanged);
}

void ZrPluginBaseWidgetPrivate::slotLinkConmboxCurrentChanged(int index)
{
    linkage->choose(qobject_cast<ZrLinkageCombox *>(sender()), index);
}

void ZrPluginBaseWidgetPrivate::exportViewData(ZrViewBase *view)
{
    qWarning() << "ZrPluginBaseWidgetPrivate::exportViewData"
               << "no export is attached" << view;
}

void ZrPluginBaseWidgetPrivate::slotExportFileFinished(bool result, QString fileName, QString info)
{
    qWarning() << "ZrPluginBaseWidgetPrivate::slotExportFileFinished"
               << "no export is attached" << result << fileName << info;
}

void ZrPluginBaseWidgetPrivate::slotPluginSettingBtnClicked()
{
    qWarning() << "ZrPluginBaseWidgetPrivate::slotPluginSettingBtnClicked"
               << "no settings menu is attached";
}
