#pragma once

#include <QtCore/QFlags>
#include <QtCore/QSize>

class QWidget;
class ZrTableView;

/// Small grids of made-up orders, for pages that show the grid or its head.
///
/// Shape:     columns order no. (the key), symbol, name, side, price, quantity; sides in the skin's colours
/// for
///            rise and fall, which they follow.
/// Ownership: the caller's.
/// Threads:   GUI thread only.
class ZrOrderSample
{
public:
    enum Part {
        Plain = 0,
        CheckBoxes = 1,
        SerialNumbers = 2,
        Bands = 4, // a head of two lines
        FilterButtons = 8
    };
    Q_DECLARE_FLAGS(Parts, Part)

    enum Column { Symbol, Name, Side, Price, Quantity };
    static constexpr int MostRows = 6;

    /// At most MostRows rows.
    static ZrTableView *make(int rows, Parts parts = Plain);
    /// The grid's size on a page: whole columns of the page's grid.
    static QSize size() { return {368, 164}; }
};
