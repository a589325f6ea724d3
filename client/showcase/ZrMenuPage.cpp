#include "ZrMenu.h"
#include "ZrShowcasePage.h"
#include "ZrShowcasePages.h"

#include <QtCore/QCoreApplication>
#include <QtWidgets/QActionGroup>
#include <QtWidgets/QPushButton>

namespace {

QString text(const char *source)
{
    return QCoreApplication::translate("ZrShowcase", source);
}

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
    menu->addAction(text("Copy"))->setShortcut(QKeySequence::Copy);
    menu->addAction(text("Export"));
    menu->addSeparator();
    auto *const columns = new ZrMenu(text("Columns"), menu);
    columns->setData(Qt::UserRole, 1);
    addChecked(columns, text("Symbol"), true);
    addChecked(columns, text("Price"), false);
    menu->addMenu(columns);
    menu->addAction(text("Refresh"))->setEnabled(false);
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
    addChecked(menu, text("Symbol"), true);
    addChecked(menu, text("Price"), false);
    addChecked(menu, text("Quantity"), true)->setEnabled(false);
    menu->addSeparator();
    auto *const one = new QActionGroup(menu);
    one->addAction(addChecked(menu, text("All orders"), true));
    one->addAction(addChecked(menu, text("Open orders"), false));
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
    auto *const button = new QPushButton(text("Menu"));
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
        text("A menu that carries data, so that a chosen entry leads back to its grid."), parent);
    page->beginRow(text("States"));
    page->addSample(text("Normal"), gridMenu());
    page->addSample(text("Current entry"), withCurrentEntry());
    page->addSample(text("Disabled"), disabled());
    page->addSample(text("Check marks"), withChecks());
    page->addSample(text("Empty"), withEntries({}));
    page->beginRow(text("Texts"));
    page->addSample(text("Chinese"), withEntries({QStringLiteral("列显示"), QStringLiteral("插件联动"),
                                                  QStringLiteral("导出全部")}));
    page->addSample(text("English"),
                    withEntries({QStringLiteral("Column visibility"), QStringLiteral("Plugin linking"),
                                 QStringLiteral("Export all")}));
    page->addSample(text("Long text"),
                    withEntries({text("Copy"), text("Copy this row with the names of its columns")}));
    page->beginRow(text("Try it"));
    page->addSample(text("Opens below its button"), live());
    return page;
}
