#include "HostScene.h"
#include "ZrTestMain.h"

/// The bus as one participant sees it: registration, routing, subscriptions, linkage, ownership.
class tst_ZrBus : public QObject
{
    Q_OBJECT
private slots:
    void init();
    void cleanup();
    void answersGoToTheSender();
    void anAnswerWithoutTypeBearsTheRequests();
    void answersAlsoGoToSubscribersOnce();
    void sourceIdGoesBeforeTheGivenId();
    void aMessageWithoutServiceGoesToSubscribers();
    void aTypeIsTheSameAsNumberAndText();
    void publishedMessagesComeInOrder();
    void quotationsAndEventsHaveTheirOwnReceivers();
    void unsubscribedTypesAreNotHeard();
    void anUnknownSubscriptionTypeChangesNothing();
    void nothingIsHeardAfterUnReg();
    void aSecondRegistrationTakesTheFirstOnesPlace();
    void nullAndEmptyRegistrationsAreIgnored();
    void destructionUnregisters();
    void everyPathFreesMessagesAndEvents();
    void nullMessagesAreIgnored();
    void linkedPluginsHearOneAnother();
    void aNewGroupTakesTheOldOnesPlace();
    void unlinkOfAnotherGroupChangesNothing();
    void countersTellEachFate();
    void aMillionMessagesAreNotQuadratic();

private:
    ZrReferenceHost m_host;
};

void tst_ZrBus::init()
{
    QVERIFY(m_host.start(ZrReferenceHost::Options()));
}

void tst_ZrBus::cleanup()
{
    m_host.stop();
    QCOMPARE(CountedMessage::living.loadAcquire(), 0);
    QCOMPARE(CountedEvent::living.loadAcquire(), 0);
}

void tst_ZrBus::answersGoToTheSender()
{
    m_host.registerService(QStringLiteral("Ask"), echoService(QStringLiteral("Answer")));
    Listener asker(QStringLiteral("asker"));
    Listener other(QStringLiteral("other"));
    asker.Put(asker.pid, requestOf(QStringLiteral("Ask"), 7));
    QVERIFY(m_host.waitIdle(longMs));
    QCOMPARE(asker.heard().size(), 1);
    const Heard answer = asker.heard().constFirst();
    QCOMPARE(answer.receiver, QLatin1Char('M'));
    QCOMPARE(answer.pid, asker.pid);
    QCOMPARE(answer.type, QStringLiteral("Answer"));
    QCOMPARE(answer.number(), 7);
    // Filled in by the host, for a service that leaves it out.
    QCOMPARE(answer.first.value(Vexlor_Fields::System::clientMsgID).toString(), QStringLiteral("7"));
    QCOMPARE(answer.first.value(Vexlor_Fields::System::msgType).toString(), QStringLiteral("Answer"));
    QVERIFY(other.heard().isEmpty());
}

void tst_ZrBus::anAnswerWithoutTypeBearsTheRequests()
{
    m_host.registerService(QStringLiteral("Ask"), [](const ZrReferenceHost::Request &) {
        return QList<ZrReferenceHost::Answer>{ZrReferenceHost::Answer()};
    });
    Listener asker(QStringLiteral("asker"));
    asker.Put(asker.pid, requestOf(QStringLiteral("Ask"), 3));
    QVERIFY(m_host.waitIdle(longMs));
    QCOMPARE(asker.heard().size(), 1);
    QCOMPARE(asker.heard().constFirst().type, QStringLiteral("Ask"));
    QCOMPARE(asker.heard().constFirst().first.value(Vexlor_Fields::System::clientMsgID).toString(),
             QStringLiteral("3"));
}

void tst_ZrBus::answersAlsoGoToSubscribersOnce()
{
    m_host.registerService(QStringLiteral("Ask"), echoService(QStringLiteral("Answer")));
    Listener asker(QStringLiteral("asker"));
    Listener watcher(QStringLiteral("watcher"));
    asker.subscribe(QStringLiteral("Answer"));
    asker.subscribe(QStringLiteral("Answer"));
    watcher.subscribe(QStringLiteral("Answer"));
    asker.Put(asker.pid, requestOf(QStringLiteral("Ask"), 1));
    QVERIFY(m_host.waitIdle(longMs));
    QCOMPARE(asker.heard().size(), 1);
    QCOMPARE(watcher.heard().size(), 1);
}

