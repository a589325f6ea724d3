#include "ZrDecimal.h"
#include "ZrTestMain.h"

class tst_ZrDecimal : public QObject
{
    Q_OBJECT
private slots:
    void aNumberIsReadExactly_data();
    void aNumberIsReadExactly();
    void whatIsNoNumberIsRefused_data();
    void whatIsNoNumberIsRefused();
    void scalesAreApplied();
    void roundingGoesToTheNearestTick_data();
    void roundingGoesToTheNearestTick();
    void sumsStopAtTheEndOfTheRange();
    void anAveragePriceIsExact();
    void aTurnoverBeyondAllBoundsDoesNotOverflow();
};

void tst_ZrDecimal::aNumberIsReadExactly_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QString>("expected");
    QTest::newRow("whole") << QByteArray("1745") << "1745";
    QTest::newRow("decimals") << QByteArray("0.07") << "0.07";
    QTest::newRow("point first") << QByteArray(".5") << "0.5";
    QTest::newRow("point last") << QByteArray("7.") << "7";
    QTest::newRow("negative") << QByteArray("-12.5") << "-12.5";
    QTest::newRow("plus sign") << QByteArray("+3") << "3";
    QTest::newRow("noise below") << QByteArray("1801.00999999999999") << "1801.01";
    QTest::newRow("noise above") << QByteArray("1854.980000000000018") << "1854.98";
    QTest::newRow("noise of a short one") << QByteArray("1844.8900000000001") << "1844.89";
    QTest::newRow("eight decimals stay") << QByteArray("0.00001234") << "0.00001234";
    QTest::newRow("the ninth decimal is rounded") << QByteArray("0.123456785") << "0.12345679";
    QTest::newRow("exponent") << QByteArray("6.24467892461E9") << "6244678924.61";
    QTest::newRow("negative exponent") << QByteArray("15e-3") << "0.015";
    QTest::newRow("far below the last decimal") << QByteArray("1e-30") << "0";
    QTest::newRow("zero with an exponent") << QByteArray("0e40") << "0";
    QTest::newRow("leading zeros") << QByteArray("000000000000000000000000000042") << "42";
    QTest::newRow("largest") << QByteArray("92233720368") << "92233720368";
}

void tst_ZrDecimal::aNumberIsReadExactly()
{
    QFETCH(QByteArray, text);
    QFETCH(QString, expected);
    ZrDecimal value;
    QVERIFY(ZrDecimal::parse(text, &value));
    QCOMPARE(value.toString(), expected);
    QCOMPARE(value.toDouble(), expected.toDouble());
}

void tst_ZrDecimal::whatIsNoNumberIsRefused_data()
{
    QTest::addColumn<QByteArray>("text");
    for (const char *text :
         {"", "-", ".", "e5", "1e", "1e+", "1.2.3", "12a", " 1", "0x10", "nan", "inf", "1,5", "92233720369",
          "99999999999999999999999999999999999999999999", "1e41", "1e99999999999"})
        QTest::newRow(qPrintable(QString::fromLatin1("\"%1\"").arg(QLatin1String(text)))) << QByteArray(text);
}

void tst_ZrDecimal::whatIsNoNumberIsRefused()
{
    QFETCH(QByteArray, text);
    ZrDecimal value = ZrDecimal::fromInt(5);
    QVERIFY(!ZrDecimal::parse(text, &value));
    QCOMPARE(value, ZrDecimal::fromInt(5));
}

void tst_ZrDecimal::scalesAreApplied()
{
    ZrDecimal value;
    QVERIFY(ZrDecimal::parse("5859400", &value, 1, 10000));
    QCOMPARE(value.toString(), QStringLiteral("585.94"));
    QVERIFY(ZrDecimal::parse("1801010000000", &value, 1, 1000000000));
    QCOMPARE(value.toString(), QStringLiteral("1801.01"));
    QVERIFY(ZrDecimal::parse("12", &value, 100, 1));
    QCOMPARE(value.toString(), QStringLiteral("1200"));
    QVERIFY(!ZrDecimal::parse("12", &value, 0, 1));
    QVERIFY(!ZrDecimal::parse("12", &value, 1, 0));
    QVERIFY(!ZrDecimal::parse("92233720368", &value, 1000000000000, 1));
}

void tst_ZrDecimal::roundingGoesToTheNearestTick_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QByteArray>("tick");
    QTest::addColumn<QString>("expected");
    QTest::newRow("down") << QByteArray("1.014") << QByteArray("0.01") << "1.01";
    QTest::newRow("half goes away from zero") << QByteArray("1.015") << QByteArray("0.01") << "1.02";
    QTest::newRow("negative half") << QByteArray("-1.015") << QByteArray("0.01") << "-1.02";
    QTest::newRow("odd tick") << QByteArray("1.13") << QByteArray("0.25") << "1.25";
    QTest::newRow("no tick") << QByteArray("1.13") << QByteArray("0") << "1.13";
    QTest::newRow("end of the range")
        << QByteArray("92233720368") << QByteArray("92233720367") << "92233720367";
}

void tst_ZrDecimal::roundingGoesToTheNearestTick()
{
    QFETCH(QByteArray, text);
    QFETCH(QByteArray, tick);
    QFETCH(QString, expected);
    ZrDecimal value;
    ZrDecimal step;
    QVERIFY(ZrDecimal::parse(text, &value) && ZrDecimal::parse(tick, &step));
    QCOMPARE(value.roundedTo(step).toString(), expected);
}

void tst_ZrDecimal::sumsStopAtTheEndOfTheRange()
{
    const ZrDecimal most = ZrDecimal::fromUnits(std::numeric_limits<qint64>::max());
    const ZrDecimal least = ZrDecimal::fromUnits(std::numeric_limits<qint64>::min());
    const ZrDecimal one = ZrDecimal::fromInt(1);
    QCOMPARE(most + one, most);
    QCOMPARE(least - one, least);
    QCOMPARE(least + ZrDecimal::fromInt(-1), least);
    QCOMPARE(most - ZrDecimal::fromInt(-1), most);
    QCOMPARE(one + one - one, one);
    QVERIFY(!least.toString().isEmpty());
}

void tst_ZrDecimal::anAveragePriceIsExact()
{
    ZrTurnover turnover;
    ZrDecimal price;
    QVERIFY(ZrDecimal::parse("1854.98", &price));
    for (int i = 0; i < 1000; ++i)
        turnover.add(price, ZrDecimal::fromInt(100));
    QCOMPARE(turnover.average(ZrDecimal::fromInt(100000)), price);
    QCOMPARE(turnover.toDouble(), 185498000.0);
    QCOMPARE(turnover.average(ZrDecimal()), ZrDecimal());
}

void tst_ZrDecimal::aTurnoverBeyondAllBoundsDoesNotOverflow()
{
    const ZrDecimal most = ZrDecimal::fromUnits(std::numeric_limits<qint64>::max());
    ZrTurnover turnover;
    for (int i = 0; i < 5; ++i)
        turnover.add(most, most);
    QVERIFY(turnover.toDouble() > 0);
    QVERIFY(turnover.average(ZrDecimal::fromUnits(1)) > ZrDecimal());
}

ZR_TEST_GUILESS_MAIN(tst_ZrDecimal)
#include "tst_zrdecimal.moc"
