#include "ZrSymbolMatcher.h"
#include "ZrSymbolText.h"
#include "ZrTestMain.h"

#include "zrdefine/Constants.h"

#include <QtCore/QMap>
#include <QtCore/QRandomGenerator>

class tst_ZrSymbolMatcher : public QObject
{
    Q_OBJECT
private slots:
    void rowsAreSortedWithoutDuplicates();
    void modesDecideWhereATextMayStand_data();
    void modesDecideWhereATextMayStand();
    void searchKeysFindTheirCandidate();
    void whatStandsFirstInTheListStaysInACut();
    void theFirstSearchKeyMayComeOnTop();
    void enoughSecuritiesLeaveTheOtherKeysOut();
    void searchKeysFillUpToTheCut();
    void belowOneThereIsNoCut_data();
    void belowOneThereIsNoCut();
    void tenThousandInputsGiveWhatThePlainScanGives();
};

namespace {
struct Lists
{
    QStringList securities;
    QStringList searchKeys;
};

/// The scan as it is meant, entry by entry.
class PlainScan
{
public:
    explicit PlainScan(const Lists &lists)
        : m_lists(lists)
    {
    }

    QStringList matches(const QString &text, int mode, int most) const
    {
        QMap<QString, bool> rows;
        for (const QString &security : m_lists.securities) {
            if (meets(security, text, mode))
                rows.insert(security, true);
            if (most >= 1 && rows.size() >= most)
                break;
        }
        for (const QString &key : m_lists.searchKeys) {
            if (meets(key, text, mode))
                rows.insert(key.mid(key.indexOf('&') + 1), true);
            if (most >= 1 && rows.size() >= most)
                break;
        }
        return rows.keys();
    }

private:
    static bool meets(const QString &entry, const QString &text, int mode)
    {
        if (mode == 1)
            return entry.startsWith(text, Qt::CaseInsensitive);
        return mode == 2 && entry.contains(text, Qt::CaseInsensitive);
    }

    const Lists m_lists;
};

QString candidate(const QString &symbol, const QString &name, const QString &key)
{
    return QStringList({symbol, name, key}).join(Constants::SymbolSearch_Split);
}

QString shown(const QString &symbol, const QString &name)
{
    return QStringList({symbol, name}).join(Constants::SymbolSearch_Split);
}

Lists partedOf(const QStringList &candidates)
{
    const ZrSymbolText::Parted parted = ZrSymbolText::parted(candidates);
    return {parted.securities, parted.searchKeys};
}

ZrSymbolMatcher matcherOf(const Lists &lists)
{
    ZrSymbolMatcher matcher;
    matcher.setLists(lists.securities, lists.searchKeys);
    return matcher;
}

/// Lists and texts as they come, and some as they shouldn't.
class RandomSecurities
{
public:
    QStringList candidates()
    {
        QStringList list;
        const int size = m_random.bounded(400);
        for (int i = 0; i < size; ++i)
            list.append(one(list));
        return list;
    }

    QString text(const Lists &lists)
    {
        const QStringList &from = m_random.bounded(2) ? lists.securities : lists.searchKeys;
        if (from.isEmpty() || m_random.bounded(4) == 0)
            return characters(1 + m_random.bounded(8));
        const QString entry = from.at(m_random.bounded(from.size()));
        const int start = m_random.bounded(3) ? 0 : m_random.bounded(qMax(1, entry.size()));
        QString part = entry.mid(start, 1 + m_random.bounded(8));
        if (m_random.bounded(2))
            part = m_random.bounded(2) ? part.toLower() : part.toUpper();
        return part;
    }

    int mode() { return m_random.bounded(10) == 0 ? m_random.bounded(5) - 1 : 1 + m_random.bounded(2); }

    int most()
    {
        const int choices[] = {-1, 0, 1, 2, 3, 10, 100, 1000};
        return choices[m_random.bounded(8)];
    }

private:
    QString one(const QStringList &before)
    {
        if (!before.isEmpty() && m_random.bounded(12) == 0)
            return before.at(m_random.bounded(before.size())); // twice in the list
        const QString symbol = digits(4 + m_random.bounded(3)) + "." + (m_random.bounded(2) ? "SH" : "SZ");
        switch (m_random.bounded(12)) {
        case 0:
            return symbol;
        case 1:
            return shown(symbol, characters(4));
        case 2:
            return candidate(symbol, characters(4), QString());
        case 3:
            return candidate(symbol, characters(4), characters(2) + "&" + characters(2));
        default:
            return candidate(symbol, characters(4), characters(1 + m_random.bounded(4)));
        }
    }

    QString digits(int count)
    {
        QString text;
        for (int i = 0; i < count; ++i)
            text.append(QChar('0' + m_random.bounded(4)));
        return text;
    }

    QString characters(int count)
    {
        const QString all = QStringLiteral("0123abcABCkKsS&|. \u212a\u017f\u8305\u53f0\uff21\uff41");
        QString text;
        for (int i = 0; i < count; ++i)
            text.append(all.at(m_random.bounded(all.size())));
        return text;
    }

    QRandomGenerator m_random{20261121};
};
} // namespace

void tst_ZrSymbolMatcher::rowsAreSortedWithoutDuplicates()
{
    const ZrSymbolMatcher matcher =
        matcherOf(partedOf({"600002.SH", "600001.SH", "600002.SH", "000001.SZ", "600000.SH"}));
    QCOMPARE(matcher.matches("60", ZrSymbolMatcher::StartsWith, 100),
             QStringList({"600000.SH", "600001.SH", "600002.SH"}));
}

