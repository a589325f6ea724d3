#include "ZrBlotterPlugin.h"

#include "ZrBlotterFields.h"
#include "ZrBlotterPanel.h"
#include "ZrBlotterPresenter.h"
#include "ZrBlotterToolBar.h"
#include "ZrMessageInbox.h"
#include "ZrTableView.h"

#include "zrdefine/Constants.h"
#include "zrdefine/VexlorFields.h"

#include <QtCore/QVector>
#include <QtWidgets/QVBoxLayout>

namespace {
constexpr int MostRows = 10000000;
} // namespace

ZrBlotterPlugin::ZrBlotterPlugin(QWidget *parent)
    : ZrPluginBaseWidget(parent)
{
    setObjectName(QStringLiteral("blotter"));
}

ZrBlotterPlugin::~ZrBlotterPlugin()
{
    if (m_presenter) {
        m_presenter->detach();
        m_presenter->deleteLater();
    }
}

void ZrBlotterPlugin::initPlugin()
{
    addSkinFile(QStringLiteral("plugins/blotter"), QStringLiteral("blotter.css"),
                QStringLiteral("blotter.svg"));
    setPluginWidgetTitle(tr("Order blotter"));
    setPluginTitleAccountShowType(1);
    createParts();
    connectParts();
    m_presenter->open();
    subPluginLinkage(ZrSecurityLinkage, true, LinkageGroupOrange);
}

void ZrBlotterPlugin::createParts()
{
    m_inbox = new ZrMessageInbox(this);
    m_panel = new ZrBlotterPanel(QStringLiteral(":/blotter/columns.xml"), this);
    m_panel->view()->setTableViewCaption(tr("Order blotter"));
    m_presenter = new ZrBlotterPresenter(pluginInstanceID(), this, m_inbox);
    auto *const layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(new ZrBlotterToolBar(m_panel, m_maxRows, this));
    layout->addWidget(m_panel, 1);
}

void ZrBlotterPlugin::connectParts()
{
    connect(m_inbox, &ZrMessageInbox::signalBatch, this, &ZrBlotterPlugin::takeBatch);
    connect(m_panel, &ZrBlotterPanel::signalApplied, this, &ZrBlotterPlugin::report);
    connect(m_panel, &ZrBlotterPanel::signalSecurityChosen, this, [this](const QString &symbol) {
        if (m_presenter)
            m_presenter->tellSecurity(symbol);
    });
    connect(m_presenter.data(), &ZrBlotterPresenter::signalSecurityChosen, m_panel,
            &ZrBlotterPanel::selectSecurity, Qt::QueuedConnection);
}

void ZrBlotterPlugin::setBaseData(const QString &name, const QVariant &value)
{
    // Every property of the widget comes here too, some before there is a grid.
    if (name == Constants::USER_ACCOUNT && m_panel)
        m_panel->setAccount(value.toMap().value(Vexlor_Fields::UserAccount::tradingAccount).toString());
}

QVariant ZrBlotterPlugin::getPluginData()
{
    return QVariantMap{{ZrBlotterReport::rows, m_panel ? m_panel->view()->getViewData().size() : 0},
                       {ZrBlotterReport::isWaiting, m_inbox && !m_inbox->isEmpty()}};
}

void ZrBlotterPlugin::setPluginLayoutPropertiesByWidgetName(QString name, const QVariant &value)
{
    const int rows = value.toInt();
    if (name != ZrBlotterProperty::maxRows || rows < 1 || rows > MostRows)
        return;
    m_maxRows = rows;
    if (m_panel)
        m_panel->view()->setMaxRowCount(rows);
}

void ZrBlotterPlugin::takeBatch(const std::vector<ZrInboxMessage> &messages)
{
    m_panel->applyMessages(messages);
}

void ZrBlotterPlugin::report(const ZrAppliedBatch &batch)
{
    emit signalSendDataToMainFrame(
        QVariantMap{{ZrBlotterReport::number, batch.number},
                    {ZrBlotterReport::appliedNs, batch.appliedNs},
                    {ZrBlotterReport::sentNs, QVariant::fromValue(batch.sentNs)},
                    {ZrBlotterReport::inSightNs, QVariant::fromValue(batch.inSightNs)}});
}
