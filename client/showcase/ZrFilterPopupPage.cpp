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
#include <QtWidgets/QVBoxLayout>

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

/// The panel of a column's popup as a part of the page, without the dialog around it. Its grid goes with it.
QWidget *popupOf(ZrTableView *view, int column)
{
    {
        const OffScreen quiet;
        pressFilterButton(view->getZrTableHorizontalHeader(), column);
    }
    auto *const dialog = view->findChild<QDialog *>();
    auto *const search = dialog ? dialog->findChild<QLineEdit *>() : nullptr;
    if (!search) {
        delete view;
        return nullptr;
    }
    dialog->hide();
    auto *const place = new QWidget;
    auto *const layout = new QVBoxLayout(place);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(search->parentWidget());
    place->setFocusProxy(search);
    place->setFixedSize(search->parentWidget()->size());
    view->setParent(place); // behind the panel, which goes before it
    view->hide();
    return place;
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

QWidget *searched()
{
    QWidget *const popup = popupOf(grid(), ZrOrderSample::Symbol);
    if (!popup)
        return nullptr;
    auto *const search = popup->findChild<QLineEdit *>();
    search->setText(QStringLiteral("688"));
    emit search->textEdited(search->text());
    return popup;
}

QWidget *withLongTexts()
{
    ZrTableView *const view = grid();
    RecordData row = view->getRowData(1);
    row[ZrOrderSample::Symbol].insert(ITEM_DISPLAYROLE, QStringLiteral("CONVERTIBLE-2031-SERIES-B.SH"));
    view->updataRecordData(row);
    return popupOf(view, ZrOrderSample::Symbol);
}

QWidget *disabled()
{
    QWidget *const popup = popupOf(ticked(), ZrOrderSample::Symbol);
    if (popup)
        popup->setEnabled(false);
    return popup;
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
