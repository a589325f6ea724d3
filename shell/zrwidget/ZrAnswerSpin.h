#pragma once

#include "zrwidget_global.h"

#include <functional>

/// A busy wait of microseconds for an answer that comes at once, before the thread that asked goes to sleep.
///
/// Shape:   a service in the same process answers within microseconds; on another processor, and more so on a
///          virtual one, waking a sleeping thread costs several times that. A wait is left out where the last
///          answer came from this very processor, since it would only keep the answering thread from it; and
///          each wait that brought nothing doubles the number of those left out after it, up to 64, so that
///          requests to a distant back end pay next to nothing.
/// Units:   `longestUs` is the longest wait in microseconds: far below what a user could see.
///          A host's bus may have the like for its own threads; this one counts on nothing of it.
/// Threads: one object for each asking thread; `hasCome` reads what other threads write.
class ZRWIDGET_PRIVATE_EXPORT ZrAnswerSpin
{
public:
    static constexpr int longestUs = 100;

    /// The processor that the calling thread runs on; negative when the system does not tell.
    static int currentProcessor();

    /// True once `hasCome()`; false when the time was over or the wait was left out.
    bool wait(const std::function<bool()> &hasCome);
    /// Where the last answer came from; negative when unknown: there is no wait then.
    void setPartner(int processor) { m_partner = processor; }
    /// How many of the next waits are left out.
    int skipped() const { return m_skip; }

private:
    bool isWorthTrying();
    static bool spin(const std::function<bool()> &hasCome);

    int m_partner = -1;
    int m_failures = 0; // in a row
    int m_skip = 0;
};
