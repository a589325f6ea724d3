#include "EditorScene.h"
#include "ZrShortCutKeyWidget.h"
#include "ZrTestMain.h"

#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QShortcut>
#include <QtWidgets/QVBoxLayout>

namespace {

QStringList codes(const QList<int> &keys)
{
    QStringList result;
    for (const int key : keys)
        result += QString::number(key);
    return result;
}

} // namespace

class tst_ZrShortCutKeyWidget : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase();
    void cleanupTestCase();
    void init();
    void cleanup();
    void theRowIsMadeAsStated();
    void aDescriptionIsShownAndReadBack();
    void anIdIsAPlainValue();
    void aCombinationIsShownAndTold_data();
    void aCombinationIsShownAndTold();
    void modifiersStandFirstHoweverTheyArePressed_data();
    void modifiersStandFirstHoweverTheyArePressed();
    void theFirstReleaseTellsTheWholeCombination();
    void theNextPressStartsAFreshCombination();
    void autoRepeatAddsNothing();
    void aKeyWithoutNameIsDropped();
    void keysWithoutNameTellNothing();
    void noKeyReachesTheField();
    void aCombinationOfTheWindowsShortcutsIsCapturedToo();
    void aGivenShortcutIsShown_data();
    void aGivenShortcutIsShown();
    void theNextPressAddsToAGivenShortcut();
    void aListenerMayShowTheKeysAgain();
    void otherEventsAreLeftToTheField();
    void otherObjectsGoToTheBase();
    void theFieldHasAnAccessibleName();
    void outsideTextIsNoMarkup();

private:
    std::unique_ptr<QuietPlatform> m_quiet;
    void press(int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier, bool isRepeat = false) const;
    void release(int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier, bool isRepeat = false) const;
    std::unique_ptr<ZrShortCutKeyWidget> m_row;
    std::unique_ptr<QSignalSpy> m_told;
    QLineEdit *m_field = nullptr;
};

void tst_ZrShortCutKeyWidget::initTestCase()
{
    m_quiet = std::make_unique<QuietPlatform>();
}

void tst_ZrShortCutKeyWidget::cleanupTestCase()
{
    m_quiet.reset();
}

void tst_ZrShortCutKeyWidget::init()
{
    m_row = std::make_unique<ZrShortCutKeyWidget>();
    m_told = std::make_unique<QSignalSpy>(m_row.get(), &ZrShortCutKeyWidget::signalKeys);
    m_field = m_row->findChild<QLineEdit *>("lineEdit_key");
    QVERIFY(m_field);
}

void tst_ZrShortCutKeyWidget::cleanup()
{
    m_told.reset();
    m_row.reset();
}

void tst_ZrShortCutKeyWidget::press(int key, Qt::KeyboardModifiers modifiers, bool isRepeat) const
{
    QKeyEvent event(QEvent::KeyPress, key, modifiers, QString(), isRepeat);
    QCoreApplication::sendEvent(m_field, &event);
}

void tst_ZrShortCutKeyWidget::release(int key, Qt::KeyboardModifiers modifiers, bool isRepeat) const
{
    QKeyEvent event(QEvent::KeyRelease, key, modifiers, QString(), isRepeat);
    QCoreApplication::sendEvent(m_field, &event);
}

