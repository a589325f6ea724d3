#include "FrameScene.h"
#include "PluginKit.h"
#include "zrdefine/PluginPropety.h"
#include "ZrLoadingFrame.h"
#include "ZrPluginBaseWidget_p.h"
#include "ZrQuietPlatform.h"
#include "ZrTestMain.h"

#include <QtWidgets/QComboBox>

namespace {
namespace Names = PluginPropety;
const QString pid = QStringLiteral("menu#plugin#_1");
} // namespace

/// A plugin with its presenter: events, loading, linkage.
class TestZrPluginBaseWidgetBus : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase() { ZrQuietPlatform::install(); }
    void init();
    void cleanup();

    void anEventIsSentWhenItsBitIsSet_data();
    void anEventIsSentWhenItsBitIsSet();
    void selectionIsToldBeforeTheEvent();
    void anEventNeedsNoBitWhenAskedFor();
    void otherTypesAreNotSent();
    void extraFieldsWin();
    void withoutPresenterNothingIsSent();
    void aPresenterTiesItself();
    void loadingOfThePresenterCoversThePlugin();
    void presenterThatGoesIsForgotten();
    void linkageGoesToTheTitle();

private:
    QVariantMap onlyEvent(int type);

    FrameScene scene;
    QWidget window;
    std::unique_ptr<PluginProbe> plugin;
    PresenterProbe *presenter = nullptr;
    std::vector<std::unique_ptr<EventProbe>> listeners; // one for each type of event
};

void TestZrPluginBaseWidgetBus::init()
{
    QVERIFY(scene.startOwn(QString()));
    plugin = std::make_unique<PluginProbe>();
    plugin->giveInstanceId();
    for (int type = 65554; type <= 65560; ++type)
        listeners.push_back(std::make_unique<EventProbe>(QStringLiteral("listener%1").arg(type), type));
}

void TestZrPluginBaseWidgetBus::cleanup()
{
    if (presenter)
        QVERIFY(Probe::isGoneAfterDeleteLater(presenter));
    presenter = nullptr;
    plugin.reset();
    listeners.clear();
    scene.host.stop();
}

/// The fields of the one event that was sent, which is of this type.
QVariantMap TestZrPluginBaseWidgetBus::onlyEvent(int type)
{
    ZrBus::instance().waitIdle(-1);
    QVariantMap fields;
    int count = 0;
    for (size_t index = 0; index < listeners.size(); ++index) {
        const QList<ProbeCall> calls = listeners[index]->calls();
        for (const ProbeCall &call : calls) {
            ++count;
            if (call.type == QVariant(type) && call.pid == pid)
                fields = call.body.toMap();
        }
    }
    return count == 1 ? fields : QVariantMap{{QStringLiteral("events sent"), count}};
}

// --- events ----------------------------------------------------------------------------------------------

void TestZrPluginBaseWidgetBus::anEventIsSentWhenItsBitIsSet_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<int>("bit");
    QTest::addColumn<QVariantMap>("expected"); // beside the instance ID
    const auto row = [](const char *name, int type, int bit, const QVariantMap &fields) {
        QTest::newRow(name) << type << bit << fields;
    };
    row("initialised", 65555, 1, {});
    row("closed by the user", 65556, 2, {});
    row("selected", 65557, 4, {{Names::PluginSelectState, true}});
    row("resized", 65558, 16,
        {{Names::PLUGINWIDGET_NORMALWIDTH, 321}, {Names::PLUGINWIDGET_NORMALHEIGHT, 123}});
    row("moved", 65559, 8, {{Names::PluginPosLeft, 50}, {Names::PluginPosTop, 70}});
}

