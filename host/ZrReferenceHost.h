#pragma once

#include <QtCore/QHash>
#include <QtCore/QList>
#include <QtCore/QMap>
#include <QtCore/QPair>
#include <QtCore/QString>
#include <QtCore/QStringList>
#include <QtCore/QVariant>
#include <QtCore/QVariantMap>

#include <functional>
#include <memory>

#if defined(ZRREFERENCEHOST_LIBRARY)
#define ZRREFERENCEHOST_EXPORT Q_DECL_EXPORT
#else
#define ZRREFERENCEHOST_EXPORT Q_DECL_IMPORT
#endif

class QObject;
class QWidget;

/// Steers the reference host: what a back end, a test or a demo tells the eleven host libraries.
///
/// Shape:     one host in a process; objects of this class are handles to it. start() and stop() may
///            follow each other as often as wanted; the libraries also work before the first start,
///            with an empty skin and an empty bus.
/// Ownership: the main window is borrowed; plugins made are their caller's; services and makers
///            are kept until stop().
/// Linkage:   an event whose type is a linkage type, put by a participant that IMessageInterface::setRelation
///            linked by that type, reaches all participants linked by the same menu, type and group, and not
///            the one who put it. They need no subscription. Its body passes through as it is, and its sender
///            comes as `pid`. A registration that ends takes its links along.
/// Threads:   GUI thread only, but for publishing, counters() and waitIdle(), which any thread may
///            call. Services run on a bus thread.
/// Errors:    false with one sentence in errorText().
class ZRREFERENCEHOST_EXPORT ZrReferenceHost
{
public:
    /// Where the reference data comes from; read once at the start.
    struct Database
    {
        QString
            folder; // holds the SQLite file, made from the seed when missing; empty: the seed, in memory only
        QString driver; // a QtSql driver for a server's database; empty for SQLite
        QString databaseName;
        QString hostName;
        int port = -1; // -1 is the driver's own
        QString userName;
        QString password;
        QString connectOptions;
        QString language; // of the dictionaries: "en", or anything else for Chinese
    };

    struct Options
    {
        QString configFolder;          // settings; empty for the user's configuration folder
        QString dataFolder;            // "ZRData:"; empty for none
        QString skinRoot;              // "ZRSkin:", the folder of the skins' folders; empty for none
        QString skinId;                // empty for the first one found
        QString pluginFolder;          // sealed plugin files, see zrcore/ZrCorePlugin.h; empty for none
        QString faults;                // as setFaults() reads it
        QString loginType;             // empty for that of the reference data
        QWidget *mainWindow = nullptr; // not owned
        Database database;
    };

    /// A request as a service gets it.
    struct Request
    {
        QString pid; // who asks, and who gets the answers
        QVariant msgType;
        QList<QVariantMap> records;
    };

    /// One answer; an invalid type means that of the request. The body is a list of records.
    struct Answer
    {
        QVariant msgType;
        QList<QVariantMap> records;
    };

    /// Answers one message type. Runs on the bus thread of who asks, for different askers at the same time.
    /// What the first record of an answer lacks of client message ID and type is filled in, so that it finds
    /// its request.
    using Service = std::function<QList<Answer>(const Request &request)>;

    /// What went over the bus since the start: `put` was given to it, `answered` came from services,
    /// `delivered` counts receiver calls, `dropped` was lost by a fault, `undeliverable` found nobody.
    struct Counters
    {
        qint64 put = 0;
        qint64 answered = 0;
        qint64 delivered = 0;
        qint64 dropped = 0;
        qint64 undeliverable = 0;
    };

    ZrReferenceHost();
    /// Stops the host if this object started it.
    ~ZrReferenceHost();

    /// Stops a running host first. False with one sentence when a folder, the faults or the database are no
    /// good.
    bool start(const Options &options);
    /// Ends bus threads, recording and replay, and forgets all that was registered since the start. Living
    /// plugins stay alive and hear nothing more.
    void stop();
    bool isRunning() const;
    QString errorText() const;

    QStringList skinIds() const;
    bool setSkin(const QString &skinId);
    void setMainWindow(QWidget *window);
    /// Makes ZrCore::createCustomObject know an ID; an empty maker takes it away.
    void registerPlugin(const QString &pluginId, std::function<QObject *()> maker);
    /// The plugins made so far, in order, each with the time it took in ms.
    QList<QPair<QString, int>> pluginsCreated() const;
    /// An empty service takes the type's one away: its messages then go to their subscribers.
    void registerService(const QVariant &msgType, Service service);

    /// Replace parts of the reference data, in memory only.
    void setLoginType(const QString &type);
    void setAccounts(const QList<QVariantMap> &accounts);
    void setSecurities(const QList<QVariantMap> &securities);
    void setDictionary(const QString &section, const QMap<QString, QString> &texts);

    /// What goes wrong on the bus from now on, such as "drop=0.1,delay=5..20,seed=7"; empty for nothing. The
    /// names: drop, duplicate, reorder, reject and delayed take a share from 0 to 1, delay MIN..MAX in ms,
    /// burst a count, seed a whole number. False with one sentence, and the faults as they were, when it's
    /// wrong.
    bool setFaults(const QString &spec);

    /// Sends records to the subscribers of a type, as the back end would.
    void publish(const QVariant &msgType, const QList<QVariantMap> &records);
    void publishQuotation(const QVariant &msgType, const QList<QVariantMap> &records);
    void publishEvent(const QVariant &eventType, const QVariant &body);

    /// Records what goes over the bus, until stopRecording() puts the file under its name.
    bool startRecording(const QString &path);
    bool stopRecording();
    /// Plays a recording to those who are on the bus; a speed of 0 is as fast as can be. Returns at once.
    bool startReplay(const QString &path, double speed);
    /// True once it has ended, false when that took longer; negative waits for ever. replayErrorText() tells
    /// why it ended before the end of the recording.
    bool waitReplay(int timeoutMs);
    qint64 replayedCount() const;
    QString replayErrorText() const;

    Counters counters() const;
    QHash<QString, Counters> countersByType() const;
    /// True once nothing is under way on the bus, delayed items and a replay included; false when that took
    /// longer. Never on a bus thread.
    bool waitIdle(int timeoutMs);

private:
    Q_DISABLE_COPY(ZrReferenceHost)
    class Private;
    const std::unique_ptr<Private> d;
};
