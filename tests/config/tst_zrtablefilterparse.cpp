#include "ZrRoleKeys.h"
#include "ZrTableFilterParse.h"
#include "ZrTestMain.h"

using CellList = QList<ItemRoleMap>;
Q_DECLARE_METATYPE(CellList)

namespace {
ItemRoleMap raw(const QVariant &value)
{
    return {{ITEM_USERROLE, value}};
}

CellList rawCells(const QVariantList &values)
{
    CellList cells;
    for (const QVariant &value : values)
        cells.append(raw(value));
    return cells;
}

QString range(const QString &low, const QString &high)
{
    return low + QString::fromUtf8(" — ") + high;
}

QStringList textsOf(const CellList &choices)
{
    QStringList texts;
    for (const ItemRoleMap &choice : choices)
        texts.append(choice.value(ITEM_DISPLAYROLE).toString());
    return texts;
}

QDateTime moment(const QString &text)
{
    return QDateTime::fromString(text, Qt::ISODate);
}

CellList dates(const QDate &first, int daysLater)
{
    return rawCells({first, first.addDays(daysLater)});
}
} // namespace

class tst_ZrTableFilterParse : public QObject
{
    Q_OBJECT

private slots:
    void valueTypeChoosesTheBranch_data();
    void valueTypeChoosesTheBranch();
    void rangeChoiceHoldsTheTextAlone();
    void textIsTakenFromTheFirstRoleThatHasOne_data();
    void textIsTakenFromTheFirstRoleThatHasOne();
    void textsStandInOrderOfFirstAppearance();
    void sameTextWithAnotherRawValueIsAnotherChoice();
    void spanChoosesTheScale_data();
    void spanChoosesTheScale();
    void dayRangesShareTheRemainder();
    void dateIsTakenFromTheRoleOfExactlyTheType();
    void invalidDatesAreSkipped();
    void withoutDatesTheSixPiecesRunBackwards();
    void datesFarAwayGiveFewRanges_data();
    void datesFarAwayGiveFewRanges();
};

void tst_ZrTableFilterParse::valueTypeChoosesTheBranch_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<CellList>("cells");
    QTest::addColumn<QStringList>("expected");

    const CellList five = rawCells({5});
    for (const int type : {QVariant::Int, QVariant::UInt, QVariant::LongLong, QVariant::ULongLong})
        QTest::newRow(QVariant::typeToName(type)) << type << five << QStringList(range("5.00", "5.00"));
    QTest::newRow("double") << int(QVariant::Double) << rawCells({1.5}) << QStringList(range("1.00", "2.00"));
    QTest::newRow("text") << int(QVariant::String) << rawCells({"b", "a", "b"}) << QStringList({"b", "a"});
    QTest::newRow("date") << int(QVariant::Date) << rawCells({QDate(2024, 5, 6)})
                          << QStringList(range("2024-05-06", "2024-05-06"));
    QTest::newRow("time") << int(QVariant::Time) << rawCells({QTime(9, 30)})
                          << QStringList(range("09:30", "09:30"));
    QTest::newRow("moment") << int(QVariant::DateTime) << rawCells({moment("2024-05-06T09:30:00")})
                            << QStringList(range("2024-05-06 09:30", "2024-05-06 09:30"));
    QTest::newRow("bool has no choices") << int(QVariant::Bool) << rawCells({true}) << QStringList();
    QTest::newRow("invalid type has no choices") << 0 << five << QStringList();
    QTest::newRow("unknown type has no choices") << 123456 << five << QStringList();
    QTest::newRow("no integers") << int(QVariant::Int) << CellList() << QStringList();
    QTest::newRow("no doubles") << int(QVariant::Double) << CellList() << QStringList();
    QTest::newRow("no texts") << int(QVariant::String) << CellList() << QStringList();
}

void tst_ZrTableFilterParse::valueTypeChoosesTheBranch()
{
    QFETCH(int, type);
    QFETCH(CellList, cells);
    QFETCH(QStringList, expected);
    QCOMPARE(textsOf(ZrTableFilterParse::getFilterRecordList(type, cells)), expected);
}

void tst_ZrTableFilterParse::rangeChoiceHoldsTheTextAlone()
{
    const CellList choices = ZrTableFilterParse::getFilterRecordList(QVariant::Int, rawCells({5}));
    QCOMPARE(choices, CellList({{{ITEM_DISPLAYROLE, range("5.00", "5.00")}}}));
}

