#include "ZrSymbolText.h"

#include "zrdefine/Constants.h"

#include <QtCore/QStringBuilder>

namespace {
const QLatin1Char KeyEnd('&');

/// Where the last field of a candidate begins: position of the separator before it, -1 with less than three
/// fields. Counted from the left: separators that overlap are taken as QString::split does.
int lastFieldOf(const QString &candidate, const QString &separator)
{
    if (separator.isEmpty())
        return -1;
    int found = -1;
    int count = 0;
    int at = candidate.indexOf(separator);
    while (at >= 0) {
        found = at;
        ++count;
        at = candidate.indexOf(separator, at + separator.size());
    }
    return count < 2 ? -1 : found;
}
} // namespace

ZrSymbolText::Parted ZrSymbolText::parted(const QStringList &candidates)
{
    Parted result;
    result.securities.reserve(candidates.size());
    result.searchKeys.reserve(candidates.size());
    const QString separator = Constants::SymbolSearch_Split;
    for (const QString &candidate : candidates) {
        const int last = lastFieldOf(candidate, separator);
        if (last < 0) {
            result.securities.append(candidate);
            continue;
        }
        const QString security = candidate.left(last);
        const QStringRef key = candidate.midRef(last + separator.size());
        if (!key.isEmpty())
            result.searchKeys.append(key % KeyEnd % security);
        result.securities.append(security);
    }
    return result;
}

QString ZrSymbolText::candidateOf(const QString &searchKey)
{
    return searchKey.mid(searchKey.indexOf(KeyEnd) + 1);
}

QString ZrSymbolText::symbolOf(const QString &candidate)
{
    return candidate.left(candidate.indexOf(Constants::SymbolSearch_Split));
}

QString ZrSymbolText::shortCode(const QString &symbol)
{
    return symbol.left(symbol.lastIndexOf(QLatin1Char('.')));
}
