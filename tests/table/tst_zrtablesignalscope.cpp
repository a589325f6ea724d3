#include "ZrTableFixture.h"
#include "ZrTestMain.h"

#include <QtCore/QRegularExpression>
#include <QtTest/QAbstractItemModelTester>

namespace {

QStringList g_complaints;

// The tester names the two expressions that differ; the numbers and the place in its source go.
QString expressions(const QString &complaint)
{
    static const QRegularExpression whole(
        QStringLiteral("Actual +\\((.*)\\) \\S+\\s+Expected +\\((.*)\\) \\S+\\s"));
    const QRegularExpressionMatch match = whole.match(complaint);
    return match.hasMatch() ? match.captured(1) + QStringLiteral(" == ") + match.captured(2) : complaint;
}

void keepComplaints(QtMsgType, const QMessageLogContext &context, const QString &text)
{
    if (qstrcmp(context.category, "qt.modeltest") == 0)
        g_complaints.append(expressions(text));
}

// All that the tester may complain of, and why it has to stay so:
//  - rows are announced after they came, so that they were counted before: the add and insert families;
const QString c_cameBefore = QStringLiteral("model->rowCount(parent) == c.oldSize + (end - start + 1)");
//  - rows are announced after they went, a list of them with the positions from before, and a hidden one with
//    -1: the delete family.
const QString c_wentBefore = QStringLiteral("model->rowCount(parent) == c.oldSize - (end - start + 1)");

using Operation = void (*)(ZrTableFixture &);

} // namespace

Q_DECLARE_METATYPE(Operation)

/// The toolkit's model tester on the model, and persistent indexes under the required row signals.
class TestTableSignalScope : public QObject
{
    Q_OBJECT

private:
    static RecordData hide(ZrTableFixture &t)
    {
        t.fields->setFilterable(true);
        t.fields->setColumnFilter(2, t.atLeast(5));
        return t.row("b");
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

    void theModelTesterComplainsOnlyOfRequiredRanges_data()
    {
        QTest::addColumn<Operation>("operation");
        QTest::addColumn<QStringList>("expected");
        const auto row = [](const char *name, Operation operation, const QStringList &expected) {
            QTest::newRow(name) << operation << expected;
        };
        const QStringList came{c_cameBefore};
        const QStringList went{c_wentBefore};
        row(
            "add", [](ZrTableFixture &t) { t.model->addRecordData(t.row("e")); }, came);
        row(
            "add list",
            [](ZrTableFixture &t) {
                t.model->addRecordDataList(t.rows({"e", "f"}));
            },
            came);
        row(
            "insert", [](ZrTableFixture &t) { t.model->insertRecordData(1, t.row("e")); }, came);
        row(
            "insert list",
            [](ZrTableFixture &t) {
                t.model->insertRecordDataList(1, t.rows({"e", "f"}));
            },
            came);
        row(
            "delete", [](ZrTableFixture &t) { t.model->deleteRecordData(t.row("a")); }, went);
        row(
            "delete list",
            [](ZrTableFixture &t) {
                t.model->deleteRecordDataList(t.rows({"a", "c"}));
            },
            went + went);
        row(
            "delete row", [](ZrTableFixture &t) { t.model->deleteRow(1); }, went);
        row(
            "delete hidden", [](ZrTableFixture &t) { t.model->deleteRecordData(hide(t)); }, went);
        row(
            "delete list of hidden", [](ZrTableFixture &t) { t.model->deleteRecordDataList({hide(t)}); },
            went);
        row(
            "add to a full table",
            [](ZrTableFixture &t) {
                t.model->setMaxRowCount(4);
                t.model->addRecordData(t.row("e"));
            },
            came);
    }

    void theModelTesterComplainsOnlyOfRequiredRanges()
    {
        QFETCH(Operation, operation);
        QFETCH(QStringList, expected);
        g_complaints.clear();
        ZrTableFixture t;
        t.model->addRecordDataList({t.row("a", 9), t.row("b", 1), t.row("c", 9), t.row("d", 9)});
        const QtMessageHandler before = qInstallMessageHandler(keepComplaints);
        {
            const QAbstractItemModelTester tester(t.model,
                                                  QAbstractItemModelTester::FailureReportingMode::Warning);
            operation(t);
        }
        qInstallMessageHandler(before);
        QCOMPARE(g_complaints, expected);
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
