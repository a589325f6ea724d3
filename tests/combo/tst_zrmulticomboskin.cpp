#include "ComboScene.h"

#include <QtWidgets/QScrollBar>

#include <cmath>

/// The box in the skins that are shipped: pictures, marks, contrast, change of skin.
class tst_ZrMultiComboSkin : public QObject
{
    Q_OBJECT
private slots:
    void tickedRowsShowTheSkinsPicture_data() { addSkins(); }
    void tickedRowsShowTheSkinsPicture();
    void theFocusIsMarked_data() { addSkins(); }
    void theFocusIsMarked();
    void theCurrentRowIsMarked_data() { addSkins(); }
    void theCurrentRowIsMarked();
    void rowsAndScrollBarAreTheSkins_data();
    void rowsAndScrollBarAreTheSkins();
    void textsStandOut_data() { addSkins(); }
    void textsStandOut();
    void anotherSkinLooksLikeAFreshStartInIt_data() { addSkins(); }
    void anotherSkinLooksLikeAFreshStartInIt();

private:
    static void addSkins()
    {
        QTest::addColumn<QString>("skin");
        QTest::addColumn<QString>("other");
        QTest::addColumn<QColor>("accent");
        QTest::newRow("dark") << "dark"
                              << "light" << QColor(0x4c9ffe);
        QTest::newRow("light") << "light"
                               << "dark" << QColor(0x1769d2);
    }
};

namespace {
int countOf(const QImage &image, const QColor &color)
{
    int count = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x)
            count += image.pixelColor(x, y) == color ? 1 : 0;
    }
    return count;
}

/// As the eye takes a colour in, 0 to 1.
double luminance(const QColor &color)
{
    const auto linear = [](double part) {
        return part <= 0.03928 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) + 0.0722 * linear(color.blueF());
}

double contrast(const QColor &one, const QColor &other)
{
    const double lighter = qMax(luminance(one), luminance(other));
    const double darker = qMin(luminance(one), luminance(other));
    return (lighter + 0.05) / (darker + 0.05);
}

QImage rowImage(const ComboScene &scene, int row)
{
    const QRect rect = scene.list()->visualItemRect(scene.list()->item(row));
    return scene.list()->viewport()->grab(rect).toImage();
}

QImage listImage(const ComboScene &scene)
{
    return scene.list()->grab().toImage();
}

void clearFocus(const ComboScene &scene)
{
    scene.combo()->clearFocus();
    QCoreApplication::processEvents();
}
} // namespace

void tst_ZrMultiComboSkin::tickedRowsShowTheSkinsPicture()
{
    QFETCH(QString, skin);
    QFETCH(QColor, accent);
    const SkinnedHost host(skin);
    QVERIFY(host.isReady());
    ComboScene scene(4);
    scene.combo()->selectIndex(2, true);
    QVERIFY(scene.open());
    QVERIFY(countOf(rowImage(scene, 2), accent) > 50);
    QCOMPARE(countOf(rowImage(scene, 3), accent), 0);
}

void tst_ZrMultiComboSkin::theFocusIsMarked()
{
    QFETCH(QString, skin);
    QFETCH(QColor, accent);
    const SkinnedHost host(skin);
    ComboScene scene(2);
    QVERIFY(scene.combo()->hasFocus());
    QCOMPARE(scene.combo()->grab().toImage().pixelColor(100, 0), accent);
    clearFocus(scene);
    QVERIFY(scene.combo()->grab().toImage().pixelColor(100, 0) != accent);
}

void tst_ZrMultiComboSkin::theCurrentRowIsMarked()
{
    QFETCH(QString, skin);
    QFETCH(QColor, accent);
    const SkinnedHost host(skin);
    ComboScene scene(4);
    QVERIFY(scene.open());
    QTest::keyClick(scene.list(), Qt::Key_Down);
    QVERIFY(countOf(rowImage(scene, 1).copy(0, 0, 2, 24), accent) > 30);
    QCOMPARE(countOf(rowImage(scene, 0).copy(0, 0, 2, 24), accent), 0);
    const QPoint rightEnd(scene.box(1)->width() - 4, 12);
    QVERIFY(rowImage(scene, 1).pixelColor(rightEnd) != rowImage(scene, 0).pixelColor(rightEnd));
}

void tst_ZrMultiComboSkin::rowsAndScrollBarAreTheSkins_data()
{
    QTest::addColumn<QString>("around");
    QTest::newRow("plain window") << "";
    QTest::newRow("window with a sheet")
        << "QComboBox QAbstractItemView{color: red;} QLineEdit{padding: 9px;}";
}

// A combo box sets its view up for a menu, without a scroll bar and with rows of its own.
void tst_ZrMultiComboSkin::rowsAndScrollBarAreTheSkins()
{
    QFETCH(QString, around);
    const SkinnedHost host(QStringLiteral("dark"));
    QWidget window;
    window.setStyleSheet(around);
    ZrMultiComboBox combo(&window);
    for (int row = 0; row < 50; ++row)
        combo.addItem(QString::number(row), row);
    window.resize(300, 100);
    window.show();
    combo.showPopup();
    const QAbstractItemView *const list = combo.view();
    QCOMPARE(list->visualRect(combo.model()->index(0, 0)).height(), 24);
    QVERIFY(list->verticalScrollBar()->isVisible());
    QCOMPARE(combo.view()->viewport()->height() / 24, combo.maxVisibleItems());
    combo.hidePopup();
}

void tst_ZrMultiComboSkin::textsStandOut()
{
    QFETCH(QString, skin);
    const SkinnedHost host(skin);
    ComboScene scene(4);
    QVERIFY(scene.open());
    const QPoint rightEnd(scene.box(0)->width() - 4, 12);
    for (int row = 0; row < 2; ++row) { // the first is the current one
        const QColor ground = rowImage(scene, row).pixelColor(rightEnd);
        const QColor text = scene.box(row)->palette().color(QPalette::WindowText);
        QVERIFY2(contrast(text, ground) >= 4.5, qPrintable(QString::number(contrast(text, ground))));
    }
    const QColor field = scene.combo()->grab().toImage().pixelColor(100, 3);
    const QColor shown = scene.edit()->palette().color(QPalette::Text);
    QVERIFY2(contrast(shown, field) >= 4.5, qPrintable(QString::number(contrast(shown, field))));
}

void tst_ZrMultiComboSkin::anotherSkinLooksLikeAFreshStartInIt()
{
    QFETCH(QString, skin);
    QFETCH(QString, other);
    SkinnedHost host(other);
    ComboScene changed(20);
    changed.combo()->selectIndex(3, true);
    changed.box(4)->setEnabled(false);
    QVERIFY(changed.open());
    QVERIFY(host.setSkin(skin));
    const QImage changedList = listImage(changed);
    changed.combo()->hidePopup();
    const QImage changedBox = changed.combo()->grab().toImage();

    ComboScene fresh(20);
    fresh.combo()->selectIndex(3, true);
    fresh.box(4)->setEnabled(false);
    QVERIFY(fresh.open());
    QCOMPARE(changedList, listImage(fresh));
    fresh.combo()->hidePopup();
    changed.window()->hide();
    QCOMPARE(changedBox, fresh.combo()->grab().toImage());
}

ZR_TEST_MAIN(tst_ZrMultiComboSkin)
#include "tst_zrmulticomboskin.moc"
