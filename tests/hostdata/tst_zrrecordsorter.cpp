#include "ZrTestMain.h"
#include "zrutils/ZrCommonUtils.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace {
const QString raw = QStringLiteral("256");
const QString spare = QStringLiteral("257");
const QString shown = QStringLiteral("0");
constexpr int numberColumn = 900; // where a row notes its place before the sort

using Keys = QList<QPair<int, Qt::SortOrder>>;

RecordData rowOf(int place, const QVariant &value, const QString &role = raw)
{
    RecordData row;
    row[numberColumn].insert(raw, place);
    row[1].insert(role, value);
    return row;
}

RecordDataList rowsOf(const QVariantList &values)
{
    RecordDataList rows;
    for (int i = 0; i < values.size(); ++i)
        rows.append(rowOf(i, values.at(i)));
    return rows;
}

QList<int> placesOf(const RecordDataList &rows)
{
    QList<int> places;
    for (const RecordData &row : rows)
        places.append(row.value(numberColumn).value(raw).toInt());
    return places;
}

QList<int> sortedPlaces(const QVariantList &values, Qt::SortOrder order = Qt::AscendingOrder)
{
    RecordDataList rows = rowsOf(values);
    ZrCommonUtils::sortTableViewRecordListByKeys(rows, {{1, order}});
    return placesOf(rows);
}

/// The plain reference: one comparison written out, and the standard stable sort.
class Reference
{
public:
    explicit Reference(const Keys &keys)
        : m_keys(keys)
    {
    }
    bool operator()(const RecordData &a, const RecordData &b) const
    {
        for (const auto &key : m_keys) {
            const int order = compare(value(a, key.first), value(b, key.first));
            if (order != 0)
                return key.second == Qt::DescendingOrder ? order > 0 : order < 0;
        }
        return false;
    }

private:
    static QVariant value(const RecordData &row, int column)
    {
        const ItemRoleMap cell = row.value(column);
        for (const QString &role : {raw, spare, shown}) {
            if (cell.contains(role))
                return cell.value(role);
        }
        return QVariant();
    }
    static int rank(const QVariant &value)
    {
        switch (value.userType()) {
        case QMetaType::Bool:
        case QMetaType::Int:
        case QMetaType::UInt:
        case QMetaType::LongLong:
        case QMetaType::ULongLong:
        case QMetaType::Double:
        case QMetaType::Float:
            return 1;
        case QMetaType::QDate:
            return value.toDate().isValid() ? 2 : 0;
        case QMetaType::QDateTime:
            return value.toDateTime().isValid() ? 2 : 0;
        case QMetaType::QTime:
            return value.toTime().isValid() ? 3 : 0;
        default:
            return value.isValid() ? 4 : 0;
        }
    }
    // 64 bits of mantissa hold every whole number of 64 bits as well as every double.
    static long double number(const QVariant &value)
    {
        static_assert(std::numeric_limits<long double>::digits >= 64, "this reference needs a long mantissa");
        if (value.userType() == QMetaType::ULongLong)
            return value.toULongLong();
        if (value.userType() == QMetaType::Double || value.userType() == QMetaType::Float)
            return value.toDouble();
        return value.toLongLong();
    }
    static qint64 moment(const QVariant &value)
    {
        return value.userType() == QMetaType::QDate ? value.toDate().startOfDay().toMSecsSinceEpoch()
                                                    : value.toDateTime().toMSecsSinceEpoch();
    }
    template<typename T>
    static int order(const T &a, const T &b)
    {
        return a < b ? -1 : (b < a ? 1 : 0);
    }
    static int compare(const QVariant &a, const QVariant &b)
    {
        if (rank(a) != rank(b))
            return order(rank(a), rank(b));
        switch (rank(a)) {
        case 1:
            if (std::isnan(number(a)) || std::isnan(number(b)))
                return order(!std::isnan(number(a)), !std::isnan(number(b)));
            return order(number(a), number(b));
        case 2:
            return order(moment(a), moment(b));
        case 3:
            return order(a.toTime(), b.toTime());
        case 4:
            return order(a.toString().toUcs4(), b.toString().toUcs4());
        default:
            return 0;
        }
    }

    const Keys m_keys;
};

enum Flavor { Reals, Wholes, MixedNumbers, Latin, Chinese, Orders, Moments, Mixed, FlavorCount };

QVariant randomText(QRandomGenerator &random, Flavor flavor)
{
    static const uint points[] = {0, 'A', 'b', 'z', 0x4E2D, 0x6587, 0xD7FF, 0xE000, 0xFFFD, 0x1F600, 0x20000};
    if (flavor == Orders)
        return QStringLiteral("ORD-2026-%1").arg(random.bounded(100000), 6, 10, QLatin1Char('0'));
    QString text;
    const int size = random.bounded(12);
    for (int i = 0; i < size; ++i) {
        const uint point = points[random.bounded(flavor == Latin ? 4 : 11)];
        text.append(QString::fromUcs4(&point, 1));
    }
    return text;
}

