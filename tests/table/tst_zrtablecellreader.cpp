#include "ZrTableFixture.h"
#include "ZrTestMain.h"
#include "zrutils/ZrCommonUtils.h"

#include <QtGui/QStandardItemModel>

/// What cells and heads read, and the heads' pseudo-columns and widths.
class TestTableCellReader : public QObject
{
    Q_OBJECT

private slots:
    void aCellReadsWhatItHolds_data()
    {
        QTest::addColumn<ItemRoleMap>("cell");
        QTest::addColumn<int>("role");
        QTest::addColumn<QVariant>("expected");
        QTest::newRow("shown value as stored") << ItemRoleMap{{"0", 5}} << 0 << QVariant(5);
        QTest::newRow("no shown value") << ItemRoleMap{{"256", 5}} << 0 << QVariant();
        QTest::newRow("raw value") << ItemRoleMap{{"256", 5}, {"0", "x"}} << 256 << QVariant(5);
        QTest::newRow("empty raw value") << ItemRoleMap{{"256", ""}, {"0", "x"}} << 256 << QVariant("");
        QTest::newRow("second raw value") << ItemRoleMap{{"257", 6}, {"0", "x"}} << 256 << QVariant(6);
        QTest::newRow("shown value as raw") << ItemRoleMap{{"0", "x"}} << 256 << QVariant("x");
        QTest::newRow("tip") << ItemRoleMap{{"3", "t"}, {"0", "x"}} << 3 << QVariant("t");
        QTest::newRow("tip from shown value") << ItemRoleMap{{"0", "x"}, {"257", "y"}} << 3 << QVariant("x");
        QTest::newRow("tip from second raw value") << ItemRoleMap{{"257", "y"}} << 3 << QVariant("y");
        QTest::newRow("no tip from the raw value") << ItemRoleMap{{"256", "z"}} << 3 << QVariant();
        QTest::newRow("colour") << ItemRoleMap{{"9", "red"}} << 9 << QVariant("red");
        QTest::newRow("a role of the caller") << ItemRoleMap{{"4711", 1}} << 4711 << QVariant(1);
        QTest::newRow("a role that isn't there") << ItemRoleMap{{"0", 1}} << 400 << QVariant();
    }

    void aCellReadsWhatItHolds()
    {
        QFETCH(ItemRoleMap, cell);
        QFETCH(int, role);
        QFETCH(QVariant, expected);
        ZrTableFixture t;
        t.model->addRecordData({{0, {{"256", "k"}}}, {1, cell}});
        if (role == Qt::ToolTipRole && expected.isValid())
            expected = ZrCommonUtils::getMyTipString(expected.toString());
        QCOMPARE(t.model->data(t.model->index(0, 1), role), expected);
        QCOMPARE(t.model->getIndexData(0, 2, role), QVariant());
        QCOMPARE(t.model->getIndexData(1, 1, role), QVariant());
        QCOMPARE(t.model->getIndexData(-1, 1, role), QVariant());
    }

    void alignmentHasItsDefaults()
    {
        ZrTableFixture t;
        t.model->addRecordData(t.row("a"));
        t.model->setColumnTextAlignment(1, 4);
        t.model->setColumnDefaultTextAlignment(129);
        t.model->setHeadTextAlignment(1, 1);
        t.model->setHeadDefaultTextAlignment(2);
        QCOMPARE(t.model->getIndexData(0, 1, Qt::TextAlignmentRole), QVariant(4));
        QCOMPARE(t.model->getIndexData(0, 0, Qt::TextAlignmentRole), QVariant(129));
        QCOMPARE(t.model->getIndexData(0, -1, Qt::TextAlignmentRole), QVariant(130));
        t.model->setCheckBoxShow(true);
        QCOMPARE(t.model->headerData(2, Qt::Horizontal, Qt::TextAlignmentRole), QVariant(1));
        QCOMPARE(t.model->headerData(1, Qt::Horizontal, Qt::TextAlignmentRole), QVariant(2));
    }

