#include "zrutils/ZrCellValue.h"

#include <algorithm>

namespace {
const QString rawKey = QStringLiteral("256");
const QString spareKey = QStringLiteral("257");
const QString shownKey = QStringLiteral("0");

const QVariant *find(const ItemRoleMap &cell, const QString &key)
{
    const auto found = cell.constFind(key);
    return found == cell.constEnd() ? nullptr : &found.value();
}
} // namespace

const QVariant *ZrCellValue::of(const ItemRoleMap &cell)
{
    if (const QVariant *raw = find(cell, rawKey))
        return raw;
    const QVariant *spare = find(cell, spareKey);
    return spare ? spare : find(cell, shownKey);
}

const QVariant *ZrCellValue::of(const RecordData &record, int column)
{
    const auto cell = record.constFind(column);
    return cell == record.constEnd() ? nullptr : of(cell.value());
}

const QVariant *ZrCellValue::choiceOf(const ItemRoleMap &cell)
{
    if (const QVariant *raw = find(cell, rawKey))
        return raw;
    const QVariant *spare = find(cell, spareKey);
    const QVariant *shown = find(cell, shownKey);
    return spare && (!shown || !spare->toString().isEmpty()) ? spare : shown;
}

int ZrTextOrder::compare(const QString &a, const QString &b, int from)
{
    const ushort *left = a.utf16();
    const ushort *right = b.utf16();
    const int common = std::min(a.size(), b.size());
    for (int i = from; i < common; ++i) {
        if (left[i] != right[i])
            return rank(left[i]) < rank(right[i]) ? -1 : 1;
    }
    return (a.size() > b.size()) - (a.size() < b.size());
}
