#include "ZrAccountBox.h"

#include "zrbusinessdata/CBusinessDataBase.h"
#include "zrdefine/VexlorFields.h"
#include "zrdefine/VexlorValues.h"

namespace {
constexpr int ShownLetters = 12;
} // namespace

ZrAccountBox::ZrAccountBox(QWidget *parent)
    : QComboBox(parent)
{
    setObjectName(QStringLiteral("pluginAccount"));
    setAccessibleName(tr("Account"));
    setToolTip(tr("The account whose data are shown"));
    // A long name must not push the buttons out of the title.
    setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    setMinimumContentsLength(ShownLetters);
    fill();
    // The user's choice only, not that of showAccount().
    connect(this, qOverload<int>(&QComboBox::activated), this,
            [this](int index) { emit signalAccountChosen(itemData(index).toMap()); });
}

void ZrAccountBox::fill()
{
    namespace User = Vexlor_Fields::UserAccount;
    CBusinessDataBase *const data = CBusinessDataBase::GetInstance();
    addItem(tr("All accounts"), QVariantMap());
    const QStringList numbers = data->GetTradeAccountList({Vexlor_Values::AuthorityType::AccountTrade});
    for (const QString &number : numbers) {
        QVariantMap account = data->GetAccountDetailsByTradinngAccount(number);
        account.insert(User::tradingAccount, number);
        addItem(number + QLatin1Char(' ') + account.value(User::tradingAccountName).toString(), account);
    }
}

void ZrAccountBox::showAccount(const QVariantMap &account)
{
    const QString &field = Vexlor_Fields::UserAccount::tradingAccount;
    const QString wanted = account.value(field).toString();
    for (int i = 0; i < count(); ++i) {
        if (itemData(i).toMap().value(field).toString() == wanted) {
            setCurrentIndex(i);
            return;
        }
    }
}
