#include "EditorScene.h"
#include "ZrDateEdit.h"
#include "ZrTestMain.h"

#include <QtWidgets/QCalendarWidget>
#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QStyle>
#include <QtWidgets/QStyleOptionSpinBox>

namespace {

const QDate SomeDay(2024, 2, 29);

class Probe : public ZrDateEdit
{
public:
    using ZrDateEdit::focusNextPrevChild;
    using ZrDateEdit::keyPressEvent;
    using ZrDateEdit::validate;
    using ZrDateEdit::ZrDateEdit;
};

/// What a plain editor of the same format says.
class PlainEdit : public QDateEdit
{
public:
    using QDateEdit::validate;
    QSize least() const { return QAbstractSpinBox::minimumSizeHint(); }
};

} // namespace

class tst_ZrDateEdit : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase();
    void cleanupTestCase();
    void init();
    void cleanup();
    void aNewEditIsNotNullable();
    void anInvalidValueEmptiesANullableEdit_data();
    void anInvalidValueEmptiesANullableEdit();
    void aValidValueEndsTheEmptiness_data();
    void aValidValueEndsTheEmptiness();
    void anInvalidValueIsTheBasesWithoutNullable_data();
    void anInvalidValueIsTheBasesWithoutNullable();
    void theSameDateComesBackAfterEmptiness();
    void emptinessIsToldByTheBasesSignal();
    void backspaceOverEverythingEmptiesIt();
    void backspaceOverAPartDoesNot();
    void backspaceInAnEmptyEditLeavesItEmpty();
    void backspaceIsTheBasesWithoutNullable();
    void aDigitFillsInToday_data();
    void aDigitFillsInToday();
    void otherKeysLeaveItEmpty_data();
    void otherKeysLeaveItEmpty();
    void aReadOnlyEditIsNotChangedByKeys();
    void tabLeavesAnEmptyEdit();
    void tabLeavesAnEditThatWasJustEmptied();
    void tabIsNoKeyForTheSectionsOfAnEmptyEdit();
    void tabGoesThroughTheSectionsOfADate();
    void theTextStaysAwayAfterAPaint();
    void theTextStaysAwayAfterAShow();
    void switchingNullableOffLeavesTheBasesDate();
    void anEmptyEditIsAcceptable();
    void openingTheCalendarFillsInToday();
    void openingTheCalendarLeavesADate();
    void aClickIntoTheTextLeavesItEmpty();
    void itIsThreePixelsWiderThanTheBase();
    void settingNullableRepaints();

private:
    std::unique_ptr<QuietPlatform> m_quiet;
    QLineEdit *field() const;
    void click(QStyle::SubControl part) const;
    std::unique_ptr<Probe> m_edit;
};

void tst_ZrDateEdit::initTestCase()
{
    m_quiet = std::make_unique<QuietPlatform>();
}

void tst_ZrDateEdit::cleanupTestCase()
{
    m_quiet.reset();
}

void tst_ZrDateEdit::init()
{
    m_edit = std::make_unique<Probe>();
    m_edit->setDisplayFormat("yyyy-MM-dd");
    m_edit->setDate(SomeDay);
}

void tst_ZrDateEdit::cleanup()
{
    m_edit.reset();
}

QLineEdit *tst_ZrDateEdit::field() const
{
    return m_edit->findChild<QLineEdit *>("qt_spinbox_lineedit");
}

void tst_ZrDateEdit::aNewEditIsNotNullable()
{
    const ZrDateEdit edit;
    QVERIFY(!edit.isNullable());
    QVERIFY(edit.date().isValid());
    QCOMPARE(edit.date(), static_cast<const QDateEdit &>(edit).date());
    QCOMPARE(edit.time(), static_cast<const QDateEdit &>(edit).time());
    QCOMPARE(edit.dateTime(), static_cast<const QDateEdit &>(edit).dateTime());
}

void tst_ZrDateEdit::anInvalidValueEmptiesANullableEdit_data()
{
    QTest::addColumn<QString>("setter");
    QTest::newRow("date") << "date";
    QTest::newRow("time") << "time";
    QTest::newRow("date and time") << "dateTime";
}

