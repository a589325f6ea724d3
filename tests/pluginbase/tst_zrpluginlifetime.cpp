#include "PluginKit.h"
#include "ZrPluginBaseWidget_p.h"
#include "ZrPluginViews.h"
#include "ZrPresenterClass_p.h"
#include "ZrTableView.h"
#include "ZrTestMain.h"
#include "zrutils/ZrThread.h"

#include <QtCore/QTimer>

#include <atomic>
#include <thread>

namespace {
constexpr int rounds = 10000;
constexpr int roundsBetweenRests = 200;
const QString pid = QStringLiteral("menu#plugin#_1");

std::atomic<int> livePresenters{0};
std::atomic<int> liveParts{0}; // private parts and threads of presenters
int livePlugins = 0;

/// A presenter that begins to load on its own thread as soon as it is there.
class LoadingPresenter : public ZrPresenterClass
{
    Q_OBJECT
public:
    LoadingPresenter(QObject *plugin, IMessageInterface::ThreadType kind)
        : ZrPresenterClass(pid, plugin, kind)
    {
        ++livePresenters;
        watch(getPrivate());
        if (getPrivate()->thread)
            watch(getPrivate()->thread);
    }
    ~LoadingPresenter() override { --livePresenters; }

    void initPresenter() override { load(); }
    void load()
    {
        emit signalDataLoading();
        emit signalDataLoadFinished();
        emit signalDataLoadTimeout();
    }

private:
    static void watch(QObject *part)
    {
        ++liveParts;
        connect(part, &QObject::destroyed, [] { --liveParts; });
    }
};

/// A plugin that ends its presenter with itself, as plugins do.
class MortalPlugin : public ZrPluginBaseWidget
{
    Q_OBJECT
public:
    MortalPlugin() { ++livePlugins; }
    ~MortalPlugin() override
    {
        --livePlugins;
        if (ZrPresenterClass *const presenter = getPluginPresenter())
            presenter->deleteLater();
    }

    void initPlugin() override {}
    void setBaseData(const QString &name, const QVariant &) override
    {
        if (name == QLatin1String("end"))
            delete this;
    }
    void pluginSelectStateChanged(bool selected) override
    {
        if (selected)
            delete this;
    }

public slots:
    void slotEnd() { delete this; }
};
} // namespace

/// A plugin that goes at the worst of moments, again and again: the address sanitizer watches.
class TestZrPluginLifetime : public QObject
{
    Q_OBJECT
private slots:
    void init() { bench = std::make_unique<BusBench>(); }
    void cleanup();

    void whileItsPresenterLoads();
    void whileARequestWaitsInALoop();
    void whileARequestIsUnderWay();
    void fromWithinItsOwnSlots();
    void afterItsPresenter();
    void afterTwoPresentersInTurn();
    void whileItsPresenterEndsOnAnotherThread();
    void withTablesOfItsOwnAndOfOthers();

private:
    /// Lets what was put off come to pass; now and then waits until all of it has.
    void rest(int round);
    static QVariant ask(ZrPresenterClass *presenter, int *code);

    std::unique_ptr<BusBench> bench;
};

void TestZrPluginLifetime::cleanup()
{
    QTRY_COMPARE_WITH_TIMEOUT(livePresenters.load() + liveParts.load(), 0, 60000);
    QCOMPARE(livePlugins, 0);
    bench.reset();
}

void TestZrPluginLifetime::rest(int round)
{
    QCoreApplication::processEvents();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    if (round % roundsBetweenRests == 0)
        QTRY_COMPARE_WITH_TIMEOUT(livePresenters.load() + liveParts.load(), 0, 60000);
}

void TestZrPluginLifetime::whileItsPresenterLoads()
{
    for (int round = 1; round <= rounds; ++round) {
        auto *const plugin = new MortalPlugin;
        auto *const presenter = new LoadingPresenter(plugin, IMessageInterface::PresenterThread);
        presenter->load();
        if (round % 2 == 0)
            QCoreApplication::sendPostedEvents(plugin);
        delete plugin;
        rest(round);
    }
}

QVariant TestZrPluginLifetime::ask(ZrPresenterClass *presenter, int *code)
{
    QVariant answer;
    CMessageCommon *const request = Probe::message(QStringLiteral("Query"), QStringLiteral("1"));
    *code = presenter->sendRequest_Sync(request, answer);
    return answer;
}

void TestZrPluginLifetime::whileARequestWaitsInALoop()
{
    bench->answer(QStringLiteral("Query"), nullptr);
    for (int round = 1; round <= rounds; ++round) {
        auto *const plugin = new MortalPlugin;
        auto *const presenter = new LoadingPresenter(plugin, IMessageInterface::SharedThread);
        QTimer::singleShot(0, plugin, &MortalPlugin::slotEnd);
        int code = -1;
        const QVariant answer = ask(presenter, &code);
        QCOMPARE(code, 0); // interrupted
        QVERIFY(!answer.isValid());
        rest(round);
    }
}

