#include "ZrCompactDate.h"
#include "ZrTestMain.h"

class tst_ZrCompactDate : public QObject
{
    Q_OBJECT

private slots:
    void readsWhatTheToolkitReads_data();
    void readsWhatTheToolkitReads();
    void eightDigitsReadAsTheToolkitReadsThem();
};

void tst_ZrCompactDate::readsWhatTheToolkitReads_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QDate>("expected");
    QTest::newRow("date") << "20240229" << QDate(2024, 2, 29);
    QTest::newRow("no leap year") << "20230229" << QDate();
    QTest::newRow("too short") << "2024022" << QDate();
    QTest::newRow("too long") << "202402291" << QDate();
    QTest::newRow("empty") << "" << QDate();
    QTest::newRow("letters") << "2024o229" << QDate();
    QTest::newRow("letter in the year") << "2o240229" << QDate();
    QTest::newRow("letter in the day") << "2024022x" << QDate();
    QTest::newRow("ISO form") << "2024-02-29" << QDate();
    QTest::newRow("digits of another script")
        << QString::fromUtf8("２０２４０２２９")
        << QDate::fromString(QString::fromUtf8("２０２４０２２９"), "yyyyMMdd");
}

void tst_ZrCompactDate::readsWhatTheToolkitReads()
{
    QFETCH(QString, text);
    QFETCH(QDate, expected);
    QCOMPARE(ZrCompactDate::parse(text), expected);
    QCOMPARE(ZrCompactDate::parse(text), QDate::fromString(text, QStringLiteral("yyyyMMdd")));
}

void tst_ZrCompactDate::eightDigitsReadAsTheToolkitReadsThem()
{
    for (const int year : {0, 1, 99, 100, 1582, 1752, 1900, 1999, 2000, 2023, 2024, 2100, 9999}) {
        for (int month = 0; month <= 13; ++month) {
            for (const int day : {0, 1, 27, 28, 29, 30, 31, 32}) {
                const QString text = QString::asprintf("%04d%02d%02d", year, month, day);
                QCOMPARE(ZrCompactDate::parse(text), QDate::fromString(text, QStringLiteral("yyyyMMdd")));
            }
        }
    }
}

ZR_TEST_GUILESS_MAIN(tst_ZrCompactDate)
#include "tst_zrcompactdate.moc"
