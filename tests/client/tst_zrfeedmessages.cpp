#include "client/ZrClientFields.h"
#include "zrdefine/VexlorFields.h"
#include "zrdefine/VexlorMsgType.h"
#include "ZrFeedMessages.h"
#include "ZrTestMain.h"

class tst_ZrFeedMessages : public QObject
{
    Q_OBJECT
private slots:
    void anOrderIsToldAndThenReported();
    void aFillCarriesItsPriceAndTheWholeOrder();
    void aTradeAddsUpTheVolumeOfItsSecurity();
    void aBookCarriesItsLevels();
    void anOrderKeepsItsAccount();
    void totalsCountWhatWentOut();
};

namespace {
namespace Fields = ZrClientFields;

ZrFeedEvent order(ZrFeedKind kind, const char *number, int quantity)
{
    ZrFeedEvent event;
    event.kind = kind;
    event.symbol = "600519.SH";
    event.order = number;
    event.side = ZrFeedSide::Sell;
    event.hasPrice = ZrDecimal::parse("1801.00999999999999", &event.price);
    event.hasQuantity = true;
    event.quantity = ZrDecimal::fromInt(quantity);
    event.timeNs = Q_INT64_C(1675215000020000000);
    return event;
}

ZrFeedMessages makeMessages()
{
    return ZrFeedMessages(QTimeZone("Asia/Shanghai"), {});
}
} // namespace

void tst_ZrFeedMessages::anOrderIsToldAndThenReported()
{
    ZrFeedMessages messages(QTimeZone("Asia/Shanghai"), {});
    QList<ZrFeedMessage> out;
    messages.append(order(ZrFeedKind::Add, "1", 100), &out);
    QCOMPARE(out.size(), 2);
    QCOMPARE(out.at(0).type, ZrClientMsgType::order);
    QCOMPARE(out.at(1).type, Vexlor_MsgType::executionReport);
    const QVariantMap record = out.at(1).record;
    QCOMPARE(record.value(Vexlor_Fields::System::msgType).toString(), Vexlor_MsgType::executionReport);
    QCOMPARE(record.value(Vexlor_Fields::Security::symbol).toString(), QStringLiteral("600519.SH"));
    QCOMPARE(record.value(Fields::securityCode).toString(), QStringLiteral("600519"));
    QCOMPARE(record.value(Fields::price).toDouble(), 1801.01);
    QCOMPARE(record.value(Fields::side).toString(), QStringLiteral("2"));
    QCOMPARE(record.value(Fields::orderStatus).toString(), QStringLiteral("0"));
    QCOMPARE(record.value(Fields::orderClock).toString(), QStringLiteral("09:30:00.020"));
    QVERIFY(!record.contains(Fields::lastPrice));
}

void tst_ZrFeedMessages::aFillCarriesItsPriceAndTheWholeOrder()
{
    ZrFeedMessages messages(QTimeZone::utc(), {});
    QList<ZrFeedMessage> out;
    messages.append(order(ZrFeedKind::Add, "1", 200), &out);
    out.clear();
    messages.append(order(ZrFeedKind::Execute, "1", 50), &out);
    QCOMPARE(out.size(), 2);
    const QVariantMap record = out.at(0).record;
    QCOMPARE(record.value(Fields::execType).toString(), QStringLiteral("F"));
    QCOMPARE(record.value(Fields::orderStatus).toString(), QStringLiteral("1"));
    QCOMPARE(record.value(Fields::lastPrice).toDouble(), 1801.01);
    QCOMPARE(record.value(Fields::lastQty).toDouble(), 50.0);
    QCOMPARE(record.value(Fields::leavesQty).toDouble(), 150.0);
    QCOMPARE(record.value(Fields::averagePrice).toDouble(), 1801.01);
    QCOMPARE(record.value(Fields::fillRatio).toDouble(), 0.25);
}

