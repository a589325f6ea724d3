#include "ZrTestMain.h"
#include "zrutils/ZrCommonUtils.h"

#include <QtCore/QByteArray>

#include <cmath>
#include <limits>

namespace {
const QString raw = QStringLiteral("256");
const QString spare = QStringLiteral("257");
const QString shown = QStringLiteral("0");
constexpr qint64 greatest = std::numeric_limits<qint64>::max();
constexpr qint64 least = std::numeric_limits<qint64>::min();

RecordDataList rowsOf(const QVariantList &values)
{
    RecordDataList rows;
    for (const QVariant &value : values) {
        RecordData row;
        row[4].insert(raw, value);
        rows.append(row);
    }
    return rows;
}

QVariant totalOf(const QVariantList &values)
{
    return ZrCommonUtils::getTableViewSumRecord(rowsOf(values), {}).value(4).value(shown);
}

/// A whole number of any size, for sums of doubles counted in units of 2^-1074: slow and plain.
class BigInteger
{
public:
    /// Adds value times 2^1074, bit by bit.
    void add(double value)
    {
        int exponent = 0;
        const double fraction = std::frexp(std::fabs(value), &exponent);
        const auto mantissa = static_cast<quint64>(std::ldexp(fraction, 53));
        for (int bit = 0; bit < 53; ++bit) {
            const int position = exponent - 53 + bit + 1074;
            if (mantissa >> bit & 1)
                addBit(position, value < 0 ? -1 : 1);
        }
    }
    /// The nearest double, ties to even.
    double nearest() const
    {
        const bool negative = isNegative();
        const QVector<int> bits = magnitude(negative);
        int top = bits.size() - 1;
        while (top >= 0 && bits.at(top) == 0)
            --top;
        if (top < 0)
            return 0;
        const int bottom = std::max(0, top - 52);
        quint64 mantissa = 0;
        for (int bit = top; bit >= bottom; --bit)
            mantissa = mantissa << 1 | quint64(bits.at(bit));
        const bool half = bottom > 0 && bits.at(bottom - 1) != 0;
        bool below = false;
        for (int bit = 0; bit < bottom - 1; ++bit)
            below = below || bits.at(bit) != 0;
        if (half && (below || (mantissa & 1)))
            ++mantissa;
        const double result = std::ldexp(double(mantissa), bottom - 1074);
        return negative ? -result : result;
    }

private:
    static constexpr int width = 2200;
    void addBit(int position, int by)
    {
        // Two's complement, one bit a place.
        for (int carry = by; carry != 0 && position < width; ++position) {
            const int sum = m_bits[position] + carry;
            m_bits[position] = sum & 1;
            carry = sum < 0 ? -1 : sum >> 1;
        }
    }
    bool isNegative() const { return m_bits[width - 1] != 0; }
    QVector<int> magnitude(bool negative) const
    {
        BigInteger copy = *this;
        if (negative) {
            for (int &bit : copy.m_bits)
                bit = 1 - bit;
            copy.addBit(0, 1);
        }
        return copy.m_bits;
    }

    QVector<int> m_bits = QVector<int>(width, 0);
};
} // namespace

class TestRecordSum : public QObject
{
    Q_OBJECT
private slots:
    void aColumnOfNumbersHasATotal_data();
    void aColumnOfNumbersHasATotal();
    void aTotalStandsUnderRoleZeroAlone();
    void noRowsGiveAnEmptyRecord();
    void aColumnWithoutANumberHasNoTotal_data();
    void aColumnWithoutANumberHasNoTotal();
    void theFirstRolePresentIsTheValue();
    void rowStateAndLeftOutColumnsHaveNoTotal();
    void rowsWithDifferentColumnsAddUp();
    void randomDoublesGiveTheExactSumRoundedOnce();
    void theOrderOfTheRowsDoesNotShow();
    void aMillionCentsGiveWholeYuan();
};

