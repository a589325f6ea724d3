#include "ZrAlgoParamSettingWidget_p.h"

#include "FreezeTableView.h"
#include "ZrAlgoParamSettingHorizontalViewDeletage.h"
#include "ZrAlgoParamSettingWidget.h"
#include "ZrAutoBuildSubWidgetObject.h"
#include "ZrAutoBuildWidget.h"
#include "ZrMessageBox.h"
#include "ZrParamBasicTable.h"
#include "ZrParamCheck.h"
#include "ZrParamInitialTable.h"
#include "ZrPlainText.h"
#include "ZrTableView.h"

#include "zrdefine/Constants.h"
#include "zrutils/ZrCommonUtils.h"

#include <QtCore/QPointer>
#include <QtWidgets/QBoxLayout>
#include <QtWidgets/QTabWidget>

namespace {
constexpr int SpacingPx = 6;

enum Mode { New = 1, Running = 2 };
enum Result { Good = 0, Refused = -1, NothingShown = -2 };

QString textOf(const QVariantMap &map, const QString &key)
{
    return map.value(key).toString();
}
} // namespace

ZrAlgoParamSettingWidgetPrivate::ZrAlgoParamSettingWidgetPrivate(ZrAlgoParamSettingWidget *facade)
    : QObject(facade)
    , q(facade)
{
}

// The delegates of the tables keep a pointer to us, so the tables go first.
ZrAlgoParamSettingWidgetPrivate::~ZrAlgoParamSettingWidgetPrivate()
{
    clear();
}

void ZrAlgoParamSettingWidgetPrivate::clear()
{
    ZrTableView *const basicView = basicTable ? basicTable->view() : nullptr;
    basicTable.reset();
    delete basicView;
    qDeleteAll(views);
    views.clear();
    m_tables.clear();
    m_editIndexes.clear();
    delete tabWidget;
    tabWidget = nullptr;
    delete basicForm;
    basicForm = nullptr;
    delete q->layout();
}

void ZrAlgoParamSettingWidgetPrivate::read(const QString &file)
{
    // The result is of no matter: what can't be read leaves empty lists.
    ZrCommonUtils::praseAlgoParamJsonFile(file, basicParams, initialParams, runningParams, resultParams,
                                          links, strategy, interfaceSettings);
}

void ZrAlgoParamSettingWidgetPrivate::build(const QString &file, int newMode)
{
    clear();
    mode = newMode;
    read(file);
    QBoxLayout *const layout = makeLayout();
    if (!layout)
        return;
    if (interfaceSettings.value(Constants::STRATEGYPARAM_INITIALBASICPARAMVISIABLE).toBool())
        addBasic(layout);
    if (interfaceSettings.value(Constants::STRATEGYPARAM_INITIALPARAMVISIABLE).toBool())
        addTables(layout);
    q->setLayout(layout);
}

QBoxLayout *ZrAlgoParamSettingWidgetPrivate::makeLayout() const
{
    const QString name = textOf(interfaceSettings, Constants::STRATEGYPARAM_INITIALPARAMLAYOUT);
    QBoxLayout *layout = nullptr;
    if (name == Constants::STRATEGYPARAM_VBOXLAYOUT)
        layout = new QVBoxLayout;
    else if (name == Constants::STRATEGYPARAM_HBOXLAYOUT)
        layout = new QHBoxLayout;
    else
        return nullptr;
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(SpacingPx);
    return layout;
}

void ZrAlgoParamSettingWidgetPrivate::addBasic(QBoxLayout *layout)
{
    if (textOf(interfaceSettings, Constants::STRATEGYPARAM_INITIALBASICPARAMUI) !=
        Constants::STRATEGYPARAM_VIEWDISPLAY) {
        basicForm = new ZrAutoBuildWidget(q);
        basicForm->setAutoBuildWidgetDetails(basicParams, mode);
        layout->addWidget(basicForm);
        return;
    }
    const bool showsDescriptions =
        interfaceSettings.value(Constants::STRATEGYPARAM_INITIALBASICPARAMDESCVISIABLE).toBool();
    basicTable = std::make_unique<ZrParamBasicTable>(basicParams, showsDescriptions, q);
    connect(basicTable->editors(), &ZrAutoBuildSubWidgetObject::signalParamValueChanged, this,
            &ZrAlgoParamSettingWidgetPrivate::slotBasicParamChanged);
    layout->addWidget(basicTable->view());
    const int widthPx = interfaceSettings.value(Constants::STRATEGYPARAM_INITIALBASICPARAMWIDTH).toInt();
    if (widthPx >= 1)
        basicTable->view()->setMaximumWidth(qMin(widthPx, QWIDGETSIZE_MAX));
}

void ZrAlgoParamSettingWidgetPrivate::addTables(QBoxLayout *layout)
{
    for (const QVariantMap &entry : qAsConst(initialParams)) {
        const QString id = textOf(entry, Constants::STRATEGYPARAM_PARAMID);
        if (views.contains(id))
            continue;
        auto table = std::make_unique<ZrParamInitialTable>(entry, this, q);
        ZrTableView *const view = table->view();
        connect(view, &ZrTableView::clicked, this, &ZrAlgoParamSettingWidgetPrivate::slotClickedIndexModel);
        connect(view, &ZrTableView::doubleClicked, this,
                &ZrAlgoParamSettingWidgetPrivate::slotTableItemDoubleClicked);
        views.insert(id, view);
        m_tables[id] = std::move(table);
    }
    if (initialParams.size() == 1 && views.size() == 1) {
        layout->addWidget(views.first());
    } else {
        tabWidget = new QTabWidget(q);
        for (const auto &table : m_tables)
            tabWidget->addTab(table.second->view(), ZrPlainText::caption(table.second->name()));
        layout->addWidget(tabWidget);
    }
    layout->addItem(new QSpacerItem(0, 0, QSizePolicy::Minimum, QSizePolicy::Preferred));
}

