#include "ZrComfirmDialog.h"

#include "zrcore/ZrCore.h"
#include "zrdefine/Constants.h"
#include "ZrDialogKeys.h"
#include "ZrDialogParts.h"
#include "ZrExactValueDelegate.h"
#include "ZrHeaderView.h"
#include "ZrPlainText.h"
#include "ZrRoleKeys.h"
#include "ZrShadowFrame.h"
#include "ZrTableModel.h"
#include "ZrTitleLabel.h"
#include "ZrWindowDrag.h"
#include "ZrWindowPlace.h"

#include <QtGui/QMouseEvent>
#include <QtWidgets/QBoxLayout>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QScrollArea>
#include <QtWidgets/QTableView>

namespace {
constexpr QSize firstSize(420, 162);
constexpr int tableHeightPx = 200; // until there are rows
constexpr int tableWidthPx = 150;
constexpr int sectionPx = 100;
constexpr int screenEdgePx = 20; // what stays free of a screen when there are more rows than fit
} // namespace

class ZrComfirmDialog::Private
{
public:
    explicit Private(ZrComfirmDialog *dialog)
        : drag(dialog)
    {
    }

    ZrWindowDrag drag;
    int buttonBits = 0; // 1 confirm, 2 cancel
    int rowHeightPx = 30;
    int margin = 0; // px
    int radius = 0; // as ZrShadowFrame counts it
    int titleHeight = ZrDialogParts::TitleHeightPx;
    QTableView *table = nullptr; // this and the following are the dialog's children
    ZrTableModel *model = nullptr;
    QScrollArea *rows = nullptr; // around the table, which is as high as all its rows
    ZrDialogParts::Buttons buttons{};
};

ZrComfirmDialog::ZrComfirmDialog(const QString &title, int buttons, QWidget *parent, int)
    : QDialog(parent ? parent : ZrCore::instance()->mainWindow())
    , d(new Private(this))
{
    d->buttonBits = buttons;
    setObjectName(QStringLiteral("ZrComfirmDialog"));
    setWindowFlags(Qt::Window | Qt::FramelessWindowHint);
    setAttribute(Qt::WA_TranslucentBackground);
    setModal(true);
    createParts(title);
    connectParts();
    ZrCore::instance()->addStyle2View(this, Constants::SKIN_SYSTEM +
                                                QStringLiteral("zrwidget/zrcomfirmdialog.css"));
    resize(firstSize);
    ZrWindowPlace::place(this, ZrWindowPlace::OverParent);
}

ZrComfirmDialog::~ZrComfirmDialog() = default;

void ZrComfirmDialog::createParts(const QString &title)
{
    setWindowTitle(ZrPlainText::beginning(title, ZrPlainText::captionBound));
    const ZrShadowFrame *const main = ZrDialogParts::addMainFrame(this, QStringLiteral("verticalLayout_2"));
    d->margin = main->margin();
    d->radius = main->radius();
    auto *const column = static_cast<QBoxLayout *>(main->layout());
    ZrDialogParts::addTitle(column, title, {0, {10, 0, 0, 0}});
    createWork(ZrDialogParts::addWork(column));
    setTabOrder(d->table, d->buttons.confirm);
    setTabOrder(d->buttons.confirm, d->buttons.cancel);
}

void ZrComfirmDialog::createWork(QFrame *work)
{
    QVBoxLayout *const outer = ZrDialogParts::column(QStringLiteral("verticalLayout_4"), work);
    outer->setContentsMargins(9, 8, 9, 9);
    QVBoxLayout *const inner = ZrDialogParts::column(QStringLiteral("verticalLayout"));
    inner->setSpacing(6);
    outer->addLayout(inner);
    d->rows = new QScrollArea(work);
    d->rows->setObjectName(QStringLiteral("scrollArea_rows"));
    d->rows->setFrameShape(QFrame::NoFrame);
    d->rows->setWidgetResizable(true);
    d->rows->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    d->rows->setFocusPolicy(Qt::NoFocus); // the table has the keys
    auto *const rowsLayout = new QHBoxLayout;
    rowsLayout->setObjectName(QStringLiteral("horizontalLayout_3"));
    rowsLayout->addWidget(d->rows);
    inner->addLayout(rowsLayout, 1);
    createTable(d->rows);
    d->buttons = ZrDialogParts::addButtons(inner, QStringLiteral("pushButton"),
                                           QStringLiteral("pushButton_cancel"), {6, {0, 0, 0, 0}});
    d->buttons.confirm->setText(tr("确认"));
    d->buttons.cancel->setText(tr("取消"));
    ZrDialogParts::showButtons(d->buttons, d->buttonBits);
}

void ZrComfirmDialog::createTable(QWidget *parent)
{
    d->table = new QTableView(parent);
    d->table->setObjectName(QStringLiteral("user_dataView"));
    d->table->setAccessibleName(windowTitle().isEmpty() ? tr("Values") : windowTitle());
    d->model = new ZrTableModel(d->table);
    d->model->setHeaderData({{{HEAD_DISPLAYROLE, tr("name")}, {HEAD_COLUMNINDEX, 0}},
                             {{HEAD_DISPLAYROLE, tr("value")}, {HEAD_COLUMNINDEX, 1}}});
    d->model->setColumnDefaultTextAlignment(int(Qt::AlignLeft | Qt::AlignVCenter));
    d->model->setItemSelectable(true);
    d->table->setModel(d->model);
    auto *const head = new ZrHeaderView(Qt::Horizontal, d->table);
    d->table->setHorizontalHeader(head);
    head->setMinimumSectionSize(sectionPx);
    head->setSectionResizeMode(QHeaderView::Stretch);
    d->table->setItemDelegate(new ZrExactValueDelegate(d->table));
    d->table->setShowGrid(false);
    d->table->setWordWrap(false);
    d->table->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff); // what is around it scrolls
    d->table->setSelectionMode(QAbstractItemView::SingleSelection);
    d->table->setSelectionBehavior(QAbstractItemView::SelectRows);
    d->table->setEditTriggers(QAbstractItemView::NoEditTriggers);
    d->table->setTabKeyNavigation(false); // tab leads on to the buttons
    d->table->verticalHeader()->hide();
    d->table->verticalHeader()->setMinimumSectionSize(1);
    d->table->verticalHeader()->setDefaultSectionSize(d->rowHeightPx);
    d->table->setMinimumWidth(tableWidthPx);
    d->table->setFixedHeight(tableHeightPx);
    d->rows->setWidget(d->table);
    d->rows->setMinimumSize(tableWidthPx, tableHeightPx);
}

