#pragma once

#include "zrutils/ZrRecordTypes.h"
#include "zrwidget_global.h"

#include <QtCore/QHash>

/// The distinct cells of a column, for a filter's choices.
///
/// Shape: equal means all role keys and values equal, as the containers compare them. Cells are put into
/// buckets by
///        their text or number first, so that a column of many different values isn't compared pair by pair.
class ZRWIDGET_PRIVATE_EXPORT ZrTableCandidates
{
public:
    /// One of each cell in the order of first appearance. Rows without the column add nothing.
    static QList<ItemRoleMap> distinctCells(const RecordDataList &rows, int column);

private:
    enum Kind { Text, Number, Other };
    static QVariant mark(const ItemRoleMap &cell);
    static Kind kindOf(const QVariant &mark);
    static qint64 step(double value);

    Kind commonKind(const RecordDataList &rows, int column) const;
    void add(const ItemRoleMap &cell);
    bool isIn(qint64 bucket, const ItemRoleMap &cell) const;

    Kind m_kind = Other;
    QList<ItemRoleMap> m_cells;
    QHash<qint64, QList<int>> m_buckets; // positions in m_cells
};
