#include "ZrLiveTable.h"

#include "ZrRowHeader.h"
#include "ZrTouchedRows.h"

#include <QtGui/QAccessible>

namespace {

// As long as it lives, requests to paint the widget are dropped. Not by setUpdatesEnabled(), which ends with
// one for the whole widget.
class PaintRequestsDropped
{
public:
    explicit PaintRequestsDropped(QWidget *widget)
        : m_widget(widget)
        , m_before(widget->testAttribute(Qt::WA_UpdatesDisabled))
    {
        m_widget->setAttribute(Qt::WA_UpdatesDisabled, true);
    }
    ~PaintRequestsDropped() { m_widget->setAttribute(Qt::WA_UpdatesDisabled, m_before); }

private:
    Q_DISABLE_COPY(PaintRequestsDropped)
    QWidget *const m_widget;
    const bool m_before;
};

// Where the cells stand; while it stays the same, so do the pixels of untouched rows.
QVector<int> layoutOf(const QTableView &table)
{
    const QHeaderView *const columns = table.horizontalHeader();
    const QHeaderView *const rows = table.verticalHeader();
    return {columns->offset(), columns->length(), columns->count(),
            rows->offset(),    rows->length(),    rows->count()};
}

const QVector<int> *touchedRows(const QAbstractItemModel *model)
{
    const ZrTouchedRows *const source = ZrTouchedRows::of(model);
    return source ? source->touchedRows() : nullptr;
}

} // namespace

ZrLiveTable::ZrLiveTable(QWidget *parent)
    : QTableView(parent)
    , m_rowHead(new ZrRowHeader(this))
{
    m_rowHead->setTellsOnce(true);
    setVerticalHeader(m_rowHead);
}

bool ZrLiveTable::isInSight(int row) const
{
    return !m_rowHead || m_rowHead->isInSight(row, viewport()->height());
}

void ZrLiveTable::dataChanged(const QModelIndex &topLeft, const QModelIndex &bottomRight,
                              const QVector<int> &roles)
{
    // Nobody sees the cell, edits it or reads it aloud.
    if (topLeft == bottomRight && !isInSight(topLeft.row()) && !indexWidget(topLeft) &&
        !QAccessible::isActive())
        return;
    QTableView::dataChanged(topLeft, bottomRight, roles);
}

void ZrLiveTable::setModel(QAbstractItemModel *newModel)
{
    if (model() && model() != newModel)
        disconnect(model(), &QAbstractItemModel::modelAboutToBeReset, this, &ZrLiveTable::noteMarks);
    QTableView::setModel(newModel);
    if (newModel)
        connect(newModel, &QAbstractItemModel::modelAboutToBeReset, this, &ZrLiveTable::noteMarks,
                Qt::UniqueConnection);
}

// Indexes are invalid when reset() runs.
void ZrLiveTable::noteMarks()
{
    m_marked = QRegion();
    if (!touchedRows(model()))
        return;
    if (selectionModel())
        m_marked = visualRegionForSelection(selectionModel()->selection());
    if (currentIndex().isValid())
        m_marked += visualRect(currentIndex());
}

void ZrLiveTable::reset()
{
    const QVector<int> *const rows = touchedRows(model());
    // A widget over a cell goes with the reset, and what it covered has to be painted.
    if (rows && m_rowHead && viewport()->children().isEmpty())
        resetInPlace(*rows);
    else
        QTableView::reset();
}

void ZrLiveTable::doItemsLayout()
{
    if (m_rowHead)
        m_rowHead->setLaidOut();
    QTableView::doItemsLayout();
}

void ZrLiveTable::resetInPlace(const QVector<int> &touchedRows)
{
    executeDelayedItemsLayout(); // what was outstanding is painted as ever
    const QVector<int> layout = layoutOf(*this);
    {
        const PaintRequestsDropped dropped(viewport());
        QTableView::reset();
        executeDelayedItemsLayout();
    }
    if (layoutOf(*this) != layout) {
        viewport()->update();
        return;
    }
    for (const int row : touchedRows)
        updateRow(row);
    viewport()->update(m_marked);
}

void ZrLiveTable::updateRow(int row)
{
    if (isInSight(row))
        viewport()->update(0, rowViewportPosition(row), viewport()->width(), rowHeight(row));
}
