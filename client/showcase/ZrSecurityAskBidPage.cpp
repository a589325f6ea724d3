#include "ZrSecurityAskBidPanel.h"
#include "ZrShowcase.h"
#include "ZrShowcaseGrid.h"
#include "ZrShowcasePage.h"
#include "ZrShowcasePages.h"

namespace {
constexpr int FullRows = 20;
constexpr int BestSeller = 9; // its row; the buyers follow
constexpr int TickCents = 1;
constexpr int LastCents = 2235;
constexpr QSize TenLevels(ZrShowcaseGrid::LeastPx + ZrShowcaseGrid::StepPx, 400);
constexpr QSize FiveLevels(ZrShowcaseGrid::LeastPx + ZrShowcaseGrid::StepPx, 220);

QString price(int cents)
{
    return QString::number(cents / 100.0, 'f', 2);
}

/// `lots` scales the quantities.
ZrAskBidLevels book(int lots = 1)
{
    ZrAskBidLevels levels;
    for (int row = 0; row < FullRows; ++row) {
        ZrSecurityAskBidData level;
        level.side = row <= BestSeller ? 1 : 0;
        level.level = row <= BestSeller ? BestSeller - row + 1 : row - BestSeller;
        level.price = price(LastCents + (BestSeller + 1 - row) * TickCents);
        level.volume = 100 * lots * (3 + (row * 37) % 41);
        levels.insert(row, level);
    }
    return levels;
}

ZrSecurityAskBidPanel *make(const ZrAskBidLevels &levels, int count = 10)
{
    auto *const panel = new ZrSecurityAskBidPanel;
    panel->setFixedSize(count == 5 ? FiveLevels : TenLevels);
    ZrSecurityAskBidData last;
    last.price = price(LastCents);
    // The blank, which never breaks, keeps the digits off the edge: the place of this text ends a margin
    // beyond it.
    last.volumeText = QStringLiteral("1200\u00a0");
    panel->setCodePrevClose((LastCents - 2 * TickCents) / 100.0);
    panel->setLastPriceInfo(last);
    panel->setAskBidPricesCounts(count);
    panel->setCodeLastAskBidInfo(levels);
    panel->setCurIndex(0);
    return panel;
}

ZrSecurityAskBidPanel *selected(int row, int count = 10)
{
    ZrSecurityAskBidPanel *const panel = make(book(), count);
    panel->setCurIndex(row);
    return panel;
}

// The price rose to its limit: nobody sells.
ZrSecurityAskBidPanel *withoutSellers()
{
    ZrAskBidLevels levels = book();
    for (int row = 0; row <= BestSeller; ++row) {
        levels[row].price = QStringLiteral("0");
        levels[row].volume = 0;
    }
    return make(levels);
}

ZrSecurityAskBidPanel *withNumerals()
{
    ZrSecurityAskBidPanel *const panel = selected(4, 5);
    panel->setDishShowType(1);
    return panel;
}

ZrSecurityAskBidPanel *withLine()
{
    ZrSecurityAskBidPanel *const panel = make(book(), 5);
    panel->setShowLastPrice(false);
    return panel;
}

ZrSecurityAskBidPanel *fresh()
{
    auto *const panel = new ZrSecurityAskBidPanel;
    panel->setFixedSize(TenLevels);
    return panel;
}

ZrSecurityAskBidPanel *withLongNumbers()
{
    ZrAskBidLevels levels = book(20000);
    for (ZrSecurityAskBidData &level : levels)
        level.price.prepend(QStringLiteral("1234"));
    return make(levels);
}
} // namespace

ZrShowcasePage *zrMakeSecurityAskBidPage(QWidget *parent)
{
    auto *const page = new ZrShowcasePage(
        QStringLiteral("security-ask-bid"), QStringLiteral("ZrSecurityAskBidPanel"),
        ZrShowcase::tr("The order book of one security: levels to point at, to select and to step through."),
        parent);
    page->beginRow(ZrShowcase::tr("Ten levels"));
    page->addSample(ZrShowcase::tr("Normal"), make(book()));
    page->addSample(ZrShowcase::tr("Seller selected"), selected(8));
    page->addSample(ZrShowcase::tr("Buyer selected"), selected(11));
    page->addPicture(
        ZrShowcase::tr("Hover"), [] { return make(book()); }, ZrShowcasePage::State::Hover);
    page->beginRow(ZrShowcase::tr("Contents"));
    page->addSample(ZrShowcase::tr("Nobody sells"), withoutSellers());
    page->addSample(ZrShowcase::tr("Before any data"), fresh());
    page->addSample(ZrShowcase::tr("Long numbers"), withLongNumbers());
    page->beginRow(ZrShowcase::tr("Five levels"));
    page->addSample(ZrShowcase::tr("Normal"), make(book(), 5));
    page->addSample(ZrShowcase::tr("Chinese numerals"), withNumerals());
    page->addSample(ZrShowcase::tr("Line in place of the band"), withLine());
    return page;
}
