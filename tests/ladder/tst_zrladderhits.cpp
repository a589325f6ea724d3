#include "ZrLadderHits.h"
#include "ZrTestMain.h"

class tst_ZrLadderHits : public QObject
{
    Q_OBJECT
private slots:
    void withoutASelectionRowsStandWhereTheyAre();
    void belowASelectedRowAllStandLower();
    void aRowThatCannotBeSelectedMovesNothing();
    void theBandGrowsBelowASelectedSeller_data();
    void theBandGrowsBelowASelectedSeller();
    void pointsMeetRows_data();
    void pointsMeetRows();
    void everyPointOfAColumnMeetsSomething_data();
    void everyPointOfAColumnMeetsSomething();
    void beforeAnySizeNothingIsMet();
    void theFirstColumnIsAsHighAsTheHit();
};

namespace {
ZrLadderState stateWith(int currentIndex, bool selectable = true)
{
    ZrLadderState state;
    state.book.fillPlaceholders();
    state.geometry.reset(QSize(400, 600), 10, 12.0);
    state.currentIndex = currentIndex;
    state.selectable = selectable;
    return state;
}
} // namespace

void tst_ZrLadderHits::withoutASelectionRowsStandWhereTheyAre()
{
    const ZrLadderState state = stateWith(-1);
    const ZrLadderHits hits(state);
    for (int row = 0; row < 20; ++row) {
        const QRectF bar = state.geometry.row(row);
        QCOMPARE(hits.row(row, ZrLadderHits::WholeWidth), bar);
        QCOMPARE(hits.row(row, ZrLadderHits::TwoColumns), QRectF(0, bar.top(), 228, 27));
    }
}

void tst_ZrLadderHits::belowASelectedRowAllStandLower()
{
    const ZrLadderState state = stateWith(4);
    const ZrLadderHits hits(state);
    QCOMPARE(hits.row(3, ZrLadderHits::WholeWidth), QRectF(0, 81, 400, 27));
    QCOMPARE(hits.row(4, ZrLadderHits::WholeWidth), QRectF(0, 108, 400, 51));
    QCOMPARE(hits.row(5, ZrLadderHits::WholeWidth), QRectF(0, 159, 400, 27));
    QCOMPARE(hits.row(10, ZrLadderHits::TwoColumns), QRectF(0, 321, 228, 27));
    QCOMPARE(hits.row(19, ZrLadderHits::WholeWidth), QRectF(0, 564, 400, 27));
}

void tst_ZrLadderHits::aRowThatCannotBeSelectedMovesNothing()
{
    const ZrLadderState state = stateWith(4, false);
    const ZrLadderHits hits(state);
    QCOMPARE(hits.row(4, ZrLadderHits::WholeWidth), state.geometry.row(4));
    QCOMPARE(hits.row(5, ZrLadderHits::WholeWidth), state.geometry.row(5));
}

void tst_ZrLadderHits::theBandGrowsBelowASelectedSeller_data()
{
    QTest::addColumn<int>("index");
    QTest::addColumn<bool>("selectable");
    QTest::addColumn<QRectF>("clicked");
    QTest::addColumn<QRectF>("hovered");
    QTest::newRow("none selected") << -1 << true << QRectF(0, 270, 400, 27) << QRectF(0, 270, 228, 27);
    QTest::newRow("none selectable") << 3 << false << QRectF(0, 270, 400, 27) << QRectF(0, 270, 228, 27);
    QTest::newRow("first row") << 0 << true << QRectF(0, 270, 400, 51) << QRectF(0, 270, 228, 51);
    QTest::newRow("last seller") << 9 << true << QRectF(0, 270, 400, 51) << QRectF(0, 270, 228, 51);
    // As wide as the widget for the hover too: the band shows itself as met at its quantity there.
    QTest::newRow("first buyer") << 10 << true << QRectF(0, 270, 400, 27) << QRectF(0, 270, 400, 27);
    QTest::newRow("beyond the rows") << 25 << true << QRectF(0, 270, 400, 27) << QRectF(0, 270, 400, 27);
}

void tst_ZrLadderHits::theBandGrowsBelowASelectedSeller()
{
    QFETCH(int, index);
    QFETCH(bool, selectable);
    const ZrLadderState state = stateWith(index, selectable);
    QTEST(ZrLadderHits(state).clickedBand(), "clicked");
    QTEST(ZrLadderHits(state).hoveredBand(), "hovered");
}

