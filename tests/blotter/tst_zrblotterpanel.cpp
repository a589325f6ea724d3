#include "FreezeTableView.h"
#include "ZrBlotterFields.h"
#include "ZrBlotterPanel.h"
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
    void aBatchIsTold();
    void onlyRowsInSightAreToldAsShown();
    void oneAccountIsShownOnRequest();
    void aFilterOfAnotherColumnStays();
    void aClickTellsTheSecurity();
    void theNewestOrderOfASecurityIsSelected();
    void aSecurityWithoutAnOrderSelectsNothing();
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
const QString columnFile = QStringLiteral(ZR_COLUMNS);
enum Column { OrderNumber = 0, SideColumn = 4, PriceColumn = 7, QuantityColumn = 8, StatusColumn = 11 };

ZrInboxMessage report(int order, const char *side = "1", const char *status = "0")
{
    return {QStringLiteral("ExecutionReport"),
            {{ZrBlotterFields::orderId, QString::number(order)},
             {Vexlor_Fields::Security::symbol, "600000.SH"},
             {ZrBlotterFields::side, side},
             {ZrBlotterFields::orderStatus, status},
             {ZrBlotterFields::price, 10.5},
             {ZrBlotterFields::orderQty, 200.0},
             {ZrBlotterFields::sentNs, ZrSteadyClock::steadyNs()}}};
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
    without.record.remove(ZrBlotterFields::side);
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

void tst_ZrBlotterPanel::aBatchIsTold()
{
    ZrAppliedBatch told;
    connect(m_panel.get(), &ZrBlotterPanel::signalApplied, this,
            [&told](const ZrAppliedBatch &batch) { told = batch; });
    std::vector<ZrInboxMessage> messages = {report(1), report(1), report(2)};
    messages[0].record.insert(ZrBlotterFields::seqNo, 7);
    messages[1].record.insert(ZrBlotterFields::seqNo, 12); // late: the highest one counts
    messages[2].record.insert(ZrBlotterFields::seqNo, 9);
    m_panel->applyMessages(messages);
    QCOMPARE(told.number, qint64(12));
    QCOMPARE(told.sentNs.size(), 3);
    QCOMPARE(told.sentNs.at(2), messages[2].record.value(ZrBlotterFields::sentNs).toLongLong());
    // The clock is that of the messages.
    QVERIFY(told.appliedNs >= told.sentNs.at(2));
    QVERIFY(told.appliedNs <= ZrSteadyClock::steadyNs());
}

void tst_ZrBlotterPanel::onlyRowsInSightAreToldAsShown()
{
    apply(0, 200);
    m_panel->setFollowing(false);
    m_panel->view()->getTableView()->scrollToTop();
    QCoreApplication::processEvents();
    ZrAppliedBatch told;
    connect(m_panel.get(), &ZrBlotterPanel::signalApplied, this,
            [&told](const ZrAppliedBatch &batch) { told = batch; });
    const std::vector<ZrInboxMessage> messages = {report(0, "1", "1"), report(199, "1", "1"),
                                                  report(1, "1", "1")};
    m_panel->applyMessages(messages);
    QCOMPARE(told.sentNs.size(), 3);
    QCOMPARE(told.inSightNs, (QVector<qint64>{told.sentNs.at(0), told.sentNs.at(2)}));
}

void tst_ZrBlotterPanel::oneAccountIsShownOnRequest()
{
    m_panel->view()->setViewFilterable(true);
    std::vector<ZrInboxMessage> messages = {report(1), report(2), report(3)};
    messages[0].record.insert(Vexlor_Fields::UserAccount::tradingAccount, "A1");
    messages[1].record.insert(Vexlor_Fields::UserAccount::tradingAccount, "A2");
    messages[2].record.insert(Vexlor_Fields::UserAccount::tradingAccount, "A2");
    m_panel->applyMessages(messages);
    m_panel->setAccount(QStringLiteral("A2"));
    QCOMPARE(m_panel->view()->getRowCount(), 2);
    QCOMPARE(text(0, OrderNumber), QStringLiteral("2"));
    m_panel->setAccount(QStringLiteral("A3"));
    QCOMPARE(m_panel->view()->getRowCount(), 0);
    m_panel->setAccount(QString());
    QCOMPARE(m_panel->view()->getRowCount(), 3);
}

void tst_ZrBlotterPanel::aFilterOfAnotherColumnStays()
{
    m_panel->view()->setViewFilterable(true);
    std::vector<ZrInboxMessage> messages = {report(1, "1", "0"), report(2, "1", "2"), report(3, "1", "0")};
    messages[0].record.insert(Vexlor_Fields::UserAccount::tradingAccount, "A1");
    messages[1].record.insert(Vexlor_Fields::UserAccount::tradingAccount, "A1");
    messages[2].record.insert(Vexlor_Fields::UserAccount::tradingAccount, "A2");
    m_panel->applyMessages(messages);
    m_panel->setAccount(QStringLiteral("A1"));
    m_panel->setOpenOnly(true);
    QCOMPARE(m_panel->view()->getRowCount(), 1);
    m_panel->setOpenOnly(false);
    QCOMPARE(m_panel->view()->getRowCount(), 2);
    m_panel->setAccount(QString());
    QCOMPARE(m_panel->view()->getRowCount(), 3);
}

void tst_ZrBlotterPanel::aClickTellsTheSecurity()
{
    ZrInboxMessage elsewhere = report(2);
    elsewhere.record.insert(Vexlor_Fields::Security::symbol, "000001.SZ");
    m_panel->applyMessages({report(1), elsewhere});
    QSignalSpy told(m_panel.get(), &ZrBlotterPanel::signalSecurityChosen);
    QTableView *const table = m_panel->view()->getTableView();
    const QRect cell = table->visualRect(m_panel->view()->index(1, QuantityColumn));
    QTest::mouseClick(table->viewport(), Qt::LeftButton, Qt::NoModifier, cell.center());
    QTRY_COMPARE(told.size(), 1);
    QCOMPARE(told.at(0).at(0).toString(), QStringLiteral("000001.SZ"));
}

void tst_ZrBlotterPanel::theNewestOrderOfASecurityIsSelected()
{
    ZrInboxMessage elsewhere = report(2);
    elsewhere.record.insert(Vexlor_Fields::Security::symbol, "000001.SZ");
    m_panel->applyMessages({report(1), report(3), elsewhere});
    QSignalSpy told(m_panel.get(), &ZrBlotterPanel::signalSecurityChosen);
    m_panel->selectSecurity(QStringLiteral("600000.SH"));
    QCOMPARE(m_panel->view()->currentIndex().row(), 1);
    QVERIFY(m_panel->view()->getTableView()->selectionModel()->isRowSelected(1, QModelIndex()));
    m_panel->selectSecurity(QStringLiteral("000001.SZ"));
    QCOMPARE(m_panel->view()->currentIndex().row(), 2);
    // It was no click of the user's: two linked grids would tell each other for ever.
    QCOMPARE(told.size(), 0);
}

void tst_ZrBlotterPanel::aSecurityWithoutAnOrderSelectsNothing()
{
    m_panel->applyMessages({report(1), report(3)});
    m_panel->selectSecurity(QStringLiteral("600000.SH"));
    const QModelIndex before = m_panel->view()->currentIndex();
    m_panel->selectSecurity(QStringLiteral("999999.SH"));
    m_panel->selectSecurity(QString());
    QCOMPARE(m_panel->view()->currentIndex(), before);
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
    panel.setAccount(QStringLiteral("A1"));
    panel.applyMessages({report(1)});
    panel.selectSecurity(QStringLiteral("600000.SH"));
    emit ZrCore::instance()->signalSkinChanged(QStringLiteral("another"));
}

ZR_TEST_MAIN(tst_ZrBlotterPanel)
#include "tst_zrblotterpanel.moc"
