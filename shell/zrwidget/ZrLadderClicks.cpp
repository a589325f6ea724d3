#include "ZrLadderClicks.h"

#include <QtCore/QObject>

ZrLadderClicks::ZrLadderClicks(QObject *owner)
    : m_owner(owner)
{
}

void ZrLadderClicks::expect(ZrLadderClick::Kind kind, const ZrSecurityAskBidData &level)
{
    stop();
    m_pending = {kind, level};
    m_timer = m_owner->startTimer(waitMs, Qt::CoarseTimer);
}

ZrLadderClick ZrLadderClicks::take(int timerId)
{
    if (m_timer <= 0 || timerId != m_timer)
        return ZrLadderClick();
    stop();
    // Forgotten before it is reported: whoever hears of it may open a dialog, in which the next click waits.
    const ZrLadderClick taken = m_pending;
    m_pending = ZrLadderClick();
    return taken;
}

void ZrLadderClicks::stop()
{
    if (m_timer > 0)
        m_owner->killTimer(m_timer);
    m_timer = 0;
}
