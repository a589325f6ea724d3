#include "ZrButtonGroupWidget.h"
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

/// `chosen` is a place in the row; -1 chooses none.
ZrButtonGroupWidget *row(const QStringList &names, int chosen)
{
    auto *const group = new ZrButtonGroupWidget;
    for (const QString &name : names)
        group->addButton(new ZrRadioButton(plain(name)));
    if (chosen >= 0)
        group->buttons().at(chosen)->setChecked(true);
    return group;
}

ZrButtonGroupWidget *sides(int chosen)
{
    return row({ZrShowcase::tr("Buy"), ZrShowcase::tr("Sell"), ZrShowcase::tr("Sell short")}, chosen);
}

ZrButtonGroupWidget *disabled()
{
    ZrButtonGroupWidget *const group = sides(0);
    group->setEnabled(false);
    return group;
}
} // namespace

ZrShowcasePage *zrMakeButtonGroupWidgetPage(QWidget *parent)
{
    auto *const page =
        new ZrShowcasePage(QStringLiteral("button-group"), QStringLiteral("ZrButtonGroupWidget"),
                           ZrShowcase::tr("A row of buttons of which one can be chosen."), parent);
    page->beginRow(ZrShowcase::tr("States"));
    page->addSample(ZrShowcase::tr("None chosen"), sides(-1));
    page->addSample(ZrShowcase::tr("Chosen"), sides(1));
    page->addPicture(
        ZrShowcase::tr("Focus"), []() -> QWidget * { return sides(0); }, ZrShowcasePage::State::Focus);
    page->addSample(ZrShowcase::tr("Disabled"), disabled());
    page->addSample(ZrShowcase::tr("Empty"), row({}, -1));
    page->beginRow(ZrShowcase::tr("Texts"));
    page->addSample(ZrShowcase::tr("Chinese"), row({QStringLiteral("买入"), QStringLiteral("卖出")}, 0));
    page->addSample(ZrShowcase::tr("English"), row({QStringLiteral("Buy"), QStringLiteral("Sell")}, 0));
    page->addSample(ZrShowcase::tr("Long"),
                    row({QStringLiteral("Immediately or cancel"), QStringLiteral("At the close")}, 0));
    return page;
}
