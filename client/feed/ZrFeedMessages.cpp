#include "ZrFeedMessages.h"

#include "client/ZrClientFields.h"
#include "zrdefine/VexlorFields.h"
#include "zrdefine/VexlorMsgType.h"
#include "ZrFeedTime.h"

namespace {
namespace Fields = ZrClientFields;

QString text(const char *code)
{
    return QString::fromLatin1(code);
}

// Codes of the host's dictionaries.
QString sideCode(ZrFeedSide side)
{
    switch (side) {
    case ZrFeedSide::Buy:
        return text("1");
    case ZrFeedSide::Sell:
        return text("2");
    case ZrFeedSide::None:
        break;
    }
    return QString();
}

QString statusCode(ZrOrderStatus status)
{
    switch (status) {
    case ZrOrderStatus::New:
        return text("0");
    case ZrOrderStatus::PartlyFilled:
        return text("1");
    case ZrOrderStatus::Filled:
        return text("2");
    case ZrOrderStatus::Cancelled:
        return text("4");
    case ZrOrderStatus::Rejected:
        return text("8");
    }
    return QString();
}

QString execCode(ZrExecKind kind)
{
    switch (kind) {
    case ZrExecKind::New:
        return text("0");
    case ZrExecKind::Fill:
        return text("F");
    case ZrExecKind::Cancel:
        return text("4");
    case ZrExecKind::Reject:
        return text("8");
    }
    return QString();
}

// Spreads orders over accounts by their number, the same in every run and on every machine.
uint accountIndex(const ZrOrderState &order, int count)
{
    uint hash = 2166136261u;
    for (const char c : order.symbol + order.number)
        hash = (hash ^ uchar(c)) * 16777619u;
    return hash % uint(count);
}
} // namespace

ZrFeedMessages::ZrFeedMessages(const QTimeZone &zone, const QList<QVariantMap> &accounts)
    : m_clock(zone)
    , m_accounts(accounts)
{
}

void ZrFeedMessages::append(const ZrFeedEvent &event, QList<ZrFeedMessage> *messages)
{
    ++m_totals.events;
    m_reports.clear();
    m_tracker.apply(event, &m_reports);
    for (const ZrExecReport &report : qAsConst(m_reports)) {
        count(report);
        appendReport(report, messages);
    }
    if (event.kind == ZrFeedKind::Trade || event.kind == ZrFeedKind::Execute)
        appendTrade(event, messages);
    if (event.kind == ZrFeedKind::Book || event.kind == ZrFeedKind::Phase)
        appendDepth(event, messages);
}

void ZrFeedMessages::count(const ZrExecReport &report)
{
    ++m_totals.reports;
    m_totals.orders += report.isFirst ? 1 : 0;
    m_totals.fills += report.kind == ZrExecKind::Fill ? 1 : 0;
    m_totals.cancels += report.kind == ZrExecKind::Cancel ? 1 : 0;
    m_totals.rejects += report.kind == ZrExecKind::Reject ? 1 : 0;
}

QVariantMap ZrFeedMessages::orderRecord(const ZrOrderState &order)
{
    QVariantMap record;
    if (!m_accounts.isEmpty())
        record = m_accounts.at(int(accountIndex(order, m_accounts.size())));
    const QString symbol = QString::fromUtf8(order.symbol);
    const int dot = symbol.lastIndexOf(QLatin1Char('.'));
    record.insert(Vexlor_Fields::Security::symbol, symbol);
    record.insert(Fields::securityCode, dot > 0 ? symbol.left(dot) : symbol);
    record.insert(Fields::orderId, QString::fromUtf8(order.number));
    record.insert(Fields::side, sideCode(order.side));
    record.insert(Fields::orderType, order.hasPrice ? text("2") : text("1"));
    record.insert(Fields::timeInForce, text("0"));
    record.insert(Fields::price, order.price.toDouble());
    record.insert(Fields::orderQty, order.quantity.toDouble());
    ZrTurnover value;
    value.add(order.price, order.quantity);
    record.insert(Fields::orderValue, value.toDouble());
    record.insert(Fields::orderTime, order.createdNs / 1000000);
    record.insert(Fields::orderClock, clock(order.createdNs));
    return record;
}

