#include "ZrLadderBook.h"
#include "ZrLadderTexts.h"
#include "ZrTestMain.h"

class tst_ZrLadderBook : public QObject
{
    Q_OBJECT
private slots:
    void placeholdersAreAFullBook();
    void aMissingPriceIsMarked_data();
    void aMissingPriceIsMarked();
    void theCallersBookStaysAsItWas();
    void fiveLevelsAreTheBestOfEachSide();
    void fiveLevelsMakeWhatWasNotGiven();
    void anyOtherCountIsTheWholeBook_data();
    void anyOtherCountIsTheWholeBook();
    void aRowThatIsNotThereIsAnEmptyLevel();
    void valuesAreEqualByAllTheirFields();
    void aLevelPrintsItsFields();
    void sidesAreTwoWords_data();
    void sidesAreTwoWords();
    void levelsAreDigitsOrNumerals_data();
    void levelsAreDigitsOrNumerals();
};

namespace {
ZrSecurityAskBidData priced(const QString &price)
{
    ZrSecurityAskBidData level;
    level.price = price;
    return level;
}

ZrAskBidLevels numbered()
{
    ZrAskBidLevels levels;
    for (int row = 0; row < 20; ++row)
        levels.insert(row, priced(QString::number(row + 1)));
    return levels;
}
} // namespace

void tst_ZrLadderBook::placeholdersAreAFullBook()
{
    ZrLadderBook book;
    QVERIFY(book.levels().isEmpty());
    book.fillPlaceholders();
    QCOMPARE(book.count(), 10);
    QCOMPARE(book.rows(), 20);
    QCOMPARE(book.levels().size(), 20);
    QCOMPARE(book.shownLevels(), book.levels());
    const QList<int> sides = {1, 1, 0, 0};
    const QList<int> levels = {10, 1, 1, 10};
    const QList<int> rows = {0, 9, 10, 19};
    for (int i = 0; i < rows.size(); ++i) {
        const ZrSecurityAskBidData level = book.shown(rows.at(i));
        QCOMPARE(level.side, sides.at(i));
        QCOMPARE(level.level, levels.at(i));
        QCOMPARE(level.price, QStringLiteral("0"));
        QCOMPARE(level.volume, 0);
    }
}

void tst_ZrLadderBook::aMissingPriceIsMarked_data()
{
    QTest::addColumn<QString>("price");
    QTest::addColumn<QString>("expected");
    QTest::newRow("zero") << "0"
                          << "—";
    QTest::newRow("zero with decimals") << "0.000"
                                        << "—";
    QTest::newRow("below zero by its sign only") << "-0"
                                                 << "—";
    QTest::newRow("empty") << ""
                           << "—";
    QTest::newRow("a word") << "halted"
                            << "—";
    QTest::newRow("marked already") << "—"
                                    << "—";
    QTest::newRow("a price") << "12.30"
                             << "12.30";
    QTest::newRow("a negative price") << "-0.5"
                                      << "-0.5";
}

void tst_ZrLadderBook::aMissingPriceIsMarked()
{
    QFETCH(QString, price);
    QFETCH(QString, expected);
    ZrLadderBook book;
    book.setLevels({{3, priced(price)}});
    QCOMPARE(book.levels().value(3).price, expected);
    QCOMPARE(book.shown(3).price, expected);
}

void tst_ZrLadderBook::theCallersBookStaysAsItWas()
{
    const ZrAskBidLevels given = {{0, priced(QStringLiteral("0"))}};
    ZrLadderBook book;
    book.setLevels(given);
    QCOMPARE(given.value(0).price, QStringLiteral("0"));
    book.setLevels({});
    QVERIFY(book.levels().isEmpty());
    QVERIFY(book.shownLevels().isEmpty());
}

void tst_ZrLadderBook::fiveLevelsAreTheBestOfEachSide()
{
    ZrLadderBook book;
    book.setLevels(numbered());
    book.setCount(5);
    QCOMPARE(book.rows(), 10);
    QCOMPARE(book.shownLevels().keys(), (QList<int>{0, 1, 2, 3, 4, 5, 6, 7, 8, 9}));
    QCOMPARE(book.shown(0), book.levels().value(5));
    QCOMPARE(book.shown(9), book.levels().value(14));
    book.setCount(10);
    QCOMPARE(book.shownLevels(), numbered());
}

