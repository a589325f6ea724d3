#include "ZrQuotationLabel.h"
#include "ZrShowcasePage.h"
#include "ZrShowcasePages.h"

#include <QtCore/QCoreApplication>

namespace {
enum Mode { Plain, Up, Down, Highlighted };

QString text(const char *source)
{
    return QCoreApplication::translate("ZrShowcase", source);
}

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
                           text("A quoted price, whose colour tells where it went."), parent);
    page->beginRow(text("Modes"));
    page->addSample(text("Unchanged"), quote(QStringLiteral("12.34")));
    page->addSample(text("Up"), quote(QStringLiteral("12.56"), Up));
    page->addSample(text("Down"), quote(QStringLiteral("12.01"), Down));
    page->addSample(text("Highlighted"), quote(QStringLiteral("12.34"), Highlighted));
    page->addSample(text("Disabled"), disabled());
    page->beginRow(text("Texts"));
    page->addSample(text("Empty"), quote(QString()));
    page->addSample(text("Chinese"), quote(QStringLiteral("涨停 13.57"), Up));
    page->addSample(text("English"), quote(QStringLiteral("Limit up 13.57"), Up));
    page->addSample(text("Long"), quote(QStringLiteral("1234567890123.456")));
    page->addSample(text("Markup stays text"), quote(QStringLiteral("<b>12.34</b>")));
    return page;
}
