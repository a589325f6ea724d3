#pragma once

#include "ZrFeedTime.h"
#include "ZrOrderTracker.h"

#include <QtCore/QVariantMap>

/// A message on its way to the bus.
struct ZrFeedMessage
{
    QString type;
    QVariantMap record;
};

/// What the messages of a feed added up to.
struct ZrFeedTotals
{
    qint64 events = 0;
    qint64 orders = 0; // distinct ones
    qint64 reports = 0;
    qint64 fills = 0; // reports of trades: up to two for each trade
    qint64 cancels = 0;
    qint64 rejects = 0;
    qint64 trades = 0;
    ZrDecimal volume; // of all trades
    qint64 books = 0;
};

/// Turns the events of a feed into the messages that go over the bus.
///
/// Shape:     orders, execution reports, trades and depth; records keyed by ZrClientFields.
/// Ownership: the accounts are a copy: records with the account fields, one of which each order gets by
///            its number, since recordings of a whole market tell none. Empty: orders have no account.
/// Threads:   one at a time.
class ZrFeedMessages
{
public:
    ZrFeedMessages(const QTimeZone &zone, const QList<QVariantMap> &accounts);

    /// Appends the messages of one event.
    void append(const ZrFeedEvent &event, QList<ZrFeedMessage> *messages);
    const ZrFeedTotals &totals() const { return m_totals; }
    const ZrOrderTracker &orders() const { return m_tracker; }

private:
    struct Market
    {
        ZrDecimal volume;
        ZrTurnover value;
        qint64 trades = 0;
    };

    void appendReport(const ZrExecReport &report, QList<ZrFeedMessage> *messages);
    void appendTrade(const ZrFeedEvent &event, QList<ZrFeedMessage> *messages);
    void appendDepth(const ZrFeedEvent &event, QList<ZrFeedMessage> *messages);
    QVariantMap orderRecord(const ZrOrderState &order);
    void addExecution(const ZrExecReport &report, QVariantMap *record);
    void count(const ZrExecReport &report);
    QString clock(qint64 timeNs) { return m_clock.text(timeNs); }

    ZrClockText m_clock;
    const QList<QVariantMap> m_accounts;
    ZrOrderTracker m_tracker;
    QHash<QByteArray, Market> m_markets;
    QVector<ZrExecReport> m_reports;
    ZrFeedTotals m_totals;
};
