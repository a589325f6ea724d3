#pragma once

#include "zrwidget_global.h"

#include <QtCore/QObject>

class QHeaderView;
class QRect;
class QUrl;
class ZrHeaderView;

/// What a head needs of the grid that it stands on.
///
/// A head is built below the table and the tree and includes neither. The private object of such a view
/// implements this interface and names it in Q_INTERFACES; a head finds it from its place in the widget
/// tree alone, so that it also works for heads that a caller brings and for the heads of frozen side tables:
///
///     view (ZrTableView, ZrTreeView)
///      +-- private object of the view  <- implements ZrHeaderHost, direct QObject child of the view
///      +-- table or tree
///           +-- head                   <- parent()->parent() is the view
///
/// Units:     logical columns are numbers of "Head_ColumnIndex"; rects are logical px in head coordinates.
/// Ownership: the view owns it; a head asks again at each use and keeps no pointer.
/// Threads:   GUI thread only.
/// Errors:    a head without a host paints no picture that the view would name and never opens a filter.
class ZRWIDGET_EXPORT ZrHeaderHost
{
public:
    /// The head differs between the two: only a table has filter popups, a tree's check box lies further
    /// right.
    enum class Kind { Table, Tree };
    /// Pictures that the view's style sheet names.
    enum class Picture { Check, Uncheck, Tristate, Filter, Filtered, FilterHover };
    /// Sides of frozen columns, with the numbers that the views use for them.
    enum class Side { Left = 1, Right = 2 };

    virtual ~ZrHeaderHost();

    /// The host of the view that `head` stands on; null when the head stands elsewhere.
    static ZrHeaderHost *of(const QHeaderView *head);

    virtual Kind headKind() const = 0;
    /// Path relative to the skin's folder; empty when the style sheet names none, or the view has no such
    /// property.
    virtual QUrl headPicture(Picture picture) const = 0;
    /// Frozen view columns of a side, counted by visual position and with the pseudo-columns; 0 for none.
    virtual int frozenCount(Side side) const = 0;
    /// How many pseudo-columns (check box, serial number) stand before the first column.
    virtual int pseudoColumnCount() const = 0;
    /// Whether the view filter list holds a non-empty entry for the column.
    virtual bool isColumnFiltered(int logicalColumn) const = 0;
    /// A press on the filter button of a table's column: opens the column's choice list below `buttonRect`.
    virtual void openFilter(ZrHeaderView *head, int logicalColumn, const QRect &buttonRect) = 0;
    /// The choice list that openFilter() opened for `head` reports a changed choice.
    virtual void filterChoiceChanged(ZrHeaderView *head) = 0;

protected:
    ZrHeaderHost() = default;

private:
    Q_DISABLE_COPY(ZrHeaderHost)
};

Q_DECLARE_INTERFACE(ZrHeaderHost, "zrwidget.ZrHeaderHost/1.0")
