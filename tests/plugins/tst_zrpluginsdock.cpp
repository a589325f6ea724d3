#include "PluginScene.h"
#include "ZrPluginCatalogue.h"
#include "ZrPluginsDock.h"
#include "ZrPluginsPanel.h"
#include "ZrQuietPlatform.h"
#include "ZrReferenceHost.h"
#include "ZrTableView.h"
#include "ZrTestMain.h"

#include <QtWidgets/QAction>
#include <QtWidgets/QMainWindow>
#include <QtWidgets/QToolButton>

/// The dock of the plugin files in a window.
class tst_ZrPluginsDock : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase();
    void init();
    void itIsClosedAsARule();
    void theButtonOpensItInFront();
    void aPluginThatEndedTheLastStartBringsItUp();
    void itStandsAloneWhereThereIsNoOtherDock();
    void itsPictureCanBeTakenWhileClosed();

private:
    void open(bool withFront = true);
    QTemporaryDir m_home;
    ZrReferenceHost m_host;
    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<ZrPluginCatalogue> m_catalogue;
    std::unique_ptr<QMainWindow> m_window;
    QWidget *m_front = nullptr;
    ZrPluginsDock *m_dock = nullptr;
};

void tst_ZrPluginsDock::initTestCase()
{
    ZrQuietPlatform::install();
    ZrReferenceHost::Options options;
    options.configFolder = m_home.path();
    options.skinRoot = QStringLiteral(ZR_SKINS);
    QVERIFY2(m_host.start(options), qPrintable(m_host.errorText()));
}

void tst_ZrPluginsDock::init()
{
    m_window.reset();
    m_folder = std::make_unique<QTemporaryDir>();
    QVERIFY(PluginScene::write(m_folder->filePath(QStringLiteral("plugins/libsound.so")),
                               PluginScene::file(QStringLiteral("sound"))));
}

void tst_ZrPluginsDock::open(bool withFront)
{
    m_catalogue =
        std::make_unique<ZrPluginCatalogue>([](const QString &, const ZrPluginCatalogue::Maker &) {});
    ZrPluginCatalogue::Options options;
    options.folder = m_folder->filePath(QStringLiteral("plugins"));
    options.stateFolder = m_folder->filePath(QStringLiteral("state"));
    QCOMPARE(m_catalogue->scan(options), QString());
    m_window = std::make_unique<QMainWindow>();
    auto *const front = withFront ? new QDockWidget(QStringLiteral("front"), m_window.get()) : nullptr;
    if (front) {
        m_front = new QWidget(front);
        front->setWidget(m_front);
        m_window->addDockWidget(Qt::TopDockWidgetArea, front);
    }
    m_dock = new ZrPluginsDock(m_catalogue.get(), m_window.get());
    m_dock->placeIn(m_window.get(), front);
    m_window->resize(900, 500);
    m_window->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_window.get()));
}

void tst_ZrPluginsDock::itIsClosedAsARule()
{
    open();
    QVERIFY(!m_dock->isVisible());
    QTRY_VERIFY(!m_front->visibleRegion().isEmpty());
}

void tst_ZrPluginsDock::theButtonOpensItInFront()
{
    open();
    QToolButton *const button = m_dock->makeButton(m_window.get());
    QVERIFY(!button->text().isEmpty());
    QVERIFY(!button->toolTip().isEmpty());
    button->click();
    QTRY_VERIFY(!m_dock->panel()->visibleRegion().isEmpty());
    QTRY_VERIFY(m_front->visibleRegion().isEmpty());
    button->click();
    QTRY_VERIFY(!m_dock->isVisible());
    QTRY_VERIFY(!m_front->visibleRegion().isEmpty());
}

void tst_ZrPluginsDock::aPluginThatEndedTheLastStartBringsItUp()
{
    QVERIFY(PluginScene::write(m_folder->filePath(QStringLiteral("state/plugin-start-1.json")),
                               "{\"pid\": 4194305, \"processStart\": \"1\", \"plugins\": [\"Sound\"]}"));
    open();
    QTRY_VERIFY(!m_dock->panel()->visibleRegion().isEmpty());
    QVERIFY(m_front->visibleRegion().isEmpty());
}

void tst_ZrPluginsDock::itStandsAloneWhereThereIsNoOtherDock()
{
    open(false);
    m_dock->toggleViewAction()->trigger();
    QTRY_VERIFY(!m_dock->panel()->visibleRegion().isEmpty());
}

void tst_ZrPluginsDock::itsPictureCanBeTakenWhileClosed()
{
    open();
    QVERIFY(!m_dock->grab().isNull());
    QVERIFY(!m_dock->isVisible());
    QCOMPARE(m_dock->panel()->view()->getRowCount(), 1);
}

ZR_TEST_MAIN(tst_ZrPluginsDock)
#include "tst_zrpluginsdock.moc"
