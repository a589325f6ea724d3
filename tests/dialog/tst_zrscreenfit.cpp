#include "ZrScreenFit.h"
#include "ZrTestMain.h"

namespace {
// A desk: the first screen with a panel at its top, a smaller one to its right and lower, an upright one to
// its left and higher, and one above.
constexpr QRect first(0, 30, 1920, 1050);
constexpr QRect onTheRight(1920, 400, 1280, 720);
constexpr QRect upright(-1080, -300, 1080, 1920);
constexpr QRect above(0, -1440, 2560, 1440);

QList<QRect> desk()
{
    return {first, onTheRight, upright, above};
}
} // namespace

class tst_ZrScreenFit : public QObject
{
    Q_OBJECT
private slots:
    void theScreenIsTheOneThatHoldsThePoint_data();
    void theScreenIsTheOneThatHoldsThePoint();
    void mirroredScreensGiveTheFirst();
    void withoutScreensThereIsNone();
    void aWindowLeavesAnEdgeFree_data();
    void aWindowLeavesAnEdgeFree();
    void aLargerWindowGoesToTheScreensCorner_data();
    void aLargerWindowGoesToTheScreensCorner();
    void aBoundedWindowLiesWhollyOnItsScreen();
    void theMiddleIsInWholeNumbers_data();
    void theMiddleIsInWholeNumbers();
};

void tst_ZrScreenFit::theScreenIsTheOneThatHoldsThePoint_data()
{
    QTest::addColumn<QPoint>("pos");
    QTest::addColumn<QRect>("expected");
    QTest::newRow("first") << QPoint(100, 100) << first;
    QTest::newRow("first, last pixel") << QPoint(1919, 1079) << first;
    QTest::newRow("in the panel") << QPoint(100, 10) << QRect();
    QTest::newRow("right") << QPoint(1920, 400) << onTheRight;
    QTest::newRow("beside the lower one") << QPoint(1920, 399) << QRect();
    QTest::newRow("left of the origin") << QPoint(-1, 0) << upright;
    QTest::newRow("left of and above the origin") << QPoint(-1080, -300) << upright;
    QTest::newRow("above the origin") << QPoint(0, -1) << above;
    QTest::newRow("beyond all") << QPoint(5000, 5000) << QRect();
}

void tst_ZrScreenFit::theScreenIsTheOneThatHoldsThePoint()
{
    QFETCH(QPoint, pos);
    QFETCH(QRect, expected);
    QCOMPARE(ZrScreenFit::screenAt(desk(), pos), expected);
}

void tst_ZrScreenFit::mirroredScreensGiveTheFirst()
{
    const QRect small(0, 0, 800, 600);
    QCOMPARE(ZrScreenFit::screenAt({small, first}, QPoint(50, 50)), small);
    QCOMPARE(ZrScreenFit::screenAt({first, small}, QPoint(50, 50)), first);
}

void tst_ZrScreenFit::withoutScreensThereIsNone()
{
    QVERIFY(ZrScreenFit::screenAt({}, QPoint(0, 0)).isNull());
}

void tst_ZrScreenFit::aWindowLeavesAnEdgeFree_data()
{
    QTest::addColumn<QRect>("screen");
    QTest::addColumn<QSize>("expected");
    QTest::newRow("first") << first << QSize(1900, 1030);
    QTest::newRow("right") << onTheRight << QSize(1260, 700);
    QTest::newRow("upright") << upright << QSize(1060, 1900);
    QTest::newRow("hardly a screen") << QRect(0, 0, 15, 20) << QSize(1, 1);
}

void tst_ZrScreenFit::aWindowLeavesAnEdgeFree()
{
    QFETCH(QRect, screen);
    QFETCH(QSize, expected);
    QCOMPARE(ZrScreenFit::most(screen), expected);
}

void tst_ZrScreenFit::aLargerWindowGoesToTheScreensCorner_data()
{
    QTest::addColumn<QRect>("frame");
    QTest::addColumn<QRect>("screen");
    QTest::addColumn<QPoint>("expected");
    const QPoint at(300, 200);
    QTest::newRow("one less") << QRect(at, QSize(1899, 1029)) << first << at;
    QTest::newRow("all of the width") << QRect(at, QSize(1900, 1029)) << first << QPoint(10, 200);
    QTest::newRow("all of the height") << QRect(at, QSize(1899, 1030)) << first << QPoint(300, 40);
    QTest::newRow("too wide") << QRect(at, QSize(1901, 1029)) << first << QPoint(10, 200);
    QTest::newRow("too high") << QRect(at, QSize(1899, 1031)) << first << QPoint(300, 40);
    QTest::newRow("both") << QRect(at, QSize(3000, 3000)) << first << QPoint(10, 40);
    QTest::newRow("both, on the right") << QRect(at, QSize(3000, 3000)) << onTheRight << QPoint(1930, 410);
    QTest::newRow("both, left and above") << QRect(at, QSize(3000, 3000)) << upright << QPoint(-1070, -290);
    QTest::newRow("high, above") << QRect(at, QSize(100, 3000)) << above << QPoint(300, -1430);
    // What fits stays, wherever it is: a caller has put it there.
    QTest::newRow("elsewhere") << QRect(-500, -500, 100, 100) << first << QPoint(-500, -500);
}

void tst_ZrScreenFit::aLargerWindowGoesToTheScreensCorner()
{
    QFETCH(QRect, frame);
    QFETCH(QRect, screen);
    QFETCH(QPoint, expected);
    QCOMPARE(ZrScreenFit::corner(frame, screen), expected);
}

void tst_ZrScreenFit::aBoundedWindowLiesWhollyOnItsScreen()
{
    const QList<QRect> screens = desk();
    for (const QRect &screen : screens) {
        const QRect frame(-3000, 4000, 9000, 9000);
        const QRect found(ZrScreenFit::corner(frame, screen), ZrScreenFit::most(screen));
        QVERIFY(screen.adjusted(10, 10, -10, -10).contains(found));
        QVERIFY(screen.contains(QRect(ZrScreenFit::centred(found, screen), found.size())));
    }
}

void tst_ZrScreenFit::theMiddleIsInWholeNumbers_data()
{
    QTest::addColumn<QSize>("size");
    QTest::addColumn<QRect>("target");
    QTest::addColumn<QPoint>("expected");
    QTest::newRow("even") << QSize(100, 50) << QRect(0, 0, 300, 150) << QPoint(100, 50);
    QTest::newRow("odd") << QSize(101, 51) << QRect(0, 0, 300, 150) << QPoint(99, 49);
    QTest::newRow("larger than its target") << QSize(400, 150) << QRect(50, 60, 101, 101) << QPoint(-99, 36);
    QTest::newRow("left of the origin") << QSize(80, 20) << upright << QPoint(-580, 650);
}

void tst_ZrScreenFit::theMiddleIsInWholeNumbers()
{
    QFETCH(QSize, size);
    QFETCH(QRect, target);
    QFETCH(QPoint, expected);
    QCOMPARE(ZrScreenFit::centred(QRect(QPoint(7, 8), size), target), expected);
}

ZR_TEST_GUILESS_MAIN(tst_ZrScreenFit)
#include "tst_zrscreenfit.moc"
