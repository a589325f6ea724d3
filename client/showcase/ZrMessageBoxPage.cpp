#include "ZrDialogSample.h"
#include "ZrMessageBox.h"
#include "ZrPushButton.h"
#include "ZrShowcase.h"
#include "ZrShowcasePage.h"
#include "ZrShowcasePages.h"

namespace {
constexpr int Confirm = 1;
constexpr int Both = 3;
constexpr int LeaveWhereItIs = 0;
constexpr int OverMainWindow = 2;

QString confirmButton()
{
    return QStringLiteral("pushButton_ok");
}

ZrMessageBox *ask()
{
    return new ZrMessageBox(ZrShowcase::tr("Cancel order"),
                            ZrShowcase::tr("Cancel the order of 1,000 at 10.25?"), Both, nullptr,
                            LeaveWhereItIs);
}

ZrMessageBox *tell(const QString &title, const QString &message)
{
    return new ZrMessageBox(title, message, Confirm, nullptr, LeaveWhereItIs);
}

ZrMessageBox *withHelp()
{
    ZrMessageBox *const box = ask();
    box->setHelpBtnShow(true);
    return box;
}

ZrMessageBox *withOtherButtons()
{
    ZrMessageBox *const box = ask();
    box->setConfirmText(ZrShowcase::tr("Cancel it"));
    box->setCancelText(ZrShowcase::tr("Keep it"));
    return box;
}

QString longReason()
{
    return ZrShowcase::tr("The exchange refused the order because its price lies outside the limits of the "
                          "day, and the account has no more quantity to sell. ")
        .repeated(8)
        .trimmed();
}

void openBox(QWidget *over)
{
    auto *const box =
        new ZrMessageBox(ZrShowcase::tr("Cancel order"),
                         ZrShowcase::tr("Cancel the order of 1,000 at 10.25?"), Both, over, OverMainWindow);
    box->setAttribute(Qt::WA_DeleteOnClose);
    box->show();
}

QWidget *live()
{
    auto *const button = new ZrPushButton(ZrShowcase::tr("Ask"));
    QObject::connect(button, &ZrPushButton::clicked, button, [button] { openBox(button); });
    return ZrDialogSample::row({button});
}

void addStates(ZrShowcasePage *page)
{
    page->beginRow(ZrShowcase::tr("States"));
    page->addSample(ZrShowcase::tr("Normal"), ZrDialogSample::embed(ask()));
    page->addPicture(
        ZrShowcase::tr("Focus"),
        [] { return ZrDialogSample::focusPast(ask(), QStringLiteral("textEdit_message")); },
        ZrShowcasePage::State::Focus);
    page->addSample(ZrShowcase::tr("Hover"), ZrDialogSample::hovered(ask(), confirmButton()));
    page->addSample(ZrShowcase::tr("Pressed"), ZrDialogSample::pressed(ask(), confirmButton()));
    page->addSample(ZrShowcase::tr("Disabled"), ZrDialogSample::disabled(ask()));
    page->addPicture(
        ZrShowcase::tr("Focus in the text"), [] { return ZrDialogSample::embed(ask()); },
        ZrShowcasePage::State::Focus);
}

void addTexts(ZrShowcasePage *page)
{
    page->beginRow(ZrShowcase::tr("Texts"));
    page->addSample(
        ZrShowcase::tr("Chinese"),
        ZrDialogSample::embed(tell(QStringLiteral("撤单"), QStringLiteral("确认撤销这笔委托吗？"))));
    page->addSample(ZrShowcase::tr("English"),
                    ZrDialogSample::embed(
                        tell(QStringLiteral("Cancel order"), QStringLiteral("The order was cancelled."))));
    page->addSample(ZrShowcase::tr("Empty"), ZrDialogSample::embed(tell(QString(), QString())));
    page->addSample(ZrShowcase::tr("Long text"), ZrDialogSample::embed(tell(longReason(), longReason())));
    page->addSample(
        ZrShowcase::tr("Error"),
        ZrDialogSample::embed(tell(ZrShowcase::tr("Order refused"),
                                   ZrShowcase::tr("The price lies outside the limits of the day."))));
}

void addParts(ZrShowcasePage *page)
{
    page->beginRow(ZrShowcase::tr("Parts"));
    page->addSample(ZrShowcase::tr("Help mark"), ZrDialogSample::embed(withHelp()));
    page->addSample(ZrShowcase::tr("Own button texts"), ZrDialogSample::embed(withOtherButtons()));
}
} // namespace

ZrShowcasePage *zrMakeMessageBoxPage(QWidget *parent)
{
    auto *const page = new ZrShowcasePage(
        QStringLiteral("message-box"), QStringLiteral("ZrMessageBox"),
        ZrShowcase::tr("A box that tells or asks something and sizes itself to its text."), parent);
    addStates(page);
    addTexts(page);
    addParts(page);
    page->beginRow(ZrShowcase::tr("Try it"));
    page->addSample(ZrShowcase::tr("Opens over the main window"), live());
    return page;
}
