#pragma once

#include "zrwidget_global.h"

#include <QtCore/QMutex>
#include <QtCore/QVariant>
#include <QtCore/QWaitCondition>

#include <memory>

/// On what a blocked request waits: a condition, its answer and its result.
///
/// Shape:     one waiter for one request; waitForAnswer() once.
/// Units:     times in ms; ULONG_MAX waits for ever.
/// Ownership: shared by the blocked call and by whoever is about to answer: the call may time out and return
///            while the answer is being stored.
/// Threads:   any.
/// Errors:    an answer stored before the wait wakes nobody and is lost; the wait then runs to its end.
class ZRWIDGET_PRIVATE_EXPORT ZrWaitCondition : public QWaitCondition,
                                                public std::enable_shared_from_this<ZrWaitCondition>
{
public:
    using Pointer = std::shared_ptr<ZrWaitCondition>;

    ZrWaitCondition();
    virtual ~ZrWaitCondition();

    QVariant getResponse() const;
    void setResponse(const QVariant &answer);
    int getResult() const;
    void setResult(int code);
    /// Hides the base's on purpose: wakes under the mutex.
    void wakeAll();
    /// The result after the wait: 1 when it timed out or was interrupted.
    int waitForAnswer(unsigned long timeoutMs);

private:
    Q_DISABLE_COPY(ZrWaitCondition)
    mutable QMutex mutex;
    QVariant response;
    int result = 0; // result code of the request
};
