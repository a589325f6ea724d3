#include "zrdefine/VexlorFields.h"
#include "zrdefine/VexlorValues.h"
#include "ZrTestMain.h"
#include "zrutils/ZrCommonUtils.h"

#include <algorithm>

namespace {
const QString raw = QStringLiteral("256");
const QString spare = QStringLiteral("257");
const QString shown = QStringLiteral("0");
const QString &equal = Vexlor_Values::CompareOperator::equal;
const QString &atLeast = Vexlor_Values::CompareOperator::greaterOrEqual;
const QString &atMost = Vexlor_Values::CompareOperator::lessOrEqual;
const QString &byAnd = Vexlor_Values::LogicOperator::andOperator;
const QString &byOr = Vexlor_Values::LogicOperator::orOperator;

QVariantMap condition(const QString &op, const QVariant &value, const QString &join = QString())
{
    QVariantMap map{{Vexlor_Fields::Infomation::compareOperator, op},
                    {Vexlor_Fields::System::filterValue, value}};
    if (!join.isEmpty())
        map.insert(Vexlor_Fields::Infomation::logicOperator, join);
    return map;
}

/// As the filter popup writes a range of numbers or dates.
QList<QVariantMap> range(const QString &from, const QString &to)
{
    return {condition(atLeast, from, byAnd), condition(atMost, to)};
}

/// As the filter popup writes a ticked text.
QList<QVariantMap> ticked(const QString &text)
{
    return {condition(equal, text, byOr)};
}

RecordData rowOf(const QVariant &value, const QString &role = raw)
{
    RecordData row;
    row[3].insert(role, value);
    return row;
}

bool passes(const RecordData &row, const QList<QList<QVariantMap>> &groups, int type)
{
    const ViewFilterList filters{{3, groups}};
    const QMap<int, int> types{{3, type}};
    const bool single = ZrCommonUtils::isRecordMatchFilterList(row, filters, types);
    const bool batch = !ZrCommonUtils::getMatchRecordListByFilterList({row}, filters, types).isEmpty();
    if (single != batch)
        qWarning("the batch test and the single one differ");
    return single;
}

QVariant randomValue(QRandomGenerator &random)
{
    switch (random.bounded(6)) {
    case 0:
        return random.bounded(10);
    case 1:
        return random.bounded(100) / 10.0;
    case 2:
        return QString::number(random.bounded(10));
    case 3:
        return QDate(2026, 1, 1 + random.bounded(9));
    case 4:
        return QDateTime(QDate(2026, 1, 1 + random.bounded(9)), QTime(random.bounded(24), 0));
    default:
        return QTime(random.bounded(24), 0);
    }
}

ViewFilterList randomFilters(QRandomGenerator &random)
{
    static const QString ops[] = {equal, atLeast, atMost};
    static const QString joins[] = {byAnd, byOr, QString()};
    ViewFilterList filters;
    for (int column = 0; column < 4; ++column) {
        QList<QList<QVariantMap>> groups;
        for (int i = random.bounded(3); i > 0; --i) {
            QList<QVariantMap> group;
            for (int j = random.bounded(1, 4); j > 0; --j)
                group.append(condition(ops[random.bounded(3)], randomValue(random).toString(),
                                       joins[random.bounded(3)]));
            groups.append(group);
        }
        filters.insert(column, groups);
    }
    return filters;
}
} // namespace

Q_DECLARE_METATYPE(QList<QList<QVariantMap>>)

class TestRecordFilter : public QObject
{
    Q_OBJECT
private slots:
    void aValueMeetsAConditionByTheColumnsType_data();
    void aValueMeetsAConditionByTheColumnsType();
    void groupsAreAlternatives();
    void conditionsJoinFromLeftToRight_data();
    void conditionsJoinFromLeftToRight();
    void everyColumnHasToPass();
    void noFilterPassesEverything();
    void aMissingCellMeetsNoCondition();
    void aTextChoiceOfTheSpareRoleMeetsItsRow();
    void theBatchKeepsTheOrderAndSharesTheRows();
    void theBatchAgreesWithTheSingleTest();
    void aChangedFilterIsReadAnew();
    void aChangedTypeIsReadAnew();
    void manyTextChoicesCostNoMoreThanOne();
    void threadsTestWithTheirOwnFilters();
};

