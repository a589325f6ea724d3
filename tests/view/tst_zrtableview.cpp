#include "ZrItemModelDeletage.h"
#include "ZrItemModelDeletage_p.h"
#include "ZrTableModel_p.h"
#include "ZrTestMain.h"
#include "ZrViewTestKit.h"

#include <QtWidgets/QVBoxLayout>

namespace {

void click(QTableView *table, int row, int column)
{
    QTest::mouseClick(table->viewport(), Qt::LeftButton, Qt::NoModifier, kit::middleOf(table, row, column));
}

/// A shown view with check boxes: view column 0 is the box.
class Checked
{
public:
    Checked()
    {
        view.setCheckBoxShow(true);
        kit::setUp(&view, 4, 3);
    }

    ZrTableView view;
};

} // namespace

/// What the view itself does: composing, wiring, replacing parts, the row click.
class TestZrTableView : public QObject
{
    Q_OBJECT
private slots:
    void newViewIsComposedAsPromised()
    {
        ZrTableView view;
        const FreezeTableView *const table = view.getTableView();
        const QVBoxLayout *const layout = qobject_cast<QVBoxLayout *>(view.layout());
        QVERIFY(layout);
        QCOMPARE(layout->spacing(), 0);
        QCOMPARE(layout->contentsMargins(), QMargins());
        QCOMPARE(layout->itemAt(0)->widget(), table);
        QCOMPARE(layout->itemAt(1)->layout(), view.getPrivate()->bottomLayout);
        QCOMPARE(table->parentWidget(), &view);
        QVERIFY(table->verticalHeader()->isHidden());
        QVERIFY(!table->showGrid());
        QCOMPARE(table->frameShape(), QFrame::NoFrame);
        QCOMPARE(table->selectionMode(), QAbstractItemView::SingleSelection);
        QCOMPARE(table->verticalScrollMode(), QAbstractItemView::ScrollPerItem);
        QCOMPARE(table->horizontalScrollMode(), QAbstractItemView::ScrollPerPixel);
        QVERIFY(!table->hasAutoScroll());
        QVERIFY(table->alternatingRowColors());
        QCOMPARE(view.getZrTableModel()->parent(), table);
        QCOMPARE(view.getZrTableHorizontalHeader()->parent(), table);
        QVERIFY(view.getZrTableHorizontalHeader()->isSortbale());
        QCOMPARE(view.getZrTableItemDelegate()->parent(), table);
        QCOMPARE(view.itemHeight(), 20);
        QVERIFY(!view.headLineColor().isValid());
        QCOMPARE(view.focusProxy(), table);
        QVERIFY(QMetaType::type("QMap<int, QList<QList<QVariantMap>>>") != QMetaType::UnknownType);
        QVERIFY(qobject_cast<IZrSkin *>(&view));
        QVERIFY(view.inherits("ZrViewBase"));
    }

    void headFindsItsViewFromItsPlace()
    {
        QWidget window;
        ZrTableView *const view = new ZrTableView(&window);
        QCOMPARE(ZrHeaderHost::of(view->getZrTableHorizontalHeader()), view->getPrivate());
        QCOMPARE(view->getPrivate()->pseudoColumnCount(), 0);
        view->setCheckBoxShow(true);
        QCOMPARE(view->getPrivate()->pseudoColumnCount(), 1);
        HeadList heads = kit::heads(3);
        view->setHeadList(heads);
        view->setFrozenColumns(2, true, 1);
        QCOMPARE(view->getPrivate()->frozenCount(ZrHeaderHost::Side::Right), 1);
        QCOMPARE(ZrHeaderHost::of(view->getTableView()->frozenTable(2)->horizontalHeader()),
                 view->getPrivate());
    }

    void viewWritesItsNameWhenItGoes()
    {
        ZrTableView *const view = new ZrTableView;
        view->setObjectName(QStringLiteral("orders"));
        QTest::ignoreMessage(QtDebugMsg, "ZrTableView::~ZrTableView \"orders\"");
        delete view;
    }

    void resizingIsLogged()
    {
        ZrTableView view;
        kit::setUp(&view, 2, 2);
        QTest::ignoreMessage(QtDebugMsg,
                             QRegularExpression(QStringLiteral("^ZrTableView::resizeEvent QSize")));
        view.resize(410, 310);
        QCoreApplication::processEvents();
        view.setSummaryLineEnable(true);
        QTest::ignoreMessage(QtDebugMsg, QRegularExpression(QStringLiteral(
                                             "^ZrTableView::resizeEvent QSize\\(\\d+, \\d+\\)$")));
        view.resize(420, 320);
        QCoreApplication::processEvents();
    }

