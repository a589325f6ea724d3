#include "ZrPresenterClass.h"

#include "ZrPluginTie.h"
#include "ZrPresenterClass_p.h"
#include "ZrRequestMessage.h"

#include "zrdefine/VexlorValues.h"
#include "zrevent/CEventMessageCommon.h"
#include "zrmsg/CMessageCommon.h"
#include "zrutils/ZrThread.h"

#include <QtCore/QDebug>
#include <QtCore/QTimer>

namespace {
constexpr int ownThreadBit = 1;
constexpr int typeSubscribe = 1;
constexpr int typeUnsubscribe = 2;
} // namespace

ZrPresenterClass::ZrPresenterClass(const QString &pluginPid, QObject *plugin,
                                   IMessageInterface::ThreadType type)
    : QObject(nullptr)
    , d(new ZrPresenterClassPrivate(pluginPid, this))
{
    // Registered first, as the bus's users expect; what comes in before a derived constructor has run finds
    // the empty receivers of this class.
    d->Reg(pluginPid, d, type);
    setObjectName(pluginPid);
    // A plugin widget is tied to its presenter; other plugins need no tie.
    if (ZrPluginTie *const tie = ZrPluginTie::of(plugin))
        tie->tiePresenter(this);
    if (type & ownThreadBit)
        d->startThread();
}

ZrPresenterClass::~ZrPresenterClass()
{
    qDebug() << "~ZrPresenterClass begin";
    d->detach();
    if (d->timer) {
        d->timer->stop();
        d->timer->deleteLater();
    }
    if (d->thread)
        d->thread->quit();
    d->deleteLater();
    d = nullptr;
    qDebug() << "~ZrPresenterClass end";
}

void ZrPresenterClass::ProcMsg(QString pid, QVariant msgType, QVariant msg)
{
    Q_UNUSED(pid)
    Q_UNUSED(msgType)
    Q_UNUSED(msg)
}

void ZrPresenterClass::ProcEventMsg(QString pid, QVariant msgType, QVariant msg)
{
    Q_UNUSED(pid)
    Q_UNUSED(msgType)
    Q_UNUSED(msg)
}

void ZrPresenterClass::ProcQuotationMsg(QString pid, QVariant msgType, QVariant msg)
{
    Q_UNUSED(pid)
    Q_UNUSED(msgType)
    Q_UNUSED(msg)
}

void ZrPresenterClass::ProcAsyncCallBack(int code, QString pid, QVariant msgType, QVariant msg)
{
    Q_UNUSED(code)
    Q_UNUSED(pid)
    Q_UNUSED(msgType)
    Q_UNUSED(msg)
}

void ZrPresenterClass::initPresenter() {}

void ZrPresenterClass::Put(QString pid, CMessageCommon *msg)
{
    const ZrPresenterCall call(d);
    if (!msg || !call.isWelcome() || d->isDestroying())
        return;
    msg->SetSrcid(d->pluginPid);
    ZrRequestMessage request(*msg);
    if (request.isEmpty())
        return;
    request.finish(msg);
    d->rememberPut(request.clientMsgID);
    d->IMessageInterface::Put(pid, msg);
}

void ZrPresenterClass::PutEvent(QString pid, CEventMessageCommon *evt)
{
    const ZrPresenterCall call(d);
    if (call.isWelcome() && !d->isDestroying())
        d->IMessageInterface::PutEvent(pid, evt);
    else
        delete evt; // its caller has given it away for good
}

void ZrPresenterClass::Sub(QString pid, QVariant msgType, int type)
{
    const ZrPresenterCall call(d);
    if (!call.isWelcome())
        return;
    const bool isKnown = d->subscribedTypes.contains(msgType);
    if ((type == typeSubscribe && isKnown) || (type == typeUnsubscribe && !isKnown))
        return;
    if (type == typeSubscribe)
        d->subscribedTypes.append(msgType);
    else if (type == typeUnsubscribe)
        d->subscribedTypes.removeAll(msgType);
    d->IMessageInterface::Sub(pid, msgType, type);
}

