#include "DialogScene.h"
#include "ZrTestMain.h"
#include "ZrWindowDrag.h"

#include <QtGui/QMouseEvent>

/// Events as a window gets them; the platform isn't asked.
class tst_ZrWindowDrag : public QObject
{
    Q_OBJECT
private slots:
    void init();
    void theStripIsTheUppermostOfTheFrame();
    void aPressBeginsInTheGripOnly_data();
    void aPressBeginsInTheGripOnly();
    void theWindowKeepsItsDistanceToThePointer();
    void aMoveWithoutAPressLeavesTheWindow();
    void aReleaseEndsTheDrag();
    void aReleaseThatWentElsewhereIsNoticed();
    void aPressBesideTheGripEndsAnOlderDrag();

private:
    static QMouseEvent mouse(QEvent::Type type, const QPoint &global, Qt::MouseButton button,
                             Qt::MouseButtons held);
    bool press(const QPoint &global);
    bool moveTo(const QPoint &global, Qt::MouseButtons held = Qt::LeftButton);

    std::unique_ptr<QWidget> m_window;
    std::unique_ptr<ZrWindowDrag> m_drag;
};

QMouseEvent tst_ZrWindowDrag::mouse(QEvent::Type type, const QPoint &global, Qt::MouseButton button,
                                    Qt::MouseButtons held)
{
    QMouseEvent event(type, QPointF(1, 1), QPointF(1, 1), global, button, held, Qt::NoModifier);
    event.ignore();
    return event;
}

bool tst_ZrWindowDrag::press(const QPoint &global)
{
    QMouseEvent event = mouse(QEvent::MouseButtonPress, global, Qt::LeftButton, Qt::LeftButton);
    const bool done = m_drag->press(&event, ZrWindowDrag::topStrip(*m_window, 31));
    return done && event.isAccepted();
}

bool tst_ZrWindowDrag::moveTo(const QPoint &global, Qt::MouseButtons held)
{
    QMouseEvent event = mouse(QEvent::MouseMove, global, Qt::NoButton, held);
    const bool done = m_drag->move(&event);
    return done && event.isAccepted();
}

void tst_ZrWindowDrag::init()
{
    m_window = std::make_unique<QWidget>();
    m_window->setGeometry(100, 50, 300, 200);
    m_drag = std::make_unique<ZrWindowDrag>(m_window.get());
}

void tst_ZrWindowDrag::theStripIsTheUppermostOfTheFrame()
{
    QCOMPARE(ZrWindowDrag::topStrip(*m_window, 31), QRect(100, 50, 300, 31));
}

void tst_ZrWindowDrag::aPressBeginsInTheGripOnly_data()
{
    QTest::addColumn<QPoint>("global");
    QTest::addColumn<int>("button");
    QTest::addColumn<bool>("expected");

    QTest::newRow("first pixel") << QPoint(100, 50) << int(Qt::LeftButton) << true;
    QTest::newRow("last pixel") << QPoint(399, 80) << int(Qt::LeftButton) << true;
    QTest::newRow("one below") << QPoint(399, 81) << int(Qt::LeftButton) << false;
    QTest::newRow("one to the right") << QPoint(400, 80) << int(Qt::LeftButton) << false;
    QTest::newRow("one to the left") << QPoint(99, 60) << int(Qt::LeftButton) << false;
    QTest::newRow("right button") << QPoint(120, 60) << int(Qt::RightButton) << false;
}

void tst_ZrWindowDrag::aPressBeginsInTheGripOnly()
{
    QFETCH(QPoint, global);
    QFETCH(int, button);
    QFETCH(bool, expected);
    const auto which = Qt::MouseButton(button);
    QMouseEvent event = mouse(QEvent::MouseButtonPress, global, which, which);
    QCOMPARE(m_drag->press(&event, ZrWindowDrag::topStrip(*m_window, 31)), expected);
    QCOMPARE(event.isAccepted(), expected);
    QCOMPARE(m_drag->isDragging(), expected);
}

void tst_ZrWindowDrag::theWindowKeepsItsDistanceToThePointer()
{
    QVERIFY(press({130, 60}));
    QCOMPARE(m_drag->offset(), QPoint(30, 10));
    QVERIFY(moveTo({230, 90}));
    QCOMPARE(m_window->pos(), QPoint(200, 80));
    QVERIFY(moveTo({20, 5}));
    QCOMPARE(m_window->pos(), QPoint(-10, -5));
}

void tst_ZrWindowDrag::aMoveWithoutAPressLeavesTheWindow()
{
    QVERIFY(!moveTo({230, 90}));
    QCOMPARE(m_window->pos(), QPoint(100, 50));
}

void tst_ZrWindowDrag::aReleaseEndsTheDrag()
{
    QVERIFY(press({130, 60}));
    m_drag->release();
    QVERIFY(!m_drag->isDragging());
    QVERIFY(!moveTo({230, 90}));
    QCOMPARE(m_window->pos(), QPoint(100, 50));
}

void tst_ZrWindowDrag::aReleaseThatWentElsewhereIsNoticed()
{
    QVERIFY(press({130, 60}));
    QVERIFY(!moveTo({230, 90}, Qt::NoButton));
    QVERIFY(!m_drag->isDragging());
    QVERIFY(!moveTo({230, 90}));
    QCOMPARE(m_window->pos(), QPoint(100, 50));
}

void tst_ZrWindowDrag::aPressBesideTheGripEndsAnOlderDrag()
{
    QVERIFY(press({130, 60}));
    QVERIFY(!press({130, 160}));
    QVERIFY(!moveTo({230, 90}));
    QCOMPARE(m_window->pos(), QPoint(100, 50));
}

ZR_TEST_MAIN(tst_ZrWindowDrag)
#include "tst_zrwindowdrag.moc"
