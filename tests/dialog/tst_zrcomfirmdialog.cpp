#include "DialogScene.h"
#include "ZrComfirmDialog.h"
#include "ZrHeaderView.h"
#include "ZrRoleKeys.h"
#include "ZrShadowFrame.h"
#include "ZrTableModel.h"
#include "ZrTestMain.h"

#include <QtGui/QScreen>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLayout>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QScrollArea>
#include <QtWidgets/QScrollBar>
#include <QtWidgets/QTableView>

using Rows = QList<QList<QVariant>>;

class tst_ZrComfirmDialog : public QObject
{
    Q_OBJECT
private slots:
    void init();
    void cleanup();
    void itIsAFramelessModalWindow();
    void itIsSkinned();
    void itBelongsToTheMainWindowByItself();
    void itStandsOverItsParent_data();
    void itStandsOverItsParent();
    void itIsBuiltOfNamedParts();
    void theTableIsAGridOfNamesAndValues();
    void theRowsAreThoseGiven();
    void furtherRowsReplaceTheFirst();
    void rowsOfOddLengthAreKept();
    void theDialogIsAsHighAsItsRows();
    void moreRowsThanFitScroll();
    void theCurrentRowComesIntoSight();
    void buttonsAreShownByTheirBits_data();
    void buttonsAreShownByTheirBits();
    void aClickEndsTheDialog_data();
    void aClickEndsTheDialog();
    void theConfirmButtonHasTheFocus();
    void keysAnswer_data();
    void keysAnswer();
    void tabWalksFromTheRowsToTheButtons();
    void thePropertiesKeepWhatTheyAreGiven();
    void aDragOfTheTitleMovesTheDialog();
    void textsFromOutsideAreShownAsTheyAre();
    void theRowsHaveAName();
    void aVeryLongValueStaysInsideTheDialog();

private:
    static std::unique_ptr<ZrComfirmDialog> make(const Rows &rows = {}, int buttons = 3,
                                                 QWidget *parent = nullptr);
    static Rows numbered(int count);
    static QTableView *tableOf(const ZrComfirmDialog &dialog);
    static ZrTableModel *modelOf(const ZrComfirmDialog &dialog);
    static QPushButton *button(const ZrComfirmDialog &dialog, const char *name);

    std::unique_ptr<DialogScene> m_scene;
};

void tst_ZrComfirmDialog::init()
{
    m_scene = std::make_unique<DialogScene>();
    QVERIFY(m_scene->isReady());
    QCursor::setPos(QGuiApplication::primaryScreen()->geometry().center());
}

void tst_ZrComfirmDialog::cleanup()
{
    m_scene.reset();
}

std::unique_ptr<ZrComfirmDialog> tst_ZrComfirmDialog::make(const Rows &rows, int buttons, QWidget *parent)
{
    auto dialog = std::make_unique<ZrComfirmDialog>("Confirm", buttons, parent, 0);
    if (!rows.isEmpty())
        dialog->setComfirmData(rows);
    return dialog;
}

Rows tst_ZrComfirmDialog::numbered(int count)
{
    Rows rows;
    for (int row = 0; row < count; ++row)
        rows.append(QList<QVariant>{QStringLiteral("name %1").arg(row), row});
    return rows;
}

QTableView *tst_ZrComfirmDialog::tableOf(const ZrComfirmDialog &dialog)
{
    return dialog.findChild<QTableView *>("user_dataView");
}

ZrTableModel *tst_ZrComfirmDialog::modelOf(const ZrComfirmDialog &dialog)
{
    return qobject_cast<ZrTableModel *>(tableOf(dialog)->model());
}

QPushButton *tst_ZrComfirmDialog::button(const ZrComfirmDialog &dialog, const char *name)
{
    return dialog.findChild<QPushButton *>(name);
}

void tst_ZrComfirmDialog::itIsAFramelessModalWindow()
{
    const auto dialog = make();
    QCOMPARE(int(dialog->windowFlags()), int(Qt::Window | Qt::FramelessWindowHint));
    QVERIFY(dialog->testAttribute(Qt::WA_TranslucentBackground));
    QVERIFY(dialog->isModal());
    QCOMPARE(dialog->metaObject()->superClass(), &QDialog::staticMetaObject);
    QCOMPARE(dialog->size(), QSize(420, 162));
}

