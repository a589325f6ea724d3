#include "ZrMultiComboList.h"

#include "CheckBoxInMultiBox.h"
#include "ZrMultiComboItem.h"

#include <QtGui/QKeyEvent>
#include <QtGui/QMouseEvent>
#include <QtWidgets/QApplication>
#include <QtWidgets/QStyledItemDelegate>

namespace {
bool isMouseButton(const QEvent *event)
{
    return event->type() == QEvent::MouseButtonPress || event->type() == QEvent::MouseButtonRelease ||
           event->type() == QEvent::MouseButtonDblClick;
}
} // namespace

ZrMultiComboList::ZrMultiComboList(QWidget *parent)
    : QListWidget(parent)
{
    // Rows are alike; measuring each of thousands is most of what opening would cost.
    setUniformItemSizes(true);
    setAccessibleName(tr("Choices"));
    listenToRows();
}

void ZrMultiComboList::listenToRows()
{
    const auto forget = [this] { m_areTextsKnown = false; };
    const QAbstractItemModel *const rows = model();
    connect(rows, &QAbstractItemModel::rowsInserted, this, forget);
    connect(rows, &QAbstractItemModel::rowsRemoved, this, forget);
    connect(rows, &QAbstractItemModel::rowsMoved, this, forget);
    connect(rows, &QAbstractItemModel::dataChanged, this, forget);
    connect(rows, &QAbstractItemModel::layoutChanged, this, forget);
    connect(rows, &QAbstractItemModel::modelReset, this, forget);
}

void ZrMultiComboList::takeOwnLook()
{
    QAbstractItemDelegate *const menus = itemDelegate();
    setItemDelegate(new QStyledItemDelegate(this));
    menus->deleteLater();
    setVerticalScrollBarPolicy(Qt::ScrollBarAsNeeded);
}

QVector<CheckBoxInMultiBox *> ZrMultiComboList::addRows(const QVector<Row> &rows)
{
    // All items first: each box costs the model a persistent index, and each later insertion would look at
    // every one of them.
    QVector<ZrMultiComboItem *> items;
    items.reserve(rows.size());
    for (const Row &row : rows) {
        items.append(new ZrMultiComboItem(row.first, row.second));
        addItem(items.constLast());
    }
    QVector<CheckBoxInMultiBox *> boxes;
    boxes.reserve(rows.size());
    for (int i = 0; i < rows.size(); ++i) {
        auto *const box = new CheckBoxInMultiBox(rows.at(i).first, viewport());
        box->setToolTip(rows.at(i).first);
        // The list keeps the focus, so that the arrow keys always move the current row.
        box->setFocusPolicy(Qt::NoFocus);
        // Moves go on to the viewport: the row under the pointer becomes the current one.
        box->setMouseTracking(true);
        items.at(i)->setBox(box);
        setItemWidget(items.at(i), box);
        // Until its row comes into sight.
        box->hide();
        boxes.append(box);
    }
    m_areTextsKnown = false; // a slot of the model may have asked before the rows had their boxes
    return boxes;
}

CheckBoxInMultiBox *ZrMultiComboList::boxAt(int row) const
{
    const ZrMultiComboItem *const found = ZrMultiComboItem::of(item(row));
    return found ? found->box() : nullptr;
}

int ZrMultiComboList::rowOf(const QObject *box) const
{
    ZrMultiComboItem *const found = ZrMultiComboItem::ofBox(box);
    return found ? row(found) : -1;
}

QList<int> ZrMultiComboList::tickedRows() const
{
    QList<int> rows;
    const int rowCount = count();
    for (int row = 0; row < rowCount; ++row) {
        const ZrMultiComboItem *const found = ZrMultiComboItem::of(item(row));
        if (found && found->isTicked())
            rows.append(row);
    }
    return rows;
}

QStringList ZrMultiComboList::tickedTexts() const
{
    QStringList texts;
    const int rowCount = count();
    for (int row = 0; row < rowCount; ++row) {
        const ZrMultiComboItem *const found = ZrMultiComboItem::of(item(row));
        if (found && found->isTicked())
            texts.append(found->text());
    }
    return texts;
}

