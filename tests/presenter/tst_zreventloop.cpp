#include "ZrEventLoop.h"
#include "ZrTestMain.h"

#include <QtCore/QPointer>
#include <QtCore/QTimer>

#include <thread>

class TestZrEventLoop : public QObject
{
    Q_OBJECT
private slots:
    void beginsWithoutAnswerAndWithResultZero();
    void anAnswerForItsAddressEndsTheWait();
    void anAnswerForAnotherAddressIsNotHeard();
    void anAnswerBeforeTheWaitIsNotLost();
    void anEndBeforeTheWaitIsNotLost_data();
    void anEndBeforeTheWaitIsNotLost();
    void anEndFromAnotherThreadEndsTheWait();
    void theLastHolderDeletesItLater();
};

void TestZrEventLoop::beginsWithoutAnswerAndWithResultZero()
{
    ZrEventLoop loop;
    QVERIFY(!loop.parent());
    QVERIFY(!loop.response.isValid());
    QVERIFY(loop.msgType.isEmpty());
    QCOMPARE(loop.result, 0);
}

void TestZrEventLoop::anAnswerForItsAddressEndsTheWait()
{
    ZrEventLoop loop;
    QTimer::singleShot(0, &loop, [&loop] { loop.slotReceiveResp(loop.address(), 7); });
    loop.run();
    QCOMPARE(loop.response.toInt(), 7);
}

void TestZrEventLoop::anAnswerForAnotherAddressIsNotHeard()
{
    ZrEventLoop loop;
    ZrEventLoop other;
    QTimer::singleShot(0, &loop, [&loop, &other] {
        loop.slotReceiveResp(other.address(), 7);
        QVERIFY(loop.isRunning());
        QVERIFY(!loop.response.isValid());
        loop.slotReceiveResp(loop.address(), 8);
    });
    loop.run();
    QCOMPARE(loop.response.toInt(), 8);
}

void TestZrEventLoop::anAnswerBeforeTheWaitIsNotLost()
{
    ZrEventLoop loop;
    loop.slotReceiveResp(loop.address(), 7);
    loop.run();
    QCOMPARE(loop.response.toInt(), 7);
}

void TestZrEventLoop::anEndBeforeTheWaitIsNotLost_data()
{
    QTest::addColumn<bool>("fromOtherThread");
    QTest::newRow("on the loop's own thread") << false;
    QTest::newRow("on another thread") << true;
}

void TestZrEventLoop::anEndBeforeTheWaitIsNotLost()
{
    QFETCH(bool, fromOtherThread);
    ZrEventLoop loop;
    if (fromOtherThread)
        std::thread([&loop] { loop.finish(); }).join();
    else
        loop.finish();
    loop.run();
    QVERIFY(!loop.response.isValid());
}

void TestZrEventLoop::anEndFromAnotherThreadEndsTheWait()
{
    ZrEventLoop loop;
    std::thread other;
    QTimer::singleShot(0, &loop, [&loop, &other] { other = std::thread([&loop] { loop.finish(); }); });
    loop.run();
    other.join();
    QVERIFY(!loop.response.isValid());
}

void TestZrEventLoop::theLastHolderDeletesItLater()
{
    ZrEventLoop::Pointer first = ZrEventLoop::create();
    const QPointer<ZrEventLoop> watched(first.get());
    ZrEventLoop::Pointer second = first->shared_from_this();
    first.reset();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY(watched);
    second.reset();
    QVERIFY(watched);
    QTRY_VERIFY(!watched);
}

ZR_TEST_GUILESS_MAIN(TestZrEventLoop)
#include "tst_zreventloop.moc"
