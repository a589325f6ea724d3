#include "ZrDepthPanel.h"

#include "ZrDepthQuote.h"
#include "ZrQuotationLabel.h"
#include "ZrSearchBox.h"
#include "ZrSecurityAskBidPanel.h"

#include "zrbusinessdata/CBusinessDataBase.h"

#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QVBoxLayout>

namespace {
constexpr int TenLevels = 10;
constexpr int FiveLevels = 5;
constexpr int LeastRowPx = 17; // a line of text and some room
constexpr int LeastWidthPx = 220;
constexpr int MostWidthPx = 424; // of the ladder: wider, and nobody reads along a row any more
constexpr int SearchWidthPx = 110;
} // namespace

ZrDepthPanel::ZrDepthPanel(QWidget *parent)
    : QWidget(parent)
    , m_search(new ZrSearchBox(this))
    , m_name(addLabel("securityName", tr("Name")))
    , m_last(addLabel("lastPrice", tr("Latest price")))
    , m_change(addLabel("change", tr("Change")))
    , m_percent(addLabel("changePercent", tr("Change in percent")))
    , m_ladder(new ZrSecurityAskBidPanel(this))
{
    setAttribute(Qt::WA_StyledBackground); // the plugin's sheet has a ground for it
    m_search->setPlaceholderText(tr("Code"));
    m_search->setAccessibleName(tr("Security"));
    m_search->setFixedWidth(SearchWidthPx);
    m_ladder->setAccessibleName(tr("Order book"));
    m_ladder->setCurIndex(TenLevels); // the best seller
    m_ladder->ensurePolished();       // its margin is the skin's
    m_ladder->setMaximumWidth(MostWidthPx);
    m_ladder->setMinimumHeight(leastHeightPx(FiveLevels));
    createLayout();
    connectParts();
}

ZrQuotationLabel *ZrDepthPanel::addLabel(const char *name, const QString &accessibleName)
{
    auto *const label = new ZrQuotationLabel(this);
    label->setObjectName(QLatin1String(name));
    label->setAccessibleName(accessibleName);
    return label;
}

// The rows, the band, and the margins around and within them.
int ZrDepthPanel::leastHeightPx(int levels) const
{
    return LeastRowPx * (2 * levels + 1) + int(4 * m_ladder->currentMargins());
}

void ZrDepthPanel::createLayout()
{
    auto *const security = new QHBoxLayout;
    security->addWidget(m_search);
    security->addWidget(m_name, 1);
    auto *const price = new QHBoxLayout;
    price->addWidget(m_last);
    price->addWidget(m_change);
    price->addWidget(m_percent);
    price->addStretch(1);
    auto *const layout = new QVBoxLayout(this);
    layout->setContentsMargins(8, 8, 8, 8);
    layout->setSpacing(6);
    layout->addLayout(security);
    layout->addLayout(price);
    layout->addWidget(m_ladder, 1);
    setMinimumWidth(LeastWidthPx);
}

void ZrDepthPanel::connectParts()
{
    connect(m_search, &ZrSearchBox::selectStockCodeChange, this,
            [this] { emit signalSecurityChosen(m_search->getSymbol()); });
    connect(m_ladder, &ZrSecurityAskBidPanel::signalCurrentPriceInfo, this, &ZrDepthPanel::tellLevel);
    connect(m_ladder, &ZrSecurityAskBidPanel::signalCurrentClicked, this, &ZrDepthPanel::tellLevel);
    connect(m_ladder, &ZrSecurityAskBidPanel::signalPanelBarClicked, this,
            [this](int, const ZrSecurityAskBidData &level) { tellLevel(level); });
}

void ZrDepthPanel::tellLevel(const ZrSecurityAskBidData &level)
{
    if (level.price.toDouble() > 0)
        emit signalLevelChosen(level);
}

void ZrDepthPanel::showSecurity(const QString &symbol)
{
    if (m_search->getSymbol() != symbol)
        m_search->setSymbol(symbol);
    m_name->setText(CBusinessDataBase::GetInstance()->GetSecurityChineseName(symbol, QString()));
    showQuote(ZrDepthQuote::of(QVariantMap(), QVariantMap()));
}

void ZrDepthPanel::showQuote(const ZrDepthQuote &quote)
{
    m_last->setText(quote.lastPrice > 0 ? quote.priceText(quote.lastPrice) : QString());
    m_change->setText(quote.changeText());
    m_percent->setText(quote.changePercentText());
    for (ZrQuotationLabel *const label : {m_last, m_change, m_percent})
        label->setLabelMode(quote.mode());
    ZrSecurityAskBidData last;
    last.price = m_last->text();
    // The blank keeps the digits off the ladder's edge: their place there ends a margin beyond it.
    if (!quote.lastQuantity.isEmpty())
        last.volumeText = quote.lastQuantity + QChar(QChar::Nbsp);
    m_ladder->setCodePrevClose(quote.previousClose);
    m_ladder->setLastPriceInfo(last);
    m_ladder->setCodeLastAskBidInfo(quote.levels);
}

void ZrDepthPanel::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
    fitLevels();
}

void ZrDepthPanel::fitLevels()
{
    const int count = m_ladder->height() >= leastHeightPx(TenLevels) ? TenLevels : FiveLevels;
    const int before = m_ladder->getAskBidPricesCounts();
    if (count == before)
        return;
    const int row = m_ladder->getCurIndex() + count - before; // the halves grow and shrink at their far ends
    m_ladder->setAskBidPricesCounts(count);
    if (m_ladder->getCurIndex() >= 0)
        m_ladder->setCurIndex(qBound(0, row, 2 * count - 1) + 1);
}
