#include "FrameScene.h"
#include "ZrShadowFrame.h"
#include "ZrTestMain.h"

#include <QtGui/QFocusEvent>
#include <QtGui/QPainter>
#include <QtGui/QPainterPath>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QVBoxLayout>

#include <cmath>

namespace {

const QColor blackShadow(0, 0, 0, 50);

/// Counts its paints, and paints a mark over body and rings.
class MarkedFrame : public ZrShadowFrame
{
    Q_OBJECT
public:
    using ZrShadowFrame::ZrShadowFrame;
    int paints = 0;

protected:
    void paintEvent(QPaintEvent *) override
    {
        ++paints;
        QPainter painter(this);
        paintBasis(painter);
        painter.fillRect(QRect(width() / 2, height() / 2, 4, 4), Qt::green);
    }
};

void addBody(QPainterPath *path, const QRectF &rect, int radius)
{
    path->setFillRule(Qt::WindingFill);
    if (radius <= 0) {
        path->addRect(rect);
        return;
    }
    QT_WARNING_PUSH
    QT_WARNING_DISABLE_DEPRECATED
    path->addRoundRect(rect, radius); // the corners that the skins' values were chosen for
    QT_WARNING_POP
}

/// Step by step, for frames larger than their margins.
QImage expectedShot(const ZrShadowFrame &frame, const QColor &ringColor)
{
    QImage image(frame.size(), QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    const int margin = frame.margin();
    QPainterPath body;
    addBody(&body, QRectF(margin, margin, frame.width() - 2 * margin, frame.height() - 2 * margin),
            frame.radius());
    painter.setRenderHint(QPainter::Antialiasing, true);
    painter.fillPath(body, QBrush(frame.bgColor()));
    QColor color = ringColor;
    for (int i = 0; i < margin; ++i) {
        const int inset = margin - i;
        QPainterPath ring;
        addBody(&ring, QRectF(inset, inset, frame.width() - 2 * inset, frame.height() - 2 * inset),
                frame.radius());
        color.setAlpha(qMax(0, int(150 - std::sqrt(i) * 50)));
        painter.setPen(color);
        painter.drawPath(ring);
    }
    return image;
}

void giveFocus(QWidget *widget, QEvent::Type type)
{
    QFocusEvent event(type);
    QCoreApplication::sendEvent(widget, &event);
}

} // namespace

class tst_ZrShadowFrame : public QObject
{
    Q_OBJECT
private slots:
    void aNewFrameHasTheHouseLook();
    void eachSetterStoresAndPaints_data();
    void eachSetterStoresAndPaints();
    void aStyleSheetSetsEveryProperty();
    void bodyAndRingsStandWhereTheyShould_data();
    void bodyAndRingsStandWhereTheyShould();
    void ringsFadeToNothingAtTheTenth();
    void aFrameSmallerThanItsMarginsPaintsNoBody_data();
    void aFrameSmallerThanItsMarginsPaintsNoBody();
    void theFocusOfTheFrameColoursTheShadow();
    void theFocusOfAPartCountsOnlyWhereItIsWatched();
    void theFocusOfAStrangerDoesNotCount();
    void aSelectedFrameHasRingsInTheBorderColour();
    void aSubclassPaintsOverTheBasis();
};

void tst_ZrShadowFrame::aNewFrameHasTheHouseLook()
{
    const ZrShadowFrame frame;
    QCOMPARE(frame.margin(), 10);
    QCOMPARE(frame.radius(), 6);
    QCOMPARE(frame.borderColor(), QColor(0x4f, 0xb7, 0xff));
    QCOMPARE(frame.shadowColor(), blackShadow);
    QVERIFY(!frame.getSelected());
    QVERIFY(frame.windowFlags() & Qt::FramelessWindowHint);
    QVERIFY(frame.testAttribute(Qt::WA_TranslucentBackground));
    for (const char *name : {"margin", "radius", "bgColor", "shadowColor", "borderColor"}) {
        const QMetaObject *const meta = frame.metaObject();
        const QMetaProperty property = meta->property(meta->indexOfProperty(name));
        QVERIFY2(property.isWritable() && property.isDesignable(&frame), name);
    }
}

void tst_ZrShadowFrame::eachSetterStoresAndPaints_data()
{
    QTest::addColumn<QByteArray>("name");
    QTest::addColumn<QVariant>("value");

    QTest::newRow("margin") << QByteArray("margin") << QVariant(4);
    QTest::newRow("radius") << QByteArray("radius") << QVariant(0);
    QTest::newRow("body") << QByteArray("bgColor") << QVariant(QColor(Qt::red));
    QTest::newRow("shadow") << QByteArray("shadowColor") << QVariant(QColor(Qt::red));
    QTest::newRow("border") << QByteArray("borderColor") << QVariant(QColor(Qt::red));
    QTest::newRow("selected") << QByteArray() << QVariant(true);
}

void tst_ZrShadowFrame::eachSetterStoresAndPaints()
{
    QFETCH(QByteArray, name);
    QFETCH(QVariant, value);
    MarkedFrame frame;
    frame.resize(200, 100);
    frame.show();
    QVERIFY(QTest::qWaitForWindowExposed(&frame));
    QTRY_VERIFY(frame.paints > 0);
    frame.paints = 0;
    if (name.isEmpty()) {
        frame.setSelected(value.toBool());
        QCOMPARE(frame.getSelected(), value.toBool());
    } else {
        QVERIFY(frame.setProperty(name, value));
        QCOMPARE(frame.property(name), value);
    }
    QTRY_VERIFY(frame.paints > 0);
}

void tst_ZrShadowFrame::aStyleSheetSetsEveryProperty()
{
    ZrShadowFrame frame;
    frame.setStyleSheet(
        QStringLiteral("ZrShadowFrame { qproperty-margin: 7; qproperty-radius: 3; qproperty-bgColor: #010203;"
                       " qproperty-shadowColor: rgba(4, 5, 6, 7); qproperty-borderColor: #08090a; }"));
    frame.ensurePolished();
    QCOMPARE(frame.margin(), 7);
    QCOMPARE(frame.radius(), 3);
    QCOMPARE(frame.bgColor(), QColor(1, 2, 3));
    QCOMPARE(frame.shadowColor(), QColor(4, 5, 6, 7));
    QCOMPARE(frame.borderColor(), QColor(8, 9, 10));
}

void tst_ZrShadowFrame::bodyAndRingsStandWhereTheyShould_data()
{
    QTest::addColumn<QSize>("size");
    QTest::addColumn<int>("margin");
    QTest::addColumn<int>("radius");

    QTest::newRow("as it starts, wide") << QSize(300, 120) << 10 << 6;
    QTest::newRow("as it starts, high") << QSize(120, 300) << 10 << 6;
    QTest::newRow("square") << QSize(150, 150) << 10 << 6;
    QTest::newRow("square corners") << QSize(150, 90) << 10 << 0;
    QTest::newRow("negative radius") << QSize(150, 90) << 10 << -3;
    QTest::newRow("half round") << QSize(150, 90) << 8 << 50;
    QTest::newRow("round") << QSize(100, 100) << 8 << 100;
    QTest::newRow("rounder than round") << QSize(150, 90) << 8 << 400;
    QTest::newRow("so long that the roundness is gone") << QSize(900, 40) << 5 << 6;
    QTest::newRow("no margin") << QSize(100, 60) << 0 << 6;
    QTest::newRow("one ring") << QSize(100, 60) << 1 << 6;
    QTest::newRow("margin with invisible rings") << QSize(160, 100) << 30 << 6;
}

void tst_ZrShadowFrame::bodyAndRingsStandWhereTheyShould()
{
    QFETCH(QSize, size);
    QFETCH(int, margin);
    QFETCH(int, radius);
    ZrShadowFrame frame;
    frame.resize(size);
    frame.setMargin(margin);
    frame.setRadius(radius);
    frame.setBgColor(QColor(200, 210, 220));
    frame.setShadowColor(QColor(30, 0, 60, 50));
    QCOMPARE(FrameScene::shot(&frame), expectedShot(frame, frame.shadowColor()));
}

void tst_ZrShadowFrame::ringsFadeToNothingAtTheTenth()
{
    ZrShadowFrame frame;
    frame.resize(100, 60);
    frame.setMargin(14);
    frame.setRadius(0);
    frame.setBgColor(Qt::white);
    const QImage image = FrameScene::shot(&frame);
    QCOMPARE(qAlpha(image.pixel(50, 30)), 255);
    // Ring i is a line one pixel wide around y = 14 - i, half of it in the row above; the ninth ring is the
    // last, so that the row from 5 to 6 is the outermost with a trace.
    int last = 256;
    for (int y = 13; y >= 5; --y) {
        const int alpha = qAlpha(image.pixel(50, y));
        QVERIFY2(alpha < last && alpha > 0, qPrintable(QString::number(y)));
        last = alpha;
    }
    for (int y = 4; y >= 0; --y)
        QCOMPARE(qAlpha(image.pixel(50, y)), 0);
}

void tst_ZrShadowFrame::aFrameSmallerThanItsMarginsPaintsNoBody_data()
{
    QTest::addColumn<QSize>("size");
    QTest::addColumn<int>("margin");

    QTest::newRow("nothing between the margins") << QSize(20, 60) << 10;
    QTest::newRow("less than nothing") << QSize(12, 12) << 10;
    QTest::newRow("margin beyond all bounds") << QSize(50, 50) << std::numeric_limits<int>::max();
}

void tst_ZrShadowFrame::aFrameSmallerThanItsMarginsPaintsNoBody()
{
    QFETCH(QSize, size);
    QFETCH(int, margin);
    ZrShadowFrame frame;
    frame.resize(size);
    frame.setMargin(margin);
    frame.setBgColor(QColor(255, 0, 0));
    const QImage image = FrameScene::shot(&frame);
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x)
            QCOMPARE(qRed(image.pixel(x, y)), 0);
    }
}

