#include "ZrDistinctCells.h"
#include "ZrTableFixture.h"
#include "ZrTestMain.h"

namespace {
bool isEven(const QVariant &value, const QList<QVariantMap> &conditions)
{
    return !conditions.isEmpty() && value.toInt() % 2 == 0;
}

/// Notes what a subclass sees when it is told of a sort.
class ZrSortWitness : public ZrTableModel
{
public:
    using ZrTableModel::ZrTableModel;
    void SortIndicatorChanged(int section, Qt::SortOrder order) override
    {
        sections.append(section);
        orders.append(order);
        firstKey = makeRecordKey(getModelData().constFirst());
    }

    QList<int> sections;
    QList<Qt::SortOrder> orders;
    QString firstKey;
};
} // namespace

/// Sort, view-side filter and the setting of cells.
class TestTableArrange : public QObject
{
    Q_OBJECT

private:
    static void fill(ZrTableFixture &t)
    {
        t.model->addRecordDataList({t.row("a", 3), t.row("b", 1), t.row("c", 4), t.row("d", 2)});
        t.clearSpies();
    }

private slots:
    void aSortMovesTheRowsAndKeepsTheCurrentOne()
    {
        ZrTableFixture t;
        fill(t);
        t.view.setCurrentIndex(t.model->index(0, 0));
        t.model->slotSortIndicatorChanged(2, Qt::AscendingOrder);
        QCOMPARE(t.modelKeys(), QStringList({"b", "d", "a", "c"}));
        QCOMPARE(t.reset.size(), 1);
        QCOMPARE(t.view.currentIndex(), t.model->index(2, 0));
        QCOMPARE(t.model->getRowByKey("c"), 3);
        QCOMPARE(t.fields->sortColumn, 2);
        t.model->addRecordData(t.row("e", 0));
        QCOMPARE(t.modelKeys().last(), QString("e"));
    }

    void aSubclassIsToldOnceTheRowsAreSorted()
    {
        QTableView view;
        ZrSortWitness model(&view);
        model.setKeyColumn({0});
        model.setHeaderData(ZrTableFixture::heads());
        model.addRecordDataList({ZrTableFixture::row("a", 3), ZrTableFixture::row("b", 1)});
        model.slotSortIndicatorChanged(2, Qt::AscendingOrder);
        QCOMPARE(model.sections, QList<int>{2});
        QCOMPARE(model.orders, QList<Qt::SortOrder>{Qt::AscendingOrder});
        QCOMPARE(model.firstKey, QString("b"));
    }

    void whatIsNotSortableStays()
    {
        ZrTableFixture t;
        fill(t);
        t.model->slotSortIndicatorChanged(9, Qt::AscendingOrder);
        t.model->slotSortIndicatorChanged(-1, Qt::AscendingOrder);
        t.fields->viewSortable = false;
        t.model->slotSortIndicatorChanged(2, Qt::AscendingOrder);
        QCOMPARE(t.modelKeys(), QStringList({"a", "b", "c", "d"}));
        t.fields->perColumnSortable.insert(2, true);
        t.model->slotSortIndicatorChanged(2, Qt::DescendingOrder);
        QCOMPARE(t.modelKeys(), QStringList({"c", "a", "d", "b"}));
    }

    void filterModeWithoutAFilterShowsAllRows()
    {
        ZrTableFixture t;
        fill(t);
        t.fields->setFilterable(true);
        t.fields->setFilterable(true);
        QCOMPARE(t.shownKeys(), QStringList({"a", "b", "c", "d"}));
        QCOMPARE(t.reset.size(), 0);
    }

    void rowsWithAnEmptyKeyNeverAppear()
    {
        ZrTableFixture t;
        t.model->setKeyColumn({});
        t.model->addRecordDataList(t.rows({"", "a"}));
        t.model->setKeyColumn({0});
        t.fields->setFilterable(true);
        t.model->resetViewCurrentFilterList({});
        QCOMPARE(t.shownKeys(), QStringList("a"));
    }

