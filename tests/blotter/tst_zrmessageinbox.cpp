#include "ZrMessageInbox.h"
#include "ZrTestMain.h"

#include <thread>

class tst_ZrMessageInbox : public QObject
{
    Q_OBJECT
private slots:
    void messagesOfAllThreadsComeInTheirOrder();
    void aBatchIsBounded();
    void nothingComesWithoutTheEventLoop();
};

namespace {
ZrInboxMessage message(int thread, int number)
{
    return {QString::number(thread), {{QStringLiteral("n"), number}}};
}
} // namespace

void tst_ZrMessageInbox::messagesOfAllThreadsComeInTheirOrder()
{
    ZrMessageInbox inbox;
    QMap<QString, int> next;
    int total = 0;
    bool ordered = true;
    connect(&inbox, &ZrMessageInbox::signalBatch, this, [&](const std::vector<ZrInboxMessage> &batch) {
        for (const ZrInboxMessage &m : batch)
            ordered = ordered && m.record.value(QStringLiteral("n")).toInt() == next[m.type]++;
        total += int(batch.size());
    });
    std::vector<std::thread> threads;
    for (int t = 0; t < 4; ++t)
        threads.emplace_back([&inbox, t] {
            for (int i = 0; i < 5000; ++i)
                inbox.put(message(t, i));
        });
    QTRY_COMPARE(total, 20000);
    for (std::thread &thread : threads)
        thread.join();
    QVERIFY(ordered);
    QVERIFY(inbox.isEmpty());
}

void tst_ZrMessageInbox::aBatchIsBounded()
{
    ZrMessageInbox inbox;
    QVector<int> sizes;
    connect(&inbox, &ZrMessageInbox::signalBatch, this,
            [&sizes](const std::vector<ZrInboxMessage> &batch) { sizes.append(int(batch.size())); });
    for (int i = 0; i < ZrMessageInbox::MaxBatch * 2 + 5; ++i)
        inbox.put(message(0, i));
    QTRY_COMPARE(sizes, (QVector<int>{ZrMessageInbox::MaxBatch, ZrMessageInbox::MaxBatch, 5}));
}

void tst_ZrMessageInbox::nothingComesWithoutTheEventLoop()
{
    ZrMessageInbox inbox;
    int batches = 0;
    connect(&inbox, &ZrMessageInbox::signalBatch, this, [&batches] { ++batches; });
    inbox.put(message(0, 0));
    QCOMPARE(batches, 0);
    QVERIFY(!inbox.isEmpty());
    QTRY_COMPARE(batches, 1);
}

ZR_TEST_GUILESS_MAIN(tst_ZrMessageInbox)
#include "tst_zrmessageinbox.moc"
