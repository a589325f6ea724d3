#include "ZrBus.h"

#include "ZrBusLane.h"
#include "ZrBusRegistry.h"

#include "zrdefine/VexlorFields.h"
#include "zrevent/CEventMessageCommon.h"
#include "zrmsg/CMessageCommon.h"
#include "zrmsg/CUnPackMessageCommon.h"

#include <QtCore/QCoreApplication>

#include <chrono>

/// Counts what is under way and tells when nothing is.
class ZrBusPending
{
public:
    void add(qint64 n)
    {
        const std::lock_guard<std::mutex> guard(m_mutex);
        m_count += n;
        if (m_count == 0)
            m_idle.notify_all();
    }

    bool waitIdle(int timeoutMs)
    {
        std::unique_lock<std::mutex> lock(m_mutex);
        const auto isIdle = [this] { return m_count == 0; };
        if (timeoutMs < 0) {
            m_idle.wait(lock, isIdle);
            return true;
        }
        return m_idle.wait_for(lock, std::chrono::milliseconds(timeoutMs), isIdle);
    }

private:
    std::mutex m_mutex;
    std::condition_variable m_idle;
    qint64 m_count = 0;
};

class ZrBus::Private
{
public:
    std::shared_ptr<ZrBusLane> sharedLane();
    void enqueue(const std::shared_ptr<ZrBusLane> &lane, ZrBusLane::Work &&work, const QString &typeKey);
    void fanOut(const ZrBusItem &item, const ZrBusEntries &targets);
    void serve(const ZrBusService &service, const ZrBusRequest &request);

    std::mutex mutex; // guards the registry, the services and the shared lane
    ZrBusRegistry registry;
    QHash<QString, ZrBusService> services;
    std::shared_ptr<ZrBusLane> shared;
    ZrBusPending pending;
    ZrBusCounters counters;
};

static void stopWithApplication()
{
    ZrBus::instance().reset();
}

/// One piece of work's share of what is pending: gone when the work is, run or not.
class ZrBusShare
{
public:
    explicit ZrBusShare(ZrBusPending *pending)
        : m_pending(pending)
    {
        m_pending->add(1);
    }
    ~ZrBusShare() { m_pending->add(-1); }

private:
    Q_DISABLE_COPY(ZrBusShare)
    ZrBusPending *const m_pending;
};

std::shared_ptr<ZrBusLane> ZrBus::Private::sharedLane()
{
    if (!shared) {
        shared = std::make_shared<ZrBusLane>();
        // The bus must be still when the toolkit's statics go.
        qAddPostRoutine(stopWithApplication);
    }
    return shared;
}

void ZrBus::Private::enqueue(const std::shared_ptr<ZrBusLane> &lane, ZrBusLane::Work &&work,
                             const QString &typeKey)
{
    const auto share = std::make_shared<ZrBusShare>(&pending);
    if (!lane->post([share, work = std::move(work)] { work(); }))
        counters.add(typeKey, &ZrBusCount::undeliverable);
}

void ZrBus::Private::fanOut(const ZrBusItem &item, const ZrBusEntries &targets)
{
    const QString typeKey = item.typeKey();
    if (targets.empty()) {
        counters.add(typeKey, &ZrBusCount::undeliverable);
        return;
    }
    for (const ZrBusEntryPtr &entry : targets) {
        const auto work = [this, entry, item, typeKey] {
            const bool delivered = entry->deliver(item);
            counters.add(typeKey, delivered ? &ZrBusCount::delivered : &ZrBusCount::undeliverable);
        };
        enqueue(entry->lane, work, typeKey);
    }
}

void ZrBus::Private::serve(const ZrBusService &service, const ZrBusRequest &request)
{
    const QList<ZrBusAnswer> answers = service(request);
    for (const ZrBusAnswer &answer : answers) {
        const QVariant type = answer.msgType.toString().isEmpty() ? request.msgType : answer.msgType;
        const ZrBusItem item{ZrBusKind::Message, request.pid, type, answer.body};
        counters.add(item.typeKey(), &ZrBusCount::answered);
        ZrBusEntries targets;
        {
            const std::lock_guard<std::mutex> guard(mutex);
            if (const ZrBusEntryPtr asker = registry.find(request.pid))
                targets.push_back(asker);
            registry.appendSubscribers(item.typeKey(), false, &targets);
        }
        fanOut(item, targets);
    }
}

ZrBus &ZrBus::instance()
{
    // Never destroyed: an endpoint may outlive all else in the process. stopWithApplication() ends its
    // threads.
    static ZrBus *const bus = new ZrBus;
    return *bus;
}

ZrBus::ZrBus()
    : d(new Private)
{
}

ZrBus::~ZrBus() = default;

void ZrBus::attach(const QString &pid, IMessageInterface *endpoint, bool ownThread)
{
    ZrBusEntryPtr before;
    {
        const std::lock_guard<std::mutex> guard(d->mutex);
        std::shared_ptr<ZrBusLane> lane = ownThread ? std::make_shared<ZrBusLane>() : d->sharedLane();
        before = d->registry.add(std::make_shared<ZrBusEntry>(pid, endpoint, std::move(lane)));
    }
    if (before)
        before->close();
}

