#include "DialogScene.h"
#include "HostedPlugin.h"
#include "ZrDialog.h"
#include "ZrMessageBox.h"
#include "ZrTestMain.h"

#include <QtCore/QTimer>
#include <QtWidgets/QAbstractItemView>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QTextEdit>
#include <QtWidgets/QVBoxLayout>

namespace {
/// Takes the answers itself, as the dialogs of the plugins do.
class AskingDialog : public ZrDialog
{
public:
    AskingDialog()
        : ZrDialog("Title", true, nullptr, 3, true, true, 0)
    {
    }
    void doAccepted() override { ++accepted; }
    void doRejected() override { ++rejected; }
    int accepted = 0;
    int rejected = 0;
};
} // namespace

/// Buttons, keys and the signals of a hosted plugin.
class tst_ZrDialogAnswers : public QObject
{
    Q_OBJECT
private slots:
    void init();
    void cleanup();
    void aButtonEndsTheDialog_data();
    void aButtonEndsTheDialog();
    void aSubclassTakesTheAnswers();
    void anUninitialisedPluginKeepsTheDialogOpen();
    void theCloseButtonClosesOrHides_data();
    void theCloseButtonClosesOrHides();
    void theCloseButtonAsksFirst_data();
    void theCloseButtonAsksFirst();
    void theQuestionIsPlainText();
    void theRefreshButtonRefreshesAPlugin();
    void aPluginClosesItsDialog();
    void aPluginGivesTheAnswer_data();
    void aPluginGivesTheAnswer();
    void aPluginThatIsPutInTwiceAnswersOnce();
    void escapeFollowsWhereItIsPressed_data();
    void escapeFollowsWhereItIsPressed();
    void escapeInAListOfTheContentIsTheLists();
    void theDefaultButtonHasTheFocus_data();
    void theDefaultButtonHasTheFocus();
    void aButtonOfTheContentIsNotTheDefault();
    void showingThePartsOfAContentKeepsTheFocus();
    void returnInTheContentMeansOk();
    void tabLeadsFromTheContentToTheButtons();

private:
    void open(QWidget *content = nullptr, int buttons = 3, bool closeOnCloseButton = true);
    QPushButton *button(const char *name) const { return m_dialog->findChild<QPushButton *>(name); }
    /// Answers the question that the close button asks; its title and text.
    static void answer(ZrDialog *dialog, const char *buttonName, QStringList *asked);

    std::unique_ptr<DialogScene> m_scene;
    std::unique_ptr<ZrDialog> m_dialog;
};

void tst_ZrDialogAnswers::init()
{
    m_scene = std::make_unique<DialogScene>();
    QVERIFY(m_scene->isReady());
}

void tst_ZrDialogAnswers::cleanup()
{
    m_dialog.reset();
    m_scene.reset();
}

void tst_ZrDialogAnswers::open(QWidget *content, int buttons, bool closeOnCloseButton)
{
    m_dialog = std::make_unique<ZrDialog>("Title", closeOnCloseButton, nullptr, buttons, true, true, 0);
    m_dialog->addWidget(content);
    m_dialog->setResult(7);
    m_dialog->show();
    QVERIFY(QTest::qWaitForWindowActive(m_dialog.get()));
}

void tst_ZrDialogAnswers::aButtonEndsTheDialog_data()
{
    QTest::addColumn<QByteArray>("name");
    QTest::addColumn<int>("expected");
    QTest::newRow("OK") << QByteArray("pushButton_ok") << 1;
    QTest::newRow("cancel") << QByteArray("pushButton_cancel") << 0;
    QTest::newRow("close") << QByteArray("pushButton_close") << 0;
}

void tst_ZrDialogAnswers::aButtonEndsTheDialog()
{
    QFETCH(QByteArray, name);
    QFETCH(int, expected);
    open(new QWidget);
    QTest::mouseClick(button(name), Qt::LeftButton);
    QVERIFY(!m_dialog->isVisible());
    QCOMPARE(m_dialog->result(), expected);
}

