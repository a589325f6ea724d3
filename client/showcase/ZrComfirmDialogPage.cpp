#include "ZrComfirmDialog.h"
#include "ZrDialogSample.h"
#include "ZrPushButton.h"
#include "ZrShowcase.h"
#include "ZrShowcasePage.h"
#include "ZrShowcasePages.h"

#include <QtWidgets/QTableView>

namespace {
using Rows = QList<QList<QVariant>>;

constexpr int Both = 3;
constexpr int AnyMode = 0;

Rows order()
{
    return {{ZrShowcase::tr("Symbol"), QStringLiteral("600600.SH")},
            {ZrShowcase::tr("Side"), ZrShowcase::tr("Buy")},
            {ZrShowcase::tr("Price"), 57.15},
            {ZrShowcase::tr("Quantity"), 5300}};
}

QDialog *make(const QString &title, const Rows &rows)
{
    auto *const dialog = new ZrComfirmDialog(title, Both, nullptr, AnyMode);
    dialog->setComfirmData(rows);
    return dialog;
}

QDialog *ask()
{
    return make(ZrShowcase::tr("Send order"), order());
}

QDialog *withCurrentRow()
{
    QDialog *const dialog = ask();
    dialog->findChild<QTableView *>()->selectRow(2);
    return dialog;
}

QDialog *withoutRows()
{
    return make(ZrShowcase::tr("Send order"), {});
}

QDialog *withHead()
{
    auto *const dialog = new ZrComfirmDialog(ZrShowcase::tr("Send order"), Both, nullptr, AnyMode);
    dialog->resize(dialog->width(), dialog->minimumSizeHint().height());
    return dialog;
}

QDialog *withLongTexts()
{
    const QString name = QStringLiteral("沅芮软件科技股份有限公司可转换公司债券");
    return make(
        ZrShowcase::tr("Send the order of a very long name to the exchange of the day before yesterday"),
        {{ZrShowcase::tr("Name"), name + name},
         {ZrShowcase::tr("Amount"), 123456789012.345},
         {ZrShowcase::tr("A name that is longer than its half of the table"), QStringLiteral("1")}});
}

QDialog *inChinese()
{
    return make(QStringLiteral("委托确认"), {{QStringLiteral("证券代码"), QStringLiteral("600600.SH")},
                                             {QStringLiteral("买卖方向"), QStringLiteral("买入")},
                                             {QStringLiteral("委托价格"), 57.15}});
}

QDialog *inEnglish()
{
    return make(QStringLiteral("Confirm order"), {{QStringLiteral("Symbol"), QStringLiteral("600600.SH")},
                                                  {QStringLiteral("Side"), QStringLiteral("Buy")},
                                                  {QStringLiteral("Price"), 57.15}});
}

void openDialog(QWidget *over)
{
    auto *const dialog = new ZrComfirmDialog(ZrShowcase::tr("Send order"), Both, over->window(), AnyMode);
    dialog->setComfirmData(order());
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->show();
}

QWidget *live()
{
    auto *const button = new ZrPushButton(ZrShowcase::tr("Send order"));
    QObject::connect(button, &ZrPushButton::clicked, button, [button] { openDialog(button); });
    return ZrDialogSample::row({button});
}

void addStates(ZrShowcasePage *page)
{
    const QString confirm = QStringLiteral("pushButton");
    page->beginRow(ZrShowcase::tr("States"));
    page->addSample(ZrShowcase::tr("Normal"), ZrDialogSample::embed(ask()));
    page->addPicture(
        ZrShowcase::tr("Focus"),
        [] { return ZrDialogSample::focusPast(ask(), QStringLiteral("user_dataView")); },
        ZrShowcasePage::State::Focus);
    page->addSample(ZrShowcase::tr("Hover"), ZrDialogSample::hovered(ask(), confirm));
    page->addSample(ZrShowcase::tr("Pressed"), ZrDialogSample::pressed(ask(), confirm));
    page->addSample(ZrShowcase::tr("Disabled"), ZrDialogSample::disabled(ask()));
    page->addSample(ZrShowcase::tr("Current row"), ZrDialogSample::embed(withCurrentRow()));
    page->addPicture(
        ZrShowcase::tr("Focus in the rows"), [] { return ZrDialogSample::embed(ask()); },
        ZrShowcasePage::State::Focus);
}

void addTexts(ZrShowcasePage *page)
{
    page->beginRow(ZrShowcase::tr("Texts"));
    page->addSample(ZrShowcase::tr("Chinese"), ZrDialogSample::embed(inChinese()));
    page->addSample(ZrShowcase::tr("English"), ZrDialogSample::embed(inEnglish()));
    page->addSample(ZrShowcase::tr("Long text"), ZrDialogSample::embed(withLongTexts()));
    page->addSample(ZrShowcase::tr("Empty"), ZrDialogSample::embed(withoutRows()));
    page->addSample(ZrShowcase::tr("Before the first rows"), ZrDialogSample::embed(withHead()));
}
} // namespace

ZrShowcasePage *zrMakeComfirmDialogPage(QWidget *parent)
{
    auto *const page = new ZrShowcasePage(
        QStringLiteral("comfirm-dialog"), QStringLiteral("ZrComfirmDialog"),
        ZrShowcase::tr("Asks the user to confirm a table of values before they go out."), parent);
    addStates(page);
    addTexts(page);
    page->beginRow(ZrShowcase::tr("Try it"));
    page->addSample(ZrShowcase::tr("Opens over the main window"), live());
    return page;
}
