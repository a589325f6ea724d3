#include "ZrWindowPlace.h"

#include "ZrScreenFit.h"

#include <QtGui/QCursor>
#include <QtGui/QGuiApplication>
#include <QtGui/QScreen>
#include <QtWidgets/QWidget>

namespace {

// A narrower target is a helper widget that nobody sees, and a window over it would hang in a corner.
constexpr int narrowestTargetPx = 20;

} // namespace

void ZrWindowPlace::place(QWidget *window, int mode)
{
    if (!window || mode <= Leave)
        return;
    const QRect wanted = target(*window, mode);
    const QRect over = wanted.isNull() ? screenInUse() : wanted;
    if (!over.isNull())
        window->move(ZrScreenFit::centred(window->frameGeometry(), over));
}

void ZrWindowPlace::fitToScreen(QWidget *window)
{
    const QRect screen = screenInUse();
    if (!window || screen.isNull())
        return;
    const QPoint corner = ZrScreenFit::corner(window->frameGeometry(), screen);
    window->setMaximumSize(ZrScreenFit::most(screen));
    if (corner != window->frameGeometry().topLeft())
        window->move(corner);
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
    QList<QRect> available;
    const QList<QScreen *> screens = QGuiApplication::screens();
    for (const QScreen *const screen : screens)
        available.append(screen->availableGeometry());
    return ZrScreenFit::screenAt(available, QCursor::pos());
}

QWidget *ZrWindowPlace::topmostAncestor(const QWidget &widget)
{
    QWidget *found = widget.parentWidget();
    while (found && found->parentWidget())
        found = found->parentWidget();
    return found;
}