void tst_ZrDialogAnswers::aSubclassTakesTheAnswers()
{
    AskingDialog dialog;
    dialog.show();
    QTest::ignoreMessage(QtDebugMsg, "ZrDialog::on_pushButton_ok_clicked \"Title\"");
    dialog.findChild<QPushButton *>("pushButton_ok")->click();
    QTest::ignoreMessage(QtDebugMsg, "ZrDialog::on_pushButton_cancel_clicked \"Title\"");
    dialog.findChild<QPushButton *>("pushButton_cancel")->click();
    QCOMPARE(dialog.accepted, 1);
    QCOMPARE(dialog.rejected, 1);
    QVERIFY(dialog.isVisible());
}

void tst_ZrDialogAnswers::anUninitialisedPluginKeepsTheDialogOpen()
{
    auto *const plugin = new HostedPlugin;
    open(plugin);
    button("pushButton_ok")->click();
    QVERIFY(m_dialog->isVisible());
    QCOMPARE(plugin->questions, 1);
    QVERIFY(!m_dialog->findChild<ZrMessageBox *>()); // and tells nothing
    plugin->SetInitialized(true);
    button("pushButton_ok")->click();
    QVERIFY(!m_dialog->isVisible());
    QCOMPARE(m_dialog->result(), 1);
}

void tst_ZrDialogAnswers::theCloseButtonClosesOrHides_data()
{
    QTest::addColumn<bool>("closes");
    QTest::newRow("closes") << true;
    QTest::newRow("hides") << false;
}

void tst_ZrDialogAnswers::theCloseButtonClosesOrHides()
{
    QFETCH(bool, closes);
    auto *const plugin = new HostedPlugin;
    open(plugin, 3, closes);
    QSignalSpy finished(m_dialog.get(), &QDialog::finished);
    QTest::ignoreMessage(QtDebugMsg,
                         "ZrDialog::on_pushButton_close_clicked \"Title\"  closed because of close btn");
    button("pushButton_close")->click();
    QVERIFY(!m_dialog->isVisible());
    QCOMPARE(finished.count(), closes ? 1 : 0);
    QCOMPARE(m_dialog->result(), closes ? 0 : 7);
    QCOMPARE(plugin->questions, 0); // though it isn't initialised
}

void tst_ZrDialogAnswers::answer(ZrDialog *dialog, const char *buttonName, QStringList *asked)
{
    auto *const box = dialog->findChild<ZrMessageBox *>();
    QVERIFY(box);
    *asked << box->windowTitle() << box->findChild<QTextEdit *>()->toPlainText();
    box->findChild<QPushButton *>(buttonName)->click();
}

void tst_ZrDialogAnswers::theCloseButtonAsksFirst_data()
{
    QTest::addColumn<QByteArray>("name");
    QTest::addColumn<bool>("closes");
    QTest::newRow("yes") << QByteArray("pushButton_ok") << true;
    QTest::newRow("no") << QByteArray("pushButton_cancel") << false;
}

void tst_ZrDialogAnswers::theCloseButtonAsksFirst()
{
    QFETCH(QByteArray, name);
    QFETCH(bool, closes);
    open(new QWidget);
    m_dialog->setCloseConfirmTip("The changes are lost.");
    QStringList asked;
    QTimer::singleShot(0, m_dialog.get(), [&] { answer(m_dialog.get(), name, &asked); });
    button("pushButton_close")->click();
    QCOMPARE(asked, QStringList({QStringLiteral("是否关闭"), "The changes are lost."}));
    QCOMPARE(m_dialog->isVisible(), !closes);
    QVERIFY(!m_dialog->findChild<ZrMessageBox *>()); // it's gone
    // Only the close button asks.
    m_dialog->show();
    button("pushButton_cancel")->click();
    QVERIFY(!m_dialog->isVisible());
    m_dialog->setCloseConfirmTip(QString());
    m_dialog->show();
    button("pushButton_close")->click();
    QVERIFY(!m_dialog->isVisible());
}

void tst_ZrDialogAnswers::theQuestionIsPlainText()
{
    open(new QWidget);
    m_dialog->setCloseConfirmTip(DialogScene::markup());
    QStringList asked;
    QTimer::singleShot(0, m_dialog.get(), [&] { answer(m_dialog.get(), "pushButton_ok", &asked); });
    button("pushButton_close")->click();
    QCOMPARE(asked.value(1), DialogScene::markup());
}

