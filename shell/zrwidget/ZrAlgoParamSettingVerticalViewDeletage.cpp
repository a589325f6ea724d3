#include "ZrAlgoParamSettingVerticalViewDeletage.h"

namespace {
constexpr int EdgePx = 5;
}

ZrAlgoParamSettingVerticalViewDeletage::ZrAlgoParamSettingVerticalViewDeletage(QObject *parent)
    : ZrItemModelDeletage(parent)
{
}

ZrAlgoParamSettingVerticalViewDeletage::~ZrAlgoParamSettingVerticalViewDeletage() = default;

void ZrAlgoParamSettingVerticalViewDeletage::setEditorData(QWidget *, const QModelIndex &) const {}

void ZrAlgoParamSettingVerticalViewDeletage::setModelData(QWidget *, QAbstractItemModel *,
                                                          const QModelIndex &) const
{
}

void ZrAlgoParamSettingVerticalViewDeletage::updateEditorGeometry(QWidget *editor,
                                                                  const QStyleOptionViewItem &option,
                                                                  const QModelIndex &) const
{
    editor->setGeometry(option.rect.adjusted(EdgePx, EdgePx, -EdgePx, -EdgePx));
}

void ZrAlgoParamSettingVerticalViewDeletage::destroyEditor(QWidget *, const QModelIndex &) const {}
