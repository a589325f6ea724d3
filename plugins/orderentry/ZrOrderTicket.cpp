#include "ZrOrderTicket.h"

#include "ZrOrderEntryNames.h"

#include "zrdefine/VexlorFields.h"

#include <cmath>

namespace {
namespace Field = ZrOrderEntryField;
namespace Security = ZrOrderEntrySecurity;

// Prices are decimal and stand in binary numbers: a thousandth of a tick is no difference.
constexpr double Tolerance = 1e-3;

double known(const QVariantMap &security, const QString &field)
{
    return security.value(field).toDouble();
}

bool isMultiple(double value, double step)
{
    return step <= 0 || std::abs(value / step - std::round(value / step)) < Tolerance;
}
} // namespace

QString ZrOrderTicket::fault() const
{
    if (symbol.isEmpty())
        return tr("Choose a security.");
    if (account.isEmpty())
        return tr("Choose an account.");
    const QString ofPrice = priceFault();
    return ofPrice.isEmpty() ? quantityFault() : ofPrice;
}

QString ZrOrderTicket::priceFault() const
{
    bool isNumber = false;
    const double value = price.toDouble(&isNumber);
    if (!isNumber || !std::isfinite(value) || value <= 0)
        return tr("Enter a price above 0.");
    const double tick = known(security, Security::priceTick);
    if (!isMultiple(value, tick))
        return tr("The price must be a multiple of %1.").arg(tick);
    const double upper = known(security, Security::upperLimit);
    const double lower = known(security, Security::lowerLimit);
    if ((upper > 0 && value > upper + tick * Tolerance) || (lower > 0 && value < lower - tick * Tolerance))
        return tr("The price must lie between %1 and %2.").arg(lower).arg(upper);
    return QString();
}

QString ZrOrderTicket::quantityFault() const
{
    bool isNumber = false;
    const double value = quantity.toDouble(&isNumber);
    if (!isNumber || !std::isfinite(value) || value <= 0 || std::floor(value) != value)
        return tr("Enter a whole quantity above 0.");
    // What is left of a holding may be sold in one order, whatever the lot.
    const double lot = known(security, Security::lotSize);
    if (side == ZrOrderEntryCode::buy && !isMultiple(value, lot))
        return tr("The quantity must be a multiple of %1.").arg(lot);
    return QString();
}

QVariantMap ZrOrderTicket::record(const QString &clientOrderId) const
{
    return {{Vexlor_Fields::System::msgType, ZrOrderEntryMsgType::newOrder},
            {Vexlor_Fields::System::clientMsgID, clientOrderId},
            {Field::clientOrderId, clientOrderId},
            {Vexlor_Fields::Security::symbol, symbol},
            {Vexlor_Fields::UserAccount::tradingAccount, account},
            {Field::side, side},
            {Field::orderType, ZrOrderEntryCode::limit},
            {Field::timeInForce, timeInForce},
            {Field::price, price.toDouble()},
            {Field::orderQty, quantity.toDouble()}};
}
