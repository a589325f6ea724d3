#pragma once

#include "zrwidget_global.h"

#include <QtCore/QRect>

/// Where the popup of a filter button opens.
///
///     +---------------- head ---------------+
///     | Symbol   [v] | Price             [v]|
///     +------------+-+----------------------+-+
///                  | popup     |  | popup     | <- moved left by its width
///                  +-----------+  +-----------+
///
/// Shape:   with its left top corner at the button's left bottom one. A popup that would pass the right edge
/// of the
///          screen moves left by its width. One that would leave the screen all the same is brought in: at
///          the left edge, and above the button where there is no room below it.
/// Units:   global logical px.
/// Threads: any; no state.
class ZRWIDGET_PRIVATE_EXPORT ZrFilterPlace
{
public:
    /// `screen` is where windows may lie on the screen of the head; a null one bounds nothing.
    static QPoint of(const QRect &button, const QSize &popup, const QRect &screen);

private:
    ZrFilterPlace() = delete;
};
