#include "ZrOrderTracker.h"
#include "ZrTestMain.h"

class tst_ZrOrderTracker : public QObject
{
    Q_OBJECT
private slots:
    void init();
    void anOrderIsNewThenPartlyFilledThenFilled();
    void theAveragePriceIsThatOfAllFills();
    void aTradeFillsBothItsOrders();
    void aTradedOrderWithoutARowIsMade();
    void theRowThatComesAfterATradeSaysTheRest();
    void theRowThatComesAfterATradeMaySayTheWhole();
    void aPartialWithdrawalLeavesTheOrderOpen();
    void aDeletionTakesTheRest();
    void withdrawingMoreThanThereIsTakesTheRest();
    void anOrderFromBeforeTheRecordingIsMadeByItsWithdrawal();
    void aFinishedOrderIsNotWithdrawnAgain();
    void aHiddenExecutionConcernsNoOrder();
    void aModificationChangesPriceAndQuantity();
    void aNewNumberEndsTheOldOrder();
    void aRefusedOrderIsRejected();
    void anOrderNumberBelongsToItsSecurity();
    void anAddedNumberMayComeAgain();
    void aFillBeyondTheQuantityIsKept();
    void onlySoManyFinishedOrdersAreKept();

private:
    ZrFeedEvent event(ZrFeedKind kind, const char *order, int quantity, const char *price = "10");
    const ZrExecReport &apply(const ZrFeedEvent &event);
    std::unique_ptr<ZrOrderTracker> m_tracker;
    QVector<ZrExecReport> m_reports;
};

void tst_ZrOrderTracker::init()
{
    m_tracker = std::make_unique<ZrOrderTracker>();
}

ZrFeedEvent tst_ZrOrderTracker::event(ZrFeedKind kind, const char *order, int quantity, const char *price)
{
    ZrFeedEvent result;
    result.kind = kind;
    result.symbol = "X";
    result.order = order;
    result.side = ZrFeedSide::Buy;
    result.hasPrice = ZrDecimal::parse(price, &result.price);
    result.hasQuantity = true;
    result.quantity = ZrDecimal::fromInt(quantity);
    return result;
}

// The last report of the event; an order without a number where there was none.
const ZrExecReport &tst_ZrOrderTracker::apply(const ZrFeedEvent &event)
{
    static const ZrExecReport none;
    m_reports.clear();
    m_tracker->apply(event, &m_reports);
    return m_reports.isEmpty() ? none : m_reports.constLast();
}

#define VERIFY_ORDER(report, expectedStatus, expectedFilled, expectedRest)                                   \
    do {                                                                                                     \
        const ZrExecReport found = (report);                                                                 \
        QCOMPARE(int(found.order.status), int(ZrOrderStatus::expectedStatus));                               \
        QCOMPARE(found.order.filled.toString(), QStringLiteral(expectedFilled));                             \
        QCOMPARE(found.order.rest().toString(), QStringLiteral(expectedRest));                               \
    } while (false)

void tst_ZrOrderTracker::anOrderIsNewThenPartlyFilledThenFilled()
{
    const ZrExecReport added = apply(event(ZrFeedKind::Add, "1", 100));
    VERIFY_ORDER(added, New, "0", "100");
    QVERIFY(added.isFirst);
    QCOMPARE(int(added.kind), int(ZrExecKind::New));
    const ZrExecReport part = apply(event(ZrFeedKind::Execute, "1", 30));
    VERIFY_ORDER(part, PartlyFilled, "30", "70");
    QVERIFY(!part.isFirst);
    QCOMPARE(int(part.kind), int(ZrExecKind::Fill));
    QCOMPARE(part.lastQuantity.toString(), QStringLiteral("30"));
    QCOMPARE(m_tracker->openOrders(), 1);
    VERIFY_ORDER(apply(event(ZrFeedKind::Fill, "1", 70)), Filled, "100", "0");
    QCOMPARE(m_tracker->openOrders(), 0);
}

void tst_ZrOrderTracker::theAveragePriceIsThatOfAllFills()
{
    apply(event(ZrFeedKind::Add, "1", 300, "1801.03"));
    apply(event(ZrFeedKind::Execute, "1", 100, "1801.01"));
    const ZrExecReport report = apply(event(ZrFeedKind::Execute, "1", 200, "1801.02"));
    QCOMPARE(report.order.averagePrice().toString(), QStringLiteral("1801.01666667"));
    QCOMPARE(report.lastPrice.toString(), QStringLiteral("1801.02"));
    QCOMPARE(report.order.fills, 2);
}

