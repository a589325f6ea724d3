#include "ZrFeedDescriptionReader.h"
#include "ZrFeedMessages.h"
#include "ZrRecordingSource.h"
#include "ZrTestMain.h"

#include <QtCore/QDir>
#include <QtCore/QTemporaryDir>

#include <zlib.h>

/// Runs a whole recorded day through the feed and counts its files a second time by the plainest means.
class tst_ZrSharedRecording : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase();
    void finalCountsAreThoseOfTheFiles();
    void everyPriceIsAWholeNumberOfTicks();
    void booksAreReadWhole();

private:
    QString folder() const;
    QTemporaryDir m_temporary;
    ZrFeedDescription m_description;
};

namespace {
// Rows of a gzip file, cut at every comma; the head line is left out.
QVector<QList<QByteArray>> rowsOf(const QString &path, QHash<QByteArray, int> *columns)
{
    QVector<QList<QByteArray>> rows;
    gzFile file = gzopen(QFile::encodeName(path).constData(), "rb");
    char line[8192];
    while (file && gzgets(file, line, sizeof line)) {
        const QList<QByteArray> fields = QByteArray(line).trimmed().split(',');
        if (columns->isEmpty()) {
            for (int i = 0; i < fields.size(); ++i)
                columns->insert(fields.at(i), i);
        } else {
            rows.append(fields);
        }
    }
    if (file)
        gzclose(file);
    return rows;
}
} // namespace

QString tst_ZrSharedRecording::folder() const
{
    const QString named = qEnvironmentVariable("ZR_RECORDINGS_DIR", QStringLiteral(ZR_RECORDINGS_DIR));
    return named + QStringLiteral("/sse_600519_20230201");
}

void tst_ZrSharedRecording::initTestCase()
{
    if (!QDir(folder()).exists())
        QSKIP("the recording is not on this machine");
    QFile words(QStringLiteral(ZR_CLIENT_TEST_DATA "/shanghai.json"));
    QVERIFY(words.open(QIODevice::ReadOnly));
    QFile written(m_temporary.filePath(QStringLiteral("feed.json")));
    QVERIFY(written.open(QIODevice::WriteOnly));
    written.write(words.readAll().replace("@FOLDER@", QDir(folder()).absolutePath().toUtf8()));
    written.close();
    QString error;
    QVERIFY2(ZrFeedDescriptionReader::read(written.fileName(), &m_description, &error), qPrintable(error));
}

