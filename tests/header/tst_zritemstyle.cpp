#include "ZrItemStyle.h"
#include "ZrTestMain.h"

#include <QtWidgets/QProxyStyle>
#include <QtWidgets/QStyleFactory>
#include <QtWidgets/QTableView>

namespace {

/// A style of a caller, with no meta object of its own.
class PaintingStyle : public QProxyStyle
{
public:
    using QProxyStyle::QProxyStyle;
};

} // namespace

class tst_ZrItemStyle : public QObject
{
    Q_OBJECT
private slots:
    void init();
    void cleanup();
    void theToolkitsOwnStylesAreKnown_data();
    void theToolkitsOwnStylesAreKnown();
    void aStyleOfTheCallersIsNot();
    void aStyleOfTheCallersBelowASheetIsNot();
    void aProxyPutBeforeTheStyleIsSeenAtOnce();
    void aSheetWithoutItemsLeavesTheStyle();
    void aSheetIsFoundWhereverItStands();
    void aChangedSheetIsSeenAtOnce();
    void anotherParentsSheetCounts();
    void anotherApplicationStyleIsSeenAtOnce();
    void anUnpolishedWidgetIsNotJudged();
    void aDeadWidgetLeavesNothing();
    void rulesAboutItemsAreFound_data();
    void rulesAboutItemsAreFound();

private:
    std::unique_ptr<QWidget> m_window;
    QTableView *m_view = nullptr;
    std::unique_ptr<ZrItemStyle> m_style;
};

void tst_ZrItemStyle::init()
{
    QApplication::setStyle(QStyleFactory::create("Fusion"));
    m_window = std::make_unique<QWidget>();
    m_view = new QTableView(m_window.get());
    m_window->show();
    m_style = std::make_unique<ZrItemStyle>();
}

void tst_ZrItemStyle::cleanup()
{
    m_style.reset();
    m_window.reset();
    qApp->setStyleSheet(QString());
}

void tst_ZrItemStyle::theToolkitsOwnStylesAreKnown_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("Fusion") << "Fusion";
    QTest::newRow("Windows") << "Windows";
}

void tst_ZrItemStyle::theToolkitsOwnStylesAreKnown()
{
    QFETCH(QString, name);
    QApplication::setStyle(QStyleFactory::create(name));
    QCOMPARE(m_style->toolkitStyle(m_view), QApplication::style());
    const std::unique_ptr<QStyle> own(QStyleFactory::create(name));
    m_view->setStyle(own.get());
    QCOMPARE(m_style->toolkitStyle(m_view), own.get());
    m_view->setStyle(nullptr);
    QCOMPARE(m_style->toolkitStyle(m_view), QApplication::style());
}

void tst_ZrItemStyle::aStyleOfTheCallersIsNot()
{
    PaintingStyle own(QStringLiteral("Fusion"));
    m_view->setStyle(&own);
    QVERIFY(!m_style->toolkitStyle(m_view));
    m_view->setStyle(nullptr);
    QVERIFY(m_style->toolkitStyle(m_view));
    QApplication::setStyle(new PaintingStyle(QStringLiteral("Fusion")));
    QVERIFY(!m_style->toolkitStyle(m_view));
    QApplication::setStyle(new QCommonStyle);
    QVERIFY(!m_style->toolkitStyle(m_view));
}

void tst_ZrItemStyle::aStyleOfTheCallersBelowASheetIsNot()
{
    const QString harmless("QLabel { color: red }");
    PaintingStyle own(QStringLiteral("Fusion"));
    m_window->setStyle(&own);
    m_window->setStyleSheet(harmless); // hands a sheet's style over `own` to the view
    QVERIFY(!m_style->toolkitStyle(m_view));
    m_window->setStyle(nullptr);
    QVERIFY(m_style->toolkitStyle(m_view));
    m_view->setStyle(&own);
    QVERIFY(!m_style->toolkitStyle(m_view));
    m_view->setStyle(nullptr);
    QApplication::setStyle(new PaintingStyle(QStringLiteral("Fusion")));
    QVERIFY(!m_style->toolkitStyle(m_view));
    qApp->setStyleSheet(harmless);
    QVERIFY(!m_style->toolkitStyle(m_view));
}

