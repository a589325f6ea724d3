#include "ZrOrderEntryPlugin.h"

#include "ZrOrderEntryNames.h"
#include "ZrOrderEntryPanel.h"
#include "ZrOrderEntryPresenter.h"
#include "ZrOrderReports.h"

#include "zrdefine/Constants.h"
#include "zrdefine/VexlorFields.h"

#include <QtWidgets/QVBoxLayout>

ZrOrderEntryPlugin::ZrOrderEntryPlugin(QWidget *parent)
    : ZrPluginBaseWidget(parent)
{
    setObjectName(QStringLiteral("orderentry"));
}

ZrOrderEntryPlugin::~ZrOrderEntryPlugin()
{
    if (m_presenter) {
        m_presenter->detach();
        m_presenter->deleteLater();
    }
}

void ZrOrderEntryPlugin::initPlugin()
{
    addSkinFile(QStringLiteral("plugins/orderentry"), QStringLiteral("orderentry.css"),
                QStringLiteral("orderentry.svg"));
    setPluginWidgetTitle(tr("Order entry"));
    setPluginTitleAccountShowType(1);
    m_panel = new ZrOrderEntryPanel(this);
    auto *const layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_panel);
    m_presenter = new ZrOrderEntryPresenter(pluginInstanceID(), this);
    connectParts();
    m_presenter->open();
    subPluginLinkage(ZrOrderEntrySecurityLinkage, true, LinkageGroupOrange);
    subPluginLinkage(ZrOrderEntryOrderLinkage, true, LinkageGroupOrange);
}

void ZrOrderEntryPlugin::connectParts()
{
    // From other threads; what comes while we end finds nobody.
    const auto presenter = m_presenter.data();
    connect(presenter, &ZrOrderEntryPresenter::signalAccepted, this, &ZrOrderEntryPlugin::accepted,
            Qt::QueuedConnection);
    connect(presenter, &ZrOrderEntryPresenter::signalRefused, this, &ZrOrderEntryPlugin::refused,
            Qt::QueuedConnection);
    connect(presenter, &ZrOrderEntryPresenter::signalReport, m_panel->reports(), &ZrOrderReports::take,
            Qt::QueuedConnection);
    connect(presenter, &ZrOrderEntryPresenter::signalSecurityChosen, this, &ZrOrderEntryPlugin::takeSecurity,
            Qt::QueuedConnection);
    connect(presenter, &ZrOrderEntryPresenter::signalLevelChosen, this, &ZrOrderEntryPlugin::takeLevel,
            Qt::QueuedConnection);
    connect(m_panel, &ZrOrderEntryPanel::signalSend, this, &ZrOrderEntryPlugin::send);
    connect(m_panel, &ZrOrderEntryPanel::signalSecurityChosen, this, &ZrOrderEntryPlugin::tellSecurity);
}

void ZrOrderEntryPlugin::setBaseData(const QString &name, const QVariant &value)
{
    if (name == Constants::USER_ACCOUNT && m_panel)
        m_panel->setAccount(value.toMap().value(Vexlor_Fields::UserAccount::tradingAccount).toString());
}

void ZrOrderEntryPlugin::send(const ZrOrderTicket &ticket)
{
    if (!m_presenter)
        return;
    m_panel->setWaiting(true);
    m_panel->say(tr("Sending..."), false);
    m_presenter->send(ticket.record(m_presenter->nextOrderNumber()));
}

void ZrOrderEntryPlugin::accepted(const QVariantMap &order)
{
    m_panel->setWaiting(false);
    m_panel->say(tr("Order %1 was accepted.").arg(order.value(ZrOrderEntryField::orderId).toString()), false);
    // The reports tell the rest; this one may come after the first of them and must not undo it.
}

void ZrOrderEntryPlugin::refused(int code, const QString &text)
{
    constexpr int timeout = 1;
    m_panel->setWaiting(false);
    // Whether it has arrived isn't known: who sends it again may have two.
    if (code == timeout)
        m_panel->say(tr("No answer: the order may have arrived or not."), true);
    else
        m_panel->say(text.isEmpty() ? tr("The order was not sent.") : text, true);
}

void ZrOrderEntryPlugin::takeSecurity(const QVariantMap &security)
{
    m_panel->setSecurity(security.value(Vexlor_Fields::Security::symbol).toString());
}

void ZrOrderEntryPlugin::takeLevel(const QVariantMap &level)
{
    takeSecurity(level);
    m_panel->setLevel(level.value(ZrOrderEntryField::price).toDouble(),
                      level.value(ZrOrderEntryField::orderQty).toDouble());
    m_panel->setSide(level.value(ZrOrderEntryField::side).toString());
}

void ZrOrderEntryPlugin::tellSecurity(const QString &symbol)
{
    if (m_presenter)
        m_presenter->tellSecurity(symbol);
}
