#pragma once

#include "ZrBusItem.h"
#include "ZrFaultDice.h"
#include "ZrFaultSpec.h"

#include <QtCore/QHash>

#include <atomic>
#include <functional>
#include <memory>
#include <mutex>
#include <vector>

/// The road on which faults happen: items go in, and come out at their time, or never.
///
/// Shape:     a stream is the answers to one participant, or the publications of one type. What
///            reorder and burst hold back comes out with the next items of its stream, or after
///            holdMs when there are none.
/// Threads:   any. No lock is held while an exit is called.
class ZrFaultRoad
{
public:
    /// Where items come out.
    struct Exits
    {
        std::function<void(const ZrBusItem &item)> deliver;
        std::function<void(const ZrBusItem &item)> dropped;
        /// Runs the work after so many ms, unless the bus ends first.
        std::function<void(int delayMs, std::function<void()> work)> later;
    };

    static constexpr int holdMs = 20;

    explicit ZrFaultRoad(Exits exits);

    /// From now on, with fresh dice; what is held back comes out at its time.
    void setSpec(const ZrFaultSpec &spec);
    void send(const ZrBusItem &item);
    /// Forgets all that is held back.
    void clear();

private:
    /// An item that has passed all faults but its delay.
    struct Ready
    {
        ZrBusItem item;
        int delayMs;
    };
    using ReadyList = std::vector<Ready>;

    struct Hold
    {
        ReadyList items;
        quint64 ticket = 0; // of the release that waits; an older one finds nothing
    };

    struct Stream
    {
        explicit Stream(ZrFaultDice dice)
            : dice(dice)
        {
        }
        ZrFaultDice dice;
        Hold overtaken; // by reorder
        Hold gathering; // by burst
    };

    std::shared_ptr<Stream> streamOf(const QString &key);
    /// What comes out now; the ticket of a release to ask for, or 0, goes to `ticket`.
    ReadyList passThrough(const ZrBusItem &item, const ZrFaultFate &fate, Stream *stream, quint64 *ticket);
    void release(const QString &key, quint64 ticket);
    void leave(const ReadyList &out);

    const Exits m_exits;
    std::mutex m_mutex; // guards all below
    ZrFaultSpec m_spec;
    std::atomic<bool> m_harmless{true}; // written under the mutex; a road without faults costs no lock
    QHash<QString, std::shared_ptr<Stream>> m_streams;
    quint64 m_lastTicket = 0;
};
