#include "ZrBalanceColor.h"
#include "ZrLadderState.h"
#include "ZrTestMain.h"

class tst_ZrLadderGeometry : public QObject
{
    Q_OBJECT
private slots:
    void beforeTheFirstSizeThereAreNoRectangles();
    void rowsAreWholePixels_data();
    void rowsAreWholePixels();
    void theLowerHalfLeavesRoomForTheBand();
    void aCountBelowNoneHasNoRows();
    void theCurrentRowIsTallerByTwoMargins_data();
    void theCurrentRowIsTallerByTwoMargins();
    void withoutLevelsTheCurrentRowStaysWhereItWas();
    void stepsGoRoundAndRound_data();
    void stepsGoRoundAndRound();
    void pricesHaveTheColourOfTheirChange_data();
    void pricesHaveTheColourOfTheirChange();
};

void tst_ZrLadderGeometry::beforeTheFirstSizeThereAreNoRectangles()
{
    ZrLadderGeometry geometry;
    geometry.begin(QSize(300, 200));
    QCOMPARE(geometry.rows(), 0);
    QCOMPARE(geometry.columnWidthPx(), 300);
    QCOMPARE(geometry.rowHeightPx(), 200);
    QVERIFY(geometry.band().isNull());
}

void tst_ZrLadderGeometry::rowsAreWholePixels_data()
{
    QTest::addColumn<QSize>("size");
    QTest::addColumn<int>("count");
    QTest::addColumn<double>("margin");
    QTest::addColumn<int>("row");
    QTest::addColumn<int>("column");
    QTest::newRow("usual") << QSize(400, 600) << 10 << 12.0 << 27 << 114;
    QTest::newRow("five levels") << QSize(400, 600) << 5 << 12.0 << 52 << 114;
    QTest::newRow("a column of whole sevenths") << QSize(399, 600) << 10 << 12.0 << 27 << 114;
    QTest::newRow("a column short of a seventh") << QSize(398, 600) << 10 << 12.0 << 27 << 112;
    QTest::newRow("half a pixel of margin") << QSize(400, 443) << 10 << 0.5 << 21 << 114;
    QTest::newRow("a pixel short of a row") << QSize(400, 441) << 10 << 0.5 << 20 << 114;
    QTest::newRow("too low") << QSize(400, 40) << 10 << 12.0 << 0 << 114;
    QTest::newRow("lower than its margins") << QSize(6, 3) << 1 << 12.0 << -7 << 0;
    QTest::newRow("empty") << QSize(0, 0) << 10 << 0.0 << 0 << 0;
}

void tst_ZrLadderGeometry::rowsAreWholePixels()
{
    QFETCH(QSize, size);
    QFETCH(int, count);
    QFETCH(double, margin);
    ZrLadderGeometry geometry;
    geometry.reset(size, count, margin);
    QTEST(geometry.rowHeightPx(), "row");
    QTEST(geometry.columnWidthPx(), "column");
    QCOMPARE(geometry.rows(), 2 * count);
    QCOMPARE(geometry.count(), count);
}

void tst_ZrLadderGeometry::theLowerHalfLeavesRoomForTheBand()
{
    ZrLadderGeometry geometry;
    geometry.reset(QSize(400, 600), 10, 12.0);
    QCOMPARE(geometry.row(0), QRectF(0, 0, 400, 27));
    QCOMPARE(geometry.row(9), QRectF(0, 243, 400, 27));
    QCOMPARE(geometry.band(), QRectF(0, 270, 400, 27));
    QCOMPARE(geometry.row(10), QRectF(0, 297, 400, 27));
    QCOMPARE(geometry.row(19), QRectF(0, 540, 400, 27));
}

void tst_ZrLadderGeometry::aCountBelowNoneHasNoRows()
{
    ZrLadderGeometry geometry;
    geometry.reset(QSize(400, 600), -3, 12.0);
    QCOMPARE(geometry.rows(), 0);
}

