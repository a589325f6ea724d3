#include "DialogScene.h"
#include "ZrDialog.h"
#include "ZrTestMain.h"
#include "ZrWindowResize.h"

#include <QtGui/QMouseEvent>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QTableWidget>
#include <QtWidgets/QVBoxLayout>

/// The mouse on a dialog's parts, without a platform that moves a pointer.
class tst_ZrDialogMouse : public QObject
{
    Q_OBJECT
private slots:
    void init();
    void cleanup();
    void theTitleMovesTheDialog_data();
    void theTitleMovesTheDialog();
    void onlyTheGripMovesTheDialog_data();
    void onlyTheGripMovesTheDialog();
    void anotherButtonMovesNothing();
    void theEdgesResizeTheDialog_data();
    void theEdgesResizeTheDialog();
    void aFixedDialogIsNotResized();
    void aPullBelowTheLeastSizeIsLeftOut();
    void theContentHasItsOwnMouse();
    void theCursorTellsTheEdge();
    void theContentTakesTheEdgesCursorAway();
    void twoDialogsShareTheEdges();
    void partsTrackTheMouseWhileTheDialogIsResizable();
    void whatTrackedTheMouseByItselfGoesOn();
    void otherWindowsOfTheContentDontMoveTheDialog();

private:
    void sendMouse(QWidget *widget, QEvent::Type type, const QPoint &global,
                   Qt::MouseButton button = Qt::LeftButton);
    /// Hovers, presses, moves and releases at global places, as a user does.
    void drag(QWidget *part, const QPoint &from, const QPoint &by);
    QWidget *part(const char *name) const { return m_dialog->findChild<QWidget *>(name); }
    QPoint inTitle(const QPoint &pos) const { return part("frame_title")->mapToGlobal(pos); }

    std::unique_ptr<DialogScene> m_scene;
    std::unique_ptr<ZrDialog> m_dialog;
    QWidget *m_content = nullptr;
};

void tst_ZrDialogMouse::init()
{
    m_scene = std::make_unique<DialogScene>();
    QVERIFY(m_scene->isReady());
    QCursor::setPos(400, 400);
    m_dialog = std::make_unique<ZrDialog>("Title", true, nullptr, 3, true, true, 0);
    m_content = new QWidget;
    m_content->resize(300, 200);
    m_dialog->addWidget(m_content);
    m_dialog->move(100, 100);
    m_dialog->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_dialog.get()));
}

void tst_ZrDialogMouse::cleanup()
{
    m_dialog.reset();
    m_scene.reset();
}

void tst_ZrDialogMouse::sendMouse(QWidget *widget, QEvent::Type type, const QPoint &global,
                                  Qt::MouseButton button)
{
    const bool isMove = type == QEvent::MouseMove;
    const Qt::MouseButtons held =
        type == QEvent::MouseButtonRelease ? Qt::NoButton : Qt::MouseButtons(button);
    QMouseEvent event(type, widget->mapFromGlobal(global), global, isMove ? Qt::NoButton : button, held,
                      Qt::NoModifier);
    QCoreApplication::sendEvent(widget, &event);
}

void tst_ZrDialogMouse::drag(QWidget *part, const QPoint &from, const QPoint &by)
{
    sendMouse(part, QEvent::MouseMove, from, Qt::NoButton);
    sendMouse(part, QEvent::MouseButtonPress, from);
    sendMouse(part, QEvent::MouseMove, from + by / 2);
    sendMouse(part, QEvent::MouseMove, from + by);
    sendMouse(part, QEvent::MouseButtonRelease, from + by);
}

void tst_ZrDialogMouse::theTitleMovesTheDialog_data()
{
    QTest::addColumn<bool>("resizable");
    QTest::addColumn<QByteArray>("name");
    QTest::newRow("fixed, frame") << false << QByteArray("frame_title");
    QTest::newRow("fixed, text") << false << QByteArray("label_title");
    QTest::newRow("resizable, frame") << true << QByteArray("frame_title");
    QTest::newRow("resizable, text") << true << QByteArray("label_title");
}

void tst_ZrDialogMouse::theTitleMovesTheDialog()
{
    QFETCH(bool, resizable);
    QFETCH(QByteArray, name);
    m_dialog->setResizeFlag(resizable);
    const QSize size = m_dialog->size();
    drag(part(name), inTitle({15, 15}), QPoint(40, -30));
    QCOMPARE(m_dialog->pos(), QPoint(140, 70));
    QCOMPARE(m_dialog->size(), size);
    // And it is let go.
    sendMouse(part(name), QEvent::MouseMove, QPoint(400, 400));
    QCOMPARE(m_dialog->pos(), QPoint(140, 70));
}

