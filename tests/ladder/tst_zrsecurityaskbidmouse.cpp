#include "EditorScene.h"
#include "LadderScene.h"

#include <QtGui/QHoverEvent>

/// Pointer and keyboard over a ladder, by real events.
class tst_ZrSecurityAskBidMouse : public QObject
{
    Q_OBJECT
private slots:
    void theCellUnderThePointerIsMarked_data();
    void theCellUnderThePointerIsMarked();
    void theMarkGoesWithThePointer();
    void theMarkStaysOverNothing();
    void theCornerIsIgnored();
    void aMoveWithoutAPlaceOnlyRepaints();
    void otherObjectsDontCount();
    void aPressSelectsWithoutARepaint();
    void withoutASelectionAPressSelectsNothing();
    void clicksReportAfterTheWait_data();
    void clicksReportAfterTheWait();
    void theBandReportsTwiceWhereNothingIsSelected();
    void withoutASelectionNothingIsReported();
    void aRowMetByTheReleaseAloneReportsNoLevel();
    void aDragSelectsWhereItEnds();
    void aReleaseAtTheCornerIsIgnored();
    void aMissLeavesTheClockAlone();
    void onlyTheLastClickReports();
    void theTimeIsOverByItself();
    void aDoubleClickReportsOnce();
    void aSlowDoubleClickReportsTheSingleOneFirst();
    void aDoubleClickByAnotherButtonIsTwoClicks();
    void aDoubleClickWithoutASelectionIsNothing();
    void aDoubleClickOnTheBandIsAClick();
    void aDoubleClickWhereNothingCanBeSelectedReportsToo();
    void anotherTimerReportsNothing();
    void eachReportLeavesALine_data();
    void eachReportLeavesALine();
    void aClickDuringAReportIsNotLost();
    void arrowsStepAndReportAtOnce_data();
    void arrowsStepAndReportAtOnce();
    void arrowsGoOnToTheWindow();
    void otherKeysEndAtTheLadder();
    void withoutASelectionAllKeysGoOn();
    void arrowsStepOverFiveLevels();
};

namespace {
const QColor mark(255, 0, 255);
constexpr int beside = 350; // x in the quantity, which only a selected row's ground covers

/// Where the mark of a hovered cell is painted.
QRect markedCell(ZrSecurityAskBidPanel *panel)
{
    const QImage image = panel->grab().toImage();
    QRect cell;
    for (int y = 0; y < image.height(); ++y) {
        if (image.pixelColor(beside, y) == mark)
            continue; // the selected row
        for (int x = 0; x < image.width(); ++x) {
            if (image.pixelColor(x, y) == mark)
                cell |= QRect(x, y, 1, 1);
        }
    }
    return cell;
}

/// A point in a row's first column, where it stands below a selected row 0.
QPoint inRow(int row, int x = 50)
{
    return QPoint(x, LadderScene::rowPx * row + (row > 0 ? 24 : 0) + 5);
}
} // namespace

void tst_ZrSecurityAskBidMouse::theCellUnderThePointerIsMarked_data()
{
    QTest::addColumn<int>("selected"); // from 1
    QTest::addColumn<bool>("selectable");
    QTest::addColumn<QPoint>("point");
    QTest::addColumn<QRect>("expected");
    QTest::newRow("level") << 0 << true << QPoint(50, 40) << QRect(0, 39, 114, 27);
    QTest::newRow("price") << 0 << true << QPoint(150, 40) << QRect(114, 39, 114, 27);
    QTest::newRow("quantity") << 0 << true << QPoint(300, 40) << QRect();
    QTest::newRow("buyer") << 0 << true << QPoint(50, 300) << QRect(0, 309, 114, 27);
    QTest::newRow("not selectable") << 4 << false << QPoint(50, 40) << QRect(0, 39, 114, 27);
    QTest::newRow("below the selected row") << 1 << true << QPoint(50, 160) << QRect(0, 171, 114, 27);
    QTest::newRow("the selected row itself") << 1 << true << QPoint(50, 20) << QRect();
    QTest::newRow("level in the band") << 0 << true << QPoint(50, 285) << QRect(12, 282, 114, 27);
    QTest::newRow("price in the band") << 0 << true << QPoint(150, 285) << QRect(126, 282, 114, 27);
    QTest::newRow("quantity in the band") << 0 << true << QPoint(300, 285) << QRect();
    QTest::newRow("band below a selected row") << 1 << true << QPoint(50, 310) << QRect(12, 306, 114, 27);
    QTest::newRow("band before the row over it") << 1 << true << QPoint(50, 280) << QRect(12, 306, 114, 27);
    QTest::newRow("quantity in the band above a selected row")
        << 15 << true << QPoint(300, 285) << QRect(126, 282, 114, 27);
}

