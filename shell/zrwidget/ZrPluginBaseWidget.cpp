#include "ZrPluginBaseWidget.h"

#include "ZrLoadingFrame.h"
#include "ZrPluginBaseWidget_p.h"
#include "ZrPluginEvents.h"
#include "ZrPluginInstanceId.h"
#include "ZrPluginLinkage.h"
#include "ZrPluginPresenter.h"
#include "ZrPluginTitleWidgets.h"
#include "ZrPresenterClass.h"
#include "ZrTableView.h"
#include "ZrToastDialog.h"

#include "zrbusinessdata/CBusinessDataBase.h"
#include "zrcm/Id.h"
#include "zrcore/ZrCore.h"
#include "zrdefine/Constants.h"
#include "zrdefine/PluginPropety.h"
#include "zrdefine/VexlorValues.h"
#include "zrevent/CEventMessageCommon.h"
#include "zrplugin/PluginManager.h"

#include <QtCore/QDebug>
#include <QtCore/QDynamicPropertyChangeEvent>
#include <QtCore/QElapsedTimer>

namespace {
constexpr int defaultToastMs = 3000;
constexpr int flagMask = 0xff;
constexpr int notCloseable = 1;
enum LoadingState { Loading = 1, Loaded = 2, LoadTimeout = 3 };

void countLivingPlugins(int change)
{
    ZrCore *const core = ZrCore::instance();
    const QString key = Vexlor_Values::ClientPerformItem::PluginInitedCount;
    core->setCommonInfo(key, core->getCommonInfo(key).toInt() + change);
}
} // namespace

const QString ZrPluginBaseWidget::TitleColorFlag::Green = QStringLiteral("green");
const QString ZrPluginBaseWidget::TitleColorFlag::Red = QStringLiteral("red");
const QString ZrPluginBaseWidget::TitleColorFlag::Yellow = QStringLiteral("yellow");

// --- construction and end --------------------------------------------------------------------------------

ZrPluginBaseWidget::ZrPluginBaseWidget(QWidget *parent)
    : QWidget(parent)
    , d(new ZrPluginBaseWidgetPrivate(this))
{
    setPluginTitleAccountShowType(0);
    setPluginRefreshable(false);
    d->loadingFrame = new ZrLoadingFrame(this);
    d->loadingFrame->hide();
    for (const QString &name :
         {PluginPropety::PLUGIN_WIDGET_COPYBUTTONVISIABLE, PluginPropety::PLUGIN_WIDGET_SETTINGBUTTONVISIABLE,
          PluginPropety::PLUGIN_WIDGET_CLOSEBUTTONVISIABLE})
        setProperty(name.toLatin1().constData(), true);
    countLivingPlugins(1);
}

ZrPluginBaseWidget::~ZrPluginBaseWidget()
{
    d->unregisterAllTableFromPlugin();
    delete d;
    d = nullptr; // the grids among our children go after this
    qDebug() << "ZrPluginBaseWidget::~ZrPluginBaseWidget" << pluginInstanceID();
    countLivingPlugins(-1);
}

ZrPluginBaseWidget *
ZrPluginBaseWidget::createPluginWidgetByPluginID(const QString &pluginID, const QString &parentInstanceID,
                                                 const QMap<QString, QVariant> &properties)
{
    const Id id = Id::fromSetting(pluginID);
    if (id.isNull())
        return nullptr;
    QElapsedTimer clock;
    clock.start();
    QObject *const made = ZrCore::instance()->createCustomObject(id);
    const QPointer<ZrPluginBaseWidget> plugin = qobject_cast<ZrPluginBaseWidget *>(made);
    if (!plugin) {
        delete made; // ours as its caller, and of no use
        return nullptr;
    }
    const int index = PluginManager::instance()->getCurrentInstanceIDIndexByPluginID(pluginID);
    const QString instanceId =
        ZrPluginInstanceId::compose(getMenuIDByPluginInstanceID(parentInstanceID), pluginID, index);
    plugin->setPluginWidgetPropety(PluginPropety::PLUGININSTANCE_ID, instanceId);
    const QVariantMap own = properties.value(PluginPropety::PLUGIN_CUSTOMPROP).toMap();
    if (plugin && !own.isEmpty())
        plugin->d->setPluginCustomProperity(own);
    if (plugin)
        plugin->initPlugin();
    if (!plugin) // its own code may have ended it
        return nullptr;
    plugin->SetInitialized(true);
    ZrCore::instance()->newPluginCreated(instanceId, static_cast<int>(clock.elapsed()));
    return plugin;
}