    void aFilterShowsWhatMatchesAndSortsWithIt()
    {
        ZrTableFixture t;
        fill(t);
        t.view.setCurrentIndex(t.model->index(2, 0));
        t.fields->setFilterable(true);
        t.fields->setColumnFilter(2, t.atLeast(3));
        QCOMPARE(t.shownKeys(), QStringList({"a", "c"}));
        QCOMPARE(t.view.currentIndex().row(), 1); // the row, not the number
        QCOMPARE(t.model->getRowByKey("b"), -1);
        QCOMPARE(t.model->getViewCurrentDisplayData().size(), 2);
        t.model->slotSortIndicatorChanged(2, Qt::DescendingOrder);
        QCOMPARE(t.shownKeys(), QStringList({"c", "a"}));
        QCOMPARE(t.model->getViewCurrentFilterList().size(), 1);
        t.fields->setColumnFilter(2, {});
        QCOMPARE(t.shownKeys().size(), 4);
        t.fields->setFilterable(false);
        QCOMPARE(t.model->rowCount(), 4);
    }

    void updatesEnterAndLeaveTheFilter()
    {
        ZrTableFixture t;
        fill(t);
        t.fields->setFilterable(true);
        t.fields->setColumnFilter(2, t.atLeast(3));
        t.clearSpies();
        t.model->updataRecordData(t.row("b", 9)); // between a and c
        QCOMPARE(t.shownKeys(), QStringList({"a", "b", "c"}));
        QCOMPARE(t.range(t.inserted), ZrRange(1, 1));
        t.model->updataRecordData(t.row("d", 9)); // behind all
        QCOMPARE(t.range(t.inserted, 1), ZrRange(3, 3));
        t.model->updataRecordData(t.row("a", 0));
        QCOMPARE(t.range(t.removed), ZrRange(0, 0));
        t.model->updataRecordData(t.row("a", 1)); // still hidden
        QCOMPARE(t.changed.size(), 0);
        t.model->updataRecordData(t.row("c", 8));
        QCOMPARE(t.changed.at(0).at(0).toModelIndex().row(), 1);
        t.model->updataRecordDatas({t.row("c", 0), t.row("a", 5)});
        QCOMPARE(t.shownKeys(), QStringList({"a", "b", "d"}));
        QCOMPARE(t.fields->invariantError(), QString());
    }

    void addsTellModelPositionsInFilterMode()
    {
        ZrTableFixture t;
        fill(t);
        t.fields->setFilterable(true);
        t.fields->setColumnFilter(2, t.atLeast(3));
        t.clearSpies();
        t.model->addRecordData(t.row("e", 0));
        QCOMPARE(t.inserted.size(), 0);
        t.model->addRecordData(t.row("f", 7));
        QCOMPARE(t.range(t.inserted), ZrRange(5, 5));
        QCOMPARE(t.model->insertRecordData(0, t.row("g", 0)), 1);
        QCOMPARE(t.model->insertRecordDataList(0, {t.row("h", 7), t.row("i", 0)}), 2);
        QCOMPARE(t.range(t.inserted, 1), ZrRange(0, 0));
        QCOMPARE(t.shownKeys(), QStringList({"h", "a", "c", "f"}));
        QCOMPARE(t.view.verticalHeader()->count(), 4);
    }

    void deletingWhatIsHiddenTellsMinusOneAndHarmsNoIndex()
    {
        ZrTableFixture t;
        fill(t);
        t.fields->setFilterable(true);
        t.fields->setColumnFilter(2, t.atLeast(3));
        const QPersistentModelIndex first(t.model->index(0, 0));
        t.clearSpies();
        QCOMPARE(t.model->deleteRecordData(t.row("b")), 1);
        QCOMPARE(t.range(t.removed), ZrRange(-1, -1));
        QCOMPARE(first.row(), 0);
        QCOMPARE(t.shownKeys(), QStringList({"a", "c"}));
        QCOMPARE(t.view.verticalHeader()->count(), 2);
    }

    void onlyTheLastOfTheHiddenOnesIsDeleted()
    {
        ZrTableFixture t;
        fill(t);
        t.fields->setFilterable(true);
        t.fields->setColumnFilter(2, t.atLeast(3));
        QCOMPARE(t.model->deleteRecordDataList({t.row("b"), t.row("d")}), 2);
        QCOMPARE(t.modelKeys(), QStringList({"a", "b", "c"}));
    }

