#include "ZrNumberRanges.h"
#include "ZrRoleKeys.h"
#include "ZrTestMain.h"

#include <limits>

namespace {
QString range(const QString &low, const QString &high)
{
    return low + QString::fromUtf8(" — ") + high;
}

QList<ItemRoleMap> cellsOf(const QVariantList &values)
{
    QList<ItemRoleMap> cells;
    for (const QVariant &value : values)
        cells.append({{ITEM_USERROLE, value}});
    return cells;
}

QStringList textsOf(const QList<ItemRoleMap> &choices)
{
    QStringList texts;
    for (const ItemRoleMap &choice : choices)
        texts.append(choice.value(ITEM_DISPLAYROLE).toString());
    return texts;
}

const qint64 Smallest = std::numeric_limits<qint64>::min();
const qint64 Largest = std::numeric_limits<qint64>::max();
} // namespace

class tst_ZrNumberRanges : public QObject
{
    Q_OBJECT

private slots:
    void integersAreCutAtRoundSteps_data();
    void integersAreCutAtRoundSteps();
    void doublesAreCutAtRoundSteps_data();
    void doublesAreCutAtRoundSteps();
    void valueIsTheRawOneOrTheShownOne();
    void leadingDigitSurvives_data();
    void leadingDigitSurvives();
    void hostileNumbersGiveFewRanges_data();
    void hostileNumbersGiveFewRanges();
};

void tst_ZrNumberRanges::integersAreCutAtRoundSteps_data()
{
    QTest::addColumn<QVariantList>("values");
    QTest::addColumn<QStringList>("expected");

    QTest::newRow("none") << QVariantList() << QStringList();
    QTest::newRow("one") << QVariantList({5}) << QStringList(range("5.00", "5.00"));
    QTest::newRow("100 to 9000, the seventh stretched")
        << QVariantList({100, 2000, 300, 9000, 4000, 100})
        << QStringList({range("0", "1000"), range("1000", "2000"), range("2000", "3000"),
                        range("3000", "4000"), range("4000", "5000"), range("5000", "6000"),
                        range("6000", "9000")});
    QTest::newRow("0 to 6000, the seventh past the end")
        << QVariantList({0, 1000, 2000, 3000, 4000, 5000, 6000})
        << QStringList({range("0", "1000"), range("1000", "2000"), range("2000", "3000"),
                        range("3000", "4000"), range("4000", "5000"), range("5000", "6000"),
                        range("6000", "7000")});
    QTest::newRow("all equal") << QVariantList({700, 700, 700}) << QStringList(range("700.00", "700.00"));
    QTest::newRow("step of one digit prints plain ranges")
        << QVariantList({0, 6}) << QStringList({range("0", "3"), range("3", "6"), range("6", "9")});
    QTest::newRow("closer than their number")
        << QVariantList({1, 2, 1, 2, 1, 2}) << QStringList(range("1.00", "2.00"));
    QTest::newRow("negative") << QVariantList({-250, -10})
                              << QStringList(
                                     {range("-300", "-200"), range("-200", "-100"), range("-100", "0")});
    QTest::newRow("texts compare as texts")
        << QVariantList({"9", "10"}) << QStringList(range("10.00", "9.00"));
}

void tst_ZrNumberRanges::integersAreCutAtRoundSteps()
{
    QFETCH(QVariantList, values);
    QFETCH(QStringList, expected);
    QCOMPARE(textsOf(ZrNumberRanges::ofIntegers(cellsOf(values))), expected);
}

void tst_ZrNumberRanges::doublesAreCutAtRoundSteps_data()
{
    QTest::addColumn<QVariantList>("values");
    QTest::addColumn<QStringList>("expected");

    QTest::newRow("none") << QVariantList() << QStringList();
    QTest::newRow("all equal") << QVariantList({1.5, 1.5}) << QStringList(range("1.00", "2.00"));
    QTest::newRow("a whole number alone") << QVariantList({3.0}) << QStringList(range("3.00", "3.00"));
    QTest::newRow("step below ten keeps its fraction")
        << QVariantList({0.0, 9.0})
        << QStringList({range("0.00", "4.50"), range("4.50", "9.00"), range("9.00", "13.50")});
    QTest::newRow("step of two digits is rounded down, the last range stretched")
        << QVariantList({0.0, 95.0})
        << QStringList({range("0", "40"), range("40", "80"), range("80", "120")});
    QTest::newRow("last range stretched to the end")
        << QVariantList({0.0, 190.0, 10.0, 20.0, 30.0, 40.0})
        << QStringList({range("0", "30"), range("30", "60"), range("60", "90"), range("90", "120"),
                        range("120", "150"), range("150", "180"), range("180", "210")});
    QTest::newRow("last range stretched over the steps that rounding lost")
        << QVariantList({0.0, 119.4, 10.0, 20.0, 30.0, 40.0})
        << QStringList({range("0", "10"), range("10", "20"), range("20", "30"), range("30", "40"),
                        range("40", "50"), range("50", "60"), range("60", "120")});
    // Each range's ends count as equal, while those of all values together do not.
    QTest::newRow("far from zero no range is left")
        << QVariantList({1e14, 1e14 + 300, 1e14, 1e14, 1e14, 1e14}) << QStringList();
    QTest::newRow("a step that rounds up to ten is lost")
        << QVariantList({0.0, 19.8}) << QStringList(range("0.00", "20.00"));
    QTest::newRow("invalid, endless and undefined values are skipped")
        << QVariantList({QVariant(), 1.5, qInf(), qQNaN(), -qInf()}) << QStringList(range("1.00", "2.00"));
}