void tst_ZrOrderTracker::aTradeFillsBothItsOrders()
{
    apply(event(ZrFeedKind::Add, "1", 100));
    apply(event(ZrFeedKind::Add, "2", 50));
    ZrFeedEvent trade = event(ZrFeedKind::Trade, "", 50);
    trade.buyOrder = "1";
    trade.sellOrder = "2";
    apply(trade);
    QCOMPARE(m_reports.size(), 2);
    VERIFY_ORDER(m_reports.at(0), PartlyFilled, "50", "50");
    VERIFY_ORDER(m_reports.at(1), Filled, "50", "0");
}

void tst_ZrOrderTracker::aTradedOrderWithoutARowIsMade()
{
    ZrFeedEvent trade = event(ZrFeedKind::Trade, "", 50);
    trade.sellOrder = "9";
    apply(trade);
    QCOMPARE(m_reports.size(), 2);
    VERIFY_ORDER(m_reports.at(0), New, "0", "50");
    QVERIFY(m_reports.at(0).isFirst);
    QCOMPARE(int(m_reports.at(0).order.side), int(ZrFeedSide::Sell));
    VERIFY_ORDER(m_reports.at(1), Filled, "50", "0");
    const ZrExecReport again = apply(trade);
    QCOMPARE(m_reports.size(), 1);
    VERIFY_ORDER(again, Filled, "100", "0");
    QCOMPARE(m_tracker->openOrders(), 0);
}

void tst_ZrOrderTracker::theRowThatComesAfterATradeSaysTheRest()
{
    ZrFeedEvent trade = event(ZrFeedKind::Trade, "", 50);
    trade.buyOrder = "9";
    apply(trade);
    ZrFeedEvent add = event(ZrFeedKind::Add, "9", 30);
    add.quantityIsRest = true;
    const ZrExecReport report = apply(add);
    QVERIFY(!report.isFirst);
    QCOMPARE(report.order.quantity.toString(), QStringLiteral("80"));
    VERIFY_ORDER(report, PartlyFilled, "50", "30");
    QCOMPARE(m_tracker->openOrders(), 1);
}

void tst_ZrOrderTracker::theRowThatComesAfterATradeMaySayTheWhole()
{
    ZrFeedEvent trade = event(ZrFeedKind::Trade, "", 50);
    trade.buyOrder = "9";
    apply(trade);
    VERIFY_ORDER(apply(event(ZrFeedKind::Add, "9", 80)), PartlyFilled, "50", "30");
}

void tst_ZrOrderTracker::aPartialWithdrawalLeavesTheOrderOpen()
{
    apply(event(ZrFeedKind::Add, "1", 100));
    const ZrExecReport part = apply(event(ZrFeedKind::Cancel, "1", 40));
    QCOMPARE(int(part.kind), int(ZrExecKind::Cancel));
    VERIFY_ORDER(part, New, "0", "60");
    VERIFY_ORDER(apply(event(ZrFeedKind::Cancel, "1", 60)), Cancelled, "0", "0");
}

void tst_ZrOrderTracker::aDeletionTakesTheRest()
{
    apply(event(ZrFeedKind::Add, "1", 100));
    apply(event(ZrFeedKind::Execute, "1", 25));
    ZrFeedEvent end = event(ZrFeedKind::Delete, "1", 0);
    end.hasQuantity = false;
    const ZrExecReport report = apply(end);
    VERIFY_ORDER(report, Cancelled, "25", "0");
    QCOMPARE(report.order.withdrawn.toString(), QStringLiteral("75"));
}

void tst_ZrOrderTracker::withdrawingMoreThanThereIsTakesTheRest()
{
    apply(event(ZrFeedKind::Add, "1", 100));
    const ZrExecReport report = apply(event(ZrFeedKind::Cancel, "1", 1000));
    QCOMPARE(report.order.withdrawn.toString(), QStringLiteral("100"));
    VERIFY_ORDER(report, Cancelled, "0", "0");
}

void tst_ZrOrderTracker::anOrderFromBeforeTheRecordingIsMadeByItsWithdrawal()
{
    const ZrExecReport report = apply(event(ZrFeedKind::Delete, "7", 40));
    QCOMPARE(m_reports.size(), 2);
    QVERIFY(m_reports.at(0).isFirst);
    VERIFY_ORDER(report, Cancelled, "0", "0");
    QCOMPARE(report.order.quantity.toString(), QStringLiteral("40"));
}

void tst_ZrOrderTracker::aFinishedOrderIsNotWithdrawnAgain()
{
    apply(event(ZrFeedKind::Add, "1", 100));
    apply(event(ZrFeedKind::Delete, "1", 100));
    apply(event(ZrFeedKind::Delete, "1", 100));
    QCOMPARE(m_reports.size(), 0);
    apply(event(ZrFeedKind::Reject, "1", 100));
    QCOMPARE(m_reports.size(), 0);
    QCOMPARE(m_tracker->openOrders(), 0);
}

