#include "ZrFeedTime.h"
#include "ZrTestMain.h"

class tst_ZrFeedTime : public QObject
{
    Q_OBJECT
private slots:
    void aTimeIsReadToTheNanosecond_data();
    void aTimeIsReadToTheNanosecond();
    void whatIsNoTimeIsRefused_data();
    void whatIsNoTimeIsRefused();
    void theClockTextIsThatOfTheZone();
};

namespace {
// 2023-02-01 00:00 in Shanghai.
constexpr qint64 MidnightNs = Q_INT64_C(1675180800) * 1000000000;
constexpr qint64 Second = 1000000000;
constexpr qint64 Opening = Q_INT64_C(9) * 3600 * Second + 1800 * Second;

ZrFeedTime timeOf(ZrTimeForm form, bool sinceEpoch)
{
    ZrFeedTime time;
    time.form = form;
    time.sinceEpoch = sinceEpoch;
    time.date = QDate(2023, 2, 1);
    time.zone = QTimeZone("Asia/Shanghai");
    time.prepare();
    return time;
}
} // namespace

Q_DECLARE_METATYPE(ZrTimeForm)

void tst_ZrFeedTime::aTimeIsReadToTheNanosecond_data()
{
    QTest::addColumn<ZrTimeForm>("form");
    QTest::addColumn<bool>("sinceEpoch");
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<qint64>("expectedNs");
    const auto row = [](const char *name, ZrTimeForm form, bool epoch, const char *text, qint64 ns) {
        QTest::newRow(name) << form << epoch << QByteArray(text) << ns;
    };
    row("clock", ZrTimeForm::Clock, false, "09:30:00.020", MidnightNs + Opening + 20000000);
    row("clock, one digit hour, no fraction", ZrTimeForm::Clock, false, "9:30:00", MidnightNs + Opening);
    row("clock without seconds", ZrTimeForm::Clock, false, "09:30", MidnightNs + Opening);
    row("clock with nanoseconds", ZrTimeForm::Clock, false, "09:30:00.123456789",
        MidnightNs + Opening + 123456789);
    row("clock beyond nanoseconds", ZrTimeForm::Clock, false, "09:30:00.1234567899",
        MidnightNs + Opening + 123456789);
    row("clock at midnight", ZrTimeForm::Clock, false, "00:00:00", MidnightNs);
    row("clock with a leap second", ZrTimeForm::Clock, false, "23:59:60", MidnightNs + 86400 * Second);
    row("compact", ZrTimeForm::Compact, false, "93000020", MidnightNs + Opening + 20000000);
    row("compact without milliseconds", ZrTimeForm::Compact, false, "93000", MidnightNs + Opening);
    row("compact with date", ZrTimeForm::Compact, false, "20230202093000020",
        MidnightNs + 86400 * Second + Opening + 20000000);
    row("compact with date, no milliseconds", ZrTimeForm::Compact, false, "20230202093000",
        MidnightNs + 86400 * Second + Opening);
    row("seconds", ZrTimeForm::Seconds, false, "34200.017459617", MidnightNs + Opening + 17459617);
    row("whole seconds", ZrTimeForm::Seconds, false, "34200", MidnightNs + Opening);
    row("milliseconds", ZrTimeForm::Milliseconds, false, "34200017", MidnightNs + Opening + 17000000);
    row("microseconds", ZrTimeForm::Microseconds, false, "34200017459.5", MidnightNs + Opening + 17459500);
    row("nanoseconds", ZrTimeForm::Nanoseconds, false, "34200017459617", MidnightNs + Opening + 17459617);
    row("nanoseconds since the epoch", ZrTimeForm::Nanoseconds, true, "1675215000123456789",
        Q_INT64_C(1675215000123456789));
    row("seconds since the epoch", ZrTimeForm::Seconds, true, "1675215000.5", Q_INT64_C(1675215000500000000));
    row("ISO with offset", ZrTimeForm::Iso, false, "2023-02-01T09:30:00.000000001+08:00",
        MidnightNs + Opening + 1);
    row("ISO with offset, no colon", ZrTimeForm::Iso, false, "2023-02-01T09:30:00+0800",
        MidnightNs + Opening);
    row("ISO with hours of offset", ZrTimeForm::Iso, false, "2023-02-01T09:30:00+08", MidnightNs + Opening);
    row("ISO west of Greenwich", ZrTimeForm::Iso, false, "2023-01-31T20:30:00-05:00", MidnightNs + Opening);
    row("ISO in UTC", ZrTimeForm::Iso, false, "2023-02-01T01:30:00Z", MidnightNs + Opening);
    row("ISO with a blank, of the zone", ZrTimeForm::Iso, false, "2023-02-01 09:30:00", MidnightNs + Opening);
}

