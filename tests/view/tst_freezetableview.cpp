#include "ZrTestMain.h"
#include "ZrViewTestKit.h"

namespace {

constexpr int leftSide = 1;
constexpr int rightSide = 2;

QTableView *sideOf(const ZrTableView &view, int side)
{
    return view.getTableView()->frozenTable(side);
}

QHeaderView *headOf(const ZrTableView &view, int side)
{
    return sideOf(view, side)->horizontalHeader();
}

QList<int> shownColumns(const QTableView *table)
{
    QList<int> columns;
    for (int visual = 0; visual < table->horizontalHeader()->count(); ++visual) {
        const int column = table->horizontalHeader()->logicalIndex(visual);
        if (!table->isColumnHidden(column))
            columns.append(column);
    }
    return columns;
}

void click(QTableView *table, int row, int column)
{
    QTest::mouseClick(table->viewport(), Qt::LeftButton, Qt::NoModifier, kit::middleOf(table, row, column));
}

/// A shown view of 12 columns and 50 rows with two columns frozen at either side.
class Frozen
{
public:
    Frozen()
    {
        kit::setUp(&view, 50, 12);
        view.setFrozenColumns(leftSide, true, 2);
        view.setFrozenColumns(rightSide, true, 2);
        table = view.getTableView();
    }

    ZrTableView view;
    FreezeTableView *table = nullptr;
};

} // namespace

class TestFreezeTableView : public QObject
{
    Q_OBJECT
private slots:
    void frozenSidesShowTheirColumnsOnly()
    {
        Frozen f;
        QCOMPARE(shownColumns(sideOf(f.view, leftSide)), (QList<int>{0, 1}));
        QCOMPARE(shownColumns(sideOf(f.view, rightSide)), (QList<int>{10, 11}));
        QCOMPARE(f.view.getFrozenColumns(leftSide), 2);
        QCOMPARE(f.view.getFrozenColumns(rightSide), 2);
        QVERIFY(sideOf(f.view, leftSide)->isVisible());
    }

    void moreColumnsThanExistFreezeNothing()
    {
        ZrTableView view;
        kit::setUp(&view, 3, 4);
        view.setFrozenColumns(leftSide, true, 5);
        QVERIFY(!sideOf(view, leftSide));
        QCOMPARE(view.getFrozenColumns(leftSide), 0);
        view.setFrozenColumns(leftSide, true, 4);
        QVERIFY(sideOf(view, leftSide));
        view.setFrozenColumns(leftSide, false, 5);
        QVERIFY(sideOf(view, leftSide)); // also a call that would thaw ends at such a count
    }

    void countBelowOneFreezesNothing_data()
    {
        QTest::addColumn<int>("count");
        QTest::newRow("none") << 0;
        QTest::newRow("negative") << -1;
    }

    void countBelowOneFreezesNothing()
    {
        QFETCH(int, count);
        ZrTableView view;
        kit::setUp(&view, 3, 4);
        view.setFrozenColumns(rightSide, true, count);
        QVERIFY(!sideOf(view, rightSide));
    }

    void sideThatIsNoneIsIgnored()
    {
        ZrTableView view;
        kit::setUp(&view, 3, 4);
        view.setFrozenColumns(3, true, 1);
        QCOMPARE(view.getFrozenColumns(3), 0);
        QVERIFY(!sideOf(view, leftSide) && !sideOf(view, rightSide));
    }

    void edgeMayNotCutAGroup_data()
    {
        QTest::addColumn<int>("side");
        QTest::addColumn<int>("count");
        QTest::addColumn<int>("expected");
        QTest::newRow("left, inside the first group") << leftSide << 1 << 0;
        QTest::newRow("left, at its end") << leftSide << 2 << 2;
        QTest::newRow("left, between plain columns") << leftSide << 3 << 3;
        QTest::newRow("left, all columns") << leftSide << 6 << 6;
        QTest::newRow("right, inside the last group") << rightSide << 1 << 0;
        QTest::newRow("right, at its start") << rightSide << 2 << 2;
        QTest::newRow("right, between plain columns") << rightSide << 3 << 3;
    }

