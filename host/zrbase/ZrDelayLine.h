#pragma once

#include <QtCore/QtGlobal>

#include <functional>
#include <memory>

/// Runs work after a time: a thread that sleeps until the next piece is due.
///
/// Shape:   pieces due at one moment run in the order in which they were given.
/// Threads: any; the work runs on the line's own thread.
class ZrDelayLine
{
public:
    using Work = std::function<void()>;

    ZrDelayLine();
    ~ZrDelayLine();

    /// False when the line has been stopped: the work is then destroyed unrun.
    bool post(int delayMs, Work &&work);
    /// Ends the thread after the piece that runs now and destroys the rest unrun. Not to be called from the
    /// work.
    void stop();

private:
    Q_DISABLE_COPY(ZrDelayLine)
    class Private;
    const std::unique_ptr<Private> d;
};
