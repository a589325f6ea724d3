#include "PluginScene.h"
#include "zrcore/ZrPluginFile.h"
#include "zrcore/ZrPluginLoader.h"
#include "ZrTestMain.h"

#include "zrcore/ZrCorePlugin.h"

#include <QtCore/QProcess>

#include <cstddef>
#include <link.h>
#include <sys/stat.h>

Q_DECLARE_METATYPE(ZrPluginReason)

/// What is read of a plugin file without running it, and loading it.
class tst_ZrPluginFile : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase();
    void aSoundFileTellsItsTexts();
    void whatIsWrongIsTold_data();
    void whatIsWrongIsTold();
    void aPathThatIsNoFileIsUnreadable();
    void aFileLargerThanAnyPluginIsNotRead();
    void longTextsAreCut();
    void theBuildSealsAFileOnce();
    void aSoundFileIsLoaded();
    void whatCannotBeLoadedIsTold_data();
    void whatCannotBeLoadedIsTold();
    void aFileThatChangedSinceItWasReadIsNotLoaded();

private:
    QString put(const QByteArray &bytes) const;

    QTemporaryDir m_folder;
    QByteArray m_content; // of the sound plugin, without its seal
};

namespace {
constexpr int toolkitMajorAt = 13; // behind the signature's start
constexpr int toolkitMinorAt = 14;

template<typename Value>
QByteArray withValue(QByteArray content, size_t offset, Value value)
{
    return content.replace(int(offset), int(sizeof value),
                           QByteArray(reinterpret_cast<const char *>(&value), sizeof value));
}

QByteArray withByte(QByteArray content, int offset, char value)
{
    content[offset] = value;
    return content;
}

QByteArray readAll(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}
} // namespace

void tst_ZrPluginFile::initTestCase()
{
    m_content = PluginScene::content(PluginScene::file(QStringLiteral("sound")));
    QVERIFY(m_content.size() > 1000);
    QVERIFY(m_folder.isValid());
}

QString tst_ZrPluginFile::put(const QByteArray &bytes) const
{
    const QString path = m_folder.filePath(QStringLiteral("libx.so"));
    return PluginScene::write(path, bytes) ? path : QString();
}

void tst_ZrPluginFile::aSoundFileTellsItsTexts()
{
    const QByteArray bytes = PluginScene::file(QStringLiteral("sound"));
    const ZrPluginFile file = ZrPluginFile::read(put(bytes));
    QCOMPARE(file.reason, ZrPluginReason::None);
    QVERIFY(file.detail.isEmpty());
    QCOMPARE(file.id, QStringLiteral("Sound"));
    QCOMPARE(file.title, QStringLiteral("A sound plugin"));
    QCOMPARE(file.version, QStringLiteral("1.2.3"));
    QCOMPARE(file.iid, QStringLiteral(ZrCorePlugin_iid));
    QCOMPARE(file.sha256, PluginScene::sha256(bytes));
}

