#pragma once

#include "ZrHeaderDrag.h"
#include "zrwidget_global.h"

#include <QtCore/QMap>
#include <QtCore/QVariantMap>
#include <QtWidgets/QHeaderView>

#include <memory>

class ZrHeadFocusLine;
class ZrHeaderHits;
class ZrHeaderViewPrivate;

/// Horizontal head of a table or tree: groups of columns under a common band, a check box in the first
/// column, filter button and help mark per column, and a say in where a dragged column may land.
///
/// Shape:     the head of a main table and those of its frozen side tables share one state (copy
/// constructor);
///            a change shows in all of them.
/// Units:     columns are logical numbers unless a parameter says section (view column); px, logical.
/// Ownership: normal QWidget parent rules; the shared state lives as long as any of its heads.
/// Threads:   GUI thread only.
/// Errors:    missing pictures paint nothing; a head that stands in no table or tree has neither filter
/// buttons
///            nor a check box picture.
/// Not supported: vertical heads; filter buttons, check box and help marks by keyboard.
class ZRWIDGET_EXPORT ZrHeaderView : public QHeaderView
{
    Q_OBJECT
public:
    explicit ZrHeaderView(Qt::Orientation orientation, QWidget *parent = nullptr);
    /// A further head that shares the state of `other` and has its orientation.
    explicit ZrHeaderView(const ZrHeaderView *other);
    ~ZrHeaderView() override;

    ZrHeaderViewPrivate *getPrivate() const;

    void setCheckBoxShow(bool show);
    /// Filter button for every column that has no entry of its own.
    void setViewFilterable(bool filterable);
    void setViewFilterable(int logicalColumn, bool filterable);
    /// Whether a column that is neither filtered nor hovered shows its button.
    void setViewFilterbuttonAlwayVisiable(bool visible);
    /// Space left and right of a head's text.
    void setHeadDefaultXMargin(int marginPx);
    /// Colour of the lines between sections; without one there are none.
    void setGridColor(const QColor &color);
    void setSortbale(bool sortable);
    bool isSortbale() const;
    void setColumnSortable(int logicalColumn, bool sortable);
    /// Text of a column's help mark, shown at a click on it; empty for no mark. Never read as rich text.
    void setHeadTip(int logicalColumn, const QString &tip);
    /// Sets the check box and tells the model by stateChanged().
    void setChecked(bool checked);

    /// Paints the copy of a section that follows the pointer while it is dragged.
    virtual void paintDrageSection(QPainter *painter, const QRect &rect, int section) const;

signals:
    /// The user or setChecked() changed the check box: 0 or 2.
    void stateChanged(int state);
    /// The user clicked the check box.
    void signalHeadCheckClicked(bool checked);
    // Spelled out: receivers connect by the text of this type.
    void signalFilterListChanged(const QMap<int, QList<QList<QVariantMap>>> &filterList);
    void signalFilterChanged(int logicCol, const QList<QList<QVariantMap>> &filterData);

public slots:
    /// Takes over the rows' common check state from the model: 0, 1 for some, 2. Emits nothing, or model and
    /// head would tell each other for ever.
    void onStateChanged(int state);
    /// A column's filter popup has a new choice; the view puts it into effect.
    void slotFilterStatusChanged();

    void setModel(QAbstractItemModel *model) override;

protected:
    QSize sectionSizeFromContents(int section) const override;
    void paintEvent(QPaintEvent *event) override;
    void paintSection(QPainter *painter, const QRect &rect, int section) const override;
    void paintHeaderSection(QPainter *painter, const QRect &rect, int section, bool dragging) const;
    bool eventFilter(QObject *watched, QEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;

private:
    void setUp();
    bool isTableHead() const;
    void followPointer(const QEvent &event);
    void hoverTo(int section);
    void pressBase(QMouseEvent *event);
    void drop(QMouseEvent *event);
    bool mayDrop(const QPoint &point) const;
    void cancelMove(int section, QMouseEvent *event);
    void releaseWithoutClick(QMouseEvent *event);
    void showTip(const QPoint &globalPoint, int logicalColumn);
    void clickCheckBox();
    void updateSortIndicator(int logicalColumn);

    std::shared_ptr<ZrHeaderViewPrivate> d; // shared with the heads of side tables
    ZrHeaderDrag m_drag;
    ZrHeadFocusLine *m_focusLine = nullptr; // child
    int m_hovered = -1;                     // section under the pointer
    int m_pressed = -1;                     // section that the base took a click for
    bool m_inBasePress = false;             // while the base handles a press
    mutable int m_copiedSection = -1;       // section that the base made a drag copy of during that press
};
