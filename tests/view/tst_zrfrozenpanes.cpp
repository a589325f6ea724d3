#include "ZrFrozenPanes.h"
#include "ZrFrozenSide.h"
#include "ZrFrozenTable.h"
#include "ZrTestMain.h"

#include <QtGui/QStandardItemModel>
#include <QtWidgets/QHeaderView>
#include <QtWidgets/QScrollBar>
#include <QtWidgets/QTableView>
#include <QtWidgets/QTreeView>

namespace {

using Side = ZrHeaderHost::Side;

/// A second kind of grid: the panes must not care that it is a tree.
class FrozenTree : public ZrFrozenGrid
{
public:
    QAbstractItemView *createSide(QWidget *parent) const override { return new QTreeView(parent); }
    QHeaderView *head(const QAbstractItemView *view) const override
    {
        return static_cast<const QTreeView *>(view)->header();
    }
    void setHead(QAbstractItemView *view, QHeaderView *head) const override
    {
        static_cast<QTreeView *>(view)->setHeader(head);
    }
    void setColumnHidden(QAbstractItemView *view, int column, bool hidden) const override
    {
        static_cast<QTreeView *>(view)->setColumnHidden(column, hidden);
    }
    int leftInsetPx(const QAbstractItemView *) const override { return 0; }
    void copyRowLook(const QAbstractItemView *, QAbstractItemView *) const override {}
};

class Counts : public ZrFrozenHost
{
public:
    QMap<Side, int> counts;
    int frozenColumnCount(Side side) const override { return counts.value(side); }
    bool isColumnHiddenByHead(int) const override { return false; }
    void orderHead(QHeaderView *) override {}
};

template<typename View, typename Grid>
class Stage
{
public:
    Stage()
        : model(30, 6)
        , view(&window)
        , panes(&view, &grid)
    {
        host.counts = {{Side::Left, 2}, {Side::Right, 1}};
        view.setModel(&model);
        view.setGeometry(10, 20, 300, 200);
        panes.setHost(&host);
        panes.attachMainHead();
        window.resize(400, 300);
        window.setAttribute(Qt::WA_DontShowOnScreen);
        window.show();
        QCoreApplication::processEvents();
    }

    QStandardItemModel model;
    QWidget window;
    Grid grid;
    Counts host;
    View view;
    ZrFrozenPanes panes;
};

} // namespace

class TestZrFrozenPanes : public QObject
{
    Q_OBJECT
private slots:
    void treeGetsPanesWithItsFrozenColumns()
    {
        Stage<QTreeView, FrozenTree> stage;
        stage.panes.setSideEnabled(Side::Left, true);
        stage.panes.setSideEnabled(Side::Right, true);
        const QHeaderView *const left = stage.panes.side(Side::Left)->head();
        const QHeaderView *const right = stage.panes.side(Side::Right)->head();
        for (int column = 0; column < 6; ++column) {
            QCOMPARE(left->isSectionHidden(column), column > 1);
            QCOMPARE(right->isSectionHidden(column), column != 5);
        }
        QCOMPARE(stage.panes.paneViews().size(), 2);
    }

    void panesStandWhereTheMainViewStandsInItsParent()
    {
        Stage<QTreeView, FrozenTree> stage;
        stage.view.setFrameShape(QFrame::NoFrame);
        stage.view.header()->resizeSection(0, 50);
        stage.view.header()->resizeSection(1, 40);
        stage.panes.setSideEnabled(Side::Left, true);
        const QWidget *const pane = stage.panes.side(Side::Left)->view();
        QCOMPARE(pane->pos(), QPoint(10, 20));
        QCOMPARE(pane->width(), 90);
        QCOMPARE(pane->height(), stage.view.viewport()->height() + stage.view.header()->height());
    }

    void withoutHostNothingIsFrozen()
    {
        Stage<QTreeView, FrozenTree> stage;
        stage.panes.setHost(nullptr);
        stage.panes.setSideEnabled(Side::Left, true);
        QVERIFY(stage.panes.paneViews().isEmpty());
    }

    void removedPaneGoesLater()
    {
        Stage<QTreeView, FrozenTree> stage;
        stage.panes.setSideEnabled(Side::Left, true);
        const QPointer<QWidget> pane = stage.panes.side(Side::Left)->view();
        stage.panes.setSideEnabled(Side::Left, false);
        QVERIFY(pane);
        QVERIFY(!pane->isVisible());
        QTRY_VERIFY(!pane);
    }

