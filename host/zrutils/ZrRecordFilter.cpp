#include "zrutils/ZrRecordFilter.h"

#include "zrutils/ZrCellValue.h"

#include <algorithm>
#include <array>

ZrRecordFilter::ZrRecordFilter(const ViewFilterList &filters, const QMap<int, int> &types)
{
    for (auto entry = filters.constBegin(); entry != filters.constEnd(); ++entry) {
        const bool anyEmpty = std::any_of(entry->constBegin(), entry->constEnd(),
                                          [](const QList<QVariantMap> &group) { return group.isEmpty(); });
        if (!entry->isEmpty() && !anyEmpty)
            addColumn(entry.key(), entry.value(), ZrFilterCondition::kindOfType(types.value(entry.key())));
    }
}

void ZrRecordFilter::addColumn(int number, const QList<QList<QVariantMap>> &groups, ZrValueKind kind)
{
    Column column{number, kind, QSet<QString>(), {}};
    for (const QList<QVariantMap> &conditions : groups) {
        Group group;
        for (const QVariantMap &condition : conditions)
            group.emplace_back(condition, kind);
        if (group.size() == 1 && group.front().isEqualText())
            column.texts.insert(group.front().text());
        else
            column.groups.push_back(std::move(group));
    }
    m_columns.push_back(std::move(column));
}

bool ZrRecordFilter::passes(const RecordData &record) const
{
    return std::all_of(m_columns.cbegin(), m_columns.cend(),
                       [&record](const Column &column) { return passesColumn(column, record); });
}

RecordDataList ZrRecordFilter::passing(const RecordDataList &records) const
{
    if (m_columns.empty())
        return records;
    RecordDataList result;
    for (int i = 0; i < records.size(); ++i) {
        if (i % BlockSize == 0)
            readAhead(records, i);
        if (passes(records.at(i)))
            result.append(records.at(i));
    }
    return result;
}

// Records lie apart in memory, and many of them fit no cache. Each loop reads one thing of every record of a
// block, so that the processor waits for all of them at once.
void ZrRecordFilter::readAhead(const RecordDataList &records, int first) const
{
    const int end = std::min(first + BlockSize, records.size());
    const int column = m_columns.front().number;
    std::array<const ItemRoleMap *, BlockSize> cells;
    int count = 0;
    int sum = 0;
    for (int i = first; i < end; ++i)
        sum += records.at(i).size();
    for (int i = first; i < end; ++i) {
        const auto cell = records.at(i).constFind(column);
        if (cell != records.at(i).constEnd() && !cell->isEmpty())
            cells[size_t(count++)] = &*cell;
    }
    for (int i = 0; i < count; ++i)
        sum += cells[size_t(i)]->constBegin()->userType();
    volatile int isRead = sum; // else the compiler would leave the reading out
    Q_UNUSED(isRead)
}

bool ZrRecordFilter::passesColumn(const Column &column, const RecordData &record)
{
    const auto cell = record.constFind(column.number);
    if (cell == record.constEnd())
        return false;
    const QVariant *value =
        column.kind == ZrValueKind::Text ? ZrCellValue::choiceOf(*cell) : ZrCellValue::of(*cell);
    if (!value || !value->isValid())
        return false;
    if (!column.texts.isEmpty()) {
        const bool isText = value->userType() == QMetaType::QString;
        if (isText ? column.texts.contains(*static_cast<const QString *>(value->constData()))
                   : column.texts.contains(value->toString()))
            return true;
    }
    return std::any_of(column.groups.cbegin(), column.groups.cend(),
                       [value](const Group &group) { return passesGroup(group, *value); });
}

bool ZrRecordFilter::passesGroup(const Group &group, const QVariant &value)
{
    bool result = group.front().holds(value);
    for (std::size_t i = 1; i < group.size(); ++i) {
        if (group[i - 1].joinsByOr())
            result = result || group[i].holds(value);
        else
            result = result && group[i].holds(value);
    }
    return result;
}
