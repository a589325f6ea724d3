#include "ZrLabel.h"
#include "ZrShowcasePage.h"
#include "ZrShowcasePages.h"

#include <QtCore/QCoreApplication>

namespace {
QString text(const char *source)
{
    return QCoreApplication::translate("ZrShowcase", source);
}

ZrLabel *checked()
{
    auto *const label = new ZrLabel(text("Order quantity"));
    label->setChecked(true);
    return label;
}

ZrLabel *flagged(const QString &flag)
{
    auto *const label = new ZrLabel(text("Order quantity"));
    label->setTextColorFlag(flag);
    return label;
}

ZrLabel *disabled()
{
    auto *const label = new ZrLabel(text("Order quantity"));
    label->setEnabled(false);
    return label;
}

ZrLabel *wrapped(const QString &content)
{
    auto *const label = new ZrLabel(content);
    label->setWordWrap(true);
    QSizePolicy policy(QSizePolicy::Expanding, QSizePolicy::Preferred);
    policy.setHeightForWidth(true);
    label->setSizePolicy(policy);
    return label;
}

void addStates(ZrShowcasePage *page)
{
    page->beginRow(text("States"));
    page->addSample(text("Normal"), new ZrLabel(text("Order quantity")));
    page->addSample(text("Checked"), checked());
    page->addSample(text("Disabled"), disabled());
    page->addSample(text("Empty"), new ZrLabel);
    page->beginRow(text("Text colours by flag"));
    page->addSample(text("Up"), flagged(QStringLiteral("up")));
    page->addSample(text("Down"), flagged(QStringLiteral("down")));
    page->addSample(text("Warning"), flagged(QStringLiteral("warn")));
    page->addSample(text("Error"), flagged(QStringLiteral("error")));
}

void addTexts(ZrShowcasePage *page)
{
    page->beginRow(text("Texts"));
    page->addSample(text("Chinese"), new ZrLabel(QStringLiteral("委托数量")));
    page->addSample(text("English"), new ZrLabel(QStringLiteral("Order quantity")));
    page->addSample(text("Markup stays text"), new ZrLabel(QStringLiteral("<b>Bid</b> & Ask")));
    page->addSample(text("Long"),
                    wrapped(QStringLiteral("The quantity that is sent with each slice of the order; the rest "
                                           "is kept back until the slice is filled.")));
}
} // namespace

ZrShowcasePage *zrMakeLabelPage(QWidget *parent)
{
    auto *const page = new ZrShowcasePage(
        QStringLiteral("label"), QStringLiteral("ZrLabel"),
        text("A label whose look can be switched, and which carries its form's data."), parent);
    addStates(page);
    addTexts(page);
    return page;
}
