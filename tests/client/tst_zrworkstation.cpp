#include "FreezeTableView.h"
#include "ZrClientApplication.h"
#include "ZrClientFields.h"
#include "ZrLinkageCombox.h"
#include "ZrMainWindow.h"
#include "ZrPluginBaseWidget.h"
#include "ZrPluginDesk.h"
#include "ZrPluginDock.h"
#include "ZrPluginTitleBar.h"
#include "ZrQuietPlatform.h"
#include "ZrTableView.h"
#include "ZrTestMain.h"
#include "ZrWorkstation.h"

#include <QtCore/QTemporaryDir>
#include <QtWidgets/QToolBar>
#include <QtWidgets/QToolButton>

/// Whole runs of the workstation in this process: host, bus, feed, window.
class tst_ZrWorkstation : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase();
    void aRecordingRunsFromTheBusToThePixels();
    void theToolBarTriesTheGridOnALiveFeed();
    void picturesAndReportAreWritten();
    void aLostMessageIsCounted();
    void twoBlottersOfTheDeskFollowEachOther();
    void anotherPluginOpensBesideTheFirst();
    void whatIsNamedIsOpened();
    void aClosedBlotterHoldsUpNothing();
    void withoutPluginsTheDeskIsEmpty();
    void whatCannotBeStartedIsOneSentence_data();
    void whatCannotBeStartedIsOneSentence();

private:
    ZrWorkstationOptions sample() const;
    ZrWorkstationPaths paths() const;
    QTemporaryDir m_folder;
};

namespace {
ZrTableView *gridOf(const ZrPluginDock *dock)
{
    return dock->plugin()->findChild<ZrTableView *>();
}

ZrTableView *firstGrid(const ZrWorkstation &workstation)
{
    return gridOf(workstation.window()->desk()->docks().value(0));
}

QAction *toggleOf(const ZrPluginDock *dock, const char *name)
{
    const auto *const bar = dock->plugin()->findChild<QToolBar *>(QStringLiteral("blotterToolBar"));
    return bar ? bar->findChild<QAction *>(QLatin1String(name)) : nullptr;
}

QString symbolOf(const ZrTableView *view, int row)
{
    return view->getRowData(row).value(1).value(QStringLiteral("256")).toString();
}

ZrClientApplication *application()
{
    return static_cast<ZrClientApplication *>(QCoreApplication::instance());
}
} // namespace

void tst_ZrWorkstation::initTestCase()
{
    QVERIFY(m_folder.isValid());
    ZrQuietPlatform::install();
}

ZrWorkstationOptions tst_ZrWorkstation::sample() const
{
    ZrWorkstationOptions options;
    options.headless = true;
    options.feed = QStringLiteral("sample");
    options.speed = 0;
    options.skin = QStringLiteral("dark");
    options.language = QStringLiteral("en");
    return options;
}

ZrWorkstationPaths tst_ZrWorkstation::paths() const
{
    return {QStringLiteral(ZR_SKINS),
            QStringLiteral(ZR_DATA),
            {QStringLiteral(ZR_CLIENT_RECORDINGS)},
            m_folder.path(),
            QStringLiteral(ZR_PLUGINS)};
}

void tst_ZrWorkstation::aRecordingRunsFromTheBusToThePixels()
{
    ZrWorkstation workstation(sample(), paths(), application());
    QSignalSpy done(&workstation, &ZrWorkstation::signalDone);
    QCOMPARE(workstation.start(), QString());
    QTRY_COMPARE_WITH_TIMEOUT(done.size(), 1, 120000);
    QCOMPARE(workstation.finish(), QString());
    const ZrRunReport &report = workstation.report();
    QCOMPARE(report.messagesLost, 0);
    QVERIFY(report.messagesIn > report.updatesApplied);
    QVERIFY(report.rows > 3000);
    QVERIFY(report.frames > 0);
    QCOMPARE(report.feedToModel.count(), report.updatesApplied);
    QVERIFY(report.feedToPixel.count() > 0);
    QCOMPARE(report.linesSkipped, 0);
    QVERIFY(workstation.problems().isEmpty());
    // A row holds what the last report said, mapped by the column file.
    const ZrTableView *const view = firstGrid(workstation);
    const RecordData row = view->getRowData(0);
    QCOMPARE(row.value(0).value(QStringLiteral("0")).toString(), QStringLiteral("1"));
    QVERIFY(row.value(1).value(QStringLiteral("0")).toString().contains(QLatin1Char('.')));
    QVERIFY(!row.value(2).value(QStringLiteral("0")).toString().isEmpty());
    QVERIFY((QStringList{QStringLiteral("Buy"), QStringLiteral("Sell")})
                .contains(row.value(4).value(QStringLiteral("0")).toString()));
    QCOMPARE(firstGrid(workstation)->getHeadList().size(), 32);
    // Both blotters have taken in all of it.
    QCOMPARE(report.plugins.size(), 2);
    for (const ZrPluginRun &plugin : report.plugins) {
        QCOMPARE(plugin.id, QStringLiteral("blotter"));
        QCOMPARE(plugin.rows, report.rows);
    }
}

