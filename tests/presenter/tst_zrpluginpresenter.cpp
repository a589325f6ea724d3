#include "PresenterProbe.h"
#include "zrevent/CEventMessageCommon.h"
#include "ZrPluginPresenter.h"
#include "ZrPluginTie.h"
#include "ZrTestMain.h"

#include <QtCore/QThread>

#include <atomic>
#include <memory>
#include <thread>

namespace {
const QString pid = QStringLiteral("menu#plugin#_1");

/// Where a plugin widget keeps its tie.
class Tie : public QObject, public ZrPluginTie
{
    Q_OBJECT
    Q_INTERFACES(ZrPluginTie)
public:
    using QObject::QObject;
    void tiePresenter(ZrPresenterClass *made) override { tied.append(made); }
    QList<ZrPresenterClass *> tied;
};

PresenterProbe *makePresenter(IMessageInterface::ThreadType type = IMessageInterface::SharedThread)
{
    return new PresenterProbe(pid, type);
}
} // namespace

/// How a plugin holds a presenter that isn't its own, and how a presenter finds its plugin.
class TestZrPluginPresenter : public QObject
{
    Q_OBJECT
private slots:
    void init() { bench = std::make_unique<BusBench>(); }
    void cleanup() { bench.reset(); }

    void withoutPresenterNothingIsDone();
    void nullIsIgnored();
    void workIsDoneWithThePresenter();
    void aPresenterOnItsWayOutIsForgottenAtOnce();
    void aPresenterDeletedUnaskedIsForgotten();
    void theEndOfTheFirstLeavesTheSecond();
    void aPresenterThatComesBackIsForgottenAsWell();
    void aPresenterMayOutliveItsPlugin();
    void thePresenterStaysWhileItWorks();
    void useAgainstAnEndOnAnotherThread();

    void thePresenterFindsTheTieOfThePluginOrItsPrivateObject();
    void otherPluginsNeedNoTie();

private:
    std::unique_ptr<BusBench> bench;
};

void TestZrPluginPresenter::withoutPresenterNothingIsDone()
{
    const ZrPluginPresenter seat;
    QVERIFY(!seat.get());
    QVERIFY(!seat.use([](ZrPresenterClass *) { QFAIL("called"); }));
}

void TestZrPluginPresenter::nullIsIgnored()
{
    ZrPluginPresenter seat;
    auto *const presenter = makePresenter();
    seat.set(presenter);
    seat.set(nullptr);
    QCOMPARE(seat.get(), presenter);
    QVERIFY(Probe::isGoneAfterDeleteLater(presenter));
}

void TestZrPluginPresenter::workIsDoneWithThePresenter()
{
    ZrPluginPresenter seat;
    auto *const presenter = makePresenter();
    seat.set(presenter);
    seat.set(presenter);
    ZrPresenterClass *used = nullptr;
    QVERIFY(seat.use([&used](ZrPresenterClass *given) { used = given; }));
    QCOMPARE(used, presenter);
    QVERIFY(Probe::isGoneAfterDeleteLater(presenter));
}

void TestZrPluginPresenter::aPresenterOnItsWayOutIsForgottenAtOnce()
{
    ZrPluginPresenter seat;
    auto *const presenter = makePresenter();
    const Probe::Vanishing vanishing(presenter);
    seat.set(presenter);
    presenter->deleteLater();
    QVERIFY(!seat.get());
    QVERIFY(!vanishing.isDone());
    QVERIFY(vanishing.wait());
}

void TestZrPluginPresenter::aPresenterDeletedUnaskedIsForgotten()
{
    ZrPluginPresenter seat;
    auto *const presenter = makePresenter();
    seat.set(presenter);
    delete presenter;
    QVERIFY(!seat.get());
}

