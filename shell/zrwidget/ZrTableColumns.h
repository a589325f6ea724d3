#pragma once

#include "zrutils/ZrRecordTypes.h"
#include "zrwidget_global.h"

#include <QtCore/QObject>

#include <functional>

class QHeaderView;
class ZrTableViewPrivate;

/// The columns of a table view: heads, visibility, order, default sizes.
///
/// Shape:     works on the shared fields of the view's private object; the summary table follows each change.
/// Units:     logical columns unless a name says otherwise; sizes in logical px.
/// Ownership: a child of the view's private object.
/// Threads:   GUI thread only.
/// Errors:    columns out of range are ignored; an order that does not fit falls back on the head list's.
class ZRWIDGET_PRIVATE_EXPORT ZrTableColumns : public QObject
{
    Q_OBJECT
public:
    explicit ZrTableColumns(ZrTableViewPrivate *viewPrivate);

    /// Place of the head with this "Head_ColumnIndex"; -1 when there is none.
    static int positionOf(int logicalColumn, const HeadList &heads);

    void setHeadList(HeadList *list);
    /// `position` counts in the head list.
    void setColumnShow(int position, bool show);
    void setHidden(const QList<int> &logicalColumns);
    HeadList visibleHeads() const;

    QList<int> logicalOrder() const;
    void setOrderProperty(const QList<int> &logicalColumns);
    /// Brings a further head into the order that the main head shows.
    void applyShownOrder(QHeaderView *head);
    /// Recomputes the visual order from the stored setting or the plugin's property, and applies it.
    void setViewHeadIndexOrderByProperty();
    void headSectionMoved(int section, int oldVisual, int newVisual);
    void setMovable(bool movable);

    void setDefaultWidth(int widthPx);
    void setMinimumWidth(int widthPx);
    /// Runs `change`, which adds or takes a pseudo-column: each column keeps its place and stays hidden or
    /// shown.
    void changePseudoColumns(const std::function<void()> &change);
    /// After the main head was replaced: order, hidden columns and widths of the old one.
    void dressHeader(const QList<int> &shownOrder);
    /// Head list indexes in the order that the main head shows now, moved by the user or not.
    QList<int> shownOrder() const;
    /// Heads, order, hidden columns and widths for the summary table.
    void updateSummaryHeads();

    /// Gives the stored defaults and widths to the heads again.
    void reapplyWidths();
    /// The same for the summary's head.
    void reapplySummaryWidths();

private:
    void completeHeads(HeadList *list);
    void hideByHeads();
    void applyOrder();
    QString storedOrder() const;
    QString settingKey() const;
    void saveOrder();

    ZrTableViewPrivate *const d;
    bool m_isApplyingOrder = false; // our own moves are no wish of the user
};