    void headsReadTheirKeys()
    {
        ZrTableFixture t;
        const QMap<QString, QVariant> head{{"Head_DisplayRole", "text"}, {"Head_UserRole", 1},
                                           {"Head_ColumnIndex", 7},      {"Head_GroupId", "g"},
                                           {"Head_GroupName", "group"},  {"Head_ShowRole", true}};
        t.model->setHeaderData(HeadList{head});
        const QMap<int, QVariant> expected{{0, "text"}, {256, 1}, {258, 7}, {260, "g"}, {261, "group"}};
        for (auto it = expected.begin(); it != expected.end(); ++it) {
            QCOMPARE(t.model->headerData(0, Qt::Horizontal, it.key()), it.value());
            QCOMPARE(t.model->headerData(0, Qt::Vertical, it.key()), QVariant());
        }
        QCOMPARE(t.model->headerData(0, Qt::Horizontal, 259), QVariant());
        QCOMPARE(t.model->headerData(1, Qt::Horizontal, 0), QVariant());
        QCOMPARE(t.model->headerData(-1, Qt::Horizontal, 0), QVariant());
    }

    void aCheckColumnAloneReadsTheState()
    {
        ZrTableFixture t;
        t.model->setCheckBoxShow(true);
        t.model->addRecordData({{0, {{"256", "a"}}}, {-1, {{"256", true}, {"0", "s"}, {"262", false}}}});
        const QModelIndex cell = t.model->index(0, 0);
        QCOMPARE(t.model->headerData(0, Qt::Horizontal, 258), QVariant(-2));
        QCOMPARE(cell.data(256), QVariant(true));
        QCOMPARE(cell.data(262), QVariant(false));
        QCOMPARE(cell.data(0), QVariant("s"));
        QCOMPARE(cell.data(3), QVariant("s"));
        QCOMPARE(cell.data(9), QVariant());
        QCOMPARE(t.model->getIndexData(0, -1, 256), QVariant(true));
    }

    void aSerialColumnCounts_data()
    {
        QTest::addColumn<int>("order");
        QTest::addColumn<QVariant>("first");
        QTest::addColumn<QVariant>("last");
        QTest::newRow("ascending") << 2 << QVariant(6) << QVariant(15);
        QTest::newRow("descending") << 3 << QVariant(15) << QVariant(6);
    }

    void aSerialColumnCounts()
    {
        QFETCH(int, order);
        QFETCH(QVariant, first);
        QFETCH(QVariant, last);
        ZrTableFixture t;
        t.model->setSerialNumberColumnPropety(ZrViewModel::SerialNumColumnOrder(order));
        t.model->setBeginSerialNumber(5);
        for (int i = 0; i < 10; ++i)
            t.model->addRecordData(t.row(QString::number(i)));
        QCOMPARE(t.model->headerData(0, Qt::Horizontal, 0), QVariant("Seq."));
        QCOMPARE(t.model->index(0, 0).data(), first);
        QCOMPARE(t.model->index(9, 0).data(), last);
        QCOMPARE(t.model->index(0, 0).data(Qt::BackgroundRole), QVariant());
    }

    void aFilteredSerialColumnCountsShownRows()
    {
        ZrTableFixture t;
        t.model->setSerialNumberColumnPropety(ZrViewModel::SerialNumDescending);
        t.model->addRecordDataList({t.row("a", 9), t.row("b", 1), t.row("c", 9)});
        t.fields->setFilterable(true);
        t.fields->setColumnFilter(2, t.atLeast(5));
        QCOMPARE(t.model->index(0, 0).data(), QVariant(2));
        QCOMPARE(t.model->index(1, 0).data(), QVariant(1));
    }

    void bothPseudoColumnsReadTheirOwn()
    {
        ZrTableFixture t;
        t.model->setCheckBoxShow(true);
        t.model->setSerialNumberColumnPropety(ZrViewModel::SerialNumAscending);
        t.model->setSerialNumberColumnPropety(ZrViewModel::SerialNumAscending);
        t.model->addRecordData({{0, {{"256", "a"}}}, {-1, {{"256", 2}, {"8", "blue"}}}});
        QCOMPARE(t.model->columnCount(), 5);
        QCOMPARE(t.model->index(0, 0).data(256), QVariant(2));
        QCOMPARE(t.model->index(0, 1).data(256), QVariant(1));
        QCOMPARE(t.model->index(0, 1).data(8), QVariant("blue"));
        QCOMPARE(t.model->getIndexData(0, -3, 0), QVariant());
        t.model->setSumFlag(true);
        t.model->setSumFlag(true);
        QCOMPARE(t.model->index(0, 1).data(), QVariant("Total"));
        QCOMPARE(t.model->index(0, 0).data(256), QVariant(2));
    }

