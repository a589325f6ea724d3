#include "ZrDepthPlugin.h"

#include "ZrDepthFields.h"
#include "ZrDepthPanel.h"
#include "ZrDepthPresenter.h"

#include "zrdefine/VexlorFields.h"

#include <QtWidgets/QVBoxLayout>

ZrDepthPlugin::ZrDepthPlugin(QWidget *parent)
    : ZrPluginBaseWidget(parent)
{
    setObjectName(QStringLiteral("depth"));
}

ZrDepthPlugin::~ZrDepthPlugin()
{
    if (m_presenter) {
        m_presenter->detach();
        m_presenter->deleteLater();
    }
}

void ZrDepthPlugin::initPlugin()
{
    addSkinFile(QStringLiteral("plugins/depth"), QStringLiteral("depth.css"), QStringLiteral("depth.svg"));
    setPluginWidgetTitle(tr("Market depth"));
    m_panel = new ZrDepthPanel(this);
    auto *const layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_panel);
    m_presenter = new ZrDepthPresenter(pluginInstanceID(), this, &m_markets);
    connectParts();
    m_presenter->open();
    subPluginLinkage(ZrDepthSecurityLinkage, true, LinkageGroupOrange);
    subPluginLinkage(ZrDepthOrderLinkage, true, LinkageGroupOrange);
}

void ZrDepthPlugin::connectParts()
{
    connect(m_presenter.data(), &ZrDepthPresenter::signalMarketChanged, this, &ZrDepthPlugin::showMarket,
            Qt::QueuedConnection);
    connect(m_presenter.data(), &ZrDepthPresenter::signalSecurityChosen, this, &ZrDepthPlugin::choose,
            Qt::QueuedConnection);
    connect(m_panel, &ZrDepthPanel::signalSecurityChosen, this, [this](const QString &symbol) {
        choose(symbol);
        if (m_presenter && !symbol.isEmpty())
            m_presenter->tellSecurity(symbol);
    });
    connect(m_panel, &ZrDepthPanel::signalLevelChosen, this, [this](const ZrSecurityAskBidData &level) {
        if (m_presenter && !m_symbol.isEmpty())
            m_presenter->tellLevel(m_symbol, level);
    });
}

void ZrDepthPlugin::choose(const QString &symbol)
{
    if (symbol.isEmpty() || symbol == m_symbol)
        return;
    m_markets.watch(symbol);
    showMarket();
}

void ZrDepthPlugin::showMarket()
{
    const ZrDepthQuote quote = m_markets.quote();
    if (quote.symbol != m_symbol) {
        m_symbol = quote.symbol;
        m_panel->showSecurity(m_symbol);
    }
    m_panel->showQuote(quote);
}

QVariant ZrDepthPlugin::getPluginData()
{
    return QVariantMap{{Vexlor_Fields::Security::symbol, m_symbol}};
}

void ZrDepthPlugin::setPluginData(QVariant &data)
{
    if (m_panel)
        choose(data.toMap().value(Vexlor_Fields::Security::symbol).toString());
}