void TestRecordFilter::aValueMeetsAConditionByTheColumnsType_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<QList<QList<QVariantMap>>>("groups");
    QTest::addColumn<bool>("expected");
    using Groups = QList<QList<QVariantMap>>;
    const auto row = [](const char *name, int type, const QVariant &value, const QList<QVariantMap> &group,
                        bool expected) { QTest::newRow(name) << type << value << Groups{group} << expected; };
    const QString low = QStringLiteral("9");
    const QString high = QStringLiteral("10");
    const qint64 great = (Q_INT64_C(1) << 53) + 1;
    row("a number by value, not by text", QVariant::Int, 10, range(low, high), true);
    row("a number at its lower bound", QVariant::Int, 9, range(low, high), true);
    row("a number below", QVariant::Double, 8.99, range(low, high), false);
    row("a number above", QVariant::Double, 10.01, range(low, high), false);
    row("bounds with decimals", QVariant::Int, 5, range(QStringLiteral("5.00"), QStringLiteral("5.00")),
        true);
    row("a number above 2^53 exactly", QVariant::LongLong, great, {condition(equal, QString::number(great))},
        true);
    row("its neighbour", QVariant::LongLong, great, {condition(equal, QString::number(great - 1))}, false);
    row("an unsigned number", QVariant::ULongLong, ~quint64(0),
        {condition(equal, QString::number(~quint64(0)))}, true);
    row("a text that is a number, in a number column", QVariant::Int, high, range(low, high), true);
    row("a text that is none", QVariant::Int, QStringLiteral("x"), range(low, high), false);
    row("a bound that is no number", QVariant::Int, 1, {condition(atLeast, QStringLiteral("x"))}, false);
    row("a truth value", QVariant::Bool, true, {condition(equal, QStringLiteral("true"))}, true);
    row("the other one", QVariant::Bool, true, {condition(equal, QStringLiteral("false"))}, false);
    row("a number given as a number", QVariant::Double, 1.5, {condition(equal, 1.5)}, true);
    row("a text", QVariant::String, QStringLiteral("ab"), ticked(QStringLiteral("ab")), true);
    row("another text", QVariant::String, QStringLiteral("aB"), ticked(QStringLiteral("ab")), false);
    row("a number in a text column", QVariant::String, 10, ticked(high), true);
    row("texts by code point", QVariant::String, low, {condition(atLeast, high)}, true);
    row("texts at most", QVariant::String, low, {condition(atMost, high)}, false);
    row("an empty text", QVariant::String, QString(), ticked(QString()), true);
    const QString day = QStringLiteral("2026-03-01");
    const QDate date(2026, 3, 1);
    row("a date", QVariant::Date, date, range(day, day), true);
    row("the day after", QVariant::Date, date.addDays(1), range(day, day), false);
    row("a date as text", QVariant::Date, day, range(day, day), true);
    row("a moment in a date column", QVariant::Date, QDateTime(date, QTime(23, 59)), range(day, day), true);
    row("an invalid date", QVariant::Date, QDate(), range(day, day), false);
    const QString minute = QStringLiteral("2026-03-01 10:05");
    row("the last moment of the minute told", QVariant::DateTime, QDateTime(date, QTime(10, 5, 59, 999)),
        range(minute, minute), true);
    row("the next minute", QVariant::DateTime, QDateTime(date, QTime(10, 6)), range(minute, minute), false);
    row("the moment before", QVariant::DateTime, QDateTime(date, QTime(10, 4, 59, 999)),
        range(minute, minute), false);
    row("equal to the minute", QVariant::DateTime, QDateTime(date, QTime(10, 5, 30)),
        {condition(equal, minute)}, true);
    row("a day as the bound of moments", QVariant::DateTime, QDateTime(date, QTime(23, 0)), range(day, day),
        true);
    row("a date among moments", QVariant::DateTime, date, {condition(atMost, minute)}, true);
    row("a bound given as a moment", QVariant::DateTime, QDateTime(date, QTime(10, 5, 1)),
        {condition(atMost, QDateTime(date, QTime(10, 5)))}, false);
    row("a bound that is no moment", QVariant::DateTime, QDateTime(date, QTime(1, 0)),
        {condition(atMost, QStringLiteral("x"))}, false);
    row("a time of day", QVariant::Time, QTime(10, 5, 59),
        range(QStringLiteral("10:05"), QStringLiteral("10:05")), true);
    row("a time to the second", QVariant::Time, QTime(10, 5, 2),
        {condition(atMost, QStringLiteral("10:05:01"))}, false);
    row("a time to the millisecond", QVariant::Time, QTime(10, 5, 1, 5),
        {condition(equal, QStringLiteral("10:05:01.005"))}, true);
    row("a moment in a time column", QVariant::Time, QDateTime(date, QTime(10, 5)),
        {condition(equal, QStringLiteral("10:05"))}, true);
    row("a moment's text in a time column", QVariant::Time, minute,
        {condition(equal, QStringLiteral("10:05"))}, true);
    row("no learned type: the value's own, a number", QVariant::Invalid, 10, range(low, high), true);
    row("no learned type: a text", QVariant::Invalid, high, range(low, high), false);
    row("no learned type: a date", QVariant::Invalid, date, range(day, day), true);
    row("another type is its text", QVariant::ByteArray, QByteArray("x"),
        {condition(equal, QStringLiteral("x"))}, true);
    row("an unknown operator", QVariant::Int, 1, {condition(QStringLiteral("NE"), QStringLiteral("2"))},
        false);
    row("no value to compare with", QVariant::String, QString(), {condition(equal, QVariant())}, false);
    row("no value in the cell", QVariant::String, QVariant(), ticked(QString()), false);
}

