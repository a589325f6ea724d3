#pragma once

#include <QtCore/QString>

/// Names that the market depth shares with who sends it messages and with its neighbours.
///
/// Shape: a plugin is built without its client, so both sides hold the names; a test compares them.
/// Units: prices in the currency of the venue, times in ms since 1970-01-01 UTC.
namespace ZrDepthFields {
inline const QString previousClose = QStringLiteral("PreviousClose");
inline const QString lastPrice = QStringLiteral("LastPrice");
inline const QString lastQty = QStringLiteral("LastQty");
inline const QString updateTime = QStringLiteral("UpdateTime");
/// Levels: these texts with the level's number from 1 behind them.
inline const QString askPrice = QStringLiteral("AskPrice");
inline const QString askQty = QStringLiteral("AskQty");
inline const QString bidPrice = QStringLiteral("BidPrice");
inline const QString bidQty = QStringLiteral("BidQty");

/// What a chosen level tells the neighbours: the price as it is shown, the level's quantity, and the side of
/// the order that would meet it.
inline const QString price = QStringLiteral("Price");
inline const QString orderQty = QStringLiteral("OrderQty");
inline const QString side = QStringLiteral("Side");
} // namespace ZrDepthFields

namespace ZrDepthMsgType {
inline const QString depth = QStringLiteral("Depth");
inline const QString trade = QStringLiteral("Trade");
} // namespace ZrDepthMsgType

/// Codes of the host's dictionary of sides.
namespace ZrDepthSide {
inline const QString buy = QStringLiteral("1");
inline const QString sell = QStringLiteral("2");
} // namespace ZrDepthSide

/// The client's linkage types that the market depth takes part in; each is the type of its events too.
enum ZrDepthLinkage {
    ZrDepthSecurityLinkage = 1, // a record with the symbol
    ZrDepthOrderLinkage = 3     // a record with the symbol, price, quantity and side
};
