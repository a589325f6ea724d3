#include "ZrOrderEntryNames.h"
#include "ZrOrderTicket.h"
#include "ZrTestMain.h"

#include "zrdefine/VexlorFields.h"

class tst_ZrOrderTicket : public QObject
{
    Q_OBJECT
private slots:
    void aGoodOrderHasNoFault();
    void aFaultIsOneSentence_data();
    void aFaultIsOneSentence();
    void theRestOfAHoldingMayBeSold();
    void whatIsNotKnownIsNotChecked();
    void theRecordHoldsTheOrder();
};

namespace {
ZrOrderTicket good()
{
    ZrOrderTicket order;
    order.symbol = "600519.SH";
    order.side = ZrOrderEntryCode::buy;
    order.price = "10.07";
    order.quantity = "300";
    order.account = "A1";
    order.timeInForce = "0";
    order.security = {{ZrOrderEntrySecurity::priceTick, 0.01},
                      {ZrOrderEntrySecurity::lotSize, 100},
                      {ZrOrderEntrySecurity::lowerLimit, 9.5},
                      {ZrOrderEntrySecurity::upperLimit, 10.5}};
    return order;
}
} // namespace

void tst_ZrOrderTicket::aGoodOrderHasNoFault()
{
    QCOMPARE(good().fault(), QString());
    ZrOrderTicket atTheLimit = good();
    atTheLimit.price = "10.5";
    QCOMPARE(atTheLimit.fault(), QString());
    atTheLimit.price = "9.50";
    QCOMPARE(atTheLimit.fault(), QString());
}

void tst_ZrOrderTicket::aFaultIsOneSentence_data()
{
    QTest::addColumn<QString>("field");
    QTest::addColumn<QString>("value");
    QTest::addColumn<QString>("expected");
    QTest::newRow("no security") << "symbol"
                                 << ""
                                 << "Choose a security.";
    QTest::newRow("no account") << "account"
                                << ""
                                << "Choose an account.";
    QTest::newRow("no price") << "price"
                              << ""
                              << "Enter a price above 0.";
    QTest::newRow("price of 0") << "price"
                                << "0.00"
                                << "Enter a price above 0.";
    QTest::newRow("no number") << "price"
                               << "nan"
                               << "Enter a price above 0.";
    QTest::newRow("between ticks") << "price"
                                   << "10.005"
                                   << "The price must be a multiple of 0.01.";
    QTest::newRow("above the limit") << "price"
                                     << "10.51"
                                     << "The price must lie between 9.5 and 10.5.";
    QTest::newRow("below the limit") << "price"
                                     << "9.49"
                                     << "The price must lie between 9.5 and 10.5.";
    QTest::newRow("no quantity") << "quantity"
                                 << ""
                                 << "Enter a whole quantity above 0.";
    QTest::newRow("part of a share") << "quantity"
                                     << "100.5"
                                     << "Enter a whole quantity above 0.";
    QTest::newRow("off the lot") << "quantity"
                                 << "150"
                                 << "The quantity must be a multiple of 100.";
}

void tst_ZrOrderTicket::aFaultIsOneSentence()
{
    QFETCH(QString, field);
    QFETCH(QString, value);
    QFETCH(QString, expected);
    ZrOrderTicket order = good();
    QString *const part = field == "symbol"    ? &order.symbol
                          : field == "account" ? &order.account
                          : field == "price"   ? &order.price
                                               : &order.quantity;
    *part = value;
    QCOMPARE(order.fault(), expected);
}

void tst_ZrOrderTicket::theRestOfAHoldingMayBeSold()
{
    ZrOrderTicket order = good();
    order.quantity = "37";
    order.side = ZrOrderEntryCode::sell;
    QCOMPARE(order.fault(), QString());
}

void tst_ZrOrderTicket::whatIsNotKnownIsNotChecked()
{
    ZrOrderTicket order = good();
    order.security.clear();
    order.price = "0.12345";
    order.quantity = "7";
    QCOMPARE(order.fault(), QString());
}

void tst_ZrOrderTicket::theRecordHoldsTheOrder()
{
    const QVariantMap record = good().record("me/1");
    QCOMPARE(record.value(Vexlor_Fields::System::msgType).toString(), ZrOrderEntryMsgType::newOrder);
    QCOMPARE(record.value(Vexlor_Fields::System::clientMsgID).toString(), QString("me/1"));
    QCOMPARE(record.value(ZrOrderEntryField::clientOrderId).toString(), QString("me/1"));
    QCOMPARE(record.value(Vexlor_Fields::Security::symbol).toString(), QString("600519.SH"));
    QCOMPARE(record.value(Vexlor_Fields::UserAccount::tradingAccount).toString(), QString("A1"));
    QCOMPARE(record.value(ZrOrderEntryField::side).toString(), QString("1"));
    QCOMPARE(record.value(ZrOrderEntryField::orderType).toString(), QString("2"));
    QCOMPARE(record.value(ZrOrderEntryField::price).toDouble(), 10.07);
    QCOMPARE(record.value(ZrOrderEntryField::orderQty).toDouble(), 300.0);
}

ZR_TEST_GUILESS_MAIN(tst_ZrOrderTicket)
#include "tst_zrorderticket.moc"
