#include "ZrFeedProgress.h"
#include "ZrTestMain.h"

#include <atomic>
#include <thread>

/// How far the slowest grid is.
class tst_ZrFeedProgress : public QObject
{
    Q_OBJECT
private slots:
    void withoutAGridAMessageIsDoneWhenItHasCome();
    void withAGridOrdersWaitForIt();
    void behindTheLastOrderNothingWaits();
    void theSlowestGridCounts();
    void aGridThatGoesHoldsUpNothing();
    void ordersOutOfTurnDoNotStepBack();
    void bothSidesMayTellAtOnce();
};

namespace {
constexpr quintptr First = 1;
constexpr quintptr Second = 2;
} // namespace

void tst_ZrFeedProgress::withoutAGridAMessageIsDoneWhenItHasCome()
{
    qint64 done = -1;
    ZrFeedProgress progress([&done](qint64 number) { done = number; });
    progress.came(0, true);
    QCOMPARE(done, qint64(0));
    progress.came(1, false);
    QCOMPARE(done, qint64(1));
}

void tst_ZrFeedProgress::withAGridOrdersWaitForIt()
{
    qint64 done = -1;
    ZrFeedProgress progress([&done](qint64 number) { done = number; });
    progress.came(0, true);
    progress.taken(First, 0);
    progress.came(1, true);
    progress.came(2, false);
    QCOMPARE(done, qint64(0));
    progress.taken(First, 1);
    QCOMPARE(done, qint64(2)); // the message behind it too
}

void tst_ZrFeedProgress::behindTheLastOrderNothingWaits()
{
    qint64 done = -1;
    ZrFeedProgress progress([&done](qint64 number) { done = number; });
    progress.came(0, true);
    progress.taken(First, 0);
    for (int number = 1; number < 10; ++number) {
        progress.came(number, false);
        QCOMPARE(done, qint64(number));
    }
}

void tst_ZrFeedProgress::theSlowestGridCounts()
{
    qint64 done = -1;
    ZrFeedProgress progress([&done](qint64 number) { done = number; });
    progress.came(0, true);
    progress.taken(First, 0);
    progress.taken(Second, 0);
    for (int number = 1; number <= 4; ++number)
        progress.came(number, true);
    progress.taken(First, 4);
    progress.taken(Second, 2);
    QCOMPARE(done, qint64(2));
    progress.taken(Second, 4);
    QCOMPARE(done, qint64(4));
}

void tst_ZrFeedProgress::aGridThatGoesHoldsUpNothing()
{
    qint64 done = -1;
    ZrFeedProgress progress([&done](qint64 number) { done = number; });
    progress.came(0, true);
    progress.taken(First, 0);
    progress.taken(Second, 0);
    progress.came(1, true);
    progress.taken(First, 1);
    QCOMPARE(done, qint64(0));
    progress.gridGone(Second);
    QCOMPARE(done, qint64(1));
    progress.gridGone(3); // one that has never told anything
    QCOMPARE(done, qint64(1));
}

void tst_ZrFeedProgress::ordersOutOfTurnDoNotStepBack()
{
    qint64 done = -1;
    ZrFeedProgress progress([&done](qint64 number) { done = number; });
    progress.came(5, true);
    progress.came(3, true);
    progress.taken(First, 5);
    progress.taken(First, 3);
    QCOMPARE(done, qint64(5));
}

void tst_ZrFeedProgress::bothSidesMayTellAtOnce()
{
    constexpr qint64 Most = 20000;
    std::atomic<qint64> highest{-1};
    ZrFeedProgress progress([&highest](qint64 number) {
        qint64 seen = highest;
        while (number > seen && !highest.compare_exchange_weak(seen, number)) {
        }
    });
    std::thread bus([&progress] {
        for (qint64 number = 0; number < Most; ++number)
            progress.came(number, number % 3 == 0);
    });
    for (qint64 number = 0; number < Most; number += 3)
        progress.taken(First, number);
    bus.join();
    progress.taken(First, Most);
    QCOMPARE(highest.load(), Most - 1);
}

ZR_TEST_GUILESS_MAIN(tst_ZrFeedProgress)
#include "tst_zrfeedprogress.moc"
