#pragma once

#include "zrutils/ZrRecordTypes.h"
#include "zrwidget_global.h"

#include <QtCore/QList>

class QHeaderView;

/// The order in which a grid shows its columns: its forms, and how a head takes it on.
///
/// Shape:     static members; a *visual order* holds for each visual position an index of the head list, a
///            *logical order* the "Head_ColumnIndex" numbers instead, and a text those joined by commas.
/// Units:     pseudo-columns count in none of them; a head's own sections do count them (`offset`).
/// Threads:   GUI thread only.
/// Errors:    an order that does not fit the heads becomes the order of the head list.
class ZRWIDGET_PRIVATE_EXPORT ZrColumnOrder
{
public:
    static QList<int> listOrder(int count);
    static QList<int> fromText(const QString &text);
    static QString toText(const QList<int> &logicalOrder);

    /// "Head_ColumnIndex" of all heads, in the order of the list.
    static QList<int> logicalNumbers(const HeadList &heads);
    /// Visual order to logical order; indexes outside the head list are left out.
    static QList<int> toLogical(const QList<int> &visualOrder, const HeadList &heads);
    /// Logical order to visual order; the order of the list unless each head is named exactly once.
    static QList<int> toVisual(const QList<int> &logicalOrder, const HeadList &heads);

    /// Moves the sections of `head` behind its first `offset` ones into the order.
    static void apply(const QList<int> &visualOrder, int offset, QHeaderView *head);
};