void tst_ZrComfirmDialog::itIsSkinned()
{
    const auto dialog = make();
    QVERIFY(dialog->qt_metacast("IZrSkin"));
    QVERIFY(dialog->qt_metacast("com.orbenlake.Plugin.ISkin"));
    QFile sheet(QStringLiteral(ZR_SKINS "/dark/system/zrwidget/zrcomfirmdialog.css"));
    QVERIFY(sheet.open(QIODevice::ReadOnly));
    const QString dark = QString::fromUtf8(sheet.readAll());
    QCOMPARE(dialog->styleSheet(), dark);
    dialog->loadSkin(QVariant());
    QCOMPARE(dialog->styleSheet(), dark);
}

void tst_ZrComfirmDialog::itBelongsToTheMainWindowByItself()
{
    QCOMPARE(make()->parentWidget(), &m_scene->mainWindow);
    QWidget other;
    QCOMPARE(make({}, 3, &other)->parentWidget(), &other);
    m_scene->host.setMainWindow(nullptr);
    QCOMPARE(make()->parentWidget(), nullptr);
}

void tst_ZrComfirmDialog::itStandsOverItsParent_data()
{
    QTest::addColumn<int>("lastArgument"); // has no meaning
    QTest::newRow("0") << 0;
    QTest::newRow("2") << 2;
}

void tst_ZrComfirmDialog::itStandsOverItsParent()
{
    QFETCH(int, lastArgument);
    QWidget part(&m_scene->mainWindow);
    part.setGeometry(100, 100, 600, 300);
    ZrComfirmDialog dialog("Confirm", 3, &part, lastArgument);
    QCOMPARE(dialog.pos(), QPoint(60 + 100 + (600 - 420) / 2, 40 + 100 + (300 - 162) / 2));
    dialog.setComfirmData(numbered(5));
    QCOMPARE(dialog.geometry().center().y(), 40 + 100 + 149);
}

void tst_ZrComfirmDialog::itIsBuiltOfNamedParts()
{
    const auto dialog = make();
    auto *const main = dialog->findChild<ZrShadowFrame *>("frame_main");
    QVERIFY(main);
    QCOMPARE(dialog->layout()->objectName(), QString("verticalLayout_2"));
    QCOMPARE(dialog->layout()->spacing(), 0);
    QCOMPARE(dialog->layout()->contentsMargins(), QMargins());
    QCOMPARE(main->layout()->objectName(), QString("verticalLayout_3"));
    auto *const title = dialog->findChild<QFrame *>("frame_title");
    QCOMPARE(title->minimumHeight(), 31);
    QCOMPARE(title->maximumHeight(), 31);
    QCOMPARE(title->findChild<QLabel *>("label_title")->text(), QString("Confirm"));
    QVERIFY(dialog->findChild<QFrame *>("frame_work")->isAncestorOf(tableOf(*dialog)));
    QCOMPARE(button(*dialog, "pushButton")->text(), QString("确认"));
    QCOMPARE(button(*dialog, "pushButton_cancel")->text(), QString("取消"));
}

void tst_ZrComfirmDialog::theTableIsAGridOfNamesAndValues()
{
    const auto dialog = make();
    const QTableView *const table = tableOf(*dialog);
    QVERIFY(table);
    const auto *const head = qobject_cast<ZrHeaderView *>(table->horizontalHeader());
    QVERIFY(head);
    QVERIFY(head->isVisibleTo(table));
    QCOMPARE(head->minimumSectionSize(), 100);
    const ZrTableModel *const model = modelOf(*dialog);
    QVERIFY(model);
    QCOMPARE(model->columnCount(), 2);
    QCOMPARE(model->headerData(0, Qt::Horizontal).toString(), QString("name"));
    QCOMPARE(model->headerData(1, Qt::Horizontal).toString(), QString("value"));
    QCOMPARE(head->sectionResizeMode(0), QHeaderView::Stretch);
    QCOMPARE(head->sectionResizeMode(1), QHeaderView::Stretch);
    QVERIFY(!table->showGrid());
    QCOMPARE(table->selectionMode(), QAbstractItemView::SingleSelection);
    QCOMPARE(table->selectionBehavior(), QAbstractItemView::SelectRows);
    QCOMPARE(table->minimumWidth(), 150);
    QCOMPARE(table->minimumHeight(), 200);
    QCOMPARE(table->maximumHeight(), 200);
    QCOMPARE(table->verticalHeader()->defaultSectionSize(), 30);
    QVERIFY(!table->verticalHeader()->isVisibleTo(table));
}

