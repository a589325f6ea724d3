#include "ZrTableKeyIndex.h"
#include "ZrTestMain.h"

class TestTableKeyIndex : public QObject
{
    Q_OBJECT

private:
    static RecordData row(const QString &key) { return {{0, {{"256", key}}}}; }
    static RecordDataList rows(const QStringList &keys)
    {
        RecordDataList list;
        for (const QString &key : keys)
            list.append(row(key));
        return list;
    }
    const QList<int> m_columns{0};

private slots:
    void aKeyTakesTheFirstNonEmptyTextOfEachColumn_data()
    {
        QTest::addColumn<RecordData>("record");
        QTest::addColumn<QString>("expected");
        QTest::newRow("raw first") << RecordData{{0, {{"256", "a"}, {"0", "b"}, {"257", "c"}}}} << "a";
        QTest::newRow("empty raw counts as none") << RecordData{{0, {{"256", ""}, {"0", "b"}}}} << "b";
        QTest::newRow("second raw last") << RecordData{{0, {{"257", "c"}}}} << "c";
        QTest::newRow("two columns, no separator")
            << RecordData{{0, {{"256", "600000"}}}, {2, {{"256", "SH"}}}} << "600000SH";
        QTest::newRow("only the second column") << RecordData{{2, {{"256", "SH"}}}} << "SH";
        QTest::newRow("a number") << RecordData{{0, {{"256", 7}}}} << "7";
        QTest::newRow("nothing") << RecordData{{0, {{"3", "tip"}}}} << "";
        QTest::newRow("other columns only") << RecordData{{1, {{"256", "x"}}}} << "";
    }

    void aKeyTakesTheFirstNonEmptyTextOfEachColumn()
    {
        QFETCH(RecordData, record);
        QFETCH(QString, expected);
        QCOMPARE(ZrTableKeyIndex::makeKey(record, {0, 2}), expected);
    }

    void aKeyOfOneTextSharesIt()
    {
        const QString text = QString("K%1").arg(1);
        QVERIFY(ZrTableKeyIndex::makeKey(row(text), m_columns).isSharedWith(text));
    }

    void rebuildNumbersEachRow()
    {
        ZrTableKeyIndex index;
        RecordDataList list = rows({"a", "b", "c"});
        index.rebuild(list, m_columns);
        QCOMPARE(index.row("b"), 1);
        std::reverse(list.begin(), list.end());
        index.rebuild(list, m_columns);
        QCOMPARE(index.row("a"), 2);
        QVERIFY(index.isExact());
        list.removeFirst();
        index.rebuild(list, m_columns);
        QCOMPARE(index.row("c"), -1);
        QCOMPARE(index.size(), 2);
    }

    void aKeyMetTwiceKeepsTheLaterRowAndIsNotExact()
    {
        ZrTableKeyIndex index;
        index.rebuild(rows({"a", "b", "a"}), m_columns);
        QCOMPARE(index.row("a"), 2);
        QVERIFY(!index.isExact());
        index.rebuild(rows({"a", ""}), m_columns);
        QVERIFY(!index.contains(""));
        QVERIFY(!index.isExact());
    }

    void withoutKeyColumnsThereIsNoKey()
    {
        ZrTableKeyIndex index;
        index.rebuild(rows({"a"}), {});
        QCOMPARE(index.size(), 0);
        QVERIFY(!index.isExact());
        QCOMPARE(index.invariantError(rows({"a"}), {}), QString());
    }

    void rowsThatLeaveAtTheFrontMoveAllOthers()
    {
        ZrTableKeyIndex index;
        RecordDataList list = rows({"a", "b", "c"});
        index.rebuild(list, m_columns);
        index.remove("a");
        list.removeFirst();
        index.frontDropped(1);
        QCOMPARE(index.invariantError(list, m_columns), QString());
        list.append(row("d"));
        index.enter("d", 2);
        QCOMPARE(index.row("d"), 2);
        QCOMPARE(index.invariantError(list, m_columns), QString());
    }

    void rowsInsertedAndRemovedAnywhereRenumber_data()
    {
        QTest::addColumn<int>("at");
        for (int at = 0; at < 6; ++at)
            QTest::addRow("at %d of 5", at) << at;
    }

    void rowsInsertedAndRemovedAnywhereRenumber()
    {
        QFETCH(int, at);
        ZrTableKeyIndex index;
        RecordDataList list = rows({"a", "b", "c", "d", "e"});
        index.rebuild(list, m_columns);
        list.insert(at, row("new"));
        index.rowInserted(list, m_columns, at, "new");
        QCOMPARE(index.row("new"), at);
        QCOMPARE(index.invariantError(list, m_columns), QString());
        list.removeAt(at);
        index.remove("new");
        index.rowRemoved(list, m_columns, at);
        QCOMPARE(index.invariantError(list, m_columns), QString());
    }

    void aWrongIndexTellsWhatIsWrong()
    {
        ZrTableKeyIndex index;
        index.rebuild(rows({"a", "b"}), m_columns);
        QVERIFY(index.invariantError(rows({"a"}), m_columns).contains("2 keys for 1 rows"));
        QVERIFY(index.invariantError(rows({"b", "a"}), m_columns).contains("row 0"));
        index.markStale();
        QCOMPARE(index.invariantError(rows({"b", "a"}), m_columns), QString());
    }
};

ZR_TEST_GUILESS_MAIN(TestTableKeyIndex)
#include "tst_zrtablekeyindex.moc"
