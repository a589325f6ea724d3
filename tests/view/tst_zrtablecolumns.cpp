#include "zrcore/ZrCore.h"
#include "zrdefine/Constants.h"
#include "ZrReferenceHost.h"
#include "ZrTestMain.h"
#include "ZrViewTestKit.h"

#include <QtCore/QTemporaryDir>

namespace {

const QString viewKey = QStringLiteral("blotter");

QList<int> shownSections(const QHeaderView *head)
{
    QList<int> sections;
    for (int visual = 0; visual < head->count(); ++visual)
        sections.append(head->logicalIndex(visual));
    return sections;
}

QString stored(const kit::Plugin &plugin)
{
    return ZrCore::instance()
        ->settings(plugin.instanceId + viewKey, Constants::VIEWFIELDORDERLIST, QString(),
                   QSettings::UserScope)
        .toString();
}

void store(const kit::Plugin &plugin, const QString &text)
{
    ZrCore::instance()->saveSetting(plugin.instanceId + viewKey, text, Constants::VIEWFIELDORDERLIST,
                                    QString(), QSettings::UserScope);
}

/// A subclass hears of each column that is shown or hidden.
class Listening : public ZrTableView
{
public:
    using ZrTableView::ZrTableView;
    QList<QPair<int, bool>> told;

protected:
    void columnShown(int viewColumn, bool shown) override { told.append({viewColumn, shown}); }
};

} // namespace

class TestZrTableColumns : public QObject
{
    Q_OBJECT

    std::unique_ptr<ZrReferenceHost> m_host;
    std::unique_ptr<QTemporaryDir> m_folder;

private slots:
    void init()
    {
        m_folder = std::make_unique<QTemporaryDir>();
        m_host = std::make_unique<ZrReferenceHost>();
        ZrReferenceHost::Options options;
        options.configFolder = m_folder->path();
        QVERIFY2(m_host->start(options), qPrintable(m_host->errorText()));
    }

    void cleanup()
    {
        m_host.reset();
        m_folder.reset();
    }

    void headsAreCompletedInPlaceInListOrder()
    {
        ZrTableView view;
        HeadList heads = kit::heads(3);
        view.setHeadList(heads);
        for (int column = 0; column < 3; ++column) {
            QCOMPARE(heads.at(column).value(HEAD_COLUMNINDEX), QVariant(column));
            QCOMPARE(heads.at(column).value(HEAD_SHOWROLE), QVariant(true));
        }
        QCOMPARE(view.getHeadList(), heads);
    }

    void whatAHeadSaysItselfStays()
    {
        ZrTableView view;
        HeadList heads{{{HEAD_COLUMNINDEX, 7}, {HEAD_SHOWROLE, false}}, {}};
        view.setHeadList(heads);
        QCOMPARE(heads.at(0).value(HEAD_COLUMNINDEX).toInt(), 7);
        QCOMPARE(heads.at(0).value(HEAD_SHOWROLE).toBool(), false);
        QCOMPARE(heads.at(1).value(HEAD_COLUMNINDEX).toInt(), 1);
    }

    void headsThatSayTheyAreHiddenAreHiddenInAllParts()
    {
        ZrTableView view;
        HeadList heads = kit::heads(4);
        heads[1].insert(HEAD_SHOWROLE, false);
        view.setHeadList(heads);
        view.setSummaryLineEnable(true);
        view.setFrozenColumns(1, true, 2);
        const QList<const QTableView *> parts{view.getTableView(), view.getTableView()->frozenTable(1),
                                              view.getPrivate()->summaryTable};
        for (const QTableView *const part : parts)
            QVERIFY(part->isColumnHidden(1));
        view.setColumnShow(2, false);
        HeadList shown = kit::heads(4);
        view.setHeadList(shown);
        for (const QTableView *const part : parts)
            QVERIFY(!part->isColumnHidden(1));
        QVERIFY(!view.getTableView()->isColumnHidden(2));
    }

    void columnIsHiddenByItsPlaceInTheHeadList()
    {
        Listening view;
        view.setCheckBoxShow(true);
        HeadList heads = kit::heads(3);
        view.setHeadList(heads);
        view.setColumnShow(1, false);
        QVERIFY(view.getTableView()->isColumnHidden(2));
        QVERIFY(!view.getTableView()->isColumnHidden(1));
        QCOMPARE(view.getHeadList().at(1).value(HEAD_SHOWROLE).toBool(), false);
        QCOMPARE(view.told, (QList<QPair<int, bool>>{{2, false}}));
        view.setColumnShow(3, false);
        view.setColumnShow(-1, false);
        QCOMPARE(view.told.size(), 1);
    }

