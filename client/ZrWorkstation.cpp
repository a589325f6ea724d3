#include "ZrWorkstation.h"

#include "ZrViewBase.h"

#include "desk/ZrDeskToolBar.h"
#include "desk/ZrFeedMonitor.h"
#include "desk/ZrFeedProgress.h"
#include "desk/ZrLinkedShot.h"
#include "desk/ZrPluginDesk.h"
#include "desk/ZrPluginDock.h"
#include "feed/ZrFeedPlayer.h"
#include "feed/ZrRecordingTee.h"
#include "ZrClientApplication.h"
#include "ZrClientFields.h"
#include "ZrFeedFactory.h"
#include "ZrMainWindow.h"
#include "ZrPluginCatalogue.h"
#include "ZrPluginsDock.h"
#include "ZrPluginsPanel.h"
#include "ZrShots.h"
#include "ZrStatusLine.h"

#include "zrcore/ZrCore.h"
#include "zrcore/ZrCoreHost.h"
#include "ZrReferenceHost.h"

#include <QtCore/QDebug>
#include <QtCore/QLocale>

#include <algorithm>

namespace {
constexpr int StatusMs = 500;
constexpr int IdleMs = 10000; // the bus may hold delayed messages for a while
constexpr int MostDrainMs = 30000;
constexpr qint64 FastWindow = 4000; // messages under way when the feed knows no time

QString languageOf(const ZrWorkstationOptions &options)
{
    const QString language = options.language.isEmpty() ? QLocale().name() : options.language;
    return language.startsWith(QLatin1String("zh")) ? QStringLiteral("zh_CN") : QStringLiteral("en");
}

qint64 rowsOf(const ZrPluginDock *dock)
{
    const QVariantMap data = ZrPluginDesk::dataOf(dock);
    if (data.contains(ZrPluginReport::rows) || !dock->plugin())
        return data.value(ZrPluginReport::rows).toLongLong();
    qint64 rows = 0;
    const QList<ZrViewBase *> views = dock->plugin()->findChildren<ZrViewBase *>();
    for (ZrViewBase *const view : views)
        rows += view->getViewCurrentDisplayData().size();
    return rows;
}
} // namespace

ZrWorkstation::ZrWorkstation(const ZrWorkstationOptions &options, const ZrWorkstationPaths &paths,
                             ZrClientApplication *app)
    : m_options(options)
    , m_paths(paths)
    , m_app(app)
    , m_host(std::make_unique<ZrReferenceHost>())
    , m_clock(std::make_unique<ZrSteadyClock>())
{
}

ZrWorkstation::~ZrWorkstation()
{
    if (m_player)
        m_player->stop();
    if (m_monitor) {
        m_monitor->detach();
        m_monitor->deleteLater();
    }
    m_app->watchFrames(nullptr);
    m_window.reset();
    m_host->stop();
}

QString ZrWorkstation::start()
{
    QString error = startHost();
    if (error.isEmpty())
        error = loadPlugins();
    if (error.isEmpty())
        error = makeFeed();
    if (!error.isEmpty())
        return error;
    makeWindow();
    connectBus();
    error = openPlugins();
    if (!error.isEmpty())
        return error;
    m_window->addPlugins(m_plugins.get());
    connect(m_window->plugins()->panel(), &ZrPluginsPanel::signalLoaded, this, &ZrWorkstation::offerPlugins);
    m_window->show();
    // The first picture costs more than any later one: a feed that had begun would wait for it.
    QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
    startFeed();
    return QString();
}

QString ZrWorkstation::startHost()
{
    ZrReferenceHost::Options host;
    host.configFolder = m_paths.config;
    host.dataFolder = m_paths.data;
    host.skinRoot = m_paths.skins;
    host.skinId = m_options.skin;
    host.faults = m_options.faults;
    host.database.language = languageOf(m_options);
    return m_host->start(host) ? QString() : m_host->errorText();
}

QString ZrWorkstation::loadPlugins()
{
    m_plugins =
        std::make_unique<ZrPluginCatalogue>([this](const QString &id, const ZrPluginCatalogue::Maker &maker) {
            m_host->registerPlugin(id, [this, id, maker] {
                QObject *const object = maker();
                m_window->desk()->prepare(id, object);
                return object;
            });
        });
    const QString folder = m_options.pluginFolder.isEmpty() ? m_paths.plugins : m_options.pluginFolder;
    ZrPluginCatalogue::Options options;
    options.folder = m_options.noPlugins ? QString() : folder;
    options.manifest = m_options.pluginManifest;
    options.stateFolder = ZrCoreHost::instance().configFolder();
    const QString error = m_plugins->scan(options);
    if (error.isEmpty())
        m_plugins->loadAll();
    return error;
}

