#include "ZrPlainTable.h"
#include "ZrTableModel_p.h"
#include "ZrTestMain.h"
#include "ZrViewTestKit.h"

#include "zrdefine/VexlorFields.h"
#include "zrdefine/VexlorValues.h"

#include <QtCore/QLoggingCategory>
#include <QtCore/QRandomGenerator>

namespace {

constexpr int columns = 6;
constexpr int keys = 90;
constexpr int maximumRows = 60;

/// Drives a view with both sides frozen and the plain table with the same random operations.
class Drive
{
public:
    Drive(quint32 seed, bool filterable, bool delayed)
        : m_random(seed)
        , m_probes(seed)
    {
        view.setCheckBoxShow(true);
        view.setMaxRowCount(maximumRows);
        kit::setUp(&view, 0, columns);
        view.setFrozenColumns(1, true, 2);
        view.setFrozenColumns(2, true, 1);
        view.setSummaryLineEnable(true);
        if (delayed)
            view.setViewDelayDisplayTime(0);
        plain.keyColumns = {0};
        plain.maximum = maximumRows;
        plain.isDelayed = delayed;
        setFilterable(filterable);
    }

    void step()
    {
        const int kind = int(m_random.bounded(100));
        if (kind < 40)
            updateOne();
        else if (kind < 80)
            changeRows(kind);
        else if (kind < 90)
            removeSome(kind);
        else
            userDoes(kind);
    }

    /// Empty when the view shows what the plain table holds.
    QString difference()
    {
        if (view.getRowCount() != plain.shownCount())
            return QStringLiteral("%1 rows for %2").arg(view.getRowCount()).arg(plain.shownCount());
        if (view.getRowCount() == 0)
            return {};
        filteredSteps += view.getRowCount() < plain.rows.size() ? 1 : 0;
        const int row = int(m_probes.bounded(view.getRowCount()));
        const int modelRow = plain.modelRow(row);
        const RecordData expected = modelRow < 0 ? RecordData() : plain.rows.at(modelRow);
        RecordData shown = view.getRowData(row);
        return withoutState(shown) == withoutState(expected) ? QString() : QStringLiteral("row %1").arg(row);
    }

    /// Empty when each part of the table counts the rows that there are. Rows that left may be counted on
    /// until the event loop turns (`settled`), rows that came are there at once.
    QString partsDifference(bool settled) const
    {
        const QList<QTableView *> parts{view.getTableView(), view.getTableView()->frozenTable(1),
                                        view.getTableView()->frozenTable(2)};
        for (const QTableView *const part : parts) {
            const int counted = part->verticalHeader()->count();
            const int last = view.getRowCount() - 1;
            if (settled && last >= 0 && part->rowHeight(last) != view.getTableView()->rowHeight(last))
                return QStringLiteral("%1 has another height of row %2").arg(part->objectName()).arg(last);
            if (counted < view.getRowCount() || (settled && counted != view.getRowCount()))
                return QStringLiteral("%1 counts %2 of %3 rows")
                    .arg(part->objectName())
                    .arg(counted)
                    .arg(view.getRowCount());
        }
        return {};
    }

    bool isTold() const { return view.getZrTableModel()->getModelPrivate()->delayTimerId == 0; }

    ZrTableView view;
    ZrPlainTable plain;
    int filteredSteps = 0; // after which a filter hid some rows and left some

private:
    static RecordData withoutState(RecordData record)
    {
        record.remove(ZrRowStateColumn); // made on reading, at different times
        return record;
    }

    QString randomKey() { return QStringLiteral("k%1").arg(m_random.bounded(keys)); }
    RecordData randomRecord() { return kit::record(randomKey(), columns, int(m_random.bounded(50))); }

    RecordDataList randomRecords()
    {
        RecordDataList records;
        for (int left = int(m_random.bounded(6)); left >= 0; --left)
            records.append(randomRecord());
        return records;
    }

    int randomRow() { return int(m_random.bounded(qMax(1, view.getRowCount()))); }

    void updateOne()
    {
        const RecordData record{
            {0, kit::cell(randomKey())},
            {1 + int(m_random.bounded(columns - 1)), kit::cell(int(m_random.bounded(50)))}};
        view.updataRecordData(record);
        plain.update(record);
    }

    void changeRows(int kind)
    {
        if (kind < 55) {
            const RecordData record = randomRecord();
            view.addRecordData(record);
            plain.add(record);
        } else if (kind < 62) {
            const RecordDataList records = randomRecords();
            view.addRecordDataList(records);
            plain.addList(records);
        } else if (kind < 68) {
            const RecordData record = randomRecord();
            const int row = randomRow();
            view.insertRecordData(row, record);
            plain.insert(row, record);
        } else if (kind < 72) {
            const RecordDataList records = randomRecords();
            const int row = randomRow();
            view.insertRecordDataList(row, records);
            plain.insertList(row, records);
        } else if (kind < 79) {
            const RecordDataList records = randomRecords();
            view.updataRecordDatas(records);
            plain.updateMany(records);
        } else {
            const RecordDataList records = randomRecords();
            view.updateRecordDataList(records);
            plain.replaceAll(records);
        }
    }

