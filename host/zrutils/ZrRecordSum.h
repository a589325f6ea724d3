#pragma once

#include "zrutils/ZrExactSum.h"
#include "zrutils/ZrRecordTypes.h"

#include <vector>

/// The sum row of many rows.
///
/// The rule: a column has a total when at least one of its cells holds a numeric value. The value is that of
/// the first role key present among "256", "257" and "0"; numeric are the whole and floating types of
/// QVariant. A truth value is no number here, and neither is a text, even one that reads like a number. Cells
/// without a number add nothing. Negative columns (row state and pseudo-columns) and the left-out ones have
/// no total. How the numbers add up: ZrExactSum.
///
/// Threads: any; one object for one sum.
class ZrRecordSum
{
public:
    explicit ZrRecordSum(const QList<int> &leftOut);

    void add(const RecordData &record);
    /// One cell with role key "0" for each column that has a total.
    RecordData record() const;

private:
    struct Column
    {
        int number;
        ZrExactSum sum;
    };
    ZrExactSum &sumOf(int column);

    const QList<int> m_leftOut;
    std::vector<Column> m_columns; // by number
    std::size_t m_next = 0;        // rows are alike: the column after the last one is the likely one
};
