#pragma once

#include "ZrFeedEvent.h"

#include <QtCore/QHash>

#include <deque>

/// Where an order stands.
enum class ZrOrderStatus { New, PartlyFilled, Filled, Cancelled, Rejected };

/// What an execution report is about.
enum class ZrExecKind { New, Fill, Cancel, Reject };

/// An order as far as the events told it.
struct ZrOrderState
{
    QByteArray symbol;
    QByteArray number;
    ZrFeedSide side = ZrFeedSide::None;
    ZrOrderStatus status = ZrOrderStatus::New;
    bool hasPrice = false;  // false: at the market, or not told
    bool implied = false;   // known only by its trades: its quantity is what traded so far
    bool isCounted = false; // among the open orders
    qint64 createdNs = 0;
    int fills = 0;
    ZrDecimal price;
    ZrDecimal quantity;
    ZrDecimal filled;
    ZrDecimal withdrawn;
    ZrTurnover turnover;

    ZrDecimal rest() const;
    ZrDecimal averagePrice() const { return turnover.average(filled); }
    bool isFinished() const { return status != ZrOrderStatus::New && status != ZrOrderStatus::PartlyFilled; }
};

/// One change of an order: the order after it, and what changed it.
struct ZrExecReport
{
    ZrExecKind kind = ZrExecKind::New;
    bool isFirst = false; // the first report about this order
    qint64 timeNs = 0;
    ZrDecimal lastPrice;
    ZrDecimal lastQuantity;
    ZrOrderState order;
};

/// Derives execution reports from order events and trades.
///
/// Shape:   an order is named by its symbol and its number. A trade of an order that no event added
///          makes it: venues that tell only what rests in the book never add an order that traded at
///          once. Its quantity grows with its trades until an event adds it; what that event says is then
///          either the whole quantity or the rest, as the event tells.
/// Bounds:  open orders are all kept; of the finished ones the last `finishedKept`, so that a late trade
///          of an older one begins it anew.
/// Threads: one at a time.
/// Errors:  what does not fit, such as more withdrawn than there is, is cut to what there is.
class ZrOrderTracker
{
public:
    explicit ZrOrderTracker(int finishedKept = 1000000);

    /// Appends the reports that follow from the event.
    void apply(const ZrFeedEvent &event, QVector<ZrExecReport> *reports);
    int openOrders() const { return m_open; }
    int knownOrders() const { return m_orders.size(); }

private:
    using Key = QPair<QByteArray, QByteArray>;

    void add(const ZrFeedEvent &event);
    void withdraw(const ZrFeedEvent &event);
    void modify(const ZrFeedEvent &event);
    void reject(const ZrFeedEvent &event);
    void fill(const ZrFeedEvent &event, const QByteArray &number, ZrFeedSide side);
    ZrOrderState *imply(const ZrFeedEvent &event, const QByteArray &number, ZrFeedSide side);
    ZrOrderState *begin(const ZrFeedEvent &event, const QByteArray &number);
    void report(const ZrFeedEvent &event, ZrExecKind kind, ZrOrderState *order, bool isFirst = false);
    void settle(ZrOrderState *order);
    void forgetOldest();

    const int m_finishedKept;
    QHash<Key, ZrOrderState> m_orders;
    std::deque<Key> m_finished; // in the order in which they finished; may name one that opened again
    int m_open = 0;
    QVector<ZrExecReport> *m_reports = nullptr; // only during apply()
};
