#include "ZrHeaderView.h"
#include "ZrOrderSample.h"
#include "ZrRoleKeys.h"
#include "ZrShowcase.h"
#include "ZrShowcasePage.h"
#include "ZrShowcasePages.h"
#include "ZrTableView.h"

#include "zrdefine/VexlorFields.h"
#include "zrdefine/VexlorValues.h"

#include <QtCore/QCoreApplication>
#include <QtGui/QMouseEvent>
#include <QtWidgets/QDialog>
#include <QtWidgets/QLineEdit>

namespace {
/// Keeps dialogs that open meanwhile off the screen.
class OffScreen : public QObject
{
public:
    OffScreen() { QCoreApplication::instance()->installEventFilter(this); }

protected:
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        auto *const dialog = event->type() == QEvent::Polish ? qobject_cast<QDialog *>(watched) : nullptr;
        if (dialog)
            dialog->setAttribute(Qt::WA_DontShowOnScreen);
        return QObject::eventFilter(watched, event);
    }
};

void send(QWidget *widget, QEvent::Type type, const QPoint &at)
{
    QMouseEvent event(type, at, widget->mapToGlobal(at), Qt::LeftButton,
                      type == QEvent::MouseButtonPress ? Qt::LeftButton : Qt::NoButton, Qt::NoModifier);
    QCoreApplication::sendEvent(widget, &event);
}

void pressFilterButton(ZrHeaderView *head, int section)
{
    constexpr int buttonMiddlePx = 8; // from the right end of a section
    head->viewport()->grab();         // a button can be pressed once it was painted
    const QPoint at(head->sectionViewportPosition(section) + head->sectionSize(section) - buttonMiddlePx,
                    head->height() / 2);
    send(head->viewport(), QEvent::MouseButtonPress, at);
    send(head->viewport(), QEvent::MouseButtonRelease, at);
}

ZrTableView *grid()
{
    ZrTableView *const view = ZrOrderSample::make(ZrOrderSample::MostRows, ZrOrderSample::FilterButtons);
    view->setViewFilterbuttonAlwayVisiable(true);
    return view;
}

/// The popup of a column as a part of the page. Its grid goes with it.
QDialog *popupOf(ZrTableView *view, int column)
{
    ZrHeaderView *const head = view->getZrTableHorizontalHeader();
    {
        const OffScreen quiet;
        pressFilterButton(head, column);
    }
    auto *const dialog = head->findChild<QDialog *>();
    if (!dialog) {
        delete view;
        return nullptr;
    }
    dialog->hide();
    dialog->setAttribute(Qt::WA_DontShowOnScreen, false);
    dialog->setParent(nullptr);
    view->setParent(dialog);
    view->hide();
    return dialog;
}

ZrTableView *ticked()
{
    ZrTableView *const view = grid();
    const QString symbol = QStringLiteral("600200.SH");
    const QVariantMap isSymbol = {
        {Vexlor_Fields::Infomation::compareOperator, Vexlor_Values::CompareOperator::equal},
        {Vexlor_Fields::Infomation::logicOperator, Vexlor_Values::LogicOperator::orOperator},
        {Vexlor_Fields::System::filterValue, symbol},
        {Vexlor_Fields::Infomation::fieldComment, symbol}};
    view->resetViewCurrentFilterList({{ZrOrderSample::Symbol, {{isSymbol}}}});
    return view;
}

QDialog *searched()
{
    QDialog *const dialog = popupOf(grid(), ZrOrderSample::Symbol);
    if (!dialog)
        return nullptr;
    auto *const search = dialog->findChild<QLineEdit *>();
    search->setText(QStringLiteral("688"));
    emit search->textEdited(search->text());
    return dialog;
}

QDialog *withLongTexts()
{
    ZrTableView *const view = grid();
    RecordData row = view->getRowData(1);
    row[ZrOrderSample::Symbol].insert(ITEM_DISPLAYROLE, QStringLiteral("CONVERTIBLE-2031-SERIES-B.SH"));
    view->updataRecordData(row);
    return popupOf(view, ZrOrderSample::Symbol);
}

QDialog *disabled()
{
    QDialog *const dialog = popupOf(ticked(), ZrOrderSample::Symbol);
    if (dialog)
        dialog->setEnabled(false);
    return dialog;
}

void addPopups(ZrShowcasePage *page)
{
    page->beginRow(ZrShowcase::tr("Choices"));
    page->addSample(ZrShowcase::tr("Texts"), popupOf(grid(), ZrOrderSample::Symbol));
    page->addSample(ZrShowcase::tr("Ranges of numbers"), popupOf(grid(), ZrOrderSample::Quantity));
    page->addSample(ZrShowcase::tr("Filtered"), popupOf(ticked(), ZrOrderSample::Symbol));
    page->addSample(ZrShowcase::tr("Searched"), searched());
    page->addSample(ZrShowcase::tr("Long text"), withLongTexts());
    page->beginRow(ZrShowcase::tr("States"));
    page->addPicture(
        ZrShowcase::tr("Focus"), [] { return popupOf(grid(), ZrOrderSample::Symbol); },
        ZrShowcasePage::State::Focus);
    page->addSample(ZrShowcase::tr("Disabled"), disabled());
    page->beginRow(ZrShowcase::tr("Try it"));
    page->addSample(ZrShowcase::tr("Opens at a filter button"), grid());
}
} // namespace

ZrShowcasePage *zrMakeFilterPopupPage(QWidget *parent)
{
    auto *const page = new ZrShowcasePage(
        QStringLiteral("filter-popup"), QStringLiteral("ZrViewFilterWidget"),
        ZrShowcase::tr("The list below a filter button: what the column holds, to be searched and ticked."),
        parent);
    addPopups(page);
    return page;
}
