#include "StressStage.h"

#include "zrbase/ZrBus.h"
#include "zrbase/ZrFaultSpec.h"
#include "zrdefine/VexlorFields.h"
#include "zrdefine/VexlorMsgType.h"
#include "zrmsg/CUnPackMessageCommon.h"
#include "ZrPresenterClass_p.h"
#include "zrutils/ZrThread.h"

#include <QtCore/QTimer>

namespace {
constexpr int fastTickMs = 10;
constexpr int timeoutTicks = 3;
constexpr unsigned long blockTimeMs = 20;
constexpr int requestsWhileDestroying = 4;
const char *const shapes[] = {"StressPut", "StressAsync", "StressSync", "StressBlock"};

int requestOf(const QVariant &body)
{
    CUnPackMessageCommon reader;
    reader.SetUnPackMsg(body, false);
    bool isNumber = false;
    const int request =
        reader.GetValue(Vexlor_Fields::System::clientMsgID, QString()).toString().toInt(&isNumber);
    return isNumber ? request : -1;
}
} // namespace

// --- the ledger ------------------------------------------------------------------------------------------

StressLedger::StressLedger(int requests)
    : m_ends(size_t(requests))
    , m_ending(size_t(requests))
    , m_puts(size_t(requests))
{
    for (size_t i = 0; i < m_ends.size(); ++i) {
        m_ends[i] = 0;
        m_ending[i] = -1;
        m_puts[i] = nullptr;
    }
}

int StressLedger::next()
{
    const int request = m_next.fetch_add(1);
    return request < size() ? request : -1;
}

void StressLedger::end(int request, Ending ending)
{
    ++m_ends[size_t(request)];
    m_ending[size_t(request)] = int(ending);
}

void StressLedger::endByCode(int request, int code)
{
    switch (code) {
    case 0:
        return end(request, Ending::Success);
    case 1:
        return end(request, Ending::Timeout);
    case 2:
        return end(request, Ending::Rejected);
    case 3:
        return end(request, Ending::Client88);
    case -1:
        return end(request, Ending::NoMessage);
    case -2:
        return end(request, Ending::NoRecords);
    default:
        return end(request, Ending::Destroyed);
    }
}

QString StressLedger::invariantError() const
{
    for (size_t i = 0; i < m_ends.size(); ++i) {
        if (m_ends[i] != 1) {
            return QStringLiteral("request %1 (%2) has ended %3 times, last as %4")
                .arg(i)
                .arg(QLatin1String(shapes[i % 4]))
                .arg(m_ends[i].load())
                .arg(m_ending[i].load());
        }
    }
    return QString();
}

void StressLedger::beginPut(int request, StressMessage *msg)
{
    m_puts[size_t(request)] = msg;
}

void StressLedger::messageGone(int request)
{
    m_puts[size_t(request)] = nullptr;
    --liveMessages;
}

void StressLedger::settlePuts()
{
    for (size_t i = 0; i < m_puts.size(); i += 4) {
        StressMessage *const dropped = m_puts[i];
        end(int(i), dropped ? Ending::Destroyed : Ending::Success);
        delete dropped;
    }
}

int StressLedger::count(Ending ending) const
{
    int found = 0;
    for (const std::atomic<int> &one : m_ending)
        found += one == int(ending) ? 1 : 0;
    return found;
}

StressMessage::StressMessage(StressLedger *ledger, const QString &type, int request)
    : m_ledger(ledger)
    , m_request(request)
{
    ++m_ledger->liveMessages;
    SetMsg(QVariantList{QVariantMap{{Vexlor_Fields::System::msgType, type},
                                    {Vexlor_Fields::System::clientMsgID, QString::number(request)}}});
}

StressMessage::~StressMessage()
{
    m_ledger->messageGone(m_request);
}

// --- a presenter -----------------------------------------------------------------------------------------

StressPresenter::StressPresenter(const QString &pid, IMessageInterface::ThreadType type, StressStage *stage,
                                 int slot)
    : ZrPresenterClass(pid, nullptr, type)
    , m_stage(stage)
    , m_ledger(stage->ledger())
    , m_slot(slot)
{
    setRequestTimeOut(timeoutTicks);
    SubResponse(pid, QStringLiteral("StressNews"), 1);
    watch();
}

void StressPresenter::watch()
{
    StressLedger *const ledger = m_ledger;
    ++ledger->livePresenters;
    ledger->liveParts += 2;
    const auto partGone = [ledger] { --ledger->liveParts; };
    QObject::connect(getPrivate(), &QObject::destroyed, getPrivate(), partGone, Qt::DirectConnection);
    QObject::connect(getPrivate()->thread, &QObject::destroyed, getPrivate()->thread, partGone,
                     Qt::DirectConnection);
    QObject::connect(
        this, &ZrPresenterClass::signalDestroying, this,
        [this] {
            for (int i = 0; i < requestsWhileDestroying; ++i) {
                const int request = m_ledger->next();
                if (request >= 0)
                    send(request);
            }
            m_stage->drain(m_slot);
        },
        Qt::DirectConnection);
}

