#pragma once

#include "zrmsg/CMessageCommon.h"
#include "ZrPresenterClass.h"

#include <QtCore/QMutex>
#include <QtCore/QSet>
#include <QtCore/QVector>
#include <QtCore/QWaitCondition>

#include <array>
#include <atomic>
#include <memory>
#include <vector>

/// How a request of the stress run ended.
enum class Ending { Success, Timeout, Rejected, Client88, NoMessage, NoRecords, Destroyed, Count };

class StressMessage;

/// Holds the end of each request: there must be exactly one.
class StressLedger
{
public:
    explicit StressLedger(int requests);

    int size() const { return int(m_ends.size()); }
    /// The next request's number, or -1 when all have been given out.
    int next();
    int started() const { return m_next.load(); }
    void end(int request, Ending ending);
    void endByCode(int request, int code);
    /// Requests that have ended in no way, or in more than one; empty means fine.
    QString invariantError() const;
    int count(Ending ending) const;

    /// Put tells nobody whether it took a message: the bus deletes those it got, and a presenter that goes
    /// leaves the others alone. Settled at the end, once the bus is idle.
    void beginPut(int request, StressMessage *msg);
    void messageGone(int request);
    void settlePuts();

    std::atomic<int> liveMessages{0};
    std::atomic<int> livePresenters{0};
    std::atomic<int> liveParts{0}; // private parts and threads
    std::atomic<int> stray{0};     // late and doubled answers

private:
    std::vector<std::atomic<int>> m_ends;   // how often
    std::vector<std::atomic<int>> m_ending; // which
    std::vector<std::atomic<StressMessage *>> m_puts;
    std::atomic<int> m_next{0};
};

/// A message whose end is noticed.
class StressMessage : public CMessageCommon
{
public:
    StressMessage(StressLedger *ledger, const QString &type, int request);
    ~StressMessage() override;

private:
    StressLedger *const m_ledger;
    const int m_request;
};

class StressStage;

/// A presenter with a fast clock that books what its receivers get.
class StressPresenter : public ZrPresenterClass
{
public:
    StressPresenter(const QString &pid, IMessageInterface::ThreadType type, StressStage *stage, int slot);
    ~StressPresenter() override;

    void ProcMsg(QString pid, QVariant msgType, QVariant msg) override;
    void ProcAsyncCallBack(int code, QString pid, QVariant msgType, QVariant msg) override;
    void initPresenter() override;

    /// Sends request number `request` in the shape and by the means that its number gives.
    void send(int request);
    /// The next receiver call ends this presenter.
    std::atomic<bool> isArmed{false};

private:
    void sendPut(int request);
    void sendSync(int request);
    void sendBlocked(int request);
    void sendAsync(int request);
    void endIfArmed();
    CMessageCommon *message(const char *type, int request) const;
    void freeRefused(CMessageCommon *msg, int code) const;
    void watch();

    StressStage *const m_stage;
    StressLedger *const m_ledger;
    const int m_slot;
    QMutex m_mutex;
    QSet<int> m_openAsync;
};

/// The presenters in use. A caller leases one, so that nobody calls what has been deleted; deleteLater comes
/// at any moment and finds the leases in the midst of their requests.
class StressStage
{
public:
    static constexpr int slots_ = 4;

    explicit StressStage(StressLedger *ledger);

    StressLedger *ledger() const { return m_ledger; }
    /// Fills an empty slot, if there is one. GUI thread.
    void fill();
    /// Ends one presenter, in one of three ways by turns. GUI thread.
    void endOne();
    void endAll();
    bool isEmpty() const;
    int ended() const { return m_ended.load(); }

    /// Waits for an open presenter; the slot goes to `slot`.
    StressPresenter *lease(int wanted, int *slot);
    void release(int slot);
    /// Bus of a slot, within its presenter's signalDestroying: waits until nobody uses it any more.
    void drain(int slot);
    void vacate(int slot);
    /// True for the one caller that may call deleteLater.
    bool claim(int slot);

private:
    struct Slot
    {
        StressPresenter *presenter = nullptr;
        int leases = 0;
        bool isClosing = false;
    };

    StressLedger *const m_ledger;
    mutable QMutex m_mutex;
    QWaitCondition m_changed;
    std::array<Slot, slots_> m_slots;
    int m_made = 0;
    int m_turn = 0;
    std::atomic<int> m_ended{0};
};

namespace Stress {
/// The services that answer the stress run's requests, and the faults on their way.
void openBackEnd();
/// Numbers that look random and are the same in each run.
quint32 dice(int request, int salt);
} // namespace Stress
