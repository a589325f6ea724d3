#include "FilterScene.h"
#include "FreezeTableView.h"
#include "ZrHeaderView_p.h"
#include "ZrPluginBaseWidget.h"
#include "ZrRangeChoice.h"
#include "ZrRoleKeys.h"
#include "ZrTableView_p.h"
#include "ZrTestMain.h"

#include <QtGui/QGuiApplication>
#include <QtGui/QScreen>
#include <QtWidgets/QLineEdit>
#include <zrdefine/VexlorFields.h>

using Groups = QList<QList<QVariantMap>>;

namespace {
bool isA(const QVariant &value, const QList<QVariantMap> &conditions)
{
    for (const QVariantMap &each : conditions) {
        if (each.value(ITEM_USERROLE) == value)
            return true;
    }
    return false;
}

class Plugin : public ZrPluginBaseWidget
{
public:
    using ZrPluginBaseWidget::ZrPluginBaseWidget;
    void initPlugin() override {}
};

ZrHeaderView *sideHead(ZrTableView *grid, int side)
{
    return qobject_cast<ZrHeaderView *>(grid->getTableView()->frozenTable(side)->horizontalHeader());
}
} // namespace

class tst_ZrHeaderFilter : public QObject
{
    Q_OBJECT
private slots:
    void pressOpensBelowTheButton();
    void secondPressUsesTheSamePopup();
    void columnWithoutDataOpensNothing();
    void columnWhoseRowsAreGoneShowsTheHeadRow();
    void nearTheRightEdgeThePopupOpensToTheLeft();
    void hostileTextKeepsWithinTheScreen();
    void ticksFilterTheGridAtOnce();
    void untickingTheLastShowsAllRows();
    void filterInForceIsTickedOnReopening();
    void numbersAreFilteredByRange();
    void ownChoicesAreShown();
    void matchFunctionGetsOneGroup();
    void summaryCountsTheShownRows();
    void signalsTellTheFilter();
    void anotherColumnFillsThePanelAnew();
    void sideHeadsShareThePopup();
    void popupOfASideTableGoesWithIt();
    void popupOpensInAHostedDialog();
    void popupOfAModalDialogTakesTheMouse();
    void popupWorksAfterThePluginIsGone();
    void replacedHeadOpensAPopupOfItsOwn();
    void pressOnTheButtonOfAnOpenPopupOpensItAgain();
    void choiceWithoutAPopupOnlyTellsTheFilter();
    void headThatStandsNowhereTellsNothing();
    void filteredButtonIsPaintedAtOnce();
};

void tst_ZrHeaderFilter::pressOpensBelowTheButton()
{
    FilterScene s;
    QVERIFY(!s.popup());
    s.press(FilterScene::Text);
    QVERIFY(s.isOpen());
    QCOMPARE(s.popup()->parentWidget(), s.head());
    QVERIFY(s.popup()->isWindow());
    QCOMPARE(s.popup()->size(), s.panel()->size());
    QVERIFY(s.panel()->isVisible());
    QCOMPARE(s.panel()->column(), int(FilterScene::Text));
    const QRect button = s.head()->getPrivate()->filterButtonRects.value(FilterScene::Text);
    QCOMPARE(s.popup()->pos(), s.head()->mapToGlobal(button.bottomLeft()));
    QCOMPARE(s.listed(), QStringList({"Select all", "a", "b", "c"}));
    QTRY_VERIFY(s.search()->hasFocus());
}

void tst_ZrHeaderFilter::secondPressUsesTheSamePopup()
{
    FilterScene s;
    s.press(FilterScene::Text);
    const QPointer<ZrDialog> first = s.popup();
    const QPointer<ZrViewFilterWidget> panel = s.panel();
    first->hide();
    s.press(FilterScene::Key);
    QCOMPARE(s.popup(), first.data());
    QCOMPARE(s.panel(), panel.data());
    QVERIFY(s.isOpen());
    QCOMPARE(s.popup()->size(), s.panel()->size());
}

