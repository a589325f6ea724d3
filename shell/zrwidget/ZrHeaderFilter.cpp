#include "ZrHeaderFilter.h"

#include "FreezeTableView.h"
#include "zrcore/ZrCore.h"
#include "ZrDialog.h"
#include "ZrFilterPlace.h"
#include "ZrHeaderView.h"
#include "ZrHeaderView_p.h"
#include "ZrTableModel_p.h"
#include "ZrTableView_p.h"
#include "ZrViewFilterWidget.h"

#include <QtCore/QPointer>
#include <QtGui/QGuiApplication>
#include <QtGui/QScreen>

#include <limits>

std::unique_ptr<ZrFilterOpener> ZrFilterOpener::make(ZrTableViewPrivate *grid)
{
    return std::make_unique<ZrHeaderFilter>(grid);
}

ZrHeaderFilter::ZrHeaderFilter(ZrTableViewPrivate *grid)
    : m_grid(grid)
{
}

void ZrHeaderFilter::open(ZrHeaderView *head, int logicalColumn, const QRect &buttonRect)
{
    ZrHeaderViewPrivate *const shared = head->getPrivate();
    if (!isUsable(*shared))
        makePopup(head);
    ZrDialog *const dialog = shared->filterDialog;
    ZrViewFilterWidget *const panel = shared->filterWidget;
    QObject::disconnect(shared->filterConnection);
    shared->filterConnection = QObject::connect(panel, &ZrViewFilterWidget::signalFilterStatusChanged, head,
                                                &ZrHeaderView::slotFilterStatusChanged);
    const QRect screen = screenOf(head);
    panel->setMostWidth(screen.isNull() ? std::numeric_limits<int>::max() : screen.width());
    fill(panel, logicalColumn);
    dialog->setFixedSize(panel->size());
    const QRect button(head->mapToGlobal(buttonRect.topLeft()), buttonRect.size());
    const QPoint place = ZrFilterPlace::of(button, dialog->size(), screen);
    // Before it is shown, or the toolkit would centre it; and after, for who counts the frame differently.
    dialog->move(place);
    dialog->show();
    dialog->move(place);
    panel->setFocus(Qt::PopupFocusReason);
    ZrCore::instance()->raiseWindow(dialog);
}

// One that has outlived its head is about to go and takes no new column.
bool ZrHeaderFilter::isUsable(const ZrHeaderViewPrivate &shared)
{
    return shared.filterDialog && shared.filterWidget && shared.filterDialog->parentWidget();
}

void ZrHeaderFilter::makePopup(ZrHeaderView *head)
{
    constexpr bool closesOnButton = false; // there is none
    constexpr int noButtons = 0;
    constexpr bool showsTitle = false;
    constexpr bool hasShadow = false; // the dialog is as large as the panel
    constexpr int leaveWhereItIs = 0;
    ZrHeaderViewPrivate *const shared = head->getPrivate();
    // The title isn't shown; it is the dialog's name for a screen reader.
    auto *const dialog = new ZrDialog(ZrViewFilterWidget::tr("Filter"), closesOnButton, head, noButtons,
                                      showsTitle, hasShadow, leaveWhereItIs);
    auto *const panel = new ZrViewFilterWidget(dialog);
    dialog->addWidget(panel);
    shared->filterDialog = dialog;
    shared->filterWidget = panel;
    // A widget tells of its end before it deletes its children.
    QObject::connect(head, &QObject::destroyed, panel, [dialog, panel] { outlive(dialog, panel); });
}

// The click on the list is still under way below us, in the toolkit's code and in that of the list.
void ZrHeaderFilter::outlive(ZrDialog *dialog, const ZrViewFilterWidget *panel)
{
    if (!panel->isTelling())
        return;
    dialog->hide();
    dialog->setParent(nullptr);
    dialog->deleteLater();
}

QRect ZrHeaderFilter::screenOf(const QWidget *head)
{
    const QScreen *screen = QGuiApplication::screenAt(head->mapToGlobal(QPoint(0, 0)));
    // A window may be pushed half over the edge.
    if (!screen)
        screen = head->screen();
    return screen ? screen->availableGeometry() : QRect();
}

void ZrHeaderFilter::fill(ZrViewFilterWidget *panel, int logicalColumn) const
{
    const ZrTableModelPrivate *const model = m_grid->model->getModelPrivate();
    const RecordDataList own = model->columnFilterData.value(logicalColumn);
    // The cells of the rows only matter where the caller has given no choices.
    const QList<ItemRoleMap> cells =
        own.isEmpty() ? model->columnCandidates(logicalColumn) : QList<ItemRoleMap>();
    panel->updateFilterData(logicalColumn, model->columnTypes.value(logicalColumn), cells,
                            model->viewFilterList.value(logicalColumn), own);
}

ZrHeaderFilter::Groups ZrHeaderFilter::store(const ZrViewFilterWidget *panel) const
{
    ZrTableModelPrivate *const model = m_grid->model->getModelPrivate();
    const int column = panel->column();
    if (!model->matchFunctions.contains(column)) {
        const Groups groups = panel->getFilterConditionList();
        model->setColumnFilter(column, groups);
        return groups;
    }
    const QList<QVariantMap> group = panel->getCheckedRecordList();
    model->setColumnCustomFilter(column, group);
    return group.isEmpty() ? Groups() : Groups{group};
}

void ZrHeaderFilter::takeChoice(ZrHeaderView *head)
{
    const ZrViewFilterWidget *const panel = head->getPrivate()->filterWidget;
    if (!panel)
        return;
    const int column = panel->column();
    const QPointer<ZrTableView> grid(m_grid->view);
    const QPointer<ZrHeaderView> asked(head);
    const Groups groups = store(panel);
    if (!grid)
        return;
    const QPointer<ZrHeaderView> main(m_grid->header);
    if (asked)
        emit asked->signalFilterChanged(column, groups);
    // Callers know the main head only; a side head speaks through it.
    if (main && main != asked)
        emit main->signalFilterChanged(column, groups);
}
