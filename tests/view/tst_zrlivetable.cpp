#include "ZrLiveTable.h"
#include "ZrRowHeader.h"
#include "ZrTestMain.h"
#include "ZrTouchedRows.h"

#include <QtCore/QAbstractTableModel>
#include <QtGui/QPaintEvent>
#include <QtGui/QScreen>
#include <QtWidgets/QHeaderView>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QScrollBar>

namespace {

constexpr int RowPx = 20;

class Told : public QObject, public ZrTouchedRows
{
    Q_OBJECT
    Q_INTERFACES(ZrTouchedRows)
public:
    using QObject::QObject;
    const QVector<int> *touchedRows() const override { return rows; }
    const QVector<int> *rows = nullptr;
};

/// Numbers that change in batches, each told by one reset.
class BatchModel : public QAbstractTableModel
{
public:
    explicit BatchModel(int rows)
        : m_values(rows)
        , m_told(new Told(this))
    {
    }

    int rowCount(const QModelIndex &parent = {}) const override
    {
        return parent.isValid() ? 0 : m_values.size();
    }
    int columnCount(const QModelIndex & = {}) const override { return 3; }
    QVariant data(const QModelIndex &index, int role) const override
    {
        return role == Qt::DisplayRole || role == Qt::EditRole ? QVariant(m_values.at(index.row()))
                                                               : QVariant();
    }

    void change(const QVector<int> &rows)
    {
        m_told->rows = &rows;
        beginResetModel();
        for (const int row : rows)
            ++m_values[row];
        endResetModel();
        m_told->rows = nullptr;
    }
    void changeUntold(int row)
    {
        beginResetModel();
        ++m_values[row];
        endResetModel();
    }
    void changeCell(int row, int column)
    {
        ++m_values[row]; // of which only one cell is told
        emit dataChanged(index(row, column), index(row, column));
    }
    void append()
    {
        beginInsertRows({}, m_values.size(), m_values.size());
        m_values.append(0);
        endInsertRows();
    }

private:
    QVector<int> m_values;
    Told *m_told;
};

/// What of a widget was painted.
class PaintLog : public QObject
{
public:
    explicit PaintLog(QWidget *widget) { widget->installEventFilter(this); }
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (event->type() == QEvent::Paint)
            m_region += static_cast<QPaintEvent *>(event)->region();
        return QObject::eventFilter(watched, event);
    }
    QRect take()
    {
        for (int turn = 0; turn < 3; ++turn) // a layout, the paint it asks for
            QCoreApplication::processEvents();
        const QRect area = m_region.boundingRect();
        m_region = QRegion();
        return area;
    }

private:
    QRegion m_region;
};

struct Grid
{
    explicit Grid(int rows = 1000)
        : model(rows)
    {
        table.setModel(&model);
        table.verticalHeader()->setMinimumSectionSize(1);
        table.verticalHeader()->setDefaultSectionSize(RowPx);
        table.setAutoScroll(false);
        table.setFocusPolicy(Qt::NoFocus); // focus would make the first cell current
        table.resize(400, 10 * RowPx);
        table.show();
        log.take();
    }
    QRect rowRect(int row) const
    {
        return {0, table.rowViewportPosition(row), table.viewport()->width(), table.rowHeight(row)};
    }
    QImage onScreen()
    {
        log.take();
        return table.screen()->grabWindow(table.winId()).toImage();
    }
    // Whether what stands on the screen is what a paint of all would put there.
    bool isUpToDate()
    {
        const QImage before = onScreen();
        table.viewport()->update();
        const QImage after = onScreen();
        return !before.isNull() && before == after;
    }

    BatchModel model;
    ZrLiveTable table;
    PaintLog log{table.viewport()};
};

} // namespace

class tst_ZrLiveTable : public QObject
{
    Q_OBJECT
private slots:
    void aBatchPaintsTheRowsItTouched();
    void aBatchOutOfSightPaintsNothing();
    void aBatchWithoutWordPaintsAll();
    void aBatchEndsTheSelection();
    void aBatchEndsTheCurrentCell();
    void aBatchAfterNewRowsPaintsAll();
    void aWidgetOverACellGoesWithTheBatch();
    void aScrolledTableKnowsItsRows();
    void aCellOutOfSightCostsNoPaint();
    void aCellInSightIsPainted();
    void anEditorOutOfSightIsFed();
    void ownRowHeightsAreMinded();
    void anotherVerticalHeadWorksToo();
};

void tst_ZrLiveTable::aBatchPaintsTheRowsItTouched()
{
    Grid grid;
    const QImage before = grid.onScreen();
    grid.model.change({2, 4, 900});
    QCOMPARE(grid.log.take(), grid.rowRect(2) | grid.rowRect(4));
    QVERIFY(grid.onScreen() != before);
    QVERIFY(grid.isUpToDate());
}

