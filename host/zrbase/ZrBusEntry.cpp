#include "ZrBusEntry.h"

#include "zrbase/IMessageInterface.h"

ZrBusEntry::ZrBusEntry(const QString &pid, IMessageInterface *endpoint, std::shared_ptr<ZrBusLane> lane)
    : pid(pid)
    , lane(std::move(lane))
    , m_endpoint(endpoint)
{
}

bool ZrBusEntry::deliver(const ZrBusItem &item)
{
    if (!beginCall())
        return false;
    switch (item.kind) {
    case ZrBusKind::Message:
        m_endpoint->ProcMsg(item.source, item.type, item.body);
        break;
    case ZrBusKind::Event:
        m_endpoint->ProcEventMsg(item.source, item.type, item.body);
        break;
    case ZrBusKind::Quotation:
        m_endpoint->ProcQuotationMsg(item.source, item.type, item.body);
        break;
    }
    endCall();
    return true;
}

void ZrBusEntry::close()
{
    const std::lock_guard<std::mutex> guard(m_mutex);
    m_open = false;
}

bool ZrBusEntry::isOpen() const
{
    const std::lock_guard<std::mutex> guard(m_mutex);
    return m_open;
}

bool ZrBusEntry::isBusyElsewhere() const
{
    const std::lock_guard<std::mutex> guard(m_mutex);
    return m_inCall && m_caller != std::this_thread::get_id();
}

void ZrBusEntry::waitForCallElsewhere()
{
    std::unique_lock<std::mutex> lock(m_mutex);
    if (m_caller == std::this_thread::get_id())
        return;
    m_idle.wait(lock, [this] { return !m_inCall; });
}

bool ZrBusEntry::beginCall()
{
    const std::lock_guard<std::mutex> guard(m_mutex);
    if (!m_open)
        return false;
    m_inCall = true;
    m_caller = std::this_thread::get_id();
    return true;
}

void ZrBusEntry::endCall()
{
    {
        const std::lock_guard<std::mutex> guard(m_mutex);
        m_inCall = false;
        m_caller = std::thread::id();
    }
    m_idle.notify_all();
}