void tst_ZrWorkstation::theToolBarTriesTheGridOnALiveFeed()
{
    ZrWorkstation workstation(sample(), paths(), application());
    QSignalSpy done(&workstation, &ZrWorkstation::signalDone);
    QCOMPARE(workstation.start(), QString());
    const ZrPluginDock *const dock = workstation.window()->desk()->docks().value(0);
    const ZrTableView *const view = gridOf(dock);
    QTRY_VERIFY(view->getRowCount() > 0);
    for (const char *name : {"freezeLeft", "freezeRight", "checkBoxes", "summary", "openOnly", "follow"}) {
        QVERIFY2(toggleOf(dock, name), name);
        toggleOf(dock, name)->trigger();
    }
    QCOMPARE(view->getFrozenColumns(1), 3); // with the check boxes
    QCOMPARE(view->getFrozenColumns(2), 1);
    QTRY_COMPARE_WITH_TIMEOUT(done.size(), 1, 120000);
    QCOMPARE(workstation.finish(), QString());
    // Only open orders are shown; the finished ones are kept.
    QVERIFY(view->getRowCount() < view->getViewData().size());
    for (int i = 0; i < view->getRowCount(); ++i) {
        const QString status = view->getRowData(i).value(11).value(QStringLiteral("256")).toString();
        QVERIFY2(status == QLatin1String("0") || status == QLatin1String("1"), qPrintable(status));
    }
    toggleOf(dock, "openOnly")->trigger();
    QCOMPARE(view->getRowCount(), view->getViewData().size());
    toggleOf(dock, "delayed")->trigger();
    QVERIFY(!toggleOf(dock, "delayed")->isEnabled());
}

void tst_ZrWorkstation::picturesAndReportAreWritten()
{
    ZrWorkstationOptions options = sample();
    options.shotsFolder = m_folder.filePath(QStringLiteral("shots"));
    options.reportFile = m_folder.filePath(QStringLiteral("report.json"));
    options.recordFile = m_folder.filePath(QStringLiteral("again.json"));
    options.skin = QStringLiteral("light");
    ZrWorkstation workstation(options, paths(), application());
    QSignalSpy done(&workstation, &ZrWorkstation::signalDone);
    QCOMPARE(workstation.start(), QString());
    QTRY_COMPARE_WITH_TIMEOUT(done.size(), 1, 120000);
    QCOMPARE(workstation.finish(), QString());
    QVERIFY(QImage(options.shotsFolder + QStringLiteral("/window.png")).width() >= 1000);
    QVERIFY(!QImage(options.shotsFolder + QStringLiteral("/dock-blotter.png")).isNull());
    QVERIFY(!QImage(options.shotsFolder + QStringLiteral("/dock-blotter-2.png")).isNull());
    QVERIFY(!QImage(options.shotsFolder + QStringLiteral("/showcase-table-view.png")).isNull());
    // The linked pair with its popup is another picture than the window alone.
    const QImage linked(options.shotsFolder + QStringLiteral("/linked.png"));
    QVERIFY(!linked.isNull());
    QVERIFY(linked != QImage(options.shotsFolder + QStringLiteral("/window.png")));
    QVERIFY(QFile::exists(options.reportFile));
    QVERIFY(QFile::exists(options.recordFile));
}

void tst_ZrWorkstation::aLostMessageIsCounted()
{
    ZrWorkstationOptions options = sample();
    options.faults = QStringLiteral("drop=0.05,seed=3");
    ZrWorkstation workstation(options, paths(), application());
    QSignalSpy done(&workstation, &ZrWorkstation::signalDone);
    QCOMPARE(workstation.start(), QString());
    QTRY_COMPARE_WITH_TIMEOUT(done.size(), 1, 120000);
    QCOMPARE(workstation.finish(), QString());
    const double share = double(workstation.report().messagesLost) /
                         double(workstation.report().messagesLost + workstation.report().messagesIn);
    QVERIFY2(share > 0.03 && share < 0.07, qPrintable(QString::number(share)));
}

void tst_ZrWorkstation::twoBlottersOfTheDeskFollowEachOther()
{
    ZrWorkstation workstation(sample(), paths(), application());
    QSignalSpy done(&workstation, &ZrWorkstation::signalDone);
    QCOMPARE(workstation.start(), QString());
    QTRY_COMPARE_WITH_TIMEOUT(done.size(), 1, 120000);
    QCOMPARE(workstation.finish(), QString());
    const QList<ZrPluginDock *> docks = workstation.window()->desk()->docks();
    QCOMPARE(docks.size(), 2);
    const ZrTableView *const first = gridOf(docks.at(0));
    const ZrTableView *const second = gridOf(docks.at(1));
    // Another security than the one that the first click meets.
    first->getTableView()->scrollToTop();
    QCoreApplication::processEvents();
    for (const int row : {0, 3, 7}) {
        const QRect cell = first->getTableView()->visualRect(first->index(row, 0));
        QTest::mouseClick(first->getTableView()->viewport(), Qt::LeftButton, Qt::NoModifier, cell.center());
        QTRY_VERIFY(second->currentIndex().isValid());
        QTRY_COMPARE(symbolOf(second, second->currentIndex().row()), symbolOf(first, row));
    }
    // The colour of the group stands in both titles.
    for (const ZrPluginDock *const dock : docks) {
        const auto *const box = dock->title()->findChild<ZrLinkageCombox *>();
        QVERIFY(box);
        QVERIFY(box->isVisible());
        QCOMPARE(box->currentIndex(), 0);
    }
}

