#pragma once

#include "ZrSecurityAskBidData.h"
#include "zrwidget_global.h"

/// The levels of a ladder: the book as its caller gave it, and the rows that are shown of it.
///
/// Shape:   a count of 5 shows the five best of each side. Any other count shows the book from its top: with
///          ten levels a side that is all of it; with fewer it is the far end of the sellers, which callers
///          that show part of a book for themselves count on.
/// Units:   rows from 0 at the top; counts in levels a side.
/// Threads: one at a time.
/// Errors:  a row that isn't there reads as an empty level.
class ZRWIDGET_PRIVATE_EXPORT ZrLadderBook
{
public:
    static constexpr int fullCount = 10;
    static constexpr int fullRows = 2 * fullCount;

    /// A full book of levels without price or quantity.
    void fillPlaceholders();
    /// Takes a book over. A price that is zero or no number becomes ZrLadderTexts::noPrice().
    void setLevels(const ZrAskBidLevels &levels);
    /// As given, with the missing prices marked, and with empty levels where the five best were not given.
    const ZrAskBidLevels &levels() const { return m_levels; }

    void setCount(int count);
    int count() const { return m_count; }
    int rows() const { return 2 * m_count; }
    /// What a row shows.
    ZrSecurityAskBidData shown(int row) const { return m_shown.value(row); }
    const ZrAskBidLevels &shownLevels() const { return m_shown; }

private:
    void rebuildShown();

    ZrAskBidLevels m_levels;
    ZrAskBidLevels m_shown; // keyed from 0
    int m_count = fullCount;
};
