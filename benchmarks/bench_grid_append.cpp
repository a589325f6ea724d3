// Filling the grid, and appending to a full one.
#include "ZrBench.h"
#include "ZrBenchGrids.h"
#include "ZrBenchLazy.h"
#include "ZrTableView.h"

namespace {
constexpr int OurAppends = 50000;
constexpr int PeerAppends = 40; // each moves all rows of the standard model
const char *const PeerName = "QStandardItemModel, QHash, QTableView";

class OurAppender
{
public:
    // With a caller who holds the loaded rows too, a row that leaves the grid is not freed.
    OurAppender(int maximum, bool callerHolds)
        : m_callerHolds(callerHolds)
    {
        m_grid.view()->setMaxRowCount(maximum);
    }

    double ratePerSecond()
    {
        if (m_held.isEmpty())
            m_held = ZrBenchData().records(ZrBenchData::Rows);
        m_grid.load(m_held);
        if (!m_callerHolds)
            m_held.clear();
        ZrBenchStopwatch::drain();
        return ZrBenchStopwatch::rateOf(OurAppends, [&](ZrBenchStopwatch &watch) {
            RecordDataList fresh;
            for (int i = 0; i < ZrBenchStopwatch::HandOver; ++i)
                fresh.append(m_data.record(m_next++));
            watch.time([&] {
                for (const RecordData &record : qAsConst(fresh))
                    m_grid.view()->addRecordData(record);
            });
            return fresh.size();
        });
    }

private:
    ZrBenchOurGrid m_grid;
    const bool m_callerHolds;
    RecordDataList m_held;
    ZrBenchData m_data{11};
    int m_next = ZrBenchData::Rows;
};

QVector<ZrBenchCells> peerRows(int count)
{
    ZrBenchData data;
    QVector<ZrBenchCells> rows;
    rows.reserve(count);
    for (int row = 0; row < count; ++row)
        rows.append(data.row(row));
    return rows;
}

class PeerAppender
{
public:
    PeerAppender()
        : m_grid(false)
    {
        m_grid.load(peerRows(ZrBenchData::Rows));
        ZrBenchStopwatch::drain();
    }

    double ratePerSecond()
    {
        return ZrBenchStopwatch::rateOf(PeerAppends, [&](ZrBenchStopwatch &watch) {
            const ZrBenchCells cells = m_data.row(m_next++);
            watch.time([&] { m_grid.appendAndDropFirst(cells); });
            return 1;
        });
    }

private:
    ZrBenchPeerGrid m_grid;
    ZrBenchData m_data{11};
    int m_next = ZrBenchData::Rows;
};

// The limit is our own rate below the row limit: the difference is what dropping a row costs.
ZrBenchSides appendSides(bool callerHolds)
{
    const auto full = std::make_shared<OurAppender>(ZrBenchData::Rows, callerHolds);
    const auto roomy = std::make_shared<OurAppender>(10 * ZrBenchData::Rows, callerHolds);
    const auto peer = std::make_shared<PeerAppender>();
    return {[=] { return full->ratePerSecond(); }, [=] { return peer->ratePerSecond(); },
            [=] { return roomy->ratePerSecond(); }};
}

// From the rows at hand to the rows on the screen, in ms.
ZrBenchSides loadSides()
{
    const auto records = std::make_shared<RecordDataList>(ZrBenchData().records(ZrBenchData::Rows));
    const auto rows = std::make_shared<QVector<ZrBenchCells>>(peerRows(ZrBenchData::Rows));
    return {[=] {
                ZrBenchOurGrid grid;
                return 1000 * secondsOf([&] {
                           grid.load(*records);
                           ZrBenchStopwatch::drain();
                       });
            },
            [=] {
                ZrBenchPeerGrid grid(false);
                return 1000 * secondsOf([&] {
                           grid.load(*rows);
                           ZrBenchStopwatch::drain();
                       });
            },
            {}};
}
} // namespace

ZrBenchCases gridAppendBenches()
{
    const char *const limitName = "ours below the row limit";
    const ZrBenchRow held = {"grid/append_at_cap", "rows/s", true, PeerName, limitName, 100, 0.5};
    // Freeing a row of twenty cells takes longer than all that the grid does to append one: no bound beside a
    // rate that frees nothing.
    const ZrBenchRow freed = {
        "grid/append_at_cap_freed", "rows/s", true, PeerName, limitName, 100, ZrBenchRow::None};
    const ZrBenchRow load = {"grid/load", "ms", false, PeerName, {}, 0.5, ZrBenchRow::None};
    return {{held, [] { return appendSides(true); }},
            {freed, [] { return appendSides(false); }},
            {load, loadSides}};
}
