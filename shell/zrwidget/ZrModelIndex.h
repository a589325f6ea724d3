#pragma once

#include "zrwidget_global.h"

#include <QtCore/QModelIndex>
#include <QtCore/QObject>
#include <QtCore/QVariant>

/// Column numbers of a grid: the view's (pseudo-columns counted) and the logical ones of its records.
///
/// Shape:     static members only; an object of it has no state.
/// Units:     columns; logical numbers are those of "Head_ColumnIndex".
/// Threads:   GUI thread only.
/// Errors:    an object that is no table or tree gives -1, a foreign model an invalid QVariant.
class ZRWIDGET_EXPORT ZrModelIndex : public QObject
{
    Q_OBJECT
public:
    ZrModelIndex();

    // The names read the other way round; callers rely on getLogicColumn adding the pseudo-columns and on
    // getRealColumn taking them away.
    /// View column of a logical number; -1 when `view` is no ZrTableView or ZrTreeView.
    static int getLogicColumn(int column, QObject *view);
    /// Logical number of a view column; -1 when `view` is no ZrTableView or ZrTreeView.
    static int getRealColumn(int column, QObject *view);

    /// Logical number of the index; the plain column for a model that is no grid's.
    static int column(const QModelIndex &index);
    /// The model's head data for the index's column; invalid for a model that is no grid's.
    static QVariant columnHeadData(const QModelIndex &index, Qt::Orientation orientation, int role);

    static QVariant data(const QModelIndex &index, int role);
    static Qt::ItemFlags flags(const QModelIndex &index);
    static QModelIndex parent(const QModelIndex &index);
    static int row(const QModelIndex &index);
    static quintptr internalId(const QModelIndex &index);
    static void *internalPointer(const QModelIndex &index);
};
