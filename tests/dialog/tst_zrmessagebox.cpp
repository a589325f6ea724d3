#include "DialogScene.h"
#include "ZrMessageBox.h"
#include "ZrPlainText.h"
#include "ZrShadowFrame.h"
#include "ZrTestMain.h"

#include <QtGui/QScreen>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLayout>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QTextEdit>

#include <algorithm>

class tst_ZrMessageBox : public QObject
{
    Q_OBJECT
private slots:
    void init();
    void cleanup();
    void itIsAFramelessModalWindow();
    void itIsSkinned();
    void itIsBuiltOfNamedParts();
    void theRowsAreLaidOutAsTheHouseDoes();
    void theTextIsReadOnlyAndCentred();
    void theSizeFollowsFromTheText_data();
    void theSizeFollowsFromTheText();
    void oneLineGivesTheSmallestBox();
    void aTextBeyondTwoHundredPixelsIsAtMostSixHundredWide();
    void anotherTextGivesAnotherSize();
    void aHugeFontStillGivesABox();
    void theSizeIsLogged();
    void buttonsAreShownByTheirBits_data();
    void buttonsAreShownByTheirBits();
    void aClickEndsTheBox_data();
    void aClickEndsTheBox();
    void buttonTextsCanBeSet();
    void theDefaultButtonHasTheFocus_data();
    void theDefaultButtonHasTheFocus();
    void aBoxWithoutItsDefaultButtonUsesTheOther();
    void returnInTheTextMeansTheDefaultButton_data();
    void returnInTheTextMeansTheDefaultButton();
    void escapeClosesOnlyWhereItMay_data();
    void escapeClosesOnlyWhereItMay();
    void tabWalksThroughAllThatCanBeUsed();
    void theHelpMarkIsShownOnDemand();
    void thePropertiesKeepWhatTheyAreGiven();
    void aDragOfTheTitleMovesTheBox();
    void aPressBelowTheGripMovesNothing();
    void theModePlacesTheBox_data();
    void theModePlacesTheBox();
    void modeTwoTakesTheMainWindowAsParent();
    void otherModesTakeNoParent();
    void withoutParentTheScreenIsCentredOn();
    void textsFromOutsideAreShownAsTheyAre();
    void aTextWithoutBlankStaysInsideTheBox();
    void everyPartHasAName();

private:
    static std::unique_ptr<ZrMessageBox> make(const QString &text, int buttons = 3, QWidget *parent = nullptr,
                                              int mode = 0);
    static QTextEdit *textOf(const ZrMessageBox &box);
    static QPushButton *button(const ZrMessageBox &box, const char *name);
    static void showActive(ZrMessageBox *box);
    /// As many letters as make a text at least `px` wide in the box's font, and the text's width.
    static QPair<QString, int> textOfWidth(int px);

    std::unique_ptr<DialogScene> m_scene;
};

void tst_ZrMessageBox::init()
{
    m_scene = std::make_unique<DialogScene>();
    QVERIFY(m_scene->isReady());
    QCursor::setPos(QGuiApplication::primaryScreen()->geometry().center());
}

void tst_ZrMessageBox::cleanup()
{
    m_scene.reset();
}

std::unique_ptr<ZrMessageBox> tst_ZrMessageBox::make(const QString &text, int buttons, QWidget *parent,
                                                     int mode)
{
    return std::make_unique<ZrMessageBox>("Title", text, buttons, parent, mode);
}

QTextEdit *tst_ZrMessageBox::textOf(const ZrMessageBox &box)
{
    return box.findChild<QTextEdit *>("textEdit_message");
}

QPushButton *tst_ZrMessageBox::button(const ZrMessageBox &box, const char *name)
{
    return box.findChild<QPushButton *>(name);
}

void tst_ZrMessageBox::showActive(ZrMessageBox *box)
{
    box->show();
    QVERIFY(QTest::qWaitForWindowActive(box));
}

QPair<QString, int> tst_ZrMessageBox::textOfWidth(int px)
{
    const auto box = make("x");
    const QFontMetrics metrics = textOf(*box)->fontMetrics();
    QString text;
    while (metrics.horizontalAdvance(text) < px)
        text.append('n');
    return {text, metrics.horizontalAdvance(text)};
}