void TestZrPluginBaseWidgetBus::anEventIsSentWhenItsBitIsSet()
{
    QFETCH(int, type);
    QFETCH(int, bit);
    QFETCH(QVariantMap, expected);
    expected.insert(Names::PLUGININSTANCE_ID, pid);
    window.setGeometry(40, 40, 600, 500);
    window.show();
    plugin->setParent(&window);
    plugin->move(10, 30);
    plugin->show();
    presenter = new PresenterProbe(pid, IMessageInterface::SharedThread, plugin.get());
    const auto doAll = [this](const QSize &size) {
        plugin->SetInitialized(true);
        plugin->closeByUser();
        plugin->setPluginWidgetSelected(true);
        plugin->resize(size);
        plugin->pluginGeometryMoved();
    };
    plugin->SetEventNotifyFlag(0xe0); // none of the five
    doAll({300, 100});
    QCOMPARE(onlyEvent(type), (QVariantMap{{QStringLiteral("events sent"), 0}}));
    plugin->SetEventNotifyFlag(bit);
    doAll({321, 123});
    QCOMPARE(onlyEvent(type), expected);
}

void TestZrPluginBaseWidgetBus::selectionIsToldBeforeTheEvent()
{
    presenter = new PresenterProbe(pid, IMessageInterface::SharedThread, plugin.get());
    plugin->SetEventNotifyFlag(4);
    bool wasStored = false;
    plugin->hook = [&](const QString &) {
        wasStored = plugin->getPrivate()->selected;
        plugin->SetEventNotifyFlag(0);
    };
    plugin->setPluginWidgetSelected(true);
    QVERIFY(wasStored);
    QCOMPARE(plugin->calls, QStringList{QStringLiteral("selected")});
    QCOMPARE(onlyEvent(65557), (QVariantMap{{QStringLiteral("events sent"), 0}}));
    plugin->hook = nullptr;
    plugin->SetEventNotifyFlag(4);
    plugin->setPluginWidgetSelected(false);
    QCOMPARE(onlyEvent(65557),
             (QVariantMap{{Names::PLUGININSTANCE_ID, pid}, {Names::PluginSelectState, false}}));
}

void TestZrPluginBaseWidgetBus::anEventNeedsNoBitWhenAskedFor()
{
    presenter = new PresenterProbe(pid, IMessageInterface::SharedThread, plugin.get());
    plugin->giveInstanceId(QStringLiteral("menu#plugin#_other")); // the bus knows the presenter's
    plugin->sendPluginInstanceEvent(65556, {});
    QCOMPARE(onlyEvent(65556),
             (QVariantMap{{Names::PLUGININSTANCE_ID, QStringLiteral("menu#plugin#_other")}}));
}

void TestZrPluginBaseWidgetBus::otherTypesAreNotSent()
{
    presenter = new PresenterProbe(pid, IMessageInterface::SharedThread, plugin.get());
    plugin->sendPluginInstanceEvent(65554, {{QStringLiteral("a"), 1}});
    plugin->sendPluginInstanceEvent(65560, {{QStringLiteral("a"), 1}});
    QCOMPARE(onlyEvent(0), (QVariantMap{{QStringLiteral("events sent"), 0}}));
}

void TestZrPluginBaseWidgetBus::extraFieldsWin()
{
    presenter = new PresenterProbe(pid, IMessageInterface::SharedThread, plugin.get());
    const QVariantMap extra{{Names::PLUGININSTANCE_ID, QStringLiteral("mine")},
                            {Names::PluginSelectState, QStringLiteral("maybe")},
                            {QStringLiteral("more"), 1}};
    plugin->sendPluginInstanceEvent(65557, extra);
    QCOMPARE(onlyEvent(65557), extra);
}

void TestZrPluginBaseWidgetBus::withoutPresenterNothingIsSent()
{
    plugin->SetEventNotifyFlag(0xff);
    plugin->SetInitialized(true);
    plugin->sendPluginInstanceEvent(65555, {});
    plugin->subPluginLinkage(1, true, ZrPluginBaseWidget::LinkageGroupBlue);
    plugin->setPluginLinkageState(true, 1);
    plugin->unSubPluginLinkage(0);
    QCOMPARE(onlyEvent(65555), (QVariantMap{{QStringLiteral("events sent"), 0}}));
    QCOMPARE(plugin->getPluginLinkageGroup(), -1);
}