void tst_ZrDialogMouse::onlyTheGripMovesTheDialog_data()
{
    QTest::addColumn<bool>("resizable");
    QTest::addColumn<QPoint>("at"); // negative x counts from the title's right, negative y from its bottom
    QTest::addColumn<bool>("expected");
    QTest::newRow("fixed, corner") << false << QPoint(0, 0) << true;
    QTest::newRow("fixed, bottom") << false << QPoint(0, -1) << true;
    QTest::newRow("fixed, before the buttons") << false << QPoint(-51, 15) << true;
    QTest::newRow("fixed, at the buttons") << false << QPoint(-50, 15) << false;
    QTest::newRow("resizable, corner") << true << QPoint(0, 0) << false;
    QTest::newRow("resizable, inside") << true << QPoint(10, 10) << true;
    QTest::newRow("resizable, left edge") << true << QPoint(9, 15) << false;
    QTest::newRow("resizable, top edge") << true << QPoint(15, 9) << false;
    QTest::newRow("resizable, bottom") << true << QPoint(15, -1) << true;
    QTest::newRow("resizable, at the buttons") << true << QPoint(-40, 15) << false;
}

void tst_ZrDialogMouse::onlyTheGripMovesTheDialog()
{
    QFETCH(bool, resizable);
    QFETCH(QPoint, at);
    QFETCH(bool, expected);
    m_dialog->setResizeFlag(resizable);
    QWidget *const title = part("frame_title");
    const QPoint local(at.x() < 0 ? title->width() + at.x() : at.x(),
                       at.y() < 0 ? title->height() + at.y() : at.y());
    drag(title, inTitle(local), QPoint(31, 17));
    QCOMPARE(m_dialog->pos() == QPoint(131, 117), expected);
}

void tst_ZrDialogMouse::anotherButtonMovesNothing()
{
    QWidget *const title = part("frame_title");
    const QPoint from = inTitle({30, 15});
    sendMouse(title, QEvent::MouseButtonPress, from, Qt::RightButton);
    sendMouse(title, QEvent::MouseMove, from + QPoint(30, 30), Qt::RightButton);
    sendMouse(title, QEvent::MouseButtonRelease, from + QPoint(30, 30), Qt::RightButton);
    QCOMPARE(m_dialog->pos(), QPoint(100, 100));
}

void tst_ZrDialogMouse::theEdgesResizeTheDialog_data()
{
    QTest::addColumn<QPoint>("side"); // -1, 0, 1: left or top, middle, right or bottom
    for (int y = -1; y <= 1; ++y) {
        for (int x = -1; x <= 1; ++x) {
            if (x != 0 || y != 0)
                QTest::addRow("%d, %d", x, y) << QPoint(x, y);
        }
    }
}

void tst_ZrDialogMouse::theEdgesResizeTheDialog()
{
    QFETCH(QPoint, side);
    m_dialog->setResizeFlag(true);
    const QRect before = m_dialog->geometry();
    const auto along = [](int which, int low, int high) {
        return which < 0 ? low + 4 : which > 0 ? high - 4 : (low + high) / 2;
    };
    const QPoint from(along(side.x(), before.left(), before.right()),
                      along(side.y(), before.top(), before.bottom()));
    drag(part("frame_main"), from, QPoint(14, 22));
    const QRect expected = before.adjusted(side.x() < 0 ? 14 : 0, side.y() < 0 ? 22 : 0,
                                           side.x() > 0 ? 14 : 0, side.y() > 0 ? 22 : 0);
    QCOMPARE(m_dialog->geometry(), expected);
    sendMouse(part("frame_main"), QEvent::MouseMove, QPoint(400, 400));
    QCOMPARE(m_dialog->geometry(), expected);
}

void tst_ZrDialogMouse::aFixedDialogIsNotResized()
{
    const QRect before = m_dialog->geometry();
    drag(part("frame_main"), before.bottomRight(), QPoint(30, 30));
    QCOMPARE(m_dialog->geometry(), before);
    m_dialog->setResizeFlag(true);
    m_dialog->setResizeFlag(false);
    drag(part("frame_main"), before.bottomRight(), QPoint(30, 30));
    QCOMPARE(m_dialog->geometry(), before);
}

void tst_ZrDialogMouse::aPullBelowTheLeastSizeIsLeftOut()
{
    m_dialog->setResizeFlag(true);
    const QRect before = m_dialog->geometry();
    QWidget *const main = part("frame_main");
    const QPoint from(before.right(), before.center().y());
    sendMouse(main, QEvent::MouseMove, from, Qt::NoButton);
    sendMouse(main, QEvent::MouseButtonPress, from);
    const int most = before.width() - m_dialog->minimumWidth();
    sendMouse(main, QEvent::MouseMove, from - QPoint(most + 1, 0));
    QCOMPARE(m_dialog->geometry(), before);
    sendMouse(main, QEvent::MouseMove, from - QPoint(most, 0));
    QCOMPARE(m_dialog->width(), m_dialog->minimumWidth());
    QCOMPARE(m_dialog->pos(), before.topLeft());
}

