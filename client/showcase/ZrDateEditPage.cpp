#include "ZrDateEdit.h"
#include "ZrShowcase.h"
#include "ZrShowcasePage.h"
#include "ZrShowcasePages.h"

namespace {
ZrDateEdit *dated(const QString &format = QStringLiteral("yyyy-MM-dd"))
{
    auto *const edit = new ZrDateEdit;
    edit->setDisplayFormat(format);
    edit->setNullable(true);
    edit->setDate(QDate(2026, 11, 20));
    return edit;
}

ZrDateEdit *empty()
{
    ZrDateEdit *const edit = dated();
    edit->setDate(QDate());
    return edit;
}

ZrDateEdit *withCalendar()
{
    ZrDateEdit *const edit = dated();
    edit->setCalendarPopup(true);
    return edit;
}

ZrDateEdit *disabled()
{
    ZrDateEdit *const edit = dated();
    edit->setEnabled(false);
    return edit;
}

ZrDateEdit *readOnly()
{
    ZrDateEdit *const edit = dated();
    edit->setReadOnly(true);
    return edit;
}
} // namespace

ZrShowcasePage *zrMakeDateEditPage(QWidget *parent)
{
    const auto make = []() -> QWidget * { return dated(); };
    auto *const page =
        new ZrShowcasePage(QStringLiteral("date-edit"), QStringLiteral("ZrDateEdit"),
                           ZrShowcase::tr("A date that may be left empty; a digit fills in today."), parent);
    page->beginRow(ZrShowcase::tr("States"));
    page->addSample(ZrShowcase::tr("Normal"), make());
    page->addPicture(ZrShowcase::tr("Hover"), make, ZrShowcasePage::State::Hover);
    page->addPicture(ZrShowcase::tr("Focus"), make, ZrShowcasePage::State::Focus);
    page->addSample(ZrShowcase::tr("Disabled"), disabled());
    page->addSample(ZrShowcase::tr("Read-only"), readOnly());
    page->addSample(ZrShowcase::tr("Empty"), empty());
    page->beginRow(ZrShowcase::tr("Forms"));
    page->addSample(ZrShowcase::tr("With a calendar"), withCalendar());
    page->addSample(ZrShowcase::tr("Chinese"), dated(QStringLiteral("yyyy年M月d日")));
    page->addSample(ZrShowcase::tr("English"), dated(QStringLiteral("d/M/yyyy")));
    page->addSample(ZrShowcase::tr("Long"), dated(QStringLiteral("yyyy-MM-dd hh:mm:ss")));
    return page;
}
