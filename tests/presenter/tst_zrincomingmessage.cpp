#include "PresenterProbe.h"
#include "zrdefine/VexlorFields.h"
#include "zrdefine/VexlorMsgType.h"
#include "ZrPresenterClass_p.h"
#include "ZrTestMain.h"

namespace {
const QString pid = QStringLiteral("menu#plugin#_1");
const QString backEnd = QStringLiteral("back end");
const QString id = QStringLiteral("17");

QVariantMap followup(const QVariant &value)
{
    return {{Vexlor_Fields::System::hasFollowup, value}};
}
} // namespace

/// Messages are handed to the endpoint directly, as the bus would.
class TestZrIncomingMessage : public QObject
{
    Q_OBJECT
private slots:
    void init();
    void cleanup();

    void aMessageThatNobodyWaitsForIsPlain();
    void aBodyThatCannotBeReadIsPlain();
    void anAnswerEndsTheWaitingLoop_data();
    void anAnswerEndsTheWaitingLoop();
    void theFirstAnswerEndsTheWaitWhateverFollows();
    void anAnswerEndsTheBlockedCall_data();
    void anAnswerEndsTheBlockedCall();
    void anAnswerCallsBack_data();
    void anAnswerCallsBack();
    void anAsynchronousRequestStaysOpenWhileMoreFollows_data();
    void anAsynchronousRequestStaysOpenWhileMoreFollows();
    void aLateAnswerCallsBackAndIsLogged();
    void aLateRejectionReportsTheTypeOfTheRequest();
    void aSubscribedResponseIsLetThroughForOwnPutsOnly_data();
    void aSubscribedResponseIsLetThroughForOwnPutsOnly();
    void aSubscribedResponseGoesBeforeAWaitingRequest();
    void theOrderOfTheClasses();
    void theLastMessageForgetsAllPutsOfItsId_data();
    void theLastMessageForgetsAllPutsOfItsId();
    void everyMessageIsLoggedTwice();
    void theFlagsOfTheLogTellTheClass_data();
    void theFlagsOfTheLogTellTheClass();
    void executionReportsAreNotLogged();
    void eventsAndQuotationsAreForwarded();
    void aQuotationWithoutPresenterIsLogged();
    void nothingComesInOnceThePresenterIsGoing();

private:
    void receive(const QString &type, const QVariantMap &more = QVariantMap())
    {
        d->ProcMsg(backEnd, type, Probe::body(id, more));
    }
    PresenterProbe *presenter = nullptr;
    ZrPresenterClassPrivate *d = nullptr;
};

void TestZrIncomingMessage::init()
{
    presenter = new PresenterProbe(pid, IMessageInterface::SharedThread);
    d = presenter->getPrivate();
}

void TestZrIncomingMessage::cleanup()
{
    if (presenter)
        QVERIFY(Probe::isGoneAfterDeleteLater(presenter));
    presenter = nullptr;
    ZrBus::instance().reset();
}

void TestZrIncomingMessage::aMessageThatNobodyWaitsForIsPlain()
{
    receive(QStringLiteral("News"));
    const QList<ProbeCall> calls = presenter->calls();
    QCOMPARE(calls.size(), 1);
    QCOMPARE(calls.first().receiver, QStringLiteral("msg"));
    QCOMPARE(calls.first().pid, backEnd);
    QCOMPARE(calls.first().type.toString(), QStringLiteral("News"));
    QCOMPARE(calls.first().value(Vexlor_Fields::System::clientMsgID).toString(), id);
}

void TestZrIncomingMessage::aBodyThatCannotBeReadIsPlain()
{
    d->ProcMsg(backEnd, QStringLiteral("News"), QVariant(42));
    QCOMPARE(presenter->calls(QStringLiteral("msg")).size(), 1);
    QCOMPARE(presenter->calls().first().body.toInt(), 42);
}

void TestZrIncomingMessage::anAnswerEndsTheWaitingLoop_data()
{
    QTest::addColumn<QString>("type");
    QTest::addColumn<int>("expected");
    QTest::newRow("answer") << QStringLiteral("Answer") << 0;
    QTest::newRow("rejection") << Vexlor_MsgType::bussinessMsgReject << 2;
    QTest::newRow("Client_88 is an answer here") << QStringLiteral("Client_88") << 0;
}

