#include "ZrHeaderColumns.h"

#include "ZrHeaderHost.h"
#include "ZrRoleKeys.h"

#include <QtWidgets/QHeaderView>

#include <limits>

const int ZrHeaderColumns::none = std::numeric_limits<int>::min();

int ZrHeaderColumns::logicalColumn(const QHeaderView &head, int section)
{
    if (section < 0 || section >= head.count() || !head.model())
        return none;
    const QVariant number = head.model()->headerData(section, head.orientation(), ZrColumnIndexRole);
    if (number.isValid())
        return number.toInt();
    const ZrHeaderHost *const host = ZrHeaderHost::of(&head);
    return host ? section - host->pseudoColumnCount() : none;
}

QString ZrHeaderColumns::groupId(const QHeaderView &head, int section)
{
    if (section < 0 || !head.model())
        return QString();
    return head.model()->headerData(section, head.orientation(), ZrGroupIdRole).toString();
}

QString ZrHeaderColumns::groupIdAtVisual(const QHeaderView &head, int visualIndex)
{
    return groupId(head, head.logicalIndex(visualIndex));
}
