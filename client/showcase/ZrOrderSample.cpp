#include "ZrOrderSample.h"

#include "ZrRoleKeys.h"
#include "ZrShowcase.h"
#include "ZrTableView.h"

#include "zrcore/ZrCore.h"

#include <QtCore/QLocale>

namespace {
struct Order
{
    const char *symbol;
    const char *name;
    bool buys;
    double price;
    int quantity;
};

// No such companies.
constexpr Order orders[ZrOrderSample::MostRows] = {
    {"600600.SH", "岑菁航运", false, 57.15, 5300},   {"600200.SH", "颢岚纺织", true, 61.14, 1000},
    {"688289.SH", "鹭宸化工", false, 121.51, 3600},  {"601097.SH", "沅芮软件", false, 22.35, 1400},
    {"300589.SZ", "桐郁新材", true, 115.18, 220000}, {"601297.SH", "昀崧环保", true, 36.76, 2500},
};

ItemRoleMap cell(const QString &text, const QVariant &raw)
{
    return {{ITEM_DISPLAYROLE, text}, {ITEM_USERROLE, raw}};
}

ItemRoleMap sideCell(const Order &order, const ZrTableView &view)
{
    ItemRoleMap side = cell(order.buys ? ZrShowcase::tr("Buy") : ZrShowcase::tr("Sell"), order.buys ? 1 : 2);
    side.insert(ITEM_FOREGROUNDROLE, order.buys ? view.upColor() : view.downColor());
    return side;
}

RecordData record(const Order &order, const ZrTableView &view)
{
    const QString symbol = QString::fromLatin1(order.symbol);
    const QString name = QString::fromUtf8(order.name);
    return {{ZrOrderSample::Symbol, cell(symbol, symbol)},
            {ZrOrderSample::Name, cell(name, name)},
            {ZrOrderSample::Side, sideCell(order, view)},
            {ZrOrderSample::Price, cell(QString::number(order.price, 'f', 2), order.price)},
            {ZrOrderSample::Quantity, cell(QLocale().toString(order.quantity), order.quantity)}};
}

HeadList heads(bool bands)
{
    const QStringList titles = {ZrShowcase::tr("Symbol"), ZrShowcase::tr("Name"), ZrShowcase::tr("Side"),
                                ZrShowcase::tr("Price"), ZrShowcase::tr("Quantity")};
    HeadList list;
    for (int column = 0; column < titles.size(); ++column) {
        QMap<QString, QVariant> head{{HEAD_DISPLAYROLE, titles.at(column)}};
        if (bands) {
            const QString band =
                column < ZrOrderSample::Side ? ZrShowcase::tr("Security") : ZrShowcase::tr("Order");
            head.insert(HEAD_GROUPID, band);
            head.insert(HEAD_GROUPNAME, band);
        }
        list.append(head);
    }
    return list;
}

void arrangeColumns(ZrTableView *view)
{
    const int widths[] = {76, 62, 54, 60, 58};
    for (int column = ZrOrderSample::Symbol; column <= ZrOrderSample::Quantity; ++column)
        view->setColumnWidth(column, widths[column]);
    for (const int column : {ZrOrderSample::Symbol, ZrOrderSample::Name})
        view->setColumnTextAlignment(column, int(Qt::AlignLeft | Qt::AlignVCenter));
    for (const int column : {ZrOrderSample::Price, ZrOrderSample::Quantity})
        view->setColumnTextAlignment(column, int(Qt::AlignRight | Qt::AlignVCenter));
    view->setColumnTextAlignment(ZrOrderSample::Side, int(Qt::AlignCenter));
    view->setStretchLastSection(true);
}

void fill(ZrTableView *view, int rows)
{
    RecordDataList list;
    for (int row = 0; row < qMin(rows, ZrOrderSample::MostRows); ++row)
        list.append(record(orders[row], *view));
    view->addRecordDataList(list);
}
// Rows keep the colours that they were given.
void recolour(ZrTableView *view)
{
    const int rows = view->getRowCount();
    for (int row = 0; row < rows; ++row)
        view->updataRecordData(
            {{ZrOrderSample::Symbol, {{ITEM_USERROLE, QString::fromLatin1(orders[row].symbol)}}},
             {ZrOrderSample::Side, sideCell(orders[row], *view)}});
}
} // namespace

ZrTableView *ZrOrderSample::make(int rows, Parts parts)
{
    auto *const view = new ZrTableView(nullptr);
    view->setTableViewCaption(ZrShowcase::tr("Orders"));
    if (parts.testFlag(SerialNumbers))
        view->setSerialNumberColumnPropety(ZrViewModel::SerialNumAscending);
    view->setCheckBoxShow(parts.testFlag(CheckBoxes));
    HeadList list = heads(parts.testFlag(Bands));
    view->setHeadList(list);
    view->setKeyColumn({Symbol});
    arrangeColumns(view);
    for (const int column : {Symbol, Side, Quantity})
        view->setColumnFilterable(column, parts.testFlag(FilterButtons));
    view->SetAlternatingRowColors(true);
    view->setItemGridShow(true);
    view->setItemSelectable(true);
    view->setSelectionBehavior(QAbstractItemView::SelectRows);
    view->setFixedSize(size());
    view->ensurePolished(); // only then does it know the skin's colours
    fill(view, rows);
    QObject::connect(ZrCore::instance(), &ZrCore::signalSkinChanged, view, [view] { recolour(view); });
    return view;
}
