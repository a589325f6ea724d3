#include "FrameScene.h"
#include "PluginKit.h"
#include "zrcore/ZrCore.h"
#include "zrdefine/Constants.h"
#include "zrdefine/PluginPropety.h"
#include "zrdefine/VexlorValues.h"
#include "ZrLoadingFrame.h"
#include "ZrPluginBaseWidget_p.h"
#include "ZrQuietPlatform.h"
#include "ZrTestMain.h"
#include "ZrToastDialog.h"

#include <QtCore/QElapsedTimer>
#include <QtGui/QCloseEvent>

#include <cstring>

namespace {
namespace Names = PluginPropety;
const QString pid = QStringLiteral("menu#plugin#_1");

int livingPlugins()
{
    return ZrCore::instance()->getCommonInfo(Vexlor_Values::ClientPerformItem::PluginInitedCount).toInt();
}

/// Place of a virtual operation among those of its class, as this platform's compilers write it into a
/// pointer to the member: its offset in the table, plus one.
template<typename Member>
qptrdiff slotOf(Member member)
{
    qptrdiff place = 0;
    static_assert(sizeof(member) >= sizeof(place), "a pointer to a member holds more than an offset");
    std::memcpy(&place, &member, sizeof(place));
    return (place - 1) / qptrdiff(sizeof(void *));
}
} // namespace

class TestZrPluginBaseWidget : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase() { ZrQuietPlatform::install(); }
    void init();
    void cleanup();

    void constructionSetsTheProperties();
    void livingPluginsAreCounted();
    void virtualOperationsStandInTheirOrder();
    void theBaseOperationsDoNothing();
    void titleColoursAreTexts();
    void theEndIsLogged();

    void factoryMakesAndInitialisesAPlugin();
    void factoryGivesThePluginItsOwnProperties();
    void factoryRefuses_data();
    void factoryRefuses();
    void factorySurvivesAPluginThatEndsItself_data();
    void factorySurvivesAPluginThatEndsItself();

    void aPluginIsNotCloseableBeforeItsInitialisation();
    void everyPropertyReachesThePlugin();
    void frameTellsOfItsProperties();
    void onlyTheLowBitsOfTheFlagsCount();
    void systemButtons_data();
    void systemButtons();
    void titleWidgetsAreToldWithTheInstance();
    void dialogWidgetsAreTold();
    void accountsGoBothWays();
    void toastTakesItsTime();

    void anEventIsSentWhenItsBitIsSet_data();
    void anEventIsSentWhenItsBitIsSet();
    void selectionIsToldBeforeTheEvent();
    void anEventNeedsNoBitWhenAskedFor();
    void otherTypesAreNotSent();
    void extraFieldsWin();
    void withoutPresenterNothingIsSent();

    void aPresenterTiesItself();
    void loadingOfThePresenterCoversThePlugin();
    void anyOtherStateUncovers();
    void loadingFrameHasThePluginsSize();
    void presenterThatGoesIsForgotten();
    void linkageGoesToTheTitle();
    void sheetIsTakenWhenThereIsOne();
    void closeIsAccepted();
    void aPropertyMayEndThePlugin();

private:
    QVariantMap onlyEvent(int type);

    FrameScene scene;
    std::unique_ptr<PluginProbe> plugin;
    PresenterProbe *presenter = nullptr;
    std::vector<std::unique_ptr<EventProbe>> listeners; // one for each type of event
};

void TestZrPluginBaseWidget::init()
{
    QVERIFY(scene.startOwn(QString()));
    plugin = std::make_unique<PluginProbe>();
    plugin->giveInstanceId();
    plugin->baseData.clear();
    for (int type = 65554; type <= 65560; ++type)
        listeners.push_back(std::make_unique<EventProbe>(QStringLiteral("listener%1").arg(type), type));
}

void TestZrPluginBaseWidget::cleanup()
{
    if (presenter)
        QVERIFY(Probe::isGoneAfterDeleteLater(presenter));
    presenter = nullptr;
    plugin.reset();
    listeners.clear();
    scene.host.stop();
}

/// The fields of the one event that was sent, which is of this type.
QVariantMap TestZrPluginBaseWidget::onlyEvent(int type)
{
    ZrBus::instance().waitIdle(-1);
    QVariantMap fields;
    int count = 0;
    for (size_t index = 0; index < listeners.size(); ++index) {
        const QList<ProbeCall> calls = listeners[index]->calls();
        for (const ProbeCall &call : calls) {
            ++count;
            if (call.type == QVariant(type) && call.pid == pid)
                fields = call.body.toMap();
        }
    }
    return count == 1 ? fields : QVariantMap{{QStringLiteral("events sent"), count}};
}

