#include "HeadScene.h"
#include "ZrHeaderView_p.h"
#include "ZrTestMain.h"
#include "zrutils/ZrRecordTypes.h"

#include <QtCore/QPointer>
#include <QtWidgets/QLabel>
#include <QtWidgets/QToolTip>

namespace {

struct CheckState
{
    bool checked;
    bool partial;
    bool pending;
};

/// Counts the paints of a widget.
class PaintCounter : public QObject
{
public:
    explicit PaintCounter(QWidget *widget) { widget->installEventFilter(this); }
    int count = 0;

    bool eventFilter(QObject *, QEvent *event) override
    {
        count += event->type() == QEvent::Paint ? 1 : 0;
        return false;
    }
};

} // namespace
Q_DECLARE_METATYPE(CheckState)

class tst_ZrHeaderView : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase();
    void aNewHeadHasTheStatedSettings();
    void checkStatesMoveAsInTheTable_data();
    void checkStatesMoveAsInTheTable();
    void setCheckedTellsButDoesNotClick();
    void theModelsStateIsTakenOverSilently();
    void aClickOnTheCheckColumnTellsBoth();
    void theCheckColumnIsDeafWithoutBox();
    void aReleaseElsewhereStillTakesThePress();
    void aRightPressChecksNothing();
    void aPressOnTheFilterButtonOpensItAndEndsThere();
    void aReleaseOnTheFilterButtonIsNoClick();
    void aTreeOpensNoFilter();
    void aPressOnATipEndsAndItsReleaseShowsIt();
    void aTipIsNeverReadAsMarkup();
    void aTipOfATreeShowsNothing();
    void aReleaseShowsOrHidesTheIndicator_data();
    void aReleaseShowsOrHidesTheIndicator();
    void theEndOfAResizeLeavesTheIndicator();
    void switchingSortableOffHidesTheIndicator();
    void hoveringNotesTheButton();
    void hoveringAHiddenButtonPaintsIt();
    void leavingForgetsTheButton();
    void hoveringRepaintsTheSectionOnItsWayInAndOut();
    void pressedAndHoveredSectionsArePaintedAsSuch();
    void whatChangesTheLookAsksAllHeadsToRepaint();
    void dropsAreJudged_data();
    void dropsAreJudged();
    void aForbiddenDropLeavesACleanDrag();
    void aSectionScrolledAwayIsGivenUpToo();
    void aDropOnAPseudoColumnOrOutsideIsCancelled();
    void aMoveThatNeverBeganIsAClick();
    void aLostReleaseEndsTheDrag();
    void headsShareTheirState();
    void aSharedStateOutlivesItsFirstHead();
    void aHeadThatSharesNothingHasItsOwn();
    void theFilterChoiceReachesTheHost();
    void filterSignalsKeepTheirText();

private:
    static void expectToolTip();
    SkinFolder m_skin;
};

void tst_ZrHeaderView::initTestCase()
{
    QVERIFY(m_skin.isReady());
    qRegisterMetaType<ViewFilterList>("QMap<int,QList<QList<QVariantMap> > >");
    qRegisterMetaType<QList<QList<QVariantMap>>>("QList<QList<QVariantMap> >");
}

// The offscreen platform says so when a tool tip appears.
void tst_ZrHeaderView::expectToolTip()
{
    if (QGuiApplication::platformName() == "offscreen")
        QTest::ignoreMessage(QtWarningMsg, "This plugin does not support raise()");
}