QVariant randomNumber(QRandomGenerator &random, Flavor flavor)
{
    const qint64 great = (Q_INT64_C(1) << 53) + random.bounded(4);
    switch (flavor == Reals ? 0 : flavor == Wholes ? 1 : random.bounded(6)) {
    case 0:
        return random.bounded(50) == 0 ? std::numeric_limits<double>::quiet_NaN()
                                       : (random.bounded(2000) - 1000) / 8.0;
    case 1:
        return random.bounded(2) ? QVariant(random.bounded(2000) - 1000)
                                 : QVariant(std::numeric_limits<qint64>::min() + random.bounded(5));
    case 2:
        return great;
    case 3:
        return double(great);
    case 4:
        return std::numeric_limits<quint64>::max() - quint64(random.bounded(3));
    default:
        return random.bounded(2) == 0;
    }
}

QVariant randomValue(QRandomGenerator &random, Flavor flavor)
{
    switch (flavor) {
    case Reals:
    case Wholes:
    case MixedNumbers:
        return randomNumber(random, flavor);
    case Latin:
    case Chinese:
    case Orders:
        return randomText(random, flavor);
    case Moments: {
        const QDate date = QDate(2026, 1, 1).addDays(random.bounded(400));
        switch (random.bounded(4)) {
        case 0:
            return date;
        case 1:
            return QDate();
        case 2:
            return QTime::fromMSecsSinceStartOfDay(random.bounded(86400000));
        default:
            return QDateTime(date, QTime::fromMSecsSinceStartOfDay(random.bounded(86400000)));
        }
    }
    default:
        return randomValue(random, Flavor(random.bounded(int(Mixed))));
    }
}

RecordDataList randomRows(QRandomGenerator &random, int count, Flavor flavor)
{
    static const QString roles[] = {raw, raw, spare, shown, QStringLiteral("3")};
    RecordDataList rows;
    for (int i = 0; i < count; ++i) {
        RecordData row;
        row[numberColumn].insert(raw, i);
        for (int column = 0; column < 3; ++column) {
            if (random.bounded(10) != 0)
                row[column].insert(roles[random.bounded(5)],
                                   randomValue(random, column == 0 ? flavor : Mixed));
        }
        rows.append(row);
    }
    return rows;
}
} // namespace

class TestRecordSorter : public QObject
{
    Q_OBJECT
private slots:
    void oneColumnSortsByTheKindOfItsValues_data();
    void oneColumnSortsByTheKindOfItsValues();
    void randomRowsComeOutAsThePlainReferenceSortsThem_data();
    void randomRowsComeOutAsThePlainReferenceSortsThem();
    void equalValuesKeepTheirOrderInBothDirections();
    void theFirstRolePresentIsTheValue();
    void laterKeysDecideBetweenEqualRows();
    void anAbsentColumnKeepsTheOrder();
    void theRowStateCellSortsByItsCheckState();
    void aListSharedWithAnotherLeavesThatOneAlone();
    void theRowsMoveWithoutACopyOfTheirCells();
    void theAnswerIsTheNumberOfRows();
    void longTextsThatDifferLateAreSorted();
    void threadsSortTheirOwnListsAtOnce();
};

