#pragma once

#include "zrwidget_global.h"

#include <QtCore/QPoint>

class QMouseEvent;
class QWidget;

/// Lets the user resize a frameless window by its edges and corners.
///
/// Shape:     the window hands the mouse events of its outermost parts in.
///
///     move() without a press  -->  edges() and cursor follow the pointer
///     press()  -->  isResizing()  -->  move() pulls those edges  -->  release()
///
/// Units:     global logical px.
/// Ownership: keeps a borrowed pointer to the window, whose member this is.
/// Threads:   GUI thread only.
/// Errors:    a release that went elsewhere is noticed at the next move. A pull below the least size of the
///            window is left out as a whole; beyond the largest the window stops.
class ZRWIDGET_PRIVATE_EXPORT ZrWindowResize
{
public:
    explicit ZrWindowResize(QWidget *window);

    /// Begins a pull at the edges that the pointer was seen at last.
    void press(const QMouseEvent &event);
    void move(const QMouseEvent &event);
    void release();
    /// The pointer is at no edge any more, as far as its picture goes.
    void restoreCursor();

    bool isResizing() const { return m_resizing; }
    QPoint lastMousePos() const { return m_lastMousePos; }
    /// The edges that the pointer was seen at last, as ZrWindowEdges counts them: of whichever window.
    static int edges();

private:
    void hover(const QPoint &pos);
    void pull(const QPoint &pos);

    QWidget *const m_window; // not owned
    QPoint m_lastMousePos;   // up to where the edges have followed the pointer
    bool m_resizing = false;
};
