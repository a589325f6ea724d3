#include "ZrMenu.h"
#include "ZrTestMain.h"

class tst_ZrMenu : public QObject
{
    Q_OBJECT
private slots:
    void aRoleThatWasNeverSetIsInvalid()
    {
        const ZrMenu menu;
        QVERIFY(!menu.getData(Qt::UserRole).isValid());
    }

    void aValueIsGivenBack_data()
    {
        QTest::addColumn<int>("role");
        QTest::addColumn<QVariant>("value");

        QTest::newRow("the usual role") << int(Qt::UserRole) << QVariant(qlonglong(1) << 40);
        QTest::newRow("role 0") << 0 << QVariant(QStringLiteral("text"));
        QTest::newRow("negative role") << -1 << QVariant(true);
        QTest::newRow("invalid value") << 7 << QVariant();
    }

    void aValueIsGivenBack()
    {
        QFETCH(int, role);
        QFETCH(QVariant, value);
        ZrMenu menu;
        menu.setData(role, value);
        QCOMPARE(menu.getData(role), value);
        QVERIFY(!menu.getData(role + 1).isValid());
    }

    void theLastValueOfARoleCounts()
    {
        ZrMenu menu;
        menu.setData(Qt::UserRole, 1);
        menu.setData(Qt::UserRole, QStringLiteral("2"));
        QCOMPARE(menu.getData(Qt::UserRole), QVariant(QStringLiteral("2")));
    }

    void eachMenuHasItsOwnValues()
    {
        QWidget parent;
        ZrMenu first(&parent);
        ZrMenu second(QStringLiteral("Orders"), &parent);
        first.setData(Qt::UserRole, 1);
        QVERIFY(!second.getData(Qt::UserRole).isValid());
        QCOMPARE(second.title(), QStringLiteral("Orders"));
        QCOMPARE(first.parentWidget(), &parent);
        QCOMPARE(second.parentWidget(), &parent);
    }

    void aSubmenuIsFoundWithItsDataThroughItsAction()
    {
        ZrMenu root;
        auto *const sub = new ZrMenu(QStringLiteral("Columns"), &root);
        sub->setData(Qt::UserRole, 42);
        QAction *const entry = root.addMenu(sub);
        const auto *const found = qobject_cast<ZrMenu *>(entry->menu());
        QVERIFY(found);
        QCOMPARE(found->getData(Qt::UserRole).toInt(), 42);
    }
};

ZR_TEST_MAIN(tst_ZrMenu)
#include "tst_zrmenu.moc"