void tst_ZrShortCutKeyWidget::theRowIsMadeAsStated()
{
    QCOMPARE(m_row->objectName(), QString("ZrShortCutKeyWidget"));
    QCOMPARE(m_row->windowTitle(), QString("Form"));
    QCOMPARE(m_row->size(), QSize(400, 40));
    QCOMPARE(m_row->getShortcutKeyId(), -1);
    QCOMPARE(m_row->getShortcutKeyDesc(), QString());
    auto *const column = qobject_cast<QVBoxLayout *>(m_row->layout());
    QVERIFY(column);
    QCOMPARE(column->objectName(), QString("verticalLayout"));
    QCOMPARE(column->contentsMargins(), QMargins(0, 0, 0, 0));
    QCOMPARE(column->count(), 1);
    auto *const line = qobject_cast<QHBoxLayout *>(column->itemAt(0)->layout());
    QVERIFY(line);
    QCOMPARE(line->objectName(), QString("horizontalLayout"));
    QStringList names;
    for (int i = 0; i < line->count(); ++i)
        names += line->itemAt(i)->widget()->objectName();
    QCOMPARE(names, QStringList({"label_desc", "lineEdit_key", "label_notify"}));
    QCOMPARE(m_row->findChild<QLabel *>("label_notify")->text(), QStringLiteral("直接按键盘进行设置"));
    QCOMPARE(m_row->findChild<QLabel *>("label_desc")->text(), QString());
    QVERIFY(m_field->isReadOnly());
    QCOMPARE(m_field->text(), QString());
}

void tst_ZrShortCutKeyWidget::aDescriptionIsShownAndReadBack()
{
    m_row->setShortcutKeyDesc("Cancel all");
    m_row->setShortcutKeyDesc("Cancel");
    QCOMPARE(m_row->getShortcutKeyDesc(), QString("Cancel"));
    QCOMPARE(m_row->findChild<QLabel *>("label_desc")->text(), QString("Cancel"));
}

void tst_ZrShortCutKeyWidget::anIdIsAPlainValue()
{
    m_row->setShortcutKeyId(17);
    QCOMPARE(m_row->getShortcutKeyId(), 17);
}

void tst_ZrShortCutKeyWidget::aCombinationIsShownAndTold_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<int>("modifiers");
    QTest::addColumn<QString>("expectedText");
    QTest::addColumn<QStringList>("expectedKeys");

    const int none = Qt::NoModifier;
    QTest::newRow("a letter") << int(Qt::Key_A) << none << "A" << codes({Qt::Key_A});
    QTest::newRow("delete") << int(Qt::Key_Delete) << none << "Del" << codes({Qt::Key_Delete});
    QTest::newRow("a function key") << int(Qt::Key_F12) << none << "F12" << codes({Qt::Key_F12});
    QTest::newRow("space bar") << int(Qt::Key_Space) << none << "Space" << codes({Qt::Key_Space});
    QTest::newRow("tab stays in the field") << int(Qt::Key_Tab) << none << "Tab" << codes({Qt::Key_Tab});
    QTest::newRow("one modifier") << int(Qt::Key_S) << int(Qt::ControlModifier) << "Ctrl+S"
                                  << codes({Qt::Key_Control, Qt::Key_S});
    QTest::newRow("two modifiers") << int(Qt::Key_A) << int(Qt::ControlModifier | Qt::ShiftModifier)
                                   << "Ctrl+Shift+A" << codes({Qt::Key_Control, Qt::Key_Shift, Qt::Key_A});
    QTest::newRow("three modifiers") << int(Qt::Key_F5)
                                     << int(Qt::ControlModifier | Qt::ShiftModifier | Qt::AltModifier)
                                     << "Ctrl+Alt+Shift+F5"
                                     << codes({Qt::Key_Control, Qt::Key_Alt, Qt::Key_Shift, Qt::Key_F5});
    QTest::newRow("back through the fields brings its own Shift")
        << int(Qt::Key_Backtab) << int(Qt::ShiftModifier) << "Shift+Shift+Tab"
        << codes({Qt::Key_Shift, Qt::Key_Backtab});
    QTest::newRow("the plus key") << int(Qt::Key_Plus) << int(Qt::ControlModifier) << "Ctrl++"
                                  << codes({Qt::Key_Control, Qt::Key_Plus});
}

