#include "ZrTableFixture.h"
#include "ZrTestMain.h"

/// The record families: what they store, refuse, evict and tell.
class TestTableModel : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { QLoggingCategory::setFilterRules("default.debug=true"); }

    void withoutKeyColumnsRowsAreOnlyAppended()
    {
        ZrTableFixture t;
        t.model->setKeyColumn({});
        t.model->addRecordData(t.row("a"));
        t.model->addRecordData(t.row("a"));
        t.clearSpies();
        t.model->updataRecordData(t.row("a", 5));
        QCOMPARE(t.changed.size(), 0);
        QCOMPARE(t.model->rowCount(), 2);
        QCOMPARE(t.model->getRowByKey("a"), -1);
        QCOMPARE(t.model->getRowDataByKey("a"), RecordData());
        QCOMPARE(t.model->deleteRecordData(t.row("a")), 0);
        t.model->deleteRow(0);
        QCOMPARE(t.range(t.removed), ZrRange(0, 0));
        QCOMPARE(t.model->rowCount(), 1);
    }

    void addingAKnownKeyIsAnUpdate()
    {
        ZrTableFixture t;
        t.model->addRecordData(t.row("a", 1));
        t.clearSpies();
        t.model->addRecordData(t.row("a", 2));
        QCOMPARE(t.model->insertRecordData(0, t.row("a", 3)), 0);
        QCOMPARE(t.model->rowCount(), 1);
        QCOMPARE(t.inserted.size(), 0);
        QCOMPARE(t.changed.size(), 2);
        QCOMPARE(t.model->getIndexData(0, 2, Qt::UserRole), QVariant(3));
    }

    // Else each delete in a table that only got single records would renumber all rows.
    void keyColumnsOfAnEmptyTableLeaveItInStep()
    {
        ZrTableFixture t;
        QVERIFY(t.fields->keyToRow.isExact());
        t.model->setKeyColumn({2});
        t.model->addRecordData(t.row("a", 7));
        QVERIFY(t.fields->keyToRow.isExact());
        QCOMPARE(t.model->getRowByKey("7"), 0);
        t.model->setKeyColumn({0}); // the keys in use are the old ones
        QVERIFY(!t.fields->keyToRow.isExact());
        QCOMPARE(t.model->getRowByKey("7"), 0);
        t.model->updateRecordDataList({t.row("b")});
        t.model->deleteRow(0); // leaves the numbers stale, although there are none
        t.model->setKeyColumn({2});
        QVERIFY(t.fields->keyToRow.isExact());
        QCOMPARE(t.fields->invariantError(), QString());
    }

    void anEmptyKeyIsRefused()
    {
        ZrTableFixture t;
        t.model->addRecordData(t.row(""));
        QCOMPARE(t.model->insertRecordData(0, t.row("")), 0);
        t.model->addRecordDataList(t.rows({"", "a"}));
        QCOMPARE(t.model->insertRecordDataList(0, t.rows({"", "b"})), 1);
        QCOMPARE(t.modelKeys(), QStringList({"b", "a"}));
    }

    void keysOfDifferentColumnsCollide()
    {
        ZrTableFixture t;
        t.model->setKeyColumn({0, 1});
        t.model->addRecordData({{0, {{"256", "A"}}}, {1, {{"256", ""}}}});
        t.model->addRecordData({{0, {{"256", ""}}}, {1, {{"257", "A"}}}});
        QCOMPARE(t.model->rowCount(), 1);
    }

    void addTellsTheLastRow()
    {
        ZrTableFixture t;
        t.model->addRecordData(t.row("a"));
        t.model->addRecordData(t.row("b"));
        QCOMPARE(t.range(t.inserted, 1), ZrRange(1, 1));
        QCOMPARE(t.model->getRowByKey("b"), 1);
        QCOMPARE(t.model->getRowDataByKeyCols(RecordData{{0, {{"0", "b"}}}}), t.row("b"));
        QCOMPARE(t.model->getRowDataByKeyCols(QMap<int, QString>{{0, "b"}}), t.row("b"));
        QCOMPARE(t.model->getRowData(9), RecordData());
    }

    void atTheMaximumAddDropsTheOldestAndInsertTheNewestTail()
    {
        ZrTableFixture t;
        t.model->setMaxRowCount(3);
        t.model->addRecordDataList(t.rows({"a", "b", "c"}));
        QTest::ignoreMessage(QtDebugMsg, "111111111111111111111111111111 3 3");
        t.model->addRecordData(t.row("d"));
        QCOMPARE(t.modelKeys(), QStringList({"b", "c", "d"}));
        QCOMPARE(t.range(t.removed), ZrRange(0, 0));
        t.clearSpies();
        QCOMPARE(t.model->insertRecordData(0, t.row("e")), 1);
        QCOMPARE(t.modelKeys(), QStringList({"e", "b", "c"}));
        QCOMPARE(t.range(t.removed), ZrRange(2, 2));
        QCOMPARE(t.range(t.inserted), ZrRange(0, 0));
        QCOMPARE(t.model->getRowByKey("c"), 2);
        QCOMPARE(t.model->getRowByKey("d"), -1);
    }

    void aLongListKeepsItsLastRows()
    {
        ZrTableFixture t;
        t.model->setMaxRowCount(2);
        t.model->addRecordData(t.row("a"));
        t.clearSpies();
        QTest::ignoreMessage(QtDebugMsg, "111111111111111111111111111111 5 2");
        t.model->addRecordDataList(t.rows({"b", "c", "d", "e"}));
        QCOMPARE(t.modelKeys(), QStringList({"d", "e"}));
        QCOMPARE(t.range(t.removed), ZrRange(0, 2));
        QCOMPARE(t.range(t.inserted), ZrRange(1, 4)); // size after the eviction, count of all new ones
        QCOMPARE(t.view.verticalHeader()->count(), 2);
    }

    void insertListKeepsTheGivenOrderAndDropsTheTail()
    {
        ZrTableFixture t;
        t.model->setMaxRowCount(4);
        t.model->addRecordDataList(t.rows({"a", "b"}));
        t.clearSpies();
        QCOMPARE(t.model->insertRecordDataList(1, t.rows({"x", "a", "y", "z"})), 3);
        QCOMPARE(t.modelKeys(), QStringList({"a", "x", "y", "z"}));
        QCOMPARE(t.range(t.removed), ZrRange(4, 4));
        QCOMPARE(t.range(t.inserted), ZrRange(1, 2));
    }

    void ofTwoKnownOnesInAnInsertedListTheLastWins()
    {
        ZrTableFixture t;
        t.model->addRecordDataList(t.rows({"a", "b"}));
        QCOMPARE(t.model->insertRecordDataList(0, {t.row("a", 1), t.row("x"), t.row("a", 2)}), 1);
        QCOMPARE(t.model->getRowDataByKey("a").value(2).value("256"), QVariant(2));
        t.model->addRecordDataList({t.row("b", 3), t.row("b", 4)}); // an appended list agrees
        QCOMPARE(t.model->getRowDataByKey("b").value(2).value("256"), QVariant(4));
    }

    void aLongInsertIsRenumberedOnce()
    {
        ZrTableFixture t;
        t.model->addRecordDataList(t.rows({"a", "b"}));
        QStringList keys;
        for (int i = 0; i < 40; ++i)
            keys.append(QString::number(i));
        QCOMPARE(t.model->insertRecordDataList(1, t.rows(keys)), 40);
        QCOMPARE(t.model->getRowByKey("39"), 40);
        QCOMPARE(t.model->getRowByKey("b"), 41);
        QCOMPARE(t.fields->invariantError(), QString());
    }

    void aRowToInsertAtIsBroughtIntoRange()
    {
        ZrTableFixture t;
        t.model->addRecordData(t.row("a"));
        t.model->insertRecordData(99, t.row("b"));
        t.model->insertRecordData(-5, t.row("c"));
        QCOMPARE(t.modelKeys(), QStringList({"c", "a", "b"}));
        QCOMPARE(t.range(t.inserted, 1), ZrRange(1, 1));
        QCOMPARE(t.range(t.inserted, 2), ZrRange(0, 0));
    }

    void anUpdateMergesAtRoleGrain()
    {
        ZrTableFixture t;
        t.model->addRecordData(t.row("a", 1));
        t.clearSpies();
        t.model->updataRecordData({{0, {{"256", "a"}}}, {2, {{"256", 7}}}, {1, {{"9", "red"}}}});
        QCOMPARE(t.changed.size(), 2);
        QCOMPARE(t.changed.at(0).at(0).toModelIndex(), t.model->index(0, 1));
        QCOMPARE(t.changed.at(1).at(2).value<QVector<int>>(), QVector<int>());
        const RecordData expected{{0, {{"256", "a"}}}, {1, {{"9", "red"}}}, {2, {{"0", "1"}, {"256", 7}}}};
        QCOMPARE(t.model->getRowData(0), expected);
    }

    void anUpdateThatBringsNothingNewIsSilent()
    {
        ZrTableFixture t;
        t.model->addRecordData(t.row("a", 1));
        t.clearSpies();
        t.model->updataRecordData(t.row("a", 1));
        t.model->updataRecordData({{0, {{"256", "a"}}}, {2, {{"256", 1}}}}); // fewer roles than stored
        t.model->updataRecordDatas({t.row("a", 1), t.row("unknown", 1)});
        QCOMPARE(t.changed.size() + t.reset.size(), 0);
    }

    void aHiddenColumnIsToldAsWell()
    {
        ZrTableFixture t;
        t.view.setColumnHidden(2, true);
        t.model->addRecordData(t.row("a", 1));
        t.clearSpies();
        t.model->updataRecordData(t.row("a", 2));
        QCOMPARE(t.changed.size(), 1);
    }

    void aColumnWithoutAHeadIsStoredAndNotTold()
    {
        ZrTableFixture t;
        t.model->addRecordData(t.row("a"));
        t.clearSpies();
        t.model->updataRecordData({{0, {{"256", "a"}}}, {8, {{"0", "x"}}}});
        QCOMPARE(t.changed.size(), 0);
        QCOMPARE(t.model->getIndexData(0, 8, 0), QVariant("x"));
    }

    void aBatchIsOneResetThatKeepsTheCurrentRow()
    {
        ZrTableFixture t;
        t.model->addRecordDataList(t.rows({"a", "b"}));
        t.view.setCurrentIndex(t.model->index(1, 0));
        t.clearSpies();
        t.model->updataRecordDatas({t.row("a", 1), t.row("b", 2)});
        QCOMPARE(t.reset.size(), 1);
        QCOMPARE(t.changed.size(), 0);
        QCOMPARE(t.view.currentIndex().row(), 1);
    }

    void typesAreLearnedOnceFromTheFirstValue()
    {
        ZrTableFixture t;
        t.model->addRecordData({{0, {{"256", "a"}}}, {1, {{"3", "tip"}}}, {-1, {{"256", true}}}});
        t.model->updataRecordData({{0, {{"256", "a"}}}, {1, {{"257", 1.5}}}});
        t.model->updataRecordData({{0, {{"256", "a"}}}, {1, {{"256", "text"}}}});
        const QMap<int, int> expected{{-1, QVariant::Bool}, {0, QVariant::String}, {1, QVariant::Double}};
        QCOMPARE(t.fields->columnTypes, expected);
    }

    void replacingKeepsTheFirstOfAKey()
    {
        ZrTableFixture t;
        QWidget grid;
        QWidget table(&grid);
        grid.setObjectName("orders");
        ZrTableModel model(&table);
        model.setKeyColumn({0});
        QTest::ignoreMessage(QtDebugMsg,
                             "ZrTableModel::updateRecordDataList \"orders\"  input record length  4  "
                             "real record length  2");
        model.updateRecordDataList({t.row("a", 1), t.row("b", 2), t.row("a", 3), t.row("")});
        QCOMPARE(model.rowCount(), 2);
        QCOMPARE(model.getIndexData(0, 2, Qt::UserRole), QVariant(1));
    }

    void replacingForgetsTheWidgetsInCells()
    {
        ZrTableFixture t;
        t.model->addRecordDataList(t.rows({"a", "b"}));
        QWidget widget;
        t.model->setIndexWidget(1, 2, &widget);
        QCOMPARE(t.fields->indexWidgets.size(), 1);
        t.model->updateRecordDataList(t.rows({"a", "b"}));
        QVERIFY(t.fields->indexWidgets.isEmpty());
    }

    void aDeletedKeyIsGoneAndTheRestRenumbered()
    {
        ZrTableFixture t;
        t.model->addRecordDataList(t.rows({"a", "b", "c"}));
        QWidget widget;
        t.model->setIndexWidget(1, 2, &widget);
        t.model->setIndexWidget(9, 2, &widget);
        QCOMPARE(t.fields->indexWidgets.keys(), QStringList("b"));
        t.clearSpies();
        QCOMPARE(t.model->deleteRecordData(t.row("b")), 1);
        QCOMPARE(t.model->deleteRecordData(t.row("b")), 0);
        QCOMPARE(t.range(t.removed), ZrRange(1, 1));
        QCOMPARE(t.model->getRowByKey("c"), 1);
        QVERIFY(t.fields->indexWidgets.isEmpty());
    }

    void deletingAListTellsThePositionsFromBefore()
    {
        ZrTableFixture t;
        t.model->addRecordDataList(t.rows({"a", "b", "c", "d"}));
        t.view.setCurrentIndex(t.model->index(1, 0));
        t.clearSpies();
        QCOMPARE(t.model->deleteRecordDataList({t.row("d"), t.row("c"), t.row("unknown")}), 2);
        QCOMPARE(t.range(t.removed, 0), ZrRange(2, 2));
        QCOMPARE(t.range(t.removed, 1), ZrRange(3, 3));
        QCOMPARE(t.modelKeys(), QStringList({"a", "b"}));
        QCOMPARE(t.view.verticalHeader()->count(), 2);
        QCOMPARE(t.view.currentIndex().row(), 1);
        QCOMPARE(t.model->deleteRecordDataList({}), 0);
    }

    void deleteRowLeavesTheLaterNumbersStale()
    {
        ZrTableFixture t;
        t.model->addRecordDataList(t.rows({"a", "b", "c"}));
        t.model->deleteRow(0);
        QCOMPARE(t.model->getRowByKey("b"), 1);
        QCOMPARE(t.model->getRowByKey("c"), 2);
        QCOMPARE(t.model->getRowDataByKey("c"), RecordData());
        t.clearSpies();
        t.model->updataRecordData(t.row("c", 9)); // its number is out of range
        QCOMPARE(t.changed.size(), 0);
        t.model->deleteRow(-1);
        t.model->deleteRow(2);
        QCOMPARE(t.model->rowCount(), 2);
        t.model->insertRecordData(0, t.row("d")); // rebuilds
        QCOMPARE(t.model->getRowByKey("c"), 2);
    }

    void delayedDisplayTellsABurstByOneReset()
    {
        ZrTableFixture t;
        t.model->setViewDelayDisplayTime(0);
        t.model->addRecordData(t.row("a"));
        t.model->addRecordDataList(t.rows({"b", "c", "d"}));
        t.model->insertRecordData(0, t.row("e"));
        t.model->deleteRecordData(t.row("b"));
        t.model->deleteRecordDataList({t.row("c")});
        QCOMPARE(t.inserted.size() + t.removed.size() + t.reset.size(), 0);
        t.model->updataRecordData(t.row("a", 4));
        QCOMPARE(t.changed.size(), 1);
        QTRY_COMPARE(t.reset.size(), 1);
        QCOMPARE(t.fields->delayTimerId, 0);
        QCOMPARE(t.view.verticalHeader()->count(), 3);
        t.model->deleteRow(0); // tells at once
        QCOMPARE(t.removed.size(), 1);
        QCOMPARE(t.fields->delayInMs, quint16(0));
    }

    void aHiddenRecordStartsNoDelay()
    {
        ZrTableFixture t;
        t.model->setViewDelayDisplayTime(0);
        t.fields->setFilterable(true);
        t.fields->setColumnFilter(2, t.atLeast(5));
        t.model->addRecordData(t.row("a", 1));
        t.model->addRecordDataList({t.row("b", 1)});
        t.model->insertRecordData(0, t.row("c", 1));
        t.model->insertRecordDataList(0, {t.row("d", 1)});
        QCOMPARE(t.fields->modelData.size(), 4);
        QCOMPARE(t.fields->delayTimerId, 0);
        t.model->addRecordData(t.row("e", 9));
        QVERIFY(t.fields->delayTimerId != 0);
    }

    void deleteRowWithoutKeysIsDelayed()
    {
        ZrTableFixture t;
        t.model->setKeyColumn({});
        t.model->addRecordDataList(t.rows({"a", "b"}));
        t.model->setViewDelayDisplayTime(0);
        t.clearSpies();
        t.model->deleteRow(0);
        QCOMPARE(t.removed.size(), 0);
        QVERIFY(t.fields->delayTimerId != 0);
        QTRY_COMPARE(t.reset.size(), 1);
        QCOMPARE(t.view.verticalHeader()->count(), 1);
    }

    void theCurrentRowSurvivesAnUpdate()
    {
        ZrTableFixture t;
        t.model->addRecordDataList(t.rows({"a", "b"}));
        t.view.setCurrentIndex(t.model->index(1, 2));
        t.model->update();
        QCOMPARE(t.view.currentIndex(), t.model->index(1, 0));
    }

    void cellsOutOfRangeHaveNoIndex()
    {
        ZrTableFixture t;
        t.model->addRecordData(t.row("a"));
        t.model->setCheckBoxShow(true);
        QCOMPARE(t.model->getIndex(0, 2).column(), 3);
        QVERIFY(!t.model->getIndex(0, 3).isValid());
        QVERIFY(!t.model->getIndex(1, 0).isValid());
        QCOMPARE(t.model->getData(0, 1, Qt::UserRole), QVariant("a"));
        QList<int> columns{0};
        t.clearSpies();
        t.model->updateData(-1, columns);
        QCOMPARE(t.changed.size(), 0);
        QCOMPARE(t.model->rowCount(t.model->index(0, 0)) + t.model->columnCount(t.model->index(0, 0)), 0);
    }

    void fieldsStartAsTheFamilyExpects()
    {
        const ZrTableModel model;
        const ZrTableModelPrivate *fields = model.getModelPrivate();
        QCOMPARE(fields->defaultColumnAlignment, 130);
        QCOMPARE(fields->defaultHeadAlignment, 132);
        QCOMPARE(fields->maximumRowCount, 1000000);
        QCOMPARE(fields->delayInMs, quint16(200));
        QCOMPARE(fields->sortColumn, -1);
        QVERIFY(fields->viewSortable && !fields->filterable && !fields->delayedDisplay && !fields->sumFlag);
        QCOMPARE(model.serialNumberColumnPropety(), ZrViewModel::SerialNumNone);
        QVERIFY(!model.isCheckBoxShow() && !model.isItemSelectable());
        QVERIFY(model.getKeyColumn().isEmpty());
    }
};

ZR_TEST_MAIN(TestTableModel)
#include "tst_zrtablemodel.moc"
