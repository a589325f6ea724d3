#include "PresenterProbe.h"
#include "zrdefine/PluginPropety.h"
#include "zrdefine/VexlorFields.h"
#include "zrdefine/VexlorValues.h"
#include "zrevent/CEventMessageCommon.h"
#include "zrmsg/CMessageCommon.h"
#include "zrmsg/CUnPackMessageCommon.h"
#include "ZrPresenterClass_p.h"
#include "ZrTestMain.h"
#include "zrutils/ZrThread.h"

#include <QtCore/QTimer>

#include <memory>

namespace {
const QString pid = QStringLiteral("menu#plugin#_1");
const QString query = QStringLiteral("Query");
const QString id = QStringLiteral("1");
constexpr int timeoutEvent = 217088;
constexpr int endEvent = 65550;
} // namespace

/// The clock, and the end in the midst of everything.
class TestZrPresenterClassPrivate : public QObject
{
    Q_OBJECT
private slots:
    void init();
    void cleanup();

    void aRequestExpiresAfterSoManyTicks_data();
    void aRequestExpiresAfterSoManyTicks();
    void anExpiredAsyncRequestCallsBackAndIsReported();
    void anExpiredAsyncRequestTakesLateAnswers();
    void anAnsweredRequestDoesNotExpire();
    void aRequestWhoseAnswersAllHaveAFollowerExpires();
    void anExpiredSyncRequestReturnsOne();
    void anAnswerAfterASyncTimeoutIsPlain();
    void theOldLoopOfADoubledIdEndsWithThePresenter();

    void theEndIsToldToTheBusOnce();
    void theEndUnregistersBeforeItIsSignalled();
    void afterTheEndNothingIsSent();
    void theEndInterruptsASyncRequest_data();
    void theEndInterruptsASyncRequest();
    void theEndInterruptsABlockedRequest();
    void theEndFromWithinAReceiverWaitsForIt_data();
    void theEndFromWithinAReceiverWaitsForIt();
    void theEndFromInitPresenter();
    void theEndRightAfterConstruction();
    void aNestedLoopDoesNotDeleteBeneathACall();
    void theDestructorIsLogged();

private:
    void make(IMessageInterface::ThreadType type)
    {
        presenter = new PresenterProbe(pid, type);
        d = presenter->getPrivate();
    }
    std::unique_ptr<BusBench> bench;
    PresenterProbe *presenter = nullptr;
    ZrPresenterClassPrivate *d = nullptr;
};

void TestZrPresenterClassPrivate::init()
{
    bench = std::make_unique<BusBench>();
    bench->answer(query, nullptr);
}

void TestZrPresenterClassPrivate::cleanup()
{
    if (presenter)
        QVERIFY(Probe::isGoneAfterDeleteLater(presenter));
    presenter = nullptr;
    bench.reset();
}

// --- the clock -------------------------------------------------------------------------------------------

void TestZrPresenterClassPrivate::aRequestExpiresAfterSoManyTicks_data()
{
    QTest::addColumn<int>("timeout");
    QTest::addColumn<int>("expected");
    QTest::newRow("3") << 3 << 3;
    QTest::newRow("1") << 1 << 1;
    QTest::newRow("0 at the next tick") << 0 << 1;
    QTest::newRow("below 0 at the next tick") << -7 << 1;
}

void TestZrPresenterClassPrivate::aRequestExpiresAfterSoManyTicks()
{
    QFETCH(int, timeout);
    QFETCH(int, expected);
    make(IMessageInterface::SharedThread);
    presenter->setRequestTimeOut(timeout);
    QCOMPARE(presenter->sendRequest_Async(Probe::message(query, id)), 0);
    const LogCatcher swallowed;
    for (int tick = 1; tick < expected; ++tick) {
        Probe::tick(presenter);
        QVERIFY(presenter->calls(QStringLiteral("async")).isEmpty());
    }
    Probe::tick(presenter);
    QCOMPARE(presenter->calls(QStringLiteral("async")).size(), 1);
    QVERIFY(d->requestAges.isEmpty());
}

