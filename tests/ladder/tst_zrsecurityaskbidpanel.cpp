#include "EditorScene.h"
#include "LadderScene.h"

#include <limits>

class tst_ZrSecurityAskBidPanel : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase();
    void aNewPanelHasTheStatedValues();
    void aNewPanelShowsAFullBookOfPlaceholders();
    void aLevelTravelsInQueuedSignals();
    void itIsASkinnedView();
    void anotherValueRepaintsAndTheSameDoesNot_data();
    void anotherValueRepaintsAndTheSameDoesNot();
    void marginsAreBounded_data();
    void marginsAreBounded();
    void anotherPreviousCloseRepaints();
    void theBookIsReadBackAsItIsShown();
    void onlyPriceAndQuantityOfTheLatestAreTaken();
    void aSingleLevelChangesNothing();
    void anUnknownLevelDoesNotEvenRepaint();
    void countsAreTaken_data();
    void countsAreTaken();
    void anEndlessCountIsBounded_data();
    void anEndlessCountIsBounded();
    void aSmallerCountKeepsTheSelection();
    void selectionCountsFromOne_data();
    void selectionCountsFromOne();
    void stepsEmitNothing();
    void withoutASelectionNothingSteps();
    void theCurrentLevelIsThatOfTheSelectedRow();
    void withoutASelectionThePriceIsZero();
    void theFlagHoldsTheBand_data();
    void theFlagHoldsTheBand();
    void anEmptyBookDoesNotRepaint();
    void anotherSizeMovesTheRows();
    void withoutASelectionAllRowsAreAlike_data();
    void withoutASelectionAllRowsAreAlike();

private:
    std::unique_ptr<EditorHost> m_host;
};

namespace {
/// Whether something asks for a repaint of the panel.
template<typename Change>
bool repaints(ZrSecurityAskBidPanel *panel, const Change &change)
{
    QCoreApplication::sendPostedEvents();
    QCoreApplication::processEvents();
    PaintCounter paints(panel);
    change();
    QCoreApplication::sendPostedEvents();
    QCoreApplication::processEvents();
    panel->removeEventFilter(&paints);
    return paints.count > 0;
}

QImage picture(ZrSecurityAskBidPanel *panel)
{
    return panel->grab().toImage();
}
} // namespace

void tst_ZrSecurityAskBidPanel::initTestCase()
{
    m_host = std::make_unique<EditorHost>();
    QVERIFY(m_host->isReady());
}

void tst_ZrSecurityAskBidPanel::aNewPanelHasTheStatedValues()
{
    ZrSecurityAskBidPanel panel;
    panel.loadSkin(QString());
    QCOMPARE(panel.objectName(), QStringLiteral("ZrSecurityAskBidPanel"));
    QCOMPARE(panel.getAskBidPricesCounts(), 10);
    QCOMPARE(panel.getCurIndex(), 0);
    QCOMPARE(panel.getCodePrevClose(), 15.1);
    QCOMPARE(panel.painterFont(), 12);
    QCOMPARE(panel.currentMargins(), 12.0);
    QCOMPARE(panel.dishShowType(), 0);
    QVERIFY(panel.showLastPrice());
    QVERIFY(panel.testAttribute(Qt::WA_Hover));
    QVERIFY(panel.hasMouseTracking());
    QCOMPARE(panel.focusPolicy(), Qt::StrongFocus);
    QVERIFY(panel.findChildren<QWidget *>().isEmpty());
}

void tst_ZrSecurityAskBidPanel::aNewPanelShowsAFullBookOfPlaceholders()
{
    ZrSecurityAskBidPanel panel;
    const ZrAskBidLevels levels = panel.getCodeLastAskBidInfo();
    QCOMPARE(levels.size(), 20);
    for (int row = 0; row < 20; ++row) {
        QCOMPARE(levels.value(row).side, row < 10 ? 1 : 0);
        QCOMPARE(levels.value(row).level, row < 10 ? 10 - row : row - 9);
        QCOMPARE(levels.value(row).price, QStringLiteral("0"));
        QCOMPARE(levels.value(row).volume, 0);
    }
    QCOMPARE(panel.getCurrentPriceInfo(), levels.value(0));
}

