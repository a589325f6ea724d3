#pragma once

#include "desk/ZrPluginMeter.h"
#include "ZrRunReport.h"
#include "ZrWorkstationOptions.h"

#include <QtCore/QElapsedTimer>
#include <QtCore/QObject>
#include <QtCore/QPointer>
#include <QtCore/QTimer>

#include <memory>

class ZrClientApplication;
class ZrFeedMonitor;
class ZrFeedPlayer;
class ZrFeedProgress;
class ZrMainWindow;
class ZrPluginCatalogue;
class ZrPluginDock;
class ZrRecordingTee;
class ZrReferenceHost;
class ZrSteadyClock;

/// Where the workstation finds its files.
struct ZrWorkstationPaths
{
    QString skins;
    QString data; // pictures outside of any skin
    QStringList recordings;
    QString config;              // empty: the user's own folder
    QString plugins = QString(); // empty for none
};

/// One run of the workstation: host, feed, bus, window with plugins, and what it came to.
///
/// Shape:     start() once, then the event loop until signalDone, then finish() once. The grid that is
///            measured is that of the plugin opened first.
/// Ownership: owns everything but the application.
/// Threads:   GUI thread; the feed plays on a thread of its own and is received on one of the bus's.
/// Errors:    start() and finish() give one sentence or nothing.
class ZrWorkstation : public QObject
{
    Q_OBJECT
public:
    ZrWorkstation(const ZrWorkstationOptions &options, const ZrWorkstationPaths &paths,
                  ZrClientApplication *app);
    ~ZrWorkstation() override;

    QString start();
    /// Ends feed and bus, takes in what is still under way, writes pictures and report.
    QString finish();

    ZrMainWindow *window() const { return m_window.get(); }
    /// The plugin files, once start() has gone well; lives longer than the window.
    ZrPluginCatalogue *plugins() const { return m_plugins.get(); }
    const ZrRunReport &report() const { return m_report; }
    /// Lines of the recording that were left out, for people; empty when there were none.
    QString problems() const { return m_problems; }

signals:
    void signalDone();

private:
    QString startHost();
    QString loadPlugins();
    QString makeFeed();
    void makeWindow();
    void offerPlugins();
    QString openPlugins();
    void openPlugin(const QString &pluginId);
    void watch(ZrPluginDock *dock);
    void takeData(ZrPluginDock *dock, const QVariantMap &data);
    void connectBus();
    void startFeed();
    void refreshStatus();
    bool isWaiting() const;
    void drain();
    void fillReport();
    QString writeFiles();

    const ZrWorkstationOptions m_options;
    const ZrWorkstationPaths m_paths;
    ZrClientApplication *const m_app; // not owned
    std::unique_ptr<ZrReferenceHost> m_host;
    std::unique_ptr<ZrPluginCatalogue> m_plugins;
    std::unique_ptr<ZrMainWindow> m_window;
    std::unique_ptr<ZrSteadyClock> m_clock;
    std::unique_ptr<ZrFeedPlayer> m_player; // after what its thread uses: it goes first
    std::unique_ptr<ZrFeedProgress> m_progress;
    ZrRecordingTee *m_tee = nullptr;    // the player's, null without --record
    ZrFeedMonitor *m_monitor = nullptr; // goes by its own deleteLater
    QPointer<ZrPluginDock> m_measured;  // the window's
    ZrPluginMeter m_meter;
    QTimer m_status;
    QTimer m_end;
    QElapsedTimer m_running;
    QElapsedTimer m_sinceStatus;
    qint64 m_receivedAtStatus = 0;
    QString m_problems;
    ZrRunReport m_report;
};
