#include "zrdatabase/ZrDataFields.h"

namespace ZrDataFields {
const QString securityID = QStringLiteral("SecurityID");
const QString post = QStringLiteral("SymbolPost");
const QString englishName = QStringLiteral("EnglishName");
const QString searchKey = QStringLiteral("SearchKey");
const QString securityType = QStringLiteral("SecurityType");
const QString subType = QStringLiteral("SecuritySubType");
const QString tradable = QStringLiteral("Tradable");
const QString previousClose = QStringLiteral("PreviousClose");
const QString lotSize = QStringLiteral("LotSize");
const QString priceTick = QStringLiteral("PriceTick");
const QString upperLimit = QStringLiteral("UpperLimit");
const QString lowerLimit = QStringLiteral("LowerLimit");
const QString productAccount = QStringLiteral("ProductAccount");
const QString investAccount = QStringLiteral("InvestAccount");
const QString authorities = QStringLiteral("Authorities");
} // namespace ZrDataFields
