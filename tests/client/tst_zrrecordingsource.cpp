#include "ZrFeedDescriptionReader.h"
#include "ZrRecordingSource.h"
#include "ZrTestMain.h"

#include <QtCore/QTemporaryDir>

class tst_ZrRecordingSource : public QObject
{
    Q_OBJECT
private slots:
    void filesAreMergedByTimeThenSequence();
    void eventsOfOneTimeComeInTheOrderOfTheFiles();
    void aFileKeepsItsOwnOrder();
    void numberedKindsWithoutAHeadAreRead();
    void aBookTakesTheTimesOfTheRowsBesideIt();
    void ordersAndTradesMayShareAFile();
    void levelsAreFoundByPatternAndByStep_data();
    void levelsAreFoundByPatternAndByStep();
    void theSuffixComesFromWhereTheDescriptionSays_data();
    void theSuffixComesFromWhereTheDescriptionSays();
    void aBrokenLineIsSkippedCountedAndReported();
    void onlyTheFirstComplaintsAreKept();
    void commentsAndEmptyLinesAreNoLines();
    void aMissingColumnIsOneSentence();
    void aMissingFileIsOneSentence();
    void aFileThatBreaksOffIsReported();

private:
    void write(const char *name, const QByteArray &content);
    QString load(const QByteArray &description);
    QVector<ZrFeedEvent> all();
    QTemporaryDir m_folder;
    std::unique_ptr<ZrRecordingSource> m_source;
};

void tst_ZrRecordingSource::write(const char *name, const QByteArray &content)
{
    QFile file(m_folder.filePath(QString::fromLatin1(name)));
    QVERIFY(file.open(QIODevice::WriteOnly));
    QCOMPARE(file.write(content), content.size());
}

QString tst_ZrRecordingSource::load(const QByteArray &description)
{
    write("feed.json", description);
    ZrFeedDescription read;
    QString error;
    if (!ZrFeedDescriptionReader::read(m_folder.filePath(QStringLiteral("feed.json")), &read, &error))
        return error;
    m_source = std::make_unique<ZrRecordingSource>(read);
    return m_source->open();
}

QVector<ZrFeedEvent> tst_ZrRecordingSource::all()
{
    QVector<ZrFeedEvent> events;
    ZrFeedEvent event;
    while (m_source->next(&event))
        events.append(event);
    return events;
}

void tst_ZrRecordingSource::filesAreMergedByTimeThenSequence()
{
    write("a.csv", "T,N,Q,B\n10:00:00,1,5,10\n10:00:02,2,5,30\n10:00:02,3,5,50\n");
    write("b.csv", "T,N,Q,B\n10:00:01,4,5,20\n10:00:02,5,5,40\n10:00:03,6,5,5\n");
    const QByteArray words =
        R"({"defaults": {"role": "orders", "time": {"column": "T"}, "security": {"constant": "X"},
        "sequence": "B", "order": "N", "quantity": "Q"}, "files": [{"path": "a.csv"}, {"path": "b.csv"}]})";
    QCOMPARE(load(words), QString());
    QByteArray order;
    for (const ZrFeedEvent &event : all())
        order += event.order;
    QCOMPARE(order, QByteArray("142536"));
}

void tst_ZrRecordingSource::eventsOfOneTimeComeInTheOrderOfTheFiles()
{
    write("a.csv", "T,N,Q\n10:00:00,1,5\n10:00:01,2,5\n");
    write("b.csv", "T,N,Q\n10:00:00,3,5\n10:00:01,4,5\n");
    const QByteArray words =
        R"({"defaults": {"role": "orders", "time": {"column": "T"}, "security": {"constant": "X"},
        "order": "N", "quantity": "Q"}, "files": [{"path": "b.csv"}, {"path": "a.csv"}]})";
    QCOMPARE(load(words), QString());
    QByteArray order;
    for (const ZrFeedEvent &event : all())
        order += event.order;
    QCOMPARE(order, QByteArray("3142"));
}

void tst_ZrRecordingSource::aFileKeepsItsOwnOrder()
{
    write("a.csv", "T,N,Q\n10:00:05,1,5\n10:00:01,2,5\n");
    const QByteArray words = R"({"files": [{"path": "a.csv", "role": "orders", "time": {"column": "T"},
        "security": {"constant": "X"}, "order": "N", "quantity": "Q"}]})";
    QCOMPARE(load(words), QString());
    const QVector<ZrFeedEvent> events = all();
    QCOMPARE(events.size(), 2);
    QCOMPARE(events.at(0).order, QByteArray("1"));
    QVERIFY(events.at(1).timeNs < events.at(0).timeNs);
}

