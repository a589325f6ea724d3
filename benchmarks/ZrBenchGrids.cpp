#include "ZrBenchGrids.h"

#include "ZrBench.h"
#include "ZrRoleKeys.h"
#include "ZrTableModel.h"
#include "ZrTableView.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QFile>
#include <QtGui/QStandardItemModel>
#include <QtWidgets/QHeaderView>
#include <QtWidgets/QTableView>
#include <zrdefine/VexlorFields.h>
#include <zrdefine/VexlorValues.h>

namespace {
constexpr double FrameSeconds = 0.016;
const QSize WindowSize(1400, 800);
constexpr int RowHeightPx = 22; // as the sheet has it for ours

// One sheet for both sides; what it sets by the name of our class has no meaning on the other.
QString styleSheet()
{
    QFile file(QStringLiteral(ZR_BENCH_STYLE_SHEET));
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}
} // namespace

void ZrBenchStopwatch::time(const std::function<void()> &operations)
{
    m_seconds += secondsOf(operations);
    if (m_seconds - m_servedSeconds < FrameSeconds)
        return;
    m_seconds += secondsOf([] { QCoreApplication::processEvents(); });
    m_servedSeconds = m_seconds;
}

double ZrBenchStopwatch::rateOf(int atLeast, const std::function<int(ZrBenchStopwatch &)> &handOver)
{
    ZrBenchStopwatch watch;
    int operations = 0;
    while (operations < atLeast)
        operations += handOver(watch);
    watch.time(drain);
    return operations / watch.seconds();
}

void ZrBenchStopwatch::drain()
{
    // A row that came makes a layout due, a layout asks for a paint, and each waits for its own turn.
    constexpr int Turns = 3;
    for (int turn = 0; turn < Turns; ++turn) {
        QCoreApplication::sendPostedEvents();
        QCoreApplication::processEvents();
    }
}

ViewFilterList tenthFilter()
{
    using namespace Vexlor_Fields;
    const auto condition = [](const QString &comparison, double value) {
        return QVariantMap{{Infomation::compareOperator, comparison},
                           {Infomation::logicOperator, Vexlor_Values::LogicOperator::andOperator},
                           {System::filterValue, value}};
    };
    return {{ZrBenchData::PriceColumn,
             {{condition(Vexlor_Values::CompareOperator::greaterOrEqual, 0.0),
               condition(Vexlor_Values::CompareOperator::lessOrEqual, ZrBenchData::MostPrice / 10)}}}};
}

ZrBenchOurGrid::ZrBenchOurGrid(int columns)
    : m_view(new ZrTableView)
{
    HeadList heads = ZrBenchData::heads(columns);
    m_view->setHeadList(heads);
    m_view->setKeyColumn({ZrBenchData::KeyColumn});
    m_view->setStyleSheet(styleSheet());
    m_view->resize(WindowSize);
    m_view->show();
    ZrBenchStopwatch::drain();
}

ZrBenchOurGrid::~ZrBenchOurGrid() = default;

void ZrBenchOurGrid::load(const RecordDataList &records)
{
    m_view->updateRecordDataList(records);
}

void ZrBenchOurGrid::filterTenth()
{
    m_view->setViewFilterable(true);
    setFilter(tenthFilter());
}

void ZrBenchOurGrid::showAll()
{
    setFilter({});
}

void ZrBenchOurGrid::setFilter(const ViewFilterList &filters)
{
    m_view->resetViewCurrentFilterList(filters);
    m_view->getZrTableModel()->update();
}

void ZrBenchPriceFilter::setBounds(double low, double high)
{
    m_low = low;
    m_high = high;
    invalidateFilter();
}

bool ZrBenchPriceFilter::filterAcceptsRow(int sourceRow, const QModelIndex &sourceParent) const
{
    const QModelIndex index = sourceModel()->index(sourceRow, ZrBenchData::PriceColumn, sourceParent);
    const double price = index.data(Qt::UserRole).toDouble();
    return price >= m_low && price <= m_high;
}

