#include "ZrViewFilterWidget.h"

#include "FreezeTableView.h"
#include "zrcore/ZrCore.h"
#include "zrdefine/Constants.h"
#include "ZrDialog.h"
#include "ZrModelIndex.h"
#include "ZrRoleKeys.h"
#include "ZrTableView.h"
#include "ZrTableView_p.h"
#include "ZrWidestText.h"

#include <QtCore/QDebug>
#include <QtCore/QPointer>
#include <QtWidgets/QApplication>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QShortcut>
#include <QtWidgets/QVBoxLayout>

#include <limits>

namespace {
constexpr int TextColumn = 0;
constexpr int HeightPx = 150;
constexpr int LeastTextPx = 50;
constexpr int BesideTextPx = 60; // check box, scroll bar, margins
constexpr int MarginPx = 2;
constexpr int LeftCentre = 129; // Qt::AlignLeft | Qt::AlignVCenter
} // namespace

ZrViewFilterWidget::ZrViewFilterWidget(QWidget *parent)
    : QFrame(parent, Qt::SubWindow | Qt::FramelessWindowHint)
    , m_mostWidth(std::numeric_limits<int>::max())
{
    QVBoxLayout *const layout = new QVBoxLayout(this);
    layout->setSpacing(MarginPx);
    layout->setContentsMargins(MarginPx, MarginPx, MarginPx, MarginPx);
    createSearchLine();
    createList();
    connectParts();
    connectKeys();
    setFocusProxy(m_searchEdit);
    ZrCore::instance()->addStyle2View(this, Constants::SKIN_SYSTEM +
                                                QStringLiteral("zrwidget/zrviewfilterwidget.css"));
}

ZrViewFilterWidget::~ZrViewFilterWidget()
{
    qDebug() << "~ZrViewFilterWidget";
}

void ZrViewFilterWidget::createSearchLine()
{
    m_searchEdit = new QLineEdit(this);
    m_searchEdit->setPlaceholderText(tr("Search box"));
    m_searchEdit->setAccessibleName(tr("Search box"));
    layout()->addWidget(m_searchEdit);
}

void ZrViewFilterWidget::createList()
{
    m_tableView = new ZrTableView(this);
    leavePlugin();
    HeadList heads{QMap<QString, QVariant>()};
    m_tableView->setHeadList(heads);
    m_tableView->setZrTableHorizontalHeaderVisiable(false);
    m_tableView->setCheckBoxShow(true);
    m_tableView->setColumnDefaultTextAlignment(LeftCentre);
    m_tableView->setSelectionBehavior(QAbstractItemView::SelectRows);
    m_tableView->setViewSortable(false);
    m_tableView->setKeyColumn({TextColumn});
    // So that the current row shows to who walks through the list by keys.
    m_tableView->setItemSelectable(true);
    m_tableView->getTableView()->setAccessibleName(tr("Choices"));
    layout()->addWidget(m_tableView);
}

// A list is no grid of the plugin: settings and export must not see it, and it must not take over the columns
// that the user has hidden in a grid which has no name either.
void ZrViewFilterWidget::leavePlugin()
{
    ZrTableViewPrivate *const list = m_tableView->getPrivate();
    if (!list->plugin)
        return;
    list->plugin->removePluginView(m_tableView);
    list->plugin = ZrViewRegistryPointer();
    m_tableView->setPluginViewColumnVisiableProperity({});
}

void ZrViewFilterWidget::connectParts()
{
    connect(m_tableView, &ZrTableView::signalRowCheckStateChanged, this,
            &ZrViewFilterWidget::slotSignalRowCheckStateChanged);
    connect(m_tableView, &ZrTableView::clicked, this, &ZrViewFilterWidget::slotViewClicked);
    connect(m_searchEdit, &QLineEdit::textEdited, this, &ZrViewFilterWidget::slotSearchTextChanged);
}

void ZrViewFilterWidget::connectKeys()
{
    const auto onKey = [this](Qt::Key key, QWidget *where, Qt::ShortcutContext context,
                              void (ZrViewFilterWidget::*slot)()) {
        auto *const shortcut = new QShortcut(QKeySequence(key), where);
        shortcut->setContext(context);
        connect(shortcut, &QShortcut::activated, this, slot);
    };
    // The dialog keeps escape from all but its content itself, and here a child always has the focus.
    onKey(Qt::Key_Escape, this, Qt::WidgetWithChildrenShortcut, &ZrViewFilterWidget::closeDialog);
    onKey(Qt::Key_Down, m_searchEdit, Qt::WidgetShortcut, &ZrViewFilterWidget::goToList);
    onKey(Qt::Key_Space, m_tableView->getTableView(), Qt::WidgetShortcut, &ZrViewFilterWidget::toggleCurrent);
}

void ZrViewFilterWidget::loadSkin(const QVariant &css)
{
    if (css.isValid())
        setStyleSheet(css.toString());
}

// --- Closing ---

// The whole application is watched, but only while the panel is open: a filter on each of the main window's
// widgets would be paid for by all of their events for good, and would miss widgets that come later.
void ZrViewFilterWidget::showEvent(QShowEvent *event)
{
    QFrame::showEvent(event);
    qApp->installEventFilter(this);
}

void ZrViewFilterWidget::hideEvent(QHideEvent *event)
{
    qApp->removeEventFilter(this);
    QFrame::hideEvent(event);
}

bool ZrViewFilterWidget::eventFilter(QObject *watched, QEvent *event)
{
    // The press goes on to its target: with a popup open, a click on a button still is one.
    if (event->type() == QEvent::MouseButtonPress && isOutside(watched))
        closeDialog();
    return QFrame::eventFilter(watched, event);
}

