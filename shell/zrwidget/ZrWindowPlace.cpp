#include "ZrWindowPlace.h"

#include <QtGui/QCursor>
#include <QtGui/QGuiApplication>
#include <QtGui/QScreen>
#include <QtWidgets/QWidget>

namespace {

// A narrower target is a helper widget that nobody sees, and a window over it would hang in a corner.
constexpr int narrowestTargetPx = 20;

QPoint centredCorner(const QRect &target, const QRect &frame)
{
    return {target.left() + (target.width() - frame.width()) / 2,
            target.top() + (target.height() - frame.height()) / 2};
}

} // namespace

void ZrWindowPlace::place(QWidget *window, int mode)
{
    if (!window || mode <= Leave)
        return;
    const QRect wanted = target(*window, mode);
    const QRect over = wanted.isNull() ? screenInUse() : wanted;
    if (!over.isNull())
        window->move(centredCorner(over, window->frameGeometry()));
}

QRect ZrWindowPlace::target(const QWidget &window, int mode)
{
    const QWidget *over = nullptr;
    if (mode == OverParent)
        over = window.parentWidget();
    else if (mode == OverMainWindow)
        over = topmostAncestor(window);
    if (!over || over->frameGeometry().width() < narrowestTargetPx)
        return QRect();
    QRect rect = over->frameGeometry();
    // Inside another widget a geometry counts from that widget's corner.
    if (over->parentWidget())
        rect.moveTopLeft(over->mapToGlobal(QPoint(0, 0)));
    return rect;
}

QRect ZrWindowPlace::screenInUse()
{
    const QList<QScreen *> screens = QGuiApplication::screens();
    for (const QScreen *const screen : screens) {
        if (screen->availableGeometry().contains(QCursor::pos()))
            return screen->availableGeometry();
    }
    return QRect();
}

QWidget *ZrWindowPlace::topmostAncestor(const QWidget &widget)
{
    QWidget *found = widget.parentWidget();
    while (found && found->parentWidget())
        found = found->parentWidget();
    return found;
}
