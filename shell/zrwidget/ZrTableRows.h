#pragma once

#include "zrutils/ZrRecordTypes.h"
#include "zrwidget_global.h"

class ZrTableKeyIndex;
class ZrTableModelPrivate;

/// Keeps rows, key index, display list, counters and sums in step while rows come and go; sends no signals.
///
/// Shape: every entry path of the model is made of these steps. What the rebuild of the key map would give is
///        reached without one wherever the index is exact; where it isn't, the rebuild is made.
class ZRWIDGET_PRIVATE_EXPORT ZrTableRows
{
public:
    explicit ZrTableRows(ZrTableModelPrivate &fields);

    bool hasKeys() const;
    /// The first value seen of a column gives its type, for good.
    void learnTypes(const RecordData &record);

    /// Adds at the end; true when the row is shown.
    bool append(const RecordData &record, const QString &key);
    /// Adds at a row and learns the types; true when the row is shown.
    bool insert(int row, const RecordData &record, const QString &key);
    /// Adds at a row for a caller who rebuilds afterwards; `key` is known from here on.
    void insertForRebuild(int row, const RecordData &record, const QString &key);
    void dropFront(int count);
    void dropBack(int count);
    /// Takes a row out under its key and gives the position it was shown at, -1 when it wasn't.
    int removeKeyed(int row, const QString &key);
    /// Takes a row out and leaves the numbers of later keys as they are.
    void removeUnnumbered(int row);
    /// Takes a shown row out while canFollow() holds; the caller goes from the highest row down and renumbers
    /// once at the end.
    void removeInStep(int row);
    void replaceAll(const RecordDataList &records);

    /// The key map anew; in filter mode the display list as well.
    void rebuild();
    /// What rebuild() gives, from the key map of `rows` where these still are the model's.
    void rebuildFrom(const ZrTableKeyIndex &index, const RecordDataList &rows);
    /// What rebuild() gives while the rows are as they were.
    void refilter();
    void refreshDisplay();
    /// The key map alone.
    void renumber();
    /// Before rows and keys get out of step: the display list becomes a plain list of keys.
    void loseStep();
    /// The row's key columns changed under the key map.
    void keyChanged(int row, const QString &oldKey);
    /// Cells were written from outside the merge.
    void cellsWritten(bool stateOnly);
    bool canFollow() const; // an exact index, and marks that a rebuild would find again

    bool isShown(int row, const QString &key) const;
    /// What the filter says of a record; all pass out of filter mode.
    bool wouldShow(const RecordData &record, const QString &key) const;
    /// Counters and sums, for rows that are shown.
    void countIn(const RecordData &record);
    void countOut(const RecordData &record);
    /// The counters can't follow a plain key list: they count again when asked.
    void forgetCounts();
    bool countsFollow() const;

private:
    void toLiteral(int row, const QString &key);

    ZrTableModelPrivate &m_fields;
    bool m_marksStale = false; // a new column type may change what the filter says of earlier rows
    int m_readAhead = 0;       // rows at the front that ZrRecordFetch has read
};
