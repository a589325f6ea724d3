#include "DialogScene.h"
#include "ZrComfirmDialog.h"
#include "ZrDialog.h"
#include "ZrMessageBox.h"
#include "ZrTestMain.h"
#include "ZrToastDialog.h"

#include <QtWidgets/QLabel>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QTableView>
#include <QtWidgets/QTextEdit>

#include <functional>

namespace {
using Maker = std::function<std::unique_ptr<QDialog>()>;

std::unique_ptr<QDialog> messageBox()
{
    auto box =
        std::make_unique<ZrMessageBox>("Cancel order", "Cancel the order of 1,000 at 10.25?", 3, nullptr, 0);
    box->setHelpBtnShow(true);
    return box;
}

std::unique_ptr<QDialog> comfirmDialog()
{
    auto dialog = std::make_unique<ZrComfirmDialog>("Confirm", 3, nullptr, 0);
    dialog->setComfirmData({{"Symbol", "600000.SH"}, {"Price", 10.25}});
    return dialog;
}

std::unique_ptr<QDialog> hosting(bool hasShadow)
{
    auto dialog = std::make_unique<ZrDialog>("Layout", true, nullptr, 3, true, hasShadow, 0);
    auto *const content = new QLabel("What is hosted");
    content->setObjectName("content");
    content->resize(300, 60);
    dialog->addWidget(content);
    dialog->findChild<QPushButton *>("pushButton_fresh")->show();
    return dialog;
}

std::unique_ptr<QDialog> toast(int level)
{
    auto toast = std::make_unique<ZrToastDialog>(nullptr);
    toast->ShowToastMessage("The order was accepted.", level);
    return toast;
}

bool showsThatItIsDown(const QDialog &dialog, const char *name)
{
    auto *const button = dialog.findChild<QPushButton *>(name);
    const QImage up = button->grab().toImage();
    button->setDown(true);
    return button->grab().toImage() != up;
}

// As the window in use, so that the focus shows alike in each.
QImage shot(QWidget *window)
{
    window->show();
    QApplication::setActiveWindow(window);
    return window->grab().toImage();
}
} // namespace

Q_DECLARE_METATYPE(Maker)

/// The dialogs in the skins of the product.
class tst_ZrDialogSkins : public QObject
{
    Q_OBJECT
private slots:
    void anOpenDialogChangesWithTheSkin_data();
    void anOpenDialogChangesWithTheSkin();
    void aDialogThatWasNotYetShownChangesWithTheSkin_data();
    void aDialogThatWasNotYetShownChangesWithTheSkin();
    void textsCanBeRead_data();
    void textsCanBeRead();
    void theFocusCanBeSeen_data();
    void theFocusCanBeSeen();
    void thePressedButtonCanBeSeen_data();
    void thePressedButtonCanBeSeen();
    void theCornersAreClear_data();
    void theCornersAreClear();
    void theCurrentRowCanBeSeen_data();
    void theCurrentRowCanBeSeen();

private:
    static void addDialogs();
    static void addSkins();
    /// The colour that most of the rectangle has.
    static QColor ground(const QImage &image, const QRect &rect);
    /// The text's own colour: what differs most from the ground.
    static QColor ink(const QImage &image, const QRect &rect);
};

void tst_ZrDialogSkins::addDialogs()
{
    QTest::addColumn<Maker>("make");
    QTest::newRow("message box") << Maker(messageBox);
    QTest::newRow("confirm dialog") << Maker(comfirmDialog);
    QTest::newRow("dialog") << Maker([] { return hosting(true); });
    QTest::newRow("tip") << Maker([] { return toast(ZrToastDialog::LevelTip); });
    QTest::newRow("error") << Maker([] { return toast(ZrToastDialog::LevelError); });
}

void tst_ZrDialogSkins::addSkins()
{
    QTest::addColumn<QString>("skin");
    QTest::newRow("dark") << "dark";
    QTest::newRow("light") << "light";
}

QColor tst_ZrDialogSkins::ground(const QImage &image, const QRect &rect)
{
    QHash<QRgb, int> count;
    QRgb most = 0;
    const QRect inside = rect & image.rect();
    for (int y = inside.top(); y <= inside.bottom(); ++y) {
        for (int x = inside.left(); x <= inside.right(); ++x) {
            const QRgb pixel = image.pixel(x, y);
            if (++count[pixel] > count.value(most))
                most = pixel;
        }
    }
    return QColor::fromRgba(most);
}