void tst_ZrOrderTracker::aHiddenExecutionConcernsNoOrder()
{
    apply(event(ZrFeedKind::Execute, "", 100));
    QCOMPARE(m_reports.size(), 0);
    apply(event(ZrFeedKind::Phase, "", 0));
    QCOMPARE(m_reports.size(), 0);
}

void tst_ZrOrderTracker::aModificationChangesPriceAndQuantity()
{
    apply(event(ZrFeedKind::Add, "1", 100));
    apply(event(ZrFeedKind::Execute, "1", 20));
    const ZrExecReport report = apply(event(ZrFeedKind::Modify, "1", 50, "9.5"));
    VERIFY_ORDER(report, PartlyFilled, "20", "30");
    QCOMPARE(report.order.price.toString(), QStringLiteral("9.5"));
    ZrFeedEvent rest = event(ZrFeedKind::Modify, "1", 50);
    rest.quantityIsRest = true;
    VERIFY_ORDER(apply(rest), PartlyFilled, "20", "50");
    VERIFY_ORDER(apply(event(ZrFeedKind::Modify, "5", 10)), New, "0", "10");
    QVERIFY(m_reports.constLast().isFirst);
}

void tst_ZrOrderTracker::aNewNumberEndsTheOldOrder()
{
    apply(event(ZrFeedKind::Add, "1", 100));
    ZrFeedEvent modify = event(ZrFeedKind::Modify, "1", 60, "9");
    modify.side = ZrFeedSide::None;
    modify.newOrder = "2";
    apply(modify);
    QCOMPARE(m_reports.size(), 2);
    VERIFY_ORDER(m_reports.at(0), Cancelled, "0", "0");
    VERIFY_ORDER(m_reports.at(1), New, "0", "60");
    QCOMPARE(m_reports.at(1).order.number, QByteArray("2"));
    QCOMPARE(int(m_reports.at(1).order.side), int(ZrFeedSide::Buy));
    QCOMPARE(m_tracker->openOrders(), 1);
}

void tst_ZrOrderTracker::aRefusedOrderIsRejected()
{
    const ZrExecReport report = apply(event(ZrFeedKind::Reject, "1", 100));
    QCOMPARE(m_reports.size(), 2);
    QCOMPARE(int(report.kind), int(ZrExecKind::Reject));
    VERIFY_ORDER(report, Rejected, "0", "0");
    QCOMPARE(m_tracker->openOrders(), 0);
}

void tst_ZrOrderTracker::anOrderNumberBelongsToItsSecurity()
{
    apply(event(ZrFeedKind::Add, "1", 100));
    ZrFeedEvent other = event(ZrFeedKind::Add, "1", 70);
    other.symbol = "Y";
    QVERIFY(apply(other).isFirst);
    QCOMPARE(m_tracker->openOrders(), 2);
}

void tst_ZrOrderTracker::anAddedNumberMayComeAgain()
{
    apply(event(ZrFeedKind::Add, "1", 100));
    apply(event(ZrFeedKind::Execute, "1", 30));
    const ZrExecReport report = apply(event(ZrFeedKind::Add, "1", 10));
    QVERIFY(report.isFirst);
    VERIFY_ORDER(report, New, "0", "10");
    QCOMPARE(m_tracker->openOrders(), 1);
}

void tst_ZrOrderTracker::aFillBeyondTheQuantityIsKept()
{
    apply(event(ZrFeedKind::Add, "1", 100));
    const ZrExecReport report = apply(event(ZrFeedKind::Execute, "1", 150));
    VERIFY_ORDER(report, Filled, "150", "0");
    QCOMPARE(report.order.quantity.toString(), QStringLiteral("150"));
}

void tst_ZrOrderTracker::onlySoManyFinishedOrdersAreKept()
{
    m_tracker = std::make_unique<ZrOrderTracker>(10);
    apply(event(ZrFeedKind::Add, "open", 1));
    for (int i = 0; i < 100; ++i) {
        const QByteArray number = QByteArray::number(i);
        apply(event(ZrFeedKind::Add, number, 1));
        apply(event(ZrFeedKind::Delete, number, 1));
    }
    QCOMPARE(m_tracker->knownOrders(), 11);
    QCOMPARE(m_tracker->openOrders(), 1);
    VERIFY_ORDER(apply(event(ZrFeedKind::Execute, "open", 1)), Filled, "1", "0");
}

ZR_TEST_GUILESS_MAIN(tst_ZrOrderTracker)
#include "tst_zrordertracker.moc"