void tst_ZrTableFilterParse::textIsTakenFromTheFirstRoleThatHasOne_data()
{
    QTest::addColumn<ItemRoleMap>("cell");
    QTest::addColumn<ItemRoleMap>("expected");

    QTest::newRow("257 before 0 and 256")
        << ItemRoleMap({{ITEM_CUSTOMROLE, "c"}, {ITEM_DISPLAYROLE, "d"}, {ITEM_USERROLE, "u"}})
        << ItemRoleMap({{ITEM_DISPLAYROLE, "c"}, {ITEM_USERROLE, "u"}});
    QTest::newRow("0 when 257 is empty")
        << ItemRoleMap({{ITEM_CUSTOMROLE, ""}, {ITEM_DISPLAYROLE, "d"}, {ITEM_USERROLE, "u"}})
        << ItemRoleMap({{ITEM_DISPLAYROLE, "d"}, {ITEM_USERROLE, "u"}});
    QTest::newRow("256 when both are empty") << ItemRoleMap({{ITEM_DISPLAYROLE, ""}, {ITEM_USERROLE, 7}})
                                             << ItemRoleMap({{ITEM_DISPLAYROLE, "7"}, {ITEM_USERROLE, 7}});
    QTest::newRow("no raw value, none in the choice")
        << ItemRoleMap({{ITEM_DISPLAYROLE, "d"}}) << ItemRoleMap({{ITEM_DISPLAYROLE, "d"}});
    QTest::newRow("empty raw value stays a raw value")
        << raw(QString("")) << ItemRoleMap({{ITEM_DISPLAYROLE, ""}, {ITEM_USERROLE, ""}});
    QTest::newRow("empty cell") << ItemRoleMap() << ItemRoleMap({{ITEM_DISPLAYROLE, ""}});
}

void tst_ZrTableFilterParse::textIsTakenFromTheFirstRoleThatHasOne()
{
    QFETCH(ItemRoleMap, cell);
    QFETCH(ItemRoleMap, expected);
    QCOMPARE(ZrTableFilterParse::getFilterRecordList(QVariant::String, {cell}), CellList({expected}));
}

void tst_ZrTableFilterParse::textsStandInOrderOfFirstAppearance()
{
    const CellList cells = rawCells({"z", "a", "z", "m", "a"});
    QCOMPARE(textsOf(ZrTableFilterParse::getFilterRecordList(QVariant::String, cells)),
             QStringList({"z", "a", "m"}));
}

void tst_ZrTableFilterParse::sameTextWithAnotherRawValueIsAnotherChoice()
{
    const CellList cells = {{{ITEM_DISPLAYROLE, "Buy"}, {ITEM_USERROLE, "1"}},
                            {{ITEM_DISPLAYROLE, "Buy"}, {ITEM_USERROLE, "2"}},
                            {{ITEM_DISPLAYROLE, "Buy"}, {ITEM_USERROLE, "1"}}};
    QCOMPARE(ZrTableFilterParse::getFilterRecordList(QVariant::String, cells), cells.mid(0, 2));
}

