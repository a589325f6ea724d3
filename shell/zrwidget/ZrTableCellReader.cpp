#include "ZrTableCellReader.h"

#include "ZrRoleKeys.h"
#include "ZrTableModel_p.h"
#include "zrutils/ZrCommonUtils.h"

namespace {
constexpr int c_pseudoAlignment = 130; // right, vertically centred; whatever the default of the columns is

// A cell has few roles, and each paint asks for many that it hasn't: to compare lengths is cheaper than to
// search.
ItemRoleMap::const_iterator findRole(const ItemRoleMap &cell, const QString &role)
{
    auto value = cell.constBegin();
    while (value != cell.constEnd() && value.key() != role)
        ++value;
    return value;
}
} // namespace

QVariant ZrTableCellReader::read(const ZrTableModelPrivate &fields, int row, int column, int role)
{
    const int modelRow = fields.modelRowAt(row);
    if (modelRow < 0)
        return QVariant();
    if (role == Qt::TextAlignmentRole)
        return alignment(fields, column);
    const RecordData &record = fields.modelData.at(modelRow);
    if (column >= 0)
        return cellValue(record, column, role);
    if (role == Qt::BackgroundRole)
        return record.value(column).value(ITEM_BACKGROUNDROLE);
    return pseudoValue(fields, record, row, column, role);
}

QVariant ZrTableCellReader::alignment(const ZrTableModelPrivate &fields, int column)
{
    const auto own = fields.columnAlignment.constFind(column);
    if (own != fields.columnAlignment.constEnd())
        return *own;
    return column >= 0 ? fields.defaultColumnAlignment : c_pseudoAlignment;
}

QVariant ZrTableCellReader::cellValue(const RecordData &record, int column, int role)
{
    const auto cell = record.constFind(column);
    if (cell == record.constEnd())
        return QVariant();
    if (role == Qt::ToolTipRole)
        return tip(*cell);
    auto value = findRole(*cell, zrRoleKey(role));
    if (role == ZrRawRole && value == cell->constEnd()) {
        value = findRole(*cell, ITEM_CUSTOMROLE);
        if (value == cell->constEnd())
            value = findRole(*cell, ITEM_DISPLAYROLE);
    }
    return value == cell->constEnd() ? QVariant() : *value;
}

QVariant ZrTableCellReader::tip(const ItemRoleMap &cell)
{
    for (const QString *role : {&ITEM_TOOLTIPROLE, &ITEM_DISPLAYROLE, &ITEM_CUSTOMROLE}) {
        const auto text = cell.constFind(*role);
        if (text != cell.constEnd())
            return ZrCommonUtils::getMyTipString(text->toString());
    }
    return QVariant();
}

QVariant ZrTableCellReader::serialValue(const ZrTableModelPrivate &fields, int row)
{
    if (!fields.hasSerialColumn())
        return QVariant();
    if (fields.serialOrder == ZrViewModel::SerialNumDescending)
        return fields.beginSerialNumber - row + fields.shownRowCount();
    return row + 1 + fields.beginSerialNumber;
}

// Role 3 reads what is shown: the check column has no tips of its own.
QVariant ZrTableCellReader::stateValue(const RecordData &record, int role)
{
    return record.value(ZrRowStateColumn).value(role == Qt::ToolTipRole ? ITEM_DISPLAYROLE : zrRoleKey(role));
}

QVariant ZrTableCellReader::pseudoValue(const ZrTableModelPrivate &fields, const RecordData &record, int row,
                                        int column, int role)
{
    if (role != Qt::DisplayRole && role != Qt::ToolTipRole && role < ZrRawRole)
        return QVariant();
    const bool isState = fields.checkBoxShown && (!fields.hasSerialColumn() || column == ZrCheckBoxColumn);
    if (isState)
        return stateValue(record, role);
    if (fields.checkBoxShown && column != ZrSerialNumberColumn)
        return QVariant();
    if (fields.sumFlag)
        return fields.modelTr(QT_TRANSLATE_NOOP("ZrTableModel", "Total"));
    return serialValue(fields, row);
}

QVariant ZrTableCellReader::head(const ZrTableModelPrivate &fields, int section, int role)
{
    if (section < 0 || section >= fields.headList.size())
        return QVariant();
    const auto &head = fields.headList.at(section);
    switch (role) {
    case Qt::DisplayRole:
        return head.value(HEAD_DISPLAYROLE);
    case ZrRawRole:
        return head.value(HEAD_USERROLE);
    case ZrColumnIndexRole:
        return head.value(HEAD_COLUMNINDEX);
    case ZrGroupIdRole:
        return head.value(HEAD_GROUPID);
    case ZrGroupNameRole:
        return head.value(HEAD_GROUPNAME);
    case Qt::TextAlignmentRole:
        return fields.headAlignment.value(section - fields.columnOffset(), fields.defaultHeadAlignment);
    default:
        return QVariant();
    }
}
