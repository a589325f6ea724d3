#include "DialogScene.h"
#include "HostedPlugin.h"
#include "RealDesktop.h"
#include "ZrDialog.h"
#include "ZrMessageBox.h"
#include "ZrTestMain.h"

#include <QtCore/QLoggingCategory>
#include <QtCore/QTimer>
#include <QtGui/QScreen>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QVBoxLayout>

/// The dialog that hosts plugins under a window manager, with a real pointer and real keys.
class tst_ZrDialogFrames : public QObject
{
    Q_OBJECT
private slots:
    void init();
    void cleanup();
    void theTitleMovesTheDialog_data();
    void theTitleMovesTheDialog();
    void everyEdgeResizesTheDialog_data();
    void everyEdgeResizesTheDialog();
    void theLeastSizeHolds();
    void aFixedDialogKeepsItsSize();
    void aDialogOpensOverItsOwner();
    void aLargeDialogStaysOnTheScreen();
    void theContentIsUsed();
    void escapeClosesFromTheContentOnly_data();
    void escapeClosesFromTheContentOnly();
    void theCloseButtonAsks_data();
    void theCloseButtonAsks();
    void theButtonsAnswer_data();
    void theButtonsAnswer();
    void theWindowBelowStaysInReach();

private:
    void make(bool resizable = false, QWidget *parent = nullptr, int mode = 0);
    void open();
    QWidget *part(const char *name) const { return m_dialog->findChild<QWidget *>(name); }
    static QPoint middleOf(const QWidget *widget) { return widget->mapToGlobal(widget->rect().center()); }

    std::unique_ptr<DialogScene> m_scene;
    std::unique_ptr<ZrDialog> m_dialog;
    HostedPlugin *m_plugin = nullptr; // the dialog's content, with an edit in its upper half
    QLineEdit *m_edit = nullptr;
};

void tst_ZrDialogFrames::init()
{
    m_scene = std::make_unique<DialogScene>();
    QVERIFY(m_scene->isReady());
    m_scene->mainWindow.setGeometry(200, 200, 800, 600);
    m_scene->mainWindow.show();
    QVERIFY(QTest::qWaitForWindowActive(&m_scene->mainWindow));
}

void tst_ZrDialogFrames::cleanup()
{
    m_dialog.reset();
    m_scene.reset();
}

void tst_ZrDialogFrames::make(bool resizable, QWidget *parent, int mode)
{
    m_dialog = std::make_unique<ZrDialog>("Title", true, parent, 3, true, true, mode);
    m_plugin = new HostedPlugin;
    m_plugin->setFocusPolicy(Qt::StrongFocus);
    m_plugin->resize(360, 240);
    m_edit = new QLineEdit(m_plugin);
    m_edit->setGeometry(20, 20, 200, 30);
    m_dialog->addWidget(m_plugin);
    m_dialog->setResizeFlag(resizable);
    m_dialog->setResult(7);
}

void tst_ZrDialogFrames::open()
{
    m_dialog->show();
    QVERIFY(QTest::qWaitForWindowActive(m_dialog.get()));
    if (m_dialog->parentWidget())
        return;
    m_dialog->move(300, 250);
    QTRY_COMPARE(m_dialog->mapToGlobal(QPoint()), QPoint(300, 250));
}

void tst_ZrDialogFrames::theTitleMovesTheDialog_data()
{
    QTest::addColumn<bool>("resizable");
    QTest::newRow("fixed") << false;
    QTest::newRow("resizable") << true;
}

void tst_ZrDialogFrames::theTitleMovesTheDialog()
{
    QFETCH(bool, resizable);
    make(resizable);
    open();
    const QRect before = m_dialog->geometry();
    const QPoint grip = part("frame_title")->mapToGlobal(QPoint(60, 18));
    RealDesktop::drag(grip, grip + QPoint(-120, 90));
    QTRY_COMPARE(m_dialog->geometry(), before.translated(-120, 90));
    RealDesktop::drag(grip + QPoint(-120, 90), grip + QPoint(35, -44));
    QTRY_COMPARE(m_dialog->geometry(), before.translated(35, -44));
}

void tst_ZrDialogFrames::everyEdgeResizesTheDialog_data()
{
    QTest::addColumn<QPoint>("side"); // -1, 0, 1: left or top, middle, right or bottom
    QTest::newRow("top left") << QPoint(-1, -1);
    QTest::newRow("top") << QPoint(0, -1);
    QTest::newRow("top right") << QPoint(1, -1);
    QTest::newRow("left") << QPoint(-1, 0);
    QTest::newRow("right") << QPoint(1, 0);
    QTest::newRow("bottom left") << QPoint(-1, 1);
    QTest::newRow("bottom") << QPoint(0, 1);
    QTest::newRow("bottom right") << QPoint(1, 1);
}