    void tableSignalsAreToldByTheView()
    {
        ZrTableView view;
        kit::setUp(&view, 4, 3);
        FreezeTableView *const table = view.getTableView();
        QSignalSpy pressed(&view, &ZrTableView::pressed);
        QSignalSpy clicked(&view, &ZrTableView::clicked);
        QSignalSpy doubled(&view, &ZrTableView::doubleClicked);
        QSignalSpy current(&view, &ZrTableView::currentIndexChanged);
        QSignalSpy activated(&view, &ZrTableView::activated);
        QSignalSpy entered(&view, &ZrTableView::entered);
        QSignalSpy viewportEntered(&view, &ZrTableView::viewportEntered);
        QSignalSpy iconSize(&view, &ZrTableView::iconSizeChanged);
        click(table, 1, 1);
        QCOMPARE(pressed.count(), 1);
        QCOMPARE(clicked.count(), 1);
        QCOMPARE(current.count(), 1);
        QTest::mouseDClick(table->viewport(), Qt::LeftButton, Qt::NoModifier, kit::middleOf(table, 1, 1));
        QCOMPARE(doubled.count(), 1);
        const int before = activated.count();
        QTest::keyClick(table, Qt::Key_Return);
        QCOMPARE(activated.count(), before + 1);
        emit table->entered(view.index(0, 0));
        emit table->viewportEntered();
        table->setIconSize(QSize(9, 9));
        QCOMPARE(entered.count(), 1);
        QCOMPARE(viewportEntered.count(), 1);
        QCOMPARE(iconSize.count(), 1);
    }

    // --- Row click ---

    void clickInTheCheckColumnTicksTheRow()
    {
        Checked c;
        QSignalSpy spy(&c.view, &ZrTableView::signalRowCheckStateChanged);
        click(c.view.getTableView(), 2, 0);
        QCOMPARE(c.view.getRowsByCheckStatus(true), QList<int>{2});
        QCOMPARE(spy.count(), 1);
        QCOMPARE(spy.first().first().toInt(), 2);
        QCOMPARE(spy.first().last().toInt(), 1);
        click(c.view.getTableView(), 2, 0);
        QVERIFY(c.view.getRowsByCheckStatus(true).isEmpty());
    }

    void clickElsewhereTicksOnlyWhenEnabled()
    {
        Checked c;
        click(c.view.getTableView(), 1, 2);
        QVERIFY(c.view.getRowsByCheckStatus(true).isEmpty());
        c.view.SetRowCheckOnClickEnable(true);
        click(c.view.getTableView(), 1, 2);
        QCOMPARE(c.view.getRowsByCheckStatus(true), QList<int>{1});
    }

    void disabledRowIsNotTicked()
    {
        Checked c;
        c.view.setCheckBoxEnabledByRow(1, false);
        click(c.view.getTableView(), 1, 0);
        QVERIFY(c.view.getRowsByCheckStatus(true).isEmpty());
    }

    void rowWithoutABoxIsTickedAllTheSame()
    {
        Checked c;
        c.view.updataRecordData({{0, kit::cell(QStringLiteral("k1"))}, {-1, {{ITEM_CUSTOMROLE, true}}}});
        click(c.view.getTableView(), 1, 0);
        QCOMPARE(c.view.getRowsByCheckStatus(true), QList<int>{1});
    }

    void withoutCheckBoxesAClickTicksNothing()
    {
        ZrTableView view;
        kit::setUp(&view, 2, 3);
        view.SetRowCheckOnClickEnable(true);
        click(view.getTableView(), 1, 0);
        view.getPrivate()->slotClickedIndexModel(QModelIndex());
        QVERIFY(view.getRowsByCheckStatus(true).isEmpty());
    }

    void highlightedRowIsRepaintedAcrossAllColumns()
    {
        Checked c;
        c.view.setCheckedColor(QColor(1, 2, 3, 40));
        c.view.SetCheckedRowHighlight(true);
        QVERIFY(c.view.GetCheckedRowHighlight());
        QVERIFY(c.view.getZrTableItemDelegate()->getDelegatePrivate()->checkedRowHighlight);
        QSignalSpy changed(c.view.getZrTableModel(), &QAbstractItemModel::dataChanged);
        click(c.view.getTableView(), 1, 0);
        QCOMPARE(changed.last().at(0).toModelIndex(), c.view.getZrTableModel()->index(1, 0));
        QCOMPARE(changed.last().at(1).toModelIndex(), c.view.getZrTableModel()->index(1, 3));
    }

    void headAndRowsAgreeOnTheCheckState()
    {
        Checked c;
        QSignalSpy head(&c.view, &ZrTableView::signalHeadCheckStateChanged);
        QHeaderView *const header = c.view.getZrTableHorizontalHeader();
        QTest::mouseClick(header->viewport(), Qt::LeftButton, Qt::NoModifier, kit::middleOf(header, 0));
        QCOMPARE(c.view.getRowsByCheckStatus(true).size(), 4);
        QCOMPARE(head.count(), 1);
        QCOMPARE(head.first().first().toInt(), 2);
        QCOMPARE(c.view.getZrTableModel()->getModelPrivate()->headCheckState, 2);
        click(c.view.getTableView(), 0, 0);
        QCOMPARE(c.view.getZrTableModel()->getModelPrivate()->headCheckState, 1);
        QCOMPARE(head.count(), 1); // the head follows in silence
    }

