#include "DialogScene.h"
#include "ZrTestMain.h"
#include "ZrWindowPlace.h"

#include <QtGui/QCursor>
#include <QtGui/QScreen>

class tst_ZrWindowPlace : public QObject
{
    Q_OBJECT
private slots:
    void init();
    void aModeBelowOneLeavesTheWindow_data();
    void aModeBelowOneLeavesTheWindow();
    void modeOneCentresOnTheParent();
    void aParentInsideAWindowIsMappedToTheScreen();
    void aParentThatIsAWindowOfAnotherIsWhereItIs();
    void modeTwoCentresOnTheTopmostAncestor();
    void withoutATargetTheScreenInUseIsCentredOn_data();
    void withoutATargetTheScreenInUseIsCentredOn();
    void aTargetIsUsedFromTwentyPixelsOn_data();
    void aTargetIsUsedFromTwentyPixelsOn();
    void aLargerWindowHangsOverAllSides();
    void withoutPointerOnAScreenTheWindowStays();
    void aWindowLargerThanTheScreenIsFitted_data();
    void aWindowLargerThanTheScreenIsFitted();
    void withoutPointerOnAScreenNothingIsFitted();

private:
    static constexpr QPoint where{11, 12};
    std::unique_ptr<QWidget> m_main;
    QWidget *m_inner = nullptr;
    std::unique_ptr<QWidget> m_window;
};

void tst_ZrWindowPlace::init()
{
    QCursor::setPos(QGuiApplication::primaryScreen()->geometry().center());
    m_window.reset();
    m_main = std::make_unique<QWidget>();
    m_main->setWindowTitle("m"); // without any mark of a window the toolkit counts its frame wrongly
    m_main->setGeometry(100, 200, 400, 300);
    m_inner = new QWidget(m_main.get());
    m_inner->setGeometry(50, 60, 200, 100);
    m_window = std::make_unique<QWidget>(nullptr);
    m_window->setGeometry(where.x(), where.y(), 80, 40);
}

void tst_ZrWindowPlace::aModeBelowOneLeavesTheWindow_data()
{
    QTest::addColumn<int>("mode");
    QTest::newRow("leave") << 0;
    QTest::newRow("below") << -1;
}

void tst_ZrWindowPlace::aModeBelowOneLeavesTheWindow()
{
    QFETCH(int, mode);
    ZrWindowPlace::place(m_window.get(), mode);
    QCOMPARE(m_window->pos(), where);
    ZrWindowPlace::place(nullptr, mode);
}

void tst_ZrWindowPlace::modeOneCentresOnTheParent()
{
    QWidget window(m_main.get(), Qt::Window);
    window.setWindowTitle("w");
    window.resize(81, 41);
    ZrWindowPlace::place(&window, ZrWindowPlace::OverParent);
    // (400 - 81) / 2 and (300 - 41) / 2, in whole numbers.
    QCOMPARE(window.pos(), QPoint(100 + 159, 200 + 129));
}

void tst_ZrWindowPlace::aParentInsideAWindowIsMappedToTheScreen()
{
    QWidget window(m_inner, Qt::Window);
    window.resize(80, 40);
    ZrWindowPlace::place(&window, ZrWindowPlace::OverParent);
    QCOMPARE(window.pos(), QPoint(100 + 50 + 60, 200 + 60 + 30));
}

void tst_ZrWindowPlace::aParentThatIsAWindowOfAnotherIsWhereItIs()
{
    QWidget dialog(m_main.get(), Qt::Window | Qt::FramelessWindowHint);
    dialog.setGeometry(300, 320, 100, 60);
    QWidget window(&dialog, Qt::Window);
    window.resize(80, 40);
    ZrWindowPlace::place(&window, ZrWindowPlace::OverParent);
    QCOMPARE(window.pos(), QPoint(310, 330));
}

void tst_ZrWindowPlace::modeTwoCentresOnTheTopmostAncestor()
{
    // Above the window that the parent stands in there is another one.
    QWidget dialog(m_inner, Qt::Window);
    dialog.setGeometry(10, 10, 60, 60);
    QWidget part(&dialog);
    QWidget window(&part, Qt::Window);
    window.resize(80, 40);
    QCOMPARE(ZrWindowPlace::topmostAncestor(window), m_main.get());
    ZrWindowPlace::place(&window, ZrWindowPlace::OverMainWindow);
    QCOMPARE(window.pos(), QPoint(100 + 160, 200 + 130));
}

