#include "PluginKit.h"
#include "zrdefine/PluginPropety.h"
#include "ZrPluginBaseObject.h"
#include "ZrTestMain.h"

class TestZrPluginBaseObject : public QObject
{
    Q_OBJECT
private slots:
    void propertiesAreDynamicOnes()
    {
        QObject parent;
        auto *const plugin = new ZrPluginBaseObject(&parent);
        QCOMPARE(plugin->parent(), &parent);
        QVERIFY(!plugin->getPluginObjectPropety(QStringLiteral("anything")).isValid());
        plugin->setPluginWidgetPropety(QStringLiteral("anything"), 7);
        QCOMPARE(plugin->property("anything"), QVariant(7));
        plugin->setProperty("anything", 8);
        QCOMPARE(plugin->getPluginObjectPropety(QStringLiteral("anything")), QVariant(8));
        plugin->doBeforeClose();
    }

    void instanceIdIsAProperty()
    {
        ZrPluginBaseObject plugin;
        QVERIFY(plugin.pluginInstanceID().isEmpty());
        plugin.setPluginWidgetPropety(PluginPropety::PLUGININSTANCE_ID, QStringLiteral("m#p#_0"));
        QCOMPARE(plugin.pluginInstanceID(), QStringLiteral("m#p#_0"));
    }

    void aPresenterTakesItAsItsPluginWithoutATie()
    {
        const BusBench bench;
        ZrPluginBaseObject plugin;
        auto *const presenter =
            new PresenterProbe(QStringLiteral("m#p#_0"), IMessageInterface::SharedThread, &plugin);
        QVERIFY(Probe::isGoneAfterDeleteLater(presenter));
    }
};

ZR_TEST_MAIN(TestZrPluginBaseObject)
#include "tst_zrpluginbaseobject.moc"
