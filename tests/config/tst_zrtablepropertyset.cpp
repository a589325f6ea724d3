#include "FreezeTableView.h"
#include "ZrRoleKeys.h"
#include "ZrTableModel.h"
#include "ZrTableModel_p.h"
#include "ZrTablePropertySet.h"
#include "ZrTableView.h"
#include "ZrTestHostData.h"
#include "ZrTestMain.h"

#include <QtWidgets/QHeaderView>
#include <QtWidgets/QTableView>

using Message = QMap<QString, QVariant>;
Q_DECLARE_METATYPE(ZrFieldSetting)

namespace {
ZrFieldSetting fieldOf(const QString &type, const QString &chain = QString(), int decimal = -1)
{
    ZrFieldSetting field;
    field.index = 0;
    field.fieldNumber = QStringLiteral("f");
    field.type = type;
    field.displayRoleProperty = chain;
    field.decimal = decimal;
    return field;
}

ZrFieldSetting exporting(ZrFieldSetting field, const QString &word)
{
    field.exportViewRoleProperty = word;
    return field;
}

ZrFieldSetting underRole(ZrFieldSetting field, const QString &role)
{
    field.role = role;
    return field;
}

ZrFieldSetting column(int index, const QString &number, bool key = false, bool filterable = false)
{
    ZrFieldSetting field = fieldOf(QStringLiteral("QString"));
    field.index = index;
    field.columnWidth = 80;
    field.titleName = QStringLiteral("head of ") + number;
    field.fieldNumber = number;
    field.keyColumn = key;
    field.filterable = filterable;
    return field;
}

ZrGridSetting gridOf(const QList<ZrFieldSetting> &fields)
{
    ZrGridSetting grid;
    for (const ZrFieldSetting &field : fields)
        grid.addFieldSetting(field);
    return grid;
}

ItemRoleMap cellOf(const ZrFieldSetting &field, const QVariant &value)
{
    RecordData record;
    ZrTablePropertySet::setTableSingleRecordData(gridOf({field}), {{field.fieldNumber, value}}, record);
    return record.value(field.index);
}

ItemRoleMap cell(const QVariant &display, const QVariant &raw, const QVariant &exported)
{
    return {{ITEM_DISPLAYROLE, display}, {ITEM_USERROLE, raw}, {ITEM_EXPORTVIEWROLE, exported}};
}

QList<QVariantMap> choicesOf(ZrTableView &view, int column)
{
    QList<QVariantMap> choices;
    const ZrTableModelPrivate *model = view.getZrTableModel()->getModelPrivate();
    for (const RecordData &record : model->columnFilterData.value(column))
        choices.append(record.value(0));
    return choices;
}
} // namespace

class tst_ZrTablePropertySet : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { setTestHostData(); }
    void cleanupTestCase() { ZrDataStore::close(); }
    void valueBecomesACell_data();
    void valueBecomesACell();
    void rawValueHasTheColumnsType_data();
    void rawValueHasTheColumnsType();
    void missingFieldEmptiesTheCell();
    void columnWithoutFieldNumberGetsNoCell();
    void invalidValueLeavesTheCellEmpty();
    void hugeNumberOfDigitsIsBounded();
    void otherColumnsOfTheRecordStay();
    void messagesAreAppended();
    void noMessagesChangeNothing();
    void keyIsTheRawValuesOfTheKeyColumns_data();
    void keyIsTheRawValuesOfTheKeyColumns();
    void viewGetsHeadsKeysWidthsAndAlignment();
    void widthThatIsNotConfiguredIsPassedOnToo();
    void viewGetsFilterableColumns();
    void emptyConfigurationEmptiesTheView();
    void withoutAViewNothingHappens();
    void dictionaryColumnOffersTheWholeSection();
    void chainWithMoreThanTheDictionaryOffersTheRowsValues();
    void filterChoicesFollowTheType_data();
    void filterChoicesFollowTheType();
    void onlyFilterableColumnsGetChoices();
    void integerColumnWithoutRowsGetsNoChoices();
};

