#include "DialogScene.h"
#include "HostedPlugin.h"
#include "ZrDialog.h"
#include "ZrMessageBox.h"
#include "ZrTestMain.h"

#include <QtCore/QLoggingCategory>
#include <QtCore/QTimer>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLayout>
#include <QtWidgets/QPushButton>

namespace {
/// Tells its end by the signals that a dialog listens to, when it's hardly a plugin any more.
class TellingPlugin : public HostedPlugin
{
public:
    using HostedPlugin::HostedPlugin;
    ~TellingPlugin() override
    {
        emit signalPluginWidgetSizeChanged();
        emit signalPluginDialogExecReturn(0);
        emit signalClosePluginWidget();
    }
};
} // namespace

/// Whoever goes first, the other one notices; the sanitizer looks for what would be left.
class tst_ZrDialogEnds : public QObject
{
    Q_OBJECT
private slots:
    void init();
    void cleanup();
    void aPluginGoesWhileItsDialogIsOpen();
    void aPluginGoesTenThousandTimes();
    void aPluginTellsItsEndToADialogThatGoes();
    void aPluginTellsItsEndToADialogThatStays();
    void aTitlesWidgetGoesFirst();
    void theDialogIsDeletedByItsAnswer_data();
    void theDialogIsDeletedByItsAnswer();
    void theDialogIsDeletedByItsPlugin_data();
    void theDialogIsDeletedByItsPlugin();
    void theDialogIsDeletedWhileItAsks();
    void theDialogIsDeletedInItsOwnLoop();
    void aDialogThatDeletesItselfOnClosing();

private:
    ZrDialog *open(QWidget *content);
    QPushButton *button(const char *name) const { return m_dialog->findChild<QPushButton *>(name); }

    std::unique_ptr<DialogScene> m_scene;
    QPointer<ZrDialog> m_dialog;
};

void tst_ZrDialogEnds::init()
{
    m_scene = std::make_unique<DialogScene>();
    QVERIFY(m_scene->isReady());
}

void tst_ZrDialogEnds::cleanup()
{
    delete m_dialog;
    m_scene.reset();
}

ZrDialog *tst_ZrDialogEnds::open(QWidget *content)
{
    m_dialog = new ZrDialog("Title", true, nullptr, 3, true, true, 0);
    m_dialog->addWidget(content);
    m_dialog->show();
    return m_dialog;
}

void tst_ZrDialogEnds::aPluginGoesWhileItsDialogIsOpen()
{
    auto *const plugin = new HostedPlugin;
    open(plugin);
    m_dialog->setResizeFlag(true);
    m_dialog->setAutoResizeByCenterWidget(true);
    delete plugin;
    QVERIFY(m_dialog->isVisible());
    m_dialog->slotPluginWidgetSizeChanged();
    m_dialog->setResizeFlag(false);
    button("pushButton_fresh")->click();
    button("pushButton_ok")->click(); // nobody to ask any more
    QVERIFY(!m_dialog->isVisible());
    QCOMPARE(m_dialog->result(), 1);
    // And another one takes its place.
    auto *const next = new HostedPlugin;
    m_dialog->addWidget(next);
    emit next->signalPluginDialogExecReturn(0);
    QCOMPARE(m_dialog->result(), 0);
}

void tst_ZrDialogEnds::aPluginGoesTenThousandTimes()
{
    open(nullptr);
    QLoggingCategory::setFilterRules("default.debug=false"); // a line for each
    for (int i = 0; i < 10000; ++i) {
        auto *const plugin = new HostedPlugin;
        m_dialog->addWidget(plugin);
        emit plugin->signalPluginWidgetSizeChanged();
        delete plugin;
    }
    QLoggingCategory::setFilterRules(QString());
    auto *const work = m_dialog->findChild<QWidget *>("frame_work");
    QCOMPARE(work->layout()->count(), 0);
    QCOMPARE(work->findChildren<QWidget *>().size(), 0);
}

void tst_ZrDialogEnds::aPluginTellsItsEndToADialogThatGoes()
{
    open(new TellingPlugin);
    delete m_dialog;
    QVERIFY(!m_dialog);
}