    void edgeMayNotCutAGroup()
    {
        QFETCH(int, side);
        QFETCH(int, count);
        QFETCH(int, expected);
        ZrTableView view;
        HeadList heads = kit::groupedHeads({QStringLiteral("a"), QStringLiteral("a"), QString(), QString(),
                                            QStringLiteral("b"), QStringLiteral("b")});
        view.setHeadList(heads);
        view.setFrozenColumns(side, true, count);
        QCOMPARE(view.getFrozenColumns(side), expected);
        QCOMPARE(sideOf(view, side) != nullptr, expected > 0);
    }

    void thawingRemovesTheSideTableLater()
    {
        Frozen f;
        const QPointer<QTableView> table = sideOf(f.view, leftSide);
        f.view.setFrozenColumns(leftSide, false, 0);
        QCOMPARE(f.view.getFrozenColumns(leftSide), 0);
        QVERIFY(!sideOf(f.view, leftSide));
        QVERIFY(table); // a signal of its own may still be on the stack
        QTRY_VERIFY(!table);
        QVERIFY(sideOf(f.view, rightSide));
    }

    void thawingFromASideTablesOwnSignalIsSafe()
    {
        Frozen f;
        connect(&f.view, &ZrTableView::pressed, &f.view,
                [&f] { f.view.setFrozenColumns(leftSide, false, 0); });
        click(sideOf(f.view, leftSide), 1, 0);
        QVERIFY(!sideOf(f.view, leftSide));
    }

    void sidesScrollVerticallyWithTheMainTableAndItWithThem()
    {
        Frozen f;
        f.table->verticalScrollBar()->setValue(7);
        QCOMPARE(sideOf(f.view, leftSide)->verticalScrollBar()->value(), 7);
        QCOMPARE(sideOf(f.view, rightSide)->verticalScrollBar()->value(), 7);
        sideOf(f.view, leftSide)->verticalScrollBar()->setValue(3);
        QCOMPARE(f.table->verticalScrollBar()->value(), 3);
        QCOMPARE(sideOf(f.view, rightSide)->verticalScrollBar()->value(), 3);
        sideOf(f.view, rightSide)->verticalScrollBar()->setValue(5);
        QCOMPARE(f.table->verticalScrollBar()->value(), 5);
    }

    void newSideStartsAtTheMainTablesRowAndCurrentCell()
    {
        ZrTableView view;
        kit::setUp(&view, 50, 6);
        view.getTableView()->verticalScrollBar()->setValue(9);
        view.setCurrentIndex(view.index(11, 1));
        view.setFrozenColumns(leftSide, true, 2);
        QCOMPARE(sideOf(view, leftSide)->verticalScrollBar()->value(), 9);
        QCOMPARE(sideOf(view, leftSide)->currentIndex(), view.index(11, 1));
    }

    void mainTableScrollsSidewaysUnderTheSides()
    {
        Frozen f;
        f.table->horizontalScrollBar()->setValue(200);
        QCOMPARE(sideOf(f.view, leftSide)->horizontalScrollBar()->value(), 0);
        QCOMPARE(shownColumns(sideOf(f.view, leftSide)), (QList<int>{0, 1}));
        QVERIFY(!sideOf(f.view, leftSide)->horizontalScrollBar()->isVisible());
    }

    void leftSideLiesOverTheLeftEdge()
    {
        Frozen f;
        const QTableView *const side = sideOf(f.view, leftSide);
        QCOMPARE(side->pos(), QPoint(f.table->frameWidth(), f.table->frameWidth()));
        QCOMPARE(side->width(), 160);
        QCOMPARE(side->height(), f.table->viewport()->height() + f.table->horizontalHeader()->height());
        QCOMPARE(side->horizontalHeader()->width(), 160);
        QVERIFY(!side->verticalScrollBar()->isVisible());
    }

