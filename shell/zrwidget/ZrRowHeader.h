#pragma once

#include "zrwidget_global.h"

#include <QtWidgets/QHeaderView>

/// Vertical head of a grid: knows the rows' heights, and follows a stream of rows at constant cost.
///
/// The toolkit's own head moves all sections behind a row that leaves. A grid at its row limit drops a row at
/// the front for each one that it appends, and a filtered grid loses and gains rows in its middle: with
/// 100,000 rows that move is most of the cost. While all rows have the default height, sections don't differ,
/// so only their number counts: removed rows are owed, new rows are set off against them, and what is still
/// owed is taken away once, when the event loop turns.
///
/// Shape:     until then the head may hold more sections than the model has rows, never fewer.
/// Ownership: normal QWidget parent rules; the parent is the table.
/// Threads:   GUI thread only.
/// Errors:    none. A row with a height of its own, a hidden or a moved one: the toolkit's way is taken.
class ZRWIDGET_PRIVATE_EXPORT ZrRowHeader : public QHeaderView
{
    Q_OBJECT
public:
    explicit ZrRowHeader(QWidget *parent);

    void setModel(QAbstractItemModel *model) override;

    /// Whether a part of the row lies within the first `heightPx` below the head's offset. True where finding
    /// out would cost more than it saves.
    bool isInSight(int row, int heightPx) const;

    /// For a table that says when it has laid out: until then it is told of owed rows but once.
    void setTellsOnce(bool once) { m_tellsOnce = once; }
    void setLaidOut() { m_isTold = false; }

private:
    void followRemoval(const QModelIndex &parent, int first, int last);
    void followInsertion(const QModelIndex &parent, int first, int last);
    void noteSize(int section, int oldSizePx, int newSizePx);
    bool isUniform() const;
    void owe();
    void settle();

    bool m_hasOwnSizes = false; // some row had another height than the default one
    bool m_isOwing = false;     // settle() is under way
    bool m_tellsOnce = false;
    bool m_isTold = false; // the table knows that it has to lay out
};
