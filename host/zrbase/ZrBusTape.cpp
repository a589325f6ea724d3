#include "ZrBusTape.h"

bool ZrBusTape::start(const QString &path, QString *errorText)
{
    const std::lock_guard<std::mutex> guard(m_mutex);
    if (m_writer) {
        *errorText = QStringLiteral("A recording runs already.");
        return false;
    }
    auto writer = std::make_unique<ZrRecordingWriter>();
    if (!writer->open(path, errorText))
        return false;
    m_writer = std::move(writer);
    m_clock.start();
    m_running = true;
    return true;
}

bool ZrBusTape::stop(QString *errorText)
{
    const std::lock_guard<std::mutex> guard(m_mutex);
    m_running = false;
    const std::unique_ptr<ZrRecordingWriter> writer = std::move(m_writer);
    return !writer || writer->finish(errorText);
}

void ZrBusTape::note(const ZrBusItem &item, bool isRequest)
{
    if (!m_running)
        return;
    const std::lock_guard<std::mutex> guard(m_mutex);
    if (m_writer)
        m_writer->append(ZrRecordingEntry{m_clock.nsecsElapsed() / 1000, isRequest, item});
}