void TestZrPluginLifetime::whileARequestIsUnderWay()
{
    bench->answer(QStringLiteral("Query"), [](const ZrBusRequest &request) {
        return BusBench::Answers{Probe::reply(request, QStringLiteral("Answer"))};
    });
    for (int round = 1; round <= rounds; ++round) {
        auto *const plugin = new MortalPlugin;
        auto *const presenter = new LoadingPresenter(plugin, IMessageInterface::SharedThread);
        QCOMPARE(
            presenter->sendRequest_Async(Probe::message(QStringLiteral("Query"), QString::number(round))), 0);
        delete plugin;
        rest(round);
    }
}

void TestZrPluginLifetime::fromWithinItsOwnSlots()
{
    for (int round = 1; round <= rounds; ++round) {
        auto *const plugin = new MortalPlugin;
        const QPointer<MortalPlugin> alive(plugin);
        auto *const presenter = new LoadingPresenter(plugin, IMessageInterface::SharedThread);
        switch (round % 5) {
        case 0: // of a property
            plugin->setPluginWidgetPropety(QStringLiteral("end"), round);
            break;
        case 1: // of the selection
            plugin->SetEventNotifyFlag(0xff);
            plugin->setPluginWidgetSelected(true);
            break;
        case 2: // of its loading, queued
            connect(presenter, &ZrPresenterClass::signalDataLoading, plugin, &MortalPlugin::slotEnd,
                    Qt::QueuedConnection);
            presenter->load();
            break;
        case 3: // of its own signal
            connect(plugin->getPrivate(), &ZrPluginBaseWidgetPrivate::signalPluginPropetyChanged, plugin,
                    &MortalPlugin::slotEnd);
            plugin->setPluginWidgetTitle(QStringLiteral("last"));
            break;
        default: // as a title takes its combo box
            connect(plugin->getPrivate(), &ZrPluginBaseWidgetPrivate::signalAddPluginCustomWidget, plugin,
                    &MortalPlugin::slotEnd);
            plugin->subPluginLinkage(1, true, ZrPluginBaseWidget::LinkageGroupBlue);
        }
        rest(round);
        QVERIFY(!alive);
    }
}

void TestZrPluginLifetime::afterItsPresenter()
{
    for (int round = 1; round <= rounds; ++round) {
        MortalPlugin plugin;
        auto *const presenter = new LoadingPresenter(&plugin, IMessageInterface::SharedThread);
        presenter->deleteLater();
        if (round % 2 == 0)
            QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QVERIFY(!plugin.getPluginPresenter());
        plugin.SetEventNotifyFlag(0xff);
        plugin.SetInitialized(true);
        plugin.subPluginLinkage(1, true, ZrPluginBaseWidget::LinkageGroupBlue);
        rest(round);
        plugin.closeByUser();
    }
}

void TestZrPluginLifetime::afterTwoPresentersInTurn()
{
    for (int round = 1; round <= rounds; ++round) {
        MortalPlugin plugin;
        auto *const first = new LoadingPresenter(&plugin, IMessageInterface::SharedThread);
        auto *const second = new LoadingPresenter(&plugin, IMessageInterface::SharedThread);
        first->deleteLater();
        QCOMPARE(plugin.getPluginPresenter(), second);
        plugin.sendPluginInstanceEvent(65555, {});
        rest(1);
        QCOMPARE(plugin.getPluginPresenter(), second);
        second->deleteLater();
        QVERIFY(!plugin.getPluginPresenter());
        rest(round);
        plugin.sendPluginInstanceEvent(65555, {});
    }
}

void TestZrPluginLifetime::whileItsPresenterEndsOnAnotherThread()
{
    std::atomic<ZrPresenterClass *> leaving{nullptr};
    std::atomic<bool> isOver{false};
    std::thread end([&] {
        while (!isOver) {
            if (ZrPresenterClass *const presenter = leaving.exchange(nullptr))
                presenter->deleteLater();
            std::this_thread::yield();
        }
    });
    for (int round = 1; round <= rounds; ++round) {
        MortalPlugin plugin;
        leaving = new LoadingPresenter(&plugin, IMessageInterface::SharedThread);
        while (plugin.getPluginPresenter())
            plugin.sendPluginInstanceEvent(65555, {});
        rest(round);
    }
    isOver = true;
    end.join();
}

void TestZrPluginLifetime::withTablesOfItsOwnAndOfOthers()
{
    constexpr int tableRounds = 500; // a table costs milliseconds
    for (int round = 1; round <= tableRounds; ++round) {
        auto plugin = std::make_unique<MortalPlugin>();
        auto other = std::make_unique<MortalPlugin>();
        auto *const own = new ZrTableView(plugin.get());
        QWidget window;
        auto *const moved = new ZrTableView(plugin.get());
        moved->setParent(&window);
        plugin->RegisterAllTableToPlugin(other.get());
        QCOMPARE(other->getPrivate()->views->list(), (QList<ZrViewBase *>{own, moved}));
        if (round % 2 == 0)
            other.reset();
        if (round % 3 == 0)
            delete own;
        plugin.reset();
        if (other)
            QVERIFY(other->getPrivate()->views->list().isEmpty());
        moved->setTableViewCaption(QStringLiteral("alone"));
    }
}

ZR_TEST_MAIN(TestZrPluginLifetime)
#include "tst_zrpluginlifetime.moc"
