#include "ZrWaitCondition.h"

#include "ZrRequestMessage.h"

#include <QtCore/QDeadlineTimer>

#include <limits>

namespace {
// Above this a time in ms is no time any more but "for ever": the deadline counts in ns and would wrap
// around.
constexpr unsigned long longestTimeMs = std::numeric_limits<qint64>::max() / 4000000;

QDeadlineTimer deadline(unsigned long timeoutMs)
{
    return timeoutMs > longestTimeMs ? QDeadlineTimer(QDeadlineTimer::Forever)
                                     : QDeadlineTimer(static_cast<qint64>(timeoutMs));
}
} // namespace

ZrWaitCondition::ZrWaitCondition() = default;

ZrWaitCondition::~ZrWaitCondition() = default;

QVariant ZrWaitCondition::getResponse() const
{
    const QMutexLocker lock(&mutex);
    return response;
}

void ZrWaitCondition::setResponse(const QVariant &answer)
{
    const QMutexLocker lock(&mutex);
    response = answer;
}

int ZrWaitCondition::getResult() const
{
    const QMutexLocker lock(&mutex);
    return result;
}

void ZrWaitCondition::setResult(int code)
{
    const QMutexLocker lock(&mutex);
    result = code;
}

void ZrWaitCondition::wakeAll()
{
    const QMutexLocker lock(&mutex);
    QWaitCondition::wakeAll();
}

int ZrWaitCondition::waitForAnswer(unsigned long timeoutMs)
{
    const QMutexLocker lock(&mutex);
    // An interruption before the wait ends it at once: its wake-up has gone by, and the presenter is waiting
    // for this call. An answer before the wait is lost on purpose: callers rely on the timeout to end such a
    // request.
    if (result != ZrRequestTimeout && !wait(&mutex, deadline(timeoutMs)))
        result = ZrRequestTimeout;
    return result;
}
