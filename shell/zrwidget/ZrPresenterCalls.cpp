#include "ZrPresenterCalls.h"

#include "ZrPresenterClass_p.h"

namespace {
constexpr int closedBit = 1;
constexpr int oneCall = 2;
} // namespace

bool ZrPresenterCalls::enter()
{
    int state = m_state.load();
    while (state != closedBit) {
        if (m_state.compare_exchange_weak(state, state + oneCall))
            return true;
    }
    return false;
}

bool ZrPresenterCalls::leave()
{
    return m_state.fetch_sub(oneCall) == (oneCall | closedBit);
}

void ZrPresenterCalls::close()
{
    m_state.fetch_or(closedBit);
}

bool ZrPresenterCalls::isIdle() const
{
    return m_state.load() < oneCall;
}

ZrPresenterCall::ZrPresenterCall(ZrPresenterClassPrivate *d, Mode mode)
    : m_presenter(d)
    , m_isWelcome(mode == Adopt || d->calls.enter())
{
}

ZrPresenterCall::~ZrPresenterCall()
{
    if (m_isWelcome && m_presenter->calls.leave())
        m_presenter->postDeletion();
}
