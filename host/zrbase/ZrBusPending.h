#pragma once

#include <QtCore/QtGlobal>

#include <condition_variable>
#include <memory>
#include <mutex>

/// Counts what is under way and tells when nothing is.
///
/// Threads: any.
class ZrBusPending
{
public:
    /// Counts as one until the last copy of the result is gone: held by the work itself, so that it is given
    /// back whether the work is run or thrown away.
    std::shared_ptr<void> share();
    /// False when it took longer; waits for ever when negative.
    bool waitIdle(int timeoutMs);

private:
    void add(qint64 n);

    std::mutex m_mutex;
    std::condition_variable m_idle;
    qint64 m_count = 0;
};
