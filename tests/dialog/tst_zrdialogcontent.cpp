#include "DialogScene.h"
#include "HostedPlugin.h"
#include "zrdefine/PluginPropety.h"
#include "ZrDialog.h"
#include "ZrDialogContent.h"
#include "ZrTestMain.h"

#include <limits>

namespace {
/// Counts the events that it is shown of each object.
class Watcher : public QObject
{
public:
    QHash<QObject *, int> seen;

protected:
    bool eventFilter(QObject *watched, QEvent *) override
    {
        ++seen[watched];
        return false;
    }
};

bool isWatched(QObject *object, const Watcher &watcher)
{
    const int before = watcher.seen.value(object);
    QEvent event(QEvent::User);
    QCoreApplication::sendEvent(object, &event);
    return watcher.seen.value(object) > before;
}
} // namespace

class tst_ZrDialogContent : public QObject
{
    Q_OBJECT
private slots:
    void init();
    void cleanup();
    void emptyItHasNothingToAsk();
    void allBelowTheWidgetIsWatched();
    void theWidgetBeforeIsNotWatchedAnyMore();
    void aWidgetThatGoesLeavesItEmpty();
    void anyWidgetHasItsOwnSize();
    void aPluginsSizeIsItsProperties_data();
    void aPluginsSizeIsItsProperties();
    void anyWidgetMayBeClosed();
    void aPluginIsAskedWhetherItMayBeClosed();
    void onlyAPluginIsRefreshed();
    void aPluginIsConnectedOnce();

private:
    std::unique_ptr<DialogScene> m_scene;
};

void tst_ZrDialogContent::init()
{
    m_scene = std::make_unique<DialogScene>();
    QVERIFY(m_scene->isReady());
}

void tst_ZrDialogContent::cleanup()
{
    m_scene.reset();
}

void tst_ZrDialogContent::emptyItHasNothingToAsk()
{
    const ZrDialogContent content;
    QCOMPARE(content.widget(), nullptr);
    QVERIFY(content.wantedSize().isNull() || !content.wantedSize().isValid());
    QVERIFY(content.mayClose());
    content.refresh();
}

void tst_ZrDialogContent::allBelowTheWidgetIsWatched()
{
    Watcher watcher;
    QWidget widget;
    QWidget child(&widget);
    QObject grandchild(&child); // not only widgets
    ZrDialogContent content;
    content.replace(&widget, &watcher);
    QCOMPARE(content.widget(), &widget);
    QVERIFY(isWatched(&widget, watcher));
    QVERIFY(isWatched(&child, watcher));
    QVERIFY(isWatched(&grandchild, watcher));
}

void tst_ZrDialogContent::theWidgetBeforeIsNotWatchedAnyMore()
{
    Watcher watcher;
    QWidget before;
    QObject below(&before);
    QWidget after;
    ZrDialogContent content;
    content.replace(&before, &watcher);
    content.replace(&after, &watcher);
    QVERIFY(!isWatched(&before, watcher));
    QVERIFY(!isWatched(&below, watcher));
    QVERIFY(isWatched(&after, watcher));
}

void tst_ZrDialogContent::aWidgetThatGoesLeavesItEmpty()
{
    Watcher watcher;
    auto plugin = std::make_unique<HostedPlugin>();
    ZrDialogContent content;
    content.replace(plugin.get(), &watcher);
    plugin.reset();
    QCOMPARE(content.widget(), nullptr);
    QVERIFY(content.mayClose());
    content.refresh();
    QWidget after;
    content.replace(&after, &watcher);
    QCOMPARE(content.widget(), &after);
}

void tst_ZrDialogContent::anyWidgetHasItsOwnSize()
{
    Watcher watcher;
    QWidget widget;
    widget.resize(123, 45);
    // Only a plugin's properties mean anything.
    widget.setProperty(PluginPropety::PLUGINWIDGET_NORMALWIDTH.toLatin1(), 300);
    ZrDialogContent content;
    content.replace(&widget, &watcher);
    QCOMPARE(content.wantedSize(), QSize(123, 45));
}

void tst_ZrDialogContent::aPluginsSizeIsItsProperties_data()
{
    QTest::addColumn<QVariant>("width");
    QTest::addColumn<QVariant>("height");
    QTest::addColumn<QSize>("expected");
    QTest::newRow("neither") << QVariant() << QVariant() << QSize(123, 45);
    QTest::newRow("both") << QVariant(300) << QVariant(200) << QSize(300, 200);
    QTest::newRow("as texts") << QVariant("300") << QVariant("200") << QSize(300, 200);
    QTest::newRow("width alone") << QVariant(300) << QVariant() << QSize(300, 0);
    QTest::newRow("height alone") << QVariant() << QVariant(200) << QSize(123, 45);
    QTest::newRow("no number") << QVariant("wide") << QVariant("high") << QSize(0, 0);
    QTest::newRow("negative") << QVariant(-5) << QVariant(std::numeric_limits<int>::min()) << QSize(0, 0);
    QTest::newRow("beyond any screen")
        << QVariant(std::numeric_limits<int>::max()) << QVariant(std::numeric_limits<int>::max())
        << QSize(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX);
}

void tst_ZrDialogContent::aPluginsSizeIsItsProperties()
{
    QFETCH(QVariant, width);
    QFETCH(QVariant, height);
    QFETCH(QSize, expected);
    Watcher watcher;
    HostedPlugin plugin;
    plugin.resize(123, 45);
    plugin.setPluginWidgetPropety(PluginPropety::PLUGINWIDGET_NORMALWIDTH, width);
    plugin.setPluginWidgetPropety(PluginPropety::PLUGINWIDGET_NORMALHEIGHT, height);
    ZrDialogContent content;
    content.replace(&plugin, &watcher);
    QCOMPARE(content.wantedSize(), expected);
}

void tst_ZrDialogContent::anyWidgetMayBeClosed()
{
    Watcher watcher;
    QWidget widget;
    ZrDialogContent content;
    content.replace(&widget, &watcher);
    QVERIFY(content.mayClose());
}

void tst_ZrDialogContent::aPluginIsAskedWhetherItMayBeClosed()
{
    Watcher watcher;
    HostedPlugin plugin;
    ZrDialogContent content;
    content.replace(&plugin, &watcher);
    QVERIFY(!content.mayClose());
    plugin.SetInitialized(true);
    QVERIFY(content.mayClose());
    QCOMPARE(plugin.questions, 2);
}

void tst_ZrDialogContent::onlyAPluginIsRefreshed()
{
    Watcher watcher;
    HostedPlugin plugin;
    QWidget widget;
    ZrDialogContent content;
    content.replace(&plugin, &watcher);
    content.refresh();
    content.replace(&widget, &watcher);
    content.refresh();
    QCOMPARE(plugin.refreshes, 1);
}

void tst_ZrDialogContent::aPluginIsConnectedOnce()
{
    Watcher watcher;
    HostedPlugin plugin;
    ZrDialog dialog("Title", true, nullptr, 0, true, true, 0);
    ZrDialogContent content;
    content.replace(&plugin, &watcher);
    content.connectTo(&dialog);
    content.connectTo(&dialog);
    QSignalSpy finished(&dialog, &QDialog::finished);
    emit plugin.signalPluginDialogExecReturn(1);
    QCOMPARE(finished.count(), 1);
}

ZR_TEST_MAIN(tst_ZrDialogContent)
#include "tst_zrdialogcontent.moc"
