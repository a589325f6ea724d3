#include "PluginProbe.h"
#include "ZrAccountBox.h"
#include "ZrMessageBox.h"
#include "ZrPluginBaseWidget_p.h"
#include "ZrPluginDock.h"
#include "ZrPluginTitleBar.h"
#include "ZrQuietPlatform.h"
#include "ZrReferenceHost.h"
#include "ZrTestMain.h"

#include "zrdefine/Constants.h"
#include "zrdefine/PluginPropety.h"
#include "zrdefine/VexlorFields.h"

#include <QtWidgets/QLineEdit>
#include <QtWidgets/QMainWindow>
#include <QtWidgets/QToolButton>

/// The frame around a plugin: title, size, closing, life and death.
class tst_ZrPluginDock : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase();
    void init();
    void cleanup();
    void theTitleFollowsThePlugin();
    void anAmpersandIsNoShortcutOfTheTab();
    void whatThePluginPutsIntoItsTitleStandsThere();
    void theUserCloses();
    void aRefusalIsToldAndThePluginStays();
    void anUninitialisedPluginRefuses();
    void aPluginMayCloseItselfFromItsOwnSlot();
    void aPluginMayGoBeforeItsDock();
    void aDockMayGoFromItsPluginsSlot();
    void theAccountGoesBothWays();
    void refreshReachesThePlugin();
    void aFloatingDockTakesTheNormalSize();
    void aNormalSizeFromAFileIsBounded();
    void theFocusSelects();
    void movesAreTold();
    void dataOfThePluginComeThrough();
    void aThousandDocksLeaveNothing();

private:
    void click(const char *name);

    QTemporaryDir m_folder;
    ZrReferenceHost m_host;
    std::unique_ptr<QMainWindow> m_window;
    QPointer<PluginProbe> m_plugin;
    QPointer<ZrPluginDock> m_dock;
};

void tst_ZrPluginDock::initTestCase()
{
    ZrQuietPlatform::install();
    QLoggingCategory::setFilterRules(QStringLiteral("default.debug=false")); // one line for each plugin's end
    ZrReferenceHost::Options options;
    options.configFolder = m_folder.path();
    QVERIFY2(m_host.start(options), qPrintable(m_host.errorText()));
}

void tst_ZrPluginDock::init()
{
    m_window = std::make_unique<QMainWindow>();
    m_plugin = new PluginProbe;
    m_dock = new ZrPluginDock(m_plugin, m_window.get());
    m_dock->setPluginId(QStringLiteral("probe"));
    m_plugin->initPlugin();
    m_plugin->SetInitialized(true);
    m_window->addDockWidget(Qt::TopDockWidgetArea, m_dock);
    m_window->resize(800, 500);
    m_window->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_window.get()));
}

void tst_ZrPluginDock::cleanup()
{
    m_window.reset();
    QVERIFY(!m_plugin);
}

void tst_ZrPluginDock::click(const char *name)
{
    QTest::mouseClick(m_dock->title()->findChild<QToolButton *>(QLatin1String(name)), Qt::LeftButton);
}

void tst_ZrPluginDock::theTitleFollowsThePlugin()
{
    QCOMPARE(m_dock->windowTitle(), QStringLiteral("Probe"));
    m_plugin->setPluginWidgetTitle(QStringLiteral("Another"));
    QCOMPARE(m_dock->windowTitle(), QStringLiteral("Another"));
    QCOMPARE(m_dock->title()->title(), QStringLiteral("Another"));
    auto *const refresh = m_dock->title()->findChild<QToolButton *>(QStringLiteral("pluginRefresh"));
    m_plugin->setPluginRefreshable(true);
    QVERIFY(refresh->isVisible());
    m_plugin->setPluginSystemButtonVisiable(Constants::PLUGIN_SYSTEMBUTTON_REFRESH, false);
    QVERIFY(!refresh->isVisible());
}

void tst_ZrPluginDock::anAmpersandIsNoShortcutOfTheTab()
{
    m_plugin->setPluginWidgetTitle(QStringLiteral("R&D"));
    QCOMPARE(m_dock->windowTitle(), QStringLiteral("R&&D"));
    QCOMPARE(m_dock->title()->title(), QStringLiteral("R&D"));
}

