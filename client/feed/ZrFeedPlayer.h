#pragma once

#include "ZrFeedClock.h"
#include "ZrFeedMessages.h"
#include "ZrFeedSource.h"

#include <atomic>
#include <functional>
#include <memory>
#include <thread>

/// Plays a feed: gives its messages to the bus when their time has come.
///
/// Shape:     on a thread of its own. What comes before the first order or trade is given at once: a
///            recording may begin with an hour of an empty book. Each message is stamped with its number
///            and the time at which it was given.
/// Units:     `speed` 1 is the feed's own, 2 twice as fast, 0 as fast as the receiver takes it.
/// Ownership: owns the source; borrows the clock.
/// Threads:   start() and stop() on one thread; acknowledge(), sent() and isFinished() from any. The
///            sink and the finish call run on the player's thread.
/// Errors:    none; the source counts what it cannot read.
class ZrFeedPlayer
{
public:
    using Sink = std::function<void(const ZrFeedMessage &message)>;

    struct Options
    {
        double speed = 1.0;
        qint64 window = 20000; // so many messages may be unacknowledged before the player waits
    };

    ZrFeedPlayer(std::unique_ptr<ZrFeedSource> source, const QList<QVariantMap> &accounts,
                 const Options &options, ZrFeedClock *clock);
    ~ZrFeedPlayer();

    void start(const Sink &sink, const std::function<void()> &finished);
    void stop();
    /// The receiver has seen the message of this number and so all before it.
    void acknowledge(qint64 number);

    qint64 sent() const { return m_sent.load(); }
    bool isFinished() const { return m_finished.load(); }
    /// Only once finished or stopped.
    const ZrFeedTotals &totals() const { return m_messages.totals(); }
    const ZrFeedSource &source() const { return *m_source; }

private:
    Q_DISABLE_COPY(ZrFeedPlayer)
    void run(const Sink &sink);
    void waitForTime(const ZrFeedEvent &event);
    void waitForRoom();

    const std::unique_ptr<ZrFeedSource> m_source;
    const Options m_options;
    ZrFeedClock *const m_clock; // not owned
    ZrFeedMessages m_messages;
    std::thread m_thread;
    std::atomic<bool> m_stopping{false};
    std::atomic<bool> m_finished{false};
    std::atomic<qint64> m_sent{0};
    std::atomic<qint64> m_seen{0};
    bool m_running = false; // the first order or trade has come
    qint64 m_beganNs = 0;   // by the clock
    qint64 m_firstNs = 0;   // by the events
};
