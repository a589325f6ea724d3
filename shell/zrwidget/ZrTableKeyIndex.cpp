#include "ZrTableKeyIndex.h"

#include "ZrRoleKeys.h"

namespace {

// A cell mostly holds its text as a QString: that one is shared instead of being made anew.
QString textOf(const ItemRoleMap &cell, const QString &role)
{
    auto found = cell.constBegin();
    // A walk, since a cell has few roles and a search compares texts by order, not by pointer.
    while (found != cell.constEnd() && !found.key().isSharedWith(role) && found.key() != role)
        ++found;
    if (found == cell.constEnd())
        return QString();
    if (found->userType() == QMetaType::QString)
        return *static_cast<const QString *>(found->constData());
    return found->toString();
}

QString keyPart(const ItemRoleMap &cell)
{
    QString text = textOf(cell, ITEM_USERROLE);
    if (text.isEmpty())
        text = textOf(cell, ITEM_DISPLAYROLE);
    if (text.isEmpty())
        text = textOf(cell, ITEM_CUSTOMROLE);
    return text;
}

} // namespace

QString ZrTableKeyIndex::makeKey(const RecordData &record, const QList<int> &keyColumns)
{
    QString key;
    for (const int column : keyColumns) {
        const auto cell = record.constFind(column);
        if (cell == record.constEnd())
            continue;
        const QString part = keyPart(*cell);
        if (key.isEmpty())
            key = part; // shares the stored text
        else
            key += part;
    }
    return key;
}

int ZrTableKeyIndex::row(const QString &key) const
{
    const auto found = m_numbers.constFind(key);
    return found == m_numbers.constEnd() ? -1 : int(*found - m_base);
}

void ZrTableKeyIndex::clear()
{
    m_numbers.clear();
    m_base = 0;
    m_highest = 0;
    m_exact = true;
}

void ZrTableKeyIndex::enter(const QString &key, int row)
{
    m_highest = qMax(m_highest, m_base + row);
    m_numbers.insert(key, m_base + row);
}

void ZrTableKeyIndex::remove(const QString &key)
{
    // Taken, not removed: removal goes on to compare the key with its neighbour's, whose text lies elsewhere
    // in memory and is of use to nobody.
    m_numbers.take(key);
}

void ZrTableKeyIndex::rebuild(const RecordDataList &rows, const QList<int> &keyColumns)
{
    if (keyColumns.isEmpty()) {
        clear();
        m_exact = rows.isEmpty();
        return;
    }
    // The numbers start above all old ones, so that entries in use are overwritten in place (after a sort,
    // that is every one of them) and those left over are told by their number.
    m_base = m_highest + 1;
    m_highest = m_base + rows.size();
    m_numbers.reserve(rows.size());
    int distinct = 0;
    qint64 next = m_base;
    for (const RecordData &record : rows) {
        const qint64 own = next++;
        const QString key = makeKey(record, keyColumns);
        if (key.isEmpty())
            continue;
        qint64 &number = m_numbers[key];
        distinct += number < m_base ? 1 : 0;
        number = own;
    }
    if (m_numbers.size() != distinct)
        dropOld();
    m_exact = distinct == rows.size();
}

void ZrTableKeyIndex::dropOld()
{
    for (auto it = m_numbers.begin(); it != m_numbers.end();) {
        if (*it < m_base)
            it = m_numbers.erase(it);
        else
            ++it;
    }
}

void ZrTableKeyIndex::shift(const RecordDataList &rows, const QList<int> &keyColumns, int first, int last,
                            int step)
{
    for (int row = first; row <= last; ++row) {
        const auto found = m_numbers.find(makeKey(rows.at(row), keyColumns));
        if (found != m_numbers.end())
            *found += step;
    }
}

void ZrTableKeyIndex::rowInserted(const RecordDataList &rows, const QList<int> &keyColumns, int row,
                                  const QString &key)
{
    if (row < rows.size() / 2) { // the shorter side is renumbered: at the top of the grid, none
        --m_base;
        shift(rows, keyColumns, 0, row - 1, -1);
    } else {
        shift(rows, keyColumns, row + 1, rows.size() - 1, 1);
        m_highest = qMax(m_highest, m_base + rows.size() - 1);
    }
    enter(key, row);
}

void ZrTableKeyIndex::rowRemoved(const RecordDataList &rows, const QList<int> &keyColumns, int row)
{
    if (row < rows.size() / 2) {
        ++m_base;
        shift(rows, keyColumns, 0, row - 1, 1);
    } else {
        shift(rows, keyColumns, row, rows.size() - 1, -1);
    }
}

QString ZrTableKeyIndex::invariantError(const RecordDataList &rows, const QList<int> &keyColumns) const
{
    if (!m_exact || keyColumns.isEmpty())
        return QString();
    if (m_numbers.size() != rows.size())
        return QStringLiteral("%1 keys for %2 rows").arg(m_numbers.size()).arg(rows.size());
    for (int i = 0; i < rows.size(); ++i) {
        if (row(makeKey(rows.at(i), keyColumns)) != i)
            return QStringLiteral("the key of row %1 leads elsewhere").arg(i);
    }
    return QString();
}
