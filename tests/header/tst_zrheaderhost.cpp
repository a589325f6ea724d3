#include "HeadScene.h"
#include "ZrTestMain.h"

class tst_ZrHeaderHost : public QObject
{
    Q_OBJECT
private slots:
    void aHeadFindsTheHostOfItsView();
    void aHeadElsewhereHasNone();
};

void tst_ZrHeaderHost::aHeadFindsTheHostOfItsView()
{
    HeadScene scene(HeadScene::plain(2));
    QCOMPARE(ZrHeaderHost::of(scene.head), static_cast<ZrHeaderHost *>(scene.host));
}

void tst_ZrHeaderHost::aHeadElsewhereHasNone()
{
    QVERIFY(!ZrHeaderHost::of(nullptr));
    const ZrHeaderView alone(Qt::Horizontal);
    QVERIFY(!ZrHeaderHost::of(&alone));
    QTableView table;
    table.setHorizontalHeader(new ZrHeaderView(Qt::Horizontal));
    QVERIFY(!ZrHeaderHost::of(table.horizontalHeader()));
    const HeadScene scene(HeadScene::plain(2), false);
    QVERIFY(!ZrHeaderHost::of(scene.head));
}

ZR_TEST_MAIN(tst_ZrHeaderHost)
#include "tst_zrheaderhost.moc"