void tst_ZrSymbolMatcher::modesDecideWhereATextMayStand_data()
{
    QTest::addColumn<int>("mode");
    QTest::addColumn<QStringList>("expected");
    QTest::newRow("starts with") << 1 << QStringList({"600001.SH"});
    QTest::newRow("contains") << 2 << QStringList({"000600.SZ", "600001.SH"});
    QTest::newRow("neither") << 0 << QStringList();
    QTest::newRow("beyond") << 3 << QStringList();
    QTest::newRow("negative") << -1 << QStringList();
}

void tst_ZrSymbolMatcher::modesDecideWhereATextMayStand()
{
    QFETCH(int, mode);
    QFETCH(QStringList, expected);
    QCOMPARE(matcherOf(partedOf({"600001.SH", "000600.SZ"})).matches("600", mode, 100), expected);
}

void tst_ZrSymbolMatcher::searchKeysFindTheirCandidate()
{
    const ZrSymbolMatcher matcher = matcherOf(
        partedOf({candidate("600519.SH", "Maotai", "GZMT"), candidate("000858.SZ", "Wuliangye", "WLY")}));
    QCOMPARE(matcher.matches("gz", 1, 100), QStringList({shown("600519.SH", "Maotai")}));
    // The entry as a whole is looked at: key, ampersand, candidate.
    QCOMPARE(matcher.matches("mt&6", 2, 100), QStringList({shown("600519.SH", "Maotai")}));
    QCOMPARE(matcher.matches("mt&6", 1, 100), QStringList());
}

void tst_ZrSymbolMatcher::whatStandsFirstInTheListStaysInACut()
{
    const ZrSymbolMatcher matcher = matcherOf(partedOf({"600009", "600001", "600009", "600008", "600002"}));
    QCOMPARE(matcher.matches("6", 1, 3), QStringList({"600001", "600008", "600009"}));
}

void tst_ZrSymbolMatcher::theFirstSearchKeyMayComeOnTop()
{
    const ZrSymbolMatcher matcher =
        matcherOf(partedOf({candidate("b1", "x", "bkey"), "b2", "b3", candidate("a4", "y", "bkey")}));
    // Its own security is among the rows already.
    QCOMPARE(matcher.matches("b", 1, 2), QStringList({shown("b1", "x"), "b2"}));
    const ZrSymbolMatcher other =
        matcherOf(partedOf({candidate("a1", "x", "bkey"), "b2", "b3", candidate("a4", "y", "bkey")}));
    QCOMPARE(other.matches("b", 1, 2), QStringList({shown("a1", "x"), "b2", "b3"}));
}

void tst_ZrSymbolMatcher::enoughSecuritiesLeaveTheOtherKeysOut()
{
    const ZrSymbolMatcher matcher =
        matcherOf(partedOf({candidate("a1", "x", "other"), "b2", "b3", candidate("a4", "y", "bkey")}));
    QCOMPARE(matcher.matches("b", 1, 2), QStringList({"b2", "b3"}));
}

void tst_ZrSymbolMatcher::searchKeysFillUpToTheCut()
{
    const ZrSymbolMatcher matcher = matcherOf(partedOf(
        {candidate("a1", "x", "bkey"), "b2", candidate("a3", "y", "bkey"), candidate("a4", "z", "bkey")}));
    QCOMPARE(matcher.matches("b", 1, 3), QStringList({shown("a1", "x"), shown("a3", "y"), "b2"}));
}

void tst_ZrSymbolMatcher::belowOneThereIsNoCut_data()
{
    QTest::addColumn<int>("most");
    QTest::addColumn<int>("expected");
    QTest::newRow("one") << 1 << 1;
    QTest::newRow("none") << 0 << 3;
    QTest::newRow("negative") << -5 << 3;
}

void tst_ZrSymbolMatcher::belowOneThereIsNoCut()
{
    QFETCH(int, most);
    QFETCH(int, expected);
    QCOMPARE(matcherOf(partedOf({"60", "61", "62"})).matches("6", 1, most).size(), expected);
}

void tst_ZrSymbolMatcher::tenThousandInputsGiveWhatThePlainScanGives()
{
    constexpr int ListCount = 100;
    constexpr int InputsEach = 100;
    RandomSecurities random;
    int found = 0;
    int beyondTheCut = 0;
    for (int round = 0; round < ListCount; ++round) {
        const Lists lists = partedOf(random.candidates());
        const ZrSymbolMatcher matcher = matcherOf(lists);
        const PlainScan scan(lists);
        for (int input = 0; input < InputsEach; ++input) {
            const QString text = random.text(lists);
            const int mode = random.mode();
            const int most = random.most();
            const QStringList expected = scan.matches(text, mode, most);
            QCOMPARE(matcher.matches(text, mode, most), expected);
            found += expected.isEmpty() ? 0 : 1;
            beyondTheCut += most >= 1 && expected.size() > most ? 1 : 0;
        }
    }
    QVERIFY2(found > 5000, qPrintable(QString::number(found)));
    QVERIFY2(beyondTheCut > 50, qPrintable(QString::number(beyondTheCut)));
}

ZR_TEST_GUILESS_MAIN(tst_ZrSymbolMatcher)
#include "tst_zrsymbolmatcher.moc"
