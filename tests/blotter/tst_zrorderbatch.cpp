#include "ZrOrderBatch.h"
#include "ZrTestMain.h"

class tst_ZrOrderBatch : public QObject
{
    Q_OBJECT
private slots:
    void messagesOfOneOrderBecomeOneRecord();
    void allKeyFieldsNameTheOrder();
    void whatALaterMessageLeavesOutStays();
    void aLaterMessageWithoutAValueTellsNothing();
    void recordsOfTheMessagesStayAsTheyAre();
    void noMessagesGiveNoRecords();
};

namespace {
const QStringList keys = {QStringLiteral("id"), QStringLiteral("symbol")};

ZrInboxMessage message(const char *id, const char *symbol, const QVariantMap &more)
{
    QVariantMap record = more;
    record.insert(keys.at(0), QString::fromLatin1(id));
    record.insert(keys.at(1), QString::fromLatin1(symbol));
    return {QStringLiteral("Order"), record};
}

QVariantMap field(const char *name, const QVariant &value)
{
    return {{QString::fromLatin1(name), value}};
}
} // namespace

void tst_ZrOrderBatch::messagesOfOneOrderBecomeOneRecord()
{
    const ZrOrderBatch batch({message("1", "A", field("filled", 0)), message("2", "A", field("filled", 5)),
                              message("1", "A", field("filled", 7))},
                             keys);
    QCOMPARE(batch.records().size(), size_t(2));
    QCOMPARE(batch.records()[0].value(QStringLiteral("filled")).toInt(), 7);
    QCOMPARE(batch.records()[1].value(QStringLiteral("filled")).toInt(), 5);
    QCOMPARE(batch.recordOf(0), size_t(0));
    QCOMPARE(batch.recordOf(1), size_t(1));
    QCOMPARE(batch.recordOf(2), size_t(0));
}

void tst_ZrOrderBatch::allKeyFieldsNameTheOrder()
{
    const ZrOrderBatch batch({message("1", "A", {}), message("1", "B", {}), message("12", "3", {}),
                              message("1", "23", {}), message("1", "B", {})},
                             keys);
    QCOMPARE(batch.records().size(), size_t(4));
    QCOMPARE(batch.recordOf(4), size_t(1));
}

void tst_ZrOrderBatch::whatALaterMessageLeavesOutStays()
{
    const ZrOrderBatch batch({message("1", "A", {{QStringLiteral("a"), 1}, {QStringLiteral("z"), 2}}),
                              message("1", "A", field("m", 3)), message("1", "A", field("z", 4))},
                             keys);
    QCOMPARE(batch.records().size(), size_t(1));
    const QVariantMap expected =
        message("1", "A", {{QStringLiteral("a"), 1}, {QStringLiteral("m"), 3}, {QStringLiteral("z"), 4}})
            .record;
    QCOMPARE(batch.records()[0], expected);
}

void tst_ZrOrderBatch::aLaterMessageWithoutAValueTellsNothing()
{
    const ZrOrderBatch batch(
        {message("1", "A", field("price", 1.5)), message("1", "A", field("price", QVariant()))}, keys);
    QCOMPARE(batch.records()[0].value(QStringLiteral("price")).toDouble(), 1.5);
}

void tst_ZrOrderBatch::recordsOfTheMessagesStayAsTheyAre()
{
    const std::vector<ZrInboxMessage> messages = {message("1", "A", field("a", 1)),
                                                  message("1", "A", field("b", 2))};
    const ZrOrderBatch batch(messages, keys);
    QCOMPARE(batch.records()[0].size(), 4);
    QVERIFY(!messages[0].record.contains(QStringLiteral("b")));
    QVERIFY(!messages[1].record.contains(QStringLiteral("a")));
}

void tst_ZrOrderBatch::noMessagesGiveNoRecords()
{
    QVERIFY(ZrOrderBatch({}, keys).records().empty());
}

ZR_TEST_GUILESS_MAIN(tst_ZrOrderBatch)
#include "tst_zrorderbatch.moc"
