#include "PresenterProbe.h"
#include "zrdatabase/ZrDataStore.h"
#include "zrdefine/VexlorFields.h"
#include "zrmsg/CMessageCommon.h"
#include "ZrRequestMessage.h"
#include "ZrTestMain.h"

#include <memory>

namespace {
using Records = QList<QVariantMap>;

QVariantMap account(const QString &trading, const QString &asset, const QString &node)
{
    return {{Vexlor_Fields::UserAccount::tradingAccount, trading},
            {Vexlor_Fields::UserAccount::assetAccount, asset},
            {Vexlor_Fields::Security::systemNodeId, node}};
}
} // namespace

class TestZrRequestMessage : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase();
    void cleanupTestCase();
    void readsIdTypeAndRecords();
    void anEmptyBodyHasNoRecords();
    void writesTheRequestTypeIntoTheFirstRecordOnly();
    void finishReplacesTheBodyByAListOfRecords();
    void stampsTheNodeIntoTheFirstRecord_data();
    void stampsTheNodeIntoTheFirstRecord();
    void theTimeoutBodyReadsLikeAnAnswer();
};

void TestZrRequestMessage::initTestCase()
{
    ZrDataStore::setAccounts({account(QStringLiteral("T1"), QStringLiteral("A1"), QStringLiteral("N1")),
                              account(QStringLiteral("T2"), QStringLiteral("A2"), QStringLiteral("N2"))});
}

void TestZrRequestMessage::cleanupTestCase()
{
    ZrDataStore::close();
}

void TestZrRequestMessage::readsIdTypeAndRecords()
{
    CMessageCommon msg;
    msg.SetMsg(QVariantList{Probe::record(QStringLiteral("Query"), QStringLiteral("7")), QVariantMap()});
    const ZrRequestMessage request(msg);
    QCOMPARE(request.clientMsgID, QStringLiteral("7"));
    QCOMPARE(request.msgType, QStringLiteral("Query"));
    QCOMPARE(request.records.size(), 2);
    QVERIFY(!request.isEmpty());
}

void TestZrRequestMessage::anEmptyBodyHasNoRecords()
{
    CMessageCommon msg;
    QVERIFY(ZrRequestMessage(msg).isEmpty());
    msg.SetMsg(QVariantList());
    QVERIFY(ZrRequestMessage(msg).isEmpty());
    QVERIFY(ZrRequestMessage(msg).clientMsgID.isEmpty());
}

void TestZrRequestMessage::writesTheRequestTypeIntoTheFirstRecordOnly()
{
    CMessageCommon msg;
    msg.SetMsg(QVariantList{Probe::record(QStringLiteral("Q"), QStringLiteral("1")),
                            Probe::record(QStringLiteral("Q"), QStringLiteral("1"))});
    ZrRequestMessage request(msg);
    request.setRequestType(QStringLiteral("how"));
    const QString field = Vexlor_Fields::CustomField::requestType;
    QCOMPARE(request.records.at(0).value(field).toString(), QStringLiteral("how"));
    QVERIFY(!request.records.at(1).contains(field));
}

void TestZrRequestMessage::finishReplacesTheBodyByAListOfRecords()
{
    CMessageCommon msg;
    msg.SetMsg(Probe::record(QStringLiteral("Q"), QStringLiteral("1"),
                             {{Vexlor_Fields::UserAccount::tradingAccount, QStringLiteral("T1")}}));
    ZrRequestMessage request(msg);
    request.finish(&msg);
    QCOMPARE(int(msg.GetMsg().userType()), int(QMetaType::QVariantList));
    const QVariantMap sent = msg.GetMsg().toList().value(0).toMap();
    QCOMPARE(sent.value(Vexlor_Fields::Security::systemNodeId).toString(), QStringLiteral("N1"));
    QCOMPARE(sent.value(Vexlor_Fields::System::clientMsgID).toString(), QStringLiteral("1"));
}

void TestZrRequestMessage::stampsTheNodeIntoTheFirstRecord_data()
{
    const QString trading = Vexlor_Fields::UserAccount::tradingAccount;
    const QString asset = Vexlor_Fields::UserAccount::assetAccount;
    const QString node = Vexlor_Fields::Security::systemNodeId;
    const QVariantMap bare{{QStringLiteral("x"), 1}};
    QTest::addColumn<QList<QVariantMap>>("records");
    QTest::addColumn<bool>("isStamped");
    QTest::addColumn<QString>("expected");
    QTest::newRow("no records") << Records() << false << QString();
    QTest::newRow("no account") << Records{bare, bare} << false << QString();
    QTest::newRow("trading account") << Records{{{trading, QStringLiteral("T2")}}} << true
                                     << QStringLiteral("N2");
    QTest::newRow("asset account") << Records{{{asset, QStringLiteral("A2")}}} << true
                                   << QStringLiteral("N2");
    QTest::newRow("trading before asset")
        << Records{{{trading, QStringLiteral("T1")}, {asset, QStringLiteral("A2")}}} << true
        << QStringLiteral("N1");
    QTest::newRow("empty trading account")
        << Records{{{trading, QString()}, {asset, QStringLiteral("A2")}}} << true << QStringLiteral("N2");
    QTest::newRow("account in a later record")
        << Records{bare, {{trading, QStringLiteral("T2")}}, {{trading, QStringLiteral("T1")}}} << true
        << QStringLiteral("N2");
    QTest::newRow("asset in an earlier record wins")
        << Records{{{asset, QStringLiteral("A2")}}, {{trading, QStringLiteral("T1")}}} << true
        << QStringLiteral("N2");
    QTest::newRow("node named already")
        << Records{{{trading, QStringLiteral("T2")}, {node, QStringLiteral("mine")}}} << true
        << QStringLiteral("mine");
    QTest::newRow("node named in a later record does not count")
        << Records{{{trading, QStringLiteral("T2")}}, {{node, QStringLiteral("mine")}}} << true
        << QStringLiteral("N2");
    QTest::newRow("unknown account gives an empty node")
        << Records{{{trading, QStringLiteral("nobody")}}} << true << QString();
}

void TestZrRequestMessage::stampsTheNodeIntoTheFirstRecord()
{
    QFETCH(QList<QVariantMap>, records);
    QFETCH(bool, isStamped);
    QFETCH(QString, expected);
    const QString node = Vexlor_Fields::Security::systemNodeId;
    QList<QVariantMap> list = records;
    ZrRequestMessage::addSysNodeID(list);
    QCOMPARE(list.size(), records.size());
    if (isStamped) {
        QVERIFY(list.first().contains(node));
        QCOMPARE(list.first().value(node).toString(), expected);
    } else {
        QCOMPARE(list, records);
    }
    for (int i = 1; i < list.size(); ++i)
        QCOMPARE(list.at(i), records.at(i));
}

void TestZrRequestMessage::theTimeoutBodyReadsLikeAnAnswer()
{
    ProbeCall answer;
    answer.body = ZrRequestMessage::timeoutBody(QStringLiteral("9"));
    QCOMPARE(answer.value(Vexlor_Fields::System::clientMsgID).toString(), QStringLiteral("9"));
    QCOMPARE(answer.value(Vexlor_Fields::System::textDescription).toString(),
             QStringLiteral("request timeout"));
}

ZR_TEST_GUILESS_MAIN(TestZrRequestMessage)
#include "tst_zrrequestmessage.moc"
