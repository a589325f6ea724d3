#include "feed/ZrFeedClock.h"
#include "ZrClientFields.h"
#include "ZrPluginMeter.h"
#include "ZrTestMain.h"

/// What a plugin's reports and the window's frames come to.
class tst_ZrPluginMeter : public QObject
{
    Q_OBJECT
private slots:
    void aReportTellsTheTimeToTheModel();
    void framesTakeTheLatencyOnce();
    void aReportThatLacksSomethingCountsForWhatItHas();
    void aGridThatNobodySeesCostsBoundedMemory();
};

namespace {
QVariantMap report(qint64 appliedNs, const QVector<qint64> &sentNs, const QVector<qint64> &inSightNs)
{
    return {{ZrPluginReport::appliedNs, appliedNs},
            {ZrPluginReport::sentNs, QVariant::fromValue(sentNs)},
            {ZrPluginReport::inSightNs, QVariant::fromValue(inSightNs)}};
}
} // namespace

void tst_ZrPluginMeter::aReportTellsTheTimeToTheModel()
{
    ZrPluginMeter meter;
    meter.take(report(5000000, {1000000, 3000000}, {}));
    QCOMPARE(meter.updatesApplied(), qint64(2));
    QCOMPARE(meter.toModel().count(), qint64(2));
    QCOMPARE(meter.toModel().maxUs(), 4000.0);
    meter.frameShown();
    QCOMPARE(meter.toPixel().count(), qint64(0)); // none of it was in sight
    QCOMPARE(meter.frames(), qint64(1));
}

void tst_ZrPluginMeter::framesTakeTheLatencyOnce()
{
    ZrPluginMeter meter;
    const qint64 sentNs = ZrSteadyClock::steadyNs();
    meter.take(report(sentNs + 1, {sentNs, sentNs}, {sentNs}));
    QCOMPARE(meter.toPixel().count(), qint64(0)); // no frame has shown it
    meter.frameShown();
    meter.frameShown();
    QCOMPARE(meter.frames(), qint64(2));
    QCOMPARE(meter.toPixel().count(), qint64(1));
    QVERIFY(meter.toPixel().maxUs() > 0);
    QCOMPARE(meter.takeRecentToPixel().count(), qint64(1));
    QCOMPARE(meter.takeRecentToPixel().count(), qint64(0));
    QCOMPARE(meter.toPixel().count(), qint64(1)); // of the whole run
}

void tst_ZrPluginMeter::aReportThatLacksSomethingCountsForWhatItHas()
{
    ZrPluginMeter meter;
    meter.take({});
    meter.take({{ZrPluginReport::sentNs, QStringLiteral("text")}, {ZrPluginReport::inSightNs, 4}});
    meter.frameShown();
    QCOMPARE(meter.updatesApplied(), qint64(0));
    QCOMPARE(meter.toPixel().count(), qint64(0));
}

void tst_ZrPluginMeter::aGridThatNobodySeesCostsBoundedMemory()
{
    ZrPluginMeter meter;
    const QVector<qint64> batch(100000, 1);
    for (int i = 0; i < 30; ++i)
        meter.take(report(2, batch, batch));
    QCOMPARE(meter.updatesApplied(), qint64(3000000));
    meter.frameShown();
    QVERIFY(meter.toPixel().count() <= 1100000);
}

ZR_TEST_GUILESS_MAIN(tst_ZrPluginMeter)
#include "tst_zrpluginmeter.moc"
