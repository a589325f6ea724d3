#include "ComboScene.h"
#include "ZrMultiComboKeys.h"

#include <QtGui/QWheelEvent>
#include <QtWidgets/QDialog>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QShortcut>
#include <QtWidgets/QVBoxLayout>

/// A box in a dialog with a default button.
class ComboDialog
{
public:
    ComboDialog()
    {
        auto *const layout = new QVBoxLayout(&dialog);
        combo = new ZrMultiComboBox;
        combo->addItems({QStringLiteral("a"), QStringLiteral("b"), QStringLiteral("c")});
        ok = new QPushButton(QStringLiteral("ok"));
        ok->setDefault(true);
        layout->addWidget(combo);
        layout->addWidget(ok);
        dialog.show();
        combo->setFocus();
    }

    /// As the window system sends it: to whatever has the focus of the popup, or else of the window.
    void press(Qt::Key key)
    {
        QWidget *const popup = QApplication::activePopupWidget();
        QTest::keyClick(popup ? popup->windowHandle() : dialog.windowHandle(), key);
    }

    QDialog dialog;
    ZrMultiComboBox *combo;
    QPushButton *ok;
};

class tst_ZrMultiComboKeys : public QObject
{
    Q_OBJECT
private slots:
    void closedKeysOpen_data();
    void closedKeysOpen();
    void closedKeysThatMeanNothingHere_data();
    void closedKeysThatMeanNothingHere();
    void openKeysClose_data();
    void openKeysClose();
    void theKeyboardAloneDoesEverything();
    void pagesAndEndsAreReached();
    void typingFindsARow();
    void aHeldKeyTicksOnce();
    void aDisabledRowIsNotTicked();
    void aDisabledBoxIgnoresKeys();
    void enterInThePopupStaysAwayFromTheDialog_data();
    void enterInThePopupStaysAwayFromTheDialog();
    void escapeInThePopupStaysAwayFromTheDialog();
    void enterOnTheClosedBoxIsConsumed_data();
    void enterOnTheClosedBoxIsConsumed();
    void aCheckBoxThatGetsAKeyPassesItOn();
    void closingByKeyChoosesNoCurrentItem();
    void aShortcutDoesNotTakeTheKeysOfThePopup();
    void theWheelOverTheClosedBoxIsNotTaken();
    void theWheelScrollsTheList();
};

void tst_ZrMultiComboKeys::closedKeysOpen_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<Qt::KeyboardModifiers>("modifiers");
    const Qt::KeyboardModifiers none = Qt::NoModifier;
    QTest::newRow("Space") << int(Qt::Key_Space) << none;
    QTest::newRow("F4") << int(Qt::Key_F4) << none;
    QTest::newRow("Down") << int(Qt::Key_Down) << none;
    QTest::newRow("Up") << int(Qt::Key_Up) << none;
    QTest::newRow("Alt+Down") << int(Qt::Key_Down) << Qt::KeyboardModifiers(Qt::AltModifier);
    QTest::newRow("keypad Down") << int(Qt::Key_Down) << Qt::KeyboardModifiers(Qt::KeypadModifier);
    QTest::newRow("Page Down") << int(Qt::Key_PageDown) << none;
    QTest::newRow("Page Up") << int(Qt::Key_PageUp) << none;
}

void tst_ZrMultiComboKeys::closedKeysOpen()
{
    QFETCH(int, key);
    QFETCH(Qt::KeyboardModifiers, modifiers);
    ComboScene scene(3);
    QTest::keyClick(scene.combo(), Qt::Key(key), modifiers);
    QVERIFY(scene.list()->isVisible());
    QCOMPARE(scene.combo()->currentIndex(), 0);
    QCOMPARE(scene.list()->currentRow(), 0);
    QVERIFY(scene.combo()->getCurrentSelectedIndex().isEmpty());
}

