#include "ZrHeadFocusLine.h"
#include "ZrTestMain.h"

#include <QtGui/QPainter>
#include <QtTest/QtTest>
#include <QtWidgets/QGraphicsScene>
#include <QtWidgets/QHeaderView>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QTableView>
#include <QtWidgets/QTableWidget>

namespace {

// A grid with a frozen part, and a field beside it.
struct Desk
{
    Desk()
    {
        grid.setParent(&window);
        grid.setGeometry(0, 0, 400, 260);
        field.setParent(&window);
        field.setGeometry(0, 270, 400, 30);
        grid.setFocusPolicy(Qt::StrongFocus);
        grid.horizontalHeader()->resizeSection(0, 60);
        grid.horizontalHeader()->resizeSection(1, 40);
        window.resize(400, 300);
        window.show();
        window.activateWindow();
    }

    QWidget window;
    QTableWidget grid{1, 2};
    QTableView frozen{&grid};
    QLineEdit field;
    // Children of their heads.
    const ZrHeadFocusLine &line = *new ZrHeadFocusLine(grid.horizontalHeader());
    const ZrHeadFocusLine &frozenLine = *new ZrHeadFocusLine(frozen.horizontalHeader());
};

QImage painted(const ZrHeadFocusLine &line, const QHeaderView &head)
{
    QImage picture(head.viewport()->size(), QImage::Format_RGB32);
    picture.fill(Qt::white);
    QPainter painter(&picture);
    line.paint(&painter);
    return picture;
}

} // namespace

class tst_ZrHeadFocusLine : public QObject
{
    Q_OBJECT
private slots:
    void everyPartOfTheGridFollowsTheKeyboard();
    void anEditorOfACellCounts();
    void theLineEndsWithTheLastSection();
    void aHeadThatMovesFollowsItsNewGrid();
    void aGridInASceneHasItToo();
    void aHeadOutsideOfAGridHasNone();
};

void tst_ZrHeadFocusLine::everyPartOfTheGridFollowsTheKeyboard()
{
    Desk desk;
    desk.field.setFocus();
    QTRY_VERIFY(desk.field.hasFocus());
    QVERIFY(!desk.line.isShown() && !desk.frozenLine.isShown());
    desk.grid.setFocus();
    QVERIFY(desk.line.isShown() && desk.frozenLine.isShown());
    desk.frozen.setFocus();
    QVERIFY(desk.line.isShown() && desk.frozenLine.isShown());
    desk.field.setFocus();
    QVERIFY(!desk.line.isShown() && !desk.frozenLine.isShown());
}

void tst_ZrHeadFocusLine::anEditorOfACellCounts()
{
    Desk desk;
    desk.grid.setItem(0, 0, new QTableWidgetItem("1"));
    desk.grid.setFocus();
    desk.grid.editItem(desk.grid.item(0, 0));
    QTRY_VERIFY(qobject_cast<QLineEdit *>(QApplication::focusWidget()));
    QVERIFY(QApplication::focusWidget() != &desk.field);
    QVERIFY(desk.line.isShown());
}

void tst_ZrHeadFocusLine::theLineEndsWithTheLastSection()
{
    Desk desk;
    const QHeaderView &head = *desk.grid.horizontalHeader();
    QCOMPARE(painted(desk.line, head).pixelColor(10, head.height() - 1), QColor(Qt::white));
    desk.grid.setFocus();
    QTRY_VERIFY(desk.line.isShown());
    const QImage picture = painted(desk.line, head);
    const QColor mark = head.palette().color(QPalette::Highlight);
    QCOMPARE(picture.pixelColor(0, head.height() - 1), mark);
    QCOMPARE(picture.pixelColor(99, head.height() - 2), mark);
    QCOMPARE(picture.pixelColor(99, head.height() - 3), QColor(Qt::white));
    QCOMPARE(picture.pixelColor(100, head.height() - 1), QColor(Qt::white));
}

void tst_ZrHeadFocusLine::aHeadThatMovesFollowsItsNewGrid()
{
    Desk desk;
    auto *const head = new QHeaderView(Qt::Horizontal);
    const ZrHeadFocusLine line(head);
    desk.grid.setFocus();
    QTRY_VERIFY(desk.grid.hasFocus());
    QVERIFY(!line.isShown());
    desk.grid.setHorizontalHeader(head);
    QVERIFY(line.isShown());
    desk.field.setFocus();
    QVERIFY(!line.isShown());
}

void tst_ZrHeadFocusLine::aGridInASceneHasItToo()
{
    QGraphicsScene scene;
    auto *const grid = new QTableWidget(1, 1);
    scene.addWidget(grid);
    const ZrHeadFocusLine line(grid->horizontalHeader());
    QEvent activate(QEvent::WindowActivate);
    QCoreApplication::sendEvent(&scene, &activate);
    QVERIFY(!line.isShown());
    grid->setFocus();
    QVERIFY(line.isShown());
}

void tst_ZrHeadFocusLine::aHeadOutsideOfAGridHasNone()
{
    QWidget window;
    QHeaderView head(Qt::Horizontal, &window);
    head.setFocusPolicy(Qt::StrongFocus);
    ZrHeadFocusLine line(&head);
    window.show();
    window.activateWindow();
    head.setFocus();
    QTRY_VERIFY(head.hasFocus());
    QVERIFY(!line.isShown());
}

ZR_TEST_MAIN(tst_ZrHeadFocusLine)
#include "tst_zrheadfocusline.moc"