void tst_ZrLadderBook::fiveLevelsMakeWhatWasNotGiven()
{
    ZrLadderBook book;
    book.setCount(5);
    book.setLevels({{2, priced(QStringLiteral("1"))}, {9, priced(QStringLiteral("2"))}});
    QCOMPARE(book.levels().keys(), (QList<int>{2, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14}));
    QCOMPARE(book.levels().value(5), ZrSecurityAskBidData());
    QCOMPARE(book.shown(4).price, QStringLiteral("2"));
    QCOMPARE(book.shown(5), ZrSecurityAskBidData());
}

void tst_ZrLadderBook::anyOtherCountIsTheWholeBook_data()
{
    QTest::addColumn<int>("count");
    for (const int count : {1, 4, 6, 9, 10, 11, 500, -3})
        QTest::addRow("%d", count) << count;
}

void tst_ZrLadderBook::anyOtherCountIsTheWholeBook()
{
    QFETCH(int, count);
    ZrLadderBook book;
    book.setLevels(numbered());
    book.setCount(count);
    QCOMPARE(book.shownLevels(), numbered());
    QCOMPARE(book.rows(), 2 * count);
}

void tst_ZrLadderBook::aRowThatIsNotThereIsAnEmptyLevel()
{
    ZrLadderBook book;
    book.setLevels(numbered());
    QCOMPARE(book.shown(20), ZrSecurityAskBidData());
    QCOMPARE(book.shown(-1), ZrSecurityAskBidData());
    QCOMPARE(book.levels(), numbered());
}

void tst_ZrLadderBook::valuesAreEqualByAllTheirFields()
{
    const ZrSecurityAskBidData one = {1, 2, QStringLiteral("3"), 4, 5, QStringLiteral("6")};
    QVERIFY(one == one);
    QVector<ZrSecurityAskBidData> others(6, one);
    others[0].side = 0;
    others[1].level = 0;
    others[2].price = QString();
    others[3].volume = 0;
    others[4].spare = 0;
    others[5].volumeText = QString();
    for (const ZrSecurityAskBidData &other : qAsConst(others))
        QVERIFY(one != other);
}

void tst_ZrLadderBook::aLevelPrintsItsFields()
{
    QString text;
    QDebug(&text) << ZrSecurityAskBidData{1, 2, QStringLiteral("3.5"), 4, 5, QStringLiteral("6w")};
    QCOMPARE(text.trimmed(), QStringLiteral("ZrSecurityAskBidData(side 1, level 2, price \"3.5\", volume 4, "
                                            "spare 5, volumeText \"6w\")"));
}

void tst_ZrLadderBook::sidesAreTwoWords_data()
{
    QTest::addColumn<int>("side");
    QTest::addColumn<QString>("expected");
    QTest::newRow("buyers") << 0 << "买 ";
    QTest::newRow("sellers") << 1 << "卖 ";
    QTest::newRow("the latest price") << -1 << "卖 ";
    QTest::newRow("unknown") << 7 << "卖 ";
}

void tst_ZrLadderBook::sidesAreTwoWords()
{
    QFETCH(int, side);
    QFETCH(QString, expected);
    QCOMPARE(ZrLadderTexts::side(side), expected);
}

void tst_ZrLadderBook::levelsAreDigitsOrNumerals_data()
{
    QTest::addColumn<int>("level");
    QTest::addColumn<int>("numerals");
    QTest::addColumn<QString>("expected");
    const QStringList chinese = {"一", "二", "三", "四", "五", "六", "七", "八", "九", "十"};
    for (int level = 1; level <= 10; ++level)
        QTest::addRow("numeral %d", level) << level << 1 << chinese.at(level - 1);
    QTest::newRow("below the numerals") << 0 << 1 << "";
    QTest::newRow("beyond the numerals") << 11 << 1 << "";
    QTest::newRow("digits") << 10 << 0 << "10";
    QTest::newRow("digits of another type") << 3 << 2 << "3";
    QTest::newRow("digits of an empty level") << 0 << 0 << "0";
}

void tst_ZrLadderBook::levelsAreDigitsOrNumerals()
{
    QFETCH(int, level);
    QFETCH(int, numerals);
    QFETCH(QString, expected);
    QCOMPARE(ZrLadderTexts::level(level, numerals), expected);
}

ZR_TEST_GUILESS_MAIN(tst_ZrLadderBook)
#include "tst_zrladderbook.moc"
