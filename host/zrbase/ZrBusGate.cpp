#include "ZrBusGate.h"

#include "zrbase/IMessageInterface.h"

#include <algorithm>

ZrBusGate::ZrBusGate(IMessageInterface *endpoint)
    : m_endpoint(endpoint)
{
}

IMessageInterface *ZrBusGate::beginCall()
{
    const std::lock_guard<std::mutex> guard(m_mutex);
    if (m_endpoint)
        m_callers.push_back(std::this_thread::get_id());
    return m_endpoint;
}

void ZrBusGate::endCall()
{
    {
        const std::lock_guard<std::mutex> guard(m_mutex);
        const auto own = std::find(m_callers.begin(), m_callers.end(), std::this_thread::get_id());
        m_callers.erase(own);
        // Under the lock: the endpoint's destructor takes it too, so that the pointer is good.
        if (m_callers.empty() && m_deletePostponed && m_endpoint) {
            m_deletePostponed = false;
            m_endpoint->deleteLater();
        }
    }
    m_callEnded.notify_all();
}

bool ZrBusGate::postponeDelete()
{
    const std::lock_guard<std::mutex> guard(m_mutex);
    if (m_callers.empty())
        return false;
    m_deletePostponed = true;
    return true;
}

void ZrBusGate::endpointDestroyed()
{
    std::unique_lock<std::mutex> lock(m_mutex);
    m_endpoint = nullptr;
    m_callEnded.wait(lock, [this] { return !runsElsewhere(); });
}

bool ZrBusGate::runsElsewhere() const
{
    const auto isOther = [](std::thread::id caller) { return caller != std::this_thread::get_id(); };
    return std::any_of(m_callers.cbegin(), m_callers.cend(), isOther);
}
