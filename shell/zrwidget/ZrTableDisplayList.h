#pragma once

#include "zrwidget_global.h"

#include <QtCore/QList>
#include <QtCore/QString>
#include <QtCore/QVector>

/// Which rows a filtered table shows, in shown order: the display key list.
///
/// Shape:  while every row has its own key and the shown rows stand in model order, a mark per model row with
///         counts above it, so that position and row turn into each other in logarithmic time ("ordered").
///         Otherwise the plain list of keys, scanned from the front ("literal"): some ways to delete rows
///         leave keys without a row behind, and callers see exactly that.
/// Errors: positions and rows out of range give -1 or an empty key.
class ZRWIDGET_PRIVATE_EXPORT ZrTableDisplayList
{
public:
    bool isOrdered() const { return m_ordered; }
    int size() const { return m_ordered ? m_shown : m_keys.size(); }
    void clear();

    // --- Ordered ---
    /// One mark per model row.
    void assign(const QVector<bool> &marks);
    int rowCount() const { return m_rows; }
    bool isShown(int row) const;
    int rowAt(int position) const;
    int positionOf(int row) const;
    /// Where the row is shown or would be.
    int positionAt(int row) const { return shownBefore(m_first + row); }
    void setShown(int row, bool shown);
    void appendRow(bool shown);
    void dropFront(int count);
    void insertRow(int row, bool shown);
    void removeRow(int row);

    // --- Literal ---
    void assignKeys(const QList<QString> &keys);
    const QList<QString> &keys() const { return m_keys; }
    int indexOf(const QString &key) const { return m_keys.indexOf(key); }
    QString keyAt(int position) const { return m_keys.value(position); }
    void insertKey(int position, const QString &key);
    void appendKey(const QString &key) { m_keys.append(key); }
    void removeAt(int position);

    /// Empty when counts and marks agree, else what is wrong.
    QString invariantError() const;

private:
    void grow();
    void recount();
    void addCount(int word, int step);
    int shownBefore(int bit) const;

    bool m_ordered = true;
    int m_rows = 0;
    int m_shown = 0;
    int m_first = 0;          // bit of row 0
    QVector<quint64> m_marks; // a bit per row
    QVector<int> m_counts;    // binary indexed tree over the words' counts
    mutable int m_lastPosition = -1;
    mutable int m_lastRow = -1;
    QList<QString> m_keys;
};
