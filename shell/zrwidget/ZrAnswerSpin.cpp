#include "ZrAnswerSpin.h"

#include <QtCore/QtGlobal>

#include <chrono>

#if defined(Q_OS_LINUX)
#include <sched.h>
#endif

namespace {
constexpr int mostFailures = 6; // 2 to the power of this is left out at most
constexpr int looksPerClock = 32;

// Gives way to a hardware thread of the same core; the clock is looked at often enough without it.
void pause()
{
#if defined(Q_PROCESSOR_X86)
    __builtin_ia32_pause();
#endif
}
} // namespace

int ZrAnswerSpin::currentProcessor()
{
#if defined(Q_OS_LINUX)
    return sched_getcpu();
#else
    return -1;
#endif
}

bool ZrAnswerSpin::isWorthTrying()
{
    if (m_partner < 0 || m_partner == currentProcessor())
        return false;
    if (m_skip == 0)
        return true;
    --m_skip;
    return false;
}

bool ZrAnswerSpin::wait(const std::function<bool()> &hasCome)
{
    if (hasCome())
        return true;
    if (!isWorthTrying())
        return false;
    const bool hasPaid = spin(hasCome);
    m_failures = hasPaid ? 0 : qMin(m_failures + 1, mostFailures);
    m_skip = hasPaid ? 0 : 1 << m_failures;
    return hasPaid;
}

bool ZrAnswerSpin::spin(const std::function<bool()> &hasCome)
{
    const auto end = std::chrono::steady_clock::now() + std::chrono::microseconds(longestUs);
    do {
        for (int i = 0; i < looksPerClock; ++i) {
            if (hasCome())
                return true;
            pause();
        }
    } while (std::chrono::steady_clock::now() < end);
    return hasCome();
}
