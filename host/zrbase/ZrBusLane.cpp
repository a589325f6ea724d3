#include "ZrBusLane.h"

#include "ZrShortSpin.h"

#include <atomic>
#include <condition_variable>
#include <mutex>
#include <vector>

struct ZrBusLane::Queue
{
    std::mutex mutex;
    std::condition_variable wake;
    std::vector<Work> work;
    // Written under the mutex, read between two pieces of work.
    std::atomic<bool> stopping{false};
    std::atomic<bool> filled{false}; // there is work
    std::atomic<int> poster{-1};     // the processor on which another thread gave the last piece
};

ZrBusLane::ZrBusLane()
    : m_queue(std::make_shared<Queue>())
    , m_thread([queue = m_queue] { drain(queue); })
{
}

ZrBusLane::~ZrBusLane()
{
    stop();
    // The work that runs now may hold the last reference to its lane: a thread can't wait for itself.
    if (m_thread.joinable())
        m_thread.detach();
}

bool ZrBusLane::post(Work &&work)
{
    bool wasEmpty = false;
    {
        const std::lock_guard<std::mutex> guard(m_queue->mutex);
        if (m_queue->stopping)
            return false;
        wasEmpty = m_queue->work.empty();
        m_queue->work.push_back(std::move(work));
        m_queue->filled = true;
        if (!isCurrentThread())
            m_queue->poster = ZrShortSpin::currentProcessor();
    }
    if (wasEmpty)
        m_queue->wake.notify_one();
    return true;
}

void ZrBusLane::stop()
{
    {
        const std::lock_guard<std::mutex> guard(m_queue->mutex);
        m_queue->stopping = true;
    }
    m_queue->wake.notify_one();
    if (!isCurrentThread() && m_thread.joinable())
        m_thread.join();
}

bool ZrBusLane::isCurrentThread() const
{
    return std::this_thread::get_id() == m_thread.get_id();
}

void ZrBusLane::drain(const std::shared_ptr<Queue> &queue)
{
    std::vector<Work> batch;
    ZrShortSpin spin;
    while (!queue->stopping) {
        spin.wait(queue->poster, [&queue] { return queue->filled || queue->stopping; });
        {
            std::unique_lock<std::mutex> lock(queue->mutex);
            queue->wake.wait(lock, [&queue] { return queue->stopping || !queue->work.empty(); });
            batch.swap(queue->work);
            queue->filled = false;
        }
        for (Work &work : batch) {
            if (queue->stopping)
                break;
            work();
            work = nullptr; // what the work holds goes at once, not with the batch
        }
        batch.clear();
    }
    // Unrun work is destroyed here, outside the lock: it may hold what locks on its way out.
    std::unique_lock<std::mutex> lock(queue->mutex);
    batch.swap(queue->work);
    lock.unlock();
    batch.clear();
}
