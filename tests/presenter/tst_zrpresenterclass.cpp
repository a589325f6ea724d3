#include "PresenterProbe.h"
#include "zrdefine/VexlorFields.h"
#include "zrdefine/VexlorMsgType.h"
#include "zrdefine/VexlorValues.h"
#include "zrevent/CEventMessageCommon.h"
#include "zrmsg/CMessageCommon.h"
#include "ZrPresenterClass_p.h"
#include "ZrTestMain.h"
#include "zrutils/ZrThread.h"

#include <QtCore/QTimer>

#include <memory>
#include <thread>

namespace {
const QString pid = QStringLiteral("menu#plugin#_1");
const QString query = QStringLiteral("Query");
} // namespace

/// Construction, subscriptions, and what is sent without waiting for it.
class TestZrPresenterClass : public QObject
{
    Q_OBJECT
private slots:
    void init();
    void cleanup();

    void constructionNamesAndRegisters();
    void withoutBitZeroThereIsNoThreadAndNoClock();
    void withBitZeroItLivesOnAThreadOfItsOwn();
    void initPresenterOfTheDerivedClassRunsOnceBeforeTheClock();
    void theClockTicksOnceASecond();
    void aPresenterThatIsDeletedDirectlyLeavesTheBus();
    void theBaseReceiversDoNothing();
    void theTimeoutHasNoBounds();

    void putStampsAndRemembersTheMessage();
    void putWithoutRecordsSendsAndReportsNothing();
    void putOfNothingIsIgnored();
    void putEventGoesToTheBus();
    void subSubscribesOnce();
    void subOfAnotherKindLeavesTheListAlone();
    void subEventPassesToTheBus();
    void subResponseKeepsOneEntryAndAlwaysSubscribes();
    void subResponseLetsAnswersToOwnPutsIn();
    void setRelationPassesToTheBus();
    void addSysNodeIdLeavesAnEmptyListAlone();

    void asyncRefusesNullAndEmptyMessages();
    void asyncSendsAndCallsBack();
    void notCareSendsTheMessageAsItIs();
    void notCareRefusesMissingArguments_data();
    void notCareRefusesMissingArguments();
    void syncRefusesNullAndEmptyMessages();
    void syncWaitsInANestedLoop();
    void syncReportsARejection();
    void syncIsLogged();
    void syncWorksOnTheThreadsOfOthers();
    void syncSurvivesTheEndOfItsThread();
    void blockRefusesNullAndEmptyMessages();
    void blockGetsItsAnswer();
    void blockReportsARejection();
    void blockTimesOutWithAMessageThatReadsLikeAnAnswer();
    void blockWithoutATimeTakesThePresentersOwn();

private:
    PresenterProbe *make(IMessageInterface::ThreadType type)
    {
        presenter = new PresenterProbe(pid, type);
        d = presenter->getPrivate();
        return presenter;
    }
    BusBench::Answers echo(const ZrBusRequest &request)
    {
        return {Probe::reply(request, QStringLiteral("Answer"))};
    }
    void answerWith(const QString &type)
    {
        bench->answer(query, [type](const ZrBusRequest &request) {
            return BusBench::Answers{Probe::reply(request, type)};
        });
    }
    int blockedUntilAnswered(QVariant *response, int expected);

    std::unique_ptr<BusBench> bench;
    PresenterProbe *presenter = nullptr;
    ZrPresenterClassPrivate *d = nullptr;
};

void TestZrPresenterClass::init()
{
    bench = std::make_unique<BusBench>();
}

void TestZrPresenterClass::cleanup()
{
    if (presenter)
        QVERIFY(Probe::isGoneAfterDeleteLater(presenter));
    presenter = nullptr;
    bench.reset();
}

// --- construction ----------------------------------------------------------------------------------------