void tst_ZrTablePropertySet::valueBecomesACell_data()
{
    QTest::addColumn<ZrFieldSetting>("field");
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<ItemRoleMap>("expected");

    const QDate day(2024, 1, 31);
    const QDateTime moment = QDateTime::fromMSecsSinceEpoch(1706671845123);
    const auto row = [](const char *name, const ZrFieldSetting &field, const QVariant &value,
                        const ItemRoleMap &expected) { QTest::newRow(name) << field << value << expected; };

    row("text", fieldOf("QString"), "abc", cell("abc", "abc", "abc"));
    row("unknown type is a text", fieldOf("Text"), 5, cell("5", "5", "5"));
    row("no type is a text", fieldOf(""), 1.5, cell("1.5", "1.5", "1.5"));
    row("empty text fills all three roles", fieldOf("QString", "CommaSeparation"), "", cell("", "", ""));
    row("text is translated, its raw value isn't", exporting(fieldOf("QString", "Empty"), "UserRole"), "abc",
        cell("", "abc", "abc"));
    row("int", fieldOf("int"), "42", cell("42", 42, "42"));
    row("int takes no digits", fieldOf("int", "", 2), 42, cell("42", 42, "42"));
    row("int of a word", fieldOf("int"), "abc", cell("abc", 0, "abc"));
    row("int with Percent takes its own digits", fieldOf("int", "Percent", 1), 2,
        cell("200.0%", 2, "200.0%"));
    row("long long", fieldOf("long long", "CommaSeparation", 2), 9007199254740993LL,
        cell("9, 007, 199, 254, 740, 993", 9007199254740993LL, "9, 007, 199, 254, 740, 993"));
    row("double as it stands", fieldOf("double"), 0.1, cell("0.1", 0.1, "0.1"));
    row("double with digits", fieldOf("double", "CommaSeparation", 2), 1234567.891,
        cell("1, 234, 567.89", 1234567.891, "1, 234, 567.89"));
    row("double without digits behind the point", fieldOf("double", "", 0), 2.6, cell("3", 2.6, "3"));
    row("double is rounded before Percent reads it", fieldOf("double", "Percent", 2), 0.12345,
        cell("12.00%", 0.12345, "12.00%"));
    row("double of a text", fieldOf("double", "", 1), "2.26", cell("2.3", 2.26, "2.3"));
    row("date", fieldOf("Date", "Date"), "20240131", cell("2024-01-31", day, "2024-01-31"));
    row("date of a number", fieldOf("Date"), 20240131, cell("20240131", day, "20240131"));
    row("bad date", fieldOf("Date", "Date"), "20240231", cell("", QDate(), ""));
    row("date exported raw", exporting(fieldOf("Date", "Date"), "UserRole"), "20240131",
        cell("2024-01-31", day, day));
    row("moment", fieldOf("DateTime", "DateTime"), 1706671845123LL,
        cell("2024-01-31 11:30:45:123", moment, "2024-01-31 11:30:45:123"));
    row("moment exported raw", exporting(fieldOf("DateTime"), "UserRole"), 1706671845123LL,
        cell("1706671845123", moment, moment));
    row("DateTime word on a text column", fieldOf("QString", "DateTime"), "1706671845123",
        cell("2024-01-31 11:30:45:123", "1706671845123", "2024-01-31 11:30:45:123"));
    row("first translated, then grouped", fieldOf("QString", "SymbolID|CommaSeparation"), "600001.SH",
        cell("600, 001", "600001.SH", "600, 001"));
    row("export of the displayed text by name", exporting(fieldOf("int", "Percent"), "DisplayRole"), 1,
        cell("100.00%", 1, "100.00%"));
    row("export word in another case", exporting(fieldOf("int", "Percent"), "userrole"), 1,
        cell("100.00%", 1, "100.00%"));
    row("display role by name", underRole(fieldOf("int"), "ITEM_DISPLAYROLE"), 7, cell("7", 7, "7"));
    row("unknown role is the display role", underRole(fieldOf("int"), "0"), 7, cell("7", 7, "7"));
    row("user role loses the text to the raw value", underRole(fieldOf("int"), "ITEM_USERROLE"), 7,
        {{ITEM_USERROLE, 7}, {ITEM_EXPORTVIEWROLE, "7"}});
    row("custom role leaves the display role unset", underRole(fieldOf("int"), "ITEM_CUSTOMROLE"), 7,
        {{ITEM_CUSTOMROLE, "7"}, {ITEM_USERROLE, 7}, {ITEM_EXPORTVIEWROLE, "7"}});
    row("export role is overwritten by the export value",
        exporting(underRole(fieldOf("int", "Percent"), "ITEM_EXPORTVIEWROLE"), "UserRole"), 7,
        {{ITEM_USERROLE, 7}, {ITEM_EXPORTVIEWROLE, 7}});
}

void tst_ZrTablePropertySet::valueBecomesACell()
{
    QFETCH(ZrFieldSetting, field);
    QFETCH(QVariant, value);
    QFETCH(ItemRoleMap, expected);
    QCOMPARE(cellOf(field, value), expected);
}

