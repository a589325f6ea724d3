#include "HeadScene.h"
#include "ZrHeaderColumns.h"
#include "ZrTestMain.h"

class tst_ZrHeaderColumns : public QObject
{
    Q_OBJECT
private slots:
    void theModelsNumberIsTheLogicalColumn();
    void withoutNumberTheOffsetOfTheViewDecides();
    void withoutNumberAndViewThereIsNone();
    void groupsFollowTheVisualOrder();
};

void tst_ZrHeaderColumns::theModelsNumberIsTheLogicalColumn()
{
    const HeadScene scene({{-2, ""}, {-1, "Seq."}, {7, "Price"}});
    QCOMPARE(ZrHeaderColumns::logicalColumn(*scene.head, 0), -2);
    QCOMPARE(ZrHeaderColumns::logicalColumn(*scene.head, 1), -1);
    QCOMPARE(ZrHeaderColumns::logicalColumn(*scene.head, 2), 7);
}

void tst_ZrHeaderColumns::withoutNumberTheOffsetOfTheViewDecides()
{
    const HeadScene scene({{HeadModel::withoutNumber, ""}, {HeadModel::withoutNumber, "Price"}});
    scene.host->pseudoColumns = 1;
    QCOMPARE(ZrHeaderColumns::logicalColumn(*scene.head, 0), -1);
    QCOMPARE(ZrHeaderColumns::logicalColumn(*scene.head, 1), 0);
}

void tst_ZrHeaderColumns::withoutNumberAndViewThereIsNone()
{
    const HeadScene scene({{HeadModel::withoutNumber, "Price"}}, false);
    QCOMPARE(ZrHeaderColumns::logicalColumn(*scene.head, 0), ZrHeaderColumns::none);
    QCOMPARE(ZrHeaderColumns::logicalColumn(*scene.head, -1), ZrHeaderColumns::none);
    QCOMPARE(ZrHeaderColumns::logicalColumn(*scene.head, 1), ZrHeaderColumns::none);
    const ZrHeaderView empty(Qt::Horizontal);
    QCOMPARE(ZrHeaderColumns::logicalColumn(empty, 0), ZrHeaderColumns::none);
    QCOMPARE(ZrHeaderColumns::groupId(empty, 0), QString());
}

void tst_ZrHeaderColumns::groupsFollowTheVisualOrder()
{
    const HeadScene scene(HeadScene::groups("AB."));
    scene.head->moveSection(0, 1);
    QCOMPARE(ZrHeaderColumns::groupIdAtVisual(*scene.head, 0), QString("B"));
    QCOMPARE(ZrHeaderColumns::groupIdAtVisual(*scene.head, 1), QString("A"));
    QCOMPARE(ZrHeaderColumns::groupIdAtVisual(*scene.head, 2), QString());
    QCOMPARE(ZrHeaderColumns::groupIdAtVisual(*scene.head, 3), QString());
    QCOMPARE(ZrHeaderColumns::groupIdAtVisual(*scene.head, -1), QString());
}

ZR_TEST_MAIN(tst_ZrHeaderColumns)
#include "tst_zrheadercolumns.moc"
