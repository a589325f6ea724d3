#include "ZrRowHeights.h"

#include <QtWidgets/QHeaderView>

ZrRowHeights::ZrRowHeights(const QHeaderView *head, int usualPx)
{
    // The usual case at a million rows: none has a height of its own.
    if (qint64(head->length()) == qint64(head->count()) * usualPx && head->hiddenSectionCount() == 0)
        return;
    for (int row = 0; row < head->count(); ++row) {
        if (!head->isSectionHidden(row) && head->sectionSize(row) != usualPx)
            m_heights.insert(row, head->sectionSize(row));
    }
}

void ZrRowHeights::restore(QHeaderView *head) const
{
    for (auto row = m_heights.cbegin(); row != m_heights.cend(); ++row) {
        if (row.key() < head->count())
            head->resizeSection(row.key(), row.value());
    }
}