// --- construction ----------------------------------------------------------------------------------------

void TestZrPluginBaseWidget::constructionSetsTheProperties()
{
    const auto value = [this](const QString &name) { return plugin->getPluginWidgetPropety(name); };
    QCOMPARE(value(Names::PLUGIN_TITLE_HAS_ACCOUNT_WIDGET), QVariant(0));
    QCOMPARE(value(Names::PLUGIN_WIDGET_FRESHABLE), QVariant(false));
    QCOMPARE(value(Names::PLUGIN_WIDGET_COPYBUTTONVISIABLE), QVariant(true));
    QCOMPARE(value(Names::PLUGIN_WIDGET_SETTINGBUTTONVISIABLE), QVariant(true));
    QCOMPARE(value(Names::PLUGIN_WIDGET_CLOSEBUTTONVISIABLE), QVariant(true));
    QVERIFY(!value(Names::PLUGIN_WIDGET_DOCKABLE).isValid());
    QVERIFY(!plugin->IsInitialized());
    QVERIFY(!plugin->getPluginPresenter());
    QCOMPARE(plugin->getPluginLinkageGroup(), -1);
    QVERIFY(!plugin->isPluginLinkageVisiable());
    const auto frame = plugin->findChild<ZrLoadingFrame *>();
    QVERIFY(frame);
    QVERIFY(frame->isHidden());
    QVERIFY(qobject_cast<IZrSkin *>(static_cast<QObject *>(plugin.get())));
    QVERIFY(plugin->inherits("ZrPluginBaseWidget"));
    QVERIFY(!plugin->findChild<ZrToastDialog *>());
}

void TestZrPluginBaseWidget::livingPluginsAreCounted()
{
    QCOMPARE(livingPlugins(), 1);
    {
        const PluginProbe second;
        QCOMPARE(livingPlugins(), 2);
    }
    QCOMPARE(livingPlugins(), 1);
}

void TestZrPluginBaseWidget::virtualOperationsStandInTheirOrder()
{
    using Plugin = ZrPluginBaseWidget;
    const QVector<qptrdiff> places{slotOf(&Plugin::initPlugin),
                                   slotOf(&Plugin::refresh),
                                   slotOf(&Plugin::setBaseData),
                                   slotOf(&Plugin::isCloseable),
                                   slotOf(&Plugin::doBeforeClose),
                                   slotOf(&Plugin::pluginSelectStateChanged),
                                   slotOf(&Plugin::pressConfigurationButton),
                                   slotOf(&Plugin::getPluginData),
                                   slotOf(&Plugin::setPluginData),
                                   slotOf(&Plugin::getPluginLayoutPropertiesSetWidgets),
                                   slotOf(&Plugin::getPluginLayoutPropertiesByWidgetName),
                                   slotOf(&Plugin::setPluginLayoutPropertiesByWidgetName),
                                   slotOf(&Plugin::pluginGeometryMoved),
                                   slotOf(&Plugin::pluginResized),
                                   slotOf(&Plugin::closeByUser)};
    for (int index = 1; index < places.size(); ++index)
        QCOMPARE(places.at(index), places.constFirst() + index);
}

void TestZrPluginBaseWidget::theBaseOperationsDoNothing()
{
    ZrPluginBaseWidget *const base = plugin.get();
    QVariant data(1);
    base->refresh();
    base->doBeforeClose();
    base->pressConfigurationButton();
    base->setPluginData(data);
    QCOMPARE(data, QVariant(1));
    QVERIFY(!base->getPluginData().isValid());
    QVERIFY(base->getPluginLayoutPropertiesSetWidgets().isEmpty());
    QVERIFY(!base->getPluginLayoutPropertiesByWidgetName(QStringLiteral("any")).isValid());
    base->ZrPluginBaseWidget::setPluginLayoutPropertiesByWidgetName(QStringLiteral("any"), 1);
    base->ZrPluginBaseWidget::setBaseData(QStringLiteral("any"), 1);
    base->ZrPluginBaseWidget::pluginSelectStateChanged(true);
    base->ZrPluginBaseWidget::pluginResized();
    QVERIFY(plugin->calls.isEmpty());
}

