#include "ZrFeedDescriptionReader.h"
#include "ZrRecordingSource.h"
#include "ZrRecordingTee.h"
#include "ZrTestMain.h"

#include <QtCore/QTemporaryDir>

/// A feed that is recorded while it runs.
class tst_ZrRecordingTee : public QObject
{
    Q_OBJECT
private slots:
    void eventsPassUnchanged();
    void theRecordingReadsBackInTheOrderOfTheFeed();
    void whatTheSourceSaysIsHandedOn();
    void aRecordingThatCannotBeWrittenStopsNoFeed();

private:
    QString path() const { return m_folder.filePath(QStringLiteral("tape.json")); }
    QTemporaryDir m_folder;
};

namespace {
// Events of one time and without numbers, which only their order tells apart.
class ThreeOrders : public ZrFeedSource
{
public:
    bool next(ZrFeedEvent *event) override
    {
        static const char *const orders[] = {"30", "10", "20"};
        if (m_given == 3)
            return false;
        *event = ZrFeedEvent();
        event->kind = m_given == 1 ? ZrFeedKind::Book : ZrFeedKind::Add;
        event->side = ZrFeedSide::Buy;
        event->timeNs = 1000000000;
        event->symbol = "600000.SH";
        event->order = orders[m_given];
        event->quantity = ZrDecimal::fromInt(100 + m_given);
        event->hasQuantity = true;
        if (event->kind == ZrFeedKind::Book)
            event->asks = {{ZrDecimal::fromInt(7), ZrDecimal::fromInt(300)}};
        ++m_given;
        return true;
    }
    QTimeZone zone() const override { return QTimeZone("Asia/Tokyo"); }
    qint64 linesSkipped() const override { return 4; }
    QString problems() const override { return QStringLiteral("a.csv, line 2: broken"); }

private:
    int m_given = 0;
};
} // namespace

void tst_ZrRecordingTee::eventsPassUnchanged()
{
    ZrRecordingTee tee(std::make_unique<ThreeOrders>(), path());
    ThreeOrders plain;
    ZrFeedEvent got, expected;
    while (plain.next(&expected)) {
        QVERIFY(tee.next(&got));
        QCOMPARE(got.kind, expected.kind);
        QCOMPARE(got.order, expected.order);
        QCOMPARE(got.quantity, expected.quantity);
        QCOMPARE(got.sequence, qint64(-1)); // its numbers are the recording's only
    }
    QVERIFY(!tee.next(&got));
}

void tst_ZrRecordingTee::theRecordingReadsBackInTheOrderOfTheFeed()
{
    ZrRecordingTee tee(std::make_unique<ThreeOrders>(), path());
    ZrFeedEvent event;
    while (tee.next(&event)) {
    }
    QVERIFY(!QFile::exists(path())); // nothing half done is to be seen
    QCOMPARE(tee.finish(), QString());

    ZrFeedDescription description;
    QString error;
    QVERIFY2(ZrFeedDescriptionReader::read(path(), &description, &error), qPrintable(error));
    ZrRecordingSource source(description);
    QCOMPARE(source.open(), QString());
    QCOMPARE(source.zone(), QTimeZone("Asia/Tokyo"));
    // Orders and books lie in two files: the numbers bring the book back between the orders.
    QList<QByteArray> seen;
    while (source.next(&event))
        seen.append(event.kind == ZrFeedKind::Book ? QByteArray("book") : event.order);
    QCOMPARE(seen, (QList<QByteArray>{"30", "book", "20"}));
    QCOMPARE(source.problems(), QString());
}

void tst_ZrRecordingTee::whatTheSourceSaysIsHandedOn()
{
    const ZrRecordingTee tee(std::make_unique<ThreeOrders>(), path());
    QCOMPARE(tee.zone(), QTimeZone("Asia/Tokyo"));
    QCOMPARE(tee.linesSkipped(), qint64(4));
    QCOMPARE(tee.problems(), QStringLiteral("a.csv, line 2: broken"));
}

void tst_ZrRecordingTee::aRecordingThatCannotBeWrittenStopsNoFeed()
{
    const QString nowhere = m_folder.filePath(QStringLiteral("missing/tape.json"));
    ZrRecordingTee tee(std::make_unique<ThreeOrders>(), nowhere);
    ZrFeedEvent event;
    int count = 0;
    while (tee.next(&event))
        ++count;
    QCOMPARE(count, 3);
    QCOMPARE(tee.finish(), QStringLiteral("the recording %1 cannot be written").arg(nowhere));
}

ZR_TEST_GUILESS_MAIN(tst_ZrRecordingTee)
#include "tst_zrrecordingtee.moc"
