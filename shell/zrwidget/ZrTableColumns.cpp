#include "ZrTableColumns.h"

#include "FreezeTableView.h"
#include "ZrColumnOrder.h"
#include "zrcore/ZrCore.h"
#include "zrdefine/Constants.h"
#include "ZrGroupedHeadHeight.h"
#include "ZrHeaderView.h"
#include "ZrRoleKeys.h"
#include "ZrTableModel_p.h"
#include "ZrTableView_p.h"

#include <QtCore/QDebug>
#include <QtCore/QScopedValueRollback>

ZrTableColumns::ZrTableColumns(ZrTableViewPrivate *viewPrivate)
    : QObject(viewPrivate)
    , d(viewPrivate)
{
}

int ZrTableColumns::positionOf(int logicalColumn, const HeadList &heads)
{
    return ZrColumnOrder::logicalNumbers(heads).indexOf(logicalColumn);
}

void ZrTableColumns::completeHeads(HeadList *list)
{
    d->groupedHead = false;
    int position = 0;
    for (QMap<QString, QVariant> &head : *list) {
        if (!head.contains(HEAD_SHOWROLE))
            head.insert(HEAD_SHOWROLE, true);
        if (!head.contains(HEAD_COLUMNINDEX))
            head.insert(HEAD_COLUMNINDEX, position);
        d->groupedHead = d->groupedHead || !head.value(HEAD_GROUPID).toString().isEmpty();
        ++position;
    }
}

void ZrTableColumns::setHeadList(HeadList *list)
{
    if (!d->model)
        return;
    completeHeads(list);
    d->model->setHeaderData(*list);
    d->headList = *list;
    setViewHeadIndexOrderByProperty();
    if (d->groupedHead)
        d->groupedHeight->start();
    // What the heads say holds for all parts: frozen sides and summary read it there, and the sections of a
    // list before stay hidden otherwise.
    hideByHeads();
    const QList<int> hidden = d->hiddenColumns;
    for (const int column : hidden)
        setColumnShow(column, false);
    reapplyWidths();
    updateSummaryHeads();
    d->table->relayFrozenTables();
    if (d->plugin)
        d->plugin->resetPluginViewCurrentHideStyle(d->view);
}

void ZrTableColumns::updateSummaryHeads()
{
    if (!d->summaryModel)
        return;
    d->summaryModel->setHeaderData(d->headList);
    applyShownOrder(d->summaryHeader);
    for (int position = 0; position < d->headList.size(); ++position) {
        const bool isShown = d->headList.at(position).value(HEAD_SHOWROLE).toBool();
        d->summaryTable->setColumnHidden(position + d->columnOffset(), !isShown);
    }
    reapplySummaryWidths();
}

void ZrTableColumns::hideByHeads()
{
    for (int section = 0; section < d->header->count(); ++section)
        d->header->setSectionHidden(section, d->isColumnHiddenByHead(section));
}

QList<int> ZrTableColumns::shownOrder() const
{
    QList<int> order;
    const int offset = d->columnOffset();
    for (int visual = 0; visual < d->header->count(); ++visual) {
        const int index = d->header->logicalIndex(visual) - offset;
        if (index >= 0 && index < d->headList.size())
            order.append(index);
    }
    return order;
}

void ZrTableColumns::dressHeader(const QList<int> &shownOrder)
{
    const QScopedValueRollback<bool> applying(m_isApplyingOrder, true);
    for (int section = 0; section < qMin(d->columnOffset(), d->header->count()); ++section)
        d->header->moveSection(d->header->visualIndex(section), section);
    ZrColumnOrder::apply(shownOrder, d->columnOffset(), d->header);
    hideByHeads();
    reapplyWidths();
    d->table->relayFrozenTables();
}

void ZrTableColumns::changePseudoColumns(const std::function<void()> &change)
{
    const QList<int> order = shownOrder();
    change();
    dressHeader(order);
    updateSummaryHeads();
}

void ZrTableColumns::setColumnShow(int position, bool show)
{
    if (position < 0 || position >= d->headList.size())
        return;
    d->headList[position].insert(HEAD_SHOWROLE, show);
    const int viewColumn = position + d->columnOffset();
    d->table->setColumnHidden(viewColumn, !show);
    if (d->summaryTable)
        d->summaryTable->setColumnHidden(viewColumn, !show);
    d->tellColumnShown(viewColumn, show);
}

void ZrTableColumns::setHidden(const QList<int> &logicalColumns)
{
    const QList<int> before = d->hiddenColumns;
    for (const int column : before)
        setColumnShow(column, true);
    d->hiddenColumns = logicalColumns;
    for (const int column : logicalColumns)
        setColumnShow(column, false);
}

HeadList ZrTableColumns::visibleHeads() const
{
    HeadList heads;
    for (const QMap<QString, QVariant> &head : qAsConst(d->headList)) {
        if (!d->hiddenColumns.contains(head.value(HEAD_COLUMNINDEX).toInt()))
            heads.append(head);
    }
    return heads;
}

QList<int> ZrTableColumns::logicalOrder() const
{
    return ZrColumnOrder::toLogical(d->visualOrder, d->headList);
}

