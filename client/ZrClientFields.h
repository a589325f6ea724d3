#pragma once

#include <QtCore/QString>

/// Names of the fields that the workstation's messages carry beside those every client knows.
///
/// Shape:   texts that say something to a reader are codes of the host's dictionaries: Side, OrderType,
///          TimeInForce, OrderStatus, ExecType, MarketPhase.
/// Units:   prices and amounts in the currency of the venue; times in milliseconds since 1970-01-01 UTC
///          unless the name says otherwise.
namespace ZrClientFields {
/// Counts all messages of one feed from 0: a gap is a lost message.
inline const QString seqNo = QStringLiteral("SeqNo");
/// When the message was given to the bus: nanoseconds of a steady clock of this process.
inline const QString sentNs = QStringLiteral("SentNs");

inline const QString orderId = QStringLiteral("OrderID");
inline const QString securityCode = QStringLiteral("SecurityCode");
inline const QString side = QStringLiteral("Side");
inline const QString orderType = QStringLiteral("OrderType");
inline const QString timeInForce = QStringLiteral("TimeInForce");
inline const QString price = QStringLiteral("Price");
inline const QString orderQty = QStringLiteral("OrderQty");
inline const QString orderValue = QStringLiteral("OrderValue");
inline const QString orderTime = QStringLiteral("OrderTime");
inline const QString orderClock = QStringLiteral("OrderClock");

inline const QString orderStatus = QStringLiteral("OrderStatus");
inline const QString execType = QStringLiteral("ExecType");
inline const QString execId = QStringLiteral("ExecID");
inline const QString cumQty = QStringLiteral("CumQty");
inline const QString leavesQty = QStringLiteral("LeavesQty");
inline const QString cancelledQty = QStringLiteral("CancelledQty");
inline const QString averagePrice = QStringLiteral("AvgPrice");
inline const QString lastPrice = QStringLiteral("LastPrice");
inline const QString lastQty = QStringLiteral("LastQty");
inline const QString filledValue = QStringLiteral("FilledValue");
inline const QString fillRatio = QStringLiteral("FillRatio");
inline const QString fillCount = QStringLiteral("FillCount");
inline const QString updateTime = QStringLiteral("UpdateTime");
inline const QString updateClock = QStringLiteral("UpdateClock");

inline const QString productAccount = QStringLiteral("ProductAccount");
inline const QString investAccount = QStringLiteral("InvestAccount");

inline const QString buyOrderId = QStringLiteral("BuyOrderID");
inline const QString sellOrderId = QStringLiteral("SellOrderID");
inline const QString tradeVolume = QStringLiteral("TradeVolume");
inline const QString tradeValue = QStringLiteral("TradeValue");
inline const QString tradeCount = QStringLiteral("TradeCount");

inline const QString marketPhase = QStringLiteral("MarketPhase");
inline const QString previousClose = QStringLiteral("PreviousClose");
/// Levels: these texts with the level's number from 1 behind them.
inline const QString askPrice = QStringLiteral("AskPrice");
inline const QString askQty = QStringLiteral("AskQty");
inline const QString bidPrice = QStringLiteral("BidPrice");
inline const QString bidQty = QStringLiteral("BidQty");
} // namespace ZrClientFields

/// Types of the workstation's messages; reports go under the type that every client knows.
namespace ZrClientMsgType {
inline const QString order = QStringLiteral("Order");
inline const QString trade = QStringLiteral("Trade");
inline const QString depth = QStringLiteral("Depth");
} // namespace ZrClientMsgType

/// Keys of what a plugin with a live grid tells the workstation: after each batch that went into its grid,
/// and when it is asked for its data. A plugin that tells nothing of this is not measured.
namespace ZrPluginReport {
/// The highest number (seqNo) of the batch's messages.
inline const QString number = QStringLiteral("Number");
/// When the batch was in the grid, and when each of its messages was sent: QVector<qint64> of nanoseconds.
inline const QString appliedNs = QStringLiteral("AppliedNs");
inline const QString sentNs = QStringLiteral("SentNs");
/// Those of `sentNs` whose rows the next frame shows.
inline const QString inSightNs = QStringLiteral("InSightNs");
/// Rows of the grid, filtered out or not; whether messages wait for it.
inline const QString rows = QStringLiteral("Rows");
inline const QString isWaiting = QStringLiteral("IsWaiting");
} // namespace ZrPluginReport

/// Properties that the workstation gives the plugins it opens.
namespace ZrPluginSetting {
inline const QString maxRows = QStringLiteral("MaxRows");
} // namespace ZrPluginSetting