    void removeSome(int kind)
    {
        if (kind < 86) {
            const RecordData record = randomRecord();
            view.deleteRecordData(record);
            plain.remove(record);
        } else if (kind < 89) {
            const RecordDataList records = randomRecords();
            view.deleteRecordDataList(records);
            plain.removeList(records);
        } else {
            const int row = randomRow();
            view.deleteRow(row);
            plain.removeRow(row);
        }
    }

    void userDoes(int kind)
    {
        if (kind < 92) {
            const Qt::SortOrder order = m_random.bounded(2) ? Qt::AscendingOrder : Qt::DescendingOrder;
            const int column = int(m_random.bounded(columns));
            // The head tells nobody of an indicator that is there already.
            if (view.sortIndicatorSection() == column && view.sortIndicatorOrder() == order)
                return;
            view.setSortIndicator(column, order);
            plain.sort(column, order);
        } else if (kind < 93) {
            setFilters(randomFilters());
        } else if (kind < 94) {
            view.setCurrentIndex(view.index(randomRow(), 0), m_random.bounded(2) == 0);
        } else if (kind < 96) {
            const int key = m_random.bounded(2) ? Qt::Key_Down : Qt::Key_PageUp;
            QTest::keyClick(view.getTableView()->frozenTable(1), Qt::Key(key));
        } else if (kind < 97) {
            setFilterable(!plain.isFilterable);
        } else if (kind < 98) {
            view.getTableView()->verticalScrollBar()->setValue(int(m_random.bounded(maximumRows)));
        } else if (kind < 99) {
            view.setFrozenColumns(2, m_random.bounded(4) != 0, 1);
            view.setFrozenColumns(2, true, 1);
        } else {
            const int row = randomRow();
            if (row < view.getRowCount()) {
                view.setCheckStatusByRow(row, true);
                plain.check(row, true);
            }
        }
    }

    void setFilterable(bool on)
    {
        view.setViewFilterable(on);
        plain.setFilterable(on);
        setFilters(randomFilters());
    }

    void setFilters(const ViewFilterList &filters)
    {
        view.resetViewCurrentFilterList(filters);
        view.getZrTableModel()->update(); // who sets filters resets the rows
        plain.setFilters(filters);
    }

    QVariantMap condition(const QString &comparison, int value)
    {
        return {{Vexlor_Fields::Infomation::compareOperator, comparison},
                {Vexlor_Fields::Infomation::logicOperator, Vexlor_Values::LogicOperator::andOperator},
                {Vexlor_Fields::System::filterValue, value}};
    }

    /// None, or conditions on one or two columns that let some of the rows through.
    ViewFilterList randomFilters()
    {
        namespace Compare = Vexlor_Values::CompareOperator;
        ViewFilterList filters;
        for (int left = int(m_random.bounded(3)); left > 0; --left) {
            const int low = int(m_random.bounded(30));
            const int column = 1 + int(m_random.bounded(columns - 1));
            filters[column] = {
                {condition(Compare::greaterOrEqual, low), condition(Compare::lessOrEqual, low + 20)},
                {condition(Compare::equal, int(m_random.bounded(50)))}};
        }
        return filters;
    }

    QRandomGenerator m_random;
    QRandomGenerator m_probes; // of their own: what is looked at changes nothing of what is done
};

} // namespace

/// A live grid with all parts attached under a storm of records and user actions.
class TestZrTableViewRandom : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase()
    {
        // Each batch writes a line; a hundred thousand of them would be most of the work.
        QLoggingCategory::setFilterRules(QStringLiteral("default.debug=false"));
    }

    void everyPartShowsTheRowsThatThereAre_data()
    {
        QTest::addColumn<quint32>("seed");
        QTest::addColumn<bool>("filterable");
        QTest::addColumn<bool>("delayed");
        QTest::newRow("at once") << quint32(11) << false << false;
        QTest::newRow("at once, filter mode") << quint32(12) << true << false;
        QTest::newRow("delayed") << quint32(13) << false << true;
        QTest::newRow("delayed, filter mode") << quint32(14) << true << true;
    }

    void everyPartShowsTheRowsThatThereAre()
    {
        QFETCH(quint32, seed);
        QFETCH(bool, filterable);
        QFETCH(bool, delayed);
        Drive drive(seed, filterable, delayed);
        for (int step = 0; step < 25000; ++step) {
            drive.step();
            QVERIFY2(drive.difference().isEmpty(),
                     qPrintable(QStringLiteral("step %1: %2").arg(step).arg(drive.difference())));
            const bool isSettled = step % 40 == 0;
            if (isSettled) {
                QCoreApplication::processEvents();
                // No event loop runs below this one that would let the thawed side tables go.
                QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
            }
            if (drive.isTold())
                QVERIFY2(drive.partsDifference(isSettled).isEmpty(),
                         qPrintable(
                             QStringLiteral("step %1: %2").arg(step).arg(drive.partsDifference(isSettled))));
            if (step % 1000 == 0)
                QVERIFY(!drive.view.grab().isNull());
        }
        // The mode is switched now and then, so each kind of run filters for a part of its steps.
        QVERIFY2(drive.filteredSteps > 2500, qPrintable(QString::number(drive.filteredSteps)));
        QCOMPARE(drive.view.getViewData().size(), drive.plain.rows.size());
        QTRY_VERIFY(drive.isTold());
        QTRY_COMPARE(drive.partsDifference(true), QString());
    }
};

ZR_TEST_MAIN(TestZrTableViewRandom)
#include "tst_zrtableviewrandom.moc"