void tst_ZrDialogMouse::theContentHasItsOwnMouse()
{
    m_dialog->setResizeFlag(true);
    auto *const table = new QTableWidget(3, 3);
    table->resize(300, 200);
    m_dialog->addWidget(table);
    QTRY_VERIFY(table->isVisible());
    const QRect before = m_dialog->geometry();
    const QPoint inside = table->viewport()->mapToGlobal(table->viewport()->rect().center());
    drag(table->viewport(), inside, QPoint(40, 40));
    QCOMPARE(m_dialog->geometry(), before);
}

void tst_ZrDialogMouse::theCursorTellsTheEdge()
{
    m_dialog->setResizeFlag(true);
    const QRect frame = m_dialog->frameGeometry();
    QWidget *const main = part("frame_main");
    const auto at = [&](const QPoint &pos) {
        sendMouse(main, QEvent::MouseMove, pos, Qt::NoButton);
        return m_dialog->cursor().shape();
    };
    QCOMPARE(at(frame.topLeft()), Qt::SizeFDiagCursor);
    QCOMPARE(at(frame.topRight()), Qt::SizeBDiagCursor);
    QCOMPARE(at({frame.left(), frame.center().y()}), Qt::SizeHorCursor);
    QCOMPARE(at({frame.center().x(), frame.bottom()}), Qt::SizeVerCursor);
    QCOMPARE(at(frame.center()), Qt::ArrowCursor);
    QCOMPARE(at(frame.bottomRight()), Qt::SizeFDiagCursor);
    m_dialog->setResizeFlag(false);
    QCOMPARE(m_dialog->cursor().shape(), Qt::ArrowCursor);
}

// A grid keeps its moves to itself, so that the edge's cursor would stay over it.
void tst_ZrDialogMouse::theContentTakesTheEdgesCursorAway()
{
    m_dialog->setResizeFlag(true);
    sendMouse(part("frame_main"), QEvent::MouseMove, m_dialog->geometry().bottomRight(), Qt::NoButton);
    QCOMPARE(m_dialog->cursor().shape(), Qt::SizeFDiagCursor);
    QEvent enter(QEvent::Enter);
    QCoreApplication::sendEvent(m_content, &enter);
    QCOMPARE(m_dialog->cursor().shape(), Qt::ArrowCursor);
}

void tst_ZrDialogMouse::twoDialogsShareTheEdges()
{
    ZrDialog other("Other", true, nullptr, 0, true, true, 0);
    other.setGeometry(350, 450, 300, 200);
    other.setResizeFlag(true);
    other.show();
    m_dialog->setResizeFlag(true);
    sendMouse(part("frame_main"), QEvent::MouseMove,
              {m_dialog->geometry().center().x(), m_dialog->geometry().bottom()}, Qt::NoButton);
    QCOMPARE(ZrWindowResize::edges(), 8);
    auto *const main = other.findChild<QWidget *>("frame_main");
    const QPoint inside = other.geometry().center();
    sendMouse(main, QEvent::MouseButtonPress, inside);
    sendMouse(main, QEvent::MouseMove, inside + QPoint(20, 30));
    sendMouse(main, QEvent::MouseButtonRelease, inside + QPoint(20, 30));
    QCOMPARE(other.geometry(), QRect(350, 450, 300, 230));
}

void tst_ZrDialogMouse::partsTrackTheMouseWhileTheDialogIsResizable()
{
    auto *const below = new QWidget(m_content);
    const QList<QWidget *> parts{m_dialog.get(),     part("frame_title"), part("frame_work"),
                                 part("frame_main"), m_content,           below};
    for (const bool on : {true, false, true}) {
        m_dialog->setResizeFlag(on);
        for (const QWidget *const each : parts)
            QCOMPARE(each->hasMouseTracking(), on);
    }
    // A later content too.
    auto *const later = new QWidget;
    m_dialog->addWidget(later);
    QVERIFY(later->hasMouseTracking());
}

void tst_ZrDialogMouse::whatTrackedTheMouseByItselfGoesOn()
{
    auto *const hovered = new QWidget(m_content);
    hovered->setMouseTracking(true);
    m_dialog->addWidget(m_content);
    QVERIFY(hovered->hasMouseTracking());
    m_dialog->setResizeFlag(true);
    m_dialog->setResizeFlag(false);
    QVERIFY(hovered->hasMouseTracking());
}

void tst_ZrDialogMouse::otherWindowsOfTheContentDontMoveTheDialog()
{
    auto *const inner = new ZrDialog("Inner", true, m_content, 0, true, true, 0);
    m_dialog->addWidget(m_content); // watches the inner one's parts, too
    inner->show();
    inner->move(m_dialog->pos() + QPoint(5, 5));
    auto *const title = inner->findChild<QWidget *>("frame_title");
    drag(title, title->mapToGlobal({40, 12}), QPoint(25, 35));
    QCOMPARE(inner->pos(), QPoint(130, 140));
    QCOMPARE(m_dialog->pos(), QPoint(100, 100));
}

ZR_TEST_MAIN(tst_ZrDialogMouse)
#include "tst_zrdialogmouse.moc"
