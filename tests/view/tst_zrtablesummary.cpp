#include "ZrItemModelDeletage.h"
#include "ZrItemModelDeletage_p.h"
#include "ZrTestMain.h"
#include "ZrViewTestKit.h"

#include <QtWidgets/QBoxLayout>

namespace {

QMap<QString, QVariant> rowCountCell(const int &column, const RecordDataList &rows)
{
    return {{ITEM_DISPLAYROLE, QStringLiteral("%1:%2").arg(column).arg(rows.size())}};
}

bool keepNothing(const QVariant &, const QList<QVariantMap> &)
{
    return false;
}

QString sumText(const ZrTableView &view, int column)
{
    const ZrTableModel *const model = view.getPrivate()->summaryModel;
    return model->data(model->getIndex(0, column), Qt::DisplayRole).toString();
}

/// A view of 3 columns and 4 rows: column 1 sums to 10, column 2 to 14.
class Summed
{
public:
    Summed()
    {
        kit::setUp(&view, 4, 3);
        view.setSummaryLineEnable(true);
    }

    ZrTableView view;
};

} // namespace

class TestZrTableSummary : public QObject
{
    Q_OBJECT
private slots:
    void summaryShowsTheSumsInItsOwnTable()
    {
        Summed s;
        const ZrTableViewPrivate *const d = s.view.getPrivate();
        QVERIFY(d->summaryTable);
        QCOMPARE(d->summaryTable->objectName(), QStringLiteral("TableSummaryView"));
        QCOMPARE(d->summaryModel->rowCount(), 1);
        QCOMPARE(sumText(s.view, 1), QStringLiteral("10"));
        QCOMPARE(sumText(s.view, 2), QStringLiteral("14"));
        QVERIFY(d->summaryTable->isVisible());
        QCOMPARE(d->summaryTable->height(), 30);
        QVERIFY(d->summaryHeader->isHidden());
        QCOMPARE(s.view.getSummaryHeadView(), d->summaryHeader);
        QVERIFY(d->summaryDelegate->getDelegatePrivate()->summaryMode);
        QCOMPARE(d->bottomLayout->indexOf(d->summaryTable), 0);
        QCOMPARE(d->summaryTable->verticalScrollBarPolicy(), Qt::ScrollBarAlwaysOff);
        QCOMPARE(d->table->horizontalScrollBarPolicy(), Qt::ScrollBarAlwaysOff);
    }

    void readingAtAnyMomentIsRight()
    {
        Summed s;
        s.view.updataRecordData({{0, kit::cell(QStringLiteral("k0"))}, {1, kit::cell(101)}});
        QCOMPARE(sumText(s.view, 1), QStringLiteral("110"));
        s.view.addRecordData(kit::record(QStringLiteral("new"), 3, 1000));
        QCOMPARE(sumText(s.view, 1), QStringLiteral("1111"));
        s.view.deleteRecordData(kit::record(QStringLiteral("new"), 1));
        QCOMPARE(s.view.getPrivate()->summaryModel->getRowData(0).value(1).value(ITEM_DISPLAYROLE).toString(),
                 QStringLiteral("110"));
        s.view.clear();
        QVERIFY(
            !s.view.getPrivate()->summaryModel->getModelData().first().value(1).contains(ITEM_DISPLAYROLE) ||
            sumText(s.view, 1) == QStringLiteral("0"));
    }

    void aBurstOfUpdatesIsToldOncePerFrame()
    {
        Summed s;
        QTRY_COMPARE(sumText(s.view, 1), QStringLiteral("10"));
        QSignalSpy reset(s.view.getPrivate()->summaryModel, &QAbstractItemModel::modelReset);
        QVERIFY(reset.wait()); // the enabling itself
        reset.clear();
        for (int value = 0; value < 500; ++value)
            s.view.updataRecordData({{0, kit::cell(QStringLiteral("k0"))}, {1, kit::cell(value)}});
        QCOMPARE(reset.count(), 0);
        QTRY_COMPARE(reset.count(), 1);
        QCOMPARE(sumText(s.view, 1), QStringLiteral("508"));
    }

