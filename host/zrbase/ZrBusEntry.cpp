#include "ZrBusEntry.h"

#include "zrbase/IMessageInterface.h"

ZrBusEntry::ZrBusEntry(const QString &pid, std::shared_ptr<ZrBusGate> gate, std::shared_ptr<ZrBusLane> lane)
    : pid(pid)
    , gate(std::move(gate))
    , lane(std::move(lane))
{
}

bool ZrBusEntry::deliver(const ZrBusItem &item)
{
    IMessageInterface *endpoint = nullptr;
    if (!beginCall(&endpoint))
        return false;
    switch (item.kind) {
    case ZrBusKind::Message:
        endpoint->ProcMsg(item.source, item.type, item.body);
        break;
    case ZrBusKind::Event:
        endpoint->ProcEventMsg(item.source, item.type, item.body);
        break;
    case ZrBusKind::Quotation:
        endpoint->ProcQuotationMsg(item.source, item.type, item.body);
        break;
    }
    gate->endCall();
    return true;
}

void ZrBusEntry::close()
{
    const std::lock_guard<std::mutex> guard(m_mutex);
    m_open = false;
}

bool ZrBusEntry::beginCall(IMessageInterface **endpoint)
{
    // close() waits for this lock: a call counts as begun once the gate knows of it.
    const std::lock_guard<std::mutex> guard(m_mutex);
    *endpoint = m_open ? gate->beginCall() : nullptr;
    return *endpoint;
}
