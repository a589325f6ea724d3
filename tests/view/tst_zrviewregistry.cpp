#include "ZrTestMain.h"
#include "ZrViewTestKit.h"

namespace {

class RegistryObject : public QObject, public ZrViewRegistry
{
    Q_OBJECT
    Q_INTERFACES(ZrViewRegistry)
public:
    using QObject::QObject;
    QString pluginInstanceId() const override { return QStringLiteral("object"); }
    void addPluginView(ZrViewBase *) override {}
    void removePluginView(ZrViewBase *) override {}
    void unregisterTable(ZrViewBase *) override {}
    std::optional<QList<int>> columnVisibleProperty(const QString &) const override { return {}; }
    std::optional<QList<int>> columnOrderProperty(const QString &) const override { return {}; }
    void resetPluginViewCurrentHideStyle(ZrViewBase *) override {}
    void orderChanged() override {}
};

} // namespace

class TestZrViewRegistry : public QObject
{
    Q_OBJECT
private slots:
    void nearestRegistryAboveAWidgetIsFound()
    {
        kit::Plugin outer;
        QWidget *const frame = new QWidget(&outer);
        QWidget *const place = new QWidget(frame);
        QCOMPARE(ZrViewRegistry::of(place), &outer);
        RegistryObject *const inner = new RegistryObject(frame);
        QCOMPARE(ZrViewRegistry::of(place), inner);
        QCOMPARE(ZrViewRegistry::of(frame), inner);
    }

    void withoutPluginThereIsNone()
    {
        QWidget widget;
        QCOMPARE(ZrViewRegistry::of(&widget), nullptr);
        QCOMPARE(ZrViewRegistry::of(nullptr), nullptr);
    }

    void pointerTurnsNullWithTheRegistry()
    {
        ZrViewRegistryPointer pointer;
        QVERIFY(!pointer);
        {
            kit::Plugin plugin;
            pointer = ZrViewRegistryPointer(&plugin);
            QVERIFY(pointer);
            QCOMPARE(pointer->pluginInstanceId(), plugin.instanceId);
        }
        QVERIFY(!pointer);
        QCOMPARE(ZrViewRegistryPointer(nullptr).get(), nullptr);
    }

    void viewRegistersAndTakesItselfOut()
    {
        kit::Plugin plugin;
        ZrTableView *const view = new ZrTableView(&plugin);
        QCOMPARE(plugin.views, QList<ZrViewBase *>{view});
        delete view;
        QVERIFY(plugin.views.isEmpty());
    }

    void viewThatDiesWithItsPluginAsksNothing()
    {
        kit::Plugin *const plugin = new kit::Plugin;
        const QPointer<ZrTableView> view = new ZrTableView(plugin);
        delete plugin;
        QVERIFY(!view);
    }

    void unregisteringGoesThroughThePlugin()
    {
        kit::Plugin plugin;
        ZrTableView view(&plugin);
        view.UnregisterPlugin();
        QVERIFY(plugin.views.isEmpty());
    }

    void viewWithoutPluginSaysSoAndWorks()
    {
        QTest::ignoreMessage(QtDebugMsg,
                             QRegularExpression(QStringLiteral("^ZrTableView::ZrTableView no plugin found")));
        ZrTableView view;
        view.UnregisterPlugin();
        HeadList heads = kit::heads(2);
        view.setHeadList(heads);
        view.addRecordData(kit::record(QStringLiteral("a"), 2));
        QCOMPARE(view.getRowCount(), 1);
    }
};

ZR_TEST_MAIN(TestZrViewRegistry)
#include "tst_zrviewregistry.moc"
