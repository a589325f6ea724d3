#include "ZrTableFixture.h"
#include "ZrTestMain.h"

/// Check boxes of rows and head.
class TestTableChecks : public QObject
{
    Q_OBJECT

private:
    static void fill(ZrTableFixture &t, const QStringList &keys = {"a", "b", "c"})
    {
        t.model->setCheckBoxShow(true);
        t.model->addRecordDataList(t.rows(keys));
        t.clearSpies();
    }
    static QVariant state(const ZrTableFixture &t, int row)
    {
        return t.model->getIndexData(row, -2, Qt::UserRole);
    }

private slots:
    void theHeadFollowsTheRows()
    {
        ZrTableFixture t;
        fill(t);
        QSignalSpy rowSpy(t.model, &ZrTableModel::signalRowCheckStateChanged);
        t.model->updateCheckBoxData(t.model->index(0, 0), true);
        QCOMPARE(t.fields->headCheckState, 1);
        QCOMPARE(rowSpy.at(0), QVariantList({0, 1}));
        QVERIFY(t.model->setCheckStatusByKey("b", true));
        QVERIFY(t.model->setCheckStatusByRow(2, true));
        QCOMPARE(rowSpy.size(), 1); // the click only
        QCOMPARE(t.head.last().at(0).toInt(), 2);
        t.model->addRecordData(t.row("d")); // unchecked: ends "all checked"
        QCOMPARE(t.head.last().at(0).toInt(), 1);
        t.model->deleteRecordData(t.row("d"));
        QCOMPARE(t.fields->headCheckState, 1); // an unchecked row that goes is not counted
        t.model->updataRecordData({{0, {{"256", "a"}}}, {-1, {{"256", false}}}});
        QCOMPARE(t.fields->headCheckState, 1);
        t.model->updateRecordDataList({});
        QCOMPARE(t.fields->headCheckState, 0);
    }

    void countingMakesTheMissingCells()
    {
        ZrTableFixture t;
        fill(t);
        QVERIFY(!t.model->getModelData().at(1).contains(-1));
        t.model->updateCheckBoxData(t.model->index(0, 0), true);
        QVERIFY(t.model->getModelData().at(1).contains(-1));
        t.model->insertRecordData(0, t.row("x"));
        t.model->insertRecordData(2, t.row("y"));
        t.model->deleteRecordData(t.row("x"));
        t.model->slotSortIndicatorChanged(1, Qt::DescendingOrder);
        QCOMPARE(t.model->getRowsByCheckStatus(false).size(), 3);
        for (const RecordData &record : t.model->getModelData())
            QVERIFY(record.contains(-1));
    }

    void theHeadSetsAllRowsAlsoHiddenOnes()
    {
        ZrTableFixture t;
        fill(t);
        t.model->updataRecordData(t.row("c", 9));
        t.fields->setFilterable(true);
        t.fields->setColumnFilter(2, t.atLeast(5));
        t.model->onStateChanged(2);
        QCOMPARE(t.model->getRowDataByKey("a").value(-1).value("256"), QVariant(2));
        QCOMPARE(t.fields->headCheckState, 2);
        QCOMPARE(t.changed.last().at(1).toModelIndex(), t.model->index(0, 0));
        QVERIFY(!t.model->setCheckStatusByKey("a", false)); // hidden: stored only
        QCOMPARE(t.model->getRowDataByKey("a").value(-1).value("256"), QVariant(false));
        QCOMPARE(t.model->getRowsByCheckStatus(true), QList<int>{0});
    }

    void aPartialHeadTogglesTheEnabledRows()
    {
        ZrTableFixture t;
        fill(t);
        QVERIFY(t.model->setCheckBoxEnabledByKey("c", false));
        t.model->onStateChanged(2);
        QCOMPARE(t.fields->headCheckState, 1); // c is disabled and stays unchecked
        t.model->onStateChanged(2);            // all enabled ones are checked already: inverts
        QCOMPARE(state(t, 0), QVariant(false));
        QCOMPARE(t.fields->headCheckState, 0);
        t.model->updateCheckBoxData(t.model->index(0, 0), true);
        QCOMPARE(t.fields->headCheckState, 1);
        t.model->onStateChanged(2); // some unchecked: checks them
        QCOMPARE(state(t, 1), QVariant(2));
        QCOMPARE(state(t, 2).toBool(), false);
    }

