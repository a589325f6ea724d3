#include "ZrOrderSample.h"
#include "ZrRoleKeys.h"
#include "ZrShowcase.h"
#include "ZrShowcasePage.h"
#include "ZrShowcasePages.h"
#include "ZrTableView.h"

namespace {
ZrTableView *withSelection()
{
    ZrTableView *const view = ZrOrderSample::make(ZrOrderSample::MostRows);
    view->setCurrentIndex(view->index(2, 0));
    return view;
}

ZrTableView *disabled()
{
    ZrTableView *const view = ZrOrderSample::make(ZrOrderSample::MostRows);
    view->setEnabled(false);
    return view;
}

ZrTableView *withChecks()
{
    ZrTableView *const view = ZrOrderSample::make(ZrOrderSample::MostRows, ZrOrderSample::CheckBoxes);
    view->SetCheckedRowHighlight(true);
    view->setCheckStatusByRow(1, true);
    view->setCheckStatusByRow(3, true);
    view->setCheckBoxEnabledByRow(4, false);
    return view;
}

ZrTableView *withAllChecked()
{
    ZrTableView *const view = ZrOrderSample::make(ZrOrderSample::MostRows, ZrOrderSample::CheckBoxes);
    view->setAllCheckBoxChecked(true);
    return view;
}

// Wider than its place, so that the frozen columns stand over others.
ZrTableView *withFrozen()
{
    ZrTableView *const view = ZrOrderSample::make(5);
    view->setStretchLastSection(false);
    for (int column = ZrOrderSample::Symbol; column <= ZrOrderSample::Quantity; ++column)
        view->setColumnWidth(column, 96);
    view->setFrozenColumns(1, true, 1);
    view->setFrozenColumns(2, true, 1);
    return view;
}

ZrTableView *withSummary()
{
    ZrTableView *const view = ZrOrderSample::make(4, ZrOrderSample::SerialNumbers);
    view->setSummaryLineEnable(
        true, {ZrOrderSample::Symbol, ZrOrderSample::Name, ZrOrderSample::Side, ZrOrderSample::Price});
    return view;
}

ZrTableView *withLongTexts()
{
    ZrTableView *const view = ZrOrderSample::make(4);
    RecordData row = view->getRowData(1);
    row[ZrOrderSample::Symbol].insert(ITEM_DISPLAYROLE, QStringLiteral("CONVERTIBLE-2031-SERIES-B.SH"));
    row[ZrOrderSample::Name].insert(ITEM_DISPLAYROLE,
                                    QStringLiteral("沅芮软件科技股份有限公司可转换公司债券"));
    row[ZrOrderSample::Price].insert(ITEM_DISPLAYROLE, QStringLiteral("123,456,789,012.345"));
    view->updataRecordData(row);
    return view;
}

void addGrids(ZrShowcasePage *page)
{
    page->beginRow(ZrShowcase::tr("Rows"));
    page->addSample(ZrShowcase::tr("Normal"), ZrOrderSample::make(ZrOrderSample::MostRows));
    page->addSample(ZrShowcase::tr("Current row"), withSelection());
    page->addPicture(
        ZrShowcase::tr("Focus"), [] { return withSelection(); }, ZrShowcasePage::State::Focus);
    page->addSample(ZrShowcase::tr("Disabled"), disabled());
    page->addSample(ZrShowcase::tr("Empty"), ZrOrderSample::make(0));
    page->addSample(ZrShowcase::tr("Long text"), withLongTexts());
    page->beginRow(ZrShowcase::tr("Check boxes"));
    page->addSample(ZrShowcase::tr("Some checked, one disabled"), withChecks());
    page->addSample(ZrShowcase::tr("All checked"), withAllChecked());
    page->beginRow(ZrShowcase::tr("Columns"));
    page->addSample(ZrShowcase::tr("Bands"), ZrOrderSample::make(4, ZrOrderSample::Bands));
    page->addSample(ZrShowcase::tr("Frozen left and right"), withFrozen());
    page->addSample(ZrShowcase::tr("Numbers and summary"), withSummary());
}
} // namespace

ZrShowcasePage *zrMakeTableViewPage(QWidget *parent)
{
    auto *const page = new ZrShowcasePage(
        QStringLiteral("table-view"), QStringLiteral("ZrTableView"),
        ZrShowcase::tr(
            "A live grid of keyed records, with check boxes, frozen columns, bands and a summary."),
        parent);
    addGrids(page);
    return page;
}