void tst_ZrDateEdit::anInvalidValueEmptiesANullableEdit()
{
    QFETCH(QString, setter);
    m_edit->setNullable(true);
    QCOMPARE(m_edit->date(), SomeDay);
    if (setter == "date")
        m_edit->setDate(QDate());
    else if (setter == "time")
        m_edit->setTime(QTime());
    else
        m_edit->setDateTime(QDateTime());
    QVERIFY(!m_edit->date().isValid());
    QVERIFY(!m_edit->time().isValid());
    QVERIFY(!m_edit->dateTime().isValid());
    QCOMPARE(m_edit->text(), QString());
    QCOMPARE(field()->text(), QString());
}

void tst_ZrDateEdit::aValidValueEndsTheEmptiness_data()
{
    anInvalidValueEmptiesANullableEdit_data();
}

void tst_ZrDateEdit::aValidValueEndsTheEmptiness()
{
    QFETCH(QString, setter);
    m_edit->setNullable(true);
    m_edit->setDate(QDate());
    if (setter == "date") {
        m_edit->setDate(SomeDay);
        QCOMPARE(m_edit->date(), SomeDay);
    } else if (setter == "time") {
        m_edit->setTime(QTime(0, 0));
        QCOMPARE(m_edit->time(), QTime(0, 0));
    } else {
        m_edit->setDateTime(QDateTime(SomeDay, QTime(1, 2)));
        QCOMPARE(m_edit->date(), SomeDay);
    }
    QVERIFY(m_edit->date().isValid() && m_edit->time().isValid() && m_edit->dateTime().isValid());
    QVERIFY(!m_edit->text().isEmpty());
}

void tst_ZrDateEdit::anInvalidValueIsTheBasesWithoutNullable_data()
{
    anInvalidValueEmptiesANullableEdit_data();
}

void tst_ZrDateEdit::anInvalidValueIsTheBasesWithoutNullable()
{
    QFETCH(QString, setter);
    if (setter == "date")
        m_edit->setDate(QDate());
    else if (setter == "time")
        m_edit->setTime(QTime());
    else
        m_edit->setDateTime(QDateTime());
    QCOMPARE(m_edit->date(), SomeDay);
    QCOMPARE(m_edit->text(), QString("2024-02-29"));
    // No null state was noted that a later setNullable() would bring out.
    m_edit->setNullable(true);
    QCOMPARE(m_edit->date(), SomeDay);
}

void tst_ZrDateEdit::theSameDateComesBackAfterEmptiness()
{
    m_edit->setNullable(true);
    m_edit->setDate(QDate());
    m_edit->setDate(SomeDay);
    QCOMPARE(m_edit->text(), QString("2024-02-29"));
    QCOMPARE(m_edit->date(), SomeDay);
}

void tst_ZrDateEdit::emptinessIsToldByTheBasesSignal()
{
    m_edit->setNullable(true);
    bool wasEmpty = false;
    QSignalSpy changed(m_edit.get(), &QDateTimeEdit::dateChanged);
    connect(m_edit.get(), &QDateTimeEdit::dateChanged, this, [&] { wasEmpty = !m_edit->date().isValid(); });
    m_edit->setDate(QDate());
    QCOMPARE(changed.count(), 1);
    QVERIFY(wasEmpty);
    m_edit->setDate(QDate());
    QCOMPARE(changed.count(), 1);
}

void tst_ZrDateEdit::backspaceOverEverythingEmptiesIt()
{
    m_edit->setNullable(true);
    field()->selectAll();
    QTest::keyClick(m_edit.get(), Qt::Key_Backspace);
    QCOMPARE(m_edit->text(), QString());
    QVERIFY(!m_edit->date().isValid());
}

void tst_ZrDateEdit::backspaceOverAPartDoesNot()
{
    m_edit->setNullable(true);
    field()->setSelection(0, 4);
    QTest::keyClick(m_edit.get(), Qt::Key_Backspace);
    QVERIFY(m_edit->date().isValid());
    QVERIFY(!m_edit->text().isEmpty());
}

