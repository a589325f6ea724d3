#include "ZrHeaderDrag.h"

#include <QtWidgets/QApplication>
#include <QtWidgets/QHeaderView>

ZrHeaderDrag::ZrHeaderDrag(const QHeaderView &head)
    : m_head(head)
{
}

void ZrHeaderDrag::begin(int section, int positionPx)
{
    m_section = section;
    m_target = section;
    m_startPx = positionPx;
    m_moving = false;
}

void ZrHeaderDrag::moveTo(int positionPx)
{
    const bool farEnough = m_moving || qAbs(positionPx - m_startPx) >= QApplication::startDragDistance();
    const int visual = m_head.visualIndexAt(positionPx);
    // Outside all sections the base keeps the last target.
    if (m_section < 0 || positionPx < 0 || !farEnough || visual < 0)
        return;
    const bool overFirst = visual == 0 && m_head.logicalIndex(0) == 0;
    if (overFirst && !m_head.isFirstSectionMovable())
        return;
    m_moving = true;
    m_target = targetAt(positionPx);
}

void ZrHeaderDrag::end()
{
    m_section = -1;
    m_target = -1;
    m_moving = false;
}

int ZrHeaderDrag::targetAt(int positionPx) const
{
    const int visual = m_head.visualIndexAt(positionPx);
    const int moving = m_head.visualIndex(m_section);
    const int over = m_head.logicalIndex(visual);
    const int middlePx = m_head.sectionPosition(over) - m_head.offset() + m_head.sectionSize(over) / 2;
    if (visual < moving)
        return positionPx < middlePx ? over : m_head.logicalIndex(visual + 1);
    if (visual > moving)
        return positionPx > middlePx ? over : m_head.logicalIndex(visual - 1);
    return m_section;
}