void TestZrPresenterClass::constructionNamesAndRegisters()
{
    make(IMessageInterface::SharedThread);
    QCOMPARE(presenter->pluginPid(), pid);
    QCOMPARE(presenter->objectName(), pid);
    QCOMPARE(presenter->getRequestTimeOut(), 10);
    QVERIFY(!presenter->parent());
    QVERIFY(!d->parent());
    presenter->Sub(pid, QStringLiteral("News"), 1);
    Probe::publish(ZrBusKind::Message, QStringLiteral("News"), QVariant());
    QVERIFY(ZrBus::instance().waitIdle(10000));
    QCOMPARE(presenter->calls(QStringLiteral("msg")).size(), 1);
}

void TestZrPresenterClass::withoutBitZeroThereIsNoThreadAndNoClock()
{
    make(IMessageInterface::ReceiverThread);
    QVERIFY(!d->thread);
    QCOMPARE(presenter->thread(), QThread::currentThread());
    // The destructor finds no timer and must not touch one.
    QVERIFY(Probe::isGoneAfterDeleteLater(presenter));
    presenter = nullptr;
}

void TestZrPresenterClass::withBitZeroItLivesOnAThreadOfItsOwn()
{
    make(IMessageInterface::PresenterThread);
    QVERIFY(d->thread);
    QCOMPARE(presenter->thread(), d->thread);
    QCOMPARE(d->thread->objectName(), QString(pid + QStringLiteral("ZrPresenterClass_Thread")));
    QCOMPARE(d->QObject::thread(), QThread::currentThread());
    QTRY_COMPARE(presenter->calls(QStringLiteral("init")).size(), 1);
}

void TestZrPresenterClass::initPresenterOfTheDerivedClassRunsOnceBeforeTheClock()
{
    for (int i = 0; i < 20; ++i) {
        auto *const one = new PresenterProbe(pid + QString::number(i), IMessageInterface::PresenterThread);
        QTRY_COMPARE(one->calls(QStringLiteral("init")).size(), 1);
        QCOMPARE(one->calls().first().thread, one->thread());
        QVERIFY(Probe::isGoneAfterDeleteLater(one));
    }
}

void TestZrPresenterClass::theClockTicksOnceASecond()
{
    make(IMessageInterface::PresenterThread);
    int intervalMs = 0;
    bool isActive = false;
    QObject *parent = nullptr;
    // Queued behind Initial(): the thread serves no event before that has run.
    QMetaObject::invokeMethod(
        presenter,
        [&] {
            intervalMs = d->timer->interval();
            isActive = d->timer->isActive();
            parent = d->timer->parent();
        },
        Qt::BlockingQueuedConnection);
    QCOMPARE(intervalMs, 1000);
    QVERIFY(isActive);
    QCOMPARE(parent, static_cast<QObject *>(presenter));
    presenter->setRequestTimeOut(1);
    bench->answer(query, nullptr);
    QCOMPARE(presenter->sendRequest_Async(Probe::message(query, QStringLiteral("1"))), 0);
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("^Async request timeout")));
    QTRY_COMPARE(presenter->calls(QStringLiteral("async")).size(), 1);
}

void TestZrPresenterClass::aPresenterThatIsDeletedDirectlyLeavesTheBus()
{
    {
        PresenterProbe onStack(pid, IMessageInterface::SharedThread);
        onStack.Sub(pid, QStringLiteral("News"), 1);
    }
    const auto before = ZrBus::instance().counters().total().delivered;
    Probe::publish(ZrBusKind::Message, QStringLiteral("News"), QVariant());
    QVERIFY(ZrBus::instance().waitIdle(10000));
    QCOMPARE(ZrBus::instance().counters().total().delivered, before);
}

void TestZrPresenterClass::theBaseReceiversDoNothing()
{
    auto *const plain = new ZrPresenterClass(pid, nullptr, IMessageInterface::SharedThread);
    plain->ProcMsg(pid, 1, 2);
    plain->ProcEventMsg(pid, 1, 2);
    plain->ProcQuotationMsg(pid, 1, 2);
    plain->ProcAsyncCallBack(0, pid, 1, 2);
    plain->initPresenter();
    QVERIFY(Probe::isGoneAfterDeleteLater(plain));
    QVERIFY(bench->requests().isEmpty());
}

