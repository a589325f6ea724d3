#include "PluginProbe.h"
#include "ZrPluginDesk.h"
#include "ZrPluginDock.h"
#include "ZrPluginTitleBar.h"
#include "ZrQuietPlatform.h"
#include "ZrReferenceHost.h"
#include "ZrTestMain.h"

#include <QtWidgets/QLabel>
#include <QtWidgets/QMainWindow>

/// Plugins of one menu in their docks.
class tst_ZrPluginDesk : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase();
    void init();
    void cleanup();
    void aPluginOpensInADock();
    void eachDockHasItsName();
    void theDockStandsBeforeThePluginIsInitialised();
    void whatIsSetWithoutAWordIsShown();
    void anUnpreparedPluginGetsItsDockToo();
    void propertiesComeBeforeTheInitialisation();
    void theGuardSeesTheMaking();
    void theGuardSeesTheFirstPaint();
    void anUnknownPluginIsOneSentence();
    void whatIsNoWindowIsNotOpened();
    void closedPluginsAreLeftOut();
    void dataTellWhoseTheyAre();
    void noMoreThanThereIsRoomFor();

private:
    QTemporaryDir m_folder;
    ZrReferenceHost m_host;
    std::unique_ptr<QMainWindow> m_window;
    ZrPluginDesk *m_desk = nullptr;
    QString m_error;
};

namespace {
const QString id = QStringLiteral("probe");

PluginProbe *probeOf(const ZrPluginDock *dock)
{
    return static_cast<PluginProbe *>(dock->plugin());
}
} // namespace

void tst_ZrPluginDesk::initTestCase()
{
    ZrQuietPlatform::install();
    // Each plugin's end is one line of the library's.
    QLoggingCategory::setFilterRules(QStringLiteral("default.debug=false"));
}

void tst_ZrPluginDesk::init()
{
    ZrReferenceHost::Options options;
    options.configFolder = m_folder.path();
    options.skinRoot = QStringLiteral(ZR_SKINS);
    options.skinId = QStringLiteral("dark");
    QVERIFY2(m_host.start(options), qPrintable(m_host.errorText()));
    m_window = std::make_unique<QMainWindow>();
    m_desk = new ZrPluginDesk(m_window.get(), QStringLiteral("desk"));
    m_host.registerPlugin(id, [this] {
        auto *const made = new PluginProbe;
        m_desk->prepare(id, made);
        return made;
    });
    m_error.clear();
}

void tst_ZrPluginDesk::cleanup()
{
    m_window.reset();
    m_host.stop();
}

void tst_ZrPluginDesk::aPluginOpensInADock()
{
    QList<ZrPluginDock *> opened;
    connect(m_desk, &ZrPluginDesk::signalOpened, this,
            [&opened](ZrPluginDock *dock) { opened.append(dock); });
    const ZrPluginDock *const dock = m_desk->open(id, {}, &m_error);
    QVERIFY2(dock, qPrintable(m_error));
    QCOMPARE(opened, m_desk->docks());
    QCOMPARE(m_desk->docks().size(), 1);
    QCOMPARE(dock->pluginId(), id);
    QCOMPARE(dock->plugin()->pluginInstanceID().section(QLatin1Char('#'), 0, 1),
             QStringLiteral("desk#probe"));
    QCOMPARE(m_window->dockWidgetArea(m_desk->docks().value(0)), Qt::TopDockWidgetArea);
    QVERIFY(dock->plugin()->IsInitialized());
    QCOMPARE(dock->windowTitle(), QStringLiteral("Probe"));
}

void tst_ZrPluginDesk::eachDockHasItsName()
{
    QStringList names;
    for (int i = 0; i < 3; ++i)
        names.append(m_desk->open(id, {}, &m_error)->objectName());
    QCOMPARE(names, (QStringList{id, QStringLiteral("probe-2"), QStringLiteral("probe-3")}));
    QSet<QString> instances;
    const QList<ZrPluginDock *> docks = m_desk->docks();
    for (const ZrPluginDock *const dock : docks)
        instances.insert(dock->plugin()->pluginInstanceID());
    QCOMPARE(instances.size(), 3);
}

void tst_ZrPluginDesk::theDockStandsBeforeThePluginIsInitialised()
{
    const ZrPluginDock *const dock = m_desk->open(id, {}, &m_error);
    const PluginProbe *const plugin = probeOf(dock);
    QCOMPARE(plugin->titleWidgets[0]->parentWidget(), dock->title());
    QCOMPARE(plugin->titleWidgets[1]->parentWidget(), dock->title());
}

void tst_ZrPluginDesk::whatIsSetWithoutAWordIsShown()
{
    m_host.registerPlugin(id, [this] {
        auto *const made = new PluginProbe;
        made->titleIcon = QStringLiteral("plugins/blotter/blotter.svg");
        m_desk->prepare(id, made);
        return made;
    });
    const ZrPluginDock *const dock = m_desk->open(id, {}, &m_error);
    const auto *const icon = dock->title()->findChild<QLabel *>(QStringLiteral("pluginIcon"));
    QVERIFY(!icon->isHidden());
    QVERIFY(!icon->pixmap(Qt::ReturnByValue).isNull());
}