void tst_ZrMessageBox::itIsAFramelessModalWindow()
{
    const auto box = make("x");
    QCOMPARE(int(box->windowFlags()), int(Qt::Window | Qt::FramelessWindowHint));
    QVERIFY(box->testAttribute(Qt::WA_TranslucentBackground));
    QVERIFY(box->isModal());
    QCOMPARE(box->metaObject()->superClass(), &QDialog::staticMetaObject);
    QCOMPARE(box->windowTitle(), QString("Title"));
}

void tst_ZrMessageBox::itIsSkinned()
{
    const auto box = make("x");
    QVERIFY(box->qt_metacast("IZrSkin"));
    QVERIFY(box->qt_metacast("com.orbenlake.Plugin.ISkin"));
    QFile sheet(QStringLiteral(ZR_SKINS "/dark/system/zrwidget/zrmessagebox.css"));
    QVERIFY(sheet.open(QIODevice::ReadOnly));
    const QString dark = QString::fromUtf8(sheet.readAll());
    QCOMPARE(box->styleSheet(), dark);
    box->loadSkin(QVariant());
    QCOMPARE(box->styleSheet(), dark);
    QVERIFY(m_scene->host.setSkin("light"));
    QVERIFY(box->styleSheet() != dark);
    QVERIFY(!box->styleSheet().isEmpty());
}

void tst_ZrMessageBox::itIsBuiltOfNamedParts()
{
    const auto box = make("x");
    auto *const main = box->findChild<ZrShadowFrame *>("frame_main");
    QVERIFY(main);
    QCOMPARE(box->layout()->objectName(), QString("verticalLayout_2"));
    QCOMPARE(main->layout()->objectName(), QString("verticalLayout_3"));
    auto *const title = box->findChild<QFrame *>("frame_title");
    QVERIFY(title);
    QCOMPARE(title->parentWidget(), main);
    QCOMPARE(title->layout()->objectName(), QString("horizontalLayout"));
    QCOMPARE(title->findChild<QLabel *>("label_title")->text(), QString("Title"));
    QVERIFY(title->findChild<QPushButton *>("helpBtn"));
    auto *const work = box->findChild<QFrame *>("frame_work");
    QVERIFY(work);
    QCOMPARE(work->parentWidget(), main);
    QCOMPARE(work->layout()->objectName(), QString("verticalLayout_4"));
    QLayout *const inner = work->layout()->itemAt(0)->layout();
    QCOMPARE(inner->objectName(), QString("verticalLayout"));
    QCOMPARE(inner->itemAt(0)->layout()->objectName(), QString("horizontalLayout_3"));
    QCOMPARE(inner->itemAt(0)->layout()->itemAt(0)->widget(), textOf(*box));
    QLayout *const row = inner->itemAt(1)->layout();
    QCOMPARE(row->objectName(), QString("horizontalLayout_2"));
    QVERIFY(row->indexOf(button(*box, "pushButton_ok")) >= 0);
    QVERIFY(row->indexOf(button(*box, "pushButton_cancel")) >= 0);
    QCOMPARE(button(*box, "pushButton_ok")->text(), QString("确认"));
    QCOMPARE(button(*box, "pushButton_cancel")->text(), QString("取消"));
}

void tst_ZrMessageBox::theRowsAreLaidOutAsTheHouseDoes()
{
    const auto box = make("x");
    auto *const main = box->findChild<ZrShadowFrame *>("frame_main");
    QCOMPARE(box->layout()->spacing(), 0);
    QCOMPARE(box->layout()->contentsMargins(), QMargins());
    QCOMPARE(main->layout()->contentsMargins(), QMargins(11, 11, 11, 11)); // the skin's 10 and one
    auto *const title = box->findChild<QFrame *>("frame_title");
    QCOMPARE(title->minimumHeight(), 31);
    QCOMPARE(title->maximumHeight(), 31);
    QCOMPARE(title->layout()->spacing(), 0);
    QCOMPARE(title->layout()->contentsMargins(), QMargins(10, 0, 0, 0));
    // What is added to the text is what stands around it, so a text has the place that was reckoned.
    box->show();
    QCOMPARE(box->size() - textOf(*box)->size(), QSize(40, 100));
}

void tst_ZrMessageBox::theTextIsReadOnlyAndCentred()
{
    const auto box = make("x");
    QVERIFY(textOf(*box)->isReadOnly());
    QCOMPARE(int(textOf(*box)->alignment()), int(Qt::AlignHCenter | Qt::AlignVCenter));
}

