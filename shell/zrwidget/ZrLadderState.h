#pragma once

#include "ZrLadderBook.h"
#include "ZrLadderGeometry.h"
#include "ZrSecurityAskBidData.h"
#include "zrwidget_global.h"

#include <QtCore/QRectF>
#include <QtGui/QBrush>
#include <QtGui/QColor>

/// What a skin sets of a ladder.
///
/// Units:  sizes in logical px.
struct ZrLadderLook
{
    QBrush mark; // of the hovered cell and of the selected row
    QColor ground;
    QColor up;
    QColor down;
    QColor band;
    QColor buyBadge;
    QColor sellBadge;
    int fontPx = 12;
    double marginPx = 12.0;
    int numerals = 0; // 1: levels as Chinese numerals
};

/// All that is painted and hit of a ladder.
///
/// Shape:   rows from 0 at the top.
/// Threads: GUI thread only.
struct ZRWIDGET_PRIVATE_EXPORT ZrLadderState
{
    enum Row {
        NoRow = -1,
        BandRow = 100 // for the hover; the books of the field end far below it
    };
    enum Part { NoPart = -1, LeftPart = 0, FirstColumn = 1, SecondColumn = 2 };

    ZrLadderLook look;
    ZrLadderGeometry geometry;
    ZrLadderBook book;
    ZrSecurityAskBidData last; // what the band shows
    QRectF currentRect;        // of the selected row; null before the first placeCurrent()
    double previousClose = 15.1;
    int currentIndex = 0; // the selected row; NoRow for none. May lie outside of the rows.
    int hoverIndex = NoRow;
    int hoverPart = NoPart; // LeftPart once the pointer has gone
    bool bandShown = true;  // else a thin line
    bool selectable = true;

    /// A row stands out, and those below it have moved.
    bool isSelecting() const { return currentIndex >= 0 && selectable; }
    /// How much taller the selected row is than the others.
    double extraHeightPx() const { return 2 * look.marginPx; }
    void placeCurrent();
    /// The next row, or the one above, round and round; back among the rows from outside of them.
    void moveCurrent(bool forward);
    /// By the previous close.
    QColor priceColor(double price) const;
};
