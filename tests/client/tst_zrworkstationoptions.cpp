#include "ZrTestMain.h"
#include "ZrWorkstationOptions.h"

class tst_ZrWorkstationOptions : public QObject
{
    Q_OBJECT
private slots:
    void withoutFlagsTheDefaultsHold();
    void eachFlagIsRead();
    void aBadFlagIsOneSentenceThatNamesIt_data();
    void aBadFlagIsOneSentenceThatNamesIt();
    void theHelpNamesEachFlag();
};

namespace {
QStringList line(const QString &flags)
{
    return QStringList{QStringLiteral("program")} + flags.split(QLatin1Char(' '), Qt::SkipEmptyParts);
}
} // namespace

void tst_ZrWorkstationOptions::withoutFlagsTheDefaultsHold()
{
    ZrWorkstationOptions options;
    QString error;
    QVERIFY(ZrWorkstationOptions::parse(line(QString()), &options, &error));
    QVERIFY(!options.headless && !options.help && !options.noPlugins && !options.listPlugins);
    QCOMPARE(options.speed, 1.0);
    QVERIFY(options.seconds < 0);
    QVERIFY(options.feed.isEmpty());
}

void tst_ZrWorkstationOptions::eachFlagIsRead()
{
    ZrWorkstationOptions options;
    QString error;
    const QStringList flags = line(QStringLiteral(
        "--headless --seconds 2.5 --shots d --report r.json --feed f --speed 0 "
        "--rate 50 --seed 4294967295 --skin light --faults drop=1 --lang en "
        "--record o.json --rows 9 --open a,b --plugins p --plugin-manifest m --no-plugins --list-plugins"));
    QVERIFY2(ZrWorkstationOptions::parse(flags, &options, &error), qPrintable(error));
    QVERIFY(options.headless);
    QVERIFY(options.noPlugins && options.listPlugins);
    QCOMPARE(options.seconds, 2.5);
    QCOMPARE(options.speed, 0.0);
    QCOMPARE(options.rate, 50);
    QCOMPARE(options.seed, 4294967295u);
    QCOMPARE(options.maxRows, 9);
    QCOMPARE(options.open, QStringList({QStringLiteral("a"), QStringLiteral("b")}));
    QCOMPARE(
        QStringList({options.shotsFolder, options.reportFile, options.feed, options.skin, options.faults,
                     options.language, options.recordFile, options.pluginFolder, options.pluginManifest}),
        QStringList({QStringLiteral("d"), QStringLiteral("r.json"), QStringLiteral("f"),
                     QStringLiteral("light"), QStringLiteral("drop=1"), QStringLiteral("en"),
                     QStringLiteral("o.json"), QStringLiteral("p"), QStringLiteral("m")}));
}

void tst_ZrWorkstationOptions::aBadFlagIsOneSentenceThatNamesIt_data()
{
    QTest::addColumn<QString>("flags");
    QTest::addColumn<QString>("expected");
    QTest::newRow("unknown") << "--fast"
                             << "fast";
    QTest::newRow("not a flag") << "fast"
                                << "\"fast\" is no flag";
    QTest::newRow("value missing") << "--seed"
                                   << "seed";
    QTest::newRow("no number") << "--seconds x"
                               << "--seconds wants a number";
    QTest::newRow("not a number at all") << "--speed nan"
                                         << "--speed wants a number";
    QTest::newRow("negative") << "--speed -1"
                              << "--speed wants a number";
    QTest::newRow("zero seconds") << "--seconds 0"
                                  << "--seconds wants a number";
    QTest::newRow("rate of nothing") << "--rate 0"
                                     << "--rate wants a whole number";
    QTest::newRow("fraction") << "--rate 1.5"
                              << "--rate wants a whole number";
    QTest::newRow("seed too large") << "--seed 4294967296"
                                    << "--seed wants a whole number";
    QTest::newRow("language") << "--lang fr"
                              << "--lang wants zh_CN or en, not \"fr\"";
    QTest::newRow("a plugin without a name") << "--open a,,b"
                                             << "--open wants one to 20 IDs";
    QTest::newRow("too many plugins") << "--open a,b,c,d,e,f,g,h,i,j,k,l,m,n,o,p,q,r,s,t,u"
                                      << "--open wants one to 20 IDs";
    QTest::newRow("no manifest named") << "--plugin-manifest="
                                       << "--plugin-manifest wants a value";
    QTest::newRow("empty file") << "--report="
                                << "--report wants a value";
}

void tst_ZrWorkstationOptions::aBadFlagIsOneSentenceThatNamesIt()
{
    QFETCH(QString, flags);
    QFETCH(QString, expected);
    ZrWorkstationOptions options;
    QString error;
    QVERIFY(!ZrWorkstationOptions::parse(line(flags), &options, &error));
    QVERIFY2(error.contains(expected), qPrintable(error));
    QVERIFY(!error.contains(QLatin1Char('\n')));
}

void tst_ZrWorkstationOptions::theHelpNamesEachFlag()
{
    for (const char *flag :
         {"headless", "seconds", "shots", "report", "feed", "speed", "rate", "seed", "skin", "faults", "lang",
          "plugins", "plugin-manifest", "no-plugins", "list-plugins", "open"})
        QVERIFY2(ZrWorkstationOptions::helpText().contains(QStringLiteral("--") + QLatin1String(flag)), flag);
}

ZR_TEST_GUILESS_MAIN(tst_ZrWorkstationOptions)
#include "tst_zrworkstationoptions.moc"
