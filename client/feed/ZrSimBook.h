#pragma once

#include "ZrFeedEvent.h"

#include <deque>
#include <functional>
#include <map>

/// The simulator's order book of one security: price before time.
///
/// Threads: one at a time.
class ZrSimBook
{
public:
    struct Resting
    {
        QByteArray number;
        ZrDecimal quantity;
    };
    struct Match
    {
        QByteArray resting; // number of the order that stood in the book
        ZrDecimal price;
        ZrDecimal quantity;
    };

    /// Trades what crosses and keeps the rest; gives the matches in the order of their trading.
    QVector<Match> enter(ZrFeedSide side, const QByteArray &number, ZrDecimal price, ZrDecimal quantity);
    /// Takes up to `most` off the order; what was taken, zero when it does not stand in the book.
    ZrDecimal withdraw(ZrFeedSide side, const QByteArray &number, ZrDecimal price, ZrDecimal most);
    QVector<ZrFeedLevel> asks(int levels) const;
    QVector<ZrFeedLevel> bids(int levels) const;

private:
    struct BidOrder
    {
        bool operator()(ZrDecimal a, ZrDecimal b) const { return b < a; }
    };
    using Queue = std::deque<Resting>;
    using Asks = std::map<ZrDecimal, Queue>;
    using Bids = std::map<ZrDecimal, Queue, BidOrder>;

    template<typename Side>
    static QVector<Match> trade(Side *side, ZrDecimal limit, ZrDecimal *rest);
    template<typename Side>
    static ZrDecimal take(Side *side, const QByteArray &number, ZrDecimal price, ZrDecimal most);
    template<typename Side>
    static QVector<ZrFeedLevel> best(const Side &side, int levels);

    Asks m_asks; // lowest first
    Bids m_bids; // highest first
};
