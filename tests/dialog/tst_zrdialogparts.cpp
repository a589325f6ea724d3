#include "DialogScene.h"
#include "ZrDialogParts.h"
#include "ZrQuietPlatform.h"
#include "ZrShadowFrame.h"
#include "ZrTestMain.h"
#include "ZrTitleLabel.h"

#include <QtWidgets/QBoxLayout>
#include <QtWidgets/QPushButton>

class tst_ZrDialogParts : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase() { ZrQuietPlatform::install(); }
    void aColumnHasNeitherMarginsNorSpace();
    void theMainFramesColumnStandsClearOfItsEdge();
    void aTitleIsOfAFixedHeight();
    void aPlainFrameHasNoMargin();
    void aTitlesTextGoesBeforeItsSpace();
    void aTitlesButtonTakesNoKeys();
    void theWorkFrameTakesTheRest();
    void buttonsStandAtTheRight();
    void buttonsCanBeAWholeWidget();
    void bitsShowButtons_data();
    void bitsShowButtons();
    void aButtonsTextIsNoShortcut();
    void aButtonsTextIsBounded();
    void theSettersFindTheirParts();
    void aWindowWithoutThePartsIsLeftAlone();
};

void tst_ZrDialogParts::aColumnHasNeitherMarginsNorSpace()
{
    QWidget window;
    const QVBoxLayout *const column = ZrDialogParts::column("c", &window);
    QCOMPARE(window.layout(), column);
    QCOMPARE(column->objectName(), QString("c"));
    QCOMPARE(column->spacing(), 0);
    QCOMPARE(column->contentsMargins(), QMargins());
}

void tst_ZrDialogParts::theMainFramesColumnStandsClearOfItsEdge()
{
    QWidget window;
    const ZrShadowFrame *const frame = ZrDialogParts::addMainFrame(&window, "verticalLayout_2");
    QCOMPARE(frame->objectName(), QString("frame_main"));
    QCOMPARE(window.layout()->objectName(), QString("verticalLayout_2"));
    QCOMPARE(window.layout()->itemAt(0)->widget(), frame);
    QCOMPARE(frame->layout()->objectName(), QString("verticalLayout_3"));
    const int margin = frame->margin();
    QCOMPARE(frame->layout()->contentsMargins(), QMargins(margin, margin, margin, margin));
    QCOMPARE(frame->layout()->spacing(), 0);
}

void tst_ZrDialogParts::aTitleIsOfAFixedHeight()
{
    QWidget window;
    QVBoxLayout *const column = ZrDialogParts::column("c", &window);
    const auto title = ZrDialogParts::addTitle(column, DialogScene::markup(), {6, {10, 0, 11, 0}});
    QCOMPARE(title.frame->objectName(), QString("frame_title"));
    QCOMPARE(title.frame->minimumSize(), QSize(0, 31));
    QCOMPARE(title.frame->maximumSize(), QSize(0xffffff, 31));
    QCOMPARE(title.row->objectName(), QString("horizontalLayout"));
    QCOMPARE(title.row->spacing(), 6);
    QCOMPARE(title.row->contentsMargins(), QMargins(10, 0, 11, 0));
    QCOMPARE(title.label->objectName(), QString("label_title"));
    QCOMPARE(title.label->text(), DialogScene::markup());
    QCOMPARE(title.row->itemAt(0)->widget(), title.label);
}

void tst_ZrDialogParts::aPlainFrameHasNoMargin()
{
    QWidget window;
    const QFrame *const frame = ZrDialogParts::addPlainFrame(&window, "l");
    QCOMPARE(frame->objectName(), QString("frame_main"));
    QCOMPARE(window.layout()->objectName(), QString("l"));
    QCOMPARE(window.layout()->itemAt(0)->widget(), frame);
    QCOMPARE(frame->layout()->objectName(), QString("verticalLayout_3"));
    QCOMPARE(frame->layout()->contentsMargins(), QMargins());
}

void tst_ZrDialogParts::aTitlesTextGoesBeforeItsSpace()
{
    QWidget window;
    const auto title =
        ZrDialogParts::addTitle(ZrDialogParts::column("c", &window), "Orders", {6, {10, 0, 10, 0}});
    ZrDialogParts::addTitleSpace(title);
    QCOMPARE(title.row->itemAt(1)->spacerItem()->sizeHint(), QSize(737, 20));
    const int neededPx = title.label->sizeHint().width();
    // Far narrower than what the space asks for.
    window.resize(neededPx + 60, 31);
    window.show();
    QCOMPARE(title.label->width(), neededPx);
    // And then the text itself.
    window.resize(neededPx, 31);
    QVERIFY(title.label->width() < neededPx);
    QVERIFY(title.label->width() > 0);
}

void tst_ZrDialogParts::aTitlesButtonTakesNoKeys()
{
    QWidget window;
    const auto title = ZrDialogParts::addTitle(ZrDialogParts::column("c", &window), "t", {6, {}});
    const QPushButton *const button = ZrDialogParts::addTitleButton(title, "pushButton_x", "Remove");
    QCOMPARE(button->objectName(), QString("pushButton_x"));
    QCOMPARE(button->accessibleName(), QString("Remove"));
    QCOMPARE(button->toolTip(), QString("Remove"));
    QCOMPARE(button->focusPolicy(), Qt::NoFocus);
    QVERIFY(!button->autoDefault());
    QCOMPARE(title.row->indexOf(const_cast<QPushButton *>(button)), 1);
}

