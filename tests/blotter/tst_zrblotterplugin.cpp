#include "FreezeTableView.h"
#include "ZrBlotterFields.h"
#include "ZrBlotterPanel.h"
#include "ZrBlotterPlugin.h"
#include "ZrBlotterPresenter.h"
#include "ZrLinkageCombox.h"
#include "ZrQuietPlatform.h"
#include "ZrReferenceHost.h"
#include "ZrTableView.h"
#include "ZrTestMain.h"

#include "zrdefine/Constants.h"
#include "zrdefine/PluginPropety.h"
#include "zrdefine/VexlorFields.h"
#include "zrdefine/VexlorMsgType.h"

#include <QtCore/QTemporaryDir>

/// The blotter as the client makes it: by its ID, in a menu, on the bus.
class tst_ZrBlotterPlugin : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase();
    void init();
    void cleanup();
    void messagesOfTheBusComeIntoItsGrid();
    void eachBatchIsToldToTheWindow();
    void itsOwnPropertiesComeFirst();
    void aPropertyThatCannotBeUsedIsIgnored();
    void theSkinsFilesAreRead();
    void theAccountOfTheTitleFilters();
    void aClickSelectsInTheNeighbour();
    void anotherGroupIsNoNeighbour();
    void itMayGoWhileMessagesWait();

private:
    ZrBlotterPlugin *make(const QVariantMap &properties = QVariantMap(), const char *menu = "desk#");
    void publish(int order, const char *symbol, const char *account = "A1");
    QString currentSymbol(const ZrBlotterPlugin *plugin) const;

    QTemporaryDir m_folder;
    ZrReferenceHost m_host;
    std::vector<std::unique_ptr<ZrBlotterPlugin>> m_plugins;
};

void tst_ZrBlotterPlugin::initTestCase()
{
    ZrQuietPlatform::install();
    QLoggingCategory::setFilterRules(QStringLiteral("default.debug=false")); // one line for each message
}

void tst_ZrBlotterPlugin::init()
{
    ZrReferenceHost::Options options;
    options.configFolder = m_folder.path();
    options.skinRoot = QStringLiteral(ZR_SKINS);
    options.skinId = QStringLiteral("dark");
    options.database.language = QStringLiteral("en");
    QVERIFY2(m_host.start(options), qPrintable(m_host.errorText()));
    m_host.registerPlugin(QStringLiteral("blotter"), [] { return new ZrBlotterPlugin; });
}

void tst_ZrBlotterPlugin::cleanup()
{
    m_plugins.clear();
    m_host.stop();
}

ZrBlotterPlugin *tst_ZrBlotterPlugin::make(const QVariantMap &properties, const char *menu)
{
    ZrPluginBaseWidget *const made = ZrPluginBaseWidget::createPluginWidgetByPluginID(
        QStringLiteral("blotter"), QLatin1String(menu), {{PluginPropety::PLUGIN_CUSTOMPROP, properties}});
    m_plugins.emplace_back(qobject_cast<ZrBlotterPlugin *>(made));
    ZrBlotterPlugin *const plugin = m_plugins.back().get();
    plugin->resize(900, 400);
    plugin->show();
    return plugin;
}

void tst_ZrBlotterPlugin::publish(int order, const char *symbol, const char *account)
{
    m_host.publish(Vexlor_MsgType::executionReport,
                   {{{ZrBlotterFields::orderId, QString::number(order)},
                     {Vexlor_Fields::Security::symbol, QLatin1String(symbol)},
                     {Vexlor_Fields::UserAccount::tradingAccount, QLatin1String(account)},
                     {ZrBlotterFields::orderStatus, QStringLiteral("0")},
                     {ZrBlotterFields::seqNo, order},
                     {ZrBlotterFields::sentNs, 1}}});
}

QString tst_ZrBlotterPlugin::currentSymbol(const ZrBlotterPlugin *plugin) const
{
    const ZrTableView *const view = plugin->panel()->view();
    return view->getRowData(view->currentIndex().row()).value(1).value(QStringLiteral("256")).toString();
}