void TestZrPluginBaseWidget::titleColoursAreTexts()
{
    QCOMPARE(ZrPluginBaseWidget::TitleColorFlag::Green, QStringLiteral("green"));
    QCOMPARE(ZrPluginBaseWidget::TitleColorFlag::Red, QStringLiteral("red"));
    QCOMPARE(ZrPluginBaseWidget::TitleColorFlag::Yellow, QStringLiteral("yellow"));
}

void TestZrPluginBaseWidget::theEndIsLogged()
{
    const LogCatcher log;
    plugin.reset();
    QVERIFY(log.lines(QtDebugMsg)
                .contains(QStringLiteral("ZrPluginBaseWidget::~ZrPluginBaseWidget \"%1\"").arg(pid)));
}

// --- the factory -----------------------------------------------------------------------------------------

void TestZrPluginBaseWidget::factoryMakesAndInitialisesAPlugin()
{
    scene.host.registerPlugin(QStringLiteral("orders"), [] { return new PluginProbe; });
    const auto make = [](const QString &parent) {
        return std::unique_ptr<ZrPluginBaseWidget>(
            ZrPluginBaseWidget::createPluginWidgetByPluginID(QStringLiteral("orders"), parent, {}));
    };
    const auto first = make(QStringLiteral("menu 7#parent#_4"));
    QVERIFY(first);
    QCOMPARE(first->pluginInstanceID(), QStringLiteral("menu 7#orders#_0"));
    QVERIFY(first->IsInitialized());
    QCOMPARE(static_cast<PluginProbe *>(first.get())->calls, QStringList{QStringLiteral("init")});
    QCOMPARE(static_cast<PluginProbe *>(first.get())->valuesOf(Names::PLUGININSTANCE_ID),
             QVariantList{QStringLiteral("menu 7#orders#_0")});
    const auto second = make(QStringLiteral("menu 8"));
    QCOMPARE(second->pluginInstanceID(), QStringLiteral("menu 8#orders#_1"));
    const auto created = scene.host.pluginsCreated();
    QCOMPARE(created.size(), 2);
    QCOMPARE(created.at(0).first, first->pluginInstanceID());
    QCOMPARE(created.at(1).first, second->pluginInstanceID());
    QVERIFY(created.at(0).second >= 0);
}

void TestZrPluginBaseWidget::factoryGivesThePluginItsOwnProperties()
{
    scene.host.registerPlugin(QStringLiteral("orders"), [] { return new PluginProbe; });
    const QVariantMap own{{QStringLiteral("b"), 2},
                          {QStringLiteral("a"), QStringLiteral("1")},
                          {Names::PluginEventNotifyType, 0x102}};
    const std::unique_ptr<ZrPluginBaseWidget> made(ZrPluginBaseWidget::createPluginWidgetByPluginID(
        QStringLiteral("orders"), QStringLiteral("menu"), {{Names::PLUGIN_CUSTOMPROP, own}}));
    QStringList expected;
    for (auto property = own.cbegin(); property != own.cend(); ++property)
        expected.append(QStringLiteral("layout %1=%2").arg(property.key(), property.value().toString()));
    expected.append(QStringLiteral("init"));
    QCOMPARE(static_cast<PluginProbe *>(made.get())->calls, expected);
    QCOMPARE(made->getPrivate()->getPluginCustomProperity(), own);
    QCOMPARE(made->getPrivate()->eventNotifyFlags, 2);

    const std::unique_ptr<ZrPluginBaseWidget> plain(ZrPluginBaseWidget::createPluginWidgetByPluginID(
        QStringLiteral("orders"), QStringLiteral("menu"),
        {{Names::PLUGIN_CUSTOMPROP, QVariantMap()}, {QStringLiteral("other"), 1}}));
    QCOMPARE(static_cast<PluginProbe *>(plain.get())->calls, QStringList{QStringLiteral("init")});
    QVERIFY(!plain->property("other").isValid());
}

void TestZrPluginBaseWidget::factoryRefuses_data()
{
    QTest::addColumn<QString>("pluginId");
    QTest::newRow("empty ID") << QString();
    QTest::newRow("unknown ID") << QStringLiteral("unknown");
    QTest::newRow("maker that makes nothing") << QStringLiteral("nothing");
    QTest::newRow("plugin without a window") << QStringLiteral("object");
    QTest::newRow("widget that is no plugin") << QStringLiteral("widget");
}

