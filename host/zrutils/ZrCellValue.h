#pragma once

#include "zrutils/ZrRecordTypes.h"

/// The value of a cell: that of the first role key present among "256", "257" and "0".
///
/// Ownership: pointers into the record; good as long as it stays as it is.
/// Threads:   any.
/// Errors:    null when there is no such cell or none of these role keys.
class ZrCellValue
{
public:
    static const QVariant *of(const ItemRoleMap &cell);
    static const QVariant *of(const RecordData &record, int column);
    /// As a filter choice of a text column shows it: an empty text under "257" gives way to the one under
    /// "0".
    static const QVariant *choiceOf(const ItemRoleMap &cell);

private:
    ZrCellValue() = delete;
};

/// Texts by code point, as the sort and the filter compare them: the units of UTF-16 alone would put the
/// characters beyond the first plane before U+E000.
class ZrTextOrder
{
public:
    /// A unit moved to its place in the order of code points.
    static ushort rank(ushort unit)
    {
        if (unit < 0xD800)
            return unit;
        return static_cast<ushort>(unit >= 0xE000 ? unit - 0x800 : unit + 0x2000);
    }
    /// Negative, 0 or positive; the first `from` units are known to be equal.
    static int compare(const QString &a, const QString &b, int from = 0);

private:
    ZrTextOrder() = delete;
};
