#include "ZrMessageInbox.h"

#include <algorithm>
#include <iterator>

ZrMessageInbox::ZrMessageInbox(QObject *parent)
    : QObject(parent)
{
}

void ZrMessageInbox::post()
{
    QMetaObject::invokeMethod(
        this, [this] { drain(); }, Qt::QueuedConnection);
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
        post();
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
    if (more)
        post();
    if (!batch.empty())
        emit signalBatch(batch);
}
