#include "DialogScene.h"
#include "HostedPlugin.h"
#include "zrdefine/PluginPropety.h"
#include "ZrDialog.h"
#include "ZrShadowFrame.h"
#include "ZrTestMain.h"

#include <QtGui/QScreen>
#include <QtWidgets/QBoxLayout>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QPushButton>

namespace {
constexpr int bothButtons = 3;
} // namespace

/// What a dialog is made of, how large it is and where it lies.
class tst_ZrDialog : public QObject
{
    Q_OBJECT
private slots:
    void init();
    void cleanup();
    void itIsAFramelessWindow();
    void itIsSkinned();
    void itTellsThatItWasMade();
    void theTitleIsBuiltOfNamedParts();
    void theWorkStandsInTheMainFrame_data();
    void theWorkStandsInTheMainFrame();
    void buttonsAreShownByTheirBits_data();
    void buttonsAreShownByTheirBits();
    void theTitleCanBeHidden();
    void theTitleIsPlainAndKeepsItsRoom();
    void everyButtonHasAName();
    void theSheetsPropertiesReadAsNothing();
    void marginAndRadiusAreTheShadowFrames();
    void withoutAShadowMarginAndRadiusChangeNothing();
    void theDialogTakesItsContentsSize_data();
    void theDialogTakesItsContentsSize();
    void noContentChangesNothing();
    void aPluginTellsItsSize();
    void aLargerDialogIsCappedByTheScreen_data();
    void aLargerDialogIsCappedByTheScreen();
    void theButtonsStayOnTheScreen();
    void theModePlacesTheDialog_data();
    void theModePlacesTheDialog();
    void theDialogFollowsItsContentWhereItShall_data();
    void theDialogFollowsItsContentWhereItShall();
    void aPluginsWidgetGoesBeforeTheTitlesButtons();
    void aReplacedContentStays();
    void aNestedDialogsPartsAreItsOwn();

private:
    static std::unique_ptr<ZrDialog> make(int buttons = bothButtons, bool hasShadow = true,
                                          QWidget *parent = nullptr, int mode = 0);
    static QRect screen() { return QGuiApplication::primaryScreen()->availableGeometry(); }

    std::unique_ptr<DialogScene> m_scene;
};

void tst_ZrDialog::init()
{
    m_scene = std::make_unique<DialogScene>();
    QVERIFY(m_scene->isReady());
    QCursor::setPos(screen().center());
}

void tst_ZrDialog::cleanup()
{
    m_scene.reset();
}

std::unique_ptr<ZrDialog> tst_ZrDialog::make(int buttons, bool hasShadow, QWidget *parent, int mode)
{
    return std::make_unique<ZrDialog>("Title", true, parent, buttons, true, hasShadow, mode);
}

void tst_ZrDialog::itIsAFramelessWindow()
{
    const auto dialog = make();
    QCOMPARE(int(dialog->windowFlags()), int(Qt::Window | Qt::FramelessWindowHint));
    QVERIFY(dialog->testAttribute(Qt::WA_TranslucentBackground));
    QVERIFY(!dialog->isModal()); // a filter's dialog leaves the window below in reach
    QCOMPARE(dialog->objectName(), QString("ZrDialog"));
    QCOMPARE(dialog->size(), QSize(420, 162));
    QCOMPARE(dialog->minimumWidth(), 200);
    QCOMPARE(dialog->maximumSize(), screen().size() - QSize(20, 20));
}

void tst_ZrDialog::itIsSkinned()
{
    const auto dialog = make();
    const QString dark = dialog->styleSheet();
    QVERIFY(dark.contains("ZrDialog"));
    QVERIFY(m_scene->host.setSkin("light"));
    QVERIFY(dialog->styleSheet().contains("ZrDialog"));
    QVERIFY(dialog->styleSheet() != dark);
    dialog->loadSkin(QVariant());
    QVERIFY(dialog->styleSheet().contains("ZrDialog"));
}

