#include "ZrLadderBook.h"

#include "ZrLadderTexts.h"

namespace {
constexpr int shortCount = 5;

bool lacksPrice(const ZrSecurityAskBidData &level)
{
    return level.price.toDouble() == 0.0;
}
} // namespace

void ZrLadderBook::fillPlaceholders()
{
    m_levels.clear();
    for (int row = 0; row < fullRows; ++row) {
        ZrSecurityAskBidData level;
        level.side = row < fullCount ? 1 : 0;
        level.level = row < fullCount ? fullCount - row : row - fullCount + 1;
        level.price = QStringLiteral("0");
        m_levels.insert(row, level);
    }
    rebuildShown();
}

void ZrLadderBook::setLevels(const ZrAskBidLevels &levels)
{
    m_levels = levels;
    const QString noPrice = ZrLadderTexts::noPrice();
    // Through the caller's map: ours is a copy of it only once a price has to be marked.
    for (auto level = levels.cbegin(); level != levels.cend(); ++level) {
        if (lacksPrice(*level) && level->price != noPrice)
            m_levels[level.key()].price = noPrice;
    }
    rebuildShown();
}

void ZrLadderBook::setCount(int count)
{
    m_count = count;
    rebuildShown();
}

void ZrLadderBook::rebuildShown()
{
    if (m_count != shortCount) {
        m_shown = m_levels;
        return;
    }
    m_shown.clear();
    for (int row = 0; row < 2 * shortCount; ++row)
        m_shown.insert(row, m_levels[row + fullCount - shortCount]); // makes it where it is missing
}