    // Else each later update of a filtered table would scan for its row.
    void aDeletedListOfShownOnesLeavesTheDisplayOrdered()
    {
        ZrTableFixture t;
        fill(t);
        t.model->setCheckBoxShow(true);
        t.fields->setFilterable(true);
        t.fields->setColumnFilter(2, t.atLeast(2));
        QCOMPARE(t.shownKeys(), QStringList({"a", "c", "d"}));
        const QPersistentModelIndex last(t.model->index(2, 0));
        QCOMPARE(t.fields->sumRecordNow(), t.model->getSumRecord());
        t.clearSpies();
        QCOMPARE(t.model->deleteRecordDataList({t.row("c"), t.row("unknown"), t.row("a"), t.row("c")}), 3);
        QVERIFY(t.fields->displayKeyList.isOrdered());
        QCOMPARE(t.modelKeys(), QStringList({"b", "d"}));
        QCOMPARE(t.shownKeys(), QStringList{"d"});
        QCOMPARE(t.range(t.removed, 0), ZrRange(0, 0));
        QCOMPARE(t.range(t.removed, 1), ZrRange(1, 1));
        QCOMPARE(t.model->getRowByKey("d"), 0);
        QCOMPARE(last.row(), 0);
        QCOMPARE(t.fields->sumRecordNow(), t.model->getSumRecord());
        QCOMPARE(t.fields->invariantError(), QString());
        t.model->updataRecordData(t.row("b", 7)); // in front of d
        QCOMPARE(t.shownKeys(), QStringList({"b", "d"}));
    }

    void filterListsRestoredTellNothing()
    {
        ZrTableFixture t;
        fill(t);
        t.fields->setFilterable(true);
        t.clearSpies();
        const ViewFilterList filters{{2, t.atLeast(3)}};
        t.model->resetViewCurrentFilterList(filters);
        QCOMPARE(t.fields->viewFilterList, filters);
        QCOMPARE(t.reset.size() + t.changed.size() + t.inserted.size() + t.removed.size(), 0);
    }

    void deleteRowInFilterModeTakesTheNextShownRow()
    {
        ZrTableFixture t;
        fill(t);
        t.fields->setFilterable(true);
        t.clearSpies();
        t.model->deleteRow(1);
        QCOMPARE(t.modelKeys(), QStringList({"a", "b", "d"})); // c, which stood behind b, is gone
        QCOMPARE(t.range(t.removed), ZrRange(1, 1));
        QCOMPARE(t.fields->displayKeyList.keys(), QList<QString>({"a", "c", "d"}));
        t.model->deleteRow(2); // no next one: the first row
        QCOMPARE(t.modelKeys(), QStringList({"b", "d"}));
        t.model->deleteRow(9);
        QCOMPARE(t.modelKeys().size(), 2);
    }

    void aMatchFunctionDecidesForItsColumn()
    {
        ZrTableFixture t;
        fill(t);
        t.fields->setFilterable(true);
        t.model->setColumnMatchFilterFunction(2, isEven);
        QCOMPARE(t.shownKeys().size(), 4); // no filter yet
        t.fields->setColumnCustomFilter(2, {{{"any", 1}}});
        QCOMPARE(t.shownKeys(), QStringList({"c", "d"}));
        t.model->addRecordData({{0, {{"256", "x"}}}}); // without the column
        QCOMPARE(t.shownKeys(), QStringList({"c", "d"}));
        t.model->removeColumnMatchFilterFunction(1);
        t.model->removeColumnMatchFilterFunction(2);
        QVERIFY(t.fields->viewFilterList.isEmpty());
        QCOMPARE(t.shownKeys().size(), 5);
        t.fields->setColumnCustomFilter(2, {});
        QVERIFY(t.fields->viewFilterList.isEmpty());
    }

    void aCellThatWouldDoubleAKeyIsRefused()
    {
        ZrTableFixture t;
        fill(t);
        QTest::ignoreMessage(QtWarningMsg, "key is exist \"b\"");
        QVERIFY(!t.model->setData(t.model->index(0, 0), "b", Qt::UserRole));
        QCOMPARE(t.modelKeys().first(), QString("a"));
        QCOMPARE(t.changed.size(), 0);
        QVERIFY(t.model->setData(t.model->index(0, 0), "z", Qt::UserRole));
        QCOMPARE(t.model->getRowByKey("z"), 0);
        QCOMPARE(t.model->getRowByKey("a"), -1);
        QVERIFY(!t.model->setData(QModelIndex(), 1, Qt::UserRole));
    }

    void aRoleThatStoresNothingIsStillTold()
    {
        ZrTableFixture t;
        fill(t);
        const RecordData before = t.model->getRowData(0);
        QVERIFY(t.model->setData(t.model->index(0, 1), 5, Qt::TextAlignmentRole));
        QCOMPARE(t.model->getRowData(0), before);
        QCOMPARE(t.changed.at(0).at(2).value<QVector<int>>(), QVector<int>{Qt::TextAlignmentRole});
    }