void tst_ZrSecurityAskBidMouse::theCellUnderThePointerIsMarked()
{
    QFETCH(int, selected);
    QFETCH(bool, selectable);
    QFETCH(QPoint, point);
    LadderScene scene;
    scene.panel()->setBrushColor(mark);
    scene.panel()->setHoverable(false); // it says nothing
    scene.panel()->setCurIndex(selected);
    scene.panel()->setBarSelectable(selectable);
    scene.hover(point);
    QTEST(markedCell(scene.panel()), "expected");
}

void tst_ZrSecurityAskBidMouse::theMarkGoesWithThePointer()
{
    LadderScene scene;
    scene.panel()->setBrushColor(mark);
    scene.panel()->setCurIndex(-1);
    scene.hover(QPoint(50, 40));
    scene.hover(QPoint(50, 70));
    QCOMPARE(markedCell(scene.panel()), QRect(0, 66, 114, 27));
    scene.leave();
    QVERIFY(markedCell(scene.panel()).isNull());
}

void tst_ZrSecurityAskBidMouse::theMarkStaysOverNothing()
{
    LadderScene scene;
    scene.panel()->setBrushColor(mark);
    scene.panel()->setCurIndex(-1);
    scene.hover(QPoint(50, 40));
    scene.hover(QPoint(50, 595));
    QCOMPARE(markedCell(scene.panel()), QRect(0, 39, 114, 27));
}

void tst_ZrSecurityAskBidMouse::theCornerIsIgnored()
{
    LadderScene scene;
    scene.panel()->setBrushColor(mark);
    scene.panel()->setCurIndex(-1);
    scene.hover(QPoint(50, 40));
    QCoreApplication::processEvents();
    PaintCounter paints(scene.panel());
    scene.hover(QPoint(0, 0));
    QCoreApplication::processEvents();
    QCOMPARE(paints.count, 0);
    QCOMPARE(markedCell(scene.panel()), QRect(0, 39, 114, 27));
}

void tst_ZrSecurityAskBidMouse::aMoveWithoutAPlaceOnlyRepaints()
{
    LadderScene scene;
    scene.panel()->setBrushColor(mark);
    scene.panel()->setCurIndex(-1);
    scene.hover(QPoint(50, 40));
    QCoreApplication::processEvents();
    PaintCounter paints(scene.panel());
    QEvent event(QEvent::HoverMove);
    QVERIFY(!scene.panel()->eventFilter(scene.panel(), &event));
    QCoreApplication::processEvents();
    QCOMPARE(paints.count, 1);
    QCOMPARE(markedCell(scene.panel()), QRect(0, 39, 114, 27));
}

void tst_ZrSecurityAskBidMouse::otherObjectsDontCount()
{
    LadderScene scene;
    scene.panel()->setBrushColor(mark);
    scene.panel()->setCurIndex(-1);
    QObject other;
    QHoverEvent event(QEvent::HoverMove, QPointF(50, 40), QPointF(-1, -1));
    QVERIFY(!scene.panel()->eventFilter(&other, &event));
    QVERIFY(markedCell(scene.panel()).isNull());
}

