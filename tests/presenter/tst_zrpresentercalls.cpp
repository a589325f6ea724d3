#include "PresenterProbe.h"
#include "ZrPresenterCalls.h"
#include "ZrPresenterClass_p.h"
#include "ZrTestMain.h"

#include <thread>
#include <vector>

class TestZrPresenterCalls : public QObject
{
    Q_OBJECT
private slots:
    void anOpenHouseLetsEverybodyIn();
    void aClosedAndEmptyHouseLetsNobodyIn();
    void aClosedHouseLetsIntoItsCallsStillRunning();
    void onlyTheLastOneOutOfAClosedHouseIsTold();
    void manyThreadsLeaveExactlyOneLast();
    void theLastCallPostsTheDeletion();
};

void TestZrPresenterCalls::anOpenHouseLetsEverybodyIn()
{
    ZrPresenterCalls calls;
    QVERIFY(calls.isIdle());
    QVERIFY(calls.enter());
    QVERIFY(calls.enter());
    QVERIFY(!calls.isIdle());
    QVERIFY(!calls.leave());
    QVERIFY(!calls.leave());
    QVERIFY(calls.isIdle());
    QVERIFY(calls.enter());
}

void TestZrPresenterCalls::aClosedAndEmptyHouseLetsNobodyIn()
{
    ZrPresenterCalls calls;
    calls.close();
    QVERIFY(!calls.enter());
    QVERIFY(calls.isIdle());
}

void TestZrPresenterCalls::aClosedHouseLetsIntoItsCallsStillRunning()
{
    ZrPresenterCalls calls;
    QVERIFY(calls.enter());
    calls.close();
    QVERIFY(calls.enter());
    QVERIFY(!calls.leave());
    QVERIFY(calls.leave());
    QVERIFY(!calls.enter());
}

void TestZrPresenterCalls::onlyTheLastOneOutOfAClosedHouseIsTold()
{
    ZrPresenterCalls calls;
    for (int i = 0; i < 3; ++i)
        QVERIFY(calls.enter());
    QVERIFY(!calls.leave());
    calls.close();
    QVERIFY(!calls.leave());
    QVERIFY(calls.leave());
}

void TestZrPresenterCalls::manyThreadsLeaveExactlyOneLast()
{
    for (int round = 0; round < 50; ++round) {
        ZrPresenterCalls calls;
        std::atomic<int> last{0};
        std::vector<std::thread> threads;
        for (int i = 0; i < 4; ++i) {
            threads.emplace_back([&calls, &last, i] {
                for (int n = 0; n < 200; ++n) {
                    if (!calls.enter())
                        return;
                    if (i == 0 && n == 100)
                        calls.close();
                    if (calls.leave())
                        ++last;
                }
            });
        }
        for (std::thread &thread : threads)
            thread.join();
        QCOMPARE(last.load(), 1);
    }
}

void TestZrPresenterCalls::theLastCallPostsTheDeletion()
{
    auto *const presenter = new PresenterProbe(QStringLiteral("calls"), IMessageInterface::SharedThread);
    const Probe::Vanishing vanishing(presenter);
    {
        const ZrPresenterCall outer(presenter->getPrivate());
        QVERIFY(outer.isWelcome());
        presenter->deleteLater();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QVERIFY(!vanishing.isDone());
        QCOMPARE(presenter->pluginPid(), QStringLiteral("calls"));
    }
    QVERIFY(vanishing.wait());
    ZrBus::instance().reset();
}

ZR_TEST_GUILESS_MAIN(TestZrPresenterCalls)
#include "tst_zrpresentercalls.moc"
