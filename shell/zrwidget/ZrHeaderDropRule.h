#pragma once

#include "zrwidget_global.h"

class QHeaderView;

/// Decides whether a dragged section may land where it was dropped.
///
/// A group band spans neighbours, so a move may neither take a column out of its group nor part a group; and
/// frozen columns are counted from the edges, so nothing may be dropped among them.
/// Units:   visual indexes; frozen counts in view columns.
/// Threads: GUI thread only.
class ZRWIDGET_PRIVATE_EXPORT ZrHeaderDropRule
{
public:
    ZrHeaderDropRule(const QHeaderView &head, int leftFrozen, int rightFrozen);

    bool allows(int from, int to) const;

private:
    bool keepsGroups(int from, int to) const;

    const QHeaderView &m_head; // outlives the rule, which lives for one drop
    const int m_leftFrozen;
    const int m_rightFrozen;
};
