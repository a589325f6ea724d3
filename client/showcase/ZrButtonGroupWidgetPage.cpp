#include "ZrButtonGroupWidget.h"
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
    return row({text("Buy"), text("Sell"), text("Sell short")}, chosen);
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
                           text("A row of buttons of which one can be chosen."), parent);
    page->beginRow(text("States"));
    page->addSample(text("None chosen"), sides(-1));
    page->addSample(text("Chosen"), sides(1));
    page->addPicture(
        text("Focus"), []() -> QWidget * { return sides(0); }, ZrShowcasePage::State::Focus);
    page->addSample(text("Disabled"), disabled());
    page->addSample(text("Empty"), row({}, -1));
    page->beginRow(text("Texts"));
    page->addSample(text("Chinese"), row({QStringLiteral("买入"), QStringLiteral("卖出")}, 0));
    page->addSample(text("English"), row({QStringLiteral("Buy"), QStringLiteral("Sell")}, 0));
    page->addSample(text("Long"),
                    row({QStringLiteral("Immediately or cancel"), QStringLiteral("At the close")}, 0));
    return page;
}
