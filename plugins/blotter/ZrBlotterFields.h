#pragma once

#include <QtCore/QString>

/// Names that the blotter shares with who sends it messages and with the window that it stands in.
///
/// Shape: a plugin is built without its client, so both sides hold the names; a test compares them.
namespace ZrBlotterFields {
/// Counts all messages of one feed from 0.
inline const QString seqNo = QStringLiteral("SeqNo");
/// When the message was given to the bus: nanoseconds of the process's steady clock.
inline const QString sentNs = QStringLiteral("SentNs");

inline const QString orderId = QStringLiteral("OrderID");
inline const QString side = QStringLiteral("Side");
inline const QString orderStatus = QStringLiteral("OrderStatus");
inline const QString price = QStringLiteral("Price");
inline const QString orderQty = QStringLiteral("OrderQty");
inline const QString orderValue = QStringLiteral("OrderValue");
inline const QString cumQty = QStringLiteral("CumQty");
inline const QString leavesQty = QStringLiteral("LeavesQty");
inline const QString cancelledQty = QStringLiteral("CancelledQty");
inline const QString filledValue = QStringLiteral("FilledValue");
inline const QString fillCount = QStringLiteral("FillCount");
} // namespace ZrBlotterFields

namespace ZrBlotterMsgType {
inline const QString order = QStringLiteral("Order");
} // namespace ZrBlotterMsgType

/// Keys of what a plugin tells the window it stands in: after each batch, and when it is asked.
namespace ZrBlotterReport {
/// The highest number of the batch's messages.
inline const QString number = QStringLiteral("Number");
/// When the batch was in the grid, and when each of its messages was sent: QVector<qint64> of nanoseconds.
inline const QString appliedNs = QStringLiteral("AppliedNs");
inline const QString sentNs = QStringLiteral("SentNs");
/// Those of `sentNs` whose rows the next frame shows.
inline const QString inSightNs = QStringLiteral("InSightNs");
/// Rows of the grid, filtered out or not; messages that wait for it.
inline const QString rows = QStringLiteral("Rows");
inline const QString isWaiting = QStringLiteral("IsWaiting");
} // namespace ZrBlotterReport

/// Properties that the window may give the blotter before it is initialised.
namespace ZrBlotterProperty {
inline const QString maxRows = QStringLiteral("MaxRows");
} // namespace ZrBlotterProperty

/// Linkage by security, one of the client's linkage types.
constexpr int ZrSecurityLinkage = 1;
