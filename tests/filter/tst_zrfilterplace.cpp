#include "ZrFilterPlace.h"
#include "ZrTestMain.h"

class tst_ZrFilterPlace : public QObject
{
    Q_OBJECT
private slots:
    void popupOpens_data();
    void popupOpens();
};

void tst_ZrFilterPlace::popupOpens_data()
{
    QTest::addColumn<QRect>("button");
    QTest::addColumn<QSize>("popup");
    QTest::addColumn<QRect>("screen");
    QTest::addColumn<QPoint>("expected");
    const QRect screen(0, 0, 1000, 800);
    const QSize popup(150, 150);
    QTest::newRow("in the middle") << QRect(300, 100, 16, 20) << popup << screen << QPoint(300, 119);
    QTest::newRow("its last pixel at the edge")
        << QRect(850, 100, 16, 20) << popup << screen << QPoint(850, 119);
    QTest::newRow("a pixel past the right edge")
        << QRect(851, 100, 16, 20) << popup << screen << QPoint(701, 119);
    QTest::newRow("button past the right edge")
        << QRect(995, 100, 16, 20) << popup << screen << QPoint(845, 119);
    QTest::newRow("wide: moved left it would leave at the left")
        << QRect(400, 100, 16, 20) << QSize(700, 150) << screen << QPoint(0, 119);
    QTest::newRow("as wide as the screen")
        << QRect(10, 100, 16, 20) << QSize(1000, 150) << screen << QPoint(0, 119);
    QTest::newRow("near the bottom: above the button")
        << QRect(300, 700, 16, 20) << popup << screen << QPoint(300, 550);
    QTest::newRow("low screen: below all the same")
        << QRect(300, 60, 16, 20) << popup << QRect(0, 0, 1000, 160) << QPoint(300, 79);
    const QRect left(-1280, -200, 1280, 900);
    QTest::newRow("screen at the left") << QRect(-600, 0, 16, 20) << popup << left << QPoint(-600, 19);
    QTest::newRow("right edge of the screen at the left")
        << QRect(-100, 0, 16, 20) << popup << left << QPoint(-250, 19);
    QTest::newRow("left edge of the screen at the left")
        << QRect(-1280, 0, 16, 20) << QSize(1290, 150) << left << QPoint(-1280, 19);
    QTest::newRow("no screen known") << QRect(5000, 5000, 16, 20) << popup << QRect() << QPoint(5000, 5019);
}

void tst_ZrFilterPlace::popupOpens()
{
    QFETCH(QRect, button);
    QFETCH(QSize, popup);
    QFETCH(QRect, screen);
    QFETCH(QPoint, expected);
    QCOMPARE(ZrFilterPlace::of(button, popup, screen), expected);
}

ZR_TEST_GUILESS_MAIN(tst_ZrFilterPlace)
#include "tst_zrfilterplace.moc"