void tst_ZrDialogEnds::aPluginTellsItsEndToADialogThatStays()
{
    auto *const plugin = new TellingPlugin;
    open(plugin);
    m_dialog->setResult(7);
    delete plugin;
    QVERIFY(m_dialog);
    QVERIFY(!m_dialog->isVisible());
    QCOMPARE(m_dialog->result(), 0);
}

void tst_ZrDialogEnds::aTitlesWidgetGoesFirst()
{
    auto *const plugin = new HostedPlugin;
    open(plugin);
    auto *const label = new QLabel("1");
    emit plugin->signalAddPluginDialogTitleWidget(label);
    QCOMPARE(m_dialog->findChild<QWidget *>("frame_title")->layout()->count(), 5);
    delete label;
    QCOMPARE(m_dialog->findChild<QWidget *>("frame_title")->layout()->count(), 4);
    emit plugin->signalPluginWidgetSizeChanged();
}

void tst_ZrDialogEnds::theDialogIsDeletedByItsAnswer_data()
{
    QTest::addColumn<QByteArray>("name");
    QTest::newRow("OK") << QByteArray("pushButton_ok");
    QTest::newRow("cancel") << QByteArray("pushButton_cancel");
    QTest::newRow("close") << QByteArray("pushButton_close");
}

void tst_ZrDialogEnds::theDialogIsDeletedByItsAnswer()
{
    QFETCH(QByteArray, name);
    open(new QWidget);
    connect(m_dialog, &QDialog::finished, this, [this] { delete m_dialog; });
    QTest::mouseClick(button(name), Qt::LeftButton);
    QVERIFY(!m_dialog);
}

void tst_ZrDialogEnds::theDialogIsDeletedByItsPlugin_data()
{
    QTest::addColumn<int>("way");
    QTest::newRow("refresh") << 0;
    QTest::newRow("close signal") << 1;
    QTest::newRow("answer") << 2;
}

// By a plugin of which a part stays alive: one that deletes itself in its own call is beyond help.
void tst_ZrDialogEnds::theDialogIsDeletedByItsPlugin()
{
    QFETCH(int, way);
    auto plugin = std::make_unique<HostedPlugin>();
    open(plugin.get());
    const auto leave = [this, &plugin] {
        plugin->setParent(nullptr);
        delete m_dialog;
    };
    plugin->onRefresh = leave;
    plugin->onQuestion = leave;
    if (way == 0)
        QMetaObject::invokeMethod(m_dialog, "on_pushButton_fresh_clicked");
    else if (way == 1) {
        connect(m_dialog, &QDialog::finished, this, leave);
        emit plugin->signalClosePluginWidget();
    } else
        QMetaObject::invokeMethod(m_dialog, "on_pushButton_ok_clicked");
    QVERIFY(!m_dialog);
}

void tst_ZrDialogEnds::theDialogIsDeletedWhileItAsks()
{
    open(new QWidget);
    m_dialog->setCloseConfirmTip("Sure?");
    bool asked = false;
    QTimer::singleShot(0, this, [&] {
        asked = m_dialog->findChild<ZrMessageBox *>() != nullptr;
        delete m_dialog;
    });
    QTest::mouseClick(button("pushButton_close"), Qt::LeftButton);
    QVERIFY(asked);
    QVERIFY(!m_dialog);
}

void tst_ZrDialogEnds::theDialogIsDeletedInItsOwnLoop()
{
    open(new QWidget);
    QTimer::singleShot(0, this, [&] { delete m_dialog; });
    QCOMPARE(m_dialog->exec(), 0);
    QVERIFY(!m_dialog);
}

void tst_ZrDialogEnds::aDialogThatDeletesItselfOnClosing()
{
    open(new TellingPlugin);
    m_dialog->setAttribute(Qt::WA_DeleteOnClose);
    QTest::mouseClick(button("pushButton_close"), Qt::LeftButton);
    QTRY_VERIFY(!m_dialog);
}

ZR_TEST_MAIN(tst_ZrDialogEnds)
#include "tst_zrdialogends.moc"