void TestZrPresenterClass::theTimeoutHasNoBounds()
{
    make(IMessageInterface::SharedThread);
    for (const int seconds : {0, -5, 100000}) {
        presenter->setRequestTimeOut(seconds);
        QCOMPARE(presenter->getRequestTimeOut(), seconds);
    }
}

// --- sending without waiting -----------------------------------------------------------------------------

void TestZrPresenterClass::putStampsAndRemembersTheMessage()
{
    make(IMessageInterface::SharedThread);
    bench->answer(query, nullptr);
    presenter->Put(QStringLiteral("someone"), Probe::message(query, QStringLiteral("1")));
    presenter->Put(QStringLiteral("someone"), Probe::message(query, QStringLiteral("1")));
    QTRY_COMPARE(bench->requests().size(), 2);
    QCOMPARE(bench->requests().first().pid, pid);
    QVERIFY(!bench->requests().first().records.first().contains(Vexlor_Fields::CustomField::requestType));
    QCOMPARE(d->putClientMsgIDs, QList<QString>({QStringLiteral("1"), QStringLiteral("1")}));
    d->ProcMsg(pid, query, Probe::body(QStringLiteral("1")));
    QVERIFY(d->putClientMsgIDs.isEmpty());
}

void TestZrPresenterClass::putWithoutRecordsSendsAndReportsNothing()
{
    make(IMessageInterface::SharedThread);
    const auto before = ZrBus::instance().counters().total().put;
    const LogCatcher log;
    CMessageCommon empty;
    presenter->Put(pid, &empty);
    QCOMPARE(ZrBus::instance().counters().total().put, before);
    QVERIFY(d->putClientMsgIDs.isEmpty());
    QVERIFY(log.lines(QtWarningMsg).isEmpty() && log.lines(QtDebugMsg).isEmpty());
}

void TestZrPresenterClass::putOfNothingIsIgnored()
{
    make(IMessageInterface::SharedThread);
    const auto before = ZrBus::instance().counters().total().put;
    presenter->Put(pid, nullptr);
    QCOMPARE(ZrBus::instance().counters().total().put, before);
}

void TestZrPresenterClass::putEventGoesToTheBus()
{
    const EventProbe listener(QStringLiteral("listener"), 4711);
    make(IMessageInterface::SharedThread);
    auto *const event = new CEventMessageCommon;
    event->SetType(4711);
    event->SetMsg(QStringLiteral("body"));
    presenter->PutEvent(pid, event);
    QTRY_COMPARE(listener.calls().size(), 1);
    QCOMPARE(listener.calls().first().body.toString(), QStringLiteral("body"));
}

void TestZrPresenterClass::subSubscribesOnce()
{
    make(IMessageInterface::SharedThread);
    const QString news = QStringLiteral("News");
    presenter->Sub(pid, news, 2);
    QVERIFY(d->subscribedTypes.isEmpty());
    presenter->Sub(pid, news, 1);
    presenter->Sub(pid, news, 1);
    QCOMPARE(d->subscribedTypes.size(), 1);
    Probe::publish(ZrBusKind::Message, news, QVariant());
    QVERIFY(ZrBus::instance().waitIdle(10000));
    QCOMPARE(presenter->calls(QStringLiteral("msg")).size(), 1);
    // Known here only: a second subscription must not reach the bus.
    d->UnReg(pid);
    d->Reg(pid, d, IMessageInterface::SharedThread);
    presenter->Sub(pid, news, 1);
    Probe::publish(ZrBusKind::Message, news, QVariant());
    QVERIFY(ZrBus::instance().waitIdle(10000));
    QCOMPARE(presenter->calls(QStringLiteral("msg")).size(), 1);
    d->subscribedTypes.append(news);
    presenter->Sub(pid, news, 2);
    QVERIFY(d->subscribedTypes.isEmpty());
}

void TestZrPresenterClass::subOfAnotherKindLeavesTheListAlone()
{
    make(IMessageInterface::SharedThread);
    presenter->Sub(pid, 7, 3);
    QVERIFY(d->subscribedTypes.isEmpty());
    presenter->Sub(pid, 7, 1);
    presenter->Sub(pid, 7, 0);
    QCOMPARE(d->subscribedTypes.size(), 1);
}

