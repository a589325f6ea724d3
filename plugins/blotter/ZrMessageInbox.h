#pragma once

#include <QtCore/QElapsedTimer>
#include <QtCore/QObject>
#include <QtCore/QTimer>
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
/// Shape:   a message that comes alone is handed on at once; those that follow within FrameMs come together,
///          so that a busy feed costs one paint for each frame and not one for each message. A batch holds
///          at most MaxBatch messages, so that the window keeps serving its user during a burst.
/// Threads: put() from any; the signal comes on the inbox's own thread.
class ZrMessageInbox : public QObject
{
    Q_OBJECT
public:
    static constexpr int MaxBatch = 2000;
    static constexpr int FrameMs = 16;

    explicit ZrMessageInbox(QObject *parent = nullptr);

    void put(const ZrInboxMessage &message);
    bool isEmpty() const;

signals:
    void signalBatch(const std::vector<ZrInboxMessage> &messages);

private:
    void schedule();
    void drain();

    mutable std::mutex m_mutex;
    std::vector<ZrInboxMessage> m_waiting;
    bool m_posted = false; // a batch is on its way
    QTimer m_next;         // the rest is the own thread's
    QElapsedTimer m_sinceBatch;
};