void tst_ZrHeaderView::aNewHeadHasTheStatedSettings()
{
    const ZrHeaderView head(Qt::Horizontal);
    QVERIFY(head.stretchLastSection() && head.sectionsClickable());
    QVERIFY(head.testAttribute(Qt::WA_MouseTracking) && head.testAttribute(Qt::WA_Hover));
    QCOMPARE(head.textElideMode(), Qt::ElideRight);
    const ZrHeaderViewPrivate &shared = *head.getPrivate();
    QVERIFY(!shared.gridColor.isValid() && !shared.gridColorSet && !shared.checkBoxShown && !shared.sortable);
    QVERIFY(!shared.viewFilterable && shared.filterButtonAlwaysVisible);
    QCOMPARE(shared.hoverSection, -1);
    QCOMPARE(shared.filterButtonSize, 16);
    QCOMPARE(shared.headXMargin, 0);
}

void tst_ZrHeaderView::checkStatesMoveAsInTheTable_data()
{
    QTest::addColumn<CheckState>("before");
    QTest::addColumn<QString>("trigger");
    QTest::addColumn<CheckState>("after");
    QTest::addColumn<QList<int>>("expected"); // stateChanged

    QTest::newRow("model: none, was partial")
        << CheckState{true, true, true} << "model 0" << CheckState{false, true, false} << QList<int>{};
    QTest::newRow("model: none, was plain")
        << CheckState{true, false, false} << "model 0" << CheckState{false, false, false} << QList<int>{};
    QTest::newRow("model: some") << CheckState{false, false, false} << "model 1"
                                 << CheckState{true, true, true} << QList<int>{};
    QTest::newRow("model: all") << CheckState{true, true, true} << "model 2" << CheckState{true, true, false}
                                << QList<int>{};
    QTest::newRow("click in partial")
        << CheckState{true, true, true} << "click" << CheckState{true, true, false} << QList<int>{2};
    QTest::newRow("click in checked")
        << CheckState{true, true, false} << "click" << CheckState{false, true, false} << QList<int>{0};
    QTest::newRow("click in unchecked")
        << CheckState{false, false, false} << "click" << CheckState{true, false, false} << QList<int>{2};
    QTest::newRow("click with pending alone")
        << CheckState{true, false, true} << "click" << CheckState{false, false, true} << QList<int>{0};
    QTest::newRow("set") << CheckState{false, true, true} << "set 1" << CheckState{true, false, true}
                         << QList<int>{2};
    QTest::newRow("unset") << CheckState{true, true, false} << "set 0" << CheckState{false, false, false}
                           << QList<int>{0};
}

void tst_ZrHeaderView::checkStatesMoveAsInTheTable()
{
    QFETCH(CheckState, before);
    QFETCH(QString, trigger);
    QFETCH(CheckState, after);
    HeadScene scene({{-2, ""}, {0, "c0"}});
    scene.head->setCheckBoxShow(true);
    ZrHeaderViewPrivate &shared = *scene.head->getPrivate();
    shared.checked = before.checked;
    shared.partial = before.partial;
    shared.partialPending = before.pending;
    QList<int> told;
    connect(scene.head, &ZrHeaderView::stateChanged, this, [&told](int state) { told.append(state); });
    const int argument = trigger.section(' ', 1).toInt();
    if (trigger.startsWith("model"))
        scene.head->onStateChanged(argument);
    else if (trigger.startsWith("set"))
        scene.head->setChecked(argument != 0);
    else
        scene.click(scene.centre(0));
    QCOMPARE(shared.checked, after.checked);
    QCOMPARE(shared.partial, after.partial);
    QCOMPARE(shared.partialPending, after.pending);
    QTEST(told, "expected");
}

void tst_ZrHeaderView::setCheckedTellsButDoesNotClick()
{
    ZrHeaderView head(Qt::Horizontal);
    QSignalSpy state(&head, &ZrHeaderView::stateChanged);
    QSignalSpy clicked(&head, &ZrHeaderView::signalHeadCheckClicked);
    head.setChecked(true);
    head.setChecked(true);
    QCOMPARE(state.size(), 2); // told each time
    QCOMPARE(clicked.size(), 0);
}

