#pragma once

#include "ZrFeedEvent.h"

#include <QtCore/QString>
#include <QtCore/QTimeZone>

/// Where events come from, one after the other in the order of their times.
///
/// Threads: one at a time; the player's once it runs.
class ZrFeedSource
{
public:
    virtual ~ZrFeedSource() = default;
    /// Gives the next event; false at the end.
    virtual bool next(ZrFeedEvent *event) = 0;
    /// The zone in which clock times are shown.
    virtual QTimeZone zone() const = 0;
    /// Lines that were left out because they could not be read.
    virtual qint64 linesSkipped() const = 0;
    /// What was wrong with the first of them, a line each; empty when nothing was.
    virtual QString problems() const = 0;
};
