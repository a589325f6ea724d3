// From a click to rows right again: sorting by a number and by a text, and filtering.
#include "ZrBench.h"
#include "ZrBenchGrids.h"
#include "ZrBenchLazy.h"
#include "ZrRoleKeys.h"
#include "ZrTableView.h"

#include <QtWidgets/QTableView>

#include <algorithm>

namespace {
constexpr int ManyRows = 1000000;
constexpr int FewColumns = ZrBenchData::PriceColumn + 1; // of a million rows; a sort moves rows, not cells
constexpr int OtherText = ZrBenchData::NameColumn + 1;   // unrelated order to start from
const char *const PeerName = "QSortFilterProxyModel on QStandardItemModel";
const char *const LimitName = "values, std::stable_sort, rows moved";

template<typename Value>
void bareSort(RecordDataList &rows, int column)
{
    QVector<QPair<Value, int>> keys;
    keys.reserve(rows.size());
    for (int row = 0; row < rows.size(); ++row) {
        const auto cell = rows.at(row).constFind(column);
        keys.append(qMakePair(cell->constFind(ITEM_USERROLE)->value<Value>(), row));
    }
    std::stable_sort(keys.begin(), keys.end(),
                     [](const auto &left, const auto &right) { return left.first < right.first; });
    RecordDataList sorted;
    sorted.reserve(rows.size());
    for (const auto &key : keys)
        sorted.append(rows.at(key.second));
    rows.swap(sorted);
}

void bareSortBy(RecordDataList &rows, int column)
{
    if (column < ZrBenchData::FirstDouble)
        bareSort<QString>(rows, column);
    else
        bareSort<double>(rows, column);
}

class SortFixture
{
public:
    SortFixture(int rows, int columns)
        : m_ours(columns)
        , m_peer(true, columns)
    {
        ZrBenchData data(1, columns);
        QVector<ZrBenchCells> cells;
        cells.reserve(rows);
        m_bare.reserve(rows);
        for (int row = 0; row < rows; ++row) {
            cells.append(data.row(row));
            m_bare.append(ZrBenchData::toRecord(cells.constLast()));
        }
        m_ours.load(m_bare);
        m_peer.load(cells);
        ZrBenchStopwatch::drain();
    }

    // Each starts from the order of another column, so that no side sorts what is sorted already.
    double ourSortMs(int column)
    {
        ourSort(OtherText);
        return 1000 * secondsOf([&] { ourSort(column); });
    }
    double peerSortMs(int column)
    {
        peerSort(OtherText);
        return 1000 * secondsOf([&] { peerSort(column); });
    }
    double bareSortMs(int column)
    {
        bareSortBy(m_bare, OtherText);
        return 1000 * secondsOf([&] { bareSortBy(m_bare, column); });
    }
    double ourFilterMs()
    {
        m_ours.view()->setViewFilterable(true);
        m_ours.showAll();
        ZrBenchStopwatch::drain();
        return 1000 * secondsOf([&] {
                   m_ours.filterTenth();
                   ZrBenchStopwatch::drain();
               });
    }
    double peerFilterMs()
    {
        m_peer.proxy()->setBounds(0, ZrBenchData::MostPrice);
        ZrBenchStopwatch::drain();
        return 1000 * secondsOf([&] {
                   m_peer.proxy()->setBounds(0, ZrBenchData::MostPrice / 10);
                   ZrBenchStopwatch::drain();
               });
    }

private:
    void ourSort(int column)
    {
        m_ours.view()->setSortIndicator(column, Qt::AscendingOrder);
        ZrBenchStopwatch::drain();
    }
    void peerSort(int column)
    {
        m_peer.view()->sortByColumn(column, Qt::AscendingOrder);
        ZrBenchStopwatch::drain();
    }

    ZrBenchOurGrid m_ours;
    ZrBenchPeerGrid m_peer;
    RecordDataList m_bare;
};

using Maker = std::function<std::shared_ptr<SortFixture>()>;

Maker makerOf(int rows, int columns)
{
    return zrLazily<SortFixture>([=] { return std::make_shared<SortFixture>(rows, columns); });
}

ZrBenchCase sortCase(const QString &name, int column, const Maker &maker)
{
    const ZrBenchRow row = {name, "ms", false, PeerName, LimitName, 0.35, 2.5};
    return {row, [=] {
                const auto fixture = maker();
                return ZrBenchSides{[=] { return fixture->ourSortMs(column); },
                                    [=] { return fixture->peerSortMs(column); },
                                    [=] { return fixture->bareSortMs(column); }};
            }};
}
} // namespace

ZrBenchCases gridSortFilterBenches()
{
    const Maker maker = makerOf(ZrBenchData::Rows, ZrBenchData::Columns);
    // Not shared: its memory goes with the row.
    const Maker large = [] { return std::make_shared<SortFixture>(ManyRows, FewColumns); };
    const ZrBenchCase filter = {
        {"grid/filter_10pct", "ms", false, PeerName, {}, 0.05, ZrBenchRow::None}, [=] {
            const auto fixture = maker();
            return ZrBenchSides{
                [=] { return fixture->ourFilterMs(); }, [=] { return fixture->peerFilterMs(); }, {}};
        }};
    return {sortCase("grid/sort_number", ZrBenchData::PriceColumn, maker),
            sortCase("grid/sort_text", ZrBenchData::NameColumn, maker),
            sortCase("grid/sort_number_1m", ZrBenchData::PriceColumn, large), filter};
}
