#include "ZrAlgoParamSettingHorizontalViewDeletage.h"

#include "ZrAutoBuildSubWidgetObject.h"
#include "ZrModelIndex.h"
#include "ZrParamRow.h"
#include "ZrParamRowUpdate.h"
#include "ZrParamSheet.h"
#include "ZrSkinPixmap.h"
#include "ZrTableView.h"

#include "zrcore/ZrCore.h"
#include "zrdefine/Constants.h"

#include <QtWidgets/QApplication>
#include <QtWidgets/QStyle>

namespace {
constexpr int ModeNew = 1; // whether a cell may be edited at all was asked before its editor is made
} // namespace

ZrAlgoParamSettingHorizontalViewDeletage::ZrAlgoParamSettingHorizontalViewDeletage(QObject *parent)
    : ZrItemModelDeletage(parent)
{
}

ZrAlgoParamSettingHorizontalViewDeletage::~ZrAlgoParamSettingHorizontalViewDeletage() = default;

void ZrAlgoParamSettingHorizontalViewDeletage::setParamRecords(const QList<QVariantMap> &records)
{
    paramRecords.clear();
    for (const QVariantMap &record : records)
        paramRecords.insert(record.value(Constants::STRATEGYPARAM_PARAMID).toString(), record);
}

void ZrAlgoParamSettingHorizontalViewDeletage::paint(QPainter *painter, const QStyleOptionViewItem &option,
                                                     const QModelIndex &index) const
{
    ZrItemModelDeletage::paint(painter, option, index);
    if (ZrModelIndex::column(index) == actionColumn)
        QApplication::style()->drawItemPixmap(painter, option.rect, Qt::AlignCenter, deletePicture());
}

// In the picture's own size, which is the skin's to choose, and not read from the disk at each paint.
QPixmap ZrAlgoParamSettingHorizontalViewDeletage::deletePicture() const
{
    const QString skinId = ZrCore::instance()->getCurrentSkinId();
    if (m_pictureSkin != skinId) {
        m_pictureSkin = skinId;
        const QString file =
            ZrSkinPixmap::fileName(skinId, QStringLiteral("images/portfoliocreate/delete.png"));
        m_picture = file.isEmpty() ? QPixmap() : QPixmap(file);
    }
    return m_picture;
}

QWidget *ZrAlgoParamSettingHorizontalViewDeletage::createEditor(QWidget *parent, const QStyleOptionViewItem &,
                                                                const QModelIndex &index) const
{
    const QVariantMap record = paramRecords.value(ZrParamRow::idAt(index));
    if (!record.contains(Constants::STRATEGYPARAM_WIDGETTYPE))
        return nullptr;
    QVariantMap linkValues;
    if (record.contains(Constants::STRATEGYPARAM_LINKPARAMID))
        linkValues = ZrParamRow::presentValues(index, paramRecords);
    QWidget *const editor = ZrAutoBuildSubWidgetObject::createWidget(record, parent, linkValues);
    const QString stored = index.data(Qt::UserRole).toString();
    if (editor && !stored.isEmpty())
        ZrAutoBuildSubWidgetObject::setSingleSubWidgetParamValue(record, editor, stored, ModeNew);
    return editor;
}

void ZrAlgoParamSettingHorizontalViewDeletage::setEditorData(QWidget *, const QModelIndex &) const {}

void ZrAlgoParamSettingHorizontalViewDeletage::setModelData(QWidget *editor, QAbstractItemModel *model,
                                                            const QModelIndex &index) const
{
    const QString id = ZrParamRow::idAt(index);
    const QVariantMap record = paramRecords.value(id);
    const QVariant value = ZrAutoBuildSubWidgetObject::getWidgetData(record, editor, Qt::UserRole);
    const QPersistentModelIndex place(index);
    if (record.contains(Constants::STRATEGYPARAM_WIDGETTYPE)) {
        const QVariant shown = ZrAutoBuildSubWidgetObject::getWidgetData(record, editor, Qt::DisplayRole);
        model->setData(place, shown, Qt::DisplayRole);
        model->setData(place, value, Qt::UserRole);
    }
    if (settingPrivate &&
        record.value(Constants::STRATEGYPARAM_EXTRAACTION).toString() == QLatin1String("addrow"))
        settingPrivate->addEmptyRow(viewId);
    ZrParamRowUpdate(id, value, paramRecords).applyTo(model, place);
    closeOpenEditor();
}

void ZrAlgoParamSettingHorizontalViewDeletage::closeOpenEditor() const
{
    ZrTableView *const view = settingPrivate ? settingPrivate->paramView(viewId) : nullptr;
    const QModelIndex edited = view ? settingPrivate->editIndex(viewId) : QModelIndex();
    if (edited.row() < 0)
        return;
    view->closePersistentEditor(edited);
    view->setCurrentIndex(edited, true);
    settingPrivate->setEditIndex(viewId, QModelIndex());
}
