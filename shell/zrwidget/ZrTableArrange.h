#pragma once

#include "zrutils/ZrRecordTypes.h"
#include "zrwidget_global.h"

#include <QtCore/QModelIndex>

class ZrTableModelPrivate;

/// Sorting of the rows and setting of one cell: what may change any row's place or key.
class ZRWIDGET_PRIVATE_EXPORT ZrTableArrange
{
public:
    explicit ZrTableArrange(ZrTableModelPrivate &fields);

    void sort(int section, Qt::SortOrder order);
    bool setCell(const QModelIndex &index, const QVariant &value, int role);

private:
    bool isSortable(int section) const;
    bool store(int modelRow, int column, const QVariant &value, int role);

    ZrTableModelPrivate &m_fields;
};