void TestZrIncomingMessage::anAnswerEndsTheWaitingLoop()
{
    QFETCH(QString, type);
    QFETCH(int, expected);
    const ZrEventLoop::Pointer loop = ZrEventLoop::create();
    connect(d, &ZrPresenterClassPrivate::signalSyncResponse, loop.get(), &ZrEventLoop::slotReceiveResp);
    QSignalSpy signal(d, &ZrPresenterClassPrivate::signalSyncResponse);
    d->syncLoops.insert(id, loop.get());
    receive(type);
    loop->run();
    QCOMPARE(loop->result, expected);
    QCOMPARE(loop->response, Probe::body(id));
    QVERIFY(d->syncLoops.isEmpty());
    QCOMPARE(signal.size(), 1);
    QCOMPARE(signal.first().first().toLongLong(), loop->address());
    QVERIFY(presenter->calls().isEmpty());
}

void TestZrIncomingMessage::theFirstAnswerEndsTheWaitWhateverFollows()
{
    const ZrEventLoop::Pointer loop = ZrEventLoop::create();
    d->syncLoops.insert(id, loop.get());
    receive(QStringLiteral("Answer"), followup(1));
    QVERIFY(d->syncLoops.isEmpty());
    receive(QStringLiteral("Answer"), followup(0));
    QCOMPARE(presenter->calls(QStringLiteral("msg")).size(), 1);
}

void TestZrIncomingMessage::anAnswerEndsTheBlockedCall_data()
{
    anAnswerEndsTheWaitingLoop_data();
}

void TestZrIncomingMessage::anAnswerEndsTheBlockedCall()
{
    QFETCH(QString, type);
    QFETCH(int, expected);
    const auto waiter = std::make_shared<ZrWaitCondition>();
    d->blockWaiters.insert(id, waiter.get());
    receive(type);
    QCOMPARE(waiter->getResult(), expected);
    QCOMPARE(waiter->getResponse(), Probe::body(id));
    QVERIFY(d->blockWaiters.isEmpty());
    QVERIFY(presenter->calls().isEmpty());
}

void TestZrIncomingMessage::anAnswerCallsBack_data()
{
    QTest::addColumn<QString>("type");
    QTest::addColumn<int>("expected");
    QTest::addColumn<QString>("expectedType");
    QTest::newRow("answer reports its own type") << QStringLiteral("Answer") << 0 << QStringLiteral("Answer");
    QTest::newRow("rejection reports the request's")
        << Vexlor_MsgType::bussinessMsgReject << 2 << QStringLiteral("Request");
    QTest::newRow("Client_88 reports the request's")
        << QStringLiteral("Client_88") << 3 << QStringLiteral("Request");
}

void TestZrIncomingMessage::anAnswerCallsBack()
{
    QFETCH(QString, type);
    QFETCH(int, expected);
    QFETCH(QString, expectedType);
    d->asyncRequests.insert(id, QStringLiteral("Request"));
    receive(type);
    const QList<ProbeCall> calls = presenter->calls();
    QCOMPARE(calls.size(), 1);
    QCOMPARE(calls.first().receiver, QStringLiteral("async"));
    QCOMPARE(calls.first().code, expected);
    QCOMPARE(calls.first().pid, backEnd);
    QCOMPARE(calls.first().type, QVariant(expectedType));
    QCOMPARE(calls.first().body, Probe::body(id));
    QVERIFY(d->asyncRequests.isEmpty());
}

void TestZrIncomingMessage::anAsynchronousRequestStaysOpenWhileMoreFollows_data()
{
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<bool>("isOpen");
    QTest::newRow("1") << QVariant(1) << true;
    QTest::newRow("text 1") << QVariant(QStringLiteral("1")) << true;
    QTest::newRow("0") << QVariant(0) << false;
    QTest::newRow("empty") << QVariant(QString()) << false;
    QTest::newRow("no number") << QVariant(QStringLiteral("yes")) << false;
}

void TestZrIncomingMessage::anAsynchronousRequestStaysOpenWhileMoreFollows()
{
    QFETCH(QVariant, value);
    QFETCH(bool, isOpen);
    d->asyncRequests.insert(id, QStringLiteral("Request"));
    receive(QStringLiteral("Answer"), followup(value));
    QCOMPARE(d->asyncRequests.contains(id), isOpen);
    QCOMPARE(presenter->calls(QStringLiteral("async")).size(), 1);
}

