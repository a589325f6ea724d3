#pragma once

#include "zrutils/ZrFilterCondition.h"
#include "zrutils/ZrRecordTypes.h"

#include <QtCore/QSet>

#include <vector>

/// A filter state read once, for testing many rows.
///
/// The rule: a row passes when it passes each column that has groups. It passes a column when it passes one
/// of its groups, and a group by its conditions, joined from left to right: the operator that a condition
/// carries joins it with the next one, and stands for "and" when it is absent. A group without conditions
/// passes. A row without the cell, or whose cell holds no value, passes no other group.
///
/// Threads: any; const operations on one object from several threads.
class ZrRecordFilter
{
public:
    ZrRecordFilter() = default;
    ZrRecordFilter(const ViewFilterList &filters, const QMap<int, int> &types);

    bool passes(const RecordData &record) const;
    RecordDataList passing(const RecordDataList &records) const;

private:
    static constexpr int BlockSize = 16; // records read ahead together
    using Group = std::vector<ZrFilterCondition>;
    struct Column
    {
        int number;
        ZrValueKind kind;
        QSet<QString> texts; // of the groups that ask for one certain text: there may be many
        std::vector<Group> groups;
    };
    void addColumn(int number, const QList<QList<QVariantMap>> &groups, ZrValueKind kind);
    void readAhead(const RecordDataList &records, int first) const;
    static bool passesColumn(const Column &column, const RecordData &record);
    static bool passesGroup(const Group &group, const QVariant &value);

    std::vector<Column> m_columns;
};