void tst_ZrNumberRanges::doublesAreCutAtRoundSteps()
{
    QFETCH(QVariantList, values);
    QFETCH(QStringList, expected);
    QCOMPARE(textsOf(ZrNumberRanges::ofDoubles(cellsOf(values))), expected);
}

void tst_ZrNumberRanges::valueIsTheRawOneOrTheShownOne()
{
    const QList<ItemRoleMap> cells = {{{ITEM_USERROLE, 5}, {ITEM_DISPLAYROLE, 900}}, {{ITEM_DISPLAYROLE, 7}}};
    QCOMPARE(textsOf(ZrNumberRanges::ofIntegers(cells)),
             QStringList({range("5", "6"), range("6", "7"), range("7", "8")}));
}

void tst_ZrNumberRanges::leadingDigitSurvives_data()
{
    QTest::addColumn<double>("number");
    QTest::addColumn<double>("magnitude");
    QTest::addColumn<double>("expected");
    QTest::newRow("4738") << 4738.0 << 1000.0 << 4000.0;
    QTest::newRow("0") << 0.0 << 1.0 << 0.0;
    QTest::newRow("9") << 9.0 << 1.0 << 9.0;
    QTest::newRow("9.9 is written with two digits") << 9.9 << 10.0 << 0.0;
    QTest::newRow("the minus sign counts") << -5.0 << 10.0 << -10.0;
}

void tst_ZrNumberRanges::leadingDigitSurvives()
{
    QFETCH(double, number);
    QFETCH(double, magnitude);
    QFETCH(double, expected);
    QCOMPARE(ZrNumberRanges::magnitude(number), magnitude);
    QCOMPARE(ZrNumberRanges::leadingDigit(number), expected);
}

void tst_ZrNumberRanges::hostileNumbersGiveFewRanges_data()
{
    QTest::addColumn<QVariantList>("values");
    QTest::newRow("ends of the integers") << QVariantList({Smallest, Largest});
    QTest::newRow("smallest alone") << QVariantList({Smallest});
    QTest::newRow("largest alone") << QVariantList({Largest});
    QTest::newRow("smallest and zero") << QVariantList({Smallest, 0});
    QTest::newRow("many around the ends")
        << QVariantList({Smallest, Smallest + 1, -1, 0, 1, Largest - 1, Largest});
    QTest::newRow("unsigned") << QVariantList({0, std::numeric_limits<quint64>::max()});
    QTest::newRow("ends of the doubles") << QVariantList({-1.7e308, 1.7e308});
    QTest::newRow("smallest doubles") << QVariantList({5e-324, -5e-324});
    QTest::newRow("endless") << QVariantList({qInf(), -qInf()});
    QTest::newRow("undefined") << QVariantList({qQNaN(), qQNaN()});
    QTest::newRow("words") << QVariantList({"abc", "", "1e999", "nan"});
    // As texts the plus sign comes first, so the greatest number is the smallest text.
    QTest::newRow("signed words at the ends")
        << QVariantList({"-9000000000000000000", "+9000000000000000000"});
    QTest::newRow("invalid") << QVariantList({QVariant(), QVariant()});
    QTest::newRow("mixed") << QVariantList(
        {QDate(2024, 1, 1), 1, "x", 2.5, QVariantList({1}), QByteArray("9")});
}

void tst_ZrNumberRanges::hostileNumbersGiveFewRanges()
{
    QFETCH(QVariantList, values);
    const QList<ItemRoleMap> cells = cellsOf(values);
    const int most = qMin(values.size(), 6) + 1;
    QVERIFY(ZrNumberRanges::ofIntegers(cells).size() <= most);
    QVERIFY(ZrNumberRanges::ofDoubles(cells).size() <= most);
}

ZR_TEST_GUILESS_MAIN(tst_ZrNumberRanges)
#include "tst_zrnumberranges.moc"
