#pragma once

#include "ZrFrozenGrid.h"

/// Frozen panes of a QTableView. See ZrFrozenGrid.
class ZRWIDGET_PRIVATE_EXPORT ZrFrozenTable : public ZrFrozenGrid
{
public:
    QAbstractItemView *createSide(QWidget *parent) const override;
    QHeaderView *head(const QAbstractItemView *view) const override;
    void setHead(QAbstractItemView *view, QHeaderView *head) const override;
    void setColumnHidden(QAbstractItemView *view, int column, bool hidden) const override;
    int leftInsetPx(const QAbstractItemView *view) const override;
    void copyRowLook(const QAbstractItemView *main, QAbstractItemView *side) const override;
};
