#pragma once

#include "zrwidget_global.h"

#include <QtCore/QVector>
#include <zrutils/ZrRecordTypes.h>

/// The choices of a column's filter with their ticks, and the filter that the ticks stand for.
///
/// Shape:   a choice is a record whose cell 0 holds the text shown (role 0) and, for most, a raw value (role
///          256); its row-state cell holds the tick. A choice is known by keyText(), of which each stands
///          here once.
/// Threads: GUI thread only.
/// Errors:  a ticked choice of a number or date column that is no range adds no condition.
class ZRWIDGET_PRIVATE_EXPORT ZrFilterChoices
{
public:
    using Groups = QList<QList<QVariantMap>>;

    /// What a choice is known by: the text of role 256, else of 0, else of 257.
    static QString keyText(const RecordData &choice);
    static bool isTicked(const RecordData &choice);

    /// Takes the column's own choices or, without such, works them out from its distinct cells; `valueType`
    /// is the column's QVariant::Type. Ticks what `filter` holds.
    void fill(int valueType, const QList<ItemRoleMap> &cells, const Groups &filter,
              const RecordDataList &ownChoices);

    const RecordDataList &records() const { return m_records; }
    /// The texts shown, in the order of the records.
    const QVector<QString> &texts() const { return m_texts; }
    int tickedCount() const { return m_ticked; }
    /// Also when there are no choices at all.
    bool isAllTicked() const { return m_ticked == m_records.size(); }

    /// The tick is stored as the number that it is told by.
    void tickAll(int state);
    void tick(const QString &keyText, int state);

    /// The choices whose text contains the other, case counts.
    RecordDataList containing(const QString &text) const;
    /// The cells of the ticked choices with their text as the comment: what a match function reads.
    QList<ItemRoleMap> tickedCells() const;
    /// The filter of all other columns: groups, of which one has to hold.
    Groups conditions() const;

private:
    static RecordDataList wrapped(const QList<ItemRoleMap> &cells);
    static void writeTick(RecordData &choice, const QVariant &state);
    void clear(int expected);
    void append(const RecordData &choice, const QString &key, int slot);
    /// Where the table holds the key, or where it would go.
    int slotOf(const QString &key) const;
    QVector<int> tickedRows() const;
    Groups textConditions() const;
    Groups rangeConditions() const;

    int m_valueType = 0;
    RecordDataList m_records;
    QVector<QString> m_texts;
    // Key texts by row, and an open table of rows + 1 that finds them: a hash would make a hundred thousand
    // small blocks for as many choices, and free them at the next opening.
    QVector<QString> m_keys;
    QVector<int> m_slots;
    int m_ticked = 0;
};
