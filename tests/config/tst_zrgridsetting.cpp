#include "ZrGridSetting.h"
#include "ZrTestMain.h"

class tst_ZrGridSetting : public QObject
{
    Q_OBJECT

private slots:
    void defaultFieldIsNotConfigured();
    void fullConstructorFillsTheFieldsInOrder();
    void fieldIsWrittenToTheLog();
    void fieldsAreKeptInOrderUntilSorted();
    void copyKeepsItsOwnList();
};

namespace {
ZrFieldSetting withIndex(int index)
{
    ZrFieldSetting field;
    field.index = index;
    return field;
}

QList<int> indexesOf(const ZrGridSetting &grid)
{
    QList<int> indexes;
    for (const ZrFieldSetting &field : grid.getFieldSetList())
        indexes.append(field.index);
    return indexes;
}
} // namespace

void tst_ZrGridSetting::defaultFieldIsNotConfigured()
{
    const ZrFieldSetting field;
    QCOMPARE(field.index, -1);
    QCOMPARE(field.columnWidth, -1);
    QCOMPARE(field.decimal, -1);
    QCOMPARE(field.columnAlignment, 0);
    QVERIFY(!field.keyColumn);
    QVERIFY(!field.filterable);
}

void tst_ZrGridSetting::fullConstructorFillsTheFieldsInOrder()
{
    const ZrFieldSetting field(1, "title", "number", 2, "type", "display", "user", "export", 3, true, false,
                               4, "style", "role");
    QCOMPARE(field.index, 1);
    QCOMPARE(field.columnWidth, 2);
    QCOMPARE(field.columnAlignment, 3);
    QCOMPARE(field.decimal, 4);
    QVERIFY(field.keyColumn);
    QVERIFY(!field.filterable);
    QCOMPARE(QStringList({field.titleName, field.fieldNumber, field.type, field.displayRoleProperty,
                          field.userRoleProperty, field.exportViewRoleProperty, field.dateStyle, field.role}),
             QStringList({"title", "number", "type", "display", "user", "export", "style", "role"}));
    ZrFieldSetting copy;
    copy = field;
    QCOMPARE(copy.role, QString("role"));
}

void tst_ZrGridSetting::fieldIsWrittenToTheLog()
{
    ZrFieldSetting field = withIndex(3);
    field.titleName = QStringLiteral("Price");
    QString text;
    QDebug(&text) << field;
    QVERIFY(text.startsWith("ZrFieldSetting(3, \"Price\""));
}

void tst_ZrGridSetting::fieldsAreKeptInOrderUntilSorted()
{
    ZrGridSetting grid;
    QVERIFY(grid.getFieldSetList().isEmpty());
    for (const int index : {5, -1, 5, 0})
        grid.addFieldSetting(withIndex(index));
    QCOMPARE(indexesOf(grid), QList<int>({5, -1, 5, 0}));
    grid.sortZrFieldSetting();
    QCOMPARE(indexesOf(grid), QList<int>({-1, 0, 5, 5}));
}

void tst_ZrGridSetting::copyKeepsItsOwnList()
{
    ZrGridSetting grid;
    grid.addFieldSetting(withIndex(1));
    ZrGridSetting copy(grid);
    copy.addFieldSetting(withIndex(2));
    QCOMPARE(indexesOf(grid), QList<int>({1}));
    grid = copy;
    QCOMPARE(indexesOf(grid), QList<int>({1, 2}));
}

ZR_TEST_GUILESS_MAIN(tst_ZrGridSetting)
#include "tst_zrgridsetting.moc"
