#include "zrcm/Id.h"
#include "zrcore/ZrCore.h"
#include "zrcore/ZrCoreHost.h"
#include "zrdefine/Constants.h"
#include "zrskin/IZrSkin.h"
#include "ZrTestMain.h"

#include <QtCore/QPointer>
#include <QtGui/QImage>

#include <memory>

/// The core as the library sees it, steered by its host.
class tst_ZrCore : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase();
    void init();
    void cleanup();
    void anUnsetSettingIsEmpty();
    void settingsComeBack();
    void settingsOutliveTheProcessesHost();
    void hostileKeysAreOnlyKeys_data();
    void hostileKeysAreOnlyKeys();
    void anotherFileIsAnotherPlace();
    void aFileNameThatIsAPathIsRefused_data();
    void aFileNameThatIsAPathIsRefused();
    void scopesAreApart();
    void aViewGetsItsSheetAtOnce();
    void aMissingSheetGivesAnInvalidVariant();
    void aSheetOutsideTheSkinIsNoSheet();
    void aNullViewIsIgnored();
    void severalSheetsComeInTheOrderOfTheCalls();
    void skinChangeReloadsViewsBeforeTheSignal();
    void theSameSkinChangesNothing();
    void anUnknownSkinIsRefused_data();
    void anUnknownSkinIsRefused();
    void deadViewsAreForgotten();
    void aViewThatEndsAnotherDuringTheChangeIsSafe();
    void aViewWithoutObjectPartGetsItsSheetOnce();
    void picturesComeThroughTheSearchPaths();
    void commonInfoIsKept();
    void objectsAreMadeByRegisteredMakers();
    void objectsAreMadeByPluginFiles();
    void codeGoesBeforeFiles();
    void onlyKnownTextsAreIds();
    void idsAreValues();
    void theMainWindowMayDie();
    void raiseWindowShowsAMinimizedOne();
    void pluginsMadeAreKeptForTheReport();

private:
    void writeFile(const QString &below, const QByteArray &bytes);

    std::unique_ptr<QTemporaryDir> m_folder;
    ZrCoreHost &m_host = ZrCoreHost::instance();
    ZrCore &m_core = *ZrCore::instance();
};

/// A skinnable object that notes its sheets.
class View : public QObject, public IZrSkin
{
    Q_OBJECT
    Q_INTERFACES(IZrSkin)
public:
    void loadSkin(const QVariant &css) override
    {
        sheets.append(css);
        if (onLoad)
            onLoad();
    }
    QVariantList sheets;
    std::function<void()> onLoad;
};

/// A skinnable thing that is no QObject.
class Thing final : public IZrSkin
{
public:
    void loadSkin(const QVariant &css) override { sheets.append(css); }
    QVariantList sheets;
};

static const QString mySheet = QStringLiteral("zrwidget/view.css");

void tst_ZrCore::initTestCase()
{
    QVERIFY(m_core.getCurrentSkinId().isEmpty());
    QVERIFY(!m_core.mainWindow());
}

void tst_ZrCore::writeFile(const QString &below, const QByteArray &bytes)
{
    const QFileInfo info(m_folder->filePath(below));
    QVERIFY(QDir().mkpath(info.absolutePath()));
    QFile file(info.absoluteFilePath());
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(bytes);
}

void tst_ZrCore::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    writeFile(QStringLiteral("skin/dark/system/zrwidget/view.css"), "dark");
    writeFile(QStringLiteral("skin/dark/system/zrwidget/second.css"), "dark 2");
    writeFile(QStringLiteral("skin/light/system/zrwidget/view.css"), "light");
    writeFile(QStringLiteral("secret.css"), "secret");
    m_host.setConfigFolder(m_folder->filePath(QStringLiteral("config")));
    m_host.setSkinRoot(m_folder->filePath(QStringLiteral("skin")));
    QVERIFY(m_host.setSkin(QStringLiteral("dark")));
}

void tst_ZrCore::cleanup()
{
    QCOMPARE(m_host.skinnedViewCount(), 0);
    m_host.reset();
}

void tst_ZrCore::anUnsetSettingIsEmpty()
{
    QVERIFY(m_core.settings(QStringLiteral("k"), QStringLiteral("g"), QString(), QSettings::UserScope)
                .toString()
                .isEmpty());
}

