#include "ZrRoleKeys.h"
#include "ZrTestMain.h"
#include "ZrViewModel.h"

class TestRoleKeys : public QObject
{
    Q_OBJECT

private slots:
    void eachKeyIsTheDecimalTextOfItsRole_data()
    {
        QTest::addColumn<QString>("key");
        QTest::addColumn<int>("role");
        QTest::addColumn<QString>("expected");
        QTest::newRow("display") << ITEM_DISPLAYROLE << 0 << "0";
        QTest::newRow("tip") << ITEM_TOOLTIPROLE << 3 << "3";
        QTest::newRow("background") << ITEM_BACKGROUNDROLE << 8 << "8";
        QTest::newRow("foreground") << ITEM_FOREGROUNDROLE << 9 << "9";
        QTest::newRow("raw") << ITEM_USERROLE << 256 << "256";
        QTest::newRow("second raw") << ITEM_CUSTOMROLE << 257 << "257";
        QTest::newRow("export") << ITEM_EXPORTVIEWROLE << 259 << "259";
        QTest::newRow("check enabled") << ITEM_CHECKENABLEDROLE << 262 << "262";
        QTest::newRow("reserved") << ITEM_RESERVEDROLE << 263 << "263";
        QTest::newRow("last of the table") << zrRoleKey(511) << 511 << "511";
        QTest::newRow("first beyond the table") << zrRoleKey(512) << 512 << "512";
        QTest::newRow("negative") << zrRoleKey(-1) << -1 << "-1";
    }

    void eachKeyIsTheDecimalTextOfItsRole()
    {
        QFETCH(QString, key);
        QFETCH(int, role);
        QFETCH(QString, expected);
        QCOMPARE(key, expected);
        QCOMPARE(zrRoleKey(role), expected);
    }

    void knownRolesShareTheirText() { QVERIFY(zrRoleKey(256).isSharedWith(zrRoleKey(256))); }

    void headKeysAreThoseOfTheHeads()
    {
        const QStringList keys{HEAD_DISPLAYROLE, HEAD_USERROLE, HEAD_SHOWROLE,
                               HEAD_COLUMNINDEX, HEAD_GROUPID,  HEAD_GROUPNAME};
        QCOMPARE(keys, QStringList({"Head_DisplayRole", "Head_UserRole", "Head_ShowRole", "Head_ColumnIndex",
                                    "Head_GroupId", "Head_GroupName"}));
    }

    void enumsHaveTheNumbersThatTravel()
    {
        QCOMPARE(int(ZrViewModel::SerialNumNone), 1);
        QCOMPARE(int(ZrViewModel::SerialNumAscending), 2);
        QCOMPARE(int(ZrViewModel::SerialNumDescending), 3);
        QCOMPARE(int(ZrViewModel::GridHorizontal), 1);
        QCOMPARE(int(ZrViewModel::GridVertical), 2);
    }
};

ZR_TEST_GUILESS_MAIN(TestRoleKeys)
#include "tst_zrrolekeys.moc"
