#pragma once

#include "zrwidget_global.h"

#include <QtCore/QHash>
#include <QtCore/QVector>
#include <zrutils/ZrRecordTypes.h>

#include <map>

/// The distinct ones of many cells, in the order of first appearance.
///
/// Two cells are the same when their maps are equal: all keys, and all values by the comparison of QVariant.
/// That comparison is no plain identity (numbers that differ in the last bits are equal, and so are a number
/// and its text), so a hash of the cell can't decide; a scan of all cells kept so far, on the other hand,
/// takes minutes for a column of 100,000 prices. Here a hash of the texts and an order of the numbers only
/// narrow down who is compared.
///
/// Threads: one object on one thread at a time.
class ZRWIDGET_PRIVATE_EXPORT ZrDistinctCells
{
public:
    /// Keeps the cell; false when an equal one stands there already.
    bool add(const ItemRoleMap &cell);
    const QList<ItemRoleMap> &cells() const { return m_cells; }

private:
    struct Probe
    {
        QString names; // the role keys
        QString kinds; // the kind of value under each
        QString texts; // the values that are texts
        bool hasNumber = false;
        double number = 0;      // the first value that is a number or a date
        bool canBeEqual = true; // false: holds a NaN, which equals nothing
        void take(const QString &name, const QVariant &value);
    };
    using Bucket = std::multimap<double, int>;

    bool isKnown(const Probe &probe, const ItemRoleMap &cell) const;
    bool isKnownAmongOtherKinds(const Probe &probe, const ItemRoleMap &cell) const;

    QList<ItemRoleMap> m_cells;
    QHash<QString, Bucket> m_buckets;                       // by names, kinds and texts
    QHash<QString, QHash<QString, QVector<int>>> m_kindsOf; // names -> kinds -> cells
};