void tst_ZrBus::sourceIdGoesBeforeTheGivenId()
{
    m_host.registerService(QStringLiteral("Ask"), echoService(QStringLiteral("Answer")));
    Listener named(QStringLiteral("named"));
    Listener given(QStringLiteral("given"));
    CMessageCommon *const message = requestOf(QStringLiteral("Ask"), 1);
    message->SetSrcid(named.pid);
    given.Put(given.pid, message);
    QVERIFY(m_host.waitIdle(longMs));
    QCOMPARE(named.heard().size(), 1);
    QVERIFY(given.heard().isEmpty());
}

void tst_ZrBus::aMessageWithoutServiceGoesToSubscribers()
{
    Listener sender(QStringLiteral("sender"));
    Listener watcher(QStringLiteral("watcher"));
    watcher.subscribe(QStringLiteral("Note"));
    sender.Put(sender.pid, requestOf(QStringLiteral("Note"), 4));
    QVERIFY(m_host.waitIdle(longMs));
    QCOMPARE(watcher.numbers(), QVector<int>{4});
    QCOMPARE(watcher.heard().constFirst().pid, sender.pid);
    QVERIFY(sender.heard().isEmpty());
}

void tst_ZrBus::aTypeIsTheSameAsNumberAndText()
{
    Listener watcher(QStringLiteral("watcher"));
    watcher.Sub(watcher.pid, 217088, 1);
    m_host.publish(QStringLiteral("217088"), {numbered(1)});
    m_host.publish(217088, {numbered(2)});
    QVERIFY(m_host.waitIdle(longMs));
    QCOMPARE(watcher.numbers(), (QVector<int>{1, 2}));
}

void tst_ZrBus::publishedMessagesComeInOrder()
{
    Listener shared(QStringLiteral("shared"));
    Listener own(QStringLiteral("own"), IMessageInterface::ReceiverThread);
    QVector<int> expected;
    shared.subscribe(QStringLiteral("Tick"));
    own.subscribe(QStringLiteral("Tick"));
    for (int n = 0; n < 10000; ++n) {
        m_host.publish(QStringLiteral("Tick"), {numbered(n)});
        expected.append(n);
    }
    QVERIFY(m_host.waitIdle(longMs));
    QCOMPARE(shared.numbers(), expected);
    QCOMPARE(own.numbers(), expected);
    QVERIFY(shared.heard().constFirst().thread != own.heard().constFirst().thread);
    QVERIFY(shared.heard().constFirst().thread != thread());
}

void tst_ZrBus::quotationsAndEventsHaveTheirOwnReceivers()
{
    Listener listener(QStringLiteral("listener"));
    listener.subscribe(QStringLiteral("Depth"));
    listener.SubEvent(listener.pid, 65555, 1);
    m_host.publishQuotation(QStringLiteral("Depth"), {numbered(1)});
    m_host.publishEvent(65555, numbered(2));
    listener.PutEvent(listener.pid, eventOf(listener.pid, 65555, 3));
    // A message type and an event type of one name have nothing in common.
    m_host.publishEvent(QStringLiteral("Depth"), numbered(4));
    QVERIFY(m_host.waitIdle(longMs));
    const QVector<Heard> heard = listener.heard();
    QCOMPARE(heard.size(), 3);
    QCOMPARE(heard.at(0).receiver, QLatin1Char('Q'));
    QCOMPARE(heard.at(1).receiver, QLatin1Char('E'));
    QCOMPARE(heard.at(1).pid, QString());
    QCOMPARE(heard.at(2).receiver, QLatin1Char('E'));
    QCOMPARE(heard.at(2).pid, listener.pid);
    QCOMPARE(heard.at(2).type, QStringLiteral("65555"));
}

