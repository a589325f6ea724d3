#pragma once

#include "ZrEventLoop.h"
#include "ZrPresenterCalls.h"
#include "ZrWaitCondition.h"
#include "zrwidget_global.h"

#include "zrbase/IMessageInterface.h"

#include <QtCore/QList>
#include <QtCore/QMap>
#include <QtCore/QMutex>
#include <QtCore/QSemaphore>
#include <QtCore/QString>
#include <QtCore/QVariant>

#include <atomic>

class CMessageCommon;
class QTimer;
class ZrPresenterClass;
class ZrRequestMessage;
class ZrThread;

/// The bus endpoint of a presenter, and its open requests.
///
/// Shape:     an open request stands in one of the four maps under its client message ID. Whoever takes it
/// out
///            under the mutex ends it; everybody else finds nothing.
/// Units:     times in s, ages in ticks of the one-second clock.
/// Ownership: the presenter's, but lives on the thread that made the presenter and goes by deleteLater there.
/// Threads:   receivers on bus threads, requests on any thread, the clock on the presenter's. The mutex is
/// held
///            over the fields only, never across a receiver, a signal or a call of the bus, nor across the
///            mutex of a waiter.
class ZRWIDGET_PRIVATE_EXPORT ZrPresenterClassPrivate : public IMessageInterface
{
    Q_OBJECT
public:
    ZrPresenterClassPrivate(const QString &pluginPid, ZrPresenterClass *presenter);
    ~ZrPresenterClassPrivate() override;

    // Shared: the family may read, only this pair and the presenter write.
    mutable QMutex mutex;                          // guards all from responseTypes to destroying
    ZrThread *thread = nullptr;                    // the presenter's own, null if it has none; deletes itself
    QTimer *timer = nullptr;                       // the one-second clock, child of the presenter
    ZrPresenterClass *const presenter;             // not owned: it owns us
    const QString pluginPid;                       // our ID on the bus
    std::atomic<int> requestTimeOut{10};           // s
    QList<QVariant> responseTypes;                 // subscribed through SubResponse
    QList<QString> putClientMsgIDs;                // sent through Put and not finished; may hold doubles
    QMap<QString, ZrEventLoop *> syncLoops;        // borrowed from the waiting calls
    QMap<QString, ZrWaitCondition *> blockWaiters; // borrowed from the blocked calls
    QMap<QString, QString> asyncRequests;          // ID to the request's type
    QMap<QString, QString> timedOutAsyncRequests;  // the same, once the timeout has been reported
    QMap<QString, int> requestAges;                // ID to ticks since sending
    bool destroying = false;                       // set by deleteLater
    QList<QVariant> subscribedTypes;               // subscribed through Sub; not guarded, Sub has one thread
    ZrPresenterCalls calls;                        // in progress on any thread

    void ProcMsg(QString pid, QVariant msgType, QVariant msg) override;
    void ProcEventMsg(QString pid, QVariant msgType, QVariant msg) override;
    void ProcQuotationMsg(QString pid, QVariant msgType, QVariant msg) override;

    /// Tells the host that a request of this type and ID got no answer in time.
    void sendTimeoutEvent(const QString &msgType, const QString &clientMsgID);

    void startThread();
    /// First code on the presenter's own thread.
    void Initial();

    /// Asked before a line is put together: the lines of a request cost as much as its way over the bus.
    static bool isDebugLogged();
    bool isDestroying() const;
    /// Why a request can't be sent, or 0.
    int refusal(const ZrPresenterCall &call, const CMessageCommon *msg) const;
    /// Marks and stamps a request and writes it back; false with a warning when it holds no record.
    bool prepare(ZrRequestMessage *request, const QString &requestType, CMessageCommon *msg) const;
    /// Takes a waiting call out of its map, to be ended by the caller alone; null if somebody else was first.
    /// Under the mutex. Shared: the waiting call may return while the caller is still at it.
    ZrEventLoop::Pointer takeLoop(const QString &clientMsgID);
    ZrWaitCondition::Pointer takeWaiter(const QString &clientMsgID);

    void rememberPut(const QString &clientMsgID);
    int sendAsync(const QString &clientMsgID, const QString &msgType, CMessageCommon *msg);
    int waitInLoop(const ZrRequestMessage &request, CMessageCommon *msg, QVariant *response);
    int waitBlocked(const ZrRequestMessage &request, CMessageCommon *msg, QVariant *response,
                    unsigned long timeoutMs);
    /// How long a blocked request waits that asks for this time; 0 asks for the presenter's own.
    unsigned long blockTimeMs(unsigned long timeoutMs) const;
    /// One tick of the clock.
    void ageRequests();

    /// True for the first caller only.
    bool beginEnd();
    void sendEndEvent();
    /// From here on nothing is sent; every waiting request ends.
    void interruptRequests();
    void postDeletion();
    /// For the presenter's destructor: off the bus for good, also when nobody called deleteLater.
    void detach();

signals:
    /// An answer for the waiting loop at this address; every waiting loop is connected.
    void signalSyncResponse(qlonglong ptr, QVariant response);

private:
    bool openLoop(const ZrEventLoop::Pointer &loop, const QString &clientMsgID);
    int closeLoop(ZrEventLoop *loop, const QString &clientMsgID);
    QVariant reportBlockTimeout(const ZrRequestMessage &request, ZrWaitCondition *waiter);
    void expire(const QString &clientMsgID);
    void expireSync(const ZrEventLoop &loop, const QString &clientMsgID);
    void expireAsync(const QString &msgType, const QString &clientMsgID);

    QList<ZrEventLoop *> m_displacedLoops; // lost their ID to a later request; borrowed, guarded by the mutex
    std::atomic<bool> m_hasEnded{false};   // deleteLater has been called
    QSemaphore m_constructed;              // released once the presenter's constructors have run
};
