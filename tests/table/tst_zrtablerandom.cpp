#include "zrdefine/VexlorFields.h"
#include "zrdefine/VexlorValues.h"
#include "ZrPlainTable.h"
#include "ZrTableModel_p.h"
#include "ZrTestMain.h"

#include <QtWidgets/QHeaderView>
#include <QtWidgets/QTableView>

#include <random>

/// Random sequences of the record families against the plain table, with a view attached.
class TestTableRandom : public QObject
{
    Q_OBJECT

private slots:
    // A line for each eviction would be the most of what this test writes.
    void initTestCase() { QLoggingCategory::setFilterRules("default.debug=false"); }
    void rowsKeysChecksAndSumsStayThoseOfThePlainTable_data();
    void rowsKeysChecksAndSumsStayThoseOfThePlainTable();

private:
    int pick(int count) { return count <= 0 ? 0 : int(m_random() % unsigned(count)); }
    RecordData makeRecord();
    RecordDataList makeRecords(int most);
    ViewFilterList makeFilters();
    void setUpModel(bool isFilterable, bool isDelayed, int keys);
    void changeRows();
    void changeCells();
    void removeRows();
    void rearrange();
    void step();
    void compare();
    void compareView();

    std::mt19937 m_random;
    QScopedPointer<QTableView> m_view;
    ZrTableModel *m_model = nullptr; // child of the view
    ZrPlainTable m_plain;
};

void TestTableRandom::rowsKeysChecksAndSumsStayThoseOfThePlainTable_data()
{
    QTest::addColumn<int>("keyColumns");
    QTest::addColumn<bool>("isFilterable");
    QTest::addColumn<bool>("isDelayed");
    QTest::newRow("all rows shown") << 1 << false << false;
    QTest::newRow("all rows shown, delayed") << 1 << false << true;
    QTest::newRow("filtered") << 1 << true << false;
    QTest::newRow("filtered, delayed") << 1 << true << true;
    QTest::newRow("two key columns that collide") << 2 << true << false;
    QTest::newRow("no key columns") << 0 << false << false;
}

RecordData TestTableRandom::makeRecord()
{
    RecordData record;
    const QString key = QString::number(pick(70));
    if (pick(50) > 0)
        record[0][pick(30) > 0 ? "256" : "0"] = key;
    if (pick(3) == 0)
        record[1]["0"] = QString("text %1").arg(pick(4));
    if (pick(2) == 0)
        record[2] = {{"0", QString::number(pick(9))}, {"256", pick(9)}};
    if (pick(2) == 0)
        record[3]["256"] = (pick(2000) - 1000) / 100.0;
    if (pick(6) == 0)
        record[-1]["256"] = pick(2) == 0;
    if (pick(5) == 0)
        record[4]["256"] = QString::number(pick(2));
    return record;
}

RecordDataList TestTableRandom::makeRecords(int most)
{
    RecordDataList records;
    for (int i = pick(most + 1); i > 0; --i)
        records.append(makeRecord());
    return records;
}

ViewFilterList TestTableRandom::makeFilters()
{
    ViewFilterList filters;
    if (pick(3) == 0)
        return filters;
    QVariantMap condition;
    condition[Vexlor_Fields::Infomation::compareOperator] = Vexlor_Values::CompareOperator::greaterOrEqual;
    condition[Vexlor_Fields::System::filterValue] = pick(9);
    filters[2] = {{condition}};
    return filters;
}

void TestTableRandom::setUpModel(bool isFilterable, bool isDelayed, int keys)
{
    m_view.reset(new QTableView);
    m_model = new ZrTableModel(m_view.data());
    m_plain = ZrPlainTable();
    m_view->setModel(m_model);
    HeadList heads;
    for (int column = 0; column < 5; ++column)
        heads.append({{"Head_ColumnIndex", column}, {"Head_DisplayRole", QString::number(column)}});
    m_model->setItemSelectable(true);
    m_model->setCheckBoxShow(true);
    m_model->setHeaderData(heads);
    m_plain.keyColumns = keys == 0 ? QList<int>() : keys == 1 ? QList<int>{0} : QList<int>{0, 4};
    m_model->setKeyColumn(m_plain.keyColumns);
    m_plain.maximum = 40;
    m_model->setMaxRowCount(40);
    m_model->getModelPrivate()->setFilterable(isFilterable);
    m_plain.setFilterable(isFilterable);
    m_plain.isDelayed = isDelayed;
    if (isDelayed)
        m_model->setViewDelayDisplayTime(0);
    m_view->resize(500, 300);
    m_view->show();
}

void TestTableRandom::changeRows()
{
    const int row = pick(50) - 3;
    const RecordData record = makeRecord();
    const RecordDataList records = makeRecords(pick(10) == 0 ? 60 : 5);
    switch (pick(5)) {
    case 0:
    case 1:
        m_model->addRecordData(record);
        m_plain.add(record);
        break;
    case 2:
        m_model->addRecordDataList(records);
        m_plain.addList(records);
        break;
    case 3:
        m_model->insertRecordData(row, record);
        m_plain.insert(row, record);
        break;
    default:
        m_model->insertRecordDataList(row, records);
        m_plain.insertList(row, records);
        break;
    }
}