void tst_ZrDialogAnswers::theRefreshButtonRefreshesAPlugin()
{
    auto *const plugin = new HostedPlugin;
    open(plugin);
    button("pushButton_fresh")->show();
    QTest::mouseClick(button("pushButton_fresh"), Qt::LeftButton);
    QCOMPARE(plugin->refreshes, 1);
    m_dialog->addWidget(new QWidget);
    QTest::mouseClick(button("pushButton_fresh"), Qt::LeftButton);
    QCOMPARE(plugin->refreshes, 1);
    QVERIFY(m_dialog->isVisible());
}

void tst_ZrDialogAnswers::aPluginClosesItsDialog()
{
    auto *const plugin = new HostedPlugin;
    open(plugin);
    QTest::ignoreMessage(QtDebugMsg,
                         "ZrDialog::slotClosePluginWidget \"Title\"  closed because of plugin close");
    emit plugin->signalClosePluginWidget();
    QVERIFY(!m_dialog->isVisible());
    QCOMPARE(m_dialog->result(), 0);
}

void tst_ZrDialogAnswers::aPluginGivesTheAnswer_data()
{
    QTest::addColumn<int>("code");
    QTest::addColumn<bool>("ends");
    QTest::newRow("cancel") << 0 << true;
    QTest::newRow("OK") << 1 << true;
    QTest::newRow("above") << 2 << false;
    QTest::newRow("below") << -1 << false;
}

void tst_ZrDialogAnswers::aPluginGivesTheAnswer()
{
    QFETCH(int, code);
    QFETCH(bool, ends);
    auto *const plugin = new HostedPlugin;
    open(plugin);
    emit plugin->signalPluginDialogExecReturn(code);
    QCOMPARE(m_dialog->isVisible(), !ends);
    QCOMPARE(m_dialog->result(), ends ? code : 7);
}

void tst_ZrDialogAnswers::aPluginThatIsPutInTwiceAnswersOnce()
{
    auto *const plugin = new HostedPlugin;
    open(plugin);
    m_dialog->addWidget(plugin);
    QSignalSpy finished(m_dialog.get(), &QDialog::finished);
    emit plugin->signalPluginDialogExecReturn(1);
    QCOMPARE(finished.count(), 1);
}

void tst_ZrDialogAnswers::escapeFollowsWhereItIsPressed_data()
{
    QTest::addColumn<bool>("enabled");
    QTest::addColumn<bool>("resizable");
    QTest::addColumn<QByteArray>("where");
    QTest::addColumn<bool>("closes");
    QTest::newRow("content") << true << false << QByteArray("content") << true;
    QTest::newRow("child of the content") << true << false << QByteArray("child") << false;
    QTest::newRow("a button of the dialog") << true << false << QByteArray("pushButton_ok") << true;
    QTest::newRow("disabled, content") << false << false << QByteArray("content") << false;
    QTest::newRow("disabled, child") << false << false << QByteArray("child") << false;
    QTest::newRow("disabled, button") << false << false << QByteArray("pushButton_ok") << false;
    // What the content leaves to its parents passes the edges' ground, which is watched then.
    QTest::newRow("resizable, content") << true << true << QByteArray("content") << false;
}

void tst_ZrDialogAnswers::escapeFollowsWhereItIsPressed()
{
    QFETCH(bool, enabled);
    QFETCH(bool, resizable);
    QFETCH(QByteArray, where);
    QFETCH(bool, closes);
    auto *const content = new QWidget;
    content->setObjectName("content");
    content->setFocusPolicy(Qt::StrongFocus);
    auto *const child = new QLineEdit(content);
    child->setObjectName("child");
    open(content);
    m_dialog->setEscBtnEnable(enabled);
    m_dialog->setResizeFlag(resizable);
    auto *const pressed = m_dialog->findChild<QWidget *>(where);
    pressed->setFocus();
    QTest::keyClick(pressed, Qt::Key_Escape);
    QCOMPARE(m_dialog->isVisible(), !closes);
    QCOMPARE(m_dialog->result(), closes ? 0 : 7);
    // Other keys go where they went.
    child->setFocus();
    QTest::keyClicks(child, "ab");
    QCOMPARE(child->text(), QString("ab"));
}

