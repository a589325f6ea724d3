#pragma once

#include "zrwidget_global.h"

#include <QtCore/QVariant>

#include "zrutils/ZrRecordTypes.h"

class ZrTableModelPrivate;

/// What a cell of the grid shows: by view row, logical column and role.
///
/// Errors: whatever is missing reads as an invalid value.
class ZRWIDGET_PRIVATE_EXPORT ZrTableCellReader
{
public:
    static QVariant read(const ZrTableModelPrivate &fields, int row, int column, int role);
    static QVariant alignment(const ZrTableModelPrivate &fields, int column);
    static QVariant head(const ZrTableModelPrivate &fields, int section, int role);

private:
    static QVariant cellValue(const RecordData &record, int column, int role);
    static QVariant tip(const ItemRoleMap &cell);
    static QVariant pseudoValue(const ZrTableModelPrivate &fields, const RecordData &record, int row,
                                int column, int role);
    static QVariant serialValue(const ZrTableModelPrivate &fields, int row);
    static QVariant stateValue(const RecordData &record, int role);
};
