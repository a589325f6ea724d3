#include "ZrLatencyMeter.h"
#include "ZrRunReport.h"
#include "ZrTestMain.h"

#include <QtCore/QJsonDocument>
#include <QtCore/QJsonObject>
#include <QtCore/QTemporaryDir>

#include <limits>

class tst_ZrLatencyMeter : public QObject
{
    Q_OBJECT
private slots:
    void withoutDurationsAllIsZero();
    void percentilesAreAtMostThreePercentTooHigh();
    void theMaximumIsExact();
    void oddDurationsAreTaken();
    void aReportHoldsEveryKey();
    void aReportThatCannotBeWrittenSaysSo();
};

void tst_ZrLatencyMeter::withoutDurationsAllIsZero()
{
    ZrLatencyMeter meter;
    QCOMPARE(meter.percentileUs(0.5), 0.0);
    QCOMPARE(meter.maxUs(), 0.0);
}

void tst_ZrLatencyMeter::percentilesAreAtMostThreePercentTooHigh()
{
    ZrLatencyMeter meter;
    for (int i = 1; i <= 100000; ++i)
        meter.add(qint64(i) * 1000);
    for (const double share : {0.001, 0.5, 0.9, 0.99, 1.0}) {
        const double exact = share * 100000;
        QVERIFY(meter.percentileUs(share) >= exact);
        QVERIFY(meter.percentileUs(share) <= exact * 1.032);
    }
    QCOMPARE(meter.count(), 100000);
    meter.clear();
    QCOMPARE(meter.count(), 0);
}

void tst_ZrLatencyMeter::theMaximumIsExact()
{
    ZrLatencyMeter meter;
    meter.add(123456789);
    meter.add(5);
    QCOMPARE(meter.maxUs(), 123456.789);
    QCOMPARE(meter.percentileUs(1), 123456.789);
    QCOMPARE(meter.percentileUs(0.5), 0.005);
}

void tst_ZrLatencyMeter::oddDurationsAreTaken()
{
    ZrLatencyMeter meter;
    meter.add(-5);
    QCOMPARE(meter.maxUs(), 0.0);
    meter.add(std::numeric_limits<qint64>::max());
    QVERIFY(meter.percentileUs(1) > 9e15);
}

void tst_ZrLatencyMeter::aReportHoldsEveryKey()
{
    QTemporaryDir folder;
    ZrRunReport report;
    report.messagesIn = 42;
    report.feedToPixel.add(2000);
    const QString path = folder.filePath(QStringLiteral("report.json"));
    QCOMPARE(report.write(path), QString());
    QFile file(path);
    QVERIFY(file.open(QIODevice::ReadOnly));
    const QJsonObject json = QJsonDocument::fromJson(file.readAll()).object();
    for (const char *key : {"seconds", "messages_in", "messages_lost", "rows", "updates_applied", "frames",
                            "lines_skipped", "cpu_seconds", "rss_mb"})
        QVERIFY2(json.value(QLatin1String(key)).isDouble(), key);
    QCOMPARE(json.value(QStringLiteral("messages_in")).toInt(), 42);
    QCOMPARE(
        json.value(QStringLiteral("feed_to_pixel_us")).toObject().value(QStringLiteral("p50")).toDouble(),
        2.0);
    QVERIFY(json.value(QStringLiteral("feed_to_model_us")).toObject().contains(QStringLiteral("p99")));
    QVERIFY(json.value(QStringLiteral("rss_mb")).toDouble() > 1);
    QVERIFY(json.value(QStringLiteral("cpu_seconds")).toDouble() > 0);
}

void tst_ZrLatencyMeter::aReportThatCannotBeWrittenSaysSo()
{
    QCOMPARE(ZrRunReport().write(QStringLiteral("/nonexistent/r.json")),
             QStringLiteral("the report /nonexistent/r.json cannot be written."));
}

ZR_TEST_GUILESS_MAIN(tst_ZrLatencyMeter)
#include "tst_zrlatencymeter.moc"