void tst_ZrMessageBox::theSizeFollowsFromTheText_data()
{
    QTest::addColumn<int>("widthPx"); // of the text, at least

    QTest::newRow("nothing") << 0;
    QTest::newRow("a word") << 60;
    QTest::newRow("one line") << 399;
    QTest::newRow("more than a line") << 401;
    QTest::newRow("at the lowest height") << 1190;
    QTest::newRow("higher than the lowest") << 1610;
    QTest::newRow("just below two hundred") << 2600;
    QTest::newRow("just beyond two hundred") << 3250;
    QTest::newRow("wider than usual") << 4300;
    QTest::newRow("as wide as can be") << 6000;
    QTest::newRow("a page") << 40000;
}

void tst_ZrMessageBox::theSizeFollowsFromTheText()
{
    QFETCH(int, widthPx);
    const auto text = textOfWidth(widthPx);
    const auto box = make(text.first);
    const int lineHeight = textOf(*box)->fontMetrics().height() + 6;
    const int total = (text.second / 400 + 2) * lineHeight;
    QSize expected(400 + 40, std::max(100, total) + 100);
    if (total > 200)
        expected = QSize(std::min(600, text.second / (200 / lineHeight)) + 40, 200 + 100);
    QCOMPARE(box->size(), expected);
    box->show();
    QCOMPARE(box->size(), expected);
}

void tst_ZrMessageBox::oneLineGivesTheSmallestBox()
{
    QCOMPARE(make("Order 600000 was accepted.")->size(), QSize(440, 200));
    QCOMPARE(make("确认撤销这笔委托吗？")->size(), QSize(440, 200));
}

void tst_ZrMessageBox::aTextBeyondTwoHundredPixelsIsAtMostSixHundredWide()
{
    const auto box = make(QString("a long reason ").repeated(200));
    QCOMPARE(box->size(), QSize(640, 300));
}

void tst_ZrMessageBox::anotherTextGivesAnotherSize()
{
    const auto box = make("short");
    const QString text = QString("a long reason ").repeated(200);
    box->setMessageText(text);
    QCOMPARE(textOf(*box)->toPlainText(), text);
    QCOMPARE(box->size(), QSize(640, 300));
    box->setMessageText("short");
    QCOMPARE(box->size(), QSize(440, 200));
}

void tst_ZrMessageBox::aHugeFontStillGivesABox()
{
    // Not one line of this font fits into the height of a long text.
    const auto box = make("x");
    box->setStyleSheet("QTextEdit { font-size: 300px; }");
    box->setMessageText("enormous letters");
    QCOMPARE(box->size(), QSize(640, 300));
}

void tst_ZrMessageBox::theSizeIsLogged()
{
    const auto box = make("x");
    const int lineHeight = textOf(*box)->fontMetrics().height() + 6;
    const int width = textOf(*box)->fontMetrics().horizontalAdvance("x");
    const QString line = QStringLiteral("ZrMessageBox::resizeMsgBox %1 %2 QSize(400, 100) QSize(440, 200)");
    QTest::ignoreMessage(QtDebugMsg, qPrintable(line.arg(lineHeight).arg(width)));
    box->setMessageText("x");
}

void tst_ZrMessageBox::buttonsAreShownByTheirBits_data()
{
    QTest::addColumn<int>("bits");
    QTest::addColumn<bool>("confirm");
    QTest::addColumn<bool>("cancel");
    QTest::newRow("none") << 0 << false << false;
    QTest::newRow("confirm") << 1 << true << false;
    QTest::newRow("cancel") << 2 << false << true;
    QTest::newRow("both") << 3 << true << true;
}

void tst_ZrMessageBox::buttonsAreShownByTheirBits()
{
    QFETCH(int, bits);
    QFETCH(bool, confirm);
    QFETCH(bool, cancel);
    const auto box = make("x", bits);
    QCOMPARE(button(*box, "pushButton_ok")->isVisibleTo(box.get()), confirm);
    QCOMPARE(button(*box, "pushButton_cancel")->isVisibleTo(box.get()), cancel);
}

void tst_ZrMessageBox::aClickEndsTheBox_data()
{
    QTest::addColumn<QByteArray>("name");
    QTest::addColumn<int>("expected");
    QTest::newRow("confirm") << QByteArray("pushButton_ok") << 1;
    QTest::newRow("cancel") << QByteArray("pushButton_cancel") << 0;
}

