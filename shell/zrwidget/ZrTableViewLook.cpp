// The side of ZrTableView that skins and style sheets see: colours, pictures, grid lines, margins.
#include "FreezeTableView.h"
#include "ZrHeaderView.h"
#include "ZrItemModelDeletage.h"
#include "ZrTableView.h"
#include "ZrTableView_p.h"

// --- Look ---

void ZrTableView::setGridLineStyle(int style)
{
    d->delegate->setGridLineStyle(style);
    if (d->summaryDelegate)
        d->summaryDelegate->setGridLineStyle(style);
    d->table->updateParts();
}

int ZrTableView::gridLineStyle() const
{
    return d->delegate->gridLineStyle();
}

void ZrTableView::setItemGridShow(bool shown)
{
    d->delegate->setItemGridShow(shown);
    d->table->updateParts();
}

void ZrTableView::setItemGridColor(const QColor &color)
{
    d->setGridLineColor(color);
}

void ZrTableView::setColumnDefaultXMargin(int marginPx)
{
    d->delegate->setColumnDefaultXMargin(marginPx);
    if (d->summaryDelegate)
        d->summaryDelegate->setColumnDefaultXMargin(marginPx);
    d->table->updateParts();
}

void ZrTableView::setHeadDefaultXMargin(int marginPx)
{
    d->header->setHeadDefaultXMargin(marginPx);
    d->table->updateHeads();
}

void ZrTableView::SetAlternatingRowColors(bool enable)
{
    d->table->setAlternatingRowColors(enable);
}

void ZrTableView::setHeadTip(int column, const QString &tip)
{
    d->header->setHeadTip(column, tip);
    d->table->updateHeads();
}

void ZrTableView::setHorizontalHeaderHide(bool hide)
{
    d->table->setHeadHidden(hide);
}

void ZrTableView::setZrTableHorizontalHeaderVisiable(bool visible)
{
    d->table->setHeadHidden(!visible);
}

// --- Properties of the style sheet ---

QUrl ZrTableView::checkPath() const
{
    return d->checkPath;
}

void ZrTableView::setcheckPath(const QUrl &path)
{
    d->checkPath = path;
    d->refreshPictures();
}

QUrl ZrTableView::uncheckPath() const
{
    return d->uncheckPath;
}

void ZrTableView::setUncheckPath(const QUrl &path)
{
    d->uncheckPath = path;
    d->refreshPictures();
}

QUrl ZrTableView::tristatePath() const
{
    return d->tristatePath;
}

void ZrTableView::setTristatePath(const QUrl &path)
{
    d->tristatePath = path;
    d->refreshPictures();
}

QUrl ZrTableView::filterPath() const
{
    return d->filterPath;
}

void ZrTableView::setFilterPath(const QUrl &path)
{
    d->filterPath = path;
    d->refreshPictures();
}

QUrl ZrTableView::filteredPath() const
{
    return d->filteredPath;
}

void ZrTableView::setFilteredPath(const QUrl &path)
{
    d->filteredPath = path;
    d->refreshPictures();
}

QUrl ZrTableView::filterHoverPath() const
{
    return d->filterHoverPath;
}

void ZrTableView::setFilterHoverPath(const QUrl &path)
{
    d->filterHoverPath = path;
    d->refreshPictures();
}

QColor ZrTableView::headLineColor() const
{
    return d->headLineColor;
}

void ZrTableView::setHeadLineColor(const QColor &color)
{
    d->setHeadLineColor(color);
}

QColor ZrTableView::gridLineColor() const
{
    return d->gridLineColor;
}

void ZrTableView::setGridLineColor(const QColor &color)
{
    d->setGridLineColor(color);
}

QColor ZrTableView::upColor() const
{
    return d->upColor;
}

void ZrTableView::setUpColor(const QColor &color)
{
    d->upColor = color;
}

QColor ZrTableView::downColor() const
{
    return d->downColor;
}

void ZrTableView::setDownColor(const QColor &color)
{
    d->downColor = color;
}

QColor ZrTableView::checkedColor() const
{
    return d->checkedColor;
}

void ZrTableView::setCheckedColor(const QColor &color)
{
    d->checkedColor = color;
    SetCheckedRowHighlight(d->checkedRowHighlight);
}