void TestZrPluginBaseWidget::factoryRefuses()
{
    QFETCH(QString, pluginId);
    QPointer<QObject> made;
    scene.host.registerPlugin(QStringLiteral("nothing"), [] { return nullptr; });
    scene.host.registerPlugin(QStringLiteral("object"), [&made] { return made = new QObject; });
    scene.host.registerPlugin(QStringLiteral("widget"), [&made] { return made = new QWidget; });
    QVERIFY(!ZrPluginBaseWidget::createPluginWidgetByPluginID(pluginId, QStringLiteral("menu"), {}));
    QVERIFY(!made);
    QVERIFY(scene.host.pluginsCreated().isEmpty());
}

void TestZrPluginBaseWidget::factorySurvivesAPluginThatEndsItself_data()
{
    QTest::addColumn<QString>("call");
    QTest::newRow("as it gets its ID") << QString(QStringLiteral("data ") + Names::PLUGININSTANCE_ID);
    QTest::newRow("as it gets its properties") << QStringLiteral("layout a=1");
    QTest::newRow("as it initialises") << QStringLiteral("init");
}

void TestZrPluginBaseWidget::factorySurvivesAPluginThatEndsItself()
{
    QFETCH(QString, call);
    scene.host.registerPlugin(QStringLiteral("orders"), [call] {
        auto *const made = new PluginProbe;
        made->hook = [made, call](const QString &now) {
            if (now == call)
                delete made;
        };
        return made;
    });
    const QVariantMap own{{QStringLiteral("a"), 1}, {QStringLiteral("b"), 2}};
    QVERIFY(!ZrPluginBaseWidget::createPluginWidgetByPluginID(
        QStringLiteral("orders"), QStringLiteral("menu"), {{Names::PLUGIN_CUSTOMPROP, own}}));
    QVERIFY(scene.host.pluginsCreated().isEmpty());
}

// --- properties ------------------------------------------------------------------------------------------

void TestZrPluginBaseWidget::aPluginIsNotCloseableBeforeItsInitialisation()
{
    QString reason;
    QCOMPARE(plugin->isCloseable(reason), 1);
    QCOMPARE(reason, QStringLiteral("Plugin hasn't been initialized. Please do not close!"));
    reason = QStringLiteral("as before");
    plugin->SetInitialized(true);
    QCOMPARE(plugin->isCloseable(reason), 0);
    QCOMPARE(reason, QStringLiteral("as before"));
    plugin->SetInitialized(false);
    QCOMPARE(plugin->isCloseable(reason), 1);
}

void TestZrPluginBaseWidget::everyPropertyReachesThePlugin()
{
    plugin->setProperty("anything", 5);
    plugin->setPluginWidgetTitle(QStringLiteral("Orders"));
    plugin->setProperty("anything", QVariant());
    const QList<QPair<QString, QVariant>> expected{{QStringLiteral("anything"), 5},
                                                   {Names::PLUGINWIDGET_TITLETEXT, QStringLiteral("Orders")},
                                                   {QStringLiteral("anything"), QVariant()}};
    QCOMPARE(plugin->baseData, expected);
    plugin->setObjectName(QStringLiteral("no dynamic property"));
    QCOMPARE(plugin->baseData.size(), 3);
}

void TestZrPluginBaseWidget::frameTellsOfItsProperties()
{
    QSignalSpy changed(plugin->getPrivate(), &ZrPluginBaseWidgetPrivate::signalPluginPropetyChanged);
    plugin->setPluginWidgetTitle(QStringLiteral("Orders"));
    plugin->setPluginRefreshable(true);
    plugin->setPluginTitleAccountShowType(2);
    plugin->setPluginWidgetPropety(QStringLiteral("own"), 1);
    plugin->setProperty("silent", 1);
    QStringList names;
    for (const QVariantList &arguments : qAsConst(changed))
        names.append(arguments.constFirst().toString());
    QCOMPARE(names, (QStringList{Names::PLUGINWIDGET_TITLETEXT, Names::PLUGIN_WIDGET_FRESHABLE,
                                 Names::PLUGIN_TITLE_HAS_ACCOUNT_WIDGET, QStringLiteral("own")}));
    QCOMPARE(plugin->getPluginWidgetPropety(Names::PLUGIN_WIDGET_FRESHABLE), QVariant(true));
    QCOMPARE(plugin->getPrivate()->getPluginWidgetPropety(Names::PLUGIN_TITLE_HAS_ACCOUNT_WIDGET),
             QVariant(2));
    QCOMPARE(plugin->getPrivate()->pluginInstanceID(), pid);
    QCOMPARE(plugin->getMenuIDByPluginInstanceID(pid), QStringLiteral("menu"));
}

