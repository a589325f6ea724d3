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
/// Shape:   cells are shared with the caller's, not copied.
/// Threads: one object on one thread at a time.
class ZRWIDGET_PRIVATE_EXPORT ZrDistinctCells
{
public:
    /// The distinct cells of a column. Rows without the column add nothing.
    static QList<ItemRoleMap> ofColumn(const RecordDataList &rows, int column);

    /// Makes room for cells that are to come.
    void reserve(int count);
    /// Keeps the cell; false when an equal one stands there already.
    bool add(const ItemRoleMap &cell);
    const QList<ItemRoleMap> &cells() const { return m_cells; }

private:
    struct Probe
    {
        quint64 names = 0; // of the role keys
        quint64 kinds = 0; // of the kind of value under each
        quint64 texts = 0; // of the values that are texts
        bool hasNumber = false;
        double number = 0;      // the first value that is a number or a date
        bool canBeEqual = true; // false: holds a NaN, which equals nothing
        void take(const QString &name, const QVariant &value);
        quint64 form() const { return names ^ (kinds * 31); }
    };
    /// Cells with the same role keys and the same kinds of value under them.
    struct Form
    {
        quint64 names;
        QVector<int> cells;
    };
    using Bucket = std::multimap<double, int>;

    bool isKnown(const Probe &probe, const ItemRoleMap &cell) const;
    bool isKnownText(quint64 hash, const ItemRoleMap &cell) const;
    bool isKnownNumber(quint64 hash, double number, const ItemRoleMap &cell) const;
    bool isKnownAmongOtherForms(const Probe &probe, const ItemRoleMap &cell) const;
    void enter(const Probe &probe, int position);
    void enterText(quint64 hash, int position);
    void growTexts();

    QList<ItemRoleMap> m_cells;
    // Cells without a number: an open table of positions + 1, at most half full, and each one's hash.
    QVector<int> m_slots;
    QVector<quint64> m_hashes; // by position
    int m_textCount = 0;
    QHash<quint64, Bucket> m_buckets; // cells with a number
    QHash<quint64, Form> m_forms;
};
