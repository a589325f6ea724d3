#include "ZrTableFilter.h"

#include "ZrRoleKeys.h"
#include "ZrTableModel_p.h"
#include "zrutils/ZrCommonUtils.h"

ZrTableFilter::ZrTableFilter(const ZrTableModelPrivate &fields)
    : m_fields(fields)
    , m_hostFilters(fields.viewFilterList)
{
    for (auto it = fields.matchFunctions.constBegin(); it != fields.matchFunctions.constEnd(); ++it)
        m_hostFilters.remove(it.key());
    if (m_hostFilters.size() == fields.viewFilterList.size())
        return;
    for (const auto &head : fields.headList) {
        const int column = head.value(HEAD_COLUMNINDEX).toInt();
        if (column >= 0 && fields.matchFunctions.value(column) &&
            !fields.viewFilterList.value(column).isEmpty())
            m_functionColumns.append(column);
    }
}

bool ZrTableFilter::passesAll() const
{
    return m_hostFilters.isEmpty() && m_functionColumns.isEmpty();
}

bool ZrTableFilter::matches(const RecordData &record) const
{
    if (passesAll())
        return true;
    return ZrCommonUtils::isRecordMatchFilterList(record, m_hostFilters, m_fields.columnTypes) &&
           passesFunctions(record);
}

bool ZrTableFilter::passesFunctions(const RecordData &record) const
{
    for (const int column : m_functionColumns) {
        const ItemRoleMap cell = record.value(column);
        if (cell.isEmpty())
            return false;
        const QVariant spare = cell.value(ITEM_CUSTOMROLE, cell.value(ITEM_DISPLAYROLE));
        const QVariant value = cell.value(ITEM_USERROLE, spare);
        const ZrColumnMatchFunction isMatch = m_fields.matchFunctions.value(column);
        if (!isMatch(value, m_fields.viewFilterList.value(column).constFirst()))
            return false;
    }
    return true;
}

QVector<bool> ZrTableFilter::marks() const
{
    QVector<bool> marks(m_fields.modelData.size(), passesAll());
    if (!passesAll()) {
        markFound(ZrCommonUtils::getMatchRecordListByFilterList(m_fields.modelData, m_hostFilters,
                                                                m_fields.columnTypes),
                  marks);
    }
    return marks;
}

// The host gives back records, not rows. They come in row order and mostly share their data with the rows,
// which tells them apart at the cost of a pointer; a host that gives copies is asked for each row instead.
void ZrTableFilter::markFound(const RecordDataList &found, QVector<bool> &marks) const
{
    int next = 0;
    for (int row = 0; row < marks.size() && next < found.size(); ++row) {
        if (!found.at(next).isSharedWith(m_fields.modelData.at(row)))
            continue;
        marks[row] = passesFunctions(found.at(next));
        ++next;
    }
    if (next == found.size())
        return;
    for (int row = 0; row < marks.size(); ++row)
        marks[row] = matches(m_fields.modelData.at(row));
}
