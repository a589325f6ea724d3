#include "PluginScene.h"
#include "WorkstationRun.h"
#include "ZrPluginCatalogue.h"
#include "ZrTestMain.h"

/// Damaged copies of a real plugin: none of them runs, and the workstation lives.
class tst_ZrPluginDamage : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase();
    void noDamagedCopyIsLoaded();
    void noDamagedCopyPassesAManifest();
    void theWorkstationLivesAmongThem();
    void damageUnderAGoodSealIsReadWithinBounds();

private:
    ZrPluginCatalogue::Options options() const;
    QTemporaryDir m_folder;
    QByteArray m_sound;
};

namespace {
constexpr int copies = 2000;
constexpr quint32 seed = 20260211;
const QString soundId = QStringLiteral("Sound");
} // namespace

ZrPluginCatalogue::Options tst_ZrPluginDamage::options() const
{
    ZrPluginCatalogue::Options options;
    options.folder = m_folder.filePath(QStringLiteral("plugins"));
    return options;
}

void tst_ZrPluginDamage::initTestCase()
{
    m_sound = PluginScene::file(QStringLiteral("sound"));
    QVERIFY(!m_sound.isEmpty());
    QRandomGenerator random(seed);
    for (int i = 0; i < copies; ++i) {
        const QString path =
            options().folder + QStringLiteral("/libcopy%1.so").arg(i, 4, 10, QLatin1Char('0'));
        QVERIFY(PluginScene::write(path, PluginScene::damaged(m_sound, &random)));
    }
    QVERIFY(PluginScene::write(options().folder + QStringLiteral("/libsound.so"), m_sound));
}

void tst_ZrPluginDamage::noDamagedCopyIsLoaded()
{
    ZrPluginCatalogue catalogue([](const QString &, const ZrPluginCatalogue::Maker &) {});
    QCOMPARE(catalogue.scan(options()), QString());
    QCOMPARE(catalogue.entries().size(), copies + 1);
    QCOMPARE(catalogue.loadAll(), 1);
    QCOMPARE(catalogue.loadedIds(), QStringList{soundId});
    QHash<int, int> reasons;
    for (const ZrPluginEntry &entry : catalogue.entries()) {
        const bool isSound = entry.file.path.endsWith(QLatin1String("libsound.so"));
        QVERIFY(entry.state == (isSound ? ZrPluginEntry::Loaded : ZrPluginEntry::Refused));
        QVERIFY(isSound || entry.file.reason != ZrPluginReason::None);
        ++reasons[int(entry.file.reason)];
    }
    // Nearly all are known for what they are, and none only by chance, such as by its ID.
    QVERIFY(reasons.value(int(ZrPluginReason::Damaged)) > copies / 2);
    QCOMPARE(reasons.value(int(ZrPluginReason::DoubleId)), 0);
}

void tst_ZrPluginDamage::noDamagedCopyPassesAManifest()
{
    ZrPluginCatalogue::Options strict = options();
    strict.manifest = m_folder.filePath(QStringLiteral("plugins.sha256"));
    // As a desk would get it that approved the name of each copy while the files were whole.
    QByteArray lines;
    for (int i = 0; i < copies; ++i)
        lines += PluginScene::sha256(m_sound) + "  libcopy" + QByteArray::number(i).rightJustified(4, '0') +
                 ".so\n";
    QVERIFY(PluginScene::write(strict.manifest, lines));
    ZrPluginCatalogue catalogue([](const QString &, const ZrPluginCatalogue::Maker &) {});
    QCOMPARE(catalogue.scan(strict), QString());
    QCOMPARE(catalogue.loadAll(), 0);
}

void tst_ZrPluginDamage::theWorkstationLivesAmongThem()
{
    const WorkstationRun run = WorkstationRun::with(
        m_folder.filePath(QStringLiteral("home")),
        QStringList{QStringLiteral("--plugins"), options().folder} + WorkstationRun::shortRun());
    QVERIFY2(!run.hasCrashed && run.exitCode == 0, qPrintable(run.complaints));
    QVERIFY2(run.complaints.contains(QLatin1String("Refused plugin files: 2,000.")),
             qPrintable(run.complaints));
}

// Who can write a seal can make the reader see anything: it must not leave the file's bytes.
void tst_ZrPluginDamage::damageUnderAGoodSealIsReadWithinBounds()
{
    const QByteArray content = PluginScene::content(m_sound);
    const QString path = m_folder.filePath(QStringLiteral("libsealed.so"));
    QRandomGenerator random(seed);
    int understood = 0;
    for (int i = 0; i < copies; ++i) {
        QVERIFY(PluginScene::write(path, PluginScene::sealed(PluginScene::damaged(content, &random))));
        const ZrPluginFile file = ZrPluginFile::read(path);
        QCOMPARE(file.reason == ZrPluginReason::None, !file.id.isEmpty());
        understood += file.reason == ZrPluginReason::None ? 1 : 0;
    }
    // Many a change does not touch what is read; were there none, this would test nothing.
    QVERIFY(understood > copies / 10 && understood < copies);
}

ZR_TEST_GUILESS_MAIN(tst_ZrPluginDamage)
#include "tst_zrplugindamage.moc"