void TestZrIncomingMessage::aLateAnswerCallsBackAndIsLogged()
{
    d->timedOutAsyncRequests.insert(id, QStringLiteral("Request"));
    const LogCatcher log;
    receive(QStringLiteral("Answer"), followup(1));
    QVERIFY(d->timedOutAsyncRequests.contains(id));
    receive(QStringLiteral("Answer"));
    QVERIFY(d->timedOutAsyncRequests.isEmpty());
    QCOMPARE(presenter->calls(QStringLiteral("async")).size(), 2);
    QCOMPARE(presenter->calls().last().code, 0);
    QCOMPARE(presenter->calls().last().type, QVariant(QStringLiteral("Answer")));
    const QStringList lines = log.lines(QtDebugMsg);
    QVERIFY(lines.contains(QStringLiteral("5555555  Aysnc time out Response \"Answer\" \"menu#plugin#_1\"  "
                                          "clientMsgID =  \"17\"")));
    QVERIFY(lines.contains(
        QStringLiteral("5555555  Aysnc time out Response end \"Answer\" \"Answer\" \"menu#plugin#_1\"")));
}

void TestZrIncomingMessage::aLateRejectionReportsTheTypeOfTheRequest()
{
    d->timedOutAsyncRequests.insert(id, QStringLiteral("Request"));
    receive(Vexlor_MsgType::bussinessMsgReject);
    QCOMPARE(presenter->calls().first().code, 2);
    QCOMPARE(presenter->calls().first().type, QVariant(QStringLiteral("Request")));
}

void TestZrIncomingMessage::aSubscribedResponseIsLetThroughForOwnPutsOnly_data()
{
    QTest::addColumn<bool>("isOwn");
    QTest::newRow("own put") << true;
    QTest::newRow("another's") << false;
}

void TestZrIncomingMessage::aSubscribedResponseIsLetThroughForOwnPutsOnly()
{
    QFETCH(bool, isOwn);
    d->responseTypes.append(QStringLiteral("Answer"));
    d->putClientMsgIDs.append(isOwn ? id : QStringLiteral("other"));
    receive(QStringLiteral("Answer"));
    QCOMPARE(presenter->calls(QStringLiteral("msg")).size(), isOwn ? 1 : 0);
}

void TestZrIncomingMessage::aSubscribedResponseGoesBeforeAWaitingRequest()
{
    d->responseTypes.append(QStringLiteral("Answer"));
    d->asyncRequests.insert(id, QStringLiteral("Request"));
    receive(QStringLiteral("Answer"));
    QVERIFY(presenter->calls().isEmpty());
    QVERIFY(d->asyncRequests.contains(id));
}

void TestZrIncomingMessage::theOrderOfTheClasses()
{
    const ZrEventLoop::Pointer loop = ZrEventLoop::create();
    const auto waiter = std::make_shared<ZrWaitCondition>();
    d->syncLoops.insert(id, loop.get());
    d->asyncRequests.insert(id, QStringLiteral("open"));
    d->timedOutAsyncRequests.insert(id, QStringLiteral("late"));
    d->blockWaiters.insert(id, waiter.get());
    receive(Vexlor_MsgType::bussinessMsgReject);
    QVERIFY(d->syncLoops.isEmpty());
    QVERIFY(presenter->calls().isEmpty());
    receive(Vexlor_MsgType::bussinessMsgReject);
    QCOMPARE(presenter->calls().last().type.toString(), QStringLiteral("open"));
    receive(Vexlor_MsgType::bussinessMsgReject);
    QCOMPARE(presenter->calls().last().type.toString(), QStringLiteral("late"));
    QVERIFY(d->blockWaiters.contains(id));
    receive(Vexlor_MsgType::bussinessMsgReject);
    QCOMPARE(waiter->getResult(), 2);
    QCOMPARE(presenter->calls().size(), 2);
    receive(Vexlor_MsgType::bussinessMsgReject);
    QCOMPARE(presenter->calls(QStringLiteral("msg")).size(), 1);
}

void TestZrIncomingMessage::theLastMessageForgetsAllPutsOfItsId_data()
{
    QTest::addColumn<QVariantMap>("more");
    QTest::addColumn<int>("expected");
    QTest::newRow("nothing follows") << QVariantMap() << 1;
    QTest::newRow("more follows") << followup(2) << 3;
}

void TestZrIncomingMessage::theLastMessageForgetsAllPutsOfItsId()
{
    QFETCH(QVariantMap, more);
    QFETCH(int, expected);
    d->putClientMsgIDs = QStringList{id, QStringLiteral("other"), id};
    receive(QStringLiteral("Answer"), more);
    QCOMPARE(d->putClientMsgIDs.size(), expected);
    QVERIFY(d->putClientMsgIDs.contains(QStringLiteral("other")));
}

