#include "zrdatabase/ZrDataSnapshot.h"

#include "zrdatabase/ZrDataFields.h"
#include "zrdefine/VexlorFields.h"

namespace {
const QVariantMap *placeOf(const QVector<QVariantMap> &records, int place)
{
    return place < 0 ? nullptr : &records.at(place);
}

QVariantMap narrowedTo(const QVariantMap &record, const QStringList &fields)
{
    QVariantMap narrowed;
    for (const QString &field : fields) {
        if (record.contains(field))
            narrowed.insert(field, record.value(field));
    }
    return narrowed;
}
} // namespace

ZrDataSnapshot::ZrDataSnapshot(ZrDataContents contents)
    : m_contents(std::move(contents))
{
    indexSecurities();
    indexAccounts();
}

// A symbol or number that stands twice keeps its first record, as a look-up in the list would find it.
void ZrDataSnapshot::indexSecurities()
{
    m_symbols.reserve(m_contents.securities.size());
    m_codes.reserve(m_contents.securities.size());
    for (int i = 0; i < m_contents.securities.size(); ++i) {
        const QString symbol = m_contents.securities.at(i).value(Vexlor_Fields::Security::symbol).toString();
        if (symbol.isEmpty())
            continue;
        if (!m_symbols.contains(symbol))
            m_symbols.insert(symbol, i);
        const QString code = symbol.left(symbol.lastIndexOf(QLatin1Char('.')));
        if (!m_codes.contains(code))
            m_codes.insert(code, i);
    }
}

void ZrDataSnapshot::indexAccounts()
{
    namespace User = Vexlor_Fields::UserAccount;
    const QStringList investor = {ZrDataFields::investAccount, User::investorName};
    const QStringList product = QStringList{ZrDataFields::productAccount, User::productName} + investor;
    const QStringList asset =
        QStringList{User::assetAccount, User::assetAccountName, Vexlor_Fields::Security::systemNodeId} +
        product;
    indexAccountsBy(User::tradingAccount, QStringList());
    indexAccountsBy(User::assetAccount, asset);
    indexAccountsBy(ZrDataFields::productAccount, product);
    indexAccountsBy(ZrDataFields::investAccount, investor);
}

void ZrDataSnapshot::indexAccountsBy(const QString &field, const QStringList &details)
{
    QHash<QString, int> &places = m_numbers[field];
    QHash<QString, QVariantMap> &narrowed = m_details[field];
    for (int i = 0; i < m_contents.accounts.size(); ++i) {
        const QVariantMap &account = m_contents.accounts.at(i);
        const QString number = account.value(field).toString();
        if (number.isEmpty() || places.contains(number))
            continue;
        places.insert(number, i);
        narrowed.insert(number, details.isEmpty() ? account : narrowedTo(account, details));
    }
}

const QVariantMap *ZrDataSnapshot::security(const QString &symbol, const QString &post) const
{
    const auto exact = m_symbols.constFind(symbol);
    if (exact != m_symbols.constEnd())
        return placeOf(m_contents.securities, *exact);
    if (symbol.contains(QLatin1Char('.')))
        return nullptr;
    if (post.isEmpty())
        return placeOf(m_contents.securities, m_codes.value(symbol, -1));
    const QString suffix = post.startsWith(QLatin1Char('.')) ? post : QLatin1Char('.') + post;
    return placeOf(m_contents.securities, m_symbols.value(symbol + suffix, -1));
}

const QVariantMap *ZrDataSnapshot::account(const QString &field, const QString &number) const
{
    const auto places = m_numbers.constFind(field);
    return places == m_numbers.constEnd() ? nullptr : placeOf(m_contents.accounts, places->value(number, -1));
}

const QVariantMap *ZrDataSnapshot::accountDetails(const QString &field, const QString &number) const
{
    const auto numbers = m_details.constFind(field);
    if (numbers == m_details.constEnd())
        return nullptr;
    const auto found = numbers->constFind(number);
    return found == numbers->constEnd() ? nullptr : &*found;
}