void tst_ZrDateEdit::backspaceInAnEmptyEditLeavesItEmpty()
{
    m_edit->setNullable(true);
    m_edit->setDate(QDate());
    QTest::keyClick(m_edit.get(), Qt::Key_Backspace);
    QVERIFY(!m_edit->date().isValid());
    QCOMPARE(m_edit->text(), QString());
}

void tst_ZrDateEdit::backspaceIsTheBasesWithoutNullable()
{
    field()->selectAll();
    QTest::keyClick(m_edit.get(), Qt::Key_Backspace);
    QVERIFY(m_edit->date().isValid());
}

void tst_ZrDateEdit::aDigitFillsInToday_data()
{
    QTest::addColumn<int>("key");
    for (int key = Qt::Key_0; key <= Qt::Key_9; ++key)
        QTest::newRow(QByteArray(1, char(key)).constData()) << key;
}

void tst_ZrDateEdit::aDigitFillsInToday()
{
    QFETCH(int, key);
    m_edit->setNullable(true);
    m_edit->setDate(QDate());
    // Whatever the digit then does to the date: today was there first. Asked for on both sides of midnight.
    QSignalSpy changed(m_edit.get(), &QDateTimeEdit::dateChanged);
    const QDate before = QDate::currentDate();
    QTest::keyClick(m_edit.get(), Qt::Key(key));
    const QDate after = QDate::currentDate();
    QVERIFY(changed.count() >= 1);
    const QDate first = changed.at(0).at(0).toDate();
    QVERIFY(first == before || first == after);
    QVERIFY(m_edit->date().isValid());
    QVERIFY(!m_edit->text().isEmpty());
}

void tst_ZrDateEdit::otherKeysLeaveItEmpty_data()
{
    QTest::addColumn<int>("key");
    QTest::newRow("letter") << int(Qt::Key_A);
    QTest::newRow("separator") << int(Qt::Key_Minus);
    QTest::newRow("delete") << int(Qt::Key_Delete);
    QTest::newRow("up") << int(Qt::Key_Up);
    QTest::newRow("page down") << int(Qt::Key_PageDown);
    QTest::newRow("left") << int(Qt::Key_Left);
    QTest::newRow("end") << int(Qt::Key_End);
    QTest::newRow("return") << int(Qt::Key_Return);
    QTest::newRow("space") << int(Qt::Key_Space);
}

void tst_ZrDateEdit::otherKeysLeaveItEmpty()
{
    QFETCH(int, key);
    m_edit->setNullable(true);
    m_edit->setDate(QDate());
    QTest::keyClick(m_edit.get(), Qt::Key(key));
    QVERIFY(!m_edit->date().isValid());
    m_edit->grab();
    QCOMPARE(m_edit->text(), QString());
}

void tst_ZrDateEdit::aReadOnlyEditIsNotChangedByKeys()
{
    m_edit->setNullable(true);
    m_edit->setReadOnly(true);
    field()->selectAll();
    QTest::keyClick(m_edit.get(), Qt::Key_Backspace);
    QCOMPARE(m_edit->date(), SomeDay);
    m_edit->setDate(QDate());
    QTest::keyClick(m_edit.get(), Qt::Key_5);
    QVERIFY(!m_edit->date().isValid());
}

void tst_ZrDateEdit::tabLeavesAnEmptyEdit()
{
    QWidget window;
    auto *const row = new QHBoxLayout(&window);
    auto *const edit = new ZrDateEdit;
    auto *const next = new QLineEdit;
    row->addWidget(edit);
    row->addWidget(next);
    edit->setNullable(true);
    edit->setDate(QDate());
    window.show();
    QApplication::setActiveWindow(&window);
    QVERIFY(QTest::qWaitForWindowActive(&window));
    edit->setFocus();
    QTest::keyClick(edit, Qt::Key_Tab);
    QVERIFY(next->hasFocus());
    QVERIFY(!edit->date().isValid());
    QTest::keyClick(next, Qt::Key_Backtab, Qt::ShiftModifier);
    QVERIFY(edit->hasFocus());
    QVERIFY(!edit->date().isValid());
    edit->grab();
    QCOMPARE(edit->text(), QString());
}

