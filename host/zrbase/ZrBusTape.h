#pragma once

#include "ZrRecording.h"

#include <QtCore/QElapsedTimer>

#include <atomic>
#include <memory>
#include <mutex>

/// The recorder that listens to the bus.
///
/// Threads: any.
class ZrBusTape
{
public:
    /// False with one sentence when the file can't be made, or when one is being recorded.
    bool start(const QString &path, QString *errorText);
    /// Ends the recording and puts it under its name. Nothing to do is no error.
    bool stop(QString *errorText);
    bool isRunning() const { return m_running; }
    /// Does nothing, and costs nothing, while no recording runs.
    void note(const ZrBusItem &item, bool isRequest);

private:
    std::atomic<bool> m_running{false}; // written under the mutex
    std::mutex m_mutex;                 // guards the rest
    std::unique_ptr<ZrRecordingWriter> m_writer;
    QElapsedTimer m_clock;
};
