#include "ZrFeedClock.h"

#include <chrono>

qint64 ZrSteadyClock::steadyNs()
{
    const auto now = std::chrono::steady_clock::now().time_since_epoch();
    return std::chrono::duration_cast<std::chrono::nanoseconds>(now).count();
}

void ZrSteadyClock::waitUntil(qint64 timeNs)
{
    const std::chrono::steady_clock::time_point until{std::chrono::nanoseconds(timeNs)};
    std::unique_lock<std::mutex> lock(m_mutex);
    m_changed.wait_until(lock, until, [this] { return m_interrupted; });
}

void ZrSteadyClock::interrupt()
{
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        m_interrupted = true;
    }
    m_changed.notify_all();
}
