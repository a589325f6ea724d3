#pragma once

#include "zrwidget_global.h"

#include <QtCore/QAbstractItemModel>
#include <QtCore/QStringList>

class ZrTableModelPrivate;

/// One operation's row signals, around the change and all its signals.
///
/// Shape: some signals carry numbers that aren't those of the rows shown. For these ("odd") the views'
/// persistent
///        indexes (current row, selection, editors) are parked far below all rows, where the toolkit's own
///        moving can neither end them nor complain about them; at the end each comes back to the row with its
///        key, or becomes invalid when that row is shown no more. Then the views count again if what they
///        were told doesn't add up to what is there.
class ZRWIDGET_PRIVATE_EXPORT ZrTableSignalScope
{
public:
    ZrTableSignalScope(ZrTableModelPrivate &fields, bool isOdd);
    ~ZrTableSignalScope();

private:
    Q_DISABLE_COPY(ZrTableSignalScope)
    void park();
    void restore();

    ZrTableModelPrivate &m_fields;
    QModelIndexList m_indexes; // as they were
    QStringList m_keys;        // of their rows
};
