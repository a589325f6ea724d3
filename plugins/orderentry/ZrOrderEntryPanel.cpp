#include "ZrOrderEntryPanel.h"

#include "ZrMoneyQtyLineEdit.h"
#include "ZrOrderEntryNames.h"
#include "ZrOrderReports.h"
#include "ZrPushButton.h"
#include "ZrRadioButton.h"
#include "ZrSearchBox.h"

#include "zrbusinessdata/CBusinessDataBase.h"
#include "zrdatabase/CDataBase.h"
#include "zrdefine/VexlorFields.h"
#include "zrdefine/VexlorValues.h"

#include <QtWidgets/QButtonGroup>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QGridLayout>
#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QLabel>
#include <QtWidgets/QStyle>

namespace {
constexpr int EdgePx = 10;
constexpr int GapPx = 8;

// A quotation's digits, without the noise of a binary number.
QString numberText(double value)
{
    return QString::number(value, 'g', 12);
}

QLabel *plainLabel(QWidget *parent, const char *name)
{
    auto *const label = new QLabel(parent);
    label->setTextFormat(Qt::PlainText);
    label->setObjectName(QLatin1String(name));
    return label;
}

QVariantMap detailsOf(const QString &symbol)
{
    return CBusinessDataBase::GetInstance()->GetSecurityDetailsBySymbol(symbol);
}
} // namespace

ZrOrderEntryPanel::ZrOrderEntryPanel(QWidget *parent)
    : QWidget(parent)
{
    setObjectName(QStringLiteral("orderEntryPanel"));
    createEditors();
    createLayout();
    connectEditors();
}

void ZrOrderEntryPanel::createEditors()
{
    m_security = new ZrSearchBox(this);
    m_name = plainLabel(this, "orderEntryName");
    m_buy = new ZrRadioButton(tr("Buy"), this);
    m_buy->setObjectName(QStringLiteral("orderEntryBuy"));
    m_buy->setChecked(true);
    m_sell = new ZrRadioButton(tr("Sell"), this);
    m_sell->setObjectName(QStringLiteral("orderEntrySell"));
    auto *const sides = new QButtonGroup(this);
    sides->addButton(m_buy);
    sides->addButton(m_sell);
    m_price = new ZrMoneyQtyLineEdit(this);
    m_price->setObjectName(QStringLiteral("orderEntryPrice"));
    m_quantity = new ZrMoneyQtyLineEdit(this);
    m_quantity->setObjectName(QStringLiteral("orderEntryQuantity"));
    m_account = new QComboBox(this);
    const QStringList accounts =
        CBusinessDataBase::GetInstance()->GetTradeAccountList({Vexlor_Values::AuthorityType::AccountTrade});
    m_account->addItems(accounts);
    m_validity = new QComboBox(this);
    const QMap<QString, QString> validities =
        CDataBase::GetInstance()->GetStaticValuesBySection(ZrOrderEntryField::timeInForce);
    for (auto it = validities.cbegin(); it != validities.cend(); ++it)
        m_validity->addItem(it.value(), it.key());
    m_send = new ZrPushButton(tr("Send order"), this);
    m_send->setObjectName(QStringLiteral("orderEntrySend"));
    m_message = plainLabel(this, "orderEntryMessage");
    m_message->setWordWrap(true);
    m_reports = new ZrOrderReports(this);
}

void ZrOrderEntryPanel::createLayout()
{
    auto *const column = new QVBoxLayout(this);
    column->setContentsMargins(EdgePx, EdgePx, EdgePx, EdgePx);
    column->setSpacing(GapPx);
    auto *const grid = new QGridLayout;
    grid->setHorizontalSpacing(GapPx);
    grid->setVerticalSpacing(GapPx);
    grid->setColumnStretch(1, 1);
    addRow(grid, 0, tr("Security"), m_security);
    grid->addWidget(m_name, 1, 1);
    auto *const sides = new QHBoxLayout;
    sides->addWidget(m_buy);
    sides->addWidget(m_sell);
    sides->addStretch(1);
    grid->addWidget(new QLabel(tr("Side"), this), 2, 0);
    grid->addLayout(sides, 2, 1);
    addRow(grid, 3, tr("Price"), m_price);
    addRow(grid, 4, tr("Quantity"), m_quantity);
    addRow(grid, 5, tr("Account"), m_account);
    addRow(grid, 6, tr("Validity"), m_validity);
    column->addLayout(grid);
    column->addWidget(m_send);
    column->addWidget(m_message);
    column->addWidget(m_reports, 1);
}