void TestZrPresenterClass::subEventPassesToTheBus()
{
    make(IMessageInterface::SharedThread);
    presenter->SubEvent(pid, 4711, 1);
    Probe::publish(ZrBusKind::Event, 4711, QVariant());
    QTRY_COMPARE(presenter->calls(QStringLiteral("event")).size(), 1);
    presenter->SubEvent(pid, 4711, 2);
    Probe::publish(ZrBusKind::Event, 4711, QVariant());
    QVERIFY(ZrBus::instance().waitIdle(10000));
    QCOMPARE(presenter->calls(QStringLiteral("event")).size(), 1);
}

void TestZrPresenterClass::subResponseKeepsOneEntryAndAlwaysSubscribes()
{
    make(IMessageInterface::SharedThread);
    const QString news = QStringLiteral("News");
    d->responseTypes.append(news);
    presenter->SubResponse(pid, news, 1);
    QCOMPARE(d->responseTypes.size(), 1);
    d->putClientMsgIDs.append(QStringLiteral("1"));
    Probe::publish(ZrBusKind::Message, news, Probe::body(QStringLiteral("1")));
    QTRY_COMPARE(presenter->calls(QStringLiteral("msg")).size(), 1);
    d->responseTypes.append(news);
    presenter->SubResponse(pid, news, 5);
    QVERIFY(d->responseTypes.isEmpty());
    d->responseTypes.append(news);
    presenter->SubResponse(pid, news, 2);
    QVERIFY(d->responseTypes.isEmpty());
}

void TestZrPresenterClass::subResponseLetsAnswersToOwnPutsIn()
{
    make(IMessageInterface::SharedThread);
    answerWith(QStringLiteral("Answer"));
    presenter->SubResponse(pid, QStringLiteral("Answer"), 1);
    presenter->Put(pid, Probe::message(query, QStringLiteral("mine")));
    QTRY_COMPARE(presenter->calls(QStringLiteral("msg")).size(), 1);
    Probe::publish(ZrBusKind::Message, QStringLiteral("Answer"), Probe::body(QStringLiteral("another's")));
    QVERIFY(ZrBus::instance().waitIdle(10000));
    QCOMPARE(presenter->calls(QStringLiteral("msg")).size(), 1);
}

void TestZrPresenterClass::setRelationPassesToTheBus()
{
    make(IMessageInterface::SharedThread);
    auto *const other = new PresenterProbe(QStringLiteral("menu#other#_1"), IMessageInterface::SharedThread);
    const QString menu = QStringLiteral("menu");
    presenter->setRelation(menu, pid, 3, RelationColorSecond, 1);
    other->setRelation(menu, other->pluginPid(), 3, RelationColorSecond, 1);
    auto *const event = new CEventMessageCommon;
    event->SetType(3);
    other->PutEvent(other->pluginPid(), event);
    QTRY_COMPARE(presenter->calls(QStringLiteral("event")).size(), 1);
    QVERIFY(Probe::isGoneAfterDeleteLater(other));
}

void TestZrPresenterClass::addSysNodeIdLeavesAnEmptyListAlone()
{
    make(IMessageInterface::SharedThread);
    QList<QVariantMap> records;
    presenter->addSysNodeID(records);
    QVERIFY(records.isEmpty());
}

// --- asynchronous requests -------------------------------------------------------------------------------

void TestZrPresenterClass::asyncRefusesNullAndEmptyMessages()
{
    make(IMessageInterface::SharedThread);
    QTest::ignoreMessage(QtWarningMsg, "sendRequest msg is null");
    QCOMPARE(presenter->sendRequest_Async(nullptr), -1);
    CMessageCommon empty;
    QTest::ignoreMessage(QtWarningMsg, "sendRequest dataList is empty");
    QCOMPARE(presenter->sendRequest_Async(&empty), -2);
    QVERIFY(d->asyncRequests.isEmpty());
    QVERIFY(d->requestAges.isEmpty());
}

