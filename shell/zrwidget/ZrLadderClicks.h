#pragma once

#include "ZrSecurityAskBidData.h"
#include "zrwidget_global.h"

class QObject;

/// What a click on a ladder meant, once it is sure that no second one follows.
struct ZrLadderClick
{
    enum Kind {
        None = 0,
        Price = 1,  // takes price and quantity over
        Level = 2,  // on the level's own cell
        Double = 3, // on the selected row
    };

    Kind kind = None;
    ZrSecurityAskBidData level;
};

/// The clock that tells a single click from a double one.
///
///     none --expect(Price | Level)--> waiting --the time is over--> take() gives it
///                                        |  ^
///                                        +--+ expect(): what waited is forgotten
///
/// Shape:     the last click of a series reports, and only that. The wait is far shorter than the desktop's
///            for a double click: who clicks twice slowly gets the single click first and then the double.
/// Units:     ms.
/// Ownership: borrows the object that its timer belongs to; the object's timerEvent() has to ask take().
/// Threads:   that of the owner.
class ZRWIDGET_PRIVATE_EXPORT ZrLadderClicks
{
public:
    static constexpr int waitMs = 100;

    explicit ZrLadderClicks(QObject *owner);

    /// Begins the wait anew.
    void expect(ZrLadderClick::Kind kind, const ZrSecurityAskBidData &level);
    /// The release that ends a double click is none of its own.
    bool isDoubleWaiting() const { return m_timer > 0 && m_pending.kind == ZrLadderClick::Double; }
    /// What waited for this timer, which ends; None for anybody else's timer.
    ZrLadderClick take(int timerId);

private:
    void stop();

    QObject *const m_owner; // not owned
    int m_timer = -1;       // 0 after it fired
    ZrLadderClick m_pending;
};