void tst_ZrComfirmDialog::theRowsAreThoseGiven()
{
    const Rows rows{{"Symbol", "600000.SH"}, {"Price", 10.25}, {"Quantity", 1000}, {"Quantity", 1000}};
    const auto dialog = make(rows);
    const ZrTableModel *const model = modelOf(*dialog);
    QCOMPARE(model->rowCount(), 4); // equal rows are rows of their own
    for (int row = 0; row < rows.size(); ++row) {
        for (int column = 0; column < 2; ++column)
            QCOMPARE(model->index(row, column).data(), rows.at(row).at(column));
    }
    QCOMPARE(model->getModelData().at(1).value(1), (ItemRoleMap{{ITEM_DISPLAYROLE, 10.25}}));
    QVERIFY(tableOf(*dialog)->horizontalHeader()->isHidden());
    QCOMPARE(tableOf(*dialog)->minimumHeight(), 120);
    QCOMPARE(tableOf(*dialog)->maximumHeight(), 120);
    dialog->show();
    for (int row = 0; row < 4; ++row)
        QCOMPARE(tableOf(*dialog)->rowHeight(row), 30);
}

void tst_ZrComfirmDialog::furtherRowsReplaceTheFirst()
{
    const auto dialog = make(numbered(5));
    dialog->setComfirmData(numbered(2));
    QCOMPARE(modelOf(*dialog)->rowCount(), 2);
    QCOMPARE(tableOf(*dialog)->maximumHeight(), 60);
    dialog->setComfirmData({});
    QCOMPARE(modelOf(*dialog)->rowCount(), 0);
    QCOMPARE(tableOf(*dialog)->maximumHeight(), 0);
}

void tst_ZrComfirmDialog::rowsOfOddLengthAreKept()
{
    const auto dialog = make({{"alone"}, {"name", "value", "unseen"}, {}});
    QCOMPARE(modelOf(*dialog)->rowCount(), 3);
    QCOMPARE(modelOf(*dialog)->columnCount(), 2);
    QVERIFY(!modelOf(*dialog)->index(0, 1).data().isValid());
    QCOMPARE(modelOf(*dialog)->getModelData().at(1).size(), 3);
}

void tst_ZrComfirmDialog::theDialogIsAsHighAsItsRows()
{
    const auto dialog = make(numbered(2));
    dialog->show();
    QCOMPARE(dialog->size(), QSize(420, 162));
    const QTableView *const table = tableOf(*dialog);
    QCOMPARE(table->height(), 60);
    QCOMPARE(table->verticalScrollBar()->maximum(), 0);
    dialog->setComfirmData(numbered(6));
    QTRY_COMPARE(table->height(), 180);
    QCOMPARE(dialog->size(), QSize(420, 100 + 180)); // shadow, title, margins and buttons take 100
    dialog->setComfirmData(numbered(3));
    QTRY_COMPARE(table->height(), 90);
    QCOMPARE(dialog->size(), QSize(420, 100 + 90));
    const auto *const area = dialog->findChild<QScrollArea *>("scrollArea_rows");
    QCOMPARE(area->verticalScrollBar()->maximum(), 0);
}

void tst_ZrComfirmDialog::moreRowsThanFitScroll()
{
    const QRect screen = QGuiApplication::primaryScreen()->availableGeometry();
    const auto dialog = make(numbered(100));
    dialog->show();
    QCOMPARE(tableOf(*dialog)->height(), 3000);
    QVERIFY(dialog->height() <= screen.height());
    QVERIFY(dialog->height() >= screen.height() - 60);
    const auto *const area = dialog->findChild<QScrollArea *>("scrollArea_rows");
    QTRY_VERIFY(area->verticalScrollBar()->maximum() > 0);
    const QPushButton *const confirm = button(*dialog, "pushButton");
    QVERIFY(dialog->rect().contains(QRect(confirm->mapTo(dialog.get(), QPoint(0, 0)), confirm->size())));
}

void tst_ZrComfirmDialog::theCurrentRowComesIntoSight()
{
    const auto dialog = make(numbered(100));
    dialog->show();
    auto *const area = dialog->findChild<QScrollArea *>("scrollArea_rows");
    QTRY_VERIFY(area->verticalScrollBar()->maximum() > 0);
    QTableView *const table = tableOf(*dialog);
    table->setFocus();
    table->setCurrentIndex(modelOf(*dialog)->index(0, 0));
    QTest::keyClick(table, Qt::Key_End, Qt::ControlModifier);
    QCOMPARE(table->currentIndex().row(), 99);
    QCOMPARE(area->verticalScrollBar()->value(), area->verticalScrollBar()->maximum());
    QTest::keyClick(table, Qt::Key_Home, Qt::ControlModifier);
    QCOMPARE(area->verticalScrollBar()->value(), 0);
}

