#include "ZrDialogKeys.h"
#include "ZrTestMain.h"

#include <QtGui/QKeyEvent>
#include <QtWidgets/QDialog>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QPushButton>

Q_DECLARE_METATYPE(ZrDialogKeys::Escape)

class tst_ZrDialogKeys : public QObject
{
    Q_OBJECT
private slots:
    void escapeIsSwallowedWhereItMayNotClose_data();
    void escapeIsSwallowedWhereItMayNotClose();
    void anotherEventIsNoEscape();
    void aButtonIsFoundByItsName();
    void aButtonThatCannotBeUsedGetsNoFocus_data();
    void aButtonThatCannotBeUsedGetsNoFocus();
};

void tst_ZrDialogKeys::escapeIsSwallowedWhereItMayNotClose_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<int>("key");
    QTest::addColumn<bool>("mayClose");
    QTest::addColumn<ZrDialogKeys::Escape>("expected");

    const int press = QEvent::KeyPress;
    QTest::newRow("may close") << press << int(Qt::Key_Escape) << true << ZrDialogKeys::Escape::Closes;
    QTest::newRow("may not") << press << int(Qt::Key_Escape) << false << ZrDialogKeys::Escape::Swallowed;
    QTest::newRow("another key") << press << int(Qt::Key_Return) << false << ZrDialogKeys::Escape::None;
    QTest::newRow("release") << int(QEvent::KeyRelease) << int(Qt::Key_Escape) << true
                             << ZrDialogKeys::Escape::None;
}

void tst_ZrDialogKeys::escapeIsSwallowedWhereItMayNotClose()
{
    QFETCH(int, type);
    QFETCH(int, key);
    QFETCH(bool, mayClose);
    QFETCH(ZrDialogKeys::Escape, expected);
    const QKeyEvent event(QEvent::Type(type), key, Qt::NoModifier);
    QCOMPARE(ZrDialogKeys::escapeOf(event, mayClose), expected);
}

void tst_ZrDialogKeys::anotherEventIsNoEscape()
{
    QCOMPARE(ZrDialogKeys::escapeOf(QEvent(QEvent::Show), false), ZrDialogKeys::Escape::None);
}

void tst_ZrDialogKeys::aButtonIsFoundByItsName()
{
    QDialog dialog;
    QWidget between(&dialog);
    QPushButton first(&between);
    first.setObjectName("first");
    QPushButton second(&between);
    second.setObjectName("second");
    // Before the dialog is shown, as at its show event.
    QVERIFY(ZrDialogKeys::focusButton(&dialog, "second"));
    QCOMPARE(dialog.focusWidget(), &second);
    QVERIFY(ZrDialogKeys::focusButton(&dialog, "first"));
    QCOMPARE(dialog.focusWidget(), &first);
}

void tst_ZrDialogKeys::aButtonThatCannotBeUsedGetsNoFocus_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("missing") << "none";
    QTest::newRow("hidden") << "hidden";
    QTest::newRow("disabled") << "disabled";
    QTest::newRow("no button") << "edit";
}

void tst_ZrDialogKeys::aButtonThatCannotBeUsedGetsNoFocus()
{
    QFETCH(QString, name);
    QDialog dialog;
    QPushButton hidden(&dialog);
    hidden.setObjectName("hidden");
    hidden.hide();
    QPushButton disabled(&dialog);
    disabled.setObjectName("disabled");
    disabled.setEnabled(false);
    QLineEdit edit(&dialog);
    edit.setObjectName("edit");
    QVERIFY(!ZrDialogKeys::focusButton(&dialog, name));
    QVERIFY(!ZrDialogKeys::focusButton(nullptr, name));
    QCOMPARE(dialog.focusWidget(), nullptr);
}

ZR_TEST_MAIN(tst_ZrDialogKeys)
#include "tst_zrdialogkeys.moc"
