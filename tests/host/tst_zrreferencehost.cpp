#include "HostScene.h"
#include "ZrTestMain.h"

#include "zrbusinessdata/CBusinessDataBase.h"
#include "zrcm/Id.h"
#include "zrcore/ZrCore.h"
#include "zrplugin/PluginManager.h"

/// The one header that steers the host.
class tst_ZrReferenceHost : public QObject
{
    Q_OBJECT
private slots:
    void init();
    void startsAndStopsAHundredTimes();
    void itStartsWithTheFirstSkin();
    void aBadStartGivesOneSentence();
    void onlyOneHostRuns();
    void stopForgetsWhatWasRegistered();
    void theHandlesEndStopsTheHost();
    void theReferenceDataCanBeReplaced();
    void pluginsAndWindowReachTheCore();
    void theBusWorksBeforeTheFirstStart();

private:
    ZrReferenceHost::Options m_options;
    QTemporaryDir m_folder;
};

void tst_ZrReferenceHost::init()
{
    for (const char *skin : {"skin/dark", "skin/light", "data", "plugins"})
        QVERIFY(QDir(m_folder.path()).mkpath(QString::fromLatin1(skin)));
    m_options = ZrReferenceHost::Options();
    m_options.configFolder = m_folder.filePath(QStringLiteral("config"));
    m_options.dataFolder = m_folder.filePath(QStringLiteral("data"));
    m_options.skinRoot = m_folder.filePath(QStringLiteral("skin"));
    m_options.pluginFolder = m_folder.filePath(QStringLiteral("plugins"));
}

void tst_ZrReferenceHost::startsAndStopsAHundredTimes()
{
    ZrReferenceHost host;
    for (int round = 0; round < 100; ++round) {
        QVERIFY(!host.isRunning());
        QVERIFY2(host.start(m_options), qPrintable(host.errorText()));
        QVERIFY(host.isRunning());
        host.registerService(QStringLiteral("Ask"), echoService(QStringLiteral("Answer")));
        Listener listener(QStringLiteral("listener"),
                          round % 2 ? IMessageInterface::ReceiverThread : IMessageInterface::SharedThread);
        listener.Put(listener.pid, requestOf(QStringLiteral("Ask"), round));
        QVERIFY(host.waitIdle(longMs));
        QCOMPARE(listener.numbers(), QVector<int>{round});
        QCOMPARE(host.counters().put, 1);
        QCOMPARE(PluginManager::instance()->getCurrentInstanceIDIndexByPluginID(QStringLiteral("A")), 0);
        host.stop();
    }
    host.stop();
}

void tst_ZrReferenceHost::itStartsWithTheFirstSkin()
{
    ZrReferenceHost host;
    QVERIFY(host.start(m_options));
    QCOMPARE(host.skinIds(), (QStringList{QStringLiteral("dark"), QStringLiteral("light")}));
    QCOMPARE(ZrCore::instance()->getCurrentSkinId(), QStringLiteral("dark"));
    QVERIFY(host.setSkin(QStringLiteral("light")));
    QCOMPARE(ZrCore::instance()->getCurrentSkinId(), QStringLiteral("light"));
    m_options.skinId = QStringLiteral("light");
    QVERIFY(host.start(m_options)); // a second start stops first
    QCOMPARE(ZrCore::instance()->getCurrentSkinId(), QStringLiteral("light"));
}

void tst_ZrReferenceHost::aBadStartGivesOneSentence()
{
    ZrReferenceHost host;
    ZrReferenceHost::Options bad = m_options;
    bad.skinId = QStringLiteral("none");
    QVERIFY(!host.start(bad));
    QCOMPARE(host.errorText(),
             QStringLiteral("There is no skin \"none\" in \"%1\".").arg(m_options.skinRoot));
    bad = m_options;
    bad.faults = QStringLiteral("drop=2");
    QVERIFY(!host.start(bad));
    QVERIFY(host.errorText().startsWith(QLatin1String("Bad faults:")));
    bad = m_options;
    bad.dataFolder = m_folder.filePath(QStringLiteral("none"));
    QVERIFY(!host.start(bad));
    QCOMPARE(host.errorText(), QStringLiteral("There is no folder \"%1\".").arg(bad.dataFolder));
    bad = m_options;
    bad.database.driver = QStringLiteral("no such driver");
    QVERIFY(!host.start(bad));
    QVERIFY(!host.errorText().isEmpty());
    QVERIFY(!host.isRunning());
    QVERIFY(host.start(m_options));
    QCOMPARE(host.errorText(), QString());
}