void tst_ZrPluginFile::whatIsWrongIsTold_data()
{
    using Head = ElfW(Ehdr);
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<ZrPluginReason>("expected");
    const QByteArray file = PluginScene::sealed(m_content);
    const int meta = m_content.indexOf("QTMETADATA !");
    const auto row = [](const char *name, const QByteArray &content, ZrPluginReason expected) {
        QTest::newRow(name) << (content.isEmpty() ? content : PluginScene::sealed(content)) << expected;
    };
    QTest::newRow("empty") << QByteArray() << ZrPluginReason::NotAPlugin;
    row("a text", "no library", ZrPluginReason::NotAPlugin);
    row("a library", readAll(QStringLiteral(ZR_PLAIN_LIBRARY)), ZrPluginReason::NotAPlugin);
    row("only the first letters", m_content.left(4), ZrPluginReason::Damaged);
    row("half a head", m_content.left(int(sizeof(Head)) - 1), ZrPluginReason::Damaged);
    row("only a head", m_content.left(int(sizeof(Head))), ZrPluginReason::Damaged);
    row("another word size", withByte(m_content, EI_CLASS, char(m_content.at(EI_CLASS) ^ 3)),
        ZrPluginReason::OtherBuild);
    row("another byte order", withByte(m_content, EI_DATA, char(m_content.at(EI_DATA) ^ 3)),
        ZrPluginReason::OtherBuild);
    row("another processor", withValue(m_content, offsetof(Head, e_machine), quint16(0x1234)),
        ZrPluginReason::OtherBuild);
    row("a program", withValue(m_content, offsetof(Head, e_type), quint16(ET_EXEC)),
        ZrPluginReason::OtherBuild);
    row("another version", withValue(m_content, offsetof(Head, e_version), quint32(7)),
        ZrPluginReason::Damaged);
    row("segments beyond the end",
        withValue(m_content, offsetof(Head, e_phoff), quint64(m_content.size() - 8)),
        ZrPluginReason::Damaged);
    row("segments beyond all numbers", withValue(m_content, offsetof(Head, e_phoff), ~quint64(0)),
        ZrPluginReason::Damaged);
    row("no segments", withValue(m_content, offsetof(Head, e_phnum), quint16(0)), ZrPluginReason::Damaged);
    row("sections beyond the end", m_content.chopped(1), ZrPluginReason::Damaged);
    row("sections beyond all numbers", withValue(m_content, offsetof(Head, e_shoff), ~quint64(0) - 7),
        ZrPluginReason::Damaged);
    row("no sections", withValue(m_content, offsetof(Head, e_shnum), quint16(0)), ZrPluginReason::Damaged);
    row("names of no section", withValue(m_content, offsetof(Head, e_shstrndx), quint16(0xfffe)),
        ZrPluginReason::Damaged);
    row("names that are no names", withValue(m_content, offsetof(Head, e_shstrndx), quint16(0)),
        ZrPluginReason::Damaged);
    row("meta data without signature", PluginScene::patched(m_content, "QTMETADATA !", "QTMETADATA ?"),
        ZrPluginReason::Damaged);
    row("meta data of another format", withByte(m_content, meta + 12, 9), ZrPluginReason::Damaged);
    row("meta data that are no map", PluginScene::withMeta(m_content, "\x83\x01\x02\x03"),
        ZrPluginReason::Damaged);
    row("meta data cut off", PluginScene::withMeta(m_content, "\xbf\x02\x78\x1a"), ZrPluginReason::Damaged);
    row("no meta data at all", PluginScene::withMeta(m_content, QByteArray()), ZrPluginReason::Damaged);
    row("a list as long as no memory",
        PluginScene::withMeta(m_content, "\xbf\x04\x9b" + QByteArray(8, '\x7f')), ZrPluginReason::Damaged);
    row("a text as long as no memory",
        PluginScene::withMeta(m_content, "\xbf\x04\x7b" + QByteArray(8, '\x7f')), ZrPluginReason::Damaged);
    row("lists in lists in lists",
        PluginScene::withMeta(m_content, "\xbf\x04" + QByteArray(200 * 1000, '\x81')),
        ZrPluginReason::Damaged);
    row("lists that claim a million each",
        PluginScene::withMeta(m_content, "\xbf\x04" + QByteArray("\x9a\x00\x0f\xff\xff", 5).repeated(500)),
        ZrPluginReason::Damaged);
    row("a text that claims gigabytes", PluginScene::withMeta(m_content, "\xbf\x04\x7a\x7f\xff\xff\xff"),
        ZrPluginReason::Damaged);
    row("lists in lists of their own",
        PluginScene::withMeta(m_content, "\xbf\x04" + QByteArray(40, '\x81') + QByteArray("\x00\xff", 2)),
        ZrPluginReason::Damaged);
    row("more meta data than any", PluginScene::withMeta(m_content, "\xbf\xff" + QByteArray(300 * 1024, 'x')),
        ZrPluginReason::Damaged);
    row("an older toolkit", withByte(m_content, meta + toolkitMajorAt, 4), ZrPluginReason::OtherBuild);
    row("a newer toolkit", withByte(m_content, meta + toolkitMinorAt, 99), ZrPluginReason::OtherBuild);
    row("another interface",
        PluginScene::patched(m_content, QByteArray("\x1a" ZrCorePlugin_iid),
                             QByteArray("\x1azrwidget.host.CorePlugin/9")),
        ZrPluginReason::WrongInterface);
    row("no interface", PluginScene::withMeta(m_content, "\xbf\xff"), ZrPluginReason::WrongInterface);
    row("no ID", PluginScene::patched(m_content, "pluginId", "pluginIx"), ZrPluginReason::NoId);
    row("a separator in the ID", PluginScene::patched(m_content, "\x65Sound", "\x65So#nd"),
        ZrPluginReason::NoId);
    row("a blank in the ID", PluginScene::patched(m_content, "\x65Sound", "\x65So nd"), ZrPluginReason::NoId);
    row("a path as ID", PluginScene::patched(m_content, "\x65Sound", "\x65../nd"), ZrPluginReason::NoId);
    row("a line break in the ID", PluginScene::patched(m_content, "\x65Sound", "\x65So\nnd"),
        ZrPluginReason::NoId);
    row("a right-to-left mark in the ID",
        PluginScene::patched(m_content, "\x65Sound",
                             "\x65S\xe2\x80\xae"
                             "d"),
        ZrPluginReason::NoId);
    QTest::newRow("unsealed") << m_content << ZrPluginReason::Unsealed;
    QTest::newRow("sealed, then changed")
        << withByte(file, 300, char(file.at(300) ^ 1)) << ZrPluginReason::Damaged;
    QTest::newRow("the seal changed") << withByte(file, file.size() - 5, 'x') << ZrPluginReason::Damaged;
    QTest::newRow("the seal cut") << file.chopped(1) << ZrPluginReason::Damaged;
    QTest::newRow("a byte behind the seal") << file + 'x' << ZrPluginReason::Damaged;
    QTest::newRow("only a seal") << PluginScene::sealed(QByteArray()) << ZrPluginReason::NotAPlugin;
}

