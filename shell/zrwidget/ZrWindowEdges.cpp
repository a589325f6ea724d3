#include "ZrWindowEdges.h"

namespace {
bool isNear(int one, int other)
{
    return qAbs(one - other) <= ZrWindowEdges::ReachPx;
}
} // namespace

int ZrWindowEdges::at(const QRect &frame, const QPoint &pos)
{
    return (isNear(pos.y(), frame.top()) ? Top : 0) | (isNear(pos.x(), frame.left()) ? Left : 0) |
           (isNear(pos.x(), frame.right()) ? Right : 0) | (isNear(pos.y(), frame.bottom()) ? Bottom : 0);
}

Qt::CursorShape ZrWindowEdges::cursor(int edges)
{
    switch (edges) {
    case Top:
    case Bottom:
        return Qt::SizeVerCursor;
    case Left:
    case Right:
        return Qt::SizeHorCursor;
    case Top | Left:
    case Right | Bottom:
        return Qt::SizeFDiagCursor;
    case Top | Right:
    case Left | Bottom:
        return Qt::SizeBDiagCursor;
    default: // a number, not an enumeration
        return Qt::ArrowCursor;
    }
}

QRect ZrWindowEdges::pulled(const QRect &rect, int edges, const QPoint &by)
{
    return rect.adjusted(edges & Left ? by.x() : 0, edges & Top ? by.y() : 0, edges & Right ? by.x() : 0,
                         edges & Bottom ? by.y() : 0);
}

QRect ZrWindowEdges::bounded(const QRect &rect, int edges, const QSize &most)
{
    QRect cut = rect;
    if (rect.width() > most.width()) {
        if (edges & Left)
            cut.setLeft(rect.right() - most.width() + 1);
        else
            cut.setWidth(most.width());
    }
    if (rect.height() > most.height()) {
        if (edges & Top)
            cut.setTop(rect.bottom() - most.height() + 1);
        else
            cut.setHeight(most.height());
    }
    return cut;
}
