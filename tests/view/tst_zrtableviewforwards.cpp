#include "ZrHeaderView_p.h"
#include "ZrItemModelDeletage.h"
#include "ZrItemModelDeletage_p.h"
#include "ZrReferenceHost.h"
#include "ZrTableModel_p.h"
#include "ZrTestMain.h"
#include "ZrViewTestKit.h"

#include <QtCore/QTemporaryDir>
#include <QtWidgets/QDialog>
#include <QtWidgets/QLabel>

/// The members of the facade that hand on to a part, and the little that they add.
class TestZrTableViewForwards : public QObject
{
    Q_OBJECT
private slots:
    void recordsGoToTheModelAndComeBack()
    {
        ZrTableView view;
        HeadList heads = kit::heads(3);
        view.setKeyColumn({0});
        view.setHeadList(heads);
        view.setMaxRowCount(5);
        QCOMPARE(view.getKeyColumn(), QList<int>{0});
        view.addRecordData(kit::record(QStringLiteral("b"), 3));
        QCOMPARE(view.insertRecordData(0, kit::record(QStringLiteral("a"), 3)), 1);
        QCOMPARE(view.insertRecordDataList(
                     2, {kit::record(QStringLiteral("c"), 3), kit::record(QStringLiteral("d"), 3)}),
                 2);
        QCOMPARE(view.getRowCount(), 4);
        QCOMPARE(view.getRowByKey(QStringLiteral("c")), 2);
        QCOMPARE(view.getKeyStringByRow(3), QStringLiteral("d"));
        QCOMPARE(view.getKeyStringByRow(9), QString());
        QCOMPARE(view.getKeyStringByRow(-1), QString());
        QVERIFY(view.getRowData(-1).isEmpty());
        QCOMPARE(view.getRowData(1), kit::record(QStringLiteral("b"), 3));
        QCOMPARE(view.getRowDataByKey(QStringLiteral("b")), kit::record(QStringLiteral("b"), 3));
        QCOMPARE(view.getRowDataByKeyCols(RecordData{{0, kit::cell(QStringLiteral("b"))}}),
                 view.getRowData(1));
        QCOMPARE(view.getRowDataByKeyCols(QMap<int, QString>{{0, QStringLiteral("b")}}), view.getRowData(1));
        view.updataRecordData({{0, kit::cell(QStringLiteral("b"))}, {1, kit::cell(77)}});
        QCOMPARE(view.getRowData(1).value(1).value(ITEM_USERROLE).toInt(), 77);
        view.updataRecordDatas({{{0, kit::cell(QStringLiteral("b"))}, {1, kit::cell(78)}}});
        QCOMPARE(view.getViewData().at(1).value(1).value(ITEM_USERROLE).toInt(), 78);
        QCOMPARE(view.deleteRecordData(kit::record(QStringLiteral("d"), 1)), 1);
        QCOMPARE(view.deleteRecordDataList({kit::record(QStringLiteral("c"), 1)}), 1);
        QCOMPARE(view.getViewCurrentDisplayData().size(), 2);
        view.deleteRow(-1);
        QCOMPARE(view.getRowCount(), 2);
        view.deleteRow(0);
        QCOMPARE(view.getRowCount(), 1);
        view.addRecordDataList({kit::record(QStringLiteral("x"), 3), kit::record(QStringLiteral("y"), 3)});
        QCOMPARE(view.getRowCount(), 3);
        view.clear();
        QCOMPARE(view.getRowCount(), 0);
        QCOMPARE(view.getHeadList().size(), 3);
    }

    void indexCountsLogicalColumns()
    {
        ZrTableView view;
        view.setCheckBoxShow(true);
        kit::setUp(&view, 2, 3);
        QCOMPARE(view.index(1, 2).column(), 3);
        QVERIFY(!view.index(1, 3).isValid());
    }

    void currentIndexIsSetWithAndWithoutScrolling()
    {
        ZrTableView view;
        kit::setUp(&view, 60, 3);
        QSignalSpy spy(&view, &ZrTableView::currentIndexChanged);
        view.setCurrentIndex(view.index(50, 1), false);
        QCOMPARE(view.currentIndex(), view.index(50, 1));
        QCOMPARE(view.getTableView()->verticalScrollBar()->value(), 0);
        QCOMPARE(spy.count(), 1);
        view.setCurrentIndex(view.index(55, 1), true);
        QVERIFY(view.getTableView()->verticalScrollBar()->value() > 0);
        QCOMPARE(spy.count(), 3); // the change itself, and the scrolling call
    }

