#pragma once

#include "zrwidget_global.h"

#include <zrutils/ZrRecordTypes.h>

/// Choices of a number column's filter: a handful of ranges that cover its values.
///
/// Shape:   one cell of the column per entry in; up to seven ranges out. The value of a cell is its raw
///          value (role key 256) or, without one, the value shown.
/// Units:   the column's own.
/// Threads: any; no state.
/// Errors:  no cells, no ranges.
class ZRWIDGET_PRIVATE_EXPORT ZrNumberRanges
{
public:
    static QList<ItemRoleMap> ofIntegers(const QList<ItemRoleMap> &cells);
    static QList<ItemRoleMap> ofDoubles(const QList<ItemRoleMap> &cells);

    /// 10 to the power of the digits in front of the point less one; 4738 gives 1000. A minus sign counts
    /// as a digit.
    static double magnitude(double number);
    /// Keeps only the leading digit: 4738 gives 4000.
    static double leadingDigit(double number);
};