void tst_ZrDialog::itTellsThatItWasMade()
{
    QTest::ignoreMessage(QtDebugMsg, "ZrDialog::ZrDialog \"Title\"  dialog inited");
    QTest::ignoreMessage(QtDebugMsg, QRegularExpression("^ZrDialog::addWidget QWidget\\(0x0\\) QWidget"));
    make()->addWidget(new QWidget);
}

void tst_ZrDialog::theTitleIsBuiltOfNamedParts()
{
    const auto dialog = make();
    const auto *const title = dialog->findChild<QFrame *>("frame_title");
    QCOMPARE(title->minimumSize(), QSize(0, 31));
    QCOMPARE(title->maximumSize(), QSize(0xffffff, 31));
    const auto *const row = qobject_cast<QHBoxLayout *>(title->layout());
    QCOMPARE(row->objectName(), QString("horizontalLayout"));
    QCOMPARE(row->spacing(), 6);
    QCOMPARE(row->contentsMargins(), QMargins(10, 0, 10, 0));
    QCOMPARE(row->count(), 4);
    QCOMPARE(row->itemAt(0)->widget()->objectName(), QString("label_title"));
    QCOMPARE(row->itemAt(1)->spacerItem()->sizeHint(), QSize(737, 20));
    QCOMPARE(row->itemAt(1)->spacerItem()->sizePolicy().horizontalPolicy(), QSizePolicy::Expanding);
    QCOMPARE(row->itemAt(2)->widget()->objectName(), QString("pushButton_fresh"));
    QCOMPARE(row->itemAt(3)->widget()->objectName(), QString("pushButton_close"));
    QVERIFY(!row->itemAt(2)->widget()->isVisibleTo(dialog.get()));
    QVERIFY(row->itemAt(3)->widget()->isVisibleTo(dialog.get()));
    for (const int index : {2, 3})
        QCOMPARE(row->itemAt(index)->widget()->focusPolicy(), Qt::NoFocus);
    dialog->setTitleHeight(40);
    QCOMPARE(title->minimumHeight(), 40);
    QCOMPARE(title->maximumHeight(), 40);
}

void tst_ZrDialog::theWorkStandsInTheMainFrame_data()
{
    QTest::addColumn<bool>("hasShadow");
    QTest::newRow("with a shadow") << true;
    QTest::newRow("without a shadow") << false;
}

void tst_ZrDialog::theWorkStandsInTheMainFrame()
{
    QFETCH(bool, hasShadow);
    const auto dialog = make(bothButtons, hasShadow);
    QCOMPARE(dialog->layout()->objectName(), QString("verticalLayout"));
    const auto *const main = dialog->findChild<QFrame *>("frame_main");
    QCOMPARE(dialog->layout()->itemAt(0)->widget(), main);
    const auto *const shadow = qobject_cast<const ZrShadowFrame *>(main);
    QCOMPARE(shadow != nullptr, hasShadow);
    const QLayout *const column = main->layout();
    QCOMPARE(column->objectName(), QString("verticalLayout_3"));
    const int margin = shadow ? shadow->margin() : 0;
    QCOMPARE(column->contentsMargins(), QMargins(margin, margin, margin, margin));
    QCOMPARE(column->spacing(), 0);
    QCOMPARE(column->itemAt(0)->widget()->objectName(), QString("frame_title"));
    QCOMPARE(column->itemAt(1)->widget()->objectName(), QString("frame_work"));
    QCOMPARE(column->itemAt(2)->widget()->objectName(), QString("bottom"));
    const QLayout *const work = column->itemAt(1)->widget()->layout();
    QCOMPARE(work->objectName(), QString("verticalLayout_2"));
    QCOMPARE(work->contentsMargins(), QMargins());
    const auto *const row = qobject_cast<QHBoxLayout *>(column->itemAt(2)->widget()->layout());
    QCOMPARE(row->objectName(), QString("horizontalLayout_2"));
    QCOMPARE(row->spacing(), 6);
    QCOMPARE(row->contentsMargins(), QMargins(9, 0, 9, 9));
    QCOMPARE(row->itemAt(0)->spacerItem()->sizeHint(), QSize(40, 20));
    QCOMPARE(row->itemAt(1)->widget()->objectName(), QString("pushButton_ok"));
    QCOMPARE(row->itemAt(2)->widget()->objectName(), QString("pushButton_cancel"));
}