void tst_ZrFeedMessages::aTradeAddsUpTheVolumeOfItsSecurity()
{
    ZrFeedMessages messages(QTimeZone::utc(), {});
    QList<ZrFeedMessage> out;
    for (int i = 0; i < 3; ++i)
        messages.append(order(ZrFeedKind::Trade, "", 50), &out);
    ZrFeedEvent other = order(ZrFeedKind::Trade, "", 7);
    other.symbol = "X";
    messages.append(other, &out);
    QCOMPARE(out.size(), 4);
    QCOMPARE(out.at(2).type, ZrClientMsgType::trade);
    QCOMPARE(out.at(2).record.value(Fields::tradeVolume).toDouble(), 150.0);
    QCOMPARE(out.at(2).record.value(Fields::tradeValue).toDouble(), 270151.5);
    QCOMPARE(out.at(2).record.value(Fields::tradeCount).toInt(), 3);
    QCOMPARE(out.at(3).record.value(Fields::tradeVolume).toDouble(), 7.0);
}

void tst_ZrFeedMessages::aBookCarriesItsLevels()
{
    ZrFeedMessages messages(QTimeZone::utc(), {});
    ZrFeedEvent book;
    book.kind = ZrFeedKind::Book;
    book.symbol = "X";
    book.phase = "T";
    book.asks = {{ZrDecimal::fromInt(11), ZrDecimal::fromInt(100)},
                 {ZrDecimal::fromInt(12), ZrDecimal::fromInt(200)}};
    book.bids = {{ZrDecimal::fromInt(10), ZrDecimal::fromInt(300)}};
    book.previousClose = ZrDecimal::fromInt(9);
    QList<ZrFeedMessage> out;
    messages.append(book, &out);
    QCOMPARE(out.size(), 1);
    const QVariantMap record = out.at(0).record;
    QCOMPARE(out.at(0).type, ZrClientMsgType::depth);
    QCOMPARE(record.value(Fields::askPrice + QStringLiteral("2")).toDouble(), 12.0);
    QCOMPARE(record.value(Fields::bidQty + QStringLiteral("1")).toDouble(), 300.0);
    QCOMPARE(record.value(Fields::previousClose).toDouble(), 9.0);
    QVERIFY(!record.contains(Fields::bidPrice + QStringLiteral("2")));
    QVERIFY(!record.contains(Fields::lastPrice));
}

void tst_ZrFeedMessages::anOrderKeepsItsAccount()
{
    QList<QVariantMap> accounts;
    for (int i = 0; i < 7; ++i)
        accounts.append({{Vexlor_Fields::UserAccount::tradingAccount, QString::number(i)}});
    ZrFeedMessages messages(QTimeZone::utc(), accounts);
    QList<ZrFeedMessage> out;
    QSet<QString> used;
    for (int i = 1; i <= 100; ++i)
        messages.append(order(ZrFeedKind::Add, QByteArray::number(i), 10), &out);
    for (int i = 0; i < out.size(); i += 2) {
        const QString account = out.at(i).record.value(Vexlor_Fields::UserAccount::tradingAccount).toString();
        QCOMPARE(out.at(i + 1).record.value(Vexlor_Fields::UserAccount::tradingAccount).toString(), account);
        used.insert(account);
    }
    QCOMPARE(used.size(), 7);
}

void tst_ZrFeedMessages::totalsCountWhatWentOut()
{
    ZrFeedMessages messages = makeMessages();
    QList<ZrFeedMessage> out;
    messages.append(order(ZrFeedKind::Add, "1", 100), &out);
    messages.append(order(ZrFeedKind::Execute, "1", 60), &out);
    messages.append(order(ZrFeedKind::Delete, "1", 40), &out);
    messages.append(order(ZrFeedKind::Reject, "2", 40), &out);
    QCOMPARE(messages.totals().events, 4);
    QCOMPARE(messages.totals().orders, 2);
    QCOMPARE(messages.totals().reports, 5);
    QCOMPARE(messages.totals().fills, 1);
    QCOMPARE(messages.totals().cancels, 1);
    QCOMPARE(messages.totals().rejects, 1);
    QCOMPARE(messages.totals().trades, 1);
    QCOMPARE(messages.totals().volume, ZrDecimal::fromInt(60));
    QCOMPARE(out.size(), 5 + 2 + 1);
}

ZR_TEST_GUILESS_MAIN(tst_ZrFeedMessages)
#include "tst_zrfeedmessages.moc"
