#pragma once

#include "zrwidget_global.h"

#include <QtCore/QObject>

/// Tells how many pseudo-columns (check box, serial number) stand before the first column of a grid.
///
/// The private objects of the grids and of their models implement it and name it in Q_INTERFACES, so that
/// ZrModelIndex can convert column numbers without knowing a class of a higher layer.
///
/// Ownership: the grid or model owns its private object; a caller asks again at each use.
/// Threads:   GUI thread only.
/// Errors:    of() gives null for an object without offsets.
class ZRWIDGET_PRIVATE_EXPORT ZrColumnOffsets
{
public:
    virtual ~ZrColumnOffsets();

    /// The offsets of `owner` itself or of one of its direct children; null when there are none.
    static const ZrColumnOffsets *of(const QObject *owner);

    /// View column minus logical column, for every column that is no pseudo-column.
    virtual int columnOffset() const = 0;

protected:
    ZrColumnOffsets() = default;

private:
    Q_DISABLE_COPY(ZrColumnOffsets)
};

Q_DECLARE_INTERFACE(ZrColumnOffsets, "zrwidget.ZrColumnOffsets/1.0")