    void columnsMovedInTheMainHeadMoveInThePanes()
    {
        Stage<QTreeView, FrozenTree> stage;
        stage.panes.setSideEnabled(Side::Left, true);
        stage.view.header()->moveSection(4, 0);
        const QHeaderView *const left = stage.panes.side(Side::Left)->head();
        QCOMPARE(left->logicalIndex(0), 4);
        QVERIFY(!left->isSectionHidden(4));
        QVERIFY(left->isSectionHidden(1));
    }

    void columnCountThatGrowsMovesTheRightEdge()
    {
        Stage<QTreeView, FrozenTree> stage;
        stage.panes.setSideEnabled(Side::Right, true);
        stage.model.insertColumn(6);
        const QHeaderView *const right = stage.panes.side(Side::Right)->head();
        QTRY_VERIFY(right->isSectionHidden(5));
        QVERIFY(!right->isSectionHidden(6));
    }

    void keysStepAmongSiblingsOfATree()
    {
        Stage<QTreeView, FrozenTree> stage;
        QStandardItem *const top = new QStandardItem(QStringLiteral("top"));
        top->appendRow(new QStandardItem(QStringLiteral("first")));
        top->appendRow(new QStandardItem(QStringLiteral("second")));
        stage.model.insertRow(0, top);
        stage.panes.setSideEnabled(Side::Left, true);
        const QModelIndex first = stage.model.index(0, 0, top->index());
        stage.view.setCurrentIndex(first);
        QKeyEvent down(QEvent::KeyPress, Qt::Key_Down, Qt::NoModifier);
        QVERIFY(stage.panes.handleKey(&down, &stage.view));
        QCOMPARE(stage.view.currentIndex(), first.sibling(1, 0));
        QCOMPARE(stage.panes.side(Side::Left)->view()->currentIndex(), first.sibling(1, 0));
        QVERIFY(stage.panes.handleKey(&down, &stage.view));
        QCOMPARE(stage.view.currentIndex(), first.sibling(1, 0));
    }

    void otherKeysAreLeftToTheView()
    {
        Stage<QTreeView, FrozenTree> stage;
        QKeyEvent key(QEvent::KeyPress, Qt::Key_A, Qt::NoModifier);
        QVERIFY(!stage.panes.handleKey(&key, &stage.view));
    }

    void tableKindLeavesForeignViewsAlone()
    {
        const ZrFrozenTable kind;
        QTreeView tree;
        QTableView table;
        QCOMPARE(kind.head(&tree), nullptr);
        QCOMPARE(kind.leftInsetPx(&tree), 0);
        kind.setColumnHidden(&tree, 0, true);
        kind.copyRowLook(&tree, &table);
        QVERIFY(table.showGrid());
    }

    void tablePaneHasTheRowsOfTheMainTable()
    {
        Stage<QTableView, ZrFrozenTable> stage;
        stage.view.setShowGrid(false);
        stage.view.verticalHeader()->setMinimumSectionSize(1);
        stage.view.verticalHeader()->setDefaultSectionSize(17);
        stage.view.setRowHeight(3, 44);
        stage.panes.setSideEnabled(Side::Left, true);
        const QTableView *const pane = qobject_cast<QTableView *>(stage.panes.side(Side::Left)->view());
        QVERIFY(pane);
        QCOMPARE(pane->rowHeight(2), 17);
        QCOMPARE(pane->rowHeight(3), 44);
        QVERIFY(!pane->showGrid());
        QVERIFY(pane->verticalHeader()->isHidden());
    }

    void leftPaneLeavesRoomForAVerticalHead()
    {
        Stage<QTableView, ZrFrozenTable> stage;
        stage.panes.setSideEnabled(Side::Left, true);
        const QWidget *const pane = stage.panes.side(Side::Left)->view();
        QCOMPARE(pane->x(), 10 + stage.view.frameWidth() + stage.view.verticalHeader()->width());
        QVERIFY(stage.view.verticalHeader()->width() > 0);
    }
};

ZR_TEST_MAIN(TestZrFrozenPanes)
#include "tst_zrfrozenpanes.moc"
