#include "ZrDepthFields.h"
#include "ZrDepthPanel.h"
#include "ZrDepthQuote.h"
#include "ZrQuietPlatform.h"
#include "ZrQuotationLabel.h"
#include "ZrReferenceHost.h"
#include "ZrSearchBox.h"
#include "ZrSecurityAskBidPanel.h"
#include "ZrTestMain.h"

#include "zrdefine/VexlorFields.h"

#include <QtCore/QTemporaryDir>

class tst_ZrDepthPanel : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase();
    void init();
    void cleanup();
    void aQuoteFillsLabelsAndLadder();
    void anotherSecurityForgetsTheLast();
    void showingASecurityIsNoChoice();
    void aSecurityIsFoundByTyping();
    void aLevelIsTold_data();
    void aLevelIsTold();
    void aLevelWithoutAPriceIsNotTold();
    void aLowPanelShowsFiveLevels();
    void controlsHaveNames();

private:
    QString labelText(const char *name) const;
    static ZrDepthQuote quote();

    QTemporaryDir m_folder;
    ZrReferenceHost m_host;
    std::unique_ptr<ZrDepthPanel> m_panel;
};

void tst_ZrDepthPanel::initTestCase()
{
    ZrQuietPlatform::install();
    QLoggingCategory::setFilterRules(QStringLiteral("default.debug=false"));
}

void tst_ZrDepthPanel::init()
{
    ZrReferenceHost::Options options;
    options.configFolder = m_folder.path();
    options.skinRoot = QStringLiteral(ZR_SKINS);
    options.skinId = QStringLiteral("dark");
    QVERIFY2(m_host.start(options), qPrintable(m_host.errorText()));
    m_host.setSecurities({{{Vexlor_Fields::Security::symbol, "600519.SH"},
                           {Vexlor_Fields::Security::chineseName, QStringLiteral("沅芮软件")}}});
    m_panel = std::make_unique<ZrDepthPanel>();
    m_panel->resize(300, 560);
    m_panel->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_panel.get()));
}

void tst_ZrDepthPanel::cleanup()
{
    m_panel.reset();
    m_host.stop();
}

QString tst_ZrDepthPanel::labelText(const char *name) const
{
    return m_panel->findChild<ZrQuotationLabel *>(QLatin1String(name))->text();
}

ZrDepthQuote tst_ZrDepthPanel::quote()
{
    QVariantMap depth{{ZrDepthFields::lastPrice, 10.2}, {ZrDepthFields::previousClose, 10.0}};
    for (int level = 1; level <= 10; ++level) {
        const QString number = QString::number(level);
        depth.insert(ZrDepthFields::askPrice + number, 10.2 + level / 100.0);
        depth.insert(ZrDepthFields::askQty + number, 100 * level);
        depth.insert(ZrDepthFields::bidPrice + number, 10.2 - level / 100.0);
        depth.insert(ZrDepthFields::bidQty + number, 200 * level);
    }
    return ZrDepthQuote::of(depth, {{ZrDepthFields::lastPrice, 10.2}, {ZrDepthFields::lastQty, 500}});
}

void tst_ZrDepthPanel::aQuoteFillsLabelsAndLadder()
{
    m_panel->showSecurity(QStringLiteral("600519.SH"));
    m_panel->showQuote(quote());
    QCOMPARE(labelText("securityName"), QStringLiteral("沅芮软件"));
    QCOMPARE(labelText("lastPrice"), QStringLiteral("10.20"));
    QCOMPARE(labelText("change"), QStringLiteral("+0.20"));
    QCOMPARE(labelText("changePercent"), QStringLiteral("+2.00 %"));
    QCOMPARE(m_panel->findChild<ZrQuotationLabel *>(QStringLiteral("change"))->getLabelMode(), 1);
    QCOMPARE(m_panel->ladder()->getCodeLastAskBidInfo(), quote().levels);
    QCOMPARE(m_panel->ladder()->getCodePrevClose(), 10.0);
    QCOMPARE(m_panel->ladder()->getCurrentPriceInfo().price, QStringLiteral("10.21")); // the best seller
}

void tst_ZrDepthPanel::anotherSecurityForgetsTheLast()
{
    m_panel->showSecurity(QStringLiteral("600519.SH"));
    m_panel->showQuote(quote());
    m_panel->showSecurity(QStringLiteral("no such"));
    for (const char *const name : {"securityName", "lastPrice", "change", "changePercent"})
        QCOMPARE(labelText(name), QString());
    const ZrAskBidLevels levels = m_panel->ladder()->getCodeLastAskBidInfo();
    for (const ZrSecurityAskBidData &level : levels)
        QCOMPARE(level.price, QStringLiteral("—"));
}

