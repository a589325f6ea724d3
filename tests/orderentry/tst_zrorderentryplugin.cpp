#include "desk/ZrOrderVenue.h"
#include "ZrBlotterPanel.h"
#include "ZrBlotterPlugin.h"
#include "ZrFeedFactory.h"
#include "ZrMoneyQtyLineEdit.h"
#include "ZrOrderEntryNames.h"
#include "ZrOrderEntryPanel.h"
#include "ZrOrderEntryPlugin.h"
#include "ZrOrderEntryPresenter.h"
#include "ZrOrderReports.h"
#include "ZrQuietPlatform.h"
#include "ZrReferenceHost.h"
#include "ZrSearchBox.h"
#include "ZrTableView.h"
#include "ZrTestMain.h"

#include "zrdefine/Constants.h"
#include "zrdefine/PluginPropety.h"
#include "zrdefine/VexlorFields.h"

#include <QtCore/QRegularExpression>
#include <QtCore/QTemporaryDir>
#include <QtGui/QWindow>

/// Order entry as the client makes it, on the bus, beside a blotter.
class tst_ZrOrderEntryPlugin : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase();
    void init();
    void cleanup();
    void aTypedOrderIsSentAndSeenInTheBlotter();
    void aRejectedOrderIsSaid();
    void anOrderWithoutAnAnswerIsSaid();
    void aSecurityOfTheBlotterFillsTheForm();
    void aPickIsToldToTheBlotter();
    void aLevelOfABookFillsPriceAndQuantity();
    void theAccountOfTheTitleIsTaken();
    void titleAndSizeAreTold();
    void itMayGoWhileAnswersAreUnderWay();

private:
    template<typename Plugin>
    Plugin *make(const char *id);
    void type(const ZrOrderEntryPlugin *plugin, const char *text);
    static ZrMoneyQtyLineEdit *field(const ZrOrderEntryPlugin *plugin, const char *name);
    void fillIn(const ZrOrderEntryPlugin *plugin);
    static ZrOrderEntryPresenter *presenter(const ZrOrderEntryPlugin *plugin);

    QTemporaryDir m_folder;
    ZrReferenceHost m_host;
    std::unique_ptr<ZrOrderVenue> m_venue;
    std::vector<std::unique_ptr<ZrPluginBaseWidget>> m_plugins;
};

void tst_ZrOrderEntryPlugin::initTestCase()
{
    ZrQuietPlatform::install();
    QLoggingCategory::setFilterRules(QStringLiteral("default.debug=false")); // one line for each message
}

void tst_ZrOrderEntryPlugin::init()
{
    ZrReferenceHost::Options options;
    options.configFolder = m_folder.path();
    options.skinRoot = QStringLiteral(ZR_SKINS);
    options.skinId = QStringLiteral("dark");
    options.database.language = QStringLiteral("en");
    QVERIFY2(m_host.start(options), qPrintable(m_host.errorText()));
    m_host.registerPlugin(QStringLiteral("blotter"), [] { return new ZrBlotterPlugin; });
    m_host.registerPlugin(QStringLiteral("orderentry"), [] { return new ZrOrderEntryPlugin; });
    m_venue = std::make_unique<ZrOrderVenue>(&m_host, ZrFeedFactory::accounts());
}

void tst_ZrOrderEntryPlugin::cleanup()
{
    m_plugins.clear();
    m_venue.reset();
    m_host.stop();
}

template<typename Plugin>
Plugin *tst_ZrOrderEntryPlugin::make(const char *id)
{
    m_plugins.emplace_back(ZrPluginBaseWidget::createPluginWidgetByPluginID(
        QLatin1String(id), QStringLiteral("desk#"), {{PluginPropety::PLUGIN_CUSTOMPROP, QVariantMap()}}));
    auto *const plugin = qobject_cast<Plugin *>(m_plugins.back().get());
    plugin->resize(500, 560);
    plugin->show();
    return plugin;
}

