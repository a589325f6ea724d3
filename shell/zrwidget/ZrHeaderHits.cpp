#include "ZrHeaderHits.h"

#include "ZrHeaderColumns.h"
#include "ZrHeaderSectionLayout.h"
#include "ZrHeaderView_p.h"

#include <QtWidgets/QHeaderView>

ZrHeaderHits::ZrHeaderHits(const QHeaderView &head, const ZrHeaderViewPrivate &shared, const QPoint &point)
    : m_head(head)
    , m_shared(shared)
    , m_point(point)
    , m_section(head.logicalIndexAt(point))
    , m_column(ZrHeaderColumns::logicalColumn(head, m_section))
{
}

bool ZrHeaderHits::isFilterButton() const
{
    return filterButton().contains(m_point);
}

bool ZrHeaderHits::isTip() const
{
    if (m_section < 0 || !m_shared.tipRects.contains(m_column))
        return false;
    return m_shared.layoutOf(m_head, m_section, sectionRect(), false).tip.contains(m_point);
}

QRect ZrHeaderHits::filterButton() const
{
    if (m_section < 0 || !m_shared.filterButtonRects.contains(m_column))
        return QRect();
    return m_shared.layoutOf(m_head, m_section, sectionRect(), false).filterButton;
}

QRect ZrHeaderHits::sectionRect() const
{
    return QRect(m_head.sectionViewportPosition(m_section), 0, m_head.sectionSize(m_section),
                 m_head.viewport()->height());
}
