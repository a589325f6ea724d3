#include "ZrDateEdit.h"
#include "ZrShowcasePage.h"
#include "ZrShowcasePages.h"

#include <QtCore/QCoreApplication>

namespace {
QString text(const char *source)
{
    return QCoreApplication::translate("ZrShowcase", source);
}

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
                           text("A date that may be left empty; a digit fills in today."), parent);
    page->beginRow(text("States"));
    page->addSample(text("Normal"), make());
    page->addPicture(text("Hover"), make, ZrShowcasePage::State::Hover);
    page->addPicture(text("Focus"), make, ZrShowcasePage::State::Focus);
    page->addSample(text("Disabled"), disabled());
    page->addSample(text("Read-only"), readOnly());
    page->addSample(text("Empty"), empty());
    page->beginRow(text("Forms"));
    page->addSample(text("With a calendar"), withCalendar());
    page->addSample(text("Chinese"), dated(QStringLiteral("yyyy年M月d日")));
    page->addSample(text("English"), dated(QStringLiteral("d/M/yyyy")));
    page->addSample(text("Long"), dated(QStringLiteral("yyyy-MM-dd hh:mm:ss")));
    return page;
}