    void latestRowIsShownWhileAsked()
    {
        ZrTableView view;
        kit::setUp(&view, 60, 3);
        QScrollBar *const bar = view.getTableView()->verticalScrollBar();
        view.setAlwaysDisplayLatest(true);
        view.setAlwaysDisplayLatest(true);
        view.addRecordData(kit::record(QStringLiteral("new"), 3));
        QTRY_VERIFY(bar->value() > 0);
        view.setAlwaysDisplayLatest(false);
        bar->setValue(0);
        view.addRecordData(kit::record(QStringLiteral("newer"), 3));
        QCoreApplication::processEvents();
        QCOMPARE(bar->value(), 0);
    }

    void latestRowIsShownOfAnotherModelToo()
    {
        ZrTableView view;
        kit::setUp(&view, 60, 3);
        QScrollBar *const bar = view.getTableView()->verticalScrollBar();
        view.setAlwaysDisplayLatest(true);
        const QPointer<ZrTableModel> old = view.getZrTableModel();
        auto *const model = new ZrTableModel(view.getTableView());
        view.setZrTableModel(model);
        view.setKeyColumn({0});
        HeadList heads = kit::heads(3);
        view.setHeadList(heads);
        kit::fill(&view, 60, 3);
        view.getTableView()->doItemsLayout();
        bar->setValue(0);
        old->addRecordData(kit::record(QStringLiteral("old"), 3)); // nobody sees that one
        QCOMPARE(bar->value(), 0);
        view.addRecordData(kit::record(QStringLiteral("new"), 3));
        QTRY_COMPARE(bar->value(), bar->maximum());
        QVERIFY(bar->maximum() > 0);
        view.setAlwaysDisplayLatest(false);
        bar->setValue(0);
        view.addRecordData(kit::record(QStringLiteral("newer"), 3));
        QCoreApplication::processEvents();
        QCOMPARE(bar->value(), 0);
    }

    void delayedDisplayTellsLater()
    {
        ZrTableView view;
        kit::setUp(&view, 0, 3);
        view.setViewDelayDisplayTime(0);
        QSignalSpy inserted(view.getZrTableModel(), &QAbstractItemModel::rowsInserted);
        QSignalSpy reset(view.getZrTableModel(), &QAbstractItemModel::modelReset);
        view.addRecordData(kit::record(QStringLiteral("a"), 3));
        QCOMPARE(inserted.count(), 0);
        QTRY_COMPARE(reset.count(), 1);
    }

    void checkBoxesGoToTheModel()
    {
        ZrTableView view;
        view.setCheckBoxShow(true);
        kit::setUp(&view, 3, 3);
        QVERIFY(view.setCheckBoxEnabledByKey(QStringLiteral("k0"), false));
        QVERIFY(view.setCheckBoxEnabledByRow(1, false));
        QVERIFY(!view.setCheckBoxEnabledByKey(QStringLiteral("none"), false));
        view.setCheckStatusByKey(QStringLiteral("k2"), true);
        QCOMPARE(view.getRowsByCheckStatus(true), QList<int>{2});
        view.setCheckStatusByRow(2, false);
        QCOMPARE(view.getRowsByCheckStatus(false), (QList<int>{0, 1, 2}));
        QSignalSpy spy(&view, &ZrTableView::signalHeadCheckStateChanged);
        view.setAllCheckBoxChecked(true);
        QCOMPARE(spy.count(), 1);
        QCOMPARE(view.getRowsByCheckStatus(true), QList<int>{2}); // the others are disabled
    }

    void serialNumbersComeWithTheirBegin()
    {
        ZrTableView view;
        view.setSerialNumberColumnPropety(ZrViewModel::SerialNumDescending);
        view.setBeginSerialNumber(100);
        kit::setUp(&view, 3, 2);
        QCOMPARE(view.getZrTableModel()->index(0, 0).data().toInt(), 103);
        QCOMPARE(view.getPrivate()->serialOrder, int(ZrViewModel::SerialNumDescending));
    }

