#include "ZrGridSetting.h"

#include <algorithm>

ZrGridSetting::ZrGridSetting() = default;

ZrGridSetting::ZrGridSetting(const ZrGridSetting &other) = default;

ZrGridSetting &ZrGridSetting::operator=(const ZrGridSetting &other) = default;

ZrGridSetting::~ZrGridSetting() = default;

void ZrGridSetting::addFieldSetting(ZrFieldSetting field)
{
    m_fields.append(field);
}

QList<ZrFieldSetting> ZrGridSetting::getFieldSetList() const
{
    return m_fields;
}

void ZrGridSetting::sortZrFieldSetting()
{
    // Stable, so that a file with a double index looks the same at every start.
    std::stable_sort(
        m_fields.begin(), m_fields.end(),
        [](const ZrFieldSetting &left, const ZrFieldSetting &right) { return left.index < right.index; });
}
