#pragma once

#include "ZrPresenterClass.h"

#include <atomic>
#include <functional>
#include <mutex>
#include <vector>

class ZrMessageInbox;

/// The blotter's connection to the bus: receives orders, reports, trades and depth and counts them.
///
/// Shape:     orders and reports go to the inbox; trades and depth are only counted here.
/// Ownership: borrows the inbox, which must live until detach() has been called.
/// Threads:   receivers on the bus's thread; counts from any.
class ZrBlotterPresenter : public ZrPresenterClass
{
    Q_OBJECT
public:
    ZrBlotterPresenter(const QString &pluginPid, ZrMessageInbox *inbox);

    void ProcMsg(QString pid, QVariant msgType, QVariant msg) override;

    /// Subscribes the four message types.
    void open();
    /// Nothing goes to the inbox any more once this returns.
    void detach();
    /// Told on the bus's thread for each message, with its number.
    void setSeenCall(const std::function<void(qint64)> &seen);

    qint64 received() const { return m_received.load(); }
    /// Received messages, doubles counted once.
    qint64 distinct() const { return m_distinct.load(); }

private:
    void count(qint64 number);

    std::mutex m_mutex;
    ZrMessageInbox *m_inbox; // not owned; null once detached
    std::function<void(qint64)> m_seen;
    std::vector<bool> m_numbers; // which message numbers have come
    std::atomic<qint64> m_received{0};
    std::atomic<qint64> m_distinct{0};
};
