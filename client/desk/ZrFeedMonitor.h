#pragma once

#include "ZrPresenterClass.h"

#include <atomic>
#include <functional>
#include <mutex>
#include <vector>

/// Listens to all that a feed sends and counts it, whatever the plugins do with it.
///
/// Shape:   orders, reports, trades and depth, each with its number.
/// Threads: receivers on the bus's thread; counts from any.
class ZrFeedMonitor : public ZrPresenterClass
{
    Q_OBJECT
public:
    /// Told on the bus's thread for each message: its number, and whether it is an order or a report, which
    /// grids show.
    using SeenCall = std::function<void(qint64 number, bool isOrder)>;

    explicit ZrFeedMonitor(const QString &pluginPid);

    void ProcMsg(QString pid, QVariant msgType, QVariant msg) override;

    /// Subscribes the four message types.
    void open();
    /// Nothing is counted and nobody is told any more once this returns.
    void detach();
    void setSeenCall(const SeenCall &seen);

    qint64 received() const { return m_received.load(); }
    /// Received messages, doubles counted once.
    qint64 distinct() const { return m_distinct.load(); }

private:
    void count(qint64 number);

    std::mutex m_mutex;
    bool m_open = true;
    SeenCall m_seen;
    std::vector<bool> m_numbers; // which message numbers have come
    std::atomic<qint64> m_received{0};
    std::atomic<qint64> m_distinct{0};
};
