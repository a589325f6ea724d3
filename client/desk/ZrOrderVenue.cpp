#include "ZrOrderVenue.h"

#include "ZrClientFields.h"

#include "zrdefine/VexlorFields.h"
#include "zrdefine/VexlorMsgType.h"
#include "ZrReferenceHost.h"

#include <QtCore/QDateTime>
#include <QtCore/QHash>

#include <atomic>
#include <chrono>

namespace {
namespace Fields = ZrClientFields;

const QString clientOrderId = QStringLiteral("ClOrdID");

QString code(const char *text)
{
    return QString::fromLatin1(text);
}

qint64 steadyNs()
{
    const auto now = std::chrono::steady_clock::now().time_since_epoch();
    return std::chrono::duration_cast<std::chrono::nanoseconds>(now).count();
}

QString faultOf(const QVariantMap &order)
{
    if (order.value(Vexlor_Fields::Security::symbol).toString().isEmpty())
        return QStringLiteral("Order without a security");
    const QString side = order.value(Fields::side).toString();
    if (side != code("1") && side != code("2"))
        return QStringLiteral("Order without a side");
    if (!(order.value(Fields::price).toDouble() > 0))
        return QStringLiteral("Order without a price");
    if (!(order.value(Fields::orderQty).toDouble() > 0))
        return QStringLiteral("Order without a quantity");
    return QString();
}

QVariantMap reportOn(QVariantMap order, const char *status, const char *exec, double filled)
{
    const double quantity = order.value(Fields::orderQty).toDouble();
    const double price = order.value(Fields::price).toDouble();
    order.insert(Vexlor_Fields::System::msgType, Vexlor_MsgType::executionReport);
    order.insert(Fields::orderStatus, code(status));
    order.insert(Fields::execType, code(exec));
    order.insert(Fields::execId, order.value(Fields::orderId).toString() + QLatin1Char('-') + code(exec));
    order.insert(Fields::cumQty, filled);
    order.insert(Fields::leavesQty, quantity - filled);
    order.insert(Fields::cancelledQty, 0.0);
    order.insert(Fields::filledValue, filled * price);
    order.insert(Fields::fillRatio, filled / quantity);
    order.insert(Fields::fillCount, filled > 0 ? 1 : 0);
    order.insert(Fields::updateTime, order.value(Fields::orderTime));
    order.insert(Fields::updateClock, order.value(Fields::orderClock));
    if (filled > 0) {
        order.insert(Fields::averagePrice, price);
        order.insert(Fields::lastPrice, price);
        order.insert(Fields::lastQty, filled);
    }
    return order;
}
} // namespace

class ZrOrderVenue::Desk
{
public:
    Desk(ZrReferenceHost *host, const QList<QVariantMap> &accounts)
        : m_host(host)
    {
        for (const QVariantMap &account : accounts)
            m_accounts.insert(account.value(Vexlor_Fields::UserAccount::tradingAccount).toString(), account);
    }

    QList<ZrReferenceHost::Answer> take(const ZrReferenceHost::Request &request)
    {
        const QVariantMap wanted = request.records.value(0);
        const QString fault = faultOf(wanted);
        if (!fault.isEmpty())
            return {{Vexlor_MsgType::bussinessMsgReject,
                     {{{Vexlor_Fields::System::textDescription, fault},
                       {clientOrderId, wanted.value(clientOrderId)}}}}};
        const QVariantMap order = accepted(wanted);
        publish(ZrClientMsgType::order, order);
        publish(Vexlor_MsgType::executionReport, reportOn(order, "0", "0", 0));
        publish(Vexlor_MsgType::executionReport,
                reportOn(order, "2", "F", order.value(Fields::orderQty).toDouble()));
        return {{QVariant(),
                 {{{Fields::orderId, order.value(Fields::orderId)},
                   {clientOrderId, order.value(clientOrderId)},
                   {Fields::orderStatus, code("0")}}}}};
    }

private:
    QVariantMap accepted(const QVariantMap &wanted)
    {
        const QDateTime now = QDateTime::currentDateTime();
        const QString symbol = wanted.value(Vexlor_Fields::Security::symbol).toString();
        QVariantMap order =
            m_accounts.value(wanted.value(Vexlor_Fields::UserAccount::tradingAccount).toString());
        for (const QString &field :
             {Vexlor_Fields::Security::symbol, Vexlor_Fields::UserAccount::tradingAccount, clientOrderId,
              Fields::side, Fields::orderType, Fields::timeInForce, Fields::price, Fields::orderQty})
            order.insert(field, wanted.value(field));
        order.insert(Fields::securityCode, symbol.left(symbol.lastIndexOf(QLatin1Char('.'))));
        order.insert(Fields::orderId, QStringLiteral("V%1").arg(++m_orders, 6, 10, QLatin1Char('0')));
        order.insert(Fields::orderValue,
                     order.value(Fields::price).toDouble() * order.value(Fields::orderQty).toDouble());
        order.insert(Fields::orderTime, now.toMSecsSinceEpoch());
        order.insert(Fields::orderClock, now.toString(QStringLiteral("HH:mm:ss.zzz")));
        return order;
    }

    void publish(const QString &type, QVariantMap record)
    {
        record.insert(Vexlor_Fields::System::msgType, type);
        record.insert(Fields::sentNs, steadyNs());
        m_host->publish(type, {record});
    }

    ZrReferenceHost *const m_host; // not owned
    QHash<QString, QVariantMap> m_accounts;
    std::atomic<int> m_orders{0};
};

ZrOrderVenue::ZrOrderVenue(ZrReferenceHost *host, const QList<QVariantMap> &accounts)
    : m_host(host)
    , m_desk(std::make_shared<Desk>(host, accounts))
{
    const std::shared_ptr<Desk> desk = m_desk;
    m_host->registerService(messageType(),
                            [desk](const ZrReferenceHost::Request &request) { return desk->take(request); });
}

ZrOrderVenue::~ZrOrderVenue()
{
    m_host->registerService(messageType(), {});
}

QString ZrOrderVenue::messageType()
{
    return QStringLiteral("NewOrder");
}
