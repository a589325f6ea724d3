#include "ZrQuotationLabel.h"
#include "ZrShowcase.h"
#include "ZrShowcasePage.h"
#include "ZrShowcasePages.h"

namespace {
enum Mode { Plain, Up, Down, Highlighted };

ZrQuotationLabel *quote(const QString &price, Mode mode = Plain)
{
    auto *const label = new ZrQuotationLabel(price);
    label->setLabelMode(mode);
    return label;
}

ZrQuotationLabel *disabled()
{
    ZrQuotationLabel *const label = quote(QStringLiteral("12.34"));
    label->setEnabled(false);
    return label;
}
} // namespace

ZrShowcasePage *zrMakeQuotationLabelPage(QWidget *parent)
{
    auto *const page =
        new ZrShowcasePage(QStringLiteral("quotation-label"), QStringLiteral("ZrQuotationLabel"),
                           ZrShowcase::tr("A quoted price, whose colour tells where it went."), parent);
    page->beginRow(ZrShowcase::tr("Modes"));
    page->addSample(ZrShowcase::tr("Unchanged"), quote(QStringLiteral("12.34")));
    page->addSample(ZrShowcase::tr("Up"), quote(QStringLiteral("12.56"), Up));
    page->addSample(ZrShowcase::tr("Down"), quote(QStringLiteral("12.01"), Down));
    page->addSample(ZrShowcase::tr("Highlighted"), quote(QStringLiteral("12.34"), Highlighted));
    page->addSample(ZrShowcase::tr("Disabled"), disabled());
    page->beginRow(ZrShowcase::tr("Texts"));
    page->addSample(ZrShowcase::tr("Empty"), quote(QString()));
    page->addSample(ZrShowcase::tr("Chinese"), quote(QStringLiteral("涨停 13.57"), Up));
    page->addSample(ZrShowcase::tr("English"), quote(QStringLiteral("Limit up 13.57"), Up));
    page->addSample(ZrShowcase::tr("Long"), quote(QStringLiteral("1234567890123.456")));
    page->addSample(ZrShowcase::tr("Markup stays text"), quote(QStringLiteral("<b>12.34</b>")));
    return page;
}
