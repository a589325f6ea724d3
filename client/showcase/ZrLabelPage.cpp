#include "ZrLabel.h"
#include "ZrShowcase.h"
#include "ZrShowcasePage.h"
#include "ZrShowcasePages.h"

namespace {
ZrLabel *checked()
{
    auto *const label = new ZrLabel(ZrShowcase::tr("Order quantity"));
    label->setChecked(true);
    return label;
}

ZrLabel *flagged(const QString &flag)
{
    auto *const label = new ZrLabel(ZrShowcase::tr("Order quantity"));
    label->setTextColorFlag(flag);
    return label;
}

ZrLabel *disabled()
{
    auto *const label = new ZrLabel(ZrShowcase::tr("Order quantity"));
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
    page->beginRow(ZrShowcase::tr("States"));
    page->addSample(ZrShowcase::tr("Normal"), new ZrLabel(ZrShowcase::tr("Order quantity")));
    page->addSample(ZrShowcase::tr("Checked"), checked());
    page->addSample(ZrShowcase::tr("Disabled"), disabled());
    page->addSample(ZrShowcase::tr("Empty"), new ZrLabel);
    page->beginRow(ZrShowcase::tr("Text colours by flag"));
    page->addSample(ZrShowcase::tr("Up"), flagged(QStringLiteral("up")));
    page->addSample(ZrShowcase::tr("Down"), flagged(QStringLiteral("down")));
    page->addSample(ZrShowcase::tr("Warning"), flagged(QStringLiteral("warn")));
    page->addSample(ZrShowcase::tr("Error"), flagged(QStringLiteral("error")));
}

void addTexts(ZrShowcasePage *page)
{
    page->beginRow(ZrShowcase::tr("Texts"));
    page->addSample(ZrShowcase::tr("Chinese"), new ZrLabel(QStringLiteral("委托数量")));
    page->addSample(ZrShowcase::tr("English"), new ZrLabel(QStringLiteral("Order quantity")));
    page->addSample(ZrShowcase::tr("Markup stays text"), new ZrLabel(QStringLiteral("<b>Bid</b> & Ask")));
    page->addSample(ZrShowcase::tr("Long"),
                    wrapped(QStringLiteral("The quantity that is sent with each slice of the order; the rest "
                                           "is kept back until the slice is filled.")));
}
} // namespace

ZrShowcasePage *zrMakeLabelPage(QWidget *parent)
{
    auto *const page = new ZrShowcasePage(
        QStringLiteral("label"), QStringLiteral("ZrLabel"),
        ZrShowcase::tr("A label whose look can be switched, and which carries its form's data."), parent);
    addStates(page);
    addTexts(page);
    return page;
}