void tst_ZrBus::unsubscribedTypesAreNotHeard()
{
    Listener listener(QStringLiteral("listener"));
    listener.subscribe(QStringLiteral("A"));
    listener.subscribe(QStringLiteral("B"));
    listener.unsubscribe(QStringLiteral("A"));
    listener.unsubscribe(QStringLiteral("never subscribed"));
    m_host.publish(QStringLiteral("A"), {numbered(1)});
    m_host.publish(QStringLiteral("B"), {numbered(2)});
    QVERIFY(m_host.waitIdle(longMs));
    QCOMPARE(listener.numbers(), QVector<int>{2});
}

void tst_ZrBus::anUnknownSubscriptionTypeChangesNothing()
{
    Listener listener(QStringLiteral("listener"));
    listener.subscribe(QStringLiteral("A"));
    for (const int type : {0, 3, -1}) {
        listener.Sub(listener.pid, QStringLiteral("A"), type);
        listener.Sub(listener.pid, QStringLiteral("B"), type);
    }
    m_host.publish(QStringLiteral("A"), {numbered(1)});
    m_host.publish(QStringLiteral("B"), {numbered(2)});
    QVERIFY(m_host.waitIdle(longMs));
    QCOMPARE(listener.numbers(), QVector<int>{1});
}

void tst_ZrBus::nothingIsHeardAfterUnReg()
{
    Listener listener(QStringLiteral("listener"));
    listener.subscribe(QStringLiteral("A"));
    listener.SubEvent(listener.pid, 1, 1);
    listener.UnReg(listener.pid);
    listener.UnReg(QStringLiteral("unknown"));
    m_host.publish(QStringLiteral("A"), {numbered(1)});
    // The subscription went with the registration.
    listener.Reg(listener.pid, &listener, IMessageInterface::SharedThread);
    m_host.publish(QStringLiteral("A"), {numbered(2)});
    m_host.publishEvent(1, numbered(3));
    QVERIFY(m_host.waitIdle(longMs));
    QVERIFY(listener.heard().isEmpty());
}

void tst_ZrBus::aSecondRegistrationTakesTheFirstOnesPlace()
{
    Listener first(QStringLiteral("one"));
    first.subscribe(QStringLiteral("A"));
    Listener second(QStringLiteral("one"));
    second.subscribe(QStringLiteral("A"));
    m_host.publish(QStringLiteral("A"), {numbered(1)});
    QVERIFY(m_host.waitIdle(longMs));
    QVERIFY(first.heard().isEmpty());
    QCOMPARE(second.heard().size(), 1);
}

void tst_ZrBus::nullAndEmptyRegistrationsAreIgnored()
{
    Listener listener(QStringLiteral("listener"));
    listener.Reg(QString(), &listener, IMessageInterface::SharedThread);
    listener.Reg(listener.pid, nullptr, IMessageInterface::SharedThread);
    listener.Sub(QString(), QStringLiteral("A"), 1);
    listener.Sub(QStringLiteral("nobody"), QStringLiteral("A"), 1);
    listener.subscribe(QStringLiteral("A"));
    m_host.publish(QStringLiteral("A"), {numbered(1)});
    QVERIFY(m_host.waitIdle(longMs));
    QCOMPARE(listener.heard().size(), 1);
}

/// An endpoint that forgets to unregister.
class Forgetful : public IMessageInterface
{
public:
    Forgetful()
        : IMessageInterface(nullptr)
    {
        Reg(QStringLiteral("forgetful"), this, SharedThread);
        Sub(QStringLiteral("forgetful"), QStringLiteral("A"), 1);
    }
};

void tst_ZrBus::destructionUnregisters()
{
    delete new Forgetful;
    m_host.publish(QStringLiteral("A"), {numbered(1)});
    QVERIFY(m_host.waitIdle(longMs));
    QCOMPARE(m_host.counters().delivered, 0);
    QCOMPARE(m_host.counters().undeliverable, 1);
}

