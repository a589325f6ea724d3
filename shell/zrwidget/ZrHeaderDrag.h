#pragma once

#include "zrwidget_global.h"

class QHeaderView;

/// Follows the base head's drag of a section: what is dragged, whether it has begun to move, and where it
/// would land.
///
/// The base keeps this to itself, but a drop has to be judged before it happens. The rules here are the
/// base's: a move begins at the start-drag distance, and a section takes another's place when the pointer has
/// passed the middle of it. Units:   positions in px along the head, as mouse events bring them; sections are
/// view columns. Threads: GUI thread only.
class ZRWIDGET_PRIVATE_EXPORT ZrHeaderDrag
{
public:
    explicit ZrHeaderDrag(const QHeaderView &head);

    /// The base has taken up a section, which doesn't move yet.
    void begin(int section, int positionPx);
    /// The pointer moved with a button down.
    void moveTo(int positionPx);
    void end();

    /// True once the section has been dragged away from its place, even if it is back there now.
    bool isMoving() const { return m_moving; }
    int section() const { return m_section; }
    int target() const { return m_target; }

private:
    int targetAt(int positionPx) const;

    const QHeaderView &m_head; // owns this
    int m_section = -1;
    int m_target = -1;
    int m_startPx = 0;
    bool m_moving = false;
};