void TestTableRandom::changeCells()
{
    const RecordData record = makeRecord();
    const RecordDataList records = makeRecords(6);
    const int row = pick(m_plain.shownCount());
    const bool isChecked = pick(2) == 0;
    switch (pick(8)) {
    case 0:
        m_model->updataRecordDatas(records);
        m_plain.updateMany(records);
        break;
    case 1:
        m_model->updateCheckBoxData(m_model->index(row, 0), isChecked);
        if (m_model->index(row, 0).isValid())
            m_plain.check(row, isChecked);
        break;
    default:
        m_model->updataRecordData(record);
        m_plain.update(record);
        break;
    }
}

void TestTableRandom::removeRows()
{
    const RecordData record = makeRecord();
    const RecordDataList records = makeRecords(5);
    const int row = pick(50) - 3;
    switch (pick(4)) {
    case 0:
    case 1:
        QCOMPARE(m_model->deleteRecordData(record), m_plain.remove(record));
        break;
    case 2:
        QCOMPARE(m_model->deleteRecordDataList(records), m_plain.removeList(records));
        break;
    default:
        m_model->deleteRow(row);
        m_plain.removeRow(row);
        break;
    }
}

void TestTableRandom::rearrange()
{
    const RecordDataList records = makeRecords(30);
    const ViewFilterList filters = makeFilters();
    const Qt::SortOrder order = pick(2) == 0 ? Qt::AscendingOrder : Qt::DescendingOrder;
    const int column = pick(4);
    switch (pick(6)) {
    case 0:
        m_model->updateRecordDataList(records);
        m_plain.replaceAll(records);
        break;
    case 1:
    case 2:
        m_model->slotSortIndicatorChanged(column + 1, order); // the check column stands first
        m_plain.sort(column, order);
        break;
    case 3:
        m_model->resetViewCurrentFilterList(filters);
        m_plain.setFilters(filters);
        m_model->update();
        break;
    case 4:
        m_view->setCurrentIndex(m_model->index(pick(m_model->rowCount()), 1));
        break;
    default:
        m_view->selectRow(pick(m_model->rowCount()));
        break;
    }
}

void TestTableRandom::step()
{
    const int kind = pick(100);
    if (kind < 35)
        changeRows();
    else if (kind < 75)
        changeCells();
    else if (kind < 93)
        removeRows();
    else
        rearrange();
}

// A row-state cell that holds nothing says nothing: the model makes it for all rows at once, also for those
// that the filter hides.
static RecordDataList withoutEmptyStates(RecordDataList records)
{
    for (RecordData &record : records) {
        if (record.contains(-1) && record.value(-1).isEmpty())
            record.remove(-1);
    }
    return records;
}

void TestTableRandom::compare()
{
    const ZrTableModelPrivate *fields = m_model->getModelPrivate();
    QCOMPARE(fields->invariantError(), QString());
    QCOMPARE(withoutEmptyStates(m_model->getModelData()), withoutEmptyStates(m_plain.rows));
    QCOMPARE(withoutEmptyStates(m_model->getViewCurrentDisplayData()),
             withoutEmptyStates(m_plain.shownRecords()));
    QCOMPARE(m_model->rowCount(), m_plain.shownCount());
    QCOMPARE(fields->columnTypes, m_plain.types);
    for (int key = 0; key < 70; ++key) {
        const QString text = QString::number(key);
        QCOMPARE(m_model->getRowByKey(text), m_plain.rowOfKey(text));
    }
    for (int row = 0; row < m_plain.shownCount(); ++row) {
        const int modelRow = m_plain.modelRow(row);
        const QVariant expected = modelRow < 0 ? QVariant() : m_plain.rows.at(modelRow).value(2).value("0");
        QCOMPARE(m_model->getIndexData(row, 2, Qt::DisplayRole), expected);
    }
    QCOMPARE(fields->sumRecordNow(), m_model->getSumRecord());
}

void TestTableRandom::compareView()
{
    if (m_model->getModelPrivate()->delayTimerId != 0)
        return;
    QCOMPARE(m_view->verticalHeader()->count(), m_plain.shownCount());
    const QModelIndexList selected = m_view->selectionModel()->selectedIndexes();
    for (const QModelIndex &index : selected)
        QVERIFY(index.row() < m_plain.shownCount());
    QVERIFY(m_view->currentIndex().row() < m_plain.shownCount());
}

void TestTableRandom::rowsKeysChecksAndSumsStayThoseOfThePlainTable()
{
    QFETCH(int, keyColumns);
    QFETCH(bool, isFilterable);
    QFETCH(bool, isDelayed);
    constexpr int runs = 10;
    constexpr int steps = 1700; // six rows of ten runs: some 100,000 operations
    for (unsigned run = 0; run < runs; ++run) {
        m_random.seed(run * 977 + unsigned(keyColumns));
        setUpModel(isFilterable, isDelayed, keyColumns);
        for (int i = 0; i < steps; ++i) {
            step();
            if (i % 5 == 0)
                compare();
            if (m_model->getModelPrivate()->headCheckState != m_plain.headState)
                QCOMPARE(m_model->getModelPrivate()->headCheckState, m_plain.headState);
            compareView();
            if (i % 40 == 0)
                QCoreApplication::processEvents(); // lets the view paint and a delayed refresh come
            if (QTest::currentTestFailed()) {
                qCritical("run %u, step %d", run, i);
                return;
            }
        }
    }
}

ZR_TEST_MAIN(TestTableRandom)
#include "tst_zrtablerandom.moc"