void TestRecordSum::aColumnOfNumbersHasATotal_data()
{
    QTest::addColumn<QVariantList>("values");
    QTest::addColumn<QVariant>("expected");
    const double nan = std::numeric_limits<double>::quiet_NaN();
    QTest::newRow("ints") << QVariantList{1, 2, -4} << QVariant(Q_INT64_C(-1));
    QTest::newRow("an int beside an unsigned one") << QVariantList{1, 2u} << QVariant(Q_INT64_C(3));
    QTest::newRow("exact above 2^53")
        << QVariantList{(Q_INT64_C(1) << 53) + 1, 1} << QVariant((Q_INT64_C(1) << 53) + 2);
    QTest::newRow("greatest signed") << QVariantList{greatest - 1, 1} << QVariant(greatest);
    QTest::newRow("above signed") << QVariantList{greatest, 1} << QVariant(quint64(greatest) + 1);
    QTest::newRow("greatest unsigned") << QVariantList{~quint64(0) - 1, 1} << QVariant(~quint64(0));
    QTest::newRow("above unsigned") << QVariantList{~quint64(0), 1} << QVariant(18446744073709551616.0);
    QTest::newRow("out of range and back")
        << QVariantList{greatest, greatest, least} << QVariant(greatest - 1);
    QTest::newRow("least signed") << QVariantList{least + 1, -1} << QVariant(least);
    QTest::newRow("below signed") << QVariantList{least, -1} << QVariant(-9223372036854775808.0);
    QTest::newRow("doubles") << QVariantList{0.5, 0.25} << QVariant(0.75);
    QTest::newRow("a double among ints") << QVariantList{1, 0.5} << QVariant(1.5);
    QTest::newRow("a float is a double") << QVariantList{0.5f} << QVariant(0.5);
    QTest::newRow("tenths without drift")
        << QVariantList{0.1, 0.1, 0.1, 0.1, 0.1, 0.1, 0.1, 0.1, 0.1, 0.1} << QVariant(1.0);
    QTest::newRow("what cancels leaves the rest") << QVariantList{1e300, 1.0, -1e300} << QVariant(1.0);
    QTest::newRow("subnormal") << QVariantList{5e-324, 5e-324} << QVariant(1e-323);
    QTest::newRow("overflow") << QVariantList{1e308, 1e308} << QVariant(HUGE_VAL);
    QTest::newRow("overflow and back") << QVariantList{1e308, 1e308, -1e308} << QVariant(1e308);
    QTest::newRow("infinity") << QVariantList{HUGE_VAL, 1} << QVariant(HUGE_VAL);
    QTest::newRow("minus infinity") << QVariantList{-HUGE_VAL, 1.0} << QVariant(-HUGE_VAL);
    QTest::newRow("both infinities") << QVariantList{HUGE_VAL, -HUGE_VAL} << QVariant(nan);
    QTest::newRow("NaN") << QVariantList{nan, 1.0} << QVariant(nan);
    QTest::newRow("texts add nothing") << QVariantList{QStringLiteral("5"), 1} << QVariant(Q_INT64_C(1));
}

void TestRecordSum::aColumnOfNumbersHasATotal()
{
    QFETCH(QVariantList, values);
    QFETCH(QVariant, expected);
    const QVariant total = totalOf(values);
    QCOMPARE(total.userType(), expected.userType());
    if (std::isnan(expected.toDouble()))
        QVERIFY(std::isnan(total.toDouble()));
    else
        QCOMPARE(total.toString(), expected.toString());
}

void TestRecordSum::aTotalStandsUnderRoleZeroAlone()
{
    const RecordData sum = ZrCommonUtils::getTableViewSumRecord(rowsOf({1}), {});
    QCOMPARE(sum.keys(), QList<int>{4});
    QCOMPARE(sum.value(4).keys(), QList<QString>{shown});
}

void TestRecordSum::noRowsGiveAnEmptyRecord()
{
    QVERIFY(ZrCommonUtils::getTableViewSumRecord({}, {}).isEmpty());
}

void TestRecordSum::aColumnWithoutANumberHasNoTotal_data()
{
    QTest::addColumn<QVariant>("value");
    QTest::newRow("text like a number") << QVariant(QStringLiteral("12"));
    QTest::newRow("truth value") << QVariant(true);
    QTest::newRow("date") << QVariant(QDate(2026, 1, 1));
    QTest::newRow("nothing") << QVariant();
}

