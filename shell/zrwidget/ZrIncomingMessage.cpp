#include "ZrIncomingMessage.h"

#include "ZrPresenterClass.h"
#include "ZrPresenterClass_p.h"
#include "ZrRequestMessage.h"

#include "zrdefine/VexlorFields.h"
#include "zrdefine/VexlorMsgType.h"
#include "zrmsg/CUnPackMessageCommon.h"

#include <QtCore/QDebug>

ZrIncomingMessage::ZrIncomingMessage(ZrPresenterClassPrivate *d, const QString &pid, const QVariant &msgType,
                                     const QVariant &msg)
    : d(d)
    , m_pid(pid)
    , m_msgType(msgType)
    , m_msg(msg)
    , m_typeText(msgType.toString())
{
    using namespace Vexlor_Fields::System;
    CUnPackMessageCommon reader;
    reader.SetUnPackMsg(msg, false);
    m_clientMsgID = reader.GetValue(clientMsgID, QString()).toString();
    m_isLast = reader.GetValue(hasFollowup, QString()).toString().toInt() == 0;
    m_traceID = reader.GetValue(traceID, QString()).toString();
}

bool ZrIncomingMessage::isRejection() const
{
    return m_typeText == Vexlor_MsgType::bussinessMsgReject;
}

// Execution reports come by the thousand: they would bury all other lines.
bool ZrIncomingMessage::isLogged() const
{
    return m_typeText != Vexlor_MsgType::executionReport && ZrPresenterClassPrivate::isDebugLogged();
}

void ZrIncomingMessage::process()
{
    if (isLogged()) {
        qDebug() << "ZrPresenterClassPrivate::ProcMsg"
                 << "msg received" << d->pluginPid << m_clientMsgID << m_traceID;
    }
    classify();
    if (!answer())
        deliver();
    if (isLogged()) {
        qDebug() << "ZrPresenterClassPrivate::ProcMsg"
                 << "msg processed" << d->pluginPid << m_clientMsgID << m_traceID
                 << (m_kind == Kind::Subscribed) << m_isOwn << (m_kind == Kind::Sync)
                 << (m_kind == Kind::Async) << (m_kind == Kind::LateAsync) << (m_kind == Kind::Block);
    }
}

void ZrIncomingMessage::classify()
{
    const QMutexLocker lock(&d->mutex);
    if (d->responseTypes.contains(m_msgType)) {
        m_kind = Kind::Subscribed;
        m_isOwn = d->putClientMsgIDs.contains(m_clientMsgID);
    } else if (d->syncLoops.contains(m_clientMsgID)) {
        m_kind = Kind::Sync;
    } else if (d->asyncRequests.contains(m_clientMsgID)) {
        m_kind = Kind::Async;
    } else if (d->timedOutAsyncRequests.contains(m_clientMsgID)) {
        m_kind = Kind::LateAsync;
    } else if (d->blockWaiters.contains(m_clientMsgID)) {
        m_kind = Kind::Block;
    }
    if (m_isLast)
        d->putClientMsgIDs.removeAll(m_clientMsgID);
}

/// False when nobody waits for the message: it is a plain one.
bool ZrIncomingMessage::answer()
{
    switch (m_kind) {
    case Kind::Subscribed:
        return !m_isOwn; // answers to others' requests are none of ours
    case Kind::Sync:
        return answerSync();
    case Kind::Async:
        return answerAsync() || answerLateAsync();
    case Kind::LateAsync:
        return answerLateAsync();
    case Kind::Block:
        return answerBlock();
    case Kind::Plain:
        break;
    }
    return false;
}

void ZrIncomingMessage::deliver()
{
    if (d->presenter && !d->isDestroying())
        d->presenter->ProcMsg(m_pid, m_msgType, m_msg);
}

bool ZrIncomingMessage::answerSync()
{
    ZrEventLoop::Pointer loop; // kept until the signal is out: its address names it
    {
        const QMutexLocker lock(&d->mutex);
        loop = d->takeLoop(m_clientMsgID);
        if (!loop)
            return false;
        if (isRejection())
            loop->result = ZrRequestRejected;
    }
    emit d->signalSyncResponse(loop->address(), m_msg);
    loop->announceEnd();
    return true;
}

bool ZrIncomingMessage::answerAsync()
{
    QString type;
    {
        const QMutexLocker lock(&d->mutex);
        const auto request = d->asyncRequests.find(m_clientMsgID);
        if (request == d->asyncRequests.end())
            return false;
        type = request.value();
        if (m_isLast)
            d->asyncRequests.erase(request);
    }
    callBack(&type);
    return true;
}

bool ZrIncomingMessage::answerLateAsync()
{
    QString type;
    {
        const QMutexLocker lock(&d->mutex);
        const auto request = d->timedOutAsyncRequests.find(m_clientMsgID);
        if (request == d->timedOutAsyncRequests.end())
            return false;
        type = request.value();
        if (m_isLast)
            d->timedOutAsyncRequests.erase(request);
    }
    if (ZrPresenterClassPrivate::isDebugLogged()) {
        qDebug() << "5555555  Aysnc time out Response" << m_typeText << d->pluginPid
                 << " clientMsgID = " << m_clientMsgID;
    }
    callBack(&type);
    if (ZrPresenterClassPrivate::isDebugLogged())
        qDebug() << "5555555  Aysnc time out Response end" << m_typeText << type << d->pluginPid;
    return true;
}

// A failed request reports its own type, a good one that of the answer.
void ZrIncomingMessage::callBack(QString *type)
{
    int code = ZrRequestSuccess;
    if (isRejection())
        code = ZrRequestRejected;
    else if (m_typeText == QLatin1String("Client_88"))
        code = ZrRequestClient88;
    else
        *type = m_typeText;
    d->presenter->ProcAsyncCallBack(code, m_pid, QVariant(*type), m_msg);
}

bool ZrIncomingMessage::answerBlock()
{
    ZrWaitCondition::Pointer waiter; // ours too: the blocked call may time out and return at any moment
    {
        const QMutexLocker lock(&d->mutex);
        waiter = d->takeWaiter(m_clientMsgID);
    }
    if (!waiter)
        return false;
    if (isRejection())
        waiter->setResult(ZrRequestRejected);
    waiter->setResponse(m_msg);
    waiter->wakeAll();
    return true;
}
