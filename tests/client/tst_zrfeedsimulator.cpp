#include "ZrFeedDescriptionReader.h"
#include "ZrFeedMessages.h"
#include "ZrFeedRecorder.h"
#include "ZrFeedSimulator.h"
#include "ZrRecordingSource.h"
#include "ZrTestMain.h"

#include <QtCore/QTemporaryDir>

class tst_ZrFeedSimulator : public QObject
{
    Q_OBJECT
private slots:
    void theSameSeedGivesTheSameEvents();
    void anotherSeedGivesOtherEvents();
    void everyKindOfEventComes();
    void theBookIsNeverCrossed();
    void openOrdersStayBounded();
    void theRateIsThatOfTheMessages();
    void aRecordingReadsBackAsWritten();
    void aRecordingThatCannotBeWrittenSaysSo();
    void withoutSecuritiesThereIsNothing();
    void theBookTradesPriceBeforeTime();
    void theShippedRecordingIsWhole();
};

namespace {
std::vector<ZrSimSecurity> securities()
{
    ZrDecimal price;
    std::vector<ZrSimSecurity> result;
    for (const char *text : {"33.94", "5.07", "1801.01"}) {
        if (ZrDecimal::parse(text, &price))
            result.push_back({"60000" + QByteArray::number(int(result.size())) + ".SH", price});
    }
    return result;
}

QByteArray textOf(const ZrFeedEvent &e)
{
    QByteArray text = QByteArray::number(int(e.kind)) + ' ' + QByteArray::number(e.timeNs) + ' ' +
                      QByteArray::number(e.sequence) + ' ' + e.symbol + ' ' +
                      QByteArray::number(int(e.side)) + ' ' + e.order + ' ' + e.buyOrder + ' ' + e.sellOrder +
                      ' ' + e.price.toString().toLatin1() + ' ' + e.quantity.toString().toLatin1() + ' ' +
                      e.phase + ' ' + e.last.toString().toLatin1() + ' ' +
                      e.previousClose.toString().toLatin1();
    for (const auto *levels : {&e.asks, &e.bids}) {
        for (const ZrFeedLevel &level : *levels)
            text += ' ' + level.price.toString().toLatin1() + '*' + level.quantity.toString().toLatin1();
        text += '/';
    }
    return text;
}

QList<QByteArray> run(ZrFeedSource *source)
{
    QList<QByteArray> result;
    ZrFeedEvent event;
    while (source->next(&event))
        result.append(textOf(event));
    return result;
}

QList<QByteArray> simulate(quint32 seed, qint64 events)
{
    ZrFeedSimulator::Options options;
    options.seed = seed;
    options.events = events;
    ZrFeedSimulator simulator(options, securities());
    return run(&simulator);
}
} // namespace

void tst_ZrFeedSimulator::theSameSeedGivesTheSameEvents()
{
    const QList<QByteArray> first = simulate(7, 5000);
    QCOMPARE(first.size(), 5000);
    QCOMPARE(simulate(7, 5000), first);
}

void tst_ZrFeedSimulator::anotherSeedGivesOtherEvents()
{
    QVERIFY(simulate(7, 100) != simulate(8, 100));
}

void tst_ZrFeedSimulator::everyKindOfEventComes()
{
    ZrFeedSimulator::Options options;
    options.events = 20000;
    ZrFeedSimulator simulator(options, securities());
    ZrFeedMessages messages(simulator.zone(), {});
    QList<ZrFeedMessage> out;
    QSet<int> kinds;
    QSet<QByteArray> symbols;
    bool partly = false;
    int levels = 0;
    ZrFeedEvent event;
    while (simulator.next(&event)) {
        kinds.insert(int(event.kind));
        symbols.insert(event.symbol);
        levels = qMax(levels, qMin(event.asks.size(), event.bids.size()));
        out.clear();
        messages.append(event, &out);
        for (const ZrFeedMessage &message : qAsConst(out))
            partly = partly || message.record.value(QStringLiteral("OrderStatus")) == QStringLiteral("1");
    }
    for (const ZrFeedKind kind : {ZrFeedKind::Add, ZrFeedKind::Cancel, ZrFeedKind::Delete, ZrFeedKind::Reject,
                                  ZrFeedKind::Trade, ZrFeedKind::Book})
        QVERIFY2(kinds.contains(int(kind)), qPrintable(QString::number(int(kind))));
    QCOMPARE(symbols.size(), 3);
    QCOMPARE(levels, 10);
    QVERIFY(partly);
    QVERIFY(messages.totals().fills > 1000);
    QCOMPARE(simulator.linesSkipped(), 0);
    QCOMPARE(simulator.problems(), QString());
}

void tst_ZrFeedSimulator::theBookIsNeverCrossed()
{
    ZrFeedSimulator::Options options;
    options.events = 20000;
    ZrFeedSimulator simulator(options, securities());
    ZrFeedEvent event;
    while (simulator.next(&event)) {
        if (!event.asks.isEmpty() && !event.bids.isEmpty())
            QVERIFY(event.bids.constFirst().price < event.asks.constFirst().price);
    }
}