void tst_ZrHeaderView::theModelsStateIsTakenOverSilently()
{
    ZrHeaderView head(Qt::Horizontal);
    QSignalSpy state(&head, &ZrHeaderView::stateChanged);
    for (const int value : {0, 1, 2})
        head.onStateChanged(value);
    QCOMPARE(state.size(), 0);
}

void tst_ZrHeaderView::aClickOnTheCheckColumnTellsBoth()
{
    HeadScene scene({{-2, ""}, {0, "c0"}});
    scene.head->setCheckBoxShow(true);
    QStringList order;
    connect(scene.head, &ZrHeaderView::stateChanged, this, [&order](int s) { order << QString::number(s); });
    connect(scene.head, &ZrHeaderView::signalHeadCheckClicked, this,
            [&order](bool b) { order << (b ? "on" : "off"); });
    scene.press(scene.centre(0));
    QVERIFY(scene.head->getPrivate()->checkPressed);
    QCOMPARE(order, QStringList());
    scene.release(scene.centre(0));
    QCOMPARE(order, QStringList({"2", "on"}));
    QVERIFY(!scene.head->getPrivate()->checkPressed);
    scene.click(scene.centre(1));
    QCOMPARE(order.size(), 2);
}

void tst_ZrHeaderView::theCheckColumnIsDeafWithoutBox()
{
    HeadScene scene({{-2, ""}, {0, "c0"}});
    QSignalSpy clicked(scene.head, &ZrHeaderView::signalHeadCheckClicked);
    scene.click(scene.centre(0));
    QCOMPARE(clicked.size(), 0);
}

void tst_ZrHeaderView::aReleaseElsewhereStillTakesThePress()
{
    HeadScene scene({{-2, ""}, {0, "c0"}});
    scene.head->setCheckBoxShow(true);
    QSignalSpy clicked(scene.head, &ZrHeaderView::signalHeadCheckClicked);
    scene.press(scene.centre(0));
    scene.release(scene.centre(1));
    QCOMPARE(clicked.size(), 1);
    scene.head->setViewFilterable(true);
    scene.shot();
    scene.press(scene.centre(0));
    scene.release(scene.at(1, 90)); // on a filter button: ends there
    scene.click(scene.centre(1));   // and is not made up for later
    QCOMPARE(clicked.size(), 1);
}

void tst_ZrHeaderView::aRightPressChecksNothing()
{
    HeadScene scene({{-2, ""}, {0, "c0"}});
    scene.head->setCheckBoxShow(true);
    QSignalSpy clicked(scene.head, &ZrHeaderView::signalHeadCheckClicked);
    scene.press(scene.centre(0), Qt::RightButton);
    scene.release(scene.centre(0), Qt::RightButton);
    QCOMPARE(clicked.size(), 0);
}

void tst_ZrHeaderView::aPressOnTheFilterButtonOpensItAndEndsThere()
{
    HeadScene scene(HeadScene::groups("A.."));
    scene.head->setViewFilterable(true);
    scene.head->setSortbale(true);
    scene.shot();
    QSignalSpy pressed(scene.head, &QHeaderView::sectionPressed);
    QSignalSpy clicked(scene.head, &QHeaderView::sectionClicked);
    scene.click(scene.at(1, 90));
    QCOMPARE(scene.host->opened.size(), 1);
    QCOMPARE(scene.host->opened.first().head, scene.head);
    QCOMPARE(scene.host->opened.first().column, 1);
    QCOMPARE(scene.host->opened.first().button, QRect(183, 0, 16, 40));
    scene.click(scene.at(0, 90, 30));
    QCOMPARE(scene.host->opened.last().button, QRect(83, 20, 16, 20));
    QCOMPARE(pressed.size() + clicked.size(), 0);
    QVERIFY(!scene.head->isSortIndicatorShown());
}