void tst_ZrTableFilterParse::spanChoosesTheScale_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<CellList>("cells");
    QTest::addColumn<QStringList>("expected");

    const int date = QVariant::Date;
    const int time = QVariant::Time;
    const int dateTime = QVariant::DateTime;
    const auto day = [](const char *low, const char *high) {
        return range(QLatin1String("2024-") + low, QLatin1String("2024-") + high);
    };
    const QDate newYear(2024, 1, 1);

    QTest::newRow("moments within an hour go by minutes")
        << dateTime << rawCells({moment("2024-05-06T09:30:10"), moment("2024-05-06T09:32:15")})
        << QStringList({range("2024-05-06 09:30", "2024-05-06 09:31"),
                        range("2024-05-06 09:31", "2024-05-06 09:32")});
    QTest::newRow("moments of a day go by hours")
        << dateTime << rawCells({moment("2024-05-06T09:30:00"), moment("2024-05-06T11:45:00")})
        << QStringList({range("2024-05-06 09:00", "2024-05-06 10:00"),
                        range("2024-05-06 10:00", "2024-05-06 11:59")});
    QTest::newRow("moments a day apart go by days")
        << dateTime << rawCells({moment("2024-05-06T09:30:00"), moment("2024-05-07T09:30:00")})
        << QStringList(range("2024-05-06 00:00", "2024-05-07 23:59"));
    QTest::newRow("moments a second short of a day go by hours")
        << dateTime << rawCells({moment("2024-05-06T09:30:00"), moment("2024-05-07T09:29:59")})
        << QStringList(
               {range("2024-05-06 09:00", "2024-05-06 13:00"), range("2024-05-06 13:00", "2024-05-06 17:00"),
                range("2024-05-06 17:00", "2024-05-06 21:00"), range("2024-05-06 21:00", "2024-05-07 01:00"),
                range("2024-05-07 01:00", "2024-05-07 05:00"),
                range("2024-05-07 05:00", "2024-05-07 09:59")});
    QTest::newRow("one instant") << dateTime << rawCells({moment("2024-05-06T09:30:00")})
                                 << QStringList(range("2024-05-06 09:30", "2024-05-06 09:30"));
    QTest::newRow("dates within a day are one range")
        << date << dates(newYear, 0) << QStringList(day("01-01", "01-01"));
    QTest::newRow("times 60 seconds apart, stretched to the end")
        << time << rawCells({QTime(9, 30, 0), QTime(9, 31, 59)}) << QStringList(range("09:30", "09:31"));
    QTest::newRow("times 59 seconds apart are one instant")
        << time << rawCells({QTime(9, 30, 0), QTime(9, 30, 59)}) << QStringList(range("09:30", "09:30"));
    QTest::newRow("exactly 3600 seconds go by minutes")
        << time << rawCells({QTime(9, 30), QTime(10, 30)})
        << QStringList({range("09:30", "09:40"), range("09:40", "09:50"), range("09:50", "10:00"),
                        range("10:00", "10:10"), range("10:10", "10:20"), range("10:20", "10:30")});
    QTest::newRow("3601 seconds go by hours")
        << time << rawCells({QTime(9, 30), QTime(10, 30, 1)}) << QStringList(range("09:00", "10:59"));
    QTest::newRow("49 days by days") << date << dates(newYear, 49)
                                     << QStringList({day("01-01", "01-10"), day("01-10", "01-18"),
                                                     day("01-18", "01-26"), day("01-26", "02-03"),
                                                     day("02-03", "02-11"), day("02-11", "02-19")});
    QTest::newRow("50 days cut at 1, 10 and 20")
        << date << dates(QDate(2024, 1, 9), 50)
        << QStringList({day("01-01", "01-10"), day("01-10", "01-20"), day("01-20", "02-01"),
                        day("02-01", "02-10"), day("02-10", "02-20"), day("02-20", "03-01")});
    QTest::newRow("89 days cut at 1, 10 and 20, over the year's end")
        << date << dates(QDate(2023, 12, 20), 89)
        << QStringList({range("2023-12-20", "2024-01-01"), day("01-01", "01-10"), day("01-10", "01-20"),
                        day("01-20", "02-01"), day("02-01", "02-10"), day("02-10", "02-20"),
                        day("02-20", "03-01"), day("03-01", "03-10"), day("03-10", "03-20")});
    QTest::newRow("90 days cut at 1 and 15")
        << date << dates(QDate(2024, 1, 15), 90)
        << QStringList({day("01-15", "02-01"), day("02-01", "02-15"), day("02-15", "03-01"),
                        day("03-01", "03-15"), day("03-15", "04-01"), day("04-01", "04-15")});
    QTest::newRow("149 days cut at 1 and 15")
        << date << dates(QDate(2024, 7, 14), 149)
        << QStringList({day("07-01", "07-15"), day("07-15", "08-01"), day("08-01", "08-15"),
                        day("08-15", "09-01"), day("09-01", "09-15"), day("09-15", "10-01"),
                        day("10-01", "10-15"), day("10-15", "11-01"), day("11-01", "11-15"),
                        day("11-15", "12-01"), day("12-01", "12-15")});
    QTest::newRow("150 days by months, the last one to the end")
        << date << dates(QDate(2024, 1, 20), 150)
        << QStringList({day("01-01", "02-01"), day("02-01", "03-01"), day("03-01", "04-01"),
                        day("04-01", "05-01"), day("05-01", "06-18")});
    QTest::newRow("1824 days by months")
        << date << dates(newYear, 1824)
        << QStringList({range("2024-01-01", "2024-11-01"), range("2024-11-01", "2025-09-01"),
                        range("2025-09-01", "2026-07-01"), range("2026-07-01", "2027-05-01"),
                        range("2027-05-01", "2028-03-01"), range("2028-03-01", "2029-01-01")});
    QTest::newRow("1825 days by years")
        << date << dates(newYear, 1825)
        << QStringList({range("2024-01-01", "2025-01-01"), range("2025-01-01", "2026-01-01"),
                        range("2026-01-01", "2027-01-01"), range("2027-01-01", "2028-01-01"),
                        range("2028-01-01", "2029-01-01")});
    QTest::newRow("eight years share the remainder")
        << date << rawCells({QDate(2016, 3, 1), QDate(2023, 3, 1)})
        << QStringList({range("2016-01-01", "2018-01-01"), range("2018-01-01", "2020-01-01"),
                        range("2020-01-01", "2021-01-01"), range("2021-01-01", "2022-01-01"),
                        range("2022-01-01", "2023-01-01"), range("2023-01-01", "2024-01-01")});
}

