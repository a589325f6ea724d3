#include "ZrDistinctCells.h"
#include "ZrTestMain.h"

#include <ctime>
#include <random>

using CellList = QList<ItemRoleMap>;
Q_DECLARE_METATYPE(CellList)

namespace {
CellList plainScan(const CellList &cells)
{
    CellList kept;
    for (const ItemRoleMap &cell : cells) {
        if (!kept.contains(cell))
            kept.append(cell);
    }
    return kept;
}

CellList distinct(const CellList &cells)
{
    ZrDistinctCells kept;
    for (const ItemRoleMap &cell : cells)
        kept.add(cell);
    return kept.cells();
}

// NaN makes lists unequal to themselves, so the comparison goes by texts.
QString described(const CellList &cells)
{
    QString text;
    QDebug(&text) << cells;
    return text;
}
} // namespace

class tst_ZrDistinctCells : public QObject
{
    Q_OBJECT

private slots:
    void keepsWhatAPlainScanKeeps_data();
    void keepsWhatAPlainScanKeeps();
    void randomCellsKeepWhatAPlainScanKeeps();
    void addTellsWhetherTheCellIsNew();
    void aColumnOfPricesTakesNoQuadraticTime();
};

void tst_ZrDistinctCells::keepsWhatAPlainScanKeeps_data()
{
    QTest::addColumn<CellList>("cells");
    QTest::addColumn<int>("expected");

    const auto cell = [](const QVariant &value) { return ItemRoleMap({{"0", value}}); };
    const QDateTime moment(QDate(2024, 1, 1), QTime(8, 0), Qt::LocalTime);
    QTest::newRow("texts") << CellList({cell("a"), cell("b"), cell("a")}) << 2;
    QTest::newRow("empty cells") << CellList({{}, {}}) << 1;
    QTest::newRow("invalid values") << CellList({cell(QVariant()), cell(QVariant())}) << 1;
    QTest::newRow("other role") << CellList({{{"0", "a"}}, {{"256", "a"}}}) << 2;
    QTest::newRow("one role more") << CellList({{{"0", "a"}}, {{"0", "a"}, {"256", "a"}}}) << 2;
    QTest::newRow("same text, other raw value")
        << CellList({{{"0", "a"}, {"256", 1}}, {{"0", "a"}, {"256", 2}}}) << 2;
    QTest::newRow("numbers of two types") << CellList({cell(1), cell(1.0), cell(1LL)}) << 1;
    QTest::newRow("numbers that differ in the last bits") << CellList({cell(1.0), cell(1.0 + 1e-15)}) << 1;
    QTest::newRow("negative numbers that differ in the last bits")
        << CellList({cell(-3.1), cell(-3.1 - 4e-16)}) << 1;
    QTest::newRow("numbers that differ") << CellList({cell(1.0), cell(1.0 + 1e-9)}) << 2;
    QTest::newRow("number and its text") << CellList({cell(1), cell("1"), cell("2")}) << 2;
    QTest::newRow("NaN equals nothing") << CellList({cell(qQNaN()), cell(qQNaN())}) << 2;
    QTest::newRow("second number decides")
        << CellList({{{"0", 1}, {"256", 5}}, {{"0", 1}, {"256", 6}}, {{"0", 1}, {"256", 5}}}) << 2;
    QTest::newRow("dates") << CellList(
                                  {cell(QDate(2024, 1, 1)), cell(QDate(2024, 1, 2)), cell(QDate(2024, 1, 1))})
                           << 2;
    QTest::newRow("times") << CellList({cell(QTime(9, 0)), cell(QTime(9, 1)), cell(QTime(9, 0))}) << 2;
    QTest::newRow("one moment in two zones") << CellList({cell(moment), cell(moment.toUTC())}) << 1;
    QTest::newRow("invalid dates") << CellList({cell(QDate()), cell(QDate())}) << 1;
    QTest::newRow("lists") << CellList(
                                  {cell(QVariantList({1})), cell(QVariantList({1})), cell(QVariantList({2}))})
                           << 2;
    QTest::newRow("texts that run together")
        << CellList({{{"0", "a"}, {"1", "bc"}}, {{"0", "ab"}, {"1", "c"}}}) << 2;
}

void tst_ZrDistinctCells::keepsWhatAPlainScanKeeps()
{
    QFETCH(CellList, cells);
    QFETCH(int, expected);
    QCOMPARE(described(distinct(cells)), described(plainScan(cells)));
    QCOMPARE(distinct(cells).size(), expected);
}

void tst_ZrDistinctCells::randomCellsKeepWhatAPlainScanKeeps()
{
    std::mt19937 random(7);
    const QVariantList values = {1,       1.0, "1", 2, 2.5, "2.5",      QDate(2024, 1, 1), "2024-01-01",
                                 true,    "a", "",  0, -1,  QVariant(), 1.0 + 1e-15,       QTime(9, 0),
                                 qQNaN(), 3LL};
    for (int round = 0; round < 50; ++round) {
        CellList cells;
        for (int i = 0; i < 60; ++i) {
            ItemRoleMap cell;
            for (const char *role : {"0", "256"}) {
                if (random() % 4 != 0)
                    cell.insert(QLatin1String(role), values.at(int(random() % uint(values.size()))));
            }
            cells.append(cell);
        }
        QCOMPARE(described(distinct(cells)), described(plainScan(cells)));
    }
}

void tst_ZrDistinctCells::addTellsWhetherTheCellIsNew()
{
    ZrDistinctCells kept;
    QVERIFY(kept.add({{"0", "a"}}));
    QVERIFY(!kept.add({{"0", "a"}}));
    QVERIFY(kept.add({{"0", "b"}}));
}

void tst_ZrDistinctCells::aColumnOfPricesTakesNoQuadraticTime()
{
    // 100,000 different prices under one text: a scan of all kept ones would compare five billion times.
    ZrDistinctCells kept;
    const std::clock_t start = std::clock();
    const int count = 100000;
    for (int i = 0; i < count; ++i)
        kept.add({{"0", QString()}, {"256", i * 0.01}});
    QCOMPARE(kept.cells().size(), count);
    const double seconds = double(std::clock() - start) / CLOCKS_PER_SEC;
    QVERIFY2(seconds < 20, qPrintable(QString::number(seconds)));
}

ZR_TEST_GUILESS_MAIN(tst_ZrDistinctCells)
#include "tst_zrdistinctcells.moc"