void tst_ZrPluginFile::whatIsWrongIsTold()
{
    QFETCH(QByteArray, bytes);
    QFETCH(ZrPluginReason, expected);
    QVERIFY(!bytes.isEmpty() ||
            qstrcmp(QTest::currentDataTag(), "empty") == 0); // a patch that found its place
    const ZrPluginFile file = ZrPluginFile::read(put(bytes));
    QVERIFY2(file.reason == expected, qPrintable(file.detail));
    QVERIFY(!file.detail.isEmpty());
    QCOMPARE(file.id.isEmpty(), expected != ZrPluginReason::Unsealed);
}

void tst_ZrPluginFile::aPathThatIsNoFileIsUnreadable()
{
    const QString pipe = m_folder.filePath(QStringLiteral("libpipe.so"));
    QCOMPARE(mkfifo(QFile::encodeName(pipe).constData(), 0600), 0);
    for (const QString &path :
         {pipe, m_folder.path(), m_folder.filePath(QStringLiteral("none.so")), QString()}) {
        const ZrPluginFile file = ZrPluginFile::read(path);
        QCOMPARE(file.reason, ZrPluginReason::Unreadable);
        QVERIFY(file.sha256.isEmpty());
    }
}

void tst_ZrPluginFile::aFileLargerThanAnyPluginIsNotRead()
{
    QFile file(m_folder.filePath(QStringLiteral("liblarge.so")));
    QVERIFY(file.open(QIODevice::WriteOnly));
    QVERIFY(file.resize(ZrPluginFile::maxBytes + 1)); // holds no blocks
    file.close();
    QCOMPARE(ZrPluginFile::read(file.fileName()).reason, ZrPluginReason::Unreadable);
    QVERIFY(file.remove());
}

