#include "ZrFieldSetting.h"

#include <QtCore/QDebug>

#include <utility>

ZrFieldSetting::ZrFieldSetting() = default;

ZrFieldSetting::ZrFieldSetting(int index, QString titleName, QString fieldNumber, int columnWidth,
                               QString type, QString displayRoleProperty, QString userRoleProperty,
                               QString exportViewRoleProperty, int columnAlignment, bool keyColumn,
                               bool filterable, int decimal, QString dateStyle, QString role)
    : index(index)
    , titleName(std::move(titleName))
    , fieldNumber(std::move(fieldNumber))
    , columnWidth(columnWidth)
    , type(std::move(type))
    , displayRoleProperty(std::move(displayRoleProperty))
    , userRoleProperty(std::move(userRoleProperty))
    , exportViewRoleProperty(std::move(exportViewRoleProperty))
    , columnAlignment(columnAlignment)
    , keyColumn(keyColumn)
    , filterable(filterable)
    , decimal(decimal)
    , dateStyle(std::move(dateStyle))
    , role(std::move(role))
{
}

ZrFieldSetting::ZrFieldSetting(const ZrFieldSetting &other) = default;

ZrFieldSetting &ZrFieldSetting::operator=(const ZrFieldSetting &other) = default;

ZrFieldSetting::~ZrFieldSetting() = default;

QDebug operator<<(QDebug debug, const ZrFieldSetting &field)
{
    const QDebugStateSaver saver(debug);
    debug.nospace() << "ZrFieldSetting(" << field.index << ", " << field.titleName << ", "
                    << field.fieldNumber << ", " << field.type << ", " << field.displayRoleProperty << ")";
    return debug;
}
