// What a row costs on the heap, the text of its cells included.
#include "ZrBench.h"
#include "ZrBenchGrids.h"
#include "ZrTableView.h"

#include <malloc.h>

namespace {
constexpr int Rows = 50000;

double heapBytes()
{
    const struct mallinfo2 info = mallinfo2();
    return double(info.uordblks) + double(info.hblkhd);
}

// The rows are made within the measured part, and everything but the grid's own is freed before it ends.
double ourBytesPerRow()
{
    ZrBenchOurGrid grid;
    const double before = heapBytes();
    {
        ZrBenchData data;
        grid.load(data.records(Rows));
    }
    ZrBenchStopwatch::drain();
    return (heapBytes() - before) / Rows;
}

double peerBytesPerRow()
{
    ZrBenchPeerGrid grid(false);
    const double before = heapBytes();
    {
        ZrBenchData data;
        QVector<ZrBenchCells> rows;
        rows.reserve(Rows);
        for (int row = 0; row < Rows; ++row)
            rows.append(data.row(row));
        grid.load(rows);
    }
    ZrBenchStopwatch::drain();
    return (heapBytes() - before) / Rows;
}
} // namespace

ZrBenchCases gridMemoryBenches()
{
    return {{{"grid/heap_per_row",
              "bytes",
              false,
              "QStandardItemModel, QHash, QTableView",
              {},
              1.0,
              ZrBenchRow::None},
             [] {
                 return ZrBenchSides{ourBytesPerRow, peerBytesPerRow, {}};
             }}};
}
