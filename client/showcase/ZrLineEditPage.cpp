#include "ZrLineEdit.h"
#include "ZrShowcase.h"
#include "ZrShowcasePage.h"
#include "ZrShowcasePages.h"

namespace {
ZrLineEdit *filled(const QString &content)
{
    auto *const edit = new ZrLineEdit;
    edit->setText(content);
    edit->setCursorPosition(0);
    return edit;
}

ZrLineEdit *readOnly()
{
    ZrLineEdit *const edit = filled(QStringLiteral("600000.SH"));
    edit->setReadOnly(true);
    return edit;
}

ZrLineEdit *disabled()
{
    ZrLineEdit *const edit = filled(QStringLiteral("600000.SH"));
    edit->setEnabled(false);
    return edit;
}

void addStates(ZrShowcasePage *page)
{
    const auto make = []() -> QWidget * { return filled(QStringLiteral("600000.SH")); };
    page->beginRow(ZrShowcase::tr("States"));
    page->addSample(ZrShowcase::tr("Normal"), make());
    page->addPicture(ZrShowcase::tr("Hover"), make, ZrShowcasePage::State::Hover);
    page->addPicture(ZrShowcase::tr("Focus"), make, ZrShowcasePage::State::Focus);
    page->addSample(ZrShowcase::tr("Disabled"), disabled());
    page->addSample(ZrShowcase::tr("Read-only"), readOnly());
    page->addSample(ZrShowcase::tr("Empty"), filled(QString()));
}

void addTexts(ZrShowcasePage *page)
{
    page->beginRow(ZrShowcase::tr("Texts"));
    page->addSample(ZrShowcase::tr("Chinese"), filled(QStringLiteral("昀朔农业")));
    page->addSample(ZrShowcase::tr("English"), filled(QStringLiteral("Yunshuo Farming")));
    page->addSample(ZrShowcase::tr("Long"),
                    filled(QStringLiteral("600000.SH, 600004.SH, 600006.SH, 600007.SH, "
                                          "600008.SH, 600009.SH, 600010.SH, 600011.SH")));
    page->addSample(ZrShowcase::tr("Markup stays text"), filled(QStringLiteral("<b>600000</b> & 1")));
}
} // namespace

ZrShowcasePage *zrMakeLineEditPage(QWidget *parent)
{
    auto *const page = new ZrShowcasePage(
        QStringLiteral("line-edit"), QStringLiteral("ZrLineEdit"),
        ZrShowcase::tr("A text field that carries its form's data and tells when the entry is finished."),
        parent);
    addStates(page);
    addTexts(page);
    return page;
}
