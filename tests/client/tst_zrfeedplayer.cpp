#include "client/ZrClientFields.h"
#include "ZrFeedPlayer.h"
#include "ZrTestMain.h"

class tst_ZrFeedPlayer : public QObject
{
    Q_OBJECT
private slots:
    void messagesComeAtTheirTimes_data();
    void messagesComeAtTheirTimes();
    void whatComesBeforeTheFirstOrderIsNotWaitedFor();
    void messagesAreNumberedAndStamped();
    void theWindowHoldsTheFeedBack();
    void aLostReceiverDoesNotStopTheFeed();
    void stoppingEndsAWait();
    void theSteadyClockWaitsUntilItIsInterrupted();
};

namespace {
/// Events given by a list.
class ListSource : public ZrFeedSource
{
public:
    explicit ListSource(const QVector<ZrFeedEvent> &events)
        : m_events(events)
    {
    }
    bool next(ZrFeedEvent *event) override
    {
        if (m_at >= m_events.size())
            return false;
        *event = m_events.at(m_at++);
        return true;
    }
    QTimeZone zone() const override { return QTimeZone::utc(); }
    qint64 linesSkipped() const override { return 0; }
    QString problems() const override { return QString(); }

private:
    const QVector<ZrFeedEvent> m_events;
    int m_at = 0;
};

/// Time that passes only by waiting.
class JumpClock : public ZrFeedClock
{
public:
    qint64 nowNs() override { return m_nowNs; }
    void waitUntil(qint64 timeNs) override { m_nowNs = qMax(m_nowNs.load(), timeNs); }
    void interrupt() override {}

private:
    std::atomic<qint64> m_nowNs{1000};
};

ZrFeedEvent makeEvent(ZrFeedKind kind, qint64 timeNs)
{
    ZrFeedEvent result;
    result.kind = kind;
    result.symbol = "X";
    result.order = QByteArray::number(timeNs);
    result.hasQuantity = true;
    result.quantity = ZrDecimal::fromInt(1);
    result.timeNs = timeNs;
    return result;
}

struct Taken
{
    QString type;
    qint64 number;
    qint64 atNs;
};

// Plays the events and gives what came out, with the clock's time.
QVector<Taken> play(const QVector<ZrFeedEvent> &events, double speed)
{
    JumpClock clock;
    QVector<Taken> taken;
    ZrFeedPlayer::Options options;
    options.speed = speed;
    ZrFeedPlayer player(std::make_unique<ListSource>(events), {}, options, &clock);
    player.start(
        [&](const ZrFeedMessage &message) {
            taken.append({message.type, message.record.value(ZrClientFields::seqNo).toLongLong(),
                          message.record.value(ZrClientFields::sentNs).toLongLong() - 1000});
            player.acknowledge(taken.constLast().number);
        },
        {});
    [&player] { QTRY_VERIFY(player.isFinished()); }();
    player.stop();
    return taken;
}
} // namespace

void tst_ZrFeedPlayer::messagesComeAtTheirTimes_data()
{
    QTest::addColumn<double>("speed");
    QTest::addColumn<qint64>("expectedNs");
    QTest::newRow("own speed") << 1.0 << qint64(4000000000);
    QTest::newRow("twice as fast") << 2.0 << qint64(2000000000);
    QTest::newRow("slowly") << 0.5 << qint64(8000000000);
    QTest::newRow("as fast as possible") << 0.0 << qint64(0);
}

void tst_ZrFeedPlayer::messagesComeAtTheirTimes()
{
    QFETCH(double, speed);
    QFETCH(qint64, expectedNs);
    const qint64 begin = Q_INT64_C(1675215000000000000);
    // The third event steps back: it comes at once.
    const QVector<Taken> taken =
        play({makeEvent(ZrFeedKind::Add, begin), makeEvent(ZrFeedKind::Add, begin + 4000000000),
              makeEvent(ZrFeedKind::Add, begin + 1)},
             speed);
    QCOMPARE(taken.size(), 6);
    QCOMPARE(taken.at(0).atNs, qint64(0));
    QCOMPARE(taken.at(2).atNs, expectedNs);
    QCOMPARE(taken.at(4).atNs, expectedNs);
}

