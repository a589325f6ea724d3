#include "ZrDateRanges.h"
#include "ZrTestMain.h"

namespace {
QDateTime noon(int year, int month, int day)
{
    return QDateTime(QDate(year, month, day), QTime(12, 0), Qt::UTC);
}

QStringList textsOf(const ZrDateRanges::RangeList &ranges)
{
    QStringList texts;
    for (const ZrDateRanges::Range &range : ranges)
        texts.append(range.first.toString(QStringLiteral("yyyyMMdd hh:mm-")) +
                     range.second.toString(QStringLiteral("yyyyMMdd hh:mm")));
    return texts;
}
} // namespace

class tst_ZrDateRanges : public QObject
{
    Q_OBJECT

private slots:
    void evenPieces_data();
    void evenPieces();
    void cutsAtDaysOfMonth_data();
    void cutsAtDaysOfMonth();
    void noCutBehindTheEndOfTheCalendar();
};

void tst_ZrDateRanges::evenPieces_data()
{
    QTest::addColumn<QDateTime>("end");
    QTest::addColumn<qint64>("span");
    QTest::addColumn<int>("count");
    QTest::addColumn<int>("unit");
    QTest::addColumn<QStringList>("expected");

    const int day = int(ZrDateRanges::Unit::Day);
    QTest::newRow("fewer units than pieces")
        << noon(2024, 5, 3) << qint64(2) << 6 << day
        << QStringList({"20240501 12:00-20240502 12:00", "20240502 12:00-20240503 12:00"});
    QTest::newRow("longer pieces first")
        << noon(2024, 5, 6) << qint64(5) << 2 << day
        << QStringList({"20240501 12:00-20240504 12:00", "20240504 12:00-20240506 12:00"});
    QTest::newRow("last piece stretched")
        << noon(2024, 5, 9) << qint64(1) << 6 << day << QStringList("20240501 12:00-20240509 12:00");
    QTest::newRow("last piece not clipped")
        << noon(2024, 5, 1) << qint64(1) << 6 << day << QStringList("20240501 12:00-20240502 12:00");
    QTest::newRow("no unit, no range") << noon(2024, 5, 9) << qint64(0) << 6 << day << QStringList();
    QTest::newRow("few units backwards, no range")
        << noon(2024, 4, 9) << qint64(-3) << 6 << day << QStringList();
    QTest::newRow("backwards, the last one to the end")
        << noon(2024, 4, 28) << qint64(-4) << 2 << day
        << QStringList({"20240501 12:00-20240429 12:00", "20240429 12:00-20240428 12:00"});
    QTest::newRow("no pieces asked for") << noon(2024, 5, 9) << qint64(5) << 0 << day << QStringList();
    QTest::newRow("minute") << noon(2024, 5, 1) << qint64(1) << 6 << int(ZrDateRanges::Unit::Minute)
                            << QStringList("20240501 12:00-20240501 12:01");
    QTest::newRow("hour") << noon(2024, 5, 1) << qint64(1) << 6 << int(ZrDateRanges::Unit::Hour)
                          << QStringList("20240501 12:00-20240501 13:00");
    QTest::newRow("month") << noon(2024, 5, 1) << qint64(1) << 6 << int(ZrDateRanges::Unit::Month)
                           << QStringList("20240501 12:00-20240601 12:00");
    QTest::newRow("year") << noon(2024, 5, 1) << qint64(1) << 6 << int(ZrDateRanges::Unit::Year)
                          << QStringList("20240501 12:00-20250501 12:00");
}

void tst_ZrDateRanges::evenPieces()
{
    QFETCH(QDateTime, end);
    QFETCH(qint64, span);
    QFETCH(int, count);
    QFETCH(int, unit);
    QFETCH(QStringList, expected);
    QCOMPARE(textsOf(ZrDateRanges::evenly(noon(2024, 5, 1), end, span, count, ZrDateRanges::Unit(unit))),
             expected);
}

void tst_ZrDateRanges::cutsAtDaysOfMonth_data()
{
    QTest::addColumn<QDateTime>("begin");
    QTest::addColumn<QDateTime>("end");
    QTest::addColumn<QStringList>("expected");

    QTest::newRow("begins at the cut below, ends at the cut above")
        << noon(2024, 5, 19) << noon(2024, 5, 21)
        << QStringList({"20240510 00:00-20240520 00:00", "20240520 00:00-20240601 00:00"});
    QTest::newRow("begins on a cut") << noon(2024, 5, 20) << noon(2024, 5, 21)
                                     << QStringList("20240520 00:00-20240601 00:00");
    QTest::newRow("day 9 belongs to the first")
        << noon(2024, 5, 9) << noon(2024, 5, 9) << QStringList("20240501 00:00-20240510 00:00");
    QTest::newRow("the year steps after December")
        << noon(2023, 12, 31) << noon(2024, 1, 1)
        << QStringList({"20231220 00:00-20240101 00:00", "20240101 00:00-20240110 00:00"});
    QTest::newRow("nothing before the begin") << noon(2024, 5, 9) << noon(2024, 4, 1) << QStringList();
}

void tst_ZrDateRanges::cutsAtDaysOfMonth()
{
    QFETCH(QDateTime, begin);
    QFETCH(QDateTime, end);
    QFETCH(QStringList, expected);
    QCOMPARE(textsOf(ZrDateRanges::atDaysOfMonth(begin, end, {1, 10, 20})), expected);
}

void tst_ZrDateRanges::noCutBehindTheEndOfTheCalendar()
{
    const QDateTime last = QDateTime::fromMSecsSinceEpoch(std::numeric_limits<qint64>::max(), Qt::UTC);
    QVERIFY(ZrDateRanges::atDaysOfMonth(last.addDays(-60), last, {1, 10, 20}).size() < 10);
}

ZR_TEST_GUILESS_MAIN(tst_ZrDateRanges)
#include "tst_zrdateranges.moc"
