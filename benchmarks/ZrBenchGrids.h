#pragma once

#include "ZrBenchData.h"

#include <QtCore/QHash>
#include <QtCore/QSortFilterProxyModel>

#include <functional>
#include <memory>

class QStandardItem;
class QStandardItemModel;
class QTableView;
class ZrTableView;

/// Times the operations of a burst between which data are made, and serves the event loop after every 16 ms
/// of them, as a screen of 60 Hz asks for. What the event loop does counts, what the data cost doesn't.
class ZrBenchStopwatch
{
public:
    /// Operations whose data are made at once: few, so that they come to the grid as fresh as from the bus.
    static constexpr int HandOver = 20;

    void time(const std::function<void()> &operations);
    double seconds() const { return m_seconds; }

    /// Operations a second. `handOver` makes the data of some, times them, and says how many they were.
    static double rateOf(int atLeast, const std::function<int(ZrBenchStopwatch &)> &handOver);
    /// All that is outstanding, paints included.
    static void drain();

private:
    double m_seconds = 0;
    double m_servedSeconds = 0; // m_seconds when the event loop last turned
};

/// Our grid in a window of 1400 x 800.
class ZrBenchOurGrid
{
public:
    explicit ZrBenchOurGrid(int columns = ZrBenchData::Columns);
    ~ZrBenchOurGrid();
    ZrTableView *view() const { return m_view.get(); }
    void load(const RecordDataList &records);
    /// Filter mode with the rows whose price lies in the lowest tenth.
    void filterTenth();
    void showAll();

private:
    void setFilter(const ViewFilterList &filters);
    const std::unique_ptr<ZrTableView> m_view;
};

/// Passes rows whose raw price lies within bounds, read as a double.
class ZrBenchPriceFilter : public QSortFilterProxyModel
{
    Q_OBJECT
public:
    using QSortFilterProxyModel::QSortFilterProxyModel;
    void setBounds(double low, double high);

protected:
    bool filterAcceptsRow(int sourceRow, const QModelIndex &sourceParent) const override;

private:
    double m_low = 0;
    double m_high = ZrBenchData::MostPrice;
};

/// The grid a user would write with the toolkit: standard items, a hash from key to row, and a proxy for
/// sorting and filtering where one is asked for.
class ZrBenchPeerGrid
{
public:
    explicit ZrBenchPeerGrid(bool withProxy, int columns = ZrBenchData::Columns);
    ~ZrBenchPeerGrid();
    QTableView *view() const { return m_view.get(); }
    ZrBenchPriceFilter *proxy() const { return m_proxy.get(); }
    void load(const QVector<ZrBenchCells> &rows);
    /// The record as our grid gets it, cell by cell with both roles at once.
    void apply(const RecordData &update);
    /// Appends a row and drops the first one.
    void appendAndDropFirst(const ZrBenchCells &cells);

    static QList<QStandardItem *> itemsOf(const ZrBenchCells &cells);

private:
    void installModel(std::unique_ptr<QStandardItemModel> model);

    const std::unique_ptr<QTableView> m_view;
    std::unique_ptr<ZrBenchPriceFilter> m_proxy;
    std::unique_ptr<QStandardItemModel> m_model;
    QHash<QString, int> m_rowOfKey;
    int m_dropped = 0; // rows that went at the front; keeps the hash right without touching it
    int m_columns;
};

/// The lowest tenth of the prices, as a filter of our grid.
ViewFilterList tenthFilter();
