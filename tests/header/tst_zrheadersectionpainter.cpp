#include "HeadScene.h"
#include "ZrHeaderView_p.h"
#include "ZrTestMain.h"

#include <QtGui/QPainter>

/// Opens the painting of a section to the test.
class PaintableHead : public ZrHeaderView
{
    Q_OBJECT
public:
    using ZrHeaderView::paintHeaderSection;
    using ZrHeaderView::ZrHeaderView;
};

class tst_ZrHeaderSectionPainter : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase();
    void init();
    void aPlainSectionIsOneFrameAndALabel();
    void aGroupIsABandOverFrames();
    void theLastSectionLendsItsPlaceToTheBand();
    void theIndicatorStandsInTheBottomBandOfItsSection();
    void theLabelIsElidedToItsRoom();
    void aPatternBeginsAtItsSectionAndEndsWithTheFrame();
    void theLabelGivesUpItsRoomForAHiddenButton();
    void withoutColourThereAreNoLines();
    void separatorsLeaveThreePixelsFree();
    void insideAGroupTheTopBandHasNoBreaks();
    void theNextHiddenSectionEndsTheGroupsLine();
    void theFilterButtonShowsItsState();
    void aButtonThatIsNotAlwaysVisible();
    void aPseudoColumnHasNoButton();
    void aColumnsEntryOverridesTheView();
    void aColumnThatLostItsButtonForgetsItsPlace();
    void aTreePaintsItsOwnPictureAndNotesNoPlace();
    void theCheckBoxShowsItsState_data();
    void theCheckBoxShowsItsState();
    void theCheckBoxStandsInTheFirstColumnOnly();
    void theTipStandsRightOfTheLabel();
    void aHeadOutsideOfAViewPaintsNoPictures();
    void aMissingPicturePaintsNothing();
    void anInvalidRectPaintsNothing();
    void aDragCopyStandsOutsideOfItsGroup();
    void laterSectionsLeaveThePicturesOfTheirGroupAlone();

private:
    SkinFolder m_skin;
};

void tst_ZrHeaderSectionPainter::initTestCase()
{
    QVERIFY(m_skin.isReady());
}

void tst_ZrHeaderSectionPainter::init()
{
    QCursor::setPos(0, 790); // away from all heads
}

void tst_ZrHeaderSectionPainter::aPlainSectionIsOneFrameAndALabel()
{
    const HeadScene scene(HeadScene::plain(2));
    scene.head->setHeadDefaultXMargin(4);
    scene.shot();
    const auto frames = scene.style->of(QStyle::CE_Header);
    QCOMPARE(frames.size(), 2);
    QCOMPARE(frames.first().rect, QRect(0, 0, 100, 40));
    QCOMPARE(frames.first().text, QString());
    QCOMPARE(scene.style->drawn.last().element, QStyle::CE_HeaderLabel);
    QCOMPARE(scene.style->drawn.last().rect, QRect(104, 0, 92, 40));
    QCOMPARE(scene.style->drawn.last().text, QString("c1"));
}

void tst_ZrHeaderSectionPainter::aGroupIsABandOverFrames()
{
    const HeadScene scene(HeadScene::groups("ABB..")); // A differs from its neighbours
    scene.head->setHeadDefaultXMargin(4);
    scene.shot();
    QVector<QRect> bands, frames;
    for (const auto &one : scene.style->drawn) {
        if (one.element == QStyle::CE_HeaderSection && one.rect.bottom() < 20)
            bands.append(one.rect);
        if (one.element == QStyle::CE_Header)
            frames.append(one.rect);
    }
    QCOMPARE(bands, QVector<QRect>({{0, 0, 100, 20}, {100, 0, 200, 20}, {100, 0, 200, 20}}));
    QCOMPARE(frames, QVector<QRect>({{0, 20, 100, 20},
                                     {100, 20, 100, 20},
                                     {200, 20, 100, 20},
                                     {300, 0, 100, 40},
                                     {400, 0, 100, 40}}));
    QCOMPARE(scene.style->itemTexts.size(), 3);
    QCOMPARE(scene.style->itemTexts.at(1).first, QRect(104, 0, 192, 20));
    QCOMPARE(scene.style->itemTexts.at(1).second, QString("Group B"));
}

