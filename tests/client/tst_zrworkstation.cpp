#include "ZrBlotterPanel.h"
#include "ZrBlotterToolBar.h"
#include "ZrClientApplication.h"
#include "ZrClientFields.h"
#include "ZrMainWindow.h"
#include "ZrQuietPlatform.h"
#include "ZrTableView.h"
#include "ZrTestMain.h"
#include "ZrWorkstation.h"

#include <QtCore/QTemporaryDir>

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
    void whatCannotBeStartedIsOneSentence_data();
    void whatCannotBeStartedIsOneSentence();

private:
    ZrWorkstationOptions sample() const;
    ZrWorkstationPaths paths() const;
    QTemporaryDir m_folder;
};

namespace {
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
            m_folder.path()};
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
    const ZrTableView *const view = workstation.window()->blotter()->view();
    const RecordData row = view->getRowData(0);
    QCOMPARE(row.value(0).value(QStringLiteral("0")).toString(), QStringLiteral("1"));
    QVERIFY(row.value(1).value(QStringLiteral("0")).toString().contains(QLatin1Char('.')));
    QVERIFY(!row.value(2).value(QStringLiteral("0")).toString().isEmpty());
    QVERIFY((QStringList{QStringLiteral("Buy"), QStringLiteral("Sell")})
                .contains(row.value(4).value(QStringLiteral("0")).toString()));
    QCOMPARE(workstation.window()->blotter()->view()->getHeadList().size(), 32);
}

void tst_ZrWorkstation::theToolBarTriesTheGridOnALiveFeed()
{
    ZrWorkstation workstation(sample(), paths(), application());
    QSignalSpy done(&workstation, &ZrWorkstation::signalDone);
    QCOMPARE(workstation.start(), QString());
    ZrBlotterToolBar *const bar = workstation.window()->toolBar();
    const ZrTableView *const view = workstation.window()->blotter()->view();
    QTRY_VERIFY(view->getRowCount() > 0);
    for (const char *name : {"freezeLeft", "freezeRight", "checkBoxes", "summary", "openOnly", "follow"}) {
        QVERIFY2(bar->toggle(QLatin1String(name)), name);
        bar->toggle(QLatin1String(name))->trigger();
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
    bar->toggle(QStringLiteral("openOnly"))->trigger();
    QCOMPARE(view->getRowCount(), view->getViewData().size());
    bar->toggle(QStringLiteral("delayed"))->trigger();
    QVERIFY(!bar->toggle(QStringLiteral("delayed"))->isEnabled());
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
    QVERIFY(!QImage(options.shotsFolder + QStringLiteral("/showcase-table-view.png")).isNull());
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
