#pragma once

#include "zrskin/IZrSkin.h"
#include "ZrTableModel.h"
#include "ZrViewBase.h"
#include "ZrViewModel.h"

#include <QtCore/QModelIndex>
#include <QtCore/QUrl>
#include <QtGui/QColor>
#include <QtWidgets/QAbstractItemView>

class FreezeTableView;
class ZrHeaderView;
class ZrItemModelDeletage;
class ZrTableViewPrivate;

/// Makes the summary cell of a column from all rows, the filtered ones included.
using ZrSumGenerateFunction = QMap<QString, QVariant> (*)(const int &column, const RecordDataList &rows);

/// The grid that plugins place in their windows: keyed rows, grouped and frozen columns, check boxes,
/// summary.
///
/// Shape:     composes a table (with frozen side tables), head, model, delegate and, on demand, a summary
/// table
///            under the grid. Most members forward to one of them.
///
///     +--------------------------------+
///     | head (one or two bands)        |
///     | left | table            | right|
///     | summary table (on demand)      |
///     +--------------------------------+
///
/// Units:     columns are logical numbers ("Head_ColumnIndex") unless a member says view column; sizes in
///            logical px; rows are view rows.
/// Ownership: normal QWidget parent rules; parts given to the setZr... members become ours.
/// Threads:   GUI thread only.
/// Errors:    bad columns and rows end a call silently or with one debug line; reads give empty values.
class ZRWIDGET_EXPORT ZrTableView : public ZrViewBase, public IZrSkin
{
    Q_OBJECT
    Q_INTERFACES(IZrSkin)
    // The style sheet writes these; paths are relative to the skin's folder.
    Q_PROPERTY(QUrl checkPath READ checkPath WRITE setcheckPath)
    Q_PROPERTY(QUrl uncheckPath READ uncheckPath WRITE setUncheckPath)
    Q_PROPERTY(QUrl tristatePath READ tristatePath WRITE setTristatePath)
    Q_PROPERTY(int itemHeight READ itemHeight WRITE setItemHeight)
    Q_PROPERTY(QColor headlinecolor READ headLineColor WRITE setHeadLineColor)
    Q_PROPERTY(QColor gridlinecolor READ gridLineColor WRITE setGridLineColor)
    Q_PROPERTY(QColor upColor READ upColor WRITE setUpColor)
    Q_PROPERTY(QColor downColor READ downColor WRITE setDownColor)
    Q_PROPERTY(QUrl filterPath READ filterPath WRITE setFilterPath)
    Q_PROPERTY(QUrl filteredPath READ filteredPath WRITE setFilteredPath)
    Q_PROPERTY(QUrl filterHoverPath READ filterHoverPath WRITE setFilterHoverPath)
    Q_PROPERTY(QColor checkedColor READ checkedColor WRITE setCheckedColor)
public:
    explicit ZrTableView(QWidget *parent = nullptr);
    ~ZrTableView() override;

    ZrTableViewPrivate *getPrivate() const;

    // What the plugin frame calls.
    void setPluginViewColumnVisiableProperity(const QList<int> &hiddenColumns) override;
    QList<int> getHeadLogicIndexList() override;
    void setPluginViewHeadLogicIndexProperity(const QList<int> &order) override;
    HeadList getHeadList() override;
    HeadList getVisibleHeadData() override;
    RecordDataList getViewCurrentDisplayData() override;
    void UnregisterPlugin();
    void loadSkin(const QVariant &css) override;
    bool eventFilter(QObject *watched, QEvent *event) override;

    // Heads and caption. The list is completed in place.
    void setHeadList(HeadList &list);
    void setTableViewCaption(const QString &caption);
    QString getTableViewCaption() const;

