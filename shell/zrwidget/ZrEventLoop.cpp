#include "ZrEventLoop.h"

#include "ZrAnswerSpin.h"

#include <QtCore/QThread>

namespace {

// The last owner may be the clock, after the thread that waited has ended: nobody would run a deferred
// deletion there any more, and nobody delivers anything to the loop either.
void dispose(ZrEventLoop *loop)
{
    const QThread *const owner = loop->thread();
    if (owner && !owner->isFinished())
        loop->deleteLater();
    else
        delete loop;
}

} // namespace

ZrEventLoop::Pointer ZrEventLoop::create()
{
    return Pointer(new ZrEventLoop, dispose);
}

ZrEventLoop::ZrEventLoop()
    : QEventLoop(nullptr)
{
}

ZrEventLoop::~ZrEventLoop() = default;

void ZrEventLoop::run()
{
    if (m_hasEnded)
        return;
    // What one thread learns about its answers holds for all its requests.
    static thread_local ZrAnswerSpin spin;
    spin.wait([this] { return m_isEnding.load(); });
    exec();
    spin.setPartner(m_partner);
}

void ZrEventLoop::announceEnd()
{
    m_partner = ZrAnswerSpin::currentProcessor();
    m_isEnding = true;
}

void ZrEventLoop::finish()
{
    if (QThread::currentThread() == thread()) {
        end();
        return;
    }
    announceEnd(); // first: what is posted below may be the last that anybody knows of this loop
    // Queued: the other thread may be between its look at m_hasEnded and exec(), which forgets an earlier
    // quit.
    QMetaObject::invokeMethod(
        this, [this] { end(); }, Qt::QueuedConnection);
}

qlonglong ZrEventLoop::address() const
{
    return static_cast<qlonglong>(reinterpret_cast<qintptr>(this));
}

void ZrEventLoop::slotReceiveResp(qlonglong ptr, QVariant resp)
{
    if (ptr != address())
        return;
    response = resp;
    end();
}

void ZrEventLoop::end()
{
    m_hasEnded = true;
    quit();
}
