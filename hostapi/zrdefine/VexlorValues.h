#pragma once

#include "zrdefine/zrdefine_global.h"

#include <QtCore/QString>

/// Values that the fields of Vexlor_Fields take.
///
/// Shape:   distinct within their group; equal to what the other side of the bus uses.
/// Threads: constant after static initialisation; readable from any thread. Not readable from
///          the static initialisers of another library.
namespace Vexlor_Values {
/// How the sender waits for the answer of a request.
namespace RequestType {
extern ZRDEFINE_EXPORT const QString sync;
extern ZRDEFINE_EXPORT const QString aync;
} // namespace RequestType

/// Type of the logged-in user.
namespace UserType {
extern ZRDEFINE_EXPORT const QString sysAdmin;
} // namespace UserType

/// What an account may be used for.
namespace AuthorityType {
extern ZRDEFINE_EXPORT const QString AccountTrade;
} // namespace AuthorityType

/// Scheme that a security ID belongs to.
namespace SecurityIDSource {
extern ZRDEFINE_EXPORT const QString securityID;
} // namespace SecurityIDSource

/// Keys of ZrCore::getCommonInfo.
namespace ClientPerformItem {
extern ZRDEFINE_EXPORT const QString PluginInitedCount;
} // namespace ClientPerformItem

/// Item types of the client's reports about itself.
namespace ClinetInfoUpload {
extern ZRDEFINE_EXPORT const QString RequestTimeOutError;
} // namespace ClinetInfoUpload

/// How a filter condition compares.
namespace CompareOperator {
extern ZRDEFINE_EXPORT const QString equal;
extern ZRDEFINE_EXPORT const QString greaterOrEqual;
extern ZRDEFINE_EXPORT const QString lessOrEqual;
} // namespace CompareOperator

/// How the conditions of one filter group are joined.
namespace LogicOperator {
extern ZRDEFINE_EXPORT const QString andOperator;
extern ZRDEFINE_EXPORT const QString orOperator;
} // namespace LogicOperator
} // namespace Vexlor_Values