void tst_ZrComfirmDialog::buttonsAreShownByTheirBits_data()
{
    QTest::addColumn<int>("bits");
    QTest::addColumn<bool>("confirm");
    QTest::addColumn<bool>("cancel");
    QTest::newRow("none") << 0 << false << false;
    QTest::newRow("confirm") << 1 << true << false;
    QTest::newRow("cancel") << 2 << false << true;
    QTest::newRow("both") << 3 << true << true;
}

void tst_ZrComfirmDialog::buttonsAreShownByTheirBits()
{
    QFETCH(int, bits);
    QFETCH(bool, confirm);
    QFETCH(bool, cancel);
    const auto dialog = make({}, bits);
    QCOMPARE(button(*dialog, "pushButton")->isVisibleTo(dialog.get()), confirm);
    QCOMPARE(button(*dialog, "pushButton_cancel")->isVisibleTo(dialog.get()), cancel);
}

void tst_ZrComfirmDialog::aClickEndsTheDialog_data()
{
    QTest::addColumn<QByteArray>("name");
    QTest::addColumn<int>("expected");
    QTest::newRow("confirm") << QByteArray("pushButton") << 1;
    QTest::newRow("cancel") << QByteArray("pushButton_cancel") << 0;
}

void tst_ZrComfirmDialog::aClickEndsTheDialog()
{
    QFETCH(QByteArray, name);
    QFETCH(int, expected);
    const auto dialog = make(numbered(2));
    QSignalSpy finished(dialog.get(), &QDialog::finished);
    QTimer::singleShot(0, dialog.get(),
                       [&] { QTest::mouseClick(button(*dialog, name.constData()), Qt::LeftButton); });
    QCOMPARE(dialog->exec(), expected);
    QCOMPARE(finished.count(), 1);
}

void tst_ZrComfirmDialog::theConfirmButtonHasTheFocus()
{
    const auto dialog = make(numbered(2));
    dialog->show();
    QVERIFY(QTest::qWaitForWindowActive(dialog.get()));
    QTRY_COMPARE(QApplication::focusWidget(), button(*dialog, "pushButton"));
    const auto lonely = make(numbered(2), 2);
    lonely->show();
    QVERIFY(QTest::qWaitForWindowActive(lonely.get()));
    QTRY_COMPARE(QApplication::focusWidget(), button(*lonely, "pushButton_cancel"));
}

void tst_ZrComfirmDialog::keysAnswer_data()
{
    QTest::addColumn<QByteArray>("where");
    QTest::addColumn<int>("key");
    QTest::addColumn<int>("expected");
    QTest::newRow("return") << QByteArray("pushButton") << int(Qt::Key_Return) << 1;
    QTest::newRow("space") << QByteArray("pushButton") << int(Qt::Key_Space) << 1;
    QTest::newRow("return on cancel") << QByteArray("pushButton_cancel") << int(Qt::Key_Return) << 0;
    QTest::newRow("escape") << QByteArray("pushButton") << int(Qt::Key_Escape) << 0;
    QTest::newRow("escape in the rows") << QByteArray("user_dataView") << int(Qt::Key_Escape) << 0;
}

void tst_ZrComfirmDialog::keysAnswer()
{
    QFETCH(QByteArray, where);
    QFETCH(int, key);
    QFETCH(int, expected);
    const auto dialog = make(numbered(2));
    dialog->setResult(7);
    dialog->show();
    QVERIFY(QTest::qWaitForWindowActive(dialog.get()));
    auto *const widget = dialog->findChild<QWidget *>(where);
    widget->setFocus();
    QTest::keyClick(widget, Qt::Key(key));
    QTRY_VERIFY(!dialog->isVisible());
    QCOMPARE(dialog->result(), expected);
}

void tst_ZrComfirmDialog::tabWalksFromTheRowsToTheButtons()
{
    const auto dialog = make(numbered(2));
    dialog->show();
    QVERIFY(QTest::qWaitForWindowActive(dialog.get()));
    QStringList walked;
    for (int step = 0; step < 4; ++step) {
        walked.append(QApplication::focusWidget()->objectName());
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    }
    QCOMPARE(walked, (QStringList{"pushButton", "pushButton_cancel", "user_dataView", "pushButton"}));
}

