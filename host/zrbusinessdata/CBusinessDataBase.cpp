#include "zrbusinessdata/CBusinessDataBase.h"

#include "zrdatabase/ZrDataFields.h"
#include "zrdatabase/ZrDataStore.h"
#include "zrdefine/Constants.h"
#include "zrdefine/VexlorFields.h"

namespace UserAccount = Vexlor_Fields::UserAccount;
namespace Security = Vexlor_Fields::Security;

namespace {
using Record = QMap<QString, QVariant>;

Record accountDetails(const QString &numberField, const QString &number)
{
    const auto snapshot = ZrDataStore::snapshot();
    const Record *details = snapshot->accountDetails(numberField, number);
    return details ? *details : Record();
}

QString withoutDot(const QString &post)
{
    return post.startsWith(QLatin1Char('.')) ? post.mid(1) : post;
}

/// The choice of securities that GetAllSymbolByType makes.
struct SymbolChoice
{
    QString type;
    QString subType;
    QString post;
    bool tradable;
    QStringList markets;

    bool holds(const Record &security) const
    {
        if (!type.isEmpty() && security.value(ZrDataFields::securityType).toString() != type)
            return false;
        if (!subType.isEmpty() && security.value(ZrDataFields::subType).toString() != subType)
            return false;
        if (tradable && !security.value(ZrDataFields::tradable).toBool())
            return false;
        const QString market = security.value(ZrDataFields::post).toString();
        return (post.isEmpty() || market == post) && (markets.isEmpty() || markets.contains(market));
    }
};

/// Symbol, name and search key in the form that the search box takes apart.
QString candidate(const Record &security)
{
    const QString &split = Constants::SymbolSearch_Split;
    return security.value(Security::symbol).toString() + split +
           security.value(Security::chineseName).toString() + split +
           security.value(ZrDataFields::searchKey).toString();
}
} // namespace

// No state: everything stands in the store's snapshot.
class CBusinessDataBase::Private
{
};

CBusinessDataBase::CBusinessDataBase()
    : d(nullptr)
{
}

CBusinessDataBase::~CBusinessDataBase()
{
    delete d;
}

CBusinessDataBase *CBusinessDataBase::GetInstance()
{
    static CBusinessDataBase instance;
    return &instance;
}

QString CBusinessDataBase::GetSysNodeIDByAccount(const QMap<QString, QVariant> &account) const
{
    const auto snapshot = ZrDataStore::snapshot();
    for (const QString &field : {UserAccount::tradingAccount, UserAccount::assetAccount}) {
        const QString number = account.value(field).toString();
        if (number.isEmpty())
            continue;
        const Record *found = snapshot->account(field, number);
        return found ? found->value(Security::systemNodeId).toString() : QString();
    }
    return QString();
}

QString CBusinessDataBase::GetLoginAccountType() const
{
    return ZrDataStore::snapshot()->contents().loginType;
}

QMap<QString, QVariant> CBusinessDataBase::GetAccountDetailsByTradinngAccount(const QString &account) const
{
    return accountDetails(UserAccount::tradingAccount, account);
}

QMap<QString, QVariant> CBusinessDataBase::GetAccountDetailsByProductAccount(const QString &account) const
{
    return accountDetails(ZrDataFields::productAccount, account);
}

QMap<QString, QVariant> CBusinessDataBase::GetAccountDetailsByInvestAccount(const QString &account) const
{
    return accountDetails(ZrDataFields::investAccount, account);
}

QMap<QString, QVariant> CBusinessDataBase::GetAccountDetailsByAssertAccount(const QString &account) const
{
    return accountDetails(UserAccount::assetAccount, account);
}

QStringList CBusinessDataBase::GetTradeAccountList(const QStringList &authorities) const
{
    const auto snapshot = ZrDataStore::snapshot();
    QStringList result;
    for (const Record &account : snapshot->contents().accounts) {
        const QStringList held = account.value(ZrDataFields::authorities).toString().split(QLatin1Char(';'));
        bool all = true;
        for (const QString &authority : authorities)
            all = all && held.contains(authority);
        const QString number = account.value(UserAccount::tradingAccount).toString();
        if (all && !number.isEmpty())
            result.append(number);
    }
    return result;
}

QString CBusinessDataBase::GetSecurityChineseName(const QString &symbol, const QString &post) const
{
    const auto snapshot = ZrDataStore::snapshot();
    const Record *security = snapshot->security(symbol, post);
    return security ? security->value(Security::chineseName).toString() : QString();
}

QMap<QString, QVariant> CBusinessDataBase::GetSecurityDetailsBySymbol(const QString &symbol) const
{
    const auto snapshot = ZrDataStore::snapshot();
    const Record *security = snapshot->security(symbol);
    return security ? *security : Record();
}

QString CBusinessDataBase::GetSymbolPostBySymbol(const QString &symbol) const
{
    const auto snapshot = ZrDataStore::snapshot();
    if (const Record *security = snapshot->security(symbol))
        return security->value(ZrDataFields::post).toString();
    // A security listed today may be missing here, and its market still be known by its suffix.
    const QString suffix = symbol.mid(symbol.lastIndexOf(QLatin1Char('.')) + 1);
    const bool known = suffix.size() < symbol.size() &&
                       snapshot->contents().sections.value(UserAccount::SymbolPost).contains(suffix);
    return known ? suffix : QString();
}

QString CBusinessDataBase::getSecurityIDBySymbol(const QString &symbol, const QString &post,
                                                 const QString &idSource) const
{
    const auto snapshot = ZrDataStore::snapshot();
    // An ID source is the name of the field that holds the ID.
    const Record *security = snapshot->security(symbol, post);
    return security ? security->value(idSource).toString() : QString();
}

QStringList CBusinessDataBase::GetAllSymbolByType(const QString &type, const QString &subType,
                                                  const QString &post, bool tradable,
                                                  const QStringList &markets) const
{
    const auto snapshot = ZrDataStore::snapshot();
    SymbolChoice choice{type, subType, withoutDot(post), tradable, QStringList()};
    for (const QString &market : markets)
        choice.markets.append(withoutDot(market));
    QStringList result;
    for (const Record &security : snapshot->contents().securities) {
        if (choice.holds(security))
            result.append(candidate(security));
    }
    return result;
}
