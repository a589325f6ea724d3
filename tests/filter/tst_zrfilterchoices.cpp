#include "ZrFilterChoices.h"
#include "ZrRangeChoice.h"
#include "ZrRoleKeys.h"
#include "ZrTestMain.h"

#include <zrdefine/VexlorFields.h>
#include <zrdefine/VexlorValues.h>

using namespace Vexlor_Fields;
using Groups = ZrFilterChoices::Groups;

namespace {
ItemRoleMap cell(const QString &text, const QVariant &raw = QVariant())
{
    ItemRoleMap map{{ITEM_DISPLAYROLE, text}};
    if (raw.isValid())
        map.insert(ITEM_USERROLE, raw);
    return map;
}

RecordDataList own(const QList<ItemRoleMap> &cells)
{
    RecordDataList list;
    for (const ItemRoleMap &each : cells)
        list.append(RecordData{{0, each}});
    return list;
}

QString range(const QString &low, const QString &high)
{
    return low + ZrRangeChoice::separator() + high;
}

/// Texts with a star for the ticked ones.
QStringList texts(const ZrFilterChoices &choices)
{
    QStringList list;
    for (const RecordData &record : choices.records())
        list.append((ZrFilterChoices::isTicked(record) ? "*" : "") +
                    record.value(0).value(ITEM_DISPLAYROLE).toString());
    return list;
}

Groups equalTo(const QString &value, const QString &comment)
{
    return {{{{Infomation::compareOperator, Vexlor_Values::CompareOperator::equal},
              {Infomation::logicOperator, Vexlor_Values::LogicOperator::orOperator},
              {System::filterValue, value},
              {Infomation::fieldComment, comment}}}};
}
} // namespace

class tst_ZrFilterChoices : public QObject
{
    Q_OBJECT
private slots:
    void keyTextIsTheFirstOfThree_data();
    void keyTextIsTheFirstOfThree();
    void choicesComeFromTheCells();
    void ownChoicesGoBeforeTheCells();
    void rowsThatAreGoneLeaveNoChoices();
    void firstOfSeveralStays();
    void tickComesFromTheFilter_data();
    void tickComesFromTheFilter();
    void ownTickStays();
    void ticksAreCounted();
    void unknownChoiceIsNotTicked();
    void searchTellsCases_data();
    void searchTellsCases();
    void textsBecomeAlternatives();
    void rangesBecomeTwoConditions_data();
    void rangesBecomeTwoConditions();
    void otherTypesHaveNoConditions();
    void noRangeGivesNoCondition();
    void matchFunctionGetsTheCells();
    void filterMadeFromTicksTicksTheSameAgain_data();
    void filterMadeFromTicksTicksTheSameAgain();
};

void tst_ZrFilterChoices::keyTextIsTheFirstOfThree_data()
{
    QTest::addColumn<ItemRoleMap>("map");
    QTest::addColumn<QString>("expected");
    QTest::newRow("raw value") << cell("shown", "raw") << "raw";
    QTest::newRow("number") << cell("shown", 5) << "5";
    QTest::newRow("empty raw value") << cell("shown", "") << "shown";
    QTest::newRow("text alone") << cell("shown") << "shown";
    QTest::newRow("second raw value") << ItemRoleMap{{ITEM_CUSTOMROLE, "second"}} << "second";
    QTest::newRow("text before second raw value")
        << ItemRoleMap{{ITEM_DISPLAYROLE, "shown"}, {ITEM_CUSTOMROLE, "second"}} << "shown";
    QTest::newRow("nothing") << ItemRoleMap() << "";
}

void tst_ZrFilterChoices::keyTextIsTheFirstOfThree()
{
    QFETCH(ItemRoleMap, map);
    QFETCH(QString, expected);
    QCOMPARE(ZrFilterChoices::keyText({{0, map}}), expected);
    QCOMPARE(ZrFilterChoices::keyText(RecordData()), QString());
}

void tst_ZrFilterChoices::choicesComeFromTheCells()
{
    ZrFilterChoices choices;
    choices.fill(QVariant::String, {cell("b", "2"), cell("a", "1"), cell("b", "2")}, {}, {});
    QCOMPARE(texts(choices), QStringList({"b", "a"}));
    choices.fill(QVariant::Int, {cell("5", 5)}, {}, {});
    QCOMPARE(texts(choices), QStringList({range("5.00", "5.00")}));
}

void tst_ZrFilterChoices::ownChoicesGoBeforeTheCells()
{
    ZrFilterChoices choices;
    choices.fill(QVariant::String, {cell("cell")}, {}, own({cell("Buy", "1"), cell("Sell", "2")}));
    QCOMPARE(texts(choices), QStringList({"Buy", "Sell"}));
    QCOMPARE(choices.texts(), QVector<QString>({"Buy", "Sell"}));
}

