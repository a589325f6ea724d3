#pragma once

#include "zrwidget_global.h"

#include <QtCore/QModelIndex>
#include <QtCore/QString>

class ZrTableView;

/// What the delegate of a parameter table asks of the sheet that the table stands in.
///
/// Shape:     a sheet holds tables by view id; in each, one cell at the most has an editor open.
/// Ownership: views stay the sheet's.
/// Threads:   GUI thread only.
/// Errors:    an unknown view id gives null or an invalid index, or does nothing.
class ZRWIDGET_PRIVATE_EXPORT ZrParamSheet
{
public:
    virtual ~ZrParamSheet();

    virtual ZrTableView *paramView(const QString &viewId) const = 0;
    /// The cell with the open editor; invalid when there is none.
    virtual QModelIndex editIndex(const QString &viewId) const = 0;
    virtual void setEditIndex(const QString &viewId, const QModelIndex &index) = 0;
    /// Adds the row that waits to be filled in.
    virtual void addEmptyRow(const QString &viewId) = 0;
};
