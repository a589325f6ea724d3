#include "zrdefine/VexlorMsgType.h"

namespace Vexlor_MsgType {
const QString executionReport = QStringLiteral("ExecutionReport");
const QString bussinessMsgReject = QStringLiteral("BusinessMessageReject");
} // namespace Vexlor_MsgType
