#include "ZrHeaderView.h"
#include "ZrOrderSample.h"
#include "ZrShowcasePage.h"
#include "ZrShowcasePages.h"
#include "ZrTableView.h"

#include "zrdefine/VexlorFields.h"
#include "zrdefine/VexlorValues.h"

#include <QtCore/QCoreApplication>

namespace {
QString text(const char *source)
{
    return QCoreApplication::translate("ZrShowcase", source);
}

// The head and one row to show that it is a head.
ZrTableView *shallow(ZrOrderSample::Parts parts = ZrOrderSample::Plain)
{
    ZrTableView *const view = ZrOrderSample::make(1, parts);
    view->setFixedHeight(parts.testFlag(ZrOrderSample::Bands) ? 76 : 50);
    return view;
}

ZrTableView *sorted(Qt::SortOrder order)
{
    ZrTableView *const view = shallow();
    view->setViewSortable(true);
    view->setSortIndicator(ZrOrderSample::Price, order);
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
    view->setHeadTip(ZrOrderSample::Price, text("The limit price, in the currency of the venue"));
    return view;
}

ZrTableView *checked(int checkedRows)
{
    ZrTableView *const view = ZrOrderSample::make(2, ZrOrderSample::CheckBoxes);
    view->setFixedHeight(72);
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
    page->beginRow(text("Titles"));
    page->addSample(text("Normal"), shallow());
    page->addSample(text("Disabled"), disabled());
    page->addSample(text("Sorted upwards"), sorted(Qt::AscendingOrder));
    page->addSample(text("Sorted downwards"), sorted(Qt::DescendingOrder));
    page->addSample(text("Bands"), shallow(ZrOrderSample::Bands));
    page->addSample(text("Help mark"), withMark());
    page->beginRow(text("Filter buttons"));
    page->addSample(text("Shown at the pointer"), shallow(ZrOrderSample::FilterButtons));
    page->addPicture(
        text("Hover"),
        []() -> QWidget * {
            ZrTableView *const view = shallow(ZrOrderSample::FilterButtons);
            view->setFixedHeight(view->getZrTableHorizontalHeader()->sizeHint().height());
            return view;
        },
        ZrShowcasePage::State::Hover);
    page->addSample(text("Always shown"), withButtons());
    page->addSample(text("Filtered by side"), filtered());
    page->beginRow(text("Check boxes"));
    page->addSample(text("None checked"), checked(0));
    page->addSample(text("Some checked"), checked(1));
    page->addSample(text("All checked"), checked(2));
}
} // namespace

ZrShowcasePage *zrMakeHeaderViewPage(QWidget *parent)
{
    auto *const page = new ZrShowcasePage(
        QStringLiteral("header-view"), QStringLiteral("ZrHeaderView"),
        text("The head of a grid: sorting, filter buttons, bands over columns, a check box for all rows."),
        parent);
    addHeads(page);
    return page;
}