// --- What the delegates ask ---

ZrParamInitialTable *ZrAlgoParamSettingWidgetPrivate::table(const QString &viewId) const
{
    const auto found = m_tables.find(viewId);
    return found == m_tables.end() ? nullptr : found->second.get();
}

ZrTableView *ZrAlgoParamSettingWidgetPrivate::paramView(const QString &viewId) const
{
    return views.value(viewId);
}

QModelIndex ZrAlgoParamSettingWidgetPrivate::editIndex(const QString &viewId) const
{
    return m_editIndexes.value(viewId);
}

void ZrAlgoParamSettingWidgetPrivate::setEditIndex(const QString &viewId, const QModelIndex &index)
{
    if (views.contains(viewId))
        m_editIndexes.insert(viewId, index);
}

void ZrAlgoParamSettingWidgetPrivate::addEmptyRow(const QString &viewId)
{
    if (ZrParamInitialTable *const found = table(viewId))
        found->addEmptyRow();
}

// --- What the user does in a table ---

ZrParamInitialTable *ZrAlgoParamSettingWidgetPrivate::tableOf(QObject *view) const
{
    auto *const sender = qobject_cast<ZrTableView *>(view);
    const auto *const delegate =
        sender ? qobject_cast<ZrAlgoParamSettingHorizontalViewDeletage *>(sender->getZrTableItemDelegate())
               : nullptr;
    return delegate && views.value(delegate->viewId) == sender ? table(delegate->viewId) : nullptr;
}

void ZrAlgoParamSettingWidgetPrivate::closeEditor(const ZrParamInitialTable &table)
{
    const QModelIndex edited = editIndex(table.id());
    if (edited.row() >= 0)
        table.view()->closePersistentEditor(edited);
    setEditIndex(table.id(), QModelIndex());
}

void ZrAlgoParamSettingWidgetPrivate::openEditor(const ZrParamInitialTable &table, const QModelIndex &index)
{
    table.view()->openPersistentEditor(index);
    closeEditor(table);
    setEditIndex(table.id(), index);
    // So that the user types at once, and that going elsewhere takes the value over.
    if (QWidget *const editor = table.view()->getTableView()->indexWidget(index))
        editor->setFocus(Qt::OtherFocusReason);
}

void ZrAlgoParamSettingWidgetPrivate::slotClickedIndexModel(QModelIndex index)
{
    ZrParamInitialTable *const clicked = index.isValid() ? tableOf(sender()) : nullptr;
    if (!clicked)
        return;
    if (editIndex(clicked->id()) != index)
        closeEditor(*clicked);
    if (mode == New && clicked->isActionColumn(index))
        clicked->dropRow(index.row());
}

void ZrAlgoParamSettingWidgetPrivate::slotTableItemDoubleClicked(QModelIndex index)
{
    ZrParamInitialTable *const clicked = index.isValid() ? tableOf(sender()) : nullptr;
    if (!clicked || (mode != New && mode != Running))
        return;
    if (mode == Running && !clicked->isEditableWhileRunning(index))
        return;
    if (editIndex(clicked->id()) != index)
        openEditor(*clicked, index);
}

void ZrAlgoParamSettingWidgetPrivate::slotBasicParamChanged(QString s)
{
    if (basicTable)
        basicTable->paramChanged(s, mode);
}

// --- Values ---

bool ZrAlgoParamSettingWidgetPrivate::tell(const QString &fault) const
{
    if (fault.isEmpty())
        return false;
    constexpr int confirmOnly = 1;
    constexpr int overParent = 1;
    // Not on the stack: the sheet may be closed, and the box with it, while the message stands.
    const QPointer<ZrMessageBox> box =
        new ZrMessageBox(ZrAlgoParamSettingWidget::tr("提醒"), fault, confirmOnly, q, overParent);
    box->exec();
    delete box;
    return true;
}

int ZrAlgoParamSettingWidgetPrivate::basicValues(QVariantMap *values) const
{
    if (!basicForm && !basicTable)
        return NothingShown;
    const QVariantMap collected =
        basicForm ? basicForm->getAutoBuildData() : basicTable->editors()->getAutoBuildData();
    for (const QVariantMap &record : basicParams) {
        const QVariant value = collected.value(textOf(record, Constants::STRATEGYPARAM_PARAMID));
        if (tell(ZrParamCheck::fault(record, value)))
            return Refused;
    }
    *values = collected;
    return Good;
}

int ZrAlgoParamSettingWidgetPrivate::tableValues(QMap<QString, QList<QVariantMap>> *values,
                                                 bool validate) const
{
    for (const auto &entry : m_tables) {
        const ZrParamInitialTable &table = *entry.second;
        const QList<QVariantMap> rows = table.rows();
        if (validate && tell(table.fault(rows)))
            return Refused;
        values->insert(table.id(), rows);
    }
    return Good;
}

void ZrAlgoParamSettingWidgetPrivate::fit()
{
    if (basicTable)
        basicTable->fit(q->width());
    for (const auto &table : m_tables)
        table.second->fit(q->width());
}
