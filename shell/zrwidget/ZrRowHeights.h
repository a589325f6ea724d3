#pragma once

#include "zrwidget_global.h"

#include <QtCore/QMap>

class QHeaderView;

/// Remembers the rows of a vertical head whose height is their own, over a change of the default height.
///
/// Qt gives a new default to every row, those that were sized on purpose included.
///
/// Shape:     a value; take it before the change, give it back after it.
/// Units:     heights in logical px.
/// Threads:   GUI thread only.
/// Errors:    rows that are gone meanwhile are left out.
class ZRWIDGET_PRIVATE_EXPORT ZrRowHeights
{
public:
    /// The rows of `head` that are not `usualPx` high.
    ZrRowHeights(const QHeaderView *head, int usualPx);

    void restore(QHeaderView *head) const;

private:
    QMap<int, int> m_heights; // row -> px
};
