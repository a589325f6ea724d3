#pragma once

#include <QtCore/QCoreApplication>
#include <QtCore/QString>
#include <QtCore/QVariantMap>

/// An order as it stands in the form, and whether it may leave.
///
/// Shape:     texts as they were typed; `security` holds what the host knows of the symbol and may be empty:
///            what isn't known isn't checked.
/// Units:     price in the venue's currency, quantity in shares.
/// Threads:   any.
/// Errors:    fault() is one sentence for the user, empty for a good order.
class ZrOrderTicket
{
    Q_DECLARE_TR_FUNCTIONS(ZrOrderTicket)
public:
    QString symbol;
    QString side; // a code of the dictionary
    QString price;
    QString quantity;
    QString account;
    QString timeInForce; // a code of the dictionary
    QVariantMap security;

    QString fault() const;
    /// The message of a good order.
    QVariantMap record(const QString &clientOrderId) const;

private:
    QString priceFault() const;
    QString quantityFault() const;
};
