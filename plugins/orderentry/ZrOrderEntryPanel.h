#pragma once

#include "ZrOrderTicket.h"

#include <QtWidgets/QWidget>

class QComboBox;
class QGridLayout;
class QLabel;
class ZrMoneyQtyLineEdit;
class ZrOrderReports;
class ZrPushButton;
class ZrRadioButton;
class ZrSearchBox;

/// The form of an order: security, side, price, quantity, account, validity; below it what became of those
/// that were sent.
///
/// Shape:     Return in a field goes on to the next one, in the last it sends; so does the button. What is
///            wrong is said under the form, beside the field that has the focus then.
/// Units:     price in the venue's currency, quantity in shares.
/// Ownership: normal QWidget parent rules.
/// Threads:   GUI thread only.
/// Errors:    an order with a fault isn't told.
class ZrOrderEntryPanel : public QWidget
{
    Q_OBJECT
public:
    explicit ZrOrderEntryPanel(QWidget *parent = nullptr);

    ZrOrderTicket ticket() const;
    /// Another security empties price and quantity.
    void setSecurity(const QString &symbol);
    /// As chosen in a book; values of 0 and less leave their field alone.
    void setLevel(double price, double quantity);
    /// A code of the dictionary; one that is neither buy nor sell changes nothing.
    void setSide(const QString &side);
    void setAccount(const QString &account);

    /// The line under the form.
    void say(const QString &text, bool isError);
    QString said() const;
    /// While an order is on its way no second one leaves.
    void setWaiting(bool waiting);
    ZrOrderReports *reports() const { return m_reports; }

signals:
    void signalSend(const ZrOrderTicket &ticket);
    /// The user picked a security.
    void signalSecurityChosen(const QString &symbol);

private:
    void createEditors();
    void createLayout();
    void connectEditors();
    void addRow(QGridLayout *grid, int row, const QString &name, QWidget *editor);
    void send();
    void securityPicked();
    void showSecurity();

    ZrSearchBox *m_security = nullptr; // this and the following are our children
    QLabel *m_name = nullptr;
    ZrRadioButton *m_buy = nullptr;
    ZrRadioButton *m_sell = nullptr;
    ZrMoneyQtyLineEdit *m_price = nullptr;
    ZrMoneyQtyLineEdit *m_quantity = nullptr;
    QComboBox *m_account = nullptr;
    QComboBox *m_validity = nullptr;
    ZrPushButton *m_send = nullptr;
    QLabel *m_message = nullptr;
    ZrOrderReports *m_reports = nullptr;
    QString m_shown; // the symbol that price and quantity belong to
};
