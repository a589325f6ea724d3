#include "ZrColumnOffsets.h"
#include "ZrModelIndex.h"
#include "ZrTestMain.h"
#include "ZrViewTestKit.h"

#include <QtGui/QStandardItemModel>

class TestZrModelIndex : public QObject
{
    Q_OBJECT
private slots:
    void offsetCountsCheckBoxAndSerialColumn_data()
    {
        QTest::addColumn<bool>("checkBox");
        QTest::addColumn<int>("serialOrder");
        QTest::addColumn<int>("expected");
        QTest::newRow("neither") << false << 1 << 0;
        QTest::newRow("check box") << true << 1 << 1;
        QTest::newRow("ascending serial") << false << 2 << 1;
        QTest::newRow("descending serial") << false << 3 << 1;
        QTest::newRow("both") << true << 3 << 2;
    }

    void offsetCountsCheckBoxAndSerialColumn()
    {
        QFETCH(bool, checkBox);
        QFETCH(int, serialOrder);
        QFETCH(int, expected);
        ZrTableView view;
        view.setSerialNumberColumnPropety(ZrViewModel::SerialNumColumnOrder(serialOrder));
        view.setCheckBoxShow(checkBox);
        HeadList heads = kit::heads(4);
        view.setHeadList(heads);
        view.addRecordData(kit::record(QStringLiteral("a"), 4));

        QCOMPARE(ZrModelIndex::getLogicColumn(2, &view), 2 + expected);
        QCOMPARE(ZrModelIndex::getRealColumn(2 + expected, &view), 2);
        const QModelIndex index = view.getZrTableModel()->index(0, 2 + expected);
        QCOMPARE(ZrModelIndex::column(index), 2);
        QCOMPARE(ZrModelIndex::columnHeadData(index, Qt::Horizontal, Qt::DisplayRole).toString(),
                 QStringLiteral("C2"));
    }

    void objectThatIsNoGridGivesMinusOne()
    {
        QWidget widget;
        QCOMPARE(ZrModelIndex::getLogicColumn(3, &widget), -1);
        QCOMPARE(ZrModelIndex::getRealColumn(3, &widget), -1);
        QCOMPARE(ZrModelIndex::getLogicColumn(3, nullptr), -1);
        QCOMPARE(ZrModelIndex::getRealColumn(3, nullptr), -1);
    }

    void theTableInsideTheViewIsNoGrid()
    {
        ZrTableView view;
        QCOMPARE(ZrModelIndex::getLogicColumn(3, view.getTableView()), -1);
    }

    void foreignModelKeepsItsColumnAndHasNoHeadData()
    {
        QStandardItemModel model(1, 3);
        model.setHorizontalHeaderLabels({QStringLiteral("a"), QStringLiteral("b"), QStringLiteral("c")});
        const QModelIndex index = model.index(0, 2);
        QCOMPARE(ZrModelIndex::column(index), 2);
        QVERIFY(!ZrModelIndex::columnHeadData(index, Qt::Horizontal, Qt::DisplayRole).isValid());
    }

    void invalidIndexIsHarmless()
    {
        QCOMPARE(ZrModelIndex::column(QModelIndex()), -1);
        QVERIFY(!ZrModelIndex::columnHeadData(QModelIndex(), Qt::Horizontal, 0).isValid());
        QCOMPARE(ZrColumnOffsets::of(nullptr), nullptr);
    }

    void offsetsAreFoundInTheObjectOrRightBelowIt()
    {
        ZrTableView view;
        view.setCheckBoxShow(true);
        const ZrColumnOffsets *const offsets = ZrColumnOffsets::of(&view);
        QVERIFY(offsets);
        QCOMPARE(offsets->columnOffset(), 1);
        QCOMPARE(ZrColumnOffsets::of(view.getPrivate()), offsets);
        QObject none;
        QObject child(&none);
        QCOMPARE(ZrColumnOffsets::of(&none), nullptr);
    }

    void therestPassesThrough()
    {
        QStandardItemModel model(2, 2);
        model.setItem(0, 0, new QStandardItem(QStringLiteral("top")));
        model.item(0, 0)->appendRow(new QStandardItem(QStringLiteral("sub")));
        const QModelIndex top = model.index(0, 0);
        const QModelIndex sub = model.index(0, 0, top);
        QCOMPARE(ZrModelIndex::data(sub, Qt::DisplayRole).toString(), QStringLiteral("sub"));
        QCOMPARE(ZrModelIndex::flags(sub), sub.flags());
        QCOMPARE(ZrModelIndex::parent(sub), top);
        QCOMPARE(ZrModelIndex::row(model.index(1, 0)), 1);
        QCOMPARE(ZrModelIndex::internalId(sub), sub.internalId());
        QCOMPARE(ZrModelIndex::internalPointer(sub), sub.internalPointer());
    }

    void unknownRoleRoundTrips()
    {
        ZrTableView view;
        HeadList heads = kit::heads(1);
        view.setHeadList(heads);
        view.addRecordData({{0, {{QStringLiteral("4711"), 42}}}});
        QCOMPARE(ZrModelIndex::data(view.index(0, 0), 4711).toInt(), 42);
    }

    void canBeMadeAsAnObject()
    {
        const ZrModelIndex object;
        QCOMPARE(QByteArray(object.metaObject()->className()), QByteArray("ZrModelIndex"));
    }
};

ZR_TEST_MAIN(TestZrModelIndex)
#include "tst_zrmodelindex.moc"
