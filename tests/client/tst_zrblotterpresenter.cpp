#include "ZrBlotterPresenter.h"
#include "ZrClientFields.h"
#include "ZrMessageInbox.h"
#include "ZrReferenceHost.h"
#include "ZrTestMain.h"

#include "zrdefine/VexlorMsgType.h"

#include <QtCore/QTemporaryDir>

/// What the blotter takes from the bus.
class tst_ZrBlotterPresenter : public QObject
{
    Q_OBJECT
private slots:
    void init();
    void cleanup();
    void ordersAndReportsGoToTheInbox();
    void tradesAndDepthAreOnlyCounted();
    void aDoubledMessageCountsOnce();
    void aMessageWithoutAUsefulNumberIsOnlyReceived();
    void eachNumberIsTold();
    void nothingComesAfterDetaching();

private:
    void publish(const QString &type, const QVariant &number);

    QTemporaryDir m_folder;
    ZrReferenceHost m_host;
    std::unique_ptr<ZrMessageInbox> m_inbox;
    QPointer<ZrBlotterPresenter> m_presenter;
};

void tst_ZrBlotterPresenter::init()
{
    ZrReferenceHost::Options options;
    options.configFolder = m_folder.path();
    QVERIFY2(m_host.start(options), qPrintable(m_host.errorText()));
    m_inbox = std::make_unique<ZrMessageInbox>();
    m_presenter = new ZrBlotterPresenter(QStringLiteral("blotter#test#_0"), m_inbox.get());
    m_presenter->open();
}

void tst_ZrBlotterPresenter::cleanup()
{
    m_presenter->detach();
    m_presenter->deleteLater();
    QTRY_VERIFY(!m_presenter);
    m_host.stop();
    m_inbox.reset();
}

void tst_ZrBlotterPresenter::publish(const QString &type, const QVariant &number)
{
    QVariantMap record = {{ZrClientFields::orderId, "9"}};
    if (number.isValid())
        record.insert(ZrClientFields::seqNo, number);
    m_host.publish(type, {record});
    QVERIFY(m_host.waitIdle(60000));
}

void tst_ZrBlotterPresenter::ordersAndReportsGoToTheInbox()
{
    std::vector<ZrInboxMessage> got;
    connect(m_inbox.get(), &ZrMessageInbox::signalBatch, this,
            [&got](const std::vector<ZrInboxMessage> &batch) {
                got.insert(got.end(), batch.begin(), batch.end());
            });
    publish(ZrClientMsgType::order, 0);
    publish(Vexlor_MsgType::executionReport, 1);
    QTRY_COMPARE(int(got.size()), 2);
    QCOMPARE(got[0].type, ZrClientMsgType::order);
    QCOMPARE(got[1].type, Vexlor_MsgType::executionReport);
    QCOMPARE(got[1].record.value(ZrClientFields::seqNo).toInt(), 1);
    QCOMPARE(got[1].record.value(ZrClientFields::orderId).toString(), QStringLiteral("9"));
}

void tst_ZrBlotterPresenter::tradesAndDepthAreOnlyCounted()
{
    publish(ZrClientMsgType::trade, 0);
    publish(ZrClientMsgType::depth, 1);
    publish(QStringLiteral("SomethingElse"), 2);
    QVERIFY(m_inbox->isEmpty());
    QCOMPARE(m_presenter->received(), qint64(2));
    QCOMPARE(m_presenter->distinct(), qint64(2));
}

void tst_ZrBlotterPresenter::aDoubledMessageCountsOnce()
{
    for (const int number : {3, 100000, 3, 0, 100000, 3})
        publish(ZrClientMsgType::trade, number);
    QCOMPARE(m_presenter->received(), qint64(6));
    QCOMPARE(m_presenter->distinct(), qint64(3));
}

void tst_ZrBlotterPresenter::aMessageWithoutAUsefulNumberIsOnlyReceived()
{
    publish(ZrClientMsgType::trade, QVariant());
    publish(ZrClientMsgType::trade, -1);
    publish(ZrClientMsgType::trade, Q_INT64_C(4000000000000)); // no marks of that many numbers are kept
    QCOMPARE(m_presenter->received(), qint64(3));
    QCOMPARE(m_presenter->distinct(), qint64(0));
}

void tst_ZrBlotterPresenter::eachNumberIsTold()
{
    QVector<qint64> seen;
    m_presenter->setSeenCall([&seen](qint64 number) { seen.append(number); });
    publish(ZrClientMsgType::depth, 5);
    publish(ZrClientMsgType::order, 6);
    QCOMPARE(seen, (QVector<qint64>{5, 6}));
}

void tst_ZrBlotterPresenter::nothingComesAfterDetaching()
{
    int seen = 0;
    m_presenter->setSeenCall([&seen](qint64) { ++seen; });
    publish(ZrClientMsgType::order, 0);
    m_presenter->detach();
    publish(ZrClientMsgType::order, 1);
    publish(ZrClientMsgType::depth, 2);
    QCOMPARE(seen, 1);
    QCOMPARE(m_presenter->received(), qint64(1));
    // A message may be on its way to the receiver while the subscription ends.
    m_presenter->ProcMsg(QString(), ZrClientMsgType::order, QVariantList{QVariantMap{{"OrderID", "9"}}});
    QCOMPARE(seen, 1);
    std::vector<ZrInboxMessage> got;
    connect(m_inbox.get(), &ZrMessageInbox::signalBatch, this,
            [&got](const std::vector<ZrInboxMessage> &batch) { got = batch; });
    QTRY_COMPARE(int(got.size()), 1);
    QVERIFY(m_inbox->isEmpty());
}

ZR_TEST_GUILESS_MAIN(tst_ZrBlotterPresenter)
#include "tst_zrblotterpresenter.moc"