void tst_ZrPluginDesk::anUnpreparedPluginGetsItsDockToo()
{
    m_host.registerPlugin(id, [] { return new PluginProbe; });
    const ZrPluginDock *const dock = m_desk->open(id, {}, &m_error);
    QVERIFY(dock);
    QCOMPARE(dock->windowTitle(), QStringLiteral("Probe"));
    QCOMPARE(m_desk->docks().size(), 1);
}

void tst_ZrPluginDesk::propertiesComeBeforeTheInitialisation()
{
    const ZrPluginDock *const dock = m_desk->open(id, {{QStringLiteral("MaxRows"), 7}}, &m_error);
    QCOMPARE(probeOf(dock)->ownProperties.value(QStringLiteral("MaxRows")).toInt(), 7);
}

void tst_ZrPluginDesk::theGuardSeesTheMaking()
{
    QStringList guarded;
    m_desk->setGuard([&guarded](const QString &pluginId, const std::function<void()> &work) {
        guarded.append(pluginId);
        work();
    });
    const ZrPluginDock *const dock = m_desk->open(id, {}, &m_error);
    QVERIFY(dock->plugin()->IsInitialized());
    QCOMPARE(guarded, QStringList{id});
}

namespace {
// Counts the paints of plugins.
class PaintCounter : public QObject
{
public:
    int paints = 0;

    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (event->type() == QEvent::Paint && qobject_cast<PluginProbe *>(watched))
            ++paints;
        return false;
    }
};
} // namespace

void tst_ZrPluginDesk::theGuardSeesTheFirstPaint()
{
    PaintCounter counter;
    qApp->installEventFilter(&counter);
    int before = -1;
    int within = -1;
    m_desk->setGuard([&](const QString &, const std::function<void()> &work) {
        before = counter.paints;
        work();
        within = counter.paints;
    });
    QVERIFY2(m_desk->open(id, {}, &m_error), qPrintable(m_error));
    QCOMPARE(before, 0);
    QVERIFY(within > 0);
}

void tst_ZrPluginDesk::anUnknownPluginIsOneSentence()
{
    QVERIFY(!m_desk->open(QStringLiteral("nothing"), {}, &m_error));
    QCOMPARE(m_error, QStringLiteral("there is no plugin \"nothing\"."));
    QVERIFY(!m_desk->open(QString(), {}, &m_error));
    QVERIFY(m_desk->docks().isEmpty());
}

void tst_ZrPluginDesk::whatIsNoWindowIsNotOpened()
{
    m_host.registerPlugin(QStringLiteral("object"), [this] {
        auto *const made = new QObject(this);
        m_desk->prepare(QStringLiteral("object"), made);
        return made;
    });
    QVERIFY(!m_desk->open(QStringLiteral("object"), {}, &m_error));
    QVERIFY(!m_error.isEmpty());
    QVERIFY(m_window->findChildren<ZrPluginDock *>().isEmpty());
}

void tst_ZrPluginDesk::closedPluginsAreLeftOut()
{
    ZrPluginDock *const first = m_desk->open(id, {}, &m_error);
    ZrPluginDock *const second = m_desk->open(id, {}, &m_error);
    delete first->plugin();
    QCOMPARE(m_desk->docks(), QList<ZrPluginDock *>{second});
    QVERIFY(ZrPluginDesk::dataOf(first).isEmpty());
    QTRY_COMPARE(m_window->findChildren<ZrPluginDock *>().size(), 1);
    // Its name is free again.
    QCOMPARE(m_desk->open(id, {}, &m_error)->objectName(), id);
}

void tst_ZrPluginDesk::dataTellWhoseTheyAre()
{
    ZrPluginDock *const first = m_desk->open(id, {}, &m_error);
    ZrPluginDock *const second = m_desk->open(id, {}, &m_error);
    QList<ZrPluginDock *> told;
    connect(m_desk, &ZrPluginDesk::signalData, this,
            [&told](ZrPluginDock *dock, const QVariant &) { told.append(dock); });
    emit second->plugin()->signalSendDataToMainFrame(1);
    emit first->plugin()->signalSendDataToMainFrame(1);
    QCOMPARE(told, (QList<ZrPluginDock *>{second, first}));
}

void tst_ZrPluginDesk::noMoreThanThereIsRoomFor()
{
    while (m_desk->open(id, {}, &m_error))
        QVERIFY(m_desk->docks().size() <= 50);
    QCOMPARE(m_desk->docks().size(), 50);
    QCOMPARE(m_error, QStringLiteral("there is no room for more than 50 plugins."));
}

ZR_TEST_MAIN(tst_ZrPluginDesk)
#include "tst_zrplugindesk.moc"