    void pluginPropertyHidesExactlyItsColumns()
    {
        ZrTableView view;
        HeadList heads = kit::heads(4);
        view.setHeadList(heads);
        view.setPluginViewColumnVisiableProperity({1, 2});
        QVERIFY(view.getTableView()->isColumnHidden(1));
        QCOMPARE(view.getVisibleHeadData().size(), 2);
        view.setPluginViewColumnVisiableProperity({3});
        QVERIFY(!view.getTableView()->isColumnHidden(1));
        QVERIFY(view.getTableView()->isColumnHidden(3));
        QCOMPARE(view.getVisibleHeadData().size(), 3);
        QCOMPARE(view.getHeadList().size(), 4);
    }

    void pluginPropertyBeforeTheHeadsIsApplied()
    {
        ZrTableView view;
        view.setPluginViewColumnVisiableProperity({1});
        HeadList heads = kit::heads(3);
        view.setHeadList(heads);
        QVERIFY(view.getTableView()->isColumnHidden(1));
    }

    void hiddenColumnsStayHiddenWhenACheckBoxComesAndGoes()
    {
        ZrTableView view;
        HeadList heads = kit::heads(3);
        view.setHeadList(heads);
        view.setColumnShow(1, false);
        view.setCheckBoxShow(true);
        QVERIFY(view.getTableView()->isColumnHidden(2));
        QVERIFY(!view.getTableView()->isColumnHidden(1));
        view.setCheckBoxShow(false);
        QVERIFY(view.getTableView()->isColumnHidden(1));
        QVERIFY(!view.getTableView()->isColumnHidden(2));
    }

    void widthsSurviveADefaultWidthAndACheckBox()
    {
        ZrTableView view;
        view.setColumnMinimumWidth(10); // the style's own minimum is wider than a check box column
        HeadList heads = kit::heads(4);
        view.setHeadList(heads);
        view.setColumnWidth(1, 133);
        view.setColumnDefaultWidth(71);
        QCOMPARE(view.getTableView()->columnWidth(0), 71);
        QCOMPARE(view.getTableView()->columnWidth(1), 133);
        view.setCheckBoxShow(true);
        QCOMPARE(view.getTableView()->columnWidth(0), 30);
        QCOMPARE(view.getTableView()->columnWidth(1), 71);
        QCOMPARE(view.getTableView()->columnWidth(2), 133);
        HeadList again = kit::heads(4);
        view.setHeadList(again);
        QCOMPARE(view.getTableView()->columnWidth(2), 133);
    }

    void minimumWidthIsKept()
    {
        ZrTableView view;
        view.setColumnMinimumWidth(55);
        HeadList heads = kit::heads(3);
        view.setHeadList(heads);
        view.getTableView()->setColumnWidth(1, 10);
        QCOMPARE(view.getTableView()->columnWidth(1), 55);
    }

    // --- Order ---

    void withAnEmptyViewKeyTheOrderIsNeitherReadNorKept()
    {
        kit::Plugin plugin;
        ZrTableView view(&plugin);
        HeadList heads = kit::heads(4);
        view.setHeadList(heads);
        view.setHeadSectionMovable(true);
        QCOMPARE(view.getHeadLogicIndexList(), QList<int>());
        view.setPluginViewHeadLogicIndexProperity({3, 2, 1, 0});
        QCOMPARE(shownSections(view.getZrTableHorizontalHeader()), (QList<int>{0, 1, 2, 3}));
        QCOMPARE(view.getPrivate()->headOrderProperty, (QList<int>{3, 2, 1, 0}));
        view.getZrTableHorizontalHeader()->moveSection(0, 2);
        QCOMPARE(shownSections(view.getZrTableHorizontalHeader()), (QList<int>{1, 2, 0, 3}));
        QVERIFY(view.getPrivate()->visualOrder.isEmpty());
        QCOMPARE(plugin.orderChanges, 0);
    }

    void orderFallsBackToTheList_data()
    {
        QTest::addColumn<QString>("setting");
        QTest::addColumn<QList<int>>("property");
        QTest::addColumn<QList<int>>("expected");
        QTest::newRow("nothing stored") << QString() << QList<int>() << QList<int>{0, 1, 2};
        QTest::newRow("setting") << QStringLiteral("2,0,1") << QList<int>() << QList<int>{2, 0, 1};
        QTest::newRow("setting before property")
            << QStringLiteral("2,0,1") << QList<int>{1, 0, 2} << QList<int>{2, 0, 1};
        QTest::newRow("property alone") << QString() << QList<int>{1, 0, 2} << QList<int>{1, 0, 2};
        QTest::newRow("setting names a column that is gone")
            << QStringLiteral("2,0,9") << QList<int>{1, 0, 2} << QList<int>{0, 1, 2};
        QTest::newRow("setting with too few") << QStringLiteral("2,0") << QList<int>() << QList<int>{0, 1, 2};
    }

