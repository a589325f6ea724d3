#include "DialogScene.h"
#include "RealDesktop.h"
#include "ZrComfirmDialog.h"
#include "ZrMessageBox.h"
#include "ZrToastDialog.h"

#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QTextEdit>

namespace {
/// Counts the presses that reach it.
class PressCounter : public QObject
{
public:
    explicit PressCounter(QWidget *on)
        : QObject(on)
    {
        on->installEventFilter(this);
    }
    int presses = 0;

protected:
    bool eventFilter(QObject *, QEvent *event) override
    {
        presses += event->type() == QEvent::MouseButtonPress ? 1 : 0;
        return false;
    }
};
} // namespace

/// The frameless windows under a window manager.
class tst_ZrDialogWindows : public QObject
{
    Q_OBJECT
private slots:
    void init();
    void cleanup();
    void theTitleMovesTheBox();
    void theTextDoesNotMoveTheBox();
    void theTitleMovesTheComfirmDialog();
    void aBoxOpensOverItsOwner_data();
    void aBoxOpensOverItsOwner();
    void aToastOpensOverItsParent();
    void theDefaultButtonHasTheKeyboard_data();
    void theDefaultButtonHasTheKeyboard();
    void tabLeadsToTheOtherButton();
    void escapeClosesOnlyWhereItMay_data();
    void escapeClosesOnlyWhereItMay();
    void theWindowManagerCanCloseABox();
    void aBoxKeepsTheWindowBelowOutOfReach();
    void aSecondBoxStandsOnTheFirst();
    void theComfirmDialogAnswersToTheMouse();
    void aToastLeavesTheKeyboardWhereItIs();
    void aToastStaysOnTop();
    void theHelpMarkAnswersToTheMouse();

private:
    static void open(QWidget *window);
    static QPoint middleOf(const QWidget *widget);
    QPoint insideMain(int x, int y) const { return m_scene->mainWindow.mapToGlobal(QPoint(x, y)); }

    std::unique_ptr<DialogScene> m_scene;
    QLineEdit *m_edit = nullptr;
};

void tst_ZrDialogWindows::open(QWidget *window)
{
    window->show();
    QVERIFY(QTest::qWaitForWindowActive(window));
}

QPoint tst_ZrDialogWindows::middleOf(const QWidget *widget)
{
    return widget->mapToGlobal(widget->rect().center());
}

void tst_ZrDialogWindows::init()
{
    m_scene = std::make_unique<DialogScene>();
    QVERIFY(m_scene->isReady());
    m_scene->mainWindow.setGeometry(200, 200, 800, 600);
    m_edit = new QLineEdit(&m_scene->mainWindow);
    m_edit->setGeometry(10, 10, 200, 30);
    open(&m_scene->mainWindow);
}

void tst_ZrDialogWindows::cleanup()
{
    m_scene.reset();
}

void tst_ZrDialogWindows::theTitleMovesTheBox()
{
    ZrMessageBox box("Title", "text", 3, nullptr, 2);
    open(&box);
    const QPoint before = box.pos();
    const QPoint grip = box.mapToGlobal(QPoint(80, 25));
    RealDesktop::drag(grip, grip + QPoint(60, -90));
    QTRY_COMPARE(box.pos(), before + QPoint(60, -90));
    // And again from where it lies now.
    RealDesktop::drag(grip + QPoint(60, -90), grip + QPoint(-33, 44));
    QTRY_COMPARE(box.pos(), before + QPoint(-33, 44));
    QVERIFY(box.isVisible());
}

void tst_ZrDialogWindows::theTextDoesNotMoveTheBox()
{
    ZrMessageBox box("Title", "text", 3, nullptr, 2);
    open(&box);
    const QPoint before = box.pos();
    PressCounter text(box.findChild<QTextEdit *>()->viewport());
    const QPoint inside = middleOf(box.findChild<QTextEdit *>()) + QPoint(0, 20);
    RealDesktop::drag(inside, inside + QPoint(70, 30));
    QTRY_COMPARE(text.presses, 1);
    // The last of what the drag sent: had anything moved the box, it would have by then.
    RealDesktop::key("Escape");
    QTRY_VERIFY(!box.isVisible());
    QCOMPARE(box.pos(), before);
}