    void aCellIsSetUnderItsViewColumnAndFiltered()
    {
        ZrTableFixture t;
        fill(t);
        t.fields->setFilterable(true);
        t.fields->setColumnFilter(2, t.atLeast(3));
        QVERIFY(t.model->setData(t.model->index(0, 2), 0, Qt::UserRole));
        QCOMPARE(t.shownKeys(), QStringList("c"));
        QCOMPARE(t.view.verticalHeader()->count(), 1);
    }

    void candidatesAreTheDistinctCellsInOrder_data()
    {
        QTest::addColumn<QVariantList>("values");
        QTest::addColumn<QVariantList>("expected");
        QTest::newRow("texts") << QVariantList{"b", "a", "b"} << QVariantList{"b", "a"};
        QTest::newRow("numbers") << QVariantList{2, 1.5, 2.0, 0, -1.5} << QVariantList{2, 1.5, 0, -1.5};
        QTest::newRow("nearly equal")
            << QVariantList{0.3, 0.1 + 0.2, 1.0, 1.0 - 1e-14} << QVariantList{0.3, 1.0};
        QTest::newRow("mixed kinds") << QVariantList{"1", 1, "2"} << QVariantList{"1", "2"};
        QTest::newRow("days") << QVariantList{QDate(2024, 1, 2), QDate(2024, 1, 1), QDate(2024, 1, 2)}
                              << QVariantList{QDate(2024, 1, 2), QDate(2024, 1, 1)};
        QTest::newRow("a day and a number")
            << QVariantList{1, QDate(2024, 1, 1), 1} << QVariantList{1, QDate(2024, 1, 1)};
        QTest::newRow("not a number") << QVariantList{qInf(), qInf()} << QVariantList{qInf(), qInf()};
    }

    void candidatesAreTheDistinctCellsInOrder()
    {
        QFETCH(QVariantList, values);
        QFETCH(QVariantList, expected);
        if (qstrcmp(QTest::currentDataTag(), "not a number") == 0 && QVariant(qInf()) == QVariant(qInf()))
            expected.removeLast(); // how the containers compare infinities decides
        RecordDataList rows{{{5, {{"0", "other column"}}}}};
        for (const QVariant &value : values)
            rows.append({{0, {{"256", value}}}});
        QVariantList found;
        for (const ItemRoleMap &cell : ZrDistinctCells::ofColumn(rows, 0))
            found.append(cell.value("256"));
        QCOMPARE(found, expected);
    }

    void cellsWithoutAValueAreOneCandidate()
    {
        const ItemRoleMap coloured = {{"9", QColor(Qt::red)}};
        const ItemRoleMap priced = {{"256", 5}};
        const RecordDataList rows{{{0, coloured}},      {{0, priced}}, {{0, coloured}},
                                  {{0, ItemRoleMap()}}, {{0, priced}}, {{0, ItemRoleMap()}}};
        QCOMPARE(ZrDistinctCells::ofColumn(rows, 0), (QList<ItemRoleMap>{coloured, priced, ItemRoleMap()}));
    }

    void candidatesAndFilterDataAreReachedThroughTheFields()
    {
        ZrTableFixture t;
        fill(t);
        QCOMPARE(t.fields->columnCandidates(2).size(), 4);
        t.fields->setColumnFilterData(1, {{{0, {{"0", "x"}}}}});
        QCOMPARE(t.fields->columnFilterData.size(), 1);
        t.fields->removeColumnFilterData(1);
        QVERIFY(t.fields->columnFilterData.isEmpty());
    }

    void theRunningSumIsTheSumRecord()
    {
        ZrTableFixture t;
        QCOMPARE(t.fields->sumRecordNow(), t.model->getSumRecord()); // no rows
        fill(t);
        QCOMPARE(t.fields->sumRecordNow().value(2).value("0"), QVariant("10"));
        t.model->updataRecordData(t.row("a", 100000));
        QCOMPARE(t.fields->sumRecordNow().value(2).value("0"), QVariant("10  0007"));
        QCOMPARE(t.fields->sumRecordNow(), t.model->getSumRecord());
        t.fields->setFilterable(true);
        t.fields->setColumnFilter(2, t.atLeast(3));
        QCOMPARE(t.fields->sumRecordNow().value(2).value("0"), QVariant("10  0004"));
        t.model->setNoSumCols({2});
        t.model->setNoSumCols({2});
        QVERIFY(!t.fields->sumRecordNow().contains(2));
        QVERIFY(!t.model->getSumRecord().contains(2));
    }
};

ZR_TEST_MAIN(TestTableArrange)
#include "tst_zrtablearrange.moc"