void TestZrPresenterClassPrivate::anExpiredAsyncRequestCallsBackAndIsReported()
{
    const EventProbe listener(QStringLiteral("listener"), timeoutEvent);
    make(IMessageInterface::PresenterThread);
    presenter->setRequestTimeOut(0);
    QCOMPARE(presenter->sendRequest_Async(Probe::message(query, id)), 0);
    QTest::ignoreMessage(QtWarningMsg,
                         "Async request timeout, ProcAsyncCallBack \"menu#plugin#_1\"  msgtType =  "
                         "\"Query\"  clientMsgID =  \"1\"");
    Probe::tick(presenter);
    QTRY_COMPARE(presenter->calls(QStringLiteral("async")).size(), 1);
    const ProbeCall call = presenter->calls(QStringLiteral("async")).first();
    QCOMPARE(call.code, 1);
    QVERIFY(call.pid.isEmpty());
    QCOMPARE(call.type, QVariant(query));
    QCOMPARE(call.value(Vexlor_Fields::System::clientMsgID).toString(), id);
    QCOMPARE(call.value(Vexlor_Fields::System::textDescription).toString(),
             QStringLiteral("request timeout"));
    QCOMPARE(call.thread, presenter->thread());
    QTRY_COMPARE(listener.calls().size(), 1);
    QCOMPARE(listener.calls().first().type.toInt(), timeoutEvent);
    const QVariantMap event = listener.calls().first().body.toMap();
    QCOMPARE(event.value(Vexlor_Fields::System::itemType).toString(),
             Vexlor_Values::ClinetInfoUpload::RequestTimeOutError);
    QCOMPARE(event.value(Vexlor_Fields::System::itemValue).toString(), query);
    QCOMPARE(event.value(Vexlor_Fields::System::itemValueEx).toString(), id);
}

void TestZrPresenterClassPrivate::anExpiredAsyncRequestTakesLateAnswers()
{
    make(IMessageInterface::SharedThread);
    presenter->setRequestTimeOut(0);
    presenter->sendRequest_Async(Probe::message(query, id));
    const LogCatcher swallowed;
    Probe::tick(presenter);
    QCOMPARE(d->timedOutAsyncRequests.value(id), query);
    d->ProcMsg(pid, query, Probe::body(id));
    QCOMPARE(presenter->calls(QStringLiteral("async")).size(), 2);
    QCOMPARE(presenter->calls(QStringLiteral("async")).last().code, 0);
    QVERIFY(d->timedOutAsyncRequests.isEmpty());
    Probe::tick(presenter);
    QCOMPARE(presenter->calls(QStringLiteral("async")).size(), 2);
}

void TestZrPresenterClassPrivate::anAnsweredRequestDoesNotExpire()
{
    make(IMessageInterface::SharedThread);
    presenter->setRequestTimeOut(1);
    presenter->sendRequest_Async(Probe::message(query, id));
    d->ProcMsg(pid, query, Probe::body(id));
    Probe::tick(presenter);
    QCOMPARE(presenter->calls(QStringLiteral("async")).size(), 1);
    QVERIFY(d->requestAges.isEmpty());
}

void TestZrPresenterClassPrivate::aRequestWhoseAnswersAllHaveAFollowerExpires()
{
    make(IMessageInterface::SharedThread);
    presenter->setRequestTimeOut(1);
    presenter->sendRequest_Async(Probe::message(query, id));
    const QVariant more = Probe::body(id, {{Vexlor_Fields::System::hasFollowup, 1}});
    d->ProcMsg(pid, query, more);
    const LogCatcher swallowed;
    Probe::tick(presenter);
    d->ProcMsg(pid, query, more);
    d->ProcMsg(pid, query, Probe::body(id));
    d->ProcMsg(pid, query, Probe::body(id));
    QList<int> codes;
    for (const ProbeCall &call : presenter->calls(QStringLiteral("async")))
        codes.append(call.code);
    QCOMPARE(codes, QList<int>({0, 1, 0, 0}));
    QCOMPARE(presenter->calls(QStringLiteral("msg")).size(), 1);
}

