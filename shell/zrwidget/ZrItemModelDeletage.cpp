#include "ZrItemModelDeletage.h"

#include "ZrCellText.h"
#include "ZrItemModelDeletage_p.h"
#include "ZrItemStyle.h"
#include "ZrPlainCell.h"
#include "ZrPlainText.h"
#include "ZrRoleKeys.h"
#include "ZrSkinPixmap.h"
#include "ZrTableModel.h"
#include "ZrTristateRows.h"

#include <QtGui/QPainter>
#include <QtWidgets/QApplication>

namespace {

constexpr int checkBoxPx = 16;
// A tree leaves this much more room before its check box than after it.
constexpr int treeCheckShiftPx = 5;
constexpr int horizontalLines = 1;
constexpr int verticalLines = 2;

} // namespace

ZrItemModelDeletage::ZrItemModelDeletage(QObject *parent)
    : QStyledItemDelegate(parent)
    , d(new ZrItemModelDeletagePrivate(this))
{
}

ZrItemModelDeletage::~ZrItemModelDeletage() = default;

ZrItemModelDeletagePrivate *ZrItemModelDeletage::getDelegatePrivate() const
{
    return d;
}

void ZrItemModelDeletage::paint(QPainter *painter, const QStyleOptionViewItem &option,
                                const QModelIndex &index) const
{
    QStyleOptionViewItem item = option;
    initStyleOption(&item, index);
    item.text = ZrPlainText::visiblePart(item.text, item.rect.size());
    // No focus frame: in a grid of prices it would look like a mark of the cell.
    item.state &= ~QStyle::State_HasFocus;
    drawItem(painter, &item);
    // The highlight belongs to the check box: without one no row is checked, whatever its state holds.
    if (d->checkBoxShown) {
        if (index.column() == 0)
            drawCheckBox(painter, option.rect, index);
        drawCheckedRow(painter, option.rect, index);
    }
    if (d->itemGridShown)
        drawGrid(painter, option.rect);
}

void ZrItemModelDeletage::initStyleOption(QStyleOptionViewItem *option, const QModelIndex &index) const
{
    ZrPlainCell cell;
    if (!cell.read(index)) {
        QStyledItemDelegate::initStyleOption(option, index);
        return;
    }
    option->index = index;
    if (!cell.alignment().isNull())
        option->displayAlignment = Qt::Alignment(cell.alignment().toInt());
    if (!cell.display().isNull()) {
        option->features |= QStyleOptionViewItem::HasDisplay;
        option->text = displayText(cell.display(), option->locale);
    }
    option->backgroundBrush = QBrush();
    option->styleObject = nullptr; // as the base does: no animations of a style within a grid
}

void ZrItemModelDeletage::drawItem(QPainter *painter, QStyleOptionViewItem *option) const
{
    QStyle *const style = option->widget ? option->widget->style() : QApplication::style();
    if (d->columnXMargin != 0) {
        drawItemWithMargin(painter, option, style);
        return;
    }
    QStyle *const toolkit = option->widget ? d->itemStyle->toolkitStyle(option->widget) : nullptr;
    if (!toolkit || !d->cellText->draw(painter, *option, toolkit))
        style->drawControl(QStyle::CE_ItemViewItem, option, painter, option->widget);
}

void ZrItemModelDeletage::drawItemWithMargin(QPainter *painter, QStyleOptionViewItem *option,
                                             QStyle *style) const
{
    const QString text = option->text;
    option->text.clear();
    // The style paints background and selection over the whole cell, so that they are the same under any
    // margin.
    style->drawControl(QStyle::CE_ItemViewItem, option, painter, option->widget);
    const QRect rect = getItemRectWithMargin(option->rect);
    const QFontMetrics metrics = option->widget ? option->widget->fontMetrics() : option->fontMetrics;
    const QPen oldPen = painter->pen();
    painter->setPen(option->palette.color(QPalette::Text));
    // Any state at all counts as enabled, not State_Enabled alone: required, a disabled cell keeps its
    // colour.
    const bool enabled = option->state != QStyle::State_None;
    style->drawItemText(painter, rect, int(option->displayAlignment), option->palette, enabled,
                        metrics.elidedText(text, Qt::ElideRight, rect.width()), QPalette::NoRole);
    painter->setPen(oldPen);
}