void tst_ZrDepthPanel::showingASecurityIsNoChoice()
{
    QSignalSpy chosen(m_panel.get(), &ZrDepthPanel::signalSecurityChosen);
    m_panel->showSecurity(QStringLiteral("600519.SH"));
    QCOMPARE(m_panel->search()->getSymbol(), QStringLiteral("600519.SH"));
    QCOMPARE(chosen.size(), 0);
}

void tst_ZrDepthPanel::aSecurityIsFoundByTyping()
{
    QSignalSpy chosen(m_panel.get(), &ZrDepthPanel::signalSecurityChosen);
    m_panel->activateWindow();
    m_panel->search()->setFocus();
    QTRY_VERIFY(m_panel->search()->hasFocus());
    QTest::keyClicks(m_panel->search(), QStringLiteral("600519"));
    QTRY_COMPARE(chosen.size(), 1);
    QCOMPARE(chosen.at(0).at(0).toString(), QStringLiteral("600519.SH"));
}

void tst_ZrDepthPanel::aLevelIsTold_data()
{
    QTest::addColumn<bool>("twice");
    QTest::addColumn<int>("x");
    QTest::newRow("level") << false << 20;
    QTest::newRow("price") << false << 120;
    QTest::newRow("quantity") << false << 240;
    QTest::newRow("double click") << true << 120;
}

void tst_ZrDepthPanel::aLevelIsTold()
{
    QFETCH(bool, twice);
    QFETCH(int, x);
    m_panel->showQuote(quote());
    QSignalSpy told(m_panel.get(), &ZrDepthPanel::signalLevelChosen);
    const QPoint at(x, 5); // the tenth seller
    QTest::mouseClick(m_panel->ladder(), Qt::LeftButton, Qt::NoModifier, at);
    if (twice) {
        QTest::mouseDClick(m_panel->ladder(), Qt::LeftButton, Qt::NoModifier, at);
        QTest::mouseRelease(m_panel->ladder(), Qt::LeftButton, Qt::NoModifier, at);
    }
    QTRY_COMPARE(told.size(), 1);
    const auto level = told.at(0).at(0).value<ZrSecurityAskBidData>();
    QCOMPARE(level, quote().levels.value(0));
}

void tst_ZrDepthPanel::aLevelWithoutAPriceIsNotTold()
{
    QSignalSpy told(m_panel.get(), &ZrDepthPanel::signalLevelChosen);
    m_panel->showSecurity(QStringLiteral("600519.SH"));
    QTest::keyClick(m_panel->ladder(), Qt::Key_Up);
    QCOMPARE(told.size(), 0);
    m_panel->showQuote(quote());
    QTest::keyClick(m_panel->ladder(), Qt::Key_Up);
    QCOMPARE(told.size(), 1);
}

void tst_ZrDepthPanel::aLowPanelShowsFiveLevels()
{
    m_panel->showQuote(quote());
    QCOMPARE(m_panel->ladder()->getAskBidPricesCounts(), 10);
    m_panel->ladder()->setCurIndex(9); // the second seller
    m_panel->resize(300, 320);
    QCOMPARE(m_panel->ladder()->getAskBidPricesCounts(), 5);
    QCOMPARE(m_panel->ladder()->getCurrentPriceInfo().price, QStringLiteral("10.22"));
    m_panel->resize(300, 560);
    QCOMPARE(m_panel->ladder()->getAskBidPricesCounts(), 10);
    QCOMPARE(m_panel->ladder()->getCurrentPriceInfo().price, QStringLiteral("10.22"));
    m_panel->ladder()->setCurIndex(1); // the tenth goes out of sight
    m_panel->resize(300, 320);
    QCOMPARE(m_panel->ladder()->getCurrentPriceInfo().price, QStringLiteral("10.25"));
    m_panel->ladder()->setCurIndex(-1);
    m_panel->resize(300, 560);
    QCOMPARE(m_panel->ladder()->getCurIndex(), -1);
}

void tst_ZrDepthPanel::controlsHaveNames()
{
    QVERIFY(!m_panel->search()->accessibleName().isEmpty());
    QVERIFY(!m_panel->ladder()->accessibleName().isEmpty());
    const auto labels = m_panel->findChildren<ZrQuotationLabel *>();
    QCOMPARE(labels.size(), 4);
    for (const ZrQuotationLabel *const label : labels)
        QVERIFY(!label->accessibleName().isEmpty());
}

ZR_TEST_MAIN(tst_ZrDepthPanel)
#include "tst_zrdepthpanel.moc"
