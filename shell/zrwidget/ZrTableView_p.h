#pragma once

#include "ZrColumnOffsets.h"
#include "ZrFilterOpener.h"
#include "ZrFrozenGrid.h"
#include "ZrHeaderHost.h"
#include "ZrTableView.h"
#include "ZrViewRegistry.h"

#include <QtCore/QHash>
#include <QtCore/QObject>
#include <QtCore/QUrl>
#include <QtGui/QColor>

class QHBoxLayout;
class QTableView;
class ZrGroupedHeadHeight;
class ZrTableColumns;
class ZrTableSummary;

/// What a table view holds, for its family: the frozen panes, the head, the plugin frame.
///
/// Shape:     the family reads the shared fields. Plain settings may be written directly; heads, order,
/// summary and
///            frozen columns change through the view.
/// Ownership: child of its view, deleted in the view's destructor before the parts.
/// Threads:   GUI thread only.
class ZRWIDGET_PRIVATE_EXPORT ZrTableViewPrivate : public QObject,
                                                   public ZrHeaderHost,
                                                   public ZrColumnOffsets,
                                                   public ZrFrozenHost
{
    Q_OBJECT
    Q_INTERFACES(ZrHeaderHost ZrColumnOffsets)
public:
    explicit ZrTableViewPrivate(ZrTableView *facade);
    ~ZrTableViewPrivate() override;

    // --- Shared fields ---
    QString viewKey; // second half of the column order's setting key; while empty, the order is not kept
    FreezeTableView *table = nullptr;
    ZrTableModel *model = nullptr;
    ZrHeaderView *header = nullptr;
    ZrItemModelDeletage *delegate = nullptr;
    QTableView *summaryTable = nullptr; // null without a summary line, as the next three
    ZrTableModel *summaryModel = nullptr;
    ZrHeaderView *summaryHeader = nullptr;
    ZrItemModelDeletage *summaryDelegate = nullptr;
    RecordData summaryOverrideRecord;                      // by logical column
    QMap<int, ZrSumGenerateFunction> sumGenerateFunctions; // by logical column
    QUrl checkPath;                                        // paths relative to the skin's folder
    QUrl uncheckPath;
    QUrl tristatePath;
    int itemHeight = 20; // px
    QColor headLineColor;
    QColor gridLineColor;
    QColor upColor;
    QColor downColor;
    QColor checkedColor;
    QUrl filterPath;
    QUrl filteredPath;
    QUrl filterHoverPath;
    int columnDefaultWidth = 0; // px; 0: not set
    int columnMinimumWidth = 0; // px; 0: not set
    int rowDefaultHeight = 0;   // px; 0: the item height rules
    int serialOrder = ZrViewModel::SerialNumNone;
    ZrViewRegistryPointer plugin; // null without a plugin above us
    HeadList headList;            // as set, without pseudo-columns
    QList<int> visualOrder;       // visual position -> index in headList
    bool checkBoxShown = false;
    bool groupedHead = false;
    QList<int> hiddenColumns;     // logical columns that the plugin's settings hide
    QList<QVariant> reservedList; // reserved for the host, never used here
    QList<int> headOrderProperty; // logical columns, from the plugin's settings
    QMap<int, int> frozenColumns; // side (1 left, 2 right) -> view columns
    int headHeightTimer = -1;
    bool headHeightDoubled = false;
    QHash<QString, QVariant> hash; // reserved for the host, never used here
    QHBoxLayout *bottomLayout = nullptr;
    bool checkedRowHighlight = false;
    bool alwaysDisplayLatest = false; // of whichever model is shown
    ZrTableView *const view;          // the facade, our parent

    // --- Concerns, our children ---
    ZrTableColumns *columns = nullptr;
    ZrTableSummary *summary = nullptr;
    ZrGroupedHeadHeight *groupedHeight = nullptr;
    const std::unique_ptr<ZrFilterOpener> filterOpener;

    // --- Verbs for the family ---
    /// Pseudo-columns in front of the caller's: view column = logical column + offset.
    int columnOffset() const override;
    /// Whether a head of the list has this "Head_ColumnIndex"; false is logged.
    bool isHeadColumn(int logicalColumn) const;
    void updateSummary();
    void setFrozenColumns(int side, bool enable, int count);
    void refreshPictures();
    void setHeadLineColor(const QColor &color);
    void setGridLineColor(const QColor &color);
    void setItemHeight(int heightPx);
    void setCheckBoxShow(bool shown);
    void setSerialOrder(ZrViewModel::SerialNumColumnOrder order);
    void setViewFilterable(bool filterable);
    void setColumnFilterable(int column, bool filterable);
    void setColumnFilterDataList(int column, const QList<QVariantMap> &candidates);
    void setColumnSortable(int column, bool sortable);
    void setCaption(const QString &caption);
    void updateModels();
    void tellColumnShown(int viewColumn, bool shown);

    // --- Building and replacing the parts ---
    void createParts(QWidget *parentArgument);
    void findPlugin(QWidget *parentArgument);
    void createGrid();
    void connectTable();
    void installModel(ZrTableModel *newModel);
    void installHeader(ZrHeaderView *newHeader);
    void installDelegate(ZrItemModelDeletage *newDelegate);
    void connectModelAndHeader();
    void setAlwaysDisplayLatest(bool latest);

    // --- ZrHeaderHost ---
    Kind headKind() const override;
    QUrl headPicture(Picture picture) const override;
    int frozenCount(Side side) const override;
    int pseudoColumnCount() const override;
    bool isColumnFiltered(int logicalColumn) const override;
    void openFilter(ZrHeaderView *head, int logicalColumn, const QRect &buttonRect) override;
    void filterChoiceChanged(ZrHeaderView *head) override;
    // --- ZrFrozenHost ---
    int frozenColumnCount(ZrHeaderHost::Side side) const override;
    bool isColumnHiddenByHead(int viewColumn) const override;
    void orderHead(QHeaderView *head) override;

public slots:
    void slotClickedIndexModel(QModelIndex index);
    void slotHeadSectionMoved(int logicalIndex, int oldVisualIndex, int newVisualIndex);
    void slotOnTableHeadSectionResized(int logicalIndex, int oldSize, int newSize);

signals:
    void signalRemovePluginView(ZrViewBase *view);

private:
    bool wouldCutGroup(int side, int count) const;
};