void tst_ZrTablePropertySet::rawValueHasTheColumnsType_data()
{
    QTest::addColumn<QString>("type");
    QTest::addColumn<int>("expected");
    QTest::newRow("QString") << "QString" << int(QVariant::String);
    QTest::newRow("int") << "int" << int(QVariant::Int);
    QTest::newRow("double") << "double" << int(QVariant::Double);
    QTest::newRow("long long") << "long long" << int(QVariant::LongLong);
    QTest::newRow("Date") << "Date" << int(QVariant::Date);
    QTest::newRow("DateTime") << "DateTime" << int(QVariant::DateTime);
    QTest::newRow("Int in another case") << "Int" << int(QVariant::String);
}

void tst_ZrTablePropertySet::rawValueHasTheColumnsType()
{
    QFETCH(QString, type);
    QFETCH(int, expected);
    for (const char *role : {"", "UserRole"}) {
        const ItemRoleMap result = cellOf(exporting(fieldOf(type), QLatin1String(role)), 20240131);
        QCOMPARE(int(result.value(ITEM_USERROLE).type()), expected);
        QCOMPARE(int(result.value(ITEM_DISPLAYROLE).type()), int(QVariant::String));
        const bool isRaw = *role != '\0';
        QCOMPARE(int(result.value(ITEM_EXPORTVIEWROLE).type()), isRaw ? expected : int(QVariant::String));
    }
}

void tst_ZrTablePropertySet::missingFieldEmptiesTheCell()
{
    RecordData record = {{0, cell("old", "old", "old")}};
    ZrTablePropertySet::setTableSingleRecordData(gridOf({fieldOf("int")}), {{"other", 1}}, record);
    QVERIFY(record.contains(0));
    QVERIFY(record.value(0).isEmpty());
}

void tst_ZrTablePropertySet::columnWithoutFieldNumberGetsNoCell()
{
    RecordData record;
    ZrTablePropertySet::setTableSingleRecordData(gridOf({column(0, ""), column(1, "f")}), {{"", 1}, {"f", 2}},
                                                 record);
    QCOMPARE(record.keys(), QList<int>({1}));
}

void tst_ZrTablePropertySet::invalidValueLeavesTheCellEmpty()
{
    QVERIFY(cellOf(fieldOf("int"), QVariant()).isEmpty());
}

void tst_ZrTablePropertySet::hugeNumberOfDigitsIsBounded()
{
    const ItemRoleMap result = cellOf(fieldOf("double", "", std::numeric_limits<int>::max()), 0.5);
    const QString text = result.value(ITEM_DISPLAYROLE).toString();
    QVERIFY(text.startsWith("0.5000"));
    QVERIFY(text.size() < 2000);
}

void tst_ZrTablePropertySet::otherColumnsOfTheRecordStay()
{
    RecordData record = {{-1, {{ITEM_USERROLE, true}}}, {5, cell("old", "old", "old")}};
    ZrTablePropertySet::setTableSingleRecordData(gridOf({fieldOf("int")}), {{"f", 1}}, record);
    QCOMPARE(record.keys(), QList<int>({-1, 0, 5}));
    QCOMPARE(record.value(5), cell("old", "old", "old"));
    QCOMPARE(record.value(0), cell("1", 1, "1"));
}

void tst_ZrTablePropertySet::messagesAreAppended()
{
    RecordDataList records = {RecordData()};
    ZrTablePropertySet::setTableRecordData(gridOf({fieldOf("int")}), {{{"f", 1}}, {{"f", 2}}, {}}, records);
    QCOMPARE(records.size(), 4);
    QVERIFY(records.at(0).isEmpty());
    QCOMPARE(records.at(1).value(0), cell("1", 1, "1"));
    QCOMPARE(records.at(2).value(0), cell("2", 2, "2"));
    QVERIFY(records.at(3).contains(0));
}

void tst_ZrTablePropertySet::noMessagesChangeNothing()
{
    const RecordDataList before = {{{3, cell("a", "a", "a")}}};
    RecordDataList records = before;
    ZrTablePropertySet::setTableRecordData(gridOf({fieldOf("int")}), {}, records);
    QCOMPARE(records, before);
}

