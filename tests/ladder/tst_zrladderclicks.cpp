#include "ZrLadderClicks.h"
#include "ZrTestMain.h"

#include <QtCore/QAbstractEventDispatcher>

class tst_ZrLadderClicks : public QObject
{
    Q_OBJECT
private slots:
    void nothingWaitsAtFirst();
    void aClickWaitsByACoarseTimer();
    void whatWaitsIsGivenOnce();
    void anothersTimerGivesNothing();
    void theLastClickCounts();
    void onlyADoubleClickSwallowsTheNextRelease_data();
    void onlyADoubleClickSwallowsTheNextRelease();
    void theTimeIsOverByItself();
};

namespace {
QList<QAbstractEventDispatcher::TimerInfo> timersOf(QObject *object)
{
    return QAbstractEventDispatcher::instance()->registeredTimers(object);
}

ZrSecurityAskBidData level(int number)
{
    ZrSecurityAskBidData data;
    data.level = number;
    return data;
}

/// Takes what waits when its timer fires.
class Owner : public QObject
{
public:
    ZrLadderClicks clicks{this};
    ZrLadderClick taken;

protected:
    void timerEvent(QTimerEvent *event) override { taken = clicks.take(event->timerId()); }
};
} // namespace

void tst_ZrLadderClicks::nothingWaitsAtFirst()
{
    QObject owner;
    ZrLadderClicks clicks(&owner);
    QVERIFY(!clicks.isDoubleWaiting());
    for (const int id : {-1, 0, 1})
        QCOMPARE(clicks.take(id).kind, ZrLadderClick::None);
    QVERIFY(timersOf(&owner).isEmpty());
}

void tst_ZrLadderClicks::aClickWaitsByACoarseTimer()
{
    QObject owner;
    ZrLadderClicks clicks(&owner);
    clicks.expect(ZrLadderClick::Price, level(3));
    const auto timers = timersOf(&owner);
    QCOMPARE(timers.size(), 1);
    QCOMPARE(timers.constFirst().interval, 100);
    QCOMPARE(timers.constFirst().timerType, Qt::CoarseTimer);
}

void tst_ZrLadderClicks::whatWaitsIsGivenOnce()
{
    QObject owner;
    ZrLadderClicks clicks(&owner);
    clicks.expect(ZrLadderClick::Level, level(3));
    const int id = timersOf(&owner).constFirst().timerId;
    const ZrLadderClick taken = clicks.take(id);
    QCOMPARE(taken.kind, ZrLadderClick::Level);
    QCOMPARE(taken.level, level(3));
    QVERIFY(timersOf(&owner).isEmpty());
    QCOMPARE(clicks.take(id).kind, ZrLadderClick::None);
}

void tst_ZrLadderClicks::anothersTimerGivesNothing()
{
    QObject owner;
    ZrLadderClicks clicks(&owner);
    const int other = owner.startTimer(60000);
    clicks.expect(ZrLadderClick::Level, level(3));
    QCOMPARE(clicks.take(other).kind, ZrLadderClick::None);
    QCOMPARE(timersOf(&owner).size(), 2);
}

void tst_ZrLadderClicks::theLastClickCounts()
{
    QObject owner;
    ZrLadderClicks clicks(&owner);
    clicks.expect(ZrLadderClick::Level, level(3));
    clicks.expect(ZrLadderClick::Double, level(4));
    QCOMPARE(timersOf(&owner).size(), 1);
    const ZrLadderClick taken = clicks.take(timersOf(&owner).constFirst().timerId);
    QCOMPARE(taken.kind, ZrLadderClick::Double);
    QCOMPARE(taken.level, level(4));
}

void tst_ZrLadderClicks::onlyADoubleClickSwallowsTheNextRelease_data()
{
    QTest::addColumn<int>("kind");
    QTest::addColumn<bool>("expected");
    QTest::newRow("price") << int(ZrLadderClick::Price) << false;
    QTest::newRow("level") << int(ZrLadderClick::Level) << false;
    QTest::newRow("double") << int(ZrLadderClick::Double) << true;
}

void tst_ZrLadderClicks::onlyADoubleClickSwallowsTheNextRelease()
{
    QFETCH(int, kind);
    QObject owner;
    ZrLadderClicks clicks(&owner);
    clicks.expect(ZrLadderClick::Kind(kind), level(1));
    QTEST(clicks.isDoubleWaiting(), "expected");
    clicks.take(timersOf(&owner).constFirst().timerId);
    QVERIFY(!clicks.isDoubleWaiting());
}

void tst_ZrLadderClicks::theTimeIsOverByItself()
{
    Owner owner;
    owner.clicks.expect(ZrLadderClick::Price, level(5));
    QTRY_COMPARE(owner.taken.level, level(5));
    QCOMPARE(owner.taken.kind, ZrLadderClick::Price);
}

ZR_TEST_GUILESS_MAIN(tst_ZrLadderClicks)
#include "tst_zrladderclicks.moc"