void tst_ZrSecurityAskBidPanel::aLevelTravelsInQueuedSignals()
{
    LadderScene scene;
    const int type = QMetaType::type("ZrSecurityAskBidData");
    QVERIFY(type != QMetaType::UnknownType);
    ZrSecurityAskBidData got;
    connect(
        scene.panel(), &ZrSecurityAskBidPanel::signalCurrentPriceInfo, this,
        [&got](const ZrSecurityAskBidData &data) { got = data; }, Qt::QueuedConnection);
    emit scene.panel()->signalCurrentPriceInfo(LadderScene::book().value(4));
    QCOMPARE(got, ZrSecurityAskBidData());
    QCoreApplication::sendPostedEvents();
    QCOMPARE(got, LadderScene::book().value(4));
}

void tst_ZrSecurityAskBidPanel::itIsASkinnedView()
{
    ZrSecurityAskBidPanel panel;
    QVERIFY(panel.qt_metacast("IZrSkin"));
    QVERIFY(panel.qt_metacast("com.orbenlake.Plugin.ISkin"));
    const QString sheet = panel.styleSheet();
    QCOMPARE(sheet, EditorHost::sheet(QStringLiteral("dark"), QStringLiteral("zrsecurityaskbidpanel.css")));
    QVERIFY(!sheet.isEmpty());
    panel.loadSkin(QVariant());
    QCOMPARE(panel.styleSheet(), sheet);
    panel.loadSkin(QStringLiteral("ZrSecurityAskBidPanel { qproperty-upColor: #010203; }"));
    panel.ensurePolished();
    QCOMPARE(panel.upColor(), QColor(1, 2, 3));
}

void tst_ZrSecurityAskBidPanel::anotherValueRepaintsAndTheSameDoesNot_data()
{
    QTest::addColumn<QByteArray>("property");
    QTest::addColumn<QVariant>("value");
    QTest::newRow("brush") << QByteArray("brushColor") << QVariant(QBrush(QColor(1, 2, 3)));
    for (const char *const name :
         {"panelBgColor", "upColor", "downColor", "lastPriceColor", "buyColor", "sellColor"})
        QTest::newRow(name) << QByteArray(name) << QVariant(QColor(1, 2, 3));
    QTest::newRow("font size") << QByteArray("painterFont") << QVariant(15);
    QTest::newRow("margin") << QByteArray("currentMargins") << QVariant(7.5);
    QTest::newRow("numerals") << QByteArray("dishShowType") << QVariant(1);
}

void tst_ZrSecurityAskBidPanel::anotherValueRepaintsAndTheSameDoesNot()
{
    QFETCH(QByteArray, property);
    QFETCH(QVariant, value);
    LadderScene scene;
    const auto set = [&] { QVERIFY(scene.panel()->setProperty(property.constData(), value)); };
    QVERIFY(scene.panel()->property(property.constData()) != value);
    QVERIFY(repaints(scene.panel(), set));
    QCOMPARE(scene.panel()->property(property.constData()), value);
    QVERIFY(!repaints(scene.panel(), set));
}

void tst_ZrSecurityAskBidPanel::marginsAreBounded_data()
{
    QTest::addColumn<double>("margin");
    QTest::addColumn<double>("expected");
    QTest::newRow("none") << 0.0 << 0.0;
    QTest::newRow("negative") << -3.0 << -3.0;
    QTest::newRow("endless") << 1e300 << 10000.0;
    QTest::newRow("endless below") << -1e300 << -10000.0;
    QTest::newRow("infinite") << std::numeric_limits<double>::infinity() << 12.0;
    QTest::newRow("no number") << std::numeric_limits<double>::quiet_NaN() << 12.0;
}

void tst_ZrSecurityAskBidPanel::marginsAreBounded()
{
    QFETCH(double, margin);
    LadderScene scene;
    scene.panel()->setCurrentMargins(12.0);
    scene.panel()->setCurrentMargins(margin);
    QTEST(scene.panel()->currentMargins(), "expected");
    scene.panel()->setCodeLastAskBidInfo(LadderScene::book()); // the rows by the new margin
    QVERIFY(!picture(scene.panel()).isNull());
}

