#pragma once

#include "zrwidget_global.h"

#include <QtCore/QString>

class QHeaderView;

/// What a head's model says about its columns.
///
/// Shape:   a section is a view column; a visual index is where it stands on the screen.
/// Threads: GUI thread only.
/// Errors:  a section that doesn't exist has no group and a logical column of none.
class ZRWIDGET_PRIVATE_EXPORT ZrHeaderColumns
{
public:
    /// Logical column of a section that belongs to none; negative, and no pseudo-column either.
    static const int none;

    /// "Head_ColumnIndex" of the section. Where the model has none, as for the check box column of a tree,
    /// the section less the pseudo-columns before it.
    static int logicalColumn(const QHeaderView &head, int section);
    /// "Head_GroupId" of a section; empty for a column outside any group.
    static QString groupId(const QHeaderView &head, int section);
    static QString groupIdAtVisual(const QHeaderView &head, int visualIndex);

private:
    ZrHeaderColumns() = delete;
};
