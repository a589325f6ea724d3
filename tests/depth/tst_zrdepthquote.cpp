#include "ZrClientFields.h"
#include "ZrDepthFields.h"
#include "ZrDepthQuote.h"
#include "ZrTestMain.h"

#include "zrdefine/VexlorFields.h"

#include <limits>

class tst_ZrDepthQuote : public QObject
{
    Q_OBJECT
private slots:
    void withoutMessagesAllLevelsAreEmpty();
    void levelsStandInTheirRows();
    void aThirdDecimalShowsInAllPrices();
    void valuesThatCannotBeAreMissing_data();
    void valuesThatCannotBeAreMissing();
    void hugeQuantitiesAreCut();
    void theNewerMessageTellsTheLatestPrice_data();
    void theNewerMessageTellsTheLatestPrice();
    void changesHaveTheirSign_data();
    void changesHaveTheirSign();
    void theNamesAreThoseOfTheClient();
};

namespace {
namespace Fields = ZrDepthFields;
} // namespace

void tst_ZrDepthQuote::withoutMessagesAllLevelsAreEmpty()
{
    const ZrDepthQuote quote = ZrDepthQuote::of({}, {});
    QVERIFY(quote.symbol.isEmpty());
    QCOMPARE(quote.levels.size(), 20);
    for (int row = 0; row < 20; ++row) {
        QCOMPARE(quote.levels.value(row).side, row < 10 ? 1 : 0);
        QCOMPARE(quote.levels.value(row).level, row < 10 ? 10 - row : row - 9);
        QCOMPARE(quote.levels.value(row).price, QStringLiteral("0"));
        QCOMPARE(quote.levels.value(row).volume, 0);
    }
    QCOMPARE(quote.lastPrice, 0.0);
    QVERIFY(quote.lastQuantity.isEmpty());
}

void tst_ZrDepthQuote::levelsStandInTheirRows()
{
    const ZrDepthQuote quote = ZrDepthQuote::of({{Vexlor_Fields::Security::symbol, "600519.SH"},
                                                 {Fields::askPrice + "1", 10.5},
                                                 {Fields::askQty + "1", 300.0},
                                                 {Fields::askPrice + "10", 11.4},
                                                 {Fields::bidPrice + "1", 10.4},
                                                 {Fields::bidQty + "1", 700.0},
                                                 {Fields::bidPrice + "10", 9.5}},
                                                {});
    QCOMPARE(quote.symbol, QStringLiteral("600519.SH"));
    QCOMPARE(quote.levels.value(9).price, QStringLiteral("10.50"));
    QCOMPARE(quote.levels.value(9).volume, 300);
    QCOMPARE(quote.levels.value(0).price, QStringLiteral("11.40"));
    QCOMPARE(quote.levels.value(10).price, QStringLiteral("10.40"));
    QCOMPARE(quote.levels.value(10).volume, 700);
    QCOMPARE(quote.levels.value(19).price, QStringLiteral("9.50"));
    QCOMPARE(quote.levels.value(5).price, QStringLiteral("0"));
}

void tst_ZrDepthQuote::aThirdDecimalShowsInAllPrices()
{
    const ZrDepthQuote quote = ZrDepthQuote::of(
        {{Fields::askPrice + "1", 1.25}, {Fields::bidPrice + "3", 1.247}, {Fields::lastPrice, 1.25}}, {});
    QCOMPARE(quote.decimals, 3);
    QCOMPARE(quote.levels.value(9).price, QStringLiteral("1.250"));
    QCOMPARE(quote.priceText(quote.lastPrice), QStringLiteral("1.250"));
}

void tst_ZrDepthQuote::valuesThatCannotBeAreMissing_data()
{
    QTest::addColumn<QVariant>("value");
    QTest::newRow("negative") << QVariant(-3.0);
    QTest::newRow("zero") << QVariant(0);
    QTest::newRow("no number") << QVariant(std::numeric_limits<double>::quiet_NaN());
    QTest::newRow("infinite") << QVariant(std::numeric_limits<double>::infinity());
    QTest::newRow("endless") << QVariant(1e300);
    QTest::newRow("text") << QVariant("<b>12</b>");
    QTest::newRow("list") << QVariant(QVariantList{1, 2});
}