void tst_ZrFilterChoices::rowsThatAreGoneLeaveNoChoices()
{
    ZrFilterChoices choices;
    for (const QVariant::Type type :
         {QVariant::Int, QVariant::Double, QVariant::String, QVariant::DateTime}) {
        choices.fill(type, {}, {}, {});
        QVERIFY(choices.records().isEmpty());
        QVERIFY(choices.isAllTicked());
    }
}

void tst_ZrFilterChoices::firstOfSeveralStays()
{
    ZrFilterChoices choices;
    choices.fill(QVariant::String, {}, {},
                 own({cell("first", "1"), cell("second", "1"), cell("1"), cell("x")}));
    QCOMPARE(texts(choices), QStringList({"first", "x"}));
}

void tst_ZrFilterChoices::tickComesFromTheFilter_data()
{
    QTest::addColumn<Groups>("filter");
    QTest::addColumn<QStringList>("expected");
    QTest::newRow("none") << Groups() << QStringList({"Buy", "Sell", "plain"});
    QTest::newRow("raw value") << equalTo("2", "other text") << QStringList({"Buy", "*Sell", "plain"});
    QTest::newRow("comment of a choice with a raw value")
        << equalTo("x", "Buy") << QStringList({"Buy", "Sell", "plain"});
    QTest::newRow("comment") << equalTo("x", "plain") << QStringList({"Buy", "Sell", "*plain"});
    QTest::newRow("several groups") << equalTo("1", "") + equalTo("2", "")
                                    << QStringList({"*Buy", "*Sell", "plain"});
}

void tst_ZrFilterChoices::tickComesFromTheFilter()
{
    QFETCH(Groups, filter);
    QFETCH(QStringList, expected);
    ZrFilterChoices choices;
    choices.fill(QVariant::String, {}, filter, own({cell("Buy", "1"), cell("Sell", "2"), cell("plain")}));
    QCOMPARE(texts(choices), expected);
    QCOMPARE(choices.tickedCount(), expected.filter(QRegularExpression("^\\*")).size());
}

void tst_ZrFilterChoices::ownTickStays()
{
    RecordDataList given = own({cell("Buy", "1"), cell("Sell", "2")});
    given[0][ZrRowStateColumn].insert(ITEM_USERROLE, true);
    ZrFilterChoices choices;
    choices.fill(QVariant::String, {}, equalTo("2", ""), given);
    QCOMPARE(texts(choices), QStringList({"*Buy", "*Sell"}));
    QVERIFY(choices.isAllTicked());
}

void tst_ZrFilterChoices::ticksAreCounted()
{
    ZrFilterChoices choices;
    choices.fill(QVariant::String, {cell("a"), cell("b"), cell("c")}, {}, {});
    QVERIFY(!choices.isAllTicked());
    choices.tick("a", 1);
    choices.tick("a", 1);
    QCOMPARE(choices.tickedCount(), 1);
    choices.tickAll(2);
    QCOMPARE(choices.tickedCount(), 3);
    QVERIFY(choices.isAllTicked());
    QCOMPARE(choices.records().first().value(ZrRowStateColumn).value(ITEM_USERROLE), QVariant(2));
    choices.tick("b", 0);
    QCOMPARE(texts(choices), QStringList({"*a", "b", "*c"}));
    QVERIFY(!choices.isAllTicked());
    choices.tickAll(0);
    QCOMPARE(choices.tickedCount(), 0);
}

void tst_ZrFilterChoices::unknownChoiceIsNotTicked()
{
    ZrFilterChoices choices;
    choices.fill(QVariant::String, {cell("a")}, {}, {});
    choices.tick("b", 1);
    QCOMPARE(choices.tickedCount(), 0);
    QCOMPARE(choices.records().size(), 1);
}

void tst_ZrFilterChoices::searchTellsCases_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("expected");
    QTest::newRow("part") << "an" << 2;
    QTest::newRow("at the start") << "An" << 1;
    QTest::newRow("nowhere") << "xyz" << 0;
    QTest::newRow("nothing typed") << "" << 3;
    QTest::newRow("no pattern") << "." << 1;
}

void tst_ZrFilterChoices::searchTellsCases()
{
    QFETCH(QString, text);
    QFETCH(int, expected);
    ZrFilterChoices choices;
    choices.fill(QVariant::String, {cell("Bank"), cell("Anhui"), cell("sand.")}, {}, {});
    QCOMPARE(choices.containing(text).size(), expected);
}

void tst_ZrFilterChoices::textsBecomeAlternatives()
{
    ZrFilterChoices choices;
    choices.fill(QVariant::String, {}, {}, own({cell("Buy", 1), cell("plain"), cell("off")}));
    choices.tick("1", 1);
    choices.tick("plain", 1);
    QCOMPARE(choices.conditions(), equalTo("1", "Buy") + equalTo("plain", "plain"));
    QCOMPARE(choices.conditions().first().first().value(System::filterValue).type(), QVariant::String);
}

