#include "FrameScene.h"
#include "PluginKit.h"
#include "zrcore/ZrCore.h"
#include "zrdefine/Constants.h"
#include "zrdefine/PluginPropety.h"
#include "ZrHideStyles.h"
#include "ZrPluginBaseWidget_p.h"
#include "ZrPluginViews.h"
#include "ZrTableView.h"
#include "ZrTestMain.h"

namespace {
const QString pid = QStringLiteral("menu#plugin#_1");
const QString orders = QStringLiteral("Orders");
const QString shortOrders = QStringLiteral(R"({"Orders":{"Short":["3","7"]}})");

QString saved(const QString &group)
{
    return ZrCore::instance()->settings(pid, group, QString(), QSettings::UserScope).toString();
}

void save(const QString &group, const QString &text)
{
    ZrCore::instance()->saveSetting(pid, text, group, QString(), QSettings::UserScope);
}
} // namespace

/// What a plugin keeps for its views and from its skin.
class TestZrPluginBaseWidgetPrivate : public QObject
{
    Q_OBJECT
private slots:
    void init();
    void cleanup();

    void viewsRegisterThroughThePlugin();
    void nothingIsRegisteredAsAView();
    void viewsAreRegisteredWithAnotherPluginToo();
    void anotherPluginTakesTheFirstOnesPlace();
    void noOtherPluginEndsIt();
    void theOtherPluginMayGoFirst();
    void thePluginTakesItsViewsAlong();
    void columnsAreToldAndKept();
    void ordersAreToldAndKept();

    void stylesAreRestored();
    void brokenStylesLeaveTheStyleInForceToBeRead();
    void theStyleInForceReachesAView_data();
    void theStyleInForceReachesAView();
    void stylesAreSaved();

    void ownPropertiesGoToThePluginInOrder();
    void anOwnPropertyMayEndThePlugin();

    void skinSetsPropertiesAndSheet();
    void anotherSkinSetsItsOwn();
    void eachSkinFileConnectsOnceMore();
    void aSkinPropertyMayEndThePlugin();
    void noIconNoProperty();

    void whatIsNotAttachedSaysSo();

private:
    std::unique_ptr<FrameScene> scene;
    std::unique_ptr<PluginProbe> plugin;
    ZrPluginBaseWidgetPrivate *d = nullptr;
};

void TestZrPluginBaseWidgetPrivate::init()
{
    scene = std::make_unique<FrameScene>();
    const auto write = [this](const char *path, const char *text) {
        return scene->writeFile(QLatin1String(path), text);
    };
    QVERIFY(write("skins/dark/orders/orders.css", "QWidget{color:white;}"));
    QVERIFY(write("skins/dark/orders/basesetting.ini", "title=委托\n[size]\nwidth=300\nheight=200\n"));
    QVERIFY(write("skins/light/orders/orders.css", "QWidget{color:black;}"));
    QVERIFY(write("skins/light/orders/basesetting.ini", "[size]\nwidth=400\n"));
    QVERIFY(scene->startOwn(QStringLiteral("dark")));
    plugin = std::make_unique<PluginProbe>();
    plugin->giveInstanceId(pid);
    d = plugin->getPrivate();
}

void TestZrPluginBaseWidgetPrivate::cleanup()
{
    plugin.reset();
    scene.reset();
}

// --- views -----------------------------------------------------------------------------------------------

void TestZrPluginBaseWidgetPrivate::viewsRegisterThroughThePlugin()
{
    ViewProbe view(orders);
    const LogCatcher log;
    plugin->RegisterTable2Plugin(&view);
    plugin->RegisterTable2Plugin(&view);
    QCOMPARE(d->views->list(), QList<ZrViewBase *>{&view});
    plugin->UnregisterTableFromPlugin(&view);
    QVERIFY(d->views->list().isEmpty());
    const QStringList lines = log.lines(QtDebugMsg);
    QCOMPARE(lines.size(), 3);
    QVERIFY(lines.at(0).startsWith(
        QStringLiteral("ZrPluginBaseWidgetPrivate::addPluginView new table detected in plugin:  ViewProbe")));
    QCOMPARE(lines.at(1), lines.at(0));
    QVERIFY(lines.at(2).startsWith(
        QStringLiteral("ZrPluginBaseWidgetPrivate::removePluginView table removed in plugin:  ViewProbe")));
}

void TestZrPluginBaseWidgetPrivate::nothingIsRegisteredAsAView()
{
    d->addPluginView(nullptr);
    d->removePluginView(nullptr);
    d->resetPluginViewCurrentHideStyle(nullptr);
    QVERIFY(d->views->list().isEmpty());
}

