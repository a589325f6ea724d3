#include "ZrDistinctCells.h"

#include <QtCore/QDateTime>

#include <cmath>

namespace {
// Parts of a compound hash key are closed by a character that no role key and few texts hold; a clash only
// costs a comparison.
const QChar Close(0x1f);

enum class Kind : char { Text = 's', Number = 'n', Date = 'd', Time = 't', Moment = 'm', Other = 'o' };

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
} // namespace

void ZrDistinctCells::Probe::take(const QString &name, const QVariant &value)
{
    const Kind kind = kindOf(value);
    const double order = orderOf(value, kind);
    const bool isNumber = kind != Kind::Text && kind != Kind::Other;
    names += name + Close;
    kinds += QLatin1Char(char(kind));
    if (kind == Kind::Text)
        texts += value.toString() + Close;
    if (isNumber && !hasNumber) {
        hasNumber = true;
        number = order;
    }
    canBeEqual = canBeEqual && !std::isnan(order);
}

bool ZrDistinctCells::add(const ItemRoleMap &cell)
{
    Probe probe;
    for (auto it = cell.constBegin(); it != cell.constEnd(); ++it)
        probe.take(it.key(), it.value());
    const int position = m_cells.size();
    if (probe.canBeEqual) {
        if (isKnown(probe, cell) || isKnownAmongOtherKinds(probe, cell))
            return false;
        m_buckets[probe.names + probe.kinds + Close + probe.texts].emplace(probe.number, position);
        m_kindsOf[probe.names][probe.kinds].append(position);
    }
    m_cells.append(cell);
    return true;
}

bool ZrDistinctCells::isKnown(const Probe &probe, const ItemRoleMap &cell) const
{
    const auto found = m_buckets.constFind(probe.names + probe.kinds + Close + probe.texts);
    if (found == m_buckets.constEnd())
        return false;
    // Wider than the twelve digits by which numbers are compared.
    const double reach = std::abs(probe.number) * 1e-11;
    const auto end = found->upper_bound(probe.number + reach);
    for (auto it = found->lower_bound(probe.number - reach); it != end; ++it) {
        if (m_cells.at(it->second) == cell)
            return true;
    }
    return false;
}

bool ZrDistinctCells::isKnownAmongOtherKinds(const Probe &probe, const ItemRoleMap &cell) const
{
    // A column mixes texts and numbers under one role only when different producers feed it: rare enough
    // for a plain scan.
    const auto found = m_kindsOf.constFind(probe.names);
    if (found == m_kindsOf.constEnd())
        return false;
    for (auto kinds = found->constBegin(); kinds != found->constEnd(); ++kinds) {
        if (kinds.key() == probe.kinds)
            continue;
        for (const int position : kinds.value()) {
            if (m_cells.at(position) == cell)
                return true;
        }
    }
    return false;
}