void tst_ZrFeedTime::aTimeIsReadToTheNanosecond()
{
    QFETCH(ZrTimeForm, form);
    QFETCH(bool, sinceEpoch);
    QFETCH(QByteArray, text);
    QFETCH(qint64, expectedNs);
    qint64 timeNs = 0;
    QVERIFY(timeOf(form, sinceEpoch).read(text, &timeNs));
    QCOMPARE(timeNs, expectedNs);
}

void tst_ZrFeedTime::whatIsNoTimeIsRefused_data()
{
    QTest::addColumn<ZrTimeForm>("form");
    QTest::addColumn<QByteArray>("text");
    const auto rows = [](ZrTimeForm form, std::initializer_list<const char *> texts) {
        for (const char *text : texts)
            QTest::newRow(
                qPrintable(QString::fromLatin1("%1: \"%2\"").arg(int(form)).arg(QLatin1String(text))))
                << form << QByteArray(text);
    };
    rows(ZrTimeForm::Clock,
         {"", "9", "9:", "25:00:00", "09:60:00", "09:30:61", "09:30:00.", "09:30:00x", "-1:00:00"});
    rows(ZrTimeForm::Compact, {"", "9300002x", "250000000", "96000000", "20231301093000000", "1234567890123",
                               "22010101093000000", "99991231235959"}); // days beyond what nanoseconds count
    rows(ZrTimeForm::Seconds, {"", "x", "-5", "1.", "1.x", "999999999", "99999999999999999999"});
    rows(ZrTimeForm::Nanoseconds, {"9223372036854775807", "1e3"});
    rows(ZrTimeForm::Iso,
         {"", "2023-02-01", "2023-13-01T09:30:00", "2023-02-01T09:30:00+15:00", "2023-02-01T09:30:00+",
          "2023-02-01T09:30:00Zx", "9999-02-01T09:30:00", "2023-02-01X09:30:00"});
}

void tst_ZrFeedTime::whatIsNoTimeIsRefused()
{
    QFETCH(ZrTimeForm, form);
    QFETCH(QByteArray, text);
    qint64 timeNs = 0;
    QVERIFY(!timeOf(form, false).read(text, &timeNs));
}

void tst_ZrFeedTime::theClockTextIsThatOfTheZone()
{
    ZrClockText shanghai(QTimeZone("Asia/Shanghai"));
    QCOMPARE(shanghai.text(MidnightNs + Opening + 20999999), QStringLiteral("09:30:00.020"));
    QCOMPARE(shanghai.text(MidnightNs - 1000000), QStringLiteral("23:59:59.999"));
    QCOMPARE(shanghai.text(0), QStringLiteral("08:00:00.000"));
    ZrClockText utc(QTimeZone::utc());
    QCOMPARE(utc.text(MidnightNs + Opening), QStringLiteral("01:30:00.000"));
    // The night in which clocks went forward.
    ZrClockText newYork(QTimeZone("America/New_York"));
    QCOMPARE(newYork.text(Q_INT64_C(1678604399999) * 1000000), QStringLiteral("01:59:59.999"));
    QCOMPARE(newYork.text(Q_INT64_C(1678604400000) * 1000000), QStringLiteral("03:00:00.000"));
}

ZR_TEST_GUILESS_MAIN(tst_ZrFeedTime)
#include "tst_zrfeedtime.moc"
