#pragma once

#include "ZrBusGate.h"
#include "ZrBusItem.h"

#include <atomic>
#include <memory>

class ZrBusLane;

/// One registration: an endpoint under an ID, and the lane that calls it.
///
/// Ownership: shared by the registry and by the work that waits in a lane, so that an endpoint may go
///            while items for it are still under way.
/// Threads:   any. No lock is held while the endpoint is called.
class ZrBusEntry
{
public:
    ZrBusEntry(const QString &pid, std::shared_ptr<ZrBusGate> gate, std::shared_ptr<ZrBusLane> lane);

    const QString pid;
    const std::shared_ptr<ZrBusGate> gate;
    const std::shared_ptr<ZrBusLane> lane;

    /// Calls the receiver that the item is for; false when the registration has ended. Runs on the
    /// lane's thread only.
    bool deliver(const ZrBusItem &item);
    /// After this no call begins; a running one goes on.
    void close();

private:
    bool beginCall(IMessageInterface **endpoint);

    std::mutex m_mutex;
    bool m_open = true;
};
