#include "ZrDistinctCells.h"

#include "ZrRecordFetch.h"

#include <QtCore/QDateTime>

#include <cmath>

namespace {
constexpr int FirstSlots = 64;

enum class Kind { Text, Number, Date, Time, Moment, Other };

Kind kindOf(const QVariant &value)
{
    switch (value.userType()) {
    case QMetaType::QString:
        return Kind::Text;
    case QMetaType::QDate:
        return Kind::Date;
    case QMetaType::QTime:
        return Kind::Time;
    case QMetaType::QDateTime:
        return Kind::Moment;
    case QMetaType::Int:
    case QMetaType::UInt:
    case QMetaType::LongLong:
    case QMetaType::ULongLong:
    case QMetaType::Double:
        return Kind::Number;
    }
    return Kind::Other;
}

double orderOf(const QVariant &value, Kind kind)
{
    switch (kind) {
    case Kind::Number:
        return value.toDouble();
    case Kind::Date:
        return double(value.toDate().toJulianDay());
    case Kind::Time:
        return value.toTime().msecsSinceStartOfDay();
    case Kind::Moment:
        return double(value.toDateTime().toMSecsSinceEpoch());
    case Kind::Text:
    case Kind::Other:
        break;
    }
    return 0;
}

/// The next of several values, in their order.
quint64 mixed(quint64 seed, quint64 value)
{
    const quint64 odd = 0x9e3779b97f4a7c15; // spreads neighbours over all bits
    const quint64 sum = (seed ^ value) * odd;
    return sum ^ (sum >> 32);
}
} // namespace

void ZrDistinctCells::Probe::take(const QString &name, const QVariant &value)
{
    const Kind kind = kindOf(value);
    names = mixed(names, qHash(name));
    kinds = mixed(kinds, quint64(kind) + 1);
    if (kind == Kind::Other)
        return;
    if (kind == Kind::Text) {
        texts = mixed(texts, qHash(*static_cast<const QString *>(value.constData())));
        return;
    }
    const double order = orderOf(value, kind);
    if (!hasNumber) {
        hasNumber = true;
        number = order;
    }
    canBeEqual = canBeEqual && !std::isnan(order);
}

QList<ItemRoleMap> ZrDistinctCells::ofColumn(const RecordDataList &rows, int column)
{
    ZrDistinctCells distinct;
    distinct.reserve(rows.size());
    const QList<int> columns{column};
    for (int row = 0; row < rows.size(); ++row) {
        if (row % ZrRecordFetch::BlockSize == 0)
            ZrRecordFetch::keys(rows, row, columns);
        const RecordData &record = rows.at(row);
        const auto cell = record.constFind(column);
        if (cell != record.constEnd())
            distinct.add(*cell);
    }
    return distinct.m_cells;
}

void ZrDistinctCells::reserve(int count)
{
    m_cells.reserve(count);
    m_hashes.reserve(count);
}

bool ZrDistinctCells::add(const ItemRoleMap &cell)
{
    Probe probe;
    for (auto it = cell.constBegin(); it != cell.constEnd(); ++it)
        probe.take(it.key(), it.value());
    if (probe.canBeEqual) {
        if (isKnown(probe, cell) || isKnownAmongOtherForms(probe, cell))
            return false;
        enter(probe, m_cells.size());
    }
    m_cells.append(cell);
    return true;
}

bool ZrDistinctCells::isKnown(const Probe &probe, const ItemRoleMap &cell) const
{
    const quint64 hash = mixed(probe.form(), probe.texts);
    return probe.hasNumber ? isKnownNumber(hash, probe.number, cell) : isKnownText(hash, cell);
}

bool ZrDistinctCells::isKnownText(quint64 hash, const ItemRoleMap &cell) const
{
    if (m_slots.isEmpty())
        return false;
    const quint64 mask = quint64(m_slots.size()) - 1;
    for (quint64 slot = hash & mask; m_slots.at(int(slot)) != 0; slot = (slot + 1) & mask) {
        const int position = m_slots.at(int(slot)) - 1;
        if (m_hashes.at(position) == hash && m_cells.at(position) == cell)
            return true;
    }
    return false;
}

bool ZrDistinctCells::isKnownNumber(quint64 hash, double number, const ItemRoleMap &cell) const
{
    const auto found = m_buckets.constFind(hash);
    if (found == m_buckets.constEnd())
        return false;
    // Wider than the twelve digits by which numbers are compared.
    const double reach = std::abs(number) * 1e-11;
    const auto end = found->upper_bound(number + reach);
    for (auto it = found->lower_bound(number - reach); it != end; ++it) {
        if (m_cells.at(it->second) == cell)
            return true;
    }
    return false;
}

bool ZrDistinctCells::isKnownAmongOtherForms(const Probe &probe, const ItemRoleMap &cell) const
{
    // A column mixes texts and numbers under one role only when different producers feed it: rare enough
    // for a plain scan.
    const quint64 own = probe.form();
    if (m_forms.size() == 1 && m_forms.constBegin().key() == own)
        return false;
    for (auto form = m_forms.constBegin(); form != m_forms.constEnd(); ++form) {
        if (form.key() == own || form->names != probe.names)
            continue;
        for (const int position : form->cells) {
            if (m_cells.at(position) == cell)
                return true;
        }
    }
    return false;
}

void ZrDistinctCells::enter(const Probe &probe, int position)
{
    const quint64 hash = mixed(probe.form(), probe.texts);
    if (probe.hasNumber)
        m_buckets[hash].emplace(probe.number, position);
    else
        enterText(hash, position);
    Form &form = m_forms[probe.form()];
    form.names = probe.names;
    form.cells.append(position);
}

void ZrDistinctCells::enterText(quint64 hash, int position)
{
    if (2 * (m_textCount + 1) > m_slots.size())
        growTexts();
    m_hashes.resize(position + 1);
    m_hashes[position] = hash;
    const quint64 mask = quint64(m_slots.size()) - 1;
    quint64 slot = hash & mask;
    while (m_slots.at(int(slot)) != 0)
        slot = (slot + 1) & mask;
    m_slots[int(slot)] = position + 1;
    ++m_textCount;
}

void ZrDistinctCells::growTexts()
{
    const QVector<int> before = m_slots;
    m_slots = QVector<int>(qMax(FirstSlots, before.size() * 2), 0);
    const quint64 mask = quint64(m_slots.size()) - 1;
    for (const int entry : before) {
        if (entry == 0)
            continue;
        quint64 slot = m_hashes.at(entry - 1) & mask;
        while (m_slots.at(int(slot)) != 0)
            slot = (slot + 1) & mask;
        m_slots[int(slot)] = entry;
    }
}