// --- what plugins override -------------------------------------------------------------------------------

void ZrPluginBaseWidget::refresh() {}

void ZrPluginBaseWidget::setBaseData(const QString &name, const QVariant &value)
{
    Q_UNUSED(name)
    Q_UNUSED(value)
}

int ZrPluginBaseWidget::isCloseable(QString &reason)
{
    if (IsInitialized())
        return 0;
    reason = tr("Plugin hasn't been initialized. Please do not close!");
    return notCloseable;
}

void ZrPluginBaseWidget::doBeforeClose() {}

void ZrPluginBaseWidget::pluginSelectStateChanged(bool selected)
{
    Q_UNUSED(selected)
}

void ZrPluginBaseWidget::pressConfigurationButton() {}

QVariant ZrPluginBaseWidget::getPluginData()
{
    return {};
}

void ZrPluginBaseWidget::setPluginData(QVariant &data)
{
    Q_UNUSED(data)
}

QMap<QString, QWidget *> ZrPluginBaseWidget::getPluginLayoutPropertiesSetWidgets()
{
    return {};
}

QVariant ZrPluginBaseWidget::getPluginLayoutPropertiesByWidgetName(QString name)
{
    Q_UNUSED(name)
    return {};
}

void ZrPluginBaseWidget::setPluginLayoutPropertiesByWidgetName(QString name, const QVariant &value)
{
    Q_UNUSED(name)
    Q_UNUSED(value)
}

void ZrPluginBaseWidget::pluginGeometryMoved()
{
    sendIfWanted(ZrPluginEvents::Moved);
}

void ZrPluginBaseWidget::pluginResized() {}

void ZrPluginBaseWidget::closeByUser()
{
    sendIfWanted(ZrPluginEvents::ClosedByUser);
}

void ZrPluginBaseWidget::loadSkin(const QVariant &css)
{
    if (css.isValid())
        setStyleSheet(css.toString());
}

// --- state and properties --------------------------------------------------------------------------------

bool ZrPluginBaseWidget::IsInitialized() const
{
    return d->initialized;
}

void ZrPluginBaseWidget::SetInitialized(bool initialized)
{
    d->initialized = initialized;
    sendIfWanted(ZrPluginEvents::Initialized);
}

void ZrPluginBaseWidget::SetEventNotifyFlag(int flags)
{
    d->eventNotifyFlags = flags & flagMask;
}

void ZrPluginBaseWidget::setPluginWidgetPropety(const QString &name, const QVariant &value)
{
    const QPointer<ZrPluginBaseWidget> self(this); // setBaseData comes in between
    setProperty(name.toLatin1().constData(), value);
    if (!self)
        return;
    if (name == PluginPropety::PluginEventNotifyType)
        SetEventNotifyFlag(value.toInt());
    emit d->signalPluginPropetyChanged(name);
}

QVariant ZrPluginBaseWidget::getPluginWidgetPropety(const QString &name) const
{
    return property(name.toLatin1().constData());
}

QString ZrPluginBaseWidget::pluginInstanceID() const
{
    return getPluginWidgetPropety(PluginPropety::PLUGININSTANCE_ID).toString();
}

QString ZrPluginBaseWidget::getMenuIDByPluginInstanceID(const QString &instanceID)
{
    return ZrPluginInstanceId::menuId(instanceID);
}

void ZrPluginBaseWidget::setPluginWidgetTitle(const QString &title)
{
    setPluginWidgetPropety(PluginPropety::PLUGINWIDGET_TITLETEXT, title);
}

