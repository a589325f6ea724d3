#include "ZrSymbolText.h"
#include "ZrTestMain.h"

#include "zrdefine/Constants.h"

class tst_ZrSymbolText : public QObject
{
    Q_OBJECT
private slots:
    void candidatesAreParted_data();
    void candidatesAreParted();
    void theOrderOfTheListStays();
    void aKeysCandidateStandsBehindTheFirstAmpersand_data();
    void aKeysCandidateStandsBehindTheFirstAmpersand();
    void theSymbolIsTheFirstField_data();
    void theSymbolIsTheFirstField();
    void theShortCodeEndsAtTheLastFullStop_data();
    void theShortCodeEndsAtTheLastFullStop();
};

namespace {
QString joined(const QStringList &fields)
{
    return fields.join(Constants::SymbolSearch_Split);
}

/// A list of one, parted the plain way: all fields apart and together again.
ZrSymbolText::Parted plainlyParted(const QString &candidate)
{
    ZrSymbolText::Parted result;
    QStringList fields = candidate.split(Constants::SymbolSearch_Split);
    if (fields.size() <= 2) {
        result.securities.append(candidate);
        return result;
    }
    const QString key = fields.takeLast();
    result.securities.append(joined(fields));
    if (!key.isEmpty())
        result.searchKeys.append(key + "&" + joined(fields));
    return result;
}
} // namespace

void tst_ZrSymbolText::candidatesAreParted_data()
{
    QTest::addColumn<QString>("candidate");
    QTest::addColumn<QString>("security");
    QTest::addColumn<QStringList>("keys");
    const QString split = Constants::SymbolSearch_Split;
    QTest::newRow("three fields") << joined({"600519.SH", "Maotai", "GZMT"})
                                  << joined({"600519.SH", "Maotai"})
                                  << QStringList(QString("GZMT&" + joined({"600519.SH", "Maotai"})));
    QTest::newRow("no key") << joined({"600519.SH", "Maotai", ""}) << joined({"600519.SH", "Maotai"})
                            << QStringList();
    QTest::newRow("two fields") << joined({"600519.SH", "Maotai"}) << joined({"600519.SH", "Maotai"})
                                << QStringList();
    QTest::newRow("symbol alone") << QString("600519.SH") << QString("600519.SH") << QStringList();
    QTest::newRow("nothing") << QString() << QString() << QStringList();
    QTest::newRow("four fields") << joined({"a", "b", "c", "d"}) << joined({"a", "b", "c"})
                                 << QStringList(QString("d&" + joined({"a", "b", "c"})));
    QTest::newRow("empty fields") << joined({"", "", "k"}) << joined({"", ""})
                                  << QStringList(QString("k&" + joined({"", ""})));
    QTest::newRow("key with an ampersand") << joined({"a", "b", "x&y"}) << joined({"a", "b"})
                                           << QStringList(QString("x&y&" + joined({"a", "b"})));
    // Where one separator could begin inside another, the left one counts.
    const QString inside = split.mid(1);
    QTest::newRow("separators that overlap")
        << QString("a" + split + inside + "b" + split + "c") << QString("a" + split + inside + "b")
        << QStringList(QString("c&a" + split + inside + "b"));
}

void tst_ZrSymbolText::candidatesAreParted()
{
    QFETCH(QString, candidate);
    QFETCH(QString, security);
    QFETCH(QStringList, keys);
    const ZrSymbolText::Parted parted = ZrSymbolText::parted({candidate});
    QCOMPARE(parted.securities, QStringList(security));
    QCOMPARE(parted.searchKeys, keys);
    const ZrSymbolText::Parted plain = plainlyParted(candidate);
    QCOMPARE(parted.securities, plain.securities);
    QCOMPARE(parted.searchKeys, plain.searchKeys);
}

void tst_ZrSymbolText::theOrderOfTheListStays()
{
    const ZrSymbolText::Parted parted = ZrSymbolText::parted(
        {joined({"b", "B", "2"}), "a", joined({"b", "B", "1"}), joined({"b", "B", "2"})});
    const QString b = joined({"b", "B"});
    QCOMPARE(parted.securities, QStringList({b, "a", b, b}));
    QCOMPARE(parted.searchKeys, QStringList({"2&" + b, "1&" + b, "2&" + b}));
}

void tst_ZrSymbolText::aKeysCandidateStandsBehindTheFirstAmpersand_data()
{
    QTest::addColumn<QString>("entry");
    QTest::addColumn<QString>("expected");
    QTest::newRow("plain") << "GZMT&600519.SH"
                           << "600519.SH";
    QTest::newRow("key with an ampersand") << "x&y&600519.SH"
                                           << "y&600519.SH";
    QTest::newRow("name with an ampersand") << "AT&600519.SH | A&T"
                                            << "600519.SH | A&T";
}

void tst_ZrSymbolText::aKeysCandidateStandsBehindTheFirstAmpersand()
{
    QFETCH(QString, entry);
    QFETCH(QString, expected);
    QCOMPARE(ZrSymbolText::candidateOf(entry), expected);
}

void tst_ZrSymbolText::theSymbolIsTheFirstField_data()
{
    QTest::addColumn<QString>("candidate");
    QTest::addColumn<QString>("expected");
    QTest::newRow("with a name") << joined({"600519.SH", "Maotai"}) << "600519.SH";
    QTest::newRow("alone") << "600519.SH"
                           << "600519.SH";
    QTest::newRow("empty field") << joined({"", "Maotai"}) << "";
    QTest::newRow("nothing") << ""
                             << "";
}

void tst_ZrSymbolText::theSymbolIsTheFirstField()
{
    QFETCH(QString, candidate);
    QFETCH(QString, expected);
    QCOMPARE(ZrSymbolText::symbolOf(candidate), expected);
}

void tst_ZrSymbolText::theShortCodeEndsAtTheLastFullStop_data()
{
    QTest::addColumn<QString>("symbol");
    QTest::addColumn<QString>("expected");
    QTest::newRow("with a market") << "600519.SH"
                                   << "600519";
    QTest::newRow("without one") << "600519"
                                 << "600519";
    QTest::newRow("two full stops") << "BRK.B.N"
                                    << "BRK.B";
    QTest::newRow("market alone") << ".SH"
                                  << "";
    QTest::newRow("nothing") << ""
                             << "";
}

void tst_ZrSymbolText::theShortCodeEndsAtTheLastFullStop()
{
    QFETCH(QString, symbol);
    QFETCH(QString, expected);
    QCOMPARE(ZrSymbolText::shortCode(symbol), expected);
}

ZR_TEST_GUILESS_MAIN(tst_ZrSymbolText)
#include "tst_zrsymboltext.moc"