void tst_ZrBlotterPlugin::messagesOfTheBusComeIntoItsGrid()
{
    const ZrBlotterPlugin *const plugin = make();
    QCOMPARE(plugin->pluginInstanceID().section(QLatin1Char('#'), 0, 1), QStringLiteral("desk#blotter"));
    publish(1, "600000.SH");
    publish(2, "600000.SH");
    publish(1, "600000.SH");
    QTRY_COMPARE(plugin->panel()->view()->getRowCount(), 2);
    QCOMPARE(plugin->panel()->view()->getHeadList().size(), 32);
}

void tst_ZrBlotterPlugin::eachBatchIsToldToTheWindow()
{
    ZrBlotterPlugin *const plugin = make();
    QSignalSpy told(plugin, &ZrPluginBaseWidget::signalSendDataToMainFrame);
    publish(7, "600000.SH");
    QTRY_COMPARE(told.size(), 1);
    const QVariantMap report = told.at(0).at(0).toMap();
    QCOMPARE(report.value(ZrBlotterReport::number).toLongLong(), qint64(7));
    QCOMPARE(report.value(ZrBlotterReport::sentNs).value<QVector<qint64>>(), QVector<qint64>{1});
    QVERIFY(report.value(ZrBlotterReport::appliedNs).toLongLong() > 1);
    const QVariantMap data = plugin->getPluginData().toMap();
    QCOMPARE(data.value(ZrBlotterReport::rows).toInt(), 1);
    QCOMPARE(data.value(ZrBlotterReport::isWaiting).toBool(), false);
}

void tst_ZrBlotterPlugin::itsOwnPropertiesComeFirst()
{
    const ZrBlotterPlugin *const plugin = make({{ZrBlotterProperty::maxRows, 3}});
    for (int order = 1; order <= 10; ++order)
        publish(order, "600000.SH");
    QVERIFY(m_host.waitIdle(60000));
    QTRY_VERIFY(!plugin->panel()->view()->getRowDataByKey(QStringLiteral("10600000.SH")).isEmpty());
    QCOMPARE(plugin->panel()->view()->getRowCount(), 3);
}

void tst_ZrBlotterPlugin::aPropertyThatCannotBeUsedIsIgnored()
{
    ZrBlotterPlugin *const plugin = make({{ZrBlotterProperty::maxRows, QStringLiteral("many")}});
    plugin->setPluginLayoutPropertiesByWidgetName(ZrBlotterProperty::maxRows, -1);
    plugin->setPluginLayoutPropertiesByWidgetName(ZrBlotterProperty::maxRows, Q_INT64_C(1) << 40);
    plugin->setPluginLayoutPropertiesByWidgetName(QStringLiteral("no such"), 1);
    for (int order = 1; order <= 5; ++order)
        publish(order, "600000.SH");
    QTRY_COMPARE(plugin->panel()->view()->getRowCount(), 5);
}

void tst_ZrBlotterPlugin::theSkinsFilesAreRead()
{
    const ZrBlotterPlugin *const plugin = make();
    QCOMPARE(plugin->getPluginWidgetPropety(PluginPropety::PLUGINWIDGET_NORMALWIDTH).toInt(), 1100);
    QCOMPARE(plugin->getPluginWidgetPropety(PluginPropety::PLUGINWIDGET_TITLEICON).toString(),
             QStringLiteral("plugins/blotter/blotter.svg"));
    QVERIFY(plugin->styleSheet().contains(QLatin1String("blotterToolBar")));
    const QString dark = plugin->styleSheet();
    QVERIFY(m_host.setSkin(QStringLiteral("light")));
    QVERIFY(plugin->styleSheet() != dark);
}

void tst_ZrBlotterPlugin::theAccountOfTheTitleFilters()
{
    ZrBlotterPlugin *const plugin = make();
    publish(1, "600000.SH", "A1");
    publish(2, "600000.SH", "A2");
    QTRY_COMPARE(plugin->panel()->view()->getRowCount(), 2);
    const auto choose = [plugin](const QVariantMap &account) {
        plugin->setBaseData(Constants::USER_ACCOUNT, account);
    };
    choose({{Vexlor_Fields::UserAccount::tradingAccount, "A2"}});
    QCOMPARE(plugin->panel()->view()->getRowCount(), 1);
    choose({});
    QCOMPARE(plugin->panel()->view()->getRowCount(), 2);
}

