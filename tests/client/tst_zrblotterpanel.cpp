#include "FreezeTableView.h"
#include "ZrBlotterPanel.h"
#include "ZrClientFields.h"
#include "ZrFeedClock.h"
#include "ZrQuietPlatform.h"
#include "ZrReferenceHost.h"
#include "ZrTableView.h"
#include "ZrTestMain.h"

#include "zrcore/ZrCore.h"
#include "zrdefine/VexlorFields.h"

#include <QtCore/QTemporaryDir>
#include <QtWidgets/QHeaderView>
#include <QtWidgets/QScrollBar>

/// The order blotter on messages made for the test.
class tst_ZrBlotterPanel : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase();
    void init();
    void eachOrderHasOneRow();
    void headsStandUnderTheirBands();
    void aSideHasItsColour();
    void aNewSkinRecoloursTheRowsThatAreThere();
    void onlyOpenOrdersAreShownOnRequest();
    void theSummaryAddsSizesAndNoPrices();
    void newRowsComeIntoSightWhileFollowing();
    void onlyRowsInSightCountForTheScreen();
    void framesTakeTheLatencyOnce();
    void aBrokenColumnFileGivesAnEmptyGrid();

private:
    QString text(int row, int column) const;
    QColor colour(int row) const;
    void apply(int from, int count);

    QTemporaryDir m_folder;
    ZrReferenceHost m_host;
    std::unique_ptr<ZrBlotterPanel> m_panel;
};

namespace {
const QString columnFile = QStringLiteral(ZR_CLIENT_COLUMNS "/blotter.xml");
enum Column { OrderNumber = 0, SideColumn = 4, PriceColumn = 7, QuantityColumn = 8, StatusColumn = 11 };

ZrInboxMessage report(int order, const char *side = "1", const char *status = "0")
{
    return {QStringLiteral("ExecutionReport"),
            {{ZrClientFields::orderId, QString::number(order)},
             {Vexlor_Fields::Security::symbol, "600000.SH"},
             {ZrClientFields::side, side},
             {ZrClientFields::orderStatus, status},
             {ZrClientFields::price, 10.5},
             {ZrClientFields::orderQty, 200.0},
             {ZrClientFields::sentNs, ZrSteadyClock::steadyNs()}}};
}
} // namespace

void tst_ZrBlotterPanel::initTestCase()
{
    ZrQuietPlatform::install();
    ZrReferenceHost::Options options;
    options.configFolder = m_folder.path();
    options.database.language = QStringLiteral("en");
    QVERIFY2(m_host.start(options), qPrintable(m_host.errorText()));
}

void tst_ZrBlotterPanel::init()
{
    m_panel = std::make_unique<ZrBlotterPanel>(columnFile);
    m_panel->view()->setUpColor(Qt::red);
    m_panel->view()->setDownColor(Qt::green);
    m_panel->resize(900, 400);
    m_panel->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_panel.get()));
}

QString tst_ZrBlotterPanel::text(int row, int column) const
{
    return m_panel->view()->getRowData(row).value(column).value(QStringLiteral("0")).toString();
}

QColor tst_ZrBlotterPanel::colour(int row) const
{
    return m_panel->view()
        ->getRowData(row)
        .value(SideColumn)
        .value(QString::number(Qt::ForegroundRole))
        .value<QColor>();
}

void tst_ZrBlotterPanel::apply(int from, int count)
{
    std::vector<ZrInboxMessage> messages;
    for (int i = from; i < from + count; ++i)
        messages.push_back(report(i));
    m_panel->applyMessages(messages);
}

void tst_ZrBlotterPanel::eachOrderHasOneRow()
{
    m_panel->applyMessages({report(1), report(2, "2"), report(1, "1", "2")});
    QCOMPARE(m_panel->view()->getRowCount(), 2);
    QCOMPARE(m_panel->updatesApplied(), qint64(3));
    QCOMPARE(text(0, OrderNumber), QStringLiteral("1"));
    QCOMPARE(text(0, StatusColumn), QStringLiteral("Filled")); // the later report counts
    QCOMPARE(text(0, PriceColumn), QStringLiteral("10.500"));
    QCOMPARE(text(1, SideColumn), QStringLiteral("Sell"));
    // The same number on another market is another order.
    ZrInboxMessage elsewhere = report(1);
    elsewhere.record.insert(Vexlor_Fields::Security::symbol, "000001.SZ");
    m_panel->applyMessages({elsewhere});
    QCOMPARE(m_panel->view()->getRowCount(), 3);
}

void tst_ZrBlotterPanel::headsStandUnderTheirBands()
{
    const HeadList heads = m_panel->view()->getHeadList();
    QCOMPARE(heads.size(), 32);
    const auto band = [&heads](int column) {
        return heads.at(column).value(QStringLiteral("Head_GroupName")).toString();
    };
    QCOMPARE(band(OrderNumber), QString());
    QCOMPARE(band(SideColumn), QStringLiteral("Order"));
    QCOMPARE(band(StatusColumn), QStringLiteral("Execution"));
    QCOMPARE(band(25), QStringLiteral("Account"));
    QCOMPARE(heads.at(PriceColumn).value(QStringLiteral("Head_DisplayRole")).toString(),
             QStringLiteral("Price"));
    QCOMPARE(m_panel->view()->getTableView()->columnWidth(PriceColumn), 84); // as the file says
}

void tst_ZrBlotterPanel::aSideHasItsColour()
{
    ZrInboxMessage without = report(3);
    without.record.remove(ZrClientFields::side);
    m_panel->applyMessages({report(1, "1"), report(2, "2"), without});
    QCOMPARE(colour(0), QColor(Qt::red));
    QCOMPARE(colour(1), QColor(Qt::green));
    QVERIFY(!colour(2).isValid());
}

