#include "ZrDepthFields.h"
#include "ZrDepthPanel.h"
#include "ZrDepthPlugin.h"
#include "ZrPresenterClass.h"
#include "ZrQuietPlatform.h"
#include "ZrQuotationLabel.h"
#include "ZrReferenceHost.h"
#include "ZrSearchBox.h"
#include "ZrSecurityAskBidPanel.h"
#include "ZrTestMain.h"

#include "zrdefine/PluginPropety.h"
#include "zrdefine/VexlorFields.h"

#include <QtCore/QTemporaryDir>

#include <mutex>

/// Market depth as the client makes it: by its ID, in a menu, on the bus.
class tst_ZrDepthPlugin : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase();
    void init();
    void cleanup();
    void theFirstBookIsShown();
    void aBusySecurityIsShownAsItIs();
    void aSecurityOfTheGroupIsFollowed();
    void aSearchedSecurityIsToldToTheGroup();
    void aClickedLevelIsToldToTheGroup();
    void theLatestPriceHasNoSide();
    void theSkinsFilesAreRead();
    void itStandsOnTheLaddersGround();
    void aLayoutBringsTheSecurityBack();
    void itMayGoWhileMessagesWait();

private:
    template<typename Plugin>
    Plugin *make(const char *id);
    void publish(const char *symbol, double price);
    static QString lastOf(const ZrDepthPlugin *plugin);

    QTemporaryDir m_folder;
    ZrReferenceHost m_host;
    std::vector<std::unique_ptr<ZrPluginBaseWidget>> m_plugins;
};

namespace {
/// Notes the orders that its linkage group tells of.
class OrderPresenter : public ZrPresenterClass
{
public:
    using ZrPresenterClass::ZrPresenterClass;

    void ProcEventMsg(QString, QVariant type, QVariant msg) override
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        if (type.toInt() == ZrDepthOrderLinkage)
            m_orders.append(msg.toMap());
    }
    QList<QVariantMap> orders() const
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        return m_orders;
    }

private:
    mutable std::mutex m_mutex;
    QList<QVariantMap> m_orders;
};

/// A neighbour, as an order form is.
class OrderPlugin : public ZrPluginBaseWidget
{
    Q_OBJECT
public:
    ~OrderPlugin() override { presenter->deleteLater(); }
    void initPlugin() override
    {
        presenter =
            new OrderPresenter(pluginInstanceID(), this, IMessageInterface::PresenterAndReceiverThread);
        subPluginLinkage(ZrDepthOrderLinkage, true, LinkageGroupOrange);
    }
    OrderPresenter *presenter = nullptr;
};
} // namespace

void tst_ZrDepthPlugin::initTestCase()
{
    ZrQuietPlatform::install();
    QLoggingCategory::setFilterRules(QStringLiteral("default.debug=false")); // one line for each message
}

void tst_ZrDepthPlugin::init()
{
    ZrReferenceHost::Options options;
    options.configFolder = m_folder.path();
    options.skinRoot = QStringLiteral(ZR_SKINS);
    options.skinId = QStringLiteral("dark");
    QVERIFY2(m_host.start(options), qPrintable(m_host.errorText()));
    m_host.registerPlugin(QStringLiteral("depth"), [] { return new ZrDepthPlugin; });
    m_host.registerPlugin(QStringLiteral("orders"), [] { return new OrderPlugin; });
    QList<QVariantMap> securities;
    for (const char *const symbol : {"600519.SH", "000001.SZ"})
        securities.append({{Vexlor_Fields::Security::symbol, symbol}});
    m_host.setSecurities(securities);
}

void tst_ZrDepthPlugin::cleanup()
{
    m_plugins.clear();
    m_host.stop();
}

template<typename Plugin>
Plugin *tst_ZrDepthPlugin::make(const char *id)
{
    ZrPluginBaseWidget *const made = ZrPluginBaseWidget::createPluginWidgetByPluginID(
        QLatin1String(id), QStringLiteral("desk#"), QVariantMap());
    m_plugins.emplace_back(made);
    made->resize(300, 560);
    made->show();
    return qobject_cast<Plugin *>(made);
}

