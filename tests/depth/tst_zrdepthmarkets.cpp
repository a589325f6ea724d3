#include "ZrDepthFields.h"
#include "ZrDepthMarkets.h"
#include "ZrTestMain.h"

#include "zrdefine/VexlorFields.h"

#include <thread>

class tst_ZrDepthMarkets : public QObject
{
    Q_OBJECT
private slots:
    void theFirstBookIsWatched();
    void aNoticeIsDueOnceUntilItIsTaken();
    void othersAreKeptWithoutANotice();
    void messagesThatSayNothingAreLeftOut_data();
    void messagesThatSayNothingAreLeftOut();
    void symbolsAreBounded();
    void threadsMayMeet();
};

namespace {
QVariantMap book(const QString &symbol, double ask)
{
    return {{Vexlor_Fields::Security::symbol, symbol}, {ZrDepthFields::askPrice + "1", ask}};
}

QVariantMap trade(const QString &symbol, double price)
{
    return {{Vexlor_Fields::Security::symbol, symbol},
            {ZrDepthFields::lastPrice, price},
            {ZrDepthFields::lastQty, 100}};
}
} // namespace

void tst_ZrDepthMarkets::theFirstBookIsWatched()
{
    ZrDepthMarkets markets;
    QVERIFY(!markets.put(ZrDepthMsgType::trade, trade("a", 1)));
    QVERIFY(markets.put(ZrDepthMsgType::depth, book("b", 2)));
    QVERIFY(!markets.put(ZrDepthMsgType::depth, book("c", 3)));
    QCOMPARE(markets.watched(), QStringLiteral("b"));
    QCOMPARE(markets.quote().symbol, QStringLiteral("b"));
    QCOMPARE(markets.quote().levels.value(9).price, QStringLiteral("2.00"));
}

void tst_ZrDepthMarkets::aNoticeIsDueOnceUntilItIsTaken()
{
    ZrDepthMarkets markets;
    markets.watch("a");
    QVERIFY(markets.put(ZrDepthMsgType::depth, book("a", 1)));
    QVERIFY(!markets.put(ZrDepthMsgType::depth, book("a", 2)));
    QVERIFY(!markets.put(ZrDepthMsgType::trade, trade("a", 2)));
    QCOMPARE(markets.quote().levels.value(9).price, QStringLiteral("2.00"));
    QVERIFY(markets.put(ZrDepthMsgType::trade, trade("a", 3)));
    QCOMPARE(markets.quote().lastPrice, 3.0);
}

void tst_ZrDepthMarkets::othersAreKeptWithoutANotice()
{
    ZrDepthMarkets markets;
    markets.watch("a");
    QVERIFY(!markets.put(ZrDepthMsgType::depth, book("b", 7)));
    QVERIFY(!markets.put(ZrDepthMsgType::trade, trade("b", 8)));
    QCOMPARE(markets.quote().symbol, QStringLiteral("a"));
    QCOMPARE(markets.quote().lastPrice, 0.0);
    markets.watch("b");
    QCOMPARE(markets.quote().levels.value(9).price, QStringLiteral("7.00"));
    QCOMPARE(markets.quote().lastPrice, 8.0);
    QCOMPARE(markets.quote().lastQuantity, QStringLiteral("100"));
}

void tst_ZrDepthMarkets::messagesThatSayNothingAreLeftOut_data()
{
    QTest::addColumn<QString>("type");
    QTest::addColumn<QVariantMap>("record");
    QTest::newRow("another type") << "Order" << book("a", 1);
    QTest::newRow("no symbol") << ZrDepthMsgType::depth << QVariantMap{{"AskPrice1", 1}};
    QTest::newRow("empty") << ZrDepthMsgType::trade << QVariantMap();
}

void tst_ZrDepthMarkets::messagesThatSayNothingAreLeftOut()
{
    QFETCH(QString, type);
    QFETCH(QVariantMap, record);
    ZrDepthMarkets markets;
    QVERIFY(!markets.put(type, record));
    QVERIFY(markets.watched().isEmpty());
}

void tst_ZrDepthMarkets::symbolsAreBounded()
{
    ZrDepthMarkets markets;
    for (int i = 0; i <= ZrDepthMarkets::MostSymbols; ++i)
        markets.put(ZrDepthMsgType::depth, book(QString::number(i), 1));
    markets.watch(QString::number(ZrDepthMarkets::MostSymbols - 1));
    QCOMPARE(markets.quote().levels.value(9).price, QStringLiteral("1.00"));
    markets.watch(QString::number(ZrDepthMarkets::MostSymbols));
    QCOMPARE(markets.quote().levels.value(9).price, QStringLiteral("0"));
    // Those that are there go on.
    markets.watch("0");
    QVERIFY(markets.put(ZrDepthMsgType::depth, book("0", 2)));
}

void tst_ZrDepthMarkets::threadsMayMeet()
{
    constexpr int Messages = 5000;
    ZrDepthMarkets markets;
    markets.watch("a");
    std::atomic<int> notices{0};
    std::thread bus([&] {
        for (int i = 1; i <= Messages; ++i)
            notices += markets.put(ZrDepthMsgType::depth, book("a", i)) ? 1 : 0;
    });
    for (int i = 0; i < Messages; ++i)
        markets.quote();
    bus.join();
    QVERIFY(notices >= 1);
    QCOMPARE(markets.quote().levels.value(9).price, QStringLiteral("5000.00"));
}

ZR_TEST_GUILESS_MAIN(tst_ZrDepthMarkets)
#include "tst_zrdepthmarkets.moc"
