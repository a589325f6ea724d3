#pragma once

#include "ZrFieldSetting.h"

#include <QtCore/QList>

/// The columns of a grid, as a column configuration file gives them.
///
/// Shape:   plain value; copies share the list until one of them is written.
/// Threads: as any value.
/// Errors:  a double index is kept: both fields then describe one logical column.
class ZRWIDGET_EXPORT ZrGridSetting
{
public:
    ZrGridSetting();
    ZrGridSetting(const ZrGridSetting &other);
    ZrGridSetting &operator=(const ZrGridSetting &other);
    ~ZrGridSetting();

    /// Appends a column.
    void addFieldSetting(ZrFieldSetting field);
    /// The columns in their current order.
    QList<ZrFieldSetting> getFieldSetList() const;
    /// Sorts by index, ascending; no caller may count on the order of two equal ones.
    void sortZrFieldSetting();

private:
    QList<ZrFieldSetting> m_fields;
};