void tst_ZrSharedRecording::finalCountsAreThoseOfTheFiles()
{
    QHash<QByteArray, int> e;
    QHash<QByteArray, int> t;
    const auto orders = rowsOf(folder() + QStringLiteral("/entrust.csv.gz"), &e);
    const auto trades = rowsOf(folder() + QStringLiteral("/trade.csv.gz"), &t);
    QSet<QByteArray> numbers;
    qint64 deleted = 0;
    QHash<QByteArray, qint64> rest; // of the orders with a row
    for (const auto &row : orders) {
        const QByteArray number = row.at(e.value("OrderNO"));
        numbers.insert(number);
        const bool isDelete = row.at(e.value("OrderType")) == "D";
        deleted += isDelete ? 1 : 0;
        rest[number] += row.at(e.value("Balance")).toLongLong() * (isDelete ? -1 : 1);
    }
    qint64 volume = 0;
    QHash<QByteArray, qint64> filled;
    for (const auto &row : trades) {
        volume += row.at(t.value("TradVolume")).toLongLong();
        for (const char *side : {"TradeBuyNo", "TradeSellNo"}) {
            numbers.insert(row.at(t.value(side)));
            filled[row.at(t.value(side))] += row.at(t.value("TradVolume")).toLongLong();
        }
    }

    ZrRecordingSource source(m_description);
    QCOMPARE(source.open(), QString());
    ZrFeedMessages messages(source.zone(), {});
    QList<ZrFeedMessage> out;
    ZrFeedEvent event;
    QHash<QByteArray, ZrOrderState> last;
    ZrOrderTracker tracker;
    QVector<ZrExecReport> reports;
    while (source.next(&event)) {
        out.clear();
        messages.append(event, &out);
        reports.clear();
        tracker.apply(event, &reports);
        for (const ZrExecReport &report : qAsConst(reports))
            last.insert(report.order.number, report.order);
    }
    QCOMPARE(source.linesSkipped(), 0);
    QCOMPARE(messages.totals().events, orders.size() + trades.size() + 5109);
    QCOMPARE(messages.totals().orders, numbers.size());
    QCOMPARE(messages.totals().fills, trades.size() * 2);
    QCOMPARE(messages.totals().trades, trades.size());
    QCOMPARE(messages.totals().volume, ZrDecimal::fromInt(volume));
    QCOMPARE(messages.totals().cancels, deleted);
    QCOMPARE(last.size(), numbers.size());
    int open = 0;
    for (const ZrOrderState &order : qAsConst(last)) {
        QCOMPARE(order.filled, ZrDecimal::fromInt(filled.value(order.number)));
        open += order.isFinished() ? 0 : 1;
    }
    QCOMPARE(tracker.openOrders(), open);
    // What came after an order's row traded from its rest; before it, from what the row no longer told.
    for (auto it = rest.cbegin(); it != rest.cend(); ++it)
        QVERIFY(last.value(it.key()).rest().units() <= qMax<qint64>(0, it.value()) * ZrDecimal::One);
}

void tst_ZrSharedRecording::everyPriceIsAWholeNumberOfTicks()
{
    ZrRecordingSource source(m_description);
    QCOMPARE(source.open(), QString());
    const ZrDecimal tick = ZrDecimal::fromUnits(ZrDecimal::One / 100);
    ZrFeedEvent event;
    int prices = 0;
    int noisy = 0;
    const auto check = [&](ZrDecimal price) {
        ++prices;
        noisy += price.roundedTo(tick) == price ? 0 : 1;
    };
    while (source.next(&event)) {
        check(event.price);
        check(event.last);
        for (const ZrFeedLevel &level : qAsConst(event.asks))
            check(level.price);
        for (const ZrFeedLevel &level : qAsConst(event.bids))
            check(level.price);
    }
    QVERIFY(prices > 200000);
    QCOMPARE(noisy, 0);
}

void tst_ZrSharedRecording::booksAreReadWhole()
{
    QHash<QByteArray, int> columns;
    const auto rows = rowsOf(folder() + QStringLiteral("/snapshot.csv.gz"), &columns);
    int levels = 0;
    for (const auto &row : rows) {
        for (int i = 1; i <= 10; ++i) {
            levels += row.at(columns.value("AskVolume" + QByteArray::number(i))).toLongLong() > 0 ? 1 : 0;
            levels += row.at(columns.value("BidVolume" + QByteArray::number(i))).toLongLong() > 0 ? 1 : 0;
        }
    }
    ZrRecordingSource source(m_description);
    QCOMPARE(source.open(), QString());
    ZrFeedEvent event;
    int books = 0;
    int found = 0;
    ZrFeedEvent lastBook;
    while (source.next(&event)) {
        if (event.kind != ZrFeedKind::Book)
            continue;
        ++books;
        found += event.asks.size() + event.bids.size();
        lastBook = event;
    }
    QCOMPARE(books, rows.size());
    QCOMPARE(found, levels);
    QCOMPARE(lastBook.symbol, QByteArray("600519.SH"));
    QCOMPARE(lastBook.phase, QByteArray("E"));
    QCOMPARE(lastBook.previousClose.toString(), QStringLiteral("1845.76"));
}

ZR_TEST_GUILESS_MAIN(tst_ZrSharedRecording)
#include "tst_zrsharedrecording.moc"
