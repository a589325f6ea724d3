#include "ZrTableSums.h"

#include "ZrRoleKeys.h"

namespace {

// The value that the host adds: the first present raw value, else what is shown.
QVariant valueOf(const ItemRoleMap &cell)
{
    for (const QString *role : {&ITEM_USERROLE, &ITEM_CUSTOMROLE, &ITEM_DISPLAYROLE}) {
        const auto found = cell.constFind(*role);
        if (found != cell.constEnd())
            return *found;
    }
    return QVariant();
}

bool isSame(const QVariant &a, const QVariant &b)
{
    if (a.userType() != b.userType())
        return false;
    // Not by QVariant, which takes doubles that are nearly equal for equal.
    return a.userType() == QMetaType::Double
               ? !(a.toDouble() < b.toDouble()) && !(a.toDouble() > b.toDouble())
               : a == b;
}

} // namespace

void ZrTableSums::stop()
{
    m_active = false;
    m_agrees = false;
    m_checkDue = true;
    m_columns.clear();
    m_changed.clear();
}

void ZrTableSums::start(const RecordDataList &rows)
{
    stop();
    m_active = true;
    for (const RecordData &record : rows)
        enters(record);
    m_checkDue = true;
}

void ZrTableSums::enters(const RecordData &record)
{
    if (!m_active)
        return;
    for (auto it = record.constBegin(); it != record.constEnd(); ++it)
        count(it.key(), it.value(), 1);
}

void ZrTableSums::leaves(const RecordData &record)
{
    if (!m_active)
        return;
    for (auto it = record.constBegin(); it != record.constEnd(); ++it)
        count(it.key(), it.value(), -1);
}

void ZrTableSums::count(int column, const ItemRoleMap &cell, int step)
{
    if (!m_active)
        return;
    const QVariant value = valueOf(cell);
    if (!value.isValid())
        return;
    Column &sum = m_columns[column];
    const int kinds = sum.numbers.kinds();
    const bool hadTruth = sum.truthValues > 0;
    if (value.userType() == QMetaType::Bool) {
        sum.truthValues += step;
        sum.trueValues += value.toBool() ? step : 0;
    } else if (!sum.numbers.count(value, step)) {
        return;
    }
    if (kinds != sum.numbers.kinds() || hadTruth != (sum.truthValues > 0))
        m_checkDue = true;
    if (!sum.isChanged) {
        sum.isChanged = true;
        m_changed.append(column);
    }
}

QVariant ZrTableSums::total(int column) const
{
    const auto found = m_columns.constFind(column);
    return found == m_columns.constEnd() ? QVariant() : total(*found);
}

QVariant ZrTableSums::total(const Column &column) const
{
    const bool hasTruth = m_countsTruth && column.truthValues > 0;
    if (column.numbers.isEmpty() && !hasTruth)
        return QVariant();
    return column.numbers.total(hasTruth ? column.trueValues : 0);
}

QList<int> ZrTableSums::takeChangedColumns()
{
    QList<int> changed;
    changed.swap(m_changed);
    for (const int column : qAsConst(changed))
        m_columns[column].isChanged = false;
    return changed;
}

void ZrTableSums::check(const RecordData &hostSums, const QList<int> &leftOut)
{
    m_checkDue = false;
    m_agrees = m_active && agreesWith(hostSums, leftOut);
    if (m_active && !m_agrees) {
        m_countsTruth = !m_countsTruth;
        m_agrees = agreesWith(hostSums, leftOut);
    }
}

bool ZrTableSums::agreesWith(const RecordData &hostSums, const QList<int> &leftOut) const
{
    for (auto it = hostSums.constBegin(); it != hostSums.constEnd(); ++it) {
        if (leftOut.contains(it.key()) || !isSame(total(it.key()), it->value(ITEM_DISPLAYROLE)))
            return false;
    }
    for (auto it = m_columns.constBegin(); it != m_columns.constEnd(); ++it) {
        if (it->numbers.hasOdd())
            return false;
        if (total(*it).isValid() && !leftOut.contains(it.key()) && !hostSums.contains(it.key()))
            return false;
    }
    return true;
}