    void rightSideLiesOverTheRightEdgeWithABarOfItsOwn()
    {
        Frozen f;
        const QTableView *const side = sideOf(f.view, rightSide);
        QTRY_VERIFY(side->verticalScrollBar()->isVisible());
        const int columnsPx = side->columnWidth(10) + side->columnWidth(11);
        const int widthPx = columnsPx + side->verticalScrollBar()->width();
        QTRY_COMPARE(side->width(), widthPx);
        QCOMPARE(side->x(), f.table->width() - widthPx - f.table->frameWidth());
        const QHeaderView *const head = side->horizontalHeader();
        QCOMPARE(head->minimumWidth(), widthPx);
        QCOMPARE(head->maximumWidth(), widthPx);
        QCOMPARE(head->width(), widthPx);
        QCOMPARE(side->childAt(side->width() - 2, 2),
                 side->verticalScrollBar()); // its upper end isn't covered
    }

    void rightSideNarrowsWhenItsBarGoes()
    {
        Frozen f;
        const QTableView *const side = sideOf(f.view, rightSide);
        QTRY_VERIFY(side->verticalScrollBar()->isVisible());
        f.view.clear();
        QTRY_VERIFY(!side->verticalScrollBar()->isVisible());
        QTRY_COMPARE(side->width(), side->columnWidth(10) + side->columnWidth(11));
        QCOMPARE(side->horizontalHeader()->width(), side->width());
    }

    void sidesFollowTheMainTablesSize()
    {
        Frozen f;
        f.view.resize(700, 420);
        const QTableView *const side = sideOf(f.view, rightSide);
        QTRY_COMPARE(side->x() + side->width(), f.table->width());
        QCOMPARE(side->height(), f.table->viewport()->height() + f.table->horizontalHeader()->height());
    }

    void columnHiddenInTheMainTableVanishesFromItsSide()
    {
        Frozen f;
        f.view.setColumnShow(1, false);
        QCOMPARE(shownColumns(sideOf(f.view, leftSide)), QList<int>{0});
        QCOMPARE(sideOf(f.view, leftSide)->width(), 80);
        f.view.setColumnShow(1, true);
        QCOMPARE(shownColumns(sideOf(f.view, leftSide)), (QList<int>{0, 1}));
        QCOMPARE(sideOf(f.view, leftSide)->width(), 160);
    }

    void frozenColumnResizedInTheLeftHeadWidensTheSide()
    {
        Frozen f;
        headOf(f.view, leftSide)->resizeSection(1, 130);
        QCOMPARE(f.table->columnWidth(1), 130);
        QCOMPARE(sideOf(f.view, leftSide)->width(), 210);
    }

    void columnResizedInTheMainHeadIsResizedInBothSides()
    {
        Frozen f;
        f.table->horizontalHeader()->resizeSection(0, 95);
        f.table->horizontalHeader()->resizeSection(10, 66);
        QCOMPARE(sideOf(f.view, leftSide)->columnWidth(0), 95);
        QCOMPARE(sideOf(f.view, leftSide)->width(), 175);
        QCOMPARE(sideOf(f.view, rightSide)->columnWidth(10), 66);
    }

    void columnThatASideDoesNotHoldStaysAsTheMainHeadHasIt()
    {
        Frozen f;
        f.view.getTableView()->updateSectionWidth(0, 0,
                                                  f.table->columnWidth(0)); // not from a head: the main one's
        headOf(f.view, leftSide)->showSection(5);
        headOf(f.view, leftSide)->resizeSection(5, 33);
        QCOMPARE(f.table->columnWidth(5), 80);
    }

    void rightColumnsCannotBeDragged()
    {
        Frozen f;
        QCOMPARE(headOf(f.view, rightSide)->sectionResizeMode(10), QHeaderView::Fixed);
        QCOMPARE(headOf(f.view, leftSide)->sectionResizeMode(0), QHeaderView::Interactive);
        headOf(f.view, rightSide)->resizeSection(11, 50); // by code
        QCOMPARE(f.table->columnWidth(11), 50);
    }

    void rowHeightIsThatOfTheMainTable()
    {
        Frozen f;
        f.view.setRowHeight(4, 51);
        QCOMPARE(sideOf(f.view, leftSide)->rowHeight(4), 51);
        QCOMPARE(sideOf(f.view, rightSide)->rowHeight(4), 51);
        f.view.setItemHeight(31);
        QCOMPARE(sideOf(f.view, leftSide)->rowHeight(3), 31);
        QCOMPARE(sideOf(f.view, leftSide)->rowHeight(4), 51);
    }

