#include "zrdatabase/ZrDataSnapshot.h"

#include "zrdatabase/ZrDataFields.h"
#include "zrdefine/VexlorFields.h"

namespace {
const QVariantMap *placeOf(const QVector<QVariantMap> &records, int place)
{
    return place < 0 ? nullptr : &records.at(place);
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
    const QString fields[] = {Vexlor_Fields::UserAccount::tradingAccount,
                              Vexlor_Fields::UserAccount::assetAccount, ZrDataFields::productAccount,
                              ZrDataFields::investAccount};
    for (const QString &field : fields) {
        QHash<QString, int> &places = m_numbers[field];
        for (int i = 0; i < m_contents.accounts.size(); ++i) {
            const QString number = m_contents.accounts.at(i).value(field).toString();
            if (!number.isEmpty() && !places.contains(number))
                places.insert(number, i);
        }
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
