#pragma once

#include "ZrTableModel.h"

/// The table model told plainly: lists, a map and scans, nothing counted ahead. The random test holds the
/// real one against it. It sends no signals and knows no widgets.
class ZrPlainTable
{
public:
    RecordDataList rows;
    QMap<QString, int> keyToRow;
    QList<QString> shownKeys;
    QMap<int, int> types;
    ViewFilterList filters;
    QList<int> keyColumns;
    bool isFilterable = false;
    bool isCheckBoxShown = true;
    bool isDelayed = false; // rows are told by a later reset, and the head isn't counted with them
    int maximum = 1000000;
    int headState = 0;

    QString keyOf(const RecordData &record) const;
    int shownCount() const { return isFilterable ? shownKeys.size() : rows.size(); }
    int modelRow(int shownRow) const;
    int rowOfKey(const QString &key) const;
    RecordDataList shownRecords() const;
    int countedHeadState() const;

    void add(const RecordData &record);
    void addList(const RecordDataList &records);
    void insert(int row, const RecordData &record);
    void insertList(int row, const RecordDataList &records);
    void update(const RecordData &record);
    void updateMany(const RecordDataList &records);
    void replaceAll(const RecordDataList &records);
    int remove(const RecordData &record);
    int removeList(const RecordDataList &records);
    void removeRow(int row);
    void sort(int column, Qt::SortOrder order);
    void setFilters(const ViewFilterList &newFilters);
    void setFilterable(bool on);
    void check(int row, bool checked);

private:
    enum Kind { New, Existing, Refused };
    Kind classify(const QString &key) const;
    bool matches(const RecordData &record) const;
    void learn(const RecordData &record);
    void rebuild();
    void refresh();
    void renumber();
    bool mergeInto(const RecordData &record, int &row, bool &hasState);
    void settleShown(int row, const QString &key, bool &isTold);
    void updateHead();
    void endAllChecked();
};