void tst_ZrRecordingSource::numberedKindsWithoutAHeadAreRead()
{
    write(
        "m.csv",
        "34200.017459617,5,0,1,2238200,-1\n34200.18,1,11885113,21,2238100,1\n34200.2,2,11885113,1,2238100,1\n"
        "34200.3,4,11885113,10,2238100,1\n34200.4,3,11885113,10,2238100,1\n34200.5,7,0,0,-1,-1\n");
    const QByteArray words =
        R"({"timeZone": "America/New_York", "date": "2012-06-21", "files": [{"path": "m.csv", "role": "orders",
        "format": {"head": false}, "time": {"column": 0, "form": "seconds"}, "security": {"constant": "AMZN"},
        "exchange": {"constant": "OQ"}, "order": 2, "quantity": 3, "price": {"column": 4, "scale": "1/10000"},
        "phase": {"column": 4, "words": {"-1": "H"}},
        "kind": {"column": 1, "words": {"1": "add", "2": "cancel", "3": "delete", "4": "execute", "5": "execute", "7": "phase"}},
        "side": {"column": 5, "words": {"1": "buy", "-1": "sell"}}}]})";
    QCOMPARE(load(words), QString());
    const QVector<ZrFeedEvent> events = all();
    QCOMPARE(m_source->problems(), QString());
    QCOMPARE(events.size(), 6);
    QCOMPARE(int(events.at(0).kind), int(ZrFeedKind::Execute));
    QCOMPARE(events.at(0).order, QByteArray());
    QCOMPARE(events.at(0).price.toString(), QStringLiteral("223.82"));
    QCOMPARE(events.at(0).timeNs, Q_INT64_C(1340285400017459617));
    QCOMPARE(events.at(0).symbol, QByteArray("AMZN.OQ"));
    QCOMPARE(int(events.at(0).side), int(ZrFeedSide::Sell));
    QCOMPARE(int(events.at(2).kind), int(ZrFeedKind::Cancel));
    QCOMPARE(events.at(5).phase, QByteArray("H"));
}

void tst_ZrRecordingSource::aBookTakesTheTimesOfTheRowsBesideIt()
{
    write("m.csv", "1.5,1,7,10\n2.5,1,8,10\n2.5,1,9,10\n");
    write("b.csv", "100,1,90,2\n101,1,91,2\n102,1,-9999999999,0\n103,1,93,2\n");
    const QByteArray words = R"({"defaults": {"security": {"constant": "X"}, "format": {"head": false}},
        "files": [{"path": "m.csv", "role": "orders", "time": {"column": 0, "form": "seconds"}, "order": 2, "quantity": 3},
                  {"path": "b.csv", "role": "books", "time": {"sameRowAs": "m.csv"},
                   "levels": {"askPrice": {"first": 0, "step": 4}, "askQuantity": {"first": 1, "step": 4},
                              "bidPrice": {"first": 2, "step": 4}, "bidQuantity": {"first": 3, "step": 4}, "to": 1}}]})";
    QCOMPARE(load(words), QString());
    QByteArray order;
    QVector<ZrFeedEvent> books;
    for (const ZrFeedEvent &event : all()) {
        order += event.kind == ZrFeedKind::Book ? QByteArray("b") : event.order;
        if (event.kind == ZrFeedKind::Book)
            books.append(event);
    }
    QCOMPARE(order, QByteArray("7b8b9b"));
    QCOMPARE(books.at(0).timeNs, Q_INT64_C(1500000000));
    QCOMPARE(books.at(1).asks.constFirst().price.toString(), QStringLiteral("101"));
    QVERIFY(books.at(2).bids.isEmpty());
    QCOMPARE(m_source->linesSkipped(), 1);
    QCOMPARE(m_source->problems(), QStringLiteral("b.csv, line 4: the file with the times has no such line"));
}

void tst_ZrRecordingSource::ordersAndTradesMayShareAFile()
{
    write("x.csv", "time|type|oid|buy|sell|px|qty|bs\n1675215000000000001|N|11|||1.5|100|B\n"
                   "1675215000000000002|T||11|12|1.5|60|S\n1675215000000000003|C||0|12||40|S\n");
    const QByteArray words =
        R"({"files": [{"path": "x.csv", "role": "orders", "format": {"separator": "|"}, "security": {"constant": "X"},
        "time": {"column": "time", "form": "nanoseconds", "since": "epoch"}, "order": "oid", "buyOrder": "buy",
        "sellOrder": "sell", "price": "px", "quantity": "qty", "side": "bs",
        "kind": {"column": "type", "words": {"N": "add", "T": "trade", "C": "cancel"}}}]})";
    QCOMPARE(load(words), QString());
    const QVector<ZrFeedEvent> events = all();
    QCOMPARE(events.size(), 3);
    QCOMPARE(events.at(0).timeNs, Q_INT64_C(1675215000000000001));
    QCOMPARE(int(events.at(1).kind), int(ZrFeedKind::Trade));
    QCOMPARE(events.at(1).sellOrder, QByteArray("12"));
    QCOMPARE(events.at(2).order, QByteArray("12"));
}

