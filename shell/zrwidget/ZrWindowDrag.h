#pragma once

#include "zrwidget_global.h"

#include <QtCore/QPoint>
#include <QtCore/QRect>

class QMouseEvent;
class QWidget;

/// Lets the user move a frameless window by a grip, mostly its title.
///
/// Shape:     the window hands its mouse events in; those that belong to a drag are accepted.
///
///     press in the grip --> isDragging() --> move() follows the pointer --> release()
///
/// Units:     global logical px; the offset is the pointer's distance from the window's corner.
/// Ownership: keeps a borrowed pointer to the window, whose member this is.
/// Threads:   GUI thread only.
/// Errors:    a release that went elsewhere is noticed at the next press or move.
class ZRWIDGET_PRIVATE_EXPORT ZrWindowDrag
{
public:
    explicit ZrWindowDrag(QWidget *window);

    /// The grip of a window that is moved by its uppermost `heightPx`.
    static QRect topStrip(const QWidget &window, int heightPx);

    /// Begins a drag at a press of the left button inside `grip` (global); true when it did.
    bool press(QMouseEvent *event, const QRect &grip);
    /// Moves the window while the left button is held; true when it did.
    bool move(QMouseEvent *event);
    void release();

    bool isDragging() const { return m_dragging; }
    QPoint offset() const { return m_offset; }

private:
    QWidget *const m_window; // not owned
    QPoint m_offset;
    bool m_dragging = false;
};