void tst_ZrBus::everyPathFreesMessagesAndEvents()
{
    m_host.registerService(QStringLiteral("Ask"), echoService(QStringLiteral("Answer")));
    Listener listener(QStringLiteral("listener"));
    listener.subscribe(QStringLiteral("Note"));
    listener.SubEvent(listener.pid, 1, 1);
    listener.Put(listener.pid, requestOf(QStringLiteral("Ask"), 1));
    listener.Put(listener.pid, requestOf(QStringLiteral("Note"), 2));
    listener.Put(listener.pid, requestOf(QStringLiteral("nobody's"), 3));
    listener.Put(QString(), requestOf(QStringLiteral("Ask"), 4));
    listener.Put(listener.pid, new CountedMessage); // no body at all
    listener.PutEvent(listener.pid, eventOf(listener.pid, 1, 5));
    listener.PutEvent(listener.pid, eventOf(listener.pid, 2, 6));
    QVERIFY(m_host.waitIdle(longMs));
    QCOMPARE(CountedMessage::living.loadAcquire(), 0);
    QCOMPARE(CountedEvent::living.loadAcquire(), 0);
    QCOMPARE(listener.numbers().size(), 3);
}

void tst_ZrBus::nullMessagesAreIgnored()
{
    Listener listener(QStringLiteral("listener"));
    listener.Put(listener.pid, nullptr);
    listener.PutEvent(listener.pid, nullptr);
    QVERIFY(m_host.waitIdle(longMs));
    QCOMPARE(m_host.counters().put, 0);
}

void tst_ZrBus::linkedPluginsHearOneAnother()
{
    constexpr int symbolLinkage = 5;
    const QString menu = QStringLiteral("menu");
    Listener a(QStringLiteral("a")), b(QStringLiteral("b")), otherGroup(QStringLiteral("c")),
        otherMenu(QStringLiteral("d")), otherType(QStringLiteral("e"));
    a.setRelation(menu, a.pid, symbolLinkage, RelationColorSecond, 1);
    b.setRelation(menu, b.pid, symbolLinkage, RelationColorSecond, 1);
    a.setRelation(menu, otherGroup.pid, symbolLinkage, RelationColorThird, 1);
    a.setRelation(QStringLiteral("menu 2"), otherMenu.pid, symbolLinkage, RelationColorSecond, 1);
    a.setRelation(menu, otherType.pid, 6, RelationColorSecond, 1);
    a.PutEvent(a.pid, eventOf(a.pid, symbolLinkage, 1));
    QVERIFY(m_host.waitIdle(longMs));
    QCOMPARE(b.numbers(), QVector<int>{1});
    QCOMPARE(b.heard().constFirst().receiver, QLatin1Char('E'));
    QCOMPARE(b.heard().constFirst().pid, a.pid);
    for (const Listener *silent : {&a, &otherGroup, &otherMenu, &otherType})
        QVERIFY(silent->heard().isEmpty());

    // Linked and subscribed: once.
    b.SubEvent(b.pid, symbolLinkage, 1);
    a.PutEvent(a.pid, eventOf(a.pid, symbolLinkage, 2));
    QVERIFY(m_host.waitIdle(longMs));
    QCOMPARE(b.numbers(), (QVector<int>{1, 2}));
}

void tst_ZrBus::aNewGroupTakesTheOldOnesPlace()
{
    const QString menu = QStringLiteral("menu");
    Listener a(QStringLiteral("a")), b(QStringLiteral("b"));
    a.setRelation(menu, a.pid, 5, RelationColorFirst, 1);
    b.setRelation(menu, b.pid, 5, RelationColorFirst, 1);
    b.setRelation(menu, b.pid, 5, RelationColorFifth, 1);
    a.PutEvent(a.pid, eventOf(a.pid, 5, 1));
    a.setRelation(menu, a.pid, 5, RelationColorFifth, 1);
    a.PutEvent(a.pid, eventOf(a.pid, 5, 2));
    QVERIFY(m_host.waitIdle(longMs));
    QCOMPARE(b.numbers(), QVector<int>{2});
}

