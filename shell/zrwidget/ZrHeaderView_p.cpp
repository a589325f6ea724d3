#include "ZrHeaderView_p.h"

#include "ZrHeaderColumns.h"
#include "ZrHeaderGroupRun.h"
#include "ZrHeaderSectionLayout.h"

#include <QtWidgets/QHeaderView>

bool ZrHeaderViewPrivate::isFilterable(int logicalColumn) const
{
    return perColumnFilterable.value(logicalColumn, viewFilterable);
}

bool ZrHeaderViewPrivate::isSortable(int logicalColumn) const
{
    return perColumnSortable.value(logicalColumn, sortable);
}

bool ZrHeaderViewPrivate::hasTip(int logicalColumn) const
{
    return !headTips.value(logicalColumn).isEmpty();
}

ZrHeaderSectionLayout ZrHeaderViewPrivate::layoutOf(const QHeaderView &head, int section, const QRect &rect,
                                                    bool dragging) const
{
    const int column = ZrHeaderColumns::logicalColumn(head, section);
    ZrHeaderSectionLayout::Input input;
    input.section = rect;
    if (!dragging && !ZrHeaderColumns::groupId(head, section).isEmpty())
        input.groupBand = ZrHeaderGroupRun::of(head, section).band(rect);
    input.xMarginPx = headXMargin;
    input.filterButtonPx = filterButtonSize;
    input.filterable = isFilterable(column);
    input.hasTip = hasTip(column);
    return ZrHeaderSectionLayout(input);
}

void ZrHeaderViewPrivate::requestRepaint()
{
    emit repaintRequested();
}
