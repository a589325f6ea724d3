#include "ZrPresenterClass_p.h"

#include "ZrIncomingMessage.h"
#include "ZrPresenterClass.h"
#include "ZrRequestMessage.h"

#include "zrdefine/PluginPropety.h"
#include "zrdefine/VexlorFields.h"
#include "zrdefine/VexlorValues.h"
#include "zrevent/CEventMessageCommon.h"
#include "zrmsg/CPackMessageCommon.h"
#include "zrutils/ZrThread.h"

#include <QtCore/QDebug>
#include <QtCore/QLoggingCategory>
#include <QtCore/QTimer>
#include <QtCore/QVector>

namespace {
constexpr int clockTickMs = 1000;
constexpr int constructionMs = 1000; // by then a derived constructor has long run
constexpr int typeRequestTimeout = 217088;
constexpr int typePresenterEnd = 65550;
} // namespace

ZrPresenterClassPrivate::ZrPresenterClassPrivate(const QString &pluginPid, ZrPresenterClass *presenter)
    : IMessageInterface(nullptr)
    , presenter(presenter)
    , pluginPid(pluginPid)
{
}

ZrPresenterClassPrivate::~ZrPresenterClassPrivate()
{
    for (ZrEventLoop *loop : qAsConst(syncLoops))
        loop->finish();
}

// --- beginning -------------------------------------------------------------------------------------------

void ZrPresenterClassPrivate::startThread()
{
    calls.enter(); // Initial() counts as begun, so that nobody deletes the presenter before or beneath it
    thread = new ZrThread(nullptr);
    presenter->moveToThread(thread);
    thread->setObjectName(pluginPid + QLatin1String("ZrPresenterClass_Thread"));
    connect(thread, &QThread::started, this, &ZrPresenterClassPrivate::Initial, Qt::DirectConnection);
    connect(thread, &QThread::finished, thread, &QObject::deleteLater);
    QMetaObject::invokeMethod(
        this, [this] { m_constructed.release(); }, Qt::QueuedConnection);
    thread->start(QThread::InheritPriority);
}

void ZrPresenterClassPrivate::Initial()
{
    const ZrPresenterCall call(this, ZrPresenterCall::Adopt);
    // The thread starts in the base class's constructor: without a pause the derived initPresenter could be
    // missed. The creator's event loop tells that all constructors have run; a creator without one must not
    // hold us up.
    m_constructed.tryAcquire(1, constructionMs);
    presenter->initPresenter();
    timer = new QTimer(presenter);
    connect(timer, &QTimer::timeout, presenter, &ZrPresenterClass::slotTimerOut);
    timer->start(clockTickMs);
}

// --- outgoing --------------------------------------------------------------------------------------------

bool ZrPresenterClassPrivate::isDebugLogged()
{
    return QLoggingCategory::defaultCategory()->isDebugEnabled();
}

bool ZrPresenterClassPrivate::isDestroying() const
{
    const QMutexLocker lock(&mutex);
    return destroying;
}

int ZrPresenterClassPrivate::refusal(const ZrPresenterCall &call, const CMessageCommon *msg) const
{
    if (!call.isWelcome() || isDestroying())
        return ZrRequestDestroying;
    if (msg)
        return ZrRequestSuccess;
    qWarning() << "sendRequest msg is null";
    return ZrRequestNoMessage;
}

bool ZrPresenterClassPrivate::prepare(ZrRequestMessage *request, const QString &requestType,
                                      CMessageCommon *msg) const
{
    if (request->isEmpty()) {
        qWarning() << "sendRequest dataList is empty";
        return false;
    }
    request->setRequestType(requestType);
    request->finish(msg);
    return true;
}

void ZrPresenterClassPrivate::rememberPut(const QString &clientMsgID)
{
    const QMutexLocker lock(&mutex);
    putClientMsgIDs.append(clientMsgID);
}

int ZrPresenterClassPrivate::sendAsync(const QString &clientMsgID, const QString &msgType,
                                       CMessageCommon *msg)
{
    {
        const QMutexLocker lock(&mutex);
        if (destroying)
            return ZrRequestDestroying;
        asyncRequests.insert(clientMsgID, msgType);
        requestAges.insert(clientMsgID, 0);
    }
    Put(pluginPid, msg);
    return ZrRequestSuccess;
}

