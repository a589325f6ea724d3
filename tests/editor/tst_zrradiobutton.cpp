#include "ZrPlainText.h"
#include "ZrRadioButton.h"
#include "ZrTestMain.h"

class tst_ZrRadioButton : public QObject
{
    Q_OBJECT
private slots:
    void aNewButtonHasNoRoles();
    void roleDataReadsBack();
    void aKeyChecksIt();
    void outsideTextMakesNoShortcut();
};

void tst_ZrRadioButton::aNewButtonHasNoRoles()
{
    const ZrRadioButton button;
    QVERIFY(!button.getRoleData(0).isValid());
    QVERIFY(!button.getRoleData(Qt::UserRole).isValid());
    QVERIFY(!button.isChecked() && button.isCheckable());
    const ZrRadioButton named(QStringLiteral("Buy"));
    QCOMPARE(named.text(), QString("Buy"));
}

void tst_ZrRadioButton::roleDataReadsBack()
{
    ZrRadioButton button;
    button.setRoleData(Qt::UserRole, "1");
    button.setRoleData(Qt::UserRole, "2");
    QCOMPARE(button.getRoleData(Qt::UserRole), QVariant("2"));
    QVERIFY(!button.getRoleData(0).isValid());
}

void tst_ZrRadioButton::aKeyChecksIt()
{
    ZrRadioButton button(QStringLiteral("Buy"));
    QTest::keyClick(&button, Qt::Key_Space);
    QVERIFY(button.isChecked());
}

void tst_ZrRadioButton::outsideTextMakesNoShortcut()
{
    ZrRadioButton button;
    button.setText(ZrPlainText::caption(QStringLiteral("<b>Bid</b> & Ask")));
    QVERIFY(button.shortcut().isEmpty());
    const int width = button.sizeHint().width();
    button.setText(ZrPlainText::caption(QString(100000, 'x')));
    QVERIFY(button.sizeHint().width() > width);
    QVERIFY(button.text().size() < 1000);
}

ZR_TEST_MAIN(tst_ZrRadioButton)
#include "tst_zrradiobutton.moc"
