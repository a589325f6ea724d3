#include "ZrModelIndex.h"

#include "ZrColumnOffsets.h"

#include <QtCore/QAbstractItemModel>

namespace {

// By name: this layer lies below the grids and can't include them. A plugin's subclass counts too.
const ZrColumnOffsets *gridOffsets(const QObject *view)
{
    const bool isGrid = view && (view->inherits("ZrTableView") || view->inherits("ZrTreeView"));
    return isGrid ? ZrColumnOffsets::of(view) : nullptr;
}

bool isGridModel(const QAbstractItemModel *model)
{
    return model && (model->inherits("ZrTableModel") || model->inherits("ZrTreeModel"));
}

} // namespace

ZrModelIndex::ZrModelIndex() = default;

int ZrModelIndex::getLogicColumn(int column, QObject *view)
{
    const ZrColumnOffsets *const offsets = gridOffsets(view);
    return offsets ? column + offsets->columnOffset() : -1;
}

int ZrModelIndex::getRealColumn(int column, QObject *view)
{
    const ZrColumnOffsets *const offsets = gridOffsets(view);
    return offsets ? column - offsets->columnOffset() : -1;
}

int ZrModelIndex::column(const QModelIndex &index)
{
    if (!isGridModel(index.model()))
        return index.column();
    const ZrColumnOffsets *const offsets = ZrColumnOffsets::of(index.model());
    return offsets ? index.column() - offsets->columnOffset() : index.column();
}

QVariant ZrModelIndex::columnHeadData(const QModelIndex &index, Qt::Orientation orientation, int role)
{
    return isGridModel(index.model()) ? index.model()->headerData(index.column(), orientation, role)
                                      : QVariant();
}

QVariant ZrModelIndex::data(const QModelIndex &index, int role)
{
    return index.data(role);
}

Qt::ItemFlags ZrModelIndex::flags(const QModelIndex &index)
{
    return index.flags();
}

QModelIndex ZrModelIndex::parent(const QModelIndex &index)
{
    return index.parent();
}

int ZrModelIndex::row(const QModelIndex &index)
{
    return index.row();
}

quintptr ZrModelIndex::internalId(const QModelIndex &index)
{
    return index.internalId();
}

void *ZrModelIndex::internalPointer(const QModelIndex &index)
{
    return index.internalPointer();
}
