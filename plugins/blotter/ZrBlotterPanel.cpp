#include "ZrBlotterPanel.h"

#include "FreezeTableView.h"
#include "ZrParseTableColsCfg.h"
#include "ZrTableModel.h"
#include "ZrTablePropertySet.h"
#include "ZrTableView.h"

#include "ZrBlotterFields.h"
#include "ZrColumnTexts.h"
#include "ZrOrderBatch.h"

#include "zrcore/ZrCore.h"
#include "zrdefine/VexlorFields.h"
#include "zrdefine/VexlorValues.h"

#include <QtWidgets/QVBoxLayout>

#include <chrono>

namespace {
const QString colourRole = QString::number(Qt::ForegroundRole);
const QString rawRole = QString::number(Qt::UserRole);

bool isSummable(const ZrFieldSetting &field)
{
    const QStringList summed = {ZrBlotterFields::orderQty,     ZrBlotterFields::orderValue,
                                ZrBlotterFields::cumQty,       ZrBlotterFields::leavesQty,
                                ZrBlotterFields::cancelledQty, ZrBlotterFields::filledValue,
                                ZrBlotterFields::fillCount};
    return summed.contains(field.fieldNumber);
}

qint64 steadyNs()
{
    const auto now = std::chrono::steady_clock::now().time_since_epoch();
    return std::chrono::duration_cast<std::chrono::nanoseconds>(now).count();
}

QVariantMap equals(const QString &value)
{
    return {{Vexlor_Fields::Infomation::compareOperator, Vexlor_Values::CompareOperator::equal},
            {Vexlor_Fields::Infomation::logicOperator, Vexlor_Values::LogicOperator::andOperator},
            {Vexlor_Fields::System::filterValue, value},
            {Vexlor_Fields::Infomation::fieldComment, QString()}};
}
} // namespace

ZrBlotterPanel::ZrBlotterPanel(const QString &columnFile, QWidget *parent)
    : QWidget(parent)
    , m_view(new ZrTableView(this))
{
    auto *const layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_view);
    m_grid = translated(ZrParseTableColsCfg::parseGridConfigure(columnFile));
    m_sideColumn = columnOf(ZrBlotterFields::side);
    m_statusColumn = columnOf(ZrBlotterFields::orderStatus);
    m_symbolColumn = columnOf(Vexlor_Fields::Security::symbol);
    m_accountColumn = columnOf(Vexlor_Fields::UserAccount::tradingAccount);
    m_keyFields = keyFields();
    applyColumns();
    m_view->SetAlternatingRowColors(true);
    m_view->setItemGridShow(true);
    m_view->setSelectionBehavior(QAbstractItemView::SelectRows);
    m_view->setItemSelectable(true); // the row that a neighbour chose has to be seen
    m_view->setHeadSectionMovable(true);
    setFollowing(true);
    connect(m_view, &ZrTableView::clicked, this, &ZrBlotterPanel::tellSecurity);
    connect(m_view, &ZrTableView::activated, this, &ZrBlotterPanel::tellSecurity);
    // The skin's sheet reaches the grid before this signal: its colours are already the new ones.
    connect(ZrCore::instance(), &ZrCore::signalSkinChanged, this, &ZrBlotterPanel::recolour);
}

ZrGridSetting ZrBlotterPanel::translated(const ZrGridSetting &grid) const
{
    ZrGridSetting result;
    const QList<ZrFieldSetting> fields = grid.getFieldSetList();
    for (ZrFieldSetting field : fields) {
        field.titleName = ZrColumnTexts::title(field.titleName);
        result.addFieldSetting(field);
    }
    return result;
}

int ZrBlotterPanel::columnOf(const QString &field) const
{
    const QList<ZrFieldSetting> fields = m_grid.getFieldSetList();
    for (const ZrFieldSetting &setting : fields) {
        if (setting.fieldNumber == field)
            return setting.index;
    }
    return -1;
}

QStringList ZrBlotterPanel::keyFields() const
{
    QStringList result;
    const QList<ZrFieldSetting> fields = m_grid.getFieldSetList();
    for (const ZrFieldSetting &field : fields) {
        if (field.keyColumn)
            result.append(field.fieldNumber);
    }
    return result;
}

void ZrBlotterPanel::applyColumns()
{
    ZrTablePropertySet::setTableViewProperty(m_grid, m_view);
    const QList<ZrFieldSetting> fields = m_grid.getFieldSetList();
    // The mapping writes no bands: the blotter adds them to the heads that it made.
    HeadList heads = m_view->getHeadList();
    for (int i = 0; i < heads.size() && i < fields.size(); ++i) {
        heads[i].insert(QStringLiteral("Head_GroupId"), fields.at(i).userRoleProperty);
        heads[i].insert(QStringLiteral("Head_GroupName"), ZrColumnTexts::band(fields.at(i).userRoleProperty));
    }
    m_view->setHeadList(heads);
    for (const ZrFieldSetting &field : fields)
        m_view->setColumnWidth(field.index, field.columnWidth);
}

QList<int> ZrBlotterPanel::columnsWithoutSum() const
{
    QList<int> result;
    const QList<ZrFieldSetting> fields = m_grid.getFieldSetList();
    for (const ZrFieldSetting &field : fields) {
        if (!isSummable(field))
            result.append(field.index);
    }
    return result;
}

