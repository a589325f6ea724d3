#pragma once

#include "zrwidget_global.h"

#include <QtCore/QObject>
#include <QtCore/QPointer>

class QHeaderView;
class QPainter;
class QWidget;

/// Line under the head of the grid that has the keyboard.
///
/// A selected row stays lit when the keyboard goes elsewhere, so it can't tell; the head is in sight of every
/// part of a grid, frozen ones included, and each part draws its piece of the line.
///
/// Shape:     one line for each head, as wide as its sections, in the head's highlight colour.
/// Units:     px, logical.
/// Ownership: child of the head.
/// Threads:   GUI thread only.
/// Errors:    a head outside of any grid has no line.
class ZRWIDGET_PRIVATE_EXPORT ZrHeadFocusLine : public QObject
{
    Q_OBJECT
public:
    explicit ZrHeadFocusLine(QHeaderView *head);

    /// Whether the keyboard is in the grid, or in an editor of it.
    bool isShown() const { return m_shown; }
    /// Draws the line over the painted head, if it shows.
    void paint(QPainter *painter) const;

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void findGrid();
    void follow();

    QHeaderView *const m_head; // not owned: the parent
    QPointer<QWidget> m_grid;  // not owned: the outermost view around the head
    bool m_shown = false;
};
