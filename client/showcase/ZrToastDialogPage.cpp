#include "ZrDialogSample.h"
#include "ZrPushButton.h"
#include "ZrShowcase.h"
#include "ZrShowcasePage.h"
#include "ZrShowcasePages.h"
#include "ZrToastDialog.h"

#include <limits>

namespace {
/// A toast that stays, and was never seen as a window of its own.
QDialog *make(const QString &message, int level)
{
    QWidget unseen;
    auto *const toast = new ZrToastDialog(&unseen);
    toast->setWindowFlags(Qt::Widget);
    toast->SetDuration(std::numeric_limits<int>::max());
    toast->ShowToastMessage(message, level);
    toast->setParent(nullptr);
    return toast;
}

QString longReason()
{
    return ZrShowcase::tr("The exchange refused the order because its price lies outside the limits of the "
                          "day, and the account has no more quantity to sell. ")
        .repeated(2)
        .trimmed();
}

QPushButton *opener(const QString &caption, const QString &message, int level)
{
    auto *const button = new ZrPushButton(caption);
    QObject::connect(button, &ZrPushButton::clicked, button, [button, message, level] {
        auto *const toast = new ZrToastDialog(button->window());
        toast->setAttribute(Qt::WA_DeleteOnClose);
        toast->ShowToastMessage(message, level);
    });
    return button;
}

void addLevels(ZrShowcasePage *page)
{
    page->beginRow(ZrShowcase::tr("Levels"));
    page->addSample(
        ZrShowcase::tr("Normal"),
        ZrDialogSample::embed(make(ZrShowcase::tr("The order was accepted."), ZrToastDialog::LevelTip)));
    page->addSample(
        ZrShowcase::tr("Error"),
        ZrDialogSample::embed(make(ZrShowcase::tr("The order was refused."), ZrToastDialog::LevelError)));
    page->addSample(
        ZrShowcase::tr("Disabled"),
        ZrDialogSample::disabled(make(ZrShowcase::tr("The order was accepted."), ZrToastDialog::LevelTip)));
}

void addTexts(ZrShowcasePage *page)
{
    page->beginRow(ZrShowcase::tr("Texts"));
    page->addSample(
        ZrShowcase::tr("Chinese"),
        ZrDialogSample::embed(make(QStringLiteral("委托已报，等待成交"), ZrToastDialog::LevelTip)));
    page->addSample(ZrShowcase::tr("English"),
                    ZrDialogSample::embed(
                        make(QStringLiteral("The order is at the exchange."), ZrToastDialog::LevelTip)));
    page->addSample(ZrShowcase::tr("Empty"), ZrDialogSample::embed(make(QString(), ZrToastDialog::LevelTip)));
    page->addSample(ZrShowcase::tr("Long text"),
                    ZrDialogSample::embed(make(longReason(), ZrToastDialog::LevelTip)));
    page->addSample(ZrShowcase::tr("Long text, error"),
                    ZrDialogSample::embed(make(longReason(), ZrToastDialog::LevelError)));
}
} // namespace

ZrShowcasePage *zrMakeToastDialogPage(QWidget *parent)
{
    auto *const page = new ZrShowcasePage(
        QStringLiteral("toast-dialog"), QStringLiteral("ZrToastDialog"),
        ZrShowcase::tr("A notice that closes by itself and leaves keyboard and mouse where they are."),
        parent);
    addLevels(page);
    addTexts(page);
    page->beginRow(ZrShowcase::tr("Try it"));
    page->addSample(
        ZrShowcase::tr("Opens for three seconds"),
        ZrDialogSample::row({opener(ZrShowcase::tr("Tip"), ZrShowcase::tr("The order was accepted."),
                                    ZrToastDialog::LevelTip),
                             opener(ZrShowcase::tr("Error"), ZrShowcase::tr("The order was refused."),
                                    ZrToastDialog::LevelError)}));
    return page;
}