    void pressInAnyPartMakesTheCellCurrentInAll_data()
    {
        QTest::addColumn<int>("part");
        QTest::addColumn<int>("column");
        QTest::newRow("main table") << 0 << 3;
        QTest::newRow("left") << leftSide << 1;
        QTest::newRow("right") << rightSide << 10;
    }

    void pressInAnyPartMakesTheCellCurrentInAll()
    {
        QFETCH(int, part);
        QFETCH(int, column);
        Frozen f;
        f.view.setItemSelectable(true);
        QSignalSpy pressed(&f.view, &ZrTableView::pressed);
        QSignalSpy clicked(&f.view, &ZrTableView::clicked);
        QSignalSpy current(&f.view, &ZrTableView::currentIndexChanged);
        QTableView *const table = part == 0 ? f.table : sideOf(f.view, part);
        click(table, 2, column);
        const QModelIndex index = f.view.index(2, column);
        QCOMPARE(f.table->currentIndex(), index);
        QCOMPARE(sideOf(f.view, leftSide)->currentIndex(), index);
        QCOMPARE(sideOf(f.view, rightSide)->currentIndex(), index);
        QCOMPARE(pressed.count(), 1);
        QCOMPARE(clicked.count(), 1);
        QCOMPARE(clicked.first().first().toModelIndex(), index);
        QCOMPARE(current.count(), 1);
        QCOMPARE(current.first().first().toModelIndex(), index);
    }

    void doubleClickInASideIsTold()
    {
        Frozen f;
        QSignalSpy spy(&f.view, &ZrTableView::doubleClicked);
        click(sideOf(f.view, leftSide), 1, 1);
        QTest::mouseDClick(sideOf(f.view, leftSide)->viewport(), Qt::LeftButton, Qt::NoModifier,
                           kit::middleOf(sideOf(f.view, leftSide), 1, 1));
        QCOMPARE(spy.count(), 1);
    }

    void otherSignalsOfASideAreTold_data()
    {
        QTest::addColumn<int>("side");
        QTest::newRow("left") << leftSide;
        QTest::newRow("right") << rightSide;
    }

    void otherSignalsOfASideAreTold()
    {
        QFETCH(int, side);
        Frozen f;
        QTableView *const table = sideOf(f.view, side);
        QSignalSpy activated(&f.view, &ZrTableView::activated);
        QSignalSpy entered(&f.view, &ZrTableView::entered);
        QSignalSpy viewportEntered(&f.view, &ZrTableView::viewportEntered);
        QSignalSpy iconSize(&f.view, &ZrTableView::iconSizeChanged);
        emit table->activated(f.view.index(1, 0));
        emit table->entered(f.view.index(1, 0));
        emit table->viewportEntered();
        table->setIconSize(QSize(9, 9));
        QCOMPARE(activated.count(), 1);
        QCOMPARE(entered.count(), 1);
        QCOMPARE(viewportEntered.count(), 1);
        QCOMPARE(iconSize.count(), 1);
    }

    void upAndDownMoveAllParts_data()
    {
        QTest::addColumn<int>("part");
        QTest::newRow("main table") << 0;
        QTest::newRow("left") << leftSide;
        QTest::newRow("right") << rightSide;
    }

    void upAndDownMoveAllParts()
    {
        QFETCH(int, part);
        Frozen f;
        QTableView *const table = part == 0 ? f.table : sideOf(f.view, part);
        f.view.setCurrentIndex(f.view.index(4, 3));
        const auto expectRow = [&f](int row) {
            for (const QTableView *const each :
                 {static_cast<QTableView *>(f.table), sideOf(f.view, leftSide), sideOf(f.view, rightSide)})
                QCOMPARE(each->currentIndex(), f.view.index(row, 0));
        };
        QSignalSpy current(&f.view, &ZrTableView::currentIndexChanged);
        QTest::keyClick(table, Qt::Key_Down);
        expectRow(5);
        QTest::keyClick(table, Qt::Key_Up);
        QTest::keyClick(table, Qt::Key_Up);
        expectRow(3);
        QCOMPARE(current.count(), 3);
    }