void tst_ZrOrderEntryPlugin::type(const ZrOrderEntryPlugin *plugin, const char *text)
{
    for (const char *key = text; *key; ++key)
        QTest::keyClick(plugin->windowHandle(), *key);
}

ZrMoneyQtyLineEdit *tst_ZrOrderEntryPlugin::field(const ZrOrderEntryPlugin *plugin, const char *name)
{
    return plugin->findChild<ZrMoneyQtyLineEdit *>(QLatin1String(name));
}

void tst_ZrOrderEntryPlugin::fillIn(const ZrOrderEntryPlugin *plugin)
{
    plugin->panel()->setSecurity(QStringLiteral("600003.SH"));
    plugin->panel()->setLevel(27.2, 300);
}

ZrOrderEntryPresenter *tst_ZrOrderEntryPlugin::presenter(const ZrOrderEntryPlugin *plugin)
{
    return static_cast<ZrOrderEntryPresenter *>(plugin->getPluginPresenter());
}

void tst_ZrOrderEntryPlugin::aTypedOrderIsSentAndSeenInTheBlotter()
{
    const auto *const blotter = make<ZrBlotterPlugin>("blotter");
    auto *const plugin = make<ZrOrderEntryPlugin>("orderentry");
    plugin->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(plugin));
    plugin->findChild<ZrSearchBox *>()->setFocus();
    type(plugin, "600003");
    QTRY_VERIFY(field(plugin, "orderEntryPrice")->hasFocus());
    type(plugin, "27.35");
    QTest::keyClick(plugin->windowHandle(), Qt::Key_Return);
    field(plugin, "orderEntryQuantity")->selectAll();
    type(plugin, "500");
    QTest::keyClick(plugin->windowHandle(), Qt::Key_Return);
    const ZrTableView *const own = plugin->panel()->reports()->view();
    QTRY_COMPARE(own->getRowCount(), 1);
    QTRY_COMPARE(own->getRowData(0).value(6).value("0").toString(), QString("Filled"));
    const QString number = own->getRowData(0).value(1).value("0").toString();
    QTRY_COMPARE(plugin->panel()->said(), QString("Order %1 was accepted.").arg(number));
    const ZrTableView *const grid = blotter->panel()->view();
    QTRY_COMPARE(grid->getRowCount(), 1);
    QTRY_VERIFY(!grid->getRowDataByKey(number + "600003.SH").isEmpty());
}

void tst_ZrOrderEntryPlugin::aRejectedOrderIsSaid()
{
    auto *const plugin = make<ZrOrderEntryPlugin>("orderentry");
    QVERIFY(m_host.setFaults(QStringLiteral("reject=1,seed=1")));
    fillIn(plugin);
    emit plugin->panel()->signalSend(plugin->panel()->ticket());
    QTRY_VERIFY(!plugin->panel()->said().isEmpty() && plugin->panel()->said() != "Sending...");
    QVERIFY(!plugin->panel()->said().contains("accepted"));
    QVERIFY(m_host.setFaults(QString()));
}

void tst_ZrOrderEntryPlugin::anOrderWithoutAnAnswerIsSaid()
{
    m_venue.reset();
    auto *const plugin = make<ZrOrderEntryPlugin>("orderentry");
    presenter(plugin)->setRequestTimeOut(0); // at the next tick of its clock
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression("^Async request timeout"));
    fillIn(plugin);
    emit plugin->panel()->signalSend(plugin->panel()->ticket());
    QCOMPARE(plugin->panel()->said(), QString("Sending..."));
    QTRY_COMPARE(plugin->panel()->said(), QString("No answer: the order may have arrived or not."));
}

void tst_ZrOrderEntryPlugin::aSecurityOfTheBlotterFillsTheForm()
{
    const auto *const blotter = make<ZrBlotterPlugin>("blotter");
    const auto *const plugin = make<ZrOrderEntryPlugin>("orderentry");
    emit blotter->panel()->signalSecurityChosen(QStringLiteral("600003.SH"));
    QTRY_COMPARE(plugin->panel()->ticket().symbol, QString("600003.SH"));
    QCOMPARE(plugin->panel()->ticket().price, QString("27.2"));
}