    void alignmentIsReadFromCellsAndHeads()
    {
        ZrTableView view;
        kit::setUp(&view, 1, 3);
        view.setColumnDefaultTextAlignment(Qt::AlignLeft);
        view.setColumnTextAlignment(1, Qt::AlignRight);
        view.setHeadDefaultTextAlignment(Qt::AlignBottom);
        view.setHeadTextAlignment(1, Qt::AlignTop);
        const ZrTableModel *const model = view.getZrTableModel();
        QCOMPARE(view.index(0, 0).data(Qt::TextAlignmentRole).toInt(), int(Qt::AlignLeft));
        QCOMPARE(view.index(0, 1).data(Qt::TextAlignmentRole).toInt(), int(Qt::AlignRight));
        QCOMPARE(model->headerData(0, Qt::Horizontal, Qt::TextAlignmentRole).toInt(), int(Qt::AlignBottom));
        QCOMPARE(model->headerData(1, Qt::Horizontal, Qt::TextAlignmentRole).toInt(), int(Qt::AlignTop));
    }

    void itemsAreSelectableWhenAsked()
    {
        ZrTableView view;
        kit::setUp(&view, 1, 2);
        QVERIFY(!(view.index(0, 0).flags() & Qt::ItemIsSelectable));
        view.setItemSelectable(true);
        QVERIFY(view.index(0, 0).flags() & Qt::ItemIsSelectable);
    }

    void lastSectionStretchesWhenAsked()
    {
        ZrTableView view;
        kit::setUp(&view, 1, 2);
        view.setSummaryLineEnable(true);
        view.setStretchLastSection(false);
        QVERIFY(!view.getZrTableHorizontalHeader()->stretchLastSection());
        QVERIFY(!view.getSummaryHeadView()->stretchLastSection());
    }

    // --- Rows ---

    void itemHeightKeepsRowsThatHadTheirOwn()
    {
        ZrTableView view;
        kit::setUp(&view, 5, 2);
        QCOMPARE(view.getTableView()->rowHeight(0), 20);
        view.setRowHeight(2, 60);
        view.setItemHeight(25);
        QCOMPARE(view.itemHeight(), 25);
        QCOMPARE(view.getTableView()->rowHeight(0), 25);
        QCOMPARE(view.getTableView()->rowHeight(2), 60);
        view.addRecordData(kit::record(QStringLiteral("new"), 2));
        QCOMPARE(view.getTableView()->rowHeight(5), 25);
    }

    void itemHeightRulesNoRowsOnceADefaultHeightIsSet()
    {
        ZrTableView view;
        kit::setUp(&view, 2, 2);
        view.setRowDefaultHeight(44);
        QCOMPARE(view.getTableView()->rowHeight(1), 44);
        view.setItemHeight(25);
        QCOMPARE(view.itemHeight(), 25);
        QCOMPARE(view.getTableView()->rowHeight(1), 44);
    }

    void widgetInACellIsFoundByItsLogicalColumn()
    {
        ZrTableView view;
        view.setCheckBoxShow(true);
        kit::setUp(&view, 3, 3);
        QLabel *const label = new QLabel;
        label->resize(40, 57);
        view.setItemWidget(1, 2, label, true);
        QCOMPARE(view.indexWidget(1, 2), label);
        QCOMPARE(view.getTableView()->indexWidget(view.getZrTableModel()->index(1, 3)), label);
        QCOMPARE(view.getTableView()->rowHeight(1), 57);
        QCOMPARE(view.indexWidget(0, 2), nullptr);
        QCOMPARE(view.indexWidget(1, -1), nullptr);
        QCOMPARE(view.indexWidget(9, 0), nullptr);
        QLabel stray;
        view.setItemWidget(1, -1, &stray);
        view.setItemWidget(9, 0, &stray);
        QVERIFY(!stray.parent());
    }

    // --- Sorting and filtering ---

    void clickSortsUnlessTheViewIsNotSortable()
    {
        ZrTableView view;
        kit::setUp(&view, 3, 3);
        QHeaderView *const head = view.getZrTableHorizontalHeader();
        QSignalSpy spy(&view, &ZrTableView::signalSortIndicatorChanged);
        head->setSortIndicator(1, Qt::DescendingOrder);
        QCOMPARE(view.getKeyStringByRow(0), QStringLiteral("k2"));
        QCOMPARE(spy.count(), 1);
        view.setViewSortable(false);
        QVERIFY(!view.getZrTableHorizontalHeader()->isSortbale());
        head->setSortIndicator(1, Qt::AscendingOrder);
        QCOMPARE(view.getKeyStringByRow(0), QStringLiteral("k2"));
    }

