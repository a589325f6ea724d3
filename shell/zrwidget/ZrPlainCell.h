#pragma once

#include "zrwidget_global.h"

#include <QtCore/QVariant>

#include "zrutils/ZrRecordTypes.h"

class QModelIndex;

/// A cell that shows nothing but a text: what nearly every cell of a grid of prices is.
///
/// A delegate asks a model for seven roles of each cell that it paints, and each question finds row, column
/// and cell anew. Where the model is the table's own, one look answers them all.
///
/// Threads: GUI thread only.
class ZRWIDGET_PRIVATE_EXPORT ZrPlainCell
{
public:
    /// True when `index` is of a ZrTableModel whose data() nobody has overridden, and its cell has no font,
    /// colour, picture or check state of its own; `this` then holds what roles 0 and 7 would give.
    bool read(const QModelIndex &index);

    const QVariant &display() const { return m_display; }
    const QVariant &alignment() const { return m_alignment; }

private:
    bool take(const ItemRoleMap &cell);

    QVariant m_display;
    QVariant m_alignment;
};