void TestZrPluginBaseWidget::onlyTheLowBitsOfTheFlagsCount()
{
    plugin->SetEventNotifyFlag(0x1ff);
    QCOMPARE(plugin->getPrivate()->eventNotifyFlags, 0xff);
    plugin->setPluginWidgetPropety(Names::PluginEventNotifyType, 0x305);
    QCOMPARE(plugin->getPrivate()->eventNotifyFlags, 5);
    plugin->SetEventNotifyFlag(-1);
    QCOMPARE(plugin->getPrivate()->eventNotifyFlags, 0xff);
}

void TestZrPluginBaseWidget::systemButtons_data()
{
    QTest::addColumn<QString>("button");
    QTest::addColumn<bool>("isAdmin");
    QTest::addColumn<QString>("expected"); // the property; empty for the map
    const auto row = [](const char *name, const QString &button, const QString &user, const QString &admin) {
        QTest::addRow("%s", name) << button << false << user;
        QTest::addRow("%s, administrator", name) << button << true << admin;
    };
    row("copy", Constants::PLUGIN_SYSTEMBUTTON_COPY, Names::PLUGIN_WIDGET_COPYBUTTONVISIABLE, QString());
    row("setting", Constants::PLUGIN_SYSTEMBUTTON_SETTING, Names::PLUGIN_WIDGET_SETTINGBUTTONVISIABLE,
        QString());
    row("close", Constants::PLUGIN_SYSTEMBUTTON_CLOSE, Names::PLUGIN_WIDGET_CLOSEBUTTONVISIABLE, QString());
    row("refresh", Constants::PLUGIN_SYSTEMBUTTON_REFRESH, Names::PLUGIN_WIDGET_FRESHABLE,
        Names::PLUGIN_WIDGET_FRESHABLE);
    row("dock", Constants::PLUGIN_SYSTEMBUTTON_DOCK, Names::PLUGIN_WIDGET_DOCKABLE,
        Names::PLUGIN_WIDGET_DOCKABLE);
    row("export", Constants::PLUGIN_SYSTEMBUTTON_VIEWEXPORT, QString(), QString());
    row("unknown", QStringLiteral("unknown"), QString(), QString());
}

void TestZrPluginBaseWidget::systemButtons()
{
    QFETCH(QString, button);
    QFETCH(bool, isAdmin);
    QFETCH(QString, expected);
    scene.host.setLoginType(isAdmin ? Vexlor_Values::UserType::sysAdmin : QStringLiteral("trader"));
    QSignalSpy changed(plugin->getPrivate(), &ZrPluginBaseWidgetPrivate::signalPluginPropetyChanged);
    for (const bool visible : {false, true}) {
        changed.clear();
        plugin->setPluginSystemButtonVisiable(button, visible);
        const QMap<QString, bool> map = plugin->getPrivate()->systemButtonVisible;
        if (expected.isEmpty()) {
            QCOMPARE(map, (QMap<QString, bool>{{button, visible}}));
            QVERIFY(changed.isEmpty());
        } else {
            QVERIFY(map.isEmpty());
            QCOMPARE(changed.size(), 1);
            QCOMPARE(changed.constFirst().constFirst().toString(), expected);
            QCOMPARE(plugin->getPluginWidgetPropety(expected), QVariant(visible));
        }
    }
}

void TestZrPluginBaseWidget::titleWidgetsAreToldWithTheInstance()
{
    using Plugin = ZrPluginBaseWidget;
    QSignalSpy added(plugin->getPrivate(), &ZrPluginBaseWidgetPrivate::signalAddPluginCustomWidget);
    QSignalSpy removed(plugin->getPrivate(), &ZrPluginBaseWidgetPrivate::signalDeletePluginCustomWidget);
    QWidget left, right, other;
    plugin->addPluginCustomWidget(&left, Plugin::AddCustomWidget, Plugin::CustomWidgetLeft);
    plugin->addPluginCustomWidget(&right, Plugin::AddCustomWidget, Plugin::CustomWidgetRight);
    plugin->addPluginCustomWidget(&other, Plugin::AddCustomWidget, Plugin::CustomWidgetPosition(3));
    QCOMPARE(added.size(), 3);
    for (int index = 0; index < 3; ++index) {
        QCOMPARE(added.at(index).at(0).toString(), pid);
        QCOMPARE(added.at(index).at(2).toBool(), index == 1);
    }
    plugin->addPluginCustomWidget(&left, Plugin::CustomWidgetOper(7), Plugin::CustomWidgetLeft);
    QCOMPARE(removed.size(), 1);
    QCOMPARE(removed.at(0).at(0).toString(), pid);
    QCOMPARE(removed.at(0).at(1).value<QWidget *>(), &left);
    plugin->addPluginCustomWidget(nullptr, Plugin::RemoveCustomWidget, Plugin::CustomWidgetLeft);
    QCOMPARE(removed.size(), 3);
}

