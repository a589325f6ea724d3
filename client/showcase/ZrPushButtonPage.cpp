#include "ZrPushButton.h"
#include "ZrShowcase.h"
#include "ZrShowcasePage.h"
#include "ZrShowcasePages.h"

namespace {
// An ampersand in a name is none of a shortcut.
QString plain(QString name)
{
    return name.replace(QLatin1Char('&'), QLatin1String("&&"));
}

ZrPushButton *disabled()
{
    auto *const button = new ZrPushButton(ZrShowcase::tr("Send order"));
    button->setEnabled(false);
    return button;
}

ZrPushButton *named(const QString &name)
{
    return new ZrPushButton(plain(name));
}
} // namespace

ZrShowcasePage *zrMakePushButtonPage(QWidget *parent)
{
    const auto make = []() -> QWidget * { return new ZrPushButton(ZrShowcase::tr("Send order")); };
    auto *const page = new ZrShowcasePage(
        QStringLiteral("push-button"), QStringLiteral("ZrPushButton"),
        ZrShowcase::tr("A button that lights up under the pointer and the focus."), parent);
    page->beginRow(ZrShowcase::tr("States"));
    page->addSample(ZrShowcase::tr("Normal"), make());
    page->addPicture(ZrShowcase::tr("Hover"), make, ZrShowcasePage::State::Hover);
    page->addPicture(ZrShowcase::tr("Focus"), make, ZrShowcasePage::State::Focus);
    page->addPicture(ZrShowcase::tr("Pressed"), make, ZrShowcasePage::State::Pressed);
    page->addSample(ZrShowcase::tr("Disabled"), disabled());
    page->beginRow(ZrShowcase::tr("Texts"));
    page->addSample(ZrShowcase::tr("Chinese"), named(QStringLiteral("发送委托")));
    page->addSample(ZrShowcase::tr("English"), named(QStringLiteral("Send order")));
    page->addSample(ZrShowcase::tr("Empty"), named(QString()));
    page->addSample(ZrShowcase::tr("Long"), named(QStringLiteral("Cancel all open orders of this account")));
    page->addSample(ZrShowcase::tr("An ampersand is no shortcut"), named(QStringLiteral("Bid & Ask")));
    return page;
}
