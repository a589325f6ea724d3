#include "ZrFeedDescriptionReader.h"
#include "ZrTestMain.h"

#include <QtCore/QTemporaryDir>

class tst_ZrFeedDescriptionReader : public QObject
{
    Q_OBJECT
private slots:
    void aDescriptionIsRead();
    void pathsAreThoseOfItsFolder();
    void ownKeysWinOverDefaults();
    void numbersKeepTheirScale_data();
    void numbersKeepTheirScale();
    void whatIsWrongIsOneSentenceThatNamesTheKey_data();
    void whatIsWrongIsOneSentenceThatNamesTheKey();
    void whatIsNoDescriptionIsRefused_data();
    void whatIsNoDescriptionIsRefused();
    void aMissingFileIsRefused();

private:
    QString write(const QByteArray &content);
    bool read(const QByteArray &content);
    QTemporaryDir m_folder;
    ZrFeedDescription m_description;
    QString m_error;
};

namespace {
const QByteArray orders = R"({"path": "o.csv", "role": "orders", "time": {"column": "T"}, "security": "S",
                              "order": "N", "price": "P", "quantity": "Q"})";

QByteArray withFile(const QByteArray &file)
{
    return R"({"files": [)" + file + "]}";
}

// The description of one file of orders with a key added or replaced.
QByteArray withKey(const QByteArray &key, const QByteArray &value)
{
    return R"({"defaults": )" + orders + R"(, "files": [{")" + key + "\": " + value + "}]}";
}
} // namespace

QString tst_ZrFeedDescriptionReader::write(const QByteArray &content)
{
    QFile file(m_folder.filePath(QStringLiteral("feed.json")));
    const bool good = file.open(QIODevice::WriteOnly) && file.write(content) == content.size();
    return good ? file.fileName() : QString();
}

bool tst_ZrFeedDescriptionReader::read(const QByteArray &content)
{
    m_error.clear();
    return ZrFeedDescriptionReader::read(write(content), &m_description, &m_error);
}

void tst_ZrFeedDescriptionReader::aDescriptionIsRead()
{
    QVERIFY2(read("\xEF\xBB\xBF"
                  R"({"name": "x", "date": "2023-02-01", "timeZone": "Asia/Shanghai", "comment": "y",
        "files": [{"path": "m.csv", "role": "orders", "format": {"head": false, "separator": ";", "quote": "", "comment": "#",
                   "columns": ["t", "k", "id", "size", "price", "side"]},
                   "time": {"column": "t", "form": "seconds"}, "security": {"constant": 600519},
                   "exchange": {"byPrefix": {"6": "SH", "60": "XX"}},
                   "kind": {"column": 1, "words": {"1": "add", "2": "cancel", "*": "ignore"}},
                   "side": {"column": "side", "words": {"1": "buy", "-1": "sell"}},
                   "order": "id", "quantity": "size", "quantityMeans": "rest",
                   "price": {"column": "price", "scale": "1/10000", "none": ["0"]}},
                  {"path": "b.csv", "role": "books", "time": {"sameRowAs": "m.csv"}, "security": {"constant": "600519"},
                   "levels": {"askPrice": {"first": 0, "step": 4}, "askQuantity": {"first": 1, "step": 4},
                              "bidPrice": "B%1", "bidQuantity": "V%1", "from": 0, "to": 4}}]})"),
             qPrintable(m_error));
    QCOMPARE(m_description.name, QStringLiteral("x"));
    QCOMPARE(m_description.files.size(), 2);
    const ZrFeedFile &orders = m_description.files.at(0);
    QCOMPARE(orders.separator, ';');
    QCOMPARE(orders.quote, '\0');
    QCOMPARE(orders.comment, QByteArray("#"));
    QVERIFY(!orders.head && orders.quantityIsRest);
    QCOMPARE(orders.securityConstant, QByteArray("600519"));
    QCOMPARE(orders.exchangePrefixes.constFirst().first, QByteArray("60"));
    QCOMPARE(orders.kind.number, 1);
    QCOMPARE(int(orders.kindWords.value("2")), int(ZrFeedKind::Cancel));
    QCOMPARE(int(orders.sideWords.value("-1")), int(ZrFeedSide::Sell));
    QCOMPARE(orders.price.denominator, 10000);
    QCOMPARE(orders.price.noValue.constFirst(), QByteArray("0"));
    QCOMPARE(orders.time.midnightNs(), Q_INT64_C(1675180800) * 1000000000);
    const ZrFeedFile &books = m_description.files.at(1);
    QCOMPARE(books.alignedWith, 0);
    QCOMPARE(books.levels.askPrice.step, 4);
    QCOMPARE(books.levels.bidPrice.pattern, QStringLiteral("B%1"));
    QCOMPARE(books.levels.from, 0);
}

void tst_ZrFeedDescriptionReader::pathsAreThoseOfItsFolder()
{
    QVERIFY(read(withFile(orders)));
    QCOMPARE(m_description.files.constFirst().path, m_folder.filePath(QStringLiteral("o.csv")));
    QCOMPARE(m_description.name, QStringLiteral("feed"));
}

