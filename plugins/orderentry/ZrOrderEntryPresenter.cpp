#include "ZrOrderEntryPresenter.h"

#include "ZrOrderEntryNames.h"

#include "zrdefine/VexlorFields.h"
#include "zrdefine/VexlorMsgType.h"
#include "zrevent/CEventMessageCommon.h"
#include "zrmsg/CMessageCommon.h"
#include "zrmsg/CUnPackMessageCommon.h"

#include <memory>

namespace {
constexpr int Subscribe = 1;
constexpr int Unsubscribe = 2;
constexpr int Success = 0;

QList<QVariantMap> recordsOf(const QVariant &body)
{
    CUnPackMessageCommon reader;
    reader.SetUnPackMsg(body, false);
    return reader.GetAllValue();
}
} // namespace

ZrOrderEntryPresenter::ZrOrderEntryPresenter(const QString &pluginPid, QObject *plugin)
    : ZrPresenterClass(pluginPid, plugin, IMessageInterface::PresenterAndReceiverThread)
{
}

void ZrOrderEntryPresenter::open()
{
    Sub(pluginPid(), Vexlor_MsgType::executionReport, Subscribe);
}

void ZrOrderEntryPresenter::detach()
{
    Sub(pluginPid(), Vexlor_MsgType::executionReport, Unsubscribe);
}

QString ZrOrderEntryPresenter::nextOrderNumber()
{
    return QStringLiteral("%1/%2").arg(pluginPid()).arg(++m_orders);
}

void ZrOrderEntryPresenter::send(const QVariantMap &order)
{
    auto message = std::make_unique<CMessageCommon>();
    message->SetMsg(QVariantList{order});
    const int code = sendRequest_Async(message.get());
    if (code < Success)
        emit signalRefused(code, QString());
    else
        message.release(); // the bus's
}

void ZrOrderEntryPresenter::tellSecurity(const QString &symbol)
{
    auto *const event = new CEventMessageCommon; // the bus's from PutEvent on
    event->SetSrcid(pluginPid());
    event->SetType(ZrOrderEntrySecurityLinkage);
    event->SetMsg(QVariantMap{{Vexlor_Fields::Security::symbol, symbol}});
    PutEvent(pluginPid(), event);
}

void ZrOrderEntryPresenter::ProcMsg(QString pid, QVariant msgType, QVariant msg)
{
    Q_UNUSED(pid)
    if (msgType.toString() != Vexlor_MsgType::executionReport)
        return;
    const QString own = pluginPid() + QLatin1Char('/');
    const QList<QVariantMap> records = recordsOf(msg);
    for (const QVariantMap &record : records) {
        if (record.value(ZrOrderEntryField::clientOrderId).toString().startsWith(own))
            emit signalReport(record);
    }
}

void ZrOrderEntryPresenter::ProcEventMsg(QString pid, QVariant msgType, QVariant msg)
{
    Q_UNUSED(pid)
    const int linkage = msgType.toInt();
    const QVariantMap record = msg.toMap();
    if (record.value(Vexlor_Fields::Security::symbol).toString().isEmpty())
        return;
    if (linkage == ZrOrderEntrySecurityLinkage)
        emit signalSecurityChosen(record);
    else if (linkage == ZrOrderEntryOrderLinkage)
        emit signalLevelChosen(record);
}

void ZrOrderEntryPresenter::ProcAsyncCallBack(int code, QString pid, QVariant msgType, QVariant msg)
{
    Q_UNUSED(pid)
    Q_UNUSED(msgType)
    const QVariantMap answer = recordsOf(msg).value(0);
    if (code == Success)
        emit signalAccepted(answer);
    else
        emit signalRefused(code, answer.value(Vexlor_Fields::System::textDescription).toString());
}