void ZrPluginBaseWidget::setPluginRefreshable(bool refreshable)
{
    setPluginWidgetPropety(PluginPropety::PLUGIN_WIDGET_FRESHABLE, refreshable);
}

void ZrPluginBaseWidget::setPluginTitleAccountShowType(int type)
{
    setPluginWidgetPropety(PluginPropety::PLUGIN_TITLE_HAS_ACCOUNT_WIDGET, type);
}

void ZrPluginBaseWidget::setPluginSystemButtonVisiable(QString button, bool visible)
{
    const bool isAdmin =
        CBusinessDataBase::GetInstance()->GetLoginAccountType() == Vexlor_Values::UserType::sysAdmin;
    // What an administrator may not hide falls through to the private object's map, where nothing reads it.
    if (button == Constants::PLUGIN_SYSTEMBUTTON_COPY && !isAdmin)
        setPluginWidgetPropety(PluginPropety::PLUGIN_WIDGET_COPYBUTTONVISIABLE, visible);
    else if (button == Constants::PLUGIN_SYSTEMBUTTON_SETTING && !isAdmin)
        setPluginWidgetPropety(PluginPropety::PLUGIN_WIDGET_SETTINGBUTTONVISIABLE, visible);
    else if (button == Constants::PLUGIN_SYSTEMBUTTON_REFRESH)
        setPluginRefreshable(visible);
    else if (button == Constants::PLUGIN_SYSTEMBUTTON_CLOSE && !isAdmin)
        setPluginWidgetPropety(PluginPropety::PLUGIN_WIDGET_CLOSEBUTTONVISIABLE, visible);
    else if (button == Constants::PLUGIN_SYSTEMBUTTON_DOCK)
        setPluginWidgetPropety(PluginPropety::PLUGIN_WIDGET_DOCKABLE, visible);
    else
        d->setPluginSystemButtonVisiable(button, visible);
}

// --- title -----------------------------------------------------------------------------------------------

void ZrPluginBaseWidget::addPluginCustomWidget(QWidget *widget, CustomWidgetOper oper,
                                               CustomWidgetPosition position)
{
    if (oper == AddCustomWidget)
        d->titleWidgets->add(widget, position == CustomWidgetRight);
    else
        d->titleWidgets->remove(widget);
}

void ZrPluginBaseWidget::addPluginDialogTitleWidget(QWidget *widget)
{
    emit signalAddPluginDialogTitleWidget(widget);
}

void ZrPluginBaseWidget::addSkinFile(const QString &dir, const QString &cssFile, const QString &iconFile)
{
    const QPointer<ZrPluginBaseWidget> self(this);
    d->addSkinFile(dir, cssFile, iconFile);
    if (self && !iconFile.isEmpty())
        setProperty(PluginPropety::PLUGINWIDGET_TITLEICON.toLatin1().constData(),
                    QString(dir + QLatin1Char('/') + iconFile));
}

void ZrPluginBaseWidget::setCurrentAccount(const QMap<QString, QVariant> &account)
{
    emit d->signalSetCurrentAccount(pluginInstanceID(), account);
}

void ZrPluginBaseWidget::ShowToastError(const QString &text, int durationMs)
{
    if (!d->toastDialog)
        d->toastDialog = new ZrToastDialog(this);
    d->toastDialog->SetDuration(durationMs < 1 ? defaultToastMs : durationMs);
    d->toastDialog->ShowToastMessage(text, ZrToastDialog::LevelError);
}

// --- the bus ---------------------------------------------------------------------------------------------

ZrPresenterClass *ZrPluginBaseWidget::getPluginPresenter() const
{
    return d->presenter->get();
}

void ZrPluginBaseWidget::setPluginPresenter(ZrPresenterClass *presenter)
{
    d->presenter->set(presenter);
}

