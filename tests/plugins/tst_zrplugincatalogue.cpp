#include "PluginScene.h"
#include "ZrPluginCatalogue.h"
#include "ZrTestMain.h"

/// Which plugin files were found, which are loaded, why the rest is refused.
class tst_ZrPluginCatalogue : public QObject
{
    Q_OBJECT
private slots:
    void init();
    void aFolderIsListedWithoutRunningAnything();
    void whatCanBeLoadedIsLoaded();
    void theMakerMakesObjects();
    void aMakerOutlivesTheCatalogue();
    void theFirstFileOfAnIdCounts();
    void theManifestAloneVouches();
    void theManifestAllowsAnUnsealedFile();
    void theManifestAllowsNoDamagedFile();
    void aManifestOrFolderThatIsNoGoodFindsNothing();
    void aPluginThatEndedAStartIsLeftOut();
    void lookingOnlyLeavesTheMark();
    void theUserSwitchesAPluginOffAndOn();
    void aPluginLeftOutCanBeLoadedNow();
    void loadingAndMakingAreMarked();
    void guardedWorkIsMarked();
    void anUnknownIdIsNotLoaded();

private:
    void put(const QString &name, const QByteArray &bytes) const;
    QString scan();
    const ZrPluginEntry *entry(const QString &name) const;
    QStringList marks() const;
    QByteArray sound() const { return PluginScene::file(QStringLiteral("sound")); }
    void leaveMark() const;

    std::unique_ptr<QTemporaryDir> m_folder;
    ZrPluginCatalogue::Options m_options;
    std::unique_ptr<ZrPluginCatalogue> m_catalogue;
    QHash<QString, ZrPluginCatalogue::Maker> m_makers;
};

namespace {
const QString soundId = QStringLiteral("Sound");
const QString soundFile = QStringLiteral("libsound.so");
} // namespace

void tst_ZrPluginCatalogue::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    m_options = ZrPluginCatalogue::Options();
    m_options.folder = m_folder->filePath(QStringLiteral("plugins"));
    m_options.stateFolder = m_folder->filePath(QStringLiteral("state"));
    QVERIFY(QDir().mkpath(m_options.folder));
    m_makers.clear();
    m_catalogue = std::make_unique<ZrPluginCatalogue>(
        [this](const QString &id, const ZrPluginCatalogue::Maker &maker) { m_makers.insert(id, maker); });
}

void tst_ZrPluginCatalogue::put(const QString &name, const QByteArray &bytes) const
{
    QVERIFY(PluginScene::write(m_options.folder + QLatin1Char('/') + name, bytes));
}

QString tst_ZrPluginCatalogue::scan()
{
    return m_catalogue->scan(m_options);
}

const ZrPluginEntry *tst_ZrPluginCatalogue::entry(const QString &name) const
{
    for (const ZrPluginEntry &one : m_catalogue->entries()) {
        if (QFileInfo(one.file.path).fileName() == name)
            return &one;
    }
    return nullptr;
}

QStringList tst_ZrPluginCatalogue::marks() const
{
    return QDir(m_options.stateFolder).entryList({QStringLiteral("plugin-start-*")}, QDir::Files);
}

void tst_ZrPluginCatalogue::leaveMark() const
{
    QVERIFY(PluginScene::write(m_options.stateFolder + QStringLiteral("/plugin-start-1.json"),
                               "{\"pid\": 4194305, \"processStart\": \"1\", \"plugins\": [\"Sound\"]}"));
}

void tst_ZrPluginCatalogue::aFolderIsListedWithoutRunningAnything()
{
    put(QStringLiteral("libfalling.so"),
        PluginScene::file(QStringLiteral("falling"))); // would end this process
    put(soundFile, sound());
    put(QStringLiteral("libtext.so"), "no library");
    put(QStringLiteral("readme.txt"), "no library");
    QVERIFY(QDir().mkpath(m_options.folder + QStringLiteral("/libfolder.so")));
    QCOMPARE(scan(), QString());
    QCOMPARE(m_catalogue->entries().size(), 3);
    QCOMPARE(m_catalogue->entries().at(0).state, ZrPluginEntry::Found);
    QCOMPARE(m_catalogue->entries().at(0).file.id, QStringLiteral("Falling"));
    QCOMPARE(m_catalogue->entries().at(1).file.id, soundId);
    QVERIFY(m_catalogue->entries().at(1).readUs > 0);
    QCOMPARE(m_catalogue->entries().at(2).state, ZrPluginEntry::Refused);
    QCOMPARE(m_catalogue->entries().at(2).file.reason, ZrPluginReason::NotAPlugin);
    QVERIFY(m_makers.isEmpty());
    QVERIFY(m_catalogue->loadedIds().isEmpty());
    QVERIFY(!QFileInfo::exists(m_options.stateFolder));
}

