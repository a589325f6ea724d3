// Updates of a live grid: one by one, in batches, in filter mode, with a summary line and with check boxes.
#include "ZrBench.h"
#include "ZrBenchGrids.h"
#include "ZrBenchLazy.h"
#include "ZrTableView.h"

namespace {
constexpr int UpdatesPerRound = 20000;
constexpr int FilteredPeerUpdates = 2000; // the proxy takes long for each row that enters or leaves
constexpr int BatchSize = 1000;
constexpr int SmallRows = 10000;
const char *const Unit = "rows/s";
const char *const PeerName = "QStandardItemModel, QHash, QTableView";
const char *const ProxyName = "the same under QSortFilterProxyModel";

// Our grid with so many rows, and the updates it gets.
class OurUpdates
{
public:
    explicit OurUpdates(int rows)
        : m_rows(rows)
    {
        ZrBenchData data;
        grid.load(data.records(rows));
        ZrBenchStopwatch::drain();
    }

    double ratePerSecond(bool priceToo = false)
    {
        return ZrBenchStopwatch::rateOf(UpdatesPerRound, [&](ZrBenchStopwatch &watch) {
            const RecordDataList updates = m_data.updates(ZrBenchStopwatch::HandOver, m_rows, priceToo);
            watch.time([&] {
                for (const RecordData &update : updates)
                    grid.view()->updataRecordData(update);
            });
            return updates.size();
        });
    }

    double batchRatePerSecond()
    {
        return ZrBenchStopwatch::rateOf(UpdatesPerRound, [&](ZrBenchStopwatch &watch) {
            const RecordDataList batch = m_data.updates(BatchSize, m_rows, false);
            watch.time([&] { grid.view()->updataRecordDatas(batch); });
            return batch.size();
        });
    }

    ZrBenchOurGrid grid;

private:
    ZrBenchData m_data{7};
    int m_rows;
};

class PeerUpdates
{
public:
    PeerUpdates(int rows, bool withProxy)
        : grid(withProxy)
        , m_rows(rows)
    {
        ZrBenchData data;
        QVector<ZrBenchCells> cells;
        cells.reserve(rows);
        for (int row = 0; row < rows; ++row)
            cells.append(data.row(row));
        grid.load(cells);
        ZrBenchStopwatch::drain();
    }

    double ratePerSecond(bool priceToo = false, int handOver = ZrBenchStopwatch::HandOver)
    {
        const int count = priceToo ? FilteredPeerUpdates : UpdatesPerRound;
        return ZrBenchStopwatch::rateOf(count, [&](ZrBenchStopwatch &watch) {
            const RecordDataList updates = m_data.updates(handOver, m_rows, priceToo);
            watch.time([&] {
                for (const RecordData &update : updates)
                    grid.apply(update);
            });
            return updates.size();
        });
    }

    ZrBenchPeerGrid grid;

private:
    ZrBenchData m_data{7};
    int m_rows;
};

using OurMaker = std::function<std::shared_ptr<OurUpdates>()>;
using PeerMaker = std::function<std::shared_ptr<PeerUpdates>()>;

OurMaker ourMaker(int rows, const std::function<void(OurUpdates &)> &setUp = {})
{
    return zrLazily<OurUpdates>([rows, setUp] {
        auto fixture = std::make_shared<OurUpdates>(rows);
        if (setUp)
            setUp(*fixture);
        ZrBenchStopwatch::drain();
        return fixture;
    });
}

PeerMaker filteredPeerMaker(int rows)
{
    return zrLazily<PeerUpdates>([rows] {
        auto fixture = std::make_shared<PeerUpdates>(rows, true);
        fixture->grid.proxy()->setBounds(0, ZrBenchData::MostPrice / 10);
        ZrBenchStopwatch::drain();
        return fixture;
    });
}

// Ours against our own rate of single updates of a plain grid of the same size.
ZrBenchCase besidePlain(const QString &name, const OurMaker &fixture, const OurMaker &plain)
{
    const ZrBenchRow row = {name, Unit, true, {}, "grid/update_single", ZrBenchRow::None, 0.6};
    return {row, [=] {
                const auto ours = fixture();
                const auto limit = plain();
                return ZrBenchSides{
                    [=] { return ours->ratePerSecond(); }, {}, [=] { return limit->ratePerSecond(); }};
            }};
}

ZrBenchCase filtered(const QString &name, const OurMaker &fixture, const OurMaker &plain,
                     const PeerMaker &proxy, double limitReach)
{
    const ZrBenchRow row = {
        name, Unit, true, ProxyName, "grid/update_single of so many rows", ZrBenchRow::None, limitReach};
    return {row, [=] {
                const auto ours = fixture();
                const auto peer = proxy();
                const auto limit = plain();
                return ZrBenchSides{[=] { return ours->ratePerSecond(true); },
                                    [=] { return peer->ratePerSecond(true); },
                                    [=] { return limit->ratePerSecond(true); }};
            }};
}
} // namespace

ZrBenchCases gridUpdateBenches()
{
    const OurMaker plain = ourMaker(ZrBenchData::Rows);
    const OurMaker plainSmall = ourMaker(SmallRows);
    const auto filter = [](OurUpdates &updates) { updates.grid.filterTenth(); };
    const OurMaker filteredLarge = ourMaker(ZrBenchData::Rows, filter);
    const OurMaker filteredSmall = ourMaker(SmallRows, filter);
    const OurMaker summed = ourMaker(
        ZrBenchData::Rows, [](OurUpdates &updates) { updates.grid.view()->setSummaryLineEnable(true); });
    const OurMaker checked =
        ourMaker(ZrBenchData::Rows, [](OurUpdates &updates) { updates.grid.view()->setCheckBoxShow(true); });
    const PeerMaker peer =
        zrLazily<PeerUpdates>([] { return std::make_shared<PeerUpdates>(ZrBenchData::Rows, false); });

    const ZrBenchCase single = {{"grid/update_single", Unit, true, PeerName, {}, 1.3, ZrBenchRow::None}, [=] {
                                    const auto ours = plain();
                                    const auto other = peer();
                                    return ZrBenchSides{[=] { return ours->ratePerSecond(); },
                                                        [=] { return other->ratePerSecond(); },
                                                        {}};
                                }};
    const ZrBenchCase batch = {{"grid/update_batch1000", Unit, true, PeerName, {}, 1.3, ZrBenchRow::None},
                               [=] {
                                   const auto ours = plain();
                                   const auto other = peer();
                                   return ZrBenchSides{[=] { return ours->batchRatePerSecond(); },
                                                       [=] { return other->ratePerSecond(false, BatchSize); },
                                                       {}};
                               }};
    const ZrBenchCase sizes = {
        {"grid/update_filtered_size", Unit, true, {}, "the same at 10,000 rows", ZrBenchRow::None, 1 / 1.5},
        [=] {
            const auto large = filteredLarge();
            const auto small = filteredSmall();
            return ZrBenchSides{
                [=] { return large->ratePerSecond(true); }, {}, [=] { return small->ratePerSecond(true); }};
        }};
    // No bound beside single updates at 10,000 rows: there the rows lie in the cache, and what is left is the
    // paint that rows cause by coming and going.
    return {single,
            batch,
            filtered("grid/update_filtered", filteredLarge, plain, filteredPeerMaker(ZrBenchData::Rows), 0.6),
            filtered("grid/update_filtered_10k", filteredSmall, plainSmall, filteredPeerMaker(SmallRows),
                     ZrBenchRow::None),
            sizes,
            besidePlain("grid/update_with_summary", summed, plain),
            besidePlain("grid/update_with_checks", checked, plain)};
}
