#include "ZrTableMerge.h"

#include "ZrTableSums.h"

QList<int> ZrTableMerge::merge(RecordData &stored, const RecordData &incoming, ZrTableSums *sums)
{
    QList<int> changed;
    for (auto it = incoming.constBegin(); it != incoming.constEnd(); ++it) {
        if (mergeCell(stored, it.key(), it.value(), sums))
            changed.append(it.key());
    }
    return changed;
}

namespace {

bool bringsNothing(const ItemRoleMap &have, const ItemRoleMap &cell)
{
    for (auto role = cell.constBegin(); role != cell.constEnd(); ++role) {
        const auto value = have.constFind(role.key());
        if (value == have.constEnd() || *value != role.value())
            return false;
    }
    return true;
}

} // namespace

// Looks before it writes: a stored record may be shared with the caller who read or gave it, and an update
// that brings nothing new must not cost a copy.
bool ZrTableMerge::mergeCell(RecordData &stored, int column, const ItemRoleMap &cell, ZrTableSums *sums)
{
    const auto found = qAsConst(stored).constFind(column);
    if (found != qAsConst(stored).constEnd() && bringsNothing(*found, cell))
        return false;
    ItemRoleMap &have = stored[column]; // made when missing, also for an empty incoming cell
    if (cell.isEmpty())
        return false;
    if (sums)
        sums->cellLeaves(column, have);
    for (auto role = cell.constBegin(); role != cell.constEnd(); ++role) {
        const auto value = have.find(role.key());
        if (value == have.end())
            have.insert(role.key(), role.value());
        else if (*value != role.value())
            *value = role.value();
    }
    if (sums)
        sums->cellEnters(column, have);
    return true;
}
