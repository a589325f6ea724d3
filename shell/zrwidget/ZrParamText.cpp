#include "ZrParamText.h"

#include "ZrParamValue.h"

#include "zrbusinessdata/CBusinessDataBase.h"
#include "zrdatabase/CDataBase.h"
#include "zrdefine/Constants.h"
#include "zrdefine/VexlorFields.h"
#include "zrdefine/VexlorValues.h"

namespace {
QString ofChoice(const QVariantMap &record, const QString &id, const QString &stored)
{
    const QVariantList options = record.value(Constants::STRATEGYPARAM_OPTIONS).toList();
    for (const QVariant &entry : options) {
        const QVariantMap option = entry.toMap();
        if (option.value(Constants::STRATEGYPARAM_USERROLE).toString() == stored)
            return option.value(Constants::STRATEGYPARAM_DISPLAYROLE).toString();
    }
    return CDataBase::GetInstance()->GetStaticCfgValue(id, stored);
}
} // namespace

QString ZrParamText::ofBasic(const QString &id, const QString &stored)
{
    const QString configured = CDataBase::GetInstance()->GetStaticCfgValue(id, stored);
    return configured.isEmpty() ? stored : configured;
}

QString ZrParamText::ofCell(const QVariantMap &record, const QString &stored)
{
    const CBusinessDataBase *const host = CBusinessDataBase::GetInstance();
    const QString id = record.value(Constants::STRATEGYPARAM_PARAMID).toString();
    if (id == Vexlor_Fields::Security::symbol)
        return host->getSecurityIDBySymbol(stored, QString(), Vexlor_Values::SecurityIDSource::securityID);
    if (id == Vexlor_Fields::UserAccount::tradingAccount)
        return host->GetAccountDetailsByTradinngAccount(stored)
            .value(Vexlor_Fields::UserAccount::tradingAccountName)
            .toString();
    if (record.contains(Constants::STRATEGYPARAM_OPTIONS))
        return ofChoice(record, id, stored);
    // An empty value shows as empty: a zero would look like one that was typed.
    return ZrParamValue::convertedUnlessEmpty(record, stored).toString();
}