void tst_ZrMultiComboKeys::closedKeysThatMeanNothingHere_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<Qt::KeyboardModifiers>("modifiers");
    QTest::newRow("Ctrl+Space") << int(Qt::Key_Space) << Qt::KeyboardModifiers(Qt::ControlModifier);
    QTest::newRow("Alt+F4") << int(Qt::Key_F4) << Qt::KeyboardModifiers(Qt::AltModifier);
    QTest::newRow("Shift+Page Down") << int(Qt::Key_PageDown) << Qt::KeyboardModifiers(Qt::ShiftModifier);
    QTest::newRow("Ctrl+Down") << int(Qt::Key_Down) << Qt::KeyboardModifiers(Qt::ControlModifier);
    QTest::newRow("letter") << int(Qt::Key_R) << Qt::KeyboardModifiers(Qt::NoModifier);
    QTest::newRow("Delete") << int(Qt::Key_Delete) << Qt::KeyboardModifiers(Qt::NoModifier);
}

void tst_ZrMultiComboKeys::closedKeysThatMeanNothingHere()
{
    QFETCH(int, key);
    QFETCH(Qt::KeyboardModifiers, modifiers);
    ComboScene scene(3);
    scene.combo()->selectIndex(1, true);
    QTest::keyClick(scene.combo(), Qt::Key(key), modifiers);
    QVERIFY(!scene.list()->isVisible());
    QCOMPARE(scene.shown(), QStringLiteral("r1"));
}

void tst_ZrMultiComboKeys::openKeysClose_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<Qt::KeyboardModifiers>("modifiers");
    const Qt::KeyboardModifiers none = Qt::NoModifier;
    QTest::newRow("Return") << int(Qt::Key_Return) << none;
    QTest::newRow("Enter") << int(Qt::Key_Enter) << Qt::KeyboardModifiers(Qt::KeypadModifier);
    QTest::newRow("Escape") << int(Qt::Key_Escape) << none;
    QTest::newRow("F4") << int(Qt::Key_F4) << none;
    QTest::newRow("Alt+Up") << int(Qt::Key_Up) << Qt::KeyboardModifiers(Qt::AltModifier);
    QTest::newRow("Alt+Down") << int(Qt::Key_Down) << Qt::KeyboardModifiers(Qt::AltModifier);
}

void tst_ZrMultiComboKeys::openKeysClose()
{
    QFETCH(int, key);
    QFETCH(Qt::KeyboardModifiers, modifiers);
    ComboScene scene(3);
    QVERIFY(scene.open());
    QTest::keyClick(scene.list(), Qt::Key_Down);
    QTest::keyClick(scene.list(), Qt::Key(key), modifiers);
    QVERIFY(!scene.list()->isVisible());
    QVERIFY(scene.combo()->getCurrentSelectedIndex().isEmpty());
}

void tst_ZrMultiComboKeys::theKeyboardAloneDoesEverything()
{
    ComboDialog scene;
    QVERIFY(QTest::qWaitForWindowActive(&scene.dialog));
    QStringList told;
    connect(scene.combo, &ZrMultiComboBox::signalIndexClicked, this,
            [&told](int row) { told.append(QStringLiteral("clicked %1").arg(row)); });
    connect(scene.combo, &ZrMultiComboBox::signalCurrentSelectedChanged, this,
            [&told](const QString &text) { told.append("changed " + text); });
    scene.press(Qt::Key_Space);
    QVERIFY(scene.combo->view()->isVisible());
    scene.press(Qt::Key_Down);
    scene.press(Qt::Key_Space);
    scene.press(Qt::Key_Down);
    scene.press(Qt::Key_Space);
    scene.press(Qt::Key_Up);
    scene.press(Qt::Key_Space);
    QVERIFY(scene.combo->view()->isVisible());
    scene.press(Qt::Key_Return);
    QVERIFY(!scene.combo->view()->isVisible());
    QCOMPARE(told,
             QStringList({"clicked 1", "changed b", "clicked 2", "changed b;c", "clicked 1", "changed c"}));
    QCOMPARE(scene.combo->currentText(), QStringLiteral("c"));
    QVERIFY(scene.dialog.isVisible());
    QVERIFY(scene.combo->hasFocus());
}

