#include "ZrShowcaseGrid.h"

#include <QtWidgets/QWidget>

namespace {
constexpr int Pitch = ZrShowcaseGrid::StepPx;
constexpr int LeastColumns = 2;

int columnsOf(const QLayoutItem *item)
{
    const int width = item->sizeHint().expandedTo(item->minimumSize()).width();
    return qMax(LeastColumns, (width + ZrShowcaseGrid::GapPx + Pitch - 1) / Pitch);
}

int heightOf(const QLayoutItem *item, int width)
{
    const int least = item->sizeHint().expandedTo(item->minimumSize()).height();
    return item->hasHeightForWidth() ? qMax(item->minimumSize().height(), item->heightForWidth(width))
                                     : least;
}
} // namespace

ZrShowcaseGrid::ZrShowcaseGrid(QWidget *parent)
    : QLayout(parent)
{
    setContentsMargins(0, 0, 0, 0);
}

ZrShowcaseGrid::~ZrShowcaseGrid()
{
    qDeleteAll(m_items);
}

void ZrShowcaseGrid::addItem(QLayoutItem *item)
{
    m_items.append(item);
}

QLayoutItem *ZrShowcaseGrid::itemAt(int index) const
{
    return m_items.value(index);
}

QLayoutItem *ZrShowcaseGrid::takeAt(int index)
{
    return index >= 0 && index < m_items.size() ? m_items.takeAt(index) : nullptr;
}

int ZrShowcaseGrid::heightForWidth(int width) const
{
    return layOut(QRect(0, 0, width, 0), false);
}

// Room for any one of them: how high all lines are depends on the width, which is not known here.
QSize ZrShowcaseGrid::minimumSize() const
{
    QSize size(LeastPx, 0);
    for (const QLayoutItem *const item : m_items) {
        const int width = columnsOf(item) * Pitch - GapPx;
        size = size.expandedTo({width, heightOf(item, width)});
    }
    return size;
}

void ZrShowcaseGrid::setGeometry(const QRect &rect)
{
    QLayout::setGeometry(rect);
    layOut(rect, true);
}

int ZrShowcaseGrid::layOut(const QRect &rect, bool place) const
{
    const int most = qMax(1, (rect.width() + GapPx) / Pitch);
    int column = 0;
    int top = 0;
    int lineHeight = 0;
    for (QLayoutItem *const item : m_items) {
        const int columns = columnsOf(item);
        if (column > 0 && column + columns > most) {
            column = 0;
            top += lineHeight + GapPx;
            lineHeight = 0;
        }
        const int width = columns * Pitch - GapPx;
        const int height = heightOf(item, width);
        if (place)
            item->setGeometry({rect.x() + column * Pitch, rect.y() + top, width, height});
        lineHeight = qMax(lineHeight, height);
        column += columns;
    }
    return top + lineHeight;
}
