#include "ZrTableSummary.h"

#include "FreezeTableView.h"
#include "ZrHeaderView.h"
#include "ZrItemModelDeletage.h"
#include "ZrItemModelDeletage_p.h"
#include "ZrRoleKeys.h"
#include "ZrTableColumns.h"
#include "ZrTableModel_p.h"
#include "ZrTableView_p.h"

#include <QtCore/QTimerEvent>
#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QScrollBar>

namespace {
constexpr int frameMs = 16;
constexpr int lineMarginPx = 10; // of the summary table around its row
} // namespace

ZrTableSummary::ZrTableSummary(ZrTableViewPrivate *viewPrivate)
    : QObject(viewPrivate)
    , d(viewPrivate)
{
}

ZrTableSummary::~ZrTableSummary()
{
    if (d->summaryModel)
        d->summaryModel->getModelPrivate()->beforeRead = nullptr;
}

void ZrTableSummary::setEnabled(bool enable, const QList<int> &noSumColumns)
{
    if (!enable) {
        removeParts();
        return;
    }
    if (!d->summaryTable)
        createParts();
    d->model->setNoSumCols(noSumColumns);
    d->summaryTable->show();
    setLineHeight();
    markStale();
}

void ZrTableSummary::createParts()
{
    d->summaryTable = new QTableView(d->view->parentWidget());
    d->summaryTable->verticalHeader()->hide();
    d->summaryTable->setObjectName(QStringLiteral("TableSummaryView"));
    d->summaryTable->setFocusPolicy(Qt::NoFocus); // shows one row that nothing can be done to
    d->bottomLayout->addWidget(d->summaryTable);
    d->summaryHeader = new ZrHeaderView(Qt::Horizontal, d->summaryTable);
    d->summaryHeader->setSortbale(true);
    d->summaryModel = new ZrTableModel(d->summaryTable);
    d->summaryDelegate = new ZrItemModelDeletage(d->summaryTable);
    d->summaryDelegate->setItemGridShow(true);
    d->summaryDelegate->getDelegatePrivate()->summaryMode = true;
    d->summaryTable->setShowGrid(false);
    d->summaryTable->setFrameShape(QFrame::NoFrame);
    d->summaryTable->setModel(d->summaryModel);
    d->summaryTable->setHorizontalHeader(d->summaryHeader);
    d->summaryTable->setItemDelegate(d->summaryDelegate);
    d->summaryHeader->hide();
    d->summaryTable->setHorizontalScrollMode(QAbstractItemView::ScrollPerPixel);
    d->summaryTable->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    d->table->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    connectBars();
    copySettings();
    d->summaryModel->updateRecordDataList({record()});
    d->summaryModel->getModelPrivate()->beforeRead = [this] { refreshRow(); };
}

void ZrTableSummary::connectBars()
{
    // The summary's bar serves both tables, so it has the range of the main table's hidden one. Its own table
    // sets another one at each layout, for it has no vertical bar and so more room: that is set back, or the
    // two bars below would lead each other on, a little further each time, up to the end.
    QScrollBar *const bar = d->summaryTable->horizontalScrollBar();
    QScrollBar *const mainBar = d->table->horizontalScrollBar();
    connect(bar, &QScrollBar::valueChanged, d->table, &FreezeTableView::setValue);
    connect(mainBar, &QScrollBar::rangeChanged, bar, &QScrollBar::setRange);
    connect(bar, &QScrollBar::rangeChanged, mainBar,
            [bar, mainBar] { bar->setRange(mainBar->minimum(), mainBar->maximum()); });
    bar->setRange(mainBar->minimum(), mainBar->maximum());
    // Keys scroll the main table itself; the visible bar must not stay behind.
    connect(mainBar, &QScrollBar::valueChanged, bar, &QScrollBar::setValue);
}