void tst_ZrDepthPlugin::publish(const char *symbol, double price)
{
    m_host.publish(ZrDepthMsgType::depth, {{{Vexlor_Fields::Security::symbol, QLatin1String(symbol)},
                                            {ZrDepthFields::lastPrice, price},
                                            {ZrDepthFields::previousClose, price},
                                            {ZrDepthFields::askPrice + "10", price + 0.1},
                                            {ZrDepthFields::askQty + "10", 1200},
                                            {ZrDepthFields::bidPrice + "1", price - 0.01},
                                            {ZrDepthFields::bidQty + "1", 700}}});
}

QString tst_ZrDepthPlugin::lastOf(const ZrDepthPlugin *plugin)
{
    return plugin->panel()->findChild<ZrQuotationLabel *>(QStringLiteral("lastPrice"))->text();
}

void tst_ZrDepthPlugin::theFirstBookIsShown()
{
    const auto *const plugin = make<ZrDepthPlugin>("depth");
    publish("600519.SH", 10.0);
    publish("000001.SZ", 20.0);
    QTRY_COMPARE(lastOf(plugin), QStringLiteral("10.00"));
    QCOMPARE(plugin->symbol(), QStringLiteral("600519.SH"));
    QCOMPARE(plugin->panel()->search()->getSymbol(), QStringLiteral("600519.SH"));
    QCOMPARE(plugin->panel()->ladder()->getCodeLastAskBidInfo().value(10).price, QStringLiteral("9.99"));
}

void tst_ZrDepthPlugin::aBusySecurityIsShownAsItIs()
{
    const auto *const plugin = make<ZrDepthPlugin>("depth");
    for (int i = 1; i <= 2000; ++i)
        publish("600519.SH", i);
    QVERIFY(m_host.waitIdle(60000));
    QTRY_COMPARE(lastOf(plugin), QStringLiteral("2000.00"));
}

void tst_ZrDepthPlugin::aSecurityOfTheGroupIsFollowed()
{
    const auto *const first = make<ZrDepthPlugin>("depth");
    const auto *const second = make<ZrDepthPlugin>("depth");
    publish("600519.SH", 10.0);
    publish("000001.SZ", 20.0);
    QTRY_COMPARE(lastOf(first), QStringLiteral("10.00"));
    QTRY_COMPARE(lastOf(second), QStringLiteral("10.00"));
    emit first->panel()->signalSecurityChosen(QStringLiteral("000001.SZ"));
    QTRY_COMPARE(lastOf(first), QStringLiteral("20.00"));
    QTRY_COMPARE(lastOf(second), QStringLiteral("20.00"));
    publish("600519.SH", 11.0);
    publish("000001.SZ", 21.0);
    QTRY_COMPARE(lastOf(second), QStringLiteral("21.00"));
}

void tst_ZrDepthPlugin::aSearchedSecurityIsToldToTheGroup()
{
    const auto *const first = make<ZrDepthPlugin>("depth");
    const auto *const second = make<ZrDepthPlugin>("depth");
    publish("600519.SH", 10.0);
    publish("000001.SZ", 20.0);
    QTRY_COMPARE(lastOf(second), QStringLiteral("10.00"));
    first->panel()->window()->activateWindow();
    ZrSearchBox *const search = first->panel()->search();
    search->setFocus();
    QTRY_VERIFY(search->hasFocus());
    search->selectAll();
    QTest::keyClicks(search, QStringLiteral("000001"));
    QTRY_COMPARE(first->symbol(), QStringLiteral("000001.SZ"));
    QTRY_COMPARE(lastOf(second), QStringLiteral("20.00"));
}

