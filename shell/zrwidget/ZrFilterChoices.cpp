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

// Mostly a text already, which is shared then.
QString textOf(const ItemRoleMap &cell, const QString &role)
{
    const auto value = cell.constFind(role);
    return value == cell.constEnd() ? QString() : value->toString();
}

QString keyOf(const ItemRoleMap &cell)
{
    for (const QString *role : {&ITEM_USERROLE, &ITEM_DISPLAYROLE, &ITEM_CUSTOMROLE}) {
        const QString text = textOf(cell, *role);
        if (!text.isEmpty())
            return text;
    }
    return QString();
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
    return keyOf(choice.value(TextCell));
}

bool ZrFilterChoices::isTicked(const RecordData &choice)
{
    const auto state = choice.constFind(ZrRowStateColumn);
    return state != choice.constEnd() && state->value(ITEM_USERROLE).toBool();
}

void ZrFilterChoices::fill(int valueType, const QList<ItemRoleMap> &cells, const Groups &filter,
                           const RecordDataList &ownChoices)
{
    m_valueType = valueType;
    if (!ownChoices.isEmpty()) {
        clear(ownChoices.size());
        for (const RecordData &choice : ownChoices)
            take(choice.value(TextCell), choice.value(ZrRowStateColumn));
    } else if (valueType == QVariant::String) {
        fillTexts(cells);
    } else {
        // A column whose rows are all gone has a type, but nothing that ranges could be made of.
        const QList<ItemRoleMap> found =
            cells.isEmpty() ? cells : ZrTableFilterParse::getFilterRecordList(valueType, cells);
        clear(found.size());
        for (const ItemRoleMap &cell : found)
            take(cell, ItemRoleMap());
    }
    if (!filter.isEmpty())
        tickAsIn(filter);
    m_ticked = tickedRows().size();
}

void ZrFilterChoices::clear(int expected)
{
    m_cells.clear();
    m_texts.clear();
    m_keys.clear();
    m_ownStates.clear();
    m_texts.reserve(expected);
    m_keys.reserve(expected);
    m_ticks.clear();
    m_ticks.reserve(expected);
    int slotCount = 4;
    while (slotCount < 2 * expected)
        slotCount *= 2;
    m_slots.fill(0, slotCount);
}

// Not by the list of distinct texts: of what that leaves out, the key is known here as well. Cells that are
// their own choices, as they mostly are, stay in the list that they came in.
void ZrFilterChoices::fillTexts(const QList<ItemRoleMap> &cells)
{
    clear(cells.size());
    int alike = 0;
    for (; alike < cells.size(); ++alike) {
        const ItemRoleMap &cell = cells.at(alike);
        if (!ZrTableFilterParse::isTextChoice(cell) || !note(cell, QVariant()))
            break;
    }
    m_cells = alike == cells.size() ? cells : cells.mid(0, alike);
    for (int i = alike; i < cells.size(); ++i)
        take(ZrTableFilterParse::textChoice(cells.at(i)), ItemRoleMap());
}

// The first of several with one key stays.
void ZrFilterChoices::take(const ItemRoleMap &cell, const ItemRoleMap &state)
{
    if (!note(cell, state.value(ITEM_USERROLE)))
        return;
    if (!state.isEmpty())
        m_ownStates.insert(size(), state);
    m_cells.append(cell);
}

bool ZrFilterChoices::note(const ItemRoleMap &cell, const QVariant &tick)
{
    const QString key = keyOf(cell);
    const int slot = slotOf(key);
    if (m_slots.at(slot) != 0)
        return false;
    m_keys.append(key);
    m_texts.append(textOf(cell, ITEM_DISPLAYROLE));
    m_ticks.append(tick);
    m_slots[slot] = m_keys.size();
    return true;
}

void ZrFilterChoices::tickAsIn(const Groups &filter)
{
    const ZrFilterTicks ticks(filter);
    for (int row = 0; row < size(); ++row) {
        if (ticks.holds(m_cells.at(row)))
            m_ticks[row] = true;
    }
}

int ZrFilterChoices::slotOf(const QString &key) const
{
    const uint mask = uint(m_slots.size()) - 1;
    uint slot = qHash(key) & mask;
    while (m_slots.at(int(slot)) != 0 && m_keys.at(m_slots.at(int(slot)) - 1) != key)
        slot = (slot + 1) & mask;
    return int(slot);
}

RecordData ZrFilterChoices::record(int row) const
{
    ItemRoleMap state = m_ownStates.value(row);
    if (m_ticks.at(row).isValid())
        state.insert(ITEM_USERROLE, m_ticks.at(row));
    // With a state cell in any case: the list that shows the choice would make it anyway, in a copy of it.
    return {{ZrRowStateColumn, state}, {TextCell, m_cells.at(row)}};
}

QVector<int> ZrFilterChoices::rowsContaining(const QString &text) const
{
    const QStringMatcher matcher(text, Qt::CaseSensitive);
    QVector<int> rows;
    rows.reserve(size());
    for (int row = 0; row < size(); ++row) {
        if (text.isEmpty() || matcher.indexIn(m_texts.at(row)) >= 0)
            rows.append(row);
    }
    return rows;
}

void ZrFilterChoices::tickAll(int state)
{
    m_ticks.fill(state);
    m_ticked = state != 0 ? size() : 0;
}

void ZrFilterChoices::tick(const QString &keyText, int state)
{
    const int row = m_slots.isEmpty() ? -1 : m_slots.at(slotOf(keyText)) - 1;
    if (row < 0)
        return;
    m_ticked += int(state != 0) - int(m_ticks.at(row).toBool());
    m_ticks[row] = state;
}

QVector<int> ZrFilterChoices::tickedRows() const
{
    QVector<int> rows;
    for (int row = 0; row < size(); ++row) {
        if (m_ticks.at(row).toBool())
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
        cells.append(m_cells.at(row));
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
        const ItemRoleMap &cell = m_cells.at(row);
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
