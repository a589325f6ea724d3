#pragma once

#include "ZrTableMerge.h"
#include "zrutils/ZrRecordTypes.h"
#include "zrwidget_global.h"

class ZrTableModelPrivate;

/// The update family: merge by key, and what the filter makes of the merged row. The hot path of a live grid.
class ZRWIDGET_PRIVATE_EXPORT ZrTableUpdates
{
public:
    explicit ZrTableUpdates(ZrTableModelPrivate &fields);

    void update(const RecordData &record);
    void updateMany(const RecordDataList &records);
    void replaceAll(const RecordDataList &records);

private:
    struct Change
    {
        int row = -1; // of the model; -1: nothing is new
        QString key;
        ZrChangedColumns columns;
        int position = -1; // where the row was shown; -1: it wasn't
        bool isMatch = true;
    };
    Change merge(const RecordData &record);
    void mergeCells(RecordData &stored, const RecordData &record, bool isCounted, ZrChangedColumns &changed);
    void tellCells(int row, const ZrChangedColumns &columns, const RecordData &record);
    void tellFiltered(const Change &change, const RecordData &record);
    /// Whether the row came or went; true makes the rows shown others than before.
    bool enterOrLeave(const Change &change);
    void leave(const Change &change);
    void enter(const Change &change);
    int positionForKey(int row) const;

    ZrTableModelPrivate &m_fields;
};
