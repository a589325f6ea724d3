#include "ZrFeedSimulator.h"

#include <QtCore/QDateTime>

namespace {
constexpr int Levels = 10;
const QTimeZone &venueZone()
{
    static const QTimeZone zone("Asia/Shanghai");
    return zone;
}
} // namespace

ZrFeedSimulator::ZrFeedSimulator(const Options &options, const std::vector<ZrSimSecurity> &securities)
    : m_options(options)
    , m_random(options.seed)
{
    for (const ZrSimSecurity &security : securities)
        m_markets.push_back({security, ZrSimBook(), security.previousClose});
    // A day of its own, so that a run tells nothing of the day it was made.
    m_timeNs = QDateTime(QDate(2024, 1, 2), QTime(9, 30), venueZone()).toMSecsSinceEpoch() * 1000000;
    openMarkets();
}

QTimeZone ZrFeedSimulator::zone() const
{
    return venueZone();
}

void ZrFeedSimulator::openMarkets()
{
    const qint64 beginNs = m_timeNs;
    for (int i = 0; i < m_options.ordersAtStart && !m_markets.empty(); ++i)
        enterOrder(roll(quint32(m_markets.size())));
    for (size_t i = 0; i < m_markets.size(); ++i)
        showBook(i);
    // They all stand there at the bell, however long their messages take.
    m_timeNs = beginNs;
    for (ZrFeedEvent &event : m_ready)
        event.timeNs = beginNs;
}

bool ZrFeedSimulator::next(ZrFeedEvent *event)
{
    if (m_markets.empty() || (m_options.events >= 0 && m_given >= m_options.events))
        return false;
    while (m_ready.empty())
        step();
    *event = m_ready.front();
    m_ready.pop_front();
    ++m_given;
    return true;
}

void ZrFeedSimulator::step()
{
    // A few securities trade more than the others, as everywhere.
    const size_t count = m_markets.size();
    const size_t index = std::min<size_t>(roll(quint32(count)), roll(quint32(count)));
    const quint32 what = roll(100);
    if (int(m_open.size()) > m_options.openOrdersKept)
        withdrawOne(0);
    else if (what < 62)
        enterOrder(index);
    else if (what < 64)
        refuseOrder(index);
    else if (what < 85 && !m_open.empty())
        withdrawOne(roll(quint32(m_open.size())));
    else
        showBook(index);
}

ZrFeedEvent ZrFeedSimulator::begin(ZrFeedKind kind, const Market &market)
{
    ZrFeedEvent event;
    event.kind = kind;
    event.symbol = market.security.symbol;
    event.timeNs = m_timeNs;
    event.sequence = m_sequence++;
    return event;
}

// An event takes as much time as its messages need at the rate.
void ZrFeedSimulator::push(const ZrFeedEvent &event, int messages)
{
    m_ready.push_back(event);
    m_timeNs += messages * (Q_INT64_C(1000000000) / qMax(1, m_options.rate));
}

ZrDecimal ZrFeedSimulator::somePrice(const Market &market, ZrFeedSide side)
{
    // Mostly behind the last price on the order's own side, now and then across it.
    const qint64 steps = qint64(roll(24)) - 5;
    const qint64 away = side == ZrFeedSide::Buy ? -steps : steps;
    const qint64 tick = market.security.tick.units();
    const ZrDecimal price =
        ZrDecimal::fromUnits(market.last.units() + away * tick).roundedTo(market.security.tick);
    return price > market.security.tick ? price : market.security.tick;
}

void ZrFeedSimulator::enterOrder(size_t index)
{
    Market &market = m_markets[index];
    ZrFeedEvent add = begin(ZrFeedKind::Add, market);
    add.side = roll(2) == 0 ? ZrFeedSide::Buy : ZrFeedSide::Sell;
    add.order = QByteArray::number(m_nextOrder++);
    add.price = somePrice(market, add.side);
    add.quantity = ZrDecimal::fromUnits(market.security.lot.units() * qint64(1 + roll(20) * (1 + roll(5))));
    add.hasPrice = true;
    add.hasQuantity = true;
    push(add, 2);
    const auto matches = market.book.enter(add.side, add.order, add.price, add.quantity);
    ZrDecimal traded;
    for (const ZrSimBook::Match &match : matches) {
        ZrFeedEvent trade = begin(ZrFeedKind::Trade, market);
        const bool buys = add.side == ZrFeedSide::Buy;
        trade.side = add.side;
        trade.buyOrder = buys ? add.order : match.resting;
        trade.sellOrder = buys ? match.resting : add.order;
        trade.price = match.price;
        trade.quantity = match.quantity;
        trade.hasPrice = true;
        trade.hasQuantity = true;
        market.last = match.price;
        traded += match.quantity;
        push(trade, 3);
    }
    if (traded < add.quantity)
        m_open.push_back({index, add.side, add.order, add.price});
}

void ZrFeedSimulator::refuseOrder(size_t index)
{
    const Market &market = m_markets[index];
    ZrFeedEvent event = begin(ZrFeedKind::Reject, market);
    event.side = roll(2) == 0 ? ZrFeedSide::Buy : ZrFeedSide::Sell;
    event.order = QByteArray::number(m_nextOrder++);
    // Twice the last price: beyond any limit.
    event.price = ZrDecimal::fromUnits(market.last.units() * 2);
    event.quantity = market.security.lot;
    event.hasPrice = true;
    event.hasQuantity = true;
    push(event, 3);
}

void ZrFeedSimulator::withdrawOne(size_t place)
{
    const Open open = m_open[place];
    Market &market = m_markets[open.market];
    const bool partly = roll(4) == 0;
    const ZrDecimal most = partly ? market.security.lot : ZrDecimal::fromInt(1000000000);
    const ZrDecimal taken = market.book.withdraw(open.side, open.number, open.price, most);
    if (!partly || taken < most)
        m_open.erase(m_open.begin() + std::ptrdiff_t(place));
    if (taken.isZero())
        return; // it had traded meanwhile
    ZrFeedEvent event = begin(partly ? ZrFeedKind::Cancel : ZrFeedKind::Delete, market);
    event.side = open.side;
    event.order = open.number;
    event.price = open.price;
    event.quantity = taken;
    event.hasPrice = true;
    event.hasQuantity = true;
    push(event, 1);
}

void ZrFeedSimulator::showBook(size_t index)
{
    const Market &market = m_markets[index];
    ZrFeedEvent event = begin(ZrFeedKind::Book, market);
    event.phase = "T";
    event.previousClose = market.security.previousClose;
    event.last = market.last;
    event.asks = market.book.asks(Levels);
    event.bids = market.book.bids(Levels);
    push(event, 1);
}