void tst_ZrHeaderSectionPainter::theLastSectionLendsItsPlaceToTheBand()
{
    const HeadScene scene(HeadScene::groups("AA."));
    scene.shot();
    QCOMPARE(scene.style->itemTexts.size(), 2);
    QCOMPARE(scene.style->itemTexts.first().first, QRect(0, 0, 300, 20));
    // and paints its own frame in full
    QCOMPARE(scene.style->of(QStyle::CE_Header).last().rect, QRect(200, 0, 100, 40));
}

void tst_ZrHeaderSectionPainter::theIndicatorStandsInTheBottomBandOfItsSection()
{
    const HeadScene scene(HeadScene::groups("AA.."));
    scene.head->setSortIndicator(1, Qt::AscendingOrder);
    scene.shot();
    for (const auto &one : scene.style->drawn)
        QCOMPARE(one.indicator, int(QStyleOptionHeader::None)); // not shown
    scene.head->setSortIndicatorShown(true);
    scene.shot();
    QList<QRect> marked;
    for (const auto &one : scene.style->of(QStyle::CE_Header)) {
        if (one.indicator == QStyleOptionHeader::SortDown)
            marked.append(one.rect);
    }
    QCOMPARE(marked, QList<QRect>({QRect(100, 20, 100, 20)}));
    scene.head->setSortIndicator(3, Qt::DescendingOrder);
    scene.shot();
    QCOMPARE(scene.style->of(QStyle::CE_Header).last().indicator, int(QStyleOptionHeader::SortUp));
}

void tst_ZrHeaderSectionPainter::theLabelIsElidedToItsRoom()
{
    const HeadScene scene({{0, "a text that is far too long for its column"}, {1, "b"}});
    scene.model->setHead(1, Qt::DecorationRole, QIcon(QPixmap(8, 8)));
    scene.head->setSortIndicatorShown(true);
    scene.shot();
    const QString text =
        scene.style->of(QStyle::CE_HeaderLabel).at(1).text; // after the empty one of the frame
    QVERIFY2(text.endsWith(QChar(0x2026)), qPrintable(text));
    QVERIFY(scene.head->fontMetrics().horizontalAdvance(text) <= 100);
    scene.head->setTextElideMode(Qt::ElideNone);
    scene.shot();
    QVERIFY(scene.style->of(QStyle::CE_HeaderLabel).at(1).text.endsWith("column"));
}

void tst_ZrHeaderSectionPainter::aPatternBeginsAtItsSectionAndEndsWithTheFrame()
{
    const HeadScene scene(HeadScene::plain(3));
    scene.model->setHead(1, Qt::BackgroundRole, QBrush(Qt::Dense4Pattern));
    scene.shot();
    const auto frames = scene.style->of(QStyle::CE_Header);
    QCOMPARE(frames.at(1).brushOrigin - frames.at(0).brushOrigin, QPoint(100, 0));
    QCOMPARE(frames.at(2).brushOrigin, frames.at(0).brushOrigin);
    for (const auto &label : scene.style->of(QStyle::CE_HeaderLabel)) {
        if (!label.text.isEmpty()) // that of the label's own pass
            QCOMPARE(label.brushOrigin, frames.at(0).brushOrigin);
    }
}

void tst_ZrHeaderSectionPainter::theLabelGivesUpItsRoomForAHiddenButton()
{
    const HeadScene scene(HeadScene::plain(1));
    scene.head->setViewFilterable(true);
    scene.head->setViewFilterbuttonAlwayVisiable(false);
    const QImage shot = scene.shot();
    QCOMPARE(scene.style->drawn.last().rect.width(), 84);
    QVERIFY(shot.pixelColor(90, 20) != SkinFolder::filter);
}

void tst_ZrHeaderSectionPainter::withoutColourThereAreNoLines()
{
    const HeadScene scene(HeadScene::groups("AA.."));
    const QImage before = scene.shot();
    scene.head->setGridColor(Qt::red);
    const QImage after = scene.shot();
    QVERIFY(before != after);
    for (int x = 0; x < before.width(); ++x) {
        for (int y = 0; y < before.height(); ++y)
            QVERIFY(before.pixelColor(x, y) != QColor(Qt::red));
    }
}

void tst_ZrHeaderSectionPainter::separatorsLeaveThreePixelsFree()
{
    const HeadScene scene(HeadScene::plain(2));
    scene.head->setGridColor(Qt::red);
    const QImage shot = scene.shot();
    const auto isLine = [&shot](int x, int y) { return shot.pixelColor(x, y) == QColor(Qt::red); };
    QVERIFY(!isLine(99, 2) && isLine(99, 3) && isLine(99, 20) && isLine(99, 36) && !isLine(99, 37));
    QVERIFY(!isLine(98, 20) && !isLine(100, 20));
    QVERIFY(!isLine(199, 20)); // none after the last
}

