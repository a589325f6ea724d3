#include "ZrMessageInbox.h"

#include <algorithm>
#include <iterator>

ZrMessageInbox::ZrMessageInbox(QObject *parent)
    : QObject(parent)
{
    m_next.setSingleShot(true);
    m_next.setTimerType(Qt::PreciseTimer);
    connect(&m_next, &QTimer::timeout, this, &ZrMessageInbox::drain);
}

void ZrMessageInbox::schedule()
{
    const qint64 sinceMs = m_sinceBatch.isValid() ? m_sinceBatch.elapsed() : FrameMs;
    if (sinceMs >= FrameMs)
        drain();
    else
        m_next.start(int(FrameMs - sinceMs));
}

void ZrMessageInbox::put(const ZrInboxMessage &message)
{
    bool mustPost = false;
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        m_waiting.push_back(message);
        mustPost = !m_posted;
        m_posted = true;
    }
    if (mustPost)
        QMetaObject::invokeMethod(
            this, [this] { schedule(); }, Qt::QueuedConnection);
}

bool ZrMessageInbox::isEmpty() const
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    return m_waiting.empty();
}

void ZrMessageInbox::drain()
{
    std::vector<ZrInboxMessage> batch;
    bool more = false;
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        const auto count = std::min<size_t>(m_waiting.size(), MaxBatch);
        const auto end = m_waiting.begin() + std::ptrdiff_t(count);
        batch.assign(std::make_move_iterator(m_waiting.begin()), std::make_move_iterator(end));
        m_waiting.erase(m_waiting.begin(), end);
        more = !m_waiting.empty();
        m_posted = more;
    }
    // By the timer: an event posted now would come before the paint that shows this batch.
    if (more)
        m_next.start(0);
    m_sinceBatch.start();
    if (!batch.empty())
        emit signalBatch(batch);
}