    void orderFallsBackToTheList()
    {
        QFETCH(QString, setting);
        QFETCH(QList<int>, property);
        QFETCH(QList<int>, expected);
        kit::Plugin plugin;
        store(plugin, setting);
        ZrTableView view(&plugin);
        view.getPrivate()->viewKey = viewKey;
        view.setPluginViewHeadLogicIndexProperity(property);
        HeadList heads = kit::heads(3);
        view.setHeadList(heads);
        QCOMPARE(view.getHeadLogicIndexList(), expected);
        QCOMPARE(shownSections(view.getZrTableHorizontalHeader()), expected);
    }

    void storedOrderStandsBehindThePseudoColumnsAndAfterASecondHeadList()
    {
        kit::Plugin plugin;
        store(plugin, QStringLiteral("2,0,1"));
        ZrTableView view(&plugin);
        view.getPrivate()->viewKey = viewKey;
        view.setSerialNumberColumnPropety(ZrViewModel::SerialNumAscending);
        view.setCheckBoxShow(true);
        for (int time = 0; time < 2; ++time) {
            HeadList heads = kit::heads(3);
            view.setHeadList(heads);
            QCOMPARE(shownSections(view.getZrTableHorizontalHeader()), (QList<int>{0, 1, 4, 2, 3}));
        }
    }

    void movedColumnIsStoredAndTold()
    {
        kit::Plugin plugin;
        ZrTableView view(&plugin);
        view.getPrivate()->viewKey = viewKey;
        view.setCheckBoxShow(true);
        HeadList heads = kit::heads(3);
        view.setHeadList(heads);
        view.setHeadSectionMovable(true);
        QVERIFY(view.headSectionMovable());
        QTest::ignoreMessage(QtDebugMsg, "slotHeadSectionMoved (1, 2, 0)");
        view.getZrTableHorizontalHeader()->moveSection(1, 3);
        QCOMPARE(stored(plugin), QStringLiteral("1,2,0"));
        QCOMPARE(view.getHeadLogicIndexList(), (QList<int>{1, 2, 0}));
        QCOMPARE(plugin.orderChanges, 1);

        ZrTableView other(&plugin);
        other.getPrivate()->viewKey = viewKey;
        HeadList same = kit::heads(3);
        other.setHeadList(same);
        QCOMPARE(other.getHeadLogicIndexList(), (QList<int>{1, 2, 0}));
    }

    void ourOwnMovesAreNoWishOfTheUser()
    {
        kit::Plugin plugin;
        ZrTableView view(&plugin);
        view.getPrivate()->viewKey = viewKey;
        HeadList heads = kit::heads(3);
        view.setHeadList(heads);
        view.setHeadSectionMovable(true);
        QTest::ignoreMessage(QtDebugMsg, "setViewHeadData (2, 1, 0) (0, 1, 2) (2, 1, 0)");
        view.setPluginViewHeadLogicIndexProperity({2, 1, 0});
        QCOMPARE(view.getHeadLogicIndexList(), (QList<int>{2, 1, 0}));
        QCOMPARE(plugin.orderChanges, 0);
        QCOMPARE(stored(plugin), QString());
    }

    void moveThatDoesNotFitTheOrderIsWarnedOf()
    {
        kit::Plugin plugin;
        ZrTableView view(&plugin);
        view.getPrivate()->viewKey = viewKey;
        HeadList heads = kit::heads(3);
        view.setHeadList(heads);
        view.setHeadSectionMovable(true);
        QTest::ignoreMessage(QtWarningMsg, "section index is not match (0, 1, 2) 2 0 1");
        view.getPrivate()->slotHeadSectionMoved(2, 0, 1);
        QTest::ignoreMessage(QtWarningMsg, "section index is not match (0, 1, 2) 0 0 9");
        view.getPrivate()->slotHeadSectionMoved(0, 0, 9);
        QCOMPARE(view.getHeadLogicIndexList(), (QList<int>{0, 1, 2}));
        QCOMPARE(stored(plugin), QString());
    }

    void columnsThatCannotBeMovedStoreNothing()
    {
        kit::Plugin plugin;
        ZrTableView view(&plugin);
        view.getPrivate()->viewKey = viewKey;
        HeadList heads = kit::heads(3);
        view.setHeadList(heads);
        view.setHeadSectionMovable(true);
        view.setHeadSectionMovable(false);
        QVERIFY(!view.headSectionMovable());
        view.getZrTableHorizontalHeader()->moveSection(0, 2);
        QCOMPARE(plugin.orderChanges, 0);
    }