void TestRecordFilter::aValueMeetsAConditionByTheColumnsType()
{
    QFETCH(int, type);
    QFETCH(QVariant, value);
    QFETCH(QList<QList<QVariantMap>>, groups);
    QFETCH(bool, expected);
    QCOMPARE(passes(rowOf(value), groups, type), expected);
}

void TestRecordFilter::groupsAreAlternatives()
{
    const QList<QList<QVariantMap>> groups{range(QStringLiteral("1"), QStringLiteral("2")),
                                           range(QStringLiteral("8"), QStringLiteral("9")),
                                           {condition(equal, QStringLiteral("5"))}};
    QVERIFY(passes(rowOf(1), groups, QVariant::Int));
    QVERIFY(passes(rowOf(9), groups, QVariant::Int));
    QVERIFY(passes(rowOf(5), groups, QVariant::Int));
    QVERIFY(!passes(rowOf(4), groups, QVariant::Int));
    QVERIFY(passes(rowOf(9), groups + QList<QList<QVariantMap>>{{}}, QVariant::Int));
    QVERIFY2(passes(rowOf(4), groups + QList<QList<QVariantMap>>{{}}, QVariant::Int),
             "a group without conditions passes");
}

void TestRecordFilter::conditionsJoinFromLeftToRight_data()
{
    QTest::addColumn<QString>("first");
    QTest::addColumn<QString>("second");
    QTest::addColumn<QList<int>>("expected");
    // x = 1 (first) x >= 2 (second) x <= 3, for x from 0 to 4
    QTest::newRow("and, and") << byAnd << byAnd << QList<int>{};
    QTest::newRow("or, and") << byOr << byAnd << QList<int>{1, 2, 3};
    QTest::newRow("and, or") << byAnd << byOr << QList<int>{0, 1, 2, 3};
    QTest::newRow("or, or") << byOr << byOr << QList<int>{0, 1, 2, 3, 4};
    QTest::newRow("absent is and") << QString() << QString() << QList<int>{};
}