void tst_ZrHeaderView::aReleaseOnTheFilterButtonIsNoClick()
{
    HeadScene scene(HeadScene::plain(3));
    scene.head->setViewFilterable(true);
    scene.shot();
    QSignalSpy clicked(scene.head, &QHeaderView::sectionClicked);
    scene.press(scene.centre(1));
    scene.release(scene.at(1, 90));
    QCOMPARE(clicked.size(), 0);
    scene.click(scene.centre(1)); // the base is ready for the next press
    QCOMPARE(clicked.size(), 1);
}

void tst_ZrHeaderView::aTreeOpensNoFilter()
{
    HeadScene scene(HeadScene::plain(2));
    scene.head->setViewFilterable(true);
    scene.shot();
    scene.host->kind = ZrHeaderHost::Kind::Tree; // even with a place from before
    scene.click(scene.at(1, 90));
    QVERIFY(scene.host->opened.isEmpty());
}

void tst_ZrHeaderView::aPressOnATipEndsAndItsReleaseShowsIt()
{
    HeadScene scene(HeadScene::plain(3));
    scene.head->setHeadTip(1, "filled / ordered");
    scene.shot();
    QSignalSpy pressed(scene.head, &QHeaderView::sectionPressed);
    scene.press(scene.at(1, 90, 20));
    QCOMPARE(pressed.size(), 0);
    QVERIFY(!QToolTip::isVisible());
    expectToolTip();
    scene.release(scene.at(1, 90, 20));
    QCOMPARE(QToolTip::text(), QString("filled / ordered"));
    QToolTip::hideText();
    QTRY_VERIFY(!QToolTip::isVisible());
    // A tip taken away since the paint ends the event all the same, with nothing to show.
    scene.head->setHeadTip(1, "");
    scene.click(scene.at(1, 90, 20));
    QVERIFY(!QToolTip::isVisible());
}

void tst_ZrHeaderView::aTipIsNeverReadAsMarkup()
{
    HeadScene scene(HeadScene::plain(2));
    scene.head->setHeadTip(0, "<img src='file:///etc/passwd'>");
    scene.shot();
    expectToolTip();
    scene.click(scene.at(0, 90, 20));
    QVERIFY2(QToolTip::text().contains("&lt;img"), qPrintable(QToolTip::text()));
    QVERIFY(!QToolTip::text().contains("<img"));
    QToolTip::hideText();
    QTRY_VERIFY(!QToolTip::isVisible());
}

void tst_ZrHeaderView::aTipOfATreeShowsNothing()
{
    HeadScene scene(HeadScene::plain(2));
    scene.host->kind = ZrHeaderHost::Kind::Tree;
    scene.head->setHeadTip(0, "help");
    scene.shot();
    scene.click(scene.at(0, 90, 20));
    QVERIFY(!QToolTip::isVisible());
}

void tst_ZrHeaderView::aReleaseShowsOrHidesTheIndicator_data()
{
    QTest::addColumn<bool>("sortable");
    QTest::addColumn<QString>("entry"); // of logical column 7, which stands at section 1
    QTest::addColumn<bool>("shown");
    QTest::addColumn<bool>("expected");

    QTest::newRow("allowed by the head, hidden") << true << "" << false << true;
    QTest::newRow("refused by the head, shown") << false << "" << true << false;
    QTest::newRow("allowed by its entry") << false << "yes" << false << true;
    QTest::newRow("refused by its entry") << true << "no" << true << false;
    QTest::newRow("entry and head agree") << true << "yes" << true << true;
}

void tst_ZrHeaderView::aReleaseShowsOrHidesTheIndicator()
{
    QFETCH(bool, sortable);
    QFETCH(QString, entry);
    QFETCH(bool, shown);
    HeadScene scene({{3, "c3"}, {7, "c7"}});
    scene.head->setSortbale(sortable);
    QCOMPARE(scene.head->isSortbale(), sortable);
    if (!entry.isEmpty())
        scene.head->setColumnSortable(7, entry == "yes");
    scene.head->setColumnSortable(1, entry != "yes"); // keyed by the logical column, not by the place
    scene.head->setSortIndicatorShown(shown);
    bool shownAtSort = false;
    connect(scene.head, &QHeaderView::sortIndicatorChanged, this,
            [&] { shownAtSort = scene.head->isSortIndicatorShown(); });
    scene.click(scene.centre(1));
    QTEST(scene.head->isSortIndicatorShown(), "expected");
    QTEST(shownAtSort, "expected");
    QCOMPARE(scene.head->sortIndicatorSection(), 1);
}