    void columnSortableIsKeptByHeadPosition()
    {
        ZrTableView view;
        HeadList heads{{{HEAD_COLUMNINDEX, 10}}, {{HEAD_COLUMNINDEX, 20}}};
        view.setHeadList(heads);
        QTest::ignoreMessage(QtDebugMsg, "ZrTableView::setColumnSortable 1 false");
        view.setColumnSortable(20, false);
        QCOMPARE(view.getZrTableModel()->getModelPrivate()->perColumnSortable, (QMap<int, bool>{{1, false}}));
        QCOMPARE(view.getZrTableHorizontalHeader()->getPrivate()->perColumnSortable,
                 (QMap<int, bool>{{1, false}}));
        QTest::ignoreMessage(QtDebugMsg, "ZrTableView::setColumnSortable -1 true");
        view.setColumnSortable(30, true);
        QCOMPARE(view.getZrTableModel()->getModelPrivate()->perColumnSortable.size(), 1);
    }

    void sortIndicatorSpeaksOfLogicalColumns()
    {
        ZrTableView view;
        view.setCheckBoxShow(true);
        kit::setUp(&view, 3, 3);
        QVERIFY(!view.getZrTableHorizontalHeader()->isSortIndicatorShown());
        view.setSortIndicator(1, Qt::DescendingOrder);
        QVERIFY(view.getZrTableHorizontalHeader()->isSortIndicatorShown());
        QCOMPARE(view.getZrTableHorizontalHeader()->sortIndicatorSection(), 2);
        QCOMPARE(view.sortIndicatorSection(), 1);
        QCOMPARE(view.sortIndicatorOrder(), Qt::DescendingOrder);
        QCOMPARE(view.getKeyStringByRow(0), QStringLiteral("k2"));
    }

    void filteringNeedsKeyColumns()
    {
        ZrTableView view;
        HeadList heads = kit::heads(3);
        view.setHeadList(heads);
        for (int call = 0; call < 4; ++call)
            QTest::ignoreMessage(QtDebugMsg, "KeyColum is null, can not filter");
        view.setViewFilterable(true);
        view.setColumnFilterable(1, true);
        view.setColumnFilterable(1, false);
        view.setColumnFilterDataList(1, {{{QStringLiteral("0"), 1}}});
        QVERIFY(!view.getZrTableModel()->getModelPrivate()->filterable);
    }

    void filteringNeedsAHead()
    {
        ZrTableView view;
        HeadList heads = kit::heads(3);
        view.setHeadList(heads);
        view.setKeyColumn({0});
        for (int call = 0; call < 3; ++call)
            QTest::ignoreMessage(QtDebugMsg, "columnFieldIndex is no valid");
        view.setColumnFilterable(7, true);
        view.setColumnFilterDataList(7, {});
        view.setColumnMatchFilterFunction(7,
                                          [](const QVariant &, const QList<QVariantMap> &) { return true; });
        QVERIFY(!view.getZrTableModel()->getModelPrivate()->filterable);
        QVERIFY(view.getZrTableModel()->getModelPrivate()->matchFunctions.isEmpty());
    }

    void columnFilterEntersFilterModeAndKeepsItWhenTakenBack()
    {
        ZrTableView view;
        kit::setUp(&view, 3, 3);
        const ZrTableModelPrivate *const model = view.getZrTableModel()->getModelPrivate();
        view.setColumnFilterable(1, true);
        QVERIFY(model->filterable);
        QCOMPARE(view.getRowCount(), 3);
        view.setColumnFilterDataList(1, {kit::cell(5), kit::cell(6)});
        QCOMPARE(model->columnFilterData.value(1),
                 (RecordDataList{{{0, kit::cell(5)}}, {{0, kit::cell(6)}}}));
        view.setColumnFilterable(1, false);
        QVERIFY(model->filterable);
        QVERIFY(model->columnFilterData.isEmpty());
    }

    void filterButtonNeedsFilterMode()
    {
        ZrTableView view;
        kit::setUp(&view, 1, 2);
        QTest::ignoreMessage(QtDebugMsg, "you must set View Filterable ");
        view.setViewFilterbuttonAlwayVisiable(false);
        view.setViewFilterable(true);
        view.setViewFilterbuttonAlwayVisiable(false);
        view.setViewFilterable(false);
        QVERIFY(!view.getZrTableModel()->getModelPrivate()->filterable);
    }