void tst_ZrMultiComboKeys::pagesAndEndsAreReached()
{
    ComboScene scene(100);
    QVERIFY(scene.open());
    QTest::keyClick(scene.list(), Qt::Key_End);
    QCOMPARE(scene.list()->currentRow(), 99);
    QVERIFY(scene.box(99)->isVisible());
    QTest::keyClick(scene.list(), Qt::Key_Space);
    QCOMPARE(scene.shown(), QStringLiteral("r99"));
    QTest::keyClick(scene.list(), Qt::Key_PageUp);
    QVERIFY(scene.list()->currentRow() < 99);
    QTest::keyClick(scene.list(), Qt::Key_Home);
    QCOMPARE(scene.list()->currentRow(), 0);
}

void tst_ZrMultiComboKeys::typingFindsARow()
{
    ComboScene scene(100);
    QVERIFY(scene.open());
    QTest::keyClicks(scene.list(), QStringLiteral("r57"));
    QCOMPARE(scene.list()->currentRow(), 57);
    QVERIFY(scene.box(57)->isVisible());
}

void tst_ZrMultiComboKeys::aHeldKeyTicksOnce()
{
    ComboScene scene(3);
    QVERIFY(scene.open());
    QKeyEvent first(QEvent::KeyPress, Qt::Key_Space, Qt::NoModifier, QStringLiteral(" "), false);
    QKeyEvent again(QEvent::KeyPress, Qt::Key_Space, Qt::NoModifier, QStringLiteral(" "), true);
    QCoreApplication::sendEvent(scene.list(), &first);
    QCoreApplication::sendEvent(scene.list(), &again);
    QVERIFY(scene.combo()->isIndexSelected(0));
}

void tst_ZrMultiComboKeys::aDisabledRowIsNotTicked()
{
    ComboScene scene(3);
    scene.box(0)->setEnabled(false);
    QVERIFY(scene.open());
    QTest::keyClick(scene.list(), Qt::Key_Space);
    scene.click(0);
    QVERIFY(!scene.combo()->isIndexSelected(0));
    QVERIFY(scene.list()->isVisible());
}

void tst_ZrMultiComboKeys::aDisabledBoxIgnoresKeys()
{
    ComboScene scene(3);
    scene.combo()->setEnabled(false);
    QTest::keyClick(scene.window()->windowHandle(), Qt::Key_Space);
    QTest::keyClick(scene.window()->windowHandle(), Qt::Key_F4);
    QVERIFY(!scene.list()->isVisible());
}

void tst_ZrMultiComboKeys::enterInThePopupStaysAwayFromTheDialog_data()
{
    QTest::addColumn<int>("key");
    QTest::newRow("Return") << int(Qt::Key_Return);
    QTest::newRow("Enter") << int(Qt::Key_Enter);
}

void tst_ZrMultiComboKeys::enterInThePopupStaysAwayFromTheDialog()
{
    QFETCH(int, key);
    ComboDialog scene;
    QVERIFY(QTest::qWaitForWindowActive(&scene.dialog));
    QSignalSpy accepted(scene.ok, &QPushButton::clicked);
    scene.combo->showPopup();
    QVERIFY(QTest::qWaitForWindowExposed(scene.combo->view()->window()));
    scene.press(Qt::Key(key));
    QVERIFY(!scene.combo->view()->isVisible());
    QCOMPARE(accepted.count(), 0);
    QVERIFY(scene.dialog.isVisible());
}

void tst_ZrMultiComboKeys::escapeInThePopupStaysAwayFromTheDialog()
{
    ComboDialog scene;
    QVERIFY(QTest::qWaitForWindowActive(&scene.dialog));
    scene.combo->showPopup();
    scene.press(Qt::Key_Escape);
    QVERIFY(!scene.combo->view()->isVisible());
    QVERIFY(scene.dialog.isVisible());
    // The next one is the dialog's.
    scene.press(Qt::Key_Escape);
    QVERIFY(!scene.dialog.isVisible());
}

