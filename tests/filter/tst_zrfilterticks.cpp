#include "ZrFilterTicks.h"
#include "ZrRoleKeys.h"
#include "ZrTestMain.h"

#include <zrdefine/VexlorFields.h>

#include <ctime>

using Groups = QList<QList<QVariantMap>>;
Q_DECLARE_METATYPE(Groups)

namespace {
QVariantMap condition(const QVariant &value, const QString &comment)
{
    return {{Vexlor_Fields::System::filterValue, value}, {Vexlor_Fields::Infomation::fieldComment, comment}};
}

ItemRoleMap choice(const QString &text, const QVariant &raw)
{
    return {{ITEM_DISPLAYROLE, text}, {ITEM_USERROLE, raw}};
}

/// As the rule is told: each condition in turn.
bool plainScan(const Groups &groups, const ItemRoleMap &cell)
{
    for (const auto &group : groups) {
        for (const QVariantMap &each : group) {
            const QVariant comment = each.value(Vexlor_Fields::Infomation::fieldComment);
            const bool isMatch =
                cell.contains(ITEM_USERROLE)
                    ? cell.value(ITEM_USERROLE) == each.value(Vexlor_Fields::System::filterValue)
                    : comment.toString() == cell.value(ITEM_DISPLAYROLE).toString();
            if (isMatch)
                return true;
        }
    }
    return false;
}
} // namespace

class tst_ZrFilterTicks : public QObject
{
    Q_OBJECT
private slots:
    void choiceIsHeldAsAPlainScanHoldsIt_data();
    void choiceIsHeldAsAPlainScanHoldsIt();
    void everyValueAgainstEveryOther();
    void manyTicksTakeNoQuadraticTime();
};

void tst_ZrFilterTicks::choiceIsHeldAsAPlainScanHoldsIt_data()
{
    QTest::addColumn<Groups>("groups");
    QTest::addColumn<ItemRoleMap>("cell");
    QTest::addColumn<bool>("expected");
    const Groups one = {{condition("600000", "Pufa")}};
    const Groups range = {{condition("1", "1 to 9"), condition("9", "1 to 9")}};
    const ItemRoleMap textOnly = {{ITEM_DISPLAYROLE, "Pufa"}};
    QTest::newRow("no filter") << Groups() << choice("Pufa", "600000") << false;
    QTest::newRow("raw value") << one << choice("Pufa", "600000") << true;
    QTest::newRow("raw value under another text") << one << choice("SPDB", "600000") << true;
    QTest::newRow("text of another raw value") << one << choice("Pufa", "600001") << false;
    QTest::newRow("text without a raw value") << one << textOnly << true;
    QTest::newRow("other text without a raw value") << one << ItemRoleMap{{ITEM_DISPLAYROLE, "Pu"}} << false;
    QTest::newRow("number equals its text") << Groups{{condition("5", "")}} << choice("5", 5) << true;
    QTest::newRow("number as another text") << Groups{{condition("5.0", "")}} << choice("5", 5.0) << true;
    QTest::newRow("text of a number as a number") << Groups{{condition(5, "")}} << choice("5", "5") << true;
    QTest::newRow("second condition of a group") << range << choice("9", 9) << true;
    QTest::newRow("between the bounds is not at them") << range << choice("5", 5) << false;
    QTest::newRow("condition without a value")
        << Groups{{{{Vexlor_Fields::Infomation::fieldComment, "a"}}}} << choice("a", "a") << false;
    QTest::newRow("choice without any text") << Groups{{QVariantMap()}} << ItemRoleMap() << true;
    QTest::newRow("not a number") << Groups{{condition("nan", "")}} << choice("", qQNaN()) << false;
    QTest::newRow("infinite") << Groups{{condition("inf", "")}} << choice("", qInf()) << true;
    QTest::newRow("truth value") << Groups{{condition("true", "")}} << choice("yes", true) << true;
}

void tst_ZrFilterTicks::choiceIsHeldAsAPlainScanHoldsIt()
{
    QFETCH(Groups, groups);
    QFETCH(ItemRoleMap, cell);
    QFETCH(bool, expected);
    QCOMPARE(ZrFilterTicks(groups).holds(cell), plainScan(groups, cell));
    QCOMPARE(ZrFilterTicks(groups).holds(cell), expected);
}

void tst_ZrFilterTicks::everyValueAgainstEveryOther()
{
    const QVariantList values = {1,
                                 1.0,
                                 "1",
                                 "01",
                                 "1.0",
                                 2,
                                 2.5,
                                 "2.5",
                                 " 2",
                                 "a",
                                 "",
                                 true,
                                 0,
                                 "0",
                                 -1,
                                 3LL,
                                 3u,
                                 "3",
                                 1e18,
                                 "x",
                                 1.0 + 1e-15,
                                 QVariant(),
                                 QDate(2024, 1, 1),
                                 "2024-01-01",
                                 QTime(9, 0),
                                 "09:00:00"};
    for (const QVariant &raw : values) {
        for (const QVariant &value : values) {
            const Groups groups = {{condition("other", "")}, {condition(value, "")}};
            const ItemRoleMap cell = choice("t", raw);
            QVERIFY2(ZrFilterTicks(groups).holds(cell) == plainScan(groups, cell),
                     qPrintable(raw.toString() + " / " + value.toString()));
        }
    }
}

void tst_ZrFilterTicks::manyTicksTakeNoQuadraticTime()
{
    constexpr int Count = 50000;
    Groups groups;
    for (int i = 0; i < Count; ++i)
        groups.append({condition(QString::number(i), QString::number(i))});
    const std::clock_t start = std::clock();
    const ZrFilterTicks ticks(groups);
    int held = 0;
    for (int i = 0; i < 2 * Count; ++i) {
        held += ticks.holds(choice("t", QString::number(i))) ? 1 : 0;
        held += ticks.holds(choice("t", i)) ? 1 : 0;
        held += ticks.holds(choice("t", double(i))) ? 1 : 0;
    }
    QCOMPARE(held, 3 * Count);
    // A scan would take minutes, the sanitizers included.
    const double seconds = double(std::clock() - start) / CLOCKS_PER_SEC;
    QVERIFY2(seconds < 30, qPrintable(QString::number(seconds)));
}

ZR_TEST_GUILESS_MAIN(tst_ZrFilterTicks)
#include "tst_zrfilterticks.moc"