QString ZrWorkstation::makeFeed()
{
    QString error;
    std::unique_ptr<ZrFeedSource> source = ZrFeedFactory::make(m_options, m_paths.recordings, &error);
    if (!source)
        return error;
    if (!m_options.recordFile.isEmpty()) {
        auto tee = std::make_unique<ZrRecordingTee>(std::move(source), m_options.recordFile);
        m_tee = tee.get();
        source = std::move(tee);
    }
    ZrFeedPlayer::Options player;
    player.speed = m_options.speed;
    player.window = m_options.speed > 0 ? player.window : FastWindow;
    m_player =
        std::make_unique<ZrFeedPlayer>(std::move(source), ZrFeedFactory::accounts(), player, m_clock.get());
    return QString();
}

void ZrWorkstation::makeWindow()
{
    m_window = std::make_unique<ZrMainWindow>(m_host->skinIds(), ZrCore::instance()->getCurrentSkinId());
    m_host->setMainWindow(m_window.get());
    m_window->statusLine()->setFeed(m_options.feed.isEmpty() ? QStringLiteral("simulator") : m_options.feed);
    connect(m_window.get(), &ZrMainWindow::signalSkinChosen, this,
            [this](const QString &skin) { m_host->setSkin(skin); });
    connect(m_window.get(), &ZrMainWindow::signalClosed, this, &ZrWorkstation::signalDone);
    connect(m_window->toolBar(), &ZrDeskToolBar::signalPluginChosen, this, &ZrWorkstation::openPlugin);
    connect(m_window->desk(), &ZrPluginDesk::signalCopyWanted, this, &ZrWorkstation::openPlugin);
    connect(m_window->desk(), &ZrPluginDesk::signalOpened, this, &ZrWorkstation::watch);
    connect(m_window->desk(), &ZrPluginDesk::signalData, this,
            [this](ZrPluginDock *dock, const QVariant &data) { takeData(dock, data.toMap()); });
    connect(m_app, &ZrClientApplication::signalFrame, this, [this] { m_meter.frameShown(); });
    connect(&m_status, &QTimer::timeout, this, &ZrWorkstation::refreshStatus);
    connect(&m_end, &QTimer::timeout, this, &ZrWorkstation::signalDone);
}

void ZrWorkstation::offerPlugins()
{
    m_window->desk()->setGuard([this](const QString &pluginId, const std::function<void()> &work) {
        m_plugins->guarded(pluginId, work);
    });
    QList<QPair<QString, QString>> plugins;
    for (const ZrPluginEntry &entry : m_plugins->entries()) {
        if (entry.state == ZrPluginEntry::Loaded)
            plugins.append({entry.file.id, entry.file.title});
    }
    m_window->toolBar()->setPlugins(plugins);
}

QString ZrWorkstation::openPlugins()
{
    offerPlugins();
    if (m_options.noPlugins && m_options.open.isEmpty())
        return QString();
    const QString blotter = QStringLiteral("blotter");
    const QStringList wanted = m_options.open.isEmpty() ? QStringList{blotter, blotter} : m_options.open;
    for (const QString &pluginId : wanted) {
        QString error;
        if (m_window->desk()->open(pluginId, {{ZrPluginSetting::maxRows, m_options.maxRows}}, &error))
            continue;
        if (!m_options.open.isEmpty())
            return QStringLiteral("--open: ") + error;
        // Whoever asked for nothing gets a desk without the blotter; the list of plugins tells why.
        qWarning().noquote() << error;
        break;
    }
    return QString();
}

void ZrWorkstation::openPlugin(const QString &pluginId)
{
    QString error;
    if (!m_window->desk()->open(pluginId, {{ZrPluginSetting::maxRows, m_options.maxRows}}, &error))
        qWarning().noquote() << error;
}

void ZrWorkstation::watch(ZrPluginDock *dock)
{
    if (!m_measured) {
        m_measured = dock;
        m_app->watchFrames(dock->plugin());
    }
    const auto grid = quintptr(dock);
    connect(dock, &QObject::destroyed, this, [this, grid] { m_progress->gridGone(grid); });
}