void tst_ZrPluginCatalogue::whatCanBeLoadedIsLoaded()
{
    for (const char *name : {"hollow", "lying", "orphan", "sound"})
        put(QStringLiteral("lib%1.so").arg(QLatin1String(name)), PluginScene::file(QLatin1String(name)));
    QCOMPARE(scan(), QString());
    QCOMPARE(m_catalogue->loadAll(), 1);
    QCOMPARE(m_catalogue->loadedIds(), QStringList{soundId});
    QVERIFY(m_catalogue->isLoaded(soundId));
    QVERIFY(entry(soundFile)->loadUs > 0);
    QCOMPARE(entry(QStringLiteral("libhollow.so"))->file.reason, ZrPluginReason::MissingSymbol);
    QCOMPARE(entry(QStringLiteral("liblying.so"))->file.reason, ZrPluginReason::WrongInterface);
    QCOMPARE(entry(QStringLiteral("liborphan.so"))->file.reason, ZrPluginReason::MissingLibrary);
    QCOMPARE(m_makers.keys(), QStringList{soundId});
    QVERIFY(marks().isEmpty());
    QCOMPARE(m_catalogue->loadAll(), 1);
}

void tst_ZrPluginCatalogue::theMakerMakesObjects()
{
    put(soundFile, sound());
    QCOMPARE(scan(), QString());
    QVERIFY(m_catalogue->load(soundId));
    const std::unique_ptr<QObject> first(m_makers.value(soundId)());
    const std::unique_ptr<QObject> second(m_makers.value(soundId)());
    QCOMPARE(first->objectName(), QStringLiteral("sound"));
    QVERIFY(second && second != first);
}

void tst_ZrPluginCatalogue::aMakerOutlivesTheCatalogue()
{
    put(soundFile, sound());
    QCOMPARE(scan(), QString());
    QVERIFY(m_catalogue->load(soundId));
    m_catalogue.reset();
    const std::unique_ptr<QObject> object(m_makers.value(soundId)());
    QVERIFY(object);
}

void tst_ZrPluginCatalogue::theFirstFileOfAnIdCounts()
{
    put(QStringLiteral("liba.so"), PluginScene::content(sound())); // unsealed: takes no ID
    put(QStringLiteral("libb.so"), sound());
    put(QStringLiteral("libc.so"), sound());
    QCOMPARE(scan(), QString());
    QCOMPARE(entry(QStringLiteral("liba.so"))->file.reason, ZrPluginReason::Unsealed);
    QCOMPARE(entry(QStringLiteral("libb.so"))->state, ZrPluginEntry::Found);
    QCOMPARE(entry(QStringLiteral("libc.so"))->file.reason, ZrPluginReason::DoubleId);
    QCOMPARE(entry(QStringLiteral("libc.so"))->file.detail, QStringLiteral("libb.so"));
    QCOMPARE(m_catalogue->loadAll(), 1);
    QCOMPARE(entry(QStringLiteral("libc.so"))->state, ZrPluginEntry::Refused);
}

void tst_ZrPluginCatalogue::theManifestAloneVouches()
{
    put(soundFile, sound());
    put(QStringLiteral("libhollow.so"), PluginScene::file(QStringLiteral("hollow")));
    m_options.manifest = m_folder->filePath(QStringLiteral("manifest"));
    QVERIFY(PluginScene::write(m_options.manifest, PluginScene::sha256(sound()) + "  libsound.so\n"));
    QCOMPARE(scan(), QString());
    QCOMPARE(entry(soundFile)->state, ZrPluginEntry::Found);
    QCOMPARE(entry(QStringLiteral("libhollow.so"))->file.reason, ZrPluginReason::NotInManifest);
    QVERIFY(!m_catalogue->load(QStringLiteral("Hollow")));
    QCOMPARE(m_catalogue->loadAll(), 1);
}

void tst_ZrPluginCatalogue::theManifestAllowsAnUnsealedFile()
{
    const QByteArray unsealed = PluginScene::content(sound());
    put(soundFile, unsealed);
    m_options.manifest = m_folder->filePath(QStringLiteral("manifest"));
    QVERIFY(PluginScene::write(m_options.manifest, PluginScene::sha256(unsealed) + "  libsound.so\n"));
    QCOMPARE(scan(), QString());
    QCOMPARE(m_catalogue->loadAll(), 1);
    m_options.manifest.clear();
    QCOMPARE(scan(), QString());
    QCOMPARE(m_catalogue->loadAll(), 0);
    QCOMPARE(entry(soundFile)->file.reason, ZrPluginReason::Unsealed);
}

void tst_ZrPluginCatalogue::theManifestAllowsNoDamagedFile()
{
    QByteArray broken = sound();
    broken[5000] = char(broken.at(5000) ^ 1);
    put(soundFile, broken);
    m_options.manifest = m_folder->filePath(QStringLiteral("manifest"));
    QVERIFY(PluginScene::write(m_options.manifest, PluginScene::sha256(broken) + "  libsound.so\n"));
    QCOMPARE(scan(), QString());
    QCOMPARE(entry(soundFile)->file.reason, ZrPluginReason::Damaged);
}