    // --- Replacing parts ---

    void replacedModelIsWiredLikeTheFirst()
    {
        Checked c;
        const QPointer<ZrTableModel> old = c.view.getZrTableModel();
        ZrTableModel *const model = new ZrTableModel;
        model->setKeyColumn({0});
        c.view.setZrTableModel(model);
        c.view.setZrTableModel(nullptr);
        QCOMPARE(c.view.getZrTableModel(), model);
        QCOMPARE(model->parent(), c.view.getTableView());
        QCOMPARE(c.view.getTableView()->model(), model);
        QVERIFY(model->isCheckBoxShow());
        HeadList heads = kit::heads(3);
        c.view.setHeadList(heads);
        kit::fill(&c.view, 3, 3);
        QSignalSpy row(&c.view, &ZrTableView::signalRowCheckStateChanged);
        QSignalSpy sorted(&c.view, &ZrTableView::signalSortIndicatorChanged);
        QSignalSpy resets(model, &QAbstractItemModel::modelReset);
        c.view.setSortIndicator(1, Qt::DescendingOrder);
        QCOMPARE(sorted.count(), 1);
        QCOMPARE(resets.count(), 1);
        QCOMPARE(c.view.getKeyStringByRow(0), QStringLiteral("k2"));
        c.view.getTableView()->doItemsLayout();
        click(c.view.getTableView(), 1, 0);
        QCOMPARE(row.count(), 1);
        c.view.setAllCheckBoxChecked(true);
        QCOMPARE(c.view.getRowsByCheckStatus(true).size(), 3);
        QTRY_VERIFY(!old);
    }

    void replacedHeadIsWiredLikeTheFirst()
    {
        Checked c;
        c.view.setHeadLineColor(Qt::green);
        ZrHeaderView *const head = new ZrHeaderView(Qt::Horizontal);
        head->setSectionsClickable(true);
        c.view.setZrTableHorizontalHeader(head);
        c.view.setZrTableHorizontalHeader(nullptr);
        QCOMPARE(c.view.getTableView()->horizontalHeader(), head);
        QSignalSpy state(&c.view, &ZrTableView::signalHeadCheckStateChanged);
        QSignalSpy filters(&c.view, &ZrTableView::signalFilterListChanged);
        head->setChecked(true);
        QCOMPARE(state.count(), 1);
        QCOMPARE(c.view.getRowsByCheckStatus(true).size(), 4);
        emit head->signalFilterListChanged({});
        QCOMPARE(filters.count(), 1);
        QVERIFY(!c.view.headSectionMovable());
    }

    void replacedDelegateGetsCheckBoxColourAndPictures()
    {
        Checked c;
        c.view.setFrozenColumns(1, true, 1);
        c.view.setGridLineColor(Qt::blue);
        c.view.setcheckPath(QUrl(QStringLiteral("check.svg")));
        const QPointer<ZrItemModelDeletage> old = c.view.getZrTableItemDelegate();
        ZrItemModelDeletage *const delegate = new ZrItemModelDeletage;
        c.view.setZrTableItemDelegate(delegate);
        c.view.setZrTableItemDelegate(nullptr);
        QCOMPARE(c.view.getZrTableItemDelegate(), delegate);
        QCOMPARE(delegate->parent(), c.view.getTableView());
        QVERIFY(delegate->getDelegatePrivate()->checkBoxShown);
        QCOMPARE(delegate->getDelegatePrivate()->gridColor, QColor(Qt::blue));
        QCOMPARE(delegate->getDelegatePrivate()->checkPath, QUrl(QStringLiteral("check.svg")));
        QCOMPARE(c.view.getTableView()->itemDelegate(), delegate);
        QCOMPARE(c.view.getTableView()->frozenTable(1)->itemDelegate(), delegate);
        QTRY_VERIFY(!old);
    }

    void sameOrNoPartChangesNothing()
    {
        Checked c;
        c.view.setZrTableModel(c.view.getZrTableModel());
        c.view.setZrTableHorizontalHeader(c.view.getZrTableHorizontalHeader());
        c.view.setZrTableItemDelegate(c.view.getZrTableItemDelegate());
        QCOMPARE(c.view.getRowCount(), 4);
    }

    void viewsEventFilterLetsEverythingPass()
    {
        ZrTableView view;
        QEvent event(QEvent::KeyPress);
        QVERIFY(!view.eventFilter(view.getTableView(), &event));
    }

    void currentRowSurvivesASort()
    {
        ZrTableView view;
        kit::setUp(&view, 5, 3);
        view.setCurrentIndex(view.index(1, 0));
        view.setSortIndicator(1, Qt::DescendingOrder);
        QCOMPARE(view.getKeyStringByRow(view.currentIndex().row()), QStringLiteral("k1"));
        view.addRecordData(kit::record(QStringLiteral("late"), 3, 100));
        QCOMPARE(view.getRowByKey(QStringLiteral("late")), 5);
    }
};

ZR_TEST_MAIN(TestZrTableView)
#include "tst_zrtableview.moc"