void tst_ZrDialogWindows::theTitleMovesTheComfirmDialog()
{
    ZrComfirmDialog dialog("Confirm", 3, nullptr, 0);
    dialog.setComfirmData({{"Symbol", "600000.SH"}, {"Price", 10.25}});
    open(&dialog);
    const QPoint before = dialog.pos();
    const QPoint grip = dialog.mapToGlobal(QPoint(80, 25));
    RealDesktop::drag(grip, grip + QPoint(-50, 70));
    QTRY_COMPARE(dialog.pos(), before + QPoint(-50, 70));
}

void tst_ZrDialogWindows::aBoxOpensOverItsOwner_data()
{
    QTest::addColumn<int>("mode");
    QTest::newRow("over the parent") << 1;
    QTest::newRow("over the main window") << 2;
}

void tst_ZrDialogWindows::aBoxOpensOverItsOwner()
{
    QFETCH(int, mode);
    QWidget part(&m_scene->mainWindow);
    part.setGeometry(500, 300, 200, 200);
    ZrMessageBox box("Title", "text", 3, &part, mode);
    open(&box);
    const QRect frame = m_scene->mainWindow.frameGeometry();
    QVERIFY(frame.size() != m_scene->mainWindow.size()); // the manager draws a frame around it
    const QPoint wanted = mode == 1 ? middleOf(&part) : frame.center();
    QTRY_VERIFY2((box.frameGeometry().center() - wanted).manhattanLength() <= 2,
                 qPrintable(QStringLiteral("%1, %2").arg(box.x()).arg(box.y())));
}

void tst_ZrDialogWindows::aToastOpensOverItsParent()
{
    ZrToastDialog toast(&m_scene->mainWindow);
    toast.ShowToastMessage("The order was refused.", ZrToastDialog::LevelError);
    QVERIFY(QTest::qWaitForWindowExposed(&toast));
    QTRY_COMPARE(toast.geometry().center(), middleOf(&m_scene->mainWindow));
}

void tst_ZrDialogWindows::theDefaultButtonHasTheKeyboard_data()
{
    QTest::addColumn<int>("which");
    QTest::addColumn<QString>("key");
    QTest::addColumn<int>("expected");
    QTest::newRow("confirm, return") << 1 << "Return" << 1;
    QTest::newRow("confirm, space") << 1 << "space" << 1;
    QTest::newRow("cancel, return") << 2 << "Return" << 0;
}

void tst_ZrDialogWindows::theDefaultButtonHasTheKeyboard()
{
    QFETCH(int, which);
    QFETCH(QString, key);
    QFETCH(int, expected);
    ZrMessageBox box("Title", "text", 3, nullptr, 2);
    box.setDefaultFocusButton(which);
    box.setResult(7);
    open(&box);
    RealDesktop::key(key);
    QTRY_VERIFY(!box.isVisible());
    QCOMPARE(box.result(), expected);
}

void tst_ZrDialogWindows::tabLeadsToTheOtherButton()
{
    ZrMessageBox box("Title", "text", 3, nullptr, 2);
    box.setResult(7);
    open(&box);
    RealDesktop::key("Tab");
    QTRY_COMPARE(QApplication::focusWidget(), box.findChild<QWidget *>("pushButton_cancel"));
    RealDesktop::key("Return");
    QTRY_VERIFY(!box.isVisible());
    QCOMPARE(box.result(), 0);
}

void tst_ZrDialogWindows::escapeClosesOnlyWhereItMay_data()
{
    QTest::addColumn<bool>("enabled");
    QTest::newRow("may") << true;
    QTest::newRow("may not") << false;
}

void tst_ZrDialogWindows::escapeClosesOnlyWhereItMay()
{
    QFETCH(bool, enabled);
    ZrMessageBox box("Title", "text", 3, nullptr, 2);
    box.setEscBtnEnable(enabled);
    box.setResult(7);
    QSignalSpy finished(&box, &QDialog::finished);
    open(&box);
    RealDesktop::key("Escape");
    if (!enabled) // a key that is answered, so that the one before it was
        RealDesktop::key("Return");
    QTRY_VERIFY(!box.isVisible());
    QCOMPARE(finished.count(), 1);
    QCOMPARE(box.result(), enabled ? 0 : 1);
}

void tst_ZrDialogWindows::theWindowManagerCanCloseABox()
{
    ZrMessageBox box("Title", "text", 3, nullptr, 2);
    box.setEscBtnEnable(false);
    box.setResult(7);
    open(&box);
    RealDesktop::key("alt+F4");
    QTRY_VERIFY(!box.isVisible());
    QCOMPARE(box.result(), 0);
    QVERIFY(m_scene->mainWindow.isVisible());
}

