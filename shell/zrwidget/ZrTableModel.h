#pragma once

#include "zrutils/ZrRecordTypes.h"
#include "ZrViewModel.h"
#include "zrwidget_global.h"

#include <QtCore/QAbstractTableModel>

class QWidget;
class ZrTableModelPrivate;

/// Filter predicate of one column: the cell's value and the conditions of the column's first filter group.
/// It must depend on its arguments only, since it isn't asked again while neither of them changes.
using ZrColumnMatchFunction = bool (*)(const QVariant &, const QList<QVariantMap> &);

/// Keyed, bounded row store behind every table, fed by a live stream of records.
///
/// Shape:     rows in arrival order; a row is a map from logical column to cell. In filter mode the rows
/// shown are
///            a second list in the order of the first; "view row" counts it, else it counts the rows
///            themselves.
/// Units:     columns are logical numbers unless a parameter says view column; delays in ms.
/// Ownership: normal QObject parent rules; widgets given to setIndexWidget stay the caller's.
/// Threads:   GUI thread only.
/// Errors:    unknown keys and rows out of range end a call with 0 or no effect; reads give an invalid value.
/// Not supported: editing by the user; insertRows, removeRows and the like of the base class.
class ZRWIDGET_EXPORT ZrTableModel : public QAbstractTableModel
{
    Q_OBJECT
public:
    explicit ZrTableModel(QObject *parent = nullptr);
    ~ZrTableModel() override;

    ZrTableModelPrivate *getModelPrivate() const;

    // Keys and bounds. Nothing stored is rebuilt by these.
    void setKeyColumn(const QList<int> &columns);
    QList<int> getKeyColumn() const;
    void setMaxRowCount(int count);
    /// Switches delayed display on for good: rows that come and go are told by one reset after `ms`.
    void setViewDelayDisplayTime(ushort ms);
    /// Key columns' first non-empty texts of role 256, 0, 257, concatenated without separator.
    QString makeRecordKey(const RecordData &record) const;

    // Records in.
    void addRecordData(const RecordData &record);
    void addRecordDataList(const RecordDataList &records);
    int insertRecordData(int row, const RecordData &record);
    int insertRecordDataList(int row, const RecordDataList &records);
    /// Merges by key at role grain; one dataChanged per changed cell, none when nothing is new.
    void updataRecordData(const RecordData &record);
    void updataRecordDatas(const RecordDataList &records);
    void updateRecordDataList(const RecordDataList &records);
    int deleteRecordData(const RecordData &record);
    int deleteRecordDataList(const RecordDataList &records);
    void deleteRow(int row);

    // Records out.
    const RecordDataList &getModelData() const;
    RecordDataList getViewCurrentDisplayData() const;
    RecordData getRowData(const int &row) const;
    RecordData getRowDataByKey(const QString &key) const;
    RecordData getRowDataByKeyCols(const RecordData &keyCells) const;
    RecordData getRowDataByKeyCols(const QMap<int, QString> &keyTexts) const;
    int getRowByKey(const QString &key) const;
    QModelIndex getIndex(int row, int logicalColumn, const QModelIndex &parent = QModelIndex()) const;
    QVariant getData(int row, int viewColumn, int role) const;
    QVariant getIndexData(int row, int logicalColumn, int role) const;

    // Refresh.
    /// Resets the views and keeps the current row of the parent view.
    void update();
    void updateData(int row, QList<int> &columns);

    // Model interface.
    QModelIndex index(int row, int column, const QModelIndex &parent = QModelIndex()) const override;
    int rowCount(const QModelIndex &parent = QModelIndex()) const override;
    int columnCount(const QModelIndex &parent = QModelIndex()) const override;
    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role = Qt::DisplayRole) const override;
    Qt::ItemFlags flags(const QModelIndex &index) const override;
    bool setData(const QModelIndex &index, const QVariant &value, int role = Qt::EditRole) override;

    // Heads and columns.
    using QAbstractTableModel::setHeaderData;
    void setHeaderData(const HeadList &heads);
    void setColumnDefaultTextAlignment(int alignment);
    void setColumnTextAlignment(int logicalColumn, int alignment);
    void setHeadDefaultTextAlignment(int alignment);
    void setHeadTextAlignment(int logicalColumn, int alignment);
    void setColumnSections(int logicalColumn, int widthPx);
    void resetColumnSections();
    void setItemSelectable(bool selectable);
    bool isItemSelectable() const;
    void setSerialNumberColumnPropety(ZrViewModel::SerialNumColumnOrder order);
    ZrViewModel::SerialNumColumnOrder serialNumberColumnPropety() const;
    void setBeginSerialNumber(int number);
    void setIndexWidget(int row, int logicalColumn, QWidget *widget);

    // Check boxes.
    void setCheckBoxShow(bool shown);
    bool isCheckBoxShow() const;
    void updateCheckBoxData(const QModelIndex &index, bool checked);
    bool setCheckBoxEnabledByKey(const QString &key, bool enabled);
    bool setCheckBoxEnabledByRow(int row, bool enabled);
    bool setCheckStatusByKey(const QString &key, bool checked);
    bool setCheckStatusByRow(int row, bool checked);
    QList<int> getRowsByCheckStatus(bool checked);

    // Sum of the shown rows.
    void setSumFlag(bool isSummary);
    void setNoSumCols(const QList<int> &columns);
    RecordData getSumRecord() const;

    // Filter.
    void setColumnMatchFilterFunction(const int &column, ZrColumnMatchFunction function);
    void removeColumnMatchFilterFunction(const int &column);
    /// Takes the filter state without a refresh: callers restore state and reset afterwards.
    void resetViewCurrentFilterList(const ViewFilterList &filters);
    ViewFilterList getViewCurrentFilterList() const;

    /// Called at the end of each sort; for subclasses.
    virtual void SortIndicatorChanged(int section, Qt::SortOrder order);

public slots:
    void onStateChanged(int state);
    void slotSortIndicatorChanged(int section, Qt::SortOrder order);

signals:
    void stateChanged(int state);
    void signalRowCheckStateChanged(int row, int state);

protected:
    void timerEvent(QTimerEvent *event) override;

private:
    friend class ZrTableModelPrivate;
    ZrTableModelPrivate *const d; // our child
};