    void keysOfASideScrollTheMainTableToTheFirstColumn_data()
    {
        QTest::addColumn<int>("side");
        QTest::newRow("left") << leftSide;
        QTest::newRow("right") << rightSide;
    }

    void keysOfASideScrollTheMainTableToTheFirstColumn()
    {
        QFETCH(int, side);
        Frozen f;
        f.view.setCurrentIndex(f.view.index(4, 3));
        f.table->horizontalScrollBar()->setValue(300);
        QTest::keyClick(sideOf(f.view, side), Qt::Key_Down);
        QCOMPARE(f.table->currentIndex(), f.view.index(5, 0));
        QCOMPARE(f.table->horizontalScrollBar()->value(), 0);
    }

    void downScrollsToTheRow()
    {
        Frozen f;
        f.view.setCurrentIndex(f.view.index(0, 0));
        for (int step = 0; step < 30; ++step)
            QTest::keyClick(sideOf(f.view, leftSide), Qt::Key_Down);
        QVERIFY(f.table->viewport()->rect().contains(f.table->visualRect(f.view.index(30, 3)).center().x(),
                                                     f.table->visualRect(f.view.index(30, 0)).center().y()));
        QCOMPARE(sideOf(f.view, leftSide)->verticalScrollBar()->value(),
                 f.table->verticalScrollBar()->value());
    }

    void upAtTheFirstRowAndDownAtTheLastAreSwallowed_data()
    {
        QTest::addColumn<int>("row");
        QTest::addColumn<int>("key");
        QTest::newRow("up at the first") << 0 << int(Qt::Key_Up);
        QTest::newRow("down at the last") << 49 << int(Qt::Key_Down);
    }

    void upAtTheFirstRowAndDownAtTheLastAreSwallowed()
    {
        QFETCH(int, row);
        QFETCH(int, key);
        Frozen f;
        f.view.setCurrentIndex(f.view.index(row, 3));
        QSignalSpy current(&f.view, &ZrTableView::currentIndexChanged);
        QKeyEvent press(QEvent::KeyPress, key, Qt::NoModifier);
        QVERIFY(f.table->eventFilter(f.table, &press));
        QVERIFY(f.table->eventFilter(sideOf(f.view, leftSide), &press));
        QCOMPARE(f.table->currentIndex(), f.view.index(row, 3));
        QCOMPARE(current.count(), 0);
    }

    void aListInsideACellKeepsItsKeys()
    {
        Frozen f;
        QTableView foreign;
        QKeyEvent press(QEvent::KeyPress, Qt::Key_Down, Qt::NoModifier);
        QVERIFY(!f.table->eventFilter(&foreign, &press));
    }

    void otherKeysOfASideMoveTheMainTableToo()
    {
        Frozen f;
        f.view.setCurrentIndex(f.view.index(0, 0));
        QTest::keyClick(sideOf(f.view, leftSide), Qt::Key_PageDown);
        const QModelIndex now = sideOf(f.view, leftSide)->currentIndex();
        QVERIFY(now.row() > 0);
        QCOMPARE(f.table->currentIndex(), now);
        QCOMPARE(sideOf(f.view, rightSide)->currentIndex(), now);
    }

    void pageDownInTheMainTableScrollsThere()
    {
        Frozen f;
        f.view.setCurrentIndex(f.view.index(0, 3));
        QTest::keyClick(f.table, Qt::Key_End, Qt::ControlModifier);
        QTest::keyClick(f.table, Qt::Key_PageDown);
        const QModelIndex now = f.table->currentIndex();
        QVERIFY(f.table->viewport()->rect().intersects(f.table->visualRect(now)));
    }

    void leftKeyBringsTheCellOutFromUnderTheLeftSide()
    {
        Frozen f;
        f.view.setCurrentIndex(f.view.index(0, 6));
        f.table->horizontalScrollBar()->setValue(6 * 80 - 160); // column 6 right beside the left side
        QTest::keyClick(f.table, Qt::Key_Left);
        QCOMPARE(f.table->currentIndex().column(), 5);
        QCOMPARE(f.table->visualRect(f.table->currentIndex()).left(),
                 sideOf(f.view, leftSide)->columnWidth(0));
    }

