#pragma once

#include "ZrFeedFileReader.h"
#include "ZrFeedSource.h"

#include <memory>
#include <vector>

/// Events of all files of a recording, merged by their times.
///
/// Shape:   holds one event of each file. Events of one time are ordered by their sequence numbers
///          where both have one, else by the order of the files in the description; a file's own order
///          is never changed, even where its times step back.
/// Errors:  open() gives one sentence or nothing.
class ZrRecordingSource : public ZrFeedSource
{
public:
    explicit ZrRecordingSource(const ZrFeedDescription &description);

    QString open();
    bool next(ZrFeedEvent *event) override;
    QTimeZone zone() const override;
    qint64 linesSkipped() const override { return m_problems.count(); }
    QString problems() const override { return m_problems.text(); }

private:
    struct Head
    {
        std::unique_ptr<ZrFeedFileReader> reader;
        ZrFeedEvent event;
        bool valid = false;
    };
    static bool isBefore(const ZrFeedEvent &a, const ZrFeedEvent &b);

    const ZrFeedDescription m_description;
    ZrFeedProblems m_problems;
    std::vector<Head> m_heads;
};