void tst_ZrPluginCatalogue::aManifestOrFolderThatIsNoGoodFindsNothing()
{
    put(soundFile, sound());
    m_options.manifest = m_folder->filePath(QStringLiteral("none"));
    QVERIFY(scan().contains(QLatin1String("manifest")));
    QVERIFY(m_catalogue->entries().isEmpty());
    m_options.manifest.clear();
    m_options.folder = m_folder->filePath(QStringLiteral("none"));
    QVERIFY(scan().contains(QLatin1String("folder")));
    QVERIFY(m_catalogue->entries().isEmpty());
    m_options.folder.clear();
    QCOMPARE(scan(), QString());
    QCOMPARE(m_catalogue->loadAll(), 0);
}

void tst_ZrPluginCatalogue::aPluginThatEndedAStartIsLeftOut()
{
    put(soundFile, sound());
    leaveMark();
    QCOMPARE(scan(), QString());
    QCOMPARE(m_catalogue->endedLastStart(), QStringList{soundId});
    QCOMPARE(entry(soundFile)->state, ZrPluginEntry::SwitchedOff);
    QCOMPARE(entry(soundFile)->file.reason, ZrPluginReason::EndedLastStart);
    QCOMPARE(m_catalogue->loadAll(), 0);
    // It stays out until the user wants it again, but is told once.
    QCOMPARE(scan(), QString());
    QVERIFY(m_catalogue->endedLastStart().isEmpty());
    QCOMPARE(entry(soundFile)->file.reason, ZrPluginReason::EndedLastStart);
    QVERIFY(m_catalogue->setSwitchedOff(soundId, false));
    QCOMPARE(m_catalogue->loadAll(), 1);
    QCOMPARE(scan(), QString());
    QCOMPARE(m_catalogue->loadAll(), 1);
}

void tst_ZrPluginCatalogue::lookingOnlyLeavesTheMark()
{
    put(soundFile, sound());
    leaveMark();
    m_options.takeMarks = false;
    QCOMPARE(scan(), QString());
    QCOMPARE(entry(soundFile)->state, ZrPluginEntry::Found);
    QCOMPARE(marks().size(), 1);
}

void tst_ZrPluginCatalogue::theUserSwitchesAPluginOffAndOn()
{
    put(soundFile, sound());
    QCOMPARE(scan(), QString());
    QCOMPARE(m_catalogue->loadAll(), 1);
    QVERIFY(!m_catalogue->isSwitchedOff(soundId));
    QVERIFY(m_catalogue->setSwitchedOff(soundId, true));
    QVERIFY(m_catalogue->isSwitchedOff(soundId));
    QVERIFY(m_catalogue->isLoaded(soundId)); // what runs goes on
    QCOMPARE(scan(), QString());
    QCOMPARE(m_catalogue->loadAll(), 0);
    QCOMPARE(entry(soundFile)->file.reason, ZrPluginReason::SwitchedOff);
    QVERIFY(m_catalogue->setSwitchedOff(soundId, false));
    QCOMPARE(entry(soundFile)->state, ZrPluginEntry::Found);
    QCOMPARE(entry(soundFile)->file.reason, ZrPluginReason::None);
}

void tst_ZrPluginCatalogue::aPluginLeftOutCanBeLoadedNow()
{
    put(soundFile, sound());
    leaveMark();
    QCOMPARE(scan(), QString());
    QVERIFY(m_catalogue->load(soundId));
    QVERIFY(m_catalogue->isLoaded(soundId));
    QVERIFY(m_catalogue->isSwitchedOff(soundId)); // the next start leaves it out all the same
}

void tst_ZrPluginCatalogue::loadingAndMakingAreMarked()
{
    put(soundFile, sound());
    QCOMPARE(scan(), QString());
    // The folder is made with the first mark: where it stands, a mark has been.
    QVERIFY(!QFileInfo::exists(m_options.stateFolder));
    QVERIFY(m_catalogue->load(soundId));
    QVERIFY(marks().isEmpty());
    QVERIFY(QDir().rmdir(m_options.stateFolder));
    const std::unique_ptr<QObject> object(m_makers.value(soundId)());
    QVERIFY(marks().isEmpty());
    QVERIFY(QDir().rmdir(m_options.stateFolder));
}

void tst_ZrPluginCatalogue::guardedWorkIsMarked()
{
    QCOMPARE(scan(), QString());
    QStringList seen;
    m_catalogue->guarded(soundId, [&] {
        m_catalogue->guarded(QStringLiteral("Inner"), [&] { seen += marks(); });
        seen += marks();
    });
    QCOMPARE(seen.size(), 2);
    QCOMPARE(seen.at(0), seen.at(1));
    QVERIFY(marks().isEmpty());
}

void tst_ZrPluginCatalogue::anUnknownIdIsNotLoaded()
{
    put(soundFile, sound());
    put(QStringLiteral("libtext.so"), "no library");
    QCOMPARE(scan(), QString());
    QVERIFY(!m_catalogue->load(QStringLiteral("Unknown")));
    QVERIFY(!m_catalogue->load(QString())); // as the refused one has
    QVERIFY(!m_catalogue->isLoaded(QString()));
}

ZR_TEST_GUILESS_MAIN(tst_ZrPluginCatalogue)
#include "tst_zrplugincatalogue.moc"
