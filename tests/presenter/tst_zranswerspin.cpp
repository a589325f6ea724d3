#include "ZrAnswerSpin.h"
#include "ZrTestMain.h"

class TestZrAnswerSpin : public QObject
{
    Q_OBJECT
private slots:
    void whatHasComeNeedsNoWait();
    void whatComesMeanwhileEndsTheWait();
    void nobodyElsewhereMeansNoWait();
    void waitsInVainAreLeftOutMoreAndMore();
    void aWaitThatPaysMakesUpForAllInVain();
};

namespace {
constexpr int Elsewhere = 100000; // no machine has such a processor: this thread never runs there

// Counts how often it is asked; says yes to that one question.
struct Counter
{
    int comesAt;
    int asked = 0;
    bool operator()() { return asked++ == comesAt; }
};

bool waitFor(ZrAnswerSpin *spin, int partner, Counter *counter)
{
    spin->setPartner(partner);
    return spin->wait([counter] { return (*counter)(); });
}

// Uses up the waits that are left out and makes the next one, in vain.
void failOnce(ZrAnswerSpin *spin)
{
    const auto never = [] { return false; };
    spin->setPartner(Elsewhere);
    while (spin->skipped() > 0)
        spin->wait(never);
    spin->wait(never);
}
} // namespace

void TestZrAnswerSpin::whatHasComeNeedsNoWait()
{
    ZrAnswerSpin spin;
    Counter counter{0};
    QVERIFY(waitFor(&spin, -1, &counter));
    QCOMPARE(counter.asked, 1);
}

void TestZrAnswerSpin::whatComesMeanwhileEndsTheWait()
{
    ZrAnswerSpin spin;
    Counter counter{3};
    QVERIFY(waitFor(&spin, Elsewhere, &counter));
    QCOMPARE(counter.asked, 4);
    QCOMPARE(spin.skipped(), 0);
}

void TestZrAnswerSpin::nobodyElsewhereMeansNoWait()
{
    ZrAnswerSpin spin;
    Counter counter{1};
    QVERIFY(!waitFor(&spin, -1, &counter));
    QCOMPARE(counter.asked, 1);
    QCOMPARE(spin.skipped(), 0);
}

void TestZrAnswerSpin::waitsInVainAreLeftOutMoreAndMore()
{
    ZrAnswerSpin spin;
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

void TestZrAnswerSpin::aWaitThatPaysMakesUpForAllInVain()
{
    ZrAnswerSpin spin;
    failOnce(&spin);
    failOnce(&spin);
    Counter counter{4 + 1}; // four that are left out, and the first look of the one that is not
    for (int i = 0; i < 4; ++i)
        QVERIFY(!waitFor(&spin, Elsewhere, &counter));
    QVERIFY(waitFor(&spin, Elsewhere, &counter));
    failOnce(&spin);
    QCOMPARE(spin.skipped(), 2);
}

ZR_TEST_GUILESS_MAIN(TestZrAnswerSpin)
#include "tst_zranswerspin.moc"