void TestZrPluginBaseWidgetPrivate::viewsAreRegisteredWithAnotherPluginToo()
{
    ViewProbe first(orders), second(QStringLiteral("Trades")), later;
    PluginProbe other;
    d->addPluginView(&first);
    d->addPluginView(&second);
    plugin->RegisterAllTableToPlugin(&other);
    d->addPluginView(&later);
    QCOMPARE(other.getPrivate()->views->list(), (QList<ZrViewBase *>{&first, &second}));
    QCOMPARE(d->views->list().size(), 3);
    d->unregisterAllTableFromPlugin();
    QVERIFY(other.getPrivate()->views->list().isEmpty());
    QVERIFY(!d->otherPlugin);
    QCOMPARE(d->views->list().size(), 3);
    d->unregisterAllTableFromPlugin();
}

void TestZrPluginBaseWidgetPrivate::anotherPluginTakesTheFirstOnesPlace()
{
    ViewProbe view;
    PluginProbe first, second;
    d->addPluginView(&view);
    plugin->RegisterAllTableToPlugin(&first);
    plugin->RegisterAllTableToPlugin(&second);
    QVERIFY(first.getPrivate()->views->list().isEmpty());
    QCOMPARE(second.getPrivate()->views->list(), QList<ZrViewBase *>{&view});
    QCOMPARE(d->otherPlugin, second.getPrivate());
}

void TestZrPluginBaseWidgetPrivate::noOtherPluginEndsIt()
{
    ViewProbe view;
    PluginProbe other;
    d->addPluginView(&view);
    plugin->RegisterAllTableToPlugin(&other);
    d->registerAllTableToPlugin(nullptr);
    QCOMPARE(d->otherPlugin, other.getPrivate());
    plugin->RegisterAllTableToPlugin(nullptr);
    QVERIFY(!d->otherPlugin);
    QVERIFY(other.getPrivate()->views->list().isEmpty());
}

void TestZrPluginBaseWidgetPrivate::theOtherPluginMayGoFirst()
{
    ViewProbe view;
    d->addPluginView(&view);
    auto other = std::make_unique<PluginProbe>();
    plugin->RegisterAllTableToPlugin(other.get());
    other.reset();
    QVERIFY(!d->otherPlugin);
    d->unregisterAllTableFromPlugin();
    QCOMPARE(d->views->list(), QList<ZrViewBase *>{&view});
}

void TestZrPluginBaseWidgetPrivate::thePluginTakesItsViewsAlong()
{
    ViewProbe view;
    PluginProbe other;
    d->addPluginView(&view);
    plugin->RegisterAllTableToPlugin(&other);
    plugin.reset();
    QVERIFY(other.getPrivate()->views->list().isEmpty());
}

void TestZrPluginBaseWidgetPrivate::columnsAreToldAndKept()
{
    ViewProbe view(orders);
    d->addPluginView(&view);
    const ColumnMap columns{{orders, {3, 7}}, {QStringLiteral("Trades"), {1}}};
    const LogCatcher log;
    d->setPluginViewColumnVisiableProperity(columns);
    QCOMPARE(d->getPluginViewColumnVisiableProperity(), columns);
    QCOMPARE(view.hidden, QList<Columns>{(Columns{3, 7})});
    QCOMPARE(log.lines(QtDebugMsg).size(), 1);
    QVERIFY(log.lines(QtDebugMsg)
                .constFirst()
                .startsWith(QStringLiteral("setPluginViewColumnVisiableProperity QMap(")));
    QCOMPARE(d->columnVisibleProperty(orders).value(), (Columns{3, 7}));
    QVERIFY(!d->columnVisibleProperty(QStringLiteral("Funds")));
    QVERIFY(!d->columnOrderProperty(orders));
}

void TestZrPluginBaseWidgetPrivate::ordersAreToldAndKept()
{
    ViewProbe view(orders);
    view.shownOrder = {9};
    d->addPluginView(&view);
    const ColumnMap given{{orders, {1, 0}}, {QStringLiteral("Trades"), {1}}};
    const LogCatcher log;
    d->setPluginViewHeadIndexOrderPropertity(given);
    QCOMPARE(view.orders, QList<Columns>{(Columns{1, 0})});
    QCOMPARE(d->getPluginViewHeadIndexOrderPropertity(false), given);
    QCOMPARE(d->getPluginViewHeadIndexOrderPropertity(true),
             (ColumnMap{{orders, {9}}, {QStringLiteral("Trades"), {1}}}));
    QVERIFY(log.lines(QtDebugMsg)
                .constFirst()
                .startsWith(QStringLiteral("setPluginViewHeadIndexOrderPropertity QMap(")));
    QCOMPARE(d->columnOrderProperty(orders).value(), (Columns{1, 0}));
}

// --- styles of hidden columns ----------------------------------------------------------------------------