void tst_ZrSecurityAskBidMouse::aPressSelectsWithoutARepaint()
{
    LadderScene scene;
    LadderReports reports(scene.panel());
    for (const Qt::MouseButton button : {Qt::LeftButton, Qt::RightButton}) {
        scene.panel()->setCurIndex(1);
        QCoreApplication::processEvents();
        PaintCounter paints(scene.panel());
        scene.press(inRow(5, 390), button);
        QCoreApplication::processEvents();
        QCOMPARE(scene.panel()->getCurIndex(), 5);
        QCOMPARE(paints.count, 0);
    }
    scene.press(QPoint(50, 599));
    QCOMPARE(scene.panel()->getCurIndex(), 5);
    QCOMPARE(reports.take(), QString());
    QCOMPARE(scene.waitMs(), 0);
}

void tst_ZrSecurityAskBidMouse::withoutASelectionAPressSelectsNothing()
{
    LadderScene scene;
    scene.panel()->setCurIndex(-1);
    for (const bool selectable : {true, false}) {
        scene.panel()->setBarSelectable(selectable);
        scene.press(QPoint(50, 40));
        QCOMPARE(scene.panel()->getCurIndex(), -1);
    }
}

void tst_ZrSecurityAskBidMouse::clicksReportAfterTheWait_data()
{
    QTest::addColumn<int>("count");
    QTest::addColumn<int>("selected"); // from 1
    QTest::addColumn<bool>("selectable");
    QTest::addColumn<QPoint>("point");
    QTest::addColumn<QString>("expected");
    QTest::newRow("level") << 10 << 1 << true << inRow(5) << "level 20.05";
    QTest::newRow("price") << 10 << 1 << true << inRow(5, 150) << "price 20.05";
    QTest::newRow("quantity") << 10 << 1 << true << inRow(5, 390) << "price 20.05";
    QTest::newRow("edge of the first column") << 10 << 1 << true << inRow(5, 114) << "level 20.05";
    QTest::newRow("beyond the first column") << 10 << 1 << true << inRow(5, 115) << "price 20.05";
    QTest::newRow("selected row") << 10 << 1 << true << QPoint(50, 45) << "level 20.10";
    QTest::newRow("last buyer") << 10 << 1 << true << inRow(20) << "level 19.91";
    QTest::newRow("level in the band") << 10 << 1 << true << QPoint(50, 310) << "level 20.55";
    QTest::newRow("price in the band") << 10 << 1 << true << QPoint(150, 310) << "price 20.55";
    QTest::newRow("quantity in the band") << 10 << 1 << true << QPoint(390, 310) << "price 20.55";
    QTest::newRow("band above the selected row") << 10 << 15 << true << QPoint(50, 290) << "level 20.55";
    QTest::newRow("below the band above the selected row")
        << 10 << 15 << true << QPoint(50, 310) << "level 20.00";
    QTest::newRow("level of five") << 5 << 1 << true << QPoint(50, 100) << "level 20.04";
    QTest::newRow("band of five") << 5 << 1 << true << QPoint(50, 270) << "level 20.55";
    QTest::newRow("level, not selectable") << 10 << 1 << false << QPoint(50, 140) << "level 20.05";
    QTest::newRow("price, not selectable") << 10 << 1 << false << QPoint(150, 140) << "price 20.05";
    QTest::newRow("level in the band, not selectable")
        << 10 << 1 << false << QPoint(50, 290) << "level 20.55";
    QTest::newRow("level, none selected") << 10 << -1 << false << QPoint(50, 140) << "level 0";
    QTest::newRow("price, none selected") << 10 << -1 << false << QPoint(150, 140) << "price 0";
}

void tst_ZrSecurityAskBidMouse::clicksReportAfterTheWait()
{
    QFETCH(int, count);
    QFETCH(int, selected);
    QFETCH(bool, selectable);
    QFETCH(QPoint, point);
    LadderScene scene;
    scene.panel()->setAskBidPricesCounts(count);
    scene.panel()->setCurIndex(selected);
    scene.panel()->setBarSelectable(selectable);
    LadderReports reports(scene.panel());
    scene.click(point);
    QCOMPARE(reports.take(), QString());
    QCOMPARE(scene.waitMs(), 100);
    QCOMPARE(scene.waitType(), Qt::CoarseTimer);
    QVERIFY(scene.ring());
    QTEST(reports.take(), "expected");
    QVERIFY(!scene.ring());
}