void tst_ZrShortCutKeyWidget::aCombinationIsShownAndTold()
{
    QFETCH(int, key);
    QFETCH(int, modifiers);
    QFETCH(QString, expectedText);
    QFETCH(QStringList, expectedKeys);
    // Presses Shift, Ctrl and Alt in this order before the key, as a keyboard would.
    QTest::keyPress(m_field, Qt::Key(key), Qt::KeyboardModifiers(modifiers));
    QCOMPARE(m_field->text(), expectedText);
    QCOMPARE(m_told->count(), 0);
    QTest::keyRelease(m_field, Qt::Key(key), Qt::KeyboardModifiers(modifiers));
    QCOMPARE(m_told->count(), 1);
    QCOMPARE(m_told->at(0).at(0).toStringList(), expectedKeys);
    QCOMPARE(m_field->text(), expectedText);
}

void tst_ZrShortCutKeyWidget::modifiersStandFirstHoweverTheyArePressed_data()
{
    QTest::addColumn<QList<int>>("pressed");
    QTest::addColumn<QString>("expectedText");
    QTest::addColumn<QStringList>("expectedKeys");

    const QStringList three = codes({Qt::Key_Control, Qt::Key_Alt, Qt::Key_Shift});
    QTest::newRow("in order") << QList<int>{Qt::Key_Control, Qt::Key_Alt, Qt::Key_Shift} << "Ctrl+Alt+Shift"
                              << three;
    QTest::newRow("Shift first") << QList<int>{Qt::Key_Shift, Qt::Key_Alt, Qt::Key_Control}
                                 << "Ctrl+Alt+Shift" << three;
    QTest::newRow("Alt first") << QList<int>{Qt::Key_Alt, Qt::Key_Shift, Qt::Key_Control} << "Ctrl+Alt+Shift"
                               << three;
    QTest::newRow("Ctrl alone") << QList<int>{Qt::Key_Control} << "Ctrl" << codes({Qt::Key_Control});
    QTest::newRow("Shift, then Ctrl, then A")
        << QList<int>{Qt::Key_Shift, Qt::Key_Control, Qt::Key_A} << "Ctrl+Shift+A"
        << codes({Qt::Key_Control, Qt::Key_Shift, Qt::Key_A});
    QTest::newRow("after the letter") << QList<int>{Qt::Key_A, Qt::Key_Shift, Qt::Key_Control}
                                      << "Ctrl+Shift+A" << codes({Qt::Key_Control, Qt::Key_Shift, Qt::Key_A});
    QTest::newRow("two letters keep their order") << QList<int>{Qt::Key_B, Qt::Key_Alt, Qt::Key_A}
                                                  << "Alt+B+A" << codes({Qt::Key_Alt, Qt::Key_B, Qt::Key_A});
    QTest::newRow("other keys are no modifiers")
        << QList<int>{Qt::Key_Meta, Qt::Key_Control} << "Ctrl+Win" << codes({Qt::Key_Control, Qt::Key_Meta});
}

void tst_ZrShortCutKeyWidget::modifiersStandFirstHoweverTheyArePressed()
{
    QFETCH(QList<int>, pressed);
    QFETCH(QString, expectedText);
    QFETCH(QStringList, expectedKeys);
    Qt::KeyboardModifiers held = Qt::NoModifier;
    for (const int key : pressed) {
        press(key, held);
        held |= key == Qt::Key_Control ? Qt::ControlModifier
                : key == Qt::Key_Alt   ? Qt::AltModifier
                : key == Qt::Key_Shift ? Qt::ShiftModifier
                                       : Qt::NoModifier;
    }
    QCOMPARE(m_field->text(), expectedText);
    release(pressed.constLast(), held);
    QCOMPARE(m_told->count(), 1);
    QCOMPARE(m_told->at(0).at(0).toStringList(), expectedKeys);
}

void tst_ZrShortCutKeyWidget::theFirstReleaseTellsTheWholeCombination()
{
    press(Qt::Key_Control);
    press(Qt::Key_A, Qt::ControlModifier);
    QTest::ignoreMessage(QtInfoMsg, "ZrShortCutKeyWidget KeyRelease: (\"16777249\", \"65\")");
    release(Qt::Key_Control, Qt::ControlModifier);
    QCOMPARE(m_told->count(), 1);
    QCOMPARE(m_told->at(0).at(0).toStringList(), codes({Qt::Key_Control, Qt::Key_A}));
    release(Qt::Key_A);
    QCOMPARE(m_told->count(), 1);
    QCOMPARE(m_field->text(), QString("Ctrl+A"));
}

