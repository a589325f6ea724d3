#include "ZrRadioButton.h"
#include "ZrShowcase.h"
#include "ZrShowcasePage.h"
#include "ZrShowcasePages.h"

namespace {
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
    ZrRadioButton *const button = named(ZrShowcase::tr("Limit price"), checked);
    button->setEnabled(false);
    return button;
}

void addStates(ZrShowcasePage *page)
{
    const auto make = []() -> QWidget * { return named(ZrShowcase::tr("Limit price")); };
    page->beginRow(ZrShowcase::tr("States"));
    page->addSample(ZrShowcase::tr("Normal"), make());
    page->addPicture(ZrShowcase::tr("Hover"), make, ZrShowcasePage::State::Hover);
    page->addPicture(ZrShowcase::tr("Focus"), make, ZrShowcasePage::State::Focus);
    page->addPicture(ZrShowcase::tr("Pressed"), make, ZrShowcasePage::State::Pressed);
    page->addSample(ZrShowcase::tr("Chosen"), named(ZrShowcase::tr("Limit price"), true));
    page->addSample(ZrShowcase::tr("Disabled"), disabled(false));
    page->addSample(ZrShowcase::tr("Chosen and disabled"), disabled(true));
}

void addTexts(ZrShowcasePage *page)
{
    page->beginRow(ZrShowcase::tr("Texts"));
    page->addSample(ZrShowcase::tr("Chinese"), named(QStringLiteral("限价")));
    page->addSample(ZrShowcase::tr("English"), named(QStringLiteral("Limit price")));
    page->addSample(ZrShowcase::tr("Empty"), named(QString()));
    page->addSample(ZrShowcase::tr("Long"),
                    named(QStringLiteral("Volume weighted average price until the close")));
    page->addSample(ZrShowcase::tr("An ampersand is no shortcut"), named(QStringLiteral("Bid & Ask")));
}
} // namespace

ZrShowcasePage *zrMakeRadioButtonPage(QWidget *parent)
{
    auto *const page =
        new ZrShowcasePage(QStringLiteral("radio-button"), QStringLiteral("ZrRadioButton"),
                           ZrShowcase::tr("One choice among few, which carries its form's data."), parent);
    addStates(page);
    addTexts(page);
    return page;
}
