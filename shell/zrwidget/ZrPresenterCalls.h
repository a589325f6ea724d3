#pragma once

#include "zrwidget_global.h"

#include <atomic>

class ZrPresenterClassPrivate;

/// Counts the calls in progress on a presenter, so that its deletion can wait for the last of them.
///
/// Shape:     opened at construction; close() lets nobody in once the house is empty.
/// Ownership: plain value of its presenter's private object.
/// Threads:   any. Entering and leaving neither lock nor wait.
/// Errors:    none; leave() without enter() is the caller's bug.
class ZRWIDGET_PRIVATE_EXPORT ZrPresenterCalls
{
public:
    /// False when closed and empty: the presenter is on its way out and must not be touched.
    bool enter();
    /// True for exactly one caller: the one that leaves a closed house empty.
    bool leave();
    /// To be called from within a call, which is then the last one at the earliest.
    void close();
    bool isIdle() const;

private:
    // One number, so that "closed" and "empty" can't be seen apart: whoever reads a second variable after
    // leaving may read a deleted object.
    std::atomic<int> m_state{0}; // twice the number of calls, plus 1 once closed
};

/// A call in progress on a presenter. The last one out of a presenter that is to go posts its deletion.
///
/// Threads: one object on one thread.
class ZRWIDGET_PRIVATE_EXPORT ZrPresenterCall
{
public:
    /// `Adopt` takes over an enter() that was made before, on another thread.
    enum Mode { Enter, Adopt };

    explicit ZrPresenterCall(ZrPresenterClassPrivate *d, Mode mode = Enter);
    ~ZrPresenterCall();
    /// False when the presenter must not be touched any more.
    bool isWelcome() const { return m_isWelcome; }

private:
    Q_DISABLE_COPY(ZrPresenterCall)
    ZrPresenterClassPrivate *const m_presenter; // not owned; alive as long as the call is
    const bool m_isWelcome;
};