void tst_ZrDialog::buttonsAreShownByTheirBits_data()
{
    QTest::addColumn<int>("bits");
    QTest::addColumn<bool>("ok");
    QTest::addColumn<bool>("cancel");
    QTest::addColumn<bool>("laidOut");
    QTest::newRow("none") << 0 << false << false << false;
    QTest::newRow("OK") << 1 << true << false << true;
    QTest::newRow("cancel") << 2 << false << true << true;
    QTest::newRow("both") << 3 << true << true << true;
    QTest::newRow("an unknown bit") << 4 << false << false << true;
}

void tst_ZrDialog::buttonsAreShownByTheirBits()
{
    QFETCH(int, bits);
    QFETCH(bool, ok);
    QFETCH(bool, cancel);
    QFETCH(bool, laidOut);
    const auto dialog = make(bits);
    auto *const bottom = dialog->findChild<QWidget *>("bottom");
    QCOMPARE(dialog->findChild<QWidget *>("pushButton_ok")->isVisibleTo(dialog.get()), ok);
    QCOMPARE(dialog->findChild<QWidget *>("pushButton_cancel")->isVisibleTo(dialog.get()), cancel);
    QCOMPARE(bottom->isVisibleTo(dialog.get()), ok || cancel);
    QCOMPARE(dialog->findChild<QFrame *>("frame_main")->layout()->indexOf(bottom) >= 0, laidOut);
}

void tst_ZrDialog::theTitleCanBeHidden()
{
    ZrDialog dialog("Title", true, nullptr, 0, false, true, 0);
    QVERIFY(!dialog.findChild<QWidget *>("frame_title")->isVisibleTo(&dialog));
    QWidget content;
    content.resize(300, 100);
    dialog.addWidget(&content);
    // Its height counts all the same.
    QCOMPARE(dialog.height(), 100 + 31 + 2 * dialog.findChild<ZrShadowFrame *>()->margin());
    content.setParent(nullptr);
}

void tst_ZrDialog::theTitleIsPlainAndKeepsItsRoom()
{
    const auto dialog = make();
    auto *const label = dialog->findChild<QLabel *>("label_title");
    QCOMPARE(label->text(), QString("Title"));
    dialog->setTitle("Orders of today");
    QCOMPARE(label->text(), QString("Orders of today"));
    QCOMPARE(dialog->windowTitle(), QString("Orders of today"));
    dialog->show();
    // The space behind it yields first.
    QVERIFY(label->width() >= label->fontMetrics().horizontalAdvance(label->text()));
    dialog->setTitle(DialogScene::markup());
    QCOMPARE(label->text(), DialogScene::markup());
    QCOMPARE(label->textFormat(), Qt::PlainText);
    dialog->setTitle(DialogScene::withoutBlank());
    QVERIFY(label->text().size() < 1000);
    auto *const close = dialog->findChild<QWidget *>("pushButton_close");
    QTRY_VERIFY(dialog->rect().contains(QRect(close->mapTo(dialog.get(), QPoint()), close->size())));
    QCOMPARE(dialog->width(), 420);
}

void tst_ZrDialog::everyButtonHasAName()
{
    const auto dialog = make();
    const auto buttons = dialog->findChildren<QPushButton *>();
    QCOMPARE(buttons.size(), 4);
    for (const QPushButton *const button : buttons)
        QVERIFY2(!button->text().isEmpty() || !button->accessibleName().isEmpty(),
                 qPrintable(button->objectName()));
    QVERIFY(!dialog->findChild<QPushButton *>("pushButton_close")->toolTip().isEmpty());
}

