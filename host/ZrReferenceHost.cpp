#include "ZrReferenceHost.h"

#include "zrbase/ZrBus.h"
#include "zrcore/ZrCoreHost.h"

namespace {
QVariant bodyOf(const QList<QVariantMap> &records)
{
    QVariantList body;
    body.reserve(records.size());
    for (const QVariantMap &record : records)
        body.append(record);
    return body;
}

ZrReferenceHost::Counters countersOf(const ZrBusCount &count)
{
    ZrReferenceHost::Counters result;
    result.put = count.put;
    result.answered = count.answered;
    result.delivered = count.delivered;
    result.dropped = count.dropped;
    result.undeliverable = count.undeliverable;
    return result;
}
} // namespace

class ZrReferenceHost::Private
{
public:
    bool running = false;
    QString errorText;
};

ZrReferenceHost::ZrReferenceHost()
    : d(new Private)
{
}

ZrReferenceHost::~ZrReferenceHost()
{
    stop();
}

bool ZrReferenceHost::start(const Options &options)
{
    stop();
    ZrCoreHost &core = ZrCoreHost::instance();
    core.setConfigFolder(options.configFolder);
    core.setDataFolder(options.dataFolder);
    core.setSkinRoot(options.skinRoot);
    core.setPluginFolder(options.pluginFolder);
    core.setMainWindow(options.mainWindow);
    const QStringList skins = core.skinIds();
    const QString skinId = options.skinId.isEmpty() ? skins.value(0) : options.skinId;
    d->running = true;
    if (skinId.isEmpty() || core.setSkin(skinId))
        return true;
    stop();
    d->errorText = QStringLiteral("No skin \"%1\" in \"%2\".").arg(skinId, options.skinRoot);
    return false;
}

void ZrReferenceHost::stop()
{
    d->errorText.clear();
    if (!d->running)
        return;
    d->running = false;
    ZrBus::instance().reset();
    ZrBus::instance().counters().clear();
    ZrCoreHost::instance().reset();
}

bool ZrReferenceHost::isRunning() const
{
    return d->running;
}

QString ZrReferenceHost::errorText() const
{
    return d->errorText;
}

QStringList ZrReferenceHost::skinIds() const
{
    return ZrCoreHost::instance().skinIds();
}

bool ZrReferenceHost::setSkin(const QString &skinId)
{
    return ZrCoreHost::instance().setSkin(skinId);
}

void ZrReferenceHost::setMainWindow(QWidget *window)
{
    ZrCoreHost::instance().setMainWindow(window);
}

void ZrReferenceHost::registerPlugin(const QString &pluginId, std::function<QObject *()> maker)
{
    ZrCoreHost::instance().setObjectMaker(pluginId, std::move(maker));
}

void ZrReferenceHost::registerService(const QVariant &msgType, Service service)
{
    if (!service) {
        ZrBus::instance().setService(msgType, ZrBusService());
        return;
    }
    ZrBus::instance().setService(msgType, [service](const ZrBusRequest &request) {
        QList<ZrBusAnswer> answers;
        const QList<Answer> given = service(Request{request.pid, request.msgType, request.records});
        for (const Answer &answer : given)
            answers.append(ZrBusAnswer{answer.msgType, bodyOf(answer.records)});
        return answers;
    });
}

void ZrReferenceHost::publish(const QVariant &msgType, const QList<QVariantMap> &records)
{
    ZrBus::instance().publish(ZrBusItem{ZrBusKind::Message, QString(), QString(), msgType, bodyOf(records)});
}

void ZrReferenceHost::publishQuotation(const QVariant &msgType, const QList<QVariantMap> &records)
{
    ZrBus::instance().publish(
        ZrBusItem{ZrBusKind::Quotation, QString(), QString(), msgType, bodyOf(records)});
}

void ZrReferenceHost::publishEvent(const QVariant &eventType, const QVariant &body)
{
    ZrBus::instance().publish(ZrBusItem{ZrBusKind::Event, QString(), QString(), eventType, body});
}

ZrReferenceHost::Counters ZrReferenceHost::counters() const
{
    return countersOf(ZrBus::instance().counters().total());
}

QHash<QString, ZrReferenceHost::Counters> ZrReferenceHost::countersByType() const
{
    QHash<QString, Counters> result;
    const QHash<QString, ZrBusCount> counts = ZrBus::instance().counters().byType();
    for (auto it = counts.cbegin(); it != counts.cend(); ++it)
        result.insert(it.key(), countersOf(it.value()));
    return result;
}

bool ZrReferenceHost::waitIdle(int timeoutMs)
{
    return ZrBus::instance().waitIdle(timeoutMs);
}
