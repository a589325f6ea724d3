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
class IMessageInterface;

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

    void attach(const QString &pid, IMessageInterface *endpoint, bool ownThread);
    /// No call begins after this; one that runs is not waited for, since it may wait for the caller.
    void detach(const QString &pid);
    /// Ends all registrations of an endpoint and waits for a call that runs on another thread.
    void endpointDestroyed(IMessageInterface *endpoint);
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

    /// True once nothing is under way; false when that took longer. Waits for ever when negative.
    bool waitIdle(int timeoutMs);
    ZrBusCounters &counters();

    /// Ends all threads and forgets all registrations, services and items under way. Not to be
    /// called from a receiver or a service. The next registration begins anew.
    void reset();

private:
    ZrBus();
    ~ZrBus();
    Q_DISABLE_COPY(ZrBus)
    class Private;
    const std::unique_ptr<Private> d;
};
