#include "ZrTestMain.h"
#include "ZrWindowEdges.h"
#include "ZrWindowResize.h"

#include <QtGui/QMouseEvent>

/// Events as a window gets them; the platform isn't asked.
class tst_ZrWindowResize : public QObject
{
    Q_OBJECT
private slots:
    void init();
    void thePointerShowsTheEdge();
    void everyEdgeFollowsThePointer_data();
    void everyEdgeFollowsThePointer();
    void belowTheLeastSizeNothingChanges_data();
    void belowTheLeastSizeNothingChanges();
    void theLargestSizeStopsTheEdge_data();
    void theLargestSizeStopsTheEdge();
    void theEdgeComesBackToThePointer();
    void aReleaseEndsThePull();
    void aReleaseThatWentElsewhereIsNoticed();
    void twoWindowsShareTheEdges();
    void theCursorIsRestored();

private:
    static QMouseEvent mouse(const QPoint &global, Qt::MouseButtons held);
    static void moveTo(ZrWindowResize *resize, const QPoint &global, Qt::MouseButtons held = Qt::NoButton);
    static void pull(ZrWindowResize *resize, const QPoint &from, const QPoint &by);

    std::unique_ptr<QWidget> m_window;
    std::unique_ptr<ZrWindowResize> m_resize;
};

QMouseEvent tst_ZrWindowResize::mouse(const QPoint &global, Qt::MouseButtons held)
{
    return QMouseEvent(QEvent::MouseMove, QPointF(1, 1), QPointF(1, 1), global, Qt::NoButton, held,
                       Qt::NoModifier);
}

void tst_ZrWindowResize::moveTo(ZrWindowResize *resize, const QPoint &global, Qt::MouseButtons held)
{
    resize->move(mouse(global, held));
}

void tst_ZrWindowResize::pull(ZrWindowResize *resize, const QPoint &from, const QPoint &by)
{
    moveTo(resize, from);
    resize->press(mouse(from, Qt::LeftButton));
    moveTo(resize, from + by, Qt::LeftButton);
    resize->release();
}

void tst_ZrWindowResize::init()
{
    m_window = std::make_unique<QWidget>(nullptr, Qt::Window | Qt::FramelessWindowHint);
    m_window->setGeometry(100, 200, 300, 150);
    m_window->setMinimumSize(200, 70);
    m_window->setMaximumSize(500, 400);
    m_resize = std::make_unique<ZrWindowResize>(m_window.get());
}

void tst_ZrWindowResize::thePointerShowsTheEdge()
{
    moveTo(m_resize.get(), QPoint(100, 275));
    QCOMPARE(ZrWindowResize::edges(), int(ZrWindowEdges::Left));
    QCOMPARE(m_window->cursor().shape(), Qt::SizeHorCursor);
    moveTo(m_resize.get(), QPoint(399, 349));
    QCOMPARE(ZrWindowResize::edges(), ZrWindowEdges::Right | ZrWindowEdges::Bottom);
    QCOMPARE(m_window->cursor().shape(), Qt::SizeFDiagCursor);
    moveTo(m_resize.get(), QPoint(250, 275));
    QCOMPARE(ZrWindowResize::edges(), 0);
    QCOMPARE(m_window->cursor().shape(), Qt::ArrowCursor);
    QCOMPARE(m_window->geometry(), QRect(100, 200, 300, 150));
}

void tst_ZrWindowResize::everyEdgeFollowsThePointer_data()
{
    QTest::addColumn<QPoint>("from");
    QTest::addColumn<QRect>("expected");
    QTest::newRow("top") << QPoint(250, 203) << QRect(QPoint(100, 230), QPoint(399, 349));
    QTest::newRow("left") << QPoint(103, 275) << QRect(QPoint(120, 200), QPoint(399, 349));
    QTest::newRow("right") << QPoint(395, 275) << QRect(QPoint(100, 200), QPoint(419, 349));
    QTest::newRow("bottom") << QPoint(250, 345) << QRect(QPoint(100, 200), QPoint(399, 379));
    QTest::newRow("top left") << QPoint(103, 203) << QRect(QPoint(120, 230), QPoint(399, 349));
    QTest::newRow("top right") << QPoint(395, 203) << QRect(QPoint(100, 230), QPoint(419, 349));
    QTest::newRow("bottom left") << QPoint(103, 345) << QRect(QPoint(120, 200), QPoint(399, 379));
    QTest::newRow("bottom right") << QPoint(395, 345) << QRect(QPoint(100, 200), QPoint(419, 379));
    QTest::newRow("none") << QPoint(250, 275) << QRect(QPoint(100, 200), QPoint(399, 349));
}

void tst_ZrWindowResize::everyEdgeFollowsThePointer()
{
    QFETCH(QPoint, from);
    QFETCH(QRect, expected);
    pull(m_resize.get(), from, QPoint(20, 30));
    QCOMPARE(m_window->geometry(), expected);
}

