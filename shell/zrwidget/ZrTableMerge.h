#pragma once

#include "zrutils/ZrRecordTypes.h"
#include "zrwidget_global.h"

#include <QtCore/QVarLengthArray>

class ZrTableSums;

/// Columns that an update changed. On the stack up to a wide grid's usual update: the list is made for each
/// one.
using ZrChangedColumns = QVarLengthArray<int, 32>;

/// Merge of one record into a stored one at role grain.
class ZRWIDGET_PRIVATE_EXPORT ZrTableMerge
{
public:
    /// Appends the columns that brought something new to `changed`. Roles that the incoming cells don't name
    /// stay, so an update never removes one. `sums`, where given, is told each changed cell.
    static void merge(RecordData &stored, const RecordData &incoming, ZrTableSums *sums,
                      ZrChangedColumns &changed);

    /// The cell of a column, its end without one. `last` is what the search for a column in front of it gave,
    /// or the end: where columns are asked for in order, the next one is mostly at hand.
    static RecordData::const_iterator findCell(const RecordData &record, RecordData::const_iterator last,
                                               int column);

private:
    static void write(ItemRoleMap &have, const ItemRoleMap &cell);
};
