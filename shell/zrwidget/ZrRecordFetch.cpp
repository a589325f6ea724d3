#include "ZrRecordFetch.h"

#include "ZrTableMerge.h"

#include <QtCore/QVarLengthArray>

namespace {

// Room on the stack for a block of wide rows: this must not cost an allocation.
constexpr int CellsAtHand = ZrRecordFetch::BlockSize * 32;
constexpr int RolesAtHand = CellsAtHand * 2;
using Cells = QVarLengthArray<const ItemRoleMap *, CellsAtHand>;
template<typename Iterator>
using Ranges = QVarLengthArray<QPair<Iterator, Iterator>, CellsAtHand>;

// A text lies apart from its value, any other type in it.
int readText(const QVariant &value)
{
    return value.userType() == QMetaType::QString ? static_cast<const QString *>(value.constData())->size()
                                                  : 0;
}

// Else the compiler would leave all the reading out.
void keep(int sum)
{
    volatile int isRead = sum;
    Q_UNUSED(isRead)
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
    keep(sum);
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

// What follows in a map is known only when the step before has been waited for: so all maps' first entries,
// then their second ones.
template<typename Iterator, typename Read>
void stepTogether(Ranges<Iterator> &ranges, const Read &read)
{
    bool isDone = false;
    while (!isDone) {
        isDone = true;
        for (auto &range : ranges) {
            if (range.first == range.second)
                continue;
            read(*range.first);
            ++range.first;
            isDone = false;
        }
    }
}

bool isAny(const RecordData &)
{
    return true;
}

template<typename Choice>
Cells cellsOfAll(const RecordDataList &records, int first, int last, const Choice &isChosen)
{
    Ranges<RecordData::const_iterator> ranges;
    for (int i = first; i <= last; ++i) {
        if (isChosen(records.at(i)))
            ranges.append({records.at(i).constBegin(), records.at(i).constEnd()});
    }
    Cells cells;
    stepTogether(ranges, [&cells](const ItemRoleMap &cell) { cells.append(&cell); });
    return cells;
}

} // namespace

void ZrRecordFetch::cellsOf(const RecordData &stored, const RecordData &incoming)
{
    Cells cells;
    addNamedCells(stored, incoming, cells);
    readCells(cells);
}

void ZrRecordFetch::keys(const RecordDataList &records, int first, const QList<int> &keyColumns)
{
    const int last = qMin(first + BlockSize, records.size()) - 1;
    int sum = 0;
    for (int i = first; i <= last; ++i)
        sum += records.at(i).size();
    for (int i = first; i <= last; ++i)
        sum += records.at(i).isEmpty() ? 0 : records.at(i).firstKey();
    for (int i = first; i <= last; ++i)
        sum += records.at(i).isEmpty() ? 0 : records.at(i).lastKey();
    Cells cells;
    for (int i = first; i <= last; ++i) {
        for (const int column : keyColumns) {
            const auto cell = records.at(i).constFind(column);
            if (cell != records.at(i).constEnd())
                cells.append(&*cell);
        }
    }
    keep(sum);
    readCells(cells);
}

void ZrRecordFetch::block(const RecordDataList &records, int first, const RecordDataList &rows,
                          const ZrTableKeyIndex &index, const QList<int> &keyColumns)
{
    const int last = qMin(first + BlockSize, records.size()) - 1;
    readCells(cellsOfAll(records, first, last, isAny));
    Cells cells;
    for (int i = first; i <= last; ++i) {
        const int row = index.row(ZrTableKeyIndex::makeKey(records.at(i), keyColumns));
        if (row >= 0 && row < rows.size())
            addNamedCells(rows.at(row), records.at(i), cells);
    }
    readCells(cells);
}

void ZrRecordFetch::front(const RecordDataList &rows, const ZrTableKeyIndex &index,
                          const QList<int> &keyColumns)
{
    const int last = qMin(BlockSize, rows.size()) - 1;
    keys(rows, 0, keyColumns);
    int sum = 0;
    for (int i = 0; i <= last; ++i)
        sum += index.row(ZrTableKeyIndex::makeKey(rows.at(i), keyColumns));
    // A record that somebody else holds too is not freed.
    const Cells cells =
        cellsOfAll(rows, 0, last, [](const RecordData &record) { return record.isDetached(); });
    for (const ItemRoleMap *const cell : cells)
        sum += cell->size();
    Ranges<ItemRoleMap::const_iterator> ranges;
    for (const ItemRoleMap *const cell : cells)
        ranges.append({cell->constBegin(), cell->constEnd()});
    QVarLengthArray<const QVariant *, RolesAtHand> values;
    stepTogether(ranges, [&values](const QVariant &value) { values.append(&value); });
    for (const QVariant *const value : values)
        sum += readText(*value);
    keep(sum);
}