void tst_ZrHeaderSectionPainter::insideAGroupTheTopBandHasNoBreaks()
{
    const HeadScene scene(HeadScene::groups("AA.."));
    scene.head->setGridColor(Qt::red);
    const QImage shot = scene.shot();
    const auto isLine = [&shot](int x, int y) { return shot.pixelColor(x, y) == QColor(Qt::red); };
    QVERIFY(isLine(0, 20) && isLine(150, 20) && isLine(199, 20)); // under the band
    QVERIFY(!isLine(201, 20));
    QVERIFY(!isLine(99, 10) && isLine(99, 21) && isLine(99, 36) && !isLine(99, 37));
    QVERIFY(isLine(199, 3) && isLine(199, 36)); // the group's end
}

void tst_ZrHeaderSectionPainter::theNextHiddenSectionEndsTheGroupsLine()
{
    const HeadScene scene(HeadScene::groups("AAA."));
    scene.head->setGridColor(Qt::red);
    scene.head->hideSection(1);
    QCOMPARE(scene.shot().pixelColor(99, 10), QColor(Qt::red));
}

void tst_ZrHeaderSectionPainter::theFilterButtonShowsItsState()
{
    const HeadScene scene(HeadScene::plain(3));
    scene.head->setViewFilterable(true);
    scene.host->filtered = {1};
    QCursor::setPos(
        scene.head->viewport()->mapToGlobal(scene.at(2, 90, 2))); // above the picture, in the button
    const QImage shot = scene.shot();
    QCOMPARE(shot.pixelColor(90, 20), SkinFolder::filter);
    QCOMPARE(shot.pixelColor(190, 20), SkinFolder::filtered);
    QCOMPARE(shot.pixelColor(290, 20), SkinFolder::filterHover);
    QCOMPARE(shot.pixelColor(83, 12), SkinFolder::filter);
    QCOMPARE(shot.pixelColor(98, 27), SkinFolder::filter);
    QVERIFY(shot.pixelColor(82, 12) != SkinFolder::filter && shot.pixelColor(83, 11) != SkinFolder::filter);
    QVERIFY(shot.pixelColor(99, 20) != SkinFolder::filter && shot.pixelColor(98, 28) != SkinFolder::filter);
    QCOMPARE(scene.head->getPrivate()->filterButtonRects.value(1), QRect(183, 0, 16, 40));
    // The pointer comes first, also on a filtered column.
    QCursor::setPos(scene.head->viewport()->mapToGlobal(scene.at(1, 90, 2)));
    QCOMPARE(scene.shot().pixelColor(190, 20), SkinFolder::filterHover);
}

void tst_ZrHeaderSectionPainter::aButtonThatIsNotAlwaysVisible()
{
    const HeadScene scene(HeadScene::plain(3));
    scene.head->setViewFilterable(true);
    scene.head->setViewFilterbuttonAlwayVisiable(false);
    scene.host->filtered = {1};
    QCursor::setPos(scene.head->viewport()->mapToGlobal(scene.at(2, 90)));
    const QImage shot = scene.shot();
    QVERIFY(shot.pixelColor(90, 20) != SkinFolder::filter);
    QCOMPARE(shot.pixelColor(190, 20), SkinFolder::filtered);
    QCOMPARE(shot.pixelColor(290, 20), SkinFolder::filterHover);
    QVERIFY(scene.head->getPrivate()->filterButtonRects.contains(0)); // so that hovering finds it
}

void tst_ZrHeaderSectionPainter::aPseudoColumnHasNoButton()
{
    const HeadScene scene({{-1, "Seq."}, {0, "c0"}});
    scene.head->setViewFilterable(true);
    const QImage shot = scene.shot();
    QVERIFY(shot.pixelColor(90, 20) != SkinFolder::filter);
    QCOMPARE(shot.pixelColor(190, 20), SkinFolder::filter);
    QCOMPARE(scene.head->getPrivate()->filterButtonRects.keys(), QList<int>({0}));
}