void tst_ZrTablePropertySet::keyIsTheRawValuesOfTheKeyColumns_data()
{
    QTest::addColumn<RecordData>("record");
    QTest::addColumn<QString>("expected");
    const auto raw = [](const QVariant &value) { return ItemRoleMap({{ITEM_USERROLE, value}}); };
    QTest::newRow("12 and 3") << RecordData({{0, raw(12)}, {2, raw(3)}}) << "123";
    QTest::newRow("1 and 23 are the same key") << RecordData({{0, raw(1)}, {2, raw(23)}}) << "123";
    QTest::newRow("columns that are no key add nothing") << RecordData({{0, raw("a")}, {1, raw("b")}}) << "a";
    QTest::newRow("shown texts add nothing")
        << RecordData({{0, {{ITEM_DISPLAYROLE, "a"}}}, {2, raw("c")}}) << "c";
    QTest::newRow("date") << RecordData({{0, raw(QDate(2024, 1, 31))}}) << "2024-01-31";
    QTest::newRow("empty record") << RecordData() << "";
}

void tst_ZrTablePropertySet::keyIsTheRawValuesOfTheKeyColumns()
{
    QFETCH(RecordData, record);
    QFETCH(QString, expected);
    const ZrGridSetting grid = gridOf({column(0, "a", true), column(1, "b"), column(2, "c", true)});
    QCOMPARE(ZrTablePropertySet::getRecordKeyString(grid, record), expected);
}

void tst_ZrTablePropertySet::viewGetsHeadsKeysWidthsAndAlignment()
{
    ZrTableView view;
    ZrFieldSetting wide = column(1, "b", true);
    wide.columnWidth = 137;
    wide.columnAlignment = Qt::AlignLeft | Qt::AlignVCenter; // not the default of a grid
    ZrFieldSetting plain = column(0, "a");
    plain.columnWidth = 61;
    // The last column takes the room that is left, so it can't show its width.
    ZrTablePropertySet::setTableViewProperty(gridOf({plain, wide, column(2, "c")}), &view);

    const HeadList heads = view.getHeadList();
    QCOMPARE(heads.size(), 3);
    QCOMPARE(heads.at(1).value(HEAD_DISPLAYROLE), QVariant("head of b"));
    QCOMPARE(heads.at(1).value(HEAD_USERROLE), QVariant("1"));
    QCOMPARE(heads.at(1).value(HEAD_COLUMNINDEX).toInt(), 1);
    QCOMPARE(view.getKeyColumn(), QList<int>({1}));
    QCOMPARE(view.getTableView()->columnWidth(0), 61);
    QCOMPARE(view.getTableView()->columnWidth(1), 137);

    view.addRecordData({{0, cell("a", "a", "a")}, {1, cell("b", "b", "b")}});
    const ZrTableModel *model = view.getZrTableModel();
    QCOMPARE(model->index(0, 1).data(Qt::TextAlignmentRole).toInt(), 129);
    QVERIFY(model->index(0, 0).data(Qt::TextAlignmentRole).toInt() != 129);
}

void tst_ZrTablePropertySet::widthThatIsNotConfiguredIsPassedOnToo()
{
    ZrTableView view;
    ZrFieldSetting field = column(0, "a");
    field.columnWidth = -1;
    QTest::ignoreMessage(QtWarningMsg, "width < 0"); // the grid's own refusal
    ZrTablePropertySet::setTableViewProperty(gridOf({field}), &view);
}

void tst_ZrTablePropertySet::viewGetsFilterableColumns()
{
    ZrTableView view;
    ZrTablePropertySet::setTableViewProperty(gridOf({column(0, "a", true), column(1, "b")}), &view);
    QVERIFY(!view.getZrTableModel()->getModelPrivate()->filterable);
    ZrTablePropertySet::setTableViewProperty(gridOf({column(0, "a", true, true), column(1, "b")}), &view);
    QVERIFY(view.getZrTableModel()->getModelPrivate()->filterable);
}

void tst_ZrTablePropertySet::emptyConfigurationEmptiesTheView()
{
    ZrTableView view;
    ZrTablePropertySet::setTableViewProperty(gridOf({column(0, "a", true)}), &view);
    ZrTablePropertySet::setTableViewProperty(ZrGridSetting(), &view);
    QVERIFY(view.getHeadList().isEmpty());
    QVERIFY(view.getKeyColumn().isEmpty());
}

void tst_ZrTablePropertySet::withoutAViewNothingHappens()
{
    ZrTablePropertySet::setTableViewProperty(gridOf({column(0, "a")}), nullptr);
    ZrTablePropertySet::setViewFilterList(gridOf({column(0, "a")}), {}, nullptr);
}

