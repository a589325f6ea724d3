#pragma once

#include "zrutils/ZrRecordTypes.h"
#include "zrwidget_global.h"

class ZrTableModelPrivate;

/// The add and insert families: which records are new, what has to leave for them, which signals tell it.
class ZRWIDGET_PRIVATE_EXPORT ZrTableIntake
{
public:
    explicit ZrTableIntake(ZrTableModelPrivate &fields);

    void add(const RecordData &record);
    void addList(const RecordDataList &records);
    int insert(int row, const RecordData &record);
    int insertList(int row, const RecordDataList &records);

private:
    enum Kind { New, Existing, Refused };
    Kind classify(const QString &key) const;
    int appendNew(const RecordDataList &records, RecordDataList &existing);
    int insertNew(int row, const RecordDataList &records, RecordDataList &existing, int &shown);
    void evictFront(int count);
    void evictBack(int count);
    void logEviction() const;
    void mergeExisting(const RecordDataList &existing);
    void tellInserted(int first, int last);

    ZrTableModelPrivate &m_fields;
};
