#pragma once

#include "zrdefine/zrdefine_global.h"

#include <QtCore/QString>

/// Names of the fields that bus messages, records and filter conditions carry.
///
/// Shape:   distinct; equal to what the other side of the bus uses.
/// Threads: constant after static initialisation; readable from any thread. Not readable from
///          the static initialisers of another library.
namespace Vexlor_Fields {
/// Fields every message may carry, and the value of a filter condition.
namespace System {
extern ZRDEFINE_EXPORT const QString clientMsgID;
extern ZRDEFINE_EXPORT const QString msgType;
extern ZRDEFINE_EXPORT const QString hasFollowup;
extern ZRDEFINE_EXPORT const QString traceID;
extern ZRDEFINE_EXPORT const QString textDescription;
extern ZRDEFINE_EXPORT const QString itemType;
extern ZRDEFINE_EXPORT const QString itemValue;
extern ZRDEFINE_EXPORT const QString itemValueEx;
extern ZRDEFINE_EXPORT const QString filterValue;
} // namespace System

/// Fields the client adds to a request.
namespace CustomField {
extern ZRDEFINE_EXPORT const QString requestType;
} // namespace CustomField

/// Fields of a security.
namespace Security {
extern ZRDEFINE_EXPORT const QString symbol;
extern ZRDEFINE_EXPORT const QString chineseName;
extern ZRDEFINE_EXPORT const QString systemNodeId;
} // namespace Security

/// Fields of accounts and their owners.
namespace UserAccount {
extern ZRDEFINE_EXPORT const QString tradingAccount;
extern ZRDEFINE_EXPORT const QString tradingAccountName;
extern ZRDEFINE_EXPORT const QString assetAccount;
extern ZRDEFINE_EXPORT const QString assetAccountName;
extern ZRDEFINE_EXPORT const QString investorName;
extern ZRDEFINE_EXPORT const QString productName;
extern ZRDEFINE_EXPORT const QString SymbolPost;
} // namespace UserAccount

/// Fields of a filter condition.
namespace Infomation {
extern ZRDEFINE_EXPORT const QString compareOperator;
extern ZRDEFINE_EXPORT const QString logicOperator;
extern ZRDEFINE_EXPORT const QString fieldComment;
} // namespace Infomation
} // namespace Vexlor_Fields
