#include "ZrPluginTexts.h"
#include "ZrTestMain.h"

/// What is said about plugin files.
class tst_ZrPluginTexts : public QObject
{
    Q_OBJECT
private slots:
    void eachReasonSaysSomethingOfItsOwn();
    void aLoadedPluginNeedsNoReason();
    void eachStateHasAName();
    void signsThatSteerAreNotShown_data();
    void signsThatSteerAreNotShown();
    void timesAreMilliseconds();
    void theTableHasALineForEachFile();
};

namespace {
ZrPluginEntry entryOf(ZrPluginReason reason, const QString &detail = QStringLiteral("why"))
{
    ZrPluginEntry entry;
    entry.file.path = QStringLiteral("/plugins/liba.so");
    entry.file.reason = reason;
    entry.file.detail = detail;
    entry.state = ZrPluginEntry::Refused;
    return entry;
}
} // namespace

void tst_ZrPluginTexts::eachReasonSaysSomethingOfItsOwn()
{
    QSet<QString> texts;
    const int last = int(ZrPluginReason::SwitchedOff);
    for (int reason = int(ZrPluginReason::None) + 1; reason <= last; ++reason)
        texts.insert(ZrPluginTexts::reason(entryOf(ZrPluginReason(reason))));
    QCOMPARE(texts.size(), last);
    QVERIFY(!texts.contains(QString()));
    QVERIFY(ZrPluginTexts::reason(entryOf(ZrPluginReason::MissingSymbol)).endsWith(QLatin1String("why")));
}

void tst_ZrPluginTexts::aLoadedPluginNeedsNoReason()
{
    QVERIFY(ZrPluginTexts::reason(entryOf(ZrPluginReason::None)).isEmpty());
}

void tst_ZrPluginTexts::eachStateHasAName()
{
    QSet<QString> names;
    ZrPluginEntry entry;
    for (const auto state :
         {ZrPluginEntry::Found, ZrPluginEntry::Loaded, ZrPluginEntry::Refused, ZrPluginEntry::SwitchedOff}) {
        entry.state = state;
        names.insert(ZrPluginTexts::state(entry));
    }
    QCOMPARE(names.size(), 4);
    QVERIFY(!names.contains(QString()));
}

void tst_ZrPluginTexts::signsThatSteerAreNotShown_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("expected");
    const QString mark(QChar::ReplacementCharacter);
    QTest::newRow("plain") << QStringLiteral("libä 委托 <b>&x") << QStringLiteral("libä 委托 <b>&x");
    QTest::newRow("line break") << QStringLiteral("a\nb") << QLatin1Char('a') + mark + QLatin1Char('b');
    QTest::newRow("tab") << QStringLiteral("a\tb") << QLatin1Char('a') + mark + QLatin1Char('b');
    QTest::newRow("terminal") << QStringLiteral("\x1b[31mred") << mark + QLatin1String("[31mred");
    QTest::newRow("right to left") << QStringLiteral("a\u202Eb")
                                   << QLatin1Char('a') + mark + QLatin1Char('b');
    QTest::newRow("no width") << QStringLiteral("a\u200Bb") << QLatin1Char('a') + mark + QLatin1Char('b');
    QTest::newRow("paragraph") << QStringLiteral("a\u2029b") << QLatin1Char('a') + mark + QLatin1Char('b');
    QTest::newRow("half a sign") << QString(QChar(0xd800)) << mark;
    QTest::newRow("long") << QString(10000, QLatin1Char('x')) << QString(500, QLatin1Char('x'));
}

void tst_ZrPluginTexts::signsThatSteerAreNotShown()
{
    QFETCH(QString, text);
    QFETCH(QString, expected);
    QCOMPARE(ZrPluginTexts::plain(text), expected);
}

void tst_ZrPluginTexts::timesAreMilliseconds()
{
    QLocale::setDefault(QLocale::c());
    QCOMPARE(ZrPluginTexts::milliseconds(0), QString());
    QCOMPARE(ZrPluginTexts::milliseconds(1), QStringLiteral("0.0"));
    QCOMPARE(ZrPluginTexts::milliseconds(12345), QStringLiteral("12.3"));
}

void tst_ZrPluginTexts::theTableHasALineForEachFile()
{
    ZrPluginEntry hostile = entryOf(ZrPluginReason::Damaged);
    hostile.file.path = QStringLiteral("/plugins/lib\n\tx.so");
    const QString table = ZrPluginTexts::table({hostile, entryOf(ZrPluginReason::NotInManifest)});
    QCOMPARE(table.count(QLatin1Char('\n')), 2);
    QCOMPARE(table.count(QLatin1Char('\t')), 8);
    QVERIFY(ZrPluginTexts::table({}).isEmpty());
}

ZR_TEST_GUILESS_MAIN(tst_ZrPluginTexts)
#include "tst_zrplugintexts.moc"
