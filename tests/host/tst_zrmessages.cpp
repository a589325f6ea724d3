#include "ZrTestMain.h"

#include "zrdefine/VexlorMsgType.h"
#include "zrevent/CEventMessageCommon.h"
#include "zrmsg/CMessageCommon.h"
#include "zrmsg/CPackMessageCommon.h"
#include "zrmsg/CUnPackMessageCommon.h"
#include "zrplugin/PluginManager.h"
#include "zrplugin/ZrPluginNumbers.h"

/// Messages, events and their bodies; the numbers of plugin instances.
class tst_ZrMessages : public QObject
{
    Q_OBJECT
private slots:
    void aFreshMessageIsEmpty();
    void messagesAndEventsKeepWhatTheyAreGiven();
    void whatIsPackedUnpacks();
    void fieldsAreReplacedNotDoubled();
    void aFieldIsReadFromTheFirstRecordOrDefaults();
    void readableBodies_data();
    void readableBodies();
    void aSecondBodyReplacesTheFirst();
    void theAnswerTypesDiffer();
    void eachPluginHasItsOwnNumbers();
};

using Records = QList<QMap<QString, QVariant>>;
Q_DECLARE_METATYPE(Records)

static QVariantMap record(int n)
{
    return QVariantMap{{QStringLiteral("n"), n}};
}

void tst_ZrMessages::aFreshMessageIsEmpty()
{
    const CMessageCommon message;
    QVERIFY(!message.GetMsg().isValid());
    QVERIFY(message.GetSrcid().isEmpty());
    const CEventMessageCommon event;
    QVERIFY(!event.GetMsg().isValid());
    QVERIFY(!event.GetType().isValid());
    QVERIFY(event.GetSrcid().isEmpty());
}

void tst_ZrMessages::messagesAndEventsKeepWhatTheyAreGiven()
{
    CMessageCommon message;
    message.SetMsg(QVariantList{record(1)});
    message.SetSrcid(QStringLiteral("1#A#_0"));
    QCOMPARE(message.GetMsg().toList().size(), 1);
    QCOMPARE(message.GetSrcid(), QStringLiteral("1#A#_0"));
    CEventMessageCommon event;
    event.SetMsg(record(2));
    event.SetType(65555);
    event.SetSrcid(QStringLiteral("1#B#_0"));
    QCOMPARE(event.GetMsg().toMap(), record(2));
    QCOMPARE(event.GetType().toInt(), 65555);
    QCOMPARE(event.GetSrcid(), QStringLiteral("1#B#_0"));
}

void tst_ZrMessages::whatIsPackedUnpacks()
{
    CPackMessageCommon writer;
    QCOMPARE(writer.AddVaule(QStringLiteral("price"), 10.5), 1);
    QCOMPARE(writer.AddVaule(QStringLiteral("side"), QStringLiteral("buy")), 2);
    CUnPackMessageCommon reader;
    reader.SetUnPackMsg(writer.GetPackedMsg(false), false);
    QCOMPARE(reader.GetAllValue().size(), 1);
    QCOMPARE(reader.GetValue(QStringLiteral("price"), QString()).toDouble(), 10.5);
    QCOMPARE(reader.GetValue(QStringLiteral("side"), QString()).toString(), QStringLiteral("buy"));
}

void tst_ZrMessages::fieldsAreReplacedNotDoubled()
{
    CPackMessageCommon writer;
    writer.AddVaule(QStringLiteral("n"), 1);
    QCOMPARE(writer.AddVaule(QStringLiteral("n"), 2), 1);
    CUnPackMessageCommon reader;
    reader.SetUnPackMsg(writer.GetPackedMsg(false), false);
    QCOMPARE(reader.GetValue(QStringLiteral("n"), 0).toInt(), 2);
}

void tst_ZrMessages::aFieldIsReadFromTheFirstRecordOrDefaults()
{
    CUnPackMessageCommon reader;
    QCOMPARE(reader.GetValue(QStringLiteral("n"), 7).toInt(), 7);
    reader.SetUnPackMsg(QVariantList{record(1), record(2)}, false);
    QCOMPARE(reader.GetValue(QStringLiteral("n"), 7).toInt(), 1);
    QCOMPARE(reader.GetValue(QStringLiteral("m"), QString()), QVariant(QString()));
}

void tst_ZrMessages::readableBodies_data()
{
    QTest::addColumn<QVariant>("body");
    QTest::addColumn<Records>("expected");
    QTest::newRow("invalid") << QVariant() << Records();
    QTest::newRow("a text") << QVariant(QStringLiteral("text")) << Records();
    QTest::newRow("empty list") << QVariant(QVariantList()) << Records();
    QTest::newRow("one record alone") << QVariant(record(1)) << Records{record(1)};
    QTest::newRow("list") << QVariant(QVariantList{record(1), record(2)}) << Records{record(1), record(2)};
    QTest::newRow("list with what is no record")
        << QVariant(QVariantList{5, record(1), QVariant()}) << Records{record(1)};
}

void tst_ZrMessages::readableBodies()
{
    QFETCH(QVariant, body);
    CUnPackMessageCommon reader;
    reader.SetUnPackMsg(body, false);
    QTEST(reader.GetAllValue(), "expected");
}

void tst_ZrMessages::aSecondBodyReplacesTheFirst()
{
    CUnPackMessageCommon reader;
    reader.SetUnPackMsg(QVariantList{record(1)}, false);
    reader.SetUnPackMsg(QVariant(), false);
    QVERIFY(reader.GetAllValue().isEmpty());
}

void tst_ZrMessages::theAnswerTypesDiffer()
{
    QVERIFY(Vexlor_MsgType::executionReport != Vexlor_MsgType::bussinessMsgReject);
    QVERIFY(!Vexlor_MsgType::executionReport.isEmpty());
}

void tst_ZrMessages::eachPluginHasItsOwnNumbers()
{
    PluginManager *const manager = PluginManager::instance();
    ZrPluginNumbers::instance().reset();
    QCOMPARE(manager->getCurrentInstanceIDIndexByPluginID(QStringLiteral("A")), 0);
    QCOMPARE(manager->getCurrentInstanceIDIndexByPluginID(QStringLiteral("A")), 1);
    QCOMPARE(manager->getCurrentInstanceIDIndexByPluginID(QStringLiteral("B")), 0);
    QCOMPARE(manager->getCurrentInstanceIDIndexByPluginID(QString()), 0);
    ZrPluginNumbers::instance().reset();
    QCOMPARE(manager->getCurrentInstanceIDIndexByPluginID(QStringLiteral("A")), 0);
}

ZR_TEST_GUILESS_MAIN(tst_ZrMessages)
#include "tst_zrmessages.moc"