void tst_ZrOrderEntryPlugin::aPickIsToldToTheBlotter()
{
    const auto *const first = make<ZrOrderEntryPlugin>("orderentry");
    const auto *const second = make<ZrOrderEntryPlugin>("orderentry");
    emit first->panel()->signalSecurityChosen(QStringLiteral("600001.SH"));
    QTRY_COMPARE(second->panel()->ticket().symbol, QString("600001.SH"));
}

void tst_ZrOrderEntryPlugin::aLevelOfABookFillsPriceAndQuantity()
{
    const auto *const plugin = make<ZrOrderEntryPlugin>("orderentry");
    presenter(plugin)->ProcEventMsg(QString(), ZrOrderEntryOrderLinkage,
                                    QVariantMap{{Vexlor_Fields::Security::symbol, "600003.SH"},
                                                {ZrOrderEntryField::price, 27.18},
                                                {ZrOrderEntryField::side, ZrOrderEntryCode::sell},
                                                {ZrOrderEntryField::orderQty, 1300.0}});
    QTRY_COMPARE(plugin->panel()->ticket().symbol, QString("600003.SH"));
    QCOMPARE(plugin->panel()->ticket().price, QString("27.18"));
    QCOMPARE(plugin->panel()->ticket().quantity, QString("1300"));
    QCOMPARE(plugin->panel()->ticket().side, ZrOrderEntryCode::sell);
    // The latest price stands on no side and has no quantity.
    presenter(plugin)->ProcEventMsg(
        QString(), ZrOrderEntryOrderLinkage,
        QVariantMap{{Vexlor_Fields::Security::symbol, "600003.SH"}, {ZrOrderEntryField::price, "27.11"}});
    QTRY_COMPARE(plugin->panel()->ticket().price, QString("27.11"));
    QCOMPARE(plugin->panel()->ticket().quantity, QString("1300"));
    QCOMPARE(plugin->panel()->ticket().side, ZrOrderEntryCode::sell);
}

void tst_ZrOrderEntryPlugin::theAccountOfTheTitleIsTaken()
{
    auto *const plugin = make<ZrOrderEntryPlugin>("orderentry");
    const QString other =
        ZrFeedFactory::accounts().value(3).value(Vexlor_Fields::UserAccount::tradingAccount).toString();
    QVERIFY(!other.isEmpty());
    plugin->setBaseData(Constants::USER_ACCOUNT,
                        QVariantMap{{Vexlor_Fields::UserAccount::tradingAccount, other}});
    QCOMPARE(plugin->panel()->ticket().account, other);
}

void tst_ZrOrderEntryPlugin::titleAndSizeAreTold()
{
    const auto *const plugin = make<ZrOrderEntryPlugin>("orderentry");
    QCOMPARE(plugin->property(PluginPropety::PLUGINWIDGET_TITLETEXT.toLatin1()).toString(),
             QString("Order entry"));
    QCOMPARE(plugin->property(PluginPropety::PLUGINWIDGET_NORMALWIDTH.toLatin1()).toInt(), 460);
}

void tst_ZrOrderEntryPlugin::itMayGoWhileAnswersAreUnderWay()
{
    for (int round = 0; round < 30; ++round) {
        auto *const plugin = make<ZrOrderEntryPlugin>("orderentry");
        fillIn(plugin);
        emit plugin->panel()->signalSend(plugin->panel()->ticket());
        m_plugins.clear();
    }
    QVERIFY(m_host.waitIdle(60000));
    auto *const last = make<ZrOrderEntryPlugin>("orderentry");
    fillIn(last);
    emit last->panel()->signalSend(last->panel()->ticket());
    QTRY_COMPARE(last->panel()->reports()->view()->getRowCount(), 1);
}

ZR_TEST_MAIN(tst_ZrOrderEntryPlugin)
#include "tst_zrorderentryplugin.moc"
