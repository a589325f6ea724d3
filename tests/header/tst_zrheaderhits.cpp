#include "HeadScene.h"
#include "ZrHeaderHits.h"
#include "ZrHeaderView_p.h"
#include "ZrTestMain.h"

class tst_ZrHeaderHits : public QObject
{
    Q_OBJECT
private slots:
    void aPartCanBeHitOnceItWasPainted();
    void theButtonIsHitInItsFullHeight();
    void aPointOutsideHitsNothing();
    void aScrolledHeadIsHitWhereItShows();
    void headsThatShareTheirStateAreHitWhereEachShows();
};

void tst_ZrHeaderHits::aPartCanBeHitOnceItWasPainted()
{
    HeadScene scene(HeadScene::plain(3));
    ZrHeaderViewPrivate *const shared = scene.head->getPrivate();
    scene.head->setViewFilterable(1, true);
    scene.head->setHeadTip(2, "help");
    const QPoint button = scene.at(1, 90);
    const QPoint tip = scene.at(2, 90, 20);
    QVERIFY(!ZrHeaderHits(*scene.head, *shared, button).isFilterButton());
    QVERIFY(!ZrHeaderHits(*scene.head, *shared, tip).isTip());
    scene.shot();
    QVERIFY(ZrHeaderHits(*scene.head, *shared, button).isFilterButton());
    QVERIFY(!ZrHeaderHits(*scene.head, *shared, button).isTip());
    QVERIFY(ZrHeaderHits(*scene.head, *shared, tip).isTip());
    QVERIFY(!ZrHeaderHits(*scene.head, *shared, tip).isFilterButton());
    // The setter forgets the place, even to the same value.
    scene.head->setViewFilterable(1, true);
    QVERIFY(!ZrHeaderHits(*scene.head, *shared, button).isFilterButton());
}

void tst_ZrHeaderHits::theButtonIsHitInItsFullHeight()
{
    HeadScene scene(HeadScene::groups("A.."));
    ZrHeaderViewPrivate *const shared = scene.head->getPrivate();
    scene.head->setViewFilterable(true);
    scene.shot();
    const auto hit = [&](int section, int x, int y) {
        return ZrHeaderHits(*scene.head, *shared, scene.at(section, x, y)).isFilterButton();
    };
    QVERIFY(hit(1, 83, 0) && hit(1, 83, 39) && hit(1, 98, 20));
    QVERIFY(!hit(1, 82, 20) && !hit(1, 99, 20));
    // A grouped section's button stands in its bottom band.
    QVERIFY(hit(0, 90, 20) && hit(0, 90, 39) && !hit(0, 90, 19));
}

void tst_ZrHeaderHits::aPointOutsideHitsNothing()
{
    HeadScene scene(HeadScene::plain(2));
    scene.head->setViewFilterable(true);
    scene.shot();
    const ZrHeaderHits hits(*scene.head, *scene.head->getPrivate(), QPoint(240, 10));
    QCOMPARE(hits.section(), -1);
    QVERIFY(!hits.isFilterButton() && !hits.isTip());
    QVERIFY(hits.filterButton().isNull());
}

void tst_ZrHeaderHits::aScrolledHeadIsHitWhereItShows()
{
    HeadScene scene(HeadScene::plain(3));
    scene.head->setViewFilterable(true);
    scene.shot();
    scene.head->setOffset(60); // not painted since
    const ZrHeaderHits hits(*scene.head, *scene.head->getPrivate(), QPoint(130, 10));
    QVERIFY(hits.isFilterButton());
    QCOMPARE(hits.filterButton(), QRect(123, 0, 16, 40));
}

void tst_ZrHeaderHits::headsThatShareTheirStateAreHitWhereEachShows()
{
    HeadScene scene(HeadScene::plain(3));
    auto *const side = new QTableView(scene.view.get());
    auto *const head = new ZrHeaderView(scene.head);
    side->setModel(scene.model);
    side->setHorizontalHeader(head);
    head->setDefaultSectionSize(60);
    head->resizeSection(0, 60);
    side->setColumnHidden(0, true);
    side->resize(200, 100);
    side->show();
    scene.head->setViewFilterable(1, true);
    head->viewport()->grab();
    scene.shot(); // the main head paints last
    const ZrHeaderViewPrivate &shared = *scene.head->getPrivate();
    const int x = head->sectionViewportPosition(1) + head->sectionSize(1) - 10;
    QVERIFY(ZrHeaderHits(*head, shared, QPoint(x, 5)).isFilterButton());
    QVERIFY(ZrHeaderHits(*scene.head, shared, scene.at(1, 90)).isFilterButton());
}

ZR_TEST_MAIN(tst_ZrHeaderHits)
#include "tst_zrheaderhits.moc"