    void columnsStayMovableWithAnotherModel()
    {
        kit::Plugin plugin;
        ZrTableView view(&plugin);
        view.getPrivate()->viewKey = viewKey;
        view.setHeadSectionMovable(true);
        view.setZrTableModel(new ZrTableModel);
        HeadList heads = kit::heads(3);
        view.setHeadList(heads);
        view.setSummaryLineEnable(true);
        QSignalSpy resized(view.getSummaryHeadView(), &QHeaderView::sectionResized);
        view.getZrTableHorizontalHeader()->moveSection(0, 2);
        QCOMPARE(stored(plugin), QStringLiteral("1,2,0"));
        QCOMPARE(plugin.orderChanges, 1);
        view.getZrTableHorizontalHeader()->resizeSection(1, 133);
        QCOMPARE(resized.count(), 1); // told once, not once by each model
    }

    void columnMovedIsMovedInTheSummaryToo()
    {
        ZrTableView view;
        HeadList heads = kit::heads(3);
        view.setHeadList(heads);
        view.setHeadSectionMovable(true);
        view.setSummaryLineEnable(true);
        view.getZrTableHorizontalHeader()->moveSection(0, 2);
        QCOMPARE(shownSections(view.getSummaryHeadView()), (QList<int>{1, 2, 0}));
    }

    // --- Caption and plugin ---

    void captionTakesThePluginsLists()
    {
        kit::Plugin plugin;
        plugin.visible.insert(QStringLiteral("Orders"), {1});
        plugin.order.insert(QStringLiteral("Orders"), {2, 1, 0});
        ZrTableView view(&plugin);
        view.getPrivate()->viewKey = viewKey;
        HeadList heads = kit::heads(3);
        view.setHeadList(heads);
        view.setTableViewCaption(QStringLiteral("Orders"));
        QCOMPARE(view.getTableViewCaption(), QStringLiteral("Orders"));
        QCOMPARE(view.GetViewCaption(), QStringLiteral("Orders"));
        QVERIFY(view.getTableView()->isColumnHidden(1));
        QCOMPARE(view.getHeadLogicIndexList(), (QList<int>{2, 1, 0}));
    }

    void captionThatThePluginDoesNotKnowChangesNothing()
    {
        kit::Plugin plugin;
        plugin.visible.insert(QStringLiteral("Orders"), {1});
        ZrTableView view(&plugin);
        HeadList heads = kit::heads(3);
        view.setHeadList(heads);
        view.setColumnShow(2, false);
        view.setTableViewCaption(QStringLiteral("Trades"));
        QVERIFY(!view.getTableView()->isColumnHidden(1));
        QVERIFY(view.getTableView()->isColumnHidden(2));
        QVERIFY(view.getPrivate()->headOrderProperty.isEmpty());
    }

    void captionNamesThePartsForAssistiveTools()
    {
        ZrTableView view;
        view.setSummaryLineEnable(true);
        view.setTableViewCaption(QStringLiteral("Orders"));
        QCOMPARE(view.getTableView()->accessibleName(), QStringLiteral("Orders"));
        QCOMPARE(view.getZrTableHorizontalHeader()->accessibleName(), QStringLiteral("Orders"));
        QVERIFY(view.getPrivate()->summaryTable->accessibleName().contains(QStringLiteral("Orders")));
    }

    void headListAsksThePluginForItsHideStyle()
    {
        kit::Plugin plugin;
        ZrTableView view(&plugin);
        HeadList heads = kit::heads(3);
        view.setHeadList(heads);
        QCOMPARE(plugin.hideStyleResets, QList<ZrViewBase *>{&view});
    }

    void replacedHeadTakesOverOrderHiddenColumnsAndWidths()
    {
        kit::Plugin plugin;
        store(plugin, QStringLiteral("2,0,1"));
        ZrTableView view(&plugin);
        view.getPrivate()->viewKey = viewKey;
        HeadList heads = kit::heads(3);
        view.setHeadList(heads);
        view.setColumnWidth(2, 88);
        view.setColumnShow(1, false);
        view.setHeadSectionMovable(true);
        const QPointer<ZrHeaderView> old = view.getZrTableHorizontalHeader();
        ZrHeaderView *const head = new ZrHeaderView(Qt::Horizontal);
        view.setZrTableHorizontalHeader(head);
        QCOMPARE(view.getZrTableHorizontalHeader(), head);
        QCOMPARE(shownSections(head), (QList<int>{2, 0, 1}));
        QVERIFY(view.getTableView()->isColumnHidden(1));
        QCOMPARE(head->sectionSize(2), 88);
        QCOMPARE(plugin.orderChanges, 0);
        head->moveSection(0, 1);
        QCOMPARE(plugin.orderChanges, 1);
        QTRY_VERIFY(!old);
    }
};

ZR_TEST_MAIN(TestZrTableColumns)
#include "tst_zrtablecolumns.moc"
