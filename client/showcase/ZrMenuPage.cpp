#include "ZrMenu.h"
#include "ZrShowcase.h"
#include "ZrShowcasePage.h"
#include "ZrShowcasePages.h"

#include <QtWidgets/QActionGroup>
#include <QtWidgets/QPushButton>

namespace {

QAction *addChecked(ZrMenu *menu, const QString &caption, bool checked)
{
    QAction *const entry = menu->addAction(caption);
    entry->setCheckable(true);
    entry->setChecked(checked);
    return entry;
}

/// The menu of a grid: what plugins offer on a click with the right button.
ZrMenu *gridMenu()
{
    auto *const menu = new ZrMenu;
    menu->addAction(ZrShowcase::tr("Copy"))->setShortcut(QKeySequence::Copy);
    menu->addAction(ZrShowcase::tr("Export"));
    menu->addSeparator();
    auto *const columns = new ZrMenu(ZrShowcase::tr("Columns"), menu);
    columns->setData(Qt::UserRole, 1);
    addChecked(columns, ZrShowcase::tr("Symbol"), true);
    addChecked(columns, ZrShowcase::tr("Price"), false);
    menu->addMenu(columns);
    menu->addAction(ZrShowcase::tr("Refresh"))->setEnabled(false);
    return menu;
}

ZrMenu *withCurrentEntry()
{
    ZrMenu *const menu = gridMenu();
    menu->setActiveAction(menu->actions().constFirst());
    return menu;
}

ZrMenu *withChecks()
{
    auto *const menu = new ZrMenu;
    addChecked(menu, ZrShowcase::tr("Symbol"), true);
    addChecked(menu, ZrShowcase::tr("Price"), false);
    addChecked(menu, ZrShowcase::tr("Quantity"), true)->setEnabled(false);
    menu->addSeparator();
    auto *const one = new QActionGroup(menu);
    one->addAction(addChecked(menu, ZrShowcase::tr("All orders"), true));
    one->addAction(addChecked(menu, ZrShowcase::tr("Open orders"), false));
    return menu;
}

ZrMenu *withEntries(const QStringList &captions)
{
    auto *const menu = new ZrMenu;
    for (const QString &caption : captions)
        menu->addAction(caption);
    return menu;
}

ZrMenu *disabled()
{
    ZrMenu *const menu = gridMenu();
    menu->setEnabled(false);
    return menu;
}

QWidget *live()
{
    auto *const button = new QPushButton(ZrShowcase::tr("Menu"));
    ZrMenu *const menu = gridMenu();
    menu->setParent(button, menu->windowFlags());
    button->setMenu(menu);
    return button;
}
} // namespace

ZrShowcasePage *zrMakeMenuPage(QWidget *parent)
{
    auto *const page = new ZrShowcasePage(
        QStringLiteral("menu"), QStringLiteral("ZrMenu"),
        ZrShowcase::tr("A menu that carries data, so that a chosen entry leads back to its grid."), parent);
    page->beginRow(ZrShowcase::tr("States"));
    page->addSample(ZrShowcase::tr("Normal"), gridMenu());
    page->addSample(ZrShowcase::tr("Current entry"), withCurrentEntry());
    page->addSample(ZrShowcase::tr("Disabled"), disabled());
    page->addSample(ZrShowcase::tr("Check marks"), withChecks());
    page->beginRow(ZrShowcase::tr("Texts"));
    page->addSample(
        ZrShowcase::tr("Chinese"),
        withEntries({QStringLiteral("列显示"), QStringLiteral("插件联动"), QStringLiteral("导出全部")}));
    page->addSample(ZrShowcase::tr("English"),
                    withEntries({QStringLiteral("Column visibility"), QStringLiteral("Plugin linking"),
                                 QStringLiteral("Export all")}));
    page->addSample(
        ZrShowcase::tr("Long text"),
        withEntries({ZrShowcase::tr("Copy"), ZrShowcase::tr("Copy this row with the names of its columns")}));
    page->beginRow(ZrShowcase::tr("Try it"));
    page->addSample(ZrShowcase::tr("Opens below its button"), live());
    return page;
}
