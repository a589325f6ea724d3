#include "ZrRadioButton.h"
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

ZrRadioButton *named(const QString &name, bool checked = false)
{
    auto *const button = new ZrRadioButton(plain(name));
    button->setAutoExclusive(false); // each sample by itself
    button->setChecked(checked);
    return button;
}

ZrRadioButton *disabled(bool checked)
{
    ZrRadioButton *const button = named(text("Limit price"), checked);
    button->setEnabled(false);
    return button;
}

void addStates(ZrShowcasePage *page)
{
    const auto make = []() -> QWidget * { return named(text("Limit price")); };
    page->beginRow(text("States"));
    page->addSample(text("Normal"), make());
    page->addPicture(text("Hover"), make, ZrShowcasePage::State::Hover);
    page->addPicture(text("Focus"), make, ZrShowcasePage::State::Focus);
    page->addPicture(text("Pressed"), make, ZrShowcasePage::State::Pressed);
    page->addSample(text("Chosen"), named(text("Limit price"), true));
    page->addSample(text("Disabled"), disabled(false));
    page->addSample(text("Chosen and disabled"), disabled(true));
}

void addTexts(ZrShowcasePage *page)
{
    page->beginRow(text("Texts"));
    page->addSample(text("Chinese"), named(QStringLiteral("限价")));
    page->addSample(text("English"), named(QStringLiteral("Limit price")));
    page->addSample(text("Empty"), named(QString()));
    page->addSample(text("Long"), named(QStringLiteral("Volume weighted average price until the close")));
    page->addSample(text("An ampersand is no shortcut"), named(QStringLiteral("Bid & Ask")));
}
} // namespace

ZrShowcasePage *zrMakeRadioButtonPage(QWidget *parent)
{
    auto *const page =
        new ZrShowcasePage(QStringLiteral("radio-button"), QStringLiteral("ZrRadioButton"),
                           text("One choice among few, which carries its form's data."), parent);
    addStates(page);
    addTexts(page);
    return page;
}
