#pragma once

#include "ZrBusItem.h"

#include <condition_variable>
#include <memory>
#include <mutex>
#include <thread>

class IMessageInterface;
class ZrBusLane;

/// One registration: an endpoint under an ID, and the lane that calls it.
///
/// Ownership: shared by the registry and by the work that waits in a lane, so that an endpoint may go
///            while items for it are still under way. The endpoint itself is borrowed.
/// Threads:   any. No lock is held while the endpoint is called.
class ZrBusEntry
{
public:
    ZrBusEntry(const QString &pid, IMessageInterface *endpoint, std::shared_ptr<ZrBusLane> lane);

    const QString pid;
    const std::shared_ptr<ZrBusLane> lane;

    /// Calls the receiver that the item is for; false when the registration has ended. Runs on the
    /// lane's thread only.
    bool deliver(const ZrBusItem &item);
    /// After this no call begins; a running one goes on.
    void close();
    bool isOpen() const;
    /// Whether a call runs on another thread than the caller's.
    bool isBusyElsewhere() const;
    /// Waits until no call runs, unless it is the caller's own.
    void waitForCallElsewhere();
    IMessageInterface *endpoint() const { return m_endpoint; }

private:
    bool beginCall();
    void endCall();

    IMessageInterface *const m_endpoint; // not owned; not touched once closed and idle
    mutable std::mutex m_mutex;
    std::condition_variable m_idle;
    bool m_open = true;
    bool m_inCall = false;
    std::thread::id m_caller;
};
