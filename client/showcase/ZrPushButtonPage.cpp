#include "ZrPushButton.h"
#include "ZrShowcasePage.h"
#include "ZrShowcasePages.h"

#include <QtCore/QCoreApplication>

namespace {
QString text(const char *source)
{
    return QCoreApplication::translate("ZrShowcase", source);
}

// An ampersand in a name is none of a shortcut.
QString plain(QString name)
{
    return name.replace(QLatin1Char('&'), QLatin1String("&&"));
}

ZrPushButton *disabled()
{
    auto *const button = new ZrPushButton(text("Send order"));
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
    const auto make = []() -> QWidget * { return new ZrPushButton(text("Send order")); };
    auto *const page =
        new ZrShowcasePage(QStringLiteral("push-button"), QStringLiteral("ZrPushButton"),
                           text("A button that lights up under the pointer and the focus."), parent);
    page->beginRow(text("States"));
    page->addSample(text("Normal"), make());
    page->addPicture(text("Hover"), make, ZrShowcasePage::State::Hover);
    page->addPicture(text("Focus"), make, ZrShowcasePage::State::Focus);
    page->addPicture(text("Pressed"), make, ZrShowcasePage::State::Pressed);
    page->addSample(text("Disabled"), disabled());
    page->beginRow(text("Texts"));
    page->addSample(text("Chinese"), named(QStringLiteral("发送委托")));
    page->addSample(text("English"), named(QStringLiteral("Send order")));
    page->addSample(text("Empty"), named(QString()));
    page->addSample(text("Long"), named(QStringLiteral("Cancel all open orders of this account")));
    page->addSample(text("An ampersand is no shortcut"), named(QStringLiteral("Bid & Ask")));
    return page;
}
