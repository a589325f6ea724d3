// Filling the grid, and appending to a full one.
#include "ZrBench.h"
#include "ZrBenchGrids.h"
#include "ZrBenchLazy.h"
#include "ZrTableView.h"

namespace {
constexpr int OurAppends = 4000;
constexpr int PeerAppends = 40; // each moves all rows of the standard model
const char *const PeerName = "QStandardItemModel, QHash, QTableView";

class OurAppender
{
public:
    explicit OurAppender(int maximum)
        : m_records(ZrBenchData().records(ZrBenchData::Rows))
    {
        m_grid.view()->setMaxRowCount(maximum);
    }

    double ratePerSecond()
    {
        m_grid.load(m_records);
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
    RecordDataList m_records;
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

ZrBenchSides appendSides()
{
    const auto full = std::make_shared<OurAppender>(ZrBenchData::Rows);
    const auto roomy = std::make_shared<OurAppender>(10 * ZrBenchData::Rows);
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
    return {
        {{"grid/append_at_cap", "rows/s", true, PeerName, "ours below the row limit", 100, 0.5}, appendSides},
        {{"grid/load", "ms", false, PeerName, {}, 0.5, ZrBenchRow::None}, loadSides}};
}