void tst_ZrLadderGeometry::theCurrentRowIsTallerByTwoMargins_data()
{
    QTest::addColumn<int>("index");
    QTest::addColumn<QRectF>("expected");
    QTest::newRow("first") << 0 << QRectF(0, 0, 400, 51);
    QTest::newRow("last of the sellers") << 9 << QRectF(0, 243, 400, 51);
    QTest::newRow("first of the buyers") << 10 << QRectF(0, 297, 400, 51);
    QTest::newRow("last") << 19 << QRectF(0, 540, 400, 51);
    QTest::newRow("none") << -1 << QRectF(0, 0, 400, 27);
    QTest::newRow("beyond the rows") << 20 << QRectF(0, 0, 400, 27);
}

void tst_ZrLadderGeometry::theCurrentRowIsTallerByTwoMargins()
{
    QFETCH(int, index);
    ZrLadderState state;
    state.book.fillPlaceholders();
    state.geometry.reset(QSize(400, 600), 10, state.look.marginPx);
    state.currentIndex = index;
    state.placeCurrent();
    QTEST(state.currentRect, "expected");
}

void tst_ZrLadderGeometry::withoutLevelsTheCurrentRowStaysWhereItWas()
{
    ZrLadderState state;
    state.currentIndex = 3;
    state.book.fillPlaceholders();
    state.placeCurrent(); // no rectangles yet
    QVERIFY(state.currentRect.isNull());
    state.geometry.reset(QSize(400, 600), 10, 12.0);
    state.placeCurrent();
    const QRectF before = state.currentRect;
    QVERIFY(before.isValid());
    state.book.setLevels({});
    state.currentIndex = 5;
    state.placeCurrent();
    QCOMPARE(state.currentRect, before);
}

void tst_ZrLadderGeometry::stepsGoRoundAndRound_data()
{
    QTest::addColumn<int>("count");
    QTest::addColumn<int>("from");
    QTest::addColumn<bool>("forward");
    QTest::addColumn<int>("expected");
    QTest::newRow("down") << 10 << 3 << true << 4;
    QTest::newRow("up") << 10 << 3 << false << 2;
    QTest::newRow("down from the last") << 10 << 19 << true << 0;
    QTest::newRow("up from the first") << 10 << 0 << false << 19;
    QTest::newRow("down from the last of five levels") << 5 << 9 << true << 0;
    QTest::newRow("up from the first of five levels") << 5 << 0 << false << 9;
    QTest::newRow("across the band") << 10 << 9 << true << 10;
    QTest::newRow("down from beyond the rows") << 5 << 15 << true << 0;
    QTest::newRow("up from far below the rows") << 5 << -1000 << false << 9;
}

void tst_ZrLadderGeometry::stepsGoRoundAndRound()
{
    QFETCH(int, count);
    QFETCH(int, from);
    QFETCH(bool, forward);
    ZrLadderState state;
    state.book.setCount(count);
    state.currentIndex = from;
    state.moveCurrent(forward);
    QTEST(state.currentIndex, "expected");
}

void tst_ZrLadderGeometry::pricesHaveTheColourOfTheirChange_data()
{
    QTest::addColumn<double>("price");
    QTest::addColumn<QColor>("expected");
    const QColor balance(0, 0, 0, ZrBalanceColor::alpha); // no host runs here: nothing is configured
    QTest::newRow("above") << 15.11 << QColor(Qt::red);
    QTest::newRow("below") << 15.09 << QColor(Qt::green);
    QTest::newRow("equal to the close that nobody set") << 15.1 << balance;
    QTest::newRow("zero") << 0.0 << balance;
    QTest::newRow("below zero") << -1.0 << QColor(Qt::green);
}

void tst_ZrLadderGeometry::pricesHaveTheColourOfTheirChange()
{
    QFETCH(double, price);
    ZrLadderState state;
    state.look.up = Qt::red;
    state.look.down = Qt::green;
    QTEST(state.priceColor(price), "expected");
}

ZR_TEST_GUILESS_MAIN(tst_ZrLadderGeometry)
#include "tst_zrladdergeometry.moc"
