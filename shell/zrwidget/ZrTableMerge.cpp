#include "ZrTableMerge.h"

#include "ZrRecordFetch.h"
#include "ZrTableSums.h"

namespace {

// Role keys are mostly copies of one text, which a pointer tells.
bool isSameKey(const QString &a, const QString &b)
{
    return a.isSharedWith(b) || a == b;
}

// As QVariant compares, but without the copies that it makes of both texts.
bool isSameValue(const QVariant &a, const QVariant &b)
{
    if (a.userType() != QMetaType::QString || b.userType() != QMetaType::QString)
        return a == b;
    return *static_cast<const QString *>(a.constData()) == *static_cast<const QString *>(b.constData());
}

// Steps `value` to the role: cells are ordered by role, so two of them are walked side by side.
template<typename Iterator>
bool stepTo(const QString &role, Iterator &value, const Iterator &end)
{
    for (; value != end; ++value) {
        if (isSameKey(value.key(), role))
            return true;
        if (role < value.key())
            return false;
    }
    return false;
}

bool bringsNothing(const ItemRoleMap &have, const ItemRoleMap &cell)
{
    auto value = have.constBegin();
    for (auto role = cell.constBegin(); role != cell.constEnd(); ++role) {
        if (!stepTo(role.key(), value, have.constEnd()) || !isSameValue(*value, role.value()))
            return false;
    }
    return true;
}

} // namespace

// An update names neighbouring columns more often than not: the next cell is looked at before one is
// searched.
RecordData::const_iterator ZrTableMerge::findCell(const RecordData &record, RecordData::const_iterator last,
                                                  int column)
{
    if (last != record.constEnd() && last.key() < column) {
        ++last;
        if (last != record.constEnd() && last.key() == column)
            return last;
    }
    return record.constFind(column);
}

// Looks before it writes: a stored record may be shared with the caller who read or gave it, and an update
// that brings nothing new must not cost a copy.
void ZrTableMerge::merge(RecordData &stored, const RecordData &incoming, ZrTableSums *sums,
                         ZrChangedColumns &changed)
{
    ZrRecordFetch::cellsOf(stored, incoming);
    RecordData::const_iterator last = qAsConst(stored).constEnd();
    for (auto it = incoming.constBegin(); it != incoming.constEnd(); ++it) {
        const int column = it.key();
        const ItemRoleMap &cell = it.value();
        const auto found = findCell(stored, last, column);
        const bool isMissing = found == qAsConst(stored).constEnd();
        last = found;
        if (!isMissing && bringsNothing(*found, cell))
            continue;
        // Made when missing, also for an empty incoming cell. Either way the record may become a copy.
        const auto have = isMissing ? stored.insert(column, ItemRoleMap()) : stored.find(column);
        last = RecordData::const_iterator(have);
        if (cell.isEmpty())
            continue;
        if (sums)
            sums->cellLeaves(column, *have);
        write(*have, cell);
        if (sums)
            sums->cellEnters(column, *have);
        changed.append(column);
    }
}

void ZrTableMerge::write(ItemRoleMap &have, const ItemRoleMap &cell)
{
    auto value = have.begin();
    for (auto role = cell.constBegin(); role != cell.constEnd(); ++role) {
        if (!stepTo(role.key(), value, have.end()))
            have.insert(role.key(), role.value()); // in front of `value`, which stays
        else if (!isSameValue(*value, role.value()))
            *value = role.value();
    }
}
