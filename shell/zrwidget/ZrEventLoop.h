#pragma once

#include "zrwidget_global.h"

#include <QtCore/QEventLoop>
#include <QtCore/QString>
#include <QtCore/QVariant>

#include <atomic>
#include <memory>

/// The nested event loop in which a synchronous request waits for its answer.
///
/// Shape:     one loop for one request; run() once.
/// Ownership: shared by the waiting call and by whoever is about to deliver, so that no other loop can take
/// its
///            address while that address is on its way. The last one gives it to QObject::deleteLater.
/// Threads:   lives on the waiting thread. finish() from any thread; `msgType` and `result` under the
/// presenter's
///            mutex while the request is open; `response` on the loop's own thread.
class ZRWIDGET_PRIVATE_EXPORT ZrEventLoop : public QEventLoop,
                                            public std::enable_shared_from_this<ZrEventLoop>
{
    Q_OBJECT
public:
    using Pointer = std::shared_ptr<ZrEventLoop>;

    /// A loop of the calling thread.
    static Pointer create();
    ZrEventLoop();
    ~ZrEventLoop() override;

    QVariant response; // stays invalid when the wait was ended without an answer
    QString msgType;   // of the request
    int result = 0;    // result code of the request

    /// Waits, unless what ends the wait has come already: a quit before exec() would be lost.
    void run();
    /// Ends the wait without an answer, begun or not.
    void finish();
    /// From any thread: what ends the wait has been posted to the loop, which need not go to sleep for it.
    void announceEnd();
    /// What names this loop in signalSyncResponse.
    qlonglong address() const;

public slots:
    /// Ends the wait with `resp` if `ptr` names this loop; every waiting loop of a presenter hears every
    /// answer.
    void slotReceiveResp(qlonglong ptr, QVariant resp);

private:
    void end();
    bool m_hasEnded = false; // own thread only
    std::atomic<bool> m_isEnding{false};
    std::atomic<int> m_partner{-1}; // the processor on which the end was announced
};
