#pragma once

#include <QtCore/QHash>

#include <functional>
#include <mutex>

/// How far the slowest grid is with a feed: what the feed's player may go by.
///
/// Shape:   the monitor tells which messages have come, each grid which orders it has taken. A message is
/// done
///          when every grid has taken the orders up to it; with no grid, when it has come. A grid counts from
///          its first report on, so that a plugin that shows something else holds up nothing.
/// Threads: any. The call comes on the thread of who told.
class ZrFeedProgress
{
public:
    using DoneCall = std::function<void(qint64 number)>;

    explicit ZrFeedProgress(const DoneCall &done);

    void came(qint64 number, bool isOrder);
    /// `grid` is any number that tells one from another.
    void taken(quintptr grid, qint64 number);
    void gridGone(quintptr grid);

private:
    qint64 doneNumber() const;

    const DoneCall m_done;
    std::mutex m_mutex;
    QHash<quintptr, qint64> m_taken; // grid to the highest order that it has taken
    qint64 m_lastCame = -1;
    qint64 m_lastOrder = -1;
};
