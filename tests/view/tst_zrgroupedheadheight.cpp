#include "ZrGroupedHeadHeight.h"
#include "ZrTestMain.h"
#include "ZrViewTestKit.h"

class TestZrGroupedHeadHeight : public QObject
{
    Q_OBJECT

    static HeadList grouped()
    {
        return kit::groupedHeads({QStringLiteral("a"), QStringLiteral("a"), QString(), QString()});
    }

private slots:
    void groupedHeadGetsTwoBands()
    {
        ZrTableView view;
        HeadList plain = kit::heads(4);
        view.setHeadList(plain);
        HeadList heads = grouped();
        view.resize(400, 200);
        kit::show(&view);
        const int bandPx = view.getZrTableHorizontalHeader()->height();
        view.setHeadList(heads);
        QVERIFY(view.getPrivate()->groupedHead);
        QVERIFY(view.getPrivate()->headHeightTimer != -1);
        QTRY_VERIFY(view.getPrivate()->headHeightDoubled);
        QCOMPARE(view.getPrivate()->headHeightTimer, -1);
        QVERIFY(bandPx > 0);
        QCOMPARE(view.getZrTableHorizontalHeader()->minimumHeight(), 2 * bandPx);
        QCOMPARE(view.getZrTableHorizontalHeader()->height(), 2 * bandPx);
    }

    void aCollapsedHeadIsWaitedFor()
    {
        ZrTableView view;
        view.resize(400, 200);
        QHeaderView *const head = view.getZrTableHorizontalHeader();
        head->setMaximumHeight(0);
        kit::show(&view);
        HeadList heads = grouped();
        view.setHeadList(heads);
        const ZrTableViewPrivate *const d = view.getPrivate();
        QTimerEvent tick(d->headHeightTimer);
        QCoreApplication::sendEvent(view.findChild<ZrGroupedHeadHeight *>(), &tick);
        QVERIFY(!d->headHeightDoubled);
        head->setMaximumHeight(QWIDGETSIZE_MAX);
        QTRY_VERIFY(d->headHeightDoubled);
        QVERIFY(head->height() > 0);
        QCOMPARE(head->height(), head->minimumHeight());
    }

    void secondHeadListDoublesNoMore()
    {
        ZrTableView view;
        HeadList heads = grouped();
        view.setHeadList(heads);
        kit::show(&view);
        QTRY_VERIFY(view.getPrivate()->headHeightDoubled);
        const int heightPx = view.getZrTableHorizontalHeader()->minimumHeight();
        view.setHeadList(heads);
        QCOMPARE(view.getPrivate()->headHeightTimer, -1);
        QCOMPARE(view.getZrTableHorizontalHeader()->minimumHeight(), heightPx);
    }

    void plainHeadKeepsItsHeight()
    {
        ZrTableView view;
        HeadList heads = kit::heads(3);
        view.setHeadList(heads);
        QVERIFY(!view.getPrivate()->groupedHead);
        QCOMPARE(view.getPrivate()->headHeightTimer, -1);
        view.loadSkin(QStringLiteral("QHeaderView { font-size: 9px; }"));
        QCOMPARE(view.getZrTableHorizontalHeader()->minimumHeight(), 0);
    }

    void headAndSidesStayTwoBandsHighThroughASkinChange()
    {
        ZrTableView view;
        HeadList heads = grouped();
        view.setHeadList(heads);
        view.resize(400, 200);
        kit::show(&view);
        QTRY_VERIFY(view.getPrivate()->headHeightDoubled);
        view.setFrozenColumns(1, true, 2);
        for (int time = 0; time < 3; ++time) {
            view.loadSkin(QStringLiteral("QHeaderView { font-size: %1px; }").arg(10 + time));
            const QHeaderView *const head = view.getZrTableHorizontalHeader();
            QVERIFY(head->height() < 120); // doubled once, not once more at each change
            QCOMPARE(head->height(), head->minimumHeight());
            QCOMPARE(view.getTableView()->frozenTable(1)->horizontalHeader()->height(), head->height());
        }
        const int heightPx = view.getZrTableHorizontalHeader()->height();
        view.loadSkin(QVariant());
        QCOMPARE(view.getZrTableHorizontalHeader()->height(), heightPx);
    }
};

ZR_TEST_MAIN(TestZrGroupedHeadHeight)
#include "tst_zrgroupedheadheight.moc"