void tst_ZrHeaderSectionPainter::aColumnsEntryOverridesTheView()
{
    const HeadScene scene(HeadScene::plain(2));
    scene.head->setViewFilterable(true);
    scene.head->setViewFilterable(0, false);
    QImage shot = scene.shot();
    QVERIFY(shot.pixelColor(90, 20) != SkinFolder::filter);
    QCOMPARE(shot.pixelColor(190, 20), SkinFolder::filter);
    scene.head->setViewFilterable(false);
    scene.head->setViewFilterable(0, true);
    shot = scene.shot();
    QCOMPARE(shot.pixelColor(90, 20), SkinFolder::filter);
    QVERIFY(shot.pixelColor(190, 20) != SkinFolder::filter);
}

void tst_ZrHeaderSectionPainter::aColumnThatLostItsButtonForgetsItsPlace()
{
    const HeadScene scene(HeadScene::plain(1));
    scene.head->setViewFilterable(true);
    scene.head->setHeadTip(0, "help");
    scene.shot();
    scene.head->setViewFilterable(false);
    scene.head->setHeadTip(0, "");
    scene.shot();
    QVERIFY(scene.head->getPrivate()->filterButtonRects.isEmpty());
    QVERIFY(scene.head->getPrivate()->tipRects.isEmpty());
}

void tst_ZrHeaderSectionPainter::aTreePaintsItsOwnPictureAndNotesNoPlace()
{
    const HeadScene scene(HeadScene::plain(1));
    scene.host->kind = ZrHeaderHost::Kind::Tree;
    scene.head->setViewFilterable(true);
    scene.head->setViewFilterbuttonAlwayVisiable(false);
    QCOMPARE(scene.shot().pixelColor(90, 20), SkinFolder::tristate);
    QVERIFY(scene.head->getPrivate()->filterButtonRects.isEmpty());
}

void tst_ZrHeaderSectionPainter::theCheckBoxShowsItsState_data()
{
    QTest::addColumn<bool>("checked");
    QTest::addColumn<bool>("partial");
    QTest::addColumn<bool>("pending");
    QTest::addColumn<QColor>("expected");

    QTest::newRow("unchecked") << false << false << false << SkinFolder::uncheck;
    QTest::newRow("checked") << true << false << false << SkinFolder::check;
    QTest::newRow("partly") << true << true << true << SkinFolder::tristate;
    QTest::newRow("was partly") << true << true << false << SkinFolder::check;
    QTest::newRow("partly, then set") << false << false << true << SkinFolder::uncheck;
}

void tst_ZrHeaderSectionPainter::theCheckBoxShowsItsState()
{
    QFETCH(bool, checked);
    QFETCH(bool, partial);
    QFETCH(bool, pending);
    QFETCH(QColor, expected);
    const HeadScene scene(HeadScene::plain(2));
    scene.head->setCheckBoxShow(true);
    ZrHeaderViewPrivate &shared = *scene.head->getPrivate();
    shared.checked = checked;
    shared.partial = partial;
    shared.partialPending = pending;
    QImage shot = scene.shot();
    QCOMPARE(shot.pixelColor(42, 12), expected);
    QCOMPARE(shot.pixelColor(57, 27), expected);
    QVERIFY(shot.pixelColor(41, 20) != expected && shot.pixelColor(58, 20) != expected);
    scene.host->kind = ZrHeaderHost::Kind::Tree;
    shot = scene.shot();
    QCOMPARE(shot.pixelColor(57, 12), expected);
    QCOMPARE(shot.pixelColor(72, 27), expected);
    QVERIFY(shot.pixelColor(56, 20) != expected);
}

void tst_ZrHeaderSectionPainter::theCheckBoxStandsInTheFirstColumnOnly()
{
    const HeadScene scene(HeadScene::plain(2));
    QVERIFY(scene.shot().pixelColor(50, 14) != SkinFolder::uncheck);
    scene.head->setCheckBoxShow(true);
    scene.head->moveSection(0, 1); // the view column counts, not the place
    const QImage shot = scene.shot();
    QVERIFY(shot.pixelColor(50, 14) != SkinFolder::uncheck);
    QCOMPARE(shot.pixelColor(150, 14), SkinFolder::uncheck);
}

void tst_ZrHeaderSectionPainter::theTipStandsRightOfTheLabel()
{
    const HeadScene scene(HeadScene::plain(2));
    scene.head->setHeadTip(1, "help");
    scene.head->setViewFilterable(true);
    const QImage shot = scene.shot();
    QCOMPARE(scene.head->getPrivate()->tipRects.value(1), QRect(167, 12, 16, 16));
    QCOMPARE(shot.pixelColor(167, 12), SkinFolder::help);
    QCOMPARE(shot.pixelColor(182, 27), SkinFolder::help);
    QCOMPARE(shot.pixelColor(184, 20), SkinFolder::filter);
    QVERIFY(shot.pixelColor(75, 20) != SkinFolder::help);
}

