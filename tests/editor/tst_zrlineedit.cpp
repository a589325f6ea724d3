#include "ZrLineEdit.h"
#include "ZrTestMain.h"

#include <QtGui/QIntValidator>

class tst_ZrLineEdit : public QObject
{
    Q_OBJECT
private slots:
    void aNewEditHasNoRoles();
    void roleDataReadsBack();
    void enterTellsTheText_data();
    void enterTellsTheText();
    void otherKeysTellNothing();
    void theTextIsToldBeforeTheBaseSeesTheKey();
    void aTextThatTheValidatorRefusesIsToldToo();
    void outsideTextIsShownAsItIs();
};

void tst_ZrLineEdit::aNewEditHasNoRoles()
{
    const ZrLineEdit edit;
    QVERIFY(!edit.getRoleData(0).isValid());
    QVERIFY(!edit.getRoleData(Qt::UserRole).isValid());
    QCOMPARE(edit.text(), QString());
}

void tst_ZrLineEdit::roleDataReadsBack()
{
    ZrLineEdit edit;
    edit.setRoleData(Qt::UserRole, 42);
    edit.setRoleData(Qt::UserRole, 43);
    edit.setRoleData(0, "shown");
    QCOMPARE(edit.getRoleData(Qt::UserRole), QVariant(43));
    QCOMPARE(edit.getRoleData(0), QVariant("shown"));
    // The roles are the form's; they don't touch the field.
    QCOMPARE(edit.text(), QString());
}

void tst_ZrLineEdit::enterTellsTheText_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<QString>("text");

    QTest::newRow("return") << int(Qt::Key_Return) << "600000";
    QTest::newRow("enter of the number pad") << int(Qt::Key_Enter) << "600000";
    QTest::newRow("nothing entered") << int(Qt::Key_Return) << "";
}

void tst_ZrLineEdit::enterTellsTheText()
{
    QFETCH(int, key);
    QFETCH(QString, text);
    ZrLineEdit edit;
    QSignalSpy complete(&edit, &ZrLineEdit::signalComplete);
    QSignalSpy base(&edit, &QLineEdit::returnPressed);
    QTest::keyClicks(&edit, text);
    QTest::keyClick(&edit, Qt::Key(key));
    QCOMPARE(complete.count(), 1);
    QCOMPARE(complete.at(0).at(0).toString(), text);
    QCOMPARE(base.count(), 1);
    QCOMPARE(edit.text(), text);
}

void tst_ZrLineEdit::otherKeysTellNothing()
{
    ZrLineEdit edit;
    QSignalSpy complete(&edit, &ZrLineEdit::signalComplete);
    QTest::keyClicks(&edit, "abc 1");
    QTest::keyClick(&edit, Qt::Key_Escape);
    QTest::keyClick(&edit, Qt::Key_Backspace);
    QCOMPARE(edit.text(), QString("abc "));
    QCOMPARE(complete.count(), 0);
}

void tst_ZrLineEdit::theTextIsToldBeforeTheBaseSeesTheKey()
{
    ZrLineEdit edit;
    QStringList order;
    connect(&edit, &QLineEdit::returnPressed, this, [&order] { order += "base"; });
    connect(&edit, &ZrLineEdit::signalComplete, this, [&order] { order += "complete"; });
    QTest::keyClick(&edit, Qt::Key_Return);
    QCOMPARE(order, QStringList({"complete", "base"}));
}

void tst_ZrLineEdit::aTextThatTheValidatorRefusesIsToldToo()
{
    ZrLineEdit edit;
    edit.setValidator(new QIntValidator(100, 999, &edit));
    QSignalSpy complete(&edit, &ZrLineEdit::signalComplete);
    QSignalSpy base(&edit, &QLineEdit::returnPressed);
    QTest::keyClicks(&edit, "12");
    QTest::keyClick(&edit, Qt::Key_Return);
    QCOMPARE(complete.count(), 1);
    QCOMPARE(complete.at(0).at(0).toString(), QString("12"));
    QCOMPARE(base.count(), 0);
}

void tst_ZrLineEdit::outsideTextIsShownAsItIs()
{
    ZrLineEdit edit;
    const QSize before = edit.sizeHint();
    const QString markup = QStringLiteral("<img src='/etc/hostname'>&File");
    edit.setText(markup);
    QCOMPARE(edit.displayText(), markup);
    // As many characters as the field takes, and none of its window's width.
    edit.setText(QString(100000, 'x'));
    QCOMPARE(edit.text().size(), edit.maxLength());
    QCOMPARE(edit.sizeHint(), before);
}

ZR_TEST_MAIN(tst_ZrLineEdit)
#include "tst_zrlineedit.moc"
