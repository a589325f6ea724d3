#include "ZrShortCutKeyWidget.h"
#include "ZrShowcase.h"
#include "ZrShowcasePage.h"
#include "ZrShowcasePages.h"

#include <QtCore/QVariant>

namespace {
ZrShortCutKeyWidget *row(const QString &description, const QList<Qt::Key> &keys = {})
{
    auto *const widget = new ZrShortCutKeyWidget;
    widget->setShortcutKeyDesc(description);
    QStringList codes;
    for (const Qt::Key key : keys)
        codes.append(QString::number(key));
    widget->setShortcutKey(codes);
    return widget;
}

ZrShortCutKeyWidget *disabled()
{
    ZrShortCutKeyWidget *const widget = row(ZrShowcase::tr("Send order"), {Qt::Key_F5});
    widget->setEnabled(false);
    return widget;
}
} // namespace

ZrShowcasePage *zrMakeShortCutKeyWidgetPage(QWidget *parent)
{
    const auto make = []() -> QWidget * {
        return row(ZrShowcase::tr("Cancel all orders"), {Qt::Key_Control, Qt::Key_Shift, Qt::Key_X});
    };
    auto *const page =
        new ZrShowcasePage(QStringLiteral("shortcut-key"), QStringLiteral("ZrShortCutKeyWidget"),
                           ZrShowcase::tr("A row in which the user presses the keys of a shortcut."), parent);
    page->beginRow(ZrShowcase::tr("States"));
    page->addSample(ZrShowcase::tr("Normal"), make());
    page->addPicture(ZrShowcase::tr("Hover"), make, ZrShowcasePage::State::Hover);
    page->addPicture(ZrShowcase::tr("Focus"), make, ZrShowcasePage::State::Focus);
    page->addSample(ZrShowcase::tr("Disabled"), disabled());
    page->addSample(ZrShowcase::tr("Empty"), row(ZrShowcase::tr("Send order")));
    page->beginRow(ZrShowcase::tr("Texts"));
    page->addSample(ZrShowcase::tr("Chinese"),
                    row(QStringLiteral("全部撤单"), {Qt::Key_Alt, Qt::Key_Delete}));
    page->addSample(ZrShowcase::tr("English"),
                    row(QStringLiteral("Cancel all orders"), {Qt::Key_Alt, Qt::Key_Delete}));
    page->addSample(ZrShowcase::tr("Long"),
                    row(QStringLiteral("Cancel all open orders of the chosen account"),
                        {Qt::Key_Control, Qt::Key_Alt, Qt::Key_Shift, Qt::Key_F12}));
    page->addSample(ZrShowcase::tr("An ampersand is no shortcut"),
                    row(QStringLiteral("Bid & Ask"), {Qt::Key_F2}));
    return page;
}
