#include "ZrParamAccountKind.h"

#include "zrbusinessdata/CBusinessDataBase.h"
#include "zrdefine/VexlorFields.h"
#include "zrdefine/VexlorValues.h"

#include <QtWidgets/QComboBox>

QWidget *ZrParamAccountKind::make(const QVariantMap &, QWidget *parent, const ZrParamLink &) const
{
    auto *const combo = new QComboBox(parent);
    const CBusinessDataBase *const host = CBusinessDataBase::GetInstance();
    const QStringList accounts = host->GetTradeAccountList({Vexlor_Values::AuthorityType::AccountTrade});
    for (const QString &account : accounts) {
        const QVariantMap details = host->GetAccountDetailsByTradinngAccount(account);
        combo->addItem(details.value(Vexlor_Fields::UserAccount::tradingAccountName).toString(),
                       details.value(Vexlor_Fields::UserAccount::tradingAccount));
    }
    return combo;
}

void ZrParamAccountKind::relink(const QVariantMap &, QWidget *, const ZrParamLink &) const {}
