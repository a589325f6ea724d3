#include "ZrParamBasicTable.h"

#include "ZrAlgoParamSettingVerticalViewDeletage.h"
#include "ZrAutoBuildSubWidgetObject.h"
#include "ZrHeaderView.h"
#include "ZrParamText.h"
#include "ZrRoleKeys.h"
#include "ZrSearchBox.h"
#include "ZrTableView.h"

#include "zrbusinessdata/CBusinessDataBase.h"
#include "zrdefine/Constants.h"
#include "zrdefine/VexlorFields.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QScopedValueRollback>
#include <QtWidgets/QApplication>

namespace {
enum Column { NameColumn, ValueColumn, DescriptionColumn };

QString idOf(const QVariantMap &record)
{
    return record.value(Constants::STRATEGYPARAM_PARAMID).toString();
}

QString translated(const char *text)
{
    return QCoreApplication::translate("ZrAlgoParamSettingWidget", text);
}

QMap<QString, QVariant> head(const QString &text, int number)
{
    return {{HEAD_DISPLAYROLE, text}, {HEAD_USERROLE, number}};
}

QVariantMap detailsOf(const QString &symbol)
{
    return symbol.isEmpty() ? QVariantMap()
                            : CBusinessDataBase::GetInstance()->GetSecurityDetailsBySymbol(symbol);
}
} // namespace

ZrParamBasicTable::ZrParamBasicTable(const QList<QVariantMap> &records, bool showsDescriptions,
                                     QWidget *parent)
    : m_records(records)
    , m_editors(new ZrAutoBuildSubWidgetObject)
    , m_view(new ZrTableView(parent))
{
    createView(showsDescriptions);
    addRows(showsDescriptions);
    m_editors->setAutoBuildWidgetDetails(m_records, m_view);
    placeEditors();
    // After the table's own connection, which drops the cell widgets.
    ZrTableModel *const model = m_view->getZrTableModel();
    connect(model, &QAbstractItemModel::modelAboutToBeReset, this, &ZrParamBasicTable::keepFocus);
    connect(model, &QAbstractItemModel::modelReset, this, &ZrParamBasicTable::placeEditors);
}

ZrParamBasicTable::~ZrParamBasicTable() = default;

void ZrParamBasicTable::createView(bool showsDescriptions)
{
    m_view->setViewSortable(false);
    m_view->setZrTableItemDelegate(new ZrAlgoParamSettingVerticalViewDeletage);
    m_view->setKeyColumn({NameColumn});
    HeadList heads = {head(translated(QT_TRANSLATE_NOOP("ZrAlgoParamSettingWidget", "参数名")), NameColumn),
                      head(translated(QT_TRANSLATE_NOOP("ZrAlgoParamSettingWidget", "参数值")), ValueColumn)};
    if (showsDescriptions)
        heads.append(
            head(translated(QT_TRANSLATE_NOOP("ZrAlgoParamSettingWidget", "参数描述")), DescriptionColumn));
    m_view->setHeadList(heads);
    m_view->setColumnTextAlignment(NameColumn, Qt::AlignLeft | Qt::AlignVCenter);
    m_view->setColumnTextAlignment(ValueColumn, Qt::AlignCenter);
    m_view->setColumnTextAlignment(DescriptionColumn, Qt::AlignLeft | Qt::AlignVCenter);
}

void ZrParamBasicTable::addRows(bool showsDescriptions)
{
    RecordDataList rows;
    for (const QVariantMap &record : m_records) {
        RecordData row;
        row[NameColumn] = {{ITEM_DISPLAYROLE, record.value(Constants::STRATEGYPARAM_PARAMNAME)},
                           {ITEM_USERROLE, record.value(Constants::STRATEGYPARAM_PARAMID)}};
        const QVariant description = record.value(Constants::STRATEGYPARAM_PARAMDESC);
        if (showsDescriptions)
            row[DescriptionColumn] = {{ITEM_DISPLAYROLE, description}, {ITEM_USERROLE, description}};
        rows.append(row);
    }
    m_view->updateRecordDataList(rows);
}

void ZrParamBasicTable::keepFocus()
{
    QWidget *const focus = QApplication::focusWidget();
    if (!m_isPlacingLate && focus && m_view->isAncestorOf(focus))
        m_focus = focus;
}