void tst_ZrMultiComboKeys::enterOnTheClosedBoxIsConsumed_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<bool>("onEditor");
    QTest::newRow("Return on the box") << int(Qt::Key_Return) << false;
    QTest::newRow("Enter on the box") << int(Qt::Key_Enter) << false;
    QTest::newRow("Return on the editor") << int(Qt::Key_Return) << true;
    QTest::newRow("Enter on the editor") << int(Qt::Key_Enter) << true;
}

void tst_ZrMultiComboKeys::enterOnTheClosedBoxIsConsumed()
{
    QFETCH(int, key);
    QFETCH(bool, onEditor);
    ComboDialog scene;
    QVERIFY(QTest::qWaitForWindowActive(&scene.dialog));
    QSignalSpy accepted(scene.ok, &QPushButton::clicked);
    QWidget *const target = onEditor ? static_cast<QWidget *>(scene.combo->lineEdit()) : scene.combo;
    QTest::keyClick(target, Qt::Key(key));
    QCOMPARE(accepted.count(), 0);
    QVERIFY(scene.dialog.isVisible());
}

void tst_ZrMultiComboKeys::aCheckBoxThatGetsAKeyPassesItOn()
{
    ComboScene scene(3);
    QVERIFY(scene.open());
    QTest::keyClick(scene.box(1), Qt::Key_Space);
    QVERIFY(scene.combo()->isIndexSelected(1));
    QTest::keyClick(scene.box(1), Qt::Key_Return);
    QVERIFY(!scene.list()->isVisible());
}

void tst_ZrMultiComboKeys::closingByKeyChoosesNoCurrentItem()
{
    ComboScene scene(50);
    QSignalSpy activated(scene.combo(), QOverload<int>::of(&QComboBox::activated));
    for (const Qt::Key key : {Qt::Key_Return, Qt::Key_F4, Qt::Key_Escape}) {
        QVERIFY(scene.open());
        QTest::keyClick(scene.list(), Qt::Key_End);
        QTest::keyClick(scene.list(), key);
        QCOMPARE(scene.combo()->currentIndex(), 0);
    }
    QCOMPARE(activated.count(), 0);
}

void tst_ZrMultiComboKeys::aShortcutDoesNotTakeTheKeysOfThePopup()
{
    ComboScene scene(3);
    QShortcut shortcut(QKeySequence(Qt::Key_Space), scene.window(), nullptr, nullptr,
                       Qt::ApplicationShortcut);
    QSignalSpy taken(&shortcut, &QShortcut::activated);
    QVERIFY(scene.open());
    QTest::keyClick(scene.list()->window()->windowHandle(), Qt::Key_Space);
    QCOMPARE(taken.count(), 0);
    QVERIFY(scene.combo()->isIndexSelected(0));
}

void tst_ZrMultiComboKeys::theWheelOverTheClosedBoxIsNotTaken()
{
    ComboScene scene(10);
    for (QWidget *const target :
         {static_cast<QWidget *>(scene.combo()), static_cast<QWidget *>(scene.edit())}) {
        QWheelEvent event(QPointF(5, 5), target->mapToGlobal(QPoint(5, 5)), QPoint(), QPoint(0, -120),
                          Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(target, &event);
        QVERIFY(!event.isAccepted());
        QCOMPARE(scene.combo()->currentIndex(), 0);
    }
}

void tst_ZrMultiComboKeys::theWheelScrollsTheList()
{
    ComboScene scene(100);
    QVERIFY(scene.open());
    CheckBoxInMultiBox *const box = scene.box(1);
    QWheelEvent event(QPointF(5, 5), box->mapToGlobal(QPoint(5, 5)), QPoint(), QPoint(0, -120), Qt::NoButton,
                      Qt::NoModifier, Qt::NoScrollPhase, false);
    QSpontaneKeyEvent::setSpontaneous(&event); // only those of the window system go up to the list
    qApp->notify(box, &event);
    QVERIFY(!scene.box(0)->isVisible());
}

ZR_TEST_MAIN(tst_ZrMultiComboKeys)
#include "tst_zrmulticombokeys.moc"