void tst_ZrFilterChoices::rangesBecomeTwoConditions_data()
{
    QTest::addColumn<int>("type");
    for (const QVariant::Type type : {QVariant::Int, QVariant::UInt, QVariant::LongLong, QVariant::ULongLong,
                                      QVariant::Double, QVariant::Date, QVariant::Time, QVariant::DateTime})
        QTest::newRow(QVariant::typeToName(type)) << int(type);
}

void tst_ZrFilterChoices::rangesBecomeTwoConditions()
{
    QFETCH(int, type);
    const QString text = range("1", "9");
    ZrFilterChoices choices;
    choices.fill(type, {}, {}, own({cell(text), cell(range("10", "20"))}));
    choices.tick(text, 1);
    const Groups expected = {{{{Infomation::compareOperator, Vexlor_Values::CompareOperator::greaterOrEqual},
                               {Infomation::logicOperator, Vexlor_Values::LogicOperator::andOperator},
                               {System::filterValue, "1"},
                               {Infomation::fieldComment, text}},
                              {{Infomation::compareOperator, Vexlor_Values::CompareOperator::lessOrEqual},
                               {System::filterValue, "9"},
                               {Infomation::fieldComment, text}}}};
    QCOMPARE(choices.conditions(), expected);
}

void tst_ZrFilterChoices::otherTypesHaveNoConditions()
{
    ZrFilterChoices choices;
    choices.fill(QVariant::Bool, {}, {}, own({cell("yes", true)}));
    choices.tickAll(1);
    QCOMPARE(choices.tickedCount(), 1);
    QVERIFY(choices.conditions().isEmpty());
}

void tst_ZrFilterChoices::noRangeGivesNoCondition()
{
    ZrFilterChoices choices;
    const QString sep = ZrRangeChoice::separator();
    choices.fill(QVariant::Int, {}, {}, own({cell("5"), cell("1" + sep + "2" + sep + "3"), cell(sep)}));
    choices.tickAll(1);
    // Of the three only the separator alone has two parts, both empty.
    QCOMPARE(choices.conditions().size(), 1);
    QCOMPARE(choices.conditions().first().first().value(System::filterValue), QVariant(QString()));
}

void tst_ZrFilterChoices::matchFunctionGetsTheCells()
{
    ZrFilterChoices choices;
    choices.fill(QVariant::String, {}, {}, own({cell("Buy", "1"), cell("plain")}));
    choices.tickAll(1);
    const QList<ItemRoleMap> expected = {
        {{ITEM_DISPLAYROLE, "Buy"}, {ITEM_USERROLE, "1"}, {Infomation::fieldComment, "Buy"}},
        {{ITEM_DISPLAYROLE, "plain"}, {Infomation::fieldComment, "plain"}}};
    QCOMPARE(choices.tickedCells(), expected);
    // Without a value to compare by, only a choice without a raw value is found again.
    const Groups filter = {choices.tickedCells()};
    choices.fill(QVariant::String, {}, filter, own({cell("Buy", "1"), cell("plain")}));
    QCOMPARE(texts(choices), QStringList({"Buy", "*plain"}));
}

void tst_ZrFilterChoices::filterMadeFromTicksTicksTheSameAgain_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<QVariantList>("values");
    QTest::newRow("texts") << int(QVariant::String) << QVariantList{"a", "b", "c"};
    QTest::newRow("numbers") << int(QVariant::Int) << QVariantList{1, 50, 100, 200, 5000, 100000};
    QTest::newRow("prices") << int(QVariant::Double) << QVariantList{1.5, 2.25, 100.0};
    QTest::newRow("days") << int(QVariant::Date)
                          << QVariantList{QDate(2024, 1, 1), QDate(2024, 2, 1), QDate(2024, 3, 5)};
    QTest::newRow("one instant") << int(QVariant::Time) << QVariantList{QTime(9, 30)};
}

void tst_ZrFilterChoices::filterMadeFromTicksTicksTheSameAgain()
{
    QFETCH(int, type);
    QFETCH(QVariantList, values);
    QList<ItemRoleMap> cells;
    for (const QVariant &value : values)
        cells.append(cell(value.toString(), value));
    ZrFilterChoices choices;
    choices.fill(type, cells, {}, {});
    QVERIFY(!choices.records().isEmpty());
    const QString first = ZrFilterChoices::keyText(choices.records().first());
    choices.tick(first, 1);
    const Groups filter = choices.conditions();
    QCOMPARE(filter.size(), 1);
    const QStringList before = texts(choices);
    choices.fill(type, cells, filter, {});
    QCOMPARE(texts(choices), before);
    QCOMPARE(choices.conditions(), filter);
}

ZR_TEST_GUILESS_MAIN(tst_ZrFilterChoices)
#include "tst_zrfilterchoices.moc"