    // Records; see ZrTableModel.
    void addRecordData(const RecordData &record);
    void addRecordDataList(const RecordDataList &records);
    int insertRecordData(int row, const RecordData &record);
    int insertRecordDataList(int row, const RecordDataList &records);
    void updataRecordData(const RecordData &record);
    void updataRecordDatas(const RecordDataList &records);
    void updateRecordDataList(const RecordDataList &records);
    int deleteRecordData(const RecordData &record);
    int deleteRecordDataList(const RecordDataList &records);
    void deleteRow(int row);
    void clear();

    // Reading.
    RecordData getRowData(int row) const;
    RecordData getRowDataByKey(const QString &key) const;
    RecordData getRowDataByKeyCols(const RecordData &keyCells) const;
    RecordData getRowDataByKeyCols(const QMap<int, QString> &keyTexts) const;
    int getRowByKey(const QString &key) const;
    QString getKeyStringByRow(int row) const;
    int getRowCount() const;
    /// All rows, filtered out or not.
    RecordDataList getViewData() const;
    ViewFilterList getViewCurrentFilterList() const;
    QModelIndex index(int row, int column) const;
    QModelIndex currentIndex() const;
    /// `scroll` also scrolls there and emits currentIndexChanged.
    void setCurrentIndex(const QModelIndex &index, bool scroll = false);

    // Key and size.
    void setKeyColumn(const QList<int> &columns);
    QList<int> getKeyColumn() const;
    void setMaxRowCount(int count);
    void setViewDelayDisplayTime(ushort ms);
    void setItemSelectable(bool selectable);
    void setAlwaysDisplayLatest(bool latest);

    // Check boxes and serial numbers. Choose the serial order before setHeadList.
    void setCheckBoxShow(bool shown);
    bool setCheckBoxEnabledByKey(const QString &key, bool enabled);
    bool setCheckBoxEnabledByRow(int row, bool enabled);
    bool setCheckStatusByKey(const QString &key, bool checked);
    bool setCheckStatusByRow(int row, bool checked);
    QList<int> getRowsByCheckStatus(bool checked) const;
    void setAllCheckBoxChecked(bool checked);
    void SetCheckedRowHighlight(bool highlight);
    bool GetCheckedRowHighlight() const;
    void setSerialNumberColumnPropety(ZrViewModel::SerialNumColumnOrder order);
    void setBeginSerialNumber(int number);

    // Columns.
    /// `logicalColumn` counts as a position in the head list.
    void setColumnShow(int logicalColumn, bool show);
    void setColumnDefaultTextAlignment(int alignment);
    void setColumnTextAlignment(int column, int alignment);
    void setHeadDefaultTextAlignment(int alignment);
    void setHeadTextAlignment(int column, int alignment);
    void setColumnWidth(int column, int widthPx);
    void setColumnDefaultWidth(int widthPx);
    void setColumnMinimumWidth(int widthPx);
    void setStretchLastSection(bool stretch);
    void setHeadSectionMovable(bool movable);
    bool headSectionMovable() const;
    /// Side 1 is left, 2 right; `count` counts view columns, check box and serial number included.
    void setFrozenColumns(int side, bool enable, int count);
    int getFrozenColumns(int side) const;

    // Rows.
    void setRowHeight(int row, int heightPx);
    void setRowDefaultHeight(int heightPx);
    int itemHeight() const;
    void setItemHeight(const int &heightPx);
    void setItemWidget(int row, int column, QWidget *widget, bool adjustRowHeight = false);
    QWidget *indexWidget(int row, int column) const;

    // Sorting and filtering.
    void setViewSortable(bool sortable);
    void setColumnSortable(int column, bool sortable);
    void setSortIndicator(int column, Qt::SortOrder order);
    int sortIndicatorSection() const;
    Qt::SortOrder sortIndicatorOrder() const;
    void setViewFilterable(bool filterable);
    void setViewFilterbuttonAlwayVisiable(bool visible);
    void setColumnFilterable(const int &column, bool filterable);
    void setColumnFilterDataList(const int &column, const QList<QVariantMap> &candidates);
    void setColumnMatchFilterFunction(const int &column, ZrColumnMatchFunction function);
    void removeColumnMatchFilterFunction(const int &column);
    void resetViewCurrentFilterList(const ViewFilterList &filters);

