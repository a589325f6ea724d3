#include "zrdefine/PluginPropety.h"
#include "ZrPluginEvents.h"
#include "ZrPluginInstanceId.h"
#include "ZrTestMain.h"

namespace Names = PluginPropety;

class TestZrPluginEvents : public QObject
{
    Q_OBJECT
private slots:
    void eachEventHasItsBit_data();
    void eachEventHasItsBit();
    void eachEventHasItsFields_data();
    void eachEventHasItsFields();
    void instanceIdNamesMenuPluginAndIndex();
    void menuIsAllBeforeTheFirstMark_data();
    void menuIsAllBeforeTheFirstMark();
};

void TestZrPluginEvents::eachEventHasItsBit_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<bool>("isEvent");
    QTest::addColumn<int>("expected");
    QTest::newRow("before the first") << 65554 << false << 0;
    QTest::newRow("initialised") << 65555 << true << 1;
    QTest::newRow("closed by the user") << 65556 << true << 2;
    QTest::newRow("selected") << 65557 << true << 4;
    QTest::newRow("resized, out of the order") << 65558 << true << 16;
    QTest::newRow("moved, out of the order") << 65559 << true << 8;
    QTest::newRow("after the last") << 65560 << false << 0;
    QTest::newRow("none") << 0 << false << 0;
}

void TestZrPluginEvents::eachEventHasItsBit()
{
    QFETCH(int, type);
    QFETCH(bool, isEvent);
    QFETCH(int, expected);
    QCOMPARE(ZrPluginEvents::isEvent(type), isEvent);
    QCOMPARE(ZrPluginEvents::flagOf(type), expected);
}

void TestZrPluginEvents::eachEventHasItsFields_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<QVariantMap>("expected");
    const QVariantMap id{{Names::PLUGININSTANCE_ID, QStringLiteral("m#p#_0")}};
    QTest::newRow("initialised") << 65555 << id;
    QTest::newRow("closed by the user") << 65556 << id;
    QVariantMap fields = id;
    fields.insert(Names::PluginSelectState, true);
    QTest::newRow("selected") << 65557 << fields;
    fields = id;
    fields.insert(Names::PLUGINWIDGET_NORMALWIDTH, 300);
    fields.insert(Names::PLUGINWIDGET_NORMALHEIGHT, 200);
    QTest::newRow("resized") << 65558 << fields;
    fields = id;
    fields.insert(Names::PluginPosLeft, 50);
    fields.insert(Names::PluginPosTop, 70);
    QTest::newRow("moved") << 65559 << fields;
}

void TestZrPluginEvents::eachEventHasItsFields()
{
    QFETCH(int, type);
    QFETCH(QVariantMap, expected);
    QWidget window;
    window.setGeometry(40, 40, 600, 500);
    QWidget plugin(&window);
    plugin.setGeometry(10, 30, 300, 200);
    QCOMPARE(ZrPluginEvents::record(type, QStringLiteral("m#p#_0"), plugin, true), expected);
}

void TestZrPluginEvents::instanceIdNamesMenuPluginAndIndex()
{
    QCOMPARE(ZrPluginInstanceId::compose(QStringLiteral("menu"), QStringLiteral("orders"), 3),
             QStringLiteral("menu#orders#_3"));
    QCOMPARE(ZrPluginInstanceId::compose(QStringLiteral("%2"), QStringLiteral("%1"), 0),
             QStringLiteral("%2#%1#_0"));
}

void TestZrPluginEvents::menuIsAllBeforeTheFirstMark_data()
{
    QTest::addColumn<QString>("id");
    QTest::addColumn<QString>("expected");
    QTest::newRow("instance") << QStringLiteral("menu#orders#_3") << QStringLiteral("menu");
    QTest::newRow("no mark") << QStringLiteral("menu") << QStringLiteral("menu");
    QTest::newRow("begins with a mark") << QStringLiteral("#orders#_3") << QString();
    QTest::newRow("empty") << QString() << QString();
}

void TestZrPluginEvents::menuIsAllBeforeTheFirstMark()
{
    QFETCH(QString, id);
    QFETCH(QString, expected);
    QCOMPARE(ZrPluginInstanceId::menuId(id), expected);
}

ZR_TEST_MAIN(TestZrPluginEvents)
#include "tst_zrpluginevents.moc"
