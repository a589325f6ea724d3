#include "ZrTestMain.h"
#include "ZrWindowEdges.h"

namespace {
constexpr QRect frame(100, 200, 300, 150); // right edge at 399, bottom edge at 349
} // namespace

class tst_ZrWindowEdges : public QObject
{
    Q_OBJECT
private slots:
    void thePointerIsAtTheEdgesInReach_data();
    void thePointerIsAtTheEdgesInReach();
    void aNarrowWindowHasBothSidesInReach();
    void eachEdgeHasItsCursor_data();
    void eachEdgeHasItsCursor();
    void onlyThePulledEdgesMove_data();
    void onlyThePulledEdgesMove();
    void tooMuchGoesAtThePulledEdge_data();
    void tooMuchGoesAtThePulledEdge();
};

void tst_ZrWindowEdges::thePointerIsAtTheEdgesInReach_data()
{
    QTest::addColumn<QPoint>("pos");
    QTest::addColumn<int>("expected");
    QTest::newRow("middle") << QPoint(250, 275) << 0;
    QTest::newRow("top, innermost") << QPoint(250, 210) << 1;
    QTest::newRow("top, one further in") << QPoint(250, 211) << 0;
    QTest::newRow("top, outermost") << QPoint(250, 190) << 1;
    QTest::newRow("top, one further out") << QPoint(250, 189) << 0;
    QTest::newRow("left, innermost") << QPoint(110, 275) << 2;
    QTest::newRow("left, one further in") << QPoint(111, 275) << 0;
    QTest::newRow("left, outermost") << QPoint(90, 275) << 2;
    QTest::newRow("left, one further out") << QPoint(89, 275) << 0;
    QTest::newRow("right, innermost") << QPoint(389, 275) << 4;
    QTest::newRow("right, one further in") << QPoint(388, 275) << 0;
    QTest::newRow("right, outermost") << QPoint(409, 275) << 4;
    QTest::newRow("right, one further out") << QPoint(410, 275) << 0;
    QTest::newRow("bottom, innermost") << QPoint(250, 339) << 8;
    QTest::newRow("bottom, one further in") << QPoint(250, 338) << 0;
    QTest::newRow("bottom, outermost") << QPoint(250, 359) << 8;
    QTest::newRow("bottom, one further out") << QPoint(250, 360) << 0;
    QTest::newRow("top left") << QPoint(100, 200) << 3;
    QTest::newRow("top right") << QPoint(399, 200) << 5;
    QTest::newRow("bottom left") << QPoint(100, 349) << 10;
    QTest::newRow("bottom right") << QPoint(399, 349) << 12;
}

void tst_ZrWindowEdges::thePointerIsAtTheEdgesInReach()
{
    QFETCH(QPoint, pos);
    QFETCH(int, expected);
    QCOMPARE(ZrWindowEdges::at(frame, pos), expected);
    // Wherever the window lies, also left of and above the first screen.
    const QPoint away(-2000, -1500);
    QCOMPARE(ZrWindowEdges::at(frame.translated(away), pos + away), expected);
}

void tst_ZrWindowEdges::aNarrowWindowHasBothSidesInReach()
{
    const int found = ZrWindowEdges::at(QRect(0, 0, 12, 12), QPoint(6, 6));
    QCOMPARE(found, 15);
    QCOMPARE(ZrWindowEdges::cursor(found), Qt::ArrowCursor);
}

void tst_ZrWindowEdges::eachEdgeHasItsCursor_data()
{
    QTest::addColumn<int>("edges");
    QTest::addColumn<int>("expected");
    for (int edges = 0; edges < 16; ++edges) {
        int expected = Qt::ArrowCursor;
        if (edges == 1 || edges == 8)
            expected = Qt::SizeVerCursor;
        else if (edges == 2 || edges == 4)
            expected = Qt::SizeHorCursor;
        else if (edges == 3 || edges == 12)
            expected = Qt::SizeFDiagCursor;
        else if (edges == 5 || edges == 10)
            expected = Qt::SizeBDiagCursor;
        QTest::addRow("mask %d", edges) << edges << expected;
    }
}

void tst_ZrWindowEdges::eachEdgeHasItsCursor()
{
    QFETCH(int, edges);
    QFETCH(int, expected);
    QCOMPARE(int(ZrWindowEdges::cursor(edges)), expected);
}

void tst_ZrWindowEdges::onlyThePulledEdgesMove_data()
{
    QTest::addColumn<int>("edges");
    QTest::addColumn<QRect>("expected");
    QTest::newRow("none") << 0 << QRect(QPoint(100, 200), QPoint(399, 349));
    QTest::newRow("top") << 1 << QRect(QPoint(100, 220), QPoint(399, 349));
    QTest::newRow("left") << 2 << QRect(QPoint(93, 200), QPoint(399, 349));
    QTest::newRow("right") << 4 << QRect(QPoint(100, 200), QPoint(392, 349));
    QTest::newRow("bottom") << 8 << QRect(QPoint(100, 200), QPoint(399, 369));
    QTest::newRow("top left") << 3 << QRect(QPoint(93, 220), QPoint(399, 349));
    QTest::newRow("top right") << 5 << QRect(QPoint(100, 220), QPoint(392, 349));
    QTest::newRow("bottom left") << 10 << QRect(QPoint(93, 200), QPoint(399, 369));
    QTest::newRow("bottom right") << 12 << QRect(QPoint(100, 200), QPoint(392, 369));
}

void tst_ZrWindowEdges::onlyThePulledEdgesMove()
{
    QFETCH(int, edges);
    QFETCH(QRect, expected);
    QCOMPARE(ZrWindowEdges::pulled(frame, edges, QPoint(-7, 20)), expected);
}

void tst_ZrWindowEdges::tooMuchGoesAtThePulledEdge_data()
{
    QTest::addColumn<int>("edges");
    QTest::addColumn<QSize>("most");
    QTest::addColumn<QRect>("expected");
    QTest::newRow("room for all") << 15 << QSize(300, 150) << frame;
    QTest::newRow("left") << 2 << QSize(280, 150) << QRect(120, 200, 280, 150);
    QTest::newRow("right") << 4 << QSize(280, 150) << QRect(100, 200, 280, 150);
    QTest::newRow("top") << 1 << QSize(300, 140) << QRect(100, 210, 300, 140);
    QTest::newRow("bottom") << 8 << QSize(300, 140) << QRect(100, 200, 300, 140);
    QTest::newRow("top left") << 3 << QSize(280, 140) << QRect(120, 210, 280, 140);
    QTest::newRow("bottom right") << 12 << QSize(280, 140) << QRect(100, 200, 280, 140);
}

void tst_ZrWindowEdges::tooMuchGoesAtThePulledEdge()
{
    QFETCH(int, edges);
    QFETCH(QSize, most);
    QFETCH(QRect, expected);
    QCOMPARE(ZrWindowEdges::bounded(frame, edges, most), expected);
}

ZR_TEST_GUILESS_MAIN(tst_ZrWindowEdges)
#include "tst_zrwindowedges.moc"