void tst_ZrDialog::theSheetsPropertiesReadAsNothing()
{
    const auto dialog = make();
    dialog->setMarginPropety(7);
    dialog->setRadiusPropety(8);
    dialog->setTitleHeight(40);
    for (const char *const name : {"margin", "radius", "titleheight"})
        QCOMPARE(dialog->property(name), QVariant(0));
    QVERIFY(dialog->setProperty("titleheight", 44));
    QCOMPARE(dialog->findChild<QWidget *>("frame_title")->height(), 44);
}

void tst_ZrDialog::marginAndRadiusAreTheShadowFrames()
{
    const auto dialog = make();
    const auto *const frame = dialog->findChild<ZrShadowFrame *>("frame_main");
    dialog->setMarginPropety(7);
    QCOMPARE(frame->margin(), 7);
    QCOMPARE(frame->layout()->contentsMargins(), QMargins(8, 8, 8, 8));
    dialog->setRadiusPropety(9);
    QCOMPARE(frame->radius(), 9);
}

void tst_ZrDialog::withoutAShadowMarginAndRadiusChangeNothing()
{
    const auto dialog = make(bothButtons, false);
    ZrShadowFrame foreign; // as a content may have one
    foreign.setObjectName("frame_main");
    foreign.setLayout(new QVBoxLayout);
    dialog->addWidget(&foreign);
    const int margin = foreign.margin();
    dialog->setMarginPropety(margin + 3);
    dialog->setRadiusPropety(foreign.radius() + 3);
    QCOMPARE(foreign.margin(), margin);
    QCOMPARE(foreign.radius(), ZrShadowFrame().radius());
    QCOMPARE(dialog->layout()->itemAt(0)->widget()->layout()->contentsMargins(), QMargins());
    foreign.setParent(nullptr);
}

void tst_ZrDialog::theDialogTakesItsContentsSize_data()
{
    QTest::addColumn<int>("buttons");
    QTest::addColumn<bool>("hasShadow");
    QTest::addColumn<QSize>("content");
    QTest::newRow("plain") << 0 << false << QSize(300, 200);
    QTest::newRow("buttons") << 3 << false << QSize(300, 200);
    QTest::newRow("shadow") << 0 << true << QSize(300, 200);
    QTest::newRow("shadow and buttons") << 3 << true << QSize(300, 200);
    QTest::newRow("too narrow") << 0 << false << QSize(10, 200);
    QTest::newRow("just wide and high enough") << 0 << false << QSize(200, 39);
    QTest::newRow("too low") << 0 << false << QSize(300, 5);
}

void tst_ZrDialog::theDialogTakesItsContentsSize()
{
    QFETCH(int, buttons);
    QFETCH(bool, hasShadow);
    QFETCH(QSize, content);
    const auto dialog = make(buttons, hasShadow);
    auto *const widget = new QWidget;
    widget->resize(content);
    dialog->addWidget(widget);
    QCOMPARE(widget->parentWidget()->objectName(), QString("frame_work"));
    const QSize found = dialog->size();
    dialog->show(); // only then all parts have been laid out
    const int shadow = hasShadow ? 2 * dialog->findChild<ZrShadowFrame *>()->margin() : 0;
    const int bottom = buttons ? dialog->findChild<QWidget *>("bottom")->height() : 0;
    const QSize expected = content + QSize(shadow, 31 + shadow + bottom);
    QCOMPARE(found, expected.expandedTo(QSize(200, 70)));
    QCOMPARE(dialog->size(), found);
}

void tst_ZrDialog::noContentChangesNothing()
{
    const auto dialog = make();
    dialog->addWidget(nullptr);
    dialog->slotAddPluginDialogTitleWidget(nullptr);
    dialog->slotPluginWidgetSizeChanged();
    QCOMPARE(dialog->size(), QSize(420, 162));
}

