#pragma once

#include <QtCore/QtGlobal>

#include <condition_variable>
#include <mutex>

/// The time by which a feed is played; a test brings its own.
///
/// Units:   nanoseconds that never step back, from any beginning.
/// Threads: any.
class ZrFeedClock
{
public:
    virtual ~ZrFeedClock() = default;
    virtual qint64 nowNs() = 0;
    /// Returns at that time, or earlier once interrupt() was called.
    virtual void waitUntil(qint64 timeNs) = 0;
    /// Ends the wait under way and all later ones.
    virtual void interrupt() = 0;
};

/// The machine's steady clock.
class ZrSteadyClock : public ZrFeedClock
{
public:
    /// What nowNs() of every object gives: the stamp of messages.
    static qint64 steadyNs();

    qint64 nowNs() override { return steadyNs(); }
    void waitUntil(qint64 timeNs) override;
    void interrupt() override;

private:
    std::mutex m_mutex;
    std::condition_variable m_changed;
    bool m_interrupted = false;
};