void tst_ZrShadowFrame::theFocusOfTheFrameColoursTheShadow()
{
    ZrShadowFrame frame;
    frame.resize(120, 80);
    frame.setBgColor(Qt::white);
    frame.setBorderColor(QColor(250, 40, 10));
    frame.setShadowColor(QColor(0, 90, 0, 90));
    giveFocus(&frame, QEvent::FocusIn);
    QCOMPARE(frame.shadowColor(), QColor(250, 40, 10));
    QCOMPARE(FrameScene::shot(&frame), expectedShot(frame, QColor(250, 40, 10)));
    // The border's colour may change while the frame has the focus: the rings follow it.
    frame.setBorderColor(QColor(10, 40, 250));
    QCOMPARE(FrameScene::shot(&frame), expectedShot(frame, QColor(10, 40, 250)));
    giveFocus(&frame, QEvent::FocusOut);
    QCOMPARE(frame.shadowColor(), blackShadow);
    QCOMPARE(FrameScene::shot(&frame), expectedShot(frame, blackShadow));
}

void tst_ZrShadowFrame::theFocusOfAPartCountsOnlyWhereItIsWatched()
{
    ZrShadowFrame frame;
    auto *const between = new QWidget(&frame);
    auto *const edit = new QLineEdit(between);
    giveFocus(edit, QEvent::FocusIn);
    QCOMPARE(frame.shadowColor(), blackShadow);
    edit->installEventFilter(&frame);
    giveFocus(edit, QEvent::FocusIn);
    QCOMPARE(frame.shadowColor(), frame.borderColor());
    giveFocus(edit, QEvent::FocusOut);
    QCOMPARE(frame.shadowColor(), blackShadow);
}

