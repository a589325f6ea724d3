#include "FreezeTableView.h"
#include "PluginScene.h"
#include "ZrPluginCatalogue.h"
#include "ZrPluginsPanel.h"
#include "ZrQuietPlatform.h"
#include "ZrReferenceHost.h"
#include "ZrTableView.h"
#include "ZrTestMain.h"

#include <QtWidgets/QCheckBox>
#include <QtWidgets/QLabel>
#include <QtWidgets/QPushButton>

/// The page that tells of plugin files.
class tst_ZrPluginsPanel : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase();
    void init();
    void cleanup();
    void eachFileHasARowWithItsReason();
    void theCurrentRowTellsItsReason();
    void aRefusedPluginHasNoChoices();
    void aPluginLeftOutIsLoadedOnDemand();
    void thePluginThatEndedAStartIsNamedAndOffered();
    void theChoiceOfTheNextStartIsKept();
    void aChoiceThatCannotBeKeptIsTold();
    void everythingIsReachedByKeys();
    void whatHasNoTextHasANameToReadOut();
    void textsFromOutsideAreShownAsTheyStand();

private:
    void put(const QString &name, const QByteArray &bytes) const;
    void leaveMark() const;
    void open();
    void go(const QString &id) { m_panel->select(id); }
    QString cell(int row, int column) const;
    template<typename Widget>
    Widget *part(const char *name) const
    {
        return m_panel->findChild<Widget *>(QLatin1String(name));
    }

    QTemporaryDir m_home;
    ZrReferenceHost m_host;
    std::unique_ptr<QTemporaryDir> m_folder;
    ZrPluginCatalogue::Options m_options;
    std::unique_ptr<ZrPluginCatalogue> m_catalogue;
    std::unique_ptr<ZrPluginsPanel> m_panel;
};

namespace {
const QString soundId = QStringLiteral("Sound");
} // namespace

void tst_ZrPluginsPanel::initTestCase()
{
    ZrQuietPlatform::install();
    ZrReferenceHost::Options options;
    options.configFolder = m_home.path();
    options.skinRoot = QStringLiteral(ZR_SKINS);
    QVERIFY2(m_host.start(options), qPrintable(m_host.errorText()));
}

void tst_ZrPluginsPanel::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    m_options = ZrPluginCatalogue::Options();
    m_options.folder = m_folder->filePath(QStringLiteral("plugins"));
    m_options.stateFolder = m_folder->filePath(QStringLiteral("state"));
    put(QStringLiteral("liba.so"), PluginScene::file(QStringLiteral("sound")));
    put(QStringLiteral("libb.so"), PluginScene::file(QStringLiteral("hollow")));
    put(QStringLiteral("libc.so"), "<b>no library</b>");
}

void tst_ZrPluginsPanel::cleanup()
{
    m_panel.reset();
    m_catalogue.reset();
}

void tst_ZrPluginsPanel::put(const QString &name, const QByteArray &bytes) const
{
    QVERIFY(PluginScene::write(m_options.folder + QLatin1Char('/') + name, bytes));
}

void tst_ZrPluginsPanel::leaveMark() const
{
    QVERIFY(PluginScene::write(m_options.stateFolder + QStringLiteral("/plugin-start-1.json"),
                               "{\"pid\": 4194305, \"processStart\": \"1\", \"plugins\": [\"Sound\"]}"));
}

void tst_ZrPluginsPanel::open()
{
    m_catalogue =
        std::make_unique<ZrPluginCatalogue>([](const QString &, const ZrPluginCatalogue::Maker &) {});
    QCOMPARE(m_catalogue->scan(m_options), QString());
    m_catalogue->loadAll();
    m_panel = std::make_unique<ZrPluginsPanel>(m_catalogue.get());
    m_panel->resize(1200, 400);
    m_panel->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_panel.get()));
}