void ZrTableSummary::copySettings()
{
    if (d->serialOrder > ZrViewModel::SerialNumNone)
        d->summaryModel->setSerialNumberColumnPropety(ZrViewModel::SerialNumColumnOrder(d->serialOrder));
    d->summaryModel->setCheckBoxShow(d->checkBoxShown);
    d->summaryHeader->setCheckBoxShow(d->checkBoxShown);
    d->summaryDelegate->setCheckBoxShow(d->checkBoxShown);
    const ZrItemModelDeletagePrivate *const look = d->delegate->getDelegatePrivate();
    d->summaryDelegate->setItemGridColor(look->gridColor);
    d->summaryDelegate->setGridLineStyle(look->gridLineStyle);
    d->summaryDelegate->setColumnDefaultXMargin(look->columnXMargin);
    d->summaryModel->setSumFlag(true);
    ZrTableModelPrivate *const own = d->summaryModel->getModelPrivate();
    const ZrTableModelPrivate *const main = d->model->getModelPrivate();
    own->columnAlignment = main->columnAlignment;
    own->defaultColumnAlignment = main->defaultColumnAlignment;
    own->columnWidths = main->columnWidths;
    d->summaryHeader->setStretchLastSection(d->header->stretchLastSection());
    d->summaryTable->verticalHeader()->setDefaultSectionSize(d->itemHeight);
    d->summaryTable->setAccessibleName(ZrTableView::tr("Summary of %1").arg(d->view->GetViewCaption()));
    d->columns->updateSummaryHeads();
}

void ZrTableSummary::removeParts()
{
    if (!d->summaryTable)
        return;
    m_frame.stop();
    m_isStale = false;
    d->summaryModel->getModelPrivate()->beforeRead = nullptr;
    d->table->horizontalScrollBar()->disconnect(d->summaryTable->horizontalScrollBar());
    d->summaryTable->horizontalScrollBar()->disconnect(d->table);
    d->summaryTable->horizontalScrollBar()->disconnect(d->table->horizontalScrollBar());
    d->bottomLayout->removeWidget(d->summaryTable);
    d->summaryTable->hide();
    d->table->setHorizontalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    d->summaryTable->deleteLater();
    d->summaryHeader->deleteLater();
    d->summaryModel->deleteLater();
    d->summaryDelegate->deleteLater();
    d->summaryTable = nullptr;
    d->summaryHeader = nullptr;
    d->summaryModel = nullptr;
    d->summaryDelegate = nullptr;
}

void ZrTableSummary::markStale()
{
    if (!d->summaryModel)
        return;
    m_isStale = true;
    if (!m_frame.isActive())
        m_frame.start(frameMs, Qt::CoarseTimer, this);
}

RecordData ZrTableSummary::record() const
{
    RecordData row = d->model->getModelPrivate()->sumRecordNow();
    for (auto cell = d->summaryOverrideRecord.cbegin(); cell != d->summaryOverrideRecord.cend(); ++cell) {
        if (!d->sumGenerateFunctions.contains(cell.key()))
            row.insert(cell.key(), cell.value());
    }
    for (auto entry = d->sumGenerateFunctions.cbegin(); entry != d->sumGenerateFunctions.cend(); ++entry)
        row.insert(entry.key(), entry.value()(entry.key(), d->model->getModelData()));
    // A row with this mark gets no check box: a sum cannot be ticked.
    if (d->checkBoxShown)
        row[ZrRowStateColumn].insert(ITEM_CUSTOMROLE, true);
    return row;
}

// Somebody reads the row between two frames: the data are made right under the reader, and the table hears of
// it at the frame, because a reset in the middle of a paint is no option.
void ZrTableSummary::refreshRow()
{
    RecordDataList &rows = d->summaryModel->getModelPrivate()->modelData;
    if (!m_isStale || rows.isEmpty())
        return;
    m_isStale = false;
    rows.first() = record();
}

void ZrTableSummary::timerEvent(QTimerEvent *event)
{
    if (event->timerId() != m_frame.timerId()) {
        QObject::timerEvent(event);
        return;
    }
    m_frame.stop();
    m_isStale = false;
    d->summaryModel->updateRecordDataList({record()});
}

void ZrTableSummary::setOverride(const RecordData &record)
{
    d->summaryOverrideRecord = record;
    markStale();
}

void ZrTableSummary::setGenerator(int column, ZrSumGenerateFunction function)
{
    if (!d->isHeadColumn(column) || !function)
        return;
    d->sumGenerateFunctions.insert(column, function);
    markStale();
}

void ZrTableSummary::removeGenerator(int column)
{
    d->sumGenerateFunctions.remove(column);
    markStale();
}

void ZrTableSummary::setLineHeight()
{
    if (!d->summaryTable)
        return;
    d->summaryTable->verticalHeader()->setDefaultSectionSize(d->itemHeight);
    d->summaryTable->setFixedHeight(d->itemHeight + lineMarginPx);
}
