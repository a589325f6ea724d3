#include "HeadScene.h"
#include "ZrHeaderGroupRun.h"
#include "ZrTestMain.h"

class tst_ZrHeaderGroupRun : public QObject
{
    Q_OBJECT
private slots:
    void theRunAndItsBand_data();
    void theRunAndItsBand();
    void aMovedSectionCountsWhereItStands();
    void aHiddenSectionCountsButHasNoWidth();
    void aSectionThatDoesNotExistHasAnEmptyRun();
};

void tst_ZrHeaderGroupRun::theRunAndItsBand_data()
{
    QTest::addColumn<QString>("groups");
    QTest::addColumn<int>("section");
    QTest::addColumn<int>("first");
    QTest::addColumn<int>("last");
    QTest::addColumn<QRect>("band"); // 100 px a section, 40 px high

    QTest::newRow("differs from both neighbours") << "ABC." << 1 << 1 << 1 << QRect(100, 0, 100, 20);
    QTest::newRow("first of three") << "AAA.." << 0 << 0 << 2 << QRect(0, 0, 300, 20);
    QTest::newRow("middle of three") << "AAA.." << 1 << 0 << 2 << QRect(0, 0, 300, 20);
    QTest::newRow("last of three") << "AAA.." << 2 << 0 << 2 << QRect(0, 0, 300, 20);
    QTest::newRow("same group further on is another run") << "AA.AA." << 0 << 0 << 1 << QRect(0, 0, 200, 20);
    QTest::newRow("run to the end") << ".BBB" << 1 << 1 << 3 << QRect(100, 0, 300, 20);
    // Required: the last section is never compared.
    QTest::newRow("run before a plain last section takes it in")
        << ".BB." << 1 << 1 << 3 << QRect(100, 0, 300, 20);
    QTest::newRow("run before a last section of another group")
        << "ABBC" << 2 << 1 << 3 << QRect(100, 0, 300, 20);
    QTest::newRow("one section before the last") << "AB." << 1 << 1 << 2 << QRect(100, 0, 200, 20);
    QTest::newRow("two before the last end where they end")
        << "AB.." << 1 << 1 << 1 << QRect(100, 0, 100, 20);
    QTest::newRow("the last itself walks left only") << "ABBB" << 3 << 1 << 3 << QRect(100, 0, 300, 20);
    QTest::newRow("the last alone") << "AAB" << 2 << 2 << 2 << QRect(200, 0, 100, 20);
}

void tst_ZrHeaderGroupRun::theRunAndItsBand()
{
    QFETCH(QString, groups);
    QFETCH(int, section);
    const HeadScene scene(HeadScene::groups(groups));
    const ZrHeaderGroupRun run = ZrHeaderGroupRun::of(*scene.head, section);
    QTEST(run.first(), "first");
    QTEST(run.last(), "last");
    QTEST(run.band(QRect(100 * section, 0, 100, 40)), "band");
}

void tst_ZrHeaderGroupRun::aMovedSectionCountsWhereItStands()
{
    const HeadScene scene(HeadScene::groups("A.A..")); // becomes AA...
    scene.head->moveSection(1, 3);
    const ZrHeaderGroupRun run = ZrHeaderGroupRun::of(*scene.head, 2);
    QCOMPARE(run.first(), 0);
    QCOMPARE(run.last(), 1);
}

void tst_ZrHeaderGroupRun::aHiddenSectionCountsButHasNoWidth()
{
    const HeadScene scene(HeadScene::groups("AAA.."));
    scene.head->hideSection(1);
    const ZrHeaderGroupRun run = ZrHeaderGroupRun::of(*scene.head, 0);
    QCOMPARE(run.last(), 2);
    QCOMPARE(run.band(QRect(0, 0, 100, 40)), QRect(0, 0, 200, 20));
}

void tst_ZrHeaderGroupRun::aSectionThatDoesNotExistHasAnEmptyRun()
{
    const HeadScene scene(HeadScene::groups("AA"));
    const ZrHeaderGroupRun run = ZrHeaderGroupRun::of(*scene.head, 9);
    QCOMPARE(run.first(), -1);
    QCOMPARE(run.last(), -1);
    QCOMPARE(run.band(QRect(0, 0, 100, 40)), QRect(0, 0, 100, 20));
}

ZR_TEST_MAIN(tst_ZrHeaderGroupRun)
#include "tst_zrheadergrouprun.moc"
