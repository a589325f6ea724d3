#pragma once

#include "zrutils/ZrRecordTypes.h"
#include "zrwidget_global.h"

#include <QtCore/QHash>

/// Key string to model row, at constant cost also while rows leave at the front.
///
/// Shape:  a hash from key to sequence number; row = number - base. Dropping the first row only moves the
/// base. Errors: an unknown key has the row -1. Numbers may be stale when the caller moved rows without
/// telling; isExact()
///         says whether every row has its own, non-empty key and the right number.
class ZRWIDGET_PRIVATE_EXPORT ZrTableKeyIndex
{
public:
    /// The key of a record: each key column's first non-empty text of role 256, 0, 257, put together.
    static QString makeKey(const RecordData &record, const QList<int> &keyColumns);

    int size() const { return m_numbers.size(); }
    bool contains(const QString &key) const { return m_numbers.contains(key); }
    int row(const QString &key) const;

    /// True while the index says what a rebuild from the rows would say and no two rows share a key.
    bool isExact() const { return m_exact; }
    void markStale() { m_exact = false; }

    void clear();
    void reserve(int rows) { m_numbers.reserve(rows); }
    /// Counts all rows anew; a key met twice keeps the later row, an empty one none.
    void rebuild(const RecordDataList &rows, const QList<int> &keyColumns);
    void enter(const QString &key, int row);
    void remove(const QString &key);

    // For an exact index. Rows as they are after the change; the keys of rows that left are removed by the
    // caller.
    void frontDropped(int count) { m_base += count; }
    void rowInserted(const RecordDataList &rows, const QList<int> &keyColumns, int row, const QString &key);
    void rowRemoved(const RecordDataList &rows, const QList<int> &keyColumns, int row);

    /// Empty when an exact index agrees with the rows, else what is wrong.
    QString invariantError(const RecordDataList &rows, const QList<int> &keyColumns) const;

private:
    void dropOld();
    void shift(const RecordDataList &rows, const QList<int> &keyColumns, int first, int last, int step);

    QHash<QString, qint64> m_numbers;
    qint64 m_base = 0;    // number of row 0
    qint64 m_highest = 0; // no number was ever above it
    bool m_exact = true;
};
