#include "HostScene.h"
#include "ZrTestMain.h"

#include "zrbase/ZrFaultSpec.h"
#include "zrdefine/VexlorMsgType.h"

#include <algorithm>

/// The faults on the bus: how they are written, what each does, and that a run repeats.
class tst_ZrFaults : public QObject
{
    Q_OBJECT
private slots:
    void init();
    void cleanup();
    void goodSpecs_data();
    void goodSpecs();
    void badSpecsGiveOneSentence_data();
    void badSpecsGiveOneSentence();
    void aBadSpecLeavesTheFaultsAsTheyWere();
    void dropLosesItsShareAndCountsIt();
    void duplicateGivesEachTwice();
    void reorderSwapsNeighbours();
    void theLastOneIsNotHeldForEver();
    void rejectTurnsAnswersOnly();
    void burstGivesThemTogether();
    void anIncompleteBurstComesToo();
    void delayLetsNoneGetLost();
    void theSameSeedRepeatsTheRun();
    void streamsDoNotDisturbOneAnother();
    void registrationsAndOwnEventsAreSpared();

private:
    QVector<int> publish(const QString &spec, int count);

    ZrReferenceHost m_host;
};

void tst_ZrFaults::init()
{
    QVERIFY(m_host.start(ZrReferenceHost::Options()));
}

void tst_ZrFaults::cleanup()
{
    m_host.stop();
}

void tst_ZrFaults::goodSpecs_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("harmless");
    QTest::newRow("empty") << QString() << true;
    QTest::newRow("all")
        << QStringLiteral(
               "drop=0.1, duplicate=.2,reorder=1,reject=0.5,delay=5..20,delayed=0.3,burst=10,seed=7")
        << false;
    QTest::newRow("one delay") << QStringLiteral("delay=5") << false;
    QTest::newRow("delay of nobody") << QStringLiteral("delay=5,delayed=0") << true;
    QTest::newRow("only a seed") << QStringLiteral("seed=4294967295") << true;
    QTest::newRow("stray commas") << QStringLiteral(",drop=1,,") << false;
    QTest::newRow("burst of one") << QStringLiteral("burst=1") << true;
}

void tst_ZrFaults::goodSpecs()
{
    QFETCH(QString, text);
    ZrFaultSpec spec;
    QString errorText;
    QVERIFY2(ZrFaultSpec::parse(text, &spec, &errorText), qPrintable(errorText));
    QTEST(spec.isHarmless(), "harmless");
}

void tst_ZrFaults::badSpecsGiveOneSentence_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("expected");
    QTest::newRow("no value") << QStringLiteral("drop")
                              << QStringLiteral("Bad faults: \"drop\" is not of the form name=value.");
    QTest::newRow("unknown") << QStringLiteral("lose=1")
                             << QStringLiteral("Bad faults: there is no fault \"lose\".");
    QTest::newRow("above one") << QStringLiteral("drop=1.1")
                               << QStringLiteral(
                                      "Bad faults: the fault \"drop\" needs a number from 0 to 1.");
    QTest::newRow("not a number") << QStringLiteral("reject=nan")
                                  << QStringLiteral(
                                         "Bad faults: the fault \"reject\" needs a number from 0 to 1.");
    QTest::newRow("delay backwards") << QStringLiteral("delay=9..5")
                                     << QStringLiteral(
                                            "Bad faults: the fault \"delay\" needs MIN..MAX in ms.");
    QTest::newRow("delay of three") << QStringLiteral("delay=1..2..3")
                                    << QStringLiteral(
                                           "Bad faults: the fault \"delay\" needs MIN..MAX in ms.");
    QTest::newRow("delay for ever") << QStringLiteral("delay=0..99999999")
                                    << QStringLiteral(
                                           "Bad faults: the fault \"delay\" needs MIN..MAX in ms.");
    QTest::newRow("burst below none")
        << QStringLiteral("burst=-1")
        << QStringLiteral("Bad faults: the fault \"burst\" needs a count up to 1000000.");
    QTest::newRow("seed") << QStringLiteral("seed=x")
                          << QStringLiteral("Bad faults: the fault \"seed\" needs a whole number from 0.");
}

void tst_ZrFaults::badSpecsGiveOneSentence()
{
    QFETCH(QString, text);
    QVERIFY(!m_host.setFaults(text));
    QTEST(m_host.errorText(), "expected");
}

void tst_ZrFaults::aBadSpecLeavesTheFaultsAsTheyWere()
{
    QVERIFY(m_host.setFaults(QStringLiteral("drop=1")));
    QVERIFY(!m_host.setFaults(QStringLiteral("drop=0,nonsense")));
    m_host.publish(QStringLiteral("Tick"), {numbered(1)});
    QVERIFY(m_host.waitIdle(longMs));
    QCOMPARE(m_host.counters().dropped, 1);
}

/// Publishes 0, 1, 2... under a fault and gives what came, in order.
QVector<int> tst_ZrFaults::publish(const QString &spec, int count)
{
    Listener listener(QStringLiteral("listener"));
    listener.subscribe(QStringLiteral("Tick"));
    if (!m_host.setFaults(spec))
        return QVector<int>();
    for (int n = 0; n < count; ++n)
        m_host.publish(QStringLiteral("Tick"), {numbered(n)});
    m_host.waitIdle(longMs);
    return listener.numbers();
}

static QVector<int> sorted(QVector<int> numbers)
{
    std::sort(numbers.begin(), numbers.end());
    return numbers;
}

