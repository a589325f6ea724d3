#include "zrdefine/VexlorFields.h"

namespace Vexlor_Fields {
namespace System {
const QString clientMsgID = QStringLiteral("ClientMsgID");
const QString msgType = QStringLiteral("MsgType");
const QString hasFollowup = QStringLiteral("HasFollowup");
const QString traceID = QStringLiteral("TraceID");
const QString textDescription = QStringLiteral("TextDescription");
const QString itemType = QStringLiteral("ItemType");
const QString itemValue = QStringLiteral("ItemValue");
const QString itemValueEx = QStringLiteral("ItemValueEx");
const QString filterValue = QStringLiteral("FilterValue");
} // namespace System
namespace CustomField {
const QString requestType = QStringLiteral("RequestType");
} // namespace CustomField
namespace Security {
const QString symbol = QStringLiteral("Symbol");
const QString chineseName = QStringLiteral("ChineseName");
const QString systemNodeId = QStringLiteral("SystemNodeID");
} // namespace Security
namespace UserAccount {
const QString tradingAccount = QStringLiteral("TradingAccount");
const QString tradingAccountName = QStringLiteral("TradingAccountName");
const QString assetAccount = QStringLiteral("AssetAccount");
const QString assetAccountName = QStringLiteral("AssetAccountName");
const QString investorName = QStringLiteral("InvestorName");
const QString productName = QStringLiteral("ProductName");
const QString SymbolPost = QStringLiteral("SymbolPost");
} // namespace UserAccount
namespace Infomation {
const QString compareOperator = QStringLiteral("CompareOperator");
const QString logicOperator = QStringLiteral("LogicOperator");
const QString fieldComment = QStringLiteral("FieldComment");
} // namespace Infomation
} // namespace Vexlor_Fields
