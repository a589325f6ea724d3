#include "ZrClientFields.h"
#include "ZrFeedMonitor.h"
#include "ZrReferenceHost.h"
#include "ZrTestMain.h"

#include "zrdefine/VexlorMsgType.h"

#include <QtCore/QTemporaryDir>

/// The counts of what a feed sends.
class tst_ZrFeedMonitor : public QObject
{
    Q_OBJECT
private slots:
    void init();
    void cleanup();
    void theFourTypesAreCounted();
    void aDoubledMessageCountsOnce();
    void aMessageWithoutAUsefulNumberIsOnlyReceived();
    void eachNumberIsTold();
    void nothingComesAfterDetaching();

private:
    void publish(const QString &type, const QVariant &number);

    QTemporaryDir m_folder;
    ZrReferenceHost m_host;
    QPointer<ZrFeedMonitor> m_monitor;
};

void tst_ZrFeedMonitor::init()
{
    ZrReferenceHost::Options options;
    options.configFolder = m_folder.path();
    QVERIFY2(m_host.start(options), qPrintable(m_host.errorText()));
    m_monitor = new ZrFeedMonitor(QStringLiteral("client#monitor#_0"));
    m_monitor->open();
}

void tst_ZrFeedMonitor::cleanup()
{
    m_monitor->detach();
    m_monitor->deleteLater();
    QTRY_VERIFY(!m_monitor);
    m_host.stop();
}

void tst_ZrFeedMonitor::publish(const QString &type, const QVariant &number)
{
    QVariantMap record = {{ZrClientFields::orderId, "9"}};
    if (number.isValid())
        record.insert(ZrClientFields::seqNo, number);
    m_host.publish(type, {record});
    QVERIFY(m_host.waitIdle(60000));
}

void tst_ZrFeedMonitor::theFourTypesAreCounted()
{
    publish(ZrClientMsgType::order, 0);
    publish(Vexlor_MsgType::executionReport, 1);
    publish(ZrClientMsgType::trade, 2);
    publish(ZrClientMsgType::depth, 3);
    publish(QStringLiteral("SomethingElse"), 4);
    QCOMPARE(m_monitor->received(), qint64(4));
    QCOMPARE(m_monitor->distinct(), qint64(4));
}

void tst_ZrFeedMonitor::aDoubledMessageCountsOnce()
{
    for (const int number : {3, 100000, 3, 0, 100000, 3})
        publish(ZrClientMsgType::trade, number);
    QCOMPARE(m_monitor->received(), qint64(6));
    QCOMPARE(m_monitor->distinct(), qint64(3));
}

void tst_ZrFeedMonitor::aMessageWithoutAUsefulNumberIsOnlyReceived()
{
    publish(ZrClientMsgType::trade, QVariant());
    publish(ZrClientMsgType::trade, -1);
    publish(ZrClientMsgType::trade, Q_INT64_C(4000000000000)); // no marks of that many numbers are kept
    QCOMPARE(m_monitor->received(), qint64(3));
    QCOMPARE(m_monitor->distinct(), qint64(0));
}

void tst_ZrFeedMonitor::eachNumberIsTold()
{
    QVector<QPair<qint64, bool>> seen;
    m_monitor->setSeenCall([&seen](qint64 number, bool isOrder) { seen.append({number, isOrder}); });
    publish(ZrClientMsgType::depth, 5);
    publish(ZrClientMsgType::order, 6);
    publish(Vexlor_MsgType::executionReport, 7);
    QCOMPARE(seen, (QVector<QPair<qint64, bool>>{{5, false}, {6, true}, {7, true}}));
}

void tst_ZrFeedMonitor::nothingComesAfterDetaching()
{
    int seen = 0;
    m_monitor->setSeenCall([&seen](qint64, bool) { ++seen; });
    publish(ZrClientMsgType::order, 0);
    m_monitor->detach();
    publish(ZrClientMsgType::order, 1);
    publish(ZrClientMsgType::depth, 2);
    // A message may be on its way to the receiver while the subscription ends.
    m_monitor->ProcMsg(QString(), ZrClientMsgType::order, QVariantList{QVariantMap{{"OrderID", "9"}}});
    QCOMPARE(seen, 1);
    QCOMPARE(m_monitor->received(), qint64(1));
}

ZR_TEST_GUILESS_MAIN(tst_ZrFeedMonitor)
#include "tst_zrfeedmonitor.moc"
