#include "ZrDialog.h"
#include "ZrDialogSample.h"
#include "ZrLineEdit.h"
#include "ZrPushButton.h"
#include "ZrShowcase.h"
#include "ZrShowcasePage.h"
#include "ZrShowcasePages.h"

#include <QtWidgets/QFormLayout>
#include <QtWidgets/QLabel>

namespace {
constexpr int NoButton = 0;
constexpr int Ok = 1;
constexpr int Both = 3;
constexpr int LeaveWhereItIs = 0;
constexpr int OverMainWindow = 2;
constexpr QSize formSize(300, 96);

QString okButton()
{
    return QStringLiteral("pushButton_ok");
}

void addField(QFormLayout *form, const QString &name, const QString &text)
{
    auto *const edit = new ZrLineEdit;
    edit->setText(text);
    edit->setAccessibleName(name);
    form->addRow(name, edit);
}

/// What is hosted: any widget.
QWidget *limits()
{
    auto *const content = new QWidget;
    auto *const form = new QFormLayout(content);
    form->setContentsMargins(12, 12, 12, 12);
    addField(form, ZrShowcase::tr("Price"), QStringLiteral("10.25"));
    addField(form, ZrShowcase::tr("Quantity"), QStringLiteral("1,000"));
    content->resize(formSize);
    return content;
}

ZrDialog *host(const QString &title, int buttons, bool showTitle = true, bool hasShadow = true)
{
    auto *const dialog = new ZrDialog(title, true, nullptr, buttons, showTitle, hasShadow, LeaveWhereItIs);
    dialog->addWidget(limits());
    return dialog;
}

ZrDialog *usual()
{
    return host(ZrShowcase::tr("Order limits"), Both);
}

/// With what a plugin may have in its title: the refresh button, and a widget of its own.
ZrDialog *withTitleParts()
{
    ZrDialog *const dialog = usual();
    dialog->findChild<QWidget *>(QStringLiteral("pushButton_fresh"))->show();
    auto *const side = new QLabel(ZrShowcase::tr("Buy"));
    dialog->slotAddPluginDialogTitleWidget(side);
    return dialog;
}

QString longTitle()
{
    return ZrShowcase::tr("The exchange refused the order because its price lies outside the limits of the "
                          "day, and the account has no more quantity to sell. ");
}

void openDialog(QWidget *over, bool resizable, const QString &closeTip)
{
    auto *const dialog =
        new ZrDialog(ZrShowcase::tr("Order limits"), true, over, Both, true, true, OverMainWindow);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->addWidget(limits());
    dialog->setResizeFlag(resizable);
    dialog->setCloseConfirmTip(closeTip);
    dialog->setDefaultFocusButton(Ok);
    dialog->show();
}

QPushButton *opener(const QString &caption, bool resizable, const QString &closeTip)
{
    auto *const button = new ZrPushButton(caption);
    QObject::connect(button, &ZrPushButton::clicked, button,
                     [button, resizable, closeTip] { openDialog(button, resizable, closeTip); });
    return button;
}

void addStates(ZrShowcasePage *page)
{
    page->beginRow(ZrShowcase::tr("States"));
    page->addSample(ZrShowcase::tr("Normal"), ZrDialogSample::embed(usual()));
    page->addPicture(
        ZrShowcase::tr("Focus"),
        [] {
            ZrDialog *const dialog = usual();
            const auto edits = dialog->findChildren<ZrLineEdit *>();
            for (ZrLineEdit *const edit : edits)
                edit->setFocusPolicy(Qt::NoFocus);
            return ZrDialogSample::embed(dialog);
        },
        ZrShowcasePage::State::Focus);
    page->addSample(ZrShowcase::tr("Hover"), ZrDialogSample::hovered(usual(), okButton()));
    page->addSample(ZrShowcase::tr("Pressed"), ZrDialogSample::pressed(usual(), okButton()));
    page->addSample(ZrShowcase::tr("Disabled"), ZrDialogSample::disabled(usual()));
}

void addForms(ZrShowcasePage *page)
{
    page->beginRow(ZrShowcase::tr("Forms"));
    page->addSample(ZrShowcase::tr("Without a shadow"),
                    ZrDialogSample::embed(host(ZrShowcase::tr("Order limits"), Both, true, false)));
    page->addSample(ZrShowcase::tr("Without a title"),
                    ZrDialogSample::embed(host(ZrShowcase::tr("Order limits"), Both, false)));
    page->addSample(ZrShowcase::tr("Without buttons"),
                    ZrDialogSample::embed(host(ZrShowcase::tr("Order limits"), NoButton)));
    page->addSample(ZrShowcase::tr("One button"),
                    ZrDialogSample::embed(host(ZrShowcase::tr("Order limits"), Ok)));
    page->addSample(ZrShowcase::tr("Own parts in the title"), ZrDialogSample::embed(withTitleParts()));
}

void addTexts(ZrShowcasePage *page)
{
    page->beginRow(ZrShowcase::tr("Texts"));
    page->addSample(ZrShowcase::tr("Chinese"), ZrDialogSample::embed(host(QStringLiteral("委托限制"), Both)));
    page->addSample(ZrShowcase::tr("English"),
                    ZrDialogSample::embed(host(QStringLiteral("Order limits"), Both)));
    page->addSample(ZrShowcase::tr("Empty"), ZrDialogSample::embed(host(QString(), Both)));
    page->addSample(ZrShowcase::tr("Long text"), ZrDialogSample::embed(host(longTitle(), Both)));
}
} // namespace

ZrShowcasePage *zrMakeDialogPage(QWidget *parent)
{
    auto *const page = new ZrShowcasePage(
        QStringLiteral("dialog"), QStringLiteral("ZrDialog"),
        ZrShowcase::tr("A frameless dialog that hosts a plugin or any other widget."), parent);
    addStates(page);
    addForms(page);
    addTexts(page);
    page->beginRow(ZrShowcase::tr("Try it"));
    page->addSample(ZrShowcase::tr("Opens over the main window"),
                    ZrDialogSample::row({opener(ZrShowcase::tr("Fixed"), false, QString()),
                                         opener(ZrShowcase::tr("Resizable"), true, QString()),
                                         opener(ZrShowcase::tr("Asks before it closes"), true,
                                                ZrShowcase::tr("The changes are lost."))}));
    return page;
}
