#include "PluginScene.h"
#include "WorkstationRun.h"
#include "ZrTestMain.h"

/// Starts of the workstation's own program with plugin files.
class tst_ZrPluginStart : public QObject
{
    Q_OBJECT
private slots:
    void init();
    void aPluginThatEndsTheStartIsLeftOutOfTheNext();
    void theListRunsNothing();
    void withoutPluginsNothingIsLooked();
    void whatCannotBeUsedIsOneSentence_data();
    void whatCannotBeUsedIsOneSentence();
    void theManifestLeavesOthersOut();

private:
    WorkstationRun run(const QStringList &flags) const;
    QStringList list(const QStringList &flags = QStringList()) const;
    void put(const QString &name) const;
    QString folder() const { return m_folder->filePath(QStringLiteral("plugins")); }

    std::unique_ptr<QTemporaryDir> m_folder;
};

void tst_ZrPluginStart::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    put(QStringLiteral("sound"));
}

void tst_ZrPluginStart::put(const QString &name) const
{
    QVERIFY(PluginScene::write(folder() + QStringLiteral("/lib%1.so").arg(name), PluginScene::file(name)));
}

WorkstationRun tst_ZrPluginStart::run(const QStringList &flags) const
{
    const QStringList base = {QStringLiteral("--plugins"), folder()};
    return WorkstationRun::with(m_folder->filePath(QStringLiteral("home")),
                                base + WorkstationRun::shortRun() + flags);
}

// "file|ID|state", a text for each file.
QStringList tst_ZrPluginStart::list(const QStringList &flags) const
{
    const WorkstationRun run = WorkstationRun::with(
        m_folder->filePath(QStringLiteral("home")),
        QStringList{QStringLiteral("--plugins"), folder(), QStringLiteral("--list-plugins")} + flags);
    QStringList files;
    for (const QString &line : run.out.split(QLatin1Char('\n'), Qt::SkipEmptyParts)) {
        const QStringList parts = line.split(QLatin1Char('\t'));
        files.append(QStringList{parts.value(0), parts.value(1), parts.value(3)}.join(QLatin1Char('|')));
    }
    return files;
}

void tst_ZrPluginStart::aPluginThatEndsTheStartIsLeftOutOfTheNext()
{
    put(QStringLiteral("falling"));
    const WorkstationRun first = run({});
    QVERIFY(first.hasCrashed);
    const WorkstationRun second = run({});
    QVERIFY2(second.exitCode == 0, qPrintable(second.complaints));
    QVERIFY2(second.complaints.contains(QLatin1String("plugin Falling was loaded or made")),
             qPrintable(second.complaints));
    QCOMPARE(list(), (QStringList{QStringLiteral("libfalling.so|Falling|switched off"),
                                  QStringLiteral("libsound.so|Sound|found")}));
    const WorkstationRun third = run({});
    QVERIFY2(third.exitCode == 0, qPrintable(third.complaints));
    QVERIFY2(!third.complaints.contains(QLatin1String("Falling")), qPrintable(third.complaints));
}

void tst_ZrPluginStart::theListRunsNothing()
{
    put(QStringLiteral("falling"));
    put(QStringLiteral("hollow"));
    QCOMPARE(list(), (QStringList{QStringLiteral("libfalling.so|Falling|found"),
                                  QStringLiteral("libhollow.so|Hollow|found"),
                                  QStringLiteral("libsound.so|Sound|found")}));
}

void tst_ZrPluginStart::withoutPluginsNothingIsLooked()
{
    put(QStringLiteral("falling"));
    const WorkstationRun done = run({QStringLiteral("--no-plugins")});
    QVERIFY2(done.exitCode == 0, qPrintable(done.complaints));
    QVERIFY2(done.complaints.isEmpty(), qPrintable(done.complaints));
}

void tst_ZrPluginStart::whatCannotBeUsedIsOneSentence_data()
{
    QTest::addColumn<QStringList>("flags");
    const QString none = QStringLiteral("no-such-place");
    QTest::newRow("folder") << QStringList{QStringLiteral("--plugins"), none};
    QTest::newRow("manifest") << QStringList{QStringLiteral("--plugin-manifest"), none};
    QTest::newRow("manifest of the list")
        << QStringList{QStringLiteral("--list-plugins"), QStringLiteral("--plugin-manifest"), none};
}

void tst_ZrPluginStart::whatCannotBeUsedIsOneSentence()
{
    QFETCH(QStringList, flags);
    const WorkstationRun done = run(flags);
    QCOMPARE(done.exitCode, 2);
    QCOMPARE(done.complaints.count(QLatin1Char('\n')), 1);
    QVERIFY2(done.complaints.contains(QLatin1String("no-such-place")), qPrintable(done.complaints));
}

void tst_ZrPluginStart::theManifestLeavesOthersOut()
{
    put(QStringLiteral("falling"));
    const QString manifest = m_folder->filePath(QStringLiteral("plugins.sha256"));
    const QByteArray hash = PluginScene::sha256(PluginScene::file(QStringLiteral("sound")));
    QVERIFY(PluginScene::write(manifest, hash + "  libsound.so\n"));
    const QStringList flags = {QStringLiteral("--plugin-manifest"), manifest};
    QCOMPARE(list(flags), (QStringList{QStringLiteral("libfalling.so|Falling|refused"),
                                       QStringLiteral("libsound.so|Sound|found")}));
    const WorkstationRun done = run(flags);
    QVERIFY2(done.exitCode == 0, qPrintable(done.complaints));
    QVERIFY2(done.complaints.contains(QLatin1String("Refused plugin files: 1.")),
             qPrintable(done.complaints));
}

ZR_TEST_GUILESS_MAIN(tst_ZrPluginStart)
#include "tst_zrpluginstart.moc"