void TestZrPresenterClass::asyncSendsAndCallsBack()
{
    make(IMessageInterface::SharedThread);
    answerWith(QStringLiteral("Answer"));
    QCOMPARE(presenter->sendRequest_Async(Probe::message(query, QStringLiteral("1"))), 0);
    QTRY_COMPARE(presenter->calls(QStringLiteral("async")).size(), 1);
    QCOMPARE(presenter->calls().first().code, 0);
    QCOMPARE(
        bench->requests().first().records.first().value(Vexlor_Fields::CustomField::requestType).toString(),
        Vexlor_Values::RequestType::aync);
    QVERIFY(d->requestAges.contains(QStringLiteral("1"))); // lapses by itself
    Probe::tick(presenter);
    QCOMPARE(d->requestAges.value(QStringLiteral("1")), 1);
}

void TestZrPresenterClass::notCareSendsTheMessageAsItIs()
{
    make(IMessageInterface::SharedThread);
    answerWith(QStringLiteral("Answer"));
    QCOMPARE(presenter->sendRequestNotCare_Async(QStringLiteral("other id"), QStringLiteral("other type"),
                                                 Probe::message(query, QStringLiteral("1"))),
             0);
    QTRY_COMPARE(bench->requests().size(), 1);
    QVERIFY(!bench->requests().first().records.first().contains(Vexlor_Fields::CustomField::requestType));
    QCOMPARE(d->asyncRequests.value(QStringLiteral("other id")), QStringLiteral("other type"));
    QCOMPARE(d->requestAges.value(QStringLiteral("other id"), -1), 0);
    d->ProcMsg(pid, Vexlor_MsgType::bussinessMsgReject, Probe::body(QStringLiteral("other id")));
    QCOMPARE(presenter->calls(QStringLiteral("async")).last().type.toString(), QStringLiteral("other type"));
}

void TestZrPresenterClass::notCareRefusesMissingArguments_data()
{
    QTest::addColumn<bool>("hasMessage");
    QTest::addColumn<QString>("id");
    QTest::addColumn<QString>("type");
    QTest::addColumn<QString>("expected");
    const QString noId = QStringLiteral("client msg id is null or msg type is null");
    QTest::newRow("message") << false << QStringLiteral("1") << query
                             << QStringLiteral("sendRequest msg is null");
    QTest::newRow("message first") << false << QString() << query
                                   << QStringLiteral("sendRequest msg is null");
    QTest::newRow("ID") << true << QString() << query << noId;
    QTest::newRow("type") << true << QStringLiteral("1") << QString() << noId;
}

void TestZrPresenterClass::notCareRefusesMissingArguments()
{
    QFETCH(bool, hasMessage);
    QFETCH(QString, id);
    QFETCH(QString, type);
    QFETCH(QString, expected);
    make(IMessageInterface::SharedThread);
    const std::unique_ptr<CMessageCommon> msg(hasMessage ? Probe::message(query, id) : nullptr);
    QTest::ignoreMessage(QtWarningMsg, expected.toLatin1().constData());
    QCOMPARE(presenter->sendRequestNotCare_Async(id, type, msg.get()), -1);
    QVERIFY(d->asyncRequests.isEmpty());
}

// --- synchronous requests in a nested loop ---------------------------------------------------------------

void TestZrPresenterClass::syncRefusesNullAndEmptyMessages()
{
    make(IMessageInterface::SharedThread);
    QVariant response;
    QTest::ignoreMessage(QtWarningMsg, "sendRequest msg is null");
    QCOMPARE(presenter->sendRequest_Sync(nullptr, response), -1);
    CMessageCommon empty;
    QTest::ignoreMessage(QtWarningMsg, "sendRequest dataList is empty");
    QCOMPARE(presenter->sendRequest_Sync(&empty, response), -2);
    QVERIFY(d->syncLoops.isEmpty());
}