    void leftKeyInPlainSightScrollsNothing()
    {
        Frozen f;
        f.view.setCurrentIndex(f.view.index(0, 4));
        QTest::keyClick(f.table, Qt::Key_Left);
        QCOMPARE(f.table->horizontalScrollBar()->value(), 0);
    }

    void scrollToIgnoresANegativeColumn()
    {
        Frozen f;
        f.table->scrollTo(QModelIndex());
        QCOMPARE(f.table->verticalScrollBar()->value(), 0);
    }

    void onlyTheClickedHeadKeepsItsIndicatorAndTheSortRunsOnce_data()
    {
        QTest::addColumn<int>("part");
        QTest::addColumn<int>("column");
        QTest::newRow("main head") << 0 << 3;
        QTest::newRow("left head") << leftSide << 1;
        QTest::newRow("right head") << rightSide << 10;
    }

    void onlyTheClickedHeadKeepsItsIndicatorAndTheSortRunsOnce()
    {
        QFETCH(int, part);
        QFETCH(int, column);
        Frozen f;
        QHeaderView *const main = f.table->horizontalHeader();
        // First another head, so that there is an indicator to lose.
        QHeaderView *const other = part == leftSide ? main : headOf(f.view, leftSide);
        const int otherColumn = part == leftSide ? 3 : 0;
        QTest::mouseClick(other->viewport(), Qt::LeftButton, Qt::NoModifier,
                          kit::middleOf(other, otherColumn));
        QVERIFY(other->isSortIndicatorShown());

        QHeaderView *const head = part == 0 ? main : headOf(f.view, part);
        QSignalSpy sorted(&f.view, &ZrTableView::signalSortIndicatorChanged);
        QSignalSpy reset(f.view.getZrTableModel(), &QAbstractItemModel::modelReset);
        QTest::mouseClick(head->viewport(), Qt::LeftButton, Qt::NoModifier, kit::middleOf(head, column));
        for (const QHeaderView *const each : {static_cast<const QHeaderView *>(main),
                                              static_cast<const QHeaderView *>(headOf(f.view, leftSide)),
                                              static_cast<const QHeaderView *>(headOf(f.view, rightSide))})
            QCOMPARE(each->isSortIndicatorShown(), each == head);
        QCOMPARE(sorted.count(), 1);
        QCOMPARE(sorted.first().first().toInt(), column);
        QCOMPARE(reset.count(), 1);
    }

    void indicatorSlotSwitchesTheOthersOff()
    {
        Frozen f;
        headOf(f.view, leftSide)->setSortIndicatorShown(true);
        f.table->slotSortIndicatorChanged(0, Qt::AscendingOrder);
        QVERIFY(!headOf(f.view, leftSide)->isSortIndicatorShown());
    }

    void checkBoxClickedInTheLeftHeadChecksAllRows()
    {
        ZrTableView view;
        kit::setUp(&view, 5, 6);
        view.setCheckBoxShow(true);
        view.setFrozenColumns(leftSide, true, 2);
        QSignalSpy state(&view, &ZrTableView::signalHeadCheckStateChanged);
        QHeaderView *const head = headOf(view, leftSide);
        QTest::mouseClick(head->viewport(), Qt::LeftButton, Qt::NoModifier, kit::middleOf(head, 0));
        QCOMPARE(state.count(), 1);
        QCOMPARE(view.getRowsByCheckStatus(true).size(), 5);
    }

    void checkStateOfTheRightHeadIsThatOfTheMainHead()
    {
        ZrTableView view;
        kit::setUp(&view, 5, 6);
        view.setCheckBoxShow(true);
        view.setFrozenColumns(rightSide, true, 2);
        QSignalSpy state(&view, &ZrTableView::signalHeadCheckStateChanged);
        auto *const head = qobject_cast<ZrHeaderView *>(headOf(view, rightSide));
        QVERIFY(head);
        emit head->stateChanged(Qt::Checked);
        QCOMPARE(state.count(), 1);
        QCOMPARE(view.getRowsByCheckStatus(true).size(), 5);
    }

    void checkBoxClickedInALeftCellChecksTheRow()
    {
        ZrTableView view;
        kit::setUp(&view, 5, 6);
        view.setCheckBoxShow(true);
        view.setFrozenColumns(leftSide, true, 2);
        click(sideOf(view, leftSide), 3, 0);
        QCOMPARE(view.getRowsByCheckStatus(true), QList<int>{3});
    }