void ZrParamBasicTable::placeEditors()
{
    if (m_isPlacingLate)
        return;
    const QMap<QString, QWidget *> editors = m_editors->getSubWidgetMap();
    for (int row = 0; row < m_view->getRowCount(); ++row) {
        const QString id = m_view->getRowData(row).value(NameColumn).value(ITEM_USERROLE).toString();
        if (QWidget *const editor = editors.value(id))
            m_view->setItemWidget(row, ValueColumn, editor);
    }
    // An editor that is dropped is hidden and loses the focus.
    if (m_focus && m_focus->isVisible())
        m_focus->setFocus(Qt::OtherFocusReason);
    m_focus.clear();
}

void ZrParamBasicTable::fit(int ownerWidthPx)
{
    const int columns = m_view->getHeadList().size();
    keepFocus();
    {
        const QScopedValueRollback<bool> late(m_isPlacingLate, true);
        const int widthPx = ownerWidthPx / columns;
        if (widthPx > m_view->getZrTableHorizontalHeader()->defaultSectionSize())
            m_view->setColumnDefaultWidth(widthPx);
        m_view->updateRecordDataList(m_view->getViewData());
    }
    placeEditors();
}

QWidget *ZrParamBasicTable::editor(const QString &paramId) const
{
    return m_editors->getSubWidgetMap().value(paramId);
}

void ZrParamBasicTable::showValue(const QString &paramId, const QVariant &stored, const QString &shown)
{
    m_view->updataRecordData({{NameColumn, {{ITEM_USERROLE, paramId}}},
                              {ValueColumn, {{ITEM_DISPLAYROLE, shown}, {ITEM_USERROLE, stored}}}});
}

void ZrParamBasicTable::fill(const QVariantMap &values, int mode)
{
    QVariantMap all = detailsOf(values.value(Vexlor_Fields::Security::symbol).toString());
    for (auto detail = all.cbegin(); detail != all.cend(); ++detail)
        m_securityIds.insert(detail.key());
    for (auto value = values.cbegin(); value != values.cend(); ++value) {
        if (!value->isNull())
            all.insert(value.key(), *value);
    }
    for (const QVariantMap &record : m_records) {
        const QString id = idOf(record);
        const QVariant value = all.value(id);
        if (!value.isNull())
            showValue(id, value, ZrParamText::ofBasic(id, value.toString()));
        const QVariant linked = all.value(record.value(Constants::STRATEGYPARAM_LINKPARAMID).toString());
        if (!linked.isNull())
            ZrAutoBuildSubWidgetObject::singleSubWidgetLinkParamValueChanged(record, editor(id), linked);
    }
    // Last: an editor must offer a choice before it can be given.
    m_editors->setInitialBasicParamData(all, mode);
}

QVariantMap ZrParamBasicTable::securityInEditor(QString *symbol) const
{
    const auto *const box = qobject_cast<ZrSearchBox *>(editor(Vexlor_Fields::Security::symbol));
    *symbol = box ? box->getSymbol() : QString();
    return detailsOf(*symbol);
}

void ZrParamBasicTable::paramChanged(const QString &paramId, int mode)
{
    QVariant changed;
    QVariantMap details;
    if (paramId == Vexlor_Fields::Security::symbol) {
        QString symbol;
        details = securityInEditor(&symbol);
        changed = symbol;
        for (auto detail = details.cbegin(); detail != details.cend(); ++detail)
            m_securityIds.insert(detail.key());
    }
    for (const QVariantMap &record : m_records) {
        const QString id = idOf(record);
        if (id == paramId) {
            const QVariant stored =
                ZrAutoBuildSubWidgetObject::getWidgetData(record, editor(id), Qt::UserRole);
            const QVariant shown =
                ZrAutoBuildSubWidgetObject::getWidgetData(record, editor(id), Qt::DisplayRole);
            const QString text = ZrParamText::ofBasic(id, stored.toString());
            showValue(id, stored, text == stored.toString() ? shown.toString() : text);
            if (paramId != Vexlor_Fields::Security::symbol)
                changed = stored;
        } else if (paramId == Vexlor_Fields::Security::symbol && m_securityIds.contains(id)) {
            const QVariant value = details.value(id, QString());
            ZrAutoBuildSubWidgetObject::setSingleSubWidgetParamValue(record, editor(id), value, mode);
            showValue(id, value, ZrParamText::ofBasic(id, value.toString()));
        }
    }
    relink(paramId, changed);
}

void ZrParamBasicTable::relink(const QString &paramId, const QVariant &value)
{
    for (const QVariantMap &record : m_records) {
        if (record.value(Constants::STRATEGYPARAM_LINKPARAMID).toString() == paramId)
            ZrAutoBuildSubWidgetObject::singleSubWidgetLinkParamValueChanged(record, editor(idOf(record)),
                                                                             value);
    }
}