void tst_ZrSecurityAskBidPanel::anotherPreviousCloseRepaints()
{
    LadderScene scene;
    QVERIFY(repaints(scene.panel(), [&] { scene.panel()->setCodePrevClose(19.5); }));
    QCOMPARE(scene.panel()->getCodePrevClose(), 19.5);
    QVERIFY(!repaints(scene.panel(), [&] { scene.panel()->setCodePrevClose(19.5); }));
}

void tst_ZrSecurityAskBidPanel::theBookIsReadBackAsItIsShown()
{
    LadderScene scene;
    QCOMPARE(scene.panel()->getCodeLastAskBidInfo(), LadderScene::book());
    ZrAskBidLevels levels = LadderScene::book();
    levels[0].price = QStringLiteral("0.000");
    levels[1].price.clear();
    QVERIFY(repaints(scene.panel(), [&] { scene.panel()->setCodeLastAskBidInfo(levels); }));
    levels[0].price = QStringLiteral("—");
    levels[1].price = QStringLiteral("—");
    QCOMPARE(scene.panel()->getCodeLastAskBidInfo(), levels);
}

void tst_ZrSecurityAskBidPanel::onlyPriceAndQuantityOfTheLatestAreTaken()
{
    LadderScene scene;
    LadderReports reports(scene.panel());
    scene.panel()->setLastPriceInfo({1, 9, QStringLiteral("20.33"), 77, 5, QStringLiteral("3w")});
    scene.panel()->setCurIndex(15);
    scene.click(QPoint(50, 285)); // the band, which reports that very record
    QVERIFY(scene.ring());
    const ZrSecurityAskBidData expected = {-1, 0, QStringLiteral("20.33"), 0, 0, QStringLiteral("3w")};
    QCOMPARE(reports.lastData(), expected);
}

void tst_ZrSecurityAskBidPanel::aSingleLevelChangesNothing()
{
    LadderScene scene;
    const QImage before = picture(scene.panel());
    QVERIFY(repaints(scene.panel(), [&] { scene.panel()->updateBidAskPrice(3, 99.0f, 1); }));
    QCOMPARE(scene.panel()->getCodeLastAskBidInfo(), LadderScene::book());
    QCOMPARE(picture(scene.panel()), before);
}

void tst_ZrSecurityAskBidPanel::anUnknownLevelDoesNotEvenRepaint()
{
    LadderScene scene;
    QVERIFY(!repaints(scene.panel(), [&] { scene.panel()->updateBidAskPrice(20, 99.0f, 1); }));
    QCOMPARE(scene.panel()->getCodeLastAskBidInfo(), LadderScene::book());
}

void tst_ZrSecurityAskBidPanel::countsAreTaken_data()
{
    QTest::addColumn<int>("count");
    QTest::addColumn<int>("expected");
    QTest::addColumn<QString>("firstPrice");
    QTest::newRow("five") << 5 << 5 << "20.05";
    QTest::newRow("ten") << 10 << 10 << "20.10";
    QTest::newRow("zero is ignored") << 0 << 10 << "20.10";
    QTest::newRow("three show the far end") << 3 << 3 << "20.10";
    QTest::newRow("more than there are") << 12 << 12 << "20.10";
    QTest::newRow("below none") << -2 << -2 << "20.10";
}

void tst_ZrSecurityAskBidPanel::countsAreTaken()
{
    QFETCH(int, count);
    LadderScene scene;
    scene.panel()->setAskBidPricesCounts(count);
    QTEST(scene.panel()->getAskBidPricesCounts(), "expected");
    QTEST(scene.panel()->getCurrentPriceInfo().price, "firstPrice");
    QVERIFY(!picture(scene.panel()).isNull());
    QVERIFY(!repaints(scene.panel(), [&] { scene.panel()->setAskBidPricesCounts(count); }));
}

void tst_ZrSecurityAskBidPanel::anEndlessCountIsBounded_data()
{
    QTest::addColumn<int>("count");
    QTest::addColumn<int>("expected");
    QTest::newRow("at the bound") << 1000 << 1000;
    QTest::newRow("beyond it") << 1001 << 1000;
    QTest::newRow("largest") << std::numeric_limits<int>::max() << 1000;
    QTest::newRow("smallest") << std::numeric_limits<int>::min() << -1000;
}