void tst_ZrMessageBox::aClickEndsTheBox()
{
    QFETCH(QByteArray, name);
    QFETCH(int, expected);
    const auto box = make("x");
    QSignalSpy finished(box.get(), &QDialog::finished);
    QTimer::singleShot(0, box.get(),
                       [&] { QTest::mouseClick(button(*box, name.constData()), Qt::LeftButton); });
    QCOMPARE(box->exec(), expected);
    QCOMPARE(finished.count(), 1); // the toolkit's own rule for names would connect one of the slots again
    QVERIFY(!box->isVisible());
}

void tst_ZrMessageBox::buttonTextsCanBeSet()
{
    const auto box = make("x");
    box->setConfirmText("Send");
    box->setCancelText("Keep & wait");
    QCOMPARE(button(*box, "pushButton_ok")->text(), QString("Send"));
    QCOMPARE(button(*box, "pushButton_cancel")->text(), QString("Keep && wait"));
}

void tst_ZrMessageBox::theDefaultButtonHasTheFocus_data()
{
    QTest::addColumn<int>("which"); // 0: nothing said
    QTest::addColumn<QByteArray>("expected");
    QTest::newRow("by itself") << 0 << QByteArray("pushButton_ok");
    QTest::newRow("confirm") << 1 << QByteArray("pushButton_ok");
    QTest::newRow("cancel") << 2 << QByteArray("pushButton_cancel");
}

void tst_ZrMessageBox::theDefaultButtonHasTheFocus()
{
    QFETCH(int, which);
    QFETCH(QByteArray, expected);
    const auto box = make("x");
    QCOMPARE(box->focusWidget(), button(*box, "pushButton_ok"));
    if (which > 0)
        box->setDefaultFocusButton(which);
    showActive(box.get());
    QTRY_COMPARE(QApplication::focusWidget(), button(*box, expected.constData()));
    // Each time that it opens.
    textOf(*box)->setFocus();
    box->hide();
    box->show();
    QCOMPARE(box->focusWidget(), button(*box, expected.constData()));
}

void tst_ZrMessageBox::aBoxWithoutItsDefaultButtonUsesTheOther()
{
    const auto box = make("x", 2);
    showActive(box.get());
    QTRY_COMPARE(QApplication::focusWidget(), button(*box, "pushButton_cancel"));
}

void tst_ZrMessageBox::returnInTheTextMeansTheDefaultButton_data()
{
    QTest::addColumn<int>("which");
    QTest::addColumn<int>("expected");
    QTest::newRow("confirm") << 1 << 1;
    QTest::newRow("cancel") << 2 << 0;
}

void tst_ZrMessageBox::returnInTheTextMeansTheDefaultButton()
{
    QFETCH(int, which);
    QFETCH(int, expected);
    const auto box = make("x");
    box->setHelpBtnShow(true);
    box->setDefaultFocusButton(which);
    box->setResult(7);
    showActive(box.get());
    textOf(*box)->setFocus();
    QTest::keyClick(textOf(*box), Qt::Key_Return);
    QVERIFY(!box->isVisible());
    QCOMPARE(box->result(), expected);
}

void tst_ZrMessageBox::escapeClosesOnlyWhereItMay_data()
{
    QTest::addColumn<QByteArray>("where");
    QTest::addColumn<bool>("enabled");
    QTest::newRow("in the button, may") << QByteArray("pushButton_ok") << true;
    QTest::newRow("in the button, may not") << QByteArray("pushButton_ok") << false;
    QTest::newRow("in the text, may") << QByteArray("textEdit_message") << true;
    QTest::newRow("in the text, may not") << QByteArray("textEdit_message") << false;
}

void tst_ZrMessageBox::escapeClosesOnlyWhereItMay()
{
    QFETCH(QByteArray, where);
    QFETCH(bool, enabled);
    const auto box = make("x");
    box->setEscBtnEnable(enabled);
    box->setResult(7);
    QSignalSpy finished(box.get(), &QDialog::finished);
    showActive(box.get());
    auto *const widget = box->findChild<QWidget *>(where);
    widget->setFocus();
    QTest::keyClick(widget, Qt::Key_Escape);
    QCOMPARE(box->isVisible(), !enabled);
    QCOMPARE(finished.count(), enabled ? 1 : 0);
    QCOMPARE(box->result(), enabled ? 0 : 7);
}