void TestRecordSorter::oneColumnSortsByTheKindOfItsValues_data()
{
    QTest::addColumn<QVariantList>("values");
    QTest::addColumn<QList<int>>("expected");
    const QDate day(2026, 3, 1);
    const qint64 great = (Q_INT64_C(1) << 53) + 1;
    const double notNumber = std::numeric_limits<double>::quiet_NaN();
    QTest::newRow("numbers by value, not by text") << QVariantList{10, 9, -1} << QList<int>{2, 1, 0};
    QTest::newRow("whole beside decimal numbers") << QVariantList{2, 1.5, 1} << QList<int>{2, 1, 0};
    QTest::newRow("neighbours above 2^53")
        << QVariantList{double(great - 1), great, great - 1} << QList<int>{0, 2, 1};
    QTest::newRow("unsigned above signed") << QVariantList{~quint64(0), 1, -1} << QList<int>{2, 1, 0};
    QTest::newRow("unsigned alone") << QVariantList{~quint64(0), ~quint64(0) - 1} << QList<int>{1, 0};
    QTest::newRow("both zeros are equal") << QVariantList{0.0, -0.0, 0.0} << QList<int>{0, 1, 2};
    QTest::newRow("infinities at the ends") << QVariantList{HUGE_VAL, 0.0, -HUGE_VAL} << QList<int>{2, 1, 0};
    QTest::newRow("NaN below every number") << QVariantList{-HUGE_VAL, notNumber} << QList<int>{1, 0};
    QTest::newRow("least whole number")
        << QVariantList{0, std::numeric_limits<qint64>::min()} << QList<int>{1, 0};
    QTest::newRow("dates") << QVariantList{day, day.addDays(-1)} << QList<int>{1, 0};
    QTest::newRow("a date is its first instant")
        << QVariantList{QDateTime(day, QTime(0, 1)), day, QDateTime(day.addDays(-1), QTime(23, 59))}
        << QList<int>{2, 1, 0};
    QTest::newRow("moments of two zones by the instant")
        << QVariantList{QDateTime(day, QTime(9, 0), Qt::UTC),
                        QDateTime(day, QTime(10, 0), Qt::OffsetFromUTC, 8 * 3600)}
        << QList<int>{1, 0};
    QTest::newRow("local time, a day and UTC by the instant")
        << QVariantList{QDateTime(day, QTime(12, 0)).toUTC().addSecs(1), QDateTime(day, QTime(12, 0)), day}
        << QList<int>{2, 1, 0};
    QTest::newRow("times of day") << QVariantList{QTime(14, 0), QTime(9, 30)} << QList<int>{1, 0};
    QTest::newRow("an invalid date is no value")
        << QVariantList{day, QDate(), QTime()} << QList<int>{1, 2, 0};
    QTest::newRow("no value below an empty text") << QVariantList{QString(), QVariant()} << QList<int>{1, 0};
    QTest::newRow("upper case before lower, as code points are")
        << QVariantList{QStringLiteral("a"), QStringLiteral("B")} << QList<int>{1, 0};
    QTest::newRow("a character beyond the first plane after U+FFFD")
        << QVariantList{QString(QChar(0xD83D)) + QChar(0xDE00), QString(QChar(0xFFFD))} << QList<int>{1, 0};
    QTest::newRow("kinds follow each other")
        << QVariantList{QStringLiteral("1"), QTime(1, 0), day, 1, QVariant()} << QList<int>{4, 3, 2, 1, 0};
    QTest::newRow("a value of another type is its text")
        << QVariantList{QByteArray("b"), QStringLiteral("a")} << QList<int>{1, 0};
}

void TestRecordSorter::oneColumnSortsByTheKindOfItsValues()
{
    QFETCH(QVariantList, values);
    QFETCH(QList<int>, expected);
    QCOMPARE(sortedPlaces(values), expected);
}

void TestRecordSorter::randomRowsComeOutAsThePlainReferenceSortsThem_data()
{
    QTest::addColumn<int>("flavor");
    QTest::addColumn<int>("count");
    static const char *const names[] = {"reals",   "wholes", "mixed numbers", "latin",
                                        "chinese", "orders", "moments",       "mixed"};
    for (int flavor = 0; flavor < FlavorCount; ++flavor) {
        for (const int count : {2, 40, 3000})
            QTest::addRow("%s, %d rows", names[flavor], count) << flavor << count;
    }
}

void TestRecordSorter::randomRowsComeOutAsThePlainReferenceSortsThem()
{
    QFETCH(int, flavor);
    QFETCH(int, count);
    QRandomGenerator random(quint32(flavor * 1000 + count));
    const QList<Keys> choices{{{0, Qt::AscendingOrder}},
                              {{0, Qt::DescendingOrder}},
                              {{1, Qt::DescendingOrder}, {0, Qt::AscendingOrder}, {2, Qt::DescendingOrder}}};
    for (const Keys &keys : choices) {
        RecordDataList rows = randomRows(random, count, Flavor(flavor));
        RecordDataList expected = rows;
        std::stable_sort(expected.begin(), expected.end(), Reference(keys));
        ZrCommonUtils::sortTableViewRecordListByKeys(rows, keys);
        QCOMPARE(placesOf(rows), placesOf(expected));
    }
}

void TestRecordSorter::equalValuesKeepTheirOrderInBothDirections()
{
    const QVariantList values{2, 1, 2, 1, QVariant(), QVariant()};
    QCOMPARE(sortedPlaces(values), (QList<int>{4, 5, 1, 3, 0, 2}));
    QCOMPARE(sortedPlaces(values, Qt::DescendingOrder), (QList<int>{0, 2, 1, 3, 4, 5}));
}