void TestZrPluginBaseWidgetPrivate::stylesAreRestored()
{
    save(Constants::PLUGIN_VIEWCURRENTCUSTOMHIDESTYLE, QStringLiteral(R"({"Orders":"Short"})"));
    d->setPluginViewCustomHideStyleListString(shortOrders);
    QCOMPARE(d->hideStyles->customText(), shortOrders);
    QCOMPARE(d->hideStyles->current.value(orders), QStringLiteral("Short"));
    d->setPluginViewCustomHideStyleListString(shortOrders);
    QCOMPARE(d->hideStyles->custom.value(orders).value(QStringLiteral("Short")), (Columns{3, 7, 3, 7}));
}

void TestZrPluginBaseWidgetPrivate::brokenStylesLeaveTheStyleInForceToBeRead()
{
    save(Constants::PLUGIN_VIEWCURRENTCUSTOMHIDESTYLE, QStringLiteral(R"({"Orders":"Short"})"));
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("no usable JSON")));
    d->setPluginViewCustomHideStyleListString(QStringLiteral("{broken"));
    QVERIFY(d->hideStyles->custom.isEmpty());
    QCOMPARE(d->hideStyles->current.value(orders), QStringLiteral("Short"));
    save(Constants::PLUGIN_VIEWCURRENTCUSTOMHIDESTYLE, QString());
    d->setPluginViewCustomHideStyleListString(QString());
    QCOMPARE(d->hideStyles->current.size(), 1);
}

void TestZrPluginBaseWidgetPrivate::theStyleInForceReachesAView_data()
{
    QTest::addColumn<QString>("current");
    QTest::addColumn<bool>("isRegistered");
    QTest::addColumn<QList<Columns>>("expected");
    QTest::newRow("style") << QStringLiteral("Short") << true << QList<Columns>{{3, 7}};
    QTest::newRow("style that is gone") << QStringLiteral("gone") << true << QList<Columns>{{}};
    QTest::newRow("no style") << QString() << true << QList<Columns>();
    QTest::newRow("unknown view") << QStringLiteral("Short") << false << QList<Columns>();
}

void TestZrPluginBaseWidgetPrivate::theStyleInForceReachesAView()
{
    QFETCH(QString, current);
    QFETCH(bool, isRegistered);
    d->setPluginViewCustomHideStyleListString(shortOrders);
    if (!current.isEmpty())
        d->hideStyles->current.insert(orders, current);
    ViewProbe view(orders);
    if (isRegistered)
        d->addPluginView(&view);
    d->resetPluginViewCurrentHideStyle(&view);
    QTEST(view.hidden, "expected");
}

void TestZrPluginBaseWidgetPrivate::stylesAreSaved()
{
    d->setPluginViewCustomHideStyleListString(shortOrders);
    d->hideStyles->current.insert(orders, QStringLiteral("Short"));
    d->saveCurrentCustomViewHideStyleName();
    QCOMPARE(saved(Constants::PLUGIN_VIEWCURRENTCUSTOMHIDESTYLE), QStringLiteral(R"({"Orders":"Short"})"));
    QVERIFY(saved(Constants::PLUGIN_VIEWCUSTOMHIDESTYLE).isEmpty());
    QCOMPARE(d->transeUserCustomViewHIdeColumnListToJsonString(), shortOrders);
    QCOMPARE(saved(Constants::PLUGIN_VIEWCUSTOMHIDESTYLE), shortOrders);

    PluginProbe again;
    again.giveInstanceId(pid);
    again.getPrivate()->setPluginViewCustomHideStyleListString(saved(Constants::PLUGIN_VIEWCUSTOMHIDESTYLE));
    QCOMPARE(again.getPrivate()->hideStyles->custom, d->hideStyles->custom);
    QCOMPARE(again.getPrivate()->hideStyles->current, d->hideStyles->current);
}

// --- properties ------------------------------------------------------------------------------------------

void TestZrPluginBaseWidgetPrivate::ownPropertiesGoToThePluginInOrder()
{
    const QVariantMap own{{QStringLiteral("b"), 2}, {QStringLiteral("a"), 1}};
    plugin->SetEventNotifyFlag(9);
    d->setPluginCustomProperity(own);
    QCOMPARE(plugin->calls, (QStringList{QStringLiteral("layout a=1"), QStringLiteral("layout b=2")}));
    QCOMPARE(d->getPluginCustomProperity(), own);
    QCOMPARE(d->eventNotifyFlags, 9);
    d->setPluginCustomProperity({{PluginPropety::PluginEventNotifyType, QStringLiteral("260")}});
    QCOMPARE(d->eventNotifyFlags, 4);
    d->setPluginCustomProperity({});
    QVERIFY(d->getPluginCustomProperity().isEmpty());
}