// Windows count as children here: the search line's menu belongs to the panel.
bool ZrViewFilterWidget::isOutside(const QObject *object) const
{
    if (!object->isWidgetType())
        return false; // the window below the widgets gets each press first
    const QWidget *const own = dialog();
    for (auto *widget = static_cast<const QWidget *>(object); widget; widget = widget->parentWidget()) {
        if (widget == this || widget == own)
            return false;
    }
    return true;
}

ZrDialog *ZrViewFilterWidget::dialog() const
{
    for (QWidget *place = parentWidget(); place; place = place->parentWidget()) {
        if (auto *const found = qobject_cast<ZrDialog *>(place))
            return found;
    }
    return nullptr;
}

void ZrViewFilterWidget::closeDialog()
{
    if (ZrDialog *const frame = dialog())
        frame->hide();
}

// --- Filling ---

void ZrViewFilterWidget::setMostWidth(int widthPx)
{
    m_mostWidth = widthPx;
}

void ZrViewFilterWidget::updateFilterData(int column, int valueType, const QList<ItemRoleMap> &cells,
                                          const QList<QList<QVariantMap>> &currentFilter,
                                          const RecordDataList &choices)
{
    m_searchEdit->setText(QString());
    m_column = column;
    m_valueType = valueType;
    m_choices.fill(valueType, cells, currentFilter, choices);
    m_allText = tr("Select all");
    fitTo(m_choices.texts());
    showList(m_choices.records(), headRow(m_choices.isAllTicked()));
    m_tableView->getTableView()->scrollToTop();
}

void ZrViewFilterWidget::fitTo(const QVector<QString> &texts)
{
    ensurePolished(); // only then do we have the sheet's font
    const int wanted = qMax(LeastTextPx, ZrWidestText(fontMetrics()).widthPx(texts));
    const int width = qMax(LeastTextPx, qMin(wanted, m_mostWidth - BesideTextPx));
    setFixedSize(width + BesideTextPx, HeightPx);
    m_tableView->setColumnWidth(TextColumn, width);
}

void ZrViewFilterWidget::showList(RecordDataList choices, const RecordData &headRow)
{
    choices.prepend(headRow);
    m_tableView->updateRecordDataList(choices);
}

// With an empty state cell, as the choices have it: the list would make it, and take its rows apart for that.
RecordData ZrViewFilterWidget::headRow() const
{
    return {{ZrRowStateColumn, {}}, {TextColumn, {{ITEM_DISPLAYROLE, m_allText}}}};
}

RecordData ZrViewFilterWidget::headRow(bool isTicked) const
{
    RecordData row = headRow();
    row[ZrRowStateColumn].insert(ITEM_USERROLE, isTicked);
    return row;
}

// --- Ticks ---

bool ZrViewFilterWidget::isHeadRow(int row, const RecordData &record) const
{
    return row == 0 && record.value(TextColumn).value(ITEM_DISPLAYROLE).toString() == m_allText;
}

void ZrViewFilterWidget::slotViewClicked(QModelIndex index)
{
    // The check box column is the list's own affair and comes by signalRowCheckStateChanged.
    if (ZrModelIndex::column(index) != TextColumn)
        return;
    const int row = index.row();
    RecordData record = m_tableView->getRowData(row);
    const bool isTicked = !ZrFilterChoices::isTicked(record);
    record[ZrRowStateColumn].insert(ITEM_USERROLE, isTicked);
    m_tableView->updataRecordData(record);
    slotSignalRowCheckStateChanged(row, int(isTicked));
}

void ZrViewFilterWidget::slotSignalRowCheckStateChanged(int row, int state)
{
    const RecordData record = m_tableView->getRowData(row);
    if (isHeadRow(row, record)) {
        // All choices, also those that the search hides: required.
        m_choices.tickAll(state);
        m_tableView->updataRecordDatas(m_choices.records());
    } else {
        m_choices.tick(ZrFilterChoices::keyText(record), state);
        m_tableView->updataRecordData(headRow(m_choices.isAllTicked()));
    }
    tell();
}

// Nothing of ours is read afterwards but the count: the grid may have gone meanwhile, and we are about to.
void ZrViewFilterWidget::tell()
{
    const QPointer<ZrViewFilterWidget> self(this);
    ++m_telling;
    emit signalFilterStatusChanged();
    if (self)
        --m_telling;
}

QList<ItemRoleMap> ZrViewFilterWidget::getCheckedRecordList() const
{
    return m_choices.tickedCells();
}

QList<QList<QVariantMap>> ZrViewFilterWidget::getFilterConditionList() const
{
    return m_choices.conditions();
}

// --- Search ---

// The head row comes without a tick: typing says nothing about all choices. The next tick counts them again.
void ZrViewFilterWidget::slotSearchTextChanged()
{
    const QString text = m_searchEdit->text();
    showList(text.isEmpty() ? m_choices.records() : m_choices.containing(text), headRow());
}

// --- Keys ---

void ZrViewFilterWidget::goToList()
{
    FreezeTableView *const list = m_tableView->getTableView();
    if (!list->currentIndex().isValid())
        list->setCurrentIndex(list->model()->index(0, m_tableView->getPrivate()->columnOffset()));
    list->setFocus(Qt::TabFocusReason);
}

void ZrViewFilterWidget::toggleCurrent()
{
    const QModelIndex current = m_tableView->currentIndex();
    if (current.isValid())
        slotViewClicked(current.sibling(current.row(), m_tableView->getPrivate()->columnOffset()));
}