void tst_ZrPluginDock::whatThePluginPutsIntoItsTitleStandsThere()
{
    for (QWidget *const widget : m_plugin->titleWidgets)
        QCOMPARE(widget->parentWidget(), m_dock->title());
    QVERIFY(m_plugin->titleWidgets[0]->x() <= m_plugin->titleWidgets[1]->x());
    m_plugin->addPluginCustomWidget(m_plugin->titleWidgets[0], ZrPluginBaseWidget::RemoveCustomWidget,
                                    ZrPluginBaseWidget::CustomWidgetLeft);
    QCOMPARE(m_plugin->titleWidgets[0]->parentWidget(), m_plugin.data());
    m_plugin->addPluginCustomWidget(nullptr, ZrPluginBaseWidget::RemoveCustomWidget,
                                    ZrPluginBaseWidget::CustomWidgetLeft);
    QCOMPARE(m_plugin->titleWidgets[1]->parentWidget(), m_plugin.data());
}

void tst_ZrPluginDock::theUserCloses()
{
    m_plugin->calls.clear();
    QStringList calls;
    connect(m_plugin.data(), &QObject::destroyed, this, [&calls] { calls.append(QStringLiteral("gone")); });
    click("pluginClose");
    QCOMPARE(m_plugin->calls, (QStringList{QStringLiteral("closeByUser"), QStringLiteral("doBeforeClose")}));
    QTRY_VERIFY(!m_dock);
    QVERIFY(!m_plugin);
    QCOMPARE(calls.size(), 1);
}

void tst_ZrPluginDock::aRefusalIsToldAndThePluginStays()
{
    m_plugin->calls.clear();
    m_plugin->refusal = QStringLiteral("<i>orders</i> are open");
    click("pluginClose");
    const QPointer<ZrMessageBox> box = m_dock->findChild<ZrMessageBox *>();
    QVERIFY(box && box->isVisible());
    QVERIFY(m_dock->isVisible());
    QVERIFY(m_plugin->calls.isEmpty());
    box->reject();
    QTRY_VERIFY(!box);
    // Both may go while the reason is read.
    click("pluginClose");
    QVERIFY(m_dock->findChild<ZrMessageBox *>());
    delete m_dock;
    QVERIFY(!m_plugin);
}

void tst_ZrPluginDock::anUninitialisedPluginRefuses()
{
    m_plugin->SetInitialized(false);
    click("pluginClose");
    QVERIFY(m_dock->isVisible());
    QVERIFY(m_dock->findChild<ZrMessageBox *>());
}

void tst_ZrPluginDock::aPluginMayCloseItselfFromItsOwnSlot()
{
    m_plugin->calls.clear();
    m_plugin->refusal = QStringLiteral("it isn't asked");
    emit m_plugin->signalClosePluginWidget();
    QVERIFY(m_plugin); // we are still in its slot
    QCOMPARE(m_plugin->calls, QStringList{QStringLiteral("doBeforeClose")});
    QTRY_VERIFY(!m_dock);
    QVERIFY(!m_plugin);
}

void tst_ZrPluginDock::aPluginMayGoBeforeItsDock()
{
    delete m_plugin;
    QVERIFY(!m_dock->plugin());
    // What still comes to the dock meets no plugin.
    click("pluginSetting");
    m_dock->title()->showProperty(QString());
    QTRY_VERIFY(!m_dock);
}

void tst_ZrPluginDock::aDockMayGoFromItsPluginsSlot()
{
    connect(m_plugin.data(), &ZrPluginBaseWidget::signalSendDataToMainFrame, this,
            [this] { m_dock->close(); });
    emit m_plugin->signalSendDataToMainFrame(1);
    QVERIFY(m_plugin);
    QTRY_VERIFY(!m_plugin);
}

void tst_ZrPluginDock::theAccountGoesBothWays()
{
    const QString &number = Vexlor_Fields::UserAccount::tradingAccount;
    m_plugin->setPluginTitleAccountShowType(1);
    auto *const box = m_dock->title()->findChild<ZrAccountBox *>();
    QVERIFY(box && box->isVisible());
    QTest::keyClick(box, Qt::Key_Down);
    QCOMPARE(m_plugin->account.value(number), box->itemData(1).toMap().value(number));
    m_plugin->setCurrentAccount(box->itemData(2).toMap());
    QCOMPARE(box->currentIndex(), 2);
    QCOMPARE(m_plugin->account.value(number), box->itemData(1).toMap().value(number)); // it knows that itself
}

void tst_ZrPluginDock::refreshReachesThePlugin()
{
    m_plugin->setPluginRefreshable(true);
    m_plugin->calls.clear();
    click("pluginRefresh");
    QCOMPARE(m_plugin->calls.count(QStringLiteral("refresh")), 1);
}

