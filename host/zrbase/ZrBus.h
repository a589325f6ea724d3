#pragma once

#include "zrbase/zrbase_global.h"
#include "ZrBusCounters.h"
#include "ZrBusItem.h"

#include <QtCore/QList>
#include <QtCore/QVariantMap>

#include <functional>
#include <memory>

class CEventMessageCommon;
class CMessageCommon;
class ZrBusGate;
struct ZrFaultSpec;

/// A request as a service gets it.
struct ZrBusRequest
{
    QString pid; // who asks, and who gets the answers
    QVariant msgType;
    QList<QVariantMap> records;
};

/// One answer of a service. An empty type means that of the request.
struct ZrBusAnswer
{
    QVariant msgType;
    QVariant body;
};

using ZrBusService = std::function<QList<ZrBusAnswer>(const ZrBusRequest &request)>;

/// The in-process bus behind IMessageInterface, and what steers it.
///
/// Shape:     lanes are the bus's threads: one shared by all endpoints, and one for each endpoint
///            whose thread type has bit 1. A request is served on the lane of who asked, so that a
///            request and its answer cost two changes of thread. A message without a service goes to
///            the subscribers of its type. One participant's items come in the order of the calls
///            that sent them.
/// Ownership: the process's; endpoints are borrowed until they unregister or are destroyed.
/// Threads:   any. No lock is held while a receiver or a service runs.
/// Errors:    items to nobody are counted and dropped.
class ZRBASE_EXPORT ZrBus
{
public:
    static ZrBus &instance();

    void attach(const QString &pid, const std::shared_ptr<ZrBusGate> &gate, bool ownThread);
    /// No call begins after this; one that runs is not waited for, since it may wait for the caller.
    void detach(const QString &pid);
    /// Ends all registrations of an endpoint, and then waits for a call that runs on another thread.
    void endpointDestroyed(const std::shared_ptr<ZrBusGate> &gate);
    void put(const QString &pid, std::unique_ptr<CMessageCommon> message);
    void putEvent(const QString &pid, std::unique_ptr<CEventMessageCommon> event);
    void subscribe(const QString &pid, const QVariant &type, bool isEvent);
    void unsubscribe(const QString &pid, const QVariant &type, bool isEvent);
    void link(const QString &menuId, const QString &pid, int linkageType, int group);
    void unlink(const QString &menuId, const QString &pid, int linkageType, int group);

    /// Sends to the subscribers of the item's type as if it came from the back end.
    void publish(const ZrBusItem &item);
    /// A service for a message type; an empty one takes it away.
    void setService(const QVariant &msgType, ZrBusService service);

    /// What goes wrong from now on with answers, publications and messages without a service. Events that one
    /// participant sends to others never leave the client: they are spared.
    void setFaults(const ZrFaultSpec &spec);

    /// Records what is sent and what arrives until stopRecording. False with one sentence.
    bool startRecording(const QString &path, QString *errorText);
    bool stopRecording(QString *errorText);
    /// Plays a recording to those who are on the bus now, through the faults in force; a speed of 0 is as
    /// fast as can be. A replay that runs is stopped. One thread at a time.
    bool startReplay(const QString &path, double speed, QString *errorText);
    /// False when it took longer; true when none runs.
    bool waitReplay(int timeoutMs);
    qint64 replayedCount() const;
    QString replayErrorText() const;

    /// True once nothing is under way; false when that took longer. Waits for ever when negative.
    bool waitIdle(int timeoutMs);
    ZrBusCounters &counters();

    /// Ends all threads and recordings and forgets all registrations, services, faults and items under way.
    /// Not to be called from a receiver or a service. The next registration begins anew.
    void reset();
    /// reset(), called by the toolkit when the application object goes.
    void applicationEnds();

private:
    ZrBus();
    ~ZrBus();
    Q_DISABLE_COPY(ZrBus)
    class Private;
    const std::unique_ptr<Private> d;
};