QColor tst_ZrDialogSkins::ink(const QImage &image, const QRect &rect)
{
    const QColor below = ground(image, rect);
    QColor found = below;
    const QRect inside = rect & image.rect();
    for (int y = inside.top(); y <= inside.bottom(); ++y) {
        for (int x = inside.left(); x <= inside.right(); ++x) {
            const QColor pixel = image.pixelColor(x, y);
            if (DialogScene::contrast(pixel, below) > DialogScene::contrast(found, below))
                found = pixel;
        }
    }
    return found;
}

void tst_ZrDialogSkins::anOpenDialogChangesWithTheSkin_data()
{
    addDialogs();
}

void tst_ZrDialogSkins::anOpenDialogChangesWithTheSkin()
{
    QFETCH(Maker, make);
    DialogScene scene("dark");
    QVERIFY(scene.isReady());
    const auto open = make();
    const QImage dark = shot(open.get());
    QVERIFY(scene.host.setSkin("light"));
    const QImage light = shot(open.get());
    QVERIFY(dark != light);
    QCOMPARE(light, shot(make().get()));
    QVERIFY(scene.host.setSkin("dark"));
    QCOMPARE(shot(open.get()), dark);
}

void tst_ZrDialogSkins::aDialogThatWasNotYetShownChangesWithTheSkin_data()
{
    addDialogs();
}

void tst_ZrDialogSkins::aDialogThatWasNotYetShownChangesWithTheSkin()
{
    QFETCH(Maker, make);
    DialogScene scene("dark");
    const auto early = make();
    QVERIFY(scene.host.setSkin("light"));
    const auto late = make();
    QCOMPARE(early->grab().toImage(), late->grab().toImage());
}

void tst_ZrDialogSkins::textsCanBeRead_data()
{
    QTest::addColumn<QString>("skin");
    QTest::addColumn<Maker>("make");
    QTest::addColumn<QByteArray>("part");
    for (const QString &skin : {QStringLiteral("dark"), QStringLiteral("light")}) {
        const auto row = [&skin](const char *name, const Maker &make, const char *part) {
            QTest::addRow("%s, %s", name, qPrintable(skin)) << skin << make << QByteArray(part);
        };
        row("box: title", messageBox, "label_title");
        row("box: text", messageBox, "textEdit_message");
        row("box: confirm", messageBox, "pushButton_ok");
        row("box: cancel", messageBox, "pushButton_cancel");
        row("table: title", comfirmDialog, "label_title");
        row("table: rows", comfirmDialog, "user_dataView");
        row("table: confirm", comfirmDialog, "pushButton");
        row("table: cancel", comfirmDialog, "pushButton_cancel");
        const Maker shadowed = [] { return hosting(true); };
        const Maker plain = [] { return hosting(false); };
        row("dialog: title", shadowed, "label_title");
        row("dialog: content", shadowed, "content");
        row("dialog: OK", shadowed, "pushButton_ok");
        row("dialog: cancel", shadowed, "pushButton_cancel");
        row("dialog: refresh", shadowed, "pushButton_fresh");
        row("dialog: close", shadowed, "pushButton_close");
        row("plain dialog: title", plain, "label_title");
        row("plain dialog: content", plain, "content");
        row(
            "tip", [] { return toast(ZrToastDialog::LevelTip); }, "textLabel");
        row(
            "error", [] { return toast(ZrToastDialog::LevelError); }, "textLabel");
    }
}

void tst_ZrDialogSkins::textsCanBeRead()
{
    QFETCH(QString, skin);
    QFETCH(Maker, make);
    QFETCH(QByteArray, part);
    const DialogScene scene(skin);
    const auto dialog = make();
    const QImage image = shot(dialog.get());
    auto *const widget = dialog->findChild<QWidget *>(part);
    // Without its border, which may be brighter than the text.
    const QRect place =
        QRect(widget->mapTo(dialog.get(), QPoint(0, 0)), widget->size()).adjusted(3, 3, -3, -3);
    const double found = DialogScene::contrast(ink(image, place), ground(image, place));
    QVERIFY2(found >= 4.5, qPrintable(QString::number(found)));
}