int ZrPresenterClassPrivate::waitInLoop(const ZrRequestMessage &request, CMessageCommon *msg,
                                        QVariant *response)
{
    const ZrEventLoop::Pointer loop = ZrEventLoop::create();
    connect(this, &ZrPresenterClassPrivate::signalSyncResponse, loop.get(), &ZrEventLoop::slotReceiveResp);
    loop->msgType = request.msgType;
    if (!openLoop(loop, request.clientMsgID)) {
        disconnect(this, nullptr, loop.get(), nullptr);
        return ZrRequestDestroying;
    }
    Put(pluginPid, msg);
    loop->run();
    // While this call still keeps us alive: the loop is deleted later, and would then ask a deleted sender.
    disconnect(this, nullptr, loop.get(), nullptr);
    const int result = closeLoop(loop.get(), request.clientMsgID);
    *response = loop->response;
    return result;
}

bool ZrPresenterClassPrivate::openLoop(const ZrEventLoop::Pointer &loop, const QString &clientMsgID)
{
    const QMutexLocker lock(&mutex);
    if (destroying)
        return false;
    if (ZrEventLoop *displaced = syncLoops.value(clientMsgID))
        m_displacedLoops.append(displaced);
    syncLoops.insert(clientMsgID, loop.get());
    requestAges.insert(clientMsgID, 0);
    return true;
}

ZrEventLoop::Pointer ZrPresenterClassPrivate::takeLoop(const QString &clientMsgID)
{
    ZrEventLoop *const loop = syncLoops.take(clientMsgID);
    return loop ? loop->weak_from_this().lock() : ZrEventLoop::Pointer();
}

ZrWaitCondition::Pointer ZrPresenterClassPrivate::takeWaiter(const QString &clientMsgID)
{
    ZrWaitCondition *const waiter = blockWaiters.take(clientMsgID);
    return waiter ? waiter->weak_from_this().lock() : ZrWaitCondition::Pointer();
}

// A loop may also end because its whole thread quits: then it still stands in the map.
int ZrPresenterClassPrivate::closeLoop(ZrEventLoop *loop, const QString &clientMsgID)
{
    const QMutexLocker lock(&mutex);
    m_displacedLoops.removeAll(loop);
    if (syncLoops.value(clientMsgID) == loop)
        syncLoops.remove(clientMsgID);
    return loop->result;
}

int ZrPresenterClassPrivate::waitBlocked(const ZrRequestMessage &request, CMessageCommon *msg,
                                         QVariant *response, unsigned long timeoutMs)
{
    const ZrWaitCondition::Pointer waiter = std::make_shared<ZrWaitCondition>();
    {
        const QMutexLocker lock(&mutex);
        if (destroying)
            return ZrRequestDestroying;
        blockWaiters.insert(request.clientMsgID, waiter.get());
    }
    Put(pluginPid, msg);
    const int result = waiter->waitForAnswer(blockTimeMs(timeoutMs));
    *response =
        result == ZrRequestTimeout ? reportBlockTimeout(request, waiter.get()) : waiter->getResponse();
    return result;
}

unsigned long ZrPresenterClassPrivate::blockTimeMs(unsigned long timeoutMs) const
{
    if (timeoutMs != 0)
        return timeoutMs;
    return static_cast<unsigned long>(qMax(0, requestTimeOut.load())) * clockTickMs;
}

QVariant ZrPresenterClassPrivate::reportBlockTimeout(const ZrRequestMessage &request, ZrWaitCondition *waiter)
{
    {
        const QMutexLocker lock(&mutex);
        if (blockWaiters.value(request.clientMsgID) == waiter)
            blockWaiters.remove(request.clientMsgID);
    }
    sendTimeoutEvent(request.msgType, request.clientMsgID);
    qWarning() << "Block Sync request timeout" << pluginPid << " msgtType = " << request.msgType;
    return ZrRequestMessage::timeoutBody(request.clientMsgID);
}

// --- incoming --------------------------------------------------------------------------------------------

void ZrPresenterClassPrivate::ProcMsg(QString pid, QVariant msgType, QVariant msg)
{
    const ZrPresenterCall call(this);
    if (call.isWelcome() && !isDestroying())
        ZrIncomingMessage(this, pid, msgType, msg).process();
}

void ZrPresenterClassPrivate::ProcEventMsg(QString pid, QVariant msgType, QVariant msg)
{
    const ZrPresenterCall call(this);
    if (call.isWelcome() && !isDestroying() && presenter)
        presenter->ProcEventMsg(pid, msgType, msg);
}

void ZrPresenterClassPrivate::ProcQuotationMsg(QString pid, QVariant msgType, QVariant msg)
{
    const ZrPresenterCall call(this);
    if (!call.isWelcome() || isDestroying())
        return;
    if (presenter)
        presenter->ProcQuotationMsg(pid, msgType, msg);
    else
        qDebug() << "ZrPresenterClassPrivate::ProcQuotationMsg" << static_cast<QObject *>(presenter);
}