ZrTickedTexts::Joined ZrMultiComboList::joinedTicks(QChar separator) const
{
    if (!m_areTextsKnown) {
        m_texts.clear();
        for (int row = 0; row < count(); ++row) {
            const ZrMultiComboItem *const found = ZrMultiComboItem::of(item(row));
            m_texts.append(found ? found->text() : QString(), found ? found->box() : nullptr);
        }
        m_areTextsKnown = true;
    }
    return m_texts.joined(separator);
}

QString ZrMultiComboList::textAt(int row) const
{
    const QListWidgetItem *const found = item(row);
    return found ? found->data(ZrMultiComboItem::TextRole).toString() : QString();
}

void ZrMultiComboList::clickCurrent()
{
    const QPointer<CheckBoxInMultiBox> box = boxAt(currentRow());
    if (!box || !box->isEnabled())
        return;
    // As its own key, like a user's: a slot may end box and list, which the base's click() doesn't outlive.
    for (const QEvent::Type type : {QEvent::KeyPress, QEvent::KeyRelease}) {
        QKeyEvent key(type, Qt::Key_Space, Qt::NoModifier, QStringLiteral(" "));
        if (box)
            QCoreApplication::sendEvent(box, &key);
    }
}

void ZrMultiComboList::keyboardSearch(const QString &search)
{
    const bool goesOn =
        m_sinceTyped.isValid() && m_sinceTyped.elapsed() <= QApplication::keyboardInputInterval();
    m_sinceTyped.start();
    m_searched = goesOn ? m_searched + search : search;
    // A longer beginning may still be that of the current row; a new one asks for the next row.
    const int row = rowThatBegins(m_searched, goesOn ? currentRow() : currentRow() + 1);
    if (row >= 0)
        setCurrentRow(row);
}

int ZrMultiComboList::rowThatBegins(const QString &text, int from) const
{
    const int rowCount = count();
    for (int i = 0; i < rowCount; ++i) {
        const int row = (qMax(0, from) + i) % rowCount;
        if (textAt(row).startsWith(text, Qt::CaseInsensitive))
            return row;
    }
    return -1;
}

bool ZrMultiComboList::eventFilter(QObject *watched, QEvent *event)
{
    // A check box lets other buttons than the left one pass; the popup would take them for a choice and
    // close.
    if (isMouseButton(event) && static_cast<QMouseEvent *>(event)->button() != Qt::LeftButton &&
        qobject_cast<CheckBoxInMultiBox *>(watched))
        return true;
    return QListWidget::eventFilter(watched, event);
}

void ZrMultiComboList::scrollContentsBy(int, int)
{
    // Not the base's, which moves every item widget, thousands of them for the dozen in sight.
    viewport()->update();
    updateEditorGeometries();
}

void ZrMultiComboList::showEvent(QShowEvent *event)
{
    QListWidget::showEvent(event);
    updateEditorGeometries();
}

void ZrMultiComboList::updateEditorGeometries()
{
    QVector<QPointer<QWidget>> nowInSight;
    const int rowCount = count();
    for (int row = firstRowInSight(); row >= 0 && row < rowCount; ++row) {
        const QModelIndex index = model()->index(row, 0);
        const QRect rect = visualRect(index);
        if (rect.top() >= viewport()->height())
            break;
        QWidget *const widget = indexWidget(index);
        if (!widget || rect.isEmpty())
            continue;
        widget->setGeometry(rect);
        widget->show();
        nowInSight.append(widget);
    }
    m_inSight.swap(nowInSight);
    for (const QPointer<QWidget> &before : qAsConst(nowInSight)) {
        if (before && !m_inSight.contains(before))
            before->hide();
    }
}

int ZrMultiComboList::firstRowInSight() const
{
    const QPoint middle = viewport()->rect().center();
    // More than one step only between rows that a style sets apart.
    for (int y = 0; y < viewport()->height(); ++y) {
        const QModelIndex index = indexAt(QPoint(middle.x(), y));
        if (index.isValid())
            return index.row();
    }
    return -1;
}
