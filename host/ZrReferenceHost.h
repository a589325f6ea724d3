#pragma once

#include <QtCore/QHash>
#include <QtCore/QList>
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
/// Threads:   GUI thread only, but for publishing, counters() and waitIdle(), which any thread may
///            call. Services run on a bus thread.
/// Errors:    false with one sentence in errorText().
class ZRREFERENCEHOST_EXPORT ZrReferenceHost
{
public:
    struct Options
    {
        QString configFolder;          // settings; empty for the user's configuration folder
        QString dataFolder;            // "ZRData:" and the database; empty for none
        QString skinRoot;              // "ZRSkin:", the folder of the skins' folders; empty for none
        QString skinId;                // empty for the first one found
        QString pluginFolder;          // plugin files; empty for none
        QWidget *mainWindow = nullptr; // not owned
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

    /// Answers one message type. Runs on a bus thread, for different askers at the same time.
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

    bool start(const Options &options);
    void stop();
    bool isRunning() const;
    QString errorText() const;

    QStringList skinIds() const;
    bool setSkin(const QString &skinId);
    void setMainWindow(QWidget *window);
    /// Makes ZrCore::createCustomObject know an ID; an empty maker takes it away.
    void registerPlugin(const QString &pluginId, std::function<QObject *()> maker);
    void registerService(const QVariant &msgType, Service service);

    /// Sends records to the subscribers of a type, as the back end would.
    void publish(const QVariant &msgType, const QList<QVariantMap> &records);
    void publishQuotation(const QVariant &msgType, const QList<QVariantMap> &records);
    void publishEvent(const QVariant &eventType, const QVariant &body);

    Counters counters() const;
    QHash<QString, Counters> countersByType() const;
    /// True once nothing is under way on the bus; false when that took longer. Never on a bus thread.
    bool waitIdle(int timeoutMs);

private:
    Q_DISABLE_COPY(ZrReferenceHost)
    class Private;
    const std::unique_ptr<Private> d;
};