void tst_ZrSecurityAskBidPanel::anEndlessCountIsBounded()
{
    QFETCH(int, count);
    QFETCH(int, expected);
    LadderScene scene;
    if (count != expected) {
        const QString line = QStringLiteral("ZrSecurityAskBidPanel::setAskBidPricesCounts %1 is taken for %2")
                                 .arg(count)
                                 .arg(expected);
        QTest::ignoreMessage(QtWarningMsg, qPrintable(line));
    }
    scene.panel()->setAskBidPricesCounts(count);
    QCOMPARE(scene.panel()->getAskBidPricesCounts(), expected);
    QVERIFY(!picture(scene.panel()).isNull());
}

void tst_ZrSecurityAskBidPanel::aSmallerCountKeepsTheSelection()
{
    LadderScene scene;
    scene.panel()->setCurIndex(16);
    scene.panel()->setAskBidPricesCounts(5);
    QCOMPARE(scene.panel()->getCurIndex(), 15);
    QCOMPARE(scene.panel()->getCurrentPriceInfo(), ZrSecurityAskBidData());
    QVERIFY(!picture(scene.panel()).isNull());
}

void tst_ZrSecurityAskBidPanel::selectionCountsFromOne_data()
{
    QTest::addColumn<int>("row");
    QTest::addColumn<int>("expected");
    QTest::newRow("third") << 3 << 2;
    QTest::newRow("first") << 1 << 0;
    QTest::newRow("zero is none") << 0 << -1;
    QTest::newRow("none") << -1 << -1;
    QTest::newRow("below none") << -5 << -6;
    QTest::newRow("beyond the book") << 21 << 20;
}

void tst_ZrSecurityAskBidPanel::selectionCountsFromOne()
{
    QFETCH(int, row);
    LadderScene scene;
    QVERIFY(repaints(scene.panel(), [&] { scene.panel()->setCurIndex(row); }));
    QTEST(scene.panel()->getCurIndex(), "expected");
}

void tst_ZrSecurityAskBidPanel::stepsEmitNothing()
{
    LadderScene scene;
    LadderReports reports(scene.panel());
    scene.panel()->changeAskBidCurrentIndex(false);
    QCOMPARE(scene.panel()->getCurIndex(), 19);
    scene.panel()->changeAskBidCurrentIndex(true);
    QCOMPARE(scene.panel()->getCurIndex(), 0);
    QVERIFY(repaints(scene.panel(), [&] { scene.panel()->changeAskBidCurrentIndex(true); }));
    QCOMPARE(scene.panel()->getCurIndex(), 1);
    QCOMPARE(scene.waitMs(), 0);
    QCOMPARE(reports.take(), QString());
}

void tst_ZrSecurityAskBidPanel::withoutASelectionNothingSteps()
{
    LadderScene scene;
    scene.panel()->setCurIndex(-1);
    QVERIFY(!repaints(scene.panel(), [&] { scene.panel()->changeAskBidCurrentIndex(true); }));
    QCOMPARE(scene.panel()->getCurIndex(), -1);
}

void tst_ZrSecurityAskBidPanel::theCurrentLevelIsThatOfTheSelectedRow()
{
    LadderScene scene;
    scene.panel()->setCurIndex(13);
    QCOMPARE(scene.panel()->getCurrentPriceInfo(), LadderScene::book().value(12));
    ZrSecurityAskBidData invoked;
    QVERIFY(QMetaObject::invokeMethod(scene.panel(), "getCurrentPriceInfo",
                                      Q_RETURN_ARG(ZrSecurityAskBidData, invoked)));
    QCOMPARE(invoked, LadderScene::book().value(12));
    scene.panel()->setAskBidPricesCounts(5);
    scene.panel()->setCurIndex(1);
    QCOMPARE(scene.panel()->getCurrentPriceInfo(), LadderScene::book().value(5));
}

