#include "ZrFrozenTable.h"

#include "ZrLiveTable.h"

#include <QtWidgets/QHeaderView>
#include <QtWidgets/QTableView>

namespace {

void copyRowHeights(const QHeaderView *from, QHeaderView *to)
{
    to->setMinimumSectionSize(from->minimumSectionSize());
    to->setDefaultSectionSize(from->defaultSectionSize());
    const int count = qMin(from->count(), to->count());
    // With a million rows of one height the walk would cost more than the pane.
    if (from->length() == from->count() * from->defaultSectionSize())
        return;
    for (int row = 0; row < count; ++row) {
        if (from->sectionSize(row) != to->sectionSize(row))
            to->resizeSection(row, from->sectionSize(row));
    }
}

} // namespace

QAbstractItemView *ZrFrozenTable::createSide(QWidget *parent) const
{
    QTableView *const side = new ZrLiveTable(parent);
    side->verticalHeader()->hide();
    return side;
}

QHeaderView *ZrFrozenTable::head(const QAbstractItemView *view) const
{
    const QTableView *const table = qobject_cast<const QTableView *>(view);
    return table ? table->horizontalHeader() : nullptr;
}

void ZrFrozenTable::setHead(QAbstractItemView *view, QHeaderView *head) const
{
    if (QTableView *const table = qobject_cast<QTableView *>(view))
        table->setHorizontalHeader(head);
}

void ZrFrozenTable::setColumnHidden(QAbstractItemView *view, int column, bool hidden) const
{
    if (QTableView *const table = qobject_cast<QTableView *>(view))
        table->setColumnHidden(column, hidden);
}

int ZrFrozenTable::leftInsetPx(const QAbstractItemView *view) const
{
    const QTableView *const table = qobject_cast<const QTableView *>(view);
    return table && !table->verticalHeader()->isHidden() ? table->verticalHeader()->width() : 0;
}

void ZrFrozenTable::copyRowLook(const QAbstractItemView *main, QAbstractItemView *side) const
{
    const QTableView *const from = qobject_cast<const QTableView *>(main);
    QTableView *const to = qobject_cast<QTableView *>(side);
    if (!from || !to)
        return;
    to->setShowGrid(from->showGrid());
    copyRowHeights(from->verticalHeader(), to->verticalHeader());
}