void tst_ZrDialog::aPluginTellsItsSize()
{
    const auto dialog = make(0, false);
    auto *const plugin = new HostedPlugin;
    plugin->resize(250, 150);
    dialog->addWidget(plugin);
    QCOMPARE(dialog->size(), QSize(250, 150 + 31));
    plugin->setPluginWidgetPropety(PluginPropety::PLUGINWIDGET_NORMALWIDTH, 320);
    plugin->setPluginWidgetPropety(PluginPropety::PLUGINWIDGET_NORMALHEIGHT, 240);
    QCOMPARE(dialog->size(), QSize(250, 150 + 31));
    emit plugin->signalPluginWidgetSizeChanged();
    QCOMPARE(dialog->size(), QSize(320, 240 + 31));
}

void tst_ZrDialog::aLargerDialogIsCappedByTheScreen_data()
{
    QTest::addColumn<QSize>("content");
    QTest::addColumn<QPoint>("expected");
    QTest::newRow("fits") << QSize(300, 100) << QPoint(33, 44);
    QTest::newRow("too wide") << QSize(5000, 100) << QPoint(10, 44);
    QTest::newRow("too high") << QSize(300, 5000) << QPoint(33, 10);
    QTest::newRow("both") << QSize(5000, 5000) << QPoint(10, 10);
    QTest::newRow("beyond counting") << QSize(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX) << QPoint(10, 10);
}

void tst_ZrDialog::aLargerDialogIsCappedByTheScreen()
{
    QFETCH(QSize, content);
    QFETCH(QPoint, expected);
    const auto dialog = make(bothButtons, true);
    dialog->move(33, 44);
    auto *const widget = new QWidget;
    widget->resize(content);
    dialog->addWidget(widget);
    const QSize most = screen().size() - QSize(20, 20);
    QCOMPARE(dialog->maximumSize(), most);
    QCOMPARE(dialog->pos(), expected);
    QCOMPARE(dialog->width() == most.width(), content.width() >= most.width());
    QCOMPARE(dialog->height() == most.height(), content.height() >= most.height());
    QVERIFY(screen().contains(dialog->frameGeometry()));
    // Where the bound was another one, as on a screen before, it's the same.
    dialog->setMaximumSize(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX);
    dialog->resize(most + QSize(300, 300));
    dialog->move(33, 44);
    widget->resize(content.expandedTo(most));
    dialog->slotPluginWidgetSizeChanged();
    QCOMPARE(dialog->frameGeometry(), QRect(QPoint(10, 10), most));
}

// A content that asks for more than the screen has is cut rather than the buttons below it.
void tst_ZrDialog::theButtonsStayOnTheScreen()
{
    const auto dialog = make();
    auto *const widget = new QWidget;
    widget->setMinimumSize(100, 3000);
    dialog->addWidget(widget);
    dialog->show();
    const auto *const ok = dialog->findChild<QWidget *>("pushButton_ok");
    const auto inside = [&] {
        return dialog->height() <= screen().height() - 20 &&
               dialog->rect().contains(QRect(ok->mapTo(dialog.get(), QPoint()), ok->size()));
    };
    QTRY_VERIFY(inside());
    // And the layout's own least size counts again once it fits.
    widget->setMinimumHeight(300);
    widget->resize(100, 300);
    dialog->slotPluginWidgetSizeChanged();
    QTRY_VERIFY(dialog->minimumHeight() >= 300 && dialog->minimumHeight() < 500);
}

void tst_ZrDialog::theModePlacesTheDialog_data()
{
    QTest::addColumn<int>("mode");
    QTest::addColumn<bool>("hasParent");
    QTest::addColumn<QPoint>("expected");
    QTest::newRow("leave") << 0 << true << QPoint(0, 0);
    QTest::newRow("over the parent") << 1 << true
                                     << QPoint(60 + 100 + (500 - 420) / 2, 40 + 50 + (400 - 162) / 2);
    QTest::newRow("over the main window") << 2 << true << QPoint(60 + (800 - 420) / 2, 40 + (600 - 162) / 2);
    QTest::newRow("on the screen") << 3 << true << QPoint((800 - 420) / 2, (600 - 162) / 2);
    QTest::newRow("without a parent") << 1 << false << QPoint((800 - 420) / 2, (600 - 162) / 2);
}