QString tst_ZrPluginsPanel::cell(int row, int column) const
{
    return m_panel->view()->getRowData(row).value(column).value(QStringLiteral("0")).toString();
}

void tst_ZrPluginsPanel::eachFileHasARowWithItsReason()
{
    open();
    QCOMPARE(m_panel->view()->getRowCount(), 3);
    QCOMPARE(cell(0, ZrPluginsPanel::File), QStringLiteral("liba.so"));
    QCOMPARE(cell(0, ZrPluginsPanel::Id), soundId);
    QCOMPARE(cell(0, ZrPluginsPanel::Version), QStringLiteral("1.2.3"));
    QCOMPARE(cell(0, ZrPluginsPanel::State), QStringLiteral("loaded"));
    QCOMPARE(cell(0, ZrPluginsPanel::Reason), QString());
    QVERIFY(!cell(0, ZrPluginsPanel::ReadTime).isEmpty());
    QVERIFY(!cell(0, ZrPluginsPanel::LoadTime).isEmpty());
    QCOMPARE(cell(1, ZrPluginsPanel::State), QStringLiteral("refused"));
    QVERIFY(cell(1, ZrPluginsPanel::Reason).contains(QLatin1String("zrNobodyOffersThis(int)")));
    QCOMPARE(cell(2, ZrPluginsPanel::State), QStringLiteral("refused"));
    QVERIFY(cell(2, ZrPluginsPanel::LoadTime).isEmpty());
    QCOMPARE(part<QLabel>("pluginNotice")->text(), QStringLiteral("Refused plugin files: 2."));
}

void tst_ZrPluginsPanel::theCurrentRowTellsItsReason()
{
    open();
    m_panel->view()->setCurrentIndex(m_panel->view()->index(1, 0), true);
    QVERIFY(part<QLabel>("pluginReason")->text().contains(QLatin1String("zrNobodyOffersThis(int)")));
    m_panel->view()->setCurrentIndex(m_panel->view()->index(0, 0), true);
    QVERIFY(part<QLabel>("pluginReason")->text().isEmpty());
}

void tst_ZrPluginsPanel::aRefusedPluginHasNoChoices()
{
    open();
    m_panel->view()->setCurrentIndex(m_panel->view()->index(1, 0), true);
    QVERIFY(!part<QPushButton>("pluginLoad")->isEnabled());
    QVERIFY(!part<QCheckBox>("pluginAtStart")->isEnabled());
    go(soundId);
    QVERIFY(!part<QPushButton>("pluginLoad")->isEnabled()); // is loaded
    QVERIFY(part<QCheckBox>("pluginAtStart")->isEnabled());
}

void tst_ZrPluginsPanel::aPluginLeftOutIsLoadedOnDemand()
{
    leaveMark();
    open();
    QSignalSpy loaded(m_panel.get(), &ZrPluginsPanel::signalLoaded);
    go(soundId);
    QCOMPARE(cell(0, ZrPluginsPanel::State), QStringLiteral("switched off"));
    part<QPushButton>("pluginLoad")->click();
    QCOMPARE(cell(0, ZrPluginsPanel::State), QStringLiteral("loaded"));
    QVERIFY(m_catalogue->isLoaded(soundId));
    QCOMPARE(loaded.size(), 1);
    QCOMPARE(loaded.at(0).at(0).toString(), soundId);
    QVERIFY(!part<QPushButton>("pluginLoad")->isEnabled());
}

void tst_ZrPluginsPanel::thePluginThatEndedAStartIsNamedAndOffered()
{
    leaveMark();
    open();
    const QString notice = part<QLabel>("pluginNotice")->text();
    QVERIFY2(notice.contains(soundId) && notice.contains(QLatin1String("ended")), qPrintable(notice));
    QVERIFY(part<QLabel>("pluginNotice")->isVisible());
    // Its row is the current one, so that the choices are its own.
    QVERIFY(part<QPushButton>("pluginLoad")->isEnabled());
    QVERIFY(part<QCheckBox>("pluginAtStart")->isEnabled());
    QVERIFY(!part<QCheckBox>("pluginAtStart")->isChecked());
}