void tst_ZrFeedDescriptionReader::ownKeysWinOverDefaults()
{
    QVERIFY2(read(withKey("path", "\"other.csv\"")), qPrintable(m_error));
    QVERIFY(m_description.files.constFirst().path.endsWith(QStringLiteral("/other.csv")));
    QCOMPARE(m_description.files.constFirst().order.name, QStringLiteral("N"));
}

void tst_ZrFeedDescriptionReader::numbersKeepTheirScale_data()
{
    QTest::addColumn<QByteArray>("number");
    QTest::addColumn<qint64>("numerator");
    QTest::addColumn<qint64>("denominator");
    QTest::addColumn<QString>("tick");
    QTest::newRow("column") << QByteArray("\"P\"") << qint64(1) << qint64(1) << "0";
    QTest::newRow("fraction") << QByteArray(R"({"column": "P", "scale": "1/10000"})") << qint64(1)
                              << qint64(10000) << "0";
    QTest::newRow("number below one")
        << QByteArray(R"({"column": "P", "scale": 0.0001})") << qint64(1) << qint64(10000) << "0";
    QTest::newRow("tiny number") << QByteArray(R"({"column": "P", "scale": 1e-9})") << qint64(1)
                                 << qint64(1000000000) << "0";
    QTest::newRow("number above one")
        << QByteArray(R"({"column": "P", "scale": 100})") << qint64(100) << qint64(1) << "0";
    QTest::newRow("tick") << QByteArray(R"({"column": "P", "tick": "0.005"})") << qint64(1) << qint64(1)
                          << "0.005";
    QTest::newRow("decimals") << QByteArray(R"({"column": "P", "decimals": 2})") << qint64(1) << qint64(1)
                              << "0.01";
}

void tst_ZrFeedDescriptionReader::numbersKeepTheirScale()
{
    QFETCH(QByteArray, number);
    QFETCH(qint64, numerator);
    QFETCH(qint64, denominator);
    QFETCH(QString, tick);
    QVERIFY2(read(withKey("price", number)), qPrintable(m_error));
    const ZrFeedNumber price = m_description.files.constFirst().price;
    QCOMPARE(price.numerator, numerator);
    QCOMPARE(price.denominator, denominator);
    QCOMPARE(price.tick.toString(), tick);
}

