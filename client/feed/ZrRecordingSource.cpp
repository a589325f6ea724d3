#include "ZrRecordingSource.h"

ZrRecordingSource::ZrRecordingSource(const ZrFeedDescription &description)
    : m_description(description)
{
}

QString ZrRecordingSource::open()
{
    m_heads.clear();
    for (const ZrFeedFile &file : m_description.files) {
        Head head;
        head.reader = std::make_unique<ZrFeedFileReader>(file, &m_problems);
        const bool aligned = file.alignedWith >= 0;
        const QString error =
            head.reader->open(aligned ? &m_description.files.at(file.alignedWith) : nullptr);
        if (!error.isEmpty())
            return error;
        m_heads.push_back(std::move(head));
        if (aligned)
            m_heads[size_t(file.alignedWith)].reader->numberRows();
    }
    for (Head &head : m_heads)
        head.valid = head.reader->next(&head.event);
    return QString();
}

bool ZrRecordingSource::isBefore(const ZrFeedEvent &a, const ZrFeedEvent &b)
{
    if (a.timeNs != b.timeNs)
        return a.timeNs < b.timeNs;
    return a.sequence >= 0 && b.sequence >= 0 && a.sequence < b.sequence;
}

bool ZrRecordingSource::next(ZrFeedEvent *event)
{
    Head *first = nullptr;
    for (Head &head : m_heads) {
        if (head.valid && (!first || isBefore(head.event, first->event)))
            first = &head;
    }
    if (!first)
        return false;
    *event = std::move(first->event);
    first->valid = first->reader->next(&first->event);
    return true;
}

QTimeZone ZrRecordingSource::zone() const
{
    return m_description.files.isEmpty() ? QTimeZone::utc() : m_description.files.constFirst().time.zone;
}
