#include "ZrBus.h"

#include "ZrBusLane.h"
#include "ZrBusPending.h"
#include "ZrBusRegistry.h"
#include "ZrBusTape.h"
#include "ZrDelayLine.h"
#include "ZrFaultRoad.h"
#include "ZrReplay.h"

#include "zrdefine/VexlorFields.h"
#include "zrevent/CEventMessageCommon.h"
#include "zrmsg/CMessageCommon.h"
#include "zrmsg/CUnPackMessageCommon.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QDebug>

class ZrBus::Private
{
public:
    Private();

    std::shared_ptr<ZrBusLane> sharedLane();
    void enqueue(const std::shared_ptr<ZrBusLane> &lane, ZrBusLane::Work &&work, const QString &typeKey);
    void send(const ZrBusItem &item);
    void dispatch(const ZrBusItem &item);
    ZrBusEntries targetsOf(const ZrBusItem &item, const QString &typeKey);
    void serve(const ZrBusService &service, const ZrBusRequest &request);
    void later(int delayMs, ZrDelayLine::Work &&work);

    std::mutex mutex; // guards these six
    ZrBusRegistry registry;
    QHash<QString, ZrBusService> services;
    std::shared_ptr<ZrBusLane> shared;
    std::shared_ptr<ZrDelayLine> line;
    bool resetting = false;
    bool stopsWithApplication = false;

    ZrBusPending pending;
    ZrBusCounters counters;
    ZrBusTape tape;
    ZrFaultRoad road;
    std::unique_ptr<ZrReplay> replay; // one thread at a time
};

/// Called by the toolkit, once for each time it was asked.
static void stopWithApplication()
{
    ZrBus::instance().applicationEnds();
}

ZrBus::Private::Private()
    : road(ZrFaultRoad::Exits{
          [this](const ZrBusItem &item) { dispatch(item); },
          [this](const ZrBusItem &item) { counters.add(item.typeKey(), &ZrBusCount::dropped); },
          [this](int delayMs, std::function<void()> work) { later(delayMs, std::move(work)); }})
{
}

std::shared_ptr<ZrBusLane> ZrBus::Private::sharedLane()
{
    if (!shared)
        shared = std::make_shared<ZrBusLane>();
    return shared;
}

void ZrBus::Private::enqueue(const std::shared_ptr<ZrBusLane> &lane, ZrBusLane::Work &&work,
                             const QString &typeKey)
{
    if (!lane || !lane->post([share = pending.share(), work = std::move(work)] { work(); }))
        counters.add(typeKey, &ZrBusCount::undeliverable);
}

void ZrBus::Private::send(const ZrBusItem &item)
{
    if (item.kind == ZrBusKind::Event && !item.source.isEmpty())
        dispatch(item);
    else
        road.send(item);
}

ZrBusEntries ZrBus::Private::targetsOf(const ZrBusItem &item, const QString &typeKey)
{
    ZrBusEntries targets;
    const bool isEvent = item.kind == ZrBusKind::Event;
    const std::lock_guard<std::mutex> guard(mutex);
    if (const ZrBusEntryPtr asker = registry.find(item.asker))
        targets.push_back(asker);
    registry.appendSubscribers(typeKey, isEvent, &targets);
    if (isEvent)
        registry.appendLinked(item.source, item.type.toInt(), &targets);
    return targets;
}

void ZrBus::Private::dispatch(const ZrBusItem &item)
{
    const QString typeKey = item.typeKey();
    tape.note(item, false);
    const ZrBusEntries targets = targetsOf(item, typeKey);
    if (targets.empty())
        counters.add(typeKey, &ZrBusCount::undeliverable);
    for (const ZrBusEntryPtr &entry : targets) {
        auto work = [this, entry, item, typeKey] {
            const bool delivered = entry->deliver(item);
            counters.add(typeKey, delivered ? &ZrBusCount::delivered : &ZrBusCount::undeliverable);
        };
        enqueue(entry->lane, std::move(work), typeKey);
    }
}

void ZrBus::Private::serve(const ZrBusService &service, const ZrBusRequest &request)
{
    const QList<ZrBusAnswer> answers = service(request);
    for (const ZrBusAnswer &answer : answers) {
        const QVariant type = answer.msgType.toString().isEmpty() ? request.msgType : answer.msgType;
        const ZrBusItem item{ZrBusKind::Message, request.pid, request.pid, type, answer.body};
        counters.add(item.typeKey(), &ZrBusCount::answered);
        send(item);
    }
}

