#include "ZrOrderTracker.h"

ZrDecimal ZrOrderState::rest() const
{
    const ZrDecimal left = quantity - filled - withdrawn;
    const bool over = status == ZrOrderStatus::Rejected || left < ZrDecimal();
    return over ? ZrDecimal() : left;
}

ZrOrderTracker::ZrOrderTracker(int finishedKept)
    : m_finishedKept(finishedKept)
{
}

void ZrOrderTracker::apply(const ZrFeedEvent &event, QVector<ZrExecReport> *reports)
{
    m_reports = reports;
    switch (event.kind) {
    case ZrFeedKind::Add:
        add(event);
        break;
    case ZrFeedKind::Cancel:
    case ZrFeedKind::Delete:
        withdraw(event);
        break;
    case ZrFeedKind::Modify:
        modify(event);
        break;
    case ZrFeedKind::Reject:
        reject(event);
        break;
    case ZrFeedKind::Execute:
    case ZrFeedKind::Fill:
        fill(event, event.order, event.side);
        break;
    case ZrFeedKind::Trade:
        fill(event, event.buyOrder, ZrFeedSide::Buy);
        fill(event, event.sellOrder, ZrFeedSide::Sell);
        if (event.buyOrder.isEmpty() && event.sellOrder.isEmpty())
            fill(event, event.order, event.side);
        break;
    case ZrFeedKind::Book:
    case ZrFeedKind::Phase:
    case ZrFeedKind::Ignore:
        break;
    }
    m_reports = nullptr;
    forgetOldest();
}

ZrOrderState *ZrOrderTracker::begin(const ZrFeedEvent &event, const QByteArray &number)
{
    const Key key(event.symbol, number);
    const auto known = m_orders.constFind(key);
    if (known != m_orders.cend() && known->isCounted)
        --m_open;
    ZrOrderState order;
    order.symbol = event.symbol;
    order.number = number;
    order.createdNs = event.timeNs;
    return &*m_orders.insert(key, order);
}

void ZrOrderTracker::add(const ZrFeedEvent &event)
{
    const auto known = m_orders.find({event.symbol, event.order});
    const bool traded = known != m_orders.end() && known->implied;
    ZrOrderState *const order = traded ? &*known : begin(event, event.order);
    order->implied = false;
    order->side = event.side == ZrFeedSide::None ? order->side : event.side;
    order->price = event.price;
    order->hasPrice = event.hasPrice;
    order->quantity =
        event.quantityIsRest ? order->filled + event.quantity : qMax(event.quantity, order->filled);
    report(event, ZrExecKind::New, order, !traded);
}

// An order that began before the recording did, or that is told only by its trades.
ZrOrderState *ZrOrderTracker::imply(const ZrFeedEvent &event, const QByteArray &number, ZrFeedSide side)
{
    ZrOrderState *const order = begin(event, number);
    order->implied = true;
    order->side = side;
    order->price = event.price;
    order->hasPrice = event.hasPrice;
    order->quantity = event.quantity;
    report(event, ZrExecKind::New, order, true);
    return order;
}

void ZrOrderTracker::withdraw(const ZrFeedEvent &event)
{
    const auto known = m_orders.find({event.symbol, event.order});
    ZrOrderState *const order = known != m_orders.end() ? &*known : imply(event, event.order, event.side);
    const ZrDecimal rest = order->rest();
    if (order->isFinished())
        return;
    const bool whole = event.kind == ZrFeedKind::Delete || !event.hasQuantity || event.quantity > rest;
    const ZrDecimal taken = whole ? rest : event.quantity;
    order->withdrawn += taken;
    report(event, ZrExecKind::Cancel, order);
}

void ZrOrderTracker::modify(const ZrFeedEvent &event)
{
    const auto known = m_orders.find({event.symbol, event.order});
    if (known == m_orders.end() || (!event.newOrder.isEmpty() && event.newOrder != event.order)) {
        // A new number is a new order to whoever looks on: the old one ends.
        ZrFeedEvent fresh = event;
        fresh.order = event.newOrder.isEmpty() ? event.order : event.newOrder;
        if (known != m_orders.end()) {
            fresh.side = event.side == ZrFeedSide::None ? known->side : event.side;
            fresh.price = event.hasPrice ? event.price : known->price;
            fresh.hasPrice = event.hasPrice || known->hasPrice;
            fresh.quantity = event.hasQuantity ? event.quantity : known->rest();
            ZrFeedEvent end = event;
            end.kind = ZrFeedKind::Delete;
            withdraw(end);
        }
        add(fresh);
        return;
    }
    if (event.hasPrice)
        known->price = event.price;
    known->hasPrice = known->hasPrice || event.hasPrice;
    if (event.hasQuantity) {
        const ZrDecimal gone = known->filled + known->withdrawn;
        known->quantity = event.quantityIsRest ? gone + event.quantity : qMax(event.quantity, gone);
    }
    report(event, ZrExecKind::New, &*known);
}

void ZrOrderTracker::reject(const ZrFeedEvent &event)
{
    const auto known = m_orders.find({event.symbol, event.order});
    ZrOrderState *const order = known != m_orders.end() ? &*known : imply(event, event.order, event.side);
    if (order->isFinished())
        return;
    order->implied = false;
    order->status = ZrOrderStatus::Rejected;
    report(event, ZrExecKind::Reject, order);
}

void ZrOrderTracker::fill(const ZrFeedEvent &event, const QByteArray &number, ZrFeedSide side)
{
    if (number.isEmpty())
        return;
    const auto known = m_orders.find({event.symbol, number});
    ZrOrderState *const order = known != m_orders.end() ? &*known : imply(event, number, side);
    const ZrDecimal price = event.hasPrice ? event.price : order->price;
    order->filled += event.quantity;
    order->turnover.add(price, event.quantity);
    ++order->fills;
    // A trade beyond the quantity told: the trade did happen.
    order->quantity = qMax(order->quantity, order->filled + order->withdrawn);
    if (order->status != ZrOrderStatus::Rejected)
        order->status = ZrOrderStatus::PartlyFilled;
    report(event, ZrExecKind::Fill, order);
    m_reports->last().lastPrice = price;
    m_reports->last().lastQuantity = event.quantity;
}

void ZrOrderTracker::settle(ZrOrderState *order)
{
    if (order->status == ZrOrderStatus::Rejected)
        return;
    const bool traded = !order->filled.isZero();
    if (!order->rest().isZero())
        order->status = traded ? ZrOrderStatus::PartlyFilled : ZrOrderStatus::New;
    else if (!order->withdrawn.isZero())
        order->status = ZrOrderStatus::Cancelled;
    else
        order->status = traded ? ZrOrderStatus::Filled : ZrOrderStatus::New;
}

void ZrOrderTracker::report(const ZrFeedEvent &event, ZrExecKind kind, ZrOrderState *order, bool isFirst)
{
    settle(order);
    const bool isOpen = !order->isFinished();
    m_open += int(isOpen) - int(order->isCounted);
    if (!isOpen && (order->isCounted || isFirst))
        m_finished.emplace_back(order->symbol, order->number);
    order->isCounted = isOpen;
    ZrExecReport result;
    result.kind = kind;
    result.isFirst = isFirst;
    result.timeNs = event.timeNs;
    result.order = *order;
    m_reports->append(result);
}

void ZrOrderTracker::forgetOldest()
{
    while (int(m_finished.size()) > m_finishedKept) {
        const auto known = m_orders.find(m_finished.front());
        if (known != m_orders.end() && known->isFinished())
            m_orders.erase(known);
        m_finished.pop_front();
    }
}