void tst_ZrRecordingSource::levelsAreFoundByPatternAndByStep_data()
{
    QTest::addColumn<QByteArray>("head");
    QTest::addColumn<QByteArray>("levels");
    QTest::newRow("from one, one side after the other")
        << QByteArray("T,AP1,AP2,AV1,AV2,BP1,BP2,BV1,BV2")
        << QByteArray(
               R"("askPrice": "AP%1", "askQuantity": "AV%1", "bidPrice": "BP%1", "bidQuantity": "BV%1", "to": 2)");
    QTest::newRow("from zero, by numbers")
        << QByteArray("T,a,b,c,d,e,f,g,h")
        << QByteArray(
               R"("askPrice": {"first": 1}, "askQuantity": {"first": 3}, "bidPrice": {"first": 5}, "bidQuantity": {"first": 7}, "from": 0, "to": 1)");
    QTest::newRow("number in the middle, further levels absent")
        << QByteArray("T,a00px,a01px,a00sz,a01sz,b00px,b01px,b00sz,b01sz")
        << QByteArray(
               R"("askPrice": "a0%1px", "askQuantity": "a0%1sz", "bidPrice": "b0%1px", "bidQuantity": "b0%1sz", "from": 0, "to": 9)");
}

void tst_ZrRecordingSource::levelsAreFoundByPatternAndByStep()
{
    QFETCH(QByteArray, head);
    QFETCH(QByteArray, levels);
    write("b.csv", head + "\n10:00:00,5.1,5.2,100,200,5.0,,300,\n");
    const QByteArray words = R"({"files": [{"path": "b.csv", "role": "books", "time": {"column": "T"},
        "security": {"constant": "X"}, "levels": {)" +
                             levels + "}}]}";
    QCOMPARE(load(words), QString());
    const QVector<ZrFeedEvent> events = all();
    QCOMPARE(events.size(), 1);
    QCOMPARE(events.at(0).asks.size(), 2);
    QCOMPARE(events.at(0).asks.at(1).price.toString(), QStringLiteral("5.2"));
    QCOMPARE(events.at(0).asks.at(1).quantity.toString(), QStringLiteral("200"));
    QCOMPARE(events.at(0).bids.size(), 1);
    QCOMPARE(events.at(0).bids.at(0).quantity.toString(), QStringLiteral("300"));
}

void tst_ZrRecordingSource::theSuffixComesFromWhereTheDescriptionSays_data()
{
    QTest::addColumn<QByteArray>("exchange");
    QTest::addColumn<QByteArray>("expected");
    QTest::newRow("none") << QByteArray() << QByteArray("600519");
    QTest::newRow("constant") << QByteArray(R"(, "exchange": {"constant": "SH"})") << QByteArray("600519.SH");
    QTest::newRow("column") << QByteArray(R"(, "exchange": "M")") << QByteArray("600519.XSHG");
    QTest::newRow("words") << QByteArray(R"(, "exchange": {"column": "M", "words": {"XSHG": "SH"}})")
                           << QByteArray("600519.SH");
    QTest::newRow("words, any other")
        << QByteArray(R"(, "exchange": {"column": "M", "words": {"*": "OT"}})") << QByteArray("600519.OT");
    QTest::newRow("prefix") << QByteArray(R"(, "exchange": {"byPrefix": {"6": "SH", "0": "SZ"}})")
                            << QByteArray("600519.SH");
}

void tst_ZrRecordingSource::theSuffixComesFromWhereTheDescriptionSays()
{
    QFETCH(QByteArray, exchange);
    QFETCH(QByteArray, expected);
    write("a.csv", "T,N,Q,S,M\n10:00:00,1,5,600519,XSHG\n");
    const QByteArray words =
        R"({"files": [{"path": "a.csv", "role": "orders", "time": {"column": "T"}, "security": "S",
        "order": "N", "quantity": "Q")" +
        exchange + "}]}";
    QCOMPARE(load(words), QString());
    QCOMPARE(all().value(0).symbol, expected);
}

