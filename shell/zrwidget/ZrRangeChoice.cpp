#include "ZrRangeChoice.h"

#include "ZrRoleKeys.h"

QString ZrRangeChoice::separator()
{
    return QStringLiteral(" \u2014 ");
}

ItemRoleMap ZrRangeChoice::make(const QString &low, const QString &high)
{
    ItemRoleMap choice;
    choice.insert(ITEM_DISPLAYROLE, QString(low + separator() + high));
    return choice;
}