void tst_ZrShortCutKeyWidget::theNextPressStartsAFreshCombination()
{
    press(Qt::Key_A);
    release(Qt::Key_A);
    press(Qt::Key_B);
    QCOMPARE(m_field->text(), QString("B"));
    release(Qt::Key_B);
    QCOMPARE(m_told->count(), 2);
    QCOMPARE(m_told->at(1).at(0).toStringList(), codes({Qt::Key_B}));
}

// Platforms differ: some repeat the press only, others a release and a press.
void tst_ZrShortCutKeyWidget::autoRepeatAddsNothing()
{
    press(Qt::Key_A, Qt::ControlModifier);
    for (int i = 0; i < 3; ++i) {
        press(Qt::Key_A, Qt::ControlModifier, true);
        release(Qt::Key_A, Qt::ControlModifier, true);
    }
    QCOMPARE(m_field->text(), QString("Ctrl+A"));
    QCOMPARE(m_told->count(), 0);
    release(Qt::Key_A, Qt::ControlModifier);
    QCOMPARE(m_told->count(), 1);
    QCOMPARE(m_told->at(0).at(0).toStringList(), codes({Qt::Key_Control, Qt::Key_A}));
}

void tst_ZrShortCutKeyWidget::aKeyWithoutNameIsDropped()
{
    press(Qt::Key_VolumeUp, Qt::ControlModifier);
    QCOMPARE(m_field->text(), QString("Ctrl"));
    release(Qt::Key_VolumeUp, Qt::ControlModifier);
    QCOMPARE(m_told->at(0).at(0).toStringList(), codes({Qt::Key_Control}));
}

void tst_ZrShortCutKeyWidget::keysWithoutNameTellNothing()
{
    press(Qt::Key_A);
    release(Qt::Key_A);
    press(Qt::Key_VolumeUp);
    release(Qt::Key_VolumeUp);
    QCOMPARE(m_told->count(), 1);
    QCOMPARE(m_field->text(), QString("A"));
}

void tst_ZrShortCutKeyWidget::noKeyReachesTheField()
{
    // Even if somebody makes the field writable.
    m_field->setReadOnly(false);
    QTest::keyClicks(m_field, "abc");
    QCOMPARE(m_field->text(), QString("C"));
    QSignalSpy returnPressed(m_field, &QLineEdit::returnPressed);
    QTest::keyClick(m_field, Qt::Key_Return);
    QCOMPARE(returnPressed.count(), 0);
    for (const QEvent::Type type : {QEvent::KeyPress, QEvent::KeyRelease}) {
        QKeyEvent event(type, Qt::Key_A, Qt::NoModifier);
        QVERIFY(m_row->eventFilter(m_field, &event));
    }
}

void tst_ZrShortCutKeyWidget::aCombinationOfTheWindowsShortcutsIsCapturedToo()
{
    QShortcut shortcut(QKeySequence("Ctrl+S"), m_row.get());
    QSignalSpy activated(&shortcut, &QShortcut::activated);
    m_row->show();
    QApplication::setActiveWindow(m_row.get());
    QVERIFY(QTest::qWaitForWindowActive(m_row.get()));
    m_row->setFocus();
    QVERIFY(m_field->hasFocus());
    QTest::keyClick(m_field, Qt::Key_S, Qt::ControlModifier);
    QCOMPARE(activated.count(), 0);
    QCOMPARE(m_field->text(), QString("Ctrl+S"));
}

