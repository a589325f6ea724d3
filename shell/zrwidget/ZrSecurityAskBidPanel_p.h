#pragma once

#include "ZrLadderClicks.h"
#include "ZrLadderState.h"

class QEvent;
class ZrSecurityAskBidPanel;

/// What a ladder holds, and what pointer and clock do to it.
///
/// Shape:     the facade writes the state and calls refresh() or reset(); pointer events come here as points.
/// Ownership: the facade's.
/// Threads:   GUI thread only.
class ZrSecurityAskBidPanelPrivate
{
public:
    explicit ZrSecurityAskBidPanelPrivate(ZrSecurityAskBidPanel *facade);

    ZrLadderState state;
    ZrLadderClicks clicks;
    int bandFlag = 0; // 1 and 2 hold the band shown and hidden
    bool isHoverable = false;

    void begin();
    /// Rectangles by the widget's size, then refresh().
    void reset();
    /// The selected row's rectangle, and a repaint.
    void refresh();
    /// Stores what differs, and refreshes.
    template<typename Value>
    void change(Value *stored, const Value &value)
    {
        if (*stored == value)
            return;
        *stored = value;
        refresh();
    }

    void hover(QEvent *event);
    void press(const QPointF &point);
    void release(const QPointF &point);
    void doubleClick(const QPointF &point);
    void ring(int timerId);

private:
    void hoverAt(const QPointF &point);
    void releaseOnPlainBand(const QPointF &point);
    void releaseOnRow(int row, const QRectF &hit, const QPointF &point);
    void expect(const QRectF &hit, const QPointF &point, const ZrSecurityAskBidData &level);

    ZrSecurityAskBidPanel *const q; // not owned
};
