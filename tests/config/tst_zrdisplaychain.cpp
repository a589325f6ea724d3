#include "ZrDisplayChain.h"
#include "ZrFieldSetting.h"
#include "ZrTestHostData.h"
#include "ZrTestMain.h"

class tst_ZrDisplayChain : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { setTestHostData(); }
    void cleanupTestCase() { ZrDataStore::close(); }
    void chainTurnsTheText_data();
    void chainTurnsTheText();
    void percentTakesTheColumnsDigits_data();
    void percentTakesTheColumnsDigits();
    void dateTakesTheColumnsStyle_data();
    void dateTakesTheColumnsStyle();
};

namespace {
QString applied(const QString &chain, const QString &text, const QString &style = QString(), int decimal = -1)
{
    ZrFieldSetting field;
    field.fieldNumber = QStringLiteral("Side");
    field.displayRoleProperty = chain;
    field.dateStyle = style;
    field.decimal = decimal;
    return ZrDisplayChain::apply(text, field);
}
} // namespace

void tst_ZrDisplayChain::chainTurnsTheText_data()
{
    QTest::addColumn<QString>("chain");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("expected");

    QTest::newRow("no chain") << ""
                              << "1234"
                              << "1234";
    QTest::newRow("unknown word") << "Shiny"
                                  << "1234"
                                  << "1234";
    QTest::newRow("words are case-sensitive") << "empty|commaseparation"
                                              << "1234"
                                              << "1234";
    QTest::newRow("empty words are passed over") << "||CommaSeparation|"
                                                 << "1234"
                                                 << "1, 234";
    QTest::newRow("a blank belongs to the word") << " CommaSeparation"
                                                 << "1234"
                                                 << "1234";
    QTest::newRow("comma and a blank") << "CommaSeparation"
                                       << "1234567.89"
                                       << "1, 234, 567.89";
    QTest::newRow("two blanks") << "SpaceSeparation"
                                << "1234567.89"
                                << "1  234  567.89";
    QTest::newRow("Empty") << "Empty"
                           << "1234"
                           << "";
    QTest::newRow("SymbolID") << "SymbolID"
                              << "600001.SH"
                              << "600001";
    QTest::newRow("SymbolID of an unknown symbol") << "SymbolID"
                                                   << "nothing"
                                                   << "";
    QTest::newRow("SymbolName") << "SymbolName"
                                << "600001.SH" << QString::fromUtf8("珩鹭传媒");
    QTest::newRow("Dictionary of the field's section") << "Dictionary"
                                                       << "2"
                                                       << "Sell";
    QTest::newRow("Dictionary of an unknown code") << "Dictionary"
                                                   << "7"
                                                   << "";
    QTest::newRow("Market") << "Market"
                            << "600001.SH"
                            << "Shanghai";
    QTest::newRow("InvestAccount") << "InvestAccount"
                                   << "I1"
                                   << "investor";
    QTest::newRow("ProductAccount") << "ProductAccount"
                                    << "P1"
                                    << "fund";
    QTest::newRow("TradinngAccount") << "TradinngAccount"
                                     << "T1"
                                     << "trader";
    QTest::newRow("AssertAccount") << "AssertAccount"
                                   << "A1"
                                   << "assets";
    for (const char *word : {"InvestAccount", "ProductAccount", "TradinngAccount", "AssertAccount"})
        QTest::addRow("%s: an unknown number isn't kept", word) << word << "X9"
                                                                << "";
    QTest::newRow("Date") << "Date"
                          << "20240131"
                          << "2024-01-31";
    QTest::newRow("Date of no date") << "Date"
                                     << "2024-01-31"
                                     << "";
    QTest::newRow("DateTime") << "DateTime"
                              << "1706671845123"
                              << "2024-01-31 11:30:45:123";
    QTest::newRow("DateTime of no number") << "DateTime"
                                           << "x"
                                           << "1970-01-01 08:00:00:000";
    QTest::newRow("Percent") << "Percent"
                             << "0.12345"
                             << "12.35%";
    QTest::newRow("Percent of no number") << "Percent"
                                          << "abc"
                                          << "0.00%";
    QTest::newRow("each word works on the one before") << "Percent|CommaSeparation"
                                                       << "12345"
                                                       << "1, 234, 500.00%";
    QTest::newRow("and not on the one behind") << "CommaSeparation|Percent"
                                               << "12345"
                                               << "0.00%";
    QTest::newRow("Empty, then Percent") << "Empty|Percent"
                                         << "5"
                                         << "0.00%";
}

void tst_ZrDisplayChain::chainTurnsTheText()
{
    QFETCH(QString, chain);
    QFETCH(QString, text);
    QFETCH(QString, expected);
    QCOMPARE(applied(chain, text), expected);
}

void tst_ZrDisplayChain::percentTakesTheColumnsDigits_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("decimal");
    QTest::addColumn<QString>("expected");
    QTest::newRow("two without a configuration") << "0.5" << -1 << "50.00%";
    QTest::newRow("none is configured") << "0.5" << 0 << "50%";
    QTest::newRow("three") << "-0.5" << 3 << "-50.000%";
    QTest::newRow("negative digits as the toolkit takes them") << "0.5" << -2 << "50.000000%";
}

void tst_ZrDisplayChain::percentTakesTheColumnsDigits()
{
    QFETCH(QString, text);
    QFETCH(int, decimal);
    QFETCH(QString, expected);
    QCOMPARE(applied(QStringLiteral("Percent"), text, QString(), decimal), expected);
    const int decimals = decimal == -1 ? 2 : decimal;
    QCOMPARE(QStringLiteral("%1%").arg(text.toDouble() * 100.0, 0, 'f', decimals, QLatin1Char(' ')),
             expected);
    QVERIFY(applied(QStringLiteral("Percent"), text, QString(), std::numeric_limits<int>::max()).size() <
            2000);
}

void tst_ZrDisplayChain::dateTakesTheColumnsStyle_data()
{
    QTest::addColumn<QString>("chain");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("style");
    QTest::addColumn<QString>("expected");
    QTest::newRow("date") << "Date"
                          << "20240131"
                          << "dd.MM.yy"
                          << "31.01.24";
    QTest::newRow("date in the default's words") << "Date"
                                                 << "20240131"
                                                 << "yyyy-MM-dd"
                                                 << "2024-01-31";
    QTest::newRow("first year") << "Date"
                                << "00010203"
                                << ""
                                << "0001-02-03";
    QTest::newRow("last year") << "Date"
                               << "99991231"
                               << ""
                               << "9999-12-31";
    QTest::newRow("bad date in a style") << "Date"
                                         << "20240231"
                                         << "dd.MM.yy"
                                         << "";
    QTest::newRow("moment") << "DateTime"
                            << "1706671845123"
                            << "hh:mm"
                            << "11:30";
}

void tst_ZrDisplayChain::dateTakesTheColumnsStyle()
{
    QFETCH(QString, chain);
    QFETCH(QString, text);
    QFETCH(QString, style);
    QFETCH(QString, expected);
    QCOMPARE(applied(chain, text, style), expected);
}

ZR_TEST_GUILESS_MAIN(tst_ZrDisplayChain)
#include "tst_zrdisplaychain.moc"