void tst_ZrSecurityAskBidMouse::theBandReportsTwiceWhereNothingIsSelected()
{
    LadderScene scene;
    LadderReports reports(scene.panel());
    scene.panel()->setBarSelectable(false);
    for (const int x : {150, 390}) {
        scene.click(QPoint(x, 290));
        QCOMPARE(reports.take(), QStringLiteral("price 20.55"));
        QVERIFY(scene.ring());
        QCOMPARE(reports.take(), QStringLiteral("price 20.55"));
    }
}

void tst_ZrSecurityAskBidMouse::withoutASelectionNothingIsReported()
{
    LadderScene scene;
    LadderReports reports(scene.panel());
    scene.panel()->setCurIndex(-1);
    for (const QPoint &point : {QPoint(50, 140), QPoint(50, 290), QPoint(150, 290)}) {
        scene.click(point);
        QCOMPARE(scene.waitMs(), 0);
    }
    scene.panel()->setBarSelectable(false);
    scene.click(QPoint(390, 140)); // the quantity of a row
    QCOMPARE(scene.waitMs(), 0);
    QCOMPARE(reports.take(), QString());
}

// An index below -1 counts as selected, though by no row.
void tst_ZrSecurityAskBidMouse::aRowMetByTheReleaseAloneReportsNoLevel()
{
    LadderScene scene;
    LadderReports reports(scene.panel());
    scene.panel()->setCurIndex(-5);
    scene.release(QPoint(50, 140));
    QVERIFY(scene.ring());
    QCOMPARE(reports.take(), QStringLiteral("level "));
    QCOMPARE(scene.panel()->getCurIndex(), -6);
}

void tst_ZrSecurityAskBidMouse::aDragSelectsWhereItEnds()
{
    LadderScene scene;
    LadderReports reports(scene.panel());
    scene.press(inRow(5));
    scene.release(inRow(7)); // where row 7 stands below any row above it
    QCOMPARE(scene.panel()->getCurIndex(), 7);
    QVERIFY(scene.ring());
    QCOMPARE(reports.take(), QStringLiteral("level 20.03"));
}

void tst_ZrSecurityAskBidMouse::aReleaseAtTheCornerIsIgnored()
{
    LadderScene scene;
    scene.release(QPoint(0, 0));
    QCOMPARE(scene.waitMs(), 0);
    scene.release(QPoint(0, 1));
    QCOMPARE(scene.waitMs(), 100);
}

void tst_ZrSecurityAskBidMouse::aMissLeavesTheClockAlone()
{
    LadderScene scene;
    LadderReports reports(scene.panel());
    scene.click(QPoint(50, 597));
    QCOMPARE(scene.waitMs(), 0);
    scene.click(inRow(5));
    scene.click(QPoint(50, 597));
    QVERIFY(scene.ring());
    QCOMPARE(reports.take(), QStringLiteral("level 20.05"));
}

void tst_ZrSecurityAskBidMouse::onlyTheLastClickReports()
{
    LadderScene scene;
    LadderReports reports(scene.panel());
    scene.click(inRow(5));
    scene.click(inRow(8, 150));
    QVERIFY(scene.ring());
    QCOMPARE(reports.take(), QStringLiteral("price 20.02"));
    QVERIFY(!scene.ring());
}

void tst_ZrSecurityAskBidMouse::theTimeIsOverByItself()
{
    LadderScene scene;
    LadderReports reports(scene.panel());
    scene.click(inRow(5));
    QTRY_COMPARE(reports.lastData(), LadderScene::book().value(5));
    QCOMPARE(reports.take(), QStringLiteral("level 20.05"));
}

void tst_ZrSecurityAskBidMouse::aDoubleClickReportsOnce()
{
    LadderScene scene;
    LadderReports reports(scene.panel());
    scene.doubleClick(inRow(5));
    QCOMPARE(scene.waitMs(), 100);
    QVERIFY(scene.ring());
    QCOMPARE(reports.take(), QStringLiteral("bar 10001 20.05"));
    QCOMPARE(reports.lastData(), LadderScene::book().value(5));
    QVERIFY(!scene.ring());
}