void tst_ZrDialog::theModePlacesTheDialog()
{
    QFETCH(int, mode);
    QFETCH(bool, hasParent);
    QFETCH(QPoint, expected);
    QCOMPARE(screen(), QRect(0, 0, 800, 600));
    QWidget part(&m_scene->mainWindow);
    part.setGeometry(100, 50, 500, 400);
    const auto dialog = make(bothButtons, true, hasParent ? &part : nullptr, mode);
    QCOMPARE(dialog->pos(), expected);
}

void tst_ZrDialog::theDialogFollowsItsContentWhereItShall_data()
{
    QTest::addColumn<bool>("follows");
    QTest::newRow("follows") << true;
    QTest::newRow("keeps its size") << false;
}

void tst_ZrDialog::theDialogFollowsItsContentWhereItShall()
{
    QFETCH(bool, follows);
    const auto dialog = make(0, false);
    auto *const widget = new QWidget;
    widget->resize(300, 200);
    dialog->addWidget(widget);
    dialog->setAutoResizeByCenterWidget(follows);
    dialog->show();
    QTRY_COMPARE(widget->size(), QSize(300, 200));
    widget->resize(350, 260);
    QCOMPARE(dialog->size(), follows ? QSize(350, 260 + 31) : QSize(300, 200 + 31));
    // The dialog's own resizing doesn't come back as its content's.
    dialog->resize(400, 300);
    QCOMPARE(dialog->size(), QSize(400, 300));
}

void tst_ZrDialog::aPluginsWidgetGoesBeforeTheTitlesButtons()
{
    const auto dialog = make();
    auto *const plugin = new HostedPlugin;
    dialog->addWidget(plugin);
    dialog->show();
    auto *const first = new QLineEdit;
    first->setStyleSheet("color: red");
    auto *const second = new QLabel("2");
    emit plugin->signalAddPluginDialogTitleWidget(first);
    emit plugin->signalAddPluginDialogTitleWidget(second);
    auto *const title = dialog->findChild<QFrame *>("frame_title");
    QCOMPARE(first->parentWidget(), title);
    QCOMPARE(first->styleSheet(), QString("color: red"));
    auto *const row = qobject_cast<QHBoxLayout *>(title->layout());
    QCOMPARE(row->count(), 6);
    QCOMPARE(row->itemAt(2)->widget(), first);
    QCOMPARE(row->itemAt(3)->widget(), second);
    QCOMPARE(row->itemAt(4)->widget()->objectName(), QString("pushButton_fresh"));
    QTRY_VERIFY(first->isVisible() && second->isVisible());
    // Once more moves it behind the others.
    emit plugin->signalAddPluginDialogTitleWidget(first);
    QCOMPARE(row->count(), 6);
    QCOMPARE(row->itemAt(3)->widget(), first);
}

void tst_ZrDialog::aReplacedContentStays()
{
    const auto dialog = make();
    const QPointer<QWidget> before(new QWidget);
    auto *const after = new QWidget;
    dialog->addWidget(before);
    dialog->addWidget(after);
    auto *const work = dialog->findChild<QFrame *>("frame_work");
    QVERIFY(before);
    QCOMPARE(before->parentWidget(), work);
    QCOMPARE(work->layout()->indexOf(after), 1);
}

// Both have parts of the same names.
void tst_ZrDialog::aNestedDialogsPartsAreItsOwn()
{
    const auto outer = make();
    auto *const inner = new ZrDialog("Inner", true, outer.get(), bothButtons, true, true, 0);
    outer->addWidget(new QWidget);
    outer->setTitle("Outer");
    outer->setTitleHeight(40);
    outer->setMarginPropety(5);
    QCOMPARE(inner->findChild<QLabel *>("label_title")->text(), QString("Inner"));
    QCOMPARE(inner->findChild<QWidget *>("frame_title")->minimumHeight(), 31);
    QCOMPARE(inner->findChild<ZrShadowFrame *>()->margin(), 10);
}

ZR_TEST_MAIN(tst_ZrDialog)
#include "tst_zrdialog.moc"
