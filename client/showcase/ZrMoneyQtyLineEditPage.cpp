#include "ZrLabel.h"
#include "ZrMoneyQtyLineEdit.h"
#include "ZrShowcasePage.h"
#include "ZrShowcasePages.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QSignalBlocker>

namespace {
QString text(const char *source)
{
    return QCoreApplication::translate("ZrShowcase", source);
}

ZrMoneyQtyLineEdit *filled(const QString &amount)
{
    auto *const edit = new ZrMoneyQtyLineEdit;
    // Silent: the reading floats up when a user types, not when a page is made.
    const QSignalBlocker blocker(edit);
    edit->setText(amount);
    return edit;
}

ZrMoneyQtyLineEdit *hinted()
{
    ZrMoneyQtyLineEdit *const edit = filled(QString());
    edit->setPlaceholderText(text("Amount"));
    return edit;
}

ZrMoneyQtyLineEdit *readOnly()
{
    ZrMoneyQtyLineEdit *const edit = filled(QStringLiteral("12345678"));
    edit->setReadOnly(true);
    return edit;
}

ZrMoneyQtyLineEdit *disabled()
{
    ZrMoneyQtyLineEdit *const edit = filled(QStringLiteral("12345678"));
    edit->setEnabled(false);
    return edit;
}

void addStates(ZrShowcasePage *page)
{
    const auto make = []() -> QWidget * { return filled(QStringLiteral("12345678")); };
    page->beginRow(text("States"));
    page->addSample(text("Normal"), make());
    page->addPicture(text("Hover"), make, ZrShowcasePage::State::Hover);
    page->addPicture(text("Focus"), make, ZrShowcasePage::State::Focus);
    page->addSample(text("Disabled"), disabled());
    page->addSample(text("Read-only"), readOnly());
    page->addSample(text("Empty"), filled(QString()));
    page->addSample(text("Empty with a hint"), hinted());
}

// The reading is a tool tip that comes at a key press; here it stands still.
void addReadings(ZrShowcasePage *page)
{
    page->beginRow(text("How amounts are read"));
    const struct
    {
        const char *amount;
        const char *reading;
    } rows[] = {{"9999", "9999"},
                {"12345.678", "1万2345.678"},
                {"12345678", "1234万5678"},
                {"100000000", "1亿0000万0000"},
                {"1234567890123.45", "12345亿6789万0123.45"}};
    for (const auto &row : rows)
        page->addSample(QString::fromLatin1(row.amount), new ZrLabel(QString::fromUtf8(row.reading)));
    page->beginRow(text("Sizes"));
    page->addSample(text("Most digits before the full stop"), filled(QStringLiteral("1234567890123.456")));
    page->addSample(text("Most digits of all"), filled(QStringLiteral("1234567890123456")));
}
} // namespace

ZrShowcasePage *zrMakeMoneyQtyLineEditPage(QWidget *parent)
{
    auto *const page = new ZrShowcasePage(
        QStringLiteral("money-edit"), QStringLiteral("ZrMoneyQtyLineEdit"),
        text("Takes amounts and quantities, and reads them in Chinese while they are typed."), parent);
    addStates(page);
    addReadings(page);
    return page;
}
