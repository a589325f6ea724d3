#pragma once

#include <QtCore/QString>

/// Names that order entry shares with who takes its orders and with its linked neighbours.
///
/// Shape: codes are those of the host's dictionaries Side, TimeInForce, OrderType, OrderStatus. A plugin is
///        built without its client, so both sides hold the names; a test compares them.
/// Units: prices in the currency of the venue, quantities in shares.
namespace ZrOrderEntryField {
/// The sender's own number of an order; whoever reports on the order tells it again.
inline const QString clientOrderId = QStringLiteral("ClOrdID");
inline const QString orderId = QStringLiteral("OrderID");
inline const QString side = QStringLiteral("Side");
inline const QString orderType = QStringLiteral("OrderType");
inline const QString timeInForce = QStringLiteral("TimeInForce");
inline const QString price = QStringLiteral("Price");
inline const QString orderQty = QStringLiteral("OrderQty");
inline const QString orderStatus = QStringLiteral("OrderStatus");
inline const QString cumQty = QStringLiteral("CumQty");
inline const QString averagePrice = QStringLiteral("AvgPrice");
inline const QString updateClock = QStringLiteral("UpdateClock");
} // namespace ZrOrderEntryField

/// Fields of a security that bound its orders.
namespace ZrOrderEntrySecurity {
inline const QString lotSize = QStringLiteral("LotSize");
inline const QString priceTick = QStringLiteral("PriceTick");
inline const QString upperLimit = QStringLiteral("UpperLimit");
inline const QString lowerLimit = QStringLiteral("LowerLimit");
inline const QString previousClose = QStringLiteral("PreviousClose");
} // namespace ZrOrderEntrySecurity

namespace ZrOrderEntryMsgType {
/// A request: answered with the accepted order, or rejected with a text.
inline const QString newOrder = QStringLiteral("NewOrder");
} // namespace ZrOrderEntryMsgType

/// Codes of the dictionaries that order entry itself means something by.
namespace ZrOrderEntryCode {
inline const QString buy = QStringLiteral("1");
inline const QString sell = QStringLiteral("2");
inline const QString limit = QStringLiteral("2"); // of OrderType
} // namespace ZrOrderEntryCode

/// The client's linkage types that order entry takes part in; each is the type of its events too.
enum ZrOrderEntryLinkage {
    ZrOrderEntrySecurityLinkage = 1, // a record with the symbol
    ZrOrderEntryOrderLinkage = 3     // a record with the symbol and of price, quantity and side what is known
};