void tst_ZrReferenceHost::onlyOneHostRuns()
{
    ZrReferenceHost first, second;
    QVERIFY(first.start(m_options));
    QVERIFY(!second.start(m_options));
    QCOMPARE(second.errorText(), QStringLiteral("A reference host runs already in this process."));
    second.stop(); // not its own
    QVERIFY(first.isRunning());
    first.stop();
    QVERIFY(second.start(m_options));
}

void tst_ZrReferenceHost::stopForgetsWhatWasRegistered()
{
    ZrReferenceHost host;
    QVERIFY(host.start(m_options));
    Listener listener(QStringLiteral("listener"));
    listener.subscribe(QStringLiteral("Tick"));
    host.registerService(QStringLiteral("Ask"), echoService(QStringLiteral("Answer")));
    host.registerPlugin(QStringLiteral("P"), [] { return new QObject; });
    QVERIFY(host.setFaults(QStringLiteral("drop=1")));
    QVERIFY(host.start(m_options));
    Listener fresh(QStringLiteral("fresh"));
    fresh.subscribe(QStringLiteral("Tick"));
    fresh.Put(fresh.pid, requestOf(QStringLiteral("Ask"), 1));
    host.publish(QStringLiteral("Tick"), {numbered(2)});
    QVERIFY(host.waitIdle(longMs));
    QVERIFY(listener.heard().isEmpty());
    QCOMPARE(fresh.numbers(), QVector<int>{2});
    QVERIFY(Id::fromSetting(QStringLiteral("P")).isNull());
    host.registerService(QStringLiteral("Tick"), echoService(QStringLiteral("Answer")));
    host.registerService(QStringLiteral("Tick"), nullptr);
    fresh.Put(fresh.pid, requestOf(QStringLiteral("Tick"), 3));
    QVERIFY(host.waitIdle(longMs));
    QCOMPARE(fresh.numbers(), (QVector<int>{2, 3}));
}

void tst_ZrReferenceHost::theHandlesEndStopsTheHost()
{
    {
        ZrReferenceHost host;
        QVERIFY(host.start(m_options));
    }
    QCOMPARE(ZrCore::instance()->getCurrentSkinId(), QString());
    ZrReferenceHost next;
    QVERIFY(next.start(m_options));
}

void tst_ZrReferenceHost::theReferenceDataCanBeReplaced()
{
    ZrReferenceHost host;
    m_options.loginType = QStringLiteral("7");
    QVERIFY(host.start(m_options));
    CBusinessDataBase *const data = CBusinessDataBase::GetInstance();
    QCOMPARE(data->GetLoginAccountType(), QStringLiteral("7"));
    host.setLoginType(QStringLiteral("8"));
    QCOMPARE(data->GetLoginAccountType(), QStringLiteral("8"));
    host.stop();
    QVERIFY(data->GetLoginAccountType().isEmpty());
    // On disk this time: the file is made from the seed.
    m_options.database.folder = m_folder.filePath(QStringLiteral("data"));
    m_options.loginType.clear();
    QVERIFY2(host.start(m_options), qPrintable(host.errorText()));
    QVERIFY(!QDir(m_options.database.folder).isEmpty());
    QVERIFY(!data->GetLoginAccountType().isEmpty());
}

void tst_ZrReferenceHost::pluginsAndWindowReachTheCore()
{
    ZrReferenceHost host;
    QWidget window;
    m_options.mainWindow = &window;
    QVERIFY(host.start(m_options));
    QCOMPARE(ZrCore::instance()->mainWindow(), &window);
    host.setMainWindow(nullptr);
    QVERIFY(!ZrCore::instance()->mainWindow());
    host.registerPlugin(QStringLiteral("P"), [] { return new QObject; });
    const std::unique_ptr<QObject> made(
        ZrCore::instance()->createCustomObject(Id::fromSetting(QStringLiteral("P"))));
    QVERIFY(made);
    ZrCore::instance()->newPluginCreated(QStringLiteral("1#P#_0"), 4);
    QCOMPARE(host.pluginsCreated().size(), 1);
}

void tst_ZrReferenceHost::theBusWorksBeforeTheFirstStart()
{
    Listener listener(QStringLiteral("listener"));
    listener.subscribe(QStringLiteral("Note"));
    listener.Put(listener.pid, requestOf(QStringLiteral("Note"), 1));
    QTRY_COMPARE(listener.numbers(), QVector<int>{1});
}

ZR_TEST_MAIN(tst_ZrReferenceHost)
#include "tst_zrreferencehost.moc"