void tst_ZrTableFilterParse::spanChoosesTheScale()
{
    valueTypeChoosesTheBranch();
}

void tst_ZrTableFilterParse::dayRangesShareTheRemainder()
{
    const CellList choices =
        ZrTableFilterParse::getFilterRecordList(QVariant::Date, dates(QDate(2024, 1, 1), 49));
    QList<qint64> lengths;
    for (const QString &text : textsOf(choices)) {
        const QStringList ends = text.split(QString::fromUtf8(" — "));
        lengths.append(
            QDate::fromString(ends.at(0), Qt::ISODate).daysTo(QDate::fromString(ends.at(1), Qt::ISODate)));
    }
    QCOMPARE(lengths, QList<qint64>({9, 8, 8, 8, 8, 8}));
}

void tst_ZrTableFilterParse::dateIsTakenFromTheRoleOfExactlyTheType()
{
    const QDate first(2024, 1, 1);
    const CellList cells = {
        {{ITEM_USERROLE, "20300101"}, {ITEM_CUSTOMROLE, first}, {ITEM_DISPLAYROLE, QDate(2030, 1, 1)}},
        {{ITEM_USERROLE, QDateTime(QDate(2031, 1, 1), QTime())}, {ITEM_DISPLAYROLE, first.addDays(1)}},
        raw(QTime(9, 30))};
    QCOMPARE(textsOf(ZrTableFilterParse::getFilterRecordList(QVariant::Date, cells)),
             QStringList(range("2024-01-01", "2024-01-02")));
}

void tst_ZrTableFilterParse::invalidDatesAreSkipped()
{
    const CellList cells = rawCells({QDate(), QDate(2024, 1, 1), QDate(2024, 2, 30)});
    QCOMPARE(textsOf(ZrTableFilterParse::getFilterRecordList(QVariant::Date, cells)),
             QStringList(range("2024-01-01", "2024-01-01")));
}

void tst_ZrTableFilterParse::withoutDatesTheSixPiecesRunBackwards()
{
    for (const int type : {QVariant::Date, QVariant::DateTime, QVariant::Time})
        QCOMPARE(ZrTableFilterParse::getFilterRecordList(type, CellList()).size(), 6);
    const QString first =
        textsOf(ZrTableFilterParse::getFilterRecordList(QVariant::Date, CellList())).first();
    const QStringList ends = first.split(QString::fromUtf8(" — "));
    QVERIFY(ends.at(0) > ends.at(1));
}

void tst_ZrTableFilterParse::datesFarAwayGiveFewRanges_data()
{
    QTest::addColumn<QVariant>("first");
    QTest::addColumn<QVariant>("last");

    QTest::newRow("written history") << QVariant(QDate(-4000, 1, 1)) << QVariant(QDate(9999, 12, 31));
    QTest::newRow("ends of the calendar")
        << QVariant(QDate::fromJulianDay(-784350574879LL)) << QVariant(QDate::fromJulianDay(784354017364LL));
    QTest::newRow("ends of the clock")
        << QVariant(QDateTime::fromMSecsSinceEpoch(std::numeric_limits<qint64>::min()))
        << QVariant(QDateTime::fromMSecsSinceEpoch(std::numeric_limits<qint64>::max()));
}

void tst_ZrTableFilterParse::datesFarAwayGiveFewRanges()
{
    QFETCH(QVariant, first);
    QFETCH(QVariant, last);
    const CellList choices =
        ZrTableFilterParse::getFilterRecordList(int(first.type()), rawCells({first, last}));
    QVERIFY(choices.size() <= 6);
}

ZR_TEST_GUILESS_MAIN(tst_ZrTableFilterParse)
#include "tst_zrtablefilterparse.moc"
