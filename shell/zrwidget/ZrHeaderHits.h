#pragma once

#include "zrwidget_global.h"

#include <QtCore/QRect>

class QHeaderView;
class ZrHeaderViewPrivate;

/// What a point of a head meets: a section's filter button or its tip.
///
/// Shape:     a part can be hit once it was painted, and where this head shows it now. The noted places alone
///            would not do: heads that share them stand at different offsets.
/// Units:     px, logical, in head coordinates.
/// Ownership: borrows head and state.
/// Threads:   GUI thread only.
class ZRWIDGET_PRIVATE_EXPORT ZrHeaderHits
{
public:
    ZrHeaderHits(const QHeaderView &head, const ZrHeaderViewPrivate &shared, const QPoint &point);

    int section() const { return m_section; } // -1 outside of all sections
    int column() const { return m_column; }   // logical
    bool isFilterButton() const;
    bool isTip() const;
    /// Place of the section's filter button; null when it has none.
    QRect filterButton() const;

private:
    QRect sectionRect() const;

    const QHeaderView &m_head;
    const ZrHeaderViewPrivate &m_shared;
    const QPoint m_point;
    const int m_section;
    const int m_column;
};