void tst_ZrHeaderFilter::columnWithoutDataOpensNothing()
{
    FilterScene s;
    s.press(FilterScene::Unseen);
    QVERIFY(!s.popup());
    RecordData row = FilterScene::record(0);
    row.insert(FilterScene::Unseen, FilterScene::cell("seen"));
    s.grid->updataRecordData(row);
    s.press(FilterScene::Unseen);
    QVERIFY(s.isOpen());
    QCOMPARE(s.listed(), QStringList({"Select all", "seen"}));
}

void tst_ZrHeaderFilter::columnWhoseRowsAreGoneShowsTheHeadRow()
{
    FilterScene s;
    s.grid->clear();
    for (const int column : {FilterScene::Text, FilterScene::Number}) {
        s.press(column);
        QVERIFY(s.isOpen());
        QCOMPARE(s.listed(), QStringList({"*Select all"}));
    }
}

void tst_ZrHeaderFilter::nearTheRightEdgeThePopupOpensToTheLeft()
{
    FilterScene s;
    const QRect screen = QGuiApplication::primaryScreen()->availableGeometry();
    // The button's left edge stands 30 px from the edge of the screen.
    const QRect atFirst = [&s] {
        s.press(FilterScene::Number);
        return s.head()->getPrivate()->filterButtonRects.value(FilterScene::Number);
    }();
    s.popup()->hide();
    const int now = s.head()->mapToGlobal(atFirst.topLeft()).x();
    s.desk.mainWindow.move(s.desk.mainWindow.pos() + QPoint(screen.right() - 30 - now, 0));
    s.press(FilterScene::Number);
    QVERIFY(s.isOpen());
    const QPoint corner = s.head()->mapToGlobal(atFirst.bottomLeft());
    QCOMPARE(s.popup()->pos(), corner - QPoint(s.popup()->width(), 0));
    QVERIFY(screen.contains(s.popup()->geometry()));
}

void tst_ZrHeaderFilter::hostileTextKeepsWithinTheScreen()
{
    FilterScene s;
    RecordData row = FilterScene::record(0);
    row.insert(FilterScene::Text, FilterScene::cell(DialogScene::withoutBlank()));
    s.grid->updataRecordData(row);
    s.press(FilterScene::Text);
    const QRect screen = QGuiApplication::primaryScreen()->availableGeometry();
    QVERIFY(s.isOpen());
    QCOMPARE(s.popup()->width(), screen.width());
    QCOMPARE(s.popup()->height(), 150);
    QVERIFY(screen.contains(s.popup()->geometry()));
    QCOMPARE(s.panel()->size(), s.popup()->size());
}

void tst_ZrHeaderFilter::ticksFilterTheGridAtOnce()
{
    FilterScene s;
    s.press(FilterScene::Text);
    s.clickBox(1);
    QCOMPARE(s.shown(), QStringList({"k0", "k3", "k6"}));
    QVERIFY(s.isOpen());
    s.clickText(3);
    QCOMPARE(s.shown(), QStringList({"k0", "k2", "k3", "k5", "k6", "k8"}));
    QCOMPARE(s.grid->getViewCurrentFilterList().value(FilterScene::Text).size(), 2);
    // A row that comes is held against the filter too.
    s.grid->addRecordDataList({FilterScene::record(9), FilterScene::record(10)});
    QCOMPARE(s.shown().last(), QString("k9"));
}

void tst_ZrHeaderFilter::untickingTheLastShowsAllRows()
{
    FilterScene s;
    s.press(FilterScene::Text);
    s.clickBox(1);
    s.clickBox(1);
    QCOMPARE(s.shown().size(), 9);
    QVERIFY(s.grid->getViewCurrentFilterList().isEmpty());
}

void tst_ZrHeaderFilter::filterInForceIsTickedOnReopening()
{
    FilterScene s;
    s.press(FilterScene::Text);
    s.clickBox(2);
    s.popup()->hide();
    s.press(FilterScene::Text);
    // All values of the column, not only those of the rows that are shown.
    QCOMPARE(s.listed(), QStringList({"Select all", "a", "*b", "c"}));
    s.grid->resetViewCurrentFilterList({});
    s.press(FilterScene::Text);
    QCOMPARE(s.listed(), QStringList({"Select all", "a", "b", "c"}));
}

