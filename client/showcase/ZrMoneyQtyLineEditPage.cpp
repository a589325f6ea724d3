#include "ZrLabel.h"
#include "ZrMoneyQtyLineEdit.h"
#include "ZrShowcase.h"
#include "ZrShowcasePage.h"
#include "ZrShowcasePages.h"

#include <QtCore/QSignalBlocker>

namespace {
ZrMoneyQtyLineEdit *filled(const QString &amount)
{
    auto *const edit = new ZrMoneyQtyLineEdit;
    // Silent: the reading floats up when a user types, not when a page is made.
    const QSignalBlocker blocker(edit);
    edit->setText(amount);
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
    page->beginRow(ZrShowcase::tr("States"));
    page->addSample(ZrShowcase::tr("Normal"), make());
    page->addPicture(ZrShowcase::tr("Hover"), make, ZrShowcasePage::State::Hover);
    page->addPicture(ZrShowcase::tr("Focus"), make, ZrShowcasePage::State::Focus);
    page->addSample(ZrShowcase::tr("Disabled"), disabled());
    page->addSample(ZrShowcase::tr("Read-only"), readOnly());
    page->addSample(ZrShowcase::tr("Empty"), filled(QString()));
}

// The reading is a tool tip that comes at a key press; here it stands still.
void addReadings(ZrShowcasePage *page)
{
    page->beginRow(ZrShowcase::tr("How amounts are read"));
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
    page->beginRow(ZrShowcase::tr("Sizes"));
    page->addSample(ZrShowcase::tr("Most digits before the full stop"),
                    filled(QStringLiteral("1234567890123.456")));
    page->addSample(ZrShowcase::tr("Most digits of all"), filled(QStringLiteral("1234567890123456")));
}
} // namespace

ZrShowcasePage *zrMakeMoneyQtyLineEditPage(QWidget *parent)
{
    auto *const page = new ZrShowcasePage(
        QStringLiteral("money-edit"), QStringLiteral("ZrMoneyQtyLineEdit"),
        ZrShowcase::tr("Takes amounts and quantities, and reads them in Chinese while they are typed."),
        parent);
    addStates(page);
    addReadings(page);
    return page;
}
