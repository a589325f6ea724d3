#include "FrameScene.h"
#include "FreezeTableView.h"
#include "PluginKit.h"
#include "zrcore/ZrCore.h"
#include "zrdefine/Constants.h"
#include "ZrHeaderView.h"
#include "ZrHideStyles.h"
#include "ZrPluginBaseWidget_p.h"
#include "ZrPluginViews.h"
#include "ZrRoleKeys.h"
#include "ZrTableView_p.h"
#include "ZrTestMain.h"

#include <memory>

namespace {
const QString pid = QStringLiteral("menu#plugin#_1");
const QString orders = QStringLiteral("Orders");

HeadList heads(int count)
{
    HeadList list;
    for (int column = 0; column < count; ++column)
        list.append({{HEAD_DISPLAYROLE, QStringLiteral("C%1").arg(column)}});
    return list;
}

QList<int> hiddenSections(ZrTableView *view)
{
    QList<int> hidden;
    const QHeaderView *const head = view->getZrTableHorizontalHeader();
    for (int section = 0; section < head->count(); ++section) {
        if (head->isSectionHidden(section))
            hidden.append(section);
    }
    return hidden;
}
} // namespace

/// Tables in a real plugin: what the plugin keeps for them, and how they part.
class TestZrPluginTables : public QObject
{
    Q_OBJECT
private slots:
    void init();
    void cleanup();

    void aTableRegistersWithTheNearestPlugin();
    void aTableWithoutAPluginWorksAlone();
    void aTableThatGoesIsForgotten();
    void aTableCanUnregister();
    void aCaptionBringsTheColumnsBack();
    void anUnknownCaptionChangesNothing();
    void newHeadsTakeTheStyleInForce();
    void aMovedColumnIsToldAfterItWasSaved();
    void tablesOfAPluginDieWithIt();
    void aTableMayOutliveItsPlugin();
    void aTableMayGoIntoAnotherPluginsList();
    void aPluginInAPluginKeepsItsOwnTables();

private:
    ZrTableView *makeTable(QWidget *parent, const QString &caption = QString())
    {
        auto *const view = new ZrTableView(parent);
        HeadList list = heads(4);
        view->setHeadList(list);
        if (!caption.isEmpty())
            view->setTableViewCaption(caption);
        return view;
    }
    QList<ZrViewBase *> views() const { return d->views->list(); }

    FrameScene scene;
    std::unique_ptr<PluginProbe> plugin;
    ZrPluginBaseWidgetPrivate *d = nullptr;
};

void TestZrPluginTables::init()
{
    QVERIFY(scene.startOwn(QString()));
    plugin = std::make_unique<PluginProbe>();
    plugin->giveInstanceId(pid);
    d = plugin->getPrivate();
}

void TestZrPluginTables::cleanup()
{
    plugin.reset();
    scene.host.stop();
}

void TestZrPluginTables::aTableRegistersWithTheNearestPlugin()
{
    auto *const page = new QWidget(plugin.get());
    ZrTableView *const first = makeTable(plugin.get());
    ZrTableView *const second = makeTable(new QWidget(page));
    QCOMPARE(views(), (QList<ZrViewBase *>{first, second}));
}

void TestZrPluginTables::aTableWithoutAPluginWorksAlone()
{
    QTest::ignoreMessage(QtDebugMsg, "ZrTableView::ZrTableView no plugin found \"\"");
    QWidget window;
    ZrTableView *const view = makeTable(&window, orders);
    view->UnregisterPlugin();
    view->setPluginViewColumnVisiableProperity({1});
    QCOMPARE(hiddenSections(view), QList<int>{1});
    QVERIFY(views().isEmpty());
}

void TestZrPluginTables::aTableThatGoesIsForgotten()
{
    const LogCatcher log;
    ZrTableView *const view = makeTable(plugin.get());
    QCOMPARE(views().size(), 1);
    delete view;
    QVERIFY(views().isEmpty());
    QCOMPARE(log.lines(QtDebugMsg)
                 .filter(QStringLiteral("ZrPluginBaseWidgetPrivate::removePluginView table removed"))
                 .size(),
             1);
}

void TestZrPluginTables::aTableCanUnregister()
{
    ZrTableView *const view = makeTable(plugin.get());
    view->UnregisterPlugin();
    QVERIFY(views().isEmpty());
    view->UnregisterPlugin();
    plugin->RegisterTable2Plugin(view);
    QCOMPARE(views(), QList<ZrViewBase *>{view});
}