void ZrOrderEntryPanel::addRow(QGridLayout *grid, int row, const QString &name, QWidget *editor)
{
    auto *const label = new QLabel(name, this);
    label->setBuddy(editor);
    editor->setAccessibleName(name);
    grid->addWidget(label, row, 0);
    grid->addWidget(editor, row, 1);
}

void ZrOrderEntryPanel::connectEditors()
{
    connect(m_security, &ZrSearchBox::selectStockCodeChange, this, &ZrOrderEntryPanel::securityPicked);
    connect(m_security, &ZrSearchBox::signalStockCodeClear, this, &ZrOrderEntryPanel::showSecurity);
    connect(m_price, &ZrMoneyQtyLineEdit::signalComplete, m_quantity, [this] { m_quantity->setFocus(); });
    connect(m_quantity, &ZrMoneyQtyLineEdit::signalComplete, this, &ZrOrderEntryPanel::send);
    connect(m_send, &QPushButton::clicked, this, &ZrOrderEntryPanel::send);
}

ZrOrderTicket ZrOrderEntryPanel::ticket() const
{
    ZrOrderTicket order;
    order.symbol = m_security->getSymbol();
    order.side = m_sell->isChecked() ? ZrOrderEntryCode::sell : ZrOrderEntryCode::buy;
    order.price = m_price->text();
    order.quantity = m_quantity->text();
    order.account = m_account->currentText();
    order.timeInForce = m_validity->currentData().toString();
    order.security = detailsOf(order.symbol);
    return order;
}

void ZrOrderEntryPanel::setSecurity(const QString &symbol)
{
    m_security->setSymbol(symbol);
    showSecurity();
}

void ZrOrderEntryPanel::setLevel(double price, double quantity)
{
    if (price > 0)
        m_price->setText(numberText(price));
    if (quantity > 0)
        m_quantity->setText(numberText(quantity));
}

void ZrOrderEntryPanel::setSide(const QString &side)
{
    if (side == ZrOrderEntryCode::buy)
        m_buy->setChecked(true);
    else if (side == ZrOrderEntryCode::sell)
        m_sell->setChecked(true);
}

void ZrOrderEntryPanel::setAccount(const QString &account)
{
    const int row = m_account->findText(account);
    if (row >= 0)
        m_account->setCurrentIndex(row);
}

void ZrOrderEntryPanel::securityPicked()
{
    showSecurity();
    if (m_security->getSymbol().isEmpty())
        return;
    emit signalSecurityChosen(m_security->getSymbol());
    m_price->setFocus();
    m_price->selectAll();
}

void ZrOrderEntryPanel::showSecurity()
{
    const QString symbol = m_security->getSymbol();
    m_name->setText(CBusinessDataBase::GetInstance()->GetSecurityChineseName(symbol, QString()));
    // Half-typed: what was entered may still belong to the security that comes back.
    if (symbol.isEmpty() || symbol == m_shown)
        return;
    m_shown = symbol;
    m_price->clear();
    m_quantity->clear();
    const QVariantMap details = detailsOf(symbol);
    setLevel(details.value(ZrOrderEntrySecurity::previousClose).toDouble(),
             details.value(ZrOrderEntrySecurity::lotSize).toDouble());
}

void ZrOrderEntryPanel::send()
{
    if (!m_send->isEnabled())
        return;
    const ZrOrderTicket order = ticket();
    const QString fault = order.fault();
    say(fault, true);
    if (fault.isEmpty())
        emit signalSend(order);
}

void ZrOrderEntryPanel::say(const QString &text, bool isError)
{
    m_message->setProperty("isError", isError);
    m_message->style()->unpolish(m_message);
    m_message->style()->polish(m_message);
    m_message->setText(text);
}

QString ZrOrderEntryPanel::said() const
{
    return m_message->text();
}

void ZrOrderEntryPanel::setWaiting(bool waiting)
{
    m_send->setEnabled(!waiting);
}
