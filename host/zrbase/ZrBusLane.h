#pragma once

#include <QtCore/QtGlobal>

#include <functional>
#include <memory>
#include <thread>

/// A thread of the bus and the queue before it: work runs in the order in which it was given.
///
/// Shape:   the whole queue is taken at once, so that a burst costs one lock and one wake-up.
/// Threads: post() from any; the work runs on the lane's own thread.
class ZrBusLane
{
public:
    using Work = std::function<void()>;

    ZrBusLane();
    ~ZrBusLane();

    /// Queues work; false when the lane has been stopped: the work is then destroyed unrun.
    bool post(Work &&work);
    /// Ends the lane after the piece of work that runs now; the rest is destroyed unrun. Waits for
    /// the thread, unless called on it.
    void stop();
    bool isCurrentThread() const;

private:
    Q_DISABLE_COPY(ZrBusLane)
    struct Queue;
    static void drain(const std::shared_ptr<Queue> &queue);

    const std::shared_ptr<Queue> m_queue; // shared with the thread, which may outlive the lane
    std::thread m_thread;
};