void tst_ZrCore::settingsComeBack()
{
    const QString group = Constants::VIEWFIELDORDERLIST;
    const QString key = QStringLiteral("12#OrderQuery#_0");
    const QString json = QStringLiteral("{\"name\": \"\u59d4\u6258, \\\"a\\\"\", \"columns\": [1, 2]}");
    m_core.saveSetting(key, json, group, QString(), QSettings::UserScope);
    QCOMPARE(m_core.settings(key, group, QString(), QSettings::UserScope).toString(), json);
    QVERIFY(!m_core.settings(key, QStringLiteral("other"), QString(), QSettings::UserScope).isValid());
}

void tst_ZrCore::settingsOutliveTheProcessesHost()
{
    const QString folder = m_host.configFolder();
    m_core.saveSetting(QStringLiteral("k"), 5, QStringLiteral("g"), QString(), QSettings::UserScope);
    m_host.reset();
    m_host.setConfigFolder(folder);
    QCOMPARE(
        m_core.settings(QStringLiteral("k"), QStringLiteral("g"), QString(), QSettings::UserScope).toInt(),
        5);
}

void tst_ZrCore::hostileKeysAreOnlyKeys_data()
{
    QTest::addColumn<QString>("hostile");
    QTest::newRow("parent folder") << QStringLiteral("../../etc/passwd");
    QTest::newRow("group") << QStringLiteral("a/b");
    QTest::newRow("backslash") << QStringLiteral("a\\b");
    QTest::newRow("line break") << QStringLiteral("a\n[other]\nb=c");
    QTest::newRow("ini signs") << QStringLiteral("a=b;c\"d%41[x]");
    QTest::newRow("empty") << QString();
    QTest::newRow("chinese") << QStringLiteral("\u4e2d\u6587");
    QTest::newRow("nul") << QString(QChar::Null);
    QTest::newRow("long") << QString(10000, QLatin1Char('k'));
}

void tst_ZrCore::hostileKeysAreOnlyKeys()
{
    QFETCH(QString, hostile);
    const QString plain = QStringLiteral("plain");
    m_core.saveSetting(plain, 0, plain, QString(), QSettings::UserScope);
    m_core.saveSetting(hostile, 1, plain, QString(), QSettings::UserScope);
    m_core.saveSetting(plain, 2, hostile, QString(), QSettings::UserScope);
    m_core.saveSetting(hostile, 3, hostile, QString(), QSettings::UserScope);
    m_host.setConfigFolder(m_host.configFolder()); // reads the file again
    QCOMPARE(m_core.settings(plain, plain, QString(), QSettings::UserScope).toInt(), 0);
    QCOMPARE(m_core.settings(hostile, plain, QString(), QSettings::UserScope).toInt(), 1);
    QCOMPARE(m_core.settings(plain, hostile, QString(), QSettings::UserScope).toInt(), 2);
    QCOMPARE(m_core.settings(hostile, hostile, QString(), QSettings::UserScope).toInt(), 3);
    QCOMPARE(QDir(m_host.configFolder()).entryList(QDir::AllEntries | QDir::NoDotAndDotDot).size(), 1);
}

void tst_ZrCore::anotherFileIsAnotherPlace()
{
    const QString k = QStringLiteral("k");
    m_core.saveSetting(k, 1, k, QString(), QSettings::UserScope);
    m_core.saveSetting(k, 2, k, QStringLiteral("basesetting.ini"), QSettings::UserScope);
    QCOMPARE(m_core.settings(k, k, QString(), QSettings::UserScope).toInt(), 1);
    QCOMPARE(m_core.settings(k, k, QStringLiteral("basesetting.ini"), QSettings::UserScope).toInt(), 2);
    QCOMPARE(m_core.settings(k, k, QStringLiteral("basesetting"), QSettings::UserScope).toInt(), 2);
    m_host.syncSettings();
    QVERIFY(QFile::exists(m_host.configFolder() + QStringLiteral("/basesetting.ini")));
}

void tst_ZrCore::aFileNameThatIsAPathIsRefused_data()
{
    QTest::addColumn<QString>("file");
    for (const char *file :
         {"../x.ini", "/tmp/x.ini", "a/b.ini", "a\\b.ini", "c:x.ini", "..", ".hidden", "x..ini"})
        QTest::newRow(file) << QString::fromLatin1(file);
    QTest::newRow("long") << QString(1000, QLatin1Char('f'));
}

void tst_ZrCore::aFileNameThatIsAPathIsRefused()
{
    QFETCH(QString, file);
    const QString k = QStringLiteral("k");
    const QRegularExpression refusal(QStringLiteral("^ZrCore::settings not a bare file name"));
    QTest::ignoreMessage(QtWarningMsg, refusal);
    m_core.saveSetting(k, 1, k, file, QSettings::UserScope);
    QTest::ignoreMessage(QtWarningMsg, refusal);
    QVERIFY(!m_core.settings(k, k, file, QSettings::UserScope).isValid());
}

