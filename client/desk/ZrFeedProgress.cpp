#include "ZrFeedProgress.h"

#include <algorithm>

ZrFeedProgress::ZrFeedProgress(const DoneCall &done)
    : m_done(done)
{
}

qint64 ZrFeedProgress::doneNumber() const
{
    qint64 slowest = m_lastOrder;
    for (const qint64 number : m_taken)
        slowest = std::min(slowest, number);
    // Behind the last order nothing waits for a grid.
    return slowest >= m_lastOrder ? m_lastCame : slowest;
}

void ZrFeedProgress::came(qint64 number, bool isOrder)
{
    qint64 done = 0;
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        m_lastCame = std::max(m_lastCame, number);
        if (isOrder)
            m_lastOrder = std::max(m_lastOrder, number);
        done = doneNumber();
    }
    m_done(done);
}

void ZrFeedProgress::taken(quintptr grid, qint64 number)
{
    qint64 done = 0;
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        qint64 &highest = m_taken[grid]; // orders may come in another order than their numbers'
        highest = std::max(highest, number);
        done = doneNumber();
    }
    m_done(done);
}

void ZrFeedProgress::gridGone(quintptr grid)
{
    qint64 done = 0;
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        m_taken.remove(grid);
        done = doneNumber();
    }
    m_done(done);
}
