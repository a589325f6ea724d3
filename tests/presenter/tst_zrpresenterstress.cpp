#include "PresenterProbe.h"
#include "StressStage.h"
#include "ZrTestMain.h"

#include <QtCore/QElapsedTimer>
#include <QtCore/QLoggingCategory>
#include <QtCore/QTimer>

#ifndef ZR_STRESS_REQUESTS
#error "the number of requests comes from the build"
#endif

namespace {
constexpr int workers = 8;
constexpr int requestsPerLease = 8;
constexpr int requestsPerEnd = 150; // then one of the presenters goes

const char *name(Ending ending)
{
    static const char *const names[] = {"success",    "timeout",    "rejected", "Client_88",
                                        "no message", "no records", "destroyed"};
    return names[int(ending)];
}

void work(StressStage *stage, int worker)
{
    int request = 0;
    for (int turn = worker; request >= 0; ++turn) {
        int slot = -1;
        StressPresenter *const presenter = stage->lease(turn, &slot);
        for (int i = 0; i < requestsPerLease && request >= 0; ++i) {
            request = stage->ledger()->next();
            if (request >= 0)
                presenter->send(request);
        }
        stage->release(slot);
    }
}
} // namespace

/// Eight threads, all shapes of request, answers that get lost, late, doubled and out of order, and
/// presenters that come and go meanwhile.
class TestZrPresenterStress : public QObject
{
    Q_OBJECT
private slots:
    void everyRequestEndsExactlyOnce();
};

void TestZrPresenterStress::everyRequestEndsExactlyOnce()
{
    QLoggingCategory::setFilterRules(QStringLiteral("default.debug=false"));
    StressLedger ledger(ZR_STRESS_REQUESTS);
    QStringList warnings;
    int ended = 0;
    QElapsedTimer clock;
    clock.start();
    {
        const LogCatcher log; // timeouts by the thousand are what the run is for
        const BusBench bench;
        Stress::openBackEnd();
        StressStage stage(&ledger);
        stage.fill();
        QList<QThread *> threads;
        for (int i = 0; i < workers; ++i) {
            threads.append(QThread::create([&stage, i] { work(&stage, i); }));
            threads.last()->start();
        }
        int nextEnd = 0;
        QTimer director;
        connect(&director, &QTimer::timeout, &director, [&] {
            stage.fill();
            if (ledger.started() >= nextEnd) {
                nextEnd = ledger.started() + requestsPerEnd;
                stage.endOne();
            }
        });
        director.start(1);
        const auto isDone = [&threads] {
            return std::all_of(threads.cbegin(), threads.cend(),
                               [](QThread *one) { return one->isFinished(); });
        };
        QVERIFY(QTest::qWaitFor(isDone, 1200000));
        director.stop();
        qDeleteAll(threads);
        stage.endAll();
        QTRY_VERIFY_WITH_TIMEOUT(stage.isEmpty() && ledger.livePresenters == 0 && ledger.liveParts == 0,
                                 60000);
        QVERIFY(ZrBus::instance().waitIdle(60000));
        ledger.settlePuts();
        ended = stage.ended();
        for (const QString &line : log.lines(QtWarningMsg)) {
            if (!line.contains(QLatin1String("timeout")) && !line.startsWith(QLatin1String("sendRequest ")))
                warnings.append(line);
        }
    }
    QCOMPARE(warnings, QStringList());
    qInfo("%d requests in %.1f s, %d late or doubled answers, %d presenters came and went", ledger.size(),
          double(clock.elapsed()) / 1000, ledger.stray.load(), ended);
    for (int i = 0; i < int(Ending::Count); ++i) {
        const int count = ledger.count(Ending(i));
        qInfo("%-10s %6d  %4.1f %%", name(Ending(i)), count, 100.0 * count / ledger.size());
    }
    QCOMPARE(ledger.invariantError(), QString());
    QCOMPARE(ledger.liveMessages.load(), 0);
    for (int i = 0; i < int(Ending::Count); ++i)
        QVERIFY2(ledger.count(Ending(i)) * 20 >= ledger.size(), name(Ending(i)));
}

ZR_TEST_GUILESS_MAIN(TestZrPresenterStress)
#include "tst_zrpresenterstress.moc"