void TestZrPluginTables::aCaptionBringsTheColumnsBack()
{
    d->setPluginViewColumnVisiableProperity({{orders, {1, 3}}});
    d->setPluginViewHeadIndexOrderPropertity({{orders, {2, 0, 1, 3}}});
    ZrTableView *const view = makeTable(plugin.get());
    view->getPrivate()->viewKey = QStringLiteral("blotter");
    QVERIFY(hiddenSections(view).isEmpty());
    view->setTableViewCaption(orders);
    QCOMPARE(hiddenSections(view), (QList<int>{1, 3}));
    QCOMPARE(view->getHeadLogicIndexList(), (QList<int>{2, 0, 1, 3}));
    QCOMPARE(view->getZrTableHorizontalHeader()->visualIndex(2), 0);
    QCOMPARE(d->getPluginViewHeadIndexOrderPropertity(true).value(orders), (QList<int>{2, 0, 1, 3}));
}

void TestZrPluginTables::anUnknownCaptionChangesNothing()
{
    d->setPluginViewColumnVisiableProperity({{orders, {1}}});
    d->setPluginViewHeadIndexOrderPropertity({{orders, {3, 2, 1, 0}}});
    ZrTableView *const view = makeTable(plugin.get());
    view->setPluginViewColumnVisiableProperity({2});
    const QList<int> order = view->getHeadLogicIndexList();
    view->setTableViewCaption(QStringLiteral("Trades"));
    QCOMPARE(hiddenSections(view), QList<int>{2});
    QCOMPARE(view->getHeadLogicIndexList(), order);
}

void TestZrPluginTables::newHeadsTakeTheStyleInForce()
{
    d->hideStyles->custom[orders][QStringLiteral("Short")] = {0, 2};
    ZrTableView *const view = makeTable(plugin.get(), orders);
    QVERIFY(hiddenSections(view).isEmpty());
    d->hideStyles->current.insert(orders, QStringLiteral("Short"));
    HeadList list = heads(4);
    view->setHeadList(list);
    QCOMPARE(hiddenSections(view), (QList<int>{0, 2}));
    d->hideStyles->custom.clear();
    view->setHeadList(list);
    QVERIFY(hiddenSections(view).isEmpty());
}

void TestZrPluginTables::aMovedColumnIsToldAfterItWasSaved()
{
    ZrTableView *const view = makeTable(plugin.get(), orders);
    view->getPrivate()->viewKey = QStringLiteral("blotter");
    view->setHeadSectionMovable(true);
    HeadList list = heads(4);
    view->setHeadList(list);
    QStringList saved;
    connect(d, &ZrPluginBaseWidgetPrivate::signalPluginViewHeadIndexOrderProperityChanged, this, [&saved] {
        saved.append(ZrCore::instance()
                         ->settings(pid + QStringLiteral("blotter"), Constants::VIEWFIELDORDERLIST, QString(),
                                    QSettings::UserScope)
                         .toString());
    });
    view->getZrTableHorizontalHeader()->moveSection(0, 2);
    QCOMPARE(saved.size(), 1);
    QVERIFY(!saved.constFirst().isEmpty());
    QCOMPARE(view->getHeadLogicIndexList(), (QList<int>{1, 2, 0, 3}));
}

void TestZrPluginTables::tablesOfAPluginDieWithIt()
{
    const QPointer<ZrTableView> view = makeTable(plugin.get(), orders);
    plugin.reset();
    QVERIFY(!view);
}

void TestZrPluginTables::aTableMayOutliveItsPlugin()
{
    QWidget window;
    ZrTableView *const view = makeTable(plugin.get(), orders);
    view->setParent(&window);
    plugin.reset();
    view->setTableViewCaption(QStringLiteral("Trades"));
    HeadList list = heads(3);
    view->setHeadList(list);
    view->UnregisterPlugin();
    QCOMPARE(view->getHeadList().size(), 3);
}

void TestZrPluginTables::aTableMayGoIntoAnotherPluginsList()
{
    PluginProbe other;
    ZrTableView *const view = makeTable(plugin.get(), orders);
    plugin->RegisterAllTableToPlugin(&other);
    other.getPrivate()->setPluginViewColumnVisiableProperity({{orders, {2}}});
    QCOMPARE(hiddenSections(view), QList<int>{2});
    // It parts from its own plugin only, and the other must not keep it.
    delete view;
    QVERIFY(other.getPrivate()->views->list().isEmpty());
    QVERIFY(views().isEmpty());
}

void TestZrPluginTables::aPluginInAPluginKeepsItsOwnTables()
{
    auto *const inner = new PluginProbe(plugin.get());
    ZrTableView *const view = makeTable(inner);
    QVERIFY(views().isEmpty());
    QCOMPARE(inner->getPrivate()->views->list(), QList<ZrViewBase *>{view});
    delete inner;
}

ZR_TEST_MAIN(TestZrPluginTables)
#include "tst_zrplugintables.moc"
