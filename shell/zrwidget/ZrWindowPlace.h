#pragma once

#include "zrwidget_global.h"

#include <QtCore/QRect>

class QWidget;

/// Where the library's own windows open: over what they belong to, or in the middle of the screen in use.
///
/// Shape:     a window has a position mode; its number travels through constructors as a plain int.
/// Units:     global logical px.
/// Ownership: windows are borrowed.
/// Threads:   GUI thread only.
/// Errors:    without a target and without a screen under the pointer a window stays where it is.
class ZRWIDGET_PRIVATE_EXPORT ZrWindowPlace
{
public:
    enum Mode {
        Leave = 0,         // and anything below
        OverParent = 1,    // centred on the parent
        OverMainWindow = 2 // centred on the topmost ancestor; any higher number has the screen alone
    };

    /// Centres `window` as its mode says.
    static void place(QWidget *window, int mode);
    /// No larger than the screen in use, less an edge; a window as large as that goes to the screen's corner.
    static void fitToScreen(QWidget *window);
    /// What the mode centres on; null when there is nothing of a usable size.
    static QRect target(const QWidget &window, int mode);
    /// Where windows may lie on the screen that the pointer is on; null when it's on none.
    static QRect screenInUse();
    /// The ancestor above all others, also above windows on the way; null for a widget without a parent.
    static QWidget *topmostAncestor(const QWidget &widget);

private:
    ZrWindowPlace() = delete;
};