void tst_ZrItemStyle::aProxyPutBeforeTheStyleIsSeenAtOnce()
{
    QPointer<QStyle> bare = QStyleFactory::create("Fusion");
    m_view->setStyle(bare);
    QCOMPARE(m_style->toolkitStyle(m_view), bare.data());
    auto before = std::make_unique<PaintingStyle>(bare.data()); // owns `bare` from now on
    QVERIFY(!m_style->toolkitStyle(m_view));
    m_view->setStyle(nullptr);
    QCOMPARE(m_style->toolkitStyle(m_view), QApplication::style());
    before.reset();
    QVERIFY(!bare);
}

void tst_ZrItemStyle::aSheetWithoutItemsLeavesTheStyle()
{
    QStyle *const fusion = QApplication::style();
    m_view->setStyleSheet("QTableView { color: red } QMenu::item { padding: 3px }");
    QVERIFY(m_view->style() != fusion);
    QCOMPARE(m_style->toolkitStyle(m_view), fusion);
    qApp->setStyleSheet("QTableView { background: blue }");
    QVERIFY(QApplication::style() != fusion);
    QCOMPARE(m_style->toolkitStyle(m_view), fusion);
    m_view->setStyleSheet(QString());
    QCOMPARE(m_style->toolkitStyle(m_view), fusion);
}

void tst_ZrItemStyle::aSheetIsFoundWhereverItStands()
{
    const QString items("QTableView::item { padding: 3px }");
    m_view->setStyleSheet(items);
    QVERIFY(!m_style->toolkitStyle(m_view));
    m_view->setStyleSheet(QString());
    QVERIFY(m_style->toolkitStyle(m_view));
    m_window->setStyleSheet(items);
    QVERIFY(!m_style->toolkitStyle(m_view));
    m_window->setStyleSheet(QString());
    QVERIFY(m_style->toolkitStyle(m_view));
    qApp->setStyleSheet(items);
    QVERIFY(!m_style->toolkitStyle(m_view));
    qApp->setStyleSheet(QString());
    QVERIFY(m_style->toolkitStyle(m_view));
}

void tst_ZrItemStyle::aChangedSheetIsSeenAtOnce()
{
    const QString harmless("QLabel { color: red }");
    const QString items("QTableView::item { padding: 3px }");
    const std::function<void(QString)> setters[] = {
        [this](const QString &sheet) { m_view->setStyleSheet(sheet); },
        [this](const QString &sheet) { m_window->setStyleSheet(sheet); },
        [](const QString &sheet) { qApp->setStyleSheet(sheet); },
    };
    for (const auto &setSheet : setters) {
        for (int turn = 0; turn < 2; ++turn) {
            setSheet(harmless);
            QVERIFY(m_style->toolkitStyle(m_view));
            setSheet(items); // the style object stays
            QVERIFY(!m_style->toolkitStyle(m_view));
        }
        setSheet(QString());
    }
}

void tst_ZrItemStyle::anotherParentsSheetCounts()
{
    QWidget styled;
    styled.setStyleSheet("QTableView::item { padding: 3px }");
    qApp->setStyleSheet("QLabel { color: red }");
    styled.show();
    QVERIFY(m_style->toolkitStyle(m_view));
    m_view->setParent(&styled);
    m_view->show();
    QVERIFY(!m_style->toolkitStyle(m_view));
    m_view->setParent(m_window.get());
    m_view->show();
    QVERIFY(m_style->toolkitStyle(m_view));
    // A parent that moves takes its children along.
    QWidget *const panel = new QWidget(m_window.get());
    m_view->setParent(panel);
    panel->show();
    m_view->show();
    QVERIFY(m_style->toolkitStyle(m_view));
    panel->setParent(&styled);
    panel->show();
    QVERIFY(!m_style->toolkitStyle(m_view));
    panel->setParent(m_window.get());
    panel->show();
    QVERIFY(m_style->toolkitStyle(m_view));
}

void tst_ZrItemStyle::anotherApplicationStyleIsSeenAtOnce()
{
    m_view->setStyleSheet("QLabel { color: red }");
    QVERIFY(m_style->toolkitStyle(m_view));
    for (const char *const name : {"Windows", "Fusion"}) {
        QApplication::setStyle(QStyleFactory::create(QLatin1String(name)));
        QCOMPARE(m_style->toolkitStyle(m_view), QApplication::style());
    }
}

