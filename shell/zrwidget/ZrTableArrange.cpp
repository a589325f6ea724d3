#include "ZrTableArrange.h"

#include "ZrRoleKeys.h"
#include "ZrTableModel_p.h"
#include "ZrTableRows.h"
#include "ZrTableSignalScope.h"
#include "zrutils/ZrCommonUtils.h"

#include <QtCore/QDebug>

ZrTableArrange::ZrTableArrange(ZrTableModelPrivate &fields)
    : m_fields(fields)
{
}

bool ZrTableArrange::isSortable(int section) const
{
    return m_fields.perColumnSortable.value(section, m_fields.viewSortable);
}

// Only now: rows that come later stand where they were put, and updates move none. A running grid doesn't
// jump.
void ZrTableArrange::sort(int section, Qt::SortOrder order)
{
    if (section < 0 || section >= m_fields.headList.size() || !isSortable(section))
        return;
    m_fields.sortColumn = m_fields.logicalColumnAt(section);
    m_fields.sortOrder = order;
    const QString current = m_fields.currentRowKey();
    const QList<QPair<int, Qt::SortOrder>> keys{{m_fields.sortColumn, order}};
    ZrCommonUtils::sortTableViewRecordListByKeys(m_fields.modelData, keys);
    m_fields.checkCounter.rowsMoved(m_fields.modelData.size());
    m_fields.rows().rebuild();
    m_fields.resetViewsKeeping(current);
    m_fields.model->SortIndicatorChanged(section, order);
}

bool ZrTableArrange::setCell(const QModelIndex &index, const QVariant &value, int role)
{
    const int modelRow = index.isValid() ? m_fields.modelRowAt(index.row()) : -1;
    if (modelRow < 0)
        return false;
    const bool isStored = role == Qt::DisplayRole || role == ZrRawRole || role == ZrSecondRawRole;
    const ZrTableSignalScope scope(m_fields, m_fields.filterable && isStored);
    // The view column as it stands, not the logical one: required.
    if (isStored && !store(modelRow, index.column(), value, role))
        return false;
    if (isStored || !m_fields.rows().canFollow())
        m_fields.rows().rebuild();
    m_fields.emitCellChanged(index, index, {role});
    return true;
}

bool ZrTableArrange::store(int modelRow, int column, const QVariant &value, int role)
{
    if (m_fields.keyColumns.contains(column)) {
        RecordData changed = m_fields.modelData.at(modelRow);
        changed[column].insert(zrRoleKey(role), value);
        const QString key = m_fields.makeKey(changed);
        const int other = m_fields.keyToRow.row(key);
        if (other >= 0 && other != modelRow) {
            qWarning() << "key is exist" << key;
            return false;
        }
        m_fields.rows().loseStep();
    }
    m_fields.rows().forgetCounts();
    m_fields.modelData[modelRow][column].insert(zrRoleKey(role), value);
    return true;
}
