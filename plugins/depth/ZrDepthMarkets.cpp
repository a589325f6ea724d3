#include "ZrDepthMarkets.h"

#include "ZrDepthFields.h"

#include "zrdefine/VexlorFields.h"

bool ZrDepthMarkets::put(const QString &type, const QVariantMap &record)
{
    const QString symbol = record.value(Vexlor_Fields::Security::symbol).toString();
    const bool isDepth = type == ZrDepthMsgType::depth;
    if (symbol.isEmpty() || (!isDepth && type != ZrDepthMsgType::trade))
        return false;
    const std::lock_guard<std::mutex> lock(m_mutex);
    if (m_markets.size() >= MostSymbols && !m_markets.contains(symbol))
        return false;
    Market &market = m_markets[symbol];
    (isDepth ? market.depth : market.trade) = record;
    if (m_watched.isEmpty() && isDepth)
        m_watched = symbol;
    if (symbol != m_watched || m_noticed)
        return false;
    m_noticed = true;
    return true;
}

void ZrDepthMarkets::watch(const QString &symbol)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    m_watched = symbol;
    m_noticed = false;
}

QString ZrDepthMarkets::watched() const
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    return m_watched;
}

ZrDepthQuote ZrDepthMarkets::quote()
{
    Market market;
    QString symbol;
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        m_noticed = false;
        symbol = m_watched;
        market = m_markets.value(symbol);
    }
    ZrDepthQuote quote = ZrDepthQuote::of(market.depth, market.trade);
    quote.symbol = symbol;
    return quote;
}
