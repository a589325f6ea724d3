#include "ZrParamInitialTable.h"

#include "ZrAlgoParamSettingHorizontalViewDeletage.h"
#include "ZrHeaderView.h"
#include "ZrModelIndex.h"
#include "ZrParamCheck.h"
#include "ZrParamText.h"
#include "ZrRoleKeys.h"
#include "ZrTableView.h"

#include "zrdefine/Constants.h"

namespace {
const QChar Blank = QLatin1Char(' '); // stored by the key columns of the row that waits to be filled in

QString idOf(const QVariantMap &record)
{
    return record.value(Constants::STRATEGYPARAM_PARAMID).toString();
}

bool isKey(const QVariantMap &record)
{
    return record.value(Constants::STRATEGYPARAM_KEY).toBool();
}

QList<QVariantMap> columnsOf(const QVariantMap &entry)
{
    QList<QVariantMap> columns;
    const QVariantList list = entry.value(Constants::STRATEGYPARAM_INITIALPARAMVIEWPARAMLIST).toList();
    for (const QVariant &record : list)
        columns.append(record.toMap());
    return columns;
}

QString stored(const RecordData &row, int column)
{
    return row.value(column).value(ITEM_USERROLE).toString();
}

bool isBlank(const QList<QVariantMap> &columns, const RecordData &row)
{
    for (int column = 0; column < columns.size(); ++column) {
        if (isKey(columns.at(column)) && stored(row, column) == Blank)
            return true;
    }
    return false;
}

RecordData blankRow(const QList<QVariantMap> &columns)
{
    RecordData row;
    for (int column = 0; column < columns.size(); ++column) {
        if (isKey(columns.at(column)))
            row.insert(column, {{ITEM_DISPLAYROLE, QString()}, {ITEM_USERROLE, QString(Blank)}});
    }
    return row;
}
} // namespace

ZrParamInitialTable::ZrParamInitialTable(const QVariantMap &entry, ZrParamSheet *sheet, QWidget *parent)
    : m_id(idOf(entry))
    , m_name(entry.value(Constants::STRATEGYPARAM_PARAMNAME).toString())
    , m_canBeEmpty(entry.value(Constants::STRATEGYPARAM_CANBEEMPTY).toBool())
    , m_columns(columnsOf(entry))
    , m_view(new ZrTableView(parent))
{
    createView(sheet);
    addEmptyRow();
}

void ZrParamInitialTable::createView(ZrParamSheet *sheet)
{
    m_view->setViewSortable(false);
    auto *const delegate = new ZrAlgoParamSettingHorizontalViewDeletage;
    delegate->settingPrivate = sheet;
    delegate->setParamRecords(m_columns);
    delegate->viewId = m_id;
    delegate->actionColumn = m_columns.size();
    m_view->setZrTableItemDelegate(delegate);
    HeadList heads;
    QList<int> keys;
    for (const QVariantMap &column : m_columns) {
        if (isKey(column))
            keys.append(heads.size());
        heads.append({{HEAD_DISPLAYROLE, column.value(Constants::STRATEGYPARAM_PARAMNAME)},
                      {HEAD_USERROLE, column.value(Constants::STRATEGYPARAM_PARAMID)}});
    }
    heads.append({{HEAD_DISPLAYROLE, QString()}, {HEAD_USERROLE, QString()}});
    m_view->setHeadList(heads);
    m_view->setKeyColumn(keys);
}

void ZrParamInitialTable::addEmptyRow()
{
    m_view->addRecordData(blankRow(m_columns));
}

bool ZrParamInitialTable::isActionColumn(const QModelIndex &index) const
{
    return ZrModelIndex::column(index) == m_columns.size();
}

QVariantMap ZrParamInitialTable::recordAt(const QModelIndex &index) const
{
    return m_columns.value(ZrModelIndex::column(index));
}

bool ZrParamInitialTable::isEditableWhileRunning(const QModelIndex &index) const
{
    return recordAt(index).value(Constants::STRATEGYPARAM_EDITABLEAFTERRUNNING).toBool();
}

void ZrParamInitialTable::dropRow(int row)
{
    RecordData cleared = blankRow(m_columns);
    const bool wasBlank = isBlank(m_columns, m_view->getRowData(row));
    // Of several key columns some may be filled in already; then the row is no longer found by the blank key.
    if (wasBlank && m_view->getZrTableModel()->makeRecordKey(cleared) == m_view->getKeyStringByRow(row)) {
        for (int column = 0; column <= m_columns.size(); ++column)
            cleared[column].insert(ITEM_DISPLAYROLE, QString());
        m_view->updataRecordData(cleared);
        return;
    }
    m_view->deleteRow(row);
    // Removing a row leaves the numbers of the rows below it as they were in the model's key map; a setter of
    // any role, be it one that stores nothing, counts them anew.
    ZrTableModel *const model = m_view->getZrTableModel();
    if (model->rowCount() > 0)
        model->setData(model->index(0, 0), QVariant(), Qt::WhatsThisRole);
    if (wasBlank)
        addEmptyRow();
}

void ZrParamInitialTable::fill(const QList<QVariantMap> &rows)
{
    RecordDataList records;
    for (const QVariantMap &values : rows) {
        RecordData record;
        for (int column = 0; column < m_columns.size(); ++column) {
            const QString value = values.value(idOf(m_columns.at(column))).toString();
            record.insert(column, {{ITEM_DISPLAYROLE, ZrParamText::ofCell(m_columns.at(column), value)},
                                   {ITEM_USERROLE, value}});
        }
        records.append(record);
    }
    m_view->updateRecordDataList(records);
    addEmptyRow();
}

QList<QVariantMap> ZrParamInitialTable::rows() const
{
    QList<QVariantMap> rows;
    const RecordDataList records = m_view->getViewData();
    for (const RecordData &record : records) {
        if (isBlank(m_columns, record))
            continue;
        QVariantMap values;
        for (int column = 0; column < m_columns.size(); ++column) {
            const QString id = idOf(m_columns.at(column));
            if (!id.isEmpty())
                values.insert(id, stored(record, column));
        }
        rows.append(values);
    }
    return rows;
}

QString ZrParamInitialTable::fault(const QList<QVariantMap> &rows) const
{
    for (const QVariantMap &row : rows) {
        for (const QVariantMap &column : m_columns) {
            const QString fault = ZrParamCheck::fault(column, row.value(idOf(column)));
            if (!fault.isEmpty() && !idOf(column).isEmpty())
                return fault;
        }
    }
    return rows.isEmpty() && !m_canBeEmpty ? ZrParamCheck::emptyFault(m_name) : QString();
}

void ZrParamInitialTable::fit(int ownerWidthPx)
{
    const int columns = m_view->getHeadList().size();
    const int widthPx = m_view->getZrTableHorizontalHeader()->defaultSectionSize() * columns;
    if (widthPx < ownerWidthPx && widthPx < m_view->width())
        m_view->setColumnDefaultWidth(ownerWidthPx / columns);
}