void tst_ZrWindowResize::belowTheLeastSizeNothingChanges_data()
{
    QTest::addColumn<QPoint>("from");
    QTest::addColumn<QPoint>("least");
    QTest::newRow("right") << QPoint(395, 275) << QPoint(-100, 0);
    QTest::newRow("left") << QPoint(103, 275) << QPoint(100, 0);
    QTest::newRow("top") << QPoint(250, 203) << QPoint(0, 80);
    QTest::newRow("bottom") << QPoint(250, 345) << QPoint(0, -80);
}

void tst_ZrWindowResize::belowTheLeastSizeNothingChanges()
{
    QFETCH(QPoint, from);
    QFETCH(QPoint, least);
    const QRect before = m_window->geometry();
    const QPoint beyond = least + least / 50; // 1 or 2 px further
    moveTo(m_resize.get(), from);
    m_resize->press(mouse(from, Qt::LeftButton));
    moveTo(m_resize.get(), from + beyond, Qt::LeftButton);
    QCOMPARE(m_window->geometry(), before);
    QCOMPARE(m_resize->lastMousePos(), from);
    // Just the least size is one that a window may have.
    moveTo(m_resize.get(), from + least, Qt::LeftButton);
    QVERIFY(m_window->width() == 200 || m_window->height() == 70);
    QCOMPARE(m_resize->lastMousePos(), from + least);
}

void tst_ZrWindowResize::theLargestSizeStopsTheEdge_data()
{
    QTest::addColumn<QPoint>("from");
    QTest::addColumn<QPoint>("by");
    QTest::addColumn<QRect>("expected");
    QTest::newRow("right") << QPoint(395, 275) << QPoint(900, 0) << QRect(100, 200, 500, 150);
    QTest::newRow("left") << QPoint(103, 275) << QPoint(-900, 0) << QRect(-100, 200, 500, 150);
    QTest::newRow("top") << QPoint(250, 203) << QPoint(0, -900) << QRect(100, -50, 300, 400);
    QTest::newRow("bottom") << QPoint(250, 345) << QPoint(0, 900) << QRect(100, 200, 300, 400);
}

void tst_ZrWindowResize::theLargestSizeStopsTheEdge()
{
    QFETCH(QPoint, from);
    QFETCH(QPoint, by);
    QFETCH(QRect, expected);
    pull(m_resize.get(), from, by);
    QCOMPARE(m_window->geometry(), expected);
}

void tst_ZrWindowResize::theEdgeComesBackToThePointer()
{
    const QList<QPoint> corners{{103, 203}, {395, 345}};
    for (const QPoint &from : corners) {
        const QRect before = m_window->geometry();
        moveTo(m_resize.get(), from);
        m_resize->press(mouse(from, Qt::LeftButton));
        for (const QPoint &by : {QPoint(-900, 900), QPoint(900, -900), QPoint(-30, 40), QPoint()})
            moveTo(m_resize.get(), from + by, Qt::LeftButton);
        QCOMPARE(m_window->geometry(), before);
        m_resize->release();
    }
}

void tst_ZrWindowResize::aReleaseEndsThePull()
{
    const QPoint from(395, 275);
    pull(m_resize.get(), from, QPoint(10, 0));
    QVERIFY(!m_resize->isResizing());
    moveTo(m_resize.get(), from + QPoint(40, 0), Qt::LeftButton);
    QCOMPARE(m_window->width(), 310);
}

void tst_ZrWindowResize::aReleaseThatWentElsewhereIsNoticed()
{
    const QPoint from(395, 275);
    moveTo(m_resize.get(), from);
    m_resize->press(mouse(from, Qt::LeftButton));
    moveTo(m_resize.get(), from + QPoint(40, 0), Qt::NoButton);
    QVERIFY(!m_resize->isResizing());
    QCOMPARE(m_window->width(), 300);
}

void tst_ZrWindowResize::twoWindowsShareTheEdges()
{
    QWidget other(nullptr, Qt::Window | Qt::FramelessWindowHint);
    other.setGeometry(500, 100, 300, 150);
    ZrWindowResize otherResize(&other);
    moveTo(m_resize.get(), QPoint(250, 345));
    QCOMPARE(ZrWindowResize::edges(), int(ZrWindowEdges::Bottom));
    // Pressed without having been hovered: what was seen at the first window is pulled.
    const QPoint inside(650, 175);
    otherResize.press(mouse(inside, Qt::LeftButton));
    moveTo(&otherResize, inside + QPoint(5, 25), Qt::LeftButton);
    QCOMPARE(other.geometry(), QRect(500, 100, 300, 175));
}

void tst_ZrWindowResize::theCursorIsRestored()
{
    moveTo(m_resize.get(), QPoint(100, 275));
    m_resize->restoreCursor();
    QCOMPARE(m_window->cursor().shape(), Qt::ArrowCursor);
    // Not while the edge is being pulled: the pointer may outrun it.
    moveTo(m_resize.get(), QPoint(100, 275));
    m_resize->press(mouse(QPoint(100, 275), Qt::LeftButton));
    m_resize->restoreCursor();
    QCOMPARE(m_window->cursor().shape(), Qt::SizeHorCursor);
}

ZR_TEST_MAIN(tst_ZrWindowResize)
#include "tst_zrwindowresize.moc"