void tst_ZrCore::scopesAreApart()
{
    const QString k = QStringLiteral("k");
    m_core.saveSetting(k, 1, k, QString(), QSettings::UserScope);
    m_core.saveSetting(k, 2, k, QString(), QSettings::SystemScope);
    QCOMPARE(m_core.settings(k, k, QString(), QSettings::UserScope).toInt(), 1);
    QCOMPARE(m_core.settings(k, k, QString(), QSettings::SystemScope).toInt(), 2);
}

void tst_ZrCore::aViewGetsItsSheetAtOnce()
{
    View view;
    m_core.addStyle2View(&view, Constants::SKIN_SYSTEM + mySheet);
    QCOMPARE(view.sheets, QVariantList{QStringLiteral("dark")});
    QCOMPARE(m_host.skinnedViewCount(), 1);
}

void tst_ZrCore::aMissingSheetGivesAnInvalidVariant()
{
    View view;
    m_core.addStyle2View(&view, Constants::SKIN_SYSTEM + QStringLiteral("zrwidget/none.css"));
    m_core.addStyle2View(&view, QString());
    m_core.addStyle2View(&view, QStringLiteral("system"));
    QCOMPARE(view.sheets, (QVariantList{QVariant(), QVariant(), QVariant()}));
}

void tst_ZrCore::aSheetOutsideTheSkinIsNoSheet()
{
    View view;
    m_core.addStyle2View(&view, QStringLiteral("../../secret.css"));
    m_core.addStyle2View(&view, QStringLiteral("system/../../light/system/zrwidget/view.css"));
    m_core.addStyle2View(&view, m_folder->filePath(QStringLiteral("secret.css")));
    QCOMPARE(view.sheets, (QVariantList{QVariant(), QVariant(), QVariant()}));
}

void tst_ZrCore::aNullViewIsIgnored()
{
    m_core.addStyle2View(nullptr, Constants::SKIN_SYSTEM + mySheet);
    QCOMPARE(m_host.skinnedViewCount(), 0);
}

void tst_ZrCore::severalSheetsComeInTheOrderOfTheCalls()
{
    View view;
    m_core.addStyle2View(&view, Constants::SKIN_SYSTEM + mySheet);
    m_core.addStyle2View(&view, Constants::SKIN_SYSTEM + QStringLiteral("zrwidget/second.css"));
    m_core.addStyle2View(&view, Constants::SKIN_SYSTEM + mySheet);
    QCOMPARE(view.sheets,
             (QVariantList{QStringLiteral("dark"), QStringLiteral("dark 2"), QStringLiteral("dark")}));
    view.sheets.clear();
    QVERIFY(m_host.setSkin(QStringLiteral("light")));
    QCOMPARE(view.sheets, (QVariantList{QStringLiteral("light"), QVariant()}));
}

void tst_ZrCore::skinChangeReloadsViewsBeforeTheSignal()
{
    View view;
    m_core.addStyle2View(&view, Constants::SKIN_SYSTEM + mySheet);
    QVariantList atSignal;
    QString idAtSignal;
    connect(&m_core, &ZrCore::signalSkinChanged, &view, [&](const QString &skinId) {
        atSignal = view.sheets;
        idAtSignal = skinId;
        QCOMPARE(m_core.getCurrentSkinId(), skinId);
    });
    QVERIFY(m_host.setSkin(QStringLiteral("light")));
    QCOMPARE(idAtSignal, QStringLiteral("light"));
    QCOMPARE(atSignal, (QVariantList{QStringLiteral("dark"), QStringLiteral("light")}));
}

void tst_ZrCore::theSameSkinChangesNothing()
{
    QSignalSpy spy(&m_core, &ZrCore::signalSkinChanged);
    View view;
    m_core.addStyle2View(&view, Constants::SKIN_SYSTEM + mySheet);
    QVERIFY(m_host.setSkin(QStringLiteral("dark")));
    QCOMPARE(view.sheets.size(), 1);
    QVERIFY(spy.isEmpty());
}

void tst_ZrCore::anUnknownSkinIsRefused_data()
{
    QTest::addColumn<QString>("skinId");
    for (const char *id : {"none", "..", ".", "dark/system", "../skin/light", "light/", ""})
        QTest::newRow(id) << QString::fromLatin1(id);
}

