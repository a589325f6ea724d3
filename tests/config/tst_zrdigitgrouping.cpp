#include "ZrDigitGrouping.h"
#include "ZrTestMain.h"

class tst_ZrDigitGrouping : public QObject
{
    Q_OBJECT

private slots:
    void groupsFromThePointToTheLeft_data();
    void groupsFromThePointToTheLeft();
};

void tst_ZrDigitGrouping::groupsFromThePointToTheLeft_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("expected");

    QTest::newRow("digits behind the point stay") << "1234567.8901"
                                                  << "1, 234, 567.8901";
    QTest::newRow("no point") << "123456"
                              << "123, 456";
    QTest::newRow("minus and six digits") << "-123456"
                                          << "-123, 456";
    QTest::newRow("minus and three digits") << "-123"
                                            << "-123";
    QTest::newRow("minus and four digits") << "-1234"
                                           << "-1, 234";
    QTest::newRow("three digits") << "123"
                                  << "123";
    QTest::newRow("four digits") << "1234"
                                 << "1, 234";
    QTest::newRow("a plus counts as a digit") << "+123"
                                              << "+, 123";
    QTest::newRow("first of two points counts") << "12345.6789.1"
                                                << "12, 345.6789.1";
    QTest::newRow("word") << "abcdefg"
                          << "a, bcd, efg";
    QTest::newRow("empty") << ""
                           << "";
    QTest::newRow("only a minus") << "-"
                                  << "-";
    QTest::newRow("point first") << ".12345"
                                 << ".12345";
}

void tst_ZrDigitGrouping::groupsFromThePointToTheLeft()
{
    QFETCH(QString, text);
    QFETCH(QString, expected);
    QCOMPARE(ZrDigitGrouping::grouped(text, QStringLiteral(", ")), expected);
    QCOMPARE(ZrDigitGrouping::grouped(text, QStringLiteral("  ")), QString(expected).replace(", ", "  "));
}

ZR_TEST_GUILESS_MAIN(tst_ZrDigitGrouping)
#include "tst_zrdigitgrouping.moc"