void tst_ZrMessageBox::tabWalksThroughAllThatCanBeUsed()
{
    const auto box = make("x");
    box->setHelpBtnShow(true);
    showActive(box.get());
    QStringList walked;
    for (int step = 0; step < 5; ++step) {
        walked.append(QApplication::focusWidget()->objectName());
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    }
    QCOMPARE(walked, (QStringList{"pushButton_ok", "pushButton_cancel", "helpBtn", "textEdit_message",
                                  "pushButton_ok"}));
}

void tst_ZrMessageBox::theHelpMarkIsShownOnDemand()
{
    const auto box = make("x");
    QPushButton *const mark = button(*box, "helpBtn");
    QVERIFY(!mark->isVisibleTo(box.get()));
    box->setHelpBtnShow(true);
    QVERIFY(mark->isVisibleTo(box.get()));
    box->show();
    QSignalSpy asked(box.get(), &ZrMessageBox::signalHelpBtnClicked);
    QTest::mouseClick(mark, Qt::LeftButton);
    QCOMPARE(asked.count(), 1);
    QVERIFY(box->isVisible());
    box->setHelpBtnShow(false);
    QVERIFY(!mark->isVisible());
}

void tst_ZrMessageBox::thePropertiesKeepWhatTheyAreGiven()
{
    const auto box = make("x");
    auto *const main = box->findChild<ZrShadowFrame *>("frame_main");
    QCOMPARE(box->margin(), main->margin());
    QCOMPARE(box->radius(), main->radius());
    QCOMPARE(box->titleheight(), 31);
    box->ensurePolished(); // so that the style sheet's values are behind us
    int margin = 14;
    int radius = 3;
    int height = 44;
    box->setMarginPropety(margin);
    box->setRadiusPropety(radius);
    box->setTitleHeight(height);
    QCOMPARE(box->property("margin").toInt(), 14);
    QCOMPARE(box->property("radius").toInt(), 3);
    QCOMPARE(box->property("titleheight").toInt(), 44);
    QCOMPARE(main->margin(), 14);
    QCOMPARE(main->layout()->contentsMargins(), QMargins(15, 15, 15, 15));
    QCOMPARE(main->radius(), 3);
    QCOMPARE(box->findChild<QFrame *>("frame_title")->minimumHeight(), 44);
    QCOMPARE(box->findChild<QFrame *>("frame_title")->maximumHeight(), 44);
    // As a style sheet does it.
    QVERIFY(box->setProperty("margin", 5));
    QCOMPARE(main->margin(), 5);
}

void tst_ZrMessageBox::aDragOfTheTitleMovesTheBox()
{
    const auto box = make("x");
    box->move(100, 100);
    box->show();
    auto *const label = box->findChild<QLabel *>("label_title");
    const QPoint grip = label->mapFrom(box.get(), QPoint(60, 20));
    QTest::mousePress(label, Qt::LeftButton, Qt::NoModifier, grip);
    QMouseEvent drag(QEvent::MouseMove, QPoint(60, 20), QPoint(190, 145), Qt::NoButton, Qt::LeftButton,
                     Qt::NoModifier);
    QCoreApplication::sendEvent(box.get(), &drag);
    QVERIFY(drag.isAccepted());
    QCOMPARE(box->pos(), QPoint(130, 125));
    QTest::mouseRelease(label, Qt::LeftButton, Qt::NoModifier, grip);
    QMouseEvent later(QEvent::MouseMove, QPoint(60, 20), QPoint(290, 245), Qt::NoButton, Qt::LeftButton,
                      Qt::NoModifier);
    QCoreApplication::sendEvent(box.get(), &later);
    QCOMPARE(box->pos(), QPoint(130, 125));
}