void ZrBus::Private::later(int delayMs, ZrDelayLine::Work &&work)
{
    std::shared_ptr<ZrDelayLine> now;
    {
        const std::lock_guard<std::mutex> guard(mutex);
        if (resetting)
            return;
        if (!line)
            line = std::make_shared<ZrDelayLine>();
        now = line;
    }
    now->post(delayMs, [share = pending.share(), work = std::move(work)] { work(); });
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

void ZrBus::attach(const QString &pid, const std::shared_ptr<ZrBusGate> &gate, bool ownThread)
{
    ZrBusEntryPtr before;
    bool isFirst = false;
    {
        const std::lock_guard<std::mutex> guard(d->mutex);
        std::shared_ptr<ZrBusLane> lane = ownThread ? std::make_shared<ZrBusLane>() : d->sharedLane();
        before = d->registry.add(std::make_shared<ZrBusEntry>(pid, gate, std::move(lane)));
        isFirst = !d->stopsWithApplication;
        d->stopsWithApplication = true;
    }
    if (before)
        before->close();
    // The bus must be still when the toolkit's statics go.
    if (isFirst)
        qAddPostRoutine(stopWithApplication);
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

void ZrBus::endpointDestroyed(const std::shared_ptr<ZrBusGate> &gate)
{
    ZrBusEntries entries;
    {
        const std::lock_guard<std::mutex> guard(d->mutex);
        entries = d->registry.takeAll(gate.get());
    }
    for (const ZrBusEntryPtr &entry : entries)
        entry->close();
    gate->endpointDestroyed();
}

void ZrBus::put(const QString &pid, std::unique_ptr<CMessageCommon> message)
{
    CUnPackMessageCommon reader;
    reader.SetUnPackMsg(message->GetMsg(), false);
    const QString source = message->GetSrcid().isEmpty() ? pid : message->GetSrcid();
    const QVariant type = reader.GetValue(Vexlor_Fields::System::msgType, QString());
    const ZrBusItem item{ZrBusKind::Message, source, QString(), type, message->GetMsg()};
    const QString typeKey = item.typeKey();
    d->counters.add(typeKey, &ZrBusCount::put);

    ZrBusService service;
    std::shared_ptr<ZrBusLane> lane;
    {
        const std::lock_guard<std::mutex> guard(d->mutex);
        service = d->services.value(typeKey);
        const ZrBusEntryPtr asker = d->registry.find(source);
        if (asker || !d->resetting) // a stopping bus makes no thread for who isn't on it
            lane = asker ? asker->lane : d->sharedLane();
    }
    if (!service) {
        d->send(item);
        return;
    }
    d->tape.note(item, true);
    auto work = [this, service, request = ZrBusRequest{source, type, reader.GetAllValue()}] {
        d->serve(service, request);
    };
    d->enqueue(lane, std::move(work), typeKey);
}

void ZrBus::putEvent(const QString &pid, std::unique_ptr<CEventMessageCommon> event)
{
    const QString source = event->GetSrcid().isEmpty() ? pid : event->GetSrcid();
    const ZrBusItem item{ZrBusKind::Event, source, QString(), event->GetType(), event->GetMsg()};
    d->counters.add(item.typeKey(), &ZrBusCount::put);
    d->send(item);
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
    d->counters.add(item.typeKey(), &ZrBusCount::put);
    d->send(item);
}

void ZrBus::setService(const QVariant &msgType, ZrBusService service)
{
    const std::lock_guard<std::mutex> guard(d->mutex);
    if (service)
        d->services.insert(msgType.toString(), service);
    else
        d->services.remove(msgType.toString());
}

void ZrBus::setFaults(const ZrFaultSpec &spec)
{
    d->road.setSpec(spec);
}

bool ZrBus::startRecording(const QString &path, QString *errorText)
{
    return d->tape.start(path, errorText);
}

bool ZrBus::stopRecording(QString *errorText)
{
    return d->tape.stop(errorText);
}

bool ZrBus::startReplay(const QString &path, double speed, QString *errorText)
{
    d->replay.reset();
    auto reader = std::make_unique<ZrRecordingReader>();
    if (!reader->open(path)) {
        *errorText = reader->errorText();
        return false;
    }
    auto exit = [this, share = d->pending.share()](const ZrBusItem &item) { publish(item); };
    d->replay = std::make_unique<ZrReplay>(std::move(reader), speed, std::move(exit));
    return true;
}

bool ZrBus::waitReplay(int timeoutMs)
{
    return !d->replay || d->replay->waitFinished(timeoutMs);
}

qint64 ZrBus::replayedCount() const
{
    return d->replay ? d->replay->played() : 0;
}

QString ZrBus::replayErrorText() const
{
    return d->replay ? d->replay->errorText() : QString();
}

bool ZrBus::waitIdle(int timeoutMs)
{
    return d->pending.waitIdle(timeoutMs);
}

ZrBusCounters &ZrBus::counters()
{
    return d->counters;
}

void ZrBus::applicationEnds()
{
    reset();
    const std::lock_guard<std::mutex> guard(d->mutex);
    d->stopsWithApplication = false;
}

void ZrBus::reset()
{
    d->replay.reset();
    ZrBusEntries entries;
    std::shared_ptr<ZrBusLane> lane;
    std::shared_ptr<ZrDelayLine> line;
    QHash<QString, ZrBusService> services;
    {
        const std::lock_guard<std::mutex> guard(d->mutex);
        d->resetting = true;
        entries = d->registry.takeEverything();
        lane.swap(d->shared);
        line.swap(d->line);
        services.swap(d->services);
    }
    d->road.setSpec(ZrFaultSpec());
    d->road.clear();
    if (line)
        line->stop();
    for (const ZrBusEntryPtr &entry : entries) {
        entry->close();
        entry->lane->stop();
    }
    if (lane)
        lane->stop();
    QString errorText;
    if (!d->tape.stop(&errorText))
        qWarning().noquote() << errorText;
    const std::lock_guard<std::mutex> guard(d->mutex);
    d->resetting = false;
}
