#pragma once

#include "ZrDecimal.h"

#include <QtCore/QByteArray>
#include <QtCore/QVector>

/// What happened at a venue.
enum class ZrFeedKind {
    Ignore,
    Add,     // an order came in
    Cancel,  // a part of it was withdrawn: `quantity` says how much
    Delete,  // all the rest was withdrawn
    Modify,  // price or quantity changed, perhaps under a new order number
    Reject,  // it was refused
    Execute, // an order traded: one side of a trade and the trade itself
    Fill,    // an order traded, the trade stands on a line of its own
    Trade,   // a trade with the numbers of its orders, where they are known
    Book,    // the best levels
    Phase    // a change of the trading phase, a halt
};

enum class ZrFeedSide { None, Buy, Sell };

struct ZrFeedLevel
{
    ZrDecimal price;
    ZrDecimal quantity;
    bool operator==(const ZrFeedLevel &o) const { return price == o.price && quantity == o.quantity; }
};

/// One event, as a file or the simulator tells it.
///
/// Units:  time in nanoseconds since 1970-01-01 UTC; prices and quantities in natural units.
/// Shape:  fields that the kind does not use keep their defaults.
struct ZrFeedEvent
{
    ZrFeedKind kind = ZrFeedKind::Ignore;
    ZrFeedSide side = ZrFeedSide::None;
    bool quantityIsRest = false; // Add: the quantity is what was left after trading at once
    bool hasPrice = false;
    bool hasQuantity = false;
    qint64 timeNs = 0;
    qint64 sequence = -1; // order among events of one time, where the files tell it
    QByteArray symbol;    // with the exchange suffix: 600519.SH
    QByteArray order;     // order number; empty means none
    QByteArray newOrder;  // Modify: the number from now on, empty for the same
    QByteArray buyOrder;
    QByteArray sellOrder;
    QByteArray phase;
    ZrDecimal price;
    ZrDecimal quantity;
    ZrDecimal last;
    ZrDecimal previousClose;
    QVector<ZrFeedLevel> asks; // best first
    QVector<ZrFeedLevel> bids;
};
