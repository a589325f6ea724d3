#include "ZrShortCutKeyWidget.h"
#include "ZrShowcasePage.h"
#include "ZrShowcasePages.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QVariant>

namespace {
QString text(const char *source)
{
    return QCoreApplication::translate("ZrShowcase", source);
}

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
    ZrShortCutKeyWidget *const widget = row(text("Send order"), {Qt::Key_F5});
    widget->setEnabled(false);
    return widget;
}
} // namespace

ZrShowcasePage *zrMakeShortCutKeyWidgetPage(QWidget *parent)
{
    const auto make = []() -> QWidget * {
        return row(text("Cancel all orders"), {Qt::Key_Control, Qt::Key_Shift, Qt::Key_X});
    };
    auto *const page =
        new ZrShowcasePage(QStringLiteral("shortcut-key"), QStringLiteral("ZrShortCutKeyWidget"),
                           text("A row in which the user presses the keys of a shortcut."), parent);
    page->beginRow(text("States"));
    page->addSample(text("Normal"), make());
    page->addPicture(text("Hover"), make, ZrShowcasePage::State::Hover);
    page->addPicture(text("Focus"), make, ZrShowcasePage::State::Focus);
    page->addSample(text("Disabled"), disabled());
    page->addSample(text("Empty"), row(text("Send order")));
    page->beginRow(text("Texts"));
    page->addSample(text("Chinese"), row(QStringLiteral("全部撤单"), {Qt::Key_Alt, Qt::Key_Delete}));
    page->addSample(text("English"), row(QStringLiteral("Cancel all orders"), {Qt::Key_Alt, Qt::Key_Delete}));
    page->addSample(text("Long"), row(QStringLiteral("Cancel all open orders of the chosen account"),
                                      {Qt::Key_Control, Qt::Key_Alt, Qt::Key_Shift, Qt::Key_F12}));
    page->addSample(text("An ampersand is no shortcut"), row(QStringLiteral("Bid & Ask"), {Qt::Key_F2}));
    return page;
}
