#pragma once

#include "zrwidget_global.h"

#include <QtCore/QString>

class QEvent;
class QWidget;

/// What the library's dialogs have in common at the keyboard: the escape key, and which button has the focus
/// when they open.
///
/// Ownership: windows and events are borrowed.
/// Threads:   GUI thread only.
/// Errors:    a button that is missing, hidden or disabled gets no focus.
class ZRWIDGET_PRIVATE_EXPORT ZrDialogKeys
{
public:
    enum class Escape {
        None,      // another event
        Swallowed, // the key may not close this window here: the event goes no further
        Closes     // the key may close the window; how is the window's business
    };

    static Escape escapeOf(const QEvent &event, bool mayClose);
    /// Gives the focus to the button of that object name; true when it could take it.
    static bool focusButton(QWidget *window, const QString &objectName);

private:
    ZrDialogKeys() = delete;
};
