#include "ZrDepthPresenter.h"

#include "ZrDepthFields.h"
#include "ZrDepthMarkets.h"

#include "zrdefine/VexlorFields.h"
#include "zrevent/CEventMessageCommon.h"
#include "zrmsg/CUnPackMessageCommon.h"

namespace {
constexpr int Subscribe = 1;
constexpr int Unsubscribe = 2;

QStringList messageTypes()
{
    return {ZrDepthMsgType::depth, ZrDepthMsgType::trade};
}
} // namespace

ZrDepthPresenter::ZrDepthPresenter(const QString &pluginPid, QObject *plugin, ZrDepthMarkets *markets)
    : ZrPresenterClass(pluginPid, plugin, IMessageInterface::PresenterAndReceiverThread)
    , m_markets(markets)
{
}

void ZrDepthPresenter::open()
{
    const QStringList types = messageTypes();
    for (const QString &type : types)
        Sub(pluginPid(), type, Subscribe);
}

void ZrDepthPresenter::detach()
{
    const QStringList types = messageTypes();
    for (const QString &type : types)
        Sub(pluginPid(), type, Unsubscribe);
    const std::lock_guard<std::mutex> lock(m_mutex);
    m_markets = nullptr;
}

void ZrDepthPresenter::ProcMsg(QString pid, QVariant msgType, QVariant msg)
{
    Q_UNUSED(pid)
    CUnPackMessageCommon reader;
    reader.SetUnPackMsg(msg, false);
    const QString type = msgType.toString();
    const QList<QVariantMap> records = reader.GetAllValue();
    bool isDue = false;
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        // One may be on its way while its subscription ends.
        if (!m_markets)
            return;
        for (const QVariantMap &record : records)
            isDue = m_markets->put(type, record) || isDue;
    }
    if (isDue)
        emit signalMarketChanged();
}

void ZrDepthPresenter::ProcEventMsg(QString pid, QVariant msgType, QVariant msg)
{
    Q_UNUSED(pid)
    const QString symbol = msg.toMap().value(Vexlor_Fields::Security::symbol).toString();
    if (msgType.toInt() == ZrDepthSecurityLinkage && !symbol.isEmpty())
        emit signalSecurityChosen(symbol);
}

void ZrDepthPresenter::tellSecurity(const QString &symbol)
{
    tell(ZrDepthSecurityLinkage, {{Vexlor_Fields::Security::symbol, symbol}});
}

void ZrDepthPresenter::tellLevel(const QString &symbol, const ZrSecurityAskBidData &level)
{
    // Who clicks a seller's level wants to buy from him; the latest price belongs to neither side.
    QVariantMap record{{Vexlor_Fields::Security::symbol, symbol}, {ZrDepthFields::price, level.price}};
    if (level.side == 0 || level.side == 1) {
        record.insert(ZrDepthFields::side, level.side == 1 ? ZrDepthSide::buy : ZrDepthSide::sell);
        record.insert(ZrDepthFields::orderQty, level.volume);
    }
    tell(ZrDepthOrderLinkage, record);
}

void ZrDepthPresenter::tell(int linkage, const QVariantMap &record)
{
    auto *const event = new CEventMessageCommon; // the bus's from PutEvent on
    event->SetSrcid(pluginPid());
    event->SetType(linkage);
    event->SetMsg(record);
    PutEvent(pluginPid(), event);
}
