#include "HostScene.h"
#include "ZrTestMain.h"

#include <QtCore/QPointer>
#include <QtCore/QSemaphore>

#include <atomic>
#include <thread>
#include <vector>

/// What the bus promises about threads: who runs where, and how an endpoint ends while it is called.
class tst_ZrBusThreads : public QObject
{
    Q_OBJECT
private slots:
    void init();
    void cleanup();
    void sharedEndpointsShareOneThread();
    void aServiceRunsOnItsAskersThread();
    void aSlowEndpointOnItsOwnThreadHoldsUpNobody();
    void manyThreadsMayPutAtOnce();
    void unRegDoesNotWaitForARunningCall();
    void noCallBeginsAfterUnReg();
    void aReceiverMayUnregisterItself();
    void aReceiverMayPutAndSubscribe();
    void deleteLaterWaitsForARunningCall();
    void deletionWaitsForARunningCall();
    void waitIdleTellsWhenItTookTooLong();
    void stopInTheMiddleOfTrafficIsSafe();
    void endpointsComeAndGoUnderTraffic();

private:
    ZrReferenceHost m_host;
};

void tst_ZrBusThreads::init()
{
    QVERIFY(m_host.start(ZrReferenceHost::Options()));
}

void tst_ZrBusThreads::cleanup()
{
    m_host.stop();
    QCOMPARE(CountedMessage::living.loadAcquire(), 0);
}

/// Holds a receiver in its call until it is let go.
struct Doorman
{
    QSemaphore inside;
    QSemaphore letGo;
    void hold()
    {
        inside.release();
        letGo.acquire();
    }
};

void tst_ZrBusThreads::sharedEndpointsShareOneThread()
{
    Listener a(QStringLiteral("a")), b(QStringLiteral("b"), IMessageInterface::PresenterThread),
        c(QStringLiteral("c"), IMessageInterface::PresenterAndReceiverThread);
    for (Listener *one : {&a, &b, &c})
        one->subscribe(QStringLiteral("Tick"));
    m_host.publish(QStringLiteral("Tick"), {numbered(1)});
    QVERIFY(m_host.waitIdle(longMs));
    // Bit 0 is the presenter's own business; bit 1 asks for a thread.
    QCOMPARE(a.heard().constFirst().thread, b.heard().constFirst().thread);
    QVERIFY(a.heard().constFirst().thread != c.heard().constFirst().thread);
}

void tst_ZrBusThreads::aServiceRunsOnItsAskersThread()
{
    std::atomic<QThread *> servedOn{nullptr};
    m_host.registerService(QStringLiteral("Ask"), [&servedOn](const ZrReferenceHost::Request &) {
        servedOn = QThread::currentThread();
        return QList<ZrReferenceHost::Answer>{ZrReferenceHost::Answer()};
    });
    for (const auto type : {IMessageInterface::SharedThread, IMessageInterface::ReceiverThread}) {
        Listener asker(QStringLiteral("asker"), type);
        asker.Put(asker.pid, requestOf(QStringLiteral("Ask"), 1));
        QVERIFY(m_host.waitIdle(longMs));
        QCOMPARE(asker.heard().constFirst().thread, servedOn.load());
    }
}

void tst_ZrBusThreads::aSlowEndpointOnItsOwnThreadHoldsUpNobody()
{
    Doorman door;
    Listener slow(QStringLiteral("slow"), IMessageInterface::ReceiverThread);
    Listener quick(QStringLiteral("quick"));
    slow.onHeard = [&door](const Heard &) { door.hold(); };
    slow.subscribe(QStringLiteral("Tick"));
    quick.subscribe(QStringLiteral("Tick"));
    m_host.publish(QStringLiteral("Tick"), {numbered(1)});
    door.inside.acquire();
    QTRY_COMPARE(quick.heard().size(), 1);
    door.letGo.release();
    QVERIFY(m_host.waitIdle(longMs));
}