void tst_ZrTablePropertySet::dictionaryColumnOffersTheWholeSection()
{
    ZrTableView view;
    ZrFieldSetting side = column(0, "Side", true, true);
    side.displayRoleProperty = QStringLiteral("Dictionary");
    const ZrGridSetting grid = gridOf({side});
    ZrTablePropertySet::setTableViewProperty(grid, &view);
    ZrTablePropertySet::setViewFilterList(grid, {}, &view);
    QCOMPARE(choicesOf(view, 0), QList<QVariantMap>({{{ITEM_USERROLE, "1"}, {ITEM_DISPLAYROLE, "Buy"}},
                                                     {{ITEM_USERROLE, "2"}, {ITEM_DISPLAYROLE, "Sell"}}}));
}

void tst_ZrTablePropertySet::chainWithMoreThanTheDictionaryOffersTheRowsValues()
{
    ZrTableView view;
    ZrFieldSetting side = column(0, "Side", true, true);
    side.displayRoleProperty = QStringLiteral("Dictionary|Percent");
    const ZrGridSetting grid = gridOf({side});
    ZrTablePropertySet::setTableViewProperty(grid, &view);
    RecordDataList records;
    ZrTablePropertySet::setTableRecordData(grid, {{{"Side", "2"}}}, records);
    ZrTablePropertySet::setViewFilterList(grid, records, &view);
    QCOMPARE(choicesOf(view, 0), QList<QVariantMap>({{{ITEM_DISPLAYROLE, "0.00%"}, {ITEM_USERROLE, "2"}}}));
}

void tst_ZrTablePropertySet::filterChoicesFollowTheType_data()
{
    QTest::addColumn<QString>("type");
    QTest::addColumn<QVariantList>("values");
    QTest::addColumn<QStringList>("expected");
    const QString dash = QString::fromUtf8(" — ");
    QTest::newRow("texts, once each")
        << "QString" << QVariantList({"b", "a", "b"}) << QStringList({"b", "a"});
    QTest::newRow("equal numbers count once")
        << "int" << QVariantList({5, 5, 5}) << QStringList("5.00" + dash + "5.00");
    QTest::newRow("long long") << "long long" << QVariantList({5}) << QStringList("5.00" + dash + "5.00");
    QTest::newRow("double") << "double" << QVariantList({1.5}) << QStringList("1.00" + dash + "2.00");
    QTest::newRow("date") << "Date" << QVariantList({"20240131"})
                          << QStringList("2024-01-31" + dash + "2024-01-31");
    QTest::newRow("moment") << "DateTime" << QVariantList({1706671845123LL})
                            << QStringList("2024-01-31 11:30" + dash + "2024-01-31 11:30");
}

void tst_ZrTablePropertySet::filterChoicesFollowTheType()
{
    QFETCH(QString, type);
    QFETCH(QVariantList, values);
    QFETCH(QStringList, expected);
    ZrTableView view;
    ZrFieldSetting field = column(0, "f", true, true);
    field.type = type;
    const ZrGridSetting grid = gridOf({field});
    ZrTablePropertySet::setTableViewProperty(grid, &view);
    RecordDataList records;
    for (const QVariant &value : values)
        ZrTablePropertySet::setTableRecordData(grid, {{{"f", value}}}, records);
    ZrTablePropertySet::setViewFilterList(grid, records, &view);
    QStringList texts;
    for (const QVariantMap &choice : choicesOf(view, 0))
        texts.append(choice.value(ITEM_DISPLAYROLE).toString());
    QCOMPARE(texts, expected);
}

void tst_ZrTablePropertySet::onlyFilterableColumnsGetChoices()
{
    ZrTableView view;
    const ZrGridSetting grid = gridOf({column(0, "a", true, true), column(1, "b")});
    ZrTablePropertySet::setTableViewProperty(grid, &view);
    // A row without the column counts as an empty cell.
    ZrTablePropertySet::setViewFilterList(grid, {{{1, cell("b", "b", "b")}}}, &view);
    QCOMPARE(choicesOf(view, 0), QList<QVariantMap>({{{ITEM_DISPLAYROLE, ""}}}));
    QVERIFY(!view.getZrTableModel()->getModelPrivate()->columnFilterData.contains(1));
}

void tst_ZrTablePropertySet::integerColumnWithoutRowsGetsNoChoices()
{
    ZrTableView view;
    ZrFieldSetting field = column(0, "f", true, true);
    field.type = QStringLiteral("int");
    const ZrGridSetting grid = gridOf({field});
    ZrTablePropertySet::setTableViewProperty(grid, &view);
    ZrTablePropertySet::setViewFilterList(grid, {}, &view);
    QVERIFY(choicesOf(view, 0).isEmpty());
}

ZR_TEST_MAIN(tst_ZrTablePropertySet)
#include "tst_zrtablepropertyset.moc"
