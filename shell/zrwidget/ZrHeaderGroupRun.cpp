#include "ZrHeaderGroupRun.h"

#include "ZrHeaderColumns.h"

#include <QtWidgets/QHeaderView>

ZrHeaderGroupRun ZrHeaderGroupRun::of(const QHeaderView &head, int section)
{
    ZrHeaderGroupRun run;
    const int visual = head.visualIndex(section);
    if (visual < 0)
        return run;
    const QString group = ZrHeaderColumns::groupId(head, section);
    const int end = head.count() - 1;
    run.m_first = visual;
    while (run.m_first > 0 && ZrHeaderColumns::groupIdAtVisual(head, run.m_first - 1) == group) {
        --run.m_first;
        run.m_leftPx += head.sectionSize(head.logicalIndex(run.m_first));
    }
    run.m_last = visual;
    // The second test is skipped for the last section, not forgotten: see the header.
    while (run.m_last < end &&
           (run.m_last + 1 == end || ZrHeaderColumns::groupIdAtVisual(head, run.m_last + 1) == group)) {
        ++run.m_last;
        run.m_rightPx += head.sectionSize(head.logicalIndex(run.m_last));
    }
    return run;
}

QRect ZrHeaderGroupRun::band(const QRect &section) const
{
    return QRect(section.left() - m_leftPx, section.top(), m_leftPx + section.width() + m_rightPx,
                 section.height() / 2);
}
