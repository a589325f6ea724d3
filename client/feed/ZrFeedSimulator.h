#pragma once

#include "ZrFeedSource.h"
#include "ZrSimBook.h"

#include <deque>
#include <QtCore/QStringList>
#include <random>
#include <vector>

/// A security that the simulator trades.
struct ZrSimSecurity
{
    QByteArray symbol;
    ZrDecimal previousClose;
    ZrDecimal tick = ZrDecimal::fromUnits(ZrDecimal::One / 100);
    ZrDecimal lot = ZrDecimal::fromInt(100);
};

/// Invents the order flow of a few securities: orders, partial fills, withdrawals, refusals, trades and
/// ten-level books.
///
/// Shape:   endless unless told how many events; the same seed and securities give the same events on
///          every machine: it rolls its own dice from the raw generator, whose numbers are fixed by the
///          language while its distributions are not.
/// Units:   `rate` counts messages a second of the events' own clock.
/// Threads: one at a time.
class ZrFeedSimulator : public ZrFeedSource
{
public:
    struct Options
    {
        quint32 seed = 1;
        int rate = 1000;
        int ordersAtStart = 0;     // orders that stand in the books when the day begins
        qint64 events = -1;        // negative: endless
        int openOrdersKept = 6000; // beyond it the oldest is withdrawn
    };

    ZrFeedSimulator(const Options &options, const std::vector<ZrSimSecurity> &securities);

    bool next(ZrFeedEvent *event) override;
    QTimeZone zone() const override;
    qint64 linesSkipped() const override { return 0; }
    QString problems() const override { return QString(); }

private:
    struct Market
    {
        ZrSimSecurity security;
        ZrSimBook book;
        ZrDecimal last;
    };
    struct Open
    {
        size_t market = 0;
        ZrFeedSide side = ZrFeedSide::None;
        QByteArray number;
        ZrDecimal price;
    };

    quint32 roll(quint32 sides) { return quint32((quint64(m_random()) * sides) >> 32); }
    void openMarkets();
    void step();
    void enterOrder(size_t index);
    void refuseOrder(size_t index);
    void withdrawOne(size_t place);
    void showBook(size_t index);
    ZrDecimal somePrice(const Market &market, ZrFeedSide side);
    ZrFeedEvent begin(ZrFeedKind kind, const Market &market);
    void push(const ZrFeedEvent &event, int messages);

    const Options m_options;
    std::mt19937 m_random;
    std::vector<Market> m_markets;
    std::deque<Open> m_open; // oldest first; may name orders that traded meanwhile
    std::deque<ZrFeedEvent> m_ready;
    qint64 m_timeNs = 0;
    qint64 m_given = 0;
    qint64 m_sequence = 0;
    qint64 m_nextOrder = 1;
};