void ZrBus::detach(const QString &pid)
{
    ZrBusEntryPtr entry;
    {
        const std::lock_guard<std::mutex> guard(d->mutex);
        entry = d->registry.take(pid);
    }
    if (entry)
        entry->close();
}

void ZrBus::endpointDestroyed(IMessageInterface *endpoint)
{
    ZrBusEntries entries;
    {
        const std::lock_guard<std::mutex> guard(d->mutex);
        entries = d->registry.takeAll(endpoint);
    }
    for (const ZrBusEntryPtr &entry : entries) {
        entry->close();
        entry->waitForCallElsewhere();
    }
}

void ZrBus::put(const QString &pid, std::unique_ptr<CMessageCommon> message)
{
    CUnPackMessageCommon reader;
    reader.SetUnPackMsg(message->GetMsg(), false);
    const QString source = message->GetSrcid().isEmpty() ? pid : message->GetSrcid();
    const QVariant type = reader.GetValue(Vexlor_Fields::System::msgType, QString());
    const ZrBusItem item{ZrBusKind::Message, source, type, message->GetMsg()};
    const QString typeKey = item.typeKey();
    d->counters.add(typeKey, &ZrBusCount::put);

    ZrBusService service;
    std::shared_ptr<ZrBusLane> lane;
    ZrBusEntries targets;
    {
        const std::lock_guard<std::mutex> guard(d->mutex);
        service = d->services.value(typeKey);
        const ZrBusEntryPtr asker = d->registry.find(source);
        lane = asker ? asker->lane : d->sharedLane();
        if (!service)
            d->registry.appendSubscribers(typeKey, false, &targets);
    }
    if (!service) {
        d->fanOut(item, targets);
        return;
    }
    const ZrBusRequest request{source, type, reader.GetAllValue()};
    d->enqueue(
        lane, [this, service, request] { d->serve(service, request); }, typeKey);
}

void ZrBus::putEvent(const QString &pid, std::unique_ptr<CEventMessageCommon> event)
{
    const QString source = event->GetSrcid().isEmpty() ? pid : event->GetSrcid();
    const ZrBusItem item{ZrBusKind::Event, source, event->GetType(), event->GetMsg()};
    const QString typeKey = item.typeKey();
    d->counters.add(typeKey, &ZrBusCount::put);
    ZrBusEntries targets;
    {
        const std::lock_guard<std::mutex> guard(d->mutex);
        d->registry.appendSubscribers(typeKey, true, &targets);
        d->registry.appendLinked(source, item.type.toInt(), &targets);
    }
    d->fanOut(item, targets);
}

void ZrBus::subscribe(const QString &pid, const QVariant &type, bool isEvent)
{
    const std::lock_guard<std::mutex> guard(d->mutex);
    d->registry.subscribe(pid, type.toString(), isEvent);
}

void ZrBus::unsubscribe(const QString &pid, const QVariant &type, bool isEvent)
{
    const std::lock_guard<std::mutex> guard(d->mutex);
    d->registry.unsubscribe(pid, type.toString(), isEvent);
}

void ZrBus::link(const QString &menuId, const QString &pid, int linkageType, int group)
{
    const std::lock_guard<std::mutex> guard(d->mutex);
    d->registry.link(menuId, pid, linkageType, group);
}

void ZrBus::unlink(const QString &menuId, const QString &pid, int linkageType, int group)
{
    const std::lock_guard<std::mutex> guard(d->mutex);
    d->registry.unlink(menuId, pid, linkageType, group);
}

void ZrBus::publish(const ZrBusItem &item)
{
    const QString typeKey = item.typeKey();
    d->counters.add(typeKey, &ZrBusCount::put);
    ZrBusEntries targets;
    {
        const std::lock_guard<std::mutex> guard(d->mutex);
        d->registry.appendSubscribers(typeKey, item.kind == ZrBusKind::Event, &targets);
    }
    d->fanOut(item, targets);
}

void ZrBus::setService(const QVariant &msgType, ZrBusService service)
{
    const std::lock_guard<std::mutex> guard(d->mutex);
    if (service)
        d->services.insert(msgType.toString(), std::move(service));
    else
        d->services.remove(msgType.toString());
}

bool ZrBus::waitIdle(int timeoutMs)
{
    return d->pending.waitIdle(timeoutMs);
}

ZrBusCounters &ZrBus::counters()
{
    return d->counters;
}

void ZrBus::reset()
{
    ZrBusEntries entries;
    std::shared_ptr<ZrBusLane> lane;
    QHash<QString, ZrBusService> services;
    {
        const std::lock_guard<std::mutex> guard(d->mutex);
        entries = d->registry.takeEverything();
        lane.swap(d->shared);
        services.swap(d->services);
    }
    for (const ZrBusEntryPtr &entry : entries) {
        entry->close();
        entry->lane->stop();
    }
    if (lane)
        lane->stop();
}
