#include "ZrFieldRoles.h"

QVariant ZrFieldRoles::value(int role) const
{
    return m_values.value(role);
}

void ZrFieldRoles::setValue(int role, const QVariant &value)
{
    m_values.insert(role, value);
}
