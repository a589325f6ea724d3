#pragma once

#include <QtCore/QObject>
#include <QtCore/QVariantMap>

#include <mutex>
#include <vector>

/// A message as it came from the bus.
struct ZrInboxMessage
{
    QString type;
    QVariantMap record;
};

/// Hands messages from the bus's thread to the GUI thread in batches.
///
/// Shape:   one queued event for each batch, however many messages come meanwhile. A batch holds at most
///          MaxBatch messages, so that the window keeps serving its user during a burst.
/// Threads: put() from any; the signal comes on the inbox's own thread.
class ZrMessageInbox : public QObject
{
    Q_OBJECT
public:
    static constexpr int MaxBatch = 2000;

    explicit ZrMessageInbox(QObject *parent = nullptr);

    void put(const ZrInboxMessage &message);
    bool isEmpty() const;

signals:
    void signalBatch(const std::vector<ZrInboxMessage> &messages);

private:
    void drain();
    void post();

    mutable std::mutex m_mutex;
    std::vector<ZrInboxMessage> m_waiting;
    bool m_posted = false;
};
