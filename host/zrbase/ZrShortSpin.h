#pragma once

#include "zrbase/zrbase_global.h"

#include <chrono>

/// A busy wait of microseconds before a lane goes to sleep, for as long as such waits pay.
///
/// Shape:   who asks one request after the other gives a lane its next work within microseconds of the last.
/// On
///          another processor, and more so on a virtual one, waking a thread that has gone to sleep by then
///          costs several times what serving it does. A wait is left out where the partner runs on this very
///          processor, which it would only keep from its next request; and each wait that brought nothing
///          doubles the number of those left out after it, up to 64.
/// Threads: one at a time; the condition reads what other threads write.
class ZRBASE_EXPORT ZrShortSpin
{
public:
    static constexpr std::chrono::microseconds longest{100};

    /// The processor that the calling thread runs on; negative when the system does not tell.
    static int currentProcessor();

    /// True once `isReady()`; false when the time was over or the wait was left out. `partner` is the
    /// processor on which the thread runs that makes it ready; negative when unknown: there is no wait then.
    template<typename Condition>
    bool wait(int partner, const Condition &isReady)
    {
        if (isReady())
            return true;
        if (!isWorthTrying(partner))
            return false;
        const auto end = std::chrono::steady_clock::now() + longest;
        bool hasPaid = false;
        while (!hasPaid && std::chrono::steady_clock::now() < end) {
            for (int i = 0; i < looksPerClock && !hasPaid; ++i) {
                pause();
                hasPaid = isReady();
            }
        }
        note(hasPaid);
        return hasPaid;
    }

    /// How many of the next waits are left out.
    int skipped() const { return m_skip; }

private:
    static constexpr int looksPerClock = 32;
    static void pause();
    bool isWorthTrying(int partner);
    void note(bool hasPaid);

    int m_failures = 0; // in a row
    int m_skip = 0;
};
