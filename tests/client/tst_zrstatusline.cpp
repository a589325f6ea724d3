#include "ZrLatencyMeter.h"
#include "ZrStatusLine.h"
#include "ZrTestMain.h"

#include <QtWidgets/QLabel>

/// What the trader reads at the bottom of the window.
class tst_ZrStatusLine : public QObject
{
    Q_OBJECT
private slots:
    void init();
    void theRateIsThatOfTheSpan_data();
    void theRateIsThatOfTheSpan();
    void numbersAreWrittenAsTheLocaleDoes();
    void theLatencyIsShownInMilliseconds();
    void withoutANewFrameTheLastLatencyStays();
    void aFeedsNameIsNoMarkup();

private:
    QString text(const char *label) const;
    std::unique_ptr<ZrStatusLine> m_line;
};

void tst_ZrStatusLine::init()
{
    QLocale::setDefault(QLocale(QStringLiteral("en_US")));
    m_line = std::make_unique<ZrStatusLine>();
}

QString tst_ZrStatusLine::text(const char *label) const
{
    const auto *const found = m_line->findChild<QLabel *>(QLatin1String(label));
    return found ? found->text() : QStringLiteral("no such label");
}

void tst_ZrStatusLine::theRateIsThatOfTheSpan_data()
{
    QTest::addColumn<qint64>("messages");
    QTest::addColumn<qint64>("spanMs");
    QTest::addColumn<QString>("expected");
    QTest::newRow("half a second") << qint64(250) << qint64(500) << "500 messages/s";
    QTest::newRow("two seconds") << qint64(5) << qint64(2000) << "3 messages/s"; // rounded
    QTest::newRow("nothing came") << qint64(0) << qint64(500) << "0 messages/s";
    QTest::newRow("no time has passed") << qint64(10) << qint64(0) << "0 messages/s";
    QTest::newRow("more in a millisecond than an int holds")
        << qint64(5000000000) << qint64(1) << "5,000,000,000,000 messages/s";
}

void tst_ZrStatusLine::theRateIsThatOfTheSpan()
{
    QFETCH(qint64, messages);
    QFETCH(qint64, spanMs);
    QFETCH(QString, expected);
    m_line->show(messages, spanMs, 0, ZrLatencyMeter());
    QCOMPARE(text("rate"), expected);
}

void tst_ZrStatusLine::numbersAreWrittenAsTheLocaleDoes()
{
    m_line->show(0, 1000, 12345, ZrLatencyMeter());
    QCOMPARE(text("rows"), QStringLiteral("12,345 rows"));
    QLocale::setDefault(QLocale(QStringLiteral("de_DE")));
    m_line = std::make_unique<ZrStatusLine>();
    m_line->show(0, 1000, 12345, ZrLatencyMeter());
    QCOMPARE(text("rows"), QStringLiteral("12.345 rows"));
}

void tst_ZrStatusLine::theLatencyIsShownInMilliseconds()
{
    ZrLatencyMeter meter;
    for (int i = 0; i < 98; ++i)
        meter.add(2000000);
    meter.add(40000000);
    meter.add(40000000);
    m_line->show(100, 1000, 1, meter);
    QVERIFY2(text("latency").startsWith(QLatin1String("Tick to pixel: 2.0 ms median, 4")),
             qPrintable(text("latency"))); // a percentile may be 3 % too high
    QVERIFY(text("latency").endsWith(QLatin1String(" ms 99th percentile")));
}

void tst_ZrStatusLine::withoutANewFrameTheLastLatencyStays()
{
    m_line->show(0, 1000, 0, ZrLatencyMeter());
    QCOMPARE(text("latency"), QString());
    ZrLatencyMeter meter;
    meter.add(1000000);
    m_line->show(1, 1000, 1, meter);
    const QString shown = text("latency");
    QVERIFY(!shown.isEmpty());
    m_line->show(0, 1000, 1, ZrLatencyMeter());
    QCOMPARE(text("latency"), shown);
}

void tst_ZrStatusLine::aFeedsNameIsNoMarkup()
{
    m_line->setFeed(QStringLiteral("<img src='x'>%1"));
    QCOMPARE(text("feed"), QStringLiteral("Feed: <img src='x'>%1"));
    QCOMPARE(m_line->findChild<QLabel *>(QStringLiteral("feed"))->textFormat(), Qt::PlainText);
}

ZR_TEST_MAIN(tst_ZrStatusLine)
#include "tst_zrstatusline.moc"
