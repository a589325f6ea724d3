#include "ZrScreenFit.h"

QRect ZrScreenFit::screenAt(const QList<QRect> &screens, const QPoint &pos)
{
    for (const QRect &screen : screens) {
        if (screen.contains(pos))
            return screen;
    }
    return QRect();
}

QSize ZrScreenFit::most(const QRect &screen)
{
    return (screen.size() - QSize(2 * EdgePx, 2 * EdgePx)).expandedTo(QSize(1, 1));
}

QPoint ZrScreenFit::corner(const QRect &frame, const QRect &screen)
{
    const QSize bound = most(screen);
    // One that has just the bound's size has mostly been cut to it, and only the corner leaves room for that.
    return {frame.width() >= bound.width() ? screen.left() + EdgePx : frame.left(),
            frame.height() >= bound.height() ? screen.top() + EdgePx : frame.top()};
}

QPoint ZrScreenFit::centred(const QRect &frame, const QRect &target)
{
    return {target.left() + (target.width() - frame.width()) / 2,
            target.top() + (target.height() - frame.height()) / 2};
}