void tst_ZrComfirmDialog::thePropertiesKeepWhatTheyAreGiven()
{
    const auto dialog = make();
    auto *const main = dialog->findChild<ZrShadowFrame *>("frame_main");
    QCOMPARE(dialog->margin(), main->margin());
    QCOMPARE(dialog->radius(), main->radius());
    QCOMPARE(dialog->titleheight(), 31);
    dialog->ensurePolished();
    QVERIFY(dialog->setProperty("margin", 14));
    QVERIFY(dialog->setProperty("radius", 3));
    QVERIFY(dialog->setProperty("titleheight", 44));
    QCOMPARE(dialog->margin(), 14);
    QCOMPARE(dialog->radius(), 3);
    QCOMPARE(dialog->titleheight(), 44);
    QCOMPARE(main->margin(), 14);
    QCOMPARE(main->layout()->contentsMargins(), QMargins(15, 15, 15, 15));
    QCOMPARE(main->radius(), 3);
    QCOMPARE(dialog->findChild<QFrame *>("frame_title")->maximumHeight(), 44);
}

void tst_ZrComfirmDialog::aDragOfTheTitleMovesTheDialog()
{
    const auto dialog = make(numbered(2));
    dialog->move(100, 100);
    dialog->show();
    QMouseEvent press(QEvent::MouseButtonPress, QPoint(60, 20), QPoint(160, 120), Qt::LeftButton,
                      Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(dialog.get(), &press);
    QVERIFY(press.isAccepted());
    QMouseEvent drag(QEvent::MouseMove, QPoint(60, 20), QPoint(190, 145), Qt::NoButton, Qt::LeftButton,
                     Qt::NoModifier);
    QCoreApplication::sendEvent(dialog.get(), &drag);
    QCOMPARE(dialog->pos(), QPoint(130, 125));
    QMouseEvent release(QEvent::MouseButtonRelease, QPoint(60, 20), QPoint(190, 145), Qt::LeftButton,
                        Qt::NoButton, Qt::NoModifier);
    QCoreApplication::sendEvent(dialog.get(), &release);
    QMouseEvent later(QEvent::MouseMove, QPoint(60, 20), QPoint(290, 245), Qt::NoButton, Qt::LeftButton,
                      Qt::NoModifier);
    QCoreApplication::sendEvent(dialog.get(), &later);
    QCOMPARE(dialog->pos(), QPoint(130, 125));
}

void tst_ZrComfirmDialog::textsFromOutsideAreShownAsTheyAre()
{
    ZrComfirmDialog dialog(DialogScene::markup(), 3, nullptr, 0);
    dialog.setComfirmData({{DialogScene::markup(), DialogScene::markup()}});
    QCOMPARE(dialog.findChild<QLabel *>("label_title")->text(), DialogScene::markup());
    QCOMPARE(dialog.findChild<QLabel *>("label_title")->textFormat(), Qt::PlainText);
    const QString tip = modelOf(dialog)->index(0, 1).data(Qt::ToolTipRole).toString();
    QVERIFY(!tip.contains("<img"));
    QVERIFY(!tip.contains("<a "));
}

void tst_ZrComfirmDialog::theRowsHaveAName()
{
    QCOMPARE(tableOf(*make())->accessibleName(), QString("Confirm"));
    const ZrComfirmDialog untitled(QString(), 3, nullptr, 0);
    QCOMPARE(tableOf(untitled)->accessibleName(), QString("Values"));
}

void tst_ZrComfirmDialog::aVeryLongValueStaysInsideTheDialog()
{
    const QString text = DialogScene::withoutBlank();
    ZrComfirmDialog dialog(text, 3, nullptr, 0);
    dialog.setComfirmData({{text, text}, {"name", text}});
    dialog.show();
    QCOMPARE(dialog.width(), 420);
    QCOMPARE(tableOf(dialog)->horizontalScrollBar()->maximum(), 0);
    const QWidget *const viewport = tableOf(dialog)->viewport();
    QVERIFY(dialog.rect().contains(QRect(viewport->mapTo(&dialog, QPoint(0, 0)), viewport->size())));
}

ZR_TEST_MAIN(tst_ZrComfirmDialog)
#include "tst_zrcomfirmdialog.moc"
