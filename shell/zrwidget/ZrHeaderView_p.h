#pragma once

#include "zrwidget_global.h"

#include <QtCore/QMap>
#include <QtCore/QObject>
#include <QtCore/QPointer>
#include <QtCore/QRect>
#include <QtGui/QColor>

class QHeaderView;
class ZrDialog;
class ZrHeaderSectionLayout;
class ZrViewFilterWidget;

/// State of a head, shared with the heads of the frozen side tables, so that one filter state, one tip list
/// and one check state serve all parts.
///
/// Shape:     columns are logical unless the name says section; rects are those of the part painted last.
/// Units:     px, logical, in head coordinates.
/// Ownership: held by all heads that use it; goes away with the last of them.
/// Threads:   GUI thread only.
class ZRWIDGET_PRIVATE_EXPORT ZrHeaderViewPrivate : public QObject
{
    Q_OBJECT
public:
    // Shared: the family may read and write these, and asks for a repaint after.
    QColor gridColor; // colour of the lines between sections
    bool gridColorSet = false;
    bool checkBoxShown = false;
    bool sortable = false;
    bool viewFilterable = false; // filter button for every column
    bool filterButtonAlwaysVisible = true;
    QMap<int, bool> perColumnFilterable;       // overrides viewFilterable
    QMap<int, QRect> filterButtonRects;        // there since the button was first painted
    int hoverSection = -1;                     // view column whose filter button is under the pointer
    bool checkPressed = false;                 // a press landed on the check column
    bool checked = false;                      // state of the head's check box
    bool partial = false;                      // was partly checked at some time; setChecked() forgets it
    bool partialPending = false;               // is partly checked now
    int headXMargin = 0;                       // px
    int filterButtonSize = 16;                 // px
    QPointer<ZrViewFilterWidget> filterWidget; // made at the first use, child of filterDialog
    QPointer<ZrDialog> filterDialog;           // made with filterWidget, child of the head that was pressed
    QMetaObject::Connection filterConnection;  // from filterWidget to the head that was pressed last
    QMap<int, QString> headTips;
    QMap<int, QRect> tipRects;
    QMap<int, bool> perColumnSortable; // overrides sortable

    bool isFilterable(int logicalColumn) const;
    bool isSortable(int logicalColumn) const;
    bool hasTip(int logicalColumn) const;
    /// Whether the check box shows the third state.
    bool showsPartial() const { return partial && partialPending; }
    /// Places of the parts of a section that stands at `rect`; a drag copy stands outside of its group.
    ZrHeaderSectionLayout layoutOf(const QHeaderView &head, int section, const QRect &rect,
                                   bool dragging) const;

    /// Asks every head that shares this state to show it.
    void requestRepaint();

signals:
    void repaintRequested();
};
