#include "ZrReferenceHost.h"

#include "zrbase/ZrBus.h"
#include "zrbase/ZrFaultSpec.h"
#include "zrcore/ZrCoreHost.h"
#include "zrdatabase/ZrDataStore.h"
#include "zrdefine/VexlorFields.h"
#include "zrplugin/ZrPluginNumbers.h"

#include <QtCore/QFileInfo>

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

ZrDataOptions dataOptionsOf(const ZrReferenceHost::Database &database)
{
    ZrDataOptions options;
    options.folder = database.folder;
    if (!database.driver.isEmpty())
        options.driver = database.driver;
    options.databaseName = database.databaseName;
    options.hostName = database.hostName;
    options.port = database.port;
    options.userName = database.userName;
    options.password = database.password;
    options.connectOptions = database.connectOptions;
    options.language = database.language;
    return options;
}

bool openData(const ZrReferenceHost::Database &database, QString *errorText)
{
    const bool isSeed = database.folder.isEmpty() && database.driver.isEmpty();
    return isSeed ? ZrDataStore::openSeed(database.language, errorText)
                  : ZrDataStore::open(dataOptionsOf(database), errorText);
}

/// One sentence when a folder was named that isn't there.
QString missingFolder(const ZrReferenceHost::Options &options)
{
    for (const QString &folder : {options.dataFolder, options.skinRoot, options.pluginFolder}) {
        if (!folder.isEmpty() && !QFileInfo(folder).isDir())
            return QStringLiteral("There is no folder \"%1\".").arg(folder);
    }
    return QString();
}

QVariant answerBody(const ZrReferenceHost::Answer &answer, const QVariant &type, const ZrBusRequest &request)
{
    QList<QVariantMap> records = answer.records;
    if (records.isEmpty())
        records.append(QVariantMap());
    QVariantMap &first = records.first();
    const QString &idField = Vexlor_Fields::System::clientMsgID;
    if (!first.contains(idField) && !request.records.isEmpty())
        first.insert(idField, request.records.constFirst().value(idField));
    if (!first.contains(Vexlor_Fields::System::msgType))
        first.insert(Vexlor_Fields::System::msgType, type);
    return bodyOf(records);
}
} // namespace

class ZrReferenceHost::Private
{
public:
    /// One sentence when something is no good.
    QString begin(const Options &options);

    bool running = false;
    QString errorText;
    static Private *owner; // who runs the process's host; GUI thread only
};

ZrReferenceHost::Private *ZrReferenceHost::Private::owner = nullptr;

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
    if (Private::owner) {
        d->errorText = QStringLiteral("A reference host runs already in this process.");
        return false;
    }
    Private::owner = d.get();
    d->running = true;
    const QString errorText = d->begin(options);
    if (errorText.isEmpty())
        return true;
    stop();
    d->errorText = errorText;
    return false;
}

QString ZrReferenceHost::Private::begin(const Options &options)
{
    QString wrong = missingFolder(options);
    ZrFaultSpec faults;
    if (!wrong.isEmpty() || !ZrFaultSpec::parse(options.faults, &faults, &wrong) ||
        !openData(options.database, &wrong))
        return wrong;
    if (!options.loginType.isEmpty())
        ZrDataStore::setLoginType(options.loginType);
    ZrBus::instance().setFaults(faults);
    ZrCoreHost &core = ZrCoreHost::instance();
    core.setConfigFolder(options.configFolder);
    core.setDataFolder(options.dataFolder);
    core.setSkinRoot(options.skinRoot);
    core.setPluginFolder(options.pluginFolder);
    core.setMainWindow(options.mainWindow);
    const QStringList skins = core.skinIds();
    const QString skinId = options.skinId.isEmpty() ? skins.value(0) : options.skinId;
    if (!skinId.isEmpty() && !skins.contains(skinId))
        return QStringLiteral("There is no skin \"%1\" in \"%2\".").arg(skinId, options.skinRoot);
    if (!skinId.isEmpty())
        core.setSkin(skinId);
    return QString();
}

void ZrReferenceHost::stop()
{
    d->errorText.clear();
    if (!d->running)
        return;
    d->running = false;
    Private::owner = nullptr;
    ZrBus::instance().reset();
    ZrBus::instance().counters().clear();
    ZrCoreHost::instance().reset();
    ZrPluginNumbers::instance().reset();
    ZrDataStore::close();
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

QList<QPair<QString, int>> ZrReferenceHost::pluginsCreated() const
{
    return ZrCoreHost::instance().pluginsCreated();
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
        for (const Answer &answer : given) {
            const QVariant type = answer.msgType.isValid() ? answer.msgType : request.msgType;
            answers.append(ZrBusAnswer{type, answerBody(answer, type, request)});
        }
        return answers;
    });
}

void ZrReferenceHost::setLoginType(const QString &type)
{
    ZrDataStore::setLoginType(type);
}

void ZrReferenceHost::setAccounts(const QList<QVariantMap> &accounts)
{
    ZrDataStore::setAccounts(accounts);
}

void ZrReferenceHost::setSecurities(const QList<QVariantMap> &securities)
{
    ZrDataStore::setSecurities(securities);
}

void ZrReferenceHost::setDictionary(const QString &section, const QMap<QString, QString> &texts)
{
    ZrDataStore::setSection(section, texts);
}

bool ZrReferenceHost::setFaults(const QString &spec)
{
    ZrFaultSpec faults;
    d->errorText.clear();
    if (!ZrFaultSpec::parse(spec, &faults, &d->errorText))
        return false;
    ZrBus::instance().setFaults(faults);
    return true;
}

bool ZrReferenceHost::startRecording(const QString &path)
{
    d->errorText.clear();
    return ZrBus::instance().startRecording(path, &d->errorText);
}

bool ZrReferenceHost::stopRecording()
{
    d->errorText.clear();
    return ZrBus::instance().stopRecording(&d->errorText);
}

bool ZrReferenceHost::startReplay(const QString &path, double speed)
{
    d->errorText.clear();
    return ZrBus::instance().startReplay(path, speed, &d->errorText);
}

bool ZrReferenceHost::waitReplay(int timeoutMs)
{
    return ZrBus::instance().waitReplay(timeoutMs);
}

qint64 ZrReferenceHost::replayedCount() const
{
    return ZrBus::instance().replayedCount();
}

QString ZrReferenceHost::replayErrorText() const
{
    return ZrBus::instance().replayErrorText();
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