    void eachRecordFamilyRecomputes()
    {
        Summed s;
        s.view.addRecordDataList({kit::record(QStringLiteral("a"), 3, 9)});
        QCOMPARE(sumText(s.view, 1), QStringLiteral("20"));
        QCOMPARE(s.view.insertRecordData(0, kit::record(QStringLiteral("b"), 3, 9)), 1);
        QCOMPARE(sumText(s.view, 1), QStringLiteral("30"));
        QCOMPARE(s.view.insertRecordDataList(0, {kit::record(QStringLiteral("c"), 3, 9)}), 1);
        QCOMPARE(sumText(s.view, 1), QStringLiteral("40"));
        s.view.updataRecordDatas({{{0, kit::cell(QStringLiteral("c"))}, {1, kit::cell(0)}}});
        QCOMPARE(sumText(s.view, 1), QStringLiteral("30"));
        QCOMPARE(s.view.deleteRecordDataList({kit::record(QStringLiteral("b"), 1)}), 1);
        QCOMPARE(sumText(s.view, 1), QStringLiteral("20"));
        s.view.deleteRow(0);
        QCOMPARE(s.view.getRowCount(), 5);
        s.view.updateRecordDataList({kit::record(QStringLiteral("z"), 3, 6)});
        QCOMPARE(sumText(s.view, 1), QStringLiteral("7"));
    }

    void enablingTwiceOnlyReplacesTheNoSumColumns()
    {
        Summed s;
        const QTableView *const table = s.view.getPrivate()->summaryTable;
        s.view.setSummaryLineEnable(true, {2});
        QCOMPARE(s.view.getPrivate()->summaryTable, table);
        QCOMPARE(s.view.findChildren<QTableView *>(QStringLiteral("TableSummaryView")).size(), 1);
        QCOMPARE(sumText(s.view, 1), QStringLiteral("10"));
        QCOMPARE(sumText(s.view, 2), QString());
        s.view.setSummaryLineEnable(true);
        QCOMPARE(sumText(s.view, 2), QStringLiteral("14"));
    }

    void disablingTakesItAwayLater()
    {
        Summed s;
        ZrTableViewPrivate *const d = s.view.getPrivate();
        const QPointer<QTableView> table = d->summaryTable;
        const QPointer<ZrTableModel> model = d->summaryModel;
        s.view.setSummaryLineEnable(false);
        QVERIFY(table && model);
        QVERIFY(!d->summaryTable && !d->summaryModel && !d->summaryHeader && !d->summaryDelegate);
        QCOMPARE(d->bottomLayout->count(), 0);
        QTRY_VERIFY(!table && !model);
        QCOMPARE(d->table->horizontalScrollBarPolicy(), Qt::ScrollBarAsNeeded);
        s.view.setSummaryLineEnable(false);
        s.view.addRecordData(kit::record(QStringLiteral("x"), 3));
        s.view.setSummaryLineEnable(true);
        QCOMPARE(sumText(s.view, 1), QStringLiteral("11"));
    }

    void callersCellReplacesTheSum()
    {
        Summed s;
        s.view.updateSumRecordData({{1, kit::cell(QStringLiteral("mine"))}});
        QCOMPARE(sumText(s.view, 1), QStringLiteral("mine"));
        QCOMPARE(sumText(s.view, 2), QStringLiteral("14"));
        s.view.updateSumRecordData({});
        QCOMPARE(sumText(s.view, 1), QStringLiteral("10"));
    }

    void generatedCellWinsOverTheCallersAndSeesAllRows()
    {
        Summed s;
        s.view.setColumnMatchFilterFunction(1, keepNothing);
        s.view.setViewFilterable(true);
        s.view.resetViewCurrentFilterList({{1, {{QVariantMap()}}}});
        QCOMPARE(s.view.getRowCount(), 0);
        s.view.updateSumRecordData({{1, kit::cell(QStringLiteral("mine"))}});
        s.view.setSumGenerateFunction(1, rowCountCell);
        QCOMPARE(sumText(s.view, 1), QStringLiteral("1:4"));
        s.view.removeSumGenerateFunction(1);
        QCOMPARE(sumText(s.view, 1), QStringLiteral("mine"));
    }

    void sumIsThatOfTheShownRows()
    {
        Summed s;
        s.view.setColumnMatchFilterFunction(
            1, [](const QVariant &value, const QList<QVariantMap> &) { return value.toInt() > 2; });
        s.view.setViewFilterable(true);
        s.view.resetViewCurrentFilterList({{1, {{QVariantMap()}}}});
        QCOMPARE(sumText(s.view, 1), QStringLiteral("7"));
        s.view.removeColumnMatchFilterFunction(1);
        QCOMPARE(sumText(s.view, 1), QStringLiteral("10"));
    }