// By hand: the buttons' names and the slots' names don't belong together by the toolkit's rule.
void ZrComfirmDialog::connectParts()
{
    connect(d->buttons.confirm, &QPushButton::clicked, this, &ZrComfirmDialog::on_pushButton_OK_clicked);
    connect(d->buttons.cancel, &QPushButton::clicked, this, &ZrComfirmDialog::on_pushButton_Cancel_clicked);
    // The table never scrolls, so it doesn't bring its current row into sight.
    connect(d->table->selectionModel(), &QItemSelectionModel::currentChanged, this,
            &ZrComfirmDialog::showRow);
}

void ZrComfirmDialog::loadSkin(const QVariant &css)
{
    if (css.isValid())
        setStyleSheet(css.toString());
}

void ZrComfirmDialog::setComfirmData(const QList<QList<QVariant>> &rows)
{
    RecordDataList records;
    for (const QList<QVariant> &row : rows) {
        RecordData record;
        for (int column = 0; column < row.size(); ++column)
            record.insert(column, {{ITEM_DISPLAYROLE, row.at(column)}});
        records.append(record);
    }
    d->table->horizontalHeader()->hide();
    d->table->setFixedHeight(rows.size() * d->rowHeightPx);
    d->model->updateRecordDataList(records);
    fitRows();
}

// The table itself is as high as its rows, however many; what is around it keeps the buttons on the screen.
void ZrComfirmDialog::fitRows()
{
    ensurePolished(); // the style sheet sets margins
    const int tablePx = d->table->height();
    d->rows->setMinimumHeight(tablePx);
    const int wholePx = settledHeight();
    const int screenPx = ZrWindowPlace::screenInUse().height() - screenEdgePx;
    const int overPx = qMax(0, wholePx - screenPx);
    if (screenPx > 0 && overPx > 0)
        d->rows->setMinimumHeight(qMax(d->rowHeightPx, tablePx - overPx));
    const int neededPx = settledHeight();
    layout()->activate(); // lowers the least size that the window had from more rows
    resize(width(), qMax(firstSize.height(), neededPx));
    if (!isVisible())
        ZrWindowPlace::place(this, ZrWindowPlace::OverParent);
}

// The least height that all parts fit into, now: layouts and the frames that they stand in remember what was
// needed before, until the next turn of the event loop, or, in a hidden window, until it's shown.
int ZrComfirmDialog::settledHeight()
{
    const QList<QLayout *> layouts = findChildren<QLayout *>();
    for (QLayout *const each : layouts)
        each->invalidate();
    for (QWidget *part = d->rows; part != this; part = part->parentWidget())
        part->updateGeometry();
    return layout()->totalMinimumSize().height();
}

void ZrComfirmDialog::showRow(const QModelIndex &current)
{
    const QPoint centre = d->table->viewport()->mapTo(d->table, d->table->visualRect(current).center());
    d->rows->ensureVisible(centre.x(), centre.y(), 0, d->rowHeightPx);
}

int ZrComfirmDialog::margin() const
{
    return d->margin;
}

int ZrComfirmDialog::radius() const
{
    return d->radius;
}

int ZrComfirmDialog::titleheight() const
{
    return d->titleHeight;
}

// The setters take references that they don't write to: plugins are linked against them as they are.
void ZrComfirmDialog::setMarginPropety(int &marginPx)
{
    d->margin = marginPx;
    ZrDialogParts::setMargin(this, marginPx);
}

void ZrComfirmDialog::setRadiusPropety(int &radius)
{
    d->radius = radius;
    ZrDialogParts::setRadius(this, radius);
}

void ZrComfirmDialog::setTitleHeight(int &heightPx)
{
    d->titleHeight = heightPx;
    ZrDialogParts::setTitleHeight(this, heightPx);
}

void ZrComfirmDialog::showEvent(QShowEvent *event)
{
    QDialog::showEvent(event);
    // As part of another window a dialog is a picture of itself and leaves the focus where it is.
    if (!isWindow())
        return;
    for (const QPushButton *const button : {d->buttons.confirm, d->buttons.cancel}) {
        if (ZrDialogKeys::focusButton(this, button->objectName()))
            return;
    }
}

void ZrComfirmDialog::mousePressEvent(QMouseEvent *event)
{
    if (!d->drag.press(event, ZrWindowDrag::topStrip(*this, ZrDialogParts::TitleHeightPx)))
        QDialog::mousePressEvent(event);
}

void ZrComfirmDialog::mouseMoveEvent(QMouseEvent *event)
{
    if (!d->drag.move(event))
        QDialog::mouseMoveEvent(event);
}

void ZrComfirmDialog::mouseReleaseEvent(QMouseEvent *event)
{
    d->drag.release();
    QDialog::mouseReleaseEvent(event);
}

void ZrComfirmDialog::on_pushButton_OK_clicked()
{
    done(1);
}

void ZrComfirmDialog::on_pushButton_Cancel_clicked()
{
    done(0);
}