ZrBenchPeerGrid::ZrBenchPeerGrid(bool withProxy, int columns)
    : m_view(new QTableView)
    , m_columns(columns)
{
    // As ours to look at: lines between the cells, alternating rows, no frame, low rows, pixels sideways.
    m_view->setShowGrid(true);
    m_view->setAlternatingRowColors(true);
    m_view->setFrameShape(QFrame::NoFrame);
    m_view->setSelectionMode(QAbstractItemView::SingleSelection);
    m_view->setHorizontalScrollMode(QAbstractItemView::ScrollPerPixel);
    m_view->setAutoScroll(false);
    m_view->verticalHeader()->hide();
    m_view->verticalHeader()->setDefaultSectionSize(RowHeightPx);
    m_view->setStyleSheet(styleSheet());
    if (withProxy) {
        m_proxy.reset(new ZrBenchPriceFilter);
        m_proxy->setSortRole(Qt::UserRole);
    }
    installModel(std::make_unique<QStandardItemModel>(0, columns));
    m_view->resize(WindowSize);
    m_view->show();
    ZrBenchStopwatch::drain();
}

ZrBenchPeerGrid::~ZrBenchPeerGrid() = default;

void ZrBenchPeerGrid::installModel(std::unique_ptr<QStandardItemModel> model)
{
    if (m_proxy) {
        m_proxy->setSourceModel(model.get());
        m_view->setModel(m_proxy.get());
    } else {
        m_view->setModel(model.get());
    }
    m_model = std::move(model);
}

QList<QStandardItem *> ZrBenchPeerGrid::itemsOf(const ZrBenchCells &cells)
{
    QList<QStandardItem *> items;
    items.reserve(cells.size());
    for (const ZrBenchCell &cell : cells) {
        auto *item = new QStandardItem(cell.text);
        item->setData(cell.raw, Qt::UserRole);
        items.append(item);
    }
    return items;
}

void ZrBenchPeerGrid::load(const QVector<ZrBenchCells> &rows)
{
    // Filled before the view sees it: no signal, no layout per row.
    auto model = std::make_unique<QStandardItemModel>(rows.size(), m_columns);
    m_rowOfKey.clear();
    m_rowOfKey.reserve(rows.size());
    m_dropped = 0;
    for (int row = 0; row < rows.size(); ++row) {
        const ZrBenchCells &cells = rows.at(row);
        const QList<QStandardItem *> items = itemsOf(cells);
        for (int column = 0; column < items.size(); ++column)
            model->setItem(row, column, items.at(column));
        m_rowOfKey.insert(cells.at(ZrBenchData::KeyColumn).text, row);
    }
    installModel(std::move(model));
}

void ZrBenchPeerGrid::apply(const RecordData &update)
{
    const QString key = update.value(ZrBenchData::KeyColumn).value(ITEM_DISPLAYROLE).toString();
    const auto found = m_rowOfKey.constFind(key);
    if (found == m_rowOfKey.constEnd())
        return;
    for (auto cell = update.constBegin(); cell != update.constEnd(); ++cell) {
        if (cell.key() == ZrBenchData::KeyColumn)
            continue;
        // Both roles at once: one signal per cell.
        const QMap<int, QVariant> roles = {{Qt::DisplayRole, cell->value(ITEM_DISPLAYROLE)},
                                           {Qt::UserRole, cell->value(ITEM_USERROLE)}};
        m_model->setItemData(m_model->index(found.value() - m_dropped, cell.key()), roles);
    }
}

void ZrBenchPeerGrid::appendAndDropFirst(const ZrBenchCells &cells)
{
    m_rowOfKey.insert(cells.at(ZrBenchData::KeyColumn).text, m_dropped + m_model->rowCount());
    m_model->appendRow(itemsOf(cells));
    m_rowOfKey.remove(m_model->item(0, ZrBenchData::KeyColumn)->text());
    m_model->removeRow(0);
    ++m_dropped;
}