void tst_ZrBusThreads::manyThreadsMayPutAtOnce()
{
    constexpr int threads = 8;
    constexpr int each = 2000;
    m_host.registerService(QStringLiteral("Ask"), echoService(QStringLiteral("Answer")));
    Listener shared(QStringLiteral("shared")), own(QStringLiteral("own"), IMessageInterface::ReceiverThread);
    std::vector<std::thread> putters;
    for (int t = 0; t < threads; ++t) {
        putters.emplace_back([t, &shared, &own] {
            for (int n = 0; n < each; ++n) {
                shared.Put(shared.pid, requestOf(QStringLiteral("Ask"), t * each + n));
                own.Put(own.pid, requestOf(QStringLiteral("Ask"), t * each + n));
            }
        });
    }
    for (std::thread &putter : putters)
        putter.join();
    QVERIFY(m_host.waitIdle(longMs));
    for (const Listener *listener : {&shared, &own}) {
        QVector<int> last(threads, -1);
        const QVector<int> numbers = listener->numbers();
        QCOMPARE(numbers.size(), threads * each);
        for (const int number : numbers) {
            // In order for each of those who sent.
            QVERIFY(last.at(number / each) < number % each);
            last[number / each] = number % each;
        }
    }
}

void tst_ZrBusThreads::unRegDoesNotWaitForARunningCall()
{
    Doorman door;
    Listener listener(QStringLiteral("listener"));
    listener.onHeard = [&door](const Heard &) { door.hold(); };
    listener.subscribe(QStringLiteral("Tick"));
    m_host.publish(QStringLiteral("Tick"), {numbered(1)});
    m_host.publish(QStringLiteral("Tick"), {numbered(2)});
    door.inside.acquire();
    // Comes back although the receiver can't end before this thread goes on.
    listener.UnReg(listener.pid);
    door.letGo.release();
    QVERIFY(m_host.waitIdle(longMs));
    QCOMPARE(listener.numbers(), QVector<int>{1});
    QCOMPARE(m_host.counters().undeliverable, 1);
}

void tst_ZrBusThreads::noCallBeginsAfterUnReg()
{
    for (int round = 0; round < 300; ++round) {
        std::atomic<int> calls{0};
        Listener listener(QStringLiteral("listener"));
        listener.onHeard = [&calls](const Heard &) { ++calls; };
        listener.subscribe(QStringLiteral("Tick"));
        for (int n = 0; n < 20; ++n)
            m_host.publish(QStringLiteral("Tick"), {numbered(n)});
        listener.UnReg(listener.pid);
        const int begun = calls;
        QVERIFY(m_host.waitIdle(longMs));
        // One that had begun may still have been on its way to the count.
        QVERIFY(calls <= begun + 1);
    }
}

void tst_ZrBusThreads::aReceiverMayUnregisterItself()
{
    for (const auto type : {IMessageInterface::SharedThread, IMessageInterface::ReceiverThread}) {
        Listener listener(QStringLiteral("listener"), type);
        listener.onHeard = [&listener](const Heard &) { listener.UnReg(listener.pid); };
        listener.subscribe(QStringLiteral("Tick"));
        m_host.publish(QStringLiteral("Tick"), {numbered(1)});
        m_host.publish(QStringLiteral("Tick"), {numbered(2)});
        QVERIFY(m_host.waitIdle(longMs));
        QCOMPARE(listener.numbers(), QVector<int>{1});
    }
}

void tst_ZrBusThreads::aReceiverMayPutAndSubscribe()
{
    m_host.registerService(QStringLiteral("Ask"), echoService(QStringLiteral("Answer")));
    Listener listener(QStringLiteral("listener"));
    listener.onHeard = [&listener](const Heard &one) {
        if (one.number() >= 100)
            return;
        listener.subscribe(QString::number(one.number()));
        listener.Put(listener.pid, requestOf(QStringLiteral("Ask"), one.number() + 1));
    };
    listener.Put(listener.pid, requestOf(QStringLiteral("Ask"), 1));
    QVERIFY(m_host.waitIdle(longMs));
    QCOMPARE(listener.heard().size(), 100);
}

