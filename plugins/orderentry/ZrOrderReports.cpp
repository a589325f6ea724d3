#include "ZrOrderReports.h"

#include "ZrOrderEntryNames.h"
#include "ZrRoleKeys.h"
#include "ZrTableView.h"

#include "zrdatabase/CDataBase.h"
#include "zrdefine/VexlorFields.h"

#include <QtWidgets/QVBoxLayout>

namespace {
namespace Field = ZrOrderEntryField;

constexpr int MostRows = 1000;
constexpr int NumberColumn = 0;
constexpr int FirstNumber = 3; // columns from here on up to the last but one stand right

struct Column
{
    const char *title;
    const QString *field;
    int widthPx;
};

// The first one is the key: an order's own number, which tells a user less than the venue's.
const Column *columns(int *count)
{
    static const Column all[] = {
        {nullptr, &Field::clientOrderId, 0},
        {QT_TRANSLATE_NOOP("ZrOrderReports", "Order"), &Field::orderId, 78},
        {QT_TRANSLATE_NOOP("ZrOrderReports", "Security"), &Vexlor_Fields::Security::symbol, 84},
        {QT_TRANSLATE_NOOP("ZrOrderReports", "Price"), &Field::price, 62},
        {QT_TRANSLATE_NOOP("ZrOrderReports", "Quantity"), &Field::orderQty, 70},
        {QT_TRANSLATE_NOOP("ZrOrderReports", "Filled"), &Field::cumQty, 62},
        {QT_TRANSLATE_NOOP("ZrOrderReports", "Status"), &Field::orderStatus, 90},
    };
    *count = int(sizeof(all) / sizeof(all[0]));
    return all;
}

QString textOf(const QString &field, const QVariant &value)
{
    if (field == Field::orderStatus)
        return CDataBase::GetInstance()->GetStaticCfgValue(field, value.toString());
    if (field == Field::price)
        return QString::number(value.toDouble(), 'f', 2);
    return value.toString();
}
} // namespace

ZrOrderReports::ZrOrderReports(QWidget *parent)
    : QWidget(parent)
    , m_view(new ZrTableView(this))
{
    auto *const layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_view);
    int count = 0;
    const Column *const all = columns(&count);
    HeadList heads;
    for (int column = 0; column < count; ++column)
        heads.append({{HEAD_DISPLAYROLE, all[column].title ? tr(all[column].title) : QString()}});
    m_view->setHeadList(heads);
    m_view->setKeyColumn({NumberColumn});
    m_view->setMaxRowCount(MostRows);
    m_view->setTableViewCaption(tr("Own orders"));
    m_view->setItemSelectable(true);
    m_view->setSelectionBehavior(QAbstractItemView::SelectRows);
    m_view->setItemGridShow(true);
    m_view->setAlwaysDisplayLatest(true);
    m_view->setColumnShow(NumberColumn, false);
    for (int column = 1; column < count; ++column) {
        m_view->setColumnWidth(column, all[column].widthPx);
        if (column >= FirstNumber && column < count - 1)
            m_view->setColumnTextAlignment(column, Qt::AlignRight | Qt::AlignVCenter);
    }
}

void ZrOrderReports::take(const QVariantMap &order)
{
    if (order.value(Field::clientOrderId).toString().isEmpty())
        return;
    int count = 0;
    const Column *const all = columns(&count);
    RecordData record;
    for (int column = 0; column < count; ++column) {
        const QString &field = *all[column].field;
        // An answer has less than a report: what it lacks stays as it was.
        if (!order.contains(field))
            continue;
        const QVariant value = order.value(field);
        record.insert(column, {{ITEM_DISPLAYROLE, textOf(field, value)}, {ITEM_USERROLE, value}});
    }
    const QString key = order.value(Field::clientOrderId).toString();
    if (m_view->getRowByKey(key) < 0)
        m_view->addRecordData(record);
    else
        m_view->updataRecordData(record);
}
