#include "zrutils/ZrRecordFilter.h"

#include "zrutils/ZrCellValue.h"

#include <algorithm>

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
    for (const RecordData &record : records) {
        if (passes(record))
            result.append(record);
    }
    return result;
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