void ZrBlotterPanel::setSummaryShown(bool shown)
{
    m_view->setSummaryLineEnable(shown, columnsWithoutSum());
}

void ZrBlotterPanel::setFollowing(bool following)
{
    m_view->setAlwaysDisplayLatest(following);
    if (following)
        m_view->getTableView()->scrollToBottom();
}

void ZrBlotterPanel::setColumnFilter(int column, const QStringList &values)
{
    if (column < 0)
        return;
    ViewFilterList filters = m_view->getViewCurrentFilterList();
    filters.remove(column);
    for (const QString &value : values)
        filters[column].append({equals(value)});
    m_view->resetViewCurrentFilterList(filters);
    m_view->getZrTableModel()->update(); // the list is taken over without one
}

void ZrBlotterPanel::setOpenOnly(bool openOnly)
{
    setColumnFilter(m_statusColumn,
                    openOnly ? QStringList{QStringLiteral("0"), QStringLiteral("1")} : QStringList());
}

void ZrBlotterPanel::setAccount(const QString &tradingAccount)
{
    setColumnFilter(m_accountColumn, tradingAccount.isEmpty() ? QStringList() : QStringList{tradingAccount});
}

void ZrBlotterPanel::tellSecurity(const QModelIndex &index)
{
    const QString symbol = m_view->getRowData(index.row()).value(m_symbolColumn).value(rawRole).toString();
    if (!symbol.isEmpty())
        emit signalSecurityChosen(symbol);
}

void ZrBlotterPanel::selectSecurity(const QString &symbol)
{
    // From the end: that is where new orders come, and where a grid that follows them looks.
    for (int row = m_view->getRowCount() - 1; row >= 0; --row) {
        if (m_view->getRowData(row).value(m_symbolColumn).value(rawRole).toString() != symbol)
            continue;
        const int column = qMax(0, m_view->getTableView()->columnAt(0));
        m_view->setCurrentIndex(m_view->index(row, column), true);
        return;
    }
}

void ZrBlotterPanel::colourRow(const QVariantMap &message, RecordData *row) const
{
    // Buyers' colour is that of rising prices.
    const QString side = message.value(ZrBlotterFields::side).toString();
    const QColor colour = side == QLatin1String("1") ? m_view->upColor() : m_view->downColor();
    if (m_sideColumn >= 0 && colour.isValid() && !side.isEmpty())
        (*row)[m_sideColumn].insert(colourRole, colour);
}

// Rows keep the colours they were given: those of the new skin have to be given to all of them.
void ZrBlotterPanel::recolour()
{
    RecordDataList changes;
    const RecordDataList rows = m_view->getViewData();
    const QList<int> keyColumns = m_view->getKeyColumn();
    for (const RecordData &row : rows) {
        RecordData change;
        for (const int column : keyColumns)
            change.insert(column, row.value(column));
        colourRow({{ZrBlotterFields::side, row.value(m_sideColumn).value(rawRole)}}, &change);
        changes.append(change);
    }
    m_view->updataRecordDatas(changes);
}

void ZrBlotterPanel::applyMessages(const std::vector<ZrInboxMessage> &messages)
{
    const ZrOrderBatch batch(messages, m_keyFields);
    RecordDataList rows;
    rows.reserve(int(batch.records().size()));
    for (const QVariantMap &record : batch.records()) {
        RecordData row;
        ZrTablePropertySet::setTableSingleRecordData(m_grid, record, row);
        colourRow(record, &row);
        rows.append(row);
    }
    m_view->addRecordDataList(rows);
    tellApplied(messages, batch, rows);
}

// Only a row in sight is shown by the next frame; no row at the bottom edge means that all fit.
std::vector<bool> ZrBlotterPanel::rowsInSight(const RecordDataList &rows) const
{
    const QTableView *const table = m_view->getTableView();
    const int first = table->rowAt(0);
    const int last = table->rowAt(table->viewport()->height() - 1);
    std::vector<bool> inSight;
    inSight.reserve(size_t(rows.size()));
    for (const RecordData &record : rows) {
        const int row = m_view->getRowByKey(ZrTablePropertySet::getRecordKeyString(m_grid, record));
        inSight.push_back(row >= 0 && row >= first && (last < 0 || row <= last));
    }
    return inSight;
}

void ZrBlotterPanel::tellApplied(const std::vector<ZrInboxMessage> &messages, const ZrOrderBatch &batch,
                                 const RecordDataList &rows)
{
    ZrAppliedBatch applied;
    applied.appliedNs = steadyNs();
    applied.sentNs.reserve(int(messages.size()));
    const std::vector<bool> inSight = rowsInSight(rows);
    for (size_t i = 0; i < messages.size(); ++i) {
        const QVariantMap &record = messages[i].record;
        const qint64 sentNs = record.value(ZrBlotterFields::sentNs).toLongLong();
        applied.number = qMax(applied.number, record.value(ZrBlotterFields::seqNo, -1).toLongLong());
        applied.sentNs.append(sentNs);
        if (inSight[batch.recordOf(i)])
            applied.inSightNs.append(sentNs);
    }
    emit signalApplied(applied);
}