void tst_ZrHeaderFilter::numbersAreFilteredByRange()
{
    FilterScene s(100);
    s.press(FilterScene::Number);
    const QStringList listed = s.listed();
    QVERIFY(listed.size() > 2);
    QVERIFY(listed.at(1).contains(ZrRangeChoice::separator()));
    const QStringList bounds = listed.at(2).split(ZrRangeChoice::separator());
    s.clickBox(2);
    QCOMPARE(s.shown().first(), QString("k%1").arg(bounds.first().toInt() - 1));
    QCOMPARE(s.shown().last(), QString("k%1").arg(bounds.last().toInt() - 1));
    QCOMPARE(s.shown().size(), bounds.last().toInt() - bounds.first().toInt() + 1);
}

void tst_ZrHeaderFilter::ownChoicesAreShown()
{
    FilterScene s;
    s.grid->setColumnFilterDataList(FilterScene::Text,
                                    {{{ITEM_DISPLAYROLE, "A and no more"}, {ITEM_USERROLE, "a"}},
                                     {{ITEM_DISPLAYROLE, "nobody"}, {ITEM_USERROLE, "z"}}});
    s.press(FilterScene::Text);
    QCOMPARE(s.listed(), QStringList({"Select all", "A and no more", "nobody"}));
    s.clickBox(1);
    QCOMPARE(s.shown(), QStringList({"k0", "k3", "k6"}));
}

void tst_ZrHeaderFilter::matchFunctionGetsOneGroup()
{
    FilterScene s;
    s.grid->setColumnMatchFilterFunction(FilterScene::Text, isA);
    QSignalSpy one(s.head(), &ZrHeaderView::signalFilterChanged);
    s.press(FilterScene::Text);
    s.clickBox(1);
    s.clickBox(2);
    QCOMPARE(s.shown(), QStringList({"k0", "k1", "k3", "k4", "k6", "k7"}));
    const Groups groups = s.grid->getViewCurrentFilterList().value(FilterScene::Text);
    QCOMPARE(groups.size(), 1);
    QCOMPARE(groups.first().size(), 2);
    QVERIFY(!groups.first().first().contains(Vexlor_Fields::Infomation::compareOperator));
    QCOMPARE(one.count(), 2);
    QCOMPARE(one.last().at(1).value<Groups>(), groups);
    s.clickBox(1);
    s.clickBox(2);
    QVERIFY(s.grid->getViewCurrentFilterList().isEmpty());
    QCOMPARE(s.shown().size(), 9);
}

void tst_ZrHeaderFilter::summaryCountsTheShownRows()
{
    FilterScene s;
    s.grid->setSummaryLineEnable(true, {FilterScene::Key, FilterScene::Text});
    const auto sum = [&s] {
        ZrTableModel *const model = s.grid->getPrivate()->summaryModel;
        return model->index(0, FilterScene::Number).data().toDouble();
    };
    QCOMPARE(sum(), 45.0);
    s.press(FilterScene::Text);
    s.clickBox(1);
    QCOMPARE(sum(), 1.0 + 4.0 + 7.0);
}

void tst_ZrHeaderFilter::signalsTellTheFilter()
{
    FilterScene s;
    QSignalSpy one(s.head(), &ZrHeaderView::signalFilterChanged);
    QSignalSpy all(s.head(), &ZrHeaderView::signalFilterListChanged);
    QSignalSpy view(s.grid.data(), &ZrTableView::signalFilterListChanged);
    s.press(FilterScene::Text);
    QCOMPARE(one.count() + all.count() + view.count(), 0);
    s.clickBox(1);
    QCOMPARE(one.count(), 1);
    QCOMPARE(one.first().at(0).toInt(), int(FilterScene::Text));
    QCOMPARE(one.first().at(1).value<Groups>(), s.grid->getViewCurrentFilterList().value(FilterScene::Text));
    QCOMPARE(all.count(), 1);
    QCOMPARE(view.count(), 1);
    QCOMPARE(view.first().first().value<ViewFilterList>(), s.grid->getViewCurrentFilterList());
    s.clickBox(1);
    QVERIFY(one.last().at(1).value<Groups>().isEmpty());
}