void TestRecordSum::aColumnWithoutANumberHasNoTotal()
{
    QFETCH(QVariant, value);
    QVERIFY(ZrCommonUtils::getTableViewSumRecord(rowsOf({value}), {}).isEmpty());
}

void TestRecordSum::theFirstRolePresentIsTheValue()
{
    RecordData row;
    row[0].insert(shown, 1);
    row[1].insert(shown, 1);
    row[1].insert(spare, 2);
    row[2].insert(spare, 2);
    row[2].insert(raw, 3);
    row[3].insert(QStringLiteral("3"), 4);
    const RecordData sum = ZrCommonUtils::getTableViewSumRecord({row}, {});
    QCOMPARE(sum.keys(), (QList<int>{0, 1, 2}));
    for (int column = 0; column < 3; ++column)
        QCOMPARE(sum.value(column).value(shown).toInt(), column + 1);
}

void TestRecordSum::rowStateAndLeftOutColumnsHaveNoTotal()
{
    RecordData row;
    for (const int column : {-2, -1, 0, 1})
        row[column].insert(raw, 1);
    QCOMPARE(ZrCommonUtils::getTableViewSumRecord({row}, {1}).keys(), QList<int>{0});
}

void TestRecordSum::rowsWithDifferentColumnsAddUp()
{
    RecordDataList rows;
    for (int i = 0; i < 20; ++i) {
        RecordData row;
        for (int column = i % 5; column < 20; column += 1 + i % 3)
            row[(column * 7) % 20].insert(raw, column);
        rows.append(row);
    }
    const RecordData sum = ZrCommonUtils::getTableViewSumRecord(rows, {});
    for (int column = 0; column < 20; ++column) {
        qint64 expected = 0;
        for (const RecordData &row : rows)
            expected += row.value(column).value(raw).toLongLong();
        QCOMPARE(sum.value(column).value(shown).toLongLong(), expected);
    }
}

void TestRecordSum::randomDoublesGiveTheExactSumRoundedOnce()
{
    QRandomGenerator random(11);
    for (int round = 0; round < 200; ++round) {
        const int spread = round % 4 == 0 ? 2000 : round % 4 == 1 ? 110 : 4;
        QVariantList values;
        BigInteger exact;
        for (int i = random.bounded(1, 12); i > 0; --i) {
            const double value =
                std::ldexp(random.generateDouble() - 0.5, random.bounded(spread) - spread / 2);
            values.append(value);
            exact.add(value);
        }
        QCOMPARE(QString::number(totalOf(values).toDouble(), 'g', 17),
                 QString::number(exact.nearest(), 'g', 17));
    }
}

void TestRecordSum::theOrderOfTheRowsDoesNotShow()
{
    QRandomGenerator random(12);
    QVariantList values;
    for (int i = 0; i < 1000; ++i)
        values.append((random.generateDouble() - 0.5) * std::pow(10, random.bounded(16)));
    const double total = totalOf(values).toDouble();
    std::reverse(values.begin(), values.end());
    QVERIFY(totalOf(values).toDouble() == total);
    std::sort(values.begin(), values.end(),
              [](const QVariant &a, const QVariant &b) { return a.toDouble() < b.toDouble(); });
    QVERIFY(totalOf(values).toDouble() == total);
}

void TestRecordSum::aMillionCentsGiveWholeYuan()
{
    // Added one by one in doubles, this comes to 10000.000000171856.
    RecordDataList rows;
    RecordData row;
    row[4].insert(raw, 0.01);
    for (int i = 0; i < 1000000; ++i)
        rows.append(row);
    QCOMPARE(QString::number(ZrCommonUtils::getTableViewSumRecord(rows, {}).value(4).value(shown).toDouble(),
                             'g', 16),
             QStringLiteral("10000"));
}

ZR_TEST_GUILESS_MAIN(TestRecordSum)
#include "tst_zrrecordsum.moc"
