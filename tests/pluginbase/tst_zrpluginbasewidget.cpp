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

    void anyOtherStateUncovers();
    void loadingFrameHasThePluginsSize();
    void sheetIsTakenWhenThereIsOne();
    void closeIsAccepted();
    void aPropertyMayEndThePlugin();

private:
    FrameScene scene;
    std::unique_ptr<PluginProbe> plugin;
};

void TestZrPluginBaseWidget::init()
{
    QVERIFY(scene.startOwn(QString()));
    plugin = std::make_unique<PluginProbe>();
    plugin->giveInstanceId();
    plugin->baseData.clear();
}

void TestZrPluginBaseWidget::cleanup()
{
    plugin.reset();
    scene.host.stop();
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

// --- loading, skin and end -------------------------------------------------------------------------------

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