void ZrPluginBaseWidget::sendPluginInstanceEvent(int type, const QMap<QString, QVariant> &extra)
{
    if (!d->presenter->get() || !ZrPluginEvents::isEvent(type))
        return;
    QVariantMap record = ZrPluginEvents::record(type, pluginInstanceID(), *this, d->selected);
    for (auto field = extra.cbegin(); field != extra.cend(); ++field)
        record.insert(field.key(), field.value());
    d->presenter->use([type, &record](ZrPresenterClass *presenter) {
        auto *const event = new CEventMessageCommon;
        event->SetSrcid(presenter->pluginPid());
        event->SetType(type);
        event->SetMsg(record);
        presenter->PutEvent(presenter->pluginPid(), event);
    });
}

void ZrPluginBaseWidget::sendIfWanted(int type)
{
    if (d->eventNotifyFlags & ZrPluginEvents::flagOf(type))
        sendPluginInstanceEvent(type, {});
}

void ZrPluginBaseWidget::setPluginWidgetSelected(bool selected)
{
    const QPointer<ZrPluginBaseWidget> self(this);
    d->selected = selected;
    pluginSelectStateChanged(selected);
    if (self)
        sendIfWanted(ZrPluginEvents::Selected);
}

void ZrPluginBaseWidget::subPluginLinkage(int linkageType, bool enable, LinkageGroupID group)
{
    d->linkage->subscribe(linkageType, enable, group);
}

void ZrPluginBaseWidget::unSubPluginLinkage(int linkageType)
{
    d->linkage->unsubscribe(linkageType);
}

void ZrPluginBaseWidget::setPluginLinkageState(bool visible, int group)
{
    d->linkage->setState(visible, group);
}

int ZrPluginBaseWidget::getPluginLinkageGroup() const
{
    return d->linkage->group();
}

bool ZrPluginBaseWidget::isPluginLinkageVisiable() const
{
    return d->linkage->isVisible();
}

// --- loading ---------------------------------------------------------------------------------------------

void ZrPluginBaseWidget::setLoadingState(int state)
{
    if (!d->loadingFrame)
        return;
    d->loadingFrame->setLoadingState(state);
    d->loadingFrame->raise();
}

void ZrPluginBaseWidget::slotPluginDataLoadFinished()
{
    setLoadingState(Loaded);
}

void ZrPluginBaseWidget::slotDataLoading()
{
    setLoadingState(Loading);
}

void ZrPluginBaseWidget::slotDataLoadTimeout()
{
    setLoadingState(LoadTimeout);
}

// --- views -----------------------------------------------------------------------------------------------

void ZrPluginBaseWidget::exportViewData(ZrTableView *view)
{
    d->exportViewData(view);
}

void ZrPluginBaseWidget::RegisterTable2Plugin(ZrViewBase *view)
{
    d->addPluginView(view);
}

void ZrPluginBaseWidget::UnregisterTableFromPlugin(ZrViewBase *view)
{
    if (d) // a view of a kind that isn't ours may ask as late as in the end of our children
        d->removePluginView(view);
}

void ZrPluginBaseWidget::RegisterAllTableToPlugin(ZrPluginBaseWidget *other)
{
    d->unregisterAllTableFromPlugin();
    d->registerAllTableToPlugin(other);
}

// --- events ----------------------------------------------------------------------------------------------

bool ZrPluginBaseWidget::event(QEvent *event)
{
    if (event->type() == QEvent::DynamicPropertyChange) {
        const QPointer<ZrPluginBaseWidget> self(this);
        const QByteArray name = static_cast<QDynamicPropertyChangeEvent *>(event)->propertyName();
        setBaseData(QString::fromLatin1(name), property(name.constData()));
        if (!self)
            return true;
    }
    return QWidget::event(event);
}

void ZrPluginBaseWidget::resizeEvent(QResizeEvent *event)
{
    Q_UNUSED(event)
    if (d->loadingFrame)
        d->loadingFrame->resize(size());
    sendIfWanted(ZrPluginEvents::Resized);
    pluginResized();
}

void ZrPluginBaseWidget::closeEvent(QCloseEvent *event)
{
    Q_UNUSED(event) // accepted as it comes: whether a plugin may be closed, the host asks before
}
