#include "ZrTestMain.h"
#include "zrutils/ZrThread.h"

class TestThread : public QObject
{
    Q_OBJECT
private slots:
    void anObjectMovedThereRunsThere();
    void itGoesWithItsParent();
};

void TestThread::anObjectMovedThereRunsThere()
{
    ZrThread thread(nullptr);
    QObject worker;
    worker.moveToThread(&thread);
    QThread *ranOn = nullptr;
    connect(&thread, &QThread::started, &worker, [&] {
        ranOn = QThread::currentThread();
        thread.quit();
    });
    thread.start();
    QVERIFY(thread.wait(30000));
    QCOMPARE(ranOn, static_cast<QThread *>(&thread));
}

void TestThread::itGoesWithItsParent()
{
    auto parent = std::make_unique<QObject>();
    const QPointer<ZrThread> thread = new ZrThread(parent.get());
    QCOMPARE(thread->parent(), parent.get());
    parent.reset();
    QVERIFY(thread.isNull());
}

ZR_TEST_GUILESS_MAIN(TestThread)
#include "tst_zrthread.moc"