void ZrWorkstation::takeData(ZrPluginDock *dock, const QVariantMap &data)
{
    if (data.contains(ZrPluginReport::number))
        m_progress->taken(quintptr(dock), data.value(ZrPluginReport::number).toLongLong());
    if (dock == m_measured)
        m_meter.take(data);
}

void ZrWorkstation::connectBus()
{
    m_progress = std::make_unique<ZrFeedProgress>([this](qint64 number) { m_player->acknowledge(number); });
    m_monitor = new ZrFeedMonitor(QStringLiteral("client#monitor#_0"));
    m_monitor->setSeenCall([this](qint64 number, bool isOrder) { m_progress->came(number, isOrder); });
    m_monitor->open();
}

void ZrWorkstation::startFeed()
{
    m_running.start();
    m_sinceStatus.start();
    m_status.start(StatusMs);
    m_end.setSingleShot(true);
    if (m_options.seconds > 0)
        m_end.start(int(qMin(m_options.seconds * 1000.0, 2e9)));
    const bool endsWithFeed = m_options.headless && m_options.seconds < 0;
    m_player->start([this](const ZrFeedMessage &message) { m_host->publish(message.type, {message.record}); },
                    [this, endsWithFeed] {
                        if (endsWithFeed)
                            QMetaObject::invokeMethod(this, &ZrWorkstation::signalDone, Qt::QueuedConnection);
                    });
}

void ZrWorkstation::refreshStatus()
{
    const qint64 received = m_monitor->received();
    m_window->statusLine()->show(received - m_receivedAtStatus, m_sinceStatus.restart(),
                                 m_measured ? int(rowsOf(m_measured)) : 0, m_meter.takeRecentToPixel());
    m_receivedAtStatus = received;
}

bool ZrWorkstation::isWaiting() const
{
    const QList<ZrPluginDock *> docks = m_window->desk()->docks();
    return std::any_of(docks.cbegin(), docks.cend(), [](const ZrPluginDock *dock) {
        return ZrPluginDesk::dataOf(dock).value(ZrPluginReport::isWaiting).toBool();
    });
}

// Takes in what the bus still holds, and shows it.
void ZrWorkstation::drain()
{
    m_host->waitIdle(IdleMs);
    QElapsedTimer taken;
    taken.start();
    while (isWaiting() && taken.elapsed() < MostDrainMs)
        QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
    QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
}

void ZrWorkstation::fillReport()
{
    m_report.messagesIn = m_monitor->received();
    m_report.messagesLost = m_player->sent() - m_monitor->distinct();
    const QList<ZrPluginDock *> docks = m_window->desk()->docks();
    for (const ZrPluginDock *const dock : docks)
        m_report.plugins.append({dock->pluginId(), dock->plugin()->pluginInstanceID(), rowsOf(dock)});
    m_report.rows = m_measured ? rowsOf(m_measured) : 0;
    m_report.updatesApplied = m_meter.updatesApplied();
    m_report.frames = m_meter.frames();
    m_report.feedToModel = m_meter.toModel();
    m_report.feedToPixel = m_meter.toPixel();
    m_report.linesSkipped = m_player->source().linesSkipped();
    m_problems = m_player->source().problems();
}

QString ZrWorkstation::writeFiles()
{
    QString error;
    if (m_tee)
        error = m_tee->finish();
    if (error.isEmpty() && !m_options.shotsFolder.isEmpty())
        error = ZrShots::write(m_window.get(), m_options.shotsFolder);
    if (error.isEmpty() && !m_options.shotsFolder.isEmpty())
        error = ZrLinkedShot::write(m_window.get(), m_window->desk()->docks(), m_options.shotsFolder);
    if (error.isEmpty() && !m_options.shotsFolder.isEmpty())
        error = ZrShots::writePages(m_window->showcase(), m_options.shotsFolder);
    if (error.isEmpty() && !m_options.reportFile.isEmpty())
        error = m_report.write(m_options.reportFile);
    return error;
}

QString ZrWorkstation::finish()
{
    m_end.stop();
    m_report.seconds = double(m_running.elapsed()) / 1000.0;
    m_player->stop();
    m_status.stop(); // it keeps showing the rate of the run, not that of its end
    drain();
    fillReport();
    m_monitor->detach();
    return writeFiles();
}