static QVector<int> counted(int count)
{
    QVector<int> numbers;
    for (int n = 0; n < count; ++n)
        numbers.append(n);
    return numbers;
}

void tst_ZrFaults::dropLosesItsShareAndCountsIt()
{
    const QVector<int> came = publish(QStringLiteral("drop=0.3,seed=1"), 10000);
    QVERIFY(came.size() > 6700 && came.size() < 7300);
    QCOMPARE(came, sorted(came));
    QCOMPARE(m_host.counters().dropped, qint64(10000 - came.size()));
}

void tst_ZrFaults::duplicateGivesEachTwice()
{
    QCOMPARE(publish(QStringLiteral("duplicate=1"), 3), (QVector<int>{0, 0, 1, 1, 2, 2}));
}

void tst_ZrFaults::reorderSwapsNeighbours()
{
    QCOMPARE(publish(QStringLiteral("reorder=1"), 6), (QVector<int>{1, 0, 3, 2, 5, 4}));
    const QVector<int> some = publish(QStringLiteral("reorder=0.2"), 1000);
    QVERIFY(some != counted(1000));
    QCOMPARE(sorted(some), counted(1000));
}

void tst_ZrFaults::theLastOneIsNotHeldForEver()
{
    QCOMPARE(publish(QStringLiteral("reorder=1"), 3), (QVector<int>{1, 0, 2}));
}

void tst_ZrFaults::rejectTurnsAnswersOnly()
{
    m_host.registerService(QStringLiteral("Ask"), echoService(QStringLiteral("Answer")));
    QVERIFY(m_host.setFaults(QStringLiteral("reject=1")));
    Listener listener(QStringLiteral("listener"));
    listener.subscribe(QStringLiteral("Tick"));
    listener.Put(listener.pid, requestOf(QStringLiteral("Ask"), 9));
    m_host.publish(QStringLiteral("Tick"), {numbered(2)});
    QVERIFY(m_host.waitIdle(longMs));
    QCOMPARE(listener.heard().size(), 2);
    for (const Heard &one : listener.heard()) {
        const bool isTick = one.type == QLatin1String("Tick");
        QCOMPARE(one.type, isTick ? QStringLiteral("Tick") : Vexlor_MsgType::bussinessMsgReject);
        if (isTick)
            continue;
        QCOMPARE(one.first.value(Vexlor_Fields::System::clientMsgID).toString(), QStringLiteral("9"));
        QCOMPARE(one.first.value(Vexlor_Fields::System::msgType).toString(),
                 Vexlor_MsgType::bussinessMsgReject);
        QVERIFY(!one.first.contains(QStringLiteral("n")));
    }
}

void tst_ZrFaults::burstGivesThemTogether()
{
    Listener listener(QStringLiteral("listener"));
    listener.subscribe(QStringLiteral("Tick"));
    QVERIFY(m_host.setFaults(QStringLiteral("burst=5")));
    for (int n = 0; n < 10; ++n)
        m_host.publish(QStringLiteral("Tick"), {numbered(n)});
    QVERIFY(m_host.waitIdle(longMs));
    QCOMPARE(listener.numbers(), counted(10));
}

void tst_ZrFaults::anIncompleteBurstComesToo()
{
    QCOMPARE(publish(QStringLiteral("burst=1000"), 7), counted(7));
}

void tst_ZrFaults::delayLetsNoneGetLost()
{
    QElapsedTimer clock;
    clock.start();
    const QVector<int> came = publish(QStringLiteral("delay=5..20"), 200);
    QVERIFY(clock.elapsed() >= 5);
    QCOMPARE(sorted(came), counted(200));
    QVERIFY(came != counted(200)); // the shorter ones overtake
    QCOMPARE(publish(QStringLiteral("delay=5..5"), 200), counted(200));
}

void tst_ZrFaults::theSameSeedRepeatsTheRun()
{
    const QString spec = QStringLiteral("drop=0.2,duplicate=0.2,reorder=0.2,seed=%1");
    const QVector<int> first = publish(spec.arg(7), 500);
    QCOMPARE(publish(spec.arg(7), 500), first);
    QVERIFY(publish(spec.arg(8), 500) != first);
}

void tst_ZrFaults::streamsDoNotDisturbOneAnother()
{
    const QString spec = QStringLiteral("drop=0.5,seed=3");
    const QVector<int> alone = publish(spec, 300);
    Listener listener(QStringLiteral("listener"));
    listener.subscribe(QStringLiteral("Tick"));
    QVERIFY(m_host.setFaults(spec));
    for (int n = 0; n < 300; ++n) {
        m_host.publish(QStringLiteral("Tick"), {numbered(n)});
        m_host.publish(QStringLiteral("Tock"), {numbered(n)});
    }
    QVERIFY(m_host.waitIdle(longMs));
    QCOMPARE(listener.numbers(), alone);
}

void tst_ZrFaults::registrationsAndOwnEventsAreSpared()
{
    QVERIFY(m_host.setFaults(QStringLiteral("drop=1")));
    Listener listener(QStringLiteral("listener"));
    listener.SubEvent(listener.pid, 65555, 1);
    listener.PutEvent(listener.pid, eventOf(listener.pid, 65555, 1));
    m_host.publishEvent(65555, numbered(2));
    QVERIFY(m_host.waitIdle(longMs));
    QCOMPARE(listener.numbers(), QVector<int>{1});
}

ZR_TEST_GUILESS_MAIN(tst_ZrFaults)
#include "tst_zrfaults.moc"