void tst_ZrSecurityAskBidPanel::withoutASelectionThePriceIsZero()
{
    LadderScene scene;
    scene.panel()->setCurIndex(-1);
    ZrSecurityAskBidData expected;
    expected.price = QStringLiteral("0");
    QCOMPARE(scene.panel()->getCurrentPriceInfo(), expected);
    // A book may hold an entry above its rows; all but its price and the caller's own is told.
    ZrAskBidLevels levels = LadderScene::book();
    levels.insert(-1, {1, 7, QStringLiteral("3.3"), 44, 5, QStringLiteral("6")});
    scene.panel()->setCodeLastAskBidInfo(levels);
    expected.side = 1;
    expected.level = 7;
    expected.volume = 44;
    QCOMPARE(scene.panel()->getCurrentPriceInfo(), expected);
}

void tst_ZrSecurityAskBidPanel::theFlagHoldsTheBand_data()
{
    QTest::addColumn<int>("flag");
    QTest::addColumn<bool>("before");
    QTest::addColumn<bool>("held");
    QTest::addColumn<bool>("asked");
    QTest::addColumn<bool>("after");
    QTest::newRow("shown for good") << 1 << false << true << false << true;
    QTest::newRow("hidden for good") << 2 << true << false << true << false;
    QTest::newRow("held as it is") << 3 << true << true << false << true;
    QTest::newRow("free") << 0 << true << true << false << false;
}

void tst_ZrSecurityAskBidPanel::theFlagHoldsTheBand()
{
    QFETCH(int, flag);
    QFETCH(bool, before);
    QFETCH(bool, asked);
    LadderScene scene;
    scene.panel()->setShowLastPrice(before);
    QVERIFY(repaints(scene.panel(), [&] { scene.panel()->setLastPriceShowFlag(flag); }));
    QTEST(scene.panel()->showLastPrice(), "held");
    scene.panel()->setShowLastPrice(asked);
    QTEST(scene.panel()->showLastPrice(), "after");
    scene.panel()->setLastPriceShow(asked);
    QTEST(scene.panel()->showLastPrice(), "after");
    scene.panel()->setLastPriceShowFlag(0);
    scene.panel()->setLastPriceShow(!asked);
    QCOMPARE(scene.panel()->showLastPrice(), !asked);
}

void tst_ZrSecurityAskBidPanel::anEmptyBookDoesNotRepaint()
{
    LadderScene scene;
    QVERIFY(!repaints(scene.panel(), [&] { scene.panel()->setCodeLastAskBidInfo({}); }));
    QVERIFY(!repaints(scene.panel(), [&] { scene.panel()->setCurIndex(4); }));
    QVERIFY(repaints(scene.panel(), [&] { scene.panel()->setCodeLastAskBidInfo(LadderScene::book()); }));
}

void tst_ZrSecurityAskBidPanel::anotherSizeMovesTheRows()
{
    LadderScene scene;
    LadderReports reports(scene.panel());
    scene.panel()->resize(400, 315); // 13 px for each row
    scene.panel()->setBarSelectable(false);
    scene.click(QPoint(50, 40));
    QVERIFY(scene.ring());
    QCOMPARE(reports.take(), QStringLiteral("level 20.07"));
}

void tst_ZrSecurityAskBidPanel::withoutASelectionAllRowsAreAlike_data()
{
    QTest::addColumn<int>("row");
    QTest::addColumn<bool>("selectable");
    QTest::addColumn<bool>("standsOut");
    QTest::newRow("selected") << 3 << true << true;
    QTest::newRow("none") << -1 << true << false;
    QTest::newRow("zero") << 0 << true << false;
    QTest::newRow("not selectable") << 3 << false << false;
}

void tst_ZrSecurityAskBidPanel::withoutASelectionAllRowsAreAlike()
{
    QFETCH(int, row);
    QFETCH(bool, selectable);
    LadderScene scene;
    scene.panel()->setBrushColor(QColor(Qt::magenta));
    scene.panel()->setHoverable(true);
    scene.panel()->setCurIndex(row);
    scene.panel()->setBarSelectable(selectable);
    QTEST(pixelsOf(picture(scene.panel()), Qt::magenta) > 1000, "standsOut");
}

ZR_TEST_MAIN(tst_ZrSecurityAskBidPanel)
#include "tst_zrsecurityaskbidpanel.moc"