    void checkBoxThatComesLaterTakesItsPlaceAmongTheFrozenColumns()
    {
        Frozen f;
        f.view.setCheckBoxShow(true);
        QCOMPARE(shownColumns(sideOf(f.view, leftSide)), (QList<int>{0, 1}));
        QTRY_COMPARE(shownColumns(sideOf(f.view, rightSide)), (QList<int>{11, 12}));
    }

    void sidesHaveTheMainTablesSettings()
    {
        Frozen f;
        const QTableView *const side = sideOf(f.view, leftSide);
        QCOMPARE(side->selectionMode(), QAbstractItemView::SingleSelection);
        QCOMPARE(side->verticalScrollMode(), QAbstractItemView::ScrollPerItem);
        QCOMPARE(side->horizontalScrollMode(), QAbstractItemView::ScrollPerPixel);
        QCOMPARE(side->itemDelegate(), f.table->itemDelegate());
        QCOMPARE(side->frameShape(), QFrame::NoFrame);
        QVERIFY(!side->showGrid());
        QVERIFY(!side->hasAutoScroll());
        QVERIFY(side->alternatingRowColors());

        f.view.setSelectionMode(QAbstractItemView::ExtendedSelection);
        f.view.setSelectionBehavior(QAbstractItemView::SelectRows);
        f.view.SetAlternatingRowColors(false);
        f.table->setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
        f.table->setHorizontalScrollMode(QAbstractItemView::ScrollPerItem);
        f.table->setMinimumHeadHeight(61);
        for (const int each : {leftSide, rightSide}) {
            QCOMPARE(sideOf(f.view, each)->selectionMode(), QAbstractItemView::ExtendedSelection);
            QCOMPARE(sideOf(f.view, each)->selectionBehavior(), QAbstractItemView::SelectRows);
            QVERIFY(!sideOf(f.view, each)->alternatingRowColors());
            QCOMPARE(sideOf(f.view, each)->verticalScrollMode(), QAbstractItemView::ScrollPerPixel);
            QCOMPARE(sideOf(f.view, each)->horizontalScrollMode(), QAbstractItemView::ScrollPerItem);
            QCOMPARE(headOf(f.view, each)->height(), 61);
        }
        QCOMPARE(f.table->horizontalHeader()->height(), 61);
    }

    void newSideTakesWhatTheMainTableHas_data()
    {
        QTest::addColumn<int>("side");
        QTest::newRow("left") << leftSide;
        QTest::newRow("right") << rightSide;
    }

    void newSideTakesWhatTheMainTableHas()
    {
        QFETCH(int, side);
        ZrTableView view;
        kit::setUp(&view, 5, 6);
        // None of them what a new table has by itself.
        view.setSelectionMode(QAbstractItemView::MultiSelection);
        view.setSelectionBehavior(QAbstractItemView::SelectRows);
        view.getTableView()->setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
        view.setFrozenColumns(side, true, 2);
        const QTableView *const made = sideOf(view, side);
        QCOMPARE(made->selectionMode(), QAbstractItemView::MultiSelection);
        QCOMPARE(made->selectionBehavior(), QAbstractItemView::SelectRows);
        QVERIFY(made->alternatingRowColors());
        QCOMPARE(made->verticalScrollMode(), QAbstractItemView::ScrollPerPixel);
        QCOMPARE(made->horizontalScrollMode(), QAbstractItemView::ScrollPerPixel);
        QCOMPARE(made->itemDelegate(), view.getTableView()->itemDelegate());
        QCOMPARE(made->frameShape(), QFrame::NoFrame);
        QVERIFY(!made->showGrid() && !made->hasAutoScroll());
        QVERIFY(!made->verticalHeader()->isVisible());
        QCOMPARE(made->horizontalScrollBarPolicy(), Qt::ScrollBarAlwaysOff);
    }