void tst_ZrCore::anUnknownSkinIsRefused()
{
    QFETCH(QString, skinId);
    QSignalSpy spy(&m_core, &ZrCore::signalSkinChanged);
    QTest::ignoreMessage(QtWarningMsg,
                         QRegularExpression(QStringLiteral("^ZrCoreHost::setSkin no such skin")));
    QVERIFY(!m_host.setSkin(skinId));
    QCOMPARE(m_core.getCurrentSkinId(), QStringLiteral("dark"));
    QVERIFY(spy.isEmpty());
}

void tst_ZrCore::deadViewsAreForgotten()
{
    View living;
    m_core.addStyle2View(&living, Constants::SKIN_SYSTEM + mySheet);
    const QString missing = QStringLiteral("none.css"); // no file is read a hundred thousand times
    for (int n = 0; n < 100 * 1000; ++n) {
        View dying;
        m_core.addStyle2View(&dying, missing);
    }
    QCOMPARE(m_host.skinnedViewCount(), 1);
    QVERIFY(m_host.setSkin(QStringLiteral("light")));
    QCOMPARE(living.sheets.size(), 2);
}

void tst_ZrCore::aViewThatEndsAnotherDuringTheChangeIsSafe()
{
    View first;
    View *second = new View;
    View third;
    for (View *view : {&first, second, &third})
        m_core.addStyle2View(view, Constants::SKIN_SYSTEM + mySheet);
    View newcomer;
    first.onLoad = [&] {
        if (!second)
            return;
        delete second;
        second = nullptr;
        m_core.addStyle2View(&newcomer, Constants::SKIN_SYSTEM + mySheet);
    };
    QVERIFY(m_host.setSkin(QStringLiteral("light")));
    QCOMPARE(third.sheets.last(), QVariant(QStringLiteral("light")));
    QCOMPARE(newcomer.sheets, QVariantList{QStringLiteral("light")});
}

void tst_ZrCore::aViewWithoutObjectPartGetsItsSheetOnce()
{
    Thing thing;
    m_core.addStyle2View(&thing, Constants::SKIN_SYSTEM + mySheet);
    QVERIFY(m_host.setSkin(QStringLiteral("light")));
    QCOMPARE(thing.sheets, QVariantList{QStringLiteral("dark")});
}

void tst_ZrCore::picturesComeThroughTheSearchPaths()
{
    QImage image(3, 2, QImage::Format_ARGB32);
    image.fill(Qt::red);
    QVERIFY(QDir().mkpath(m_folder->filePath(QStringLiteral("skin/light/zrwidget"))));
    QVERIFY(image.save(m_folder->filePath(QStringLiteral("skin/light/zrwidget/x.png"))));
    QVERIFY(m_host.setSkin(QStringLiteral("light")));
    const QString path =
        QStringLiteral("ZRSkin:%1/%2").arg(m_core.getCurrentSkinId(), QStringLiteral("zrwidget/x.png"));
    QCOMPARE(QImage(path).size(), QSize(3, 2));
    m_host.setDataFolder(m_folder->path());
    QVERIFY(QFile::exists(QStringLiteral("ZRData:secret.css")));
    m_host.reset();
    QVERIFY(!QFile::exists(path));
    QVERIFY(!QFile::exists(QStringLiteral("ZRData:secret.css")));
}

void tst_ZrCore::commonInfoIsKept()
{
    QCOMPARE(m_core.getCommonInfo(QStringLiteral("count")).toInt(), 0);
    m_core.setCommonInfo(QStringLiteral("count"), 3);
    QCOMPARE(m_core.getCommonInfo(QStringLiteral("count")).toInt(), 3);
    m_host.reset();
    QCOMPARE(m_core.getCommonInfo(QStringLiteral("count")).toInt(), 0);
}

void tst_ZrCore::objectsAreMadeByRegisteredMakers()
{
    m_host.setObjectMaker(QStringLiteral("Blotter"), [] { return new View; });
    const Id id = Id::fromSetting(QStringLiteral("Blotter"));
    QVERIFY(!id.isNull());
    const std::unique_ptr<QObject> object(m_core.createCustomObject(id));
    QVERIFY(qobject_cast<View *>(object.get()));
    m_host.setObjectMaker(QStringLiteral("Blotter"), nullptr);
    QVERIFY(!m_core.createCustomObject(id)); // an Id from before
    QVERIFY(Id::fromSetting(QStringLiteral("Blotter")).isNull());
    QVERIFY(!m_core.createCustomObject(Id()));
}