    void theSummaryReadsTotalWithoutPseudoColumns()
    {
        ZrTableFixture t;
        t.model->addRecordData(t.row("a"));
        QCOMPARE(t.model->getIndexData(0, -1, 0), QVariant());
        t.model->setSumFlag(true);
        QCOMPARE(t.model->getIndexData(0, -2, 0), QVariant("Total"));
    }

    void pseudoHeadsComeBackWithEachHeadList()
    {
        ZrTableFixture t;
        t.model->setCheckBoxShow(true);
        t.model->setSerialNumberColumnPropety(ZrViewModel::SerialNumAscending);
        t.model->setHeaderData(t.heads());
        QCOMPARE(t.model->columnCount(), 5);
        t.model->setSerialNumberColumnPropety(ZrViewModel::SerialNumDescending); // a second serial head
        QCOMPARE(t.model->columnCount(), 6);
        t.model->setCheckBoxShow(false);
        QCOMPARE(t.model->headerData(0, Qt::Horizontal, 258), QVariant(-1));
        t.model->setSerialNumberColumnPropety(ZrViewModel::SerialNumNone); // removes none
        QCOMPARE(t.model->columnCount(), 5);
        QCOMPARE(t.view.horizontalHeader()->count(), 5);
    }

    void widthsAreAppliedBehindThePseudoColumns()
    {
        ZrTableFixture t;
        t.model->setCheckBoxShow(true);
        t.model->setSerialNumberColumnPropety(ZrViewModel::SerialNumAscending);
        t.view.horizontalHeader()->setMinimumSectionSize(10);
        QSignalSpy resized(t.view.horizontalHeader(), &QHeaderView::sectionResized);
        t.model->setColumnSections(1, 77);
        QCOMPARE(t.view.columnWidth(0), 30);
        QCOMPARE(t.view.columnWidth(1), 60);
        QCOMPARE(t.view.columnWidth(3), 77);
        QCOMPARE(resized.last(), QVariantList({3, 0, 77}));
        t.view.setColumnWidth(3, 50);
        t.model->resetColumnSections(); // applied already
        QCOMPARE(t.view.columnWidth(3), 50);
        t.model->setColumnSections(0, 40);
        QCOMPARE(t.view.columnWidth(3), 77);
    }

    void badWidthsAreRefused()
    {
        ZrTableFixture t;
        QTest::ignoreMessage(QtWarningMsg, "width < 0");
        t.model->setColumnSections(0, -1);
        QTest::ignoreMessage(QtWarningMsg, "iColumn > columnCount 4 3");
        t.model->setColumnSections(4, 10);
        QVERIFY(t.fields->columnWidths.isEmpty());
        ZrTableModel alone;
        QTest::ignoreMessage(QtWarningMsg, "Q_NULLPTR == parent");
        alone.resetColumnSections();
    }

    void aCellWithoutAHeadReadsNothing()
    {
        ZrTableFixture t;
        t.model->addRecordData(t.row("a", 5));
        const QModelIndex number = t.model->index(0, 2);
        QCOMPARE(number.data().toString(), QString("5"));
        t.model->setHeaderData(ZrTableFixture::heads().mid(0, 2));
        QVERIFY(!t.model->data(number, Qt::DisplayRole).isValid()); // an index of before
        QVERIFY(!t.model->data(QModelIndex(), Qt::DisplayRole).isValid());
    }

    void cellsAreEnabledAndNeverEditable()
    {
        ZrTableFixture t;
        t.model->addRecordData(t.row("a"));
        QCOMPARE(t.model->flags(t.model->index(0, 0)), Qt::ItemIsEnabled | Qt::ItemIsSelectable);
        t.model->setItemSelectable(false);
        QCOMPARE(t.model->flags(t.model->index(0, 0)), Qt::ItemFlags(Qt::ItemIsEnabled));
        QCOMPARE(t.model->flags(QModelIndex()),
                 QStandardItemModel().QAbstractItemModel::flags(QModelIndex()));
    }
};

ZR_TEST_MAIN(TestTableCellReader)
#include "tst_zrtablecellreader.moc"
