#include "ZrFilterChoices.h"

#include "ZrFilterTicks.h"
#include "ZrRangeChoice.h"
#include "ZrRoleKeys.h"
#include "ZrTableFilterParse.h"

#include <QtCore/QStringMatcher>
#include <zrdefine/VexlorFields.h>
#include <zrdefine/VexlorValues.h>

using namespace Vexlor_Fields;
namespace CompareOperator = Vexlor_Values::CompareOperator;
namespace LogicOperator = Vexlor_Values::LogicOperator;

namespace {
constexpr int TextCell = 0;

const ItemRoleMap &cellOf(const RecordData &choice)
{
    static const ItemRoleMap none;
    const auto cell = choice.constFind(TextCell);
    return cell == choice.constEnd() ? none : *cell;
}

// Mostly a text already, which is shared then.
QString textOf(const ItemRoleMap &cell, const QString &role)
{
    const auto value = cell.constFind(role);
    return value == cell.constEnd() ? QString() : value->toString();
}

QVariantMap condition(const QString &comparison, const QString &value, const QString &comment)
{
    return {{Infomation::compareOperator, comparison},
            {System::filterValue, value},
            {Infomation::fieldComment, comment}};
}
} // namespace

QString ZrFilterChoices::keyText(const RecordData &choice)
{
    const ItemRoleMap &cell = cellOf(choice);
    for (const QString *role : {&ITEM_USERROLE, &ITEM_DISPLAYROLE, &ITEM_CUSTOMROLE}) {
        const QString text = textOf(cell, *role);
        if (!text.isEmpty())
            return text;
    }
    return QString();
}

bool ZrFilterChoices::isTicked(const RecordData &choice)
{
    const auto state = choice.constFind(ZrRowStateColumn);
    return state != choice.constEnd() && state->value(ITEM_USERROLE).toBool();
}

void ZrFilterChoices::writeTick(RecordData &choice, const QVariant &state)
{
    choice[ZrRowStateColumn].insert(ITEM_USERROLE, state);
}

// With an empty state cell: the list that shows the choices would make it anyway, in a copy of each.
RecordDataList ZrFilterChoices::wrapped(const QList<ItemRoleMap> &cells)
{
    RecordDataList records;
    records.reserve(cells.size());
    for (const ItemRoleMap &cell : cells) {
        RecordData record;
        record.insert(record.constEnd(), ZrRowStateColumn, ItemRoleMap());
        record.insert(record.constEnd(), TextCell, cell);
        records.append(record);
    }
    return records;
}

void ZrFilterChoices::fill(int valueType, const QList<ItemRoleMap> &cells, const Groups &filter,
                           const RecordDataList &ownChoices)
{
    m_valueType = valueType;
    RecordDataList found = ownChoices;
    // A column whose rows are all gone has a type, but nothing that ranges could be made of.
    if (found.isEmpty() && !cells.isEmpty())
        found = wrapped(ZrTableFilterParse::getFilterRecordList(valueType, cells));
    clear(found.size());
    const ZrFilterTicks ticks(filter);
    for (const RecordData &choice : qAsConst(found)) {
        const QString key = keyText(choice);
        const int slot = slotOf(key);
        if (m_slots.at(slot) != 0)
            continue;
        append(choice, key, slot);
        if (!filter.isEmpty() && ticks.holds(cellOf(choice)))
            writeTick(m_records.last(), true);
        m_ticked += isTicked(m_records.constLast()) ? 1 : 0;
    }
}

void ZrFilterChoices::clear(int expected)
{
    m_records.clear();
    m_texts.clear();
    m_keys.clear();
    m_ticked = 0;
    m_records.reserve(expected);
    m_texts.reserve(expected);
    m_keys.reserve(expected);
    int size = 4;
    while (size < 2 * expected)
        size *= 2;
    m_slots.fill(0, size);
}