void tst_ZrBlotterPlugin::aClickSelectsInTheNeighbour()
{
    const ZrBlotterPlugin *const first = make();
    const ZrBlotterPlugin *const second = make();
    publish(1, "600000.SH");
    publish(2, "000001.SZ");
    publish(3, "600000.SH");
    QTRY_COMPARE(first->panel()->view()->getRowCount(), 3);
    QTRY_COMPARE(second->panel()->view()->getRowCount(), 3);
    QTableView *const table = first->panel()->view()->getTableView();
    QTest::mouseClick(table->viewport(), Qt::LeftButton, Qt::NoModifier,
                      table->visualRect(first->panel()->view()->index(1, 0)).center());
    QTRY_COMPARE(currentSymbol(second), QStringLiteral("000001.SZ"));
    QTest::mouseClick(table->viewport(), Qt::LeftButton, Qt::NoModifier,
                      table->visualRect(first->panel()->view()->index(0, 0)).center());
    QTRY_COMPARE(second->panel()->view()->currentIndex().row(), 2); // the newest of that security
    // Both show the group's colour.
    for (const ZrBlotterPlugin *const plugin : {first, second}) {
        const auto *const box = plugin->findChild<ZrLinkageCombox *>();
        QVERIFY(box);
        QCOMPARE(box->currentIndex(), 0);
        QCOMPARE(plugin->getPluginLinkageGroup(), 0);
    }
}

void tst_ZrBlotterPlugin::anotherGroupIsNoNeighbour()
{
    const ZrBlotterPlugin *const first = make();
    const ZrBlotterPlugin *const second = make();
    const ZrBlotterPlugin *const elsewhere = make(QVariantMap(), "other#");
    second->findChild<ZrLinkageCombox *>()->setCurrentIndex(3);
    publish(1, "600000.SH");
    QTRY_COMPARE(elsewhere->panel()->view()->getRowCount(), 1);
    QTRY_COMPARE(second->panel()->view()->getRowCount(), 1);
    // What comes from the bus, not the current row: a grid that gets the focus makes its first row that.
    const auto presenter = [](const ZrBlotterPlugin *plugin) {
        return static_cast<ZrBlotterPresenter *>(plugin->getPluginPresenter());
    };
    QSignalSpy otherGroup(presenter(second), &ZrBlotterPresenter::signalSecurityChosen);
    QSignalSpy otherMenu(presenter(elsewhere), &ZrBlotterPresenter::signalSecurityChosen);
    emit first->panel()->signalSecurityChosen(QStringLiteral("600000.SH"));
    QVERIFY(m_host.waitIdle(60000));
    QCOMPARE(otherGroup.size(), 0);
    QCOMPARE(otherMenu.size(), 0);
    // Back in the group it follows again.
    second->findChild<ZrLinkageCombox *>()->setCurrentIndex(0);
    emit first->panel()->signalSecurityChosen(QStringLiteral("600000.SH"));
    QVERIFY(m_host.waitIdle(60000));
    QCOMPARE(otherGroup.size(), 1);
    QCOMPARE(otherMenu.size(), 0);
    QTRY_COMPARE(currentSymbol(second), QStringLiteral("600000.SH"));
}

void tst_ZrBlotterPlugin::itMayGoWhileMessagesWait()
{
    for (int round = 0; round < 50; ++round) {
        make();
        for (int order = 0; order < 20; ++order)
            publish(order, "600000.SH");
        m_plugins.clear();
    }
    QVERIFY(m_host.waitIdle(60000));
    const ZrBlotterPlugin *const last = make();
    publish(1, "600000.SH");
    QTRY_COMPARE(last->panel()->view()->getRowCount(), 1);
}

ZR_TEST_MAIN(tst_ZrBlotterPlugin)
#include "tst_zrblotterplugin.moc"