void tst_ZrShadowFrame::theFocusOfAStrangerDoesNotCount()
{
    ZrShadowFrame frame;
    QLineEdit stranger;
    QObject noWidget;
    stranger.installEventFilter(&frame);
    noWidget.installEventFilter(&frame);
    giveFocus(&stranger, QEvent::FocusIn);
    QFocusEvent event(QEvent::FocusIn);
    QCoreApplication::sendEvent(&noWidget, &event);
    QCOMPARE(frame.shadowColor(), blackShadow);
}

void tst_ZrShadowFrame::aSelectedFrameHasRingsInTheBorderColour()
{
    ZrShadowFrame frame;
    frame.resize(120, 80);
    frame.setBgColor(Qt::white);
    frame.setSelected(true);
    QVERIFY(frame.getSelected());
    QCOMPARE(frame.shadowColor(), blackShadow);
    QCOMPARE(FrameScene::shot(&frame), expectedShot(frame, frame.borderColor()));
    frame.setSelected(false);
    QCOMPARE(FrameScene::shot(&frame), expectedShot(frame, blackShadow));
}

void tst_ZrShadowFrame::aSubclassPaintsOverTheBasis()
{
    MarkedFrame frame;
    frame.resize(120, 80);
    frame.setBgColor(Qt::white);
    QImage expected = expectedShot(frame, blackShadow);
    QPainter(&expected).fillRect(QRect(60, 40, 4, 4), Qt::green);
    QCOMPARE(FrameScene::shot(&frame), expected);
}

ZR_TEST_MAIN(tst_ZrShadowFrame)
#include "tst_zrshadowframe.moc"