void ZrItemModelDeletage::drawCheckBox(QPainter *painter, const QRect &rect, const QModelIndex &index) const
{
    QRect box(rect.left() + (rect.width() - checkBoxPx) / 2, rect.top() + (rect.height() - checkBoxPx) / 2,
              checkBoxPx, checkBoxPx);
    const QAbstractItemModel *const model = index.model();
    if (qobject_cast<const ZrTableModel *>(model)) {
        // A row may ask for no box. A disabled one has its box: the click is refused, not the picture.
        if (!index.data(ZrSecondRawRole).toBool())
            ZrSkinPixmap::draw(painter, box, index.data(ZrRawRole).toBool() ? d->checkPath : d->uncheckPath);
        return;
    }
    if (!qobject_cast<ZrTristateRows *>(model) || !index.internalPointer() ||
        index.data(ZrSecondRawRole).toBool())
        return;
    box.translate(treeCheckShiftPx, 0);
    const int state = index.data(ZrRawRole).toInt();
    if (state == Qt::Unchecked)
        ZrSkinPixmap::draw(painter, box, d->uncheckPath);
    else if (state == Qt::PartiallyChecked)
        ZrSkinPixmap::draw(painter, box, d->tristatePath);
    else if (state == Qt::Checked)
        ZrSkinPixmap::draw(painter, box, d->checkPath);
}

void ZrItemModelDeletage::drawCheckedRow(QPainter *painter, const QRect &rect, const QModelIndex &index) const
{
    if (!d->checkedRowHighlight || !d->checkedColor.isValid())
        return;
    if (index.sibling(index.row(), 0).data(ZrRawRole).toBool())
        painter->fillRect(rect, d->checkedColor);
}

void ZrItemModelDeletage::drawGrid(QPainter *painter, const QRect &rect) const
{
    // Filled, not drawn: lines of one pixel that cost the painter no pen, no state and no clipping of a path.
    // A summary table lies under the grid that it sums: its line parts it from that grid.
    if (d->gridLineStyle & horizontalLines) {
        const int y = d->summaryMode ? rect.top() : rect.bottom();
        painter->fillRect(rect.left(), y, rect.width(), 1, d->gridColor);
    }
    if (d->gridLineStyle & verticalLines)
        painter->fillRect(rect.left(), rect.top(), 1, rect.height(), d->gridColor);
}

QWidget *ZrItemModelDeletage::createEditor(QWidget *, const QStyleOptionViewItem &, const QModelIndex &) const
{
    qDebug("ZrItemModelDeletage::createEditor");
    return nullptr;
}

void ZrItemModelDeletage::setEditorData(QWidget *, const QModelIndex &) const {}

void ZrItemModelDeletage::setModelData(QWidget *, QAbstractItemModel *, const QModelIndex &) const {}

void ZrItemModelDeletage::updateEditorGeometry(QWidget *editor, const QStyleOptionViewItem &option,
                                               const QModelIndex &) const
{
    if (!editor)
        return;
    // Bounded by the editor's own limits, hence the second step.
    editor->setGeometry(option.rect);
    QRect place(QPoint(), editor->size());
    place.moveCenter(option.rect.center());
    editor->move(place.topLeft());
}

void ZrItemModelDeletage::drawMetricsText(QPainter *painter, const QRect &rect, int flags,
                                          const QString &text) const
{
    const QFontMetrics metrics(painter->font());
    painter->drawText(rect, flags,
                      metrics.elidedText(text, Qt::ElideRight, rect.width(), Qt::TextShowMnemonic));
}

QRect ZrItemModelDeletage::getItemRectWithMargin(const QRect &rect) const
{
    return rect.adjusted(d->columnXMargin, 0, -d->columnXMargin, 0);
}

void ZrItemModelDeletage::setCheckBoxShow(bool show)
{
    d->checkBoxShown = show;
}

void ZrItemModelDeletage::setColumnDefaultXMargin(int marginPx)
{
    d->columnXMargin = marginPx;
}

void ZrItemModelDeletage::setGridLineStyle(int style)
{
    d->gridLineStyle = style;
}

int ZrItemModelDeletage::gridLineStyle() const
{
    return d->gridLineStyle;
}

void ZrItemModelDeletage::setItemGridColor(const QColor &color)
{
    d->gridColor = color;
}

void ZrItemModelDeletage::setItemGridShow(bool show)
{
    d->itemGridShown = show;
}

void ZrItemModelDeletage::setcheckPath(const QUrl &path)
{
    d->checkPath = path;
}

void ZrItemModelDeletage::setUncheckPath(const QUrl &path)
{
    d->uncheckPath = path;
}

void ZrItemModelDeletage::setTristatePath(const QUrl &path)
{
    d->tristatePath = path;
}

void ZrItemModelDeletage::SetCheckedRowHighlight(bool highlight, const QColor &color)
{
    d->checkedRowHighlight = highlight;
    d->checkedColor = color;
}

void ZrItemModelDeletage::slotIndex(int) {}