    void defaultSizesReachTheSides()
    {
        Frozen f;
        f.view.setColumnDefaultWidth(70);
        QCOMPARE(sideOf(f.view, leftSide)->width(), 140);
        QCOMPARE(headOf(f.view, rightSide)->defaultSectionSize(), 70);
        f.view.setColumnMinimumWidth(75);
        QCOMPARE(headOf(f.view, rightSide)->minimumSectionSize(), 75);
    }

    void hiddenHeadIsHiddenInTheSidesToo()
    {
        Frozen f;
        f.view.setHorizontalHeaderHide(true);
        QVERIFY(headOf(f.view, leftSide)->isHidden());
        QCOMPARE(sideOf(f.view, leftSide)->height(), f.table->viewport()->height());
        f.view.setZrTableHorizontalHeaderVisiable(true);
        QVERIFY(!headOf(f.view, leftSide)->isHidden());
    }

    void modelResetKeepsTheCurrentRowInAllParts()
    {
        Frozen f;
        f.view.setCurrentIndex(f.view.index(8, 0));
        f.view.getZrTableModel()->update();
        QCOMPARE(f.table->currentIndex().row(), 8);
        QCOMPARE(sideOf(f.view, leftSide)->currentIndex().row(), 8);
        QCOMPARE(sideOf(f.view, rightSide)->currentIndex().row(), 8);
    }

    void selectionOfSeveralRowsInASideSurvivesItsOwnPress()
    {
        Frozen f;
        f.view.setItemSelectable(true);
        f.view.setSelectionMode(QAbstractItemView::ExtendedSelection);
        f.view.setSelectionBehavior(QAbstractItemView::SelectRows);
        QTableView *const side = sideOf(f.view, leftSide);
        click(side, 1, 0);
        QTest::mouseClick(side->viewport(), Qt::LeftButton, Qt::ControlModifier, kit::middleOf(side, 3, 0));
        QCOMPARE(side->selectionModel()->selectedRows().size(), 2);
    }

    void barSlotMovesTheHorizontalBarInProportion()
    {
        Frozen f;
        QScrollBar source;
        source.setRange(0, 50);
        connect(&source, &QScrollBar::valueChanged, f.table, &FreezeTableView::setValue);
        source.setValue(25);
        QCOMPARE(f.table->horizontalScrollBar()->value(), f.table->horizontalScrollBar()->maximum() / 2);
    }

    void replacedHeadGivesTheSidesNewHeads()
    {
        Frozen f;
        ZrHeaderView *const head = new ZrHeaderView(Qt::Horizontal);
        f.view.setZrTableHorizontalHeader(head);
        QCOMPARE(shownColumns(sideOf(f.view, leftSide)), (QList<int>{0, 1}));
        headOf(f.view, leftSide)->resizeSection(0, 99);
        QCOMPARE(head->sectionSize(0), 99);
    }

    void aModelThatComesLaterIsShownInTheSidesToo()
    {
        Frozen f;
        f.view.setZrTableModel(new ZrTableModel);
        HeadList heads = kit::heads(12);
        f.view.setKeyColumn({0});
        f.view.setHeadList(heads);
        kit::fill(&f.view, 7, 12);
        for (const int side : {leftSide, rightSide}) {
            QCOMPARE(sideOf(f.view, side)->model(), f.table->model());
            QCOMPARE(sideOf(f.view, side)->verticalHeader()->count(), 7);
        }
        QCOMPARE(shownColumns(sideOf(f.view, leftSide)), (QList<int>{0, 1}));
        QCOMPARE(shownColumns(sideOf(f.view, rightSide)), (QList<int>{10, 11}));
        // The parts hold together as before.
        sideOf(f.view, leftSide)->setCurrentIndex(f.table->model()->index(4, 0));
        QCOMPARE(f.table->currentIndex().row(), 4);
        QCOMPARE(sideOf(f.view, rightSide)->currentIndex().row(), 4);
    }

    void tableWithoutAViewFreezesNothing()
    {
        FreezeTableView table;
        table.setFrozenSide(leftSide, true);
        QVERIFY(!table.frozenTable(leftSide));
        table.setHorizontalHeader(nullptr);
        table.slotClicked(QModelIndex());
        QVERIFY(table.alternatingRowColors());
    }
};

ZR_TEST_MAIN(TestFreezeTableView)
#include "tst_freezetableview.moc"
