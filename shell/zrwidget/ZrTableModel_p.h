#pragma once

#include "ZrColumnOffsets.h"
#include "ZrTableCheckCounter.h"
#include "ZrTableDisplayList.h"
#include "ZrTableKeyIndex.h"
#include "ZrTableModel.h"
#include "ZrTableSums.h"
#include "ZrTouchedRows.h"
#include "zrutils/ZrRecordTypes.h"
#include "ZrViewModel.h"
#include "zrwidget_global.h"

#include <QtCore/QHash>
#include <QtCore/QObject>

#include <functional>
#include <QtCore/QVector>

#include <memory>

class QTableView;
class ZrTableRows;

/// What a table model holds, for the model itself and its family: view, head and delegate.
///
/// Shape:     the family reads the shared fields. Plain settings may be written directly; rows, keys, filter
/// state
///            and check state change through the verbs only, since counters and indexes go along with them.
/// Ownership: child of its model; keeps no pointer to a view.
/// Threads:   GUI thread only.
class ZRWIDGET_PRIVATE_EXPORT ZrTableModelPrivate : public QObject,
                                                    public ZrColumnOffsets,
                                                    public ZrTouchedRows
{
    Q_OBJECT
    Q_INTERFACES(ZrColumnOffsets ZrTouchedRows)
public:
    explicit ZrTableModelPrivate(ZrTableModel *facade);
    ~ZrTableModelPrivate() override;

    // --- Shared fields ---
    bool columnSectionsApplied = false;         // the stored widths have been given to the head
    HeadList headList;                          // by view column, pseudo-columns included
    RecordDataList modelData;                   // all rows
    ZrTableKeyIndex keyToRow;                   // key string -> model row
    bool filterable = false;                    // rows shown come from displayKeyList; see setFilterable()
    ZrTableDisplayList displayKeyList;          // which rows are shown in filter mode
    ViewFilterList viewFilterList;              // by logical column
    QMap<int, int> columnTypes;                 // logical column -> QVariant::Type of the first value seen
    QMap<int, RecordDataList> columnFilterData; // candidates of a column's filter popup
    QMap<int, ZrColumnMatchFunction> matchFunctions; // by logical column
    QList<int> keyColumns;                           // logical columns
    QMap<int, int> columnAlignment;                  // logical column -> Qt::Alignment
    int defaultColumnAlignment = 130;                // right, vertically centred
    QMap<int, int> headAlignment;                    // logical column -> Qt::Alignment
    int defaultHeadAlignment = 132;                  // centred
    ZrViewModel::SerialNumColumnOrder serialOrder = ZrViewModel::SerialNumNone;
    int beginSerialNumber = 0;
    int maximumRowCount = 1000000;
    bool itemSelectable = false;
    bool checkBoxShown = false;
    int headCheckState = 0;                           // Qt::CheckState
    QMap<int, int> columnWidths;                      // logical column -> px
    QMap<QString, QMap<int, QWidget *>> indexWidgets; // key -> logical column -> widget, not owned
    bool delayedDisplay = false;
    int delayTimerId = 0; // 0: no timer runs
    quint16 delayInMs = 200;
    bool sumFlag = false; // this is the model of the summary line
    int sortColumn = -1;  // logical column of the last sort
    Qt::SortOrder sortOrder = Qt::AscendingOrder;
    QList<int> noSumColumns; // logical columns
    ZrTableModel *model;     // the facade, our parent
    bool viewSortable = true;
    QMap<int, bool> perColumnSortable;             // by head position; wins over viewSortable
    QHash<QString, QHash<QString, QVariant>> hash; // reserved for the host, never filled here

    /// Run before each read of the rows. The view sets it on the model of its summary line, whose row is made
    /// only when somebody reads it.
    std::function<void()> beforeRead;
    void prepareRead() const
    {
        if (beforeRead)
            beforeRead();
    }

    // --- Verbs for the family ---
    /// Pseudo-columns in front of the caller's: view column = logical column + offset.
    int columnOffset() const override { return (checkBoxShown ? 1 : 0) + (hasSerialColumn() ? 1 : 0); }
    bool hasSerialColumn() const { return serialOrder >= ZrViewModel::SerialNumAscending; }
    /// The logical column that a section's head names; `section` is one of headList's.
    int logicalColumnAt(int section) const;
    /// Row of modelData shown at a view row; -1 when there is none.
    int modelRowAt(int viewRow) const;
    int shownRowCount() const { return filterable ? displayKeyList.size() : modelData.size(); }

    void setFilterable(bool on);
    /// The groups replace the column's filter; none removes it. The views are reset.
    void setColumnFilter(int column, const QList<QList<QVariantMap>> &groups);
    /// The same for the one group of a column with a match function.
    void setColumnCustomFilter(int column, const QList<QVariantMap> &group);
    void setColumnFilterData(int column, const RecordDataList &candidates);
    void removeColumnFilterData(int column);
    /// The distinct cells of a column, in the order of first appearance.
    QList<ItemRoleMap> columnCandidates(int column) const;

    /// Counts the shown rows' checks into headCheckState and emits stateChanged, even when it is unchanged.
    void updateHeadCheckState();
    /// What getSumRecord() gives, at a cost that doesn't depend on the number of rows. The first call counts
    /// all rows; from then on each change of a record is counted in.
    RecordData sumRecordNow() const;

    // --- Verbs for the model's own parts ---
    ZrTableCheckCounter checkCounter;
    mutable ZrTableSums sums;
    ZrTableRows &rows() const { return *m_rows; }
    QString makeKey(const RecordData &record) const { return ZrTableKeyIndex::makeKey(record, keyColumns); }
    QString modelTr(const char *text) const;
    QTableView *parentView() const;
    RecordDataList shownRecords() const;
    RecordData hostSums() const;
    static RecordData sumTexts(RecordData totals);
    /// As updateHeadCheckState(), but only when the stored state is wrong.
    void correctHeadCheckState();
    /// What may change the display list is followed by a refresh that keeps the current row.
    void applyFilter();

    // Telling the views.
    /// Key of the parent view's current row; empty without one.
    QString currentRowKey() const;
    void resetViews();
    /// A reset that keeps the row with the key current. `touchedRows`: see ZrTouchedRows.
    void resetViewsKeeping(const QString &key, const QVector<int> *touchedRows = nullptr);
    const QVector<int> *touchedRows() const override { return m_touchedRows; }
    void beginInsert(int first, int last);
    void endInsert();
    /// The row -1 stands for a row that wasn't shown.
    void beginRemove(int first, int last);
    void endRemove();
    void emitCellChanged(int viewRow, int logicalColumn);
    void emitCellChanged(const QModelIndex &from, const QModelIndex &to, const QVector<int> &roles = {});
    /// Lets the views count again when the rows or columns they were told of aren't those there are.
    void settleViews();
    void startDelayTimer();
    bool endDelay(int timerId);

    // Persistent indexes; see ZrTableSignalScope.
    QModelIndexList persistentIndexes() const;
    bool isParking() const { return m_isParking; }
    bool isParkedRow(int row) const { return isParking() && row >= parkingFloor; }
    void parkIndexes(const QModelIndexList &indexes);
    void unparkIndexes(const QModelIndexList &before, const QModelIndexList &now);

    /// Empty when rows, keys, display list and counters agree, else what is wrong.
    QString invariantError() const;

private:
    static constexpr int parkingFloor = 1 << 29; // twice as many rows as memory holds

    void dropLostIndexes();
    QModelIndexList parkedPlaces(const QModelIndexList &indexes) const;

    std::unique_ptr<ZrTableRows> m_rows;
    // Of the heads as they were when somebody last asked: each paint asks some thousand times.
    mutable HeadList m_readHeads;
    mutable QVector<int> m_readColumns;
    const QVector<int> *m_touchedRows = nullptr; // during a reset that is about them
    int m_toldRows = 0;
    int m_toldColumns = 0;
    bool m_isParking = false;
    int m_parkedShift = 0;          // rows that the signals since then moved everything by
    mutable RecordData m_sumRecord; // what the totals of `sums` read like
};
