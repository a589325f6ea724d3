#include "ZrFieldRoles.h"
#include "ZrTestMain.h"

class tst_ZrFieldRoles : public QObject
{
    Q_OBJECT
private slots:
    void anUnsetRoleReadsAsInvalid();
    void aSetRoleReadsBack_data();
    void aSetRoleReadsBack();
    void aSecondValueReplacesTheFirst();
    void rolesDontTouchEachOther();
    void aCopyGoesItsOwnWay();
};

void tst_ZrFieldRoles::anUnsetRoleReadsAsInvalid()
{
    const ZrFieldRoles roles;
    QVERIFY(!roles.value(Qt::UserRole).isValid());
    QVERIFY(!roles.value(0).isValid());
    QVERIFY(!roles.value(-1).isValid());
}

void tst_ZrFieldRoles::aSetRoleReadsBack_data()
{
    QTest::addColumn<int>("role");
    QTest::addColumn<QVariant>("value");

    QTest::newRow("shown") << 0 << QVariant("600000.SH");
    QTest::newRow("stored") << int(Qt::UserRole) << QVariant(12.5);
    QTest::newRow("negative role") << -7 << QVariant(QStringList{"a", "b"});
    QTest::newRow("largest role") << std::numeric_limits<int>::max() << QVariant(true);
    QTest::newRow("invalid value") << 5 << QVariant();
}

void tst_ZrFieldRoles::aSetRoleReadsBack()
{
    QFETCH(int, role);
    QFETCH(QVariant, value);
    ZrFieldRoles roles;
    roles.setValue(role, value);
    QCOMPARE(roles.value(role), value);
}

void tst_ZrFieldRoles::aSecondValueReplacesTheFirst()
{
    ZrFieldRoles roles;
    roles.setValue(1, "first");
    roles.setValue(1, 2);
    QCOMPARE(roles.value(1), QVariant(2));
    roles.setValue(1, QVariant());
    QVERIFY(!roles.value(1).isValid());
}

void tst_ZrFieldRoles::rolesDontTouchEachOther()
{
    ZrFieldRoles roles;
    roles.setValue(0, "shown");
    roles.setValue(Qt::UserRole, "stored");
    QCOMPARE(roles.value(0), QVariant("shown"));
    QCOMPARE(roles.value(Qt::UserRole), QVariant("stored"));
    QVERIFY(!roles.value(1).isValid());
}

void tst_ZrFieldRoles::aCopyGoesItsOwnWay()
{
    ZrFieldRoles first;
    first.setValue(0, "one");
    ZrFieldRoles second = first;
    second.setValue(0, "two");
    QCOMPARE(first.value(0), QVariant("one"));
    QCOMPARE(second.value(0), QVariant("two"));
}

ZR_TEST_GUILESS_MAIN(tst_ZrFieldRoles)
#include "tst_zrfieldroles.moc"