void ZrTableColumns::setOrderProperty(const QList<int> &logicalColumns)
{
    d->headOrderProperty = logicalColumns;
    setViewHeadIndexOrderByProperty();
}

void ZrTableColumns::applyOrder()
{
    const QScopedValueRollback<bool> applying(m_isApplyingOrder, true);
    ZrColumnOrder::apply(d->visualOrder, d->columnOffset(), d->header);
    if (d->summaryHeader)
        ZrColumnOrder::apply(d->visualOrder, d->columnOffset(), d->summaryHeader);
}

void ZrTableColumns::applyShownOrder(QHeaderView *head)
{
    ZrColumnOrder::apply(shownOrder(), d->columnOffset(), head);
}

QString ZrTableColumns::settingKey() const
{
    return d->plugin->pluginInstanceId() + d->viewKey;
}

QString ZrTableColumns::storedOrder() const
{
    return ZrCore::instance()
        ->settings(settingKey(), Constants::VIEWFIELDORDERLIST, QString(), QSettings::UserScope)
        .toString();
}

void ZrTableColumns::setViewHeadIndexOrderByProperty()
{
    if (d->headList.isEmpty())
        return;
    if (!d->plugin || d->viewKey.isEmpty()) {
        applyOrder();
        return;
    }
    const QList<int> stored = ZrColumnOrder::fromText(storedOrder());
    if (stored.isEmpty() && d->headOrderProperty.isEmpty()) {
        d->visualOrder = ZrColumnOrder::listOrder(d->headList.size());
        applyOrder();
        return;
    }
    const QList<int> wanted = stored.isEmpty() ? d->headOrderProperty : stored;
    const QList<int> numbers = ZrColumnOrder::logicalNumbers(d->headList);
    d->visualOrder = ZrColumnOrder::toVisual(wanted, d->headList);
    qDebug() << "setViewHeadData" << wanted << numbers << d->visualOrder;
    applyOrder();
}

void ZrTableColumns::headSectionMoved(int section, int oldVisual, int newVisual)
{
    if (d->summaryHeader && !m_isApplyingOrder)
        d->summaryHeader->moveSection(oldVisual, newVisual);
    if (d->viewKey.isEmpty() || m_isApplyingOrder)
        return;
    const int offset = d->columnOffset();
    const int index = section - offset;
    const int from = oldVisual - offset;
    const int to = newVisual - offset;
    if (d->visualOrder.value(from, -1) != index || to < 0 || to >= d->visualOrder.size()) {
        qWarning() << "section index is not match" << d->visualOrder << index << from << to;
        return;
    }
    d->visualOrder.move(from, to);
    saveOrder();
}

void ZrTableColumns::saveOrder()
{
    if (!d->plugin)
        return;
    const QString text = ZrColumnOrder::toText(logicalOrder());
    ZrCore::instance()->saveSetting(settingKey(), text, Constants::VIEWFIELDORDERLIST, QString(),
                                    QSettings::UserScope);
    qDebug() << "slotHeadSectionMoved" << d->visualOrder;
    d->plugin->orderChanged();
}

void ZrTableColumns::setMovable(bool movable)
{
    if (d->header->sectionsMovable() == movable)
        return;
    if (movable)
        connect(d->header, &QHeaderView::sectionMoved, d, &ZrTableViewPrivate::slotHeadSectionMoved);
    else
        disconnect(d->header, &QHeaderView::sectionMoved, d, &ZrTableViewPrivate::slotHeadSectionMoved);
    d->header->setSectionsMovable(movable);
}

void ZrTableColumns::setDefaultWidth(int widthPx)
{
    d->columnDefaultWidth = widthPx;
    reapplyWidths();
    reapplySummaryWidths();
    d->updateModels();
}

void ZrTableColumns::setMinimumWidth(int widthPx)
{
    d->columnMinimumWidth = widthPx;
    reapplyWidths();
    reapplySummaryWidths();
    d->updateModels();
}

void ZrTableColumns::reapplyWidths()
{
    if (d->columnDefaultWidth > 0)
        d->table->setDefaultSectionSize(d->columnDefaultWidth);
    if (d->columnMinimumWidth > 0)
        d->table->setMinimumSectionSize(d->columnMinimumWidth);
    // A default size overwrites every section: the widths that were set one by one come back from the model.
    d->model->getModelPrivate()->columnSectionsApplied = false;
    d->model->resetColumnSections();
}

void ZrTableColumns::reapplySummaryWidths()
{
    if (!d->summaryModel)
        return;
    if (d->columnDefaultWidth > 0)
        d->summaryHeader->setDefaultSectionSize(d->columnDefaultWidth);
    if (d->columnMinimumWidth > 0)
        d->summaryHeader->setMinimumSectionSize(d->columnMinimumWidth);
    d->summaryModel->getModelPrivate()->columnSectionsApplied = false;
    d->summaryModel->resetColumnSections();
    // Sections that nobody set still follow the head above: the user may have dragged their edges.
    for (int section = 0; section < qMin(d->header->count(), d->summaryHeader->count()); ++section) {
        if (!d->header->isSectionHidden(section))
            d->summaryHeader->resizeSection(section, d->header->sectionSize(section));
    }
}
