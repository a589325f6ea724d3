#include "ZrHeaderDropRule.h"

#include "ZrHeaderColumns.h"

#include <QtWidgets/QHeaderView>

ZrHeaderDropRule::ZrHeaderDropRule(const QHeaderView &head, int leftFrozen, int rightFrozen)
    : m_head(head)
    , m_leftFrozen(leftFrozen)
    , m_rightFrozen(rightFrozen)
{
}

bool ZrHeaderDropRule::allows(int from, int to) const
{
    const int count = m_head.count();
    if (from < 0 || to < 0 || from >= count || to >= count)
        return false;
    return to >= m_leftFrozen && to < count - m_rightFrozen && keepsGroups(from, to);
}

bool ZrHeaderDropRule::keepsGroups(int from, int to) const
{
    const QString group = ZrHeaderColumns::groupIdAtVisual(m_head, from);
    const QString targetGroup = ZrHeaderColumns::groupIdAtVisual(m_head, to);
    if (!group.isEmpty())
        return group == targetGroup;
    if (targetGroup.isEmpty())
        return true;
    // The target moves aside, towards where the section came from. What stands on the section's other side
    // then is the target's neighbour in the moving direction: the same group there means between two members.
    const int neighbour = from <= to ? to + 1 : to - 1;
    return ZrHeaderColumns::groupIdAtVisual(m_head, neighbour) != targetGroup;
}
