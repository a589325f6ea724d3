#pragma once

#include "ZrFrozenGrid.h"

#include <QtCore/QObject>
#include <QtCore/QPointer>
#include <QtCore/QRect>
#include <QtWidgets/QAbstractItemView>

/// One frozen pane: a view of the main view's model over its left or right edge, with the frozen columns
/// only.
///
/// Shape:     exists always; has a view only between create() and remove().
/// Units:     px in the coordinates of the main view's parent; columns are view columns.
/// Ownership: a child of the panes; the view belongs to the main view's parent widget and goes by
///            deleteLater, since the call can come from one of its own signals.
/// Threads:   GUI thread only.
/// Errors:    without a view every call does nothing.
class ZRWIDGET_PRIVATE_EXPORT ZrFrozenSide : public QObject
{
    Q_OBJECT
public:
    ZrFrozenSide(ZrHeaderHost::Side side, QAbstractItemView *mainView, const ZrFrozenGrid *grid,
                 QObject *panes);
    ~ZrFrozenSide() override;

    /// Makes the view with everything that it copies from the main view; it is not shown yet.
    void create(ZrFrozenHost *host);
    void remove();

    ZrHeaderHost::Side side() const { return m_side; }
    QAbstractItemView *view() const { return m_view; }
    QHeaderView *head() const;

    /// Shows the frozen columns whose head says so, and hides all others.
    void hideColumns(const ZrFrozenHost *host);
    void copyWidths();
    /// Lays the view over its edge of the main view.
    void place(int frozenCount);
    /// Whether the section stands among the frozen ones.
    bool holdsSection(int section, int frozenCount) const;
    /// Sum of the frozen sections of the side's head.
    int columnsWidthPx(int frozenCount) const;

private:
    bool isFrozenPosition(int visual, int frozenCount) const;
    void copyHead(ZrFrozenHost *host);
    void copyBehaviour();
    QRect geometryPx(int frozenCount) const;

    const ZrHeaderHost::Side m_side;
    QAbstractItemView *const m_main;    // borrowed: owns the panes
    const ZrFrozenGrid *const m_grid;   // borrowed
    QPointer<QAbstractItemView> m_view; // owned by the main view's parent widget
};