void TestZrPluginBaseWidgetPrivate::anOwnPropertyMayEndThePlugin()
{
    int count = 0;
    plugin->hook = [this, &count](const QString &) {
        ++count;
        plugin.reset();
    };
    d->setPluginCustomProperity({{QStringLiteral("a"), 1}, {PluginPropety::PluginEventNotifyType, 3}});
    QCOMPARE(count, 1);
    QVERIFY(!plugin);
}

// --- skin ------------------------------------------------------------------------------------------------

void TestZrPluginBaseWidgetPrivate::skinSetsPropertiesAndSheet()
{
    QSignalSpy changed(d, &ZrPluginBaseWidgetPrivate::signalPluginPropetyChanged);
    plugin->addSkinFile(orders.toLower(), QStringLiteral("orders.css"), QStringLiteral("icon.png"));
    QCOMPARE(plugin->styleSheet(), QStringLiteral("QWidget{color:white;}"));
    QCOMPARE(plugin->property("sizewidth"), QVariant(QStringLiteral("300")));
    QCOMPARE(plugin->property("sizeheight"), QVariant(QStringLiteral("200")));
    QCOMPARE(plugin->property("title"), QVariant(QString::fromUtf8("委托")));
    QCOMPARE(plugin->getPluginWidgetPropety(PluginPropety::PLUGINWIDGET_TITLEICON),
             QVariant(QStringLiteral("orders/icon.png")));
    QCOMPARE(plugin->valuesOf(QStringLiteral("sizewidth")), QVariantList{QStringLiteral("300")});
    QCOMPARE(changed.size(), 1);
    QVERIFY(changed.at(0).at(0).toString().isEmpty());
    QCOMPARE(d->skinDir, QStringLiteral("orders"));
}

void TestZrPluginBaseWidgetPrivate::anotherSkinSetsItsOwn()
{
    plugin->addSkinFile(orders.toLower(), QStringLiteral("orders.css"), QString());
    QSignalSpy changed(d, &ZrPluginBaseWidgetPrivate::signalPluginPropetyChanged);
    QVERIFY(scene->host.setSkin(QStringLiteral("light")));
    QCOMPARE(plugin->styleSheet(), QStringLiteral("QWidget{color:black;}"));
    QCOMPARE(plugin->property("sizewidth"), QVariant(QStringLiteral("400")));
    QCOMPARE(plugin->property("sizeheight"), QVariant(QStringLiteral("200"))); // this skin says nothing of it
    QCOMPARE(changed.size(), 1);
}

void TestZrPluginBaseWidgetPrivate::eachSkinFileConnectsOnceMore()
{
    plugin->addSkinFile(orders.toLower(), QStringLiteral("orders.css"), QString());
    plugin->addSkinFile(orders.toLower(), QStringLiteral("orders.css"), QString());
    QSignalSpy changed(d, &ZrPluginBaseWidgetPrivate::signalPluginPropetyChanged);
    QVERIFY(scene->host.setSkin(QStringLiteral("light")));
    QCOMPARE(changed.size(), 2);
    plugin.reset();
    QVERIFY(scene->host.setSkin(QStringLiteral("dark")));
}

void TestZrPluginBaseWidgetPrivate::aSkinPropertyMayEndThePlugin()
{
    int count = 0;
    plugin->hook = [this, &count](const QString &) {
        ++count;
        plugin.reset();
    };
    plugin->addSkinFile(orders.toLower(), QStringLiteral("orders.css"), QStringLiteral("icon.png"));
    QCOMPARE(count, 1);
    QVERIFY(!plugin);
}

void TestZrPluginBaseWidgetPrivate::noIconNoProperty()
{
    plugin->addSkinFile(QStringLiteral("nowhere"), QStringLiteral("none.css"), QString());
    QVERIFY(!plugin->getPluginWidgetPropety(PluginPropety::PLUGINWIDGET_TITLEICON).isValid());
    QVERIFY(plugin->styleSheet().isEmpty());
}

// --- what later work attaches ----------------------------------------------------------------------------

void TestZrPluginBaseWidgetPrivate::whatIsNotAttachedSaysSo()
{
    ZrTableView view(plugin.get());
    QTest::ignoreMessage(QtWarningMsg,
                         QRegularExpression(QStringLiteral("exportViewData no export is attached")));
    plugin->exportViewData(&view);
    QTest::ignoreMessage(QtWarningMsg,
                         QRegularExpression(QStringLiteral("slotExportFileFinished no export is attached")));
    d->slotExportFileFinished(true, QStringLiteral("a.txt"), QString());
    QTest::ignoreMessage(QtWarningMsg,
                         QRegularExpression(QStringLiteral("BtnClicked no settings menu is attached")));
    d->slotPluginSettingBtnClicked();
}

ZR_TEST_MAIN(TestZrPluginBaseWidgetPrivate)
#include "tst_zrpluginbasewidget_p.moc"