void tst_ZrPluginsPanel::theChoiceOfTheNextStartIsKept()
{
    open();
    go(soundId);
    QVERIFY(part<QCheckBox>("pluginAtStart")->isChecked());
    part<QCheckBox>("pluginAtStart")->click();
    QCOMPARE(cell(0, ZrPluginsPanel::State), QStringLiteral("loaded"));
    cleanup();
    open();
    QCOMPARE(cell(0, ZrPluginsPanel::State), QStringLiteral("switched off"));
    go(soundId);
    part<QCheckBox>("pluginAtStart")->click();
    QCOMPARE(cell(0, ZrPluginsPanel::State), QStringLiteral("found"));
    cleanup();
    open();
    QCOMPARE(cell(0, ZrPluginsPanel::State), QStringLiteral("loaded"));
}

void tst_ZrPluginsPanel::aChoiceThatCannotBeKeptIsTold()
{
    QVERIFY(PluginScene::write(m_folder->filePath(QStringLiteral("file")), "x"));
    m_options.stateFolder = m_folder->filePath(QStringLiteral("file/folder"));
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("^ZrPluginMarks::write ")));
    open();
    go(soundId);
    part<QCheckBox>("pluginAtStart")->click();
    QVERIFY(part<QLabel>("pluginNotice")->text().contains(QLatin1String("cannot be kept")));
}

void tst_ZrPluginsPanel::everythingIsReachedByKeys()
{
    leaveMark();
    open();
    m_panel->activateWindow();
    QTableView *const table = m_panel->view()->getTableView();
    table->setFocus();
    QTest::keyClick(table, Qt::Key_Down);
    QVERIFY(part<QLabel>("pluginReason")->text().contains(QLatin1String("zrNobodyOffersThis")));
    QTest::keyClick(table, Qt::Key_Up);
    QVERIFY(part<QCheckBox>("pluginAtStart")->focusPolicy() & Qt::TabFocus);
    QVERIFY(part<QPushButton>("pluginLoad")->focusPolicy() & Qt::TabFocus);
    QTest::keyClick(part<QCheckBox>("pluginAtStart"), Qt::Key_Space);
    QVERIFY(!m_catalogue->isSwitchedOff(soundId));
    QTest::keyClick(part<QPushButton>("pluginLoad"), Qt::Key_Space);
    QVERIFY(m_catalogue->isLoaded(soundId));
}

void tst_ZrPluginsPanel::whatHasNoTextHasANameToReadOut()
{
    open();
    QVERIFY(!m_panel->view()->getTableView()->accessibleName().isEmpty());
    QVERIFY(!part<QLabel>("pluginReason")->accessibleName().isEmpty());
    QVERIFY(!part<QLabel>("pluginNotice")->accessibleName().isEmpty());
    QVERIFY(!part<QCheckBox>("pluginAtStart")->text().isEmpty());
    QVERIFY(!part<QPushButton>("pluginLoad")->text().isEmpty());
}

void tst_ZrPluginsPanel::textsFromOutsideAreShownAsTheyStand()
{
    put(QStringLiteral("lib<b>d&x.so"), "no library");
    open();
    QCOMPARE(part<QLabel>("pluginReason")->textFormat(), Qt::PlainText);
    QCOMPARE(part<QLabel>("pluginNotice")->textFormat(), Qt::PlainText);
    QVERIFY(m_panel->view()->getRowCount() == 4);
    bool isThere = false;
    for (int row = 0; row < 4; ++row)
        isThere = isThere || cell(row, ZrPluginsPanel::File) == QLatin1String("lib<b>d&x.so");
    QVERIFY(isThere);
}

ZR_TEST_MAIN(tst_ZrPluginsPanel)
#include "tst_zrpluginspanel.moc"
