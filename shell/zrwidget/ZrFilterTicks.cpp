#include "ZrFilterTicks.h"

#include "ZrRoleKeys.h"

#include <zrdefine/VexlorFields.h>

#include <algorithm>
#include <cmath>

namespace {
bool isNumber(const QVariant &value)
{
    switch (value.userType()) {
    case QMetaType::Int:
    case QMetaType::UInt:
    case QMetaType::LongLong:
    case QMetaType::ULongLong:
    case QMetaType::Double:
        return true;
    }
    return false;
}
} // namespace

ZrFilterTicks::ZrFilterTicks(const QList<QList<QVariantMap>> &groups)
{
    for (const QList<QVariantMap> &group : groups) {
        for (const QVariantMap &condition : group) {
            m_comments.insert(condition.value(Vexlor_Fields::Infomation::fieldComment).toString());
            addValue(condition.value(Vexlor_Fields::System::filterValue));
        }
    }
}

void ZrFilterTicks::addValue(const QVariant &value)
{
    const bool isText = value.userType() == QMetaType::QString;
    if (isText && m_texts.contains(value.toString()))
        return;
    if (isText)
        m_texts.insert(value.toString());
    else
        m_others.append(value);
    m_values.append(value);
    bool isReadable = false;
    const double number = value.toDouble(&isReadable);
    if (isReadable && std::isfinite(number))
        m_numbers.emplace(number, value);
}

bool ZrFilterTicks::holds(const ItemRoleMap &choice) const
{
    const auto raw = choice.constFind(ITEM_USERROLE);
    if (raw != choice.constEnd())
        return holdsRaw(*raw);
    return m_comments.contains(choice.value(ITEM_DISPLAYROLE).toString());
}

bool ZrFilterTicks::holdsRaw(const QVariant &raw) const
{
    const auto equalsRaw = [&raw](const QVariant &value) { return raw == value; };
    if (raw.userType() == QMetaType::QString)
        return m_texts.contains(*static_cast<const QString *>(raw.constData())) ||
               std::any_of(m_others.cbegin(), m_others.cend(), equalsRaw);
    const double number = isNumber(raw) ? raw.toDouble() : qQNaN();
    if (std::isfinite(number))
        return holdsNumber(raw, number);
    // Days, times and the like: columns of those offer ranges, which have no raw value.
    return std::any_of(m_values.cbegin(), m_values.cend(), equalsRaw);
}

bool ZrFilterTicks::holdsNumber(const QVariant &raw, double number) const
{
    // Wider than the twelve digits by which numbers are compared.
    const double reach = std::abs(number) * 1e-11;
    const auto end = m_numbers.upper_bound(number + reach);
    return std::any_of(m_numbers.lower_bound(number - reach), end,
                       [&raw](const auto &entry) { return raw == entry.second; });
}
