#include "ZrFoldedTexts.h"
#include "ZrTestMain.h"

#include <QtCore/QRandomGenerator>

using Place = ZrFoldedTexts::Place;

class tst_ZrFoldedTexts : public QObject
{
    Q_OBJECT
private slots:
    void textsAreFoundInTheirOrder();
    void caseIsDisregarded_data();
    void caseIsDisregarded();
    void theStartIsNotAnywhere();
    void aTextIsFoundOnce();
    void aMatchDoesNotReachIntoTheNextText();
    void aVisitorEndsTheSearch();
    void anEmptyPartIsInEveryText();
    void nothingIsFoundInNothing();
    void anotherListReplacesTheFirst();
    void randomTextsAreFoundAsAPlainScanDoes();
};

namespace {
QList<int> found(const ZrFoldedTexts &texts, const QString &part, Place place)
{
    QList<int> result;
    texts.forEach(part, place, [&](int index) {
        result.append(index);
        return true;
    });
    return result;
}

QList<int> scanned(const QStringList &texts, const QString &part, Place place)
{
    QList<int> result;
    for (int i = 0; i < texts.size(); ++i) {
        const QString &text = texts.at(i);
        if (place == Place::Start ? text.startsWith(part, Qt::CaseInsensitive)
                                  : text.contains(part, Qt::CaseInsensitive))
            result.append(i);
    }
    return result;
}

ZrFoldedTexts made(const QStringList &texts)
{
    ZrFoldedTexts result;
    result.assign(texts);
    return result;
}

// Few characters, so that parts are found: those whose cases lie apart in odd ways, halves of a character,
// and what stands between the fields of a candidate.
const QVector<uint> &alphabet()
{
    static const QVector<uint> units = {
        '0',    '1',    'a',    'A',    'k',    'K',    's',     'S',     0x212a, 0x017f, 0x00df, 0x1e9e,
        0x03c3, 0x03c2, 0x03a3, 0x0130, 0x0131, 'i',    'I',     '&',     '|',    ' ',    '.',    0x8305,
        0x53f0, 0xff21, 0xff41, 0xd801, 0xdc00, 0xdc28, 0x10428, 0x10400, 0x0000, 0xffff};
    return units;
}

QString randomText(QRandomGenerator &random, int longest)
{
    QString text;
    const int size = random.bounded(longest + 1);
    for (int i = 0; i < size; ++i) {
        const uint unit = alphabet().at(random.bounded(alphabet().size()));
        if (QChar::requiresSurrogates(unit))
            text.append(QChar(QChar::highSurrogate(unit))).append(QChar(QChar::lowSurrogate(unit)));
        else
            text.append(QChar(ushort(unit)));
    }
    return text;
}
} // namespace

void tst_ZrFoldedTexts::textsAreFoundInTheirOrder()
{
    const ZrFoldedTexts texts = made({"600002", "000600", "600001"});
    QCOMPARE(found(texts, "600", Place::Start), QList<int>({0, 2}));
    QCOMPARE(found(texts, "600", Place::Anywhere), QList<int>({0, 1, 2}));
    QCOMPARE(found(texts, "7", Place::Anywhere), QList<int>());
    QCOMPARE(found(texts, "700", Place::Start), QList<int>());
}

void tst_ZrFoldedTexts::caseIsDisregarded_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("part");
    QTest::newRow("upper to lower") << "GZMT"
                                    << "gzmt";
    QTest::newRow("lower to upper") << "gzmt"
                                    << "GZMT";
    QTest::newRow("wide letters") << QString(QChar(0xff21)) << QString(QChar(0xff41));
    QTest::newRow("Kelvin sign") << QString(QChar(0x212a)) << "k";
    QTest::newRow("long s") << QString(QChar(0x017f)) << "S";
    QTest::newRow("last sigma") << QString(QChar(0x03c2)) << QString(QChar(0x03a3));
    QTest::newRow("outside the plane") << QString("\U00010400") << QString("\U00010428");
}

void tst_ZrFoldedTexts::caseIsDisregarded()
{
    QFETCH(QString, text);
    QFETCH(QString, part);
    const ZrFoldedTexts texts = made({"0", "0" + text});
    QCOMPARE(found(texts, part, Place::Anywhere), QList<int>({1}));
    QCOMPARE(found(texts, "0" + part, Place::Start), QList<int>({1}));
}

void tst_ZrFoldedTexts::theStartIsNotAnywhere()
{
    const ZrFoldedTexts texts = made({"ab", "ba"});
    QCOMPARE(found(texts, "a", Place::Start), QList<int>({0}));
    QCOMPARE(found(texts, "b", Place::Start), QList<int>({1}));
}

void tst_ZrFoldedTexts::aTextIsFoundOnce()
{
    QCOMPARE(found(made({"aaaa", "aa"}), "a", Place::Anywhere), QList<int>({0, 1}));
}

void tst_ZrFoldedTexts::aMatchDoesNotReachIntoTheNextText()
{
    QCOMPARE(found(made({"60", "0519"}), "600519", Place::Anywhere), QList<int>());
    QCOMPARE(found(made({"", "a"}), "a", Place::Start), QList<int>({1}));
    QCOMPARE(found(made({"a", ""}), "a", Place::Start), QList<int>({0}));
}

void tst_ZrFoldedTexts::aVisitorEndsTheSearch()
{
    QList<int> seen;
    made({"a", "b", "a", "a"}).forEach("a", Place::Start, [&](int index) {
        seen.append(index);
        return seen.size() < 2;
    });
    QCOMPARE(seen, QList<int>({0, 2}));
}

void tst_ZrFoldedTexts::anEmptyPartIsInEveryText()
{
    const ZrFoldedTexts texts = made({"a", "", "b"});
    QCOMPARE(found(texts, "", Place::Anywhere), QList<int>({0, 1, 2}));
    QCOMPARE(found(texts, "", Place::Start), QList<int>({0, 1, 2}));
}

void tst_ZrFoldedTexts::nothingIsFoundInNothing()
{
    QCOMPARE(found(ZrFoldedTexts(), "a", Place::Anywhere), QList<int>());
    QCOMPARE(found(made({}), "ab", Place::Start), QList<int>());
    QCOMPARE(found(made({""}), "ab", Place::Start), QList<int>());
}

void tst_ZrFoldedTexts::anotherListReplacesTheFirst()
{
    ZrFoldedTexts texts = made({"a", "b"});
    texts.assign({"c"});
    QCOMPARE(texts.texts(), QStringList("c"));
    QCOMPARE(found(texts, "a", Place::Anywhere), QList<int>());
    QCOMPARE(found(texts, "c", Place::Anywhere), QList<int>({0}));
}

void tst_ZrFoldedTexts::randomTextsAreFoundAsAPlainScanDoes()
{
    QRandomGenerator random(60519);
    int hits = 0;
    for (int round = 0; round < 100; ++round) {
        QStringList list;
        const int size = random.bounded(120);
        for (int i = 0; i < size; ++i)
            list.append(randomText(random, 12));
        const ZrFoldedTexts texts = made(list);
        for (int input = 0; input < 100; ++input) {
            const QString part = randomText(random, 4);
            for (const Place place : {Place::Start, Place::Anywhere}) {
                const QList<int> expected = scanned(list, part, place);
                QCOMPARE(found(texts, part, place), expected);
                hits += expected.size();
            }
        }
    }
    QVERIFY2(hits > 10000, "the texts are too different to tell anything");
}

ZR_TEST_GUILESS_MAIN(tst_ZrFoldedTexts)
#include "tst_zrfoldedtexts.moc"