void TestRecordFilter::conditionsJoinFromLeftToRight()
{
    QFETCH(QString, first);
    QFETCH(QString, second);
    QFETCH(QList<int>, expected);
    const QList<QVariantMap> group{condition(equal, QStringLiteral("1"), first),
                                   condition(atLeast, QStringLiteral("2"), second),
                                   condition(atMost, QStringLiteral("3"))};
    QList<int> passing;
    for (int x = 0; x < 5; ++x) {
        if (passes(rowOf(x), {group}, QVariant::Int))
            passing.append(x);
    }
    QCOMPARE(passing, expected);
}

void TestRecordFilter::everyColumnHasToPass()
{
    RecordData row = rowOf(1);
    row[5].insert(raw, QStringLiteral("a"));
    const QMap<int, int> types{{3, QVariant::Int}, {5, QVariant::String}};
    ViewFilterList filters{{3, {range(QStringLiteral("1"), QStringLiteral("1"))}},
                           {5, {ticked(QStringLiteral("a"))}}};
    QVERIFY(ZrCommonUtils::isRecordMatchFilterList(row, filters, types));
    filters[5] = {ticked(QStringLiteral("b"))};
    QVERIFY(!ZrCommonUtils::isRecordMatchFilterList(row, filters, types));
}

void TestRecordFilter::noFilterPassesEverything()
{
    QVERIFY(ZrCommonUtils::isRecordMatchFilterList(rowOf(1), {}, {}));
    QVERIFY(ZrCommonUtils::isRecordMatchFilterList(RecordData(), {{3, {}}}, {}));
    const RecordDataList rows{rowOf(1), RecordData()};
    QCOMPARE(ZrCommonUtils::getMatchRecordListByFilterList(rows, {}, {}), rows);
}

void TestRecordFilter::aMissingCellMeetsNoCondition()
{
    QVERIFY(!passes(RecordData(), {ticked(QString())}, QVariant::String));
    QVERIFY(!passes(rowOf(1, QStringLiteral("3")), {range(QStringLiteral("0"), QStringLiteral("2"))},
                    QVariant::Int));
}

void TestRecordFilter::aTextChoiceOfTheSpareRoleMeetsItsRow()
{
    const QString text = QStringLiteral("a");
    QVERIFY(passes(rowOf(text, spare), {ticked(text)}, QVariant::String));
    QVERIFY(passes(rowOf(text, shown), {ticked(text)}, QVariant::String));
    RecordData row = rowOf(QString(), spare);
    row[3].insert(shown, text);
    QVERIFY2(passes(row, {ticked(text)}, QVariant::String),
             "a choice is offered by the first text that isn't empty");
    row[3].insert(raw, QStringLiteral("b"));
    QVERIFY(!passes(row, {ticked(text)}, QVariant::String));
}

void TestRecordFilter::theBatchKeepsTheOrderAndSharesTheRows()
{
    const RecordDataList rows{rowOf(3), rowOf(1), rowOf(2)};
    const RecordDataList passing = ZrCommonUtils::getMatchRecordListByFilterList(
        rows, {{3, {{condition(atLeast, QStringLiteral("2"))}}}}, {{3, QVariant::Int}});
    QCOMPARE(passing.size(), 2);
    QVERIFY(passing.at(0).isSharedWith(rows.at(0)));
    QVERIFY(passing.at(1).isSharedWith(rows.at(2)));
}

