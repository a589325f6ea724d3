#include "ZrPlainCell.h"

#include "ZrRoleKeys.h"
#include "ZrTableCellReader.h"
#include "ZrTableModel.h"
#include "ZrTableModel_p.h"

#include <QtCore/QModelIndex>

#include <typeinfo>

bool ZrPlainCell::read(const QModelIndex &index)
{
    const QAbstractItemModel *const model = index.model();
    // The very class: what a subclass answers is its own affair.
    if (!model || typeid(*model) != typeid(ZrTableModel))
        return false;
    const ZrTableModelPrivate &fields = *static_cast<const ZrTableModel *>(model)->getModelPrivate();
    if (index.column() >= fields.headList.size())
        return false;
    const int column = fields.logicalColumnAt(index.column());
    const int row = fields.modelRowAt(index.row());
    if (column < 0 || row < 0)
        return false;
    m_display = QVariant();
    const RecordData &record = fields.modelData.at(row);
    const auto cell = record.constFind(column);
    if (cell != record.constEnd() && !take(*cell))
        return false;
    m_alignment = ZrTableCellReader::alignment(fields, column);
    return true;
}

// Roles that look like something are below 100, and their keys shorter than those of the values.
bool ZrPlainCell::take(const ItemRoleMap &cell)
{
    constexpr int valueKeyLength = 3;
    for (auto value = cell.constBegin(); value != cell.constEnd(); ++value) {
        const QString &role = value.key();
        if (role == ITEM_DISPLAYROLE)
            m_display = *value;
        else if (role.size() < valueKeyLength && role != ITEM_TOOLTIPROLE)
            return false;
    }
    return true;
}
