#pragma once

#include "zrdatabase/zrdatabase_global.h"

#include <QtCore/QHash>
#include <QtCore/QMap>
#include <QtCore/QString>
#include <QtCore/QVariant>
#include <QtCore/QVector>

/// The reference data as it was read, without any index.
struct ZrDataContents
{
    QMap<QString, QMap<QString, QString>> sections; // dictionary: section to key to text
    QVector<QVariantMap> securities;                // in the order of the seed
    QVector<QVariantMap> accounts;                  // one record for each trading account
    QString loginType;                              // user type of the login
};

/// One indexed, immutable state of the reference data.
///
/// Ownership: shared; whoever holds one may read it as long as it likes, whatever is loaded meanwhile.
/// Threads:   any.
/// Errors:    what is unknown gives null or an empty list.
class ZRDATABASE_EXPORT ZrDataSnapshot
{
public:
    explicit ZrDataSnapshot(ZrDataContents contents);

    const ZrDataContents &contents() const { return m_contents; }
    /// The security of a full symbol ("600001.SH"), or of a bare code within a market ("SH" or ".SH");
    /// without a market the first one of that code. A symbol with a market of its own takes no notice of
    /// `post`.
    const QVariantMap *security(const QString &symbol, const QString &post = QString()) const;
    /// The first account whose `field` holds that number; the four account number fields are indexed.
    const QVariantMap *account(const QString &field, const QString &number) const;
    /// That account's record, narrowed to what is true of all accounts of the number: a product or an
    /// investor stands over several trading accounts, and its details must not name one of them.
    const QVariantMap *accountDetails(const QString &field, const QString &number) const;

private:
    void indexSecurities();
    void indexAccounts();
    void indexAccountsBy(const QString &field, const QStringList &details);

    ZrDataContents m_contents;
    QHash<QString, int> m_symbols;                         // full symbol to place
    QHash<QString, int> m_codes;                           // bare code to the first place
    QHash<QString, QHash<QString, int>> m_numbers;         // account field to number to the first place
    QHash<QString, QHash<QString, QVariantMap>> m_details; // the same to its narrowed record: a grid asks
                                                           // for it in each row
};
