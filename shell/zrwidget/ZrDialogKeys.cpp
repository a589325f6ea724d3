#include "ZrDialogKeys.h"

#include <QtGui/QKeyEvent>
#include <QtWidgets/QPushButton>

ZrDialogKeys::Escape ZrDialogKeys::escapeOf(const QEvent &event, bool mayClose)
{
    if (event.type() != QEvent::KeyPress || static_cast<const QKeyEvent &>(event).key() != Qt::Key_Escape)
        return Escape::None;
    return mayClose ? Escape::Closes : Escape::Swallowed;
}

bool ZrDialogKeys::focusButton(QWidget *window, const QString &objectName)
{
    auto *const button = window ? window->findChild<QPushButton *>(objectName) : nullptr;
    // A window that is about to be shown isn't visible yet; its shown parts are, seen from it.
    if (!button || !button->isVisibleTo(window) || !button->isEnabled())
        return false;
    button->setFocus(Qt::OtherFocusReason);
    return true;
}