void ZrPresenterClass::SubEvent(QString pid, QVariant msgType, int type)
{
    const ZrPresenterCall call(d);
    if (call.isWelcome())
        d->IMessageInterface::SubEvent(pid, msgType, type);
}

void ZrPresenterClass::SubResponse(QString pid, QVariant msgType, int type)
{
    const ZrPresenterCall call(d);
    if (!call.isWelcome())
        return;
    {
        const QMutexLocker lock(&d->mutex);
        if (type != typeSubscribe)
            d->responseTypes.removeAll(msgType);
        else if (!d->responseTypes.contains(msgType))
            d->responseTypes.append(msgType);
    }
    d->IMessageInterface::Sub(pid, msgType, type);
}

void ZrPresenterClass::setRelation(const QString &menuID, const QString &pluginInstanceID, int linkageType,
                                   RelationColor_t group, int action)
{
    const ZrPresenterCall call(d);
    if (call.isWelcome())
        d->IMessageInterface::setRelation(menuID, pluginInstanceID, linkageType, group, action);
}

int ZrPresenterClass::sendRequest_Sync(CMessageCommon *msg, QVariant &response)
{
    const ZrPresenterCall call(d);
    if (const int refusal = d->refusal(call, msg))
        return refusal;
    ZrRequestMessage request(*msg);
    if (ZrPresenterClassPrivate::isDebugLogged())
        qDebug() << "ZrPresenterClass::sendRequest_Sync" << objectName() << request.msgType;
    if (!d->prepare(&request, Vexlor_Values::RequestType::sync, msg))
        return ZrRequestNoRecords;
    return d->waitInLoop(request, msg, &response);
}

int ZrPresenterClass::sendRequest_Sync_Block(CMessageCommon *msg, QVariant &response, unsigned long timeoutMs)
{
    const ZrPresenterCall call(d);
    if (const int refusal = d->refusal(call, msg))
        return refusal;
    ZrRequestMessage request(*msg);
    if (!d->prepare(&request, Vexlor_Values::RequestType::sync, msg))
        return ZrRequestNoRecords;
    return d->waitBlocked(request, msg, &response, timeoutMs);
}

int ZrPresenterClass::sendRequest_Async(CMessageCommon *msg)
{
    const ZrPresenterCall call(d);
    if (const int refusal = d->refusal(call, msg))
        return refusal;
    ZrRequestMessage request(*msg);
    if (!d->prepare(&request, Vexlor_Values::RequestType::aync, msg))
        return ZrRequestNoRecords;
    return d->sendAsync(request.clientMsgID, request.msgType, msg);
}

int ZrPresenterClass::sendRequestNotCare_Async(const QString &clientMsgID, const QString &msgType,
                                               CMessageCommon *msg)
{
    const ZrPresenterCall call(d);
    if (const int refusal = d->refusal(call, msg))
        return refusal;
    if (clientMsgID.isEmpty() || msgType.isEmpty()) {
        qWarning() << "client msg id is null or msg type is null";
        return ZrRequestNoMessage;
    }
    return d->sendAsync(clientMsgID, msgType, msg);
}

void ZrPresenterClass::addSysNodeID(QList<QMap<QString, QVariant>> &records)
{
    ZrRequestMessage::addSysNodeID(records);
}

QString ZrPresenterClass::pluginPid() const
{
    return d->pluginPid;
}

int ZrPresenterClass::getRequestTimeOut() const
{
    return d->requestTimeOut;
}

void ZrPresenterClass::setRequestTimeOut(int seconds)
{
    d->requestTimeOut = seconds;
}

void ZrPresenterClass::deleteLater()
{
    const ZrPresenterCall call(d);
    if (!call.isWelcome() || !d->beginEnd())
        return;
    d->sendEndEvent();
    d->UnReg(d->pluginPid);
    d->interruptRequests();
    emit signalDestroying(this);
    // The last call to leave, this one at the earliest, hands the object to QObject::deleteLater: a nested
    // event loop on the presenter's thread would otherwise delete it beneath a call that is still running.
    d->calls.close();
}

void ZrPresenterClass::slotTimerOut()
{
    const ZrPresenterCall call(d);
    if (call.isWelcome())
        d->ageRequests();
}
