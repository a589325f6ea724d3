#pragma once

#include "ZrFrozenGrid.h"

#include <QtCore/QModelIndex>
#include <QtCore/QObject>

class QAbstractItemView;
class QHeaderView;
class QKeyEvent;
class ZrFrozenSide;

/// Keeps the parts of a grid with frozen columns together: the main view and a pane over each edge of it.
///
///     +-------+---------------------------+-------+
///     | left  |  main view (scrolls)      | right |
///     | pane  |                           | pane  |
///     +-------+---------------------------+-------+
///
/// All parts show the same model. What one of them does to a column's width, to the current cell, to the sort
/// indicator or to the vertical position, the others do too.
///
/// Shape:     made once per main view, for tables and trees alike; what differs is in a ZrFrozenGrid.
/// Units:     columns are view columns, counted by visual position where frozen ones are meant.
/// Ownership: a child of the main view; grid and host are borrowed.
/// Threads:   GUI thread only.
/// Errors:    without a host nothing is frozen.
class ZRWIDGET_PRIVATE_EXPORT ZrFrozenPanes : public QObject
{
    Q_OBJECT
public:
    ZrFrozenPanes(QAbstractItemView *mainView, const ZrFrozenGrid *grid);
    ~ZrFrozenPanes() override;

    void setHost(ZrFrozenHost *host);
    /// Makes the side's pane anew, or removes it.
    void setSideEnabled(ZrHeaderHost::Side side, bool enable);
    ZrFrozenSide *side(ZrHeaderHost::Side side) const;

    /// The main view has got another head.
    void attachMainHead();
    /// The main view has got another model.
    void attachModel();
    /// Hides and shows the panes' columns anew and places the panes.
    void relay();
    /// Places the panes over the edges of the main view.
    void place();
    /// Makes the cell's row and column current in each pane.
    void makeCurrentInPanes(const QModelIndex &index);
    /// Makes the cell's row and column current in every part but `origin`.
    void makeCurrentElsewhere(const QModelIndex &index, const QAbstractItemView *origin);
    /// Handles Up and Down for all parts; `part` is the one that has the focus.
    bool handleKey(QKeyEvent *event, QAbstractItemView *part);

    // What the parts report; `head` is the one that changed.
    void sectionResized(QHeaderView *head, int section, int newSizePx);
    void sortIndicatorChanged(const QHeaderView *head);
    void rowPressed(const QModelIndex &index, const QAbstractItemView *part);

    /// Calls `change` for the view of each pane that there is.
    template<typename Change>
    void forEachPane(const Change &change) const
    {
        const QList<QAbstractItemView *> views = paneViews();
        for (QAbstractItemView *const view : views)
            change(view);
    }
    QList<QAbstractItemView *> paneViews() const;

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void createPane(ZrFrozenSide *pane);
    void connectPane(ZrFrozenSide *pane);
    void connectPaneHead(ZrFrozenSide *pane);
    void followSelection(const ZrFrozenSide *pane);
    void mirrorSectionMove(int section, int newVisual);
    int countOf(const ZrFrozenSide *pane) const;

    QAbstractItemView *const m_main;           // borrowed: our parent
    const ZrFrozenGrid *const m_grid;          // borrowed
    ZrFrozenHost *m_host = nullptr;            // borrowed
    ZrFrozenSide *const m_left;                // our child
    ZrFrozenSide *const m_right;               // our child
    const QHeaderView *m_sortSource = nullptr; // head whose sort is being told by the main head
    bool m_isMatchingWidths = false;
    bool m_isMatchingCurrent = false;
};
