#pragma once

#include "zrwidget_global.h"

class QAbstractSlider;
class QScrollBar;

/// Moves a scroll bar to the place that another one has in its own range.
///
/// Shape:     static members; the coupled bars are the callers'.
/// Units:     values of the bars.
/// Threads:   GUI thread only.
/// Errors:    a source without a range moves nothing.
class ZRWIDGET_PRIVATE_EXPORT ZrScrollCoupling
{
public:
    /// Puts `target` at the proportional place of `sourceValue` in the range of `source`.
    static void apply(int sourceValue, const QAbstractSlider *source, QAbstractSlider *target);
    /// Both bars show the same value from now on, until one of them dies.
    static void coupleValues(QScrollBar *first, QScrollBar *second);
};