void tst_ZrPluginFile::longTextsAreCut()
{
    const QByteArray text(1000, 'v');
    const QByteArray map =
        QByteArray("\xbf\x02\x78\x1a" ZrCorePlugin_iid "\x04\xa2\x68pluginId\x65Sound\x67version") +
        "\x79\x03\xe8" + text + '\xff';
    const ZrPluginFile file =
        ZrPluginFile::read(put(PluginScene::sealed(PluginScene::withMeta(m_content, map))));
    QVERIFY2(file.reason == ZrPluginReason::None, qPrintable(file.detail));
    QCOMPARE(file.version.size(), ZrPluginFile::maxTextLength);
}

void tst_ZrPluginFile::theBuildSealsAFileOnce()
{
    const QString path = put(m_content);
    const QStringList arguments = {QStringLiteral("-Dfile=") + path, QStringLiteral("-P"),
                                   QStringLiteral(ZR_SEAL_SCRIPT)};
    for (int time = 0; time < 2; ++time) {
        QCOMPARE(QProcess::execute(QStringLiteral(ZR_CMAKE), arguments), 0);
        QCOMPARE(readAll(path), PluginScene::sealed(m_content));
    }
}

void tst_ZrPluginFile::aSoundFileIsLoaded()
{
    ZrPluginFile file = ZrPluginFile::read(QStringLiteral(ZR_PLUGIN_FILES "/libsound.so"));
    ZrCorePlugin *const plugin = ZrPluginLoader::load(&file);
    QVERIFY2(plugin, qPrintable(file.detail));
    const std::unique_ptr<QObject> object(plugin->createObject());
    QCOMPARE(object->objectName(), QStringLiteral("sound"));
    QCOMPARE(ZrPluginLoader::load(&file), plugin);
}

void tst_ZrPluginFile::whatCannotBeLoadedIsTold_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<ZrPluginReason>("expected");
    QTest::addColumn<QString>("detail");
    QTest::newRow("a symbol is missing")
        << "hollow" << ZrPluginReason::MissingSymbol << "zrNobodyOffersThis(int)";
    QTest::newRow("a library is missing")
        << "orphan" << ZrPluginReason::MissingLibrary << "libzr_orphan_library.so";
    QTest::newRow("the root object is another")
        << "lying" << ZrPluginReason::WrongInterface << "its root object";
}

void tst_ZrPluginFile::whatCannotBeLoadedIsTold()
{
    QFETCH(QString, name);
    QFETCH(ZrPluginReason, expected);
    QFETCH(QString, detail);
    ZrPluginFile file = ZrPluginFile::read(QStringLiteral(ZR_PLUGIN_FILES "/lib%1.so").arg(name));
    QCOMPARE(file.reason, ZrPluginReason::None);
    QVERIFY(!ZrPluginLoader::load(&file));
    QVERIFY2(file.reason == expected, qPrintable(file.detail));
    QVERIFY2(file.detail.startsWith(detail), qPrintable(file.detail));
}

void tst_ZrPluginFile::aFileThatChangedSinceItWasReadIsNotLoaded()
{
    const QString path = put(PluginScene::file(QStringLiteral("sound")));
    ZrPluginFile file = ZrPluginFile::read(path);
    QCOMPARE(file.reason, ZrPluginReason::None);
    // Sound as well, but not what was read.
    put(PluginScene::file(QStringLiteral("lying")));
    QVERIFY(!ZrPluginLoader::load(&file));
    QCOMPARE(file.reason, ZrPluginReason::Damaged);
    QVERIFY(QFile::remove(path));
    QVERIFY(!ZrPluginLoader::load(&file));
    QCOMPARE(file.reason, ZrPluginReason::Damaged);
}

ZR_TEST_GUILESS_MAIN(tst_ZrPluginFile)
#include "tst_zrpluginfile.moc"