int ZrFilterChoices::slotOf(const QString &key) const
{
    const uint mask = uint(m_slots.size()) - 1;
    uint slot = qHash(key) & mask;
    while (m_slots.at(int(slot)) != 0 && m_keys.at(m_slots.at(int(slot)) - 1) != key)
        slot = (slot + 1) & mask;
    return int(slot);
}

void ZrFilterChoices::append(const RecordData &choice, const QString &key, int slot)
{
    m_records.append(choice);
    if (!choice.contains(ZrRowStateColumn))
        m_records.last().insert(ZrRowStateColumn, ItemRoleMap());
    m_keys.append(key);
    m_texts.append(textOf(cellOf(choice), ITEM_DISPLAYROLE));
    m_slots[slot] = m_records.size();
}

void ZrFilterChoices::tickAll(int state)
{
    for (RecordData &choice : m_records)
        writeTick(choice, state);
    m_ticked = state != 0 ? m_records.size() : 0;
}

void ZrFilterChoices::tick(const QString &keyText, int state)
{
    const int row = m_slots.isEmpty() ? -1 : m_slots.at(slotOf(keyText)) - 1;
    if (row < 0)
        return;
    m_ticked += int(state != 0) - int(isTicked(m_records.at(row)));
    writeTick(m_records[row], state);
}

RecordDataList ZrFilterChoices::containing(const QString &text) const
{
    const QStringMatcher matcher(text, Qt::CaseSensitive);
    RecordDataList found;
    for (int row = 0; row < m_texts.size(); ++row) {
        if (matcher.indexIn(m_texts.at(row)) >= 0)
            found.append(m_records.at(row));
    }
    return found;
}

QVector<int> ZrFilterChoices::tickedRows() const
{
    QVector<int> rows;
    rows.reserve(m_ticked);
    for (int row = 0; row < m_records.size(); ++row) {
        if (isTicked(m_records.at(row)))
            rows.append(row);
    }
    return rows;
}

QList<ItemRoleMap> ZrFilterChoices::tickedCells() const
{
    QList<ItemRoleMap> cells;
    cells.reserve(m_ticked);
    const QVector<int> rows = tickedRows();
    for (const int row : rows) {
        cells.append(cellOf(m_records.at(row)));
        cells.last().insert(Infomation::fieldComment, m_texts.at(row));
    }
    return cells;
}

ZrFilterChoices::Groups ZrFilterChoices::conditions() const
{
    switch (m_valueType) {
    case QVariant::Int:
    case QVariant::UInt:
    case QVariant::LongLong:
    case QVariant::ULongLong:
    case QVariant::Double:
    case QVariant::Date:
    case QVariant::Time:
    case QVariant::DateTime:
        return rangeConditions();
    case QVariant::String:
        return textConditions();
    }
    return Groups();
}

ZrFilterChoices::Groups ZrFilterChoices::textConditions() const
{
    Groups groups;
    groups.reserve(m_ticked);
    const QVector<int> rows = tickedRows();
    for (const int row : rows) {
        const ItemRoleMap &cell = cellOf(m_records.at(row));
        const bool hasRaw = cell.contains(ITEM_USERROLE);
        QVariantMap equal = condition(
            CompareOperator::equal, hasRaw ? textOf(cell, ITEM_USERROLE) : m_texts.at(row), m_texts.at(row));
        equal.insert(Infomation::logicOperator, LogicOperator::orOperator);
        groups.append({equal});
    }
    return groups;
}

ZrFilterChoices::Groups ZrFilterChoices::rangeConditions() const
{
    Groups groups;
    const QVector<int> rows = tickedRows();
    for (const int row : rows) {
        const QString &text = m_texts.at(row);
        const QStringList bounds = text.split(ZrRangeChoice::separator());
        if (bounds.size() != 2)
            continue;
        QVariantMap low = condition(CompareOperator::greaterOrEqual, bounds.first(), text);
        low.insert(Infomation::logicOperator, LogicOperator::andOperator);
        groups.append({low, condition(CompareOperator::lessOrEqual, bounds.last(), text)});
    }
    return groups;
}