void tst_ZrDepthPlugin::aClickedLevelIsToldToTheGroup()
{
    const auto *const plugin = make<ZrDepthPlugin>("depth");
    const auto *const orders = make<OrderPlugin>("orders");
    publish("600519.SH", 10.0);
    QTRY_COMPARE(lastOf(plugin), QStringLiteral("10.00"));
    QTest::mouseClick(plugin->panel()->ladder(), Qt::LeftButton, Qt::NoModifier, QPoint(20, 5));
    QTRY_COMPARE(orders->presenter->orders().size(), 1);
    const QVariantMap seller = orders->presenter->orders().value(0);
    QCOMPARE(seller.value(Vexlor_Fields::Security::symbol).toString(), QStringLiteral("600519.SH"));
    QCOMPARE(seller.value(ZrDepthFields::price).toString(), QStringLiteral("10.10"));
    QCOMPARE(seller.value(ZrDepthFields::orderQty).toInt(), 1200);
    QCOMPARE(seller.value(ZrDepthFields::side).toString(), ZrDepthSide::buy);
    plugin->panel()->ladder()->setCurIndex(10);
    QTest::keyClick(plugin->panel()->ladder(), Qt::Key_Down); // the best buyer
    QTRY_COMPARE(orders->presenter->orders().size(), 2);
    const QVariantMap buyer = orders->presenter->orders().value(1);
    QCOMPARE(buyer.value(ZrDepthFields::price).toString(), QStringLiteral("9.99"));
    QCOMPARE(buyer.value(ZrDepthFields::side).toString(), ZrDepthSide::sell);
}

void tst_ZrDepthPlugin::theLatestPriceHasNoSide()
{
    const auto *const plugin = make<ZrDepthPlugin>("depth");
    const auto *const orders = make<OrderPlugin>("orders");
    publish("600519.SH", 10.0);
    QTRY_COMPARE(lastOf(plugin), QStringLiteral("10.00"));
    emit plugin->panel()->ladder()->signalCurrentPriceInfo({-1, 0, QStringLiteral("10.00"), 0, 0, {}});
    QTRY_COMPARE(orders->presenter->orders().size(), 1);
    const QVariantMap record = orders->presenter->orders().value(0);
    QCOMPARE(record.value(ZrDepthFields::price).toString(), QStringLiteral("10.00"));
    QVERIFY(!record.contains(ZrDepthFields::side) && !record.contains(ZrDepthFields::orderQty));
}

void tst_ZrDepthPlugin::theSkinsFilesAreRead()
{
    const auto *const plugin = make<ZrDepthPlugin>("depth");
    QCOMPARE(plugin->getPluginWidgetPropety(PluginPropety::PLUGINWIDGET_NORMALWIDTH).toInt(), 300);
    QCOMPARE(plugin->getPluginWidgetPropety(PluginPropety::PLUGINWIDGET_TITLEICON).toString(),
             QStringLiteral("plugins/depth/depth.svg"));
    QVERIFY(plugin->styleSheet().contains(QLatin1String("lastPrice")));
}

void tst_ZrDepthPlugin::itStandsOnTheLaddersGround()
{
    auto *const plugin = make<ZrDepthPlugin>("depth");
    for (const char *const skin : {"light", "dark"}) {
        QVERIFY(m_host.setSkin(QLatin1String(skin)));
        const QImage image = plugin->panel()->grab().toImage();
        QCOMPARE(image.pixelColor(2, image.height() - 3), plugin->panel()->ladder()->panelBgColor());
    }
}

void tst_ZrDepthPlugin::aLayoutBringsTheSecurityBack()
{
    auto *const plugin = make<ZrDepthPlugin>("depth");
    publish("600519.SH", 10.0);
    publish("000001.SZ", 20.0);
    QTRY_COMPARE(lastOf(plugin), QStringLiteral("10.00"));
    QVariant kept = QVariantMap{{Vexlor_Fields::Security::symbol, "000001.SZ"}};
    plugin->setPluginData(kept);
    QTRY_COMPARE(lastOf(plugin), QStringLiteral("20.00"));
    QCOMPARE(plugin->getPluginData(), kept);
    QVariant nonsense = 7;
    plugin->setPluginData(nonsense);
    QCOMPARE(plugin->symbol(), QStringLiteral("000001.SZ"));
}

void tst_ZrDepthPlugin::itMayGoWhileMessagesWait()
{
    for (int round = 0; round < 50; ++round) {
        make<ZrDepthPlugin>("depth");
        for (int i = 1; i <= 20; ++i)
            publish("600519.SH", i);
        m_plugins.clear();
    }
    QVERIFY(m_host.waitIdle(60000));
    const auto *const last = make<ZrDepthPlugin>("depth");
    publish("600519.SH", 33.0);
    QTRY_COMPARE(lastOf(last), QStringLiteral("33.00"));
}

ZR_TEST_MAIN(tst_ZrDepthPlugin)
#include "tst_zrdepthplugin.moc"