void tst_ZrWorkstation::anotherPluginOpensBesideTheFirst()
{
    ZrWorkstation workstation(sample(), paths(), application());
    QCOMPARE(workstation.start(), QString());
    const QList<ZrPluginDock *> docks = workstation.window()->desk()->docks();
    docks.at(0)->title()->findChild<QToolButton *>(QStringLiteral("pluginCopy"))->click();
    QCOMPARE(workstation.window()->desk()->docks().size(), 3);
    QCOMPARE(workstation.window()->desk()->docks().at(2)->objectName(), QStringLiteral("blotter-3"));
    QCOMPARE(workstation.finish(), QString());
}

void tst_ZrWorkstation::whatIsNamedIsOpened()
{
    ZrWorkstationOptions options = sample();
    options.open = QStringList{QStringLiteral("blotter")};
    {
        ZrWorkstation workstation(options, paths(), application());
        QCOMPARE(workstation.start(), QString());
        QCOMPARE(workstation.window()->desk()->docks().size(), 1);
        QCOMPARE(workstation.finish(), QString());
    }
    options.open = QStringList{QStringLiteral("nothing")};
    ZrWorkstation workstation(options, paths(), application());
    QCOMPARE(workstation.start(), QStringLiteral("--open: there is no plugin \"nothing\"."));
}

void tst_ZrWorkstation::aClosedBlotterHoldsUpNothing()
{
    ZrWorkstation workstation(sample(), paths(), application());
    QSignalSpy done(&workstation, &ZrWorkstation::signalDone);
    QCOMPARE(workstation.start(), QString());
    const QPointer<ZrPluginDock> second = workstation.window()->desk()->docks().value(1);
    QTRY_VERIFY(gridOf(second)->getRowCount() > 0);
    second->title()->findChild<QToolButton *>(QStringLiteral("pluginClose"))->click();
    QTRY_VERIFY(!second);
    QTRY_COMPARE_WITH_TIMEOUT(done.size(), 1, 120000);
    QCOMPARE(workstation.finish(), QString());
    QCOMPARE(workstation.report().messagesLost, 0);
    QCOMPARE(workstation.report().plugins.size(), 1);
}

void tst_ZrWorkstation::withoutPluginsTheDeskIsEmpty()
{
    ZrWorkstationPaths bare = paths();
    bare.plugins.clear();
    QTest::ignoreMessage(QtWarningMsg, "there is no plugin \"blotter\".");
    ZrWorkstation workstation(sample(), bare, application());
    QSignalSpy done(&workstation, &ZrWorkstation::signalDone);
    QCOMPARE(workstation.start(), QString());
    QTRY_COMPARE_WITH_TIMEOUT(done.size(), 1, 120000);
    QCOMPARE(workstation.finish(), QString());
    QVERIFY(workstation.report().messagesIn > 0);
    QCOMPARE(workstation.report().rows, qint64(0));
}

void tst_ZrWorkstation::whatCannotBeStartedIsOneSentence_data()
{
    QTest::addColumn<QString>("feed");
    QTest::addColumn<QString>("skin");
    QTest::addColumn<QString>("faults");
    QTest::newRow("no such feed") << "nothing"
                                  << "dark"
                                  << "";
    QTest::newRow("no such skin") << "sample"
                                  << "nothing"
                                  << "";
    QTest::newRow("no such fault") << "sample"
                                   << "dark"
                                   << "explode=1";
    QTest::newRow("feed is no description")
        << QStringLiteral(ZR_SKINS "/dark/system/zrwidget/zrtableview.css") << "dark"
        << "";
}

void tst_ZrWorkstation::whatCannotBeStartedIsOneSentence()
{
    QFETCH(QString, feed);
    QFETCH(QString, skin);
    QFETCH(QString, faults);
    ZrWorkstationOptions options = sample();
    options.feed = feed;
    options.skin = skin;
    options.faults = faults;
    ZrWorkstation workstation(options, paths(), application());
    const QString error = workstation.start();
    QVERIFY(!error.isEmpty());
    QVERIFY(!error.contains(QLatin1Char('\n')));
}

int main(int argc, char *argv[])
{
    const ZrTestProcess process;
    ZrClientApplication app(argc, argv);
    QLoggingCategory::setFilterRules(QStringLiteral("default.debug=false"));
    tst_ZrWorkstation test;
    return QTest::qExec(&test, argc, argv);
}
#include "tst_zrworkstation.moc"
