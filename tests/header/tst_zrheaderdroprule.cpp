#include "HeadScene.h"
#include "ZrHeaderDropRule.h"
#include "ZrTestMain.h"

class tst_ZrHeaderDropRule : public QObject
{
    Q_OBJECT
private slots:
    void aDropIsJudgedByGroupsAndFrozenColumns_data();
    void aDropIsJudgedByGroupsAndFrozenColumns();
};

void tst_ZrHeaderDropRule::aDropIsJudgedByGroupsAndFrozenColumns_data()
{
    QTest::addColumn<QString>("groups");
    QTest::addColumn<int>("from");
    QTest::addColumn<int>("to");
    QTest::addColumn<int>("left");
    QTest::addColumn<int>("right");
    QTest::addColumn<bool>("expected");

    QTest::newRow("plain to plain") << "...." << 0 << 2 << 0 << 0 << true;
    QTest::newRow("back to its place") << "...." << 1 << 1 << 0 << 0 << true;
    QTest::newRow("inside its group") << ".AAA." << 1 << 3 << 0 << 0 << true;
    QTest::newRow("out of its group") << ".AAA." << 1 << 4 << 0 << 0 << false;
    QTest::newRow("into another group") << "AABB" << 0 << 2 << 0 << 0 << false;
    QTest::newRow("same group elsewhere") << "AA.A" << 0 << 3 << 0 << 0 << true;
    QTest::newRow("plain to the far edge of a group, rightwards") << "..AA." << 0 << 3 << 0 << 0 << true;
    QTest::newRow("plain between members, rightwards") << "..AA." << 0 << 2 << 0 << 0 << false;
    QTest::newRow("plain to the far edge of a group, leftwards") << ".AA.." << 4 << 1 << 0 << 0 << true;
    QTest::newRow("plain between members, leftwards") << ".AA.." << 4 << 2 << 0 << 0 << false;
    QTest::newRow("plain past a group of one") << "..A.." << 0 << 2 << 0 << 0 << true;
    QTest::newRow("group at the right end") << "..AA" << 0 << 3 << 0 << 0 << true;
    QTest::newRow("group at the left end") << "AA.." << 3 << 0 << 0 << 0 << true;
    QTest::newRow("between two groups") << ".AABB." << 0 << 2 << 0 << 0 << true;
    QTest::newRow("below the left frozen count") << "....." << 3 << 1 << 2 << 0 << false;
    QTest::newRow("first place after the left frozen") << "....." << 3 << 2 << 2 << 0 << true;
    QTest::newRow("last place before the right frozen") << "....." << 0 << 3 << 0 << 1 << true;
    QTest::newRow("among the right frozen") << "....." << 0 << 4 << 0 << 1 << false;
    QTest::newRow("nowhere, left") << "....." << 0 << -1 << 0 << 0 << false;
    QTest::newRow("nowhere, right") << "....." << 0 << 5 << 0 << 0 << false;
    QTest::newRow("from nowhere") << "....." << -1 << 0 << 0 << 0 << false;
}

void tst_ZrHeaderDropRule::aDropIsJudgedByGroupsAndFrozenColumns()
{
    QFETCH(QString, groups);
    QFETCH(int, from);
    QFETCH(int, to);
    QFETCH(int, left);
    QFETCH(int, right);
    const HeadScene scene(HeadScene::groups(groups));
    QTEST(ZrHeaderDropRule(*scene.head, left, right).allows(from, to), "expected");
}

ZR_TEST_MAIN(tst_ZrHeaderDropRule)
#include "tst_zrheaderdroprule.moc"