void TestRecordFilter::theBatchAgreesWithTheSingleTest()
{
    static const int typeChoices[] = {QVariant::Invalid, QVariant::Int,  QVariant::Double,
                                      QVariant::String,  QVariant::Date, QVariant::DateTime,
                                      QVariant::Time};
    QRandomGenerator random(21);
    int passed = 0;
    for (int round = 0; round < 300; ++round) {
        const ViewFilterList filters = randomFilters(random);
        QMap<int, int> types;
        for (int column = 0; column < 4; ++column)
            types.insert(column, typeChoices[random.bounded(7)]);
        RecordDataList rows;
        RecordDataList expected;
        for (int i = 0; i < 50; ++i) {
            RecordData row;
            for (int column = 0; column < 4; ++column) {
                if (random.bounded(8) != 0)
                    row[column].insert(raw, randomValue(random));
            }
            rows.append(row);
            if (ZrCommonUtils::isRecordMatchFilterList(row, filters, types))
                expected.append(row);
        }
        QCOMPARE(ZrCommonUtils::getMatchRecordListByFilterList(rows, filters, types), expected);
        passed += expected.size();
    }
    QVERIFY(passed > 300 && passed < 300 * 50);
}

void TestRecordFilter::aChangedFilterIsReadAnew()
{
    const QMap<int, int> types{{3, QVariant::String}};
    const RecordData row = rowOf(QStringLiteral("1"));
    ViewFilterList filters{{3, {ticked(QStringLiteral("1"))}}};
    QVERIFY(ZrCommonUtils::isRecordMatchFilterList(row, filters, types));
    filters[3][0][0][Vexlor_Fields::System::filterValue] = QStringLiteral("2");
    QVERIFY(!ZrCommonUtils::isRecordMatchFilterList(row, filters, types));
    filters[3][0][0][Vexlor_Fields::System::filterValue] = 1;
    QVERIFY(ZrCommonUtils::isRecordMatchFilterList(row, filters, types));
    filters[3][0][0][Vexlor_Fields::System::filterValue] = QStringLiteral("01");
    QVERIFY2(!ZrCommonUtils::isRecordMatchFilterList(row, filters, types),
             "1 and 01 are equal as variants only");
    filters[4] = {ticked(QStringLiteral("1"))};
    filters.remove(3);
    QVERIFY(!ZrCommonUtils::isRecordMatchFilterList(row, filters, types));
}

void TestRecordFilter::aChangedTypeIsReadAnew()
{
    const ViewFilterList filters{{3, {{condition(equal, QStringLiteral("1.0"))}}}};
    QVERIFY(!ZrCommonUtils::isRecordMatchFilterList(rowOf(1), filters, {{3, QVariant::String}}));
    QVERIFY(ZrCommonUtils::isRecordMatchFilterList(rowOf(1), filters, {{3, QVariant::Int}}));
}

void TestRecordFilter::manyTextChoicesCostNoMoreThanOne()
{
    QList<QList<QVariantMap>> groups;
    RecordDataList rows;
    for (int i = 0; i < 20000; ++i) {
        groups.append(ticked(QString::number(2 * i)));
        rows.append(rowOf(QString::number(i)));
    }
    // Tried one by one these are 400 million comparisons, and more than the time a test has.
    const RecordDataList passing =
        ZrCommonUtils::getMatchRecordListByFilterList(rows, {{3, groups}}, {{3, QVariant::String}});
    QCOMPARE(passing.size(), 10000);
}

void TestRecordFilter::threadsTestWithTheirOwnFilters()
{
    QAtomicInt wrong;
    std::vector<std::unique_ptr<QThread>> threads;
    for (int number = 0; number < 4; ++number) {
        threads.emplace_back(QThread::create([number, &wrong] {
            const ViewFilterList filters{{3, {{condition(equal, QString::number(number))}}}};
            for (int i = 0; i < 2000; ++i) {
                if (ZrCommonUtils::isRecordMatchFilterList(rowOf(i % 4), filters, {{3, QVariant::Int}}) !=
                    (i % 4 == number))
                    wrong.ref();
            }
        }));
        threads.back()->start();
    }
    for (const auto &thread : threads)
        thread->wait();
    QCOMPARE(wrong.loadAcquire(), 0);
}

ZR_TEST_GUILESS_MAIN(TestRecordFilter)
#include "tst_zrrecordfilter.moc"