void TestZrPresenterClass::syncWaitsInANestedLoop()
{
    make(IMessageInterface::SharedThread);
    std::atomic<bool> mayAnswer{false};
    bench->answer(query, [&mayAnswer, this](const ZrBusRequest &request) {
        while (!mayAnswer)
            std::this_thread::yield();
        return echo(request);
    });
    bool wasServed = false;
    QTimer::singleShot(0, this, [&] {
        wasServed = d->syncLoops.contains(QStringLiteral("1"));
        mayAnswer = true;
    });
    QVariant response;
    QCOMPARE(presenter->sendRequest_Sync(Probe::message(query, QStringLiteral("1")), response), 0);
    QVERIFY(wasServed); // timers go on during the wait
    QCOMPARE(response, Probe::body(QStringLiteral("1")));
    QVERIFY(d->syncLoops.isEmpty());
    QCOMPARE(
        bench->requests().first().records.first().value(Vexlor_Fields::CustomField::requestType).toString(),
        Vexlor_Values::RequestType::sync);
    QVERIFY(presenter->calls().isEmpty());
}

void TestZrPresenterClass::syncReportsARejection()
{
    make(IMessageInterface::SharedThread);
    answerWith(Vexlor_MsgType::bussinessMsgReject);
    QVariant response;
    QCOMPARE(presenter->sendRequest_Sync(Probe::message(query, QStringLiteral("1")), response), 2);
    QCOMPARE(response, Probe::body(QStringLiteral("1")));
}

void TestZrPresenterClass::syncIsLogged()
{
    make(IMessageInterface::SharedThread);
    answerWith(QStringLiteral("Answer"));
    QVariant response;
    const LogCatcher log;
    QCOMPARE(presenter->sendRequest_Sync(Probe::message(query, QStringLiteral("1")), response), 0);
    QCOMPARE(log.lines(QtDebugMsg).value(0),
             QStringLiteral("ZrPresenterClass::sendRequest_Sync \"menu#plugin#_1\" \"Query\""));
}

void TestZrPresenterClass::syncWorksOnTheThreadsOfOthers()
{
    make(IMessageInterface::PresenterThread);
    answerWith(QStringLiteral("Answer"));
    int results[4] = {-9, -9, -9, -9};
    QList<QThread *> threads;
    for (int i = 0; i < 4; ++i) {
        threads.append(QThread::create([this, i, &results] {
            QVariant response;
            results[i] = presenter->sendRequest_Sync(Probe::message(query, QString::number(i)), response);
            if (response != Probe::body(QString::number(i)))
                results[i] = -8; // somebody else's answer
        }));
        threads.last()->start();
    }
    for (QThread *thread : qAsConst(threads))
        QVERIFY(thread->wait(20000));
    qDeleteAll(threads);
    for (const int result : results)
        QCOMPARE(result, 0);
}

void TestZrPresenterClass::syncSurvivesTheEndOfItsThread()
{
    make(IMessageInterface::SharedThread);
    bench->answer(query, nullptr);
    int result = -9;
    QScopedPointer<QThread> thread(QThread::create([this, &result] {
        QVariant response;
        result = presenter->sendRequest_Sync(Probe::message(query, QStringLiteral("1")), response);
    }));
    thread->start();
    QTRY_COMPARE(bench->requests().size(), 1);
    thread->quit();
    QVERIFY(thread->wait(20000));
    QCOMPARE(result, 0);
    // The loop has gone: an answer must not find it any more.
    d->ProcMsg(pid, query, Probe::body(QStringLiteral("1")));
    QCOMPARE(presenter->calls(QStringLiteral("msg")).size(), 1);
}

// --- synchronous requests on a blocked thread ------------------------------------------------------------

void TestZrPresenterClass::blockRefusesNullAndEmptyMessages()
{
    make(IMessageInterface::SharedThread);
    QVariant response;
    QTest::ignoreMessage(QtWarningMsg, "sendRequest msg is null");
    QCOMPARE(presenter->sendRequest_Sync_Block(nullptr, response, 1), -1);
    CMessageCommon empty;
    QTest::ignoreMessage(QtWarningMsg, "sendRequest dataList is empty");
    QCOMPARE(presenter->sendRequest_Sync_Block(&empty, response, 1), -2);
    QVERIFY(d->blockWaiters.isEmpty());
}

