#include "ZrWorkstation.h"

#include "feed/ZrFeedPlayer.h"
#include "feed/ZrRecordingTee.h"
#include "ZrBlotterPanel.h"
#include "ZrBlotterPresenter.h"
#include "ZrClientApplication.h"
#include "ZrClientFields.h"
#include "ZrFeedFactory.h"
#include "ZrMainWindow.h"
#include "ZrMessageInbox.h"
#include "ZrPluginCatalogue.h"
#include "ZrShots.h"
#include "ZrStatusLine.h"
#include "ZrTableView.h"

#include "zrcore/ZrCore.h"
#include "zrcore/ZrCoreHost.h"
#include "ZrReferenceHost.h"

#include <QtCore/QLocale>

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
    if (m_presenter) {
        m_presenter->detach();
        m_presenter->deleteLater();
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
        std::make_unique<ZrPluginCatalogue>([this](const QString &id, ZrPluginCatalogue::Maker maker) {
            m_host->registerPlugin(id, std::move(maker));
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
    m_window = std::make_unique<ZrMainWindow>(m_host->skinIds(), ZrCore::instance()->getCurrentSkinId(),
                                              m_options.maxRows);
    m_host->setMainWindow(m_window.get());
    m_window->addPlugins(m_plugins.get());
    m_window->statusLine()->setFeed(m_options.feed.isEmpty() ? QStringLiteral("simulator") : m_options.feed);
    connect(m_window.get(), &ZrMainWindow::signalSkinChosen, this,
            [this](const QString &skin) { m_host->setSkin(skin); });
    connect(m_window.get(), &ZrMainWindow::signalClosed, this, &ZrWorkstation::signalDone);
    m_app->watchFrames(m_window->blotter());
    connect(m_app, &ZrClientApplication::signalFrame, m_window->blotter(), &ZrBlotterPanel::frameShown);
    connect(&m_status, &QTimer::timeout, this, &ZrWorkstation::refreshStatus);
    connect(&m_end, &QTimer::timeout, this, &ZrWorkstation::signalDone);
}

void ZrWorkstation::connectBus()
{
    m_inbox = std::make_unique<ZrMessageInbox>();
    connect(m_inbox.get(), &ZrMessageInbox::signalBatch, this, &ZrWorkstation::takeBatch);
    m_presenter = new ZrBlotterPresenter(QStringLiteral("blotter#client#_0"), m_inbox.get());
    // What does not go through the window is seen once it has come; the rest when the grid has it.
    m_presenter->setSeenCall([this](qint64 number) {
        if (m_inbox->isEmpty())
            m_player->acknowledge(number);
    });
    m_presenter->open();
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

void ZrWorkstation::takeBatch(const std::vector<ZrInboxMessage> &messages)
{
    m_window->blotter()->applyMessages(messages);
    m_player->acknowledge(messages.back().record.value(ZrClientFields::seqNo).toLongLong());
}

void ZrWorkstation::refreshStatus()
{
    const qint64 received = m_presenter->received();
    m_window->statusLine()->show(received - m_receivedAtStatus, m_sinceStatus.restart(),
                                 m_window->blotter()->view()->getRowCount(),
                                 m_window->blotter()->takeRecentToPixel());
    m_receivedAtStatus = received;
}

// Takes in what the bus still holds, and shows it.
void ZrWorkstation::drain()
{
    m_host->waitIdle(IdleMs);
    QElapsedTimer taken;
    taken.start();
    while (!m_inbox->isEmpty() && taken.elapsed() < MostDrainMs)
        QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
    QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
}

void ZrWorkstation::fillReport()
{
    const ZrBlotterPanel *const blotter = m_window->blotter();
    m_report.messagesIn = m_presenter->received();
    m_report.messagesLost = m_player->sent() - m_presenter->distinct();
    m_report.rows = blotter->view()->getViewData().size();
    m_report.updatesApplied = blotter->updatesApplied();
    m_report.frames = blotter->frames();
    m_report.feedToModel = blotter->toModel();
    m_report.feedToPixel = blotter->toPixel();
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
    m_presenter->detach();
    return writeFiles();
}