void tst_ZrHeaderView::theEndOfAResizeLeavesTheIndicator()
{
    HeadScene scene(HeadScene::plain(3));
    scene.head->setSortbale(true);
    scene.drag({200, 10}, {230, 10}); // the edge between 1 and 2
    QCOMPARE(scene.head->sectionSize(1), 130);
    QVERIFY(!scene.head->isSortIndicatorShown());
}

void tst_ZrHeaderView::switchingSortableOffHidesTheIndicator()
{
    ZrHeaderView head(Qt::Horizontal);
    head.setSortbale(true);
    QVERIFY(!head.isSortIndicatorShown());
    head.setSortIndicatorShown(true);
    head.setSortbale(false);
    QVERIFY(!head.isSortIndicatorShown());
}

void tst_ZrHeaderView::hoveringNotesTheButton()
{
    HeadScene scene({{-1, "Seq."}, {0, "c0"}, {1, "c1"}});
    scene.head->setViewFilterable(true);
    scene.shot();
    const ZrHeaderViewPrivate &shared = *scene.head->getPrivate();
    QTest::mouseMove(scene.head->viewport(), scene.at(1, 90));
    QTRY_COMPARE(shared.hoverSection, 1);
    QTest::mouseMove(scene.head->viewport(), scene.at(2, 90));
    QTRY_COMPARE(shared.hoverSection, 2);
    QTest::mouseMove(scene.head->viewport(), scene.at(2, 20));
    QTRY_COMPARE(shared.hoverSection, -1);
    QTest::mouseMove(scene.head->viewport(), scene.at(1, 90));
    QTRY_COMPARE(shared.hoverSection, 1);
    // A pseudo-column is left to the base.
    QHoverEvent overSerial(QEvent::HoverMove, scene.at(0, 90), scene.at(1, 90));
    QCoreApplication::sendEvent(scene.head, &overSerial);
    QCOMPARE(shared.hoverSection, 1);
}

void tst_ZrHeaderView::hoveringAHiddenButtonPaintsIt()
{
    HeadScene scene(HeadScene::plain(2));
    scene.head->setViewFilterable(true);
    scene.head->setViewFilterbuttonAlwayVisiable(false);
    QTest::mouseMove(scene.head->viewport(), scene.at(0, 20));
    const QPoint button = scene.at(1, 90, 20);
    QVERIFY(scene.shot().pixelColor(button) != SkinFolder::filterHover);
    QTest::mouseMove(scene.head->viewport(), button);
    QTRY_COMPARE(scene.head->getPrivate()->hoverSection, 1);
    QTRY_COMPARE(scene.shot().pixelColor(button), SkinFolder::filterHover);
}

void tst_ZrHeaderView::leavingForgetsTheButton()
{
    HeadScene scene(HeadScene::plain(2));
    scene.head->setViewFilterable(true);
    scene.shot();
    QTest::mouseMove(scene.head->viewport(), scene.at(1, 90));
    QTRY_COMPARE(scene.head->getPrivate()->hoverSection, 1);
    QTest::mouseMove(scene.table->viewport(), QPoint(20, 60));
    QTRY_COMPARE(scene.head->getPrivate()->hoverSection, -1);
}