    void filterStateIsReplacedAndRead()
    {
        ZrTableView view;
        kit::setUp(&view, 3, 3);
        view.setViewFilterable(true);
        view.setColumnMatchFilterFunction(
            1, [](const QVariant &value, const QList<QVariantMap> &) { return value.toInt() == 2; });
        const ViewFilterList filters{{1, {{QVariantMap()}}}};
        QSignalSpy reset(view.getZrTableModel(), &QAbstractItemModel::modelReset);
        view.resetViewCurrentFilterList(filters);
        QCOMPARE(reset.count(), 0); // the caller's own reset follows
        QCOMPARE(view.getViewCurrentFilterList(), filters);
        QCOMPARE(view.getRowCount(), 1);
        QVERIFY(view.getPrivate()->isColumnFiltered(1));
        QVERIFY(!view.getPrivate()->isColumnFiltered(2));
        view.removeColumnMatchFilterFunction(1);
        QCOMPARE(view.getRowCount(), 3);
    }

    void filterChoiceOfAnyHeadIsToldOnce()
    {
        ZrTableView view;
        kit::setUp(&view, 1, 3);
        view.setFrozenColumns(1, true, 1);
        QSignalSpy spy(&view, &ZrTableView::signalFilterListChanged);
        view.getPrivate()->filterChoiceChanged(view.getZrTableHorizontalHeader());
        QCOMPARE(spy.count(), 1);
        ZrHeaderView *const side =
            qobject_cast<ZrHeaderView *>(view.getTableView()->frozenTable(1)->horizontalHeader());
        QVERIFY(side);
        view.getPrivate()->filterChoiceChanged(side);
        QCOMPARE(spy.count(), 2);
    }

    void filterButtonAsksForAListOnceTheColumnHasSeenData()
    {
        ZrTableView view;
        kit::setUp(&view, 0, 3);
        view.getPrivate()->openFilter(view.getZrTableHorizontalHeader(), 1, QRect(1, 2, 3, 4));
        QVERIFY(!view.findChild<QDialog *>());
        kit::fill(&view, 1, 3);
        QTest::ignoreMessage(QtWarningMsg, "This plugin does not support raise()");
        view.getPrivate()->openFilter(view.getZrTableHorizontalHeader(), 1, QRect(1, 2, 3, 4));
        QVERIFY(view.findChild<QDialog *>());
        QVERIFY(view.findChild<QDialog *>()->isVisible());
    }

    // --- Look ---

    void gridLookGoesToTheDelegates()
    {
        ZrTableView view;
        view.setSummaryLineEnable(true);
        const ZrItemModelDeletagePrivate *const cells = view.getZrTableItemDelegate()->getDelegatePrivate();
        const ZrItemModelDeletagePrivate *const sums =
            view.getPrivate()->summaryDelegate->getDelegatePrivate();
        view.setGridLineStyle(3);
        QCOMPARE(view.gridLineStyle(), 3);
        QCOMPARE(sums->gridLineStyle, 3);
        view.setItemGridShow(false);
        QVERIFY(!cells->itemGridShown);
        view.setItemGridColor(Qt::red);
        QCOMPARE(cells->gridColor, QColor(Qt::red));
        QCOMPARE(view.gridLineColor(), QColor(Qt::red));
        QCOMPARE(sums->gridColor, QColor(Qt::red));
        view.setColumnDefaultXMargin(6);
        QCOMPARE(cells->columnXMargin, 6);
        QCOMPARE(sums->columnXMargin, 6);
        view.setHeadDefaultXMargin(5);
        view.setHeadTip(1, QStringLiteral("help"));
        QCOMPARE(view.getZrTableHorizontalHeader()->getPrivate()->headXMargin, 5);
        QCOMPARE(view.getZrTableHorizontalHeader()->getPrivate()->headTips.value(1), QStringLiteral("help"));
        view.SetAlternatingRowColors(false);
        QVERIFY(!view.getTableView()->alternatingRowColors());
    }

