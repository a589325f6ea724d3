#pragma once

#include "ZrHeaderHost.h"
#include "zrwidget_global.h"

class QAbstractItemView;
class QHeaderView;
class QWidget;

/// What frozen panes must do differently for the kinds of grid (table, tree).
///
/// Shape:     a strategy without state; `view` is always a view that createSide() made, or the main view.
/// Ownership: the panes borrow it.
/// Threads:   GUI thread only.
/// Errors:    none; a view of another kind is a caller's bug and is left alone.
class ZRWIDGET_PRIVATE_EXPORT ZrFrozenGrid
{
public:
    virtual ~ZrFrozenGrid();

    virtual QAbstractItemView *createSide(QWidget *parent) const = 0;
    virtual QHeaderView *head(const QAbstractItemView *view) const = 0;
    virtual void setHead(QAbstractItemView *view, QHeaderView *head) const = 0;
    virtual void setColumnHidden(QAbstractItemView *view, int column, bool hidden) const = 0;
    /// Width in px left of the first column, such as a vertical head.
    virtual int leftInsetPx(const QAbstractItemView *view) const = 0;
    /// Grid lines and row heights as the main view has them.
    virtual void copyRowLook(const QAbstractItemView *main, QAbstractItemView *side) const = 0;

protected:
    ZrFrozenGrid() = default;

private:
    Q_DISABLE_COPY(ZrFrozenGrid)
};

/// What frozen panes need to know of the grid whose columns they hold.
class ZRWIDGET_PRIVATE_EXPORT ZrFrozenHost
{
public:
    virtual ~ZrFrozenHost();

    /// View columns of the side, counted by visual position and with the pseudo-columns; 0 for none.
    virtual int frozenColumnCount(ZrHeaderHost::Side side) const = 0;
    /// Whether the head of this view column says that it is not shown.
    virtual bool isColumnHiddenByHead(int viewColumn) const = 0;
    /// Brings a new head into the grid's column order.
    virtual void orderHead(QHeaderView *head) = 0;

protected:
    ZrFrozenHost() = default;

private:
    Q_DISABLE_COPY(ZrFrozenHost)
};
