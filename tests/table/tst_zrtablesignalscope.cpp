#include "ZrTableFixture.h"
#include "ZrTestMain.h"

#include <QtTest/QAbstractItemModelTester>

namespace {

QStringList g_complaints;

void keepComplaints(QtMsgType, const QMessageLogContext &context, const QString &text)
{
    if (qstrcmp(context.category, "qt.modeltest") == 0)
        g_complaints.append(text);
}

} // namespace

/// The toolkit's model tester on the model, and persistent indexes under the required row signals.
class TestTableSignalScope : public QObject
{
    Q_OBJECT

private:
    // What the tester may complain of, and why it has to stay so:
    //  - its counters at rowsInserted: rows are announced after they came, so they were counted before;
    //  - its counters at rowsRemoved: deleted rows are announced after they went, a list of them with the
    //    positions from before, and a hidden one with -1;
    //  - the neighbours' texts: compared by row numbers that are positions in the model in filter mode.
    static bool isRequired(const QString &complaint)
    {
        const QStringList required{"c.oldSize", "rowCount(parent)", "c.last", "c.next",     "start",
                                   "end",       "oldSize",          "last",   "rowCount()", "hasIndex"};
        return std::any_of(required.cbegin(), required.cend(),
                           [&complaint](const QString &part) { return complaint.contains(part); });
    }

private slots:
    void theModelTesterHasNothingToSayOfPlainOperations()
    {
        ZrTableFixture t;
        const QAbstractItemModelTester tester(t.model,
                                              QAbstractItemModelTester::FailureReportingMode::QtTest);
        t.model->setCheckBoxShow(true);
        t.model->updateRecordDataList(t.rows({"a", "b", "c", "d"}));
        t.model->updataRecordData(t.row("b", 5));
        t.model->updataRecordDatas({t.row("a", 1), t.row("c", 2)});
        t.model->slotSortIndicatorChanged(3, Qt::DescendingOrder);
        t.fields->setFilterable(true);
        t.fields->setColumnFilter(2, t.atLeast(2));
        t.model->updataRecordData(t.row("a", 7)); // enters
        t.model->updataRecordData(t.row("b", 0)); // leaves
        t.model->updateCheckBoxData(t.model->index(0, 0), true);
        t.model->onStateChanged(2);
        t.model->setHeaderData(t.heads());
        QCOMPARE(t.model->rowCount(), 2);
    }

    void theModelTesterComplainsOnlyOfRequiredRanges()
    {
        g_complaints.clear();
        const QtMessageHandler before = qInstallMessageHandler(keepComplaints);
        {
            ZrTableFixture t;
            const QAbstractItemModelTester tester(t.model,
                                                  QAbstractItemModelTester::FailureReportingMode::Warning);
            t.model->setMaxRowCount(5);
            t.model->addRecordDataList(t.rows({"a", "b", "c"}));
            t.model->addRecordData(t.row("d"));
            t.model->insertRecordDataList(1, t.rows({"e", "f", "g"}));
            t.model->deleteRecordDataList(t.rows({"e", "f"}));
            t.model->deleteRecordData(t.row("a"));
            t.fields->setFilterable(true);
            t.fields->setColumnFilter(2, t.atLeast(5));
            t.model->deleteRecordData(t.row("g"));
        }
        qInstallMessageHandler(before);
        QVERIFY(!g_complaints.isEmpty());
        for (const QString &complaint : qAsConst(g_complaints))
            QVERIFY2(isRequired(complaint), qPrintable(complaint));
    }

    void aPersistentIndexStaysWithItsRecord()
    {
        ZrTableFixture t;
        t.model->addRecordDataList({t.row("a", 9), t.row("b", 1), t.row("c", 9), t.row("d", 9)});
        t.model->setMaxRowCount(4);
        t.fields->setFilterable(true);
        t.fields->setColumnFilter(2, t.atLeast(5));
        const QPersistentModelIndex c(t.model->index(1, 2));
        const QPersistentModelIndex d(t.model->index(2, 0));
        t.model->addRecordData(t.row("e", 9)); // a goes
        QCOMPARE(c.row(), 0);
        QCOMPARE(c.column(), 2);
        t.model->insertRecordData(0, t.row("f", 9)); // e goes, at the end
        QCOMPARE(c.row(), 1);
        t.model->deleteRecordDataList({t.row("f")});
        QCOMPARE(c.row(), 0);
        QCOMPARE(d.row(), 1);
        t.model->deleteRecordData(t.row("c"));
        QVERIFY(!c.isValid());
        QCOMPARE(d.row(), 0);
    }

    void aSelectionStaysWithItsRows()
    {
        ZrTableFixture t;
        t.model->addRecordDataList(t.rows({"a", "b", "c", "d", "e"}));
        t.view.setSelectionBehavior(QAbstractItemView::SelectRows);
        t.view.selectRow(4);
        t.model->deleteRecordDataList(t.rows({"a", "d"}));
        const QModelIndexList selected = t.view.selectionModel()->selectedRows();
        QCOMPARE(selected.size(), 1);
        QCOMPARE(selected.constFirst().row(), 2);
        QCOMPARE(t.model->makeRecordKey(t.model->getRowData(2)), QString("e"));
    }
};

ZR_TEST_MAIN(TestTableSignalScope)
#include "tst_zrtablesignalscope.moc"
