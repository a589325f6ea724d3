#pragma once

#include "zrwidget_global.h"

#include <QtWidgets/QStyledItemDelegate>

class QUrl;
class ZrItemModelDeletagePrivate;

/// Paints the cells of the table and tree grids: the text through the style, a check box picture in column 0,
/// a highlight over checked rows, and the grid lines, which the tables themselves leave out.
///
/// Shape:     the text and its colours come from the model through the style; what is painted beside them is
///            set here. The spelling of the name is the interface's.
/// Units:     px, logical; a grid line style is a bit mask: 1 horizontal lines, 2 vertical lines.
/// Ownership: normal QObject parent rules; a delegate may serve several views of one model.
/// Threads:   GUI thread only.
/// Errors:    a missing picture paints nothing.
/// Not supported: editing. A subclass that wants editors overrides createEditor() and its companions.
class ZRWIDGET_EXPORT ZrItemModelDeletage : public QStyledItemDelegate
{
    Q_OBJECT
public:
    explicit ZrItemModelDeletage(QObject *parent = nullptr);
    ~ZrItemModelDeletage() override;

    ZrItemModelDeletagePrivate *getDelegatePrivate() const;

    void paint(QPainter *painter, const QStyleOptionViewItem &option,
               const QModelIndex &index) const override;
    /// Null: a cell isn't editable through this delegate.
    QWidget *createEditor(QWidget *parent, const QStyleOptionViewItem &option,
                          const QModelIndex &index) const override;
    void setEditorData(QWidget *editor, const QModelIndex &index) const override;
    void setModelData(QWidget *editor, QAbstractItemModel *model, const QModelIndex &index) const override;
    /// Centres the editor in the cell; one that can't fill the cell keeps its own size.
    void updateEditorGeometry(QWidget *editor, const QStyleOptionViewItem &option,
                              const QModelIndex &index) const override;

    void setCheckBoxShow(bool show);
    /// Space left and right of a cell's text; 0 leaves the text to the style.
    void setColumnDefaultXMargin(int marginPx);
    void setGridLineStyle(int style);
    int gridLineStyle() const;
    void setItemGridColor(const QColor &color);
    void setItemGridShow(bool show);
    // Check box pictures, as paths below the skin's folder.
    void setcheckPath(const QUrl &path);
    void setUncheckPath(const QUrl &path);
    void setTristatePath(const QUrl &path);
    /// Lays `color` over the cells of checked rows. It covers the text too: give it a low alpha.
    void SetCheckedRowHighlight(bool highlight, const QColor &color);

    /// Draws `text`, cut at its right end to the rect's width.
    void drawMetricsText(QPainter *painter, const QRect &rect, int flags, const QString &text) const;
    QRect getItemRectWithMargin(const QRect &rect) const;

protected:
    void initStyleOption(QStyleOptionViewItem *option, const QModelIndex &index) const override;

public slots:
    /// For subclasses; does nothing here.
    virtual void slotIndex(int index);

private:
    void drawItem(QPainter *painter, QStyleOptionViewItem *option) const;
    void drawItemWithMargin(QPainter *painter, QStyleOptionViewItem *option, QStyle *style) const;
    void drawCheckBox(QPainter *painter, const QRect &rect, const QModelIndex &index) const;
    void drawCheckedRow(QPainter *painter, const QRect &rect, const QModelIndex &index) const;
    void drawGrid(QPainter *painter, const QRect &rect) const;

    ZrItemModelDeletagePrivate *const d; // QObject child
};
