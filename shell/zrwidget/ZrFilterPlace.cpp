#include "ZrFilterPlace.h"

QPoint ZrFilterPlace::of(const QRect &button, const QSize &popup, const QRect &screen)
{
    QPoint place = button.bottomLeft();
    if (screen.isNull())
        return place;
    if (place.x() + popup.width() - 1 > screen.right())
        place.rx() -= popup.width();
    place.rx() = qMax(place.x(), screen.left());
    const int above = button.top() - popup.height();
    if (place.y() + popup.height() - 1 > screen.bottom() && above >= screen.top())
        place.ry() = above;
    return place;
}
