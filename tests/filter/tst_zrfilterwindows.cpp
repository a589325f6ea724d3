#include "FilterScene.h"
#include "FreezeTableView.h"
#include "RealDesktop.h"
#include "ZrTestMain.h"

#include <QtCore/QLoggingCategory>
#include <QtGui/QScreen>
#include <QtGui/QStyleHints>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QPushButton>

#include <functional>

/// The popup of a filter button under a window manager, by a real mouse and real keys.
class tst_ZrFilterWindows : public QObject
{
    Q_OBJECT
private slots:
    void init();
    void cleanup() { m_scene.reset(); }
    void clickOpensThePopupAtTheButton();
    void popupHasTheKeyboardAndIsSearched();
    void clickOnAChoiceFiltersTheGrid();
    void clickElsewhereClosesThePopupAndActs();
    void secondClickOnTheButtonOpensItAgain();
    void escapeClosesThePopup();
    void nearTheRightEdgeItOpensToTheLeft();
    void itOpensOverAModalDialog();

private:
    void open(int column);
    QPoint rowMiddle(int row) const;

    std::unique_ptr<FilterScene> m_scene;
};

void tst_ZrFilterWindows::init()
{
    m_scene = std::make_unique<FilterScene>();
    m_scene->desk.mainWindow.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&m_scene->desk.mainWindow));
}

void tst_ZrFilterWindows::open(int column)
{
    QTRY_VERIFY(m_scene->buttonOf(column).isValid());
    RealDesktop::click(m_scene->buttonOf(column).center());
    QTRY_VERIFY(m_scene->isOpen());
    QVERIFY(QTest::qWaitForWindowActive(m_scene->popup()));
}

QPoint tst_ZrFilterWindows::rowMiddle(int row) const
{
    const QTableView *const table = m_scene->list()->getTableView();
    return table->viewport()->mapToGlobal(table->visualRect(table->model()->index(row, 1)).center());
}

void tst_ZrFilterWindows::clickOpensThePopupAtTheButton()
{
    open(FilterScene::Text);
    QTRY_COMPARE(m_scene->popup()->geometry().topLeft(), m_scene->buttonOf(FilterScene::Text).bottomLeft());
    QCOMPARE(m_scene->popup()->size(), m_scene->panel()->size());
}

void tst_ZrFilterWindows::popupHasTheKeyboardAndIsSearched()
{
    open(FilterScene::Text);
    QTRY_VERIFY(m_scene->search()->hasFocus());
    RealDesktop::type("b");
    QTRY_COMPARE(m_scene->listed(), QStringList({"Select all", "b"}));
    RealDesktop::key("BackSpace");
    QTRY_COMPARE(m_scene->listed().size(), 4);
    RealDesktop::key("Down");
    RealDesktop::key("Down");
    RealDesktop::key("space");
    QTRY_COMPARE(m_scene->listed(), QStringList({"Select all", "*a", "b", "c"}));
    QCOMPARE(m_scene->shown().size(), 3);
}

void tst_ZrFilterWindows::clickOnAChoiceFiltersTheGrid()
{
    open(FilterScene::Text);
    RealDesktop::click(rowMiddle(1));
    QTRY_COMPARE(m_scene->shown(), QStringList({"k0", "k3", "k6"}));
    QVERIFY(m_scene->isOpen());
}

void tst_ZrFilterWindows::clickElsewhereClosesThePopupAndActs()
{
    QPushButton button("Refresh", &m_scene->desk.mainWindow);
    button.setGeometry(650, 500, 100, 40);
    button.show();
    QSignalSpy clicked(&button, &QPushButton::clicked);
    open(FilterScene::Text);
    RealDesktop::click(button.mapToGlobal(button.rect().center()));
    QTRY_VERIFY(!m_scene->isOpen());
    QTRY_COMPARE(clicked.count(), 1);
}

void tst_ZrFilterWindows::secondClickOnTheButtonOpensItAgain()
{
    open(FilterScene::Text);
    RealDesktop::type("b");
    QTRY_COMPARE(m_scene->listed().size(), 2);
    RealDesktop::click(m_scene->buttonOf(FilterScene::Text).center());
    QTRY_COMPARE(m_scene->listed().size(), 4);
    QTRY_VERIFY(m_scene->isOpen());
}

void tst_ZrFilterWindows::escapeClosesThePopup()
{
    open(FilterScene::Text);
    RealDesktop::key("Escape");
    QTRY_VERIFY(!m_scene->isOpen());
    QVERIFY(m_scene->desk.mainWindow.isVisible());
}

void tst_ZrFilterWindows::nearTheRightEdgeItOpensToTheLeft()
{
    const int edge = QGuiApplication::primaryScreen()->availableGeometry().right();
    QTRY_VERIFY(m_scene->buttonOf(FilterScene::Number).isValid());
    const int by = edge - 30 - m_scene->buttonOf(FilterScene::Number).left();
    m_scene->desk.mainWindow.move(m_scene->desk.mainWindow.pos() + QPoint(by, 0));
    QTRY_COMPARE(m_scene->buttonOf(FilterScene::Number).left(), edge - 30);
    open(FilterScene::Number);
    const QRect button = m_scene->buttonOf(FilterScene::Number);
    QTRY_COMPARE(m_scene->popup()->geometry().topLeft(),
                 button.bottomLeft() - QPoint(m_scene->popup()->width(), 0));
}

void tst_ZrFilterWindows::itOpensOverAModalDialog()
{
    auto *const content = new QWidget;
    content->resize(600, 300);
    m_scene = std::make_unique<FilterScene>(9, content);
    ZrDialog host("Orders", true, &m_scene->desk.mainWindow, 0, true, true, 2);
    host.addWidget(content);
    const std::function<void()> use = [this, &host] {
        QVERIFY(QTest::qWaitForWindowActive(&host));
        open(FilterScene::Text);
        RealDesktop::click(rowMiddle(1));
        QTRY_COMPARE(m_scene->shown(), QStringList({"k0", "k3", "k6"}));
        // Escape is the popup's first, and the dialog's only then.
        RealDesktop::key("Escape");
        QTRY_VERIFY(!m_scene->isOpen());
        QVERIFY(host.isVisible());
        host.done(1);
    };
    QMetaObject::invokeMethod(&host, use, Qt::QueuedConnection);
    QCOMPARE(host.exec(), 1);
    QCOMPARE(m_scene->shown().size(), 3);
}

int main(int argc, char *argv[])
{
    const ZrTestProcess process;
    const RealDesktop desktop;
    if (!desktop.problem().isEmpty()) {
        fprintf(stderr, "FAIL!  : %s\n", qPrintable(desktop.problem()));
        return 1;
    }
    // The toolkit asks for windows that are gone already, and tells the server's answer.
    QLoggingCategory::setFilterRules("qt.qpa.xcb.warning=false");
    QApplication app(argc, argv);
    // Each click is one of its own, however fast they follow each other.
    QGuiApplication::styleHints()->setMouseDoubleClickInterval(0);
    tst_ZrFilterWindows test;
    return QTest::qExec(&test, argc, argv);
}
#include "tst_zrfilterwindows.moc"
