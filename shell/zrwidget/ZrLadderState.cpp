#include "ZrLadderState.h"

#include "ZrBalanceColor.h"

void ZrLadderState::placeCurrent()
{
    if (geometry.rows() == 0 || book.levels().isEmpty())
        return;
    if (currentIndex >= 0 && currentIndex < geometry.rows())
        currentRect = geometry.row(currentIndex).adjusted(0, 0, 0, extraHeightPx());
    else
        currentRect = geometry.row(0);
}

void ZrLadderState::moveCurrent(bool forward)
{
    const int lastRow = book.rows() - 1;
    if (forward)
        currentIndex = currentIndex >= lastRow ? 0 : currentIndex + 1;
    else
        currentIndex = currentIndex <= 0 ? lastRow : currentIndex - 1;
}

QColor ZrLadderState::priceColor(double price) const
{
    if (price == 0.0 || price == previousClose)
        return ZrBalanceColor::current();
    return previousClose > price ? look.down : look.up;
}
