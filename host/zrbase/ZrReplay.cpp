#include "ZrReplay.h"

#include <chrono>
#include <condition_variable>
#include <mutex>
#include <thread>

class ZrReplay::Private
{
public:
    using Clock = std::chrono::steady_clock;

    void run();
    bool waitUntil(qint64 timeUs);
    void finish();

    std::unique_ptr<ZrRecordingReader> reader; // the thread's
    double speed = 0;
    Exit exit;
    Clock::time_point begin = Clock::now();

    std::mutex mutex; // guards the rest but the thread
    std::condition_variable changed;
    bool stopping = false;
    bool finished = false;
    qint64 played = 0;
    QString errorText;
    std::thread thread;
};

void ZrReplay::Private::run()
{
    ZrRecordingEntry entry;
    while (reader->next(&entry)) {
        // A request's answers are in the recording: serving it again would double them.
        if (entry.isRequest)
            continue;
        if (!waitUntil(entry.timeUs))
            break;
        exit(entry.item);
        const std::lock_guard<std::mutex> guard(mutex);
        ++played;
    }
    finish();
}

bool ZrReplay::Private::waitUntil(qint64 timeUs)
{
    std::unique_lock<std::mutex> lock(mutex);
    if (speed > 0) {
        // Bounded: a damaged time must not overflow the clock.
        constexpr double maxWaitUs = 1e15;
        const double waitUs = qMin(static_cast<double>(timeUs) / speed, maxWaitUs);
        const auto due = begin + std::chrono::microseconds(static_cast<qint64>(waitUs));
        changed.wait_until(lock, due, [this] { return stopping; });
    }
    return !stopping;
}

void ZrReplay::Private::finish()
{
    exit = nullptr;
    {
        const std::lock_guard<std::mutex> guard(mutex);
        errorText = reader->errorText();
        finished = true;
    }
    changed.notify_all();
}

ZrReplay::ZrReplay(std::unique_ptr<ZrRecordingReader> reader, double speed, Exit exit)
    : d(new Private)
{
    d->reader = std::move(reader);
    d->speed = speed;
    d->exit = std::move(exit);
    d->thread = std::thread([this] { d->run(); });
}

ZrReplay::~ZrReplay()
{
    {
        const std::lock_guard<std::mutex> guard(d->mutex);
        d->stopping = true;
    }
    d->changed.notify_all();
    d->thread.join();
}

bool ZrReplay::waitFinished(int timeoutMs)
{
    std::unique_lock<std::mutex> lock(d->mutex);
    const auto isFinished = [this] { return d->finished; };
    if (timeoutMs >= 0)
        return d->changed.wait_for(lock, std::chrono::milliseconds(timeoutMs), isFinished);
    d->changed.wait(lock, isFinished);
    return true;
}

qint64 ZrReplay::played() const
{
    const std::lock_guard<std::mutex> guard(d->mutex);
    return d->played;
}

QString ZrReplay::errorText() const
{
    const std::lock_guard<std::mutex> guard(d->mutex);
    return d->errorText;
}