void TestZrPresenterClassPrivate::anExpiredSyncRequestReturnsOne()
{
    const EventProbe listener(QStringLiteral("listener"), timeoutEvent);
    make(IMessageInterface::SharedThread);
    presenter->setRequestTimeOut(1);
    QTimer::singleShot(0, presenter, [this] { Probe::tick(presenter); });
    QTest::ignoreMessage(QtWarningMsg,
                         "Sync request timeout \"menu#plugin#_1\"  msgtType =  \"Query\"  clientMsgID "
                         "=  \"1\"");
    ProbeCall got;
    QCOMPARE(presenter->sendRequest_Sync(Probe::message(query, id), got.body), 1);
    QCOMPARE(got.value(Vexlor_Fields::System::clientMsgID).toString(), id);
    QCOMPARE(got.value(Vexlor_Fields::System::textDescription).toString(), QStringLiteral("request timeout"));
    QTRY_COMPARE(listener.calls().size(), 1);
    QVERIFY(d->syncLoops.isEmpty() && d->requestAges.isEmpty());
}

void TestZrPresenterClassPrivate::anAnswerAfterASyncTimeoutIsPlain()
{
    make(IMessageInterface::SharedThread);
    presenter->setRequestTimeOut(0);
    QTimer::singleShot(0, presenter, [this] { Probe::tick(presenter); });
    const LogCatcher swallowed;
    QVariant response;
    QCOMPARE(presenter->sendRequest_Sync(Probe::message(query, id), response), 1);
    d->ProcMsg(pid, query, Probe::body(id));
    QCOMPARE(presenter->calls(QStringLiteral("msg")).size(), 1);
}

void TestZrPresenterClassPrivate::theOldLoopOfADoubledIdEndsWithThePresenter()
{
    make(IMessageInterface::SharedThread);
    const Probe::Vanishing vanishing(presenter);
    int inner = -9;
    QVariant innerResponse;
    QTimer::singleShot(0, this, [&] {
        QTimer::singleShot(0, presenter, [this] { presenter->deleteLater(); });
        inner = presenter->sendRequest_Sync(Probe::message(query, id), innerResponse);
    });
    QVariant response;
    QCOMPARE(presenter->sendRequest_Sync(Probe::message(query, id), response), 0);
    QCOMPARE(inner, 0);
    QVERIFY(vanishing.wait());
    presenter = nullptr;
}

// --- the end ---------------------------------------------------------------------------------------------

void TestZrPresenterClassPrivate::theEndIsToldToTheBusOnce()
{
    const EventProbe listener(QStringLiteral("listener"), endEvent);
    make(IMessageInterface::PresenterThread);
    QSignalSpy signal(presenter, &ZrPresenterClass::signalDestroying);
    const Probe::Vanishing vanishing(presenter);
    {
        const ZrPresenterCall call(d); // so that there is still somebody to ask a second time
        presenter->deleteLater();
        presenter->deleteLater();
        QCOMPARE(signal.size(), 1);
        QCOMPARE(signal.first().first().value<ZrPresenterClass *>(),
                 static_cast<ZrPresenterClass *>(presenter));
    }
    QVERIFY(vanishing.wait());
    presenter = nullptr;
    QVERIFY(ZrBus::instance().waitIdle(10000));
    QCOMPARE(listener.calls().size(), 1);
    QCOMPARE(listener.calls().first().pid, pid);
    QCOMPARE(listener.calls().first().value(PluginPropety::PLUGININSTANCE_ID).toString(), pid);
}