void tst_ZrHeaderFilter::anotherColumnFillsThePanelAnew()
{
    FilterScene s;
    s.press(FilterScene::Text);
    s.clickBox(1);
    s.press(FilterScene::Key);
    QVERIFY(s.isOpen());
    QCOMPARE(s.panel()->column(), int(FilterScene::Key));
    QCOMPARE(s.listed().size(), 10);
    s.clickBox(1);
    QCOMPARE(s.shown(), QStringList({"k0"}));
    QCOMPARE(s.grid->getViewCurrentFilterList().size(), 2);
}

void tst_ZrHeaderFilter::sideHeadsShareThePopup()
{
    FilterScene s;
    s.grid->setFrozenColumns(1, true, 1);
    s.grid->setFrozenColumns(2, true, 2);
    QCoreApplication::processEvents();
    ZrHeaderView *const left = sideHead(s.grid, 1);
    QVERIFY(left);
    QSignalSpy main(s.head(), &ZrHeaderView::signalFilterChanged);
    QSignalSpy view(s.grid.data(), &ZrTableView::signalFilterListChanged);
    s.press(FilterScene::Key, left);
    QVERIFY(s.isOpen());
    QCOMPARE(s.popup()->parentWidget(), left);
    const QRect button = s.head()->getPrivate()->filterButtonRects.value(FilterScene::Key);
    QCOMPARE(s.popup()->pos(), left->mapToGlobal(button.bottomLeft()));
    s.clickBox(1);
    QCOMPARE(s.shown(), QStringList({"k0"}));
    QCOMPARE(main.count(), 1);
    QCOMPARE(view.count(), 1);
    const QPointer<ZrDialog> popup = s.popup();
    popup->hide();
    s.press(FilterScene::Text);
    QCOMPARE(s.popup(), popup.data());
    QSignalSpy side(left, &ZrHeaderView::signalFilterChanged);
    s.clickBox(1);
    QCOMPARE(main.count(), 2);
    QCOMPARE(side.count(), 0); // who opened it last is asked
    ZrHeaderView *const right = sideHead(s.grid, 2);
    s.press(FilterScene::Number, right);
    QVERIFY(s.isOpen());
    QCOMPARE(s.panel()->column(), int(FilterScene::Number));
}

void tst_ZrHeaderFilter::popupOfASideTableGoesWithIt()
{
    FilterScene s;
    s.grid->setFrozenColumns(1, true, 1);
    QCoreApplication::processEvents();
    s.press(FilterScene::Key, sideHead(s.grid, 1));
    QVERIFY(s.isOpen());
    s.grid->setFrozenColumns(1, false, 0);
    QTRY_VERIFY(!s.popup());
    s.press(FilterScene::Text);
    QVERIFY(s.isOpen());
    QCOMPARE(s.popup()->parentWidget(), s.head());
    s.clickBox(1);
    QCOMPARE(s.shown().size(), 3);
}

void tst_ZrHeaderFilter::popupOpensInAHostedDialog()
{
    auto *const content = new QWidget; // the host's, with the grid
    FilterScene s(9, content);
    content->resize(700, 300);
    ZrDialog host("Orders", true, nullptr, 0, true, true, 0);
    host.addWidget(content);
    host.show();
    QVERIFY(QTest::qWaitForWindowExposed(&host));
    s.press(FilterScene::Text);
    QVERIFY(s.isOpen());
    QVERIFY(s.popup() != &host);
    s.clickBox(1);
    QCOMPARE(s.shown().size(), 3);
    QVERIFY(host.isVisible());
    // The hosting dialog isn't part of the main window; a press in it closes the popup all the same, and not
    // the dialog.
    QTest::mousePress(content, Qt::LeftButton, Qt::NoModifier, QPoint(690, 100));
    QVERIFY(!s.isOpen());
    QVERIFY(host.isVisible());
}