    // Summary line.
    void setSummaryLineEnable(bool enable, const QList<int> &noSumColumns = QList<int>());
    void setSumGenerateFunction(const int &column, ZrSumGenerateFunction function);
    void removeSumGenerateFunction(const int &column);
    void updateSumRecordData(const RecordData &record);
    ZrHeaderView *getSummaryHeadView() const;

    // Look. Bit 1 of the grid line style is the horizontal line, bit 2 the vertical one.
    void setGridLineStyle(int style);
    int gridLineStyle() const;
    void setItemGridShow(bool shown);
    void setItemGridColor(const QColor &color);
    void setColumnDefaultXMargin(int marginPx);
    void setHeadDefaultXMargin(int marginPx);
    void SetAlternatingRowColors(bool enable);
    void setHeadTip(int column, const QString &tip);
    /// True hides.
    void setHorizontalHeaderHide(bool hide);
    /// True shows.
    void setZrTableHorizontalHeaderVisiable(bool visible);

    // The parts.
    FreezeTableView *getTableView() const;
    ZrTableModel *getZrTableModel() const;
    ZrHeaderView *getZrTableHorizontalHeader() const;
    ZrItemModelDeletage *getZrTableItemDelegate() const;
    void setZrTableModel(ZrTableModel *model);
    void setZrTableHorizontalHeader(ZrHeaderView *header);
    void setZrTableItemDelegate(ZrItemModelDeletage *delegate);

    // Plain members of the table; columns are view columns here.
    void setSelectionBehavior(QAbstractItemView::SelectionBehavior behavior);
    void setSelectionMode(QAbstractItemView::SelectionMode mode);
    void openPersistentEditor(const QModelIndex &index);
    void closePersistentEditor(const QModelIndex &index);
    void setSpan(int row, int column, int rowSpan, int columnSpan);
    void clearSpans();
    int rowSpan(int row, int column) const;
    int columnSpan(int row, int column) const;

    // Properties of the style sheet.
    QUrl checkPath() const;
    void setcheckPath(const QUrl &path);
    QUrl uncheckPath() const;
    void setUncheckPath(const QUrl &path);
    QUrl tristatePath() const;
    void setTristatePath(const QUrl &path);
    QUrl filterPath() const;
    void setFilterPath(const QUrl &path);
    QUrl filteredPath() const;
    void setFilteredPath(const QUrl &path);
    QUrl filterHoverPath() const;
    void setFilterHoverPath(const QUrl &path);
    QColor headLineColor() const;
    void setHeadLineColor(const QColor &color);
    QColor gridLineColor() const;
    void setGridLineColor(const QColor &color);
    QColor upColor() const;
    void setUpColor(const QColor &color);
    QColor downColor() const;
    void setDownColor(const QColor &color);
    QColor checkedColor() const;
    void setCheckedColor(const QColor &color);

signals:
    void pressed(QModelIndex index);
    void clicked(QModelIndex index);
    void doubleClicked(QModelIndex index);
    void currentIndexChanged(QModelIndex index);
    void activated(QModelIndex index);
    void entered(QModelIndex index);
    void viewportEntered();
    void iconSizeChanged(QSize size);
    void signalHeadCheckStateChanged(int state);
    void signalRowCheckStateChanged(int iRow, int state);
    void signalSortIndicatorChanged(int logicalIndex, Qt::SortOrder order);
    void signalFilterListChanged(QMap<int, QList<QList<QVariantMap>>> filterList);

protected:
    /// A column was shown or hidden by setColumnShow; for subclasses.
    virtual void columnShown(int viewColumn, bool shown);
    void resizeEvent(QResizeEvent *event) override;

private:
    Q_DISABLE_COPY(ZrTableView)
    friend class ZrTableViewPrivate;
    ZrTableViewPrivate *const d; // our child
};