void TestZrPluginBaseWidget::dialogWidgetsAreTold()
{
    QSignalSpy added(plugin.get(), &ZrPluginBaseWidget::signalAddPluginDialogTitleWidget);
    QWidget widget;
    plugin->addPluginDialogTitleWidget(&widget);
    QCOMPARE(added.size(), 1);
    QCOMPARE(added.at(0).at(0).value<QWidget *>(), &widget);
}

void TestZrPluginBaseWidget::accountsGoBothWays()
{
    const QVariantMap account{{QStringLiteral("TradingAccount"), QStringLiteral("T1")}};
    QSignalSpy shown(plugin->getPrivate(), &ZrPluginBaseWidgetPrivate::signalSetCurrentAccount);
    plugin->setCurrentAccount(account);
    QCOMPARE(shown.size(), 1);
    QCOMPARE(shown.at(0).at(0).toString(), pid);
    QCOMPARE(shown.at(0).at(1).toMap(), account);
    plugin->getPrivate()->slotPluginCurrentAccountChanged(account);
    QCOMPARE(plugin->valuesOf(Constants::USER_ACCOUNT), QVariantList{QVariant(account)});
}

void TestZrPluginBaseWidget::toastTakesItsTime()
{
    plugin->ShowToastError(QStringLiteral("<b>refused</b>"), 1);
    const auto toast = plugin->findChild<ZrToastDialog *>();
    QVERIFY(toast);
    QCOMPARE(toast->msgLevel(), int(ZrToastDialog::LevelError));
    QTRY_VERIFY(!toast->isVisible());
    QElapsedTimer clock;
    clock.start();
    plugin->ShowToastError(QStringLiteral("again"), 0);
    QVERIFY(toast->isVisible());
    QTRY_VERIFY_WITH_TIMEOUT(!toast->isVisible(), 20000);
    QVERIFY2(clock.elapsed() >= 2850, QByteArray::number(clock.elapsed()).constData());
    QCOMPARE(plugin->findChildren<ZrToastDialog *>().size(), 1);
}

// --- events ----------------------------------------------------------------------------------------------

void TestZrPluginBaseWidget::anEventIsSentWhenItsBitIsSet_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<int>("bit");
    QTest::addColumn<QVariantMap>("expected"); // beside the instance ID
    const auto row = [](const char *name, int type, int bit, const QVariantMap &fields) {
        QTest::newRow(name) << type << bit << fields;
    };
    row("initialised", 65555, 1, {});
    row("closed by the user", 65556, 2, {});
    row("selected", 65557, 4, {{Names::PluginSelectState, true}});
    row("resized", 65558, 16,
        {{Names::PLUGINWIDGET_NORMALWIDTH, 321}, {Names::PLUGINWIDGET_NORMALHEIGHT, 123}});
    row("moved", 65559, 8, {{Names::PluginPosLeft, 50}, {Names::PluginPosTop, 70}});
}

void TestZrPluginBaseWidget::anEventIsSentWhenItsBitIsSet()
{
    QFETCH(int, type);
    QFETCH(int, bit);
    QFETCH(QVariantMap, expected);
    expected.insert(Names::PLUGININSTANCE_ID, pid);
    QWidget window;
    window.setGeometry(40, 40, 600, 500);
    plugin->setParent(&window);
    plugin->move(10, 30);
    plugin->show();
    presenter = new PresenterProbe(pid, IMessageInterface::SharedThread, plugin.get());
    const auto doAll = [this](const QSize &size) {
        plugin->SetInitialized(true);
        plugin->closeByUser();
        plugin->setPluginWidgetSelected(true);
        plugin->resize(size);
        plugin->pluginGeometryMoved();
    };
    plugin->SetEventNotifyFlag(0xe0); // none of the five
    doAll({300, 100});
    QCOMPARE(onlyEvent(type), (QVariantMap{{QStringLiteral("events sent"), 0}}));
    plugin->SetEventNotifyFlag(bit);
    doAll({321, 123});
    QCOMPARE(onlyEvent(type), expected);
    plugin->setParent(nullptr);
}

