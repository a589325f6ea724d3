#include "ZrLineEdit.h"
#include "ZrShowcasePage.h"
#include "ZrShowcasePages.h"

#include <QtCore/QCoreApplication>

namespace {
QString text(const char *source)
{
    return QCoreApplication::translate("ZrShowcase", source);
}

ZrLineEdit *filled(const QString &content)
{
    auto *const edit = new ZrLineEdit;
    edit->setText(content);
    edit->setCursorPosition(0);
    return edit;
}

ZrLineEdit *hinted(const QString &hint)
{
    ZrLineEdit *const edit = filled(QString());
    edit->setPlaceholderText(hint);
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
    page->beginRow(text("States"));
    page->addSample(text("Normal"), make());
    page->addPicture(text("Hover"), make, ZrShowcasePage::State::Hover);
    page->addPicture(text("Focus"), make, ZrShowcasePage::State::Focus);
    page->addSample(text("Disabled"), disabled());
    page->addSample(text("Read-only"), readOnly());
    page->addSample(text("Empty"), filled(QString()));
    page->addSample(text("Empty with a hint"), hinted(text("Symbol or name")));
}

void addTexts(ZrShowcasePage *page)
{
    page->beginRow(text("Texts"));
    page->addSample(text("Chinese"), filled(QStringLiteral("浦发银行")));
    page->addSample(text("English"), filled(QStringLiteral("Pudong Development Bank")));
    page->addSample(text("Long"), filled(QStringLiteral("600000.SH, 600004.SH, 600006.SH, 600007.SH, "
                                                        "600008.SH, 600009.SH, 600010.SH, 600011.SH")));
    page->addSample(text("Markup stays text"), filled(QStringLiteral("<b>600000</b> & 600004")));
}
} // namespace

ZrShowcasePage *zrMakeLineEditPage(QWidget *parent)
{
    auto *const page = new ZrShowcasePage(
        QStringLiteral("line-edit"), QStringLiteral("ZrLineEdit"),
        text("A text field that carries its form's data and tells when the entry is finished."), parent);
    addStates(page);
    addTexts(page);
    return page;
}