void tst_ZrDepthQuote::valuesThatCannotBeAreMissing()
{
    QFETCH(QVariant, value);
    const ZrDepthQuote quote = ZrDepthQuote::of({{Fields::askPrice + "1", value},
                                                 {Fields::askQty + "1", 100},
                                                 {Fields::lastPrice, value},
                                                 {Fields::previousClose, value}},
                                                {{Fields::lastPrice, value}, {Fields::lastQty, value}});
    QCOMPARE(quote.levels.value(9).price, QStringLiteral("0"));
    QCOMPARE(quote.levels.value(9).volume, 0);
    QCOMPARE(quote.lastPrice, 0.0);
    QCOMPARE(quote.previousClose, 0.0);
    QVERIFY(quote.changeText().isEmpty() && quote.lastQuantity.isEmpty());
}

void tst_ZrDepthQuote::hugeQuantitiesAreCut()
{
    const ZrDepthQuote quote =
        ZrDepthQuote::of({{Fields::bidPrice + "1", 1.0}, {Fields::bidQty + "1", 1e18}}, {});
    QCOMPARE(quote.levels.value(10).volume, std::numeric_limits<int>::max());
}

void tst_ZrDepthQuote::theNewerMessageTellsTheLatestPrice_data()
{
    QTest::addColumn<QVariantMap>("depth");
    QTest::addColumn<QVariantMap>("trade");
    QTest::addColumn<double>("expected");
    const auto message = [](double price, qint64 time) {
        return QVariantMap{{Fields::lastPrice, price}, {Fields::updateTime, time}};
    };
    QTest::newRow("book only") << message(10, 5) << QVariantMap() << 10.0;
    QTest::newRow("trade only") << QVariantMap() << message(11, 5) << 11.0;
    QTest::newRow("trade after the book") << message(10, 5) << message(11, 6) << 11.0;
    QTest::newRow("trade with the book") << message(10, 5) << message(11, 5) << 11.0;
    QTest::newRow("trade before the book") << message(10, 6) << message(11, 5) << 10.0;
    QTest::newRow("a book that tells none") << message(0, 6) << message(11, 5) << 11.0;
}

void tst_ZrDepthQuote::theNewerMessageTellsTheLatestPrice()
{
    QFETCH(QVariantMap, depth);
    QFETCH(QVariantMap, trade);
    QTEST(ZrDepthQuote::of(depth, trade).lastPrice, "expected");
}

void tst_ZrDepthQuote::changesHaveTheirSign_data()
{
    QTest::addColumn<double>("last");
    QTest::addColumn<double>("close");
    QTest::addColumn<QString>("change");
    QTest::addColumn<QString>("percent");
    QTest::addColumn<int>("mode");
    QTest::newRow("up") << 11.0 << 10.0 << "+1.00"
                        << "+10.00 %" << 1;
    QTest::newRow("down") << 9.5 << 10.0 << "-0.50"
                          << "-5.00 %" << 2;
    QTest::newRow("unchanged") << 10.0 << 10.0 << "0.00"
                               << "0.00 %" << 0;
    QTest::newRow("no close") << 10.0 << 0.0 << ""
                              << "" << 0;
    QTest::newRow("no trade yet") << 0.0 << 10.0 << ""
                                  << "" << 0;
}

void tst_ZrDepthQuote::changesHaveTheirSign()
{
    QFETCH(double, last);
    QFETCH(double, close);
    const ZrDepthQuote quote =
        ZrDepthQuote::of({{Fields::lastPrice, last}, {Fields::previousClose, close}}, {});
    QTEST(quote.changeText(), "change");
    QTEST(quote.changePercentText(), "percent");
    QTEST(quote.mode(), "mode");
}

void tst_ZrDepthQuote::theNamesAreThoseOfTheClient()
{
    QCOMPARE(Fields::previousClose, ZrClientFields::previousClose);
    QCOMPARE(Fields::lastPrice, ZrClientFields::lastPrice);
    QCOMPARE(Fields::lastQty, ZrClientFields::lastQty);
    QCOMPARE(Fields::updateTime, ZrClientFields::updateTime);
    QCOMPARE(Fields::askPrice, ZrClientFields::askPrice);
    QCOMPARE(Fields::askQty, ZrClientFields::askQty);
    QCOMPARE(Fields::bidPrice, ZrClientFields::bidPrice);
    QCOMPARE(Fields::bidQty, ZrClientFields::bidQty);
    QCOMPARE(Fields::price, ZrClientFields::price);
    QCOMPARE(Fields::orderQty, ZrClientFields::orderQty);
    QCOMPARE(Fields::side, ZrClientFields::side);
    QCOMPARE(ZrDepthMsgType::depth, ZrClientMsgType::depth);
    QCOMPARE(ZrDepthMsgType::trade, ZrClientMsgType::trade);
}

ZR_TEST_GUILESS_MAIN(tst_ZrDepthQuote)
#include "tst_zrdepthquote.moc"
