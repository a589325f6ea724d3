#include "HeadScene.h"
#include "ZrHeaderSectionOption.h"
#include "ZrTestMain.h"

#include <QtWidgets/QStyleOptionHeader>

class tst_ZrHeaderSectionOption : public QObject
{
    Q_OBJECT
private slots:
    void theModelsRolesAreTaken();
    void pointerAndEnabledMakeTheState();
    void aHeadThatTakesNoClicksHasNoPointerState();
    void positionsCountVisibleSectionsOnly();
    void selectedColumnsAreTold();
    void aHeadWithoutModelIsPlain();

private:
    static QStyleOptionHeader optionOf(const HeadScene &scene, int section,
                                       const ZrHeaderSectionOption::Pointer &pointer = {});
};

QStyleOptionHeader tst_ZrHeaderSectionOption::optionOf(const HeadScene &scene, int section,
                                                       const ZrHeaderSectionOption::Pointer &pointer)
{
    QStyleOptionHeader option;
    option.section = section;
    ZrHeaderSectionOption::prepare(&option, *scene.head, pointer);
    return option;
}

void tst_ZrHeaderSectionOption::theModelsRolesAreTaken()
{
    const HeadScene scene(HeadScene::plain(3));
    QPixmap mark(8, 8);
    mark.fill(Qt::red);
    scene.model->setHead(1, Qt::TextAlignmentRole, int(Qt::AlignRight));
    scene.model->setHead(1, Qt::DecorationRole, mark);
    scene.model->setHead(1, Qt::ForegroundRole, QBrush(Qt::green));
    scene.model->setHead(1, Qt::BackgroundRole, QBrush(Qt::blue));
    scene.model->setHead(2, Qt::DecorationRole, QIcon(mark));
    scene.model->setHead(2, Qt::TextAlignmentRole, QVariant());
    scene.head->setDefaultAlignment(Qt::AlignBottom);
    const QStyleOptionHeader option = optionOf(scene, 1);
    QCOMPARE(option.textAlignment, Qt::Alignment(Qt::AlignRight));
    QVERIFY(!option.icon.isNull());
    QCOMPARE(option.palette.color(QPalette::ButtonText), QColor(Qt::green));
    QCOMPARE(option.palette.color(QPalette::Button), QColor(Qt::blue));
    QVERIFY(!optionOf(scene, 2).icon.isNull());
    QCOMPARE(optionOf(scene, 2).textAlignment, Qt::Alignment(Qt::AlignBottom));
    QCOMPARE(optionOf(scene, 0).textAlignment, Qt::Alignment(Qt::AlignCenter));
    QVERIFY(optionOf(scene, 0).icon.isNull());
}

void tst_ZrHeaderSectionOption::pointerAndEnabledMakeTheState()
{
    const HeadScene scene(HeadScene::plain(3));
    QVERIFY(optionOf(scene, 0).state & QStyle::State_Enabled);
    QVERIFY(optionOf(scene, 1, {1, -1}).state & QStyle::State_MouseOver);
    QVERIFY(!(optionOf(scene, 0, {1, -1}).state & QStyle::State_MouseOver));
    QVERIFY(optionOf(scene, 1, {-1, 1}).state & QStyle::State_Sunken);
    scene.head->setEnabled(false);
    QVERIFY(!(optionOf(scene, 0).state & QStyle::State_Enabled));
}

void tst_ZrHeaderSectionOption::aHeadThatTakesNoClicksHasNoPointerState()
{
    const HeadScene scene(HeadScene::plain(3));
    scene.head->setSectionsClickable(false);
    const QStyle::State state = optionOf(scene, 1, {1, 1}).state;
    QVERIFY(!(state & (QStyle::State_MouseOver | QStyle::State_Sunken)));
}

void tst_ZrHeaderSectionOption::positionsCountVisibleSectionsOnly()
{
    const HeadScene scene(HeadScene::plain(5));
    QCOMPARE(optionOf(scene, 0).position, QStyleOptionHeader::Beginning);
    QCOMPARE(optionOf(scene, 1).position, QStyleOptionHeader::Middle);
    QCOMPARE(optionOf(scene, 4).position, QStyleOptionHeader::End);
    scene.head->hideSection(0);
    scene.head->hideSection(4);
    QCOMPARE(optionOf(scene, 1).position, QStyleOptionHeader::Beginning);
    QCOMPARE(optionOf(scene, 3).position, QStyleOptionHeader::End);
    scene.head->hideSection(1);
    scene.head->hideSection(3);
    QCOMPARE(optionOf(scene, 2).position, QStyleOptionHeader::OnlyOneSection);
}

void tst_ZrHeaderSectionOption::selectedColumnsAreTold()
{
    const HeadScene scene(HeadScene::plain(4));
    scene.head->setHighlightSections(true);
    scene.table->setSelectionMode(QAbstractItemView::MultiSelection);
    scene.table->selectColumn(1);
    QVERIFY(optionOf(scene, 1).state & QStyle::State_On);
    QVERIFY(optionOf(scene, 1).state & QStyle::State_Sunken);
    QVERIFY(!(optionOf(scene, 0).state & QStyle::State_On));
    QCOMPARE(optionOf(scene, 0).selectedPosition, QStyleOptionHeader::NextIsSelected);
    QCOMPARE(optionOf(scene, 2).selectedPosition, QStyleOptionHeader::PreviousIsSelected);
    QCOMPARE(optionOf(scene, 3).selectedPosition, QStyleOptionHeader::NotAdjacent);
    scene.table->selectColumn(3);
    QCOMPARE(optionOf(scene, 2).selectedPosition, QStyleOptionHeader::NextAndPreviousAreSelected);
}

void tst_ZrHeaderSectionOption::aHeadWithoutModelIsPlain()
{
    const ZrHeaderView head(Qt::Horizontal);
    QStyleOptionHeader option;
    option.section = 0;
    ZrHeaderSectionOption::prepare(&option, head, {});
    QVERIFY(option.icon.isNull());
    QCOMPARE(option.selectedPosition, QStyleOptionHeader::NotAdjacent);
}

ZR_TEST_MAIN(tst_ZrHeaderSectionOption)
#include "tst_zrheadersectionoption.moc"