void TestZrPresenterClassPrivate::theEndUnregistersBeforeItIsSignalled()
{
    make(IMessageInterface::SharedThread);
    presenter->Sub(pid, QStringLiteral("News"), 1);
    PresenterProbe *const watched = presenter;
    int received = -1;
    connect(presenter, &ZrPresenterClass::signalDestroying, this, [&received, watched] {
        Probe::publish(ZrBusKind::Message, QStringLiteral("News"), QVariant());
        received = watched->calls().size();
    });
    QVERIFY(Probe::isGoneAfterDeleteLater(presenter));
    presenter = nullptr;
    QCOMPARE(received, 0);
}

void TestZrPresenterClassPrivate::afterTheEndNothingIsSent()
{
    make(IMessageInterface::SharedThread);
    const Probe::Vanishing vanishing(presenter);
    const std::unique_ptr<CMessageCommon> msg(Probe::message(query, id));
    QVariant response;
    {
        const ZrPresenterCall call(d);
        presenter->deleteLater();
        const auto before = ZrBus::instance().counters().total().put;
        presenter->Put(pid, msg.get());
        presenter->PutEvent(pid, new CEventMessageCommon);
        QCOMPARE(presenter->sendRequest_Async(msg.get()), -3);
        QCOMPARE(presenter->sendRequest_Async(nullptr), -3);
        QCOMPARE(presenter->sendRequestNotCare_Async(id, query, msg.get()), -3);
        QCOMPARE(presenter->sendRequest_Sync(msg.get(), response), -3);
        QCOMPARE(presenter->sendRequest_Sync_Block(msg.get(), response, 1), -3);
        QCOMPARE(ZrBus::instance().counters().total().put, before);
    }
    // The last call is over, the deletion posted: nobody is let in any more.
    presenter->SubResponse(pid, QStringLiteral("Late"), 1);
    QVERIFY(!d->responseTypes.contains(QStringLiteral("Late")));
    QVERIFY(vanishing.wait());
    presenter = nullptr;
}

void TestZrPresenterClassPrivate::theEndInterruptsASyncRequest_data()
{
    QTest::addColumn<bool>("isOwnThread");
    QTest::newRow("in a nested loop here, on another thread's presenter") << true;
    QTest::newRow("in a nested loop on the presenter's own thread") << false;
}

void TestZrPresenterClassPrivate::theEndInterruptsASyncRequest()
{
    QFETCH(bool, isOwnThread);
    make(isOwnThread ? IMessageInterface::PresenterThread : IMessageInterface::SharedThread);
    const Probe::Vanishing vanishing(presenter);
    QTimer::singleShot(0, this, [this] { presenter->deleteLater(); });
    QVariant response(7);
    QCOMPARE(presenter->sendRequest_Sync(Probe::message(query, id), response), 0);
    QVERIFY(!response.isValid());
    QVERIFY(vanishing.wait());
    presenter = nullptr;
}

void TestZrPresenterClassPrivate::theEndInterruptsABlockedRequest()
{
    const EventProbe listener(QStringLiteral("listener"), timeoutEvent);
    make(IMessageInterface::PresenterThread);
    const Probe::Vanishing vanishing(presenter);
    int result = -9;
    ProbeCall got;
    const LogCatcher log;
    QScopedPointer<QThread> thread(QThread::create([this, &result, &got] {
        result = presenter->sendRequest_Sync_Block(Probe::message(query, id), got.body, 600000);
    }));
    thread->start();
    QTRY_COMPARE(bench->requests().size(), 1);
    presenter->deleteLater();
    QVERIFY(thread->wait(20000));
    QCOMPARE(result, 1);
    QCOMPARE(got.value(Vexlor_Fields::System::textDescription).toString(), QStringLiteral("request timeout"));
    QVERIFY(vanishing.wait());
    presenter = nullptr;
    QTRY_COMPARE(listener.calls().size(), 1);
    QCOMPARE(log.lines(QtWarningMsg).size(), 1);
}