void TestZrPluginBaseWidget::selectionIsToldBeforeTheEvent()
{
    presenter = new PresenterProbe(pid, IMessageInterface::SharedThread, plugin.get());
    plugin->SetEventNotifyFlag(4);
    bool wasStored = false;
    plugin->hook = [&](const QString &) {
        wasStored = plugin->getPrivate()->selected;
        plugin->SetEventNotifyFlag(0);
    };
    plugin->setPluginWidgetSelected(true);
    QVERIFY(wasStored);
    QCOMPARE(plugin->calls, QStringList{QStringLiteral("selected")});
    QCOMPARE(onlyEvent(65557), (QVariantMap{{QStringLiteral("events sent"), 0}}));
    plugin->hook = nullptr;
    plugin->SetEventNotifyFlag(4);
    plugin->setPluginWidgetSelected(false);
    QCOMPARE(onlyEvent(65557),
             (QVariantMap{{Names::PLUGININSTANCE_ID, pid}, {Names::PluginSelectState, false}}));
}

void TestZrPluginBaseWidget::anEventNeedsNoBitWhenAskedFor()
{
    presenter = new PresenterProbe(pid, IMessageInterface::SharedThread, plugin.get());
    plugin->giveInstanceId(QStringLiteral("menu#plugin#_other")); // the bus knows the presenter's
    plugin->sendPluginInstanceEvent(65556, {});
    QCOMPARE(onlyEvent(65556),
             (QVariantMap{{Names::PLUGININSTANCE_ID, QStringLiteral("menu#plugin#_other")}}));
}

void TestZrPluginBaseWidget::otherTypesAreNotSent()
{
    presenter = new PresenterProbe(pid, IMessageInterface::SharedThread, plugin.get());
    plugin->sendPluginInstanceEvent(65554, {{QStringLiteral("a"), 1}});
    plugin->sendPluginInstanceEvent(65560, {{QStringLiteral("a"), 1}});
    QCOMPARE(onlyEvent(0), (QVariantMap{{QStringLiteral("events sent"), 0}}));
}

void TestZrPluginBaseWidget::extraFieldsWin()
{
    presenter = new PresenterProbe(pid, IMessageInterface::SharedThread, plugin.get());
    const QVariantMap extra{{Names::PLUGININSTANCE_ID, QStringLiteral("mine")},
                            {Names::PluginSelectState, QStringLiteral("maybe")},
                            {QStringLiteral("more"), 1}};
    plugin->sendPluginInstanceEvent(65557, extra);
    QCOMPARE(onlyEvent(65557), extra);
}

void TestZrPluginBaseWidget::withoutPresenterNothingIsSent()
{
    plugin->SetEventNotifyFlag(0xff);
    plugin->SetInitialized(true);
    plugin->sendPluginInstanceEvent(65555, {});
    plugin->subPluginLinkage(1, true, ZrPluginBaseWidget::LinkageGroupBlue);
    plugin->setPluginLinkageState(true, 1);
    plugin->unSubPluginLinkage(0);
    QCOMPARE(onlyEvent(65555), (QVariantMap{{QStringLiteral("events sent"), 0}}));
    QCOMPARE(plugin->getPluginLinkageGroup(), -1);
}

// --- presenter, loading, linkage -------------------------------------------------------------------------

void TestZrPluginBaseWidget::aPresenterTiesItself()
{
    presenter = new PresenterProbe(pid, IMessageInterface::SharedThread, plugin.get());
    QCOMPARE(plugin->getPluginPresenter(), presenter);
    plugin->setPluginPresenter(nullptr);
    QCOMPARE(plugin->getPluginPresenter(), presenter);
}

void TestZrPluginBaseWidget::loadingOfThePresenterCoversThePlugin()
{
    const auto frame = plugin->findChild<ZrLoadingFrame *>();
    auto *const content = new QWidget(plugin.get());
    content->show();
    presenter = new PresenterProbe(pid, IMessageInterface::PresenterThread, plugin.get());
    emit presenter->signalDataLoading();
    QVERIFY(frame->isHidden()); // queued
    QTRY_VERIFY(!frame->isHidden());
    QCOMPARE(plugin->children().constLast(), frame);
    emit presenter->signalDataLoadFinished();
    QVERIFY(!frame->isHidden());
    QTRY_VERIFY(frame->isHidden());
    emit presenter->signalDataLoading();
    QTRY_VERIFY(!frame->isHidden());
    emit presenter->signalDataLoadTimeout();
    QTRY_VERIFY(frame->isHidden());
}

