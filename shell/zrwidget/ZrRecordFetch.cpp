#include "ZrRecordFetch.h"

#include "ZrTableMerge.h"

#include <QtCore/QVarLengthArray>

namespace {

using Cells = QVarLengthArray<const ItemRoleMap *, 64>;

// A text lies apart from its value, any other type in it.
int readText(const QVariant &value)
{
    return value.userType() == QMetaType::QString ? static_cast<const QString *>(value.constData())->size() : 0;
}

void readCells(const Cells &cells)
{
    int sum = 0;
    for (const ItemRoleMap *const cell : cells)
        sum += cell->size();
    for (const ItemRoleMap *const cell : cells)
        sum += cell->isEmpty() ? 0 : cell->constBegin()->userType();
    for (const ItemRoleMap *const cell : cells)
        sum += cell->isEmpty() ? 0 : readText(*cell->constBegin());
    volatile int isRead = sum; // else the compiler would leave all of it out
    Q_UNUSED(isRead)
}

void addNamedCells(const RecordData &stored, const RecordData &incoming, Cells &cells)
{
    RecordData::const_iterator last = stored.constEnd();
    for (auto it = incoming.constBegin(); it != incoming.constEnd(); ++it) {
        last = ZrTableMerge::findCell(stored, last, it.key());
        if (last != stored.constEnd())
            cells.append(&*last);
    }
}

// All records' first cells, then their second ones: what leads to the next cell of a record has to be waited for.
void readRecords(const RecordDataList &records, int first, int last)
{
    QVarLengthArray<RecordData::const_iterator, ZrRecordFetch::BlockSize> next;
    for (int i = first; i <= last; ++i)
        next.append(records.at(i).constBegin());
    Cells cells;
    bool isDone = false;
    while (!isDone) {
        isDone = true;
        for (int i = first; i <= last; ++i) {
            RecordData::const_iterator &cell = next[i - first];
            if (cell == records.at(i).constEnd())
                continue;
            cells.append(&*cell);
            ++cell;
            isDone = false;
        }
    }
    readCells(cells);
}

} // namespace

void ZrRecordFetch::cellsOf(const RecordData &stored, const RecordData &incoming)
{
    Cells cells;
    addNamedCells(stored, incoming, cells);
    readCells(cells);
}

void ZrRecordFetch::block(const RecordDataList &records, int first, const RecordDataList &rows,
                          const ZrTableKeyIndex &index, const QList<int> &keyColumns)
{
    const int last = qMin(first + BlockSize, records.size()) - 1;
    readRecords(records, first, last);
    Cells cells;
    for (int i = first; i <= last; ++i) {
        const int row = index.row(ZrTableKeyIndex::makeKey(records.at(i), keyColumns));
        if (row >= 0 && row < rows.size())
            addNamedCells(rows.at(row), records.at(i), cells);
    }
    readCells(cells);
}