void tst_ZrDialogFrames::everyEdgeResizesTheDialog()
{
    QFETCH(QPoint, side);
    make(true);
    open();
    const QRect before = m_dialog->geometry();
    const auto along = [](int which, int low, int high) {
        return which < 0 ? low + 4 : which > 0 ? high - 4 : (low + high) / 2;
    };
    const QPoint from(along(side.x(), before.left(), before.right()),
                      along(side.y(), before.top(), before.bottom()));
    const auto pulled = [&](const QPoint &by) {
        return before.adjusted(side.x() < 0 ? by.x() : 0, side.y() < 0 ? by.y() : 0,
                               side.x() > 0 ? by.x() : 0, side.y() > 0 ? by.y() : 0);
    };
    // Away from the dialog's middle, and back beyond where it was.
    const QPoint outward(side.x() < 0 ? -60 : 60, side.y() < 0 ? -45 : 45);
    const QPoint inward(side.x() < 0 ? 30 : -30, side.y() < 0 ? 12 : -12);
    RealDesktop::drag(from, from + outward);
    QTRY_COMPARE(m_dialog->geometry(), pulled(outward));
    RealDesktop::drag(from + outward, from + inward);
    QTRY_COMPARE(m_dialog->geometry(), pulled(inward));
    QTRY_COMPARE(m_plugin->width(), part("frame_work")->width());
}

void tst_ZrDialogFrames::theLeastSizeHolds()
{
    make(true);
    open();
    const QRect before = m_dialog->geometry();
    const QPoint from(before.right() - 4, before.bottom() - 4);
    RealDesktop::drag(from, before.topLeft());
    // Something in between was reached, and never less than the least.
    QTRY_VERIFY(m_dialog->geometry() == before || m_dialog->width() < before.width());
    QVERIFY(m_dialog->width() >= m_dialog->minimumWidth());
    QVERIFY(m_dialog->height() >= m_dialog->minimumHeight());
    QCOMPARE(m_dialog->pos(), before.topLeft());
    // The pull has ended: a move alone does nothing.
    const QRect after = m_dialog->geometry();
    RealDesktop::click(middleOf(m_edit));
    RealDesktop::type("x");
    QTRY_COMPARE(m_edit->text(), QString("x"));
    QCOMPARE(m_dialog->geometry(), after);
}

void tst_ZrDialogFrames::aFixedDialogKeepsItsSize()
{
    make(false);
    open();
    const QRect before = m_dialog->geometry();
    RealDesktop::drag(before.bottomRight() - QPoint(4, 4), before.bottomRight() + QPoint(60, 60));
    RealDesktop::click(middleOf(m_edit));
    RealDesktop::type("x");
    QTRY_COMPARE(m_edit->text(), QString("x"));
    QCOMPARE(m_dialog->geometry(), before);
}

void tst_ZrDialogFrames::aDialogOpensOverItsOwner()
{
    make(false, &m_scene->mainWindow, 1);
    open();
    const QPoint wanted = m_scene->mainWindow.frameGeometry().center();
    QTRY_VERIFY2((m_dialog->frameGeometry().center() - wanted).manhattanLength() <= 2,
                 qPrintable(QStringLiteral("%1, %2").arg(m_dialog->x()).arg(m_dialog->y())));
}

void tst_ZrDialogFrames::aLargeDialogStaysOnTheScreen()
{
    make();
    m_plugin->setMinimumSize(2000, 2000);
    m_plugin->resize(3000, 3000);
    m_dialog->addWidget(m_plugin);
    m_dialog->show();
    QVERIFY(QTest::qWaitForWindowActive(m_dialog.get()));
    const QRect screen = QGuiApplication::primaryScreen()->availableGeometry();
    QTRY_COMPARE(m_dialog->size(), screen.size() - QSize(20, 20));
    QTRY_VERIFY2(screen.contains(m_dialog->geometry()), qPrintable(QString::number(m_dialog->x())));
    // The buttons are in reach.
    RealDesktop::click(middleOf(part("pushButton_cancel")));
    QTRY_VERIFY(!m_dialog->isVisible());
    QCOMPARE(m_dialog->result(), 0);
}

