#pragma once

#include <QtCore/QList>
#include <QtCore/QMap>
#include <QtCore/QString>
#include <QtCore/QVariant>

/// One cell: role key (decimal text of an item role) to value.
using ItemRoleMap = QMap<QString, QVariant>;
/// One row: logical column to cell; key -1 is the row-state cell.
using RecordData = QMap<int, ItemRoleMap>;
/// Many rows.
using RecordDataList = QList<RecordData>;
/// Column heads of a grid in display order.
using HeadList = QList<QMap<QString, QVariant>>;
/// Filter state: logical column to filter groups of conditions.
using ViewFilterList = QMap<int, QList<QList<QVariantMap>>>;
