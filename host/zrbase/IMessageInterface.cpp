#include "zrbase/IMessageInterface.h"

#include "ZrBus.h"
#include "ZrBusGate.h"

#include "zrevent/CEventMessageCommon.h"
#include "zrmsg/CMessageCommon.h"

#include <QtCore/QEvent>

namespace {
constexpr int receiverThreadBit = 2;
constexpr int typeSubscribe = 1;
constexpr int typeUnsubscribe = 2;
constexpr int actionLink = 1;
constexpr int actionUnlink = 2;

void changeSubscription(const QString &pid, const QVariant &msgType, int type, bool isEvent)
{
    if (type == typeSubscribe)
        ZrBus::instance().subscribe(pid, msgType, isEvent);
    else if (type == typeUnsubscribe)
        ZrBus::instance().unsubscribe(pid, msgType, isEvent);
}
} // namespace

class IMessageInterface::Private
{
public:
    std::shared_ptr<ZrBusGate> gate;
};

IMessageInterface::IMessageInterface(QObject *parent)
    : QObject(parent)
    , d(new Private{std::make_shared<ZrBusGate>(this)})
{
}

IMessageInterface::~IMessageInterface()
{
    ZrBus::instance().endpointDestroyed(d->gate);
    delete d;
}

void IMessageInterface::ProcMsg(QString pid, QVariant msgType, QVariant msg)
{
    Q_UNUSED(pid)
    Q_UNUSED(msgType)
    Q_UNUSED(msg)
}

void IMessageInterface::ProcEventMsg(QString pid, QVariant msgType, QVariant msg)
{
    Q_UNUSED(pid)
    Q_UNUSED(msgType)
    Q_UNUSED(msg)
}

void IMessageInterface::ProcQuotationMsg(QString pid, QVariant msgType, QVariant msg)
{
    Q_UNUSED(pid)
    Q_UNUSED(msgType)
    Q_UNUSED(msg)
}

void IMessageInterface::Reg(QString pid, IMessageInterface *endpoint, IMessageInterface::ThreadType type)
{
    if (pid.isEmpty() || !endpoint)
        return;
    ZrBus::instance().attach(pid, endpoint->d->gate, (type & receiverThreadBit) != 0);
}

void IMessageInterface::UnReg(QString pid)
{
    ZrBus::instance().detach(pid);
}

void IMessageInterface::Put(QString pid, CMessageCommon *msg)
{
    if (msg)
        ZrBus::instance().put(pid, std::unique_ptr<CMessageCommon>(msg));
}

void IMessageInterface::PutEvent(QString pid, CEventMessageCommon *evt)
{
    if (evt)
        ZrBus::instance().putEvent(pid, std::unique_ptr<CEventMessageCommon>(evt));
}

void IMessageInterface::Sub(QString pid, QVariant msgType, int type)
{
    changeSubscription(pid, msgType, type, false);
}

void IMessageInterface::SubEvent(QString pid, QVariant msgType, int type)
{
    changeSubscription(pid, msgType, type, true);
}

void IMessageInterface::setRelation(const QString &menuID, const QString &pluginInstanceID, int linkageType,
                                    RelationColor_t group, int action)
{
    if (action == actionLink)
        ZrBus::instance().link(menuID, pluginInstanceID, linkageType, group);
    else if (action == actionUnlink)
        ZrBus::instance().unlink(menuID, pluginInstanceID, linkageType, group);
}

bool IMessageInterface::event(QEvent *event)
{
    // A receiver may run on a bus thread at this moment: the bus asks for the deletion again when it ends.
    if (event->type() == QEvent::DeferredDelete && d->gate->postponeDelete())
        return true;
    return QObject::event(event);
}