void TestZrPluginBaseWidget::anyOtherStateUncovers()
{
    const auto frame = plugin->findChild<ZrLoadingFrame *>();
    for (const int state : {0, 2, 3, 4}) {
        plugin->setLoadingState(1);
        QVERIFY(!frame->isHidden());
        plugin->setLoadingState(state);
        QVERIFY(frame->isHidden());
    }
    delete frame;
    plugin->setLoadingState(1);
    plugin->resize(1, 1);
}

void TestZrPluginBaseWidget::loadingFrameHasThePluginsSize()
{
    plugin->show();
    plugin->resize(400, 300);
    QCOMPARE(plugin->findChild<ZrLoadingFrame *>()->size(), QSize(400, 300));
    QVERIFY(plugin->calls.contains(QStringLiteral("resized")));
}

void TestZrPluginBaseWidget::presenterThatGoesIsForgotten()
{
    auto *const first = new PresenterProbe(pid, IMessageInterface::PresenterThread, plugin.get());
    auto *const second = new PresenterProbe(pid, IMessageInterface::PresenterThread, plugin.get());
    QCOMPARE(plugin->getPluginPresenter(), second);
    QVERIFY(Probe::isGoneAfterDeleteLater(first));
    QCOMPARE(plugin->getPluginPresenter(), second);
    QVERIFY(Probe::isGoneAfterDeleteLater(second));
    QVERIFY(!plugin->getPluginPresenter());
    plugin->sendPluginInstanceEvent(65555, {});
}

void TestZrPluginBaseWidget::linkageGoesToTheTitle()
{
    presenter = new PresenterProbe(pid, IMessageInterface::SharedThread, plugin.get());
    QSignalSpy added(plugin->getPrivate(), &ZrPluginBaseWidgetPrivate::signalAddPluginCustomWidget);
    plugin->subPluginLinkage(1, true, ZrPluginBaseWidget::LinkageGroupBlue);
    QCOMPARE(added.size(), 1);
    auto *const combo = qobject_cast<QComboBox *>(added.at(0).at(1).value<QWidget *>());
    QVERIFY(combo);
    QCOMPARE(added.at(0).at(2).toBool(), true);
    QCOMPARE(plugin->getPluginLinkageGroup(), 2);
    QVERIFY(!plugin->isPluginLinkageVisiable());
    plugin->show();
    QVERIFY(plugin->isPluginLinkageVisiable());
    LinkWitness witness;
    QCOMPARE(witness.groupsOf(presenter, 1), QList<int>{2});
    combo->setCurrentIndex(4);
    QCOMPARE(plugin->getPluginLinkageGroup(), 4);
    QCOMPARE(witness.groupsOf(presenter, 1), QList<int>{4});
    plugin->setPluginLinkageState(false, 1);
    QCOMPARE(plugin->getPluginLinkageGroup(), 1);
    QVERIFY(!plugin->isPluginLinkageVisiable());
    QCOMPARE(witness.groupsOf(presenter, 1), QList<int>{1});
    plugin->unSubPluginLinkage(1);
    QVERIFY(witness.groupsOf(presenter, 1).isEmpty());
}

void TestZrPluginBaseWidget::sheetIsTakenWhenThereIsOne()
{
    plugin->loadSkin(QStringLiteral("QWidget{color:red;}"));
    QCOMPARE(plugin->styleSheet(), QStringLiteral("QWidget{color:red;}"));
    plugin->loadSkin(QVariant());
    QCOMPARE(plugin->styleSheet(), QStringLiteral("QWidget{color:red;}"));
}

void TestZrPluginBaseWidget::closeIsAccepted()
{
    QCloseEvent event;
    plugin->closeEvent(&event);
    QVERIFY(event.isAccepted());
    plugin->show();
    QVERIFY(plugin->close());
}

void TestZrPluginBaseWidget::aPropertyMayEndThePlugin()
{
    plugin->hook = [this](const QString &) { plugin.reset(); };
    plugin->setPluginWidgetTitle(QStringLiteral("the last"));
    QVERIFY(!plugin);
    plugin = std::make_unique<PluginProbe>();
    connect(plugin->getPrivate(), &ZrPluginBaseWidgetPrivate::signalPluginPropetyChanged, this,
            [this] { plugin.reset(); });
    plugin->setPluginRefreshable(true);
    QVERIFY(!plugin);
    plugin = std::make_unique<PluginProbe>();
    plugin->hook = [this](const QString &) { plugin.reset(); };
    plugin->setPluginWidgetSelected(true);
    QVERIFY(!plugin);
}

ZR_TEST_MAIN(TestZrPluginBaseWidget)
#include "tst_zrpluginbasewidget.moc"