void tst_ZrHeaderView::hoveringRepaintsTheSectionOnItsWayInAndOut()
{
    HeadScene scene(HeadScene::plain(2));
    scene.head->setViewFilterable(true);
    scene.shot();
    PaintCounter paints(scene.head->viewport());
    // Inside one section the base sees no reason to paint.
    QTest::mouseMove(scene.head->viewport(), scene.at(1, 20));
    QTRY_VERIFY(paints.count > 0);
    QCoreApplication::processEvents();
    paints.count = 0;
    QTest::mouseMove(scene.head->viewport(), scene.at(1, 90));
    QTRY_VERIFY(paints.count > 0);
    QCOMPARE(scene.head->getPrivate()->hoverSection, 1);
    QCoreApplication::processEvents();
    paints.count = 0;
    QTest::mouseMove(scene.head->viewport(), scene.at(1, 30));
    QTRY_VERIFY(paints.count > 0);
    QCOMPARE(scene.head->getPrivate()->hoverSection, -1);
}

void tst_ZrHeaderView::pressedAndHoveredSectionsArePaintedAsSuch()
{
    HeadScene scene(HeadScene::plain(3));
    const auto statesOf = [&scene] {
        scene.shot();
        return scene.style->of(QStyle::CE_Header);
    };
    QTest::mouseMove(scene.head->viewport(), scene.at(1, 20));
    QTRY_VERIFY(statesOf().at(1).state & QStyle::State_MouseOver);
    QVERIFY(!(statesOf().at(0).state & QStyle::State_MouseOver));
    scene.press(scene.centre(2));
    QVERIFY(statesOf().at(2).state & QStyle::State_Sunken);
    QVERIFY(!(statesOf().at(1).state & QStyle::State_Sunken));
    scene.release(scene.centre(2));
    QVERIFY(!(statesOf().at(2).state & QStyle::State_Sunken));
}

void tst_ZrHeaderView::whatChangesTheLookAsksAllHeadsToRepaint()
{
    HeadScene scene({{-2, ""}, {0, "c0"}});
    scene.head->setCheckBoxShow(true);
    QSignalSpy asked(scene.head->getPrivate(), &ZrHeaderViewPrivate::repaintRequested);
    scene.head->setGridColor(Qt::red);
    QCOMPARE(asked.size(), 1);
    QVERIFY(scene.head->getPrivate()->gridColorSet);
    scene.head->setChecked(true);
    QCOMPARE(asked.size(), 2);
    scene.click(scene.centre(0));
    QCOMPARE(asked.size(), 3);
}

void tst_ZrHeaderView::dropsAreJudged_data()
{
    QTest::addColumn<QString>("groups");
    QTest::addColumn<int>("from");
    QTest::addColumn<int>("x"); // where it is dropped
    QTest::addColumn<int>("left");
    QTest::addColumn<int>("right");
    QTest::addColumn<QList<int>>("expected");

    QTest::newRow("plain") << "...." << 0 << 270 << 0 << 0 << QList<int>{1, 2, 0, 3};
    QTest::newRow("inside its group") << "AAA." << 0 << 270 << 0 << 0 << QList<int>{1, 2, 0, 3};
    QTest::newRow("out of its group") << "AA.." << 0 << 270 << 0 << 0 << QList<int>{0, 1, 2, 3};
    QTest::newRow("between two members") << ".AA." << 0 << 170 << 0 << 0 << QList<int>{0, 1, 2, 3};
    QTest::newRow("past a group") << ".AA." << 0 << 270 << 0 << 0 << QList<int>{1, 2, 0, 3};
    QTest::newRow("among the left frozen") << "...." << 3 << 20 << 1 << 0 << QList<int>{0, 1, 2, 3};
    QTest::newRow("among the right frozen") << "...." << 0 << 370 << 0 << 1 << QList<int>{0, 1, 2, 3};
    QTest::newRow("beside the right frozen") << "...." << 0 << 270 << 0 << 1 << QList<int>{1, 2, 0, 3};
}