void tst_ZrLiveTable::aBatchOutOfSightPaintsNothing()
{
    Grid grid;
    grid.model.change({500, 900});
    QVERIFY(grid.log.take().isEmpty());
}

void tst_ZrLiveTable::aBatchWithoutWordPaintsAll()
{
    Grid grid;
    grid.model.changeUntold(500);
    QCOMPARE(grid.log.take(), grid.table.viewport()->rect());
}

void tst_ZrLiveTable::aBatchEndsTheSelection()
{
    Grid grid;
    grid.table.selectRow(1);
    grid.log.take();
    grid.model.change({3});
    QVERIFY(!grid.table.selectionModel()->hasSelection());
    QVERIFY(!grid.table.currentIndex().isValid());
    const QRect painted = grid.log.take();
    QVERIFY(painted.contains(grid.rowRect(1) & grid.table.visualRect(grid.model.index(1, 0))));
    QVERIFY(painted.contains(grid.rowRect(3)));
    QVERIFY(grid.isUpToDate());
}

void tst_ZrLiveTable::aBatchEndsTheCurrentCell()
{
    Grid grid;
    grid.table.setSelectionMode(QAbstractItemView::NoSelection);
    grid.table.setCurrentIndex(grid.model.index(1, 2));
    grid.log.take();
    grid.model.change({3});
    QVERIFY(grid.log.take().contains(grid.table.visualRect(grid.model.index(1, 2))));
    QVERIFY(grid.isUpToDate());
}

void tst_ZrLiveTable::aBatchAfterNewRowsPaintsAll()
{
    Grid grid(3);
    grid.model.append(); // asks for a layout that is still outstanding
    grid.model.change({0});
    QVERIFY(grid.log.take().contains(grid.rowRect(3)));
    QVERIFY(grid.isUpToDate());
}

void tst_ZrLiveTable::aWidgetOverACellGoesWithTheBatch()
{
    Grid grid;
    grid.table.openPersistentEditor(grid.model.index(1, 1));
    grid.log.take();
    grid.model.change({500});
    QVERIFY(!grid.table.indexWidget(grid.model.index(1, 1)));
    QVERIFY(grid.log.take().contains(grid.table.visualRect(grid.model.index(1, 1))));
}

void tst_ZrLiveTable::aScrolledTableKnowsItsRows()
{
    Grid grid;
    grid.table.setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
    grid.table.verticalScrollBar()->setValue(100 * RowPx + RowPx / 2);
    grid.log.take();
    grid.model.change({0, 100, 105});
    QCOMPARE(grid.log.take(), (grid.rowRect(100) | grid.rowRect(105)) & grid.table.viewport()->rect());
    QCOMPARE(grid.table.verticalScrollBar()->value(), 100 * RowPx + RowPx / 2);
}

void tst_ZrLiveTable::aCellOutOfSightCostsNoPaint()
{
    Grid grid;
    grid.model.changeCell(500, 1);
    QVERIFY(grid.log.take().isEmpty());
}

void tst_ZrLiveTable::aCellInSightIsPainted()
{
    Grid grid;
    grid.model.changeCell(3, 1);
    QCOMPARE(grid.log.take(), grid.table.visualRect(grid.model.index(3, 1)));
}

void tst_ZrLiveTable::anEditorOutOfSightIsFed()
{
    Grid grid;
    const QModelIndex cell = grid.model.index(500, 1);
    grid.table.openPersistentEditor(cell);
    QWidget *const editor = grid.table.indexWidget(cell);
    QVERIFY(editor);
    grid.model.changeCell(500, 1);
    const QMetaProperty shown = editor->metaObject()->userProperty();
    QCOMPARE(shown.read(editor).toInt(), 1);
}

void tst_ZrLiveTable::ownRowHeightsAreMinded()
{
    Grid grid;
    grid.table.setRowHeight(0, 5 * RowPx);
    grid.log.take();
    grid.model.change({2});
    QVERIFY(grid.log.take().contains(grid.rowRect(2)));
    grid.model.changeCell(3, 0);
    QCOMPARE(grid.log.take(), grid.table.visualRect(grid.model.index(3, 0)));
}

void tst_ZrLiveTable::anotherVerticalHeadWorksToo()
{
    Grid grid;
    grid.table.setVerticalHeader(new QHeaderView(Qt::Vertical, &grid.table));
    grid.log.take();
    grid.model.changeCell(1, 1);
    QVERIFY(grid.log.take().contains(grid.table.visualRect(grid.model.index(1, 1))));
    grid.model.change({900});
    QCOMPARE(grid.log.take(), grid.table.viewport()->rect());
}

ZR_TEST_MAIN(tst_ZrLiveTable)
#include "tst_zrlivetable.moc"