void tst_ZrDialogParts::theWorkFrameTakesTheRest()
{
    QWidget window;
    QVBoxLayout *const column = ZrDialogParts::column("c", &window);
    ZrDialogParts::addTitle(column, "t", {0, {}});
    const QFrame *const work = ZrDialogParts::addWork(column);
    QCOMPARE(work->objectName(), QString("frame_work"));
    window.resize(200, 131);
    window.show();
    QCOMPARE(work->geometry(), QRect(0, 31, 200, 100));
}

void tst_ZrDialogParts::buttonsStandAtTheRight()
{
    QWidget window;
    QVBoxLayout *const column = ZrDialogParts::column("c", &window);
    const auto buttons = ZrDialogParts::addButtons(column, "yes", "no", {6, {9, 0, 9, 9}});
    buttons.confirm->setText("Y");
    buttons.cancel->setText("N");
    QCOMPARE(buttons.row->objectName(), QString("horizontalLayout_2"));
    QCOMPARE(buttons.row->spacing(), 6);
    QCOMPARE(buttons.row->contentsMargins(), QMargins(9, 0, 9, 9));
    QCOMPARE(buttons.confirm->objectName(), QString("yes"));
    QCOMPARE(buttons.cancel->objectName(), QString("no"));
    QCOMPARE(buttons.row->itemAt(0)->spacerItem()->sizeHint(), QSize(40, 20));
    window.resize(400, 60);
    window.show();
    QCOMPARE(buttons.cancel->geometry().right(), 400 - 9 - 1);
    QCOMPARE(buttons.confirm->geometry().right() + 1 + 6, buttons.cancel->geometry().left());
}

void tst_ZrDialogParts::buttonsCanBeAWholeWidget()
{
    QWidget bottom;
    const auto buttons = ZrDialogParts::addButtons(&bottom, "yes", "no", {6, {9, 0, 9, 9}});
    QCOMPARE(bottom.layout(), buttons.row);
    QCOMPARE(buttons.row->objectName(), QString("horizontalLayout_2"));
    QCOMPARE(buttons.row->contentsMargins(), QMargins(9, 0, 9, 9));
    QCOMPARE(buttons.confirm->parentWidget(), &bottom);
    QCOMPARE(buttons.row->indexOf(buttons.cancel), 2);
}

void tst_ZrDialogParts::bitsShowButtons_data()
{
    QTest::addColumn<int>("bits");
    QTest::addColumn<bool>("confirm");
    QTest::addColumn<bool>("cancel");
    QTest::newRow("none") << 0 << false << false;
    QTest::newRow("confirm") << 1 << true << false;
    QTest::newRow("cancel") << 2 << false << true;
    QTest::newRow("both") << 3 << true << true;
    QTest::newRow("an unknown bit") << 4 << false << false;
}

void tst_ZrDialogParts::bitsShowButtons()
{
    QFETCH(int, bits);
    QFETCH(bool, confirm);
    QFETCH(bool, cancel);
    QWidget window;
    const auto buttons = ZrDialogParts::addButtons(ZrDialogParts::column("c", &window), "a", "b", {0, {}});
    ZrDialogParts::showButtons(buttons, bits);
    QCOMPARE(buttons.confirm->isVisibleTo(&window), confirm);
    QCOMPARE(buttons.cancel->isVisibleTo(&window), cancel);
}

void tst_ZrDialogParts::aButtonsTextIsNoShortcut()
{
    QPushButton button;
    ZrDialogParts::setButtonText(&button, "Fish & Chips");
    QCOMPARE(button.text(), QString("Fish && Chips"));
    QVERIFY(button.shortcut().isEmpty());
    QCOMPARE(button.toolTip(), QString());
}

void tst_ZrDialogParts::aButtonsTextIsBounded()
{
    QPushButton button;
    ZrDialogParts::setButtonText(&button, DialogScene::withoutBlank());
    QVERIFY(button.minimumSizeHint().width() < 200);
    QVERIFY(button.toolTip().contains("WWWW"));
    // What the screen reader says is what was given, as far as a caption goes.
    QVERIFY(button.accessibleName().size() > 100);
    ZrDialogParts::setButtonText(&button, "OK");
    QCOMPARE(button.text(), QString("OK"));
    QCOMPARE(button.toolTip(), QString());
    QCOMPARE(button.accessibleName(), QString());
}

void tst_ZrDialogParts::theSettersFindTheirParts()
{
    QWidget window;
    const ZrShadowFrame *const frame = ZrDialogParts::addMainFrame(&window, "l");
    const auto title = ZrDialogParts::addTitle(static_cast<QBoxLayout *>(frame->layout()), "t", {0, {}});
    ZrDialogParts::setMargin(&window, 7);
    QCOMPARE(frame->margin(), 7);
    QCOMPARE(frame->layout()->contentsMargins(), QMargins(8, 8, 8, 8));
    ZrDialogParts::setRadius(&window, 4);
    QCOMPARE(frame->radius(), 4);
    ZrDialogParts::setTitleHeight(&window, 40);
    QCOMPARE(title.frame->minimumHeight(), 40);
    QCOMPARE(title.frame->maximumHeight(), 40);
}

void tst_ZrDialogParts::aWindowWithoutThePartsIsLeftAlone()
{
    QWidget window;
    ZrDialogParts::setMargin(&window, 7);
    ZrDialogParts::setRadius(&window, 4);
    ZrDialogParts::setTitleHeight(&window, 40);
    QVERIFY(window.children().isEmpty());
}

ZR_TEST_MAIN(tst_ZrDialogParts)
#include "tst_zrdialogparts.moc"