// --- the clock -------------------------------------------------------------------------------------------

void ZrPresenterClassPrivate::ageRequests()
{
    QVector<QString> expired;
    {
        const QMutexLocker lock(&mutex);
        const int limit = requestTimeOut;
        for (auto age = requestAges.begin(); age != requestAges.end(); ++age) {
            if (++age.value() >= limit)
                expired.append(age.key());
        }
    }
    for (const QString &clientMsgID : qAsConst(expired))
        expire(clientMsgID);
}

void ZrPresenterClassPrivate::expire(const QString &clientMsgID)
{
    ZrEventLoop::Pointer loop;
    QString asyncType;
    {
        const QMutexLocker lock(&mutex);
        requestAges.remove(clientMsgID);
        loop = takeLoop(clientMsgID);
        if (loop) {
            loop->result = ZrRequestTimeout;
        } else {
            const auto request = asyncRequests.find(clientMsgID);
            if (request == asyncRequests.end())
                return; // answered: an answer leaves the age to lapse here
            asyncType = request.value();
            asyncRequests.erase(request);
            timedOutAsyncRequests.insert(clientMsgID, asyncType);
        }
    }
    if (loop)
        expireSync(*loop, clientMsgID);
    else
        expireAsync(asyncType, clientMsgID);
}

void ZrPresenterClassPrivate::expireSync(const ZrEventLoop &loop, const QString &clientMsgID)
{
    sendTimeoutEvent(loop.msgType, clientMsgID);
    qWarning() << "Sync request timeout" << pluginPid << " msgtType = " << loop.msgType
               << " clientMsgID = " << clientMsgID;
    emit signalSyncResponse(loop.address(), ZrRequestMessage::timeoutBody(clientMsgID));
}

void ZrPresenterClassPrivate::expireAsync(const QString &msgType, const QString &clientMsgID)
{
    const QVariant body = ZrRequestMessage::timeoutBody(clientMsgID);
    qWarning() << "Async request timeout, ProcAsyncCallBack" << pluginPid << " msgtType = " << msgType
               << " clientMsgID = " << clientMsgID;
    sendTimeoutEvent(msgType, clientMsgID);
    presenter->ProcAsyncCallBack(ZrRequestTimeout, QString(), QVariant(msgType), body);
}

void ZrPresenterClassPrivate::sendTimeoutEvent(const QString &msgType, const QString &clientMsgID)
{
    auto *const event = new CEventMessageCommon;
    event->SetSrcid(pluginPid);
    event->SetType(typeRequestTimeout);
    event->SetMsg(QVariantMap{
        {Vexlor_Fields::System::itemType, Vexlor_Values::ClinetInfoUpload::RequestTimeOutError},
        {Vexlor_Fields::System::itemValue, msgType},
        {Vexlor_Fields::System::itemValueEx, clientMsgID},
    });
    PutEvent(pluginPid, event);
}

// --- end -------------------------------------------------------------------------------------------------

bool ZrPresenterClassPrivate::beginEnd()
{
    return !m_hasEnded.exchange(true);
}

void ZrPresenterClassPrivate::sendEndEvent()
{
    CPackMessageCommon writer;
    writer.AddVaule(PluginPropety::PLUGININSTANCE_ID, pluginPid);
    auto *const event = new CEventMessageCommon;
    event->SetSrcid(pluginPid);
    event->SetType(typePresenterEnd);
    event->SetMsg(writer.GetPackedMsg(false));
    PutEvent(pluginPid, event);
}

void ZrPresenterClassPrivate::interruptRequests()
{
    QVector<ZrWaitCondition::Pointer> waiters;
    {
        const QMutexLocker lock(&mutex);
        destroying = true;
        // A loop in the map can't go while we hold the mutex: its call has to take itself out first.
        for (ZrEventLoop *loop : qAsConst(syncLoops))
            loop->finish();
        for (ZrEventLoop *loop : qAsConst(m_displacedLoops))
            loop->finish();
        syncLoops.clear();
        for (ZrWaitCondition *waiter : qAsConst(blockWaiters))
            waiters.append(waiter->shared_from_this());
        blockWaiters.clear();
    }
    for (const ZrWaitCondition::Pointer &waiter : qAsConst(waiters)) {
        waiter->setResult(ZrRequestTimeout);
        waiter->wakeAll();
    }
}

void ZrPresenterClassPrivate::postDeletion()
{
    presenter->QObject::deleteLater();
}

void ZrPresenterClassPrivate::detach()
{
    if (beginEnd()) {
        UnReg(pluginPid);
        interruptRequests();
    }
    calls.close();
}
