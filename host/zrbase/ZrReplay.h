#pragma once

#include "ZrBusItem.h"
#include "ZrRecording.h"

#include <functional>
#include <memory>

/// Plays a recording on a thread of its own.
///
/// Shape:     at its own times divided by the speed; a speed of 0 plays as fast as it can be read.
/// Threads:   any; the exit is called on the replay's thread.
class ZrReplay
{
public:
    using Exit = std::function<void(const ZrBusItem &item)>;

    /// Begins at once with a reader that is open.
    ZrReplay(std::unique_ptr<ZrRecordingReader> reader, double speed, Exit exit);
    /// Stops it and waits for its thread.
    ~ZrReplay();

    /// False when it took longer; waits for ever when negative.
    bool waitFinished(int timeoutMs);
    qint64 played() const;
    /// Why it ended before the end of the recording; empty when it didn't.
    QString errorText() const;

private:
    Q_DISABLE_COPY(ZrReplay)
    class Private;
    const std::unique_ptr<Private> d;
};
