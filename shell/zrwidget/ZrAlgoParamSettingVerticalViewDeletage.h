#pragma once

#include "ZrItemModelDeletage.h"

/// Places the editors of a parameter table in which each row is a parameter: they stand in the cells as cell
/// widgets, with an edge around them.
///
/// Shape:     the delegate moves nothing between editor and model; whoever owns the table does that.
/// Ownership: normal QObject parent rules.
/// Threads:   GUI thread only.
class ZRWIDGET_PRIVATE_EXPORT ZrAlgoParamSettingVerticalViewDeletage : public ZrItemModelDeletage
{
    Q_OBJECT
public:
    explicit ZrAlgoParamSettingVerticalViewDeletage(QObject *parent = nullptr);
    ~ZrAlgoParamSettingVerticalViewDeletage() override;

    void setEditorData(QWidget *editor, const QModelIndex &index) const override;
    void setModelData(QWidget *editor, QAbstractItemModel *model, const QModelIndex &index) const override;
    void updateEditorGeometry(QWidget *editor, const QStyleOptionViewItem &option,
                              const QModelIndex &index) const override;
    /// Nothing: whoever owns the table keeps the editors, and places them again after its rows were reset.
    void destroyEditor(QWidget *editor, const QModelIndex &index) const override;
};
