#pragma once

#include "zrutils/ZrRecordTypes.h"
#include "zrwidget_global.h"

class ZrTableSums;

/// Merge of one record into a stored one at role grain.
class ZRWIDGET_PRIVATE_EXPORT ZrTableMerge
{
public:
    /// Columns that brought something new. Roles that the incoming cells don't name stay, so an update never
    /// removes one. `sums`, where given, is told each changed cell.
    static QList<int> merge(RecordData &stored, const RecordData &incoming, ZrTableSums *sums);

private:
    static bool mergeCell(RecordData &stored, int column, const ItemRoleMap &cell, ZrTableSums *sums);
};