void tst_ZrDialogAnswers::escapeInAListOfTheContentIsTheLists()
{
    auto *const content = new QWidget;
    auto *const combo = new QComboBox(content);
    combo->addItems({"a", "b"});
    combo->view(); // a window of its own, below the content
    open(content);
    combo->showPopup();
    QTRY_VERIFY(combo->view()->isVisible());
    QTest::keyClick(combo->view(), Qt::Key_Escape);
    QTRY_VERIFY(!combo->view()->isVisible());
    QVERIFY(m_dialog->isVisible());
}

void tst_ZrDialogAnswers::theDefaultButtonHasTheFocus_data()
{
    QTest::addColumn<int>("which");
    QTest::addColumn<QByteArray>("expected");
    QTest::newRow("OK") << 1 << QByteArray("pushButton_ok");
    QTest::newRow("cancel") << 2 << QByteArray("pushButton_cancel");
}

void tst_ZrDialogAnswers::theDefaultButtonHasTheFocus()
{
    QFETCH(int, which);
    QFETCH(QByteArray, expected);
    for (QWidget *const content : {static_cast<QWidget *>(nullptr), static_cast<QWidget *>(new QLineEdit)}) {
        m_dialog = std::make_unique<ZrDialog>("Title", true, nullptr, 3, true, true, 0);
        m_dialog->addWidget(content);
        m_dialog->setDefaultFocusButton(which);
        m_dialog->show();
        QVERIFY(QTest::qWaitForWindowActive(m_dialog.get()));
        QTRY_COMPARE(QApplication::focusWidget(), button(expected));
    }
}

void tst_ZrDialogAnswers::aButtonOfTheContentIsNotTheDefault()
{
    auto *const content = new QWidget;
    auto *const own = new QPushButton(content);
    own->setObjectName("pushButton_ok");
    m_dialog = std::make_unique<ZrDialog>("Title", true, nullptr, 3, true, true, 0);
    m_dialog->addWidget(content);
    m_dialog->setDefaultFocusButton(1);
    m_dialog->show();
    QVERIFY(QTest::qWaitForWindowActive(m_dialog.get()));
    QVERIFY(QApplication::focusWidget() != own);
    QCOMPARE(QApplication::focusWidget()->parentWidget()->objectName(), QString("bottom"));
}

void tst_ZrDialogAnswers::showingThePartsOfAContentKeepsTheFocus()
{
    auto *const content = new QWidget;
    auto *const edit = new QLineEdit(content);
    auto *const page = new QWidget(content);
    page->hide();
    open(content);
    m_dialog->setDefaultFocusButton(1);
    edit->setFocus();
    page->show();
    QCOMPARE(QApplication::focusWidget(), edit);
}

// The buttons of the title stand first in the window, and return must not press one of them.
void tst_ZrDialogAnswers::returnInTheContentMeansOk()
{
    auto *const plugin = new HostedPlugin;
    auto *const edit = new QLineEdit(plugin);
    open(plugin);
    button("pushButton_fresh")->show();
    plugin->SetInitialized(true);
    edit->setFocus();
    QTest::keyClick(edit, Qt::Key_Return);
    QCOMPARE(plugin->refreshes, 0);
    QVERIFY(!m_dialog->isVisible());
    QCOMPARE(m_dialog->result(), 1);
}

void tst_ZrDialogAnswers::tabLeadsFromTheContentToTheButtons()
{
    auto *const content = new QWidget;
    auto *const column = new QVBoxLayout(content);
    auto *const first = new QLineEdit;
    auto *const second = new QLineEdit;
    column->addWidget(first);
    column->addWidget(second);
    open(content);
    first->setFocus();
    const QList<QWidget *> expected{second, button("pushButton_ok"), button("pushButton_cancel"), first};
    for (QWidget *const next : expected) {
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        QCOMPARE(QApplication::focusWidget(), next);
    }
}

ZR_TEST_MAIN(tst_ZrDialogAnswers)
#include "tst_zrdialoganswers.moc"
