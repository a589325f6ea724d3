#include "PluginScene.h"
#include "ZrPluginSwitches.h"
#include "ZrTestMain.h"

Q_DECLARE_METATYPE(ZrPluginReason)

/// Which plugins a start leaves out.
class tst_ZrPluginSwitches : public QObject
{
    Q_OBJECT
private slots:
    void init();
    void nothingIsSwitchedOffAtFirst();
    void aSwitchIsKept();
    void anotherWorkstationsChoiceIsNotLost();
    void withoutAFolderSwitchesLiveInMemory();
    void aBrokenFileSwitchesNothingOff_data();
    void aBrokenFileSwitchesNothingOff();
    void aFolderThatCannotBeWrittenIsTold();
    void thereIsALimit();

private:
    std::unique_ptr<QTemporaryDir> m_folder;
};

namespace {
const QString idA = QStringLiteral("A");
const QString idB = QStringLiteral("B");
} // namespace

void tst_ZrPluginSwitches::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
}

void tst_ZrPluginSwitches::nothingIsSwitchedOffAtFirst()
{
    ZrPluginSwitches switches;
    switches.open(m_folder->path());
    QCOMPARE(switches.reason(idA), ZrPluginReason::None);
    QVERIFY(QDir(m_folder->path()).isEmpty());
}

void tst_ZrPluginSwitches::aSwitchIsKept()
{
    ZrPluginSwitches switches;
    switches.open(m_folder->filePath(QStringLiteral("made")));
    QVERIFY(switches.set(idA, ZrPluginReason::SwitchedOff));
    QVERIFY(switches.set(idB, ZrPluginReason::EndedLastStart));
    ZrPluginSwitches later;
    later.open(m_folder->filePath(QStringLiteral("made")));
    QCOMPARE(later.reason(idA), ZrPluginReason::SwitchedOff);
    QCOMPARE(later.reason(idB), ZrPluginReason::EndedLastStart);
    QVERIFY(later.set(idA, ZrPluginReason::None));
    later.open(m_folder->filePath(QStringLiteral("made")));
    QCOMPARE(later.reason(idA), ZrPluginReason::None);
}

void tst_ZrPluginSwitches::anotherWorkstationsChoiceIsNotLost()
{
    ZrPluginSwitches one;
    ZrPluginSwitches other;
    one.open(m_folder->path());
    other.open(m_folder->path());
    QVERIFY(one.set(idA, ZrPluginReason::SwitchedOff));
    QVERIFY(other.set(idB, ZrPluginReason::SwitchedOff));
    one.open(m_folder->path());
    QCOMPARE(one.reason(idA), ZrPluginReason::SwitchedOff);
    QCOMPARE(one.reason(idB), ZrPluginReason::SwitchedOff);
}

void tst_ZrPluginSwitches::withoutAFolderSwitchesLiveInMemory()
{
    ZrPluginSwitches switches;
    switches.open(QString());
    QVERIFY(switches.set(idA, ZrPluginReason::SwitchedOff));
    QCOMPARE(switches.reason(idA), ZrPluginReason::SwitchedOff);
    switches.open(QString());
    QCOMPARE(switches.reason(idA), ZrPluginReason::None);
}

void tst_ZrPluginSwitches::aBrokenFileSwitchesNothingOff_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::newRow("empty") << QByteArray();
    QTest::newRow("no JSON") << QByteArray("off: A");
    QTest::newRow("a list") << QByteArray("[\"A\"]");
    QTest::newRow("deep") << QByteArray(100 * 1000, '[');
    QTest::newRow("large") << "{\"off\": {\"A\": \"user\"}" + QByteArray(ZrPluginSwitches::maxBytes, ' ') +
                                  "}";
}

void tst_ZrPluginSwitches::aBrokenFileSwitchesNothingOff()
{
    QFETCH(QByteArray, bytes);
    QVERIFY(PluginScene::write(m_folder->filePath(QStringLiteral("plugins.json")), bytes));
    ZrPluginSwitches switches;
    const QRegularExpression warning(QStringLiteral("^ZrPluginSwitches::read .*holds no switches$"));
    QTest::ignoreMessage(QtWarningMsg, warning);
    switches.open(m_folder->path());
    QCOMPARE(switches.reason(idA), ZrPluginReason::None);
    // The next choice mends the file.
    QTest::ignoreMessage(QtWarningMsg, warning);
    QVERIFY(switches.set(idA, ZrPluginReason::SwitchedOff));
    switches.open(m_folder->path());
    QCOMPARE(switches.reason(idA), ZrPluginReason::SwitchedOff);
}

void tst_ZrPluginSwitches::aFolderThatCannotBeWrittenIsTold()
{
    QVERIFY(PluginScene::write(m_folder->filePath(QStringLiteral("file")), "x"));
    ZrPluginSwitches switches;
    switches.open(m_folder->filePath(QStringLiteral("file/folder")));
    QVERIFY(!switches.set(idA, ZrPluginReason::SwitchedOff));
}

void tst_ZrPluginSwitches::thereIsALimit()
{
    ZrPluginSwitches switches;
    switches.open(QString());
    for (int i = 0; i < ZrPluginSwitches::maxIds; ++i)
        QVERIFY(switches.set(QString::number(i), ZrPluginReason::SwitchedOff));
    QVERIFY(!switches.set(idA, ZrPluginReason::SwitchedOff));
    QVERIFY(switches.set(QStringLiteral("5"), ZrPluginReason::None));
    QVERIFY(switches.set(idA, ZrPluginReason::SwitchedOff));
}

ZR_TEST_GUILESS_MAIN(tst_ZrPluginSwitches)
#include "tst_zrpluginswitches.moc"
