#pragma once

/// Enums of the grids. The numbers travel in settings and between plugins, so they never change.
class ZrViewModel
{
public:
    /// How the serial number column counts.
    enum SerialNumColumnOrder {
        SerialNumNone = 1,      // no serial number column; every value below 2 behaves the same
        SerialNumAscending = 2, // view row + 1 + begin number
        SerialNumDescending = 3 // begin number - view row + number of shown rows
    };

    /// Which edges of an item a list draws; a bit mask.
    enum ViewGridMode {
        GridHorizontal = 1, // bottom edge
        GridVertical = 2    // right edge
    };

private:
    ZrViewModel() = delete;
};
