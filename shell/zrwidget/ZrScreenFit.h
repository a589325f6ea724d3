#pragma once

#include "zrwidget_global.h"

#include <QtCore/QList>
#include <QtCore/QPoint>
#include <QtCore/QRect>
#include <QtCore/QSize>

/// Where a window may lie, as plain geometry: several screens of any size, also left of and above the first.
///
/// Units:     global logical px; screens are the parts that windows may use.
/// Threads:   any.
/// Errors:    a place without a screen gives a null rectangle.
class ZRWIDGET_PRIVATE_EXPORT ZrScreenFit
{
public:
    static constexpr int EdgePx = 10; // what stays free at each side of a screen

    /// The first screen that holds the point.
    static QRect screenAt(const QList<QRect> &screens, const QPoint &pos);
    /// The largest window for a screen.
    static QSize most(const QRect &screen);
    /// Where a window's corner goes: it stays where it is, but one that takes all of the screen's width goes
    /// to its left, and one that takes all of its height to its top.
    static QPoint corner(const QRect &frame, const QRect &screen);
    /// The corner of a window in the middle of something.
    static QPoint centred(const QRect &frame, const QRect &target);

private:
    ZrScreenFit() = delete;
};