    void generatorOfAColumnWithoutHeadIsRefused()
    {
        Summed s;
        QTest::ignoreMessage(QtDebugMsg, "columnFieldIndex is no valid");
        s.view.setSumGenerateFunction(9, rowCountCell);
        QVERIFY(s.view.getPrivate()->sumGenerateFunctions.isEmpty());
        s.view.setSumGenerateFunction(1, nullptr);
        QVERIFY(s.view.getPrivate()->sumGenerateFunctions.isEmpty());
    }

    void serialColumnOfTheSummarySaysTotal()
    {
        ZrTableView view;
        view.setSerialNumberColumnPropety(ZrViewModel::SerialNumAscending);
        kit::setUp(&view, 4, 3);
        view.setSummaryLineEnable(true);
        const ZrTableModel *const model = view.getPrivate()->summaryModel;
        QCOMPARE(model->columnCount(), 4);
        QCOMPARE(model->index(0, 0).data().toString(), QStringLiteral("Total"));
        QCOMPARE(sumText(view, 1), QStringLiteral("10"));
    }

    void serialColumnThatComesLaterMovesTheSumsToo()
    {
        Summed s;
        s.view.setSerialNumberColumnPropety(ZrViewModel::SerialNumDescending);
        const ZrTableModel *const model = s.view.getPrivate()->summaryModel;
        QCOMPARE(model->columnCount(), 4);
        QCOMPARE(model->index(0, 0).data().toString(), QStringLiteral("Total"));
        QCOMPARE(model->index(0, 2).data().toString(), QStringLiteral("10"));
    }

    void minimumWidthHoldsInTheSummaryAfterAColumnCame()
    {
        Summed s;
        s.view.setColumnMinimumWidth(60);
        s.view.setCheckBoxShow(true);
        const ZrTableViewPrivate *const d = s.view.getPrivate();
        QCOMPARE(d->summaryHeader->minimumSectionSize(), 60);
        for (int column = 0; column < 4; ++column)
            QCOMPARE(d->summaryHeader->sectionSize(column), d->header->sectionSize(column));
    }

    void aNumberThatDoesNotFitLeavesTheOtherSumsRight()
    {
        Summed s;
        const auto set = [&s](const char *key, int column, const QVariant &value) {
            s.view.updataRecordData({{0, kit::cell(QLatin1String(key))}, {column, kit::cell(value)}});
        };
        set("k0", 1, 1e17); // a running total takes no double beyond 2^53
        QCOMPARE(sumText(s.view, 2), QStringLiteral("14"));
        QCOMPARE(sumText(s.view, 1), QStringLiteral("10  0000  0000  0000  0016.00"));
        set("k1", 1, 40);
        QCOMPARE(sumText(s.view, 1), QStringLiteral("10  0000  0000  0000  0048.00"));
        set("k0", 2, 102);
        QCOMPARE(sumText(s.view, 2), QStringLiteral("114"));
        set("k0", 1, 1);
        QCOMPARE(sumText(s.view, 1), QStringLiteral("48"));
    }

    void checkBoxComesToTheSummaryWithoutABoxInItsRow()
    {
        Summed s;
        s.view.setCheckBoxShow(true);
        const ZrTableViewPrivate *const d = s.view.getPrivate();
        QCOMPARE(d->summaryModel->columnCount(), 4);
        QVERIFY(d->summaryDelegate->getDelegatePrivate()->checkBoxShown);
        QCOMPARE(d->summaryModel->index(0, 0).data(ZrSecondRawRole).toBool(), true);
        QCOMPARE(sumText(s.view, 1), QStringLiteral("10"));
    }

    void widthsHiddenColumnsAndHeightFollowTheGrid()
    {
        Summed s;
        const ZrTableViewPrivate *const d = s.view.getPrivate();
        QCOMPARE(d->summaryHeader->sectionSize(1), 80);
        d->header->resizeSection(1, 123);
        QCOMPARE(d->summaryHeader->sectionSize(1), 123);
        s.view.setColumnWidth(0, 44);
        QCOMPARE(d->summaryHeader->sectionSize(0), 44);
        s.view.setColumnShow(1, false);
        QVERIFY(d->summaryTable->isColumnHidden(1));
        s.view.setItemHeight(27);
        QCOMPARE(d->summaryTable->height(), 37);
        QCOMPARE(d->summaryTable->rowHeight(0), 27);
    }

