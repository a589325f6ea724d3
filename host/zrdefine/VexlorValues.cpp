#include "zrdefine/VexlorValues.h"

namespace Vexlor_Values {
namespace RequestType {
const QString sync = QStringLiteral("Sync");
const QString aync = QStringLiteral("Async");
} // namespace RequestType
namespace UserType {
const QString sysAdmin = QStringLiteral("SysAdmin");
} // namespace UserType
namespace AuthorityType {
const QString AccountTrade = QStringLiteral("AccountTrade");
} // namespace AuthorityType
namespace SecurityIDSource {
const QString securityID = QStringLiteral("SecurityID");
} // namespace SecurityIDSource
namespace ClientPerformItem {
const QString PluginInitedCount = QStringLiteral("PluginInitedCount");
} // namespace ClientPerformItem
namespace ClinetInfoUpload {
const QString RequestTimeOutError = QStringLiteral("RequestTimeOutError");
} // namespace ClinetInfoUpload
namespace CompareOperator {
const QString equal = QStringLiteral("EQ");
const QString greaterOrEqual = QStringLiteral("GE");
const QString lessOrEqual = QStringLiteral("LE");
} // namespace CompareOperator
namespace LogicOperator {
const QString andOperator = QStringLiteral("AND");
const QString orOperator = QStringLiteral("OR");
} // namespace LogicOperator
} // namespace Vexlor_Values
