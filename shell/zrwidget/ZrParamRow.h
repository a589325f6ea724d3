#pragma once

#include "zrwidget_global.h"

#include <QtCore/QMap>
#include <QtCore/QModelIndex>
#include <QtCore/QVariantMap>

/// One row of a parameter table as its delegate sees it: cells by the ids of their columns' parameters.
///
/// Shape:     a column's id is the Qt::UserRole data of its head. Columns are the view's.
/// Ownership: nothing is kept.
/// Threads:   GUI thread only.
/// Errors:    a column without an id has the empty one; a model that is no table's has no ids.
class ZRWIDGET_PRIVATE_EXPORT ZrParamRow
{
public:
    using Records = QMap<QString, QVariantMap>; // parameter records by id

    static QString idAt(const QModelIndex &index);
    /// Present values by id, as texts, of the cells in the row of `index` that have a record; where a cell
    /// holds a security, what the host knows of it stands in for parameters that the row doesn't hold.
    static QVariantMap presentValues(const QModelIndex &index, const Records &records);

private:
    ZrParamRow() = delete;
};