void tst_ZrHeaderFilter::popupOfAModalDialogTakesTheMouse()
{
    auto *const content = new QWidget; // the host's, with the grid
    FilterScene s(9, content);
    ZrDialog host("Orders", true, &s.desk.mainWindow, 0, true, true, 0);
    host.addWidget(content);
    bool wasOpen = false;
    QMetaObject::invokeMethod(
        &host,
        [&] {
            s.press(FilterScene::Text);
            wasOpen = s.isOpen() && QApplication::activeModalWidget() == &host;
            s.clickBox(1);
            host.done(1);
        },
        Qt::QueuedConnection);
    QCOMPARE(host.exec(), 1);
    QVERIFY(wasOpen);
    QCOMPARE(s.shown().size(), 3);
}

void tst_ZrHeaderFilter::popupWorksAfterThePluginIsGone()
{
    const std::unique_ptr<QWidget> place = std::make_unique<QWidget>();
    auto plugin = std::make_unique<Plugin>(place.get());
    FilterScene s(9, plugin.get());
    place->resize(700, 400);
    place->show();
    s.press(FilterScene::Text);
    QVERIFY(s.isOpen());
    s.grid->setParent(place.get());
    s.grid->show();
    plugin.reset();
    s.press(FilterScene::Text);
    QVERIFY(s.isOpen());
    s.clickBox(1);
    QCOMPARE(s.shown().size(), 3);
    delete s.grid; // its list, too, tells no plugin any more
}

void tst_ZrHeaderFilter::replacedHeadOpensAPopupOfItsOwn()
{
    FilterScene s;
    s.press(FilterScene::Text);
    const QPointer<ZrDialog> before = s.popup();
    auto *const other = new ZrHeaderView(Qt::Horizontal);
    other->setViewFilterable(true);
    s.grid->setZrTableHorizontalHeader(other);
    QTRY_VERIFY(!before);
    QVERIFY(!s.popup());
    s.press(FilterScene::Text);
    QVERIFY(s.isOpen());
    s.clickBox(1);
    QCOMPARE(s.shown().size(), 3);
}

void tst_ZrHeaderFilter::pressOnTheButtonOfAnOpenPopupOpensItAgain()
{
    FilterScene s;
    s.press(FilterScene::Text);
    QTest::keyClicks(s.search(), "a");
    QCOMPARE(s.listed().size(), 2);
    s.press(FilterScene::Text);
    QVERIFY(s.isOpen());
    QCOMPARE(s.listed().size(), 4);
    QCOMPARE(s.search()->text(), QString());
}

void tst_ZrHeaderFilter::choiceWithoutAPopupOnlyTellsTheFilter()
{
    FilterScene s;
    QSignalSpy one(s.head(), &ZrHeaderView::signalFilterChanged);
    QSignalSpy all(s.head(), &ZrHeaderView::signalFilterListChanged);
    s.head()->slotFilterStatusChanged();
    QCOMPARE(one.count(), 0);
    QCOMPARE(all.count(), 1);
    QCOMPARE(s.shown().size(), 9);
}

void tst_ZrHeaderFilter::headThatStandsNowhereTellsNothing()
{
    ZrHeaderView head(Qt::Horizontal);
    QSignalSpy all(&head, &ZrHeaderView::signalFilterListChanged);
    head.slotFilterStatusChanged();
    QCOMPARE(all.count(), 0);
}

void tst_ZrHeaderFilter::filteredButtonIsPaintedAtOnce()
{
    FilterScene s;
    s.press(FilterScene::Text);
    const QImage before = s.head()->viewport()->grab().toImage();
    s.clickBox(1);
    QVERIFY(s.head()->viewport()->grab().toImage() != before);
}

ZR_TEST_MAIN(tst_ZrHeaderFilter)
#include "tst_zrheaderfilter.moc"