void tst_ZrSecurityAskBidMouse::aSlowDoubleClickReportsTheSingleOneFirst()
{
    LadderScene scene;
    LadderReports reports(scene.panel());
    const QPoint at = inRow(5);
    scene.click(at);
    QVERIFY(scene.ring());
    QMouseEvent second(QEvent::MouseButtonDblClick, at, Qt::LeftButton, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(scene.panel(), &second);
    scene.release(at);
    QVERIFY(scene.ring());
    QCOMPARE(reports.take(), QStringLiteral("level 20.05, bar 10001 20.05"));
}

void tst_ZrSecurityAskBidMouse::aDoubleClickByAnotherButtonIsTwoClicks()
{
    LadderScene scene;
    LadderReports reports(scene.panel());
    scene.doubleClick(inRow(5), Qt::RightButton);
    QVERIFY(scene.ring());
    QCOMPARE(reports.take(), QStringLiteral("level 20.05"));
}

void tst_ZrSecurityAskBidMouse::aDoubleClickWithoutASelectionIsNothing()
{
    LadderScene scene;
    LadderReports reports(scene.panel());
    scene.panel()->setCurIndex(-1);
    scene.doubleClick(QPoint(50, 140));
    QCOMPARE(scene.waitMs(), 0);
    QCOMPARE(reports.take(), QString());
}

void tst_ZrSecurityAskBidMouse::aDoubleClickOnTheBandIsAClick()
{
    LadderScene scene;
    LadderReports reports(scene.panel());
    scene.doubleClick(QPoint(50, 310));
    QVERIFY(scene.ring());
    QCOMPARE(reports.take(), QStringLiteral("level 20.55"));
}

void tst_ZrSecurityAskBidMouse::aDoubleClickWhereNothingCanBeSelectedReportsToo()
{
    LadderScene scene;
    LadderReports reports(scene.panel());
    scene.panel()->setBarSelectable(false);
    scene.doubleClick(QPoint(390, 140)); // over its whole width
    QVERIFY(scene.ring());
    QCOMPARE(reports.take(), QStringLiteral("bar 10001 20.05"));
}

void tst_ZrSecurityAskBidMouse::anotherTimerReportsNothing()
{
    LadderScene scene;
    LadderReports reports(scene.panel());
    scene.click(inRow(5));
    QTimerEvent other(-1);
    QCoreApplication::sendEvent(scene.panel(), &other);
    QCOMPARE(reports.take(), QString());
    QCOMPARE(scene.waitMs(), 100);
}

void tst_ZrSecurityAskBidMouse::eachReportLeavesALine_data()
{
    QTest::addColumn<bool>("twice");
    QTest::addColumn<int>("x");
    QTest::addColumn<QString>("line");
    QTest::newRow("price") << false << 150 << "000000000000000000000000  signalCurrentPriceInfo \"20.05\"";
    QTest::newRow("level") << false << 50 << "000000000000000000000000  signalCurrentClicked \"20.05\"";
    QTest::newRow("double") << true << 50 << "000000000000000000000000   signalPanelBarClicked \"20.05\"";
}

void tst_ZrSecurityAskBidMouse::eachReportLeavesALine()
{
    QFETCH(bool, twice);
    QFETCH(int, x);
    QFETCH(QString, line);
    LadderScene scene;
    QTest::ignoreMessage(QtDebugMsg, "0000000000000 mouseReleaseEvent");
    if (twice) {
        QTest::ignoreMessage(QtDebugMsg, "0000000000000 mouseDoubleClickEvent");
        QTest::ignoreMessage(QtDebugMsg, "0000000000000 mouseReleaseEvent");
        QTest::ignoreMessage(QtDebugMsg,
                             "0000000000000 mouseReleaseEvent after mouseDoubleClickEvent , return");
        scene.doubleClick(inRow(5, x));
    } else {
        scene.click(inRow(5, x));
    }
    QTest::ignoreMessage(QtDebugMsg, qPrintable(line));
    QVERIFY(scene.ring());
}

void tst_ZrSecurityAskBidMouse::aClickDuringAReportIsNotLost()
{
    LadderScene scene;
    LadderReports reports(scene.panel());
    bool isFirst = true;
    connect(scene.panel(), &ZrSecurityAskBidPanel::signalCurrentClicked, this, [&] {
        if (isFirst)
            scene.click(inRow(8));
        isFirst = false;
    });
    scene.click(inRow(5));
    QVERIFY(scene.ring());
    QVERIFY(scene.ring());
    QCOMPARE(reports.take(), QStringLiteral("level 20.05, level 20.02"));
}

void tst_ZrSecurityAskBidMouse::arrowsStepAndReportAtOnce_data()
{
    QTest::addColumn<int>("from"); // from 1
    QTest::addColumn<int>("key");
    QTest::addColumn<int>("expected");
    QTest::addColumn<QString>("report");
    QTest::newRow("down") << 1 << int(Qt::Key_Down) << 1 << "price 20.09";
    QTest::newRow("up") << 2 << int(Qt::Key_Up) << 0 << "price 20.10";
    QTest::newRow("up from the first") << 1 << int(Qt::Key_Up) << 19 << "price 19.91";
    QTest::newRow("down from the last") << 20 << int(Qt::Key_Down) << 0 << "price 20.10";
    QTest::newRow("across the band") << 10 << int(Qt::Key_Down) << 10 << "price 20.00";
}

void tst_ZrSecurityAskBidMouse::arrowsStepAndReportAtOnce()
{
    QFETCH(int, from);
    QFETCH(int, key);
    LadderScene scene;
    LadderReports reports(scene.panel());
    scene.panel()->setCurIndex(from);
    QCoreApplication::processEvents();
    PaintCounter paints(scene.panel());
    QTest::keyClick(scene.panel(), Qt::Key(key));
    QTEST(reports.take(), "report");
    QTEST(scene.panel()->getCurIndex(), "expected");
    QCOMPARE(scene.waitMs(), 0);
    QCoreApplication::processEvents();
    QVERIFY(paints.count > 0);
}

void tst_ZrSecurityAskBidMouse::arrowsGoOnToTheWindow()
{
    LadderScene scene;
    QKeyEvent event(QEvent::KeyPress, Qt::Key_Down, Qt::NoModifier);
    scene.panel()->window()->setFocus();
    QCoreApplication::sendEvent(scene.panel(), &event);
    QVERIFY(!event.isAccepted());
}

void tst_ZrSecurityAskBidMouse::otherKeysEndAtTheLadder()
{
    LadderScene scene;
    LadderReports reports(scene.panel());
    for (const Qt::Key key : {Qt::Key_Escape, Qt::Key_Return, Qt::Key_A, Qt::Key_Left}) {
        QKeyEvent event(QEvent::KeyPress, key, Qt::NoModifier);
        QCoreApplication::sendEvent(scene.panel(), &event);
        QVERIFY(event.isAccepted());
    }
    QCOMPARE(reports.take(), QString());
    QCOMPARE(scene.panel()->getCurIndex(), 0);
}

void tst_ZrSecurityAskBidMouse::withoutASelectionAllKeysGoOn()
{
    LadderScene scene;
    LadderReports reports(scene.panel());
    scene.panel()->setCurIndex(-1);
    for (const Qt::Key key : {Qt::Key_Up, Qt::Key_Down, Qt::Key_A}) {
        QKeyEvent event(QEvent::KeyPress, key, Qt::NoModifier);
        QCoreApplication::sendEvent(scene.panel(), &event);
        QVERIFY(!event.isAccepted());
    }
    QCOMPARE(reports.take(), QString());
    QCOMPARE(scene.panel()->getCurIndex(), -1);
}

void tst_ZrSecurityAskBidMouse::arrowsStepOverFiveLevels()
{
    LadderScene scene;
    LadderReports reports(scene.panel());
    scene.panel()->setAskBidPricesCounts(5);
    QTest::keyClick(scene.panel(), Qt::Key_Up);
    QTest::keyClick(scene.panel(), Qt::Key_Down);
    QCOMPARE(reports.take(), QStringLiteral("price 19.96, price 20.05"));
}

ZR_TEST_MAIN(tst_ZrSecurityAskBidMouse)
#include "tst_zrsecurityaskbidmouse.moc"
