#pragma once

#include <condition_variable>
#include <mutex>
#include <thread>
#include <vector>

class IMessageInterface;

/// The door of one endpoint: knows which receiver calls run and keeps the endpoint alive for them.
///
/// Shape:     one for each endpoint, however often it is registered.
/// Ownership: shared by the endpoint and its entries; the endpoint is borrowed.
/// Threads:   any. The mutex is never held while the endpoint is called.
class ZrBusGate
{
public:
    explicit ZrBusGate(IMessageInterface *endpoint);

    /// The endpoint, or null when it is gone: then no call may begin. Each begin has its end.
    IMessageInterface *beginCall();
    void endCall();
    /// True when a call runs: the endpoint's deleteLater is then asked for again when it ends.
    bool postponeDelete();
    /// No call begins after this; waits for those that run on other threads.
    void endpointDestroyed();

private:
    bool runsElsewhere() const;

    std::mutex m_mutex;
    std::condition_variable m_callEnded;
    IMessageInterface *m_endpoint; // not owned; null once destroyed
    std::vector<std::thread::id> m_callers;
    bool m_deletePostponed = false;
};
