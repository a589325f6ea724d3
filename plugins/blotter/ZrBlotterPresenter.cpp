#include "ZrBlotterPresenter.h"

#include "ZrBlotterFields.h"
#include "ZrMessageInbox.h"

#include "zrdefine/VexlorFields.h"
#include "zrdefine/VexlorMsgType.h"
#include "zrevent/CEventMessageCommon.h"
#include "zrmsg/CUnPackMessageCommon.h"

namespace {
constexpr int Subscribe = 1;
constexpr int Unsubscribe = 2;

QStringList messageTypes()
{
    return {ZrBlotterMsgType::order, Vexlor_MsgType::executionReport};
}
} // namespace

ZrBlotterPresenter::ZrBlotterPresenter(const QString &pluginPid, QObject *plugin, ZrMessageInbox *inbox)
    : ZrPresenterClass(pluginPid, plugin, IMessageInterface::PresenterAndReceiverThread)
    , m_inbox(inbox)
{
}

void ZrBlotterPresenter::open()
{
    const QStringList types = messageTypes();
    for (const QString &type : types)
        Sub(pluginPid(), type, Subscribe);
}

void ZrBlotterPresenter::detach()
{
    const QStringList types = messageTypes();
    for (const QString &type : types)
        Sub(pluginPid(), type, Unsubscribe);
    const std::lock_guard<std::mutex> lock(m_mutex);
    m_inbox = nullptr;
}

void ZrBlotterPresenter::ProcMsg(QString pid, QVariant msgType, QVariant msg)
{
    Q_UNUSED(pid)
    CUnPackMessageCommon reader;
    reader.SetUnPackMsg(msg, false);
    const QString type = msgType.toString();
    const QList<QVariantMap> records = reader.GetAllValue();
    const std::lock_guard<std::mutex> lock(m_mutex);
    // One may be on its way while its subscription ends.
    if (!m_inbox || (type != ZrBlotterMsgType::order && type != Vexlor_MsgType::executionReport))
        return;
    for (const QVariantMap &record : records)
        m_inbox->put({type, record});
}

void ZrBlotterPresenter::ProcEventMsg(QString pid, QVariant msgType, QVariant msg)
{
    Q_UNUSED(pid)
    const QString symbol = msg.toMap().value(Vexlor_Fields::Security::symbol).toString();
    if (msgType.toInt() == ZrSecurityLinkage && !symbol.isEmpty())
        emit signalSecurityChosen(symbol);
}

void ZrBlotterPresenter::tellSecurity(const QString &symbol)
{
    auto *const event = new CEventMessageCommon; // the bus's from PutEvent on
    event->SetSrcid(pluginPid());
    event->SetType(ZrSecurityLinkage);
    event->SetMsg(QVariantMap{{Vexlor_Fields::Security::symbol, symbol}});
    PutEvent(pluginPid(), event);
}
