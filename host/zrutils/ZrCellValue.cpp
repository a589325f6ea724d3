#include "zrutils/ZrCellValue.h"

#include <algorithm>

namespace {
/// The values of a cell that count, by the role keys "0", "256" and "257"; null where there is none.
struct Roles
{
    const QVariant *raw = nullptr;
    const QVariant *spare = nullptr;
    const QVariant *shown = nullptr;
};

// A walk over the few roles of a cell, looking at single characters, takes a fraction of what three look-ups
// by text take; sort, filter and sum do this once for each row.
Roles rolesOf(const ItemRoleMap &cell)
{
    Roles roles;
    for (auto role = cell.constBegin(), end = cell.constEnd(); role != end; ++role) {
        const int size = role.key().size();
        const ushort *units = role.key().utf16();
        if (size == 1 && units[0] == '0') {
            roles.shown = &role.value();
        } else if (size == 3 && units[0] == '2' && units[1] == '5') {
            if (units[2] == '6') {
                roles.raw = &role.value();
                break; // nothing goes before it
            }
            if (units[2] == '7')
                roles.spare = &role.value();
        }
    }
    return roles;
}
} // namespace

const QVariant *ZrCellValue::of(const ItemRoleMap &cell)
{
    const Roles roles = rolesOf(cell);
    if (roles.raw)
        return roles.raw;
    return roles.spare ? roles.spare : roles.shown;
}

const QVariant *ZrCellValue::of(const RecordData &record, int column)
{
    const auto cell = record.constFind(column);
    return cell == record.constEnd() ? nullptr : of(cell.value());
}

const QVariant *ZrCellValue::choiceOf(const ItemRoleMap &cell)
{
    const Roles roles = rolesOf(cell);
    if (roles.raw)
        return roles.raw;
    return roles.spare && (!roles.shown || !roles.spare->toString().isEmpty()) ? roles.spare : roles.shown;
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
