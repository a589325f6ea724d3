#pragma once

#include "zrwidget_global.h"

#include <QtCore/QVector>
#include <zrutils/ZrRecordTypes.h>

/// The choices of a column's filter with their ticks, and the filter that the ticks stand for.
///
/// Shape:   a choice is a cell that holds the text shown (role 0) and, for most, a raw value (role 256). It
/// is
///          known by its key text, of which each stands here once. As a record, the way a grid shows it, it
///          is made when asked for: of a hundred thousand choices a user sees a few dozen.
/// Threads: GUI thread only.
/// Errors:  a ticked choice of a number or date column that is no range adds no condition. Rows out of range
/// are
///          the caller's bug.
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

    int size() const { return m_cells.size(); }
    /// The texts shown, by row.
    const QVector<QString> &texts() const { return m_texts; }
    /// The choice with its tick in the row-state cell.
    RecordData record(int row) const;
    /// The rows of the choices whose text contains the other, case counts; of all for an empty text.
    QVector<int> rowsContaining(const QString &text) const;
    int tickedCount() const { return m_ticked; }
    /// Also when there are no choices at all.
    bool isAllTicked() const { return m_ticked == size(); }

    /// The tick is stored as the number that it is told by.
    void tickAll(int state);
    void tick(const QString &keyText, int state);

    /// The cells of the ticked choices with their text as the comment: what a match function reads.
    QList<ItemRoleMap> tickedCells() const;
    /// The filter of all other columns: groups, of which one has to hold.
    Groups conditions() const;

private:
    void clear(int expected);
    void fillTexts(const QList<ItemRoleMap> &cells);
    void take(const ItemRoleMap &cell, const ItemRoleMap &state);
    /// Notes the choice of the next row; false when its key is known.
    bool note(const ItemRoleMap &cell, const QVariant &tick);
    void tickAsIn(const Groups &filter);
    /// Where the table holds the key, or where it would go.
    int slotOf(const QString &key) const;
    QVector<int> tickedRows() const;
    Groups textConditions() const;
    Groups rangeConditions() const;

    int m_valueType = 0;
    // By row. Flat, and shared with the grid's cells: a node of memory for each choice would take longer to
    // make and to free than all the rest.
    QList<ItemRoleMap> m_cells;
    QVector<QString> m_texts;
    QVector<QString> m_keys;
    QVector<QVariant> m_ticks;          // invalid: never touched
    QMap<int, ItemRoleMap> m_ownStates; // row-state cells that choices came with
    QVector<int> m_slots;               // an open table of rows + 1 that finds the keys
    int m_ticked = 0;
};
