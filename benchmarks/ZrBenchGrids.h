#pragma once

#include "ZrBenchData.h"

#include <QtCore/QHash>
#include <QtCore/QSortFilterProxyModel>

#include <memory>

class QStandardItem;
class QStandardItemModel;
class QTableView;
class ZrTableView;

/// Serves the event loop every 16 ms of processor time, as a screen of 60 Hz asks for, between the operations
/// of a burst.
class ZrBenchPacer
{
public:
    ZrBenchPacer();
    void tick(int operations = 1);
    /// All that is outstanding, paints included.
    static void drain();

private:
    double m_lastSeconds;
    int m_operations = 0; // since the clock was last looked at, which takes a system call
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
    void apply(const ZrBenchUpdate &update);
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