// An answer that is faster than the wait is lost, as it has to be; so the request is repeated until one was
// not.
int TestZrPresenterClass::blockedUntilAnswered(QVariant *response, int expected)
{
    const LogCatcher swallowed;
    int result = 1;
    for (int i = 0; i < 200 && result == 1; ++i)
        result =
            presenter->sendRequest_Sync_Block(Probe::message(query, QStringLiteral("1")), *response, 200);
    return result == expected ? expected : result;
}

void TestZrPresenterClass::blockGetsItsAnswer()
{
    make(IMessageInterface::SharedThread);
    answerWith(QStringLiteral("Answer"));
    QVariant response;
    QCOMPARE(blockedUntilAnswered(&response, 0), 0);
    QCOMPARE(response, Probe::body(QStringLiteral("1")));
    QVERIFY(d->blockWaiters.isEmpty());
    QVERIFY(d->requestAges.isEmpty()); // the clock never sees a blocked request
    QCOMPARE(
        bench->requests().first().records.first().value(Vexlor_Fields::CustomField::requestType).toString(),
        Vexlor_Values::RequestType::sync);
}

void TestZrPresenterClass::blockReportsARejection()
{
    make(IMessageInterface::SharedThread);
    answerWith(Vexlor_MsgType::bussinessMsgReject);
    QVariant response;
    QCOMPARE(blockedUntilAnswered(&response, 2), 2);
    QCOMPARE(response, Probe::body(QStringLiteral("1")));
}

void TestZrPresenterClass::blockTimesOutWithAMessageThatReadsLikeAnAnswer()
{
    const EventProbe listener(QStringLiteral("listener"), 217088);
    make(IMessageInterface::SharedThread);
    bench->answer(query, nullptr);
    ProbeCall got;
    QTest::ignoreMessage(QtWarningMsg,
                         "Block Sync request timeout \"menu#plugin#_1\"  msgtType =  \"Query\"");
    QCOMPARE(presenter->sendRequest_Sync_Block(Probe::message(query, QStringLiteral("1")), got.body, 10), 1);
    QCOMPARE(got.value(Vexlor_Fields::System::clientMsgID).toString(), QStringLiteral("1"));
    QCOMPARE(got.value(Vexlor_Fields::System::textDescription).toString(), QStringLiteral("request timeout"));
    QVERIFY(d->blockWaiters.isEmpty());
    QTRY_COMPARE(listener.calls().size(), 1);
    const QVariantMap event = listener.calls().first().body.toMap();
    QCOMPARE(event.value(Vexlor_Fields::System::itemType).toString(),
             Vexlor_Values::ClinetInfoUpload::RequestTimeOutError);
    QCOMPARE(event.value(Vexlor_Fields::System::itemValue).toString(), query);
    QCOMPARE(event.value(Vexlor_Fields::System::itemValueEx).toString(), QStringLiteral("1"));
    QCOMPARE(event.size(), 3);
    QCOMPARE(listener.calls().first().pid, pid);
    // Too late for the call, and nobody's any more.
    d->ProcMsg(pid, query, Probe::body(QStringLiteral("1")));
    QCOMPARE(presenter->calls(QStringLiteral("msg")).size(), 1);
}

void TestZrPresenterClass::blockWithoutATimeTakesThePresentersOwn()
{
    make(IMessageInterface::SharedThread);
    presenter->setRequestTimeOut(3);
    QCOMPARE(d->blockTimeMs(0), 3000ul);
    QCOMPARE(d->blockTimeMs(7), 7ul);
    presenter->setRequestTimeOut(-3);
    QCOMPARE(d->blockTimeMs(0), 0ul);
    presenter->setRequestTimeOut(0);
    bench->answer(query, nullptr);
    QVariant response;
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("^Block Sync request timeout")));
    QCOMPARE(presenter->sendRequest_Sync_Block(Probe::message(query, QStringLiteral("1")), response, 0), 1);
}

ZR_TEST_GUILESS_MAIN(TestZrPresenterClass)
#include "tst_zrpresenterclass.moc"
