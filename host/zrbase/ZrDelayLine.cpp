#include "ZrDelayLine.h"

#include <chrono>
#include <condition_variable>
#include <map>
#include <mutex>
#include <thread>

class ZrDelayLine::Private
{
public:
    using Clock = std::chrono::steady_clock;

    void run();

    std::mutex mutex; // guards all below but the thread, which only stop() touches
    std::condition_variable wake;
    std::multimap<Clock::time_point, Work> work; // equal times keep the order of insertion
    bool stopping = false;
    std::thread thread;
};

void ZrDelayLine::Private::run()
{
    std::unique_lock<std::mutex> lock(mutex);
    while (!stopping) {
        if (work.empty()) {
            wake.wait(lock);
            continue;
        }
        const Clock::time_point due = work.begin()->first;
        if (due > Clock::now()) {
            wake.wait_until(lock, due);
            continue;
        }
        Work next = std::move(work.begin()->second);
        work.erase(work.begin());
        lock.unlock();
        next();
        next = nullptr;
        lock.lock();
    }
}

ZrDelayLine::ZrDelayLine()
    : d(new Private)
{
    d->thread = std::thread([this] { d->run(); });
}

ZrDelayLine::~ZrDelayLine()
{
    stop();
}

bool ZrDelayLine::post(int delayMs, Work &&work)
{
    {
        const std::lock_guard<std::mutex> guard(d->mutex);
        if (d->stopping)
            return false;
        d->work.emplace(Private::Clock::now() + std::chrono::milliseconds(delayMs), std::move(work));
    }
    d->wake.notify_one();
    return true;
}

void ZrDelayLine::stop()
{
    std::multimap<Private::Clock::time_point, Work> unrun; // goes outside the lock: it may hold what locks
    {
        const std::lock_guard<std::mutex> guard(d->mutex);
        d->stopping = true;
        unrun.swap(d->work);
    }
    d->wake.notify_one();
    if (d->thread.joinable())
        d->thread.join();
}
