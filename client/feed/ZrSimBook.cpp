#include "ZrSimBook.h"

#include <algorithm>

template<typename Side>
QVector<ZrSimBook::Match> ZrSimBook::trade(Side *side, ZrDecimal limit, ZrDecimal *rest)
{
    QVector<Match> matches;
    // The side's own order says whether its best price is beyond the limit.
    while (!rest->isZero() && !side->empty() && !side->key_comp()(limit, side->begin()->first)) {
        Queue &queue = side->begin()->second;
        Resting &first = queue.front();
        const ZrDecimal size = std::min(first.quantity, *rest);
        matches.append({first.number, side->begin()->first, size});
        first.quantity = first.quantity - size;
        *rest = *rest - size;
        if (first.quantity.isZero())
            queue.pop_front();
        if (queue.empty())
            side->erase(side->begin());
    }
    return matches;
}

QVector<ZrSimBook::Match> ZrSimBook::enter(ZrFeedSide side, const QByteArray &number, ZrDecimal price,
                                           ZrDecimal quantity)
{
    ZrDecimal rest = quantity;
    const QVector<Match> matches =
        side == ZrFeedSide::Buy ? trade(&m_asks, price, &rest) : trade(&m_bids, price, &rest);
    if (!rest.isZero()) {
        Queue &queue = side == ZrFeedSide::Buy ? m_bids[price] : m_asks[price];
        queue.push_back({number, rest});
    }
    return matches;
}

template<typename Side>
ZrDecimal ZrSimBook::take(Side *side, const QByteArray &number, ZrDecimal price, ZrDecimal most)
{
    const auto level = side->find(price);
    if (level == side->end())
        return ZrDecimal();
    Queue &queue = level->second;
    const auto found =
        std::find_if(queue.begin(), queue.end(), [&number](const Resting &r) { return r.number == number; });
    if (found == queue.end())
        return ZrDecimal();
    const ZrDecimal taken = std::min(most, found->quantity);
    found->quantity = found->quantity - taken;
    if (found->quantity.isZero())
        queue.erase(found);
    if (queue.empty())
        side->erase(level);
    return taken;
}

ZrDecimal ZrSimBook::withdraw(ZrFeedSide side, const QByteArray &number, ZrDecimal price, ZrDecimal most)
{
    return side == ZrFeedSide::Buy ? take(&m_bids, number, price, most) : take(&m_asks, number, price, most);
}

template<typename Side>
QVector<ZrFeedLevel> ZrSimBook::best(const Side &side, int levels)
{
    QVector<ZrFeedLevel> result;
    for (auto it = side.begin(); it != side.end() && result.size() < levels; ++it) {
        ZrFeedLevel level;
        level.price = it->first;
        for (const Resting &order : it->second)
            level.quantity += order.quantity;
        result.append(level);
    }
    return result;
}

QVector<ZrFeedLevel> ZrSimBook::asks(int levels) const
{
    return best(m_asks, levels);
}

QVector<ZrFeedLevel> ZrSimBook::bids(int levels) const
{
    return best(m_bids, levels);
}
