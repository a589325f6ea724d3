#include "PluginKit.h"
#include "ZrPluginViews.h"
#include "ZrTestMain.h"

class TestZrPluginViews : public QObject
{
    Q_OBJECT
private slots:
    void aViewRegisteredTwiceIsHeldOnce();
    void aNewViewGetsTheColumnsHiddenUnderItsCaption_data();
    void aNewViewGetsTheColumnsHiddenUnderItsCaption();
    void hiddenColumnsReachTheViewsOfTheirCaption();
    void ordersReachTheViewsOfTheirCaption();
    void shownOrdersComeFromTheViews();
    void viewsWithoutCaptionShareTheEmptyOne();
    void aViewThatDiesSilentlyIsForgotten();
    void aRemovedViewMayDieOnItsOwn();
    void aViewMayEndTheOthers();
    void aViewMayEndThePlugin();
    void aMapOfItsOwnMayBeSetAgain();
};

void TestZrPluginViews::aViewRegisteredTwiceIsHeldOnce()
{
    ZrPluginViews views;
    ViewProbe view;
    views.add(&view);
    views.add(&view);
    views.add(nullptr);
    QCOMPARE(views.list(), QList<ZrViewBase *>{&view});
    QVERIFY(views.contains(&view));
    views.remove(&view);
    views.remove(&view);
    views.remove(nullptr);
    QVERIFY(views.list().isEmpty());
}

void TestZrPluginViews::aNewViewGetsTheColumnsHiddenUnderItsCaption_data()
{
    QTest::addColumn<QString>("caption");
    QTest::addColumn<QList<Columns>>("expected");
    QTest::newRow("columns") << QStringLiteral("Orders") << QList<Columns>{{3, 7}};
    QTest::newRow("empty list") << QStringLiteral("Trades") << QList<Columns>();
    QTest::newRow("no list") << QStringLiteral("Funds") << QList<Columns>();
}

void TestZrPluginViews::aNewViewGetsTheColumnsHiddenUnderItsCaption()
{
    QFETCH(QString, caption);
    ZrPluginViews views;
    views.setHiddenColumns({{QStringLiteral("Orders"), {3, 7}}, {QStringLiteral("Trades"), {}}});
    ViewProbe view(caption);
    views.add(&view);
    views.add(&view);
    QTEST(view.hidden, "expected");
}

void TestZrPluginViews::hiddenColumnsReachTheViewsOfTheirCaption()
{
    ZrPluginViews views;
    ViewProbe orders(QStringLiteral("Orders")), same(QStringLiteral("Orders")),
        trades(QStringLiteral("Trades"));
    for (ViewProbe *const view : {&orders, &same, &trades})
        views.add(view);
    const ColumnMap columns{{QStringLiteral("Orders"), {1}}, {QStringLiteral("Unknown"), {2}}};
    views.setHiddenColumns(columns);
    QCOMPARE(views.hiddenColumns(), columns);
    QCOMPARE(orders.hidden, QList<Columns>{{1}});
    QCOMPARE(same.hidden, QList<Columns>{{1}});
    QVERIFY(trades.hidden.isEmpty());
    views.setHiddenColumns({{QStringLiteral("Orders"), {}}});
    QCOMPARE(orders.hidden.size(), 2);
    QVERIFY(orders.hidden.constLast().isEmpty());
}

void TestZrPluginViews::ordersReachTheViewsOfTheirCaption()
{
    ZrPluginViews views;
    ViewProbe orders(QStringLiteral("Orders")), trades(QStringLiteral("Trades"));
    views.add(&orders);
    views.add(&trades);
    const ColumnMap given{{QStringLiteral("Orders"), {2, 0, 1}}};
    views.setOrders(given);
    QCOMPARE(views.orders(), given);
    QCOMPARE(orders.orders, QList<Columns>{(Columns{2, 0, 1})});
    QVERIFY(trades.orders.isEmpty());
}

void TestZrPluginViews::shownOrdersComeFromTheViews()
{
    ZrPluginViews views;
    ViewProbe orders(QStringLiteral("Orders"));
    orders.shownOrder = {1, 0};
    views.add(&orders);
    views.setOrders({{QStringLiteral("Orders"), {0, 1}}, {QStringLiteral("Trades"), {5}}});
    QCOMPARE(views.shownOrders(),
             (ColumnMap{{QStringLiteral("Orders"), {1, 0}}, {QStringLiteral("Trades"), {5}}}));
    QCOMPARE(views.orders().value(QStringLiteral("Orders")), (Columns{0, 1}));
}

void TestZrPluginViews::viewsWithoutCaptionShareTheEmptyOne()
{
    ZrPluginViews views;
    ViewProbe first, second;
    views.add(&first);
    views.add(&second);
    views.setHiddenColumns({{QString(), {4}}});
    QCOMPARE(first.hidden, QList<Columns>{{4}});
    QCOMPARE(second.hidden, QList<Columns>{{4}});
}

void TestZrPluginViews::aViewThatDiesSilentlyIsForgotten()
{
    ZrPluginViews views;
    {
        ViewProbe view;
        views.add(&view);
    }
    QVERIFY(views.list().isEmpty());
    views.setHiddenColumns({{QString(), {1}}});
}

void TestZrPluginViews::aRemovedViewMayDieOnItsOwn()
{
    ZrPluginViews views;
    auto *const view = new ViewProbe;
    views.add(view);
    views.remove(view);
    views.add(view);
    views.remove(view);
    delete view;
    QVERIFY(views.list().isEmpty());
}

void TestZrPluginViews::aViewMayEndTheOthers()
{
    ZrPluginViews views;
    ViewProbe first;
    auto *second = new ViewProbe;
    views.add(&first);
    views.add(second);
    first.hook = [&second] {
        delete second;
        second = nullptr;
    };
    views.setHiddenColumns({{QString(), {1}}});
    QCOMPARE(views.list(), QList<ZrViewBase *>{&first});
}

void TestZrPluginViews::aViewMayEndThePlugin()
{
    auto views = std::make_unique<ZrPluginViews>();
    ViewProbe first, second;
    views->add(&first);
    views->add(&second);
    first.hook = [&views] { views.reset(); };
    views->setOrders({{QString(), {1}}});
    QCOMPARE(first.orders.size(), 1);
    QVERIFY(second.orders.isEmpty());
}

void TestZrPluginViews::aMapOfItsOwnMayBeSetAgain()
{
    ZrPluginViews views;
    ViewProbe view;
    views.add(&view);
    views.setHiddenColumns({{QString(), {1}}});
    views.setHiddenColumns(views.hiddenColumns());
    QCOMPARE(view.hidden, (QList<Columns>{{1}, {1}}));
}

ZR_TEST_MAIN(TestZrPluginViews)
#include "tst_zrpluginviews.moc"
