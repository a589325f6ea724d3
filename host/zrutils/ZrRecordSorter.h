#pragma once

#include "zrutils/ZrRecordTypes.h"
#include "zrutils/ZrTextSorter.h"

#include <QtCore/QDateTime>
#include <QtCore/QPair>

#include <deque>
#include <vector>

/// Sorts rows by columns in turn.
///
/// Shape:   per column the values are taken out once and fall into kinds, which follow each other: no value,
///          numbers (truth values are 0 and 1), dates and moments, times of day, texts (anything else). So a
///          mixed column has an order as well. Numbers compare without loss, texts by code point, moments of
///          local time by the clock on the wall, other moments by the instant; an invalid value is no value.
///          Stable in both directions.
/// Threads: any; one object for one sort.
class ZrRecordSorter
{
public:
    explicit ZrRecordSorter(RecordDataList &records);

    void sort(const QList<QPair<int, Qt::SortOrder>> &keys);

private:
    enum MomentKind : quint32 { WallClock, Instant };
    struct Entry
    {
        quint64 key; // the value's bits, later its place in the order
        quint32 row;
        quint32 kind; // of a number: ZrNumber::Kind; of a moment: MomentKind
    };
    using Entries = std::vector<Entry>;

    void sortByColumn(int column, bool descending);
    void extract(int column);
    void take(const QVariant *value, quint32 row);
    void takeMoment(const QDateTime &moment, MomentKind kind, quint32 row);
    void takeText(const QVariant &value, quint32 row);
    void sortNumbers(bool descending);
    void sortMixedNumbers(bool descending);
    void sortMoments(bool descending);
    void sortByKey(Entries &entries, bool descending);
    void collect(bool descending);
    void moveRows();

    RecordDataList &m_records;
    std::vector<quint32> m_rows; // the order so far: places in m_records
    // Of the column at hand:
    std::vector<quint32> m_missing;
    Entries m_numbers;
    Entries m_moments;
    Entries m_times;
    std::vector<ZrTextEntry> m_texts;
    std::deque<QString> m_madeTexts; // of values that are no QString; a deque keeps its elements in place
    Entries m_spare;
};