void tst_ZrFeedPlayer::whatComesBeforeTheFirstOrderIsNotWaitedFor()
{
    const QVector<Taken> taken =
        play({makeEvent(ZrFeedKind::Book, 0), makeEvent(ZrFeedKind::Book, 3600000000000),
              makeEvent(ZrFeedKind::Add, 7200000000000), makeEvent(ZrFeedKind::Book, 7200000000500)},
             1);
    QCOMPARE(taken.size(), 5);
    QCOMPARE(taken.at(2).atNs, qint64(0));
    QCOMPARE(taken.at(4).atNs, qint64(500));
}

void tst_ZrFeedPlayer::messagesAreNumberedAndStamped()
{
    const QVector<Taken> taken = play({makeEvent(ZrFeedKind::Add, 0), makeEvent(ZrFeedKind::Book, 5)}, 1);
    for (int i = 0; i < taken.size(); ++i)
        QCOMPARE(taken.at(i).number, i);
    QCOMPARE(taken.size(), 3);
    QCOMPARE(taken.constLast().type, ZrClientMsgType::depth);
}

void tst_ZrFeedPlayer::theWindowHoldsTheFeedBack()
{
    ZrSteadyClock clock;
    ZrFeedPlayer::Options options;
    options.speed = 0;
    options.window = 10;
    std::atomic<qint64> ahead{0};
    ZrFeedPlayer player(
        std::make_unique<ListSource>(QVector<ZrFeedEvent>(500, makeEvent(ZrFeedKind::Book, 0))), {}, options,
        &clock);
    std::atomic<qint64> given{0};
    std::atomic<qint64> taken{0};
    std::atomic<bool> done{false};
    // A receiver on a thread of its own, slower than the feed.
    std::thread receiver([&] {
        while (!done || taken < given) {
            if (taken < given) {
                ahead = qMax(ahead.load(), given - taken);
                player.acknowledge(taken++);
            }
            std::this_thread::yield();
        }
    });
    player.start([&](const ZrFeedMessage &) { ++given; }, [&] { done = true; });
    QTRY_VERIFY(done);
    receiver.join();
    QCOMPARE(given.load(), 500);
    QVERIFY2(ahead <= 12, qPrintable(QString::number(ahead)));
    QCOMPARE(player.sent(), 500);
}

void tst_ZrFeedPlayer::aLostReceiverDoesNotStopTheFeed()
{
    JumpClock clock;
    ZrFeedPlayer::Options options;
    options.speed = 0;
    options.window = 3;
    ZrFeedPlayer player(
        std::make_unique<ListSource>(QVector<ZrFeedEvent>(20, makeEvent(ZrFeedKind::Book, 0))), {}, options,
        &clock);
    player.start([](const ZrFeedMessage &) {}, {});
    QTRY_VERIFY(player.isFinished());
    player.stop();
    QCOMPARE(player.sent(), 20);
    QCOMPARE(player.totals().books, 20);
    QCOMPARE(player.source().linesSkipped(), 0);
}

void tst_ZrFeedPlayer::stoppingEndsAWait()
{
    ZrSteadyClock clock;
    ZrFeedPlayer player(
        std::make_unique<ListSource>(QVector<ZrFeedEvent>{
            makeEvent(ZrFeedKind::Add, 0), makeEvent(ZrFeedKind::Add, Q_INT64_C(86400) * 1000000000)}),
        {}, ZrFeedPlayer::Options(), &clock);
    std::atomic<int> given{0};
    player.start([&given](const ZrFeedMessage &) { ++given; }, {});
    player.start([&given](const ZrFeedMessage &) { given = 1000; }, {}); // it runs already
    QTRY_COMPARE(given.load(), 2);
    player.stop();
    player.stop();
    QCOMPARE(given.load(), 2);
    QVERIFY(player.isFinished());
}

void tst_ZrFeedPlayer::theSteadyClockWaitsUntilItIsInterrupted()
{
    ZrSteadyClock clock;
    const qint64 untilNs = clock.nowNs() + 2000000;
    clock.waitUntil(untilNs);
    QVERIFY(clock.nowNs() >= untilNs);
    clock.interrupt();
    clock.waitUntil(clock.nowNs() + Q_INT64_C(86400) * 1000000000);
}

ZR_TEST_GUILESS_MAIN(tst_ZrFeedPlayer)
#include "tst_zrfeedplayer.moc"