void tst_ZrBus::unlinkOfAnotherGroupChangesNothing()
{
    const QString menu = QStringLiteral("menu");
    Listener a(QStringLiteral("a")), b(QStringLiteral("b"));
    a.setRelation(menu, a.pid, 5, RelationColorFirst, 1);
    b.setRelation(menu, b.pid, 5, RelationColorFirst, 1);
    b.setRelation(menu, b.pid, 5, RelationColorSecond, 2);
    b.setRelation(menu, b.pid, 5, RelationColorFirst, 0);
    b.setRelation(menu, QStringLiteral("nobody"), 5, RelationColorFirst, 2);
    a.PutEvent(a.pid, eventOf(a.pid, 5, 1));
    QVERIFY(m_host.waitIdle(longMs));
    b.setRelation(menu, b.pid, 5, RelationColorFirst, 2);
    a.PutEvent(a.pid, eventOf(a.pid, 5, 2));
    QVERIFY(m_host.waitIdle(longMs));
    QCOMPARE(b.numbers(), QVector<int>{1});
}

void tst_ZrBus::countersTellEachFate()
{
    m_host.registerService(QStringLiteral("Ask"), echoService(QStringLiteral("Answer")));
    Listener listener(QStringLiteral("listener"));
    listener.subscribe(QStringLiteral("Tick"));
    listener.Put(listener.pid, requestOf(QStringLiteral("Ask"), 1));
    m_host.publish(QStringLiteral("Tick"), {numbered(1)});
    m_host.publish(QStringLiteral("unheard"), {numbered(1)});
    QVERIFY(m_host.waitIdle(longMs));
    QVERIFY(m_host.setFaults(QStringLiteral("drop=1")));
    m_host.publish(QStringLiteral("Tick"), {numbered(2)});
    QVERIFY(m_host.waitIdle(longMs));
    const ZrReferenceHost::Counters all = m_host.counters();
    QCOMPARE(all.put, 4);
    QCOMPARE(all.answered, 1);
    QCOMPARE(all.delivered, 2);
    QCOMPARE(all.dropped, 1);
    QCOMPARE(all.undeliverable, 1);
    const auto byType = m_host.countersByType();
    QCOMPARE(byType.value(QStringLiteral("Tick")).put, 2);
    QCOMPARE(byType.value(QStringLiteral("Tick")).delivered, 1);
    QCOMPARE(byType.value(QStringLiteral("Tick")).dropped, 1);
    QCOMPARE(byType.value(QStringLiteral("Answer")).answered, 1);
    QCOMPARE(byType.value(QStringLiteral("unheard")).undeliverable, 1);
}

/// Only counts: a million notes would be measured instead of the bus.
class Counter : public IMessageInterface
{
public:
    Counter()
        : IMessageInterface(nullptr)
    {
        Reg(QStringLiteral("counter"), this, SharedThread);
        Sub(QStringLiteral("counter"), QStringLiteral("Tick"), 1);
    }
    void ProcMsg(QString, QVariant, QVariant) override { ++count; }
    int count = 0; // the bus thread's until waitIdle()
};

void tst_ZrBus::aMillionMessagesAreNotQuadratic()
{
    Counter counter;
    QElapsedTimer clock;
    const auto burst = [&](int size) {
        clock.start();
        for (int n = 0; n < size; ++n)
            m_host.publish(QStringLiteral("Tick"), {numbered(0)});
        const bool idle = m_host.waitIdle(-1);
        return idle ? clock.elapsed() : -1;
    };
    const qint64 smallMs = qMax(burst(100 * 1000), qint64(1));
    const qint64 largeMs = burst(1000 * 1000);
    QCOMPARE(counter.count, 1100 * 1000);
    // Linear is 10 times as long; quadratic would be 100 times. Between them is room for a busy machine.
    QVERIFY2(largeMs < 40 * smallMs,
             qPrintable(QStringLiteral("%1 ms after %2 ms").arg(largeMs).arg(smallMs)));
}

ZR_TEST_GUILESS_MAIN(tst_ZrBus)
#include "tst_zrbus.moc"