    void withoutCheckBoxesNothingIsCounted()
    {
        ZrTableFixture t;
        t.model->addRecordData(t.row("a"));
        t.model->onStateChanged(2);
        QCOMPARE(t.head.size(), 0);
        QVERIFY(!t.model->setCheckBoxEnabledByRow(0, false));
        QVERIFY(!t.model->setCheckBoxEnabledByKey("a", false));
    }

    void anEmptyTableClickedOnTheHeadTellsNoCell()
    {
        ZrTableFixture t;
        fill(t, {});
        t.model->onStateChanged(2);
        QCOMPARE(t.changed.size(), 0);
        QCOMPARE(t.fields->headCheckState, 0);
    }

    void enablingWritesTheFlagAndTellsTheModelRow()
    {
        ZrTableFixture t;
        fill(t);
        QVERIFY(t.model->setCheckBoxEnabledByRow(1, false));
        QCOMPARE(t.model->getModelData().at(1).value(-1).value("262"), QVariant(false));
        QCOMPARE(t.changed.last().at(0).toModelIndex().row(), 1);
        QVERIFY(t.model->setCheckBoxEnabledByRow(1, true));
        QVERIFY(!t.model->getModelData().at(1).value(-1).contains("262"));
        QVERIFY(!t.model->setCheckBoxEnabledByRow(-1, true));
        QVERIFY(!t.model->setCheckBoxEnabledByRow(3, true));
        QVERIFY(!t.model->setCheckBoxEnabledByKey("", true));
        QVERIFY(!t.model->setCheckBoxEnabledByKey("unknown", true));
        QVERIFY(!t.model->setCheckStatusByKey("unknown", true));
        QVERIFY(!t.model->setCheckStatusByRow(7, true));
        t.model->updateCheckBoxData(QModelIndex(), true);
        QCOMPARE(t.head.size(), 0);
        t.model->setKeyColumn({});
        QTest::ignoreMessage(QtInfoMsg, "ZrTableModel::setCheckBoxEnabledByKey");
        QVERIFY(!t.model->setCheckBoxEnabledByKey("a", true));
    }

    void enablingInFilterModeTellsTheRowOfTheModel()
    {
        ZrTableFixture t;
        t.model->setCheckBoxShow(true);
        t.model->addRecordDataList({t.row("a", 0), t.row("b", 9), t.row("c", 9)});
        t.fields->setFilterable(true);
        t.fields->setColumnFilter(2, t.atLeast(5));
        t.clearSpies();
        QVERIFY(t.model->setCheckBoxEnabledByRow(0, false));
        QCOMPARE(t.model->getRowDataByKey("b").value(-1).value("262"), QVariant(false));
        QCOMPARE(t.changed.size(), 1);
        QCOMPARE(t.changed.at(0).at(0).toModelIndex().row(), 1); // b is shown in row 0
    }

    void countingTellsTheHeadAlsoWhatItKnows()
    {
        ZrTableFixture t;
        fill(t);
        t.fields->updateHeadCheckState();
        t.fields->updateHeadCheckState();
        QCOMPARE(t.head.size(), 2);
        QCOMPARE(t.head.at(1).at(0).toInt(), 0);
    }

    void aHiddenKeyIsEnabledInSilence()
    {
        ZrTableFixture t;
        fill(t);
        t.fields->setFilterable(true);
        t.fields->setColumnFilter(2, t.atLeast(5));
        QVERIFY(!t.model->setCheckBoxEnabledByKey("a", false));
        QCOMPARE(t.model->getModelData().at(0).value(-1).value("262"), QVariant(false));
    }

    void theSumsFollowTheCheckState()
    {
        ZrTableFixture t;
        fill(t);
        QCOMPARE(t.fields->sumRecordNow(), t.model->getSumRecord());
        t.model->onStateChanged(2);
        QCOMPARE(t.fields->sumRecordNow(), t.model->getSumRecord());
        t.model->updateCheckBoxData(t.model->index(1, 0), false);
        QCOMPARE(t.fields->sumRecordNow(), t.model->getSumRecord());
    }
};

ZR_TEST_MAIN(TestTableChecks)
#include "tst_zrtablechecks.moc"
