#include "ZrHeaderView.h"
#include "ZrOrderSample.h"
#include "ZrShowcase.h"
#include "ZrShowcasePage.h"
#include "ZrShowcasePages.h"
#include "ZrTableView.h"

#include "zrdefine/VexlorFields.h"
#include "zrdefine/VexlorValues.h"

namespace {
// The head and one row to show that it is a head.
ZrTableView *shallow(ZrOrderSample::Parts parts = ZrOrderSample::Plain)
{
    ZrTableView *const view = ZrOrderSample::make(1, parts);
    view->setFixedHeight(parts.testFlag(ZrOrderSample::Bands) ? 80 : 52);
    return view;
}

ZrTableView *sorted(Qt::SortOrder order)
{
    ZrTableView *const view = shallow();
    view->setViewSortable(true);
    view->setSortIndicator(ZrOrderSample::Price, order);
    return view;
}

ZrTableView *atPointer()
{
    ZrTableView *const view = shallow(ZrOrderSample::FilterButtons);
    view->setViewFilterbuttonAlwayVisiable(false);
    return view;
}

// Its middle, where the pointer stands, lies on the button of a column.
ZrTableView *underPointer()
{
    ZrTableView *const view = atPointer();
    view->setFixedHeight(28);
    return view;
}

ZrTableView *withButtons()
{
    ZrTableView *const view = shallow(ZrOrderSample::FilterButtons);
    view->setViewFilterbuttonAlwayVisiable(true);
    return view;
}

ZrTableView *filtered()
{
    ZrTableView *const view = shallow(ZrOrderSample::FilterButtons);
    view->resetViewCurrentFilterList(
        {{ZrOrderSample::Side,
          {{{{Vexlor_Fields::Infomation::compareOperator, Vexlor_Values::CompareOperator::equal},
             {Vexlor_Fields::Infomation::logicOperator, Vexlor_Values::LogicOperator::andOperator},
             {Vexlor_Fields::System::filterValue, 2},
             {Vexlor_Fields::Infomation::fieldComment, QString()}}}}}});
    return view;
}

ZrTableView *withMark()
{
    ZrTableView *const view = shallow();
    view->setHeadTip(ZrOrderSample::Quantity, ZrShowcase::tr("In shares"));
    return view;
}

ZrTableView *checked(int checkedRows)
{
    ZrTableView *const view = ZrOrderSample::make(2, ZrOrderSample::CheckBoxes);
    view->setFixedHeight(76);
    for (int row = 0; row < checkedRows; ++row)
        view->setCheckStatusByRow(row, true);
    return view;
}

ZrTableView *disabled()
{
    ZrTableView *const view = withButtons();
    view->setEnabled(false);
    return view;
}

void addHeads(ZrShowcasePage *page)
{
    page->beginRow(ZrShowcase::tr("Titles"));
    page->addSample(ZrShowcase::tr("Normal"), shallow());
    page->addSample(ZrShowcase::tr("Disabled"), disabled());
    page->addSample(ZrShowcase::tr("Sorted upwards"), sorted(Qt::AscendingOrder));
    page->addSample(ZrShowcase::tr("Sorted downwards"), sorted(Qt::DescendingOrder));
    page->addSample(ZrShowcase::tr("Bands"), shallow(ZrOrderSample::Bands));
    page->addSample(ZrShowcase::tr("Help mark"), withMark());
    page->beginRow(ZrShowcase::tr("Filter buttons"));
    page->addSample(ZrShowcase::tr("Shown at the pointer"), atPointer());
    page->addPicture(
        ZrShowcase::tr("Hover"), [] { return underPointer(); }, ZrShowcasePage::State::Hover);
    page->addSample(ZrShowcase::tr("Always shown"), withButtons());
    page->addSample(ZrShowcase::tr("Filtered by side"), filtered());
    page->beginRow(ZrShowcase::tr("Check boxes"));
    page->addSample(ZrShowcase::tr("None checked"), checked(0));
    page->addSample(ZrShowcase::tr("Some checked"), checked(1));
    page->addSample(ZrShowcase::tr("All checked"), checked(2));
}
} // namespace

ZrShowcasePage *zrMakeHeaderViewPage(QWidget *parent)
{
    auto *const page = new ZrShowcasePage(
        QStringLiteral("header-view"), QStringLiteral("ZrHeaderView"),
        ZrShowcase::tr(
            "The head of a grid: sorting, filter buttons, bands over columns, a check box for all rows."),
        parent);
    addHeads(page);
    return page;
}
