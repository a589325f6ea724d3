#pragma once

#include "zrdefine/zrdefine_global.h"

#include <QtCore/QString>

/// Message types that the client treats apart from all others.
///
/// Shape:   distinct; equal to what the other side of the bus uses.
/// Threads: constant after static initialisation; readable from any thread. Not readable from
///          the static initialisers of another library.
namespace Vexlor_MsgType {
/// Reports about an order: too many to log one by one.
extern ZRDEFINE_EXPORT const QString executionReport;
/// The back end refuses a request.
extern ZRDEFINE_EXPORT const QString bussinessMsgReject;
} // namespace Vexlor_MsgType