void ZrFeedMessages::addExecution(const ZrExecReport &report, QVariantMap *record)
{
    const ZrOrderState &order = report.order;
    record->insert(Vexlor_Fields::System::msgType, Vexlor_MsgType::executionReport);
    record->insert(Fields::execId, QString::number(m_totals.reports));
    record->insert(Fields::execType, execCode(report.kind));
    record->insert(Fields::orderStatus, statusCode(order.status));
    record->insert(Fields::cumQty, order.filled.toDouble());
    record->insert(Fields::leavesQty, order.rest().toDouble());
    record->insert(Fields::cancelledQty, order.withdrawn.toDouble());
    if (order.fills > 0)
        record->insert(Fields::averagePrice, order.averagePrice().toDouble());
    record->insert(Fields::filledValue, order.turnover.toDouble());
    record->insert(Fields::fillRatio,
                   order.quantity.isZero() ? 0.0 : order.filled.toDouble() / order.quantity.toDouble());
    record->insert(Fields::fillCount, order.fills);
    record->insert(Fields::updateTime, report.timeNs / 1000000);
    record->insert(Fields::updateClock, clock(report.timeNs));
    if (report.kind == ZrExecKind::Fill) {
        record->insert(Fields::lastPrice, report.lastPrice.toDouble());
        record->insert(Fields::lastQty, report.lastQuantity.toDouble());
    }
}

void ZrFeedMessages::appendReport(const ZrExecReport &report, QList<ZrFeedMessage> *messages)
{
    QVariantMap record = orderRecord(report.order);
    if (report.isFirst) {
        record.insert(Vexlor_Fields::System::msgType, ZrClientMsgType::order);
        messages->append({ZrClientMsgType::order, record});
    }
    addExecution(report, &record);
    messages->append({Vexlor_MsgType::executionReport, record});
}

void ZrFeedMessages::appendTrade(const ZrFeedEvent &event, QList<ZrFeedMessage> *messages)
{
    Market &market = m_markets[event.symbol];
    market.volume += event.quantity;
    market.value.add(event.price, event.quantity);
    ++market.trades;
    ++m_totals.trades;
    m_totals.volume += event.quantity;
    QVariantMap record;
    record.insert(Vexlor_Fields::System::msgType, ZrClientMsgType::trade);
    record.insert(Vexlor_Fields::Security::symbol, QString::fromUtf8(event.symbol));
    record.insert(Fields::lastPrice, event.price.toDouble());
    record.insert(Fields::lastQty, event.quantity.toDouble());
    record.insert(Fields::side, sideCode(event.side));
    record.insert(Fields::buyOrderId, QString::fromUtf8(event.buyOrder));
    record.insert(Fields::sellOrderId, QString::fromUtf8(event.sellOrder));
    record.insert(Fields::tradeVolume, market.volume.toDouble());
    record.insert(Fields::tradeValue, market.value.toDouble());
    record.insert(Fields::tradeCount, market.trades);
    record.insert(Fields::updateTime, event.timeNs / 1000000);
    record.insert(Fields::updateClock, clock(event.timeNs));
    messages->append({ZrClientMsgType::trade, record});
}

void ZrFeedMessages::appendDepth(const ZrFeedEvent &event, QList<ZrFeedMessage> *messages)
{
    ++m_totals.books;
    QVariantMap record;
    record.insert(Vexlor_Fields::System::msgType, ZrClientMsgType::depth);
    record.insert(Vexlor_Fields::Security::symbol, QString::fromUtf8(event.symbol));
    record.insert(Fields::marketPhase, QString::fromUtf8(event.phase));
    if (!event.previousClose.isZero())
        record.insert(Fields::previousClose, event.previousClose.toDouble());
    if (!event.last.isZero())
        record.insert(Fields::lastPrice, event.last.toDouble());
    const auto addLevels = [&record](const QVector<ZrFeedLevel> &levels, const QString &price,
                                     const QString &qty) {
        for (int i = 0; i < levels.size(); ++i) {
            const QString number = QString::number(i + 1);
            record.insert(price + number, levels.at(i).price.toDouble());
            record.insert(qty + number, levels.at(i).quantity.toDouble());
        }
    };
    addLevels(event.asks, Fields::askPrice, Fields::askQty);
    addLevels(event.bids, Fields::bidPrice, Fields::bidQty);
    record.insert(Fields::updateTime, event.timeNs / 1000000);
    record.insert(Fields::updateClock, clock(event.timeNs));
    messages->append({ZrClientMsgType::depth, record});
}