void tst_ZrShortCutKeyWidget::aGivenShortcutIsShown_data()
{
    QTest::addColumn<QVariant>("given");
    QTest::addColumn<QString>("expected");

    QTest::newRow("list of texts") << QVariant(codes({Qt::Key_Control, Qt::Key_A})) << "Ctrl+A";
    QTest::newRow("one text") << QVariant(QString::number(Qt::Key_F1)) << "F1";
    QTest::newRow("list of variants")
        << QVariant(QVariantList{QString::number(Qt::Key_Alt), "70"}) << "Alt+F";
    QTest::newRow("modifiers in another order")
        << QVariant(codes({Qt::Key_Shift, Qt::Key_A, Qt::Key_Control})) << "Ctrl+Shift+A";
    QTest::newRow("the same key twice") << QVariant(QStringList{"65", "65"}) << "A";
    QTest::newRow("no code") << QVariant(QStringList{"Ctrl", "", "65x", "-1"}) << "";
    QTest::newRow("nothing") << QVariant() << "";
}

void tst_ZrShortCutKeyWidget::aGivenShortcutIsShown()
{
    QFETCH(QVariant, given);
    QFETCH(QString, expected);
    m_row->setShortcutKey(given);
    QCOMPARE(m_field->text(), expected);
    QCOMPARE(m_told->count(), 0);
}

void tst_ZrShortCutKeyWidget::theNextPressAddsToAGivenShortcut()
{
    m_row->setShortcutKey(codes({Qt::Key_A}));
    press(Qt::Key_B, Qt::ControlModifier);
    QCOMPARE(m_field->text(), QString("Ctrl+A+B"));
    release(Qt::Key_B, Qt::ControlModifier);
    QCOMPARE(m_told->at(0).at(0).toStringList(), codes({Qt::Key_Control, Qt::Key_A, Qt::Key_B}));
}

void tst_ZrShortCutKeyWidget::aListenerMayShowTheKeysAgain()
{
    connect(m_row.get(), &ZrShortCutKeyWidget::signalKeys, m_row.get(),
            [this](const QStringList &keys) { m_row->setShortcutKey(keys); });
    press(Qt::Key_A);
    release(Qt::Key_A);
    QCOMPARE(m_field->text(), QString("A"));
    press(Qt::Key_B);
    QCOMPARE(m_field->text(), QString("B"));
}

void tst_ZrShortCutKeyWidget::otherEventsAreLeftToTheField()
{
    for (const QEvent::Type type : {QEvent::FocusIn, QEvent::MouseButtonPress, QEvent::Enter}) {
        QEvent event(type);
        QVERIFY(!m_row->eventFilter(m_field, &event));
    }
}

void tst_ZrShortCutKeyWidget::otherObjectsGoToTheBase()
{
    QLineEdit other;
    other.installEventFilter(m_row.get());
    QTest::keyClicks(&other, "a");
    QCOMPARE(other.text(), QString("a"));
    QCOMPARE(m_field->text(), QString());
    QCOMPARE(m_told->count(), 0);
}

void tst_ZrShortCutKeyWidget::theFieldHasAnAccessibleName()
{
    QVERIFY(!m_field->accessibleName().isEmpty());
    m_row->setShortcutKeyDesc("Cancel all");
    QCOMPARE(m_field->accessibleName(), QString("Cancel all"));
}

void tst_ZrShortCutKeyWidget::outsideTextIsNoMarkup()
{
    QLabel *const shown = m_row->findChild<QLabel *>("label_desc");
    m_row->setShortcutKeyDesc("<b>Bid</b> & Ask");
    QCOMPARE(shown->text(), QString("<b>Bid</b> & Ask"));
    QCOMPARE(shown->textFormat(), Qt::PlainText);
    QCOMPARE(shown->buddy(), nullptr);
    const QString huge(100000, 'x');
    m_row->setShortcutKeyDesc(huge);
    QCOMPARE(m_row->getShortcutKeyDesc(), huge);
    QVERIFY(shown->text().size() < 1000);
    QVERIFY(m_row->minimumSizeHint().width() < 400);
}

ZR_TEST_MAIN(tst_ZrShortCutKeyWidget)
#include "tst_zrshortcutkeywidget.moc"