void TestZrPresenterClassPrivate::theEndFromWithinAReceiverWaitsForIt_data()
{
    QTest::addColumn<QString>("receiver");
    QTest::newRow("message on a bus thread") << QStringLiteral("msg");
    QTest::newRow("event on a bus thread") << QStringLiteral("event");
    QTest::newRow("timeout on the presenter's thread") << QStringLiteral("async");
}

void TestZrPresenterClassPrivate::theEndFromWithinAReceiverWaitsForIt()
{
    QFETCH(QString, receiver);
    make(IMessageInterface::PresenterThread);
    PresenterProbe *const ending = presenter;
    const Probe::Vanishing vanishing(presenter);
    std::atomic<bool> wasThere{false};
    QTRY_COMPARE(presenter->calls(QStringLiteral("init")).size(), 1);
    presenter->hook = [ending, receiver, &vanishing, &wasThere](const ProbeCall &call) {
        if (call.receiver != receiver)
            return;
        ending->deleteLater();
        QEventLoop loop; // on the presenter's own thread this is where it would be deleted
        QTimer::singleShot(0, &loop, &QEventLoop::quit);
        loop.exec();
        wasThere = !vanishing.isDone();
    };
    const LogCatcher swallowed;
    presenter->Sub(pid, QStringLiteral("News"), 1);
    presenter->SubEvent(pid, 4711, 1);
    presenter->setRequestTimeOut(0);
    if (receiver == QLatin1String("msg"))
        Probe::publish(ZrBusKind::Message, QStringLiteral("News"), QVariant());
    else if (receiver == QLatin1String("event"))
        Probe::publish(ZrBusKind::Event, 4711, QVariant());
    else {
        presenter->sendRequest_Async(Probe::message(query, id));
        QMetaObject::invokeMethod(presenter, "slotTimerOut", Qt::QueuedConnection);
    }
    QVERIFY(vanishing.wait());
    QVERIFY(wasThere);
    presenter = nullptr;
}

void TestZrPresenterClassPrivate::theEndFromInitPresenter()
{
    class EndsAtOnce : public ZrPresenterClass
    {
    public:
        using ZrPresenterClass::ZrPresenterClass;
        void initPresenter() override { deleteLater(); }
    };
    auto *const short_ = new EndsAtOnce(pid, nullptr, IMessageInterface::PresenterThread);
    QVERIFY(Probe::Vanishing(short_).wait());
}

void TestZrPresenterClassPrivate::theEndRightAfterConstruction()
{
    for (int i = 0; i < 20; ++i)
        QVERIFY(Probe::isGoneAfterDeleteLater(new PresenterProbe(pid, IMessageInterface::PresenterThread)));
}

void TestZrPresenterClassPrivate::aNestedLoopDoesNotDeleteBeneathACall()
{
    make(IMessageInterface::SharedThread);
    const Probe::Vanishing vanishing(presenter);
    {
        const ZrPresenterCall call(d);
        QScopedPointer<QThread> other(QThread::create([this] { presenter->deleteLater(); }));
        other->start();
        QVERIFY(other->wait(20000));
        QCoreApplication::sendPostedEvents();
        QEventLoop loop;
        QTimer::singleShot(0, &loop, &QEventLoop::quit);
        loop.exec();
        QVERIFY(!vanishing.isDone());
        QCOMPARE(presenter->pluginPid(), pid);
    }
    QVERIFY(vanishing.wait());
    presenter = nullptr;
}

void TestZrPresenterClassPrivate::theDestructorIsLogged()
{
    make(IMessageInterface::SharedThread);
    const LogCatcher log;
    QVERIFY(Probe::isGoneAfterDeleteLater(presenter));
    presenter = nullptr;
    QCOMPARE(log.lines(QtDebugMsg), QStringList({QStringLiteral("~ZrPresenterClass begin"),
                                                 QStringLiteral("~ZrPresenterClass end")}));
}

ZR_TEST_GUILESS_MAIN(TestZrPresenterClassPrivate)
#include "tst_zrpresenterclass_p.moc"