void tst_ZrPluginDock::aFloatingDockTakesTheNormalSize()
{
    m_plugin->setPluginWidgetPropety(PluginPropety::PLUGINWIDGET_NORMALWIDTH, QStringLiteral("430"));
    m_plugin->setPluginWidgetPropety(PluginPropety::PLUGINWIDGET_NORMALHEIGHT, QStringLiteral("310"));
    click("pluginDock");
    QVERIFY(m_dock->isFloating());
    QTRY_COMPARE(m_dock->size(), QSize(430, 310));
    m_plugin->setPluginWidgetPropety(PluginPropety::PLUGINWIDGET_NORMALWIDTH, 520);
    emit m_plugin->signalPluginWidgetSizeChanged();
    QTRY_COMPARE(m_dock->size(), QSize(520, 310));
    click("pluginDock");
    QVERIFY(!m_dock->isFloating());
}

void tst_ZrPluginDock::aNormalSizeFromAFileIsBounded()
{
    m_dock->setFloating(true);
    m_dock->resize(400, 300);
    for (const QVariant &side : {QVariant(QStringLiteral("wide")), QVariant(-5), QVariant()}) {
        m_plugin->setPluginWidgetPropety(PluginPropety::PLUGINWIDGET_NORMALWIDTH, side);
        m_plugin->setPluginWidgetPropety(PluginPropety::PLUGINWIDGET_NORMALHEIGHT, side);
        emit m_plugin->signalPluginWidgetSizeChanged();
        QCOMPARE(m_dock->size(), QSize(400, 300));
    }
    m_plugin->setPluginWidgetPropety(PluginPropety::PLUGINWIDGET_NORMALWIDTH, 2000000000);
    m_plugin->setPluginWidgetPropety(PluginPropety::PLUGINWIDGET_NORMALHEIGHT, 2000000000);
    emit m_plugin->signalPluginWidgetSizeChanged();
    QVERIFY(m_dock->width() <= 8000);
}

void tst_ZrPluginDock::theFocusSelects()
{
    auto *const elsewhere = new QLineEdit(m_window.get());
    m_window->setCentralWidget(elsewhere);
    m_window->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(m_window.get()));
    QTRY_VERIFY(elsewhere->isVisible());
    elsewhere->setFocus();
    QTRY_VERIFY(elsewhere->hasFocus());
    m_plugin->calls.clear();
    m_plugin->findChild<QLineEdit *>()->setFocus();
    QCOMPARE(m_plugin->calls, QStringList{QStringLiteral("selected")});
    QCOMPARE(m_dock->title()->property("selected").toBool(), true);
    elsewhere->setFocus();
    QCOMPARE(m_plugin->calls, (QStringList{QStringLiteral("selected"), QStringLiteral("left")}));
    QCOMPARE(m_dock->title()->property("selected").toBool(), false);
}

void tst_ZrPluginDock::movesAreTold()
{
    m_dock->setFloating(true);
    const int before = m_plugin->moves;
    m_dock->move(m_dock->pos() + QPoint(40, 30));
    QTRY_VERIFY(m_plugin->moves > before);
}

void tst_ZrPluginDock::dataOfThePluginComeThrough()
{
    QSignalSpy data(m_dock.data(), &ZrPluginDock::signalData);
    emit m_plugin->signalSendDataToMainFrame(QStringLiteral("rows"));
    QCOMPARE(data.size(), 1);
    QCOMPARE(data.at(0).at(0).value<QVariant>().toString(), QStringLiteral("rows"));
    QSignalSpy copy(m_dock.data(), &ZrPluginDock::signalCopyWanted);
    click("pluginCopy");
    QCOMPARE(copy.at(0).at(0).toString(), QStringLiteral("probe"));
}

void tst_ZrPluginDock::aThousandDocksLeaveNothing()
{
    for (int i = 0; i < 1000; ++i) {
        auto *const plugin = new PluginProbe;
        QPointer<ZrPluginDock> dock = new ZrPluginDock(plugin, m_window.get());
        plugin->initPlugin();
        plugin->SetInitialized(true);
        m_window->addDockWidget(Qt::BottomDockWidgetArea, dock);
        // By turns the dock, the plugin, or the user ends it.
        if (i % 3 == 0)
            delete dock;
        else if (i % 3 == 1)
            delete plugin;
        else
            dock->close();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
    QTRY_COMPARE(m_window->findChildren<ZrPluginDock *>().size(), 1);
}

ZR_TEST_MAIN(tst_ZrPluginDock)
#include "tst_zrplugindock.moc"
