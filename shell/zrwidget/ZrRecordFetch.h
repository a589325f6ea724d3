#pragma once

#include "ZrTableKeyIndex.h"
#include "zrutils/ZrRecordTypes.h"
#include "zrwidget_global.h"

/// Reads what an update is about to touch, so that the processor waits for all of it at once.
///
/// A record's cells lie apart in memory and a grid of many rows fits no cache, so an update is mostly
/// waiting: for a node, then for the cell it leads to, then for the cell's value. Read level by level, the
/// waits of all cells of one level overlap. Nothing is changed and no result depends on it; `./dev bench
/// grid/update` shows what it is worth.
///
/// Threads: any that may read the records.
namespace ZrRecordFetch {

/// Records of a batch that are read ahead together.
constexpr int BlockSize = 16;

/// The cells of a stored record that an incoming one names.
ZRWIDGET_PRIVATE_EXPORT void cellsOf(const RecordData &stored, const RecordData &incoming);

/// What `BlockSize` records from `first` on show of their keys and columns.
ZRWIDGET_PRIVATE_EXPORT void keys(const RecordDataList &records, int first, const QList<int> &keyColumns);

/// `BlockSize` records of a batch from `first` on, and what they change in `rows`.
ZRWIDGET_PRIVATE_EXPORT void block(const RecordDataList &records, int first, const RecordDataList &rows,
                                   const ZrTableKeyIndex &index, const QList<int> &keyColumns);

/// The keys of the `BlockSize` records from the front on and all that is freed with them, before they leave
/// one after the other.
ZRWIDGET_PRIVATE_EXPORT void front(const RecordDataList &rows, const ZrTableKeyIndex &index,
                                   const QList<int> &keyColumns);

} // namespace ZrRecordFetch
