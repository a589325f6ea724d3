#include "ZrShowcaseGrid.h"
#include "ZrTestMain.h"

#include <QtWidgets/QWidget>

/// Columns of one width, wrapped.
class tst_ZrShowcaseGrid : public QObject
{
    Q_OBJECT
private slots:
    void init();
    void aWidgetTakesTheColumnsThatItNeeds_data();
    void aWidgetTakesTheColumnsThatItNeeds();
    void aLineIsAsHighAsItsHighest();
    void whatDoesNotFitBeginsALine();
    void oneThatIsTooWideGetsItsWidth();
    void takenItemsLeaveNoGap();

private:
    QWidget *add(const QSize &size);
    void layOut(int width) { m_grid->setGeometry({0, 0, width, m_grid->heightForWidth(width)}); }

    std::unique_ptr<QWidget> m_page;
    ZrShowcaseGrid *m_grid = nullptr;
};

namespace {
constexpr int Gap = ZrShowcaseGrid::GapPx;
constexpr int Step = ZrShowcaseGrid::StepPx;
constexpr int Least = ZrShowcaseGrid::LeastPx;

constexpr int columns(int count)
{
    return count * Step - Gap;
}
} // namespace

void tst_ZrShowcaseGrid::init()
{
    m_page = std::make_unique<QWidget>();
    m_grid = new ZrShowcaseGrid(m_page.get());
}

QWidget *tst_ZrShowcaseGrid::add(const QSize &size)
{
    auto *const widget = new QWidget(m_page.get());
    widget->setMinimumSize(size);
    m_grid->addWidget(widget);
    return widget;
}

void tst_ZrShowcaseGrid::aWidgetTakesTheColumnsThatItNeeds_data()
{
    QTest::addColumn<int>("width");
    QTest::addColumn<int>("expected");
    QTest::newRow("nothing") << 0 << columns(2);
    QTest::newRow("less than two columns") << columns(2) - 1 << columns(2);
    QTest::newRow("two columns") << columns(2) << columns(2);
    QTest::newRow("one pixel more") << columns(2) + 1 << columns(3);
    QTest::newRow("three columns and their gaps") << columns(3) << columns(3);
    QTest::newRow("one pixel more than three") << columns(3) + 1 << columns(4);
}

void tst_ZrShowcaseGrid::aWidgetTakesTheColumnsThatItNeeds()
{
    QFETCH(int, width);
    QFETCH(int, expected);
    const QWidget *const widget = add({width, 20});
    const QWidget *const next = add({10, 20});
    layOut(10 * Step);
    QCOMPARE(widget->geometry(), QRect(0, 0, expected, 20));
    QCOMPARE(next->geometry(), QRect(expected + Gap, 0, Least, 20));
}

void tst_ZrShowcaseGrid::aLineIsAsHighAsItsHighest()
{
    const QWidget *const low = add({10, 20});
    add({10, 50});
    const QWidget *const below = add({10, 20});
    layOut(columns(4));
    QCOMPARE(low->geometry(), QRect(0, 0, Least, 20));
    QCOMPARE(below->y(), 50 + Gap);
    QCOMPARE(m_grid->heightForWidth(columns(4)), 50 + Gap + 20);
}

void tst_ZrShowcaseGrid::whatDoesNotFitBeginsALine()
{
    add({10, 20});
    const QWidget *const wide = add({columns(4), 20});
    layOut(columns(4)); // two columns
    QCOMPARE(wide->geometry(), QRect(0, 20 + Gap, columns(4), 20));
    layOut(columns(6));
    QCOMPARE(wide->geometry(), QRect(2 * Step, 0, columns(4), 20));
}

void tst_ZrShowcaseGrid::oneThatIsTooWideGetsItsWidth()
{
    const QWidget *const wide = add({500, 20});
    layOut(100);
    QVERIFY(wide->width() >= 500);
    QVERIFY(m_grid->minimumSize().width() >= wide->width());
}

void tst_ZrShowcaseGrid::takenItemsLeaveNoGap()
{
    add({10, 20});
    const QWidget *const second = add({10, 20});
    const std::unique_ptr<QLayoutItem> taken(m_grid->takeAt(0));
    QVERIFY(taken);
    QVERIFY(!m_grid->takeAt(1));
    QVERIFY(!m_grid->itemAt(1));
    QCOMPARE(m_grid->count(), 1);
    layOut(10 * Step);
    QCOMPARE(second->x(), 0);
}

ZR_TEST_MAIN(tst_ZrShowcaseGrid)
#include "tst_zrshowcasegrid.moc"
