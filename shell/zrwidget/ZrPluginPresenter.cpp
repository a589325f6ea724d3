#include "ZrPluginPresenter.h"

#include "ZrPresenterCalls.h"
#include "ZrPresenterClass.h"

#include <QtCore/QMutex>

#include <optional>

struct ZrPluginPresenter::Seat
{
    QMutex mutex;
    ZrPresenterClass *presenter = nullptr; // not owned
};

ZrPluginPresenter::ZrPluginPresenter()
    : m_seat(std::make_shared<Seat>())
{
}

ZrPluginPresenter::~ZrPluginPresenter() = default;

void ZrPluginPresenter::set(ZrPresenterClass *presenter)
{
    if (!presenter)
        return;
    {
        const QMutexLocker lock(&m_seat->mutex);
        if (m_seat->presenter == presenter)
            return;
        m_seat->presenter = presenter;
    }
    const auto vacate = [place = std::weak_ptr<Seat>(m_seat), presenter] {
        const std::shared_ptr<Seat> seat = place.lock();
        if (!seat)
            return;
        const QMutexLocker lock(&seat->mutex);
        if (seat->presenter == presenter)
            seat->presenter = nullptr;
    };
    // Direct and on the presenter's own account: it ends on a thread of its choice, where nothing of the
    // plugin may be touched, and isn't deleted before the seat is empty.
    QObject::connect(presenter, &ZrPresenterClass::signalDestroying, presenter, vacate, Qt::DirectConnection);
    // For one that was deleted without being asked to go.
    QObject::connect(presenter, &QObject::destroyed, presenter, vacate, Qt::DirectConnection);
}

ZrPresenterClass *ZrPluginPresenter::get() const
{
    const QMutexLocker lock(&m_seat->mutex);
    return m_seat->presenter;
}

bool ZrPluginPresenter::use(const std::function<void(ZrPresenterClass *)> &work) const
{
    std::optional<ZrPresenterCall> call;
    ZrPresenterClass *presenter = nullptr;
    {
        const QMutexLocker lock(&m_seat->mutex);
        presenter = m_seat->presenter;
        if (!presenter)
            return false;
        // While the seat is taken its presenter is there; from here on the call holds it.
        call.emplace(presenter->getPrivate());
    }
    if (!call->isWelcome())
        return false;
    work(presenter);
    return true;
}
