#pragma once

#include "zrwidget_global.h"

#include <QtCore/QPoint>
#include <QtCore/QRect>
#include <QtCore/QSize>

/// The edges by which a frameless window is resized: which of them the pointer is at, and what a window
/// becomes when they are pulled.
///
/// Shape:     a bit mask of edges; two neighbouring edges are a corner.
///
///     3---1---5        1 top, 2 left, 4 right, 8 bottom
///     |       |
///     2       4
///     |       |
///    10---8--12
///
/// Units:     global logical px.
/// Threads:   any.
/// Errors:    none; opposite edges at once, in a window hardly larger than its edges, have the arrow as
///            cursor.
class ZRWIDGET_PRIVATE_EXPORT ZrWindowEdges
{
public:
    enum Edge { Top = 1, Left = 2, Right = 4, Bottom = 8 };
    static constexpr int ReachPx = 10; // to both sides of an edge

    /// The edges that `pos` is within reach of; it may lie outside of the frame.
    static int at(const QRect &frame, const QPoint &pos);
    static Qt::CursorShape cursor(int edges);
    /// `rect` with its edges moved by that much.
    static QRect pulled(const QRect &rect, int edges, const QPoint &by);
    /// `rect` no larger than `most`; what is too much goes at the edges that were pulled.
    static QRect bounded(const QRect &rect, int edges, const QSize &most);

private:
    ZrWindowEdges() = delete;
};