void TestRecordSorter::theFirstRolePresentIsTheValue()
{
    RecordDataList rows{rowOf(0, 3, shown), rowOf(1, 2, spare), rowOf(2, 1)};
    rows[1][1].insert(shown, 9);
    rows[2][1].insert(spare, 9);
    ZrCommonUtils::sortTableViewRecordListByKeys(rows, {{1, Qt::AscendingOrder}});
    QCOMPARE(placesOf(rows), (QList<int>{2, 1, 0}));
}

void TestRecordSorter::laterKeysDecideBetweenEqualRows()
{
    RecordDataList rows = rowsOf({1, 1, 0});
    rows[0][2].insert(raw, QStringLiteral("a"));
    rows[1][2].insert(raw, QStringLiteral("b"));
    ZrCommonUtils::sortTableViewRecordListByKeys(rows, {{1, Qt::AscendingOrder}, {2, Qt::DescendingOrder}});
    QCOMPARE(placesOf(rows), (QList<int>{2, 1, 0}));
}

void TestRecordSorter::anAbsentColumnKeepsTheOrder()
{
    RecordDataList rows = rowsOf({3, 1, 2});
    ZrCommonUtils::sortTableViewRecordListByKeys(rows, {{-2, Qt::DescendingOrder}});
    QCOMPARE(placesOf(rows), (QList<int>{0, 1, 2}));
}

void TestRecordSorter::theRowStateCellSortsByItsCheckState()
{
    RecordDataList rows = rowsOf({0, 0, 0});
    rows[0][-1].insert(raw, true);
    rows[1][-1].insert(raw, false);
    ZrCommonUtils::sortTableViewRecordListByKeys(rows, {{-1, Qt::AscendingOrder}});
    QCOMPARE(placesOf(rows), (QList<int>{2, 1, 0}));
}

void TestRecordSorter::aListSharedWithAnotherLeavesThatOneAlone()
{
    RecordDataList rows = rowsOf({3, 1, 2});
    const RecordDataList before = rows;
    ZrCommonUtils::sortTableViewRecordListByKeys(rows, {{1, Qt::AscendingOrder}});
    QCOMPARE(placesOf(before), (QList<int>{0, 1, 2}));
    QCOMPARE(placesOf(rows), (QList<int>{1, 2, 0}));
}

void TestRecordSorter::theRowsMoveWithoutACopyOfTheirCells()
{
    RecordDataList rows = rowsOf({2, 1});
    const RecordData first = rows.at(0);
    ZrCommonUtils::sortTableViewRecordListByKeys(rows, {{1, Qt::AscendingOrder}});
    QVERIFY(rows.at(1).isSharedWith(first));
}

void TestRecordSorter::theAnswerIsTheNumberOfRows()
{
    RecordDataList rows;
    QCOMPARE(ZrCommonUtils::sortTableViewRecordListByKeys(rows, {{1, Qt::AscendingOrder}}), 0);
    rows = rowsOf({2, 1, 3});
    QCOMPARE(ZrCommonUtils::sortTableViewRecordListByKeys(rows, {}), 3);
    QCOMPARE(placesOf(rows), (QList<int>{0, 1, 2}));
}

void TestRecordSorter::longTextsThatDifferLateAreSorted()
{
    // Each text differs from the others one packed key later than the one before: the worst case of the
    // packing.
    QVariantList values;
    QList<int> expected;
    for (int i = 0; i < 2000; ++i) {
        values.append(QString(i, QLatin1Char('b')) + QLatin1Char('a'));
        expected.append(i);
    }
    QCOMPARE(sortedPlaces(values), expected);
    const QString nul(60, QChar(0));
    values.clear();
    for (int i = 60; i > 0; --i)
        values.append(nul.left(i));
    QCOMPARE(sortedPlaces(values).first(), 59);
    QCOMPARE(sortedPlaces(values).last(), 0);
}

void TestRecordSorter::threadsSortTheirOwnListsAtOnce()
{
    QRandomGenerator random(7);
    const RecordDataList rows = randomRows(random, 2000, Mixed);
    RecordDataList expected = rows;
    const Keys keys{{0, Qt::AscendingOrder}};
    std::stable_sort(expected.begin(), expected.end(), Reference(keys));
    std::vector<RecordDataList> results(4, rows);
    std::vector<std::unique_ptr<QThread>> threads;
    for (RecordDataList &result : results) {
        threads.emplace_back(QThread::create(
            [&result, &keys] { ZrCommonUtils::sortTableViewRecordListByKeys(result, keys); }));
        threads.back()->start();
    }
    for (const auto &thread : threads)
        thread->wait();
    for (const RecordDataList &result : results)
        QCOMPARE(placesOf(result), placesOf(expected));
}

ZR_TEST_GUILESS_MAIN(TestRecordSorter)
#include "tst_zrrecordsorter.moc"