void tst_ZrRecordingSource::aBrokenLineIsSkippedCountedAndReported()
{
    write("a.csv",
          "T,K,B,N,Q,P\n10:00:00,A,B,1,5,1\nnoon,A,B,2,5,1\n10:00:00,Z,B,3,5,1\n10:00:00,A,?,4,5,1\n"
          "10:00:00,A,B,,5,1\n10:00:00,A,B,6,five,1\n10:00:00,A,B,7,,1\n10:00:00,A,B,8,-5,1\n\"10:00:00,A\n"
          "10:00:00\n10:00:01,A,S,9,5,1\n");
    const QByteArray words =
        R"({"files": [{"path": "a.csv", "role": "orders", "time": {"column": "T"}, "security": {"constant": "X"},
        "kind": {"column": "K", "words": {"A": "add"}}, "side": "B", "order": "N", "quantity": "Q", "price": "P"}]})";
    QCOMPARE(load(words), QString());
    QCOMPARE(all().size(), 2);
    QCOMPARE(m_source->linesSkipped(), 9);
    QCOMPARE(m_source->problems().split(QLatin1Char('\n')),
             (QStringList{QStringLiteral("a.csv, line 3: \"noon\" is no time of the form told"),
                          QStringLiteral("a.csv, line 4: \"Z\" is no kind of event"),
                          QStringLiteral("a.csv, line 5: \"?\" is no side"),
                          QStringLiteral("a.csv, line 6: the order's number is missing"),
                          QStringLiteral("a.csv, line 7: a price or a quantity is no number"),
                          QStringLiteral("and 4 more lines")}));
}

void tst_ZrRecordingSource::onlyTheFirstComplaintsAreKept()
{
    write("a.csv", "T,N,Q\n" + QByteArray("x,y,z\n").repeated(10000));
    const QByteArray words =
        R"({"files": [{"path": "a.csv", "role": "orders", "time": {"column": "T"}, "security": {"constant": "X"},
        "order": "N", "quantity": "Q"}]})";
    QCOMPARE(load(words), QString());
    QCOMPARE(all().size(), 0);
    QCOMPARE(m_source->linesSkipped(), 10000);
    QCOMPARE(m_source->problems().split(QLatin1Char('\n')).size(), ZrFeedProblems::MaxKept + 1);
}

void tst_ZrRecordingSource::commentsAndEmptyLinesAreNoLines()
{
    write("a.csv", "# a recording\n\nT,N,Q\n#10:00:00,1,5\n10:00:00,2,5\n\n");
    const QByteArray words =
        R"({"files": [{"path": "a.csv", "role": "orders", "time": {"column": "T"}, "security": {"constant": "X"},
        "order": "N", "quantity": "Q", "format": {"comment": "#"}}]})";
    QCOMPARE(load(words), QString());
    QCOMPARE(all().size(), 1);
    QCOMPARE(m_source->linesSkipped(), 0);
}

void tst_ZrRecordingSource::aMissingColumnIsOneSentence()
{
    write("a.csv", "T,N,Q\n");
    const QString error = load(R"({"files": [{"path": "a.csv", "role": "orders", "time": {"column": "Time"},
        "security": {"constant": "X"}, "order": "N", "quantity": "Q"}]})");
    QVERIFY2(error.endsWith(QStringLiteral("a.csv: there is no column \"Time\"")), qPrintable(error));
}

void tst_ZrRecordingSource::aMissingFileIsOneSentence()
{
    const QString error = load(R"({"files": [{"path": "none.csv", "role": "orders", "time": {"column": "T"},
        "security": {"constant": "X"}, "order": "N", "quantity": "Q"}]})");
    QVERIFY2(error.endsWith(QStringLiteral("none.csv: there is no such file")), qPrintable(error));
    write("empty.csv", "");
    const QString headless =
        load(R"({"files": [{"path": "empty.csv", "role": "orders", "time": {"column": "T"},
        "security": {"constant": "X"}, "order": "N", "quantity": "Q"}]})");
    QVERIFY2(headless.endsWith(QStringLiteral("empty.csv: there is no head line")), qPrintable(headless));
}

void tst_ZrRecordingSource::aFileThatBreaksOffIsReported()
{
    // A gzip head and then nothing that could be unpacked.
    write("a.csv.gz", QByteArray("\x1f\x8b\x08\x00\x00\x00\x00\x00\x00\x03", 10) + QByteArray(100, '\xff'));
    const QString error = load(R"({"files": [{"path": "a.csv.gz", "role": "orders", "time": {"column": 0},
        "security": {"constant": "X"}, "order": 1, "quantity": 2, "format": {"head": false}}]})");
    if (error.isEmpty()) {
        QCOMPARE(all().size(), 0);
        QVERIFY(m_source->problems().contains(QStringLiteral("the compressed data is broken")));
    } else {
        QVERIFY2(error.contains(QStringLiteral("the compressed data is broken")), qPrintable(error));
    }
}

ZR_TEST_GUILESS_MAIN(tst_ZrRecordingSource)
#include "tst_zrrecordingsource.moc"
