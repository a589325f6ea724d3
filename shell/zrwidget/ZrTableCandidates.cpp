#include "ZrTableCandidates.h"

#include "ZrRoleKeys.h"

#include <cmath>

namespace {
// Doubles that differ in the twelfth digit count as equal, so a bucket spans some nine digits and its
// neighbours are looked into as well.
constexpr int c_stepBits = 29;
} // namespace

QVariant ZrTableCandidates::mark(const ItemRoleMap &cell)
{
    for (const QString *role : {&ITEM_DISPLAYROLE, &ITEM_USERROLE, &ITEM_CUSTOMROLE}) {
        const auto found = cell.constFind(*role);
        if (found != cell.constEnd())
            return *found;
    }
    return QVariant();
}

ZrTableCandidates::Kind ZrTableCandidates::kindOf(const QVariant &mark)
{
    switch (mark.userType()) {
    case QMetaType::QString:
        return Text;
    case QMetaType::Int:
    case QMetaType::UInt:
    case QMetaType::LongLong:
    case QMetaType::ULongLong:
    case QMetaType::Double:
        return Number;
    default:
        return Other;
    }
}

// Values of different types may be equal as well ("1" and 1): buckets serve only where all marks are of one
// kind.
ZrTableCandidates::Kind ZrTableCandidates::commonKind(const RecordDataList &rows, int column) const
{
    Kind common = Other;
    bool isFirst = true;
    for (const RecordData &record : rows) {
        const auto cell = record.constFind(column);
        if (cell == record.constEnd())
            continue;
        const Kind kind = kindOf(mark(*cell));
        if (kind == Other || (!isFirst && kind != common))
            return Other;
        common = kind;
        isFirst = false;
    }
    return common;
}

qint64 ZrTableCandidates::step(double value)
{
    if (!std::isfinite(value))
        return 0;
    int exponent = 0;
    const double fraction = std::frexp(std::fabs(value), &exponent);
    const qint64 steps = qint64(exponent) * (1 << c_stepBits) + qint64(std::ldexp(fraction, c_stepBits + 1));
    return value < 0 ? -steps : steps;
}

bool ZrTableCandidates::isIn(qint64 bucket, const ItemRoleMap &cell) const
{
    const auto found = m_buckets.constFind(bucket);
    if (found == m_buckets.constEnd())
        return false;
    for (const int position : *found) {
        if (m_cells.at(position) == cell)
            return true;
    }
    return false;
}

void ZrTableCandidates::add(const ItemRoleMap &cell)
{
    qint64 bucket = 0;
    if (m_kind == Text)
        bucket = qHash(mark(cell).toString());
    else if (m_kind == Number)
        bucket = step(mark(cell).toDouble());
    const bool isKnown =
        isIn(bucket, cell) || (m_kind == Number && (isIn(bucket - 1, cell) || isIn(bucket + 1, cell)));
    if (isKnown)
        return;
    m_buckets[bucket].append(m_cells.size());
    m_cells.append(cell);
}

QList<ItemRoleMap> ZrTableCandidates::distinctCells(const RecordDataList &rows, int column)
{
    ZrTableCandidates candidates;
    candidates.m_kind = candidates.commonKind(rows, column);
    for (const RecordData &record : rows) {
        const auto cell = record.constFind(column);
        if (cell != record.constEnd())
            candidates.add(*cell);
    }
    return candidates.m_cells;
}