void tst_ZrHeaderView::dropsAreJudged()
{
    QFETCH(QString, groups);
    QFETCH(int, from);
    QFETCH(int, x);
    QFETCH(int, left);
    QFETCH(int, right);
    HeadScene scene(HeadScene::groups(groups));
    scene.head->setSectionsMovable(true);
    scene.host->frozen = {{1, left}, {2, right}};
    QSignalSpy moved(scene.head, &QHeaderView::sectionMoved);
    scene.drag(scene.centre(from), {x, 20});
    QTEST(scene.order(), "expected");
    QCOMPARE(moved.isEmpty(), scene.order() == QList<int>({0, 1, 2, 3}));
}

void tst_ZrHeaderView::aForbiddenDropLeavesACleanDrag()
{
    HeadScene scene(HeadScene::groups("AA.."));
    scene.head->setSectionsMovable(true);
    scene.head->setSortbale(true);
    QSignalSpy clicked(scene.head, &QHeaderView::sectionClicked);
    scene.drag(scene.centre(0), {350, 20});
    const auto *const copy = scene.head->viewport()->findChild<QLabel *>();
    QVERIFY(copy && copy->isHidden());
    QCOMPARE(clicked.size(), 0);
    // The pointer goes on without a button: nothing follows it.
    QTest::mouseMove(scene.head->viewport(), {150, 20});
    QCOMPARE(scene.order(), QList<int>({0, 1, 2, 3}));
    // And the next gestures are what they seem to be.
    scene.click(scene.centre(2));
    QCOMPARE(clicked.size(), 1);
    scene.drag(scene.centre(2), {370, 20});
    QCOMPARE(scene.order(), QList<int>({0, 1, 3, 2}));
}

void tst_ZrHeaderView::aSectionScrolledAwayIsGivenUpToo()
{
    HeadScene scene(HeadScene::groups("AA......"));
    scene.head->setSectionsMovable(true);
    scene.press(scene.centre(0));
    scene.moveHeld({150, 20});
    scene.head->setOffset(300); // as scrolling under a held button does
    scene.moveHeld({250, 20});
    scene.release({250, 20});
    QCOMPARE(scene.order(), QList<int>({0, 1, 2, 3, 4, 5, 6, 7}));
    QCOMPARE(scene.head->offset(), 300);
    const auto *const copy = scene.head->viewport()->findChild<QLabel *>();
    QVERIFY(copy && copy->isHidden());
}

void tst_ZrHeaderView::aDropOnAPseudoColumnOrOutsideIsCancelled()
{
    HeadScene scene({{-2, ""}, {-1, "Seq."}, {0, "c0"}, {1, "c1"}, {2, "c2"}});
    scene.head->setSectionsMovable(true);
    const QList<int> order = scene.order();
    scene.drag(scene.centre(4), scene.at(0, 10));
    QCOMPARE(scene.order(), order);
    scene.drag(scene.centre(4), scene.at(1, 10));
    QCOMPARE(scene.order(), order);
    scene.drag(scene.centre(3), {520, 20}); // right of all columns
    QCOMPARE(scene.order(), order);
    scene.drag(scene.centre(4), {-20, 20});
    QCOMPARE(scene.order(), order);
    scene.drag(scene.centre(4), scene.at(2, 10));
    QCOMPARE(scene.order(), QList<int>({0, 1, 4, 2, 3}));
}

void tst_ZrHeaderView::aMoveThatNeverBeganIsAClick()
{
    HeadScene scene({{-2, ""}, {0, "c0"}, {1, "c1"}});
    scene.head->setSectionsMovable(true);
    scene.head->setCheckBoxShow(true);
    QSignalSpy clicked(scene.head, &QHeaderView::sectionClicked);
    QSignalSpy checked(scene.head, &ZrHeaderView::signalHeadCheckClicked);
    scene.click(scene.centre(0));
    QCOMPARE(checked.size(), 1);
    scene.click(scene.centre(1));
    QCOMPARE(clicked.size(), 2);
}

