#pragma once

#include "zrbusinessdata/zrbusinessdata_global.h"

#include <QtCore/QMap>
#include <QtCore/QString>
#include <QtCore/QStringList>
#include <QtCore/QVariant>

/// Accounts and securities of the logged-in user, read only.
///
/// A symbol is a security's code with its market, such as "600519.SH"; its post is the suffix of
/// the market.
/// Threads: GUI thread; GetInstance and GetSysNodeIDByAccount from any thread. A look-up never
///          waits for a disk.
/// Errors:  what is unknown gives an empty text, list or record.
class ZRBUSINESSDATA_EXPORT CBusinessDataBase
{
public:
    static CBusinessDataBase *GetInstance();

    /// The system node that serves an account; the map holds a trading or an asset account.
    QString GetSysNodeIDByAccount(const QMap<QString, QVariant> &account) const;
    /// The login's user type.
    QString GetLoginAccountType() const;

    QMap<QString, QVariant> GetAccountDetailsByTradinngAccount(const QString &account) const;
    QMap<QString, QVariant> GetAccountDetailsByProductAccount(const QString &account) const;
    QMap<QString, QVariant> GetAccountDetailsByInvestAccount(const QString &account) const;
    QMap<QString, QVariant> GetAccountDetailsByAssertAccount(const QString &account) const;
    /// Trading accounts that hold all the given authorities; an empty list asks for all accounts.
    QStringList GetTradeAccountList(const QStringList &authorities) const;

    /// Display name of the security; `post` narrows a bare code to one market and may be empty.
    QString GetSecurityChineseName(const QString &symbol, const QString &post) const;
    QMap<QString, QVariant> GetSecurityDetailsBySymbol(const QString &symbol) const;
    /// Without the dot; an unlisted symbol still tells a market by a known suffix.
    QString GetSymbolPostBySymbol(const QString &symbol) const;
    /// ID of a symbol under an ID source; `post` as above.
    QString getSecurityIDBySymbol(const QString &symbol, const QString &post, const QString &idSource) const;
    /// All securities of a type, a sub type and a post, an empty one of these meaning any; `tradable`
    /// leaves out what can't be traded, `markets` limits the posts unless it is empty. Each entry is a
    /// candidate as the search box takes it: symbol, name and search key, joined by
    /// Constants::SymbolSearch_Split.
    QStringList GetAllSymbolByType(const QString &type, const QString &subType, const QString &post,
                                   bool tradable, const QStringList &markets) const;

private:
    CBusinessDataBase();
    ~CBusinessDataBase();
    Q_DISABLE_COPY(CBusinessDataBase)
    class Private;
    Private *d;
};