void tst_ZrDialogSkins::theFocusCanBeSeen_data()
{
    QTest::addColumn<QString>("skin");
    QTest::addColumn<Maker>("make");
    QTest::addColumn<QByteArray>("part");
    for (const QString &skin : {QStringLiteral("dark"), QStringLiteral("light")}) {
        const auto row = [&skin](const char *name, const Maker &make, const char *part) {
            QTest::addRow("%s, %s", name, qPrintable(skin)) << skin << make << QByteArray(part);
        };
        row("box: text", messageBox, "textEdit_message");
        row("box: confirm", messageBox, "pushButton_ok");
        row("box: cancel", messageBox, "pushButton_cancel");
        row("box: help", messageBox, "helpBtn");
        row("table: rows", comfirmDialog, "user_dataView");
        row("table: confirm", comfirmDialog, "pushButton");
        row("table: cancel", comfirmDialog, "pushButton_cancel");
        row(
            "dialog: OK", [] { return hosting(true); }, "pushButton_ok");
        row(
            "dialog: cancel", [] { return hosting(true); }, "pushButton_cancel");
    }
}

void tst_ZrDialogSkins::theFocusCanBeSeen()
{
    QFETCH(QString, skin);
    QFETCH(Maker, make);
    QFETCH(QByteArray, part);
    const DialogScene scene(skin);
    const auto dialog = make();
    dialog->show();
    QVERIFY(QTest::qWaitForWindowActive(dialog.get()));
    auto *const widget = dialog->findChild<QWidget *>(part);
    widget->clearFocus();
    QTRY_VERIFY(!widget->hasFocus());
    const QRect place(widget->mapTo(dialog.get(), QPoint(0, 0)), widget->size());
    const QImage without = dialog->grab(place).toImage();
    widget->setFocus(Qt::TabFocusReason);
    QTRY_VERIFY(widget->hasFocus());
    const QImage with = dialog->grab(place).toImage();
    // More than a caret: a mark around the part, in a colour that stands out from what was there.
    int marked = 0;
    for (int y = 0; y < with.height(); ++y) {
        for (int x = 0; x < with.width(); ++x)
            marked += DialogScene::contrast(with.pixelColor(x, y), without.pixelColor(x, y)) >= 1.5 ? 1 : 0;
    }
    QVERIFY2(marked >= 2 * qMin(with.width(), with.height()), qPrintable(QString::number(marked)));
}

void tst_ZrDialogSkins::thePressedButtonCanBeSeen_data()
{
    addSkins();
}

void tst_ZrDialogSkins::thePressedButtonCanBeSeen()
{
    QFETCH(QString, skin);
    const DialogScene scene(skin);
    const auto dialog = messageBox();
    dialog->show();
    for (const char *const name : {"pushButton_ok", "pushButton_cancel", "helpBtn"})
        QVERIFY2(showsThatItIsDown(*dialog, name), name);
    const auto host = hosting(true);
    host->show();
    for (const char *const name :
         {"pushButton_ok", "pushButton_cancel", "pushButton_fresh", "pushButton_close"})
        QVERIFY2(showsThatItIsDown(*host, name), name);
}

void tst_ZrDialogSkins::theCornersAreClear_data()
{
    addDialogs();
}

// Outside of the shadow nothing is painted, or a frameless window would be a box in a box.
void tst_ZrDialogSkins::theCornersAreClear()
{
    QFETCH(Maker, make);
    const DialogScene scene("light");
    const auto dialog = make();
    dialog->show();
    QImage image(dialog->size(), QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    dialog->render(&image, QPoint(), QRegion(), QWidget::DrawChildren | QWidget::DrawWindowBackground);
    for (const QPoint &corner : {image.rect().topLeft(), image.rect().topRight(), image.rect().bottomLeft(),
                                 image.rect().bottomRight()})
        QVERIFY(image.pixelColor(corner).alpha() < 128);
    QCOMPARE(image.pixelColor(image.rect().center()).alpha(), 255);
}

void tst_ZrDialogSkins::theCurrentRowCanBeSeen_data()
{
    addSkins();
}

void tst_ZrDialogSkins::theCurrentRowCanBeSeen()
{
    QFETCH(QString, skin);
    const DialogScene scene(skin);
    const auto dialog = comfirmDialog();
    dialog->show();
    auto *const table = dialog->findChild<QTableView *>();
    const QImage before = table->grab().toImage();
    table->selectRow(1);
    const QImage after = table->grab().toImage();
    const QRect row(0, 30, table->width(), 30);
    QVERIFY(ground(after, row) != ground(before, row));
    QVERIFY(DialogScene::contrast(ink(after, row.adjusted(3, 3, -3, -3)), ground(after, row)) >= 4.5);
}

ZR_TEST_MAIN(tst_ZrDialogSkins)
#include "tst_zrdialogskins.moc"
