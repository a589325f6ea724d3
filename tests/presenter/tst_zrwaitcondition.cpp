#include "ZrTestMain.h"
#include "ZrWaitCondition.h"

#include <QtCore/QElapsedTimer>

#include <limits>
#include <thread>

class TestZrWaitCondition : public QObject
{
    Q_OBJECT
private slots:
    void beginsWithoutAnswerAndWithResultZero();
    void aWaitThatNobodyEndsTimesOut();
    void anAnswerStoredBeforeTheWaitIsLost();
    void anInterruptionBeforeTheWaitEndsItAtOnce_data();
    void anInterruptionBeforeTheWaitEndsItAtOnce();
    void anAnswerDuringTheWaitEndsIt_data();
    void anAnswerDuringTheWaitEndsIt();
};

void TestZrWaitCondition::beginsWithoutAnswerAndWithResultZero()
{
    const ZrWaitCondition waiter;
    QVERIFY(!waiter.getResponse().isValid());
    QCOMPARE(waiter.getResult(), 0);
}

void TestZrWaitCondition::aWaitThatNobodyEndsTimesOut()
{
    ZrWaitCondition waiter;
    QElapsedTimer clock;
    clock.start();
    QCOMPARE(waiter.waitForAnswer(30), 1);
    QVERIFY(clock.elapsed() >= 29);
    QCOMPARE(waiter.getResult(), 1);
}

void TestZrWaitCondition::anAnswerStoredBeforeTheWaitIsLost()
{
    ZrWaitCondition waiter;
    waiter.setResult(2);
    waiter.setResponse(7);
    waiter.wakeAll();
    QCOMPARE(waiter.waitForAnswer(1), 1);
}

void TestZrWaitCondition::anInterruptionBeforeTheWaitEndsItAtOnce_data()
{
    QTest::addColumn<qulonglong>("timeoutMs");
    QTest::newRow("a minute") << qulonglong(60000);
    QTest::newRow("for ever") << qulonglong(std::numeric_limits<unsigned long>::max());
    QTest::newRow("longer than a clock counts") << qulonglong(std::numeric_limits<unsigned long>::max() / 2);
}

void TestZrWaitCondition::anInterruptionBeforeTheWaitEndsItAtOnce()
{
    QFETCH(qulonglong, timeoutMs);
    ZrWaitCondition waiter;
    waiter.setResult(1);
    waiter.wakeAll();
    QElapsedTimer clock;
    clock.start();
    QCOMPARE(waiter.waitForAnswer(static_cast<unsigned long>(timeoutMs)), 1);
    QVERIFY(clock.elapsed() < 10000);
}

void TestZrWaitCondition::anAnswerDuringTheWaitEndsIt_data()
{
    QTest::addColumn<qulonglong>("timeoutMs");
    QTest::newRow("a minute") << qulonglong(60000);
    QTest::newRow("for ever") << qulonglong(std::numeric_limits<unsigned long>::max());
    QTest::newRow("longer than a clock counts") << qulonglong(std::numeric_limits<unsigned long>::max() / 2);
}

// Whether the wait has begun can't be seen from outside: the answer is repeated until the wait has ended.
void TestZrWaitCondition::anAnswerDuringTheWaitEndsIt()
{
    QFETCH(qulonglong, timeoutMs);
    ZrWaitCondition waiter;
    std::atomic<bool> hasEnded{false};
    std::thread answering([&waiter, &hasEnded] {
        while (!hasEnded) {
            waiter.setResponse(7);
            waiter.setResult(2);
            waiter.wakeAll();
            std::this_thread::yield();
        }
    });
    const int result = waiter.waitForAnswer(static_cast<unsigned long>(timeoutMs));
    hasEnded = true;
    answering.join();
    QCOMPARE(result, 2);
    QCOMPARE(waiter.getResponse().toInt(), 7);
}

ZR_TEST_GUILESS_MAIN(TestZrWaitCondition)
#include "tst_zrwaitcondition.moc"