// From the first of its sections, where a date would have further ones to go through.
void tst_ZrDateEdit::tabLeavesAnEditThatWasJustEmptied()
{
    QWidget window;
    auto *const row = new QHBoxLayout(&window);
    auto *const edit = new ZrDateEdit;
    auto *const next = new QLineEdit;
    row->addWidget(edit);
    row->addWidget(next);
    edit->setNullable(true);
    edit->setDisplayFormat("yyyy-MM-dd");
    edit->setDate(SomeDay);
    window.show();
    QApplication::setActiveWindow(&window);
    QVERIFY(QTest::qWaitForWindowActive(&window));
    edit->setFocus(Qt::TabFocusReason);
    QCOMPARE(edit->currentSection(), QDateTimeEdit::YearSection);
    edit->setDate(QDate());
    QTest::keyClick(edit, Qt::Key_Tab);
    QVERIFY(next->hasFocus());
}

void tst_ZrDateEdit::tabIsNoKeyForTheSectionsOfAnEmptyEdit()
{
    QWidget window;
    auto *const row = new QHBoxLayout(&window);
    auto *const edit = new Probe;
    row->addWidget(edit);
    row->addWidget(new QLineEdit);
    edit->setNullable(true);
    edit->setDisplayFormat("yyyy-MM-dd");
    edit->setDate(SomeDay);
    window.show();
    QApplication::setActiveWindow(&window);
    QVERIFY(QTest::qWaitForWindowActive(&window));
    edit->setFocus(Qt::TabFocusReason);
    edit->setDate(QDate());
    QKeyEvent tab(QEvent::KeyPress, Qt::Key_Tab, Qt::NoModifier);
    tab.ignore();
    edit->keyPressEvent(&tab);
    QVERIFY(!tab.isAccepted());
    edit->setFocus(Qt::TabFocusReason);
    QVERIFY(edit->focusNextPrevChild(true));
}

void tst_ZrDateEdit::tabGoesThroughTheSectionsOfADate()
{
    QWidget window;
    auto *const row = new QHBoxLayout(&window);
    auto *const edit = new ZrDateEdit;
    row->addWidget(edit);
    row->addWidget(new QLineEdit);
    edit->setNullable(true);
    edit->setDisplayFormat("yyyy-MM-dd");
    edit->setDate(SomeDay);
    window.show();
    QApplication::setActiveWindow(&window);
    QVERIFY(QTest::qWaitForWindowActive(&window));
    edit->setFocus(Qt::TabFocusReason);
    QCOMPARE(edit->currentSection(), QDateTimeEdit::YearSection);
    QTest::keyClick(edit, Qt::Key_Tab);
    QVERIFY(edit->hasFocus());
    QCOMPARE(edit->currentSection(), QDateTimeEdit::MonthSection);
}

void tst_ZrDateEdit::theTextStaysAwayAfterAPaint()
{
    m_edit->setNullable(true);
    m_edit->setDate(QDate());
    // The base writes its text anew.
    m_edit->setMinimumDate(QDate(2000, 1, 1));
    m_edit->setDisplayFormat("dd.MM.yyyy");
    QVERIFY(!m_edit->text().isEmpty());
    m_edit->grab();
    QCOMPARE(m_edit->text(), QString());
    QVERIFY(!m_edit->date().isValid());
}

void tst_ZrDateEdit::theTextStaysAwayAfterAShow()
{
    m_edit->setNullable(true);
    m_edit->setDate(QDate());
    m_edit->setDisplayFormat("dd.MM.yyyy");
    QVERIFY(!m_edit->text().isEmpty());
    QShowEvent event;
    QCoreApplication::sendEvent(m_edit.get(), &event);
    QCOMPARE(m_edit->text(), QString());
}

