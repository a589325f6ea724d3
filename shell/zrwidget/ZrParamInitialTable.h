#pragma once

#include "zrwidget_global.h"

#include <QtCore/QList>
#include <QtCore/QModelIndex>
#include <QtCore/QVariantMap>

class QWidget;
class ZrParamSheet;
class ZrTableView;

/// One table of a sheet in which each column is a parameter and each row a set of values.
///
/// Shape:     the last column holds the delete pictures. A blank row waits to be filled in: a key column that
///            stores one blank marks it. Rows are maps of stored texts by parameter id.
/// Units:     widths in logical px.
/// Ownership: the view is a child of the given parent; the sheet is borrowed.
/// Threads:   GUI thread only.
/// Errors:    columns without a record are left out of rows; faults are sentences for the user, empty when
///            there is none.
class ZRWIDGET_PRIVATE_EXPORT ZrParamInitialTable
{
public:
    ZrParamInitialTable(const QVariantMap &entry, ZrParamSheet *sheet, QWidget *parent);

    const QString &id() const { return m_id; }
    const QString &name() const { return m_name; }
    ZrTableView *view() const { return m_view; }

    void addEmptyRow();
    /// Clears a blank row, removes any other one.
    void dropRow(int row);
    bool isActionColumn(const QModelIndex &index) const;
    bool isEditableWhileRunning(const QModelIndex &index) const;

    /// Replaces all rows, and adds a blank one.
    void fill(const QList<QVariantMap> &rows);
    /// All rows that aren't blank.
    QList<QVariantMap> rows() const;
    QString fault(const QList<QVariantMap> &rows) const;
    /// Widens the columns when there is room in an owner of this width.
    void fit(int ownerWidthPx);

private:
    Q_DISABLE_COPY(ZrParamInitialTable)
    void createView(ZrParamSheet *sheet);
    QVariantMap recordAt(const QModelIndex &index) const;

    const QString m_id;
    const QString m_name;
    const bool m_canBeEmpty;
    const QList<QVariantMap> m_columns; // parameter records, in the order of the columns
    ZrTableView *const m_view;          // the parent's child
};