void tst_ZrBlotterPanel::aNewSkinRecoloursTheRowsThatAreThere()
{
    m_panel->applyMessages({report(1, "1"), report(2, "2")});
    m_panel->view()->setUpColor(Qt::blue);
    m_panel->view()->setDownColor(Qt::yellow);
    QCOMPARE(colour(0), QColor(Qt::red));
    emit ZrCore::instance()->signalSkinChanged(QStringLiteral("another"));
    QCOMPARE(colour(0), QColor(Qt::blue));
    QCOMPARE(colour(1), QColor(Qt::yellow));
    QCOMPARE(text(1, SideColumn), QStringLiteral("Sell"));
    QCOMPARE(m_panel->view()->getRowCount(), 2);
}

void tst_ZrBlotterPanel::onlyOpenOrdersAreShownOnRequest()
{
    m_panel->view()->setViewFilterable(true);
    m_panel->applyMessages(
        {report(1, "1", "0"), report(2, "1", "2"), report(3, "1", "1"), report(4, "1", "4")});
    m_panel->setOpenOnly(true);
    QCOMPARE(m_panel->view()->getRowCount(), 2);
    QCOMPARE(m_panel->view()->getTableView()->verticalHeader()->count(), 2); // on a quiet feed too
    QCOMPARE(text(0, OrderNumber), QStringLiteral("1"));
    QCOMPARE(text(1, OrderNumber), QStringLiteral("3"));
    m_panel->applyMessages({report(1, "1", "2")}); // it leaves once it is filled
    QCOMPARE(m_panel->view()->getRowCount(), 1);
    m_panel->setOpenOnly(false);
    QCOMPARE(m_panel->view()->getRowCount(), 4);
}

void tst_ZrBlotterPanel::theSummaryAddsSizesAndNoPrices()
{
    m_panel->applyMessages({report(1), report(2), report(3)});
    m_panel->setSummaryShown(true);
    const auto *const table = m_panel->view()->parentWidget()->window()->findChild<QTableView *>(
        QStringLiteral("TableSummaryView"));
    QVERIFY(table);
    const auto shown = [table](int column) { return table->model()->index(0, column).data().toString(); };
    QCOMPARE(shown(QuantityColumn), QStringLiteral("600.00"));
    QCOMPARE(shown(PriceColumn), QString());
    QCOMPARE(shown(OrderNumber), QString());
}

void tst_ZrBlotterPanel::newRowsComeIntoSightWhileFollowing()
{
    const QScrollBar *const bar = m_panel->view()->getTableView()->verticalScrollBar();
    apply(0, 200);
    QTRY_VERIFY(bar->maximum() > 0);
    QTRY_COMPARE(bar->value(), bar->maximum());
    m_panel->setFollowing(false);
    m_panel->view()->getTableView()->scrollToTop();
    apply(200, 200);
    QCoreApplication::processEvents();
    QCOMPARE(bar->value(), 0);
    m_panel->setFollowing(true);
    QTRY_VERIFY(bar->value() > 0);
    QCOMPARE(bar->value(), bar->maximum());
}

void tst_ZrBlotterPanel::onlyRowsInSightCountForTheScreen()
{
    apply(0, 200);
    m_panel->setFollowing(false);
    m_panel->view()->getTableView()->scrollToTop();
    QCoreApplication::processEvents();
    m_panel->frameShown();
    const qint64 before = m_panel->toPixel().count();
    const qint64 modelBefore = m_panel->toModel().count();
    m_panel->applyMessages({report(0, "1", "1"), report(199, "1", "1"), report(1, "1", "1")});
    m_panel->frameShown();
    QCOMPARE(m_panel->toPixel().count(), before + 2); // the first two rows, not the last one
    QCOMPARE(m_panel->toModel().count(), modelBefore + 3);
}

void tst_ZrBlotterPanel::framesTakeTheLatencyOnce()
{
    m_panel->applyMessages({report(1)});
    QCOMPARE(m_panel->toPixel().count(), qint64(0)); // no frame has shown it
    const qint64 frames = m_panel->frames();
    m_panel->frameShown();
    m_panel->frameShown();
    QCOMPARE(m_panel->frames(), frames + 2);
    QCOMPARE(m_panel->toPixel().count(), qint64(1));
    QVERIFY(m_panel->toPixel().maxUs() >= m_panel->toModel().maxUs());
    QCOMPARE(m_panel->takeRecentToPixel().count(), qint64(1));
    QCOMPARE(m_panel->takeRecentToPixel().count(), qint64(0));
    QCOMPARE(m_panel->toPixel().count(), qint64(1)); // of the whole run
}

void tst_ZrBlotterPanel::aBrokenColumnFileGivesAnEmptyGrid()
{
    QFile file(m_folder.filePath(QStringLiteral("torn.xml")));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write("<GridSetting><FieldSetting");
    file.close();
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("torn.xml")));
    ZrBlotterPanel panel(file.fileName());
    QCOMPARE(panel.view()->getHeadList().size(), 0);
    panel.setOpenOnly(true);
    panel.setSummaryShown(true);
    panel.applyMessages({report(1)});
    QCOMPARE(panel.updatesApplied(), qint64(1));
    emit ZrCore::instance()->signalSkinChanged(QStringLiteral("another"));
}

ZR_TEST_MAIN(tst_ZrBlotterPanel)
#include "tst_zrblotterpanel.moc"
