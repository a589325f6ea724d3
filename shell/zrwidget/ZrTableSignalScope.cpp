#include "ZrTableSignalScope.h"

#include "ZrTableModel_p.h"

ZrTableSignalScope::ZrTableSignalScope(ZrTableModelPrivate &fields, bool isOdd)
    : m_fields(fields)
{
    if (isOdd && !fields.isParking())
        park();
}

ZrTableSignalScope::~ZrTableSignalScope()
{
    if (!m_indexes.isEmpty())
        restore();
    m_fields.settleViews();
}

void ZrTableSignalScope::park()
{
    m_indexes = m_fields.persistentIndexes();
    for (const QModelIndex &index : qAsConst(m_indexes)) {
        const int row = m_fields.modelRowAt(index.row());
        m_keys.append(row < 0 ? QString() : m_fields.makeKey(m_fields.modelData.at(row)));
    }
    if (!m_indexes.isEmpty())
        m_fields.parkIndexes(m_indexes);
}

void ZrTableSignalScope::restore()
{
    QModelIndexList now;
    for (int i = 0; i < m_indexes.size(); ++i) {
        const int row = m_keys.at(i).isEmpty() ? -1 : m_fields.model->getRowByKey(m_keys.at(i));
        now.append(m_fields.model->index(row, m_indexes.at(i).column()));
    }
    m_fields.unparkIndexes(m_indexes, now);
}
