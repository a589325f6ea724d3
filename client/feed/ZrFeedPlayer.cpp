#include "ZrFeedPlayer.h"

#include "client/ZrClientFields.h"

namespace {
constexpr qint64 RoomCheckNs = 1000000;     // how often a waiting player looks for room
constexpr qint64 LongestRoomNs = 200000000; // then the receiver may have lost what it should acknowledge
constexpr qint64 FarAheadNs = Q_INT64_C(1000000000) * 86400 * 365;
} // namespace

ZrFeedPlayer::ZrFeedPlayer(std::unique_ptr<ZrFeedSource> source, const QList<QVariantMap> &accounts,
                           const Options &options, ZrFeedClock *clock)
    : m_source(std::move(source))
    , m_options(options)
    , m_clock(clock)
    , m_messages(m_source->zone(), accounts)
{
}

ZrFeedPlayer::~ZrFeedPlayer()
{
    stop();
}

void ZrFeedPlayer::start(const Sink &sink, const std::function<void()> &finished)
{
    if (m_thread.joinable())
        return;
    m_thread = std::thread([this, sink, finished] {
        run(sink);
        m_finished = true;
        if (finished)
            finished();
    });
}

void ZrFeedPlayer::stop()
{
    m_stopping = true;
    m_clock->interrupt();
    if (m_thread.joinable())
        m_thread.join();
}

void ZrFeedPlayer::acknowledge(qint64 number)
{
    // Messages may arrive out of order: the highest number counts.
    qint64 seen = m_seen.load();
    while (number + 1 > seen && !m_seen.compare_exchange_weak(seen, number + 1)) {
    }
}

void ZrFeedPlayer::waitForTime(const ZrFeedEvent &event)
{
    if (m_options.speed <= 0)
        return;
    if (!m_running) {
        m_running = event.kind != ZrFeedKind::Book && event.kind != ZrFeedKind::Phase;
        m_beganNs = m_clock->nowNs();
        m_firstNs = event.timeNs;
        return;
    }
    const double aheadNs = double(event.timeNs - m_firstNs) / m_options.speed;
    const qint64 dueNs = m_beganNs + qint64(qBound(0.0, aheadNs, double(FarAheadNs)));
    if (dueNs > m_clock->nowNs())
        m_clock->waitUntil(dueNs);
}

void ZrFeedPlayer::waitForRoom()
{
    const qint64 begunNs = m_clock->nowNs();
    while (!m_stopping && m_sent - m_seen > m_options.window && m_clock->nowNs() - begunNs < LongestRoomNs)
        m_clock->waitUntil(m_clock->nowNs() + RoomCheckNs);
}

void ZrFeedPlayer::run(const Sink &sink)
{
    ZrFeedEvent event;
    QList<ZrFeedMessage> messages;
    while (!m_stopping && m_source->next(&event)) {
        waitForTime(event);
        messages.clear();
        m_messages.append(event, &messages);
        for (ZrFeedMessage &message : messages) {
            waitForRoom();
            if (m_stopping)
                return;
            message.record.insert(ZrClientFields::seqNo, m_sent.load());
            message.record.insert(ZrClientFields::sentNs, m_clock->nowNs());
            sink(message);
            ++m_sent;
        }
    }
}