void TestZrIncomingMessage::everyMessageIsLoggedTwice()
{
    const LogCatcher log;
    receive(QStringLiteral("News"), {{Vexlor_Fields::System::traceID, QStringLiteral("t1")}});
    QCOMPARE(log.lines(QtDebugMsg),
             QStringList(
                 {QStringLiteral("ZrPresenterClassPrivate::ProcMsg msg received \"menu#plugin#_1\" \"17\" "
                                 "\"t1\""),
                  QStringLiteral("ZrPresenterClassPrivate::ProcMsg msg processed \"menu#plugin#_1\" \"17\" "
                                 "\"t1\" false false false false false false")}));
}

void TestZrIncomingMessage::theFlagsOfTheLogTellTheClass_data()
{
    QTest::addColumn<QString>("kind");
    QTest::addColumn<QString>("expected");
    QTest::newRow("others'") << QStringLiteral("subscribed")
                             << QStringLiteral("true false false false false false");
    QTest::newRow("own") << QStringLiteral("own") << QStringLiteral("true true false false false false");
    QTest::newRow("sync") << QStringLiteral("sync") << QStringLiteral("false false true false false false");
    QTest::newRow("async") << QStringLiteral("async") << QStringLiteral("false false false true false false");
    QTest::newRow("late") << QStringLiteral("late") << QStringLiteral("false false false false true false");
    QTest::newRow("block") << QStringLiteral("block") << QStringLiteral("false false false false false true");
}

void TestZrIncomingMessage::theFlagsOfTheLogTellTheClass()
{
    QFETCH(QString, kind);
    QFETCH(QString, expected);
    const ZrEventLoop::Pointer loop = ZrEventLoop::create();
    const auto waiter = std::make_shared<ZrWaitCondition>();
    if (kind == QLatin1String("subscribed") || kind == QLatin1String("own"))
        d->responseTypes.append(QStringLiteral("Answer"));
    if (kind == QLatin1String("own"))
        d->putClientMsgIDs.append(id);
    if (kind == QLatin1String("sync"))
        d->syncLoops.insert(id, loop.get());
    if (kind == QLatin1String("async"))
        d->asyncRequests.insert(id, QStringLiteral("Request"));
    if (kind == QLatin1String("late"))
        d->timedOutAsyncRequests.insert(id, QStringLiteral("Request"));
    if (kind == QLatin1String("block"))
        d->blockWaiters.insert(id, waiter.get());
    const LogCatcher log;
    receive(QStringLiteral("Answer"));
    QVERIFY2(log.lines(QtDebugMsg).last().endsWith(expected), qPrintable(log.lines(QtDebugMsg).last()));
}

void TestZrIncomingMessage::executionReportsAreNotLogged()
{
    const LogCatcher log;
    receive(Vexlor_MsgType::executionReport);
    QVERIFY(log.lines(QtDebugMsg).isEmpty());
    QCOMPARE(presenter->calls(QStringLiteral("msg")).size(), 1);
}

void TestZrIncomingMessage::eventsAndQuotationsAreForwarded()
{
    d->ProcEventMsg(backEnd, 7, QStringLiteral("event body"));
    d->ProcQuotationMsg(backEnd, QStringLiteral("600519"), 1.5);
    const QList<ProbeCall> calls = presenter->calls();
    QCOMPARE(calls.size(), 2);
    QCOMPARE(calls.at(0).receiver, QStringLiteral("event"));
    QCOMPARE(calls.at(0).type.toInt(), 7);
    QCOMPARE(calls.at(0).body.toString(), QStringLiteral("event body"));
    QCOMPARE(calls.at(1).receiver, QStringLiteral("quotation"));
    QCOMPARE(calls.at(1).pid, backEnd);
    QCOMPARE(calls.at(1).body.toDouble(), 1.5);
}

void TestZrIncomingMessage::aQuotationWithoutPresenterIsLogged()
{
    ZrPresenterClassPrivate lonely(pid, nullptr);
    const LogCatcher log;
    lonely.ProcQuotationMsg(backEnd, 1, 2);
    lonely.ProcEventMsg(backEnd, 1, 2);
    QCOMPARE(log.lines(QtDebugMsg),
             QStringList{QStringLiteral("ZrPresenterClassPrivate::ProcQuotationMsg QObject(0x0)")});
}

void TestZrIncomingMessage::nothingComesInOnceThePresenterIsGoing()
{
    const Probe::Vanishing vanishing(presenter);
    presenter->deleteLater();
    receive(QStringLiteral("News"));
    d->ProcEventMsg(backEnd, 7, QVariant());
    d->ProcQuotationMsg(backEnd, 7, QVariant());
    QVERIFY(presenter->calls().isEmpty());
    QVERIFY(vanishing.wait());
    presenter = nullptr;
}

ZR_TEST_GUILESS_MAIN(TestZrIncomingMessage)
#include "tst_zrincomingmessage.moc"
