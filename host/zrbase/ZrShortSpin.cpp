#include "ZrShortSpin.h"

#include <algorithm>

#if defined(__linux__)
#include <sched.h>
#endif

namespace {
constexpr int mostFailures = 6; // 2 to the power of this is left out at most
}

int ZrShortSpin::currentProcessor()
{
#if defined(__linux__)
    return sched_getcpu();
#else
    return -1;
#endif
}

// Gives way to a hardware thread of the same core; the clock is looked at often enough without it.
void ZrShortSpin::pause()
{
#if defined(__x86_64__) || defined(__i386__)
    __builtin_ia32_pause();
#endif
}

bool ZrShortSpin::isWorthTrying(int partner)
{
    if (partner < 0 || partner == currentProcessor())
        return false;
    if (m_skip == 0)
        return true;
    --m_skip;
    return false;
}

void ZrShortSpin::note(bool hasPaid)
{
    m_failures = hasPaid ? 0 : std::min(m_failures + 1, mostFailures);
    m_skip = hasPaid ? 0 : 1 << m_failures;
}