    void picturesAndColoursReachThePartsWhenTheyChange()
    {
        ZrTableView view;
        view.setSummaryLineEnable(true);
        for (const char *name :
             {"checkPath", "uncheckPath", "tristatePath", "filterPath", "filteredPath", "filterHoverPath"}) {
            const QUrl path(QStringLiteral("images/%1.svg").arg(QLatin1String(name)));
            QVERIFY(view.setProperty(name, path));
            QCOMPARE(view.property(name).toUrl(), path);
        }
        for (const char *name : {"headlinecolor", "gridlinecolor", "upColor", "downColor", "checkedColor"}) {
            QVERIFY(view.setProperty(name, QColor(10, 20, 30)));
            QCOMPARE(view.property(name).value<QColor>(), QColor(10, 20, 30));
        }
        QVERIFY(view.setProperty("itemHeight", 33));
        QCOMPARE(view.property("itemHeight").toInt(), 33);
        const ZrItemModelDeletagePrivate *const cells = view.getZrTableItemDelegate()->getDelegatePrivate();
        QCOMPARE(cells->checkPath, view.checkPath());
        QCOMPARE(cells->uncheckPath, view.uncheckPath());
        QCOMPARE(cells->tristatePath, view.tristatePath());
        QCOMPARE(cells->gridColor, QColor(10, 20, 30));
        QCOMPARE(cells->checkedColor, QColor(10, 20, 30));
        using Picture = ZrHeaderHost::Picture;
        const ZrTableViewPrivate *const d = view.getPrivate();
        QCOMPARE(d->headPicture(Picture::Check), view.checkPath());
        QCOMPARE(d->headPicture(Picture::Uncheck), view.uncheckPath());
        QCOMPARE(d->headPicture(Picture::Tristate), view.tristatePath());
        QCOMPARE(d->headPicture(Picture::Filter), view.filterPath());
        QCOMPARE(d->headPicture(Picture::Filtered), view.filteredPath());
        QCOMPARE(d->headPicture(Picture::FilterHover), view.filterHoverPath());
        QCOMPARE(d->headKind(), ZrHeaderHost::Kind::Table);
    }

    void styleSheetSetsTheProperties()
    {
        ZrTableView view;
        view.loadSkin(
            QStringLiteral("ZrTableView { qproperty-itemHeight: 41; qproperty-upColor: #010203; }"));
        kit::show(&view);
        QTRY_COMPARE(view.itemHeight(), 41);
        QCOMPARE(view.upColor(), QColor(1, 2, 3));
        view.loadSkin(QVariant());
        QVERIFY(!view.styleSheet().isEmpty());
    }

    void newViewHasTheSheetOfTheSkinInUse()
    {
        QTemporaryDir folder;
        QVERIFY(QDir(folder.path()).mkpath(QStringLiteral("dark/system/zrwidget")));
        QFile sheet(folder.filePath(QStringLiteral("dark/system/zrwidget/zrtableview.css")));
        QVERIFY(sheet.open(QIODevice::WriteOnly));
        const QByteArray text("ZrTableView { qproperty-itemHeight: 37; }");
        sheet.write(text);
        sheet.close();
        ZrReferenceHost host;
        ZrReferenceHost::Options options;
        options.configFolder = folder.path();
        options.skinRoot = folder.path();
        options.skinId = QStringLiteral("dark");
        QVERIFY2(host.start(options), qPrintable(host.errorText()));
        ZrTableView view;
        QCOMPARE(view.styleSheet(), QString::fromLatin1(text));
    }

    void headIsHiddenAndShownByTwoOppositeSwitches()
    {
        ZrTableView view;
        view.setHorizontalHeaderHide(true);
        QVERIFY(view.getZrTableHorizontalHeader()->isHidden());
        view.setZrTableHorizontalHeaderVisiable(true);
        QVERIFY(!view.getZrTableHorizontalHeader()->isHidden());
        view.setZrTableHorizontalHeaderVisiable(false);
        QVERIFY(view.getZrTableHorizontalHeader()->isHidden());
        view.setHorizontalHeaderHide(false);
        QVERIFY(!view.getZrTableHorizontalHeader()->isHidden());
    }

    // --- Plain members of the table ---

    void plainMembersActOnTheTable()
    {
        ZrTableView view;
        kit::setUp(&view, 4, 4);
        view.setSelectionBehavior(QAbstractItemView::SelectRows);
        view.setSelectionMode(QAbstractItemView::MultiSelection);
        QCOMPARE(view.getTableView()->selectionBehavior(), QAbstractItemView::SelectRows);
        QCOMPARE(view.getTableView()->selectionMode(), QAbstractItemView::MultiSelection);
        view.setSpan(0, 0, 2, 3);
        QCOMPARE(view.rowSpan(0, 0), 2);
        QCOMPARE(view.columnSpan(0, 0), 3);
        view.clearSpans();
        QCOMPARE(view.rowSpan(0, 0), 1);
        QTest::ignoreMessage(QtDebugMsg, "ZrItemModelDeletage::createEditor");
        view.openPersistentEditor(view.index(0, 0)); // no editor: the delegate offers none
        view.closePersistentEditor(view.index(0, 0));
        QVERIFY(!view.getTableView()->isPersistentEditorOpen(view.index(0, 0)));
    }
};

ZR_TEST_MAIN(TestZrTableViewForwards)
#include "tst_zrtableviewforwards.moc"