    void columnsHiddenBeforeAreHiddenInANewSummary()
    {
        ZrTableView view;
        kit::setUp(&view, 2, 4);
        view.setColumnShow(2, false);
        view.getZrTableHorizontalHeader()->moveSection(0, 1);
        view.setSummaryLineEnable(true);
        QVERIFY(view.getPrivate()->summaryTable->isColumnHidden(2));
        QCOMPARE(view.getSummaryHeadView()->logicalIndex(0), 1);
    }

    void newHeadsReachTheSummary()
    {
        Summed s;
        HeadList heads = kit::heads(5);
        s.view.setHeadList(heads);
        QCOMPARE(s.view.getPrivate()->summaryModel->columnCount(), 5);
    }

    void oneBarServesBothTables()
    {
        ZrTableView view;
        kit::setUp(&view, 4, 12);
        view.setSummaryLineEnable(true);
        QScrollBar *const bar = view.getPrivate()->summaryTable->horizontalScrollBar();
        QScrollBar *const main = view.getTableView()->horizontalScrollBar();
        QTRY_VERIFY(main->maximum() > 0);
        QTRY_COMPARE(bar->maximum(), main->maximum());
        bar->setValue(bar->maximum());
        QCOMPARE(main->value(), main->maximum());
        bar->setValue(bar->maximum() / 2);
        QCOMPARE(main->value(), bar->value());
        main->setValue(0); // by keys in the grid
        QCOMPARE(bar->value(), 0);
    }

    void barsStayTogetherWhenOnlyTheGridHasAVerticalBar_data()
    {
        QTest::addColumn<bool>("byTheSummarysBar");
        QTest::newRow("grid scrolled") << false;
        QTest::newRow("summary's bar dragged") << true;
    }

    void barsStayTogetherWhenOnlyTheGridHasAVerticalBar()
    {
        QFETCH(bool, byTheSummarysBar);
        ZrTableView view;
        kit::setUp(&view, 60, 12);
        view.setSummaryLineEnable(true);
        QScrollBar *const bar = view.getPrivate()->summaryTable->horizontalScrollBar();
        QScrollBar *const main = view.getTableView()->horizontalScrollBar();
        QTRY_VERIFY(view.getTableView()->verticalScrollBar()->isVisible());
        view.resize(410, 300);
        QCoreApplication::processEvents();
        (byTheSummarysBar ? bar : main)->setValue(100);
        QCOMPARE(main->value(), 100);
        QCOMPARE(bar->value(), 100);
        QCOMPARE(bar->maximum(), main->maximum());
    }

    void aNewSummaryLooksLikeTheGrid()
    {
        ZrTableView view;
        view.setGridLineColor(Qt::red);
        view.setGridLineStyle(3);
        view.setColumnDefaultXMargin(6);
        view.setSummaryLineEnable(true);
        const ZrItemModelDeletagePrivate *const look =
            view.getPrivate()->summaryDelegate->getDelegatePrivate();
        QCOMPARE(look->gridColor, QColor(Qt::red));
        QCOMPARE(look->gridLineStyle, 3);
        QCOMPARE(look->columnXMargin, 6);
    }

    void alignmentReachesTheSummary()
    {
        Summed s;
        s.view.setColumnTextAlignment(1, Qt::AlignLeft);
        const ZrTableModel *const model = s.view.getPrivate()->summaryModel;
        QCOMPARE(model->index(0, 1).data(Qt::TextAlignmentRole).toInt(), int(Qt::AlignLeft));
        s.view.setColumnDefaultTextAlignment(Qt::AlignHCenter);
        QCOMPARE(model->index(0, 2).data(Qt::TextAlignmentRole).toInt(), int(Qt::AlignHCenter));
    }

    void viewThatDiesWithASummaryIsSafe()
    {
        ZrTableView *const view = new ZrTableView;
        kit::setUp(view, 4, 3);
        view->setSummaryLineEnable(true);
        view->addRecordData(kit::record(QStringLiteral("n"), 3));
        delete view;
    }
};

ZR_TEST_MAIN(TestZrTableSummary)
#include "tst_zrtablesummary.moc"
