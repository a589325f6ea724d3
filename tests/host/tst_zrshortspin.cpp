#include "zrbase/ZrShortSpin.h"
#include "ZrTestMain.h"

class tst_ZrShortSpin : public QObject
{
    Q_OBJECT
private slots:
    void whatIsReadyNeedsNoWait();
    void whatGetsReadyMeanwhileEndsTheWait();
    void nobodyElsewhereMeansNoWait();
    void waitsInVainAreLeftOutMoreAndMore();
    void aWaitThatPaysMakesUpForAllInVain();
};

namespace {
constexpr int Elsewhere = 100000; // no machine has such a processor: this thread never runs there

// Counts how often it is asked; says yes to that one question.
struct Counter
{
    int readyAt;
    int asked = 0;
    bool operator()() { return asked++ == readyAt; }
};

bool waitFor(ZrShortSpin *spin, int partner, Counter *counter)
{
    return spin->wait(partner, [counter] { return (*counter)(); });
}

// Uses up the waits that are left out and makes the next one, in vain.
void failOnce(ZrShortSpin *spin)
{
    const auto never = [] { return false; };
    while (spin->skipped() > 0)
        spin->wait(Elsewhere, never);
    spin->wait(Elsewhere, never);
}
} // namespace

void tst_ZrShortSpin::whatIsReadyNeedsNoWait()
{
    ZrShortSpin spin;
    Counter counter{0};
    QVERIFY(waitFor(&spin, -1, &counter));
    QCOMPARE(counter.asked, 1);
}

void tst_ZrShortSpin::whatGetsReadyMeanwhileEndsTheWait()
{
    ZrShortSpin spin;
    Counter counter{3};
    QVERIFY(waitFor(&spin, Elsewhere, &counter));
    QCOMPARE(counter.asked, 4);
    QCOMPARE(spin.skipped(), 0);
}

void tst_ZrShortSpin::nobodyElsewhereMeansNoWait()
{
    ZrShortSpin spin;
    Counter counter{1};
    QVERIFY(!waitFor(&spin, -1, &counter));
    QCOMPARE(counter.asked, 1);
    QCOMPARE(spin.skipped(), 0);
}

void tst_ZrShortSpin::waitsInVainAreLeftOutMoreAndMore()
{
    ZrShortSpin spin;
    for (const int expected : {2, 4, 8, 16, 32, 64, 64}) {
        failOnce(&spin);
        QCOMPARE(spin.skipped(), expected);
    }
    // A wait that is left out looks once.
    Counter counter{1};
    QVERIFY(!waitFor(&spin, Elsewhere, &counter));
    QCOMPARE(counter.asked, 1);
    QCOMPARE(spin.skipped(), 63);
}

void tst_ZrShortSpin::aWaitThatPaysMakesUpForAllInVain()
{
    ZrShortSpin spin;
    failOnce(&spin);
    failOnce(&spin);
    Counter counter{4 + 1}; // four that are left out, and the first look of the one that is not
    for (int i = 0; i < 4; ++i)
        QVERIFY(!waitFor(&spin, Elsewhere, &counter));
    QVERIFY(waitFor(&spin, Elsewhere, &counter));
    failOnce(&spin);
    QCOMPARE(spin.skipped(), 2);
}

ZR_TEST_GUILESS_MAIN(tst_ZrShortSpin)
#include "tst_zrshortspin.moc"