void tst_ZrCore::objectsAreMadeByPluginFiles()
{
    m_host.setPluginFolder(QStringLiteral(ZR_TEST_PLUGIN_DIR));
    QCOMPARE(m_host.pluginIds(), QStringList{QStringLiteral("FromFile")});
    const std::unique_ptr<QObject> object(
        m_core.createCustomObject(Id::fromSetting(QStringLiteral("FromFile"))));
    QVERIFY(object);
    QCOMPARE(object->objectName(), QStringLiteral("made by a file"));
    // What only looks like a plugin is skipped.
    writeFile(QStringLiteral("plugins/libfake.so"), "no library");
    writeFile(QStringLiteral("plugins/readme.txt"), "no library");
    m_host.setPluginFolder(m_folder->filePath(QStringLiteral("plugins")));
    QVERIFY(m_host.pluginIds().isEmpty());
    QVERIFY(Id::fromSetting(QStringLiteral("FromFile")).isNull());
}

void tst_ZrCore::codeGoesBeforeFiles()
{
    m_host.setPluginFolder(QStringLiteral(ZR_TEST_PLUGIN_DIR));
    m_host.setObjectMaker(QStringLiteral("FromFile"), [] { return new View; });
    const std::unique_ptr<QObject> object(
        m_core.createCustomObject(Id::fromSetting(QStringLiteral("FromFile"))));
    QVERIFY(qobject_cast<View *>(object.get()));
    m_host.setObjectMaker(QStringLiteral("FromFile"), nullptr);
    QVERIFY(!Id::fromSetting(QStringLiteral("FromFile")).isNull());
    QCOMPARE(m_host.pluginIds(), QStringList{QStringLiteral("FromFile")});
}

void tst_ZrCore::onlyKnownTextsAreIds()
{
    m_host.setObjectMaker(QStringLiteral("5"), [] { return new QObject; });
    QVERIFY(!Id::fromSetting(QStringLiteral("5")).isNull());
    QVERIFY(Id::fromSetting(5).isNull());
    QVERIFY(Id::fromSetting(QVariant()).isNull());
    QVERIFY(Id::fromSetting(QString()).isNull());
    QVERIFY(Id::fromSetting(QStringLiteral("unknown")).isNull());
    QVERIFY(Id().isNull());
}

void tst_ZrCore::idsAreValues()
{
    m_host.setObjectMaker(QStringLiteral("a"), [] { return new QObject; });
    m_host.setObjectMaker(QStringLiteral("b"), [] { return new QObject; });
    const Id a = Id::fromSetting(QStringLiteral("a"));
    const Id b = Id::fromSetting(QByteArray("b"));
    Id copy(a);
    QCOMPARE(copy.toString(), QStringLiteral("a"));
    QVERIFY(copy == a && copy != b);
    copy = b;
    QVERIFY(copy == b && copy != a);
    QVERIFY(Id() == Id::fromSetting(QString()));
}

void tst_ZrCore::theMainWindowMayDie()
{
    auto window = std::make_unique<QWidget>();
    m_host.setMainWindow(window.get());
    QCOMPARE(m_core.mainWindow(), window.get());
    window.reset();
    QVERIFY(!m_core.mainWindow());
}

void tst_ZrCore::raiseWindowShowsAMinimizedOne()
{
    m_core.raiseWindow(nullptr);
    QWidget window;
    QWidget child(&window);
    window.showMinimized();
    QTest::ignoreMessage(QtWarningMsg, "This plugin does not support raise()"); // the offscreen platform
    m_core.raiseWindow(&child);
    QVERIFY(window.isVisible());
    QVERIFY(!window.isMinimized());
}

void tst_ZrCore::pluginsMadeAreKeptForTheReport()
{
    m_core.newPluginCreated(QStringLiteral("1#A#_0"), 12);
    m_core.newPluginCreated(QStringLiteral("1#A#_1"), 3);
    const QList<QPair<QString, int>> expected{{QStringLiteral("1#A#_0"), 12}, {QStringLiteral("1#A#_1"), 3}};
    QCOMPARE(m_host.pluginsCreated(), expected);
    for (int n = 0; n < 10000; ++n)
        m_core.newPluginCreated(QStringLiteral("more"), n);
    QCOMPARE(m_host.pluginsCreated().size(), 10000);
    QCOMPARE(m_host.pluginsCreated().last().second, 9999);
}

ZR_TEST_MAIN(tst_ZrCore)
#include "tst_zrcore.moc"
