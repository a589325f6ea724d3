#pragma once

#include "zrutils/ZrRecordTypes.h"
#include "zrwidget_global.h"

class ZrTableModelPrivate;

/// The delete family.
class ZRWIDGET_PRIVATE_EXPORT ZrTableRemovals
{
public:
    explicit ZrTableRemovals(ZrTableModelPrivate &fields);

    int remove(const RecordData &record);
    int removeList(const RecordDataList &records);
    void removeRow(int row);

private:
    int notePositions(const RecordDataList &records, QMap<int, QString> &noted) const;
    void takeOut(const QMap<int, QString> &noted);
    void removeShownRow(int row);
    void tellRemoved(int row);

    ZrTableModelPrivate &m_fields;
};