void tst_ZrFeedDescriptionReader::whatIsWrongIsOneSentenceThatNamesTheKey_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<QString>("expected");
    const auto row = [](const char *name, const QByteArray &content, const char *expected) {
        QTest::newRow(name) << content << QString::fromLatin1(expected);
    };
    row("no files", R"({"name": "x"})", "key \"files\": a list of 1 to 256 files is wanted");
    row("files is no list", R"({"files": {}})", "key \"files\": a list of 1 to 256 files is wanted");
    row("file is no object", R"({"files": [1]})", "key \"files[0]\": an object is wanted");
    row("unknown key", R"({"fils": [], "files": []})", "key \"files\"");
    row("unknown key of a file", withKey("prise", "\"P\""), "key \"files[0].prise\": there is no such key");
    row("no path", withKey("path", "\"\""), "key \"files[0].path\": the name of the file is missing");
    row("path is a number", withKey("path", "5"), "key \"files[0].path\": a text is wanted");
    row("role", withKey("role", "\"book\""),
        "key \"files[0].role\": \"book\" is none of orders, trades, books");
    row("time form", withKey("time", R"({"column": "T", "form": "ticks"})"),
        "key \"files[0].time.form\": \"ticks\" is none of clock");
    row("time without a column", withKey("time", "{}"),
        "key \"files[0].time.column\": either this or \"sameRowAs\" is wanted");
    row("time missing", withFile(R"({"path": "a", "role": "orders", "security": "S", "order": "N"})"),
        "key \"files[0].time\": the time's column is missing");
    row("aligned with nothing", withKey("time", R"({"sameRowAs": "z.csv"})"),
        "no file before this one is \"z.csv\"");
    row("date", R"({"date": "2023-02-30", "files": []})",
        "key \"date\": a day such as \"2023-02-01\" is wanted");
    row("date that nanoseconds cannot reach", R"({"date": "7939-02-01", "files": []})",
        "key \"date\": a day such as \"2023-02-01\" is wanted");
    row("zone", R"({"timeZone": "Mars/Olympus", "files": []})",
        "key \"timeZone\": there is no time zone \"Mars/Olympus\"");
    row("security twice", withKey("security", R"({"column": "S", "constant": "X"})"),
        "key \"files[0].security\": either a column or a constant is wanted");
    row("exchange twice", withKey("exchange", R"({"column": "S", "constant": "X"})"),
        "key \"files[0].exchange\": only one of");
    row("kind word", withKey("kind", R"({"column": "K", "words": {"A": "added"}})"),
        "key \"files[0].kind.words\": \"added\" is none of ignore, add");
    row("kind without words", withKey("kind", R"({"column": "K"})"),
        "key \"files[0].kind.words\": a column and its words are wanted");
    row("kind is no object", withKey("kind", "\"K\""), "key \"files[0].kind\": an object is wanted");
    row("side word", withKey("side", R"({"column": "K", "words": {"A": "long"}})"),
        "key \"files[0].side.words\": \"long\" is none of none, buy, sell");
    row("word is a list", withKey("side", R"({"column": "K", "words": {"A": []}})"),
        "the meaning of \"A\" is no text");
    row("column number", withKey("order", "-1"),
        "key \"files[0].order\": a column number from 0 to 4095 is wanted");
    row("column is a list", withKey("order", "[]"),
        "key \"files[0].order\": the name or the number of a column is wanted");
    row("scale", withKey("price", R"({"column": "P", "scale": "1/0"})"), "key \"files[0].price.scale\"");
    row("scale is a word", withKey("price", R"({"column": "P", "scale": "cents"})"),
        "key \"files[0].price.scale\"");
    row("negative scale", withKey("price", R"({"column": "P", "scale": -1})"),
        "key \"files[0].price.scale\"");
    row("tick", withKey("price", R"({"column": "P", "tick": "0"})"), "key \"files[0].price.tick\"");
    row("decimals", withKey("price", R"({"column": "P", "decimals": 9})"),
        "key \"files[0].price.decimals\": a whole number from 0 to 8 is wanted");
    row("price without a column", withKey("price", R"({"scale": 1})"),
        "key \"files[0].price.column\": the column is missing");
    row("none is no list", withKey("price", R"({"column": "P", "none": "0"})"),
        "key \"files[0].price.none\": a list of texts is wanted");
    row("separator", withKey("format", R"({"separator": "::"})"),
        "key \"files[0].format.separator\": one ASCII character is wanted");
    row("head", withKey("format", R"({"head": 1})"), "key \"files[0].format.head\": true or false is wanted");
    row("names beside a head", withKey("format", R"({"columns": ["a"]})"), "key \"files[0].format.columns\"");
    row("name without a head", withKey("format", R"({"head": false})"),
        "the file has no head line, so column");
    row("pattern", withKey("levels", R"({"askPrice": "Ask"})"),
        "key \"files[0].levels.askPrice\": \"Ask\" has no %1 for the running number");
    row("pattern missing", withKey("levels", R"({"askPrice": "Ask%1"})"),
        "key \"files[0].levels.askQuantity\": a pattern such as");
    row("too many levels",
        withKey(
            "levels",
            R"({"askPrice": "A%1", "askQuantity": "B%1", "bidPrice": "C%1", "bidQuantity": "D%1", "to": 999})"),
        "from 1 to 50 levels are wanted");
    row("books without levels", withKey("role", "\"books\""),
        "key \"files[0].levels\": a file of books needs");
    row("orders without numbers",
        withFile(R"({"path": "a", "role": "orders", "time": {"column": 0}, "security": 1})"),
        "key \"files[0].order\": a file of orders needs");
    row("trades without quantity",
        withFile(R"({"path": "a", "role": "trades", "time": {"column": 0}, "security": 1})"),
        "key \"files[0].quantity\": a file of trades needs");
}

void tst_ZrFeedDescriptionReader::whatIsWrongIsOneSentenceThatNamesTheKey()
{
    QFETCH(QByteArray, content);
    QFETCH(QString, expected);
    QVERIFY(!read(content));
    QVERIFY2(m_error.contains(expected), qPrintable(m_error));
    QVERIFY(m_error.contains(QStringLiteral("feed.json: ")));
    QVERIFY(!m_error.contains(QLatin1Char('\n')));
}

void tst_ZrFeedDescriptionReader::whatIsNoDescriptionIsRefused_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<QString>("expected");
    QTest::newRow("empty") << QByteArray() << "is no JSON";
    QTest::newRow("broken") << QByteArray("{\n\"files\": [\n}") << "line 3 is no JSON";
    QTest::newRow("a list") << QByteArray("[]") << "it holds no JSON object";
    QTest::newRow("nested") << QByteArray(500000, '[') << "is no JSON";
    QTest::newRow("binary") << QByteArray(1000, '\xff') << "is no JSON";
    QTest::newRow("large") << QByteArray(1100000, ' ') << "no larger than a megabyte";
}

void tst_ZrFeedDescriptionReader::whatIsNoDescriptionIsRefused()
{
    QFETCH(QByteArray, content);
    QFETCH(QString, expected);
    QVERIFY(!read(content));
    QVERIFY2(m_error.contains(expected), qPrintable(m_error));
}

void tst_ZrFeedDescriptionReader::aMissingFileIsRefused()
{
    QVERIFY(!ZrFeedDescriptionReader::read(m_folder.filePath(QStringLiteral("none.json")), &m_description,
                                           &m_error));
    QVERIFY(m_error.contains(QStringLiteral("none.json: there is no such file")));
    QVERIFY(!ZrFeedDescriptionReader::read(m_folder.path(), &m_description, &m_error));
}

ZR_TEST_GUILESS_MAIN(tst_ZrFeedDescriptionReader)
#include "tst_zrfeeddescriptionreader.moc"