void tst_ZrItemStyle::anUnpolishedWidgetIsNotJudged()
{
    QTableView fresh;
    QVERIFY(!m_style->toolkitStyle(&fresh));
    fresh.show();
    QVERIFY(m_style->toolkitStyle(&fresh));
}

void tst_ZrItemStyle::aDeadWidgetLeavesNothing()
{
    QVERIFY(m_style->toolkitStyle(m_view));
    delete m_view; // no crash now, and none when the filter goes
    m_view = new QTableView(m_window.get());
    m_view->show();
    QVERIFY(m_style->toolkitStyle(m_view));
}

void tst_ZrItemStyle::rulesAboutItemsAreFound_data()
{
    QTest::addColumn<QString>("sheet");
    QTest::addColumn<bool>("found");
    QTest::newRow("nothing") << "" << false;
    QTest::newRow("declarations alone") << "color: red; border: none" << false;
    QTest::newRow("the view itself") << "QTableView { color: red }" << false;
    QTest::newRow("a state of the view") << "QTableView:disabled { color: red }" << false;
    QTest::newRow("items") << "QTableView::item { color: red }" << true;
    QTest::newRow("items, one colon") << "QTableView:item { color: red }" << true;
    QTest::newRow("capitals") << "QTableView::ITEM { color: red }" << true;
    QTest::newRow("items in a state") << "QTableView::item:selected:active { color: red }" << true;
    QTest::newRow("a state of the view first") << "QTableView:focus::item { color: red }" << true;
    QTest::newRow("items of a base class") << "QAbstractItemView::item { color: red }" << true;
    QTest::newRow("items of all") << "*::item { color: red }" << true;
    QTest::newRow("items of none") << "::item { color: red }" << true;
    QTest::newRow("by name") << "#grid::item { color: red }" << true;
    QTest::newRow("by type and name") << "QTableView#grid::item { color: red }" << true;
    QTest::newRow("by class") << ".QTableView::item { color: red }" << true;
    QTest::newRow("below a window") << "QDialog QTableView::item { color: red }" << true;
    QTest::newRow("a child") << "QDialog > QTableView::item { color: red }" << true;
    QTest::newRow("a child without blanks") << "QDialog>QTableView::item{color:red}" << true;
    QTest::newRow("one of several") << "QMenu::item, QTableView::item { color: red }" << true;
    QTest::newRow("a later rule") << "QMenu { color: red } QTableView::item { color: red }" << true;
    QTest::newRow("marks") << "QTableView::indicator { color: red }" << true;
    QTest::newRow("by property") << "QTableView[a=\"b, QMenu\"]::item { color: red }" << true;
    QTest::newRow("brace in a string")
        << "QMenu { qproperty-text: \"{\" } QTableView::item { color: red }" << true;
    QTest::newRow("comment before") << "/* rows: */ QTableView::item { color: red }" << true;
    QTest::newRow("comment within") << "QTable/**/View::item { color: red }" << true;
    QTest::newRow("comment before the part") << "QTableView::/**/item { color: red }" << true;
    QTest::newRow("comment with a quote") << "/* \" */ QTableView::item { color: red } /* \" */" << true;
    QTest::newRow("open comment") << "QMenu { color: red } /* QTableView::item { color: red }" << true;
    QTest::newRow("escape") << "QTableView::\\69tem { color: red }" << true;
    QTest::newRow("medium") << "@media screen { QTableView::item { color: red } }" << true;
    QTest::newRow("file") << "file:///nowhere.css" << true;
    QTest::newRow("braces too many") << "QMenu { { QTableView::item { color: red }" << true;
    QTest::newRow("a menu's items") << "QMenu::item:selected { color: red }" << false;
    QTest::newRow("a menu's items in a table") << "QTableView QMenu::item { color: red }" << false;
    QTest::newRow("a list's items") << "ZrMultiComboBox QListView::item { color: red }" << false;
    QTest::newRow("a comment about items") << "/* QTableView::item {} */ QMenu { color: red }" << false;
    QTest::newRow("a string about items") << "QMenu { qproperty-text: \"QTableView::item {\" }" << false;
}

void tst_ZrItemStyle::rulesAboutItemsAreFound()
{
    QFETCH(QString, sheet);
    QFETCH(bool, found);
    QCOMPARE(ZrItemStyle::rulesItems(sheet, m_view), found);
}

ZR_TEST_MAIN(tst_ZrItemStyle)
#include "tst_zritemstyle.moc"