void tst_ZrBusThreads::deleteLaterWaitsForARunningCall()
{
    Doorman door;
    const QPointer<Listener> listener = new Listener(QStringLiteral("listener"));
    listener->onHeard = [&door](const Heard &) { door.hold(); };
    listener->subscribe(QStringLiteral("Tick"));
    m_host.publish(QStringLiteral("Tick"), {numbered(1)});
    door.inside.acquire();
    listener->UnReg(listener->pid);
    listener->deleteLater();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY(listener);
    door.letGo.release();
    QVERIFY(m_host.waitIdle(longMs));
    QTRY_VERIFY(!listener);
}

/// Has no state of its own that its destruction could take away from a running call.
class Stateless : public IMessageInterface
{
public:
    Stateless()
        : IMessageInterface(nullptr)
    {
        Reg(QStringLiteral("stateless"), this, SharedThread);
        Sub(QStringLiteral("stateless"), QStringLiteral("Tick"), 1);
    }
    void ProcMsg(QString, QVariant, QVariant) override
    {
        door.hold();
        QThread::yieldCurrentThread();
        ended = true;
    }
    static Doorman door;
    static std::atomic<bool> ended;
};

Doorman Stateless::door;
std::atomic<bool> Stateless::ended{false};

void tst_ZrBusThreads::deletionWaitsForARunningCall()
{
    auto *const endpoint = new Stateless;
    m_host.publish(QStringLiteral("Tick"), {numbered(1)});
    Stateless::door.inside.acquire();
    Stateless::door.letGo.release();
    delete endpoint;
    QVERIFY(Stateless::ended);
    QVERIFY(m_host.waitIdle(longMs));
}

void tst_ZrBusThreads::waitIdleTellsWhenItTookTooLong()
{
    Doorman door;
    Listener listener(QStringLiteral("listener"));
    listener.onHeard = [&door](const Heard &) { door.hold(); };
    listener.subscribe(QStringLiteral("Tick"));
    QVERIFY(m_host.waitIdle(0));
    m_host.publish(QStringLiteral("Tick"), {numbered(1)});
    door.inside.acquire();
    QVERIFY(!m_host.waitIdle(1));
    door.letGo.release();
    QVERIFY(m_host.waitIdle(longMs));
}

void tst_ZrBusThreads::stopInTheMiddleOfTrafficIsSafe()
{
    m_host.registerService(QStringLiteral("Ask"), echoService(QStringLiteral("Answer")));
    QVERIFY(m_host.setFaults(QStringLiteral("delay=0..5,reorder=0.3,duplicate=0.3")));
    Listener listener(QStringLiteral("listener"), IMessageInterface::ReceiverThread);
    std::atomic<bool> stopping{false};
    std::thread putter([&] {
        for (int n = 0; !stopping; ++n)
            listener.Put(listener.pid, requestOf(QStringLiteral("Ask"), n));
    });
    QTRY_VERIFY(!listener.heard().isEmpty());
    m_host.stop();
    const int heard = listener.heard().size();
    stopping = true;
    putter.join();
    QVERIFY(m_host.waitIdle(longMs));
    QCOMPARE(listener.heard().size(), heard);
}

void tst_ZrBusThreads::endpointsComeAndGoUnderTraffic()
{
    std::atomic<bool> stopping{false};
    std::thread publisher([&] {
        for (int n = 0; !stopping; ++n)
            m_host.publish(QStringLiteral("Tick"), {numbered(n)});
    });
    QVector<QPointer<QObject>> endpoints;
    for (int round = 0; round < 500; ++round) {
        const bool ownThread = round % 2 == 1;
        auto *const listener =
            new Listener(QString::number(round),
                         ownThread ? IMessageInterface::ReceiverThread : IMessageInterface::SharedThread);
        listener->subscribe(QStringLiteral("Tick"));
        endpoints.append(listener);
        if (round % 10 == 0)
            QTRY_VERIFY(!listener->heard().isEmpty());
        listener->UnReg(listener->pid);
        listener->deleteLater();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
    stopping = true;
    publisher.join();
    QVERIFY(m_host.waitIdle(longMs));
    for (const QPointer<QObject> &endpoint : qAsConst(endpoints))
        QTRY_VERIFY(!endpoint);
}

ZR_TEST_GUILESS_MAIN(tst_ZrBusThreads)
#include "tst_zrbusthreads.moc"