void tst_ZrDateEdit::switchingNullableOffLeavesTheBasesDate()
{
    m_edit->setNullable(true);
    m_edit->setDate(QDate());
    m_edit->setNullable(false);
    QVERIFY(m_edit->date().isValid());
    m_edit->setNullable(true);
    QVERIFY(!m_edit->date().isValid());
}

void tst_ZrDateEdit::anEmptyEditIsAcceptable()
{
    PlainEdit plain;
    plain.setDisplayFormat("yyyy-MM-dd");
    int position = 0;
    for (const QString &text : {QString(), QString("2024-02-29"), QString("2024-0"), QString("x")}) {
        QString input = text;
        QString same = text;
        m_edit->setNullable(false);
        m_edit->setDate(SomeDay);
        plain.setDate(SomeDay);
        QCOMPARE(m_edit->validate(input, position), plain.validate(same, position));
        m_edit->setNullable(true);
        m_edit->setDate(QDate());
        input = text;
        QCOMPARE(m_edit->validate(input, position), QValidator::Acceptable);
        QCOMPARE(input, text);
    }
}

void tst_ZrDateEdit::click(QStyle::SubControl part) const
{
    QStyleOptionComboBox option;
    option.init(m_edit.get());
    option.editable = true;
    option.subControls = QStyle::SC_All;
    const QRect place = m_edit->style()->subControlRect(QStyle::CC_ComboBox, &option, part, m_edit.get());
    QTest::mousePress(m_edit.get(), Qt::LeftButton, Qt::NoModifier, place.center());
}

void tst_ZrDateEdit::openingTheCalendarFillsInToday()
{
    m_edit->setNullable(true);
    m_edit->setCalendarPopup(true);
    m_edit->setDate(QDate());
    m_edit->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_edit.get()));
    const QDate before = QDate::currentDate();
    click(QStyle::SC_ComboBoxArrow);
    const QDate after = QDate::currentDate();
    QVERIFY(m_edit->calendarWidget()->isVisible());
    QVERIFY(m_edit->date() == before || m_edit->date() == after);
    QCOMPARE(m_edit->calendarWidget()->selectedDate(), m_edit->date());
    QVERIFY(!m_edit->text().isEmpty());
}

void tst_ZrDateEdit::openingTheCalendarLeavesADate()
{
    m_edit->setNullable(true);
    m_edit->setCalendarPopup(true);
    m_edit->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_edit.get()));
    click(QStyle::SC_ComboBoxArrow);
    QVERIFY(m_edit->calendarWidget()->isVisible());
    QCOMPARE(m_edit->date(), SomeDay);
}

void tst_ZrDateEdit::aClickIntoTheTextLeavesItEmpty()
{
    m_edit->setNullable(true);
    m_edit->setCalendarPopup(true);
    m_edit->setDate(QDate());
    m_edit->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_edit.get()));
    click(QStyle::SC_ComboBoxEditField);
    QVERIFY(!m_edit->date().isValid());
    m_edit->setCalendarPopup(false);
    QTest::mousePress(m_edit.get(), Qt::LeftButton, Qt::NoModifier, QPoint(4, 4));
    QVERIFY(!m_edit->date().isValid());
}

void tst_ZrDateEdit::itIsThreePixelsWiderThanTheBase()
{
    PlainEdit plain;
    plain.setDisplayFormat("yyyy-MM-dd");
    QCOMPARE(m_edit->sizeHint(), plain.sizeHint() + QSize(3, 0));
    QCOMPARE(m_edit->minimumSizeHint(), plain.least() + QSize(3, 0));
}

void tst_ZrDateEdit::settingNullableRepaints()
{
    m_edit->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_edit.get()));
    PaintCounter paints(m_edit.get());
    m_edit->repaint();
    QCoreApplication::processEvents();
    const int before = paints.count;
    m_edit->setNullable(true);
    QVERIFY(m_edit->isNullable());
    QTRY_VERIFY(paints.count > before);
    QCOMPARE(m_edit->date(), SomeDay);
}

ZR_TEST_MAIN(tst_ZrDateEdit)
#include "tst_zrdateedit.moc"