void tst_ZrLadderHits::pointsMeetRows_data()
{
    QTest::addColumn<int>("index");
    QTest::addColumn<QPointF>("point");
    QTest::addColumn<int>("narrow");
    QTest::addColumn<int>("whole");
    QTest::newRow("first row") << -1 << QPointF(10, 10) << 0 << 0;
    QTest::newRow("top edge") << -1 << QPointF(10, 0) << 0 << 0;
    QTest::newRow("shared edge is the upper row's") << -1 << QPointF(10, 27) << 0 << 0;
    QTest::newRow("beyond the shared edge") << -1 << QPointF(10, 28) << 1 << 1;
    QTest::newRow("end of the second column") << -1 << QPointF(228, 10) << 0 << 0;
    QTest::newRow("the quantity") << -1 << QPointF(229, 10) << -1 << 0;
    QTest::newRow("the band") << -1 << QPointF(10, 285) << -1 << -1;
    QTest::newRow("below the rows") << -1 << QPointF(10, 568) << -1 << -1;
    QTest::newRow("left of the rows") << -1 << QPointF(-1, 10) << -1 << -1;
    QTest::newRow("selected row's extra height") << 4 << QPointF(10, 150) << 4 << 4;
    QTest::newRow("row below the selected one") << 4 << QPointF(10, 170) << 5 << 5;
    QTest::newRow("the lowest, moved") << 4 << QPointF(10, 591) << 19 << 19;
    QTest::newRow("row above the band, moved over it") << 4 << QPointF(10, 280) << 9 << 9;
}

void tst_ZrLadderHits::pointsMeetRows()
{
    QFETCH(int, index);
    QFETCH(QPointF, point);
    const ZrLadderState state = stateWith(index);
    QTEST(ZrLadderHits(state).rowAt(point, ZrLadderHits::TwoColumns), "narrow");
    QTEST(ZrLadderHits(state).rowAt(point, ZrLadderHits::WholeWidth), "whole");
}

void tst_ZrLadderHits::everyPointOfAColumnMeetsSomething_data()
{
    QTest::addColumn<int>("index");
    QTest::addColumn<int>("lowest");
    QTest::newRow("none selected") << -1 << 567;
    QTest::newRow("first row") << 0 << 591;
    QTest::newRow("last seller") << 9 << 591;
    QTest::newRow("first buyer") << 10 << 591;
    QTest::newRow("last row") << 19 << 591;
}

void tst_ZrLadderHits::everyPointOfAColumnMeetsSomething()
{
    QFETCH(int, index);
    QFETCH(int, lowest);
    const ZrLadderState state = stateWith(index);
    const ZrLadderHits hits(state);
    for (int y = 0; y <= lowest; ++y) {
        const QPointF point(50, y);
        QVERIFY2(hits.hoveredBand().contains(point) || hits.rowAt(point, ZrLadderHits::TwoColumns) >= 0,
                 qPrintable(QString::number(y)));
    }
    QCOMPARE(hits.rowAt(QPointF(50, lowest + 1), ZrLadderHits::WholeWidth), -1);
}

void tst_ZrLadderHits::beforeAnySizeNothingIsMet()
{
    ZrLadderState state;
    state.geometry.begin(QSize(100, 30));
    const ZrLadderHits hits(state);
    QCOMPARE(hits.rowAt(QPointF(5, 5), ZrLadderHits::WholeWidth), -1);
    state.currentIndex = -1;
    QVERIFY(!hits.clickedBand().contains(QPointF(0, 0)));
}

void tst_ZrLadderHits::theFirstColumnIsAsHighAsTheHit()
{
    const ZrLadderState state = stateWith(4);
    const ZrLadderHits hits(state);
    const QRectF hit = hits.row(4, ZrLadderHits::WholeWidth);
    QVERIFY(hits.isInFirstColumn(hit, QPointF(0, 108)));
    QVERIFY(hits.isInFirstColumn(hit, QPointF(114, 159)));
    QVERIFY(!hits.isInFirstColumn(hit, QPointF(115, 150)));
    QVERIFY(!hits.isInFirstColumn(hit, QPointF(50, 160)));
}

ZR_TEST_GUILESS_MAIN(tst_ZrLadderHits)
#include "tst_zrladderhits.moc"