void tst_ZrDialogWindows::aBoxKeepsTheWindowBelowOutOfReach()
{
    PressCounter below(&m_scene->mainWindow);
    RealDesktop::click(insideMain(700, 500));
    QTRY_COMPARE(below.presses, 1);
    ZrMessageBox box("Title", "text", 3, nullptr, 2);
    open(&box);
    RealDesktop::click(insideMain(700, 500));
    // Still on top of it, and still with the mouse.
    RealDesktop::click(middleOf(box.findChild<QPushButton *>("pushButton_ok")));
    QTRY_VERIFY(!box.isVisible());
    QCOMPARE(box.result(), 1);
    QCOMPARE(below.presses, 1);
    RealDesktop::click(insideMain(700, 500));
    QTRY_COMPARE(below.presses, 2);
}

void tst_ZrDialogWindows::aSecondBoxStandsOnTheFirst()
{
    ZrMessageBox first("First", "text", 3, nullptr, 2);
    open(&first);
    PressCounter below(first.findChild<QTextEdit *>()->viewport());
    ZrMessageBox second("Second", "text", 3, &first, 1);
    open(&second);
    PressCounter above(second.findChild<QTextEdit *>()->viewport());
    // The manager gives the keyboard first and puts the window on top after.
    QTRY_VERIFY((RealDesktop::click(middleOf(second.findChild<QTextEdit *>())), above.presses > 0));
    QCOMPARE(below.presses, 0);
    RealDesktop::key("Escape");
    QTRY_VERIFY(!second.isVisible());
    QVERIFY(first.isVisible());
    // The keyboard goes back to the first.
    QVERIFY(QTest::qWaitForWindowActive(&first));
    RealDesktop::key("Escape");
    QTRY_VERIFY(!first.isVisible());
}

void tst_ZrDialogWindows::theComfirmDialogAnswersToTheMouse()
{
    ZrComfirmDialog dialog("Confirm", 3, nullptr, 0);
    dialog.setComfirmData({{"Symbol", "600000.SH"}});
    open(&dialog);
    RealDesktop::click(middleOf(dialog.findChild<QPushButton *>("pushButton")));
    QTRY_VERIFY(!dialog.isVisible());
    QCOMPARE(dialog.result(), 1);
}

void tst_ZrDialogWindows::aToastLeavesTheKeyboardWhereItIs()
{
    m_edit->setFocus();
    RealDesktop::type("12");
    QTRY_COMPARE(m_edit->text(), QString("12"));
    ZrToastDialog toast(&m_scene->mainWindow);
    toast.SetDuration(60 * 1000);
    toast.ShowToastMessage("The order was refused.", ZrToastDialog::LevelError);
    QVERIFY(QTest::qWaitForWindowExposed(&toast));
    RealDesktop::type("34");
    QTRY_COMPARE(m_edit->text(), QString("1234"));
    QVERIFY(m_scene->mainWindow.isActiveWindow());
    QVERIFY(toast.isVisible());
}

void tst_ZrDialogWindows::aToastStaysOnTop()
{
    PressCounter below(&m_scene->mainWindow);
    ZrToastDialog toast(&m_scene->mainWindow);
    PressCounter above(toast.findChild<QLabel *>("textLabel"));
    toast.SetDuration(60 * 1000);
    toast.ShowToastMessage("The order was refused.", ZrToastDialog::LevelError);
    QVERIFY(QTest::qWaitForWindowExposed(&toast));
    // A click raises the window below, but not above the toast.
    RealDesktop::click(insideMain(700, 500));
    QTRY_COMPARE(below.presses, 1);
    RealDesktop::click(middleOf(&toast));
    QTRY_COMPARE(above.presses, 1);
    QCOMPARE(below.presses, 1);
}

void tst_ZrDialogWindows::theHelpMarkAnswersToTheMouse()
{
    ZrMessageBox box("Title", "text", 3, nullptr, 2);
    box.setHelpBtnShow(true);
    QSignalSpy asked(&box, &ZrMessageBox::signalHelpBtnClicked);
    open(&box);
    const QPoint before = box.pos();
    RealDesktop::click(middleOf(box.findChild<QPushButton *>("helpBtn")));
    QTRY_COMPARE(asked.count(), 1);
    QCOMPARE(box.pos(), before);
    QVERIFY(box.isVisible());
}

ZR_REAL_DESKTOP_MAIN(tst_ZrDialogWindows)
#include "tst_zrdialogwindows.moc"