void tst_ZrFeedSimulator::openOrdersStayBounded()
{
    ZrFeedSimulator::Options options;
    options.events = 50000;
    options.openOrdersKept = 300;
    ZrFeedSimulator simulator(options, securities());
    ZrOrderTracker tracker;
    QVector<ZrExecReport> reports;
    ZrFeedEvent event;
    int most = 0;
    while (simulator.next(&event)) {
        tracker.apply(event, &reports);
        reports.clear();
        most = qMax(most, tracker.openOrders());
    }
    QVERIFY2(most > 100 && most <= 310, qPrintable(QString::number(most)));
}

void tst_ZrFeedSimulator::theRateIsThatOfTheMessages()
{
    ZrFeedSimulator::Options options;
    options.events = 10000;
    options.rate = 500;
    ZrFeedSimulator simulator(options, securities());
    ZrFeedMessages messages(simulator.zone(), {});
    QList<ZrFeedMessage> out;
    ZrFeedEvent event;
    qint64 firstNs = 0;
    while (simulator.next(&event)) {
        firstNs = firstNs == 0 ? event.timeNs : firstNs;
        messages.append(event, &out);
    }
    const double rate = out.size() / (double(event.timeNs - firstNs) / 1e9);
    QVERIFY2(rate > 495 && rate < 505, qPrintable(QString::number(rate)));
}

void tst_ZrFeedSimulator::aRecordingReadsBackAsWritten()
{
    QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("sim.json"));
    ZrFeedSimulator::Options options;
    options.events = 5000;
    ZrFeedSimulator simulator(options, securities());
    ZrFeedRecorder recorder(path);
    QList<QByteArray> expected;
    ZrFeedEvent event;
    while (simulator.next(&event)) {
        expected.append(textOf(event));
        recorder.add(event);
    }
    QVERIFY(!QFile::exists(path));
    QCOMPARE(recorder.finish(QStringLiteral("Asia/Shanghai")), QString());
    ZrFeedDescription description;
    QString error;
    QVERIFY2(ZrFeedDescriptionReader::read(path, &description, &error), qPrintable(error));
    ZrRecordingSource source(description);
    QCOMPARE(source.open(), QString());
    QCOMPARE(run(&source), expected);
    QCOMPARE(source.zone(), simulator.zone());
    QCOMPARE(source.problems(), QString());
}

void tst_ZrFeedSimulator::aRecordingThatCannotBeWrittenSaysSo()
{
    ZrFeedRecorder recorder(QStringLiteral("/nonexistent/sim.json"));
    recorder.add(ZrFeedEvent());
    QCOMPARE(recorder.finish(QStringLiteral("UTC")),
             QStringLiteral("the recording /nonexistent/sim.json cannot be written"));
}

void tst_ZrFeedSimulator::withoutSecuritiesThereIsNothing()
{
    ZrFeedSimulator simulator(ZrFeedSimulator::Options(), {});
    ZrFeedEvent event;
    QVERIFY(!simulator.next(&event));
}

void tst_ZrFeedSimulator::theBookTradesPriceBeforeTime()
{
    ZrSimBook book;
    const ZrDecimal ten = ZrDecimal::fromInt(10);
    const ZrDecimal eleven = ZrDecimal::fromInt(11);
    const ZrDecimal lot = ZrDecimal::fromInt(100);
    QVERIFY(book.enter(ZrFeedSide::Sell, "late", eleven, lot).isEmpty());
    QVERIFY(book.enter(ZrFeedSide::Sell, "first", ten, lot).isEmpty());
    QVERIFY(book.enter(ZrFeedSide::Sell, "second", ten, lot).isEmpty());
    QCOMPARE(book.asks(10).size(), 2);
    QCOMPARE(book.asks(1).constFirst().quantity, lot + lot);
    const auto matches = book.enter(ZrFeedSide::Buy, "buyer", ten, lot + lot + lot);
    QCOMPARE(matches.size(), 2);
    QCOMPARE(matches.at(0).resting, QByteArray("first"));
    QCOMPARE(matches.at(1).resting, QByteArray("second"));
    QCOMPARE(book.bids(10).constFirst().quantity, lot);
    QCOMPARE(book.withdraw(ZrFeedSide::Buy, "nobody", ten, lot), ZrDecimal());
    QCOMPARE(book.withdraw(ZrFeedSide::Buy, "buyer", eleven, lot), ZrDecimal());
    QCOMPARE(book.withdraw(ZrFeedSide::Buy, "buyer", ten, ZrDecimal::fromInt(30)), ZrDecimal::fromInt(30));
    QCOMPARE(book.withdraw(ZrFeedSide::Buy, "buyer", ten, lot), ZrDecimal::fromInt(70));
    QVERIFY(book.bids(10).isEmpty());
}

void tst_ZrFeedSimulator::theShippedRecordingIsWhole()
{
    ZrFeedDescription description;
    QString error;
    const QString path = QStringLiteral(ZR_CLIENT_RECORDINGS "/sample.json");
    QVERIFY2(ZrFeedDescriptionReader::read(path, &description, &error), qPrintable(error));
    ZrRecordingSource source(description);
    QCOMPARE(source.open(), QString());
    QVERIFY(run(&source).size() > 1000);
    QCOMPARE(source.linesSkipped(), 0);
}

ZR_TEST_GUILESS_MAIN(tst_ZrFeedSimulator)
#include "tst_zrfeedsimulator.moc"