void tst_ZrMessageBox::aPressBelowTheGripMovesNothing()
{
    const auto box = make("x");
    int height = 60; // the grip stays as high as it was
    box->setTitleHeight(height);
    box->move(100, 100);
    box->show();
    QMouseEvent press(QEvent::MouseButtonPress, QPoint(60, 31), QPoint(160, 131), Qt::LeftButton,
                      Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(box.get(), &press);
    QMouseEvent drag(QEvent::MouseMove, QPoint(60, 31), QPoint(190, 145), Qt::NoButton, Qt::LeftButton,
                     Qt::NoModifier);
    QCoreApplication::sendEvent(box.get(), &drag);
    QCOMPARE(box->pos(), QPoint(100, 100));
}

void tst_ZrMessageBox::theModePlacesTheBox_data()
{
    QTest::addColumn<int>("mode");
    QTest::addColumn<QPoint>("expected");
    // A parent of 200 by 100 at 300, 200 in a main window of 800 by 600 at 60, 40.
    QTest::newRow("left alone") << 0 << QPoint(0, 0);
    QTest::newRow("over the parent") << 1 << QPoint(60 + 300 - 120, 40 + 200 - 50);
    QTest::newRow("over the main window") << 2 << QPoint(60 + 180, 40 + 200);
}

void tst_ZrMessageBox::theModePlacesTheBox()
{
    QFETCH(int, mode);
    QFETCH(QPoint, expected);
    QWidget part(&m_scene->mainWindow);
    part.setGeometry(300, 200, 200, 100);
    const auto box = make("x", 3, &part, mode);
    QCOMPARE(box->parentWidget(), &part);
    QCOMPARE(box->size(), QSize(440, 200));
    QCOMPARE(box->pos(), expected);
}

void tst_ZrMessageBox::modeTwoTakesTheMainWindowAsParent()
{
    const auto box = make("x", 3, nullptr, 2);
    QCOMPARE(box->parentWidget(), &m_scene->mainWindow);
    QCOMPARE(box->pos(), QPoint(60 + 180, 40 + 200));
}

void tst_ZrMessageBox::otherModesTakeNoParent()
{
    QCOMPARE(make("x", 3, nullptr, 0)->parentWidget(), nullptr);
    QCOMPARE(make("x", 3, nullptr, 1)->parentWidget(), nullptr);
}

void tst_ZrMessageBox::withoutParentTheScreenIsCentredOn()
{
    const QRect screen = QGuiApplication::primaryScreen()->availableGeometry();
    const QPoint middle((screen.width() - 440) / 2, (screen.height() - 200) / 2);
    QCOMPARE(make("x", 3, nullptr, 1)->pos(), middle);
    m_scene->host.setMainWindow(nullptr);
    QCOMPARE(make("x", 3, nullptr, 2)->pos(), middle);
}

void tst_ZrMessageBox::textsFromOutsideAreShownAsTheyAre()
{
    ZrMessageBox box(DialogScene::markup(), DialogScene::markup(), 3, nullptr, 0);
    QCOMPARE(box.findChild<QLabel *>("label_title")->text(), DialogScene::markup());
    QCOMPARE(box.findChild<QLabel *>("label_title")->textFormat(), Qt::PlainText);
    QCOMPARE(textOf(box)->toPlainText(), DialogScene::markup());
    box.setConfirmText(DialogScene::markup());
    QVERIFY(button(box, "pushButton_ok")->shortcut().isEmpty());
}

void tst_ZrMessageBox::aTextWithoutBlankStaysInsideTheBox()
{
    const QString text = DialogScene::withoutBlank();
    ZrMessageBox box(text, text, 3, nullptr, 0);
    box.setConfirmText(text);
    box.setCancelText(text);
    box.show();
    QCOMPARE(box.size(), QSize(640, 300));
    const QList<QWidget *> parts = box.findChildren<QWidget *>();
    for (const QWidget *const part : parts) {
        if (!part->isVisible() || part->window() != &box)
            continue;
        const QRect place(part->mapTo(&box, QPoint(0, 0)), part->size());
        QVERIFY2(box.rect().contains(place), qPrintable(part->objectName()));
    }
    QVERIFY(textOf(box)->document()->size().width() <= textOf(box)->viewport()->width());
}

void tst_ZrMessageBox::everyPartHasAName()
{
    const auto box = make("x");
    QCOMPARE(textOf(*box)->accessibleName(), QString("Title"));
    const ZrMessageBox untitled(QString(), "x", 3, nullptr, 0);
    QCOMPARE(textOf(untitled)->accessibleName(), QString("Message"));
    QCOMPARE(button(*box, "helpBtn")->accessibleName(), QString("Help"));
}

ZR_TEST_MAIN(tst_ZrMessageBox)
#include "tst_zrmessagebox.moc"