void tst_ZrDialogFrames::theContentIsUsed()
{
    make(true);
    open();
    const QRect before = m_dialog->geometry();
    RealDesktop::click(middleOf(m_edit));
    RealDesktop::type("600000");
    QTRY_COMPARE(m_edit->text(), QString("600000"));
    QCOMPARE(m_dialog->geometry(), before);
}

void tst_ZrDialogFrames::escapeClosesFromTheContentOnly_data()
{
    QTest::addColumn<bool>("enabled");
    QTest::addColumn<bool>("inChild");
    QTest::addColumn<bool>("closes");
    QTest::newRow("content") << true << false << true;
    QTest::newRow("child of the content") << true << true << false;
    QTest::newRow("disabled") << false << false << false;
}

void tst_ZrDialogFrames::escapeClosesFromTheContentOnly()
{
    QFETCH(bool, enabled);
    QFETCH(bool, inChild);
    QFETCH(bool, closes);
    make();
    m_dialog->setEscBtnEnable(enabled);
    open();
    if (inChild)
        m_edit->setFocus();
    else
        m_plugin->setFocus();
    RealDesktop::key("Escape");
    if (!closes) {
        // The next key tells that the first one is through.
        m_edit->setFocus();
        RealDesktop::type("x");
        QTRY_COMPARE(m_edit->text(), QString("x"));
    }
    QTRY_COMPARE(m_dialog->isVisible(), !closes);
    QCOMPARE(m_dialog->result(), closes ? 0 : 7);
}

void tst_ZrDialogFrames::theCloseButtonAsks_data()
{
    QTest::addColumn<QByteArray>("answer");
    QTest::addColumn<bool>("closes");
    QTest::newRow("yes") << QByteArray("pushButton_ok") << true;
    QTest::newRow("no") << QByteArray("pushButton_cancel") << false;
}

void tst_ZrDialogFrames::theCloseButtonAsks()
{
    QFETCH(QByteArray, answer);
    QFETCH(bool, closes);
    make();
    m_dialog->setCloseConfirmTip("The changes are lost.");
    open();
    bool answered = false;
    // The question has a loop of its own, from within which it is answered.
    QTimer::singleShot(0, this, [&] {
        auto *const box = m_dialog->findChild<ZrMessageBox *>();
        QVERIFY(box);
        QVERIFY(QTest::qWaitForWindowActive(box));
        RealDesktop::click(middleOf(box->findChild<QPushButton *>(answer)));
        answered = true;
    });
    static_cast<QPushButton *>(part("pushButton_close"))->click();
    QVERIFY(answered);
    QTRY_COMPARE(m_dialog->isVisible(), !closes);
}

void tst_ZrDialogFrames::theButtonsAnswer_data()
{
    QTest::addColumn<QByteArray>("name");
    QTest::addColumn<int>("expected");
    QTest::newRow("OK") << QByteArray("pushButton_ok") << 1;
    QTest::newRow("cancel") << QByteArray("pushButton_cancel") << 0;
    QTest::newRow("close") << QByteArray("pushButton_close") << 0;
}

void tst_ZrDialogFrames::theButtonsAnswer()
{
    QFETCH(QByteArray, name);
    QFETCH(int, expected);
    make(true);
    m_plugin->SetInitialized(true);
    open();
    RealDesktop::click(middleOf(part(name)));
    QTRY_VERIFY(!m_dialog->isVisible());
    QCOMPARE(m_dialog->result(), expected);
}

void tst_ZrDialogFrames::theWindowBelowStaysInReach()
{
    QLineEdit below(&m_scene->mainWindow);
    below.setGeometry(10, 10, 200, 30);
    below.show();
    make();
    open();
    m_dialog->move(600, 500);
    QTRY_COMPARE(m_dialog->mapToGlobal(QPoint()), QPoint(600, 500));
    RealDesktop::click(middleOf(&below));
    RealDesktop::type("x");
    QTRY_COMPARE(below.text(), QString("x"));
    QVERIFY(m_dialog->isVisible());
}

int main(int argc, char *argv[])
{
    const ZrTestProcess process;
    const RealDesktop desktop;
    if (!desktop.problem().isEmpty()) {
        fprintf(stderr, "FAIL!  : %s\n", qPrintable(desktop.problem()));
        return 1;
    }
    // The toolkit asks for windows that are gone already, and tells the server's answer.
    QLoggingCategory::setFilterRules("qt.qpa.xcb.warning=false");
    QApplication app(argc, argv);
    tst_ZrDialogFrames test;
    return QTest::qExec(&test, argc, argv);
}
#include "tst_zrdialogframes.moc"
