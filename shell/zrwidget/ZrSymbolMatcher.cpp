#include "ZrSymbolMatcher.h"

#include "ZrSymbolText.h"

namespace {
bool isFull(const std::set<QString> &rows, int most)
{
    return most >= 1 && rows.size() >= std::size_t(most);
}
} // namespace

void ZrSymbolMatcher::setLists(const QStringList &securities, const QStringList &searchKeys)
{
    m_securities.assign(securities);
    m_searchKeys.assign(searchKeys);
}

QStringList ZrSymbolMatcher::matches(const QString &text, int mode, int most) const
{
    if (mode != StartsWith && mode != Contains)
        return QStringList();
    const auto place = mode == StartsWith ? ZrFoldedTexts::Place::Start : ZrFoldedTexts::Place::Anywhere;
    Rows rows;
    m_securities.forEach(text, place, [&](int index) {
        rows.insert(m_securities.texts().at(index));
        return !isFull(rows, most);
    });
    addByKey(&rows, text, place, most);
    QStringList result;
    result.reserve(int(rows.size()));
    for (const QString &row : rows)
        result.append(row);
    return result;
}

void ZrSymbolMatcher::addByKey(Rows *rows, const QString &text, ZrFoldedTexts::Place place, int most) const
{
    const QStringList &keys = m_searchKeys.texts();
    if (isFull(*rows, most)) {
        // The first key is looked at even so, and may make one row more than asked for: who scans both lists
        // asks after each entry whether there are enough, and lists of this length are what users know.
        if (!keys.isEmpty() && m_searchKeys.holds(0, text, place))
            rows->insert(ZrSymbolText::candidateOf(keys.constFirst()));
        return;
    }
    m_searchKeys.forEach(text, place, [&](int index) {
        rows->insert(ZrSymbolText::candidateOf(keys.at(index)));
        return !isFull(*rows, most);
    });
}