StressPresenter::~StressPresenter()
{
    {
        const QMutexLocker lock(&m_mutex);
        for (const int request : qAsConst(m_openAsync))
            m_ledger->end(request, Ending::Destroyed);
    }
    --m_ledger->livePresenters;
    m_stage->vacate(m_slot);
}

void StressPresenter::initPresenter()
{
    auto *const clock = new QTimer(this);
    QObject::connect(clock, &QTimer::timeout, this,
                     [this] { QMetaObject::invokeMethod(this, "slotTimerOut", Qt::DirectConnection); });
    clock->start(fastTickMs);
}

void StressPresenter::ProcMsg(QString pid, QVariant msgType, QVariant msg)
{
    Q_UNUSED(pid)
    Q_UNUSED(msgType)
    const int request = requestOf(msg);
    if (request < 0 || request % 4 != 0)
        ++m_ledger->stray;
    endIfArmed();
}

void StressPresenter::ProcAsyncCallBack(int code, QString pid, QVariant msgType, QVariant msg)
{
    Q_UNUSED(pid)
    Q_UNUSED(msgType)
    const int request = requestOf(msg);
    bool isOpen = false;
    {
        const QMutexLocker lock(&m_mutex);
        isOpen = m_openAsync.remove(request);
    }
    if (isOpen)
        m_ledger->endByCode(request, code);
    else
        ++m_ledger->stray;
    endIfArmed();
}

void StressPresenter::endIfArmed()
{
    if (isArmed.exchange(false) && m_stage->claim(m_slot))
        deleteLater();
}

void StressPresenter::send(int request)
{
    switch (request % 4) {
    case 0:
        return sendPut(request);
    case 1:
        return sendAsync(request);
    case 2:
        return sendSync(request);
    default:
        return sendBlocked(request);
    }
}

/// One in ten is no message at all, one in ten has no records.
CMessageCommon *StressPresenter::message(const char *type, int request) const
{
    const quint32 fate = Stress::dice(request, 1) % 10;
    if (fate == 0)
        return nullptr;
    auto *const msg = new StressMessage(m_ledger, QLatin1String(type), request);
    if (fate == 1)
        msg->SetMsg(QVariantList());
    return msg;
}

void StressPresenter::freeRefused(CMessageCommon *msg, int code) const
{
    if (code < 0)
        delete msg;
}

void StressPresenter::sendPut(int request)
{
    auto *const msg = new StressMessage(m_ledger, QLatin1String(shapes[0]), request);
    m_ledger->beginPut(request, msg);
    Put(pluginPid(), msg);
}

void StressPresenter::sendSync(int request)
{
    QVariant response;
    CMessageCommon *const msg = message(shapes[2], request);
    const int code = sendRequest_Sync(msg, response);
    freeRefused(msg, code);
    if (code == 0 && !response.isValid())
        m_ledger->end(request, Ending::Destroyed); // interrupted
    else if (code >= 0 && requestOf(response) != request)
        m_ledger->end(requestOf(response), Ending::Count); // somebody else's answer: two ends for that one
    else
        m_ledger->endByCode(request, code);
}

void StressPresenter::sendBlocked(int request)
{
    QVariant response;
    CMessageCommon *const msg = message(shapes[3], request);
    const int code = sendRequest_Sync_Block(msg, response, blockTimeMs);
    freeRefused(msg, code);
    if (code >= 0 && requestOf(response) != request)
        m_ledger->end(requestOf(response), Ending::Count);
    else
        m_ledger->endByCode(request, code);
}

void StressPresenter::sendAsync(int request)
{
    {
        const QMutexLocker lock(&m_mutex);
        m_openAsync.insert(request); // before the call: the callback may be faster than its return
    }
    CMessageCommon *const msg = message(shapes[1], request);
    const bool isCareless = Stress::dice(request, 2) % 2 == 0 && msg && msg->GetMsg().toList().size() == 1;
    const int code = isCareless
                         ? sendRequestNotCare_Async(QString::number(request), QLatin1String(shapes[1]), msg)
                         : sendRequest_Async(msg);
    freeRefused(msg, code);
    if (code == 0)
        return;
    {
        const QMutexLocker lock(&m_mutex);
        m_openAsync.remove(request);
    }
    m_ledger->endByCode(request, code);
}

// --- the stage -------------------------------------------------------------------------------------------

