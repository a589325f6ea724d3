#pragma once

#include "zrwidget_global.h"

#include <QtCore/QList>
#include <QtCore/QMap>
#include <QtCore/QObject>
#include <QtCore/QString>

#include <functional>

class ZrViewBase;

/// The views of a plugin, and which columns the user has hidden in each and how they stand.
///
/// Shape:     each view once, in the order of registration. Columns are kept by caption, so that they are
///            there before the view is; views of one caption share them.
/// Units:     logical columns.
/// Ownership: views are borrowed; one that dies without a word is forgotten.
/// Threads:   GUI thread only.
/// Errors:    null is ignored.
class ZRWIDGET_PRIVATE_EXPORT ZrPluginViews : public QObject
{
    Q_OBJECT
public:
    using ColumnMap = QMap<QString, QList<int>>;

    explicit ZrPluginViews(QObject *parent = nullptr);

    /// A new view also gets the columns hidden under its caption.
    void add(ZrViewBase *view);
    void remove(ZrViewBase *view);
    bool contains(ZrViewBase *view) const;
    QList<ZrViewBase *> list() const { return m_views; }

    void setHiddenColumns(const ColumnMap &columns);
    ColumnMap hiddenColumns() const { return m_hiddenColumns; }
    void setOrders(const ColumnMap &orders);
    ColumnMap orders() const { return m_orders; }
    /// The orders set, and of each view the one that it shows.
    ColumnMap shownOrders() const;

    /// Calls `work` with each view; it may end views and this.
    void forEach(const std::function<void(ZrViewBase *)> &work);

private:
    QList<ZrViewBase *> m_views; // not owned
    ColumnMap m_hiddenColumns;
    ColumnMap m_orders;
};
