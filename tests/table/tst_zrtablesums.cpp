#include "ZrRunningTotal.h"
#include "ZrTableSums.h"
#include "ZrTableSumText.h"
#include "ZrTestMain.h"
#include "zrutils/ZrCommonUtils.h"

#include <cmath>
#include <limits>

class TestTableSums : public QObject
{
    Q_OBJECT

private slots:
    void totalsAreWrittenInFours_data()
    {
        QTest::addColumn<QVariant>("total");
        QTest::addColumn<QVariant>("expected");
        QTest::newRow("double") << QVariant(1234567.5) << QVariant("123  4567.50");
        QTest::newRow("float") << QVariant(1.5f) << QVariant("1.50");
        QTest::newRow("four digits stay together") << QVariant(1234) << QVariant("1234");
        QTest::newRow("five digits") << QVariant(12345) << QVariant("1  2345");
        QTest::newRow("minus and four digits") << QVariant(-1234) << QVariant("-1234");
        QTest::newRow("minus and five digits") << QVariant(-12345) << QVariant("-1  2345");
        QTest::newRow("unsigned") << QVariant(12345u) << QVariant("1  2345");
        QTest::newRow("long") << QVariant(123456789LL) << QVariant("1  2345  6789");
        QTest::newRow("unsigned long") << QVariant(12345ULL) << QVariant("1  2345");
        QTest::newRow("a text stays") << QVariant("12345") << QVariant("12345");
    }

    void totalsAreWrittenInFours()
    {
        QFETCH(QVariant, total);
        QFETCH(QVariant, expected);
        QCOMPARE(ZrTableSumText::of(total), expected);
        QCOMPARE(ZrTableSumText::of(total).userType(), int(QMetaType::QString));
    }

    void nothingDriftsWhenNumbersComeAndGo()
    {
        ZrRunningTotal total;
        for (int i = 0; i < 1000; ++i)
            total.count(0.1, 1);
        total.count(1e15, 1);
        total.count(-1e15, 1);
        for (int i = 0; i < 999; ++i)
            total.count(0.1, -1);
        QCOMPARE(total.total().toDouble() - 0.1, 0.0);
        total.count(0.1, -1);
        total.count(1e15, -1);
        total.count(-1e15, -1);
        QVERIFY(total.isEmpty());
        QCOMPARE(total.kinds(), 0);
    }

    void wholeNumbersKeepTheirTypeWhileTheyFit()
    {
        ZrRunningTotal total;
        total.count(std::numeric_limits<qlonglong>::max(), 1);
        QCOMPARE(total.total(), QVariant(std::numeric_limits<qlonglong>::max()));
        total.count(1, 1);
        QCOMPARE(total.total().userType(), int(QMetaType::ULongLong));
        total.count(std::numeric_limits<qulonglong>::max(), 1);
        QCOMPARE(total.total().userType(), int(QMetaType::Double));
        QCOMPARE(total.total().toDouble(), 9223372036854775808.0 * 3.0);
    }

    void negativeTotalsAreRounded()
    {
        ZrRunningTotal total;
        total.count(-2.5, 1);
        total.count(-1, 1);
        QCOMPARE(total.total(), QVariant(-3.5));
        QVERIFY(!total.count("text", 1));
    }

    // Half a unit in the last place rounds to even, unless something lies below it, however far.
    void whatLiesFarBelowDecidesATie_data()
    {
        QTest::addColumn<double>("below");
        QTest::addColumn<double>("expected");
        const double large = std::ldexp(1.0, 52);
        const double next = large + 1;
        QTest::newRow("nothing below") << 0.0 << large;
        QTest::newRow("a trace below") << std::ldexp(1.0, -100) << next;
        QTest::newRow("a trace missing") << -std::ldexp(1.0, -100) << large;
    }

    void whatLiesFarBelowDecidesATie()
    {
        QFETCH(double, below);
        QFETCH(double, expected);
        for (const double sign : {1.0, -1.0}) {
            ZrRunningTotal total;
            for (const double part : {std::ldexp(1.0, 52), 0.5, below})
                total.count(sign * part, 1);
            QCOMPARE(total.total().toDouble() - sign * expected, 0.0);
        }
    }

    void whatDoesNotFitIsOdd()
    {
        ZrRunningTotal total;
        for (const double odd : {1e30, 1e-300, qInf(), qQNaN()})
            total.count(odd, 1);
        QVERIFY(total.hasOdd());
        total.count(1e30, -1);
        QVERIFY(total.hasOdd());
    }

    void aHostThatSumsTheSameWayIsAgreedWith()
    {
        const RecordDataList rows{
            {{0, {{"256", 1.25}}}, {1, {{"256", 3}}}, {2, {{"0", "text"}}}, {3, {{"256", true}}}},
            {{0, {{"257", 2.5}}}, {1, {{"0", 4}}}, {3, {{"256", false}}}}};
        ZrTableSums sums;
        sums.start(rows);
        QVERIFY(sums.isCheckDue());
        sums.check(ZrCommonUtils::getTableViewSumRecord(rows, {}), {});
        QVERIFY(sums.agrees());
        QCOMPARE(sums.total(0), QVariant(3.75));
        QCOMPARE(sums.total(1), QVariant(7LL));
        QVERIFY(!sums.total(2).isValid());
        QVERIFY(!sums.total(9).isValid());
        sums.takeChangedColumns();
        sums.cellLeaves(1, {{"256", 3}});
        sums.cellEnters(1, {{"256", 5}});
        QCOMPARE(sums.takeChangedColumns(), QList<int>{1});
        QCOMPARE(sums.total(1), QVariant(9LL));
        QVERIFY(sums.agrees());
    }

    void aNewKindOfNumberAsksForAnotherCheck()
    {
        ZrTableSums sums;
        sums.start({{{0, {{"256", 1}}}}});
        sums.check({{0, {{"0", 1LL}}}}, {});
        QVERIFY(sums.agrees());
        sums.cellEnters(0, {{"256", 0.5}});
        QVERIFY(sums.isCheckDue());
        QVERIFY(!sums.agrees());
    }

    void aHostWithAnotherRuleIsNotAgreedWith_data()
    {
        QTest::addColumn<RecordData>("host");
        QTest::newRow("another value") << RecordData{{0, {{"0", 2LL}}}};
        QTest::newRow("another type") << RecordData{{0, {{"0", 1}}}};
        QTest::newRow("another column") << RecordData{{0, {{"0", 1LL}}}, {1, {{"0", 1LL}}}};
        QTest::newRow("no column") << RecordData();
    }

    void aHostWithAnotherRuleIsNotAgreedWith()
    {
        QFETCH(RecordData, host);
        ZrTableSums sums;
        sums.start({{{0, {{"256", 1}}}}});
        sums.check(host, {});
        QVERIFY(!sums.agrees());
        sums.check({{0, {{"0", 1LL}}}}, {});
        QVERIFY(sums.agrees());
    }

    void columnsLeftOutAreNotCompared()
    {
        ZrTableSums sums;
        sums.start({{{0, {{"256", 1}}}, {1, {{"256", 1}}}}});
        sums.check({{0, {{"0", 1LL}}}}, {1});
        QVERIFY(sums.agrees());
    }

    void nothingIsCountedBeforeTheStart()
    {
        ZrTableSums sums;
        sums.enters({{0, {{"256", 1}}}});
        sums.leaves({{0, {{"256", 1}}}});
        QVERIFY(!sums.isActive());
        QVERIFY(sums.takeChangedColumns().isEmpty());
    }
};

ZR_TEST_GUILESS_MAIN(TestTableSums)
#include "tst_zrtablesums.moc"
