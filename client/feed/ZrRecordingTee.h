#pragma once

#include "ZrFeedRecorder.h"
#include "ZrFeedSource.h"

#include <memory>

/// A source that hands on what another one gives, and records it.
class ZrRecordingTee : public ZrFeedSource
{
public:
    ZrRecordingTee(std::unique_ptr<ZrFeedSource> source, const QString &path)
        : m_source(std::move(source))
        , m_recorder(path)
    {
    }

    bool next(ZrFeedEvent *event) override
    {
        const bool more = m_source->next(event);
        if (more) {
            // The number keeps the order of events of one time, also where the source numbers none.
            ZrFeedEvent numbered = *event;
            numbered.sequence = m_number++;
            m_recorder.add(numbered);
        }
        return more;
    }
    QTimeZone zone() const override { return m_source->zone(); }
    qint64 linesSkipped() const override { return m_source->linesSkipped(); }
    QString problems() const override { return m_source->problems(); }
    /// Ends the recording; one sentence when it could not be written.
    QString finish() { return m_recorder.finish(QString::fromLatin1(m_source->zone().id())); }

private:
    const std::unique_ptr<ZrFeedSource> m_source;
    ZrFeedRecorder m_recorder;
    qint64 m_number = 0;
};