StressStage::StressStage(StressLedger *ledger)
    : m_ledger(ledger)
{
}

void StressStage::fill()
{
    for (int slot = 0; slot < slots_; ++slot) {
        {
            const QMutexLocker lock(&m_mutex);
            if (m_slots[size_t(slot)].presenter)
                continue;
        }
        const auto type = m_made % 2 == 0 ? IMessageInterface::PresenterThread
                                          : IMessageInterface::PresenterAndReceiverThread;
        auto *const presenter =
            new StressPresenter(QStringLiteral("stress#%1").arg(m_made++), type, this, slot);
        const QMutexLocker lock(&m_mutex);
        m_slots[size_t(slot)].presenter = presenter;
        m_slots[size_t(slot)].isClosing = false;
        m_changed.wakeAll();
        return; // one at a time: the event loop tells the presenter that its constructors have run
    }
}

void StressStage::endOne()
{
    const int turn = m_turn++;
    const int slot = turn % slots_;
    if (turn % 3 != 0) {
        // From within a receiver, on a bus thread or on the presenter's own.
        const QMutexLocker lock(&m_mutex);
        const Slot &one = m_slots[size_t(slot)];
        if (one.presenter && !one.isClosing)
            one.presenter->isArmed = true;
        return;
    }
    StressPresenter *presenter = nullptr;
    {
        const QMutexLocker lock(&m_mutex);
        presenter = m_slots[size_t(slot)].presenter;
    }
    if (presenter && claim(slot))
        presenter->deleteLater();
}

void StressStage::endAll()
{
    for (int slot = 0; slot < slots_; ++slot) {
        StressPresenter *presenter = nullptr;
        {
            const QMutexLocker lock(&m_mutex);
            presenter = m_slots[size_t(slot)].presenter;
        }
        if (presenter && claim(slot))
            presenter->deleteLater();
    }
}

bool StressStage::isEmpty() const
{
    const QMutexLocker lock(&m_mutex);
    for (const Slot &slot : m_slots) {
        if (slot.presenter)
            return false;
    }
    return true;
}

StressPresenter *StressStage::lease(int wanted, int *slot)
{
    const QMutexLocker lock(&m_mutex);
    for (;;) {
        for (int i = 0; i < slots_; ++i) {
            const int candidate = (wanted + i) % slots_;
            Slot &one = m_slots[size_t(candidate)];
            if (!one.presenter || one.isClosing)
                continue;
            ++one.leases;
            *slot = candidate;
            return one.presenter;
        }
        m_changed.wait(&m_mutex);
    }
}

void StressStage::release(int slot)
{
    const QMutexLocker lock(&m_mutex);
    --m_slots[size_t(slot)].leases;
    m_changed.wakeAll();
}

void StressStage::drain(int slot)
{
    const QMutexLocker lock(&m_mutex);
    while (m_slots[size_t(slot)].leases > 0)
        m_changed.wait(&m_mutex);
}

void StressStage::vacate(int slot)
{
    const QMutexLocker lock(&m_mutex);
    m_slots[size_t(slot)] = Slot();
    ++m_ended;
}

bool StressStage::claim(int slot)
{
    const QMutexLocker lock(&m_mutex);
    Slot &one = m_slots[size_t(slot)];
    if (one.isClosing)
        return false;
    one.isClosing = true;
    return true;
}

// --- the back end ----------------------------------------------------------------------------------------

quint32 Stress::dice(int request, int salt)
{
    quint32 x = quint32(request) * 2654435761u + quint32(salt) * 40503u;
    x ^= x >> 15;
    x *= 2246822519u;
    x ^= x >> 13;
    return x;
}

void Stress::openBackEnd()
{
    for (const char *const type : shapes) {
        const bool isAsync = type == shapes[1];
        ZrBus::instance().setService(QLatin1String(type), [isAsync](const ZrBusRequest &request) {
            const QVariant id = request.records.value(0).value(Vexlor_Fields::System::clientMsgID);
            const bool isOdd = isAsync && dice(id.toString().toInt(), 3) % 2 == 0;
            const QString answer = isOdd ? QStringLiteral("Client_88") : QStringLiteral("StressAnswer");
            return QList<ZrBusAnswer>{
                {answer, QVariantList{QVariantMap{{Vexlor_Fields::System::clientMsgID, id}}}}};
        });
    }
    ZrFaultSpec faults;
    faults.drop = 0.09;
    faults.duplicate = 0.07;
    faults.reorder = 0.07;
    faults.delayed = 0.07;
    faults.delayMinMs = 10;
    faults.delayMaxMs = 60;
    faults.reject = 0.15;
    faults.seed = 20260;
    ZrBus::instance().setFaults(faults);
}