void tst_ZrHeaderSectionPainter::aHeadOutsideOfAViewPaintsNoPictures()
{
    const HeadScene scene(HeadScene::plain(2), false);
    const QImage before = scene.shot();
    scene.head->setCheckBoxShow(true);
    QCOMPARE(scene.shot(), before);
    scene.head->setViewFilterable(true);
    scene.shot();
    QVERIFY(scene.head->getPrivate()->filterButtonRects.isEmpty());
}

void tst_ZrHeaderSectionPainter::aMissingPicturePaintsNothing()
{
    const HeadScene scene(HeadScene::plain(1));
    scene.head->setCheckBoxShow(true);
    QVERIFY(scene.shot().pixelColor(50, 14) == SkinFolder::uncheck);
    m_skin.write("bare", "other.png", Qt::red);
    QVERIFY(m_skin.host.setSkin("bare"));
    const QImage without = scene.shot();
    QVERIFY(m_skin.host.setSkin("test"));
    scene.head->setCheckBoxShow(false);
    QCOMPARE(without, scene.shot());
}

void tst_ZrHeaderSectionPainter::anInvalidRectPaintsNothing()
{
    const PaintableHead head(Qt::Horizontal);
    QImage target(50, 50, QImage::Format_ARGB32);
    target.fill(Qt::white);
    const QImage before = target;
    QPainter painter(&target);
    head.paintHeaderSection(&painter, QRect(), 0, false);
    QCOMPARE(target, before);
    head.paintHeaderSection(&painter, QRect(0, 0, 40, 40), 0, false); // no model: a frame, no text
    QVERIFY(target != before);
}

void tst_ZrHeaderSectionPainter::aDragCopyStandsOutsideOfItsGroup()
{
    HeadScene scene(HeadScene::groups("AA."));
    scene.head->setSectionsMovable(true);
    scene.head->setGridColor(Qt::red);
    scene.head->setViewFilterable(true);
    scene.head->setHeadTip(1, "help");
    scene.shot();
    const QMap<int, QRect> places = scene.head->getPrivate()->filterButtonRects;
    const QMap<int, QRect> tips = scene.head->getPrivate()->tipRects;
    scene.style->drawn.clear();
    scene.press(scene.centre(1)); // the base makes its copy now
    const auto frames = scene.style->of(QStyle::CE_Header);
    QCOMPARE(frames.size(), 1);
    QCOMPARE(frames.first().rect, QRect(0, 0, 100, 40));
    QCOMPARE(scene.head->getPrivate()->filterButtonRects, places);
    QCOMPARE(scene.head->getPrivate()->tipRects, tips);
    scene.release(scene.centre(1));
    // The same by its name: no separator at its right edge.
    QImage target(100, 40, QImage::Format_ARGB32);
    QPainter painter(&target);
    scene.head->paintDrageSection(&painter, target.rect(), 1);
    QVERIFY(target.pixelColor(99, 20) != QColor(Qt::red) && target.pixelColor(50, 20) != QColor(Qt::red));
}

void tst_ZrHeaderSectionPainter::laterSectionsLeaveThePicturesOfTheirGroupAlone()
{
    const HeadScene scene(HeadScene::groups("AAA.."));
    scene.head->setViewFilterable(true);
    for (const int column : {0, 1, 2})
        scene.head->setHeadTip(column, "help");
    const QImage shot = scene.shot();
    for (const int left : {0, 100, 200}) {
        QCOMPARE(shot.pixelColor(left + 70, 12), SkinFolder::help); // the half that stands in the band
        QCOMPARE(shot.pixelColor(left + 70, 27), SkinFolder::help);
        // The button's picture stays below the band, where a press meets the button.
        QCOMPARE(shot.pixelColor(left + 90, 22), SkinFolder::filter);
        QCOMPARE(shot.pixelColor(left + 90, 37), SkinFolder::filter);
        QVERIFY(shot.pixelColor(left + 90, 21) != SkinFolder::filter);
    }
}

ZR_TEST_MAIN(tst_ZrHeaderSectionPainter)
#include "tst_zrheadersectionpainter.moc"