// --- presenter, loading, linkage -------------------------------------------------------------------------

void TestZrPluginBaseWidgetBus::aPresenterTiesItself()
{
    presenter = new PresenterProbe(pid, IMessageInterface::SharedThread, plugin.get());
    QCOMPARE(plugin->getPluginPresenter(), presenter);
    plugin->setPluginPresenter(nullptr);
    QCOMPARE(plugin->getPluginPresenter(), presenter);
}

void TestZrPluginBaseWidgetBus::loadingOfThePresenterCoversThePlugin()
{
    const auto frame = plugin->findChild<ZrLoadingFrame *>();
    auto *const content = new QWidget(plugin.get());
    content->show();
    presenter = new PresenterProbe(pid, IMessageInterface::PresenterThread, plugin.get());
    emit presenter->signalDataLoading();
    QVERIFY(frame->isHidden()); // queued
    QTRY_VERIFY(!frame->isHidden());
    QCOMPARE(plugin->children().constLast(), frame);
    emit presenter->signalDataLoadFinished();
    QVERIFY(!frame->isHidden());
    QTRY_VERIFY(frame->isHidden());
    emit presenter->signalDataLoading();
    QTRY_VERIFY(!frame->isHidden());
    emit presenter->signalDataLoadTimeout();
    QTRY_VERIFY(frame->isHidden());
}

void TestZrPluginBaseWidgetBus::presenterThatGoesIsForgotten()
{
    auto *const first = new PresenterProbe(pid, IMessageInterface::PresenterThread, plugin.get());
    auto *const second = new PresenterProbe(pid, IMessageInterface::PresenterThread, plugin.get());
    QCOMPARE(plugin->getPluginPresenter(), second);
    QVERIFY(Probe::isGoneAfterDeleteLater(first));
    QCOMPARE(plugin->getPluginPresenter(), second);
    QVERIFY(Probe::isGoneAfterDeleteLater(second));
    QVERIFY(!plugin->getPluginPresenter());
    plugin->sendPluginInstanceEvent(65555, {});
}

void TestZrPluginBaseWidgetBus::linkageGoesToTheTitle()
{
    presenter = new PresenterProbe(pid, IMessageInterface::SharedThread, plugin.get());
    QSignalSpy added(plugin->getPrivate(), &ZrPluginBaseWidgetPrivate::signalAddPluginCustomWidget);
    plugin->subPluginLinkage(1, true, ZrPluginBaseWidget::LinkageGroupBlue);
    QCOMPARE(added.size(), 1);
    auto *const combo = qobject_cast<QComboBox *>(added.at(0).at(1).value<QWidget *>());
    QVERIFY(combo);
    QCOMPARE(added.at(0).at(2).toBool(), true);
    QCOMPARE(plugin->getPluginLinkageGroup(), 2);
    QVERIFY(!plugin->isPluginLinkageVisiable());
    plugin->show();
    QVERIFY(plugin->isPluginLinkageVisiable());
    LinkWitness witness;
    QCOMPARE(witness.groupsOf(presenter, 1), QList<int>{2});
    combo->setCurrentIndex(4);
    QCOMPARE(plugin->getPluginLinkageGroup(), 4);
    QCOMPARE(witness.groupsOf(presenter, 1), QList<int>{4});
    plugin->setPluginLinkageState(false, 1);
    QCOMPARE(plugin->getPluginLinkageGroup(), 1);
    QVERIFY(!plugin->isPluginLinkageVisiable());
    QCOMPARE(witness.groupsOf(presenter, 1), QList<int>{1});
    plugin->unSubPluginLinkage(1);
    QVERIFY(witness.groupsOf(presenter, 1).isEmpty());
}

ZR_TEST_MAIN(TestZrPluginBaseWidgetBus)
#include "tst_zrpluginbasewidgetbus.moc"
