#include "ZrMultiComboKeys.h"

#include "ZrMultiComboList.h"

#include <QtGui/QKeyEvent>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QLineEdit>

ZrMultiComboKeys::ZrMultiComboKeys(QComboBox *box, ZrMultiComboList *list)
    : QObject(box)
    , m_box(box)
    , m_list(list)
{
    m_box->installEventFilter(this);
    m_box->lineEdit()->installEventFilter(this);
    m_list->installEventFilter(this);
}

bool ZrMultiComboKeys::eventFilter(QObject *watched, QEvent *event)
{
    switch (int(event->type())) {
    case QEvent::KeyPress:
        return keyPress(static_cast<QKeyEvent *>(event));
    case QEvent::ShortcutOverride:
        // Before a shortcut of the window takes the key.
        if (meaningOf(static_cast<QKeyEvent *>(event)) == Meaning::None)
            break;
        event->accept();
        return true;
    case QEvent::Wheel:
        if (watched == m_list)
            break;
        // The base would change its current row, which this box doesn't show.
        event->ignore();
        return true;
    }
    return QObject::eventFilter(watched, event);
}

ZrMultiComboKeys::Meaning ZrMultiComboKeys::meaningOf(const QKeyEvent *event) const
{
    const Qt::KeyboardModifiers modifiers = event->modifiers() & ~Qt::KeypadModifier;
    const bool isOpen = m_list->isVisible();
    switch (event->key()) {
    case Qt::Key_Space:
    case Qt::Key_Select:
        if (modifiers != Qt::NoModifier)
            return Meaning::None;
        return isOpen ? Meaning::Tick : Meaning::Open;
    case Qt::Key_F4:
        if (modifiers != Qt::NoModifier)
            return Meaning::None;
        return isOpen ? Meaning::Close : Meaning::Open;
    case Qt::Key_Up:
    case Qt::Key_Down:
        if (isOpen)
            return modifiers == Qt::AltModifier ? Meaning::Close : Meaning::None;
        return modifiers == Qt::NoModifier || modifiers == Qt::AltModifier ? Meaning::Open : Meaning::None;
    case Qt::Key_PageUp:
    case Qt::Key_PageDown:
        return isOpen || modifiers != Qt::NoModifier ? Meaning::None : Meaning::Open;
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_Escape:
        // On the closed box Enter is the box's own matter, and Escape that of a surrounding dialog.
        return isOpen ? Meaning::Close : Meaning::None;
    }
    return Meaning::None;
}

bool ZrMultiComboKeys::keyPress(const QKeyEvent *event)
{
    switch (meaningOf(event)) {
    case Meaning::None:
        return false;
    case Meaning::Open:
        m_box->showPopup();
        return true;
    case Meaning::Close:
        m_box->hidePopup();
        return true;
    case Meaning::Tick:
        // A key held down is one tick, not a flicker.
        if (!event->isAutoRepeat())
            m_list->clickCurrent();
        return true;
    }
    return false;
}
