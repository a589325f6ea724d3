#include "PresenterProbe.h"

#include "zrdefine/VexlorFields.h"
#include "zrmsg/CMessageCommon.h"
#include "zrmsg/CUnPackMessageCommon.h"
#include "ZrPresenterClass_p.h"
#include "zrutils/ZrThread.h"

#include <QtTest/QtTest>

namespace Fields = Vexlor_Fields::System;

QVariant ProbeCall::value(const QString &field) const
{
    CUnPackMessageCommon reader;
    reader.SetUnPackMsg(body, false);
    return reader.GetValue(field, QVariant());
}

PresenterProbe::PresenterProbe(const QString &pid, IMessageInterface::ThreadType type, QObject *plugin)
    : ZrPresenterClass(pid, plugin, type)
{
}

PresenterProbe::~PresenterProbe() = default;

void PresenterProbe::ProcMsg(QString pid, QVariant msgType, QVariant msg)
{
    keep({QStringLiteral("msg"), 0, pid, msgType, msg, QThread::currentThread()});
}

void PresenterProbe::ProcEventMsg(QString pid, QVariant msgType, QVariant msg)
{
    keep({QStringLiteral("event"), 0, pid, msgType, msg, QThread::currentThread()});
}

void PresenterProbe::ProcQuotationMsg(QString pid, QVariant msgType, QVariant msg)
{
    keep({QStringLiteral("quotation"), 0, pid, msgType, msg, QThread::currentThread()});
}

void PresenterProbe::ProcAsyncCallBack(int code, QString pid, QVariant msgType, QVariant msg)
{
    keep({QStringLiteral("async"), code, pid, msgType, msg, QThread::currentThread()});
}

void PresenterProbe::initPresenter()
{
    keep({QStringLiteral("init"), 0, QString(), QVariant(), QVariant(), QThread::currentThread()});
}

QList<ProbeCall> PresenterProbe::calls(const QString &receiver) const
{
    const QMutexLocker lock(&m_mutex);
    QList<ProbeCall> found;
    for (const ProbeCall &call : m_calls) {
        if (receiver.isEmpty() || call.receiver == receiver)
            found.append(call);
    }
    return found;
}

void PresenterProbe::keep(const ProbeCall &call)
{
    if (hook)
        hook(call);
    const QMutexLocker lock(&m_mutex);
    m_calls.append(call);
}

EventProbe::EventProbe(const QString &pid, int eventType)
    : IMessageInterface(nullptr)
    , m_pid(pid)
{
    Reg(m_pid, this, SharedThread);
    SubEvent(m_pid, eventType, 1);
}

EventProbe::~EventProbe()
{
    UnReg(m_pid);
    ZrBus::instance().waitIdle(-1);
}

void EventProbe::ProcEventMsg(QString pid, QVariant msgType, QVariant msg)
{
    const QMutexLocker lock(&m_mutex);
    m_calls.append({QStringLiteral("event"), 0, pid, msgType, msg, QThread::currentThread()});
}

QList<ProbeCall> EventProbe::calls() const
{
    const QMutexLocker lock(&m_mutex);
    return m_calls;
}

BusBench::BusBench() = default;

BusBench::~BusBench()
{
    ZrBus::instance().reset();
}

void BusBench::answer(const QString &msgType, std::function<Answers(const ZrBusRequest &)> service)
{
    ZrBus::instance().setService(msgType, [this, service](const ZrBusRequest &request) {
        {
            const QMutexLocker lock(&m_mutex);
            m_requests.append(request);
        }
        return service ? service(request) : Answers();
    });
}

QList<ZrBusRequest> BusBench::requests() const
{
    const QMutexLocker lock(&m_mutex);
    return m_requests;
}

namespace {
QMutex caughtMutex;
QList<QPair<QtMsgType, QString>> caught;
} // namespace

LogCatcher::LogCatcher()
    : m_before(qInstallMessageHandler(&LogCatcher::keep))
{
    const QMutexLocker lock(&caughtMutex);
    caught.clear();
}

LogCatcher::~LogCatcher()
{
    qInstallMessageHandler(m_before);
}

QStringList LogCatcher::lines(QtMsgType type) const
{
    const QMutexLocker lock(&caughtMutex);
    QStringList found;
    for (const auto &line : qAsConst(caught)) {
        if (line.first == type)
            found.append(line.second);
    }
    return found;
}

void LogCatcher::keep(QtMsgType type, const QMessageLogContext &context, const QString &text)
{
    Q_UNUSED(context)
    const QMutexLocker lock(&caughtMutex);
    caught.append({type, text});
}

QVariantMap Probe::record(const QString &type, const QString &id, const QVariantMap &more)
{
    QVariantMap fields = more;
    fields.insert(Fields::msgType, type);
    fields.insert(Fields::clientMsgID, id);
    return fields;
}

CMessageCommon *Probe::message(const QString &type, const QString &id, const QVariantMap &more)
{
    auto *const msg = new CMessageCommon;
    msg->SetMsg(QVariantList{record(type, id, more)});
    return msg;
}

QVariant Probe::body(const QString &id, const QVariantMap &more)
{
    QVariantMap fields = more;
    fields.insert(Fields::clientMsgID, id);
    return QVariantList{fields};
}

ZrBusAnswer Probe::reply(const ZrBusRequest &request, const QString &type, const QVariantMap &more)
{
    return {type, body(request.records.value(0).value(Fields::clientMsgID).toString(), more)};
}

void Probe::publish(ZrBusKind kind, const QVariant &type, const QVariant &body)
{
    ZrBusItem item;
    item.kind = kind;
    item.type = type;
    item.body = body;
    ZrBus::instance().publish(item);
    ZrBus::instance().waitIdle(-1);
}

void Probe::tick(ZrPresenterClass *presenter)
{
    const bool isHere = presenter->thread() == QThread::currentThread();
    QMetaObject::invokeMethod(presenter, "slotTimerOut",
                              isHere ? Qt::DirectConnection : Qt::BlockingQueuedConnection);
}

bool Probe::isGoneAfterDeleteLater(ZrPresenterClass *presenter)
{
    const Vanishing vanishing(presenter);
    presenter->deleteLater();
    return vanishing.wait();
}

Probe::Vanishing::Vanishing(ZrPresenterClass *presenter)
    : m_presenter(presenter)
    , m_private(presenter->getPrivate())
    , m_thread(presenter->getPrivate()->thread)
{
}

bool Probe::Vanishing::isDone() const
{
    return !m_presenter && !m_private && !m_thread;
}

bool Probe::Vanishing::wait() const
{
    return QTest::qWaitFor([this] { return isDone(); }, 20000);
}
