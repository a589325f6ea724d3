#include "PluginScene.h"
#include "ZrPluginManifest.h"
#include "ZrTestMain.h"

/// The list of approved plugin files.
class tst_ZrPluginManifest : public QObject
{
    Q_OBJECT
private slots:
    void withoutAManifestItIsOff();
    void linesOfTheUsualToolAreRead();
    void onlyTheNamedFileMayHoldTheBytes();
    void aBadLineAllowsNothing_data();
    void aBadLineAllowsNothing();
    void aManifestThatCannotBeReadAllowsNothing();

private:
    QString put(const QByteArray &text) const;
    QTemporaryDir m_folder;
};

namespace {
const QByteArray hashA(64, 'a');
const QByteArray hashB(64, 'B');
const QString nameA = QStringLiteral("liba.so");
} // namespace

QString tst_ZrPluginManifest::put(const QByteArray &text) const
{
    const QString path = m_folder.filePath(QStringLiteral("plugins.sha256"));
    return PluginScene::write(path, text) ? path : QString();
}

void tst_ZrPluginManifest::withoutAManifestItIsOff()
{
    const ZrPluginManifest manifest;
    QVERIFY(!manifest.isOn());
    QVERIFY(!manifest.allows(nameA, hashA));
}

void tst_ZrPluginManifest::linesOfTheUsualToolAreRead()
{
    ZrPluginManifest manifest;
    QCOMPARE(manifest.read(put("# approved\n\n" + hashA + "  liba.so\r\n" + hashB + " *libb c.so\n" + hashB +
                               "  ./libd.so\n" + hashA + "  liba.so")),
             QString());
    QVERIFY(manifest.isOn());
    QCOMPARE(manifest.count(), 3);
    QVERIFY(manifest.allows(nameA, hashA));
    QVERIFY(manifest.allows(QStringLiteral("libb c.so"), hashB.toLower()));
    QVERIFY(manifest.allows(QStringLiteral("libd.so"), hashB.toLower()));
}

void tst_ZrPluginManifest::onlyTheNamedFileMayHoldTheBytes()
{
    ZrPluginManifest manifest;
    QCOMPARE(manifest.read(put(hashA + "  liba.so\n")), QString());
    QVERIFY(!manifest.allows(nameA, hashB.toLower()));
    QVERIFY(!manifest.allows(QStringLiteral("libother.so"), hashA));
    QVERIFY(!manifest.allows(QStringLiteral("libother.so"), QByteArray())); // one that can't be read
    QVERIFY(!manifest.allows(QString(), QByteArray()));
}

void tst_ZrPluginManifest::aBadLineAllowsNothing_data()
{
    QTest::addColumn<QByteArray>("bad");
    QTest::newRow("no name") << hashA;
    QTest::newRow("empty name") << hashA + "  ";
    QTest::newRow("short hash") << hashA.chopped(1) + "  libx.so";
    QTest::newRow("no hash") << QByteArray(64, 'g') + "  libx.so";
    QTest::newRow("one blank") << hashA + " libx.so";
    QTest::newRow("a path") << hashA + "  sub/libx.so";
    QTest::newRow("a path upwards") << hashA + "  ../libx.so";
    QTest::newRow("a second hash of one name") << hashB + "  liba.so";
    QTest::newRow("an escaped name") << "\\" + hashA + "  lib\\nx.so";
    QTest::newRow("a blank in front") << " " + hashA + "  libx.so";
    QTest::newRow("nulls") << QByteArray(100, '\0');
}

void tst_ZrPluginManifest::aBadLineAllowsNothing()
{
    QFETCH(QByteArray, bad);
    ZrPluginManifest manifest;
    const QString error = manifest.read(put(hashA + "  liba.so\n" + bad + "\n"));
    QVERIFY2(error.startsWith(QLatin1String("line 2 ")), qPrintable(error));
    QVERIFY(manifest.isOn());
    QVERIFY(!manifest.allows(nameA, hashA));
}

void tst_ZrPluginManifest::aManifestThatCannotBeReadAllowsNothing()
{
    ZrPluginManifest manifest;
    QVERIFY(!manifest.read(m_folder.filePath(QStringLiteral("none"))).isEmpty());
    QVERIFY(manifest.isOn());
    QVERIFY(!manifest.read(m_folder.path()).isEmpty());
    QVERIFY(manifest.isOn());
    const QString error = manifest.read(put(QByteArray(ZrPluginManifest::maxBytes + 1, '\n')));
    QVERIFY2(error.contains(QLatin1String("more than")), qPrintable(error));
    QCOMPARE(manifest.read(put(QByteArray(ZrPluginManifest::maxBytes, '\n'))), QString());
}

ZR_TEST_GUILESS_MAIN(tst_ZrPluginManifest)
#include "tst_zrpluginmanifest.moc"