void TestZrPluginPresenter::theEndOfTheFirstLeavesTheSecond()
{
    ZrPluginPresenter seat;
    auto *const first = makePresenter();
    auto *const second = makePresenter();
    seat.set(first);
    seat.set(second);
    QVERIFY(Probe::isGoneAfterDeleteLater(first));
    QCOMPARE(seat.get(), second);
    QVERIFY(Probe::isGoneAfterDeleteLater(second));
    QVERIFY(!seat.get());
}

void TestZrPluginPresenter::aPresenterThatComesBackIsForgottenAsWell()
{
    ZrPluginPresenter seat;
    auto *const first = makePresenter();
    auto *const second = makePresenter();
    seat.set(first);
    seat.set(second);
    seat.set(first);
    QVERIFY(Probe::isGoneAfterDeleteLater(second));
    QCOMPARE(seat.get(), first);
    QVERIFY(Probe::isGoneAfterDeleteLater(first));
    QVERIFY(!seat.get());
}

void TestZrPluginPresenter::aPresenterMayOutliveItsPlugin()
{
    auto *const presenter = makePresenter();
    auto seat = std::make_unique<ZrPluginPresenter>();
    seat->set(presenter);
    seat.reset();
    QVERIFY(Probe::isGoneAfterDeleteLater(presenter));
}

void TestZrPluginPresenter::thePresenterStaysWhileItWorks()
{
    ZrPluginPresenter seat;
    auto *const presenter = makePresenter(IMessageInterface::PresenterThread);
    const Probe::Vanishing vanishing(presenter);
    seat.set(presenter);
    QVERIFY(seat.use([&](ZrPresenterClass *given) {
        std::thread(&PresenterProbe::deleteLater, presenter).join();
        QCoreApplication::processEvents();
        QVERIFY(!seat.get());
        QVERIFY(!vanishing.isDone());
        QCOMPARE(given->pluginPid(), pid);
    }));
    QVERIFY(vanishing.wait());
}

void TestZrPluginPresenter::useAgainstAnEndOnAnotherThread()
{
    constexpr int rounds = 300;
    int used = 0;
    for (int round = 0; round < rounds; ++round) {
        ZrPluginPresenter seat;
        auto *const presenter = makePresenter();
        const Probe::Vanishing vanishing(presenter);
        seat.set(presenter);
        std::atomic<bool> isUnderWay{false};
        std::thread end([&] {
            while (!isUnderWay)
                std::this_thread::yield();
            presenter->deleteLater();
        });
        while (seat.use([&](ZrPresenterClass *given) {
            auto *const event = new CEventMessageCommon;
            event->SetType(1);
            given->PutEvent(given->pluginPid(), event);
            isUnderWay = true;
        }))
            ++used;
        end.join();
        QVERIFY(!seat.get());
        QVERIFY(vanishing.wait());
    }
    QVERIFY(used >= rounds);
}

void TestZrPluginPresenter::thePresenterFindsTheTieOfThePluginOrItsPrivateObject()
{
    Tie plugin;
    QObject facade;
    Tie *const hidden = new Tie(&facade);
    auto *const first = new PresenterProbe(pid, IMessageInterface::SharedThread, &plugin);
    auto *const second = new PresenterProbe(pid, IMessageInterface::SharedThread, &facade);
    QCOMPARE(plugin.tied, QList<ZrPresenterClass *>{first});
    QCOMPARE(hidden->tied, QList<ZrPresenterClass *>{second});
    QVERIFY(Probe::isGoneAfterDeleteLater(first));
    QVERIFY(Probe::isGoneAfterDeleteLater(second));
}

void TestZrPluginPresenter::otherPluginsNeedNoTie()
{
    QObject plugin;
    QVERIFY(!ZrPluginTie::of(&plugin));
    QVERIFY(!ZrPluginTie::of(nullptr));
    auto *const presenter = new PresenterProbe(pid, IMessageInterface::SharedThread, &plugin);
    QVERIFY(Probe::isGoneAfterDeleteLater(presenter));
}

ZR_TEST_GUILESS_MAIN(TestZrPluginPresenter)
#include "tst_zrpluginpresenter.moc"