void tst_ZrWindowPlace::withoutATargetTheScreenInUseIsCentredOn_data()
{
    QTest::addColumn<int>("mode");
    QTest::newRow("no parent") << 1;
    QTest::newRow("no ancestor") << 2;
    QTest::newRow("unknown mode") << 3;
}

void tst_ZrWindowPlace::withoutATargetTheScreenInUseIsCentredOn()
{
    QFETCH(int, mode);
    QVERIFY(ZrWindowPlace::target(*m_window, mode).isNull());
    const QRect screen = QGuiApplication::primaryScreen()->availableGeometry();
    QCOMPARE(ZrWindowPlace::screenInUse(), screen);
    ZrWindowPlace::place(m_window.get(), mode);
    QCOMPARE(m_window->pos(), QPoint(screen.x() + (screen.width() - 80) / 2, (screen.height() - 40) / 2));
}

void tst_ZrWindowPlace::aTargetIsUsedFromTwentyPixelsOn_data()
{
    QTest::addColumn<int>("widthPx");
    QTest::addColumn<bool>("expected");
    QTest::newRow("one below") << 19 << false;
    QTest::newRow("just wide enough") << 20 << true;
}

void tst_ZrWindowPlace::aTargetIsUsedFromTwentyPixelsOn()
{
    QFETCH(int, widthPx);
    QFETCH(bool, expected);
    m_inner->resize(widthPx, 10);
    const QWidget window(m_inner, Qt::Window);
    QCOMPARE(!ZrWindowPlace::target(window, ZrWindowPlace::OverParent).isNull(), expected);
}

void tst_ZrWindowPlace::aLargerWindowHangsOverAllSides()
{
    QWidget window(m_main.get(), Qt::Window);
    window.setWindowTitle("w");
    window.resize(500, 360);
    ZrWindowPlace::place(&window, ZrWindowPlace::OverParent);
    QCOMPARE(window.pos(), QPoint(50, 170));
}

void tst_ZrWindowPlace::withoutPointerOnAScreenTheWindowStays()
{
    QCursor::setPos(-5000, -5000);
    QVERIFY(ZrWindowPlace::screenInUse().isNull());
    ZrWindowPlace::place(m_window.get(), ZrWindowPlace::OverParent);
    QCOMPARE(m_window->pos(), where);
}

void tst_ZrWindowPlace::aWindowLargerThanTheScreenIsFitted_data()
{
    QTest::addColumn<QSize>("beyond"); // the largest that fits
    QTest::addColumn<QSize>("size");   // the same, afterwards
    QTest::addColumn<QPoint>("expected");
    QTest::newRow("fits") << QSize(-1, -1) << QSize(-1, -1) << where;
    QTest::newRow("too wide") << QSize(1, -1) << QSize(0, -1) << QPoint(10, where.y());
    QTest::newRow("too high") << QSize(-1, 1) << QSize(-1, 0) << QPoint(where.x(), 10);
    QTest::newRow("both") << QSize(500, 500) << QSize(0, 0) << QPoint(10, 10);
}

void tst_ZrWindowPlace::aWindowLargerThanTheScreenIsFitted()
{
    QFETCH(QSize, beyond);
    QFETCH(QSize, size);
    QFETCH(QPoint, expected);
    const QRect screen = QGuiApplication::primaryScreen()->availableGeometry();
    const QSize most = screen.size() - QSize(20, 20);
    m_window->resize(most + beyond);
    ZrWindowPlace::fitToScreen(m_window.get());
    QCOMPARE(m_window->size(), most + size);
    QCOMPARE(m_window->maximumSize(), most);
    QCOMPARE(m_window->pos(), expected);
    ZrWindowPlace::fitToScreen(nullptr);
}

void tst_ZrWindowPlace::withoutPointerOnAScreenNothingIsFitted()
{
    QCursor::setPos(-5000, -5000);
    m_window->resize(5000, 5000);
    ZrWindowPlace::fitToScreen(m_window.get());
    QCOMPARE(m_window->size(), QSize(5000, 5000));
    QCOMPARE(m_window->pos(), where);
}

ZR_TEST_MAIN(tst_ZrWindowPlace)
#include "tst_zrwindowplace.moc"
