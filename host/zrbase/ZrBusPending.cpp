#include "ZrBusPending.h"

#include <chrono>

std::shared_ptr<void> ZrBusPending::share()
{
    add(1);
    return std::shared_ptr<void>(this, [](void *pending) { static_cast<ZrBusPending *>(pending)->add(-1); });
}

bool ZrBusPending::waitIdle(int timeoutMs)
{
    std::unique_lock<std::mutex> lock(m_mutex);
    const auto isIdle = [this] { return m_count == 0; };
    if (timeoutMs >= 0)
        return m_idle.wait_for(lock, std::chrono::milliseconds(timeoutMs), isIdle);
    m_idle.wait(lock, isIdle);
    return true;
}

void ZrBusPending::add(qint64 n)
{
    const std::lock_guard<std::mutex> guard(m_mutex);
    m_count += n;
    if (m_count == 0)
        m_idle.notify_all();
}
