#include "ZrRoleKeys.h"
#include "ZrTableMerge.h"
#include "ZrTestMain.h"

#include <QtTest/QtTest>

// What a merge leaves in a stored record, by the plain rule: each named role is written, no other one is
// lost.
class TestTableMerge : public QObject
{
    Q_OBJECT
private slots:
    void cellsOfUnlikeRolesAreUnited_data();
    void cellsOfUnlikeRolesAreUnited();
    void anUpdateWithNothingNewKeepsTheRecordShared();
    void aMissingCellIsMadeEvenWhenEmpty();
    void aSharedRecordIsCopiedNotWritten();
};

namespace {

ItemRoleMap cellOf(const QList<int> &roles, const QString &text)
{
    ItemRoleMap cell;
    for (const int role : roles)
        cell.insert(QString::number(role), text); // texts of their own, not those of the role table
    return cell;
}

QList<int> merged(RecordData &stored, const RecordData &incoming)
{
    ZrChangedColumns changed;
    ZrTableMerge::merge(stored, incoming, nullptr, changed);
    QList<int> columns;
    for (const int column : changed)
        columns.append(column);
    return columns;
}

} // namespace

void TestTableMerge::cellsOfUnlikeRolesAreUnited_data()
{
    QTest::addColumn<QList<int>>("have");
    QTest::addColumn<QList<int>>("brought");
    QTest::newRow("the same") << QList<int>{0, 256} << QList<int>{0, 256};
    QTest::newRow("one more in front") << QList<int>{256} << QList<int>{0, 256};
    QTest::newRow("one more in the middle") << QList<int>{0, 8} << QList<int>{0, 256, 8};
    QTest::newRow("one more at the end") << QList<int>{0, 256} << QList<int>{8, 9};
    QTest::newRow("fewer") << QList<int>{0, 256, 257, 3} << QList<int>{257};
    QTest::newRow("nothing in common") << QList<int>{3, 257} << QList<int>{0, 256, 9};
    QTest::newRow("into an empty cell") << QList<int>{} << QList<int>{0, 256};
}

void TestTableMerge::cellsOfUnlikeRolesAreUnited()
{
    QFETCH(QList<int>, have);
    QFETCH(QList<int>, brought);
    RecordData stored{{2, cellOf({0}, QStringLiteral("left"))}, {4, cellOf(have, QStringLiteral("old"))}};
    ItemRoleMap expected = stored.value(4);
    for (const int role : brought)
        expected.insert(zrRoleKey(role), QStringLiteral("new"));
    const RecordData incoming{{3, cellOf({0}, QStringLiteral("made"))},
                              {4, cellOf(brought, QStringLiteral("new"))}};
    QCOMPARE(merged(stored, incoming), (QList<int>{3, 4}));
    QCOMPARE(stored.value(4), expected);
    QCOMPARE(stored.value(3), incoming.value(3));
    QCOMPARE(stored.value(2), cellOf({0}, QStringLiteral("left")));
}

void TestTableMerge::anUpdateWithNothingNewKeepsTheRecordShared()
{
    RecordData stored{{1, cellOf({0, 256, 257}, QStringLiteral("x"))}, {2, cellOf({0}, QStringLiteral("y"))}};
    const RecordData reader = stored;
    QVERIFY(merged(stored, {{1, cellOf({256}, QStringLiteral("x"))}, {2, ItemRoleMap()}}).isEmpty());
    QVERIFY(stored.isSharedWith(reader));
}

void TestTableMerge::aMissingCellIsMadeEvenWhenEmpty()
{
    RecordData stored;
    QVERIFY(merged(stored, {{7, ItemRoleMap()}}).isEmpty());
    QVERIFY(stored.contains(7));
}

void TestTableMerge::aSharedRecordIsCopiedNotWritten()
{
    RecordData stored{{1, cellOf({0}, QStringLiteral("a"))}, {2, cellOf({0}, QStringLiteral("b"))}};
    const RecordData reader = stored;
    const RecordData update{{1, cellOf({0}, QStringLiteral("c"))}, {2, cellOf({0}, QStringLiteral("d"))}};
    QCOMPARE(merged(stored, update), (QList<int>{1, 2}));
    QCOMPARE(stored, update);
    QCOMPARE(reader.value(1), cellOf({0}, QStringLiteral("a")));
    QCOMPARE(reader.value(2), cellOf({0}, QStringLiteral("b")));
}

ZR_TEST_GUILESS_MAIN(TestTableMerge)
#include "tst_zrtablemerge.moc"
