#include "HeadScene.h"
#include "ZrHeaderDrag.h"
#include "ZrTestMain.h"

class tst_ZrHeaderDrag : public QObject
{
    Q_OBJECT
private slots:
    void theTargetIsWhereTheBaseMovesTheSection_data();
    void theTargetIsWhereTheBaseMovesTheSection();
    void nothingMovesBeforeTheStartDistance();
    void outsideOfAllSectionsTheTargetStays();
    void withoutASectionNothingMoves();
    void aFirstSectionThatMayNotMoveIsNoTarget();
    void anEndedDragIsForgotten();
};

void tst_ZrHeaderDrag::theTargetIsWhereTheBaseMovesTheSection_data()
{
    QTest::addColumn<int>("from");
    QTest::addColumn<int>("x"); // 100 px a section
    QTest::addColumn<QList<int>>("expected");

    QTest::newRow("right, before the middle") << 0 << 140 << QList<int>{0, 1, 2, 3};
    QTest::newRow("right, past the middle") << 0 << 160 << QList<int>{1, 0, 2, 3};
    QTest::newRow("far right, before the middle") << 0 << 340 << QList<int>{1, 2, 0, 3};
    QTest::newRow("far right, past the middle") << 0 << 360 << QList<int>{1, 2, 3, 0};
    QTest::newRow("left, before the middle") << 3 << 260 << QList<int>{0, 1, 2, 3};
    QTest::newRow("left, past the middle") << 3 << 240 << QList<int>{0, 1, 3, 2};
    QTest::newRow("far left, past the middle") << 3 << 40 << QList<int>{3, 0, 1, 2};
    QTest::newRow("over itself") << 1 << 110 << QList<int>{0, 1, 2, 3};
}

void tst_ZrHeaderDrag::theTargetIsWhereTheBaseMovesTheSection()
{
    QFETCH(int, from);
    QFETCH(int, x);
    HeadScene scene(HeadScene::plain(4));
    scene.head->setSectionsMovable(true);
    ZrHeaderDrag drag(*scene.head);
    drag.begin(from, scene.centre(from).x());
    drag.moveTo(x);
    QVERIFY(drag.isMoving());
    const int target = scene.head->visualIndex(drag.target());
    // The base decides by itself; what it does is the expected value of both.
    scene.press(scene.centre(from));
    scene.moveHeld({x, 10});
    scene.release({x, 10});
    QTEST(scene.order(), "expected");
    QCOMPARE(target, scene.head->visualIndex(from));
}

void tst_ZrHeaderDrag::nothingMovesBeforeTheStartDistance()
{
    const HeadScene scene(HeadScene::plain(4));
    ZrHeaderDrag drag(*scene.head);
    drag.begin(1, 195);
    drag.moveTo(195 + QApplication::startDragDistance() - 1);
    QVERIFY(!drag.isMoving());
    drag.moveTo(195 + QApplication::startDragDistance());
    QVERIFY(drag.isMoving());
    drag.moveTo(196); // and stays begun
    QVERIFY(drag.isMoving());
}

void tst_ZrHeaderDrag::outsideOfAllSectionsTheTargetStays()
{
    const HeadScene scene(HeadScene::plain(4));
    ZrHeaderDrag drag(*scene.head);
    drag.begin(0, 50);
    drag.moveTo(270);
    QCOMPARE(drag.target(), 2);
    drag.moveTo(-5);
    QCOMPARE(drag.target(), 2);
    drag.moveTo(4000);
    QCOMPARE(drag.target(), 2);
}

void tst_ZrHeaderDrag::withoutASectionNothingMoves()
{
    const HeadScene scene(HeadScene::plain(4));
    ZrHeaderDrag drag(*scene.head);
    drag.moveTo(300);
    QVERIFY(!drag.isMoving());
    QCOMPARE(drag.target(), -1);
}

void tst_ZrHeaderDrag::aFirstSectionThatMayNotMoveIsNoTarget()
{
    const HeadScene scene(HeadScene::plain(4));
    scene.head->setFirstSectionMovable(false);
    ZrHeaderDrag drag(*scene.head);
    drag.begin(2, 250);
    drag.moveTo(140);
    QCOMPARE(drag.target(), 1);
    drag.moveTo(10);
    QCOMPARE(drag.target(), 1);
}

void tst_ZrHeaderDrag::anEndedDragIsForgotten()
{
    const HeadScene scene(HeadScene::plain(4));
    ZrHeaderDrag drag(*scene.head);
    drag.begin(0, 50);
    drag.moveTo(270);
    drag.end();
    QVERIFY(!drag.isMoving());
    QCOMPARE(drag.section(), -1);
}

ZR_TEST_MAIN(tst_ZrHeaderDrag)
#include "tst_zrheaderdrag.moc"