void tst_ZrHeaderView::aLostReleaseEndsTheDrag()
{
    HeadScene scene(HeadScene::plain(4));
    scene.head->setSectionsMovable(true);
    scene.press(scene.centre(0));
    scene.moveHeld({350, 20});
    QMouseEvent free(QEvent::MouseMove, QPoint(360, 20), Qt::NoButton, Qt::NoButton, Qt::NoModifier);
    QCoreApplication::sendEvent(scene.head->viewport(), &free);
    scene.release({370, 20});
    QCOMPARE(scene.order(), QList<int>({0, 1, 2, 3}));
}

void tst_ZrHeaderView::headsShareTheirState()
{
    HeadScene scene({{-2, ""}, {0, "c0"}});
    scene.head->setCheckBoxShow(true);
    auto *const table = new QTableView(scene.view.get());
    auto *const side = new ZrHeaderView(scene.head);
    QCOMPARE(side->orientation(), Qt::Horizontal);
    table->setModel(scene.model);
    table->setHorizontalHeader(side);
    side->setFixedHeight(HeadScene::heightPx);
    side->setMinimumSectionSize(10);
    side->resizeSection(0, 40);
    table->resize(200, 100);
    table->show();
    QCOMPARE(side->getPrivate(), scene.head->getPrivate());
    QImage shot = side->viewport()->grab().toImage();
    QCOMPARE(shot.pixelColor(20, 20), SkinFolder::uncheck);
    // What one head learns shows in the other without being asked to repaint.
    QSignalSpy asked(scene.head->getPrivate(), &ZrHeaderViewPrivate::repaintRequested);
    scene.head->onStateChanged(2);
    QCOMPARE(asked.size(), 1);
    shot = side->viewport()->grab().toImage();
    QCOMPARE(shot.pixelColor(20, 20), SkinFolder::check);
    scene.head->onStateChanged(1);
    shot = side->viewport()->grab().toImage();
    QCOMPARE(shot.pixelColor(20, 20), SkinFolder::tristate);
}

void tst_ZrHeaderView::aSharedStateOutlivesItsFirstHead()
{
    auto first = std::make_unique<ZrHeaderView>(Qt::Horizontal);
    first->setHeadTip(3, "help");
    auto second = std::make_unique<ZrHeaderView>(first.get());
    const QPointer<ZrHeaderViewPrivate> shared = first->getPrivate();
    first.reset();
    QVERIFY(shared);
    QVERIFY(second->getPrivate()->hasTip(3));
    second.reset();
    QVERIFY(!shared);
}

void tst_ZrHeaderView::aHeadThatSharesNothingHasItsOwn()
{
    const ZrHeaderView head(static_cast<const ZrHeaderView *>(nullptr));
    QVERIFY(head.getPrivate());
    QCOMPARE(head.orientation(), Qt::Horizontal);
}

void tst_ZrHeaderView::theFilterChoiceReachesTheHost()
{
    const HeadScene scene(HeadScene::plain(1));
    scene.head->slotFilterStatusChanged();
    QCOMPARE(scene.host->choices, 1);
    ZrHeaderView alone(Qt::Horizontal);
    alone.slotFilterStatusChanged();
    QCOMPARE(scene.host->choices, 1);
}

void tst_ZrHeaderView::filterSignalsKeepTheirText()
{
    ZrHeaderView head(Qt::Horizontal);
    QSignalSpy list(&head, SIGNAL(signalFilterListChanged(QMap<int, QList<QList<QVariantMap>>>)));
    QSignalSpy one(&head, SIGNAL(signalFilterChanged(int, QList<QList<QVariantMap>>)));
    QVERIFY(list.isValid() && one.isValid());
    emit head.signalFilterListChanged({});
    emit head.signalFilterChanged(4, {});
    QCOMPARE(list.size() + one.size(), 2);
}

ZR_TEST_MAIN(tst_ZrHeaderView)
#include "tst_zrheaderview.moc"
