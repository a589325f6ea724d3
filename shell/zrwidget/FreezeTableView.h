#pragma once

#include "ZrFrozenTable.h"
#include "ZrLiveTable.h"
#include "zrwidget_global.h"

class ZrFrozenPanes;
class ZrTableViewPrivate;

/// The table of a ZrTableView: a QTableView whose first and last columns can stay in place.
///
/// Shape:     up to two further tables lie over its edges (see ZrFrozenPanes); members of the base that are
///            repeated here act on all three.
/// Units:     columns are view columns; sizes in logical px.
/// Ownership: normal QWidget parent rules; the side tables are children of our parent widget.
/// Threads:   GUI thread only.
/// Errors:    without setTablePrivate() nothing can be frozen.
class ZRWIDGET_EXPORT FreezeTableView : public ZrLiveTable
{
    Q_OBJECT
public:
    explicit FreezeTableView(QWidget *parent = nullptr);
    ~FreezeTableView() override;

    /// The private object of the view that this is the table of; null before that view dies.
    void setTablePrivate(ZrTableViewPrivate *tablePrivate);

    /// Makes a side table anew or removes it; side 1 is left, 2 right.
    void setFrozenSide(int side, bool enable);
    /// The side table, null when there is none.
    QTableView *frozenTable(int side) const;
    /// Hides the columns of the side tables anew and places them.
    void relayFrozenTables();

    // To this table and to both side tables.
    void setModel(QAbstractItemModel *model) override;
    void setHorizontalHeader(QHeaderView *header);
    void setColumnHidden(int column, bool hide);
    void setCurrentIndex(const QModelIndex &index);
    void setSelectionMode(QAbstractItemView::SelectionMode mode);
    void setSelectionBehavior(QAbstractItemView::SelectionBehavior behavior);
    void setVerticalScrollMode(QAbstractItemView::ScrollMode mode);
    void setHorizontalScrollMode(QAbstractItemView::ScrollMode mode);
    void setItemDelegate(QAbstractItemDelegate *delegate);
    void setAlternatingRowColors(bool enable);
    /// Width of head sections that nobody has sized.
    void setDefaultSectionSize(int widthPx);
    void setMinimumSectionSize(int widthPx);
    void setMinimumHeadHeight(int heightPx);
    void setHeadHidden(bool hide);
    /// Height of rows that nobody has sized.
    void setDefaultRowHeight(int heightPx);
    /// Repaints the heads of all parts.
    void updateHeads();
    /// Repaints all parts.
    void updateParts();

    void scrollTo(const QModelIndex &index, ScrollHint hint = EnsureVisible) override;
    bool eventFilter(QObject *watched, QEvent *event) override;

public slots:
    void currentChanged(const QModelIndex &current, const QModelIndex &previous) override;
    void updateSectionWidth(int logicalIndex, int oldSize, int newSize);
    void updateSectionHeight(int logicalIndex, int oldSize, int newSize);
    void slotClicked(QModelIndex index);
    void slotSortIndicatorChanged(int logicalIndex, Qt::SortOrder order);
    /// Moves the horizontal bar to the sending bar's place in its own range.
    void setValue(int value);

signals:
    void currentIndexChanged(QModelIndex index);

protected:
    QModelIndex moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers) override;
    void keyPressEvent(QKeyEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    Q_DISABLE_COPY(FreezeTableView)
    ZrFrozenTable m_grid;
    ZrFrozenPanes *const m_panes; // our child
};
